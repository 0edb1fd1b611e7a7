#pragma once
#include "engine/record/codes.h"
#include "engine/time/shownmoment.h"
#include "exchange/sheetrows.h"
#include "kwgantt_export.h"
#include <QDate>
#include <array>
#include <optional>

// What a cell or a typed text means; knows neither a document nor a kind of file.
//
// Nothing is answered where a text cannot be read, and nobody writes numbers, dates and units longer than
// `maxUnits`. Digits of all scripts count.
namespace cellvalues {

using sheetrows::Cell;

constexpr int maxUnits = 255; // of UTF-16

// ---- Numbers ----------------------------------------------------------------------------------------------

// What a comma in a text stands for.
enum class Comma {
    Groups, // nothing: it groups digits, wherever it stands
    Decimal // the decimal point, where there is one and it does not look like a group of three
};

// Digits of other scripts as plain ones.
KWGANTT_EXPORT QString withPlainDigits(const QString &text);
// A finite number. Commas that group: the first one of the text, whatever stands around it; else the whole
// text.
KWGANTT_EXPORT std::optional<double> number(const Cell &cell, Comma comma = Comma::Groups);
// The same, cut to a whole number.
std::optional<qint64> whole(const Cell &cell, Comma comma = Comma::Groups);
// "50%" is 0.5; a number without the sign is itself, as programs store typed percentages.
KWGANTT_EXPORT std::optional<double> fraction(const Cell &cell, Comma comma = Comma::Groups);
bool hasPercentSign(const Cell &cell);
// Whether a spreadsheet's code of a number format shows percentages: a sign that is not quoted.
bool showsPercent(const QString &formatCode);
// Whether a comma in the text does not stand before three digits, so that it may have been a decimal point.
bool hasOddComma(const Cell &cell);

// Money for a unit of time, "1,200/h".
struct Rate
{
    double money = 0;
    QString unit; // "/h", without blanks; empty without one
};
KWGANTT_EXPORT std::optional<Rate> rate(const Cell &cell, Comma comma = Comma::Groups);

// What rates count in: 0 minute, 1 hour, 2 day, 3 week, 4 month.
struct CostUnit
{
    int unit = 1;
    double parts = 1; // of the unit that was called, which may be longer than a month
};
// "min", "h", "d", "w" and "m", else as unitCalled().
KWGANTT_EXPORT std::optional<CostUnit> costUnitCalled(const QString &word);
KWGANTT_EXPORT QString costUnitText(int unit); // empty for one that there is not
// 0 work, 1 material, in English, German or Chinese; -1 for any other word.
KWGANTT_EXPORT int resourceTypeCalled(const QString &word);

// ---- Lengths of time --------------------------------------------------------------------------------------

// Names of the units of time, short and long, as the program shows them.
struct UnitNames
{
    std::array<QString, 7> shortNames;
    std::array<QString, 7> longNames;
};
// The unit whose name the text ends with: all letters behind the number, in any case.
std::optional<unsigned int> unit(const QString &text, const UnitNames &names);
// The unit that people call so in English, German or Chinese, singular or plural, in any case.
KWGANTT_EXPORT std::optional<unsigned int> unitCalled(const QString &word);

struct Length
{
    double value = 0;
    unsigned int unit = duration::Day;
    bool isUnitKnown = true;
};
// "3d", "1.5 weeks", "1,5 w", "30min", "2mon?"; a bare number counts in `bareUnit`, one with a word that is
// no unit in days. "1,234d" is refused, since the comma may mean either.
KWGANTT_EXPORT std::optional<Length> length(const QString &text, const UnitNames &names,
                                            unsigned int bareUnit);

// ---- Moments ----------------------------------------------------------------------------------------------

struct Moment
{
    shownmoment::Moment shown;
    // Two numbers that may be day and month or month and day; `shown` takes the month first where that is a
    // date.
    bool isEither = false;
    int first = 0;
    int second = 0;
    int year = 0;
};
// The same with the other of the two as the month; nothing when that is no date.
std::optional<Moment> withDayFirst(const Moment &moment);
std::optional<Moment> withMonthFirst(const Moment &moment);

// 2026-02-28, 2026-2-28T17:00, 2/28/2026, 28.02.26, 28 Feb 2026, Feb 28, 2026, 2026年2月28日, with a time or
// without one, then the program's own formats. A moment with a zone is turned into local time. Only dates
// from 1970 to 2105.
KWGANTT_EXPORT std::optional<Moment> momentOfText(const QString &text);
// The usual form of it without a pattern's cost, yyyy-MM-dd or with hh:mm behind a T or a blank; nothing for
// any other.
std::optional<Moment> plainIso(const QString &text);
// The moment of a day number; workbooks of the other date system count from 1 January 1904.
// 2.5 is noon of 1 January 1900. Invalid outside the years that a date can have.
std::optional<shownmoment::Moment> momentOfDayNumber(double dayNumber, bool is1904);
// Either; a text is no day number.
std::optional<Moment> moment(const Cell &cell, bool is1904);
// "08:00" and "8" give seconds since midnight, up to 24:00; -1 when the text is no time of day.
KWGANTT_EXPORT int timeOfDay(const QString &text);
}
