#include "edits/oneedit.h"
#include "editing/taskbackups.h"
#include "edits/outlineplaces.h"
#include "edits/settlepass.h"
#include "engine/cost/baselines.h"
#include "engine/network/links.h"
#include "engine/record/resource.h"
#include "engine/record/taskahead.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"
#include "support/longwork.h"
#include <algorithm>

OneEdit::OneEdit(EditStep &step)
    : m_step(step)
{
}

outline::Tasks OneEdit::tasks() const
{
    return document().outline();
}

KWTaskInfo *OneEdit::task(quint32 id) const
{
    return id == 0 ? nullptr : document().getTaskInfoByID(id);
}

KWTaskInfo *OneEdit::parentOf(const TaskRecord &task) const
{
    KWTaskInfo *parent = this->task(task.ParentID);
    return parent == &task ? nullptr : parent;
}

// ---- Judging ---------------------------------------------------------------------------------------------

EditAnswer &OneEdit::refuse(EditRefusal refusal, const QStringList &arguments)
{
    answer = EditAnswer();
    answer.refusal = refusal;
    answer.arguments = arguments;
    return answer;
}

std::vector<KWTaskInfo *> OneEdit::named(const QVector<quint32> &ids)
{
    std::vector<KWTaskInfo *> found;
    TaskIndex seen;
    for (const quint32 id : ids) {
        KWTaskInfo *task = this->task(id);
        if (!task) {
            refuse(EditRefusal::NoSuchTask, {QString::number(id)});
            return {};
        }
        if (seen.add(id))
            found.push_back(task);
    }
    if (found.empty())
        refuse(EditRefusal::NoTasks);
    outlineplaces::sort(tasks(), found);
    return found;
}

QString OneEdit::nameOf(const TaskRecord &task) const
{
    return QStringLiteral("%1 \"%2\"").arg(document().getTagByTaskID(task.ID)).arg(task.Name.trimmed());
}

// ---- Recording -------------------------------------------------------------------------------------------

void OneEdit::begin(unsigned backups, Reach reach)
{
    if (m_step.records.empty())
        m_step.wasModified = document().isModified();
    m_wasModified = document().isModified();
    constexpr unsigned int noFlags = 0;
    m_record = std::make_unique<TaskAction>(&document(), m_step.name, noFlags);
    m_reach = reach;
    TaskAction &action = *m_record;
    m_hasAllTasks = (backups & AllTasks) || ((backups & Rows) && !action.backupRows());
    if (backups & Rows)
        action.backupChart();
    if (m_hasAllTasks)
        action.backupAllTaskData();
    if (backups & Sheet)
        action.backupAllDocResources();
    if (backups & Options)
        action.backupAllOption();
    if (backups & Columns)
        action.backupAllColData();
    if (reach == MovesTasks && m_hasAllTasks)
        keepDates();
}

void OneEdit::keepDates()
{
    const QList<KWTaskInfo *> &list = document().taskList();
    m_datesBefore.reserve(std::size_t(list.size()));
    for (int pos = 0; pos < list.size(); ++pos)
        m_datesBefore.push_back({pos, list[pos]->ID, list[pos]->Start, list[pos]->Finish});
}

void OneEdit::keepValues(TaskRecord &task)
{
    if (m_hasAllTasks)
        return;
    m_record->addChangeTaskInfo(asTask(&task));
    for (TaskRecord *summary : outline::ancestors(tasks(), task))
        m_record->addChangeTaskInfo(asTask(summary));
}

void OneEdit::keepAssignments(TaskRecord &task)
{
    if (m_hasAllTasks)
        return;
    m_record->addTaskAllResources(asTask(&task));
    for (TaskRecord *summary : outline::ancestors(tasks(), task))
        m_record->addTaskAllResources(asTask(summary));
}

void OneEdit::keepReach(TaskRecord &task)
{
    if (m_hasAllTasks)
        return;
    m_record->backupChart();
    keepTask(task);
    for (TaskRecord *below : outline::descendants(tasks(), task))
        keepTask(*below);
}

void OneEdit::keepLeaving(TaskRecord &task)
{
    if (!m_hasAllTasks)
        m_record->addLeavingTask(*asTask(&task));
}

void OneEdit::keepTask(TaskRecord &task)
{
    if (m_hasAllTasks)
        return;
    m_record->addChangeTaskInfo(asTask(&task));
    if (task.isHaveResource())
        m_record->addTaskAllResources(asTask(&task));
}

// ---- Changing --------------------------------------------------------------------------------------------

void OneEdit::changed(const TaskRecord &task)
{
    changes.tasks.append(task.ID);
}

void OneEdit::childrenChanged(const TaskRecord *summary)
{
    if (summary)
        changes.summaries.append(summary->ID);
}

void OneEdit::mayBecomeSummary(TaskRecord &task)
{
    if (!task.isParent())
        m_newSummaries.push_back(task.ID);
}

void OneEdit::mayNotSuitLinks(TaskRecord &summary)
{
    m_linkedSummaries.push_back(summary.ID);
}

void OneEdit::lose(EditLoss::Kind kind, const TaskRecord &task, const QString &name, quint32 other)
{
    answer.losses.append({kind, task.ID, name, other});
}

void OneEdit::takeFromSummaries()
{
    for (const quint32 id : m_newSummaries) {
        KWTaskInfo *task = this->task(id);
        if (!task || !task->isParent())
            continue;
        keepTask(*task);
        task->Milestone = false;
        if (baselines::has(*task)) {
            lose(EditLoss::Baseline, *task, task->BaselineCost);
            changes.what |= settling::Baseline;
        }
        for (const Resource *resource : qAsConst(task->resourceList)) {
            lose(EditLoss::Assignment, *task, resource->name.trimmed());
            changes.what |= settling::Assignments;
        }
        task->clearResources();
        childrenChanged(task);
    }
}

