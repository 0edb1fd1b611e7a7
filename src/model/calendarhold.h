#pragma once
#include "engine/time/worktime.h"
#include "kwgantt_export.h"

class KWDocument;

// While one lives, the document's working time is taken as it was when it was made.
//
// Each question for the working time reads every exception and interval to see whether they have changed. A
// pass over many tasks that changes none of these, nor the time zone, spares that. They may be nested, and
// end in the reverse order.
class KWGANTT_EXPORT CalendarHold
{
public:
    explicit CalendarHold(const KWDocument &document);
    ~CalendarHold();
    CalendarHold(const CalendarHold &) = delete;
    CalendarHold &operator=(const CalendarHold &) = delete;

    // Null when nobody holds that of the document.
    static const worktime::WorkCalendar *of(const KWDocument &document);

private:
    const KWDocument &m_document;
    const worktime::WorkCalendar &m_calendar;
    CalendarHold *const m_outer;
};
