#pragma once
#include "exchange/mspdi/recurrence.h"
#include <QHash>
#include <array>
#include <vector>

// The calendars of a project XML file: what they say with all that they take from their bases.
namespace mspdi {

constexpr int daysPerWeek = 7;

struct DayHours
{
    bool isWorking = false;
    Hours hours; // in order, apart from each other; those of a working day are never empty
    friend bool operator==(const DayHours &a, const DayHours &b)
    {
        return a.isWorking == b.isWorking && a.hours == b.hours;
    }
};
using Week = std::array<DayHours, daysPerWeek>; // Monday first

struct DatedHours
{
    Dates dates;
    QString name;
    DayHours day;
    bool hasOwnHours = false; // else a working date has those of a usual day
};

// The working time of the project.
struct WorkingTime
{
    Week week;
    Hours usual;                        // of most working weekdays
    std::vector<DatedHours> exceptions; // the first one that covers a date decides
    // What became of the calendar that cannot be kept as it is.
    std::vector<int> otherWeekdays; // working ones with other hours, 0 Monday
    bool runsOverMidnight = false;
    int workWeeks = 0;
    int recurring = 0;    // exceptions that come again
    int cutRecurring = 0; // of those, with dates outside the plan or past the limit
    int spoilt = 0;       // exceptions without sound dates
    int dropped = 0;      // dated exceptions past the limit
};

// Looks calendars up by their UIDs.
class Calendars
{
public:
    explicit Calendars(const File &file);

    bool isEmpty() const { return m_calendars.empty(); }
    bool has(qint64 uid) const { return m_places.contains(uid); }
    // That of the project: the one the file names, else the first base calendar.
    qint64 project() const { return m_project; }
    // Recurring exceptions are taken as the dates between these two.
    WorkingTime workingTime(const Dates &span) const;
    // Whether a task or a resource with this calendar works at other times than the project.
    bool differs(qint64 uid);

private:
    const Calendar *find(qint64 uid) const;
    const Calendar *baseOf(const Calendar &calendar) const;
    Week weekOf(const Calendar &calendar, bool *runsOverMidnight = nullptr) const;
    bool hasSameDays(const Calendar &a, const Calendar &b) const;

    const std::vector<Calendar> &m_calendars;
    QHash<qint64, int> m_places;
    qint64 m_project = noUid;
    QHash<qint64, bool> m_differs;
};

// Minutes of work between moments, by a table of all dates.
class WorkMinutes
{
public:
    WorkMinutes(const Week &week, const std::vector<DatedHours> &exceptions);

    // 0 when the first does not come before the second.
    qint64 between(const Moment &from, const Moment &to) const;
    bool isWorkday(int day) const;

private:
    static std::size_t index(int day);
    qint64 before(const Moment &moment) const;
    const Hours &hoursOf(int day) const;

    std::vector<Hours> m_hours;       // the seven weekdays, then those of exceptions
    std::vector<int> m_hoursOfDay;    // places in m_hours; -1 for a day off
    std::vector<int> m_minutesBefore; // a date, one more than there are dates
};

// In order, joined where they touch, without empty ones; 00:00-00:00 is the whole day. One that ends before
// it begins runs over midnight: both parts are taken on the same date, and `runsOverMidnight` says so.
Hours soundHours(const Hours &hours, bool &runsOverMidnight);
int minutesOf(const Hours &hours);
}