void OneEdit::dropUnsuitedLinks()
{
    const outline::Tasks all = tasks();
    const auto dropUnsuited = [&](TaskRecord *predecessor, TaskRecord *successor) {
        if (!predecessor || !successor || links::fault(all, *predecessor, *successor) == LinkRefusal::None)
            return;
        keepTask(*predecessor);
        keepTask(*successor);
        predecessor->Depends.removeOne(successor->ID);
        successor->Predecessors.removeOne(predecessor->ID);
        lose(EditLoss::Link, *successor, {}, predecessor->ID);
        changes.what |= settling::Links;
    };
    for (const quint32 id : m_linkedSummaries) {
        TaskRecord *summary = this->task(id);
        if (!summary)
            continue;
        const QList<quint32> before = summary->Predecessors;
        const QList<quint32> after = summary->Depends;
        for (const quint32 other : before)
            dropUnsuited(this->task(other), summary);
        for (const quint32 other : after)
            dropUnsuited(summary, this->task(other));
    }
}

EditAnswer OneEdit::finish()
{
    takeFromSummaries();
    dropUnsuitedLinks();
    const QVector<quint32> edited = changes.tasks;
    settling::Replaced replaced;
    // What follows from dates, lengths and links alone are other dates and numbers.
    constexpr unsigned onlyMoves = settling::Dates | settling::Length | settling::Progress | settling::Links;
    if (changes.what & ~onlyMoves)
        replaced.before = [this](TaskRecord &task) { keepTask(task); };
    else
        replaced.before = [this](TaskRecord &task) { m_record->addMovedTask(task); };
    replaced.beforeLate = [this](TaskRecord &task, const latedates::Values &now) {
        m_record->addLateValues(task, now);
    };
    const QVector<settling::Push> pushes =
        settling::settle(document(), changes, m_hasAllTasks ? nullptr : &replaced);
    if (LongWork::wasGivenUp())
        return takeBack();
    document().setModified(true);
    listMoves(pushes, edited);
    m_record->close(Bars::Follow);
    m_step.records.push_back(std::move(m_record));
    return answer;
}

// What was settled up to here goes with the edit.
EditAnswer OneEdit::takeBack()
{
    m_record->close(Bars::Follow);
    std::vector<std::unique_ptr<TaskAction>> records;
    records.push_back(std::move(m_record));
    StepAction(&document(), m_step.name, std::move(records)).takeBack();
    document().setModified(m_wasModified);
    return refuse(EditRefusal::GivenUp);
}

EditAnswer OneEdit::finishRows()
{
    settling::settleChart(document());
    return finish();
}

// Of the tasks that moved, in list order; of all of them where all are kept.
std::vector<OneEdit::Dates> OneEdit::datesBefore() const
{
    if (m_hasAllTasks || m_reach == MovesNothing)
        return m_datesBefore;
    const outline::Tasks all = tasks();
    std::vector<Dates> dates;
    std::vector<int> at(std::size_t(all.list.size()), -1); // which of them, by place in the list
    m_record->singleTasks().forEachDates([&](quint32 id, quint32 start, quint32 finish) {
        const int pos = all.index.posOf(id);
        if (pos < 0)
            return;
        at[std::size_t(pos)] = int(dates.size());
        dates.push_back({pos, id, start, finish});
    });
    std::vector<Dates> moved;
    moved.reserve(dates.size());
    for (std::size_t pos = 0; pos < at.size(); ++pos) {
        if (pos + tasksAhead < at.size() && at[pos + tasksAhead] >= 0)
            fetchTaskAhead(all.list, int(pos) + tasksAhead);
        if (at[pos] < 0)
            continue;
        const Dates &old = dates[std::size_t(at[pos])];
        if (all.list[int(pos)]->Start != old.start || all.list[int(pos)]->Finish != old.finish)
            moved.push_back(old);
    }
    return moved;
}

void OneEdit::listMoves(const QVector<settling::Push> &pushes, const QVector<quint32> &edited)
{
    const outline::Tasks all = tasks();
    TaskIndex pushed; // each is there once
    for (int i = 0; i < pushes.size(); ++i)
        pushed.add(pushes[i].task, i);
    TaskIndex editedIds;
    for (const quint32 id : edited)
        editedIds.add(id);
    const std::vector<Dates> before = datesBefore();
    if (!m_hasAllTasks)
        answer.moves.reserve(int(before.size()));
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (i + tasksAhead < before.size())
            fetchTaskAhead(all.list, before[i + tasksAhead].pos);
        const Dates &old = before[i];
        const bool isInPlace = old.pos < all.list.size() && all.list[old.pos]->ID == old.id;
        const TaskRecord *task = isInPlace ? all.list[old.pos] : all.byId(old.id);
        if (!task || (task->Start == old.start && task->Finish == old.finish))
            continue;
        EditMove move;
        move.task = old.id;
        move.oldStart = old.start;
        move.oldFinish = old.finish;
        move.start = task->Start;
        move.finish = task->Finish;
        const int push = pushed.posOf(old.id);
        if (push >= 0) {
            move.cause = EditMove::Pushed;
            move.pushedBy = pushes[push].pushedBy;
        } else if (editedIds.contains(old.id)) {
            move.cause = EditMove::Edited;
        } else {
            move.cause = task->isParent() ? EditMove::Content : EditMove::WithSummary;
        }
        answer.moves.append(move);
    }
}
