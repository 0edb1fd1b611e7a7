#include "resources/resourceinfodata.h"
#include "engine/cost/names.h"
#include "engine/record/resource.h"
#include "model/changewatch.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "resources/costsof.h"
#include "resources/resourceinfodata_xml.h"
#include <QHash>
#include <algorithm>

namespace {

const char *const costUnitTexts[cost::rateUnitCount] = {"/min", "/h", "/d", "/w", "/m"};
constexpr int typeCount = 5;
}

QMap<int, QString> ResourceInfoData::s_typeItems;

// ---- One entry --------------------------------------------------------------------------------------------

void ResourceInfo::resourceInfoSave(QDomElement &parent) const
{
    DomSink sink(parent);
    sheetxml::writeEntry(sink, *this);
}

void ResourceInfo::resourceInfoParse(const QDomElement &element)
{
    fields::parse(fields::resourceInfoFields, element, *this);
}

namespace {

void copyChange(const ResourceInfo &info, ResourceInfo::ChangeVal what, const KWTaskInfo &task,
                Resource &assigned)
{
    switch (what) {
    case ResourceInfo::ChangeType:
        assigned.type = info.type;
        assigned.workSecs = cost::workSecs(task, assigned);
        if (!resourcetypes::isWork(assigned.type))
            assigned.overtimeCost = 0;
        return;
    case ResourceInfo::ChangeCostUnit:
        assigned.costUnit = info.costUnit;
        return;
    case ResourceInfo::ChangeOvertimeUnit:
        assigned.overtimeUnit = info.overtimeUnit;
        return;
    case ResourceInfo::ChangeCost:
    // Kept on purpose: a changed overtime rate copies the standard rate.
    case ResourceInfo::ChangeOvertimeCost:
        assigned.cost = info.cost;
        return;
    case ResourceInfo::ChangeCostPer:
        assigned.costPer = info.costPer;
        return;
    }
}
}

void ResourceInfo::changeAllTaskSameNameResource(KWDocument *document, ChangeVal what) const
{
    if (!document)
        return;
    const ChangeWatch watch(document);
    const CostPass pass = costsOf(*document);
    for (KWTaskInfo *task : document->taskList()) {
        if (Resource *assigned = task->getResourceByName(name)) {
            copyChange(*this, what, *task, *assigned);
            pass.updateCostAndWork(*task);
        }
    }
}

// ---- The sheet --------------------------------------------------------------------------------------------

ResourceInfoData::ResourceInfoData(KWDocument *document)
    : m_document(document)
{
    for (int type = 0; document && type < typeCount; ++type)
        m_typeTexts.append(s_typeItems.value(type));
}

ResourceInfoData::~ResourceInfoData()
{
    clearResourceInfoData();
}

void ResourceInfoData::appendResourceInfo(ResourceInfo *info)
{
    if (!info)
        return;
    infos.append(info);
    if (m_document)
        m_document->setModified(true);
}

void ResourceInfoData::clearResourceInfoData()
{
    if (m_document && !infos.isEmpty())
        m_document->setModified(true);
    qDeleteAll(infos);
    infos.clear();
}

ResourceInfo *ResourceInfoData::getResourceInfoAt(int index) const
{
    return infos.value(index, nullptr);
}

ResourceInfo *ResourceInfoData::getResourceInfoByName(const QString &name) const
{
    const QString trimmed = name.trimmed();
    const auto found = std::find_if(infos.begin(), infos.end(), [&trimmed](const ResourceInfo *info) {
        return info && info->name.trimmed() == trimmed;
    });
    return found == infos.end() ? nullptr : *found;
}

ResourceInfo *ResourceInfoData::getResourceInfoByID(int id) const
{
    const auto found = std::find_if(infos.begin(), infos.end(),
                                    [id](const ResourceInfo *info) { return info && info->ID == id; });
    return found == infos.end() ? nullptr : *found;
}

bool ResourceInfoData::isHaveSameResourceName(const QString &name) const
{
    return std::any_of(infos.begin(), infos.end(),
                       [&name](const ResourceInfo *info) { return info && info->name == name; });
}

int ResourceInfoData::maxID() const
{
    return names::nextId(infos);
}

QString ResourceInfoData::differentSuffixResourceName(const QString &name) const
{
    return isHaveSameResourceName(name.trimmed()) ? names::Unique(infos).different(name) : name;
}

void ResourceInfoData::deleteResourceByName(const QString &name)
{
    ResourceInfo *info = name.isEmpty() ? nullptr : getResourceInfoByName(name);
    if (!info)
        return;
    infos.removeOne(info);
    delete info;
    if (m_document)
        m_document->setModified(true);
}

// ---- Texts ------------------------------------------------------------------------------------------------

QString ResourceInfoData::getTypeTextByIndex(int index) const
{
    return m_typeTexts.value(index);
}

int ResourceInfoData::getTypeIndex(const QString &text) const
{
    return m_typeTexts.indexOf(text);
}

QString ResourceInfoData::getCostUintText(int index) const
{
    return index >= 0 && index < cost::rateUnitCount ? QString::fromLatin1(costUnitTexts[index]) : QString();
}

int ResourceInfoData::getCostUnitIndex(const QString &text) const
{
    for (int unit = 0; unit < cost::rateUnitCount; ++unit) {
        if (text.endsWith(QLatin1String(costUnitTexts[unit])))
            return unit;
    }
    return -1;
}

// ---- Assignments ------------------------------------------------------------------------------------------

