#include "editing/sheetplaces.h"
#include <algorithm>

namespace sheetbackup {

// IDs from files may repeat.
ResourceInfo *find(const ResourceInfoData &sheet, qint32 id, int index)
{
    ResourceInfo *info = sheet.getResourceInfoAt(index);
    return info && info->ID == id ? info : sheet.getResourceInfoByID(id);
}

namespace {

int placeOf(const ResourceInfoData &sheet, ResourceInfo *info)
{
    return info ? sheet.infos.indexOf(info) : -1;
}

// The record itself, whatever it is called by now. A new one may lie where a deleted one was, so something of
// it must be left.
ResourceInfo *findRecord(const ResourceInfoData &sheet, const UndoDocResourceItem &item)
{
    const int place = item.entry ? sheet.infos.indexOf(const_cast<ResourceInfo *>(item.entry)) : -1;
    if (place < 0)
        return nullptr;
    ResourceInfo *info = sheet.infos[place];
    const bool isIt = info->ID == item.info.ID || info->name == item.info.name || place == item.index;
    return isIt ? info : nullptr;
}

// IDs that repeat, where the sheet was made anew: by name as well, or the one at the old place. When entries
// have gone, nothing tells which of equal ones it was.
ResourceInfo *findAmongEqualIds(const ResourceInfoData &sheet, const UndoDocResourceItem &item)
{
    if (sheet.infos.size() < item.sheetSize)
        return nullptr;
    ResourceInfo *there = sheet.getResourceInfoAt(item.index);
    if (there && there->ID == item.info.ID)
        return there;
    const auto found = std::find_if(sheet.infos.begin(), sheet.infos.end(), [&item](const auto *info) {
        return info && info->ID == item.info.ID && info->name == item.info.name;
    });
    return found != sheet.infos.end() ? *found : nullptr;
}

ResourceInfo *findById(const ResourceInfoData &sheet, const UndoDocResourceItem &item)
{
    return item.isIdShared ? findAmongEqualIds(sheet, item) : find(sheet, item.info.ID, item.index);
}
}

std::vector<int> placesOf(const ResourceInfoData &sheet, const std::vector<UndoDocResourceItem> &items)
{
    std::vector<int> places(items.size(), -1);
    // What is surest first: an entry that one record has is not another's.
    const auto claim = [&](auto &&findEntry) {
        for (std::size_t i = 0; i < items.size(); ++i) {
            const int place = places[i] < 0 ? placeOf(sheet, findEntry(items[i])) : -1;
            if (place >= 0 && std::find(places.begin(), places.end(), place) == places.end())
                places[i] = place;
        }
    };
    claim([&](const UndoDocResourceItem &item) { return findRecord(sheet, item); });
    claim([&](const UndoDocResourceItem &item) { return findById(sheet, item); });
    claim([&](const UndoDocResourceItem &item) {
        const bool isOne = !item.isIdShared && !item.isNameShared;
        return isOne ? sheet.getResourceInfoByName(item.info.name) : nullptr;
    });
    return places;
}

void noteShared(const ResourceInfoData &sheet, const ResourceInfo &info, UndoDocResourceItem &item)
{
    for (const ResourceInfo *other : sheet.infos) {
        if (!other || other == &info)
            continue;
        item.isIdShared = item.isIdShared || other->ID == info.ID;
        item.isNameShared = item.isNameShared || other->name.trimmed() == info.name.trimmed();
    }
}
}
