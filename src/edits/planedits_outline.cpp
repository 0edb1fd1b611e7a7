// Editing the outline: new tasks, one level in or out, places among siblings, removal, what is shown.
#include "edits/oneedit.h"
#include "edits/outlineplaces.h"
#include "edits/planedits.h"
#include "edits/taskvalues.h"
#include "engine/time/dayoff.h"
#include "engine/time/duration.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "support/kwclock.h"
#include "table/rowcolumndata.h"
#include <algorithm>

using outlineplaces::Target;

namespace {

constexpr int nameColumn = 1;
constexpr quint32 secsPerDay = LocalClock::secsPerDay;
// More tasks are recorded with all others, which costs the same for any number.
constexpr std::size_t fewTasks = 200;

// ---- New tasks
// ------------------------------------------------------------------------------------------------------

bool isDated(const KWTaskInfo *task)
{
    return task && task->Start != 0 && task->Finish != 0;
}

// The dates of a new task: those of the one beside it, for a day at most. A task that takes its place below
// one that was a leaf takes all of its time.
void giveDates(const KWDocument &document, const KWTaskInfo *like, bool sameLength, KWTaskInfo &task)
{
    constexpr bool hourClock = false;
    const worktime::WorkCalendar &calendar = document.workCalendar();
    if (isDated(like)) {
        const bool lasts = like->Finish > like->Start + 1;
        const bool keeps = lasts && (sameLength || like->Finish - like->Start <= secsPerDay);
        task.Start = like->Start;
        task.Finish = dayoff::finishForward(
            calendar, keeps ? like->Finish : worktime::clampSecs(qint64(like->Start) + secsPerDay),
            hourClock);
    } else {
        const qint64 today = KWClock::now().date().startOfDay().toSecsSinceEpoch();
        task.Start = dayoff::startForward(calendar, worktime::clampSecs(today), hourClock);
        task.Finish =
            dayoff::finishForward(calendar, worktime::clampSecs(qint64(task.Start) + secsPerDay), hourClock);
    }
    task.DurationSecs = duration::secs(calendar, task.Start, task.Finish, task.DurationUnits);
}

EditAnswer insertAt(OneEdit &edit, const Target &target, const KWTaskInfo *like, const TaskValues &values)
{
    KWDocument &document = edit.document();
    if (!taskvalues::judge(edit, nullptr, values))
        return edit.answer;
    edit.begin(OneEdit::AllTasks);
    const bool sameLength = target.parent && target.parent == like && !like->isParent();
    if (target.parent)
        edit.mayBecomeSummary(*target.parent);
    auto *task = new KWTaskInfo;
    task->ID = document.nextTaskID();
    task->ParentID = target.parent ? target.parent->ID.value() : 0;
    task->DurationUnits = document.ProjectUnit;
    giveDates(document, like, sameLength, *task);
    constexpr bool useColumnTitle = true;
    if (!values.name)
        task->Name = document.differentSuffixTaskName(
            RowColumnData::s_columnNames.value(nameColumn) + QLatin1Char('1'), useColumnTitle);
    task->initFont();
    document.insertTasks(target.pos, {task}, {});
    if (target.parent)
        target.parent->insertTaskChildID(target.child, task->ID);
    outlineplaces::refreshBelow(edit.tasks(), *task);
    edit.childrenChanged(target.parent);
    edit.changed(*task);
    edit.changes.what |= settling::Outline | settling::Dates;
    taskvalues::apply(edit, *task, values);
    edit.answer.tasks = {task->ID};
    return edit.finish();
}
}

EditAnswer PlanEdits::add(const TaskValues &values)
{
    OneEdit edit(step());
    const KWDocument &document = edit.document();
    const KWTaskInfo *last = document.getTaskInfoByRow(document.visibleRowCount() - 1);
    return insertAt(edit, outlineplaces::atEnd(edit), last, values);
}

EditAnswer PlanEdits::insert(quint32 id, Place place, const TaskValues &values)
{
    OneEdit edit(step());
    const std::vector<KWTaskInfo *> beside = edit.named({id});
    if (edit.isRefused())
        return edit.answer;
    return insertAt(edit, outlineplaces::target(edit, *beside.front(), place), beside.front(), values);
}

// ---- Removal
// --------------------------------------------------------------------------------------------------------

