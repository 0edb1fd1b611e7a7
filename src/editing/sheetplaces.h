#pragma once
#include "editing/undoitems.h"
#include <vector>

// Which entries of the resource sheet records are of. IDs from files may repeat, and names may too.
namespace sheetbackup {

// The entry with that ID, the one at `index` rather than another; null when there is none.
ResourceInfo *find(const ResourceInfoData &sheet, qint32 id, int index);

// The places of recorded entries in the sheet, each its own; -1 for one that is not there.
std::vector<int> placesOf(const ResourceInfoData &sheet, const std::vector<UndoDocResourceItem> &items);
// Notes in the record what the entry shares with others.
void noteShared(const ResourceInfoData &sheet, const ResourceInfo &info, UndoDocResourceItem &item);
}
