#pragma once
#include "engine/text/showndates.h"
#include "plan.h"
#include <QDate>
#include <vector>

// What the clock on the wall says for a plan's moments.
namespace shown {

struct Clock
{
    QDate date;
    int secs = 0; // since midnight; a day that ends at midnight ends at 86400

    bool operator==(const Clock &other) const { return date == other.date && secs == other.secs; }
    bool operator!=(const Clock &other) const { return !(*this == other); }
    bool operator<(const Clock &other) const
    {
        return date != other.date ? date < other.date : secs < other.secs;
    }
    // "2026-01-05T08:00", readable as a start or a finish again.
    QString iso() const;
    QString text() const; // "13 Mar 2026 17:00"
};

Clock clockOf(const ShownDates::Moment &moment);
// A start never stands in a break, a finish belongs to the day that it ends.
Clock startOf(const Plan &plan, quint32 secs);
Clock finishOf(const Plan &plan, quint32 secs);
// An end that the library gives as the beginning of the next working day or half day.
Clock endOf(const Plan &plan, quint32 secs);
// The shown starts and finishes of all tasks as they stand, see ShownDates.
class Times
{
public:
    explicit Times(const Plan &plan);
    Clock start(int pos) const { return clockOf(m_dates.start(pos)); }
    Clock finish(int pos) const { return clockOf(m_dates.finish(pos)); }
    // Days since 1970-01-01.
    int startDay(int pos) const { return m_dates.start(pos).day; }
    int finishDay(int pos) const { return m_dates.finish(pos).day; }
    // Where nothing is to spare they are the dates themselves.
    Clock lateStart(int pos) const { return clockOf(m_dates.lateStart(pos)); }
    Clock lateFinish(int pos) const { return clockOf(m_dates.lateFinish(pos)); }

private:
    const ShownDates m_dates;
};
}
