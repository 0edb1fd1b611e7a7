// Editing assignments and the resource sheet.
#include "edits/oneedit.h"
#include "edits/planedits.h"
#include "engine/cost/cost.h"
#include "engine/record/resource.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include <cmath>

namespace {

bool isAmount(const std::optional<double> &amount)
{
    return !amount || std::isfinite(*amount);
}

bool isUnits(const std::optional<double> &units)
{
    return !units || (std::isfinite(*units) && *units >= 0);
}

bool isCostUnit(const std::optional<qint32> &unit)
{
    return !unit || (*unit >= 0 && *unit < cost::rateUnitCount);
}

bool judge(OneEdit &edit, const ResourceValues &values)
{
    for (const std::optional<double> &amount : {values.cost, values.overtimeCost, values.costPer}) {
        if (!isAmount(amount)) {
            edit.refuse(EditRefusal::BadAmount, {QString::number(*amount)});
            return false;
        }
    }
    if (!isUnits(values.units))
        edit.refuse(EditRefusal::BadUnits);
    else if (!isCostUnit(values.costUnit) || !isCostUnit(values.overtimeUnit))
        edit.refuse(EditRefusal::BadCostUnit);
    return !edit.isRefused();
}

template <typename T>
void take(const std::optional<T> &value, T &member)
{
    if (value)
        member = *value;
}

void store(const ResourceValues &values, ResourceInfo &entry)
{
    take(values.type, entry.type);
    take(values.cost, entry.cost);
    take(values.costUnit, entry.costUnit);
    take(values.overtimeCost, entry.overtimeCost);
    take(values.overtimeUnit, entry.overtimeUnit);
    take(values.costPer, entry.costPer);
    take(values.units, entry.unit);
    take(values.group, entry.group);
    take(values.email, entry.email);
    take(values.notes, entry.notes);
}

// What of the values an assignment has a copy of.
void store(const ResourceValues &values, const KWTaskInfo &task, Resource &assigned)
{
    take(values.cost, assigned.cost);
    take(values.costUnit, assigned.costUnit);
    take(values.overtimeCost, assigned.overtimeCost);
    take(values.overtimeUnit, assigned.overtimeUnit);
    take(values.costPer, assigned.costPer);
    if (!values.type || *values.type == assigned.type)
        return;
    assigned.type = *values.type;
    assigned.workSecs = cost::workSecs(task, assigned);
}

bool hasName(const QString &name, const QString &other)
{
    return name.trimmed() == other.trimmed();
}

bool isAssignedAnywhere(const KWDocument &document, const QString &name)
{
    for (const KWTaskInfo *task : document.taskList()) {
        if (task->getResourceByName(name))
            return true;
    }
    return false;
}

// The sheet with every assignment, and the money that follows from them.
void beginSheet(OneEdit &edit)
{
    edit.begin(OneEdit::AllTasks | OneEdit::Sheet, OneEdit::MovesNothing);
    edit.changes.what |= settling::Assignments;
}

// Keeps a task whose assignments change.
void beginAssignment(OneEdit &edit, const std::vector<KWTaskInfo *> &tasks)
{
    constexpr std::size_t mostSingleTasks = 200;
    edit.begin(tasks.size() <= mostSingleTasks ? OneEdit::SingleTasks : OneEdit::AllTasks,
               OneEdit::MovesNothing);
    for (KWTaskInfo *task : tasks) {
        edit.keepValues(*task);
        edit.keepAssignments(*task);
        edit.changed(*task);
        edit.answer.tasks.append(task->ID);
    }
    edit.changes.what |= settling::Assignments;
}
}

// ---- Assignments -----------------------------------------------------------------------------------------

EditAnswer PlanEdits::assign(quint32 id, const QString &resource, std::optional<double> units)
{
    OneEdit edit(step());
    const std::vector<KWTaskInfo *> tasks = edit.named({id});
    if (edit.isRefused())
        return edit.answer;
    KWTaskInfo *task = tasks.front();
    if (task->isParent())
        return edit.refuse(EditRefusal::AssignmentOfSummary, {edit.nameOf(*task)});
    if (resource.trimmed().isEmpty())
        return edit.refuse(EditRefusal::NoResourceName);
    const ResourceInfo *entry = edit.document().resourceInfoData()->getResourceInfoByName(resource);
    if (!entry)
        return edit.refuse(EditRefusal::NoSuchResource, {resource.trimmed()});
    if (!isUnits(units))
        return edit.refuse(EditRefusal::BadUnits);
    beginAssignment(edit, tasks);
    task->addOrDelResourceByName(&edit.document(), entry->name, true);
    if (units) {
        Resource *assigned = task->getResourceByName(entry->name);
        assigned->percent = *units;
        assigned->workSecs = cost::workSecs(*task, *assigned);
    }
    return edit.finish();
}

