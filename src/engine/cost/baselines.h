#pragma once
#include <QString>
#include <vector>

struct TaskRecord;

// Baselines of summaries: what those leaves have together that have one.
namespace baselines {

struct Baseline
{
    quint32 start = 0; // 0: none
    quint32 finish = 0;
    QString cost; // empty: none
};

// Whether the task has any of the three.
bool has(const TaskRecord &task);
Baseline of(const TaskRecord &task);
void store(const Baseline &baseline, TaskRecord &task);
// The span of the dates and the sum of the costs of the leaves among the tasks, in their order. What no leaf
// has, the sum does not have.
Baseline ofLeaves(const std::vector<TaskRecord *> &tasks);
// A cost with all the digits that a double has for sure.
QString costText(double value);
}
