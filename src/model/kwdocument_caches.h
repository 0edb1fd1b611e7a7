#pragma once
#include "engine/record/namefacts.h"
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
    std::vector<quint32> ids;    // of these
    int indexed = 0;             // how many these are
    bool isIndexed = true;       // else the index is to be made again, from the IDs
    quint64 indexedAt = 0;
    quint32 maxId = 0;
    quint32 lowestFreeId = 1; // every smaller ID is taken

    // What differentSuffixTaskName() looks for.
    struct NumberedName
    {
        uint hash = 0;      // of the trimmed name
        qint64 number = -1; // that stands behind the base; -1: none
    };
    NameFacts<NumberedName> numberedNames;
    QString numberedBase;

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

    bool knowsIds(int tasks, quint64 revision) const { return indexedAt == revision && indexed == tasks; }
    bool knowsRows(int tasks, quint64 revision) const
    {
        return rowsAt == revision && rowOfPos.size() == std::size_t(tasks);
    }
    bool isVisible(std::size_t pos) const { return rowOfPos[pos] != (pos == 0 ? -1 : rowOfPos[pos - 1]); }
    // Some tasks come or go and the tables know the list before that: what they know of the others stays
    // true, and asking all of these again would cost more than the rest of most edits. The revisions are
    // those of the list as it is now.
    void insertIds(int pos, const QList<KWTaskInfo *> &tasks, quint64 &revision);
    void insertRows(int pos, const QList<KWTaskInfo *> &tasks, quint64 &revision);
    void removeIds(const std::vector<bool> &leaves, quint64 revision);
    void removeRows(const std::vector<bool> &leaves, quint64 revision);
    // The same where the tasks of a stretch change places among themselves; `tasks` is the list afterwards.
    void permuteIds(int first, int last, const QList<KWTaskInfo *> &tasks, quint64 revision);
    void permuteRows(int first, int last, const QList<KWTaskInfo *> &tasks, quint64 revision);

private:
    std::vector<bool> visibleOnes() const; // by pos
    void setRows(const std::vector<bool> &visible, quint64 revision);
};
