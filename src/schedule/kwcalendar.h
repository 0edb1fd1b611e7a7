#pragma once
#include "kwgantt_export.h"
#include <QDate>
#include <QDomElement>
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

// One dated exception to the working week, from startDate to finishDate inclusive.
class KWGANTT_EXPORT KWCalendar
{
public:
    QString name;
    QDate startDate;
    QDate finishDate;
    bool isException = false;    // only then does it decide whether a date works
    bool isWork = true;          // true: the covered dates are working days
    QList<KWDayTime *> dayTimes; // working hours of the covered dates; owned

    KWCalendar(); // both dates are today's
    KWCalendar(const KWCalendar &other);
    virtual ~KWCalendar();
    KWCalendar &operator=(const KWCalendar &other); // the intervals are copied, each calendar owns its own

    KWDayTime *getDayTimeAt(int index) const; // null outside the list
    void removeDayTimesAt(int index);
    void clear(); // deletes the intervals, nothing else

    void saveTo(QDomElement &element, unsigned int version) const;
    void parse(const QDomElement &element, unsigned int version);
};
