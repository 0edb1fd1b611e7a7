#include "editing/sheetbackup.h"
#include "editing/sheetplaces.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include <QHash>
#include <algorithm>
#include <map>

namespace sheetbackup {

namespace {

// Which recorded entry an assignment belongs to.
class Owners
{
public:
    explicit Owners(const ResourceInfoData &sheet)
    {
        for (const ResourceInfo *info : sheet.infos) {
            if (info)
                ++m_entriesOfName[info->name.trimmed()];
        }
    }

    // `place` is where the recorded entry stands now, -1 for nowhere.
    void add(const ResourceInfoData &sheet, const QString &name, int item, int place, qint32 id)
    {
        const QString trimmed = name.trimmed();
        const bool isItsOwn = place >= 0 && sheet.infos[place]->name.trimmed() == trimmed;
        const bool isShared = m_entriesOfName.value(trimmed) > (isItsOwn ? 1 : 0);
        m_owners[trimmed].append({item, id, isShared});
    }

    int of(const Resource &resource) const // -1: none of them
    {
        const auto owners = m_owners.constFind(resource.name.trimmed());
        if (owners == m_owners.constEnd())
            return -1;
        for (const Owner &owner : *owners) {
            // Of a name that other entries have too only the assignments made from this one.
            if (!owner.isShared || owner.id == resource.ID)
                return owner.item;
        }
        return -1;
    }

private:
    struct Owner
    {
        int item;
        qint32 id;
        bool isShared;
    };
    QHash<QString, int> m_entriesOfName;
    QHash<QString, QVector<Owner>> m_owners;
};

void collect(const KWDocument &document, const Owners &owners, Entries &entries)
{
    for (const KWTaskInfo *task : document.taskList()) {
        for (int i = 0; i < task->resourceList.size(); ++i) {
            const int owner = owners.of(*task->resourceList[i]);
            if (owner >= 0)
                entries[std::size_t(owner)].resources.append({task->ID, i, *task->resourceList[i]});
        }
    }
}
}

UndoDocResourceItem entry(const KWDocument &document, const ResourceInfo &info)
{
    const ResourceInfoData &sheet = *document.resourceInfoData();
    UndoDocResourceItem item;
    item.info = info;
    item.index = sheet.infos.indexOf(const_cast<ResourceInfo *>(&info));
    item.exists = item.index >= 0;
    item.entry = &info;
    noteShared(sheet, info, item);
    return now(document, {item}).front();
}

void appendAssignments(const KWDocument &document, const QString &name, QVector<UndoResource> &assignments)
{
    const QString trimmed = name.trimmed();
    for (const KWTaskInfo *task : document.taskList()) {
        for (int i = 0; i < task->resourceList.size(); ++i) {
            if (task->resourceList[i]->name.trimmed() == trimmed)
                assignments.append({task->ID, i, *task->resourceList[i]});
        }
    }
}

bool holds(const KWDocument &document, const Entries &entries, const ResourceInfo &info)
{
    const ResourceInfoData &sheet = *document.resourceInfoData();
    const int place = sheet.infos.indexOf(const_cast<ResourceInfo *>(&info));
    if (place >= 0) {
        const std::vector<int> places = placesOf(sheet, entries);
        return std::find(places.begin(), places.end(), place) != places.end();
    }
    return std::any_of(entries.begin(), entries.end(), [&info](const UndoDocResourceItem &item) {
        return !item.exists && item.info.ID == info.ID;
    });
}

Entries now(const KWDocument &document, const Entries &backups)
{
    Entries entries;
    if (backups.empty())
        return entries; // without a walk over the tasks
    const ResourceInfoData &sheet = *document.resourceInfoData();
    Owners owners(sheet);
    const std::vector<int> places = placesOf(sheet, backups);
    for (const UndoDocResourceItem &backup : backups) {
        UndoDocResourceItem item;
        const int place = places[entries.size()];
        item.isIdShared = backup.isIdShared;
        item.isNameShared = backup.isNameShared;
        item.sheetSize = sheet.infos.size();
        item.exists = place >= 0;
        item.entry = item.exists ? sheet.infos[place] : nullptr;
        item.info = item.exists ? *sheet.infos[place] : backup.info;
        item.index = item.exists ? place : backup.index;
        const int number = int(entries.size());
        owners.add(sheet, item.info.name, number, place, backup.info.ID);
        if (backup.info.name.trimmed() != item.info.name.trimmed())
            owners.add(sheet, backup.info.name, number, place, backup.info.ID);
        entries.push_back(item);
    }
    collect(document, owners, entries);
    return entries;
}

namespace {

// The assignments of one task that come or go, in the order of their places.
struct TaskChange
{
    std::vector<const UndoResource *> removed;
    std::vector<const UndoResource *> inserted;
};

void removeAssignments(KWTaskInfo &task, const std::vector<const UndoResource *> &removed)
{
    for (auto it = removed.rbegin(); it != removed.rend(); ++it) {
        if ((*it)->index < task.resourceList.size())
            Resource::release(task.resourceList.takeAt((*it)->index));
    }
}

void insertAssignments(KWTaskInfo &task, const std::vector<const UndoResource *> &inserted)
{
    for (const UndoResource *resource : inserted) {
        task.resourceList.insert(qMin(resource->index, task.resourceList.size()),
                                 new Resource(resource->resource));
    }
}

void restoreAssignments(KWDocument &document, const Entries &backups, const Entries &current)
{
    std::map<quint32, TaskChange> changes;
    for (const UndoDocResourceItem &item : current) {
        for (const UndoResource &resource : item.resources)
            changes[resource.taskID].removed.push_back(&resource);
    }
    for (const UndoDocResourceItem &item : backups) {
        for (const UndoResource &resource : item.resources)
            changes[resource.taskID].inserted.push_back(&resource);
    }
    const auto byPlace = [](const UndoResource *a, const UndoResource *b) { return a->index < b->index; };
    for (auto &[id, change] : changes) {
        KWTaskInfo *task = document.getTaskInfoByID(id);
        if (!task)
            continue;
        std::stable_sort(change.removed.begin(), change.removed.end(), byPlace);
        std::stable_sort(change.inserted.begin(), change.inserted.end(), byPlace);
        removeAssignments(*task, change.removed);
        insertAssignments(*task, change.inserted);
    }
}
}

void restore(KWDocument &document, const Entries &backups, const Entries &current, bool withAssignments)
{
    ResourceInfoData &sheet = *document.resourceInfoData();
    std::vector<ResourceInfo *> gone;
    std::vector<const UndoDocResourceItem *> missing;
    for (std::size_t i = 0; i < backups.size(); ++i) {
        ResourceInfo *info = current[i].exists ? sheet.getResourceInfoAt(current[i].index) : nullptr;
        if (backups[i].exists && info)
            *info = backups[i].info;
        else if (backups[i].exists)
            missing.push_back(&backups[i]);
        else if (info)
            gone.push_back(info);
    }
    for (ResourceInfo *info : gone) {
        if (sheet.infos.removeOne(info))
            delete info;
    }
    std::stable_sort(missing.begin(), missing.end(),
                     [](const auto *a, const auto *b) { return a->index < b->index; });
    for (const UndoDocResourceItem *item : missing)
        sheet.infos.insert(qBound(0, item->index, sheet.infos.size()), new ResourceInfo(item->info));
    if (withAssignments)
        restoreAssignments(document, backups, current);
}

QVector<ResourceInfo> infosOf(const KWDocument &document)
{
    QVector<ResourceInfo> infos;
    for (const ResourceInfo *info : qAsConst(document.resourceInfoData()->infos)) {
        if (info)
            infos.append(*info);
    }
    return infos;
}

void restore(KWDocument &document, const Sheet &backup, const Sheet &current, bool withAssignments)
{
    ResourceInfoData &sheet = *document.resourceInfoData();
    sheet.clearResourceInfoData();
    for (const ResourceInfo &info : backup.infos)
        sheet.appendResourceInfo(new ResourceInfo(info));
    if (withAssignments)
        backup.tasks.restoreAssignments(document, current.tasks);
}
}
