// Editing the outline: new tasks, one level in or out, places among siblings, removal, what is shown.
#include "edits/oneedit.h"
#include "edits/outlineplaces.h"
#include "edits/planedits.h"
#include "edits/taskvalues.h"
#include "engine/record/taskahead.h"
#include "engine/time/dayoff.h"
#include "engine/time/duration.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "support/kwclock.h"
#include "table/rowcolumndata.h"
#include <algorithm>
#include <limits>

using outlineplaces::Target;

namespace {

constexpr quint32 secsPerDay = LocalClock::secsPerDay;
// More tasks are recorded with all others, which costs the same for any number.
constexpr std::size_t fewTasks = 200;

// ---- New tasks -------------------------------------------------------------------------------------------

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
        const bool lasts = like->Finish > like->Start + duration::milestoneSecs;
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
    edit.begin(OneEdit::Rows);
    const bool sameLength = target.parent && target.parent == like && !like->isParent();
    if (target.parent) {
        edit.keepTask(*target.parent);
        edit.mayBecomeSummary(*target.parent);
    }
    auto *task = new KWTaskInfo;
    task->ID = document.nextTaskID();
    task->ParentID = target.parent ? target.parent->ID.value() : 0;
    task->DurationUnits = document.ProjectUnit;
    giveDates(document, like, sameLength, *task);
    constexpr bool useColumnTitle = true;
    if (!values.name)
        task->Name = document.differentSuffixTaskName(
            RowColumnData::s_columnNames.value(columntypes::Name) + QLatin1Char('1'), useColumnTitle);
    task->initFont();
    document.insertTasks(target.pos, {task}, {});
    if (target.parent)
        asTask(target.parent)->insertTaskChildID(target.child, task->ID);
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

// ---- Removal ---------------------------------------------------------------------------------------------

namespace {

// The IDs of tasks that leave. Mostly these are neighbours, so that most others need not be looked up.
class Leaving
{
public:
    void add(quint32 id)
    {
        m_least = std::min(m_least, id);
        m_greatest = std::max(m_greatest, id);
        m_ids.add(id);
    }
    bool contains(quint32 id) const { return id >= m_least && id <= m_greatest && m_ids.contains(id); }
    const TaskIndex &ids() const { return m_ids; }

private:
    TaskIndex m_ids;
    quint32 m_least = std::numeric_limits<quint32>::max();
    quint32 m_greatest = 0;
};

// The children of a summary that loses some of them: in the place of each that leaves stand those of its own
// that stay.
QList<quint32> remaining(const outline::Tasks &tasks, const QList<quint32> &children, const Leaving &leaving)
{
    QList<quint32> left;
    TaskIndex seen;
    QList<quint32> open(children.crbegin(), children.crend());
    while (!open.isEmpty()) {
        const quint32 id = open.takeLast();
        const TaskRecord *child = tasks.byId(id);
        if (!seen.add(id))
            continue;
        if (!child || !leaving.contains(id)) {
            left.append(id);
            continue;
        }
        for (auto below = child->Childs.crbegin(); below != child->Childs.crend(); ++below)
            open.append(*below);
    }
    return left;
}

// Takes tasks out of the document: those in `leaving`, whose children that stay move up in their place.
void takeOut(OneEdit &edit, const Leaving &leaving)
{
    KWDocument &document = edit.document();
    const outline::Tasks tasks = edit.tasks();
    const auto isGone = [&](quint32 id) { return leaving.contains(id); };
    std::vector<TaskRecord *> lifted;
    // Anybody may have written links on one side only, so every task is asked.
    for (int pos = 0; pos < tasks.list.size(); ++pos) {
        fetchTaskAhead(tasks.list, pos + 2 * tasksAhead);
        fetchListsAhead(tasks.list, pos + tasksAhead);
        TaskRecord *task = tasks.list[pos];
        if (leaving.contains(task->ID)) {
            edit.keepLeaving(*task);
            if (task->isHaveResource())
                edit.changes.what |= settling::Assignments;
            continue;
        }
        for (QList<quint32> *links : {&task->Depends, &task->Predecessors}) {
            if (std::any_of(links->cbegin(), links->cend(), isGone)) {
                edit.keepTask(*task);
                links->erase(std::remove_if(links->begin(), links->end(), isGone), links->end());
            }
        }
        if (std::any_of(task->Childs.cbegin(), task->Childs.cend(), isGone)) {
            edit.keepTask(*task);
            task->Childs = remaining(tasks, task->Childs, leaving);
            edit.childrenChanged(task);
        }
        if (!leaving.contains(task->ParentID))
            continue;
        edit.keepReach(*task);
        // The nearest summary above that stays; all between them leave.
        const KWTaskInfo *parent = edit.parentOf(*task);
        while (parent && leaving.contains(parent->ID))
            parent = edit.parentOf(*parent);
        task->ParentID = parent ? parent->ID.value() : 0;
        lifted.push_back(task);
    }
    document.removeTasks(leaving.ids());
    const outline::Tasks left = edit.tasks();
    for (TaskRecord *task : lifted)
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
    Leaving leaving;
    for (KWTaskInfo *task : tasks) {
        leaving.add(task->ID);
        if (!task->IsToggler)
            continue;
        for (const TaskRecord *below : outline::descendants(edit.tasks(), *task)) {
            if (below->HideID != 0)
                leaving.add(below->ID);
        }
    }
    edit.begin(OneEdit::Rows);
    takeOut(edit, leaving);
    return edit.finish();
}

EditAnswer PlanEdits::cut(const QVector<quint32> &ids)
{
    const EditAnswer copied = copy(ids);
    if (!copied.isDone())
        return copied;
    OneEdit edit(step());
    Leaving leaving;
    for (const KWTaskInfo *task : edit.named(ids)) {
        leaving.add(task->ID);
        for (const TaskRecord *below : outline::descendants(edit.tasks(), *task))
            leaving.add(below->ID);
    }
    edit.begin(OneEdit::Rows);
    takeOut(edit, leaving);
    return edit.finish();
}

// ---- Levels ----------------------------------------------------------------------------------------------

namespace {

// Hangs a task that its old parent does not name any more below another one (null: the top level), at a place
// among its children.
void hang(OneEdit &edit, KWTaskInfo &task, KWTaskInfo *old, KWTaskInfo *parent, int place)
{
    edit.keepReach(task);
    for (KWTaskInfo *summary : {old, parent}) {
        if (summary)
            edit.keepTask(*summary);
    }
    task.ParentID = parent ? parent->ID.value() : 0;
    if (parent)
        parent->Childs.insert(place, task.ID);
    if (old && !old->isParent())
        old->IsToggler = false;
    edit.childrenChanged(old);
    edit.childrenChanged(parent);
    if (!task.Resources.isEmpty() || task.isHaveResource())
        edit.changes.what |= settling::Assignments;
    edit.changed(task);
}

// For each of the tasks the sibling before it that is none of them; refuses where there is none.
std::vector<KWTaskInfo *> newParents(OneEdit &edit, const std::vector<KWTaskInfo *> &tasks)
{
    TaskIndex placeOf;    // among the tasks
    TaskIndex siblingsOf; // the parents of these, as places in `last`
    for (std::size_t i = 0; i < tasks.size(); ++i) {
        placeOf.add(tasks[i]->ID, int(i));
        siblingsOf.add(tasks[i]->ParentID, siblingsOf.size());
    }
    std::vector<KWTaskInfo *> parents(tasks.size());
    std::vector<KWTaskInfo *> last(std::size_t(siblingsOf.size()));
    for (KWTaskInfo *task : edit.document().taskList()) {
        const int siblings = siblingsOf.posOf(task->ParentID);
        if (siblings < 0)
            continue;
        const int place = placeOf.posOf(task->ID);
        KWTaskInfo *&before = last[std::size_t(siblings)];
        if (place < 0) {
            before = task;
            continue;
        }
        if (!before) {
            edit.refuse(EditRefusal::NoTaskBefore, {edit.nameOf(*task)});
            break;
        }
        parents[std::size_t(place)] = before;
    }
    return parents;
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
    const std::vector<KWTaskInfo *> parents = newParents(edit, tasks);
    if (edit.isRefused())
        return edit.answer;
    edit.begin(OneEdit::Rows);
    TaskIndex moving;
    for (const KWTaskInfo *task : tasks)
        moving.add(task->ID);
    for (std::size_t i = 0; i < tasks.size(); ++i) {
        KWTaskInfo &task = *tasks[i];
        KWTaskInfo *old = edit.parentOf(task);
        if (old && old->Childs.contains(task.ID)) {
            edit.keepTask(*old);
            outline::removeChilds(*old, moving); // all of them at once
        }
        edit.mayBecomeSummary(*parents[i]);
        edit.mayNotSuitLinks(*parents[i]);
        hang(edit, task, old, parents[i], parents[i]->Childs.size());
        edit.answer.tasks.append(task.ID);
    }
    for (KWTaskInfo *task : tasks)
        outlineplaces::refreshBelow(edit.tasks(), *task);
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
    edit.begin(OneEdit::Rows);
    // The last one first: it would become a child of the one before it for a moment, which then were a
    // summary.
    std::reverse(tasks.begin(), tasks.end());
    for (KWTaskInfo *task : tasks) {
        KWTaskInfo *parent = edit.parentOf(*task);
        const int place = placeBehind(parent, *task);
        const QList<quint32> followers = parent->Childs.mid(place);
        if (!followers.isEmpty()) {
            edit.mayBecomeSummary(*task);
            edit.mayNotSuitLinks(*task);
        }
        edit.keepReach(*parent);
        parent->Childs = parent->Childs.mid(0, place);
        parent->removeTaskChildIDByID(task->ID);
        for (const quint32 id : followers) {
            if (KWTaskInfo *follower = edit.task(id))
                hang(edit, *follower, parent, task, task->Childs.size());
        }
        KWTaskInfo *above = edit.parentOf(*parent);
        hang(edit, *task, parent, above, placeBehind(above, *parent));
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
    edit.begin(OneEdit::Rows);
    if (KWTaskInfo *parent = edit.parentOf(*task))
        edit.keepTask(*parent);
    KWDocument &document = edit.document();
    for (; places < 0; ++places) {
        const TaskRecord *before = outlineplaces::sibling(edit.tasks(), *task, -1);
        document.moveTaskInfo(task, document.getPosByID(task->ID), document.getPosByID(before->ID));
    }
    for (; places > 0; --places) {
        KWTaskInfo *after = asTask(outlineplaces::sibling(edit.tasks(), *task, 1));
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

// ---- What is shown ---------------------------------------------------------------------------------------

namespace {

EditAnswer showBelow(OneEdit &edit, const std::vector<KWTaskInfo *> &tasks, bool collapsed)
{
    const outline::Tasks all = edit.tasks();
    std::vector<KWTaskInfo *> concerned = tasks;
    for (const KWTaskInfo *task : tasks) {
        for (TaskRecord *below : outline::descendants(all, *task))
            concerned.push_back(asTask(below));
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
