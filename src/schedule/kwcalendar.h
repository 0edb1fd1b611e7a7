#pragma once
#include "engine/record/calendarrecord.h"
#include "kwgantt_export.h"
#include <QDomElement>

// One dated exception to the working week; its fields are those of the record.
class KWGANTT_EXPORT KWCalendar : public CalendarRecord
{
public:
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
