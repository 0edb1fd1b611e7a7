// A task's assignments and the text that names them.
#include "engine/cost/cost.h"
#include "engine/cost/names.h"
#include "engine/record/assignments.h"
#include "engine/record/resource.h"
#include "model/changewatch.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "resources/costsof.h"
#include "resources/resourceinfodata.h"
#include <algorithm>

// ---- The list ---------------------------------------------------------------------------------------------

Resource *KWTaskInfo::getResourceAt(int index) const
{
    return resourceList.value(index, nullptr);
}

Resource *KWTaskInfo::getResourceByName(const QString &name) const
{
    return assignments::byName(resourceList, name);
}

bool KWTaskInfo::isResourceContains(const QList<Resource *> &resources, const Resource *resource)
{
    return std::find(resources.begin(), resources.end(), resource) != resources.end();
}

bool KWTaskInfo::isSubHaveResource(KWDocument *document) const
{
    if (!document)
        return false;
    return isHaveResource() || outline::anyDescendant(document->outline(), *this, [](const TaskRecord *task) {
               return task->isHaveResource();
           });
}

void KWTaskInfo::allSubTaskResourceList(KWDocument *document,
                                        QList<QPair<KWTaskInfo *, Resource *>> &assignments) const
{
    if (!document)
        return;
    for (TaskRecord *task : outline::descendants(document->outline(), *this)) {
        if (task->isParent())
            continue;
        for (Resource *resource : qAsConst(task->resourceList))
            assignments.append({asTask(task), resource});
    }
}

void KWTaskInfo::deleteResourceByID(int id)
{
    const auto kept = std::stable_partition(resourceList.begin(), resourceList.end(),
                                            [id](const Resource *resource) { return resource->ID != id; });
    std::for_each(kept, resourceList.end(), Resource::release);
    resourceList.erase(kept, resourceList.end());
}

void KWTaskInfo::clearResources()
{
    assignments::clear(resourceList);
}

QList<Resource *> KWTaskInfo::cloneResources() const
{
    return Resource::cloneResources(resourceList);
}

void KWTaskInfo::updateResourceWorkSecs(KWDocument *document)
{
    const ChangeWatch watch(document, this, ChangeWatch::Alone);
    if (document)
        cost::updateWorkSecs(*this);
}

void KWTaskInfo::addOrDelResourceByName(KWDocument *document, const QString &name, bool add)
{
    const ChangeWatch watch(document, this, ChangeWatch::WithSummaries);
    if (!document || !document->taskCollection() || !document->resourceInfoData() || name.isEmpty())
        return;
    const CostPass pass = costsOf(*document);
    // A summary's names follow from the tasks below it; an assignment of its own would be a cost that nobody
    // sees.
    if (!(add && isParent())) {
        Resource *assigned = getResourceByName(name);
        if (assigned && add)
            return;
        if (assigned)
            pass.remove(*this, assigned);
        else if (add)
            pass.assign(*this, name, document->resourceInfoData()->getResourceInfoByName(name));
    }
    pass.updateResourceName(*this);
}

// ---- Names ------------------------------------------------------------------------------------------------

void KWTaskInfo::updateResourceName(KWDocument *document)
{
    const ChangeWatch watch(document, this, ChangeWatch::WithSummaries);
    if (document && document->taskCollection())
        costsOf(*document).updateResourceName(*this);
}

void KWTaskInfo::basisSubUpdateResourceName(KWDocument *document)
{
    const ChangeWatch watch(document, this, ChangeWatch::Alone);
    if (document && document->taskCollection() && isParent())
        CostPass::joinNames(*this, costsOf(*document).below(*this));
}

void KWTaskInfo::subTaskResourceName(KWDocument *document, QStringList &names) const
{
    if (!document || !document->taskCollection())
        return;
    names::Distinct distinct;
    for (const QString &name : qAsConst(names))
        distinct.add(name);
    const int known = distinct.list().size();
    distinct.addLeaves(costsOf(*document).below(*this));
    names += distinct.list().mid(known);
}

namespace {

// The tasks below a summary without one branch.
std::vector<TaskRecord *> otherBranches(const CostPass &pass, const TaskRecord &summary, TaskRecord &left)
{
    std::vector<TaskRecord *> below = pass.below(summary);
    QSet<const TaskRecord *> leaving{&left};
    for (const TaskRecord *task : pass.below(left))
        leaving.insert(task);
    below.erase(std::remove_if(below.begin(), below.end(),
                               [&leaving](const TaskRecord *task) { return leaving.contains(task); }),
                below.end());
    return below;
}
}

void KWTaskInfo::updateParentResources(KWDocument *document, bool own)
{
    const ChangeWatch watch(document, this, ChangeWatch::WithSummaries);
    if (!document || !document->taskCollection())
        return;
    const CostPass pass = costsOf(*document);
    if (own) {
        pass.joinAncestorNames(*this);
        return;
    }
    for (TaskRecord *ancestor : pass.above(*this)) {
        if (ancestor->isParent())
            CostPass::joinNames(*ancestor, otherBranches(pass, *ancestor, *this));
    }
}

void KWTaskInfo::outdentUpateParentResources(KWDocument *document)
{
    const ChangeWatch watch(document, this, ChangeWatch::WithSummaries);
    if (!document || !document->taskCollection())
        return;
    KWTaskInfo *parent = document->getTaskInfoByID(ParentID);
    if (!parent || parent == this || !parent->isParent())
        return;
    const CostPass pass = costsOf(*document);
    CostPass::joinNames(*parent, otherBranches(pass, *parent, *this));
}

void KWTaskInfo::replaceResourceName(KWDocument *document, const QString &oldName, const QString &newName)
{
    const ChangeWatch watch(document, this, ChangeWatch::WithSummaries);
    if (!document || !document->taskCollection() || oldName.isEmpty() || newName.isEmpty())
        return;
    const CostPass pass = costsOf(*document);
    if (pass.rename(*this, oldName, newName))
        pass.updateResourceName(*this);
}
