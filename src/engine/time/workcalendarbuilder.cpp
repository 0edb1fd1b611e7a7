// Compiles a document's working time into the tables of WorkCalendar, in O(calendars + intervals + dates).
#include "engine/time/worktime.h"
#include <numeric>
#include <utility>

namespace worktime {

namespace {

constexpr int dayCount = LocalClock::lastDay - LocalClock::firstDay + 1;

// Dates as table places, both ends included; empty when first > last.
struct Range
{
    int first = 0;
    int last = -1;
};

Range coveredDates(const CalendarRecord &calendar)
{
    // An invalid date lies before every other.
    if (!calendar.finishDate.isValid() ||
        (calendar.startDate.isValid() && calendar.startDate > calendar.finishDate))
        return {};
    static const QDate firstDate = LocalClock::dateOf(LocalClock::firstDay);
    static const QDate lastDate = LocalClock::dateOf(LocalClock::lastDay);
    if (calendar.finishDate < firstDate || (calendar.startDate.isValid() && calendar.startDate > lastDate))
        return {};
    return {LocalClock::dayOf(calendar.startDate) - LocalClock::firstDay,
            LocalClock::dayOf(calendar.finishDate) - LocalClock::firstDay};
}

// Gives each date to the first range that covers it. Painted dates are skipped in a few steps, however many
// ranges lie over them.
class FirstCome
{
public:
    FirstCome()
        : m_next(size_t(dayCount) + 1)
    {
        std::iota(m_next.begin(), m_next.end(), 0);
    }

    // Calls paint(place) for each date of the range that nobody has yet.
    template <typename Paint>
    void take(Range range, Paint paint)
    {
        for (int place = free(range.first); place <= range.last; place = free(place + 1)) {
            m_next[size_t(place)] = place + 1;
            paint(place);
        }
    }

private:
    int free(int place)
    {
        int root = place;
        while (m_next[size_t(root)] != root)
            root = m_next[size_t(root)];
        while (m_next[size_t(place)] != root)
            place = std::exchange(m_next[size_t(place)], root);
        return root;
    }

    std::vector<int> m_next; // the place itself when it is free, else one nearer to the next free place
};

// Interval ends as whole hours, at most 24.
int hourOf(quint32 secs)
{
    return int(std::min<quint32>(secs / secsPerHour, 24));
}

int intervalCount(const QList<KWDayTime *> &hours)
{
    return int(hours.size() - hours.count(nullptr));
}

// Calls visit(from, to) for the whole hours of each break between neighbours; none that ends before it
// begins.
template <typename Visit>
void forEachBreak(const QList<KWDayTime *> &hours, Visit visit)
{
    const KWDayTime *before = nullptr;
    for (const KWDayTime *interval : hours) {
        if (!interval)
            continue;
        if (before && hourOf(before->finish) < hourOf(interval->start))
            visit(hourOf(before->finish), hourOf(interval->start));
        before = interval;
    }
}

}

class WorkCalendarBuilder
{
public:
    WorkCalendarBuilder(WorkCalendar &calendar, const Source &source)
        : m_calendar(calendar)
        , m_source(source)
    {
    }

    void build()
    {
        hours();
        weekdays();
        if (m_source.exceptions.isEmpty())
            return;
        breaksOfExceptions();
        hoursOfExceptions();
    }

private:
    template <typename Visit>
    void forEachException(Visit visit) const
    {
        for (int place = 0; place < m_source.exceptions.size(); ++place) {
            if (const CalendarRecord *exception = m_source.exceptions[place])
                visit(*exception);
        }
    }

