// Names, costs and work of all tasks.
#include "engine/cost/names.h"
#include "engine/record/assignments.h"
#include "model/changewatch.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "resources/costsof.h"

void KWDocument::updateResourcesName()
{
    const ChangeWatch watch(this);
    if (!m_taskCollection)
        return;
    CostPass pass = costsOf(*this);
    pass.gather();
    // Leaves first, then each summary once: one after the other every leaf would rebuild all its ancestors.
    for (KWTaskInfo *task : taskList()) {
        if (!task->isParent())
            task->Resources = names::ofAssignments(*task);
    }
    for (KWTaskInfo *task : taskList()) {
        if (task->isParent())
            CostPass::joinNames(*task, pass.leavesBelow(*task));
    }
}

void KWDocument::updateCostCompletCostWork()
{
    const ChangeWatch watch(this);
    if (!m_taskCollection)
        return;
    CostPass pass = costsOf(*this);
    pass.gather();
    for (KWTaskInfo *task : taskList())
        pass.updateRemainCost(*task);
    basisSubUpdateFromSomeColumn();
}

void KWDocument::basisSubUpdateFromSomeColumn()
{
    const ChangeWatch watch(this);
    if (!m_taskCollection)
        return;
    CostPass pass = costsOf(*this);
    pass.gather();
    for (KWTaskInfo *task : taskList()) {
        if (task->isParent())
            pass.sumAll(*task);
    }
}

void KWDocument::replaceTaskResourceName(const QString &oldName, const QString &newName)
{
    const ChangeWatch watch(this);
    if (!m_taskCollection || oldName.isEmpty() || newName.isEmpty())
        return;
    const CostPass pass = costsOf(*this);
    QSet<const TaskRecord *> changed;
    for (KWTaskInfo *task : taskList()) {
        if (!pass.rename(*task, oldName, newName))
            continue;
        changed.insert(task);
        if (!task->isParent())
            task->Resources = names::ofAssignments(*task);
        else
            task->clearResources();
        for (TaskRecord *ancestor : pass.above(*task)) {
            if (!ancestor->isParent())
                continue;
            // Now, since the pass may come to it later: a summary's own assignments are not renamed.
            assignments::clear(ancestor->resourceList);
            changed.insert(ancestor);
        }
    }
    for (KWTaskInfo *task : taskList()) {
        if (task->isParent() && changed.contains(task))
            CostPass::joinNames(*task, pass.below(*task));
    }
}

namespace {

template <double TaskRecord::*member>
double topLevelSum(const QList<KWTaskInfo *> &tasks)
{
    double sum = 0;
    for (const KWTaskInfo *task : tasks) {
        if (task->ParentID == 0)
            sum += task->*member;
    }
    return sum;
}
}

double KWDocument::getToltalCost() const
{
    return topLevelSum<&KWTaskInfo::Cost>(taskList());
}

double KWDocument::getCostToCompletion() const
{
    return topLevelSum<&KWTaskInfo::RemainingCost>(taskList());
}
