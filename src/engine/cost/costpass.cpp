#include "engine/cost/costpass.h"
#include "engine/cost/names.h"
#include "engine/network/rollup.h"
#include "engine/record/assignments.h"
#include "engine/record/resource.h"
#include "engine/record/resourceentry.h"
#include "engine/record/taskrecord.h"
#include <algorithm>

// ---- The pass ---------------------------------------------------------------------------------------------

CostPass::CostPass(const outline::Tasks &tasks, const worktime::WorkCalendar &calendar)
    : m_tasks(tasks)
    , m_measures(cost::measuresOf(calendar))
{
}

void CostPass::gather()
{
    gather({m_tasks.list.begin(), m_tasks.list.end()});
}

void CostPass::gather(const std::vector<TaskRecord *> &tasks)
{
    std::vector<TaskRecord *> tops;
    for (TaskRecord *task : tasks) {
        if (task->ParentID == 0 || !m_tasks.byId(task->ParentID))
            tops.push_back(task);
    }
    m_branches = outline::BranchRanges(m_tasks, tops);
}

std::vector<TaskRecord *> CostPass::below(const TaskRecord &task) const
{
    return m_branches.knows(task) ? m_branches.below(task) : outline::descendants(m_tasks, task);
}

std::vector<TaskRecord *> CostPass::leavesBelow(const TaskRecord &task) const
{
    return m_branches.knows(task) ? m_branches.leavesBelow(task) : outline::descendants(m_tasks, task);
}

void CostPass::updateCostAndWork(TaskRecord &task) const
{
    if (task.isParent()) {
        sumCostAndWork(task, below(task));
    } else {
        const cost::Total total = cost::ofAssignments(m_measures, task);
        const double costChange = total.cost - task.Cost;
        const double workChange = total.work - task.Work;
        task.Cost = total.cost;
        task.Work = total.work;
        updateParentCostAndWork(task, costChange, workChange, false);
    }
    updateRemainCost(task);
}

void CostPass::updateRemainCost(TaskRecord &task) const
{
    double remaining = 0;
    if (task.isParent()) {
        for (const TaskRecord *part : below(task)) {
            if (part->isHaveResource())
                remaining += part->RemainingCost;
        }
    } else {
        remaining = cost::remaining(task);
    }
    const double change = remaining - task.RemainingCost;
    task.RemainingCost = remaining;
    if (change == 0)
        return;
    for (TaskRecord *ancestor : above(task))
        ancestor->RemainingCost += change;
}

void CostPass::updateParentCostAndWork(TaskRecord &task, double costChange, double workChange,
                                       bool force) const
{
    const double hours =
        force || !task.isParent() ? cost::toHours(m_measures, workChange, task.DurationUnits) : workChange;
    for (TaskRecord *ancestor : above(task)) {
        // A summary has no assignments of its own. Kept on purpose: what they have cost stays in its sum.
        assignments::clear(ancestor->resourceList);
        ancestor->Cost += costChange;
        ancestor->Work += hours;
    }
}

void CostPass::updateResourceName(TaskRecord &task) const
{
    if (task.isParent())
        joinNames(task, below(task));
    else
        task.Resources = names::ofAssignments(task);
    joinAncestorNames(task);
}

Resource *CostPass::append(TaskRecord &task, const QString &name, const ResourceEntry *entry)
{
    auto *resource = new Resource;
    if (entry) {
        resource->ID = entry->ID;
        resource->type = entry->type;
        resource->cost = entry->cost;
        resource->costUnit = entry->costUnit;
        resource->costPer = entry->costPer;
        resource->overtimeCost = entry->overtimeCost;
        resource->overtimeUnit = entry->overtimeUnit;
    }
    resource->name = name;
    resource->workSecs = cost::workSecs(task, *resource);
    task.resourceList.append(resource);
    return resource;
}

Resource *CostPass::assign(TaskRecord &task, const QString &name, const ResourceEntry *entry) const
{
    Resource *resource = append(task, name, entry);
    const double added = cost::ofAssignment(m_measures, task, *resource);
    const double work = cost::work(m_measures, task, *resource);
    updateParentCostAndWork(task, added, work, false);
    task.Cost += added;
    task.Work += work;
    updateRemainCost(task);
    return resource;
}

