#pragma once
#include "kwgantt_export.h"
#include <QDate>
#include <QList>
#include <QString>

// One working interval of a day, in seconds since midnight (0 to 86400). Not validated.
class KWGANTT_EXPORT KWDayTime
{
public:
    quint32 start = 0;
    quint32 finish = 0;

    KWDayTime() = default;
    KWDayTime(quint32 startSecs, quint32 finishSecs)
        : start(startSecs)
        , finish(finishSecs)
    {
    }
};

// One dated exception to the working week, from startDate to finishDate inclusive; KWCalendar, which a
// document holds, is one.
struct CalendarRecord
{
    QString name;
    QDate startDate;
    QDate finishDate;
    bool isException = false;    // only then does it decide whether a date works
    bool isWork = true;          // true: the covered dates are working days
    QList<KWDayTime *> dayTimes; // working hours of the covered dates; owned

    CalendarRecord() = default;
    // A copy has to have intervals of its own.
    CalendarRecord(const CalendarRecord &) = delete;
    CalendarRecord &operator=(const CalendarRecord &) = delete;
};