EditAnswer PlanEdits::unassign(quint32 id, const QString &resource)
{
    OneEdit edit(step());
    const std::vector<KWTaskInfo *> tasks = edit.named({id});
    if (edit.isRefused())
        return edit.answer;
    KWTaskInfo *task = tasks.front();
    if (!task->getResourceByName(resource))
        return edit.refuse(EditRefusal::NotAssigned, {resource.trimmed(), edit.nameOf(*task)});
    beginAssignment(edit, tasks);
    while (Resource *assigned = task->getResourceByName(resource)) {
        task->resourceList.removeOne(assigned);
        Resource::release(assigned);
    }
    return edit.finish();
}

EditAnswer PlanEdits::unassignAll(const QVector<quint32> &ids)
{
    OneEdit edit(step());
    const std::vector<KWTaskInfo *> tasks = edit.named(ids);
    if (edit.isRefused())
        return edit.answer;
    beginAssignment(edit, tasks);
    for (KWTaskInfo *task : tasks)
        task->clearResources();
    return edit.finish();
}

// ---- The sheet -------------------------------------------------------------------------------------------

EditAnswer PlanEdits::addResource(const QString &name, const ResourceValues &values)
{
    OneEdit edit(step());
    ResourceInfoData &sheet = *edit.document().resourceInfoData();
    if (name.trimmed().isEmpty())
        return edit.refuse(EditRefusal::NoResourceName);
    if (sheet.getResourceInfoByName(name))
        return edit.refuse(EditRefusal::ResourceExists, {name.trimmed()});
    if (!judge(edit, values))
        return edit.answer;
    edit.begin(OneEdit::Sheet, OneEdit::MovesNothing);
    auto *entry = new ResourceInfo;
    entry->ID = sheet.maxID();
    entry->name = name.trimmed();
    store(values, *entry);
    sheet.appendResourceInfo(entry);
    return edit.finish();
}

EditAnswer PlanEdits::setResource(const QString &name, const ResourceValues &values)
{
    OneEdit edit(step());
    ResourceInfo *entry = edit.document().resourceInfoData()->getResourceInfoByName(name);
    if (!entry)
        return edit.refuse(EditRefusal::NoSuchResource, {name.trimmed()});
    if (!judge(edit, values))
        return edit.answer;
    beginSheet(edit);
    store(values, *entry);
    for (KWTaskInfo *task : edit.document().taskList()) {
        bool isConcerned = false;
        for (Resource *assigned : qAsConst(task->resourceList)) {
            if (!hasName(assigned->name, entry->name))
                continue;
            store(values, *task, *assigned);
            isConcerned = true;
        }
        if (isConcerned)
            edit.changed(*task);
    }
    edit.answer.tasks = edit.changes.tasks;
    return edit.finish();
}

EditAnswer PlanEdits::renameResource(const QString &name, const QString &newName)
{
    OneEdit edit(step());
    KWDocument &document = edit.document();
    ResourceInfo *entry = document.resourceInfoData()->getResourceInfoByName(name);
    if (!entry)
        return edit.refuse(EditRefusal::NoSuchResource, {name.trimmed()});
    const QString wanted = newName.trimmed();
    if (wanted.isEmpty())
        return edit.refuse(EditRefusal::NoResourceName);
    // Two of one name could not be told apart afterwards.
    const bool isTaken =
        document.resourceInfoData()->getResourceInfoByName(wanted) || isAssignedAnywhere(document, wanted);
    if (!hasName(entry->name, wanted) && isTaken)
        return edit.refuse(EditRefusal::ResourceExists, {wanted});
    beginSheet(edit);
    const QString before = entry->name;
    entry->name = wanted;
    for (KWTaskInfo *task : document.taskList()) {
        bool isConcerned = false;
        for (Resource *assigned : qAsConst(task->resourceList)) {
            if (!hasName(assigned->name, before))
                continue;
            assigned->name = wanted;
            isConcerned = true;
        }
        if (isConcerned)
            edit.changed(*task);
    }
    edit.answer.tasks = edit.changes.tasks;
    return edit.finish();
}

EditAnswer PlanEdits::removeResource(const QString &name)
{
    OneEdit edit(step());
    ResourceInfoData &sheet = *edit.document().resourceInfoData();
    const ResourceInfo *entry = sheet.getResourceInfoByName(name);
    if (!entry)
        return edit.refuse(EditRefusal::NoSuchResource, {name.trimmed()});
    const QString removed = entry->name.trimmed();
    beginSheet(edit);
    for (KWTaskInfo *task : edit.document().taskList()) {
        if (!task->getResourceByName(removed))
            continue;
        while (Resource *assigned = task->getResourceByName(removed)) {
            task->resourceList.removeOne(assigned);
            Resource::release(assigned);
        }
        edit.changed(*task);
        edit.lose(EditLoss::Assignment, *task, removed);
    }
    const int place = sheet.infos.indexOf(const_cast<ResourceInfo *>(entry));
    delete sheet.infos.takeAt(place);
    edit.answer.tasks = edit.changes.tasks;
    return edit.finish();
}
