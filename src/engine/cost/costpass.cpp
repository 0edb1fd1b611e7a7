#include "engine/cost/costpass.h"
#include "engine/cost/names.h"
#include "engine/network/rollup.h"
#include "engine/record/resource.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"

// ---- The pass ---------------------------------------------------------------------------------------------

CostPass::CostPass(KWDocument &document)
    : m_tasks{document.taskList(), document.taskIndex()}
    , m_measures(cost::measuresOf(document.workCalendar()))
{
}

void CostPass::gather()
{
    gather({m_tasks.list.begin(), m_tasks.list.end()});
}

void CostPass::gather(const std::vector<KWTaskInfo *> &tasks)
{
    std::vector<KWTaskInfo *> tops;
    for (KWTaskInfo *task : tasks) {
        if (task->ParentID == 0 || !m_tasks.byId(task->ParentID))
            tops.push_back(task);
    }
    m_branches = outline::Branches(m_tasks, tops);
}

std::vector<KWTaskInfo *> CostPass::below(const KWTaskInfo &task) const
{
    return m_branches.knows(task) ? m_branches.below(task) : outline::descendants(m_tasks, task);
}

std::vector<KWTaskInfo *> CostPass::leavesBelow(const KWTaskInfo &task) const
{
    return m_branches.knows(task) ? m_branches.leavesBelow(task) : outline::descendants(m_tasks, task);
}

void CostPass::updateCostAndWork(KWTaskInfo &task) const
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

void CostPass::updateRemainCost(KWTaskInfo &task) const
{
    double remaining = 0;
    if (task.isParent()) {
        for (const KWTaskInfo *part : below(task)) {
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
    for (KWTaskInfo *ancestor : above(task))
        ancestor->RemainingCost += change;
}

void CostPass::updateParentCostAndWork(KWTaskInfo &task, double costChange, double workChange,
                                       bool force) const
{
    const double hours =
        force || !task.isParent() ? cost::toHours(m_measures, workChange, task.DurationUnits) : workChange;
    for (KWTaskInfo *ancestor : above(task)) {
        // A summary has no assignments of its own. Kept on purpose: what they have cost stays in its sum.
        ancestor->clearResources();
        ancestor->Cost += costChange;
        ancestor->Work += hours;
    }
}

void CostPass::updateResourceName(KWTaskInfo &task) const
{
    if (task.isParent())
        joinNames(task, below(task));
    else
        task.Resources = names::ofAssignments(task);
    joinAncestorNames(task);
}

Resource *CostPass::append(KWTaskInfo &task, const QString &name, const ResourceInfo *entry)
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

Resource *CostPass::assign(KWTaskInfo &task, const QString &name, const ResourceInfo *entry) const
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

void CostPass::remove(KWTaskInfo &task, Resource *resource) const
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

bool CostPass::rename(KWTaskInfo &task, const QString &oldName, const QString &newName) const
{
    Resource *resource = task.getResourceByName(oldName);
    if (!resource)
        return false;
    const Resource *other = task.getResourceByName(newName);
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

void CostPass::sumCostAndWork(KWTaskInfo &summary, const std::vector<KWTaskInfo *> &below) const
{
    const cost::Total total = cost::ofLeaves(m_measures, below);
    summary.Cost = total.cost;
    summary.Work = total.work;
}

void CostPass::joinNames(KWTaskInfo &summary, const std::vector<KWTaskInfo *> &below)
{
    summary.clearResources();
    names::Distinct distinct;
    distinct.addLeaves(below);
    summary.Resources = distinct.text();
}

void CostPass::sumWithoutBaseline(KWTaskInfo &summary, const std::vector<KWTaskInfo *> &below) const
{
    sumCostAndWork(summary, below);
    joinNames(summary, below);
    summary.RemainingCost = cost::remainingOfLeaves(below);
}

void CostPass::sumWithoutBaseline(KWTaskInfo &summary) const
{
    sumWithoutBaseline(summary, leavesBelow(summary));
}

void CostPass::sumAll(KWTaskInfo &summary) const
{
    const std::vector<KWTaskInfo *> leaves = leavesBelow(summary);
    sumWithoutBaseline(summary, leaves);
    summary.BaselineCost = cost::baselineText(cost::baselineOfLeaves(leaves));
    rollup::baseline(leaves, summary);
}

void CostPass::joinAncestorNames(const KWTaskInfo &task) const
{
    for (KWTaskInfo *ancestor : above(task)) {
        if (ancestor->isParent())
            joinNames(*ancestor, below(*ancestor));
    }
}

// ---- Several branches -------------------------------------------------------------------------------------

void CostPass::sumFrom(const std::vector<KWTaskInfo *> &changed)
{
    for (KWTaskInfo *task : changed) {
        if (task->isParent())
            continue;
        // It has lost its last child: a leaf again, with the assignments it has.
        updateCostAndWork(*task);
        task->Resources = names::ofAssignments(*task);
    }
    const std::vector<KWTaskInfo *> concerned = outline::withAncestors(m_tasks, changed);
    gather(concerned);
    for (KWTaskInfo *task : concerned) {
        if (task->isParent())
            sumWithoutBaseline(*task);
    }
}
