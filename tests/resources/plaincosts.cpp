#include "resources/plaincosts.h"
#include "engine/time/localclock.h"
#include "support/kwclock.h"
#include <algorithm>
#include <array>

namespace plaincosts {
namespace {

KWTaskInfo *byId(KWDocument &document, quint32 id)
{
    for (KWTaskInfo *task : document.taskList()) {
        if (task->ID == id)
            return task;
    }
    return nullptr;
}

void addDescendants(KWDocument &document, const KWTaskInfo &task, QList<KWTaskInfo *> &found)
{
    for (const quint32 id : task.Childs) {
        KWTaskInfo *child = byId(document, id);
        if (!child)
            continue;
        found.append(child);
        addDescendants(document, *child, found);
    }
}

QList<KWTaskInfo *> descendants(KWDocument &document, const KWTaskInfo &task)
{
    QList<KWTaskInfo *> found;
    addDescendants(document, task, found);
    return found;
}

QList<KWTaskInfo *> leaves(KWDocument &document, const KWTaskInfo &task)
{
    QList<KWTaskInfo *> found;
    for (KWTaskInfo *below : descendants(document, task)) {
        if (below->Childs.isEmpty())
            found.append(below);
    }
    return found;
}

QList<KWTaskInfo *> ancestors(KWDocument &document, const KWTaskInfo &task)
{
    QList<KWTaskInfo *> found;
    for (KWTaskInfo *up = byId(document, task.ParentID); up; up = byId(document, up->ParentID))
        found.append(up);
    return found;
}

Resource *named(const KWTaskInfo &task, const QString &name)
{
    for (Resource *resource : task.resourceList) {
        if (resource->name.trimmed() == name.trimmed())
            return resource;
    }
    return nullptr;
}

double hoursPerDay(KWDocument &document)
{
    return KWTaskInfo::dayWorkTime(&document, KWClock::now());
}

double daysPerWeek(const KWDocument &document)
{
    int days = 0;
    for (const bool works : document.WorkDay)
        days += works ? 1 : 0;
    return days == 0 ? 7 : days;
}

// Nothing when there are no hours to divide by.
double over(double value, double divisor)
{
    return divisor == 0 ? 0 : value / divisor;
}

quint32 secs(double value)
{
    return value >= 4294967295.0 ? 4294967295u : value > 0 ? quint32(value) : 0;
}

double work(KWDocument &document, const KWTaskInfo &task, const Resource &resource)
{
    return KWTaskInfo::getDurationValue(&document, resource.workSecs, task.DurationUnits);
}

void addToAncestors(KWDocument &document, KWTaskInfo &task, double dCost, double dWork)
{
    if (task.Childs.isEmpty())
        dWork = hours(document, task, dWork);
    for (KWTaskInfo *ancestor : ancestors(document, task)) {
        ancestor->clearResources();
        ancestor->Cost += dCost;
        ancestor->Work += dWork;
    }
}

void sumCostAndWork(KWDocument &document, KWTaskInfo &summary)
{
    summary.Cost = 0;
    summary.Work = 0;
    for (const KWTaskInfo *leaf : leaves(document, summary)) {
        summary.Cost += leaf->Cost;
        summary.Work += hours(document, *leaf, leaf->Work);
    }
}

void joinNames(KWDocument &document, KWTaskInfo &summary)
{
    if (summary.Childs.isEmpty())
        return;
    summary.clearResources();
    QStringList names;
    for (const KWTaskInfo *leaf : leaves(document, summary)) {
        for (const Resource *resource : leaf->resourceList) {
            const QString name = resource->name.trimmed();
            if (!name.isEmpty() && !names.contains(name))
                names.append(name);
        }
    }
    summary.Resources = names.join("; ");
}

double fixedPart(const Resource &resource)
{
    return resource.type != 0 ? resource.costPer : resource.percent * resource.costPer;
}
}

double resourceCost(KWDocument &document, const KWTaskInfo &task, const Resource &resource)
{
    if (resource.type != 0)
        return resource.cost * resource.percent + resource.costPer;

    const double hpd = hoursPerDay(document);
    const double wdpw = daysPerWeek(document);
    const double ws = resource.workSecs;
    const double rate = resource.cost;
    const unsigned int unit = task.DurationUnits;
    const auto value = [&](unsigned int in) {
        return KWTaskInfo::getDurationValue(&document, resource.workSecs, in);
    };
    const auto by = [&resource](const std::array<double, 5> &costUnits) {
        return resource.costUnit < 0 || resource.costUnit > 4 ? 0 : costUnits[size_t(resource.costUnit)];
    };
    double time = 0;
    if (unit <= 2) {
        // Seconds on the wall clock.
        const auto clock = LocalClock::current();
        const LocalClock::Wall start = clock->wall(task.Start);
        const double end = double(clock->moment(start.day, start.secs + qint64(ws)));
        const double days = KWTaskInfo::getDurationValue(
            &document, KWTaskInfo::durationSecs(&document, task.Start, secs(end), 4), 4);
        time = by({hpd * days * 60 * rate, hpd * days * rate, rate * days, days / wdpw * rate,
                   unit == 2   ? rate * value(2)
                   : unit == 1 ? 3 * value(1) * rate
                               : 12 * value(0) * rate});
    } else if (unit == 3 || unit == 4) {
        time = by({ws / 86400 * hpd * 60 * rate, ws / 86400 * hpd * rate, ws / 86400 * rate,
                   ws / 86400 / wdpw * rate, value(4) / 22 * rate});
    } else if (unit == 5 || unit == 6) {
        time = by({ws / 60 * rate, ws / 3600 * rate, over(ws / 3600, hpd) * rate,
                   over(ws / 3600, hpd) / wdpw * rate, over(value(5), hpd) / 22 * rate});
    }
    return resource.percent * resource.costPer + time;
}

double hours(KWDocument &document, const KWTaskInfo &task, double work)
{
    const double hpd = hoursPerDay(document);
    const double byUnit[] = {work * 264 * hpd, work * 66 * hpd,
                             work * 22 * hpd,  daysPerWeek(document) * work * hpd,
                             work * hpd,       work,
                             work / 60,        0};
    return byUnit[std::min<unsigned int>(task.DurationUnits, 7)];
}

void updateCostAndWork(KWDocument &document, KWTaskInfo &task)
{
    if (!task.Childs.isEmpty()) {
        sumCostAndWork(document, task);
        updateRemainCost(document, task);
        return;
    }
    double w = 0;
    double c = 0;
    for (const Resource *resource : task.resourceList) {
        w += work(document, task, *resource);
        c += resourceCost(document, task, *resource);
    }
    const double dCost = c - task.Cost;
    const double dWork = w - task.Work;
    task.Cost = c;
    task.Work = w;
    addToAncestors(document, task, dCost, dWork);
    updateRemainCost(document, task);
}

void updateRemainCost(KWDocument &document, KWTaskInfo &task)
{
    double left = 0;
    if (!task.Childs.isEmpty()) {
        for (const KWTaskInfo *below : descendants(document, task)) {
            if (!below->resourceList.isEmpty())
                left += below->RemainingCost;
        }
    } else {
        left = task.Cost * (1 - task.Percent);
        for (const Resource *resource : task.resourceList) {
            if (task.Percent > 0)
                left -= fixedPart(*resource) * (1 - task.Percent);
        }
    }
    const double change = left - task.RemainingCost;
    task.RemainingCost = left;
    for (KWTaskInfo *ancestor : ancestors(document, task))
        ancestor->RemainingCost += change;
}

void updateResourceName(KWDocument &document, KWTaskInfo &task)
{
    if (!task.Childs.isEmpty()) {
        joinNames(document, task);
    } else {
        QStringList names;
        for (const Resource *resource : task.resourceList) {
            if (!resource->name.trimmed().isEmpty())
                names.append(resource->name.trimmed());
        }
        task.Resources = names.join("; ");
    }
    for (KWTaskInfo *ancestor : ancestors(document, task))
        joinNames(document, *ancestor);
}

void addOrDelResourceByName(KWDocument &document, KWTaskInfo &task, const QString &name, bool add)
{
    Resource *found = named(task, name);
    if (add && !task.Childs.isEmpty()) {
        updateResourceName(document, task);
    } else if (found && !add) {
        const double c = resourceCost(document, task, *found);
        const double w = work(document, task, *found);
        task.resourceList.removeOne(found);
        Resource::release(found);
        task.Cost -= c;
        task.Work -= w;
        addToAncestors(document, task, -c, -w);
        updateRemainCost(document, task);
        updateResourceName(document, task);
    } else if (!found && add) {
        auto *made = new Resource;
        for (const ResourceInfo *info : document.resourceInfoData()->infos) {
            if (info->name.trimmed() != name.trimmed())
                continue;
            made->ID = info->ID;
            made->type = info->type;
            made->cost = info->cost;
            made->costUnit = info->costUnit;
            made->costPer = info->costPer;
            made->overtimeCost = info->overtimeCost;
            made->overtimeUnit = info->overtimeUnit;
            break;
        }
        made->name = name;
        made->workSecs = made->type != 0 ? 0 : task.DurationSecs;
        task.resourceList.append(made);
        const double c = resourceCost(document, task, *made);
        const double w = made->type != 0 ? 0 : work(document, task, *made);
        addToAncestors(document, task, c, w);
        task.Cost += c;
        task.Work += w;
        updateRemainCost(document, task);
        updateResourceName(document, task);
    } else if (!found) {
        updateResourceName(document, task);
    }
}

void replaceResourceName(KWDocument &document, KWTaskInfo &task, const QString &oldName,
                         const QString &newName)
{
    Resource *found = named(task, oldName);
    if (!found)
        return;
    const Resource *other = named(task, newName);
    if (other && other != found) {
        task.resourceList.removeOne(found);
        Resource::release(found);
        updateCostAndWork(document, task);
    } else {
        found->name = newName;
    }
    updateResourceName(document, task);
}

void updateParentInfoFromSomeColumn(KWDocument &document, KWTaskInfo &task, bool added)
{
    const double sign = added ? 1 : -1;
    addToAncestors(document, task, sign * task.Cost, sign * task.Work);
    for (KWTaskInfo *ancestor : ancestors(document, task)) {
        ancestor->RemainingCost += sign * task.RemainingCost;
        if (!task.BaselineCost.isEmpty())
            ancestor->BaselineCost = QString::number(
                ancestor->BaselineCost.toDouble() + sign * task.BaselineCost.toDouble(), 'g', 6);
    }
    task.updateParentBaselineStartAndFinish(&document);
    updateResourceName(document, task);
}

void basisSubUpdateFromSomeColumn(KWDocument &document, KWTaskInfo &task)
{
    if (task.Childs.isEmpty())
        return;
    task.clearResources();
    sumCostAndWork(document, task);
    joinNames(document, task);
    task.RemainingCost = 0;
    double baseline = 0;
    for (const KWTaskInfo *leaf : leaves(document, task)) {
        if (!leaf->resourceList.isEmpty())
            task.RemainingCost += leaf->RemainingCost;
        baseline += leaf->BaselineCost.toDouble();
    }
    task.BaselineCost = QString::number(baseline, 'g', 6);
    task.basisSubUpdateBaselineStartAndFinish(&document);
}

void updateResourcesName(KWDocument &document)
{
    for (KWTaskInfo *task : document.taskList())
        updateResourceName(document, *task);
}

void updateCostCompletCostWork(KWDocument &document)
{
    for (KWTaskInfo *task : document.taskList())
        updateRemainCost(document, *task);
    for (KWTaskInfo *task : document.taskList())
        basisSubUpdateFromSomeColumn(document, *task);
}

void replaceTaskResourceName(KWDocument &document, const QString &oldName, const QString &newName)
{
    for (KWTaskInfo *task : document.taskList())
        replaceResourceName(document, *task, oldName, newName);
}

void changeAllTaskSameNameResource(KWDocument &document, const ResourceInfo &info, int what)
{
    for (KWTaskInfo *task : document.taskList()) {
        Resource *resource = named(*task, info.name);
        if (!resource)
            continue;
        if (what == 0) {
            resource->type = info.type;
            resource->workSecs = info.type != 0 ? 0 : secs(task->DurationSecs * resource->percent);
            resource->overtimeCost = info.type != 0 ? 0 : resource->overtimeCost;
        } else if (what == 1) {
            resource->costUnit = info.costUnit;
        } else if (what == 2 || what == 4) { // the overtime rate copies the standard rate, too
            resource->cost = info.cost;
        } else if (what == 3) {
            resource->overtimeUnit = info.overtimeUnit;
        } else if (what == 5) {
            resource->costPer = info.costPer;
        }
        updateCostAndWork(document, *task);
    }
}

void updateWorkStarAndFinishWork(KWDocument &document)
{
    for (ResourceInfo *info : qAsConst(document.resourceInfoData()->infos)) {
        info->totalWork = info->actualWork = 0;
        info->workStart = info->workFinish = 0;
        bool first = true;
        for (const KWTaskInfo *task : document.taskList()) {
            const Resource *resource = named(*task, info->name);
            if (!resource)
                continue;
            double w = resource->type == 0 ? work(document, *task, *resource) : resource->percent;
            if (w == 0)
                continue;
            if (resource->type == 0)
                w = hours(document, *task, w);
            info->totalWork += w;
            info->actualWork += w * task->Percent;
            if (first || task->Start < info->workStart)
                info->workStart = task->Start;
            if (first || task->Finish > info->workFinish)
                info->workFinish = task->Finish;
            first = false;
        }
    }
}

void udpateWorkAndCost(KWDocument &document)
{
    for (ResourceInfo *info : qAsConst(document.resourceInfoData()->infos)) {
        info->totalCost = info->totalWork = info->actualCost = info->actualWork = info->unitsSum = 0;
        for (const KWTaskInfo *task : document.taskList()) {
            const Resource *resource = named(*task, info->name);
            if (!resource)
                continue;
            const double w = resource->type != 0 ? resource->percent
                                                 : hours(document, *task, work(document, *task, *resource));
            const double c = resourceCost(document, *task, *resource);
            const double p = task->Percent;
            info->totalWork += w;
            info->totalCost += c;
            info->actualWork += w * p;
            if (p != 0)
                info->actualCost += (c - fixedPart(*resource)) * p + fixedPart(*resource);
            info->unitsSum += info->type == 0 ? resource->percent : 1;
        }
    }
}

namespace {

std::string bits(double value)
{
    char text[40];
    std::snprintf(text, sizeof text, " %a", value);
    return text;
}
}

std::string picture(const KWDocument &document)
{
    std::string text;
    for (const KWTaskInfo *task : document.taskList()) {
        text += std::to_string(task->ID) + ": cost" + bits(task->Cost) + " work" + bits(task->Work) +
                " left" + bits(task->RemainingCost) + " base " + task->BaselineCost.toStdString() + ' ' +
                std::to_string(task->BaseStart) + " [" + task->Resources.toStdString() + "]";
        for (const Resource *resource : task->resourceList)
            text += " <" + resource->name.toStdString() + bits(resource->percent) + bits(resource->cost) +
                    ' ' + std::to_string(resource->type) + ' ' + std::to_string(resource->costUnit) + ' ' +
                    std::to_string(resource->workSecs) + bits(resource->overtimeCost) + '>';
        text += '\n';
    }
    for (const ResourceInfo *info : document.resourceInfoData()->infos)
        text += info->name.toStdString() + ':' + bits(info->totalCost) + bits(info->totalWork) +
                bits(info->actualCost) + bits(info->actualWork) + bits(info->unitsSum) + ' ' +
                std::to_string(info->workStart) + ' ' + std::to_string(info->workFinish) + '\n';
    return text;
}
}
