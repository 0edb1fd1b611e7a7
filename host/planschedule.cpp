// Scheduling a loaded plan through the library, and what is measured on it.
#include "model/kwtaskinfo.h"
#include "plan.h"
#include "schedule/kwtaskcollection.h"
#include "texts.h"
#include <QHash>

namespace plan {

namespace {

constexpr unsigned int minute = 6;
constexpr quint32 sameMomentSecs = 59; // the clocks round to the minute

// Every summary takes its dates from its children, inner ones first, without pushing anything.
void rollUpDates(Plan &plan)
{
    for (int pos = plan.taskCount() - 1; pos >= 0; --pos)
        if (plan.task(pos)->isParent())
            plan.document->taskCollection()->updateTaskTimeToChildsTask(plan.task(pos), false);
}

void findTightest(Plan &plan)
{
    const std::size_t count = std::size_t(plan.taskCount());
    constexpr int nobody = -1;
    std::vector<qint64> slack(count);
    plan.tightest.assign(count, nobody);
    // A summary stands before the tasks that it holds.
    for (int pos = plan.taskCount() - 1; pos >= 0; --pos) {
        const KWTaskInfo *task = plan.task(pos);
        const std::size_t at = std::size_t(pos);
        if (plan.tightest[at] == nobody) {
            plan.tightest[at] = pos;
            slack[at] = workingMinutes(plan, task->Finish, task->LateFinish);
        }
        const int parent = task->ParentID ? plan.posOf(task->ParentID) : nobody;
        if (parent < 0 || parent >= pos)
            continue;
        const std::size_t above = std::size_t(parent);
        if (plan.tightest[above] == nobody || slack[at] < slack[above]) {
            plan.tightest[above] = plan.tightest[at];
            slack[above] = slack[at];
        }
    }
}

void startAllTogether(Plan &plan)
{
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        KWTaskInfo *task = plan.task(pos);
        if (task->isParent())
            continue;
        const planrows::Row &row = plan.rows.rows[std::size_t(pos)];
        const double value = row.hasDuration ? row.duration.value
                                             : KWTaskInfo::getDurValueByTaskInfo(plan.document.get(), task);
        const quint32 finish =
            task->Milestone
                ? 0
                : KWTaskInfo::backwardsDateTime(plan.document.get(), plan.start, value, task->DurationUnits);
        task->Start = plan.start;
        task->Finish = qMax(finish, plan.start + 1);
        task->DurationSecs =
            KWTaskInfo::durationSecs(plan.document.get(), task->Start, task->Finish, task->DurationUnits);
    }
}
}

void schedule(Plan &plan, Beginning beginning, const Plan::Progress &progress)
{
    std::vector<std::pair<quint32, quint32>> before;
    rollUpDates(plan);
    plan.finishBefore = lastFinish(plan);
    for (int pos = 0; pos < plan.taskCount(); ++pos)
        before.emplace_back(plan.task(pos)->Start, plan.task(pos)->Finish);

    if (progress)
        progress(t("scheduling"), 0, 0);
    if (beginning == AsSoonAsPossible) {
        startAllTogether(plan);
        rollUpDates(plan);
    }
    QList<KWTaskMove> pushed;
    plan.document->taskCollection()->pushAllSuccessors(&pushed);
    plan.document->taskCollection()->updateOptionTaskTime();

    QHash<quint32, quint32> pushedBy;
    for (const KWTaskMove &move : pushed)
        pushedBy.insert(move.id, move.pushedBy);
    plan.moves.clear();
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        const KWTaskInfo *task = plan.task(pos);
        const auto [oldStart, oldFinish] = before[std::size_t(pos)];
        // From the end of a morning to the beginning of the afternoon is no move.
        if (workingMinutes(plan, oldStart, task->Start) != 0 ||
            workingMinutes(plan, oldFinish, task->Finish) != 0)
            plan.moves.push_back({pos, oldStart, oldFinish, pushedBy.value(task->ID)});
    }
}

void refresh(Plan &plan, const Plan::Progress &progress)
{
    rollUpDates(plan);
    if (progress)
        progress(t("late dates and slack"), 0, 0);
    plan.document->updateAllTaskEarlyLate();
    plan.document->taskCollection()->updateRageAndTaskPoint();
    plan.document->updateAllParentPercent();
    findTightest(plan);
}

int countEarlyTasks(const Plan &plan)
{
    int early = 0;
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        const KWTaskInfo *task = plan.task(pos);
        for (const quint32 id : task->Predecessors) {
            const KWTaskInfo *predecessor = plan.document->getTaskInfoByID(id);
            if (predecessor && predecessor->Finish > task->Start + sameMomentSecs) {
                ++early;
                break;
            }
        }
    }
    return early;
}

quint32 firstStart(const Plan &plan)
{
    return plan.document->getMinStartSecs();
}

quint32 lastFinish(const Plan &plan)
{
    return plan.document->getMaxFinishSecs();
}

qint64 workingMinutes(const Plan &plan, quint32 from, quint32 to)
{
    const bool forward = from <= to;
    const quint32 secs =
        KWTaskInfo::durationSecs(plan.document.get(), forward ? from : to, forward ? to : from, minute);
    const qint64 minutes = (qint64(secs) + 30) / 60;
    return forward ? minutes : -minutes;
}

double workHours(const Plan &plan, const KWTaskInfo &task)
{
    return task.isParent() ? task.Work : task.transforHourWork(plan.document.get(), task.Work);
}
}
