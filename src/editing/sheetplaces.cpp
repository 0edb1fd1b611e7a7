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

// IDs that repeat: by name as well, or the one at the old place while none can have gone.
ResourceInfo *findAmongEqualIds(const ResourceInfoData &sheet, const UndoDocResourceItem &item)
{
    const auto isIt = [&item](const ResourceInfo *info) {
        return info && info->ID == item.info.ID && info->name == item.info.name;
    };
    ResourceInfo *there = sheet.getResourceInfoAt(item.index);
    if (isIt(there))
        return there;
    const auto found = std::find_if(sheet.infos.begin(), sheet.infos.end(), isIt);
    if (found != sheet.infos.end())
        return *found;
    return there && there->ID == item.info.ID && sheet.infos.size() >= item.sheetSize ? there : nullptr;
}
}

std::vector<int> placesOf(const ResourceInfoData &sheet, const std::vector<UndoDocResourceItem> &items)
{
    std::vector<int> places;
    const auto add = [&](int place) {
        places.push_back(std::find(places.begin(), places.end(), place) == places.end() ? place : -1);
    };
    for (const UndoDocResourceItem &item : items) {
        add(placeOf(sheet, item.isIdShared ? findAmongEqualIds(sheet, item)
                                           : find(sheet, item.info.ID, item.index)));
    }
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (places[i] >= 0 || items[i].isIdShared || items[i].isNameShared)
            continue;
        const int place = placeOf(sheet, sheet.getResourceInfoByName(items[i].info.name));
        if (std::find(places.begin(), places.end(), place) == places.end())
            places[i] = place;
    }
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