void ResourceInfoData::resourceGetTaskList(KWDocument *document, const ResourceInfo *info,
                                           QList<KWTaskInfo *> &out) const
{
    if (!document || !info)
        return;
    for (KWTaskInfo *task : document->taskList()) {
        if (task->getResourceByName(info->name))
            out.append(task);
    }
}

namespace {

// What the assignments of one name add up to.
struct NameSums
{
    int lastPos = -1; // the task whose first assignment of the name is in already
    double totalCost = 0;
    double totalWork = 0;
    double actualCost = 0;
    double actualWork = 0;
    double unitsSum = 0;
    double count = 0;
    bool hasDates = false;
    quint32 workStart = 0;
    quint32 workFinish = 0;
};

// The names of a sheet, trimmed, each with one set of sums however many entries share it.
class SheetSums
{
public:
    explicit SheetSums(const QVector<ResourceInfo *> &infos)
    {
        m_indexOf.reserve(infos.size());
        m_indexes.reserve(std::size_t(infos.size()));
        for (const ResourceInfo *info : infos) {
            const QString name = info ? info->name.trimmed() : QString();
            auto found = m_indexOf.find(name);
            if (found == m_indexOf.end() && info)
                found = m_indexOf.insert(name, m_indexOf.size());
            m_indexes.push_back(info ? found.value() : 0);
        }
        m_sums.resize(std::size_t(m_indexOf.size()));
    }

    // The sums of the entry at that place of the sheet.
    const NameSums &at(int place) const { return m_sums[std::size_t(m_indexes[std::size_t(place)])]; }

    // Calls add(sums, task, assignment) for the first assignment of each name on each task, in document
    // order: sums of doubles depend on it.
    template <typename Add>
    void collect(const QList<KWTaskInfo *> &tasks, Add &&add)
    {
        for (int pos = 0; pos < tasks.size(); ++pos) {
            const KWTaskInfo &task = *tasks[pos];
            for (const Resource *resource : task.resourceList) {
                const auto found = m_indexOf.constFind(resource->name.trimmed());
                if (found == m_indexOf.constEnd())
                    continue;
                NameSums &sums = m_sums[std::size_t(found.value())];
                if (sums.lastPos == pos)
                    continue;
                sums.lastPos = pos;
                add(sums, task, *resource);
            }
        }
    }

private:
    QHash<QString, int> m_indexOf;
    std::vector<int> m_indexes; // by place in the sheet
    std::vector<NameSums> m_sums;
};
}

void ResourceInfoData::updateWorkStarAndFinishWork(KWDocument *document)
{
    if (!document)
        return;
    const CostPass pass = costsOf(*document);
    SheetSums sheet(infos);
    sheet.collect(document->taskList(),
                  [&pass](NameSums &sums, const KWTaskInfo &task, const Resource &resource) {
                      const bool isWork = resourcetypes::isWork(resource.type);
                      double work = isWork ? cost::work(pass.measures(), task, resource) : resource.percent;
                      if (work == 0)
                          return;
                      if (isWork)
                          work = cost::toHours(pass.measures(), work, task.DurationUnits);
                      sums.totalWork += work;
                      sums.actualWork += work * task.Percent;
                      sums.workStart = sums.hasDates ? std::min(sums.workStart, task.Start) : task.Start;
                      sums.workFinish = std::max(sums.workFinish, task.Finish);
                      sums.hasDates = true;
                  });
    for (int place = 0; place < infos.size(); ++place) {
        ResourceInfo *info = infos[place];
        if (!info)
            continue;
        const NameSums &sums = sheet.at(place);
        info->totalWork = sums.totalWork;
        info->actualWork = sums.actualWork;
        info->workStart = sums.workStart;
        info->workFinish = sums.workFinish;
    }
}

void ResourceInfoData::udpateWorkAndCost(KWDocument *document)
{
    if (!document)
        return;
    const CostPass pass = costsOf(*document);
    SheetSums sheet(infos);
    sheet.collect(
        document->taskList(), [&pass](NameSums &sums, const KWTaskInfo &task, const Resource &resource) {
            const cost::Measures &measures = pass.measures();
            const double work =
                resourcetypes::isWork(resource.type)
                    ? cost::toHours(measures, cost::work(measures, task, resource), task.DurationUnits)
                    : resource.percent;
            const double total = cost::ofAssignment(measures, task, resource);
            sums.totalWork += work;
            sums.totalCost += total;
            sums.actualWork += work * task.Percent;
            if (task.Percent != 0) {
                const double fixed = cost::fixedPart(resource);
                sums.actualCost += (total - fixed) * task.Percent + fixed;
            }
            sums.unitsSum += resource.percent;
            sums.count += 1;
        });
    for (int place = 0; place < infos.size(); ++place) {
        ResourceInfo *info = infos[place];
        if (!info)
            continue;
        const NameSums &sums = sheet.at(place);
        info->totalCost = sums.totalCost;
        info->totalWork = sums.totalWork;
        info->actualCost = sums.actualCost;
        info->actualWork = sums.actualWork;
        info->unitsSum = resourcetypes::isWork(info->type) ? sums.unitsSum : sums.count;
    }
}

// ---- Files ------------------------------------------------------------------------------------------------

void ResourceInfoData::save(QDomElement &parent) const
{
    DomSink sink(parent);
    sheetxml::write(sink, infos);
}

void ResourceInfoData::parse(const QDomElement &element)
{
    sheetxml::read(DomSource(element), infos);
}
