#pragma once
#include "editing/kwhyperlink.h"
#include "engine/record/resource.h"
#include "kwgantt_export.h"
#include "resources/resourceinfodata.h"
#include <QDate>
#include <QFont>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVector>

// What an undoable edit keeps of the state it replaces. All of them are plain values: a copy is independent.

// One task's values, packed by kind in the order of the table of task fields.
class KWGANTT_EXPORT UndoItemData
{
public:
    quint32 ID = 0;
    double rowHeight = 0;     // pixels at 96 dpi
    QVector<qint32> integers; // unsigned ones bit for bit
    QVector<double> doubles;
    QStringList strings; // the last one is the font's text
    QFont font;          // with what its text leaves out
    KWHyperlinkSheet hyperlinks;
    QList<quint32> Depends;
    QList<quint32> Predecessors;
    QList<quint32> Childs;
};

// One column of the task table.
class KWGANTT_EXPORT UndoColData
{
public:
    bool isHide = false;
    QString title;
    double width = 0; // pixels at the current screen scale
};

// One assignment of a task, and its place in the task's list.
class KWGANTT_EXPORT UndoResource
{
public:
    quint32 taskID = 0;
    int index = 0;
    Resource resource;
};

// One entry of the resource sheet with the assignments of its name.
class KWGANTT_EXPORT UndoDocResourceItem
{
public:
    ResourceInfo info;
    bool exists = true; // false: the sheet had no such entry
    const ResourceInfo *entry =
        nullptr;       // where it was, to tell it from equal ones; only compared, never read
    int index = 0;     // its place in the sheet
    int sheetSize = 0; // entries that the sheet had
    // With another entry: then the ID or the name alone does not tell which one it is.
    bool isIdShared = false;
    bool isNameShared = false;
    QVector<UndoResource> resources;
};

// All assignments of one task.
class KWGANTT_EXPORT UndoTaskResources
{
public:
    quint32 taskID = 0;
    QVector<Resource> resources;
};

// The name that an entry of the sheet had.
class KWGANTT_EXPORT UndoEditResourceName
{
public:
    qint32 ID = 0;
    int index = -1; // its place in the sheet, for IDs that repeat
    QString name;
};

// One working interval, in seconds since midnight.
class KWGANTT_EXPORT UndoDayTime
{
public:
    quint32 start = 0;
    quint32 finish = 0;
};

class KWGANTT_EXPORT UndoCalendar
{
public:
    QString name;
    QDate startDate;
    QDate finishDate;
    bool isException = false;
    bool isWork = true;
    QVector<UndoDayTime> dayTimes;
};

// The calendars, the working time and the options that files keep.
class KWGANTT_EXPORT UndoOptionItemData
{
public:
    bool workDay[7] = {};
    QVector<double> values; // in the order of the option tables; a double holds each of them exactly
    QVector<UndoDayTime> workTimes;
    QVector<UndoCalendar> calendars;
};
