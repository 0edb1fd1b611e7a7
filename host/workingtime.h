#pragma once
#include "datetext.h"
#include <QByteArray>
#include <QDate>
#include <QString>
#include <array>
#include <vector>

class Findings;
class KWDocument;

// A plan's working time as the user gives it, in a calendar file or by options.
struct WorkingTime
{
    struct Interval
    {
        int startSecs;  // since midnight
        int finishSecs; // up to 86400
        bool operator==(const Interval &other) const
        {
            return startSecs == other.startSecs && finishSecs == other.finishSecs;
        }
    };
    struct Exception
    {
        QDate from;
        QDate to; // inclusive
        bool works;
        QString name;
    };

    std::array<bool, 7> week{{true, true, true, true, true, false, false}}; // Monday first
    std::vector<Interval> hours{{8 * 3600, 12 * 3600}, {13 * 3600, 17 * 3600}};
    std::vector<Exception> exceptions; // the first one that covers a date decides
    QString projectName;               // empty: not given
    datetext::Moment start;            // of the project; invalid: not given

    bool hasWorkday() const;
    // Whole hours of a working day, as the library counts them.
    int hoursPerDay() const;
};

namespace workingtime {

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
bool parseHoliday(const QString &text, WorkingTime &result);

void apply(const WorkingTime &workingTime, KWDocument &document);
// "Mon-Fri 08:00-12:00 13:00-17:00".
QString describe(const WorkingTime &workingTime);
}
