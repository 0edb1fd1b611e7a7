// Cost, work and remaining cost of a task and of the summaries above it.
#include "engine/record/resource.h"
#include "model/changewatch.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "resources/costsof.h"

// ---- One assignment ---------------------------------------------------------------------------------------

double KWTaskInfo::resourceWork(KWDocument *document, const Resource *resource) const
{
    return resource ? getDurationValue(document, resource->workSecs, DurationUnits) : 0.0;
}

double KWTaskInfo::transforHourWork(KWDocument *document, double work) const
{
    return document && work != 0 ? cost::toHours(costsOf(*document).measures(), work, DurationUnits) : work;
}

double KWTaskInfo::resourceCost(KWDocument *document, const Resource *resource) const
{
    return document && resource ? cost::ofAssignment(costsOf(*document).measures(), *this, *resource) : 0.0;
}

// ---- The task and its ancestors ---------------------------------------------------------------------------

void KWTaskInfo::updateCostAndWork(KWDocument *document)
{
    const ChangeWatch watch(document, this, ChangeWatch::WithSummaries);
    if (document && document->taskCollection())
        costsOf(*document).updateCostAndWork(*this);
}

void KWTaskInfo::updateRemainCost(KWDocument *document)
{
    const ChangeWatch watch(document, this, ChangeWatch::WithSummaries);
    if (document && document->taskCollection())
        costsOf(*document).updateRemainCost(*this);
}

void KWTaskInfo::updateParentCostAndWork(KWDocument *document, double costChange, double workChange,
                                         bool force)
{
    const ChangeWatch watch(document, this, ChangeWatch::WithSummaries);
    if (document && document->taskCollection())
        costsOf(*document).updateParentCostAndWork(*this, costChange, workChange, force);
}

void KWTaskInfo::updateParentCompletCost(KWDocument *document, double change)
{
    const ChangeWatch watch(document, this, ChangeWatch::WithSummaries);
    if (!document || !document->taskCollection())
        return;
    for (TaskRecord *ancestor : outline::ancestors(document->outline(), *this))
        ancestor->RemainingCost += change;
}

void KWTaskInfo::updateParentStrBaseCost(KWDocument *document, double change)
{
    const ChangeWatch watch(document, this, ChangeWatch::WithSummaries);
    if (!document || !document->taskCollection())
        return;
    for (TaskRecord *ancestor : outline::ancestors(document->outline(), *this))
        ancestor->BaselineCost = cost::baselineText(cost::baselineValue(ancestor->BaselineCost) + change);
}

void KWTaskInfo::updateParentInfoFromSomeColumn(KWDocument *document, bool added, bool namesByCaller)
{
    const ChangeWatch watch(document, this, ChangeWatch::WithSummaries);
    if (!document || !document->taskCollection())
        return;
    const double sign = added ? 1 : -1;
    updateParentCostAndWork(document, sign * Cost, sign * Work, false);
    updateParentCompletCost(document, sign * RemainingCost);
    if (!BaselineCost.isEmpty())
        updateParentStrBaseCost(document, sign * cost::baselineValue(BaselineCost));
    updateParentBaselineStartAndFinish(document);
    if (!namesByCaller)
        updateResourceName(document);
}

// ---- A summary from the tasks below it --------------------------------------------------------------------

void KWTaskInfo::basisSubUpdateCostAndWork(KWDocument *document)
{
    const ChangeWatch watch(document, this, ChangeWatch::Alone);
    if (!document || !document->taskCollection() || !isParent())
        return;
    const CostPass pass = costsOf(*document);
    pass.sumCostAndWork(*this, pass.below(*this));
}

void KWTaskInfo::basisSubUpdateCompletCost(KWDocument *document)
{
    const ChangeWatch watch(document, this, ChangeWatch::Alone);
    if (document && document->taskCollection() && isParent())
        RemainingCost = cost::remainingOfLeaves(costsOf(*document).below(*this));
}

void KWTaskInfo::basisSubUpdateStrBaseCost(KWDocument *document)
{
    const ChangeWatch watch(document, this, ChangeWatch::Alone);
    if (document && document->taskCollection() && isParent())
        BaselineCost = cost::baselineText(cost::baselineOfLeaves(costsOf(*document).below(*this)));
}

void KWTaskInfo::basisSubUpdateFromSomeColumn(KWDocument *document)
{
    const ChangeWatch watch(document, this, ChangeWatch::Alone);
    if (document && document->taskCollection() && isParent())
        costsOf(*document).sumAll(*this);
}
