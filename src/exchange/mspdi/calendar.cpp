#include "exchange/mspdi/calendar.h"
#include "engine/time/localclock.h"
#include <algorithm>
#include <numeric>

namespace mspdi {
namespace {

constexpr int minutesPerDay = 24 * 60;
constexpr int dayCount = LocalClock::lastDay - LocalClock::firstDay + 1;

const Hours &officeHours()
{
    static const Hours hours{{8 * 60, 12 * 60}, {13 * 60, 17 * 60}};
    return hours;
}

// Monday first, from Sunday as 1.
int weekdayOfType(int dayType)
{
    return (dayType + 5) % daysPerWeek;
}

// Which dates are taken. Those that are, are passed over in a few steps, however many ranges lie over them.
class TakenDates
{
public:
    TakenDates()
        : m_next(std::size_t(dayCount) + 1)
    {
        std::iota(m_next.begin(), m_next.end(), 0);
    }

    void take(const Dates &dates)
    {
        take(dates, [](int) {});
    }
    // Calls visit(place) for each date that was free.
    template <typename Visit>
    void take(const Dates &dates, Visit visit)
    {
        const int last = std::min(dates.last, LocalClock::lastDay) - LocalClock::firstDay;
        int place = free(std::max(dates.first, LocalClock::firstDay) - LocalClock::firstDay);
        for (; place <= last; place = free(place + 1)) {
            m_next[std::size_t(place)] = place + 1;
            visit(place);
        }
    }
    bool hasAll(const Dates &dates)
    {
        const int first =
            std::clamp(dates.first, LocalClock::firstDay, LocalClock::lastDay) - LocalClock::firstDay;
        return free(first) > dates.last - LocalClock::firstDay;
    }

private:
    int free(int place)
    {
        int root = place;
        while (m_next[std::size_t(root)] != root)
            root = m_next[std::size_t(root)];
        while (m_next[std::size_t(place)] != root)
            place = std::exchange(m_next[std::size_t(place)], root);
        return root;
    }
    std::vector<int> m_next;
};

// One after the other where they follow each other.
std::vector<Dates> joined(const std::vector<Dates> &dates)
{
    std::vector<Dates> result;
    for (const Dates &each : dates) {
        if (!result.empty() && result.back().last + 1 == each.first)
            result.back().last = each.last;
        else
            result.push_back(each);
    }
    return result;
}

Hours commonest(const Week &week)
{
    const DayHours *best = nullptr;
    std::ptrdiff_t bestCount = 0;
    for (const DayHours &day : week) {
        const std::ptrdiff_t count = day.isWorking ? std::count(week.begin(), week.end(), day) : 0;
        if (count > bestCount) {
            best = &day;
            bestCount = count;
        }
    }
    return best ? best->hours : officeHours();
}

bool isSameDay(const WeekDay &a, const WeekDay &b)
{
    return a.dayType == b.dayType && a.isWorking() == b.isWorking() && a.hours == b.hours &&
           a.from == b.from && a.to == b.to;
}

bool isSameException(const Exception &a, const Exception &b)
{
    return a.type == b.type && a.from == b.from && a.to == b.to && a.isWorking() == b.isWorking() &&
           a.hours == b.hours && a.occurrences == b.occurrences && a.period == b.period &&
           a.daysOfWeek == b.daysOfWeek && a.month == b.month && a.monthDay == b.monthDay &&
           a.monthItem == b.monthItem && a.monthPosition == b.monthPosition;
}
}

int minutesOf(const Hours &hours)
{
    int sum = 0;
    for (const Interval &interval : hours)
        sum += interval.to - interval.from;
    return sum;
}

Hours soundHours(const Hours &hours, bool &runsOverMidnight)
{
    Hours sound;
    for (Interval interval : hours) {
        if (interval.to == 0)
            interval.to = minutesPerDay;
        if (interval.to < interval.from) {
            runsOverMidnight = true;
            sound.push_back({0, interval.to});
            interval.to = minutesPerDay;
        }
        if (interval.from < interval.to)
            sound.push_back(interval);
    }
    std::sort(sound.begin(), sound.end(),
              [](const Interval &a, const Interval &b) { return a.from < b.from; });
    Hours result;
    for (const Interval &interval : sound) {
        if (!result.empty() && interval.from <= result.back().to)
            result.back().to = std::max(result.back().to, interval.to);
        else
            result.push_back(interval);
    }
    return result;
}

// ---- Calendars --------------------------------------------------------------------------------------------

Calendars::Calendars(const File &file)
    : m_calendars(file.calendars)
{
    m_places.reserve(int(m_calendars.size()));
    for (int i = int(m_calendars.size()) - 1; i >= 0; --i)
        m_places.insert(m_calendars[std::size_t(i)].uid, i);
    m_project = file.calendar;
    if (m_calendars.empty() || m_places.contains(m_project))
        return;
    const auto base = std::find_if(m_calendars.begin(), m_calendars.end(),
                                   [](const Calendar &calendar) { return calendar.isBase; });
    m_project = (base != m_calendars.end() ? *base : m_calendars.front()).uid;
}

const Calendar *Calendars::find(qint64 uid) const
{
    const auto found = m_places.constFind(uid);
    return found == m_places.constEnd() ? nullptr : &m_calendars[std::size_t(*found)];
}

// Newer planners write 0 for the base of a calendar that has none.
const Calendar *Calendars::baseOf(const Calendar &calendar) const
{
    return calendar.isBase || calendar.base < 0 || calendar.base == calendar.uid ? nullptr
                                                                                 : find(calendar.base);
}

Week Calendars::weekOf(const Calendar &calendar, bool *runsOverMidnight) const
{
    constexpr int longestChain = 100; // more, and rings, are no calendars
    Week week;
    std::array<bool, daysPerWeek> isSaid{};
    bool overMidnight = false;
    int left = longestChain;
    for (const Calendar *each = &calendar; each && left > 0; each = baseOf(*each), --left) {
        for (const WeekDay &day : each->week) {
            const std::size_t weekday = std::size_t(weekdayOfType(day.dayType));
            if (std::exchange(isSaid[weekday], true))
                continue;
            week[weekday].isWorking = day.isWorking();
            if (day.isWorking())
                week[weekday].hours = soundHours(day.hours, overMidnight);
            if (day.isWorking() && week[weekday].hours.empty())
                week[weekday].hours = officeHours();
        }
    }
    constexpr std::size_t saturday = 5;
    for (std::size_t weekday = 0; weekday < saturday; ++weekday) {
        if (!isSaid[weekday])
            week[weekday] = {true, officeHours()};
    }
    if (runsOverMidnight)
        *runsOverMidnight = overMidnight;
    return week;
}

WorkingTime Calendars::workingTime(const Dates &span) const
{
    constexpr std::size_t maxRecurring = 1000;
    constexpr std::size_t maxDated = 10000;
    constexpr std::size_t maxExpanded = 200000; // dates of recurring exceptions, inside the plan or not
    constexpr int longestChain = 100;

    WorkingTime result;
    const Calendar *const calendar = find(m_project);
    result.week = weekOf(calendar ? *calendar : Calendar(), &result.runsOverMidnight);
    result.usual = commonest(result.week);
    for (int weekday = 0; weekday < daysPerWeek; ++weekday) {
        const DayHours &day = result.week[std::size_t(weekday)];
        if (day.isWorking && !(day.hours == result.usual))
            result.otherWeekdays.push_back(weekday);
    }

    std::size_t expanded = 0;
    std::size_t recurringDates = 0;
    std::size_t dated = 0;
    const auto add = [&](const Dates &dates, const QString &name, bool isWorking, const Hours &hours) {
        DatedHours entry;
        entry.dates = dates;
        entry.name = name;
        entry.day.isWorking = isWorking;
        if (isWorking)
            entry.day.hours = soundHours(hours, result.runsOverMidnight);
        entry.hasOwnHours = isWorking && !entry.day.hours.empty() && !(entry.day.hours == result.usual);
        if (isWorking && entry.day.hours.empty())
            entry.day.hours = result.usual;
        result.exceptions.push_back(entry);
    };
    const auto addRecurring = [&](const Exception &exception, const std::vector<Dates> &dates) {
        ++result.recurring;
        bool isCut = expanded >= maxExpanded;
        std::vector<Dates> inside;
        for (const Dates &each : dates) {
            if (each.last < span.first || each.first > span.last)
                isCut = true;
            else
                inside.push_back(each);
        }
        for (const Dates &each : joined(inside)) {
            if (recurringDates >= maxRecurring) {
                isCut = true;
                break;
            }
            recurringDates += std::size_t(each.last - each.first + 1);
            add(each, exception.name, exception.isWorking(), exception.hours);
        }
        result.cutRecurring += isCut;
    };

    TakenDates taken;
    int left = longestChain;
    for (const Calendar *each = calendar; each && left > 0; each = baseOf(*each), --left) {
        result.workWeeks += each->workWeeks;
        for (const Exception &exception : each->exceptions) {
            const std::vector<Dates> dates = datesOf(exception, LocalClock::lastDay, maxExpanded - expanded);
            const bool isRange = exception.type <= DailyRange || exception.type > Daily;
            if (!isRange)
                expanded += dates.size();
            for (const Dates &one : dates)
                taken.take(one);
            if (!isRange)
                addRecurring(exception, dates);
            else if (dates.empty())
                ++result.spoilt;
            else if (dated++ < maxDated)
                add(dates.front(), exception.name, exception.isWorking(), exception.hours);
            else
                ++result.dropped;
        }
        // The older spelling says the same again, recurring ones date by date.
        for (const WeekDay &day : each->dated) {
            const Dates dates{day.from.day, day.to.isSet() ? day.to.day : day.from.day};
            if (!day.from.isSet() || dates.last < dates.first) {
                ++result.spoilt;
                continue;
            }
            if (!each->exceptions.empty() && taken.hasAll(dates))
                continue;
            if (dated++ < maxDated)
                add(dates, QString(), day.isWorking(), day.hours);
            else
                ++result.dropped;
        }
    }
    return result;
}

bool Calendars::hasSameDays(const Calendar &a, const Calendar &b) const
{
    return weekOf(a) == weekOf(b) && a.workWeeks == b.workWeeks &&
           std::equal(a.dated.begin(), a.dated.end(), b.dated.begin(), b.dated.end(), isSameDay) &&
           std::equal(a.exceptions.begin(), a.exceptions.end(), b.exceptions.begin(), b.exceptions.end(),
                      isSameException);
}

bool Calendars::differs(qint64 uid)
{
    // Up the chain to a calendar that is known, then down again.
    std::vector<qint64> chain;
    bool isOther = false;
    for (;;) {
        const Calendar *const calendar = find(uid);
        if (!calendar || uid == m_project)
            break;
        const auto known = m_differs.constFind(uid);
        if (known != m_differs.constEnd()) {
            isOther = *known;
            break;
        }
        chain.push_back(uid);
        m_differs.insert(uid, false); // where the chain is a ring
        const Calendar *const base = baseOf(*calendar);
        if (!base) {
            const Calendar *const project = find(m_project);
            isOther = !project || !hasSameDays(*calendar, *project);
            break;
        }
        uid = base->uid;
    }
    for (auto each = chain.rbegin(); each != chain.rend(); ++each) {
        const Calendar &calendar = *find(*each);
        const Calendar *const base = baseOf(calendar);
        isOther = isOther || (base && (!calendar.exceptions.empty() || !calendar.dated.empty() ||
                                       calendar.workWeeks > 0 || !(weekOf(calendar) == weekOf(*base))));
        m_differs.insert(*each, isOther);
    }
    return isOther;
}

// ---- Minutes ----------------------------------------------------------------------------------------------

WorkMinutes::WorkMinutes(const Week &week, const std::vector<DatedHours> &exceptions)
    : m_hoursOfDay(std::size_t(dayCount))
    , m_minutesBefore(std::size_t(dayCount) + 1)
{
    constexpr int dayOff = -1;
    for (const DayHours &day : week)
        m_hours.push_back(day.hours);
    for (int place = 0; place < dayCount; ++place) {
        const int weekday = LocalClock::weekday(place + LocalClock::firstDay);
        m_hoursOfDay[std::size_t(place)] = week[std::size_t(weekday)].isWorking ? weekday : dayOff;
    }
    TakenDates taken;
    for (const DatedHours &exception : exceptions) {
        const int hours = exception.day.isWorking ? int(m_hours.size()) : dayOff;
        m_hours.push_back(exception.day.hours);
        taken.take(exception.dates, [&](int place) { m_hoursOfDay[std::size_t(place)] = hours; });
    }
    std::vector<int> minutes;
    for (const Hours &hours : m_hours)
        minutes.push_back(minutesOf(hours));
    for (std::size_t place = 0; place < m_hoursOfDay.size(); ++place) {
        const int hours = m_hoursOfDay[place];
        m_minutesBefore[place + 1] = m_minutesBefore[place] + (hours < 0 ? 0 : minutes[std::size_t(hours)]);
    }
}

std::size_t WorkMinutes::index(int day)
{
    return std::size_t(std::clamp(day, LocalClock::firstDay, LocalClock::lastDay) - LocalClock::firstDay);
}

const Hours &WorkMinutes::hoursOf(int day) const
{
    static const Hours none;
    const int hours = m_hoursOfDay[index(day)];
    return hours < 0 ? none : m_hours[std::size_t(hours)];
}

bool WorkMinutes::isWorkday(int day) const
{
    return m_hoursOfDay[index(day)] >= 0;
}

qint64 WorkMinutes::before(const Moment &moment) const
{
    qint64 sum = m_minutesBefore[index(moment.day)];
    for (const Interval &interval : hoursOf(moment.day))
        sum += std::clamp(moment.minute, interval.from, interval.to) - interval.from;
    return sum;
}

qint64 WorkMinutes::between(const Moment &from, const Moment &to) const
{
    return std::max<qint64>(0, before(to) - before(from));
}
}