    void hours()
    {
        const QList<KWDayTime *> &hours = m_source.hours;
        qint64 perDay = 0;
        const KWDayTime *first = nullptr;
        const KWDayTime *last = nullptr;
        for (const KWDayTime *interval : hours) {
            if (!interval)
                continue;
            if (!first)
                first = interval;
            last = interval;
            perDay += std::max(0, hourOf(interval->finish) - hourOf(interval->start));
        }
        m_calendar.m_hoursPerDay = int(std::min<qint64>(perDay, 1000000));
        if (first) {
            m_calendar.m_startHour = hourOf(first->start);
            const quint32 finishMinutes = std::min<quint32>(last->finish, LocalClock::secsPerDay) / 60;
            m_calendar.m_finishHour = std::max(m_calendar.m_startHour, int((finishMinutes + 59) / 60));
        }
        m_calendar.m_spanSecs = qint64(m_calendar.m_finishHour - m_calendar.m_startHour) * secsPerHour;
        m_calendar.m_breaks.push_back(breaksOf(hours));

        // Kept on purpose: with one interval the finish hour itself works; with two everything but the breaks
        // does.
        if (intervalCount(hours) < 2)
            m_calendar.m_workHours = hoursMask(m_calendar.m_startHour, m_calendar.m_finishHour + 1);
        else {
            m_calendar.m_workHours = hoursMask(0, 24);
            forEachBreak(hours, [this](int from, int to) { m_calendar.m_workHours &= ~hoursMask(from, to); });
        }
    }

    void weekdays()
    {
        for (int weekday = 0; weekday < 7; ++weekday)
            m_calendar.m_workdaysPerWeek += m_source.workingDays[weekday] ? 1 : 0;

        std::vector<char> works(dayCount);
        for (int place = 0; place < dayCount; ++place)
            works[size_t(place)] = m_source.workingDays[LocalClock::weekday(place + LocalClock::firstDay)];
        if (!m_source.exceptions.isEmpty()) {
            FirstCome dates;
            forEachException([&](const CalendarRecord &exception) {
                if (exception.isException)
                    dates.take(coveredDates(exception),
                               [&](int place) { works[size_t(place)] = exception.isWork; });
            });
        }

        m_calendar.m_offBefore.reserve(size_t(dayCount) + 1);
        m_calendar.m_workdays.reserve(size_t(dayCount));
        int off = 0;
        m_calendar.m_offBefore.push_back(0);
        for (int place = 0; place < dayCount; ++place) {
            if (works[size_t(place)])
                m_calendar.m_workdays.push_back(place + LocalClock::firstDay);
            else
                ++off;
            m_calendar.m_offBefore.push_back(off);
        }
    }

    // Kept on purpose: for breaks the first calendar that covers the date decides even when it is no
    // exception.
    void breaksOfExceptions()
    {
        const auto hasBreaks = [](const CalendarRecord &calendar) {
            return intervalCount(calendar.dayTimes) >= 2;
        };
        bool anyHasBreaks = false;
        forEachException(
            [&](const CalendarRecord &exception) { anyHasBreaks = anyHasBreaks || hasBreaks(exception); });
        if (!anyHasBreaks)
            return;
        m_calendar.m_breaksOfDay.assign(size_t(dayCount), 0);
        FirstCome dates;
        forEachException([&](const CalendarRecord &exception) {
            const bool own = hasBreaks(exception);
            int set = 0;
            dates.take(coveredDates(exception), [&](int place) {
                if (own && set == 0) {
                    set = int(m_calendar.m_breaks.size());
                    m_calendar.m_breaks.push_back(breaksOf(exception.dayTimes));
                }
                m_calendar.m_breaksOfDay[size_t(place)] = set;
            });
        });
    }

    void hoursOfExceptions()
    {
        // Begins minus ends of the ranges that add an hour, by hour and date.
        std::array<std::vector<int>, 24> added;
        quint32 addedHours = 0;
        forEachException([&](const CalendarRecord &exception) {
            if (!exception.isException)
                return;
            const quint32 mask = hoursMaskOf(exception.dayTimes);
            const Range range = coveredDates(exception);
            if (mask == 0 || range.first > range.last)
                return;
            addedHours |= mask;
            for (unsigned int hour = 0; hour < 24; ++hour) {
                if (!(mask >> hour & 1u))
                    continue;
                if (added[hour].empty())
                    added[hour].assign(size_t(dayCount) + 1, 0);
                ++added[hour][size_t(range.first)];
                --added[hour][size_t(range.last) + 1];
            }
        });
        if (addedHours == 0)
            return;
        m_calendar.m_extraHours.assign(size_t(dayCount), 0);
        for (unsigned int hour = 0; hour < 24; ++hour) {
            if (added[hour].empty())
                continue;
            int covering = 0;
            for (size_t place = 0; place < size_t(dayCount); ++place) {
                covering += added[hour][place];
                m_calendar.m_extraHours[place] |= quint32(covering > 0) << hour;
            }
        }
    }

