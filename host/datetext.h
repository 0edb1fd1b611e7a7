#pragma once
#include "engine/record/codes.h"
#include "engine/time/shownmoment.h"
#include <QDateTime>
#include <QString>

class KWDocument;

// Dates, times of day and durations as people and files write them.
namespace datetext {

// A typed moment of the clock on the wall.
struct Moment
{
    QDate date;           // invalid: not given
    int secs = 0;         // since midnight, up to 86400
    bool hasTime = false; // false: a date alone

    bool isGiven() const { return date.isValid(); }
    QDateTime when() const; // one that a clock change skips is the first behind the gap
    shownmoment::Moment shown() const { return {LocalClock::dayOf(date), secs, hasTime}; }
};

struct Duration
{
    double value = 0;
    unsigned int unit = duration::Day;
};

constexpr double longestDurationDays = 40000; // past the library's range of dates

// ISO 8601 first, then the library's own date formats. False when the text is no date, or one outside
// 1970..2105.
bool parseMoment(const QString &text, Moment &moment);
// "3d", "1.5 weeks", "30min", "2mon"; a bare number counts in `bareUnit`. False for anything else.
bool parseDuration(const QString &text, Duration &duration, unsigned int bareUnit = duration::Day);
// "08:00" and "8" give seconds since midnight, up to 24:00; -1 when the text is no time of day.
int parseTimeOfDay(const QString &text);

// "3d", "12h", "0.5d": readable by parseDuration.
QString durationText(double value, unsigned int unit);
// "05 Jan", "5 Jan", "Mon 5 Jan", with the year behind them when asked for.
enum Style { Plain = 0, TwoDigitDay = 1, Weekday = 2, Year = 4 };
QString dateText(const QDate &date, int style);
// The same behind what the text holds.
void addDate(QString &text, const QDate &date, int style);
// "08:00"; a day's end at midnight reads "24:00".
QString timeText(int secsOfDay);
}
