#pragma once
#include "engine/time/worktime.h"
#include <memory>

// Keeps a document's compiled working time and makes it again when its source or the time zone has changed.
//
// A check reads every calendar and interval: a pass over many tasks asks once and keeps the answer.
class CalendarCache
{
public:
    // Valid until the next call that finds a change.
    const worktime::WorkCalendar &get(const worktime::Source &source);

private:
    std::unique_ptr<worktime::WorkCalendar> m_calendar;
    std::shared_ptr<const LocalClock> m_clock;
    quint64 m_digest = 0;
};
