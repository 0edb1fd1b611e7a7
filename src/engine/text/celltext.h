#pragma once
#include "engine/record/outline.h"
#include <QDateTime>
#include <QString>

namespace worktime {
class WorkCalendar;
}

// A task's values as texts, for the table on the screen and for workbooks.
namespace celltext {

struct Style
{
    QString dateFormat;
    bool linkAddresses = false; // hyperlinks by address, else by name
};

// What the texts need of a plan beside the task itself. Each is asked for only where a column shows it.
class Plan
{
public:
    virtual ~Plan() = default;
    virtual outline::Tasks outline() const = 0;
    virtual const worktime::WorkCalendar &calendar() const = 0;
    virtual QString priorityName(int priority) const = 0; // shown behind the number
    virtual QString hyperlinks(const TaskRecord &task, bool addresses) const = 0;
    virtual QString predecessors(const TaskRecord &task) const = 0; // as the table numbers its rows
};

// A stored moment as users see it: a start as it is, a finish as the last minute before it.
QDateTime shownDateTime(const worktime::WorkCalendar &calendar, quint32 secs, bool start);
// The same as date and time alone: the zone of the result is UTC. Quicker.
QDateTime shownMoment(const worktime::WorkCalendar &calendar, quint32 secs, bool start);
// The text of one column type; empty for a type that there is not.
QString ofType(const Plan &plan, const TaskRecord &task, int type, const Style &style);
}
