#pragma once
#include "exchange/mspdi/codes.h"
#include "exchange/mspdi/values.h"
#include <QString>
#include <array>
#include <optional>
#include <vector>

// What a project XML file says, element by element, before anything is made of it.
//
// Only what a plan of ours has room for, or what is told when it is lost. Durations and work are minutes,
// money is as it stands in the file: amounts in hundredths, rates per hour.
namespace mspdi {

constexpr qint64 noUid = -1;

// From the first minute of the day to the last; the end of the day is 1440.
struct Interval
{
    int from = 0;
    int to = 0;
    friend bool operator==(const Interval &a, const Interval &b) { return a.from == b.from && a.to == b.to; }
};
using Hours = std::vector<Interval>;

// A weekday of a calendar, or in the older spelling (day type 0) dates that differ from it.
struct WeekDay
{
    int dayType = -1; // 1 Sunday .. 7 Saturday, 0 dates
    std::optional<bool> works;
    bool isWorking() const { return works.value_or(!hours.empty()); }
    Hours hours;
    Moment from;
    Moment to;
};

// Dates that differ from the week, once or again and again.
struct Exception
{
    QString name;
    int type = 1; // 1 every day from first to last, 2 to 7 recurring, see recurrence.h
    Moment from;
    Moment to;
    std::optional<bool> works;
    bool isWorking() const { return works.value_or(!hours.empty()); }
    Hours hours;
    bool countsOccurrences = false; // ends after so many of them, else with `to`
    qint64 occurrences = 0;
    qint64 period = 1;
    int daysOfWeek = 0; // one bit a weekday, Sunday first
    int month = 0;      // 0 January
    int monthDay = 0;
    int monthItem = 0;     // 0 day, 1 weekday, 2 day of the weekend, 3 Sunday .. 9 Saturday
    int monthPosition = 0; // 0 first .. 3 fourth, 4 last
};

struct Calendar
{
    qint64 uid = noUid;
    QString name;
    bool isBase = false;
    qint64 base = noUid;
    std::vector<WeekDay> week;  // each weekday at most once
    std::vector<WeekDay> dated; // exceptions in the older spelling
    std::vector<Exception> exceptions;
    int workWeeks = 0;
};

struct Link
{
    qint64 predecessor = noUid;
    int type = FinishToStart;
    double lag = 0; // tenths of a minute, or a percentage by the format
    int lagFormat = formatDays;
    bool isAcross = false; // leads into another file
    QString project;       // that file
};

struct Baseline
{
    int number = 0;
    Moment start;
    Moment finish;
    std::optional<double> cost;
};

struct Task
{
    qint64 uid = noUid;
    qint64 id = noUid;
    QString name;
    bool isNull = false;
    std::optional<int> level;
    int outlineDepth = -1; // of the outline number: 0 for "0", 2 for "1.4"; -1 without one
    int wbsDepth = -1;     // the same of a code that is a number like it
    Moment start;
    Moment finish;
    std::optional<double> minutes; // the length
    int durationFormat = 0;        // 0: not said
    std::optional<int> percent;
    std::optional<bool> isMilestone;
    bool isActive = true;
    bool isManual = false;
    bool isRecurring = false;
    bool isExternal = false;
    bool isSubproject = false;
    bool isSummary = false;
    int constraint = AsSoonAsPossible;
    Moment deadline;
    qint64 calendar = noUid;
    std::optional<int> priority;
    std::optional<double> cost;
    QString notes;
    QString startText; // what a manual task shows in place of a date
    QString finishText;
    QString durationText;
    QString hyperlink; // its title
    QString hyperlinkAddress;
    QString hyperlinkSubAddress;
    std::vector<Link> links;
    std::optional<Baseline> baseline; // number 0
    bool hasFurtherBaselines = false;
    bool hasTimephased = false;
};

struct Resource
{
    qint64 uid = noUid;
    qint64 id = noUid;
    QString name;
    bool isNull = false;
    int type = 1; // 0 material, 1 work, 2 cost
    bool isCost = false;
    std::optional<double> maxUnits;
    std::optional<double> standardRate;
    int standardFormat = 2;
    std::optional<double> overtimeRate;
    int overtimeFormat = 2;
    std::optional<double> costPerUse;
    QString group;
    QString email;
    QString notes;
    qint64 calendar = noUid;
    bool hasFurtherRates = false; // other tables, or rates that change with the date
    bool hasAvailability = false; // units that change with the date
};

struct Assignment
{
    qint64 uid = noUid;
    qint64 task = noUid;
    qint64 resource = noResource;
    std::optional<double> units;
    std::optional<double> work;
    std::optional<double> cost;
    double overtimeWork = 0;
    double delay = 0;
    int contour = 0;
    int rateTable = 0;
    bool hasTimephased = false;
};

// A value that could not be read, by its place in the lists below.
struct Spoilt
{
    enum List { OfProject, OfCalendar, OfTask, OfResource, OfAssignment };
    List list = OfProject;
    std::size_t place = 0;
    QString element;
    QString text;
};

struct File
{
    QString name;
    QString title;
    Moment start;
    Moment finish;
    bool isScheduledFromStart = true;
    qint64 calendar = noUid;
    std::optional<double> minutesPerDay;
    std::optional<double> minutesPerWeek;
    std::optional<double> daysPerMonth;
    int durationFormat = formatDays;
    std::vector<Calendar> calendars;
    std::vector<Task> tasks;
    std::vector<Resource> resources;
    std::vector<Assignment> assignments;

    std::vector<Spoilt> spoilt; // the first of them
    int spoiltCount = 0;
    int customValues = 0;  // custom fields and outline codes, which nothing here has room for
    int repeatedLists = 0; // lists of one kind after the first one, which are not read
};
}
