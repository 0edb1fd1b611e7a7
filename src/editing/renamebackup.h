#pragma once
#include "editing/sheetbackup.h"

// Backups of the names of sheet entries. The assignments of a renamed entry follow it on all tasks.
namespace renamebackup {

using Names = std::vector<UndoEditResourceName>;
Names now(const KWDocument &document, const Names &backups);
void restore(KWDocument &document, const Names &backups); // the entries alone

// Brings the assignments from their present names to the earlier ones, but for those of entries that are
// recorded with their assignments. Entries may have taken each other's names, so the way leads over names
// that nobody has; the recorded assignments come back half way.
class Assignments
{
public:
    Assignments(KWDocument &document, const Names &current, const Names &backups,
                const sheetbackup::Entries &entries);
    void setAside() const;
    void giveBack() const;

private:
    struct Renaming
    {
        QString from;
        QString between;
        QString to;
    };
    KWDocument &m_document;
    std::vector<Renaming> m_renamings;
};
}
