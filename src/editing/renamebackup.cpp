#include "editing/renamebackup.h"
#include "editing/sheetplaces.h"
#include "model/kwdocument.h"
#include <algorithm>

namespace renamebackup {

Names now(const KWDocument &document, const Names &backups)
{
    Names names;
    for (const UndoEditResourceName &backup : backups) {
        const ResourceInfo *info = sheetbackup::find(*document.resourceInfoData(), backup.ID, backup.index);
        names.push_back({backup.ID, backup.index, info ? info->name : backup.name});
    }
    return names;
}

void restore(KWDocument &document, const Names &backups)
{
    for (const UndoEditResourceName &backup : backups) {
        if (ResourceInfo *info = sheetbackup::find(*document.resourceInfoData(), backup.ID, backup.index))
            info->name = backup.name;
    }
}

namespace {

bool isAnothers(const ResourceInfoData &sheet, const UndoEditResourceName &own, const QString &name)
{
    const ResourceInfo *entry = sheetbackup::find(sheet, own.ID, own.index);
    return std::any_of(sheet.infos.begin(), sheet.infos.end(), [&](const ResourceInfo *info) {
        return info && info != entry && info->name.trimmed() == name.trimmed();
    });
}
}

Assignments::Assignments(KWDocument &document, const Names &current, const Names &backups,
                         const sheetbackup::Entries &entries)
    : m_document(document)
{
    constexpr ushort noCharacter = 0xffff; // no text from a file or a keyboard holds it
    for (std::size_t i = 0; i < backups.size(); ++i) {
        const UndoEditResourceName &backup = backups[i];
        const bool isRecorded =
            std::any_of(entries.begin(), entries.end(), [&backup](const UndoDocResourceItem &entry) {
                return entry.info.ID == backup.ID &&
                       (entry.info.name == backup.name || entry.index == backup.index);
            });
        // An assignment cannot be found by an empty name, nor get one. Where another entry has the name, too,
        // its assignments are not to be taken: those that were this one's are recorded by task.
        if (isRecorded || isAnothers(*document.resourceInfoData(), backup, current[i].name) ||
            current[i].name == backup.name || current[i].name.isEmpty() || backup.name.isEmpty())
            continue;
        m_renamings.push_back({current[i].name, QChar(noCharacter) + QString::number(i), backup.name});
    }
}

void Assignments::setAside() const
{
    for (const Renaming &renaming : m_renamings)
        m_document.replaceTaskResourceName(renaming.from, renaming.between);
}

void Assignments::giveBack() const
{
    for (const Renaming &renaming : m_renamings)
        m_document.replaceTaskResourceName(renaming.between, renaming.to);
}
}