void CostPass::remove(TaskRecord &task, Resource *resource) const
{
    const double saved = cost::ofAssignment(m_measures, task, *resource);
    const double work = cost::work(m_measures, task, *resource);
    task.resourceList.removeOne(resource);
    Resource::release(resource);
    task.Cost -= saved;
    task.Work -= work;
    updateParentCostAndWork(task, -saved, -work, false);
    updateRemainCost(task);
}

bool CostPass::rename(TaskRecord &task, const QString &oldName, const QString &newName) const
{
    Resource *resource = assignments::byName(task.resourceList, oldName);
    if (!resource)
        return false;
    const Resource *other = assignments::byName(task.resourceList, newName);
    if (!other || other == resource) {
        resource->name = newName;
        return true;
    }
    // A task has one assignment of a name.
    task.resourceList.removeOne(resource);
    Resource::release(resource);
    updateCostAndWork(task);
    return true;
}

void CostPass::sumCostAndWork(TaskRecord &summary, const std::vector<TaskRecord *> &below) const
{
    const cost::Total total = cost::ofLeaves(m_measures, below);
    summary.Cost = total.cost;
    summary.Work = total.work;
}

void CostPass::joinNames(TaskRecord &summary, const std::vector<TaskRecord *> &below)
{
    assignments::clear(summary.resourceList);
    names::Distinct distinct;
    distinct.addLeaves(below);
    summary.Resources = distinct.text();
}

void CostPass::sumWithoutBaseline(TaskRecord &summary, const std::vector<TaskRecord *> &below) const
{
    sumCostAndWork(summary, below);
    joinNames(summary, below);
    summary.RemainingCost = cost::remainingOfLeaves(below);
}

void CostPass::sumWithoutBaseline(TaskRecord &summary) const
{
    sumWithoutBaseline(summary, leavesBelow(summary));
}

void CostPass::sumAll(TaskRecord &summary) const
{
    const std::vector<TaskRecord *> leaves = leavesBelow(summary);
    sumWithoutBaseline(summary, leaves);
    summary.BaselineCost = cost::baselineText(cost::baselineOfLeaves(leaves));
    rollup::baseline(leaves, summary);
}

void CostPass::joinAncestorNames(const TaskRecord &task) const
{
    for (TaskRecord *ancestor : above(task)) {
        if (ancestor->isParent())
            joinNames(*ancestor, below(*ancestor));
    }
}

// ---- Several branches -------------------------------------------------------------------------------------

void CostPass::sumFrom(const std::vector<TaskRecord *> &changed)
{
    for (TaskRecord *task : changed) {
        if (task->isParent())
            continue;
        // It has lost its last child: a leaf again, with the assignments it has.
        updateCostAndWork(*task);
        task->Resources = names::ofAssignments(*task);
    }
    const std::vector<TaskRecord *> concerned = outline::withAncestors(m_tasks, changed);
    gather(concerned);
    for (TaskRecord *task : concerned) {
        if (task->isParent())
            sumWithoutBaseline(*task);
    }
}

// ---- All tasks --------------------------------------------------------------------------------------------

void CostPass::sumUp()
{
    // In most plans nothing costs anything.
    const auto isWorthSomething = [](const TaskRecord *task) {
        return !task->isParent() && (task->isHaveResource() || task->Cost != 0 || task->Work != 0);
    };
    if (std::none_of(m_tasks.list.begin(), m_tasks.list.end(), isWorthSomething)) {
        for (TaskRecord *task : m_tasks.list) {
            if (task->isParent())
                task->Cost = task->Work = task->RemainingCost = 0;
        }
        return;
    }
    for (TaskRecord *task : m_tasks.list) {
        if (task->isParent() || !task->isHaveResource())
            continue;
        const cost::Total total = cost::ofAssignments(m_measures, *task);
        task->Cost = total.cost;
        task->Work = total.work;
        task->RemainingCost = cost::remaining(*task);
        task->Resources = names::ofAssignments(*task);
    }
    gather();
    for (TaskRecord *summary : m_tasks.list) {
        if (!summary->isParent())
            continue;
        const std::vector<TaskRecord *> leaves = leavesBelow(*summary);
        const auto isAssigned = [](const TaskRecord *task) {
            return !task->isParent() && task->isHaveResource();
        };
        if (std::any_of(leaves.begin(), leaves.end(), isAssigned)) {
            sumWithoutBaseline(*summary, leaves);
        } else {
            sumCostAndWork(*summary, leaves);
            summary->RemainingCost = 0;
        }
    }
}
