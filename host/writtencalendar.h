#pragma once
#include "datetext.h"
#include "exchange/stagedplan.h"
#include <QByteArray>
#include <QString>

class Findings;
class KWDocument;

// A plan's working time as the user gives it, in a calendar file or by options.
struct WorkingTime : staged::Calendar
{
    using Interval = staged::Interval;
    using Exception = staged::CalendarException;

    WorkingTime() { hours = {{8 * 3600, 12 * 3600}, {13 * 3600, 17 * 3600}}; }

    QString projectName;    // empty: not given
    datetext::Moment start; // of the project; invalid: not given

    bool hasWorkday() const;
    // Whole hours of a working day, as the library counts them.
    int hoursPerDay() const;
};

namespace writtencalendar {

constexpr int largestFileBytes = 16 * 1024 * 1024;
constexpr int mostExceptions = 10000;

// A calendar file. False with a sentence in `error` when it cannot be used; what it says and the library
// cannot follow is added to `warnings`.
bool read(const QByteArray &json, WorkingTime &result, Findings &warnings, QString &error);

// A calendar file that read() takes back.
QByteArray toJson(const WorkingTime &workingTime);

// "Mon-Fri", "Mon-Thu,Sat", "none"; "08:00-12:00,13:00-17:00"; "2026-12-25" or "2026-12-24..2026-12-31".
bool parseDays(const QString &text, WorkingTime &result);
bool parseHours(const QString &text, WorkingTime &result);
// What is wrong with such hours; empty when parseHours() takes them.
QString hoursFault(const QString &text);
bool parseHoliday(const QString &text, WorkingTime &result);

// A document's working time; the names and the start of the project are not part of it.
// planimport::setCalendar puts it back.
WorkingTime of(const KWDocument &document);
// "Mon-Fri 08:00-12:00 13:00-17:00".
QString describe(const WorkingTime &workingTime);
}
