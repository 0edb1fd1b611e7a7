#include "exchange/mspdi/recurrence.h"
#include "engine/time/localclock.h"
#include <QDate>
#include <algorithm>

namespace mspdi {
namespace {

constexpr int saturday = 5; // as LocalClock counts weekdays, Monday first
constexpr int sunday = 6;

struct Month
{
    int first = 0; // its first day
    int length = 0;
};

// The month `count` months after the one that `day` lies in.
Month monthAfter(int day, int count)
{
    const QDate date = LocalClock::dateOf(day);
    const QDate first = QDate(date.year(), date.month(), 1).addMonths(count);
    return {LocalClock::dayOf(first), first.daysInMonth()};
}

bool isItem(int day, int item)
{
    const int weekday = LocalClock::weekday(day);
    switch (item) {
    case 0:
        return true;
    case 1:
        return weekday < saturday;
    case 2:
        return weekday >= saturday;
    default:
        return weekday == (item == 3 ? sunday : item - 4);
    }
}

// The day of the month that the exception names; -1 when this month has none.
int dayInMonth(const Exception &exception, const Month &month, bool byPosition)
{
    if (!byPosition)
        return exception.monthDay >= 1 && exception.monthDay <= month.length
                   ? month.first + exception.monthDay - 1
                   : -1;
    constexpr int last = 4;
    int left = exception.monthPosition;
    if (left == last) {
        for (int day = month.first + month.length - 1; day >= month.first; --day) {
            if (isItem(day, exception.monthItem))
                return day;
        }
        return -1;
    }
    for (int day = month.first; day < month.first + month.length; ++day) {
        if (isItem(day, exception.monthItem) && left-- == 0)
            return day;
    }
    return -1;
}

class Expansion
{
public:
    Expansion(const Exception &exception, int lastDay, std::size_t most)
        : m_exception(exception)
        , m_first(exception.from.day)
        , m_most(most)
        , m_last(std::min(lastDay, LocalClock::lastDay - 1))
    {
        // A count ends it, and so does the last date, whichever the planner wrote down.
        if (exception.countsOccurrences && exception.occurrences > 0)
            m_most = std::size_t(std::min<qint64>(qint64(most), exception.occurrences));
        else if (exception.to.isSet())
            m_last = std::min(m_last, exception.to.day);
        m_period = int(std::clamp<qint64>(exception.period, 1, LocalClock::lastDay));
    }

    std::vector<Dates> dates()
    {
        switch (m_exception.type) {
        case Daily:
            for (qint64 day = m_first; add(day); day += m_period)
                ;
            break;
        case Weekly:
            weeks();
            break;
        case MonthlyByDay:
            months(m_period, monthOf(m_first), false);
            break;
        case MonthlyByPosition:
            months(m_period, monthOf(m_first), true);
            break;
        case YearlyByDay:
            months(monthsPerYear, m_exception.month, false);
            break;
        case YearlyByPosition:
            months(monthsPerYear, m_exception.month, true);
            break;
        default:
            break;
        }
        return std::move(m_dates);
    }

private:
    static constexpr int monthsPerYear = 12;

    static int monthOf(int day) { return LocalClock::dateOf(day).month() - 1; }

    // False when there is no more room, or the date is too late.
    bool add(qint64 day)
    {
        if (day > m_last || m_dates.size() >= m_most)
            return false;
        if (day >= m_first)
            m_dates.push_back({int(day), int(day)});
        return true;
    }
    // Every so many weeks, which begin on Sunday, on some of their days.
    void weeks()
    {
        constexpr int daysPerWeek = 7;
        if ((m_exception.daysOfWeek & 0x7f) == 0)
            return;
        const int sinceSunday = (LocalClock::weekday(m_first) + 1) % daysPerWeek;
        for (qint64 week = m_first - sinceSunday;; week += qint64(m_period) * daysPerWeek) {
            for (int i = 0; i < daysPerWeek; ++i) {
                if ((m_exception.daysOfWeek >> i & 1) && !add(week + i))
                    return;
            }
        }
    }
    void months(int step, int month, bool byPosition)
    {
        const int offset = std::clamp(month, 0, monthsPerYear - 1) - monthOf(m_first);
        for (int i = offset;; i += step) {
            const Month at = monthAfter(m_first, i);
            if (at.first > m_last)
                return;
            const int day = dayInMonth(m_exception, at, byPosition);
            if (day >= 0 && !add(day))
                return;
        }
    }

    const Exception &m_exception;
    const int m_first;
    std::size_t m_most;
    int m_last;
    int m_period = 1;
    std::vector<Dates> m_dates;
};
}

std::vector<Dates> datesOf(const Exception &exception, int lastDay, std::size_t most)
{
    if (!exception.from.isSet() || most == 0)
        return {};
    if (exception.type <= DailyRange || exception.type > Daily) {
        const int last = exception.to.isSet() ? exception.to.day : exception.from.day;
        return last < exception.from.day ? std::vector<Dates>()
                                         : std::vector<Dates>{{exception.from.day, last}};
    }
    return Expansion(exception, lastDay, most).dates();
}
}
