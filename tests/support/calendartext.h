#pragma once
#include "engine/time/worktime.h"
#include "schedule/kwcalendar.h"
#include <QDate>
#include <QString>
#include <memory>
#include <random>

// A working calendar written as text, parts separated by ";":
//   Mon-Fri 8-12 13-17:30; off 2024-05-01..2024-05-03; work 2024-05-04 8-12; plain 2024-06-10 8-10 11-17; old
// First the days ("Mon+Wed-Fri", "all", "none") and hours of the week. "off" and "work" are exceptions,
// "plain" is a calendar without the exception flag; each has its dates and its own hours. "old" sets the
// old-version flag, "start 2024-03-04" the date at which a project starts.
class CalendarText
{
public:
    explicit CalendarText(const QString &text);
    ~CalendarText();
    CalendarText(const CalendarText &) = delete;
    CalendarText &operator=(const CalendarText &) = delete;

    worktime::Source source() const { return {workingDays, hours, exceptions, oldVersion}; }
    worktime::WorkCalendar compile() const { return worktime::WorkCalendar(source(), LocalClock::current()); }

    bool workingDays[7] = {};
    QList<KWDayTime *> hours;
    QList<KWCalendar *> exceptions;
    bool oldVersion = false;
    QDate start;
};

// "2024-05-01 08:30" in local time, as seconds since 1970; the time may be missing, and may have seconds.
quint32 secsOf(const char *text);
// "Wed 2024-05-01 08:30", with ":ss" only where they are not 0.
QString textOf(quint32 secs);

// What random calendars are made of.
enum class Hours {
    whole, // on full hours, neighbours in order: every day's span less its breaks is its work
    any,   // also part hours, none, equal, reversed and shorter than an hour, and exceptions with hours
};
// Exceptions lie in 2024; every date that works has an hour without a break.
QString randomCalendar(std::mt19937 &random, Hours hours);
// A moment of 2024, often a midnight or on the minute, sometimes at a clock change.
quint32 randomMoment(std::mt19937 &random);
