#include "model/calendarhold.h"
#include "model/kwdocument.h"

namespace {

// Of this thread: documents of other threads have holds that end in an order of their own.
thread_local CalendarHold *innermost = nullptr;
}

CalendarHold::CalendarHold(const KWDocument &document)
    : m_document(document)
    , m_calendar(document.workCalendar())
    , m_outer(innermost)
{
    innermost = this;
}

CalendarHold::~CalendarHold()
{
    innermost = m_outer;
}

const worktime::WorkCalendar *CalendarHold::of(const KWDocument &document)
{
    for (const CalendarHold *hold = innermost; hold; hold = hold->m_outer) {
        if (&hold->m_document == &document)
            return &hold->m_calendar;
    }
    return nullptr;
}
