#pragma once
#include "engine/record/codes.h"
#include "engine/record/trackedfield.h"
#include <QFont>
#include <QList>
#include <QString>

class Resource;

// One task as the rules read and write it. KWTaskInfo, which a document holds, is one; the table of its
// fields is in taskfields.h.
//
// Times are unsigned seconds since 1970-01-01 00:00 UTC on the day clock; 0 means not set and a finish is
// exclusive. Tasks refer to each other by ID only.
struct TaskRecord
{
    // What schedules and roll-ups read stands first, close together: at 100,000 tasks the records are many
    // times the size of the processor's cache, and each line of it that a pass need not fetch counts.
    TrackedField<quint32> ID;     // unique in the document; 0 = none
    TrackedField<quint32> HideID; // the collapsed ancestor that hides this task; 0 = visible
    quint32 ParentID = 0;         // 0 = top level
    qint32 Level = 1;             // 1 = top level
    quint32 Start = 0;
    quint32 Finish = 0;
    quint32 DurationSecs = 0; // working seconds, see duration::secs
    quint32 DurationUnits = duration::Day;
    QList<quint32> Childs;  // direct children
    QList<quint32> Depends; // successors
    QList<quint32> Predecessors;
    double Percent = 0.0; // fraction 0..1
    bool Milestone = false;
    bool IsToggler = false; // this summary is collapsed
    bool CriticalPath = false;
    bool CriticalVisible = true; // carried by copies; nothing in the library depends on it
    bool Linked = false;         // linked to the active task; neither saved nor copied
    quint32 LateStart = 0;
    quint32 LateFinish = 0;
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0; // bar, in chart pixels
    double CountWidth = 0;                 // pixels: the bar's width
    double FirstWidth = 0;                 // pixels: the finished part of it
    QList<Resource *> resourceList;        // each entry is one use of the record, see Resource
    double Cost = 0;
    double Work = 0;
    double RemainingCost = 0;
    QString Resources; // the assigned resources' names as shown
    QString Name;
    QString EarlySlack;
    QString LateSlack;
    qint32 Priority = 0;
    qint32 Progress = 0;
    quint32 BaseStart = 0;
    quint32 BaseFinish = 0;
    QString BaselineCost;
    QString Notes;
    QFont font;

    TaskRecord() = default;
    // A copy has to count its uses of the assignments.
    TaskRecord(const TaskRecord &) = delete;
    TaskRecord &operator=(const TaskRecord &) = delete;

    bool isParent() const { return !Childs.isEmpty(); }
    bool isHaveResource() const { return !resourceList.isEmpty(); }
};
