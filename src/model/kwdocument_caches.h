#pragma once
#include "engine/record/outline.h"
#include "engine/time/calendarcache.h"
#include "model/kwdocument.h"
#include <vector>

// What a document derives from its list to answer at once. Each table covers the first so many tasks and is
// continued on demand, so appending stays cheap; it starts anew when its counter has moved.
struct KWDocument::Caches
{
    CalendarCache calendar;

    // By ID.
    TaskIndex index;
    QList<TaskRecord *> records; // the tasks that are indexed, in list order
    int indexed = 0;             // how many these are
    quint64 indexedAt = 0;
    quint32 maxId = 0;
    quint32 lowestFreeId = 1; // every smaller ID is taken

    // Rows.
    std::vector<int> rowOfPos; // pos less the hidden tasks up to and with it
    std::vector<int> posOfRow;
    quint64 rowsAt = 0;

    // The bottom edge of every pos, in pixels.
    std::vector<double> bottoms;
    quint64 bottomsAt = 0;
    quint64 bottomsHeightsAt = 0;
    std::size_t bottomsHeightCount = 0;
    double bottomsScale = 0;
    bool ascending = true; // no height is negative or no number
};
