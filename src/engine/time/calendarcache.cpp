#include "engine/time/calendarcache.h"

const worktime::WorkCalendar &CalendarCache::get(const worktime::Source &source)
{
    std::shared_ptr<const LocalClock> clock = LocalClock::current();
    const quint64 digest = worktime::WorkCalendar::digest(source);
    if (!m_calendar || m_digest != digest || m_clock != clock) {
        m_clock = std::move(clock);
        m_calendar = std::make_unique<worktime::WorkCalendar>(source, m_clock);
        m_digest = digest;
    }
    return *m_calendar;
}
