#include "engine/cost/baselines.h"
#include "engine/cost/cost.h"
#include "engine/record/taskrecord.h"
#include <algorithm>

namespace baselines {

bool has(const TaskRecord &task)
{
    return task.BaseStart != 0 || task.BaseFinish != 0 || !task.BaselineCost.isEmpty();
}

Baseline of(const TaskRecord &task)
{
    return {task.BaseStart, task.BaseFinish, task.BaselineCost};
}

void store(const Baseline &baseline, TaskRecord &task)
{
    task.BaseStart = baseline.start;
    task.BaseFinish = baseline.finish;
    task.BaselineCost = baseline.cost;
}

Baseline ofLeaves(const std::vector<TaskRecord *> &tasks)
{
    Baseline all;
    double sum = 0;
    bool hasCost = false;
    for (const TaskRecord *task : tasks) {
        if (task->isParent())
            continue;
        if (task->BaseStart != 0)
            all.start = all.start == 0 ? task->BaseStart : std::min(all.start, task->BaseStart);
        all.finish = std::max(all.finish, task->BaseFinish);
        if (!task->BaselineCost.isEmpty()) {
            sum += cost::baselineValue(task->BaselineCost);
            hasCost = true;
        }
    }
    if (hasCost)
        all.cost = costText(sum);
    return all;
}

QString costText(double value)
{
    constexpr int digits = 15;
    return QString::number(value, 'g', digits);
}
}
