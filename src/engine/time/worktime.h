#pragma once
#include "engine/record/calendarrecord.h"
#include "engine/time/localclock.h"
#include "kwgantt_export.h"
#include <QList>
#include <array>
#include <cstring>
#include <memory>
#include <vector>

// The working-time model: which dates work, which hours of a date work, and the two clocks.
//
// The day clock is how starts and finishes are stored: a chart day has 24 hours. The hour clock is what a
// user sees: the same fraction of the span from the start hour to the finish hour. Points of the day clock
// are held as LocalClock::Wall (a finish at midnight is second 0 of the next date), points of the hour clock
// as HourPoint.
namespace worktime {

constexpr int secsPerHour = 3600;

// A point on the hour clock: a local date and seconds since its 00:00 on the wall clock. secs lies in
// S..F hours for points made from a stored time; the end of a day keeps its date (F = 24 gives 86400).
struct HourPoint
{
    int day = 0;
    qint64 secs = 0;
};

// Pointers to exceptions in a list of pointers to any class that is a CalendarRecord, read where they stand:
// the list must outlive this. Each look at the working time reads them all.
class Exceptions
{
public:
    template <typename Exception>
    Exceptions(const QList<Exception *> &list)
        : m_first(list.isEmpty() ? nullptr : &*list.begin())
        , m_size(list.size())
    {
        // Where the record stands in the exception is the same for all of them.
        for (int place = 0; place < m_size && m_offset < 0; ++place) {
            if (const Exception *exception = list[place])
                m_offset =
                    int(reinterpret_cast<const char *>(static_cast<const CalendarRecord *>(exception)) -
                        reinterpret_cast<const char *>(exception));
        }
    }

    int size() const { return m_size; }
    bool isEmpty() const { return m_size == 0; }
    const CalendarRecord *operator[](int place) const // may be null
    {
        const char *exception = nullptr;
        std::memcpy(&exception, static_cast<const char *>(m_first) + std::size_t(place) * sizeof(exception),
                    sizeof(exception));
        return exception ? reinterpret_cast<const CalendarRecord *>(exception + m_offset) : nullptr;
    }

private:
    const void *m_first;
    int m_size;
    int m_offset = -1; // bytes; not known without exceptions
};

// What the model is made from; refers to the document's working days, hours and exceptions.
struct Source
{
    const bool *workingDays = nullptr; // seven flags, Monday first
    const QList<KWDayTime *> &hours;
    Exceptions exceptions; // the first one that covers a date decides
    bool oldVersion = false;
};

// The breaks of a date, on whole hours.
struct Breaks
{
    int hours = 0;                       // all of them, also outside S..F
    std::array<qint64, 25> secsBefore{}; // seconds of breaks from S:00 to each full hour, none outside S..F
    int freeHours = 0;                   // hours of S..F that no break touches
    std::array<quint8, 24> freeHour{};   // which ones, in order
};

// A document's working time, compiled into tables by date, so that each question costs a few nanoseconds.
// Immutable. The owner makes a new one when the digest of the source or the clock has changed.
// Dates outside LocalClock's range count as its first or last one.
class KWGANTT_EXPORT WorkCalendar
{
public:
    static constexpr int noDay = -1000000; // "there is no such working date"

    // Changes with everything the model is made from, but not with the clock.
    static quint64 digest(const Source &source);
    WorkCalendar(const Source &source, std::shared_ptr<const LocalClock> clock);

    const LocalClock &clock() const { return *m_clock; }
    bool oldVersion() const { return m_oldVersion; }

    int startHour() const { return m_startHour; }             // S, 0..24
    int finishHour() const { return m_finishHour; }           // F, S..24
    int hoursPerDay() const { return m_hoursPerDay; }         // W; above 24 only when intervals overlap
    int workdaysPerWeek() const { return m_workdaysPerWeek; } // 0..7
    bool hasWorkday() const { return m_workdaysPerWeek > 0; } // some weekday works
    qint64 spanSecs() const { return m_spanSecs; }            // from S:00 to F:00
    int roundUpFrom() const { return m_roundUpFrom; } // seconds that make the hour clock's next minute

    bool isWorkday(int day) const
    {
        const size_t i = index(day);
        return m_offBefore[i] == m_offBefore[i + 1];
    }
    bool isWorkHour(int day, int hour) const // hour 0..23
    {
        return (hoursMask(day) >> unsigned(hour)) & 1u;
    }
    quint32 hoursMask(int day) const // one bit an hour
    {
        return m_extraHours.empty() ? m_workHours : m_workHours | m_extraHours[index(day)];
    }
    // Dates that do not work, both ends included; 0 when first > last or no weekday works.
    int daysOff(int firstDay, int lastDay) const
    {
        return firstDay > lastDay || !hasWorkday()
                   ? 0
                   : m_offBefore[index(lastDay) + 1] - m_offBefore[index(firstDay)];
    }
    int workdayOnOrAfter(int day) const // noDay when there is none up to 2106
    {
        const size_t i = workdaysBefore(day);
        return i < m_workdays.size() ? m_workdays[i] : noDay;
    }
    int workdayOnOrBefore(int day) const // noDay when there is none from 1970
    {
        const size_t i = index(day) + 1 - size_t(m_offBefore[index(day) + 1]);
        return i > 0 ? m_workdays[i - 1] : noDay;
    }
    // The working date `count` working dates after (before, when negative) `day`; noDay past the range. From
    // a date off, 1 is the next working date, -1 the previous one, and 0 the next one.
    int addWorkdays(int day, int count) const;
    // The working dates in order, and how many of them come before a date.
    const std::vector<int> &workdays() const { return m_workdays; }
    size_t workdaysBefore(int day) const { return index(day) - size_t(m_offBefore[index(day)]); }

