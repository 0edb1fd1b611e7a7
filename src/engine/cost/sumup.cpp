// Costs, work and names of all tasks from their assignments, in one walk over the outline.
#include "engine/cost/costpass.h"
#include "engine/cost/names.h"
#include "engine/record/assignments.h"
#include "engine/record/resource.h"
#include "engine/record/taskrecord.h"

namespace {

// What the leaves below one summary add up to.
struct LeafSums
{
    TaskRecord *summary = nullptr;
    cost::Total total;
    double remaining = 0;
    names::Distinct names;
    bool hasAssignments = false;
    int nextChild = 0;
};

// Adds a leaf to the summaries above it, the outermost first.
void addLeaf(std::vector<LeafSums> &path, const cost::Measures &measures, const TaskRecord &leaf)
{
    const double hours = cost::toHours(measures, leaf.Work, leaf.DurationUnits);
    const bool isAssigned = leaf.isHaveResource();
    if (leaf.Cost == 0 && hours == 0 && !isAssigned)
        return;
    for (LeafSums &sums : path) {
        sums.total.cost += leaf.Cost;
        sums.total.work += hours;
        if (isAssigned)
            sums.remaining += leaf.RemainingCost;
    }
    // A summary that knows a name has told it to those above.
    for (const Resource *resource : leaf.resourceList) {
        for (auto sums = path.rbegin(); sums != path.rend() && sums->names.add(resource->name); ++sums)
            sums->hasAssignments = true;
    }
}

void finishSummary(const LeafSums &sums)
{
    TaskRecord &summary = *sums.summary;
    summary.Cost = sums.total.cost;
    summary.Work = sums.total.work;
    summary.RemainingCost = sums.remaining;
    if (sums.hasAssignments) {
        assignments::clear(summary.resourceList);
        summary.Resources = sums.names.text();
    }
}
}

void CostPass::sumUp() const
{
    for (TaskRecord *task : m_tasks.list) {
        if (task->isParent() || !task->isHaveResource())
            continue;
        const cost::Total total = cost::ofAssignments(m_measures, *task);
        task->Cost = total.cost;
        task->Work = total.work;
        task->RemainingCost = cost::remaining(*task);
        task->Resources = names::ofAssignments(*task);
    }
    // The leaves of each summary in the order of the outline, like everywhere.
    TaskIndex seen;
    std::vector<LeafSums> path;
    const auto enter = [&](TaskRecord *task) {
        if (!task || !seen.add(task->ID))
            return;
        if (!task->isParent()) {
            addLeaf(path, m_measures, *task);
            return;
        }
        path.emplace_back();
        path.back().summary = task;
    };
    for (TaskRecord *top : m_tasks.list) {
        if (top->ParentID == 0)
            enter(top);
        while (!path.empty()) {
            LeafSums &sums = path.back();
            if (sums.nextChild < sums.summary->Childs.size()) {
                enter(m_tasks.byId(sums.summary->Childs[sums.nextChild++]));
            } else {
                finishSummary(sums);
                path.pop_back();
            }
        }
    }
}