namespace {

// The task goes out of its parent's children; those that stay of what it held take its place.
void unhook(OneEdit &edit, const KWTaskInfo &task, const std::vector<KWTaskInfo *> &lifted)
{
    KWTaskInfo *parent = edit.parentOf(task);
    for (KWTaskInfo *child : lifted)
        child->ParentID = parent ? parent->ID.value() : 0;
    if (!parent)
        return;
    int place = parent->Childs.indexOf(task.ID);
    if (place < 0)
        place = parent->Childs.size();
    parent->removeTaskChildIDByID(task.ID);
    for (KWTaskInfo *child : lifted)
        parent->insertTaskChildID(place++, child->ID);
}

// Takes tasks out of the document: those in `leaving`, whose children that stay move up in their place.
void takeOut(OneEdit &edit, const TaskIndex &leaving)
{
    KWDocument &document = edit.document();
    const outline::Tasks tasks = edit.tasks();
    std::vector<KWTaskInfo *> gone;
    std::vector<KWTaskInfo *> lifted;
    for (KWTaskInfo *task : tasks.list) {
        if (leaving.contains(task->ID))
            gone.push_back(task);
        const auto isGone = [&](quint32 id) { return leaving.contains(id); };
        for (QList<quint32> *links : {&task->Depends, &task->Predecessors}) {
            if (std::any_of(links->cbegin(), links->cend(), isGone))
                links->erase(std::remove_if(links->begin(), links->end(), isGone), links->end());
        }
    }
    // Inner ones first, so that what stays moves up step by step.
    for (auto task = gone.rbegin(); task != gone.rend(); ++task) {
        std::vector<KWTaskInfo *> children;
        for (const quint32 id : qAsConst((*task)->Childs)) {
            KWTaskInfo *child = tasks.byId(id);
            if (child && child->ParentID == (*task)->ID && !leaving.contains(id))
                children.push_back(child);
        }
        unhook(edit, **task, children);
        lifted.insert(lifted.end(), children.begin(), children.end());
        if (const KWTaskInfo *parent = edit.parentOf(**task))
            edit.childrenChanged(parent);
        if ((*task)->isHaveResource())
            edit.changes.what |= settling::Assignments;
    }
    document.removeTasks(leaving);
    const outline::Tasks left = edit.tasks();
    for (KWTaskInfo *task : lifted)
        outlineplaces::refreshBelow(left, *task);
    for (const quint32 id : qAsConst(edit.changes.summaries)) {
        KWTaskInfo *summary = edit.task(id);
        if (summary && !summary->isParent())
            summary->IsToggler = false;
    }
    edit.changes.what |= settling::Outline | settling::Links;
}
}

EditAnswer PlanEdits::remove(const QVector<quint32> &ids)
{
    OneEdit edit(step());
    const std::vector<KWTaskInfo *> tasks = edit.named(ids);
    if (edit.isRefused())
        return edit.answer;
    TaskIndex leaving;
    for (KWTaskInfo *task : tasks) {
        leaving.add(task->ID);
        if (!task->IsToggler)
            continue;
        for (const KWTaskInfo *below : outline::descendants(edit.tasks(), *task)) {
            if (below->HideID != 0)
                leaving.add(below->ID);
        }
    }
    edit.begin(OneEdit::AllTasks);
    takeOut(edit, leaving);
    return edit.finish();
}

EditAnswer PlanEdits::cut(const QVector<quint32> &ids)
{
    const EditAnswer copied = copy(ids);
    if (!copied.isDone())
        return copied;
    OneEdit edit(step());
    TaskIndex leaving;
    for (const KWTaskInfo *task : edit.named(ids)) {
        leaving.add(task->ID);
        for (const KWTaskInfo *below : outline::descendants(edit.tasks(), *task))
            leaving.add(below->ID);
    }
    edit.begin(OneEdit::AllTasks);
    takeOut(edit, leaving);
    return edit.finish();
}

// ---- Levels
// ---------------------------------------------------------------------------------------------------------

namespace {

// Gives the task another parent (null: the top level), at a place among its children.
void rehang(OneEdit &edit, KWTaskInfo &task, KWTaskInfo *parent, int place)
{
    KWTaskInfo *old = edit.parentOf(task);
    if (old)
        old->removeTaskChildIDByID(task.ID);
    edit.childrenChanged(old);
    task.ParentID = parent ? parent->ID.value() : 0;
    if (parent)
        parent->insertTaskChildID(place, task.ID);
    edit.childrenChanged(parent);
    if (old && !old->isParent())
        old->IsToggler = false;
    if (!task.Resources.isEmpty() || task.isHaveResource())
        edit.changes.what |= settling::Assignments;
    edit.changed(task);
}

int placeBehind(const KWTaskInfo *parent, const KWTaskInfo &task)
{
    const int place = parent ? parent->Childs.indexOf(task.ID) : -1;
    return place < 0 ? (parent ? parent->Childs.size() : 0) : place + 1;
}
}

EditAnswer PlanEdits::indent(const QVector<quint32> &ids)
{
    OneEdit edit(step());
    const std::vector<KWTaskInfo *> tasks = outlineplaces::tops(edit.tasks(), edit.named(ids));
    if (edit.isRefused())
        return edit.answer;
    for (const KWTaskInfo *task : tasks) {
        if (!outlineplaces::sibling(edit.tasks(), *task, -1))
            return edit.refuse(EditRefusal::NoTaskBefore, {edit.nameOf(*task)});
    }
    edit.begin(OneEdit::AllTasks);
    for (KWTaskInfo *task : tasks) {
        KWTaskInfo *parent = outlineplaces::sibling(edit.tasks(), *task, -1);
        edit.mayBecomeSummary(*parent);
        rehang(edit, *task, parent, parent->Childs.size());
        edit.mayNotSuitLinks(*parent);
        outlineplaces::refreshBelow(edit.tasks(), *task);
        edit.answer.tasks.append(task->ID);
    }
    edit.changes.what |= settling::Outline | settling::Dates;
    return edit.finish();
}