    const Breaks &breaks(int day) const
    {
        return m_breaks[m_breaksOfDay.empty() ? 0 : size_t(m_breaksOfDay[index(day)])];
    }
    // Whole hours of breaks inside a date's working hours.
    int breakHours(int day) const { return breaks(day).hours; }
    // Seconds of breaks between two wall-clock times of one date, both clipped to S..F.
    qint64 breakSecs(int day, qint64 fromSecs, qint64 toSecs) const
    {
        const Breaks &of = breaks(day);
        return of.hours == 0 || fromSecs >= toSecs
                   ? 0
                   : breakSecsBefore(of, toSecs) - breakSecsBefore(of, fromSecs);
    }

private:
    friend class WorkCalendarBuilder;
    static size_t index(int day)
    {
        return size_t(std::clamp(day, LocalClock::firstDay, LocalClock::lastDay) - LocalClock::firstDay);
    }
    qint64 breakSecsBefore(const Breaks &of, qint64 secs) const
    {
        const unsigned int within =
            unsigned(std::clamp(secs, qint64(m_startHour) * secsPerHour, qint64(m_finishHour) * secsPerHour));
        const unsigned int hour = within / secsPerHour;
        const unsigned int rest = within - hour * secsPerHour;
        const qint64 before = of.secsBefore[hour];
        return rest == 0 ? before : before + rest * ((of.secsBefore[hour + 1] - before) / secsPerHour);
    }

    std::shared_ptr<const LocalClock> m_clock;
    bool m_oldVersion = false;
    int m_startHour = 0;
    int m_finishHour = 0;
    int m_hoursPerDay = 0;
    int m_workdaysPerWeek = 0;
    int m_roundUpFrom = 30;
    qint64 m_spanSecs = 0;
    std::vector<int> m_offBefore; // dates off before a date, by day - LocalClock::firstDay, one more
    std::vector<int> m_workdays;
    std::vector<Breaks> m_breaks;      // set 0 is the document's
    std::vector<int> m_breaksOfDay;    // empty: always set 0
    quint32 m_workHours = 0;           // one bit an hour, from the document's intervals
    std::vector<quint32> m_extraHours; // by date, from exceptions; empty when there are none
};

// Clamps to the 32-bit time range.
inline quint32 clampSecs(qint64 secs)
{
    return quint32(std::clamp<qint64>(secs, 0, 4294967295LL));
}

// ---- The two clocks ---------------------------------------------------------------------------------------

inline HourPoint toHourClock(const WorkCalendar &calendar, LocalClock::Wall stored) // stored -> shown
{
    const int shown = calendar.startHour() * secsPerHour +
                      (calendar.finishHour() - calendar.startHour()) * stored.secs / 24;
    const int second = shown % 60;
    return {stored.day, shown - second + (second >= calendar.roundUpFrom() ? 60 : 0)};
}
inline HourPoint toHourClock(const WorkCalendar &calendar, qint64 daySecs)
{
    return toHourClock(calendar, calendar.clock().wall(daySecs));
}
// shown -> stored. Points after F land on a following chart day; points before S are returned as they are,
// but continue below the midnight in documents of the old version.
KWGANTT_EXPORT LocalClock::Wall toDayWall(const WorkCalendar &calendar, HourPoint shown);
inline qint64 toDayClock(const WorkCalendar &calendar, HourPoint shown)
{
    const LocalClock::Wall stored = toDayWall(calendar, shown);
    return calendar.clock().moment(stored.day, stored.secs);
}
// The same on moments: seconds since 1970 of the hour clock in local time. Clamped to 0..4294967295.
KWGANTT_EXPORT quint32 secsDayTransHour(const WorkCalendar &calendar, quint32 secs);
KWGANTT_EXPORT quint32 secsHourTransDay(const WorkCalendar &calendar, quint32 secs);

// ---- Measures ---------------------------------------------------------------------------------------------

// The date of the second before a stored point: a finish belongs to it.
inline int dayBefore(LocalClock::Wall finish)
{
    return finish.secs == 0 ? finish.day - 1 : finish.day;
}

// Working seconds between two points of the hour clock, a before b, days off not yet taken away: on one date
// the seconds less its breaks; else the first date up to F, W hours for each date between, the last date from
// S.
KWGANTT_EXPORT qint64 workSecs(const WorkCalendar &calendar, HourPoint a, HourPoint b);
// The dates off that count for that range: from a's date to the date of the second before b's day clock.
KWGANTT_EXPORT int daysOffInside(const WorkCalendar &calendar, HourPoint a, HourPoint b);
// Working time between two points of the hour clock in hours, W hours less for each of those dates; never
// below 0.
KWGANTT_EXPORT double workHours(const WorkCalendar &calendar, HourPoint a, HourPoint b);

KWGANTT_EXPORT quint32 totalDayOff(const WorkCalendar &calendar, quint32 startSecs, quint32 finishSecs);

// Working time between two stored points, days off apart so that nothing is rounded.
struct WorkedTime
{
    qint64 secs = 0;       // a single second counts as none
    qint64 secsPerDay = 0; // what a day of it has; 0 when there are no working hours
    int daysOff = 0;
};
KWGANTT_EXPORT WorkedTime workedTime(const WorkCalendar &calendar, LocalClock::Wall start,
                                     LocalClock::Wall finish, unsigned int unit);
// In working days, never below 0.
KWGANTT_EXPORT double totalWorkDays(const WorkCalendar &calendar, quint32 startSecs, quint32 finishSecs,
                                    unsigned int unit);
// Between two wall clocks, every date 24 hours long; may be negative.
inline qint64 elapsedSecs(LocalClock::Wall start, LocalClock::Wall finish)
{
    return qint64(finish.day - start.day) * LocalClock::secsPerDay + finish.secs - start.secs;
}
}
