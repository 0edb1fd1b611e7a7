#pragma once
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

// A start never stands in a break, a finish belongs to the day that it ends.
Clock startOf(const Plan &plan, quint32 secs);
Clock finishOf(const Plan &plan, quint32 secs);
// An end that the library gives as the beginning of the next working day or half day.
Clock endOf(const Plan &plan, quint32 secs);
// The shown starts and finishes of all tasks as they stand.
//
// A milestone is one moment, and the end of one working day is the beginning of the next: it is shown where
// the task that it waits for ends, or where its file put it.
class Times
{
public:
    explicit Times(const Plan &plan);
    const Clock &start(int pos) const { return m_starts[std::size_t(pos)]; }
    const Clock &finish(int pos) const { return m_finishes[std::size_t(pos)]; }

    // Where nothing is to spare they are the dates themselves.
    Clock lateStart(int pos) const;
    Clock lateFinish(int pos) const;

private:
    void showSummaries();

    const Plan &m_plan;
    std::vector<Clock> m_starts;
    std::vector<Clock> m_finishes;
};
}