EditAnswer PlanEdits::outdent(const QVector<quint32> &ids)
{
    OneEdit edit(step());
    std::vector<KWTaskInfo *> tasks = outlineplaces::tops(edit.tasks(), edit.named(ids));
    if (edit.isRefused())
        return edit.answer;
    for (const KWTaskInfo *task : tasks) {
        if (!edit.parentOf(*task))
            return edit.refuse(EditRefusal::TopLevel, {edit.nameOf(*task)});
    }
    edit.begin(OneEdit::AllTasks);
    // The last one first: it would become a child of the one before it for a moment, which then were a
    // summary.
    std::reverse(tasks.begin(), tasks.end());
    for (KWTaskInfo *task : tasks) {
        KWTaskInfo *parent = edit.parentOf(*task);
        const QList<quint32> followers = parent->Childs.mid(placeBehind(parent, *task));
        if (!followers.isEmpty()) {
            edit.mayBecomeSummary(*task);
            edit.mayNotSuitLinks(*task);
        }
        for (const quint32 id : followers) {
            if (KWTaskInfo *follower = edit.task(id))
                rehang(edit, *follower, task, task->Childs.size());
        }
        KWTaskInfo *above = edit.parentOf(*parent);
        rehang(edit, *task, above, placeBehind(above, *parent));
        outlineplaces::refreshBelow(edit.tasks(), *task);
        edit.answer.tasks.prepend(task->ID);
    }
    edit.changes.what |= settling::Outline | settling::Dates;
    return edit.finish();
}

EditAnswer PlanEdits::move(quint32 id, int places)
{
    OneEdit edit(step());
    const std::vector<KWTaskInfo *> found = edit.named({id});
    if (edit.isRefused())
        return edit.answer;
    KWTaskInfo *task = found.front();
    if (!outlineplaces::sibling(edit.tasks(), *task, places))
        return edit.refuse(places < 0 ? EditRefusal::NoTaskBefore : EditRefusal::NoTaskAfter,
                           {edit.nameOf(*task)});
    edit.begin(OneEdit::AllTasks);
    KWDocument &document = edit.document();
    for (; places < 0; ++places) {
        const KWTaskInfo *before = outlineplaces::sibling(edit.tasks(), *task, -1);
        document.moveTaskInfo(task, document.getPosByID(task->ID), document.getPosByID(before->ID));
    }
    for (; places > 0; --places) {
        KWTaskInfo *after = outlineplaces::sibling(edit.tasks(), *task, 1);
        document.moveTaskInfo(after, document.getPosByID(after->ID), document.getPosByID(task->ID));
    }
    // Sums and names of summaries follow the order of the tasks.
    edit.childrenChanged(edit.parentOf(*task));
    edit.changes.what |= settling::Outline;
    if (edit.parentOf(*task))
        edit.changes.what |= settling::Assignments;
    edit.answer.tasks = {id};
    return edit.finish();
}

// ---- What is shown
// --------------------------------------------------------------------------------------------------

namespace {

EditAnswer showBelow(OneEdit &edit, const std::vector<KWTaskInfo *> &tasks, bool collapsed)
{
    const outline::Tasks all = edit.tasks();
    std::vector<KWTaskInfo *> concerned = tasks;
    for (const KWTaskInfo *task : tasks) {
        const std::vector<KWTaskInfo *> below = outline::descendants(all, *task);
        concerned.insert(concerned.end(), below.begin(), below.end());
    }
    const bool isFew = concerned.size() <= fewTasks;
    edit.begin(isFew ? OneEdit::SingleTasks : OneEdit::AllTasks, OneEdit::MovesNothing);
    for (KWTaskInfo *task : concerned)
        edit.keepValues(*task);
    for (KWTaskInfo *task : tasks) {
        if (task->isParent())
            task->IsToggler = collapsed;
        outlineplaces::refreshBelow(all, *task);
        edit.answer.tasks.append(task->ID);
    }
    return edit.finishRows();
}
}

EditAnswer PlanEdits::collapse(const QVector<quint32> &ids)
{
    OneEdit edit(step());
    const std::vector<KWTaskInfo *> tasks = edit.named(ids);
    if (edit.isRefused())
        return edit.answer;
    for (const KWTaskInfo *task : tasks) {
        if (!task->isParent())
            return edit.refuse(EditRefusal::NoSummary, {edit.nameOf(*task)});
    }
    constexpr bool collapsed = true;
    return showBelow(edit, tasks, collapsed);
}

EditAnswer PlanEdits::expand(const QVector<quint32> &ids)
{
    OneEdit edit(step());
    const std::vector<KWTaskInfo *> tasks = edit.named(ids);
    if (edit.isRefused())
        return edit.answer;
    constexpr bool collapsed = false;
    return showBelow(edit, tasks, collapsed);
}
