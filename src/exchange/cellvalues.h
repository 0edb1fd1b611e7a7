#pragma once
#include "exchange/sheetrows.h"
#include <QDateTime>
#include <array>
#include <optional>

// What an imported cell means; knows neither a document nor a kind of workbook.
//
// Nothing is answered where a cell cannot be read, and nobody writes numbers, dates and units longer than
// `maxUnits`.
namespace cellvalues {

using sheetrows::Cell;

constexpr int maxUnits = 255; // of UTF-16

// The first number of the cell, whatever stands around it; always finite.
std::optional<double> number(const Cell &cell);
// The same, cut to a whole number.
std::optional<qint64> whole(const Cell &cell);
// "50%" is 0.5, and so is the number 0.5: programs store typed percentages as fractions.
std::optional<double> fraction(const Cell &cell);

// Money for a unit of time, "1,200/h".
struct Rate
{
    double money = 0;
    QString unit; // from the last slash on; empty without one
};
std::optional<Rate> rate(const Cell &cell);

// Names of the units of time, short and long.
struct UnitNames
{
    std::array<QString, 7> shortNames;
    std::array<QString, 7> longNames;
};
// The unit whose name the text ends with: all letters behind the number, in any case.
std::optional<unsigned int> unit(const QString &text, const UnitNames &names);

// The moment of a day number; workbooks of the other date system count from 1 January 1904.
// 2.5 is noon of 1 January 1900. Invalid outside the years that a date can have.
QDateTime momentOfDayNumber(double dayNumber, bool is1904);
// A day number or a date text in one of the program's formats; only moments that a task can have, from 1970
// to 2106.
std::optional<QDateTime> moment(const Cell &cell, bool is1904);
}