    static quint32 hoursMask(int from, int to)
    {
        quint32 mask = 0;
        for (int hour = from; hour < std::min(to, 24); ++hour)
            mask |= 1u << unsigned(hour);
        return mask;
    }

    static quint32 hoursMaskOf(const QList<KWDayTime *> &hours)
    {
        quint32 mask = 0;
        for (const KWDayTime *interval : hours)
            if (interval)
                mask |= hoursMask(hourOf(interval->start), hourOf(interval->finish));
        return mask;
    }

    Breaks breaksOf(const QList<KWDayTime *> &hours) const
    {
        Breaks breaks;
        std::array<qint64, 25> change{};
        qint64 total = 0;
        forEachBreak(hours, [&](int from, int to) {
            total += to - from;
            ++change[size_t(from)];
            --change[size_t(to)];
        });
        breaks.hours = int(std::min<qint64>(total, 1000000000));
        qint64 covering = 0;
        for (int hour = 0; hour < 24; ++hour) {
            covering += change[size_t(hour)];
            const bool inside = hour >= m_calendar.m_startHour && hour < m_calendar.m_finishHour;
            breaks.secsBefore[size_t(hour) + 1] =
                breaks.secsBefore[size_t(hour)] + (inside ? covering * secsPerHour : 0);
            if (inside && covering == 0)
                breaks.freeHour[size_t(breaks.freeHours++)] = quint8(hour);
        }
        return breaks;
    }

    WorkCalendar &m_calendar;
    const Source &m_source;
};

WorkCalendar::WorkCalendar(const Source &source, std::shared_ptr<const LocalClock> clock)
    : m_clock(std::move(clock))
    , m_oldVersion(source.oldVersion)
    , m_roundUpFrom(source.oldVersion ? 40 : 30)
{
    WorkCalendarBuilder(*this, source).build();
}

quint64 WorkCalendar::digest(const Source &source)
{
    quint64 state = source.oldVersion ? 0x9e3779b97f4a7c15ULL : 0x2545f4914f6cdd1dULL;
    const auto mix = [&state](quint64 value) {
        state = (state ^ value) * 0xff51afd7ed558ccdULL;
        state ^= state >> 32;
    };
    const auto mixHours = [&mix](const QList<KWDayTime *> &hours) {
        mix(quint64(hours.size()));
        for (const KWDayTime *interval : hours)
            mix(interval ? (quint64(interval->start) << 32) | interval->finish : 0x8000000080000001ULL);
    };
    quint64 flags = 0;
    for (int weekday = 0; weekday < 7; ++weekday)
        flags |= quint64(source.workingDays[weekday]) << weekday;
    mix(flags);
    mixHours(source.hours);
    mix(quint64(source.exceptions.size()));
    for (int place = 0; place < source.exceptions.size(); ++place) {
        const CalendarRecord *exception = source.exceptions[place];
        if (!exception) {
            mix(4);
            continue;
        }
        // Dates that share their lower 32 bits lie eleven million years apart.
        const quint64 dates =
            quint64(exception->startDate.toJulianDay()) << 32 | quint32(exception->finishDate.toJulianDay());
        const quint64 kind = quint64(exception->isException) | quint64(exception->isWork) << 1 |
                             quint64(exception->dayTimes.size()) << 2;
        // One round for both: nearly all exceptions have no hours, and each round waits for the one before.
        mix(dates * 0x9e3779b97f4a7c15ULL + kind * 0xd6e8feb86659fd93ULL);
        if (!exception->dayTimes.isEmpty())
            mixHours(exception->dayTimes);
    }
    return state;
}
}
