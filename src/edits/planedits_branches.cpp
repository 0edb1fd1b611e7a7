// Copying and pasting branches, through the clipboard and from plan to plan.
#include "editing/clipbdmanager.h"
#include "edits/oneedit.h"
#include "edits/outlineplaces.h"
#include "edits/planedits.h"
#include "engine/record/resource.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include <QSet>

using outlineplaces::Target;

namespace {

QList<quint32> idsOf(const std::vector<KWTaskInfo *> &tasks)
{
    QList<quint32> ids;
    for (const KWTaskInfo *task : tasks)
        ids.append(task->ID);
    return ids;
}

// Resources that the sheet does not have come with their tasks from another plan. On the clipboard they may
// have been left behind by what was done to the sheet since. `known` are the names of the sheet's entries,
// trimmed.
void takeResources(OneEdit &edit, TaskRecord &task, const KWDocument *source, QSet<QString> &known)
{
    ResourceInfoData &sheet = *edit.document().resourceInfoData();
    const QList<Resource *> assignments = task.resourceList;
    for (Resource *assigned : assignments) {
        const QString name = assigned->name.trimmed();
        if (known.contains(name))
            continue;
        const ResourceInfo *entry =
            source ? source->resourceInfoData()->getResourceInfoByName(assigned->name) : nullptr;
        if (entry) {
            auto *copy = new ResourceInfo(*entry);
            copy->ID = sheet.maxID();
            sheet.appendResourceInfo(copy);
            known.insert(name);
            continue;
        }
        edit.lose(EditLoss::Assignment, task, name);
        task.resourceList.removeOne(assigned);
        Resource::release(assigned);
    }
}

QSet<QString> namesOf(const ResourceInfoData &sheet)
{
    QSet<QString> names;
    for (const ResourceInfo *info : sheet.infos) {
        if (info)
            names.insert(info->name.trimmed());
    }
    return names;
}

// Puts branches there; the columns that came with them are left aside.
EditAnswer insertBranches(OneEdit &edit, const QByteArray &bytes, bool withAssignments, unsigned backups,
                          const Target &target, const KWDocument *source)
{
    KWDocument &document = edit.document();
    edit.begin(backups);
    if (target.parent) {
        edit.keepTask(*target.parent);
        edit.mayBecomeSummary(*target.parent);
    }
    const QList<quint32> tops = document.clipbdManager().insertBranches(bytes, withAssignments, target.pos,
                                                                        asTask(target.parent), target.child);
    if (tops.isEmpty())
        return edit.refuse(EditRefusal::NothingToPaste);
    const outline::Tasks tasks = edit.tasks();
    QSet<QString> resources = namesOf(*document.resourceInfoData());
    for (const quint32 id : tops) {
        TaskRecord *top = tasks.byId(id);
        outlineplaces::refreshBelow(tasks, *top);
        edit.changed(*top);
        edit.answer.tasks.append(id);
        std::vector<TaskRecord *> branch = outline::descendants(tasks, *top);
        branch.push_back(top);
        for (TaskRecord *task : branch) {
            edit.childrenChanged(task);
            takeResources(edit, *task, source, resources);
        }
    }
    edit.childrenChanged(target.parent);
    edit.changes.what |= settling::Outline | settling::Dates | settling::Links | settling::Assignments;
    return edit.finish();
}

EditAnswer pasteAt(OneEdit &edit, const Target &target)
{
    bool isOwn = false;
    const QByteArray bytes = edit.document().clipbdManager().clipboardBytes(isOwn);
    if (bytes.isEmpty())
        return edit.refuse(EditRefusal::NothingToPaste);
    return insertBranches(edit, bytes, isOwn, OneEdit::Rows, target, nullptr);
}

EditAnswer copyFrom(OneEdit &edit, const KWDocument &source, const QVector<quint32> &ids,
                    const Target &target)
{
    std::vector<KWTaskInfo *> wanted;
    for (const quint32 id : ids) {
        wanted.push_back(source.getTaskInfoByID(id));
        if (!wanted.back())
            return edit.refuse(EditRefusal::NoSuchTask, {QString::number(id)});
    }
    if (wanted.empty())
        return edit.refuse(EditRefusal::NoTasks);
    const QList<quint32> tops = idsOf(outlineplaces::tops(source.outline(), wanted));
    // Reading the branches of a document changes nothing of it.
    const QByteArray bytes = const_cast<KWDocument &>(source).clipbdManager().branches(tops);
    constexpr bool withAssignments = true;
    return insertBranches(edit, bytes, withAssignments, OneEdit::AllTasks | OneEdit::Sheet, target, &source);
}
}

EditAnswer PlanEdits::copy(const QVector<quint32> &ids)
{
    OneEdit edit(step());
    const std::vector<KWTaskInfo *> tasks = outlineplaces::tops(edit.tasks(), edit.named(ids));
    if (edit.isRefused())
        return edit.answer;
    if (!edit.document().clipbdManager().copyBranches(idsOf(tasks)))
        return edit.refuse(EditRefusal::ClipboardFailed);
    for (const KWTaskInfo *task : tasks)
        edit.answer.tasks.append(task->ID);
    return edit.answer;
}

EditAnswer PlanEdits::paste()
{
    OneEdit edit(step());
    Target target;
    target.pos = edit.document().taskCount();
    return pasteAt(edit, target);
}

EditAnswer PlanEdits::paste(quint32 id, Place place)
{
    OneEdit edit(step());
    const std::vector<KWTaskInfo *> beside = edit.named({id});
    if (edit.isRefused())
        return edit.answer;
    return pasteAt(edit, outlineplaces::target(edit, *beside.front(), place));
}

EditAnswer PlanEdits::copyBranches(const KWDocument &source, const QVector<quint32> &ids)
{
    OneEdit edit(step());
    Target target;
    target.pos = edit.document().taskCount();
    return copyFrom(edit, source, ids, target);
}

EditAnswer PlanEdits::copyBranches(const KWDocument &source, const QVector<quint32> &ids, quint32 id,
                                   Place place)
{
    OneEdit edit(step());
    const std::vector<KWTaskInfo *> beside = edit.named({id});
    if (edit.isRefused())
        return edit.answer;
    return copyFrom(edit, source, ids, outlineplaces::target(edit, *beside.front(), place));
}
