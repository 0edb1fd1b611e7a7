#pragma once
#include <QString>
#include <string>

// An unpacked workbook, looked at with nothing but the rules of its format.
namespace xlsxcheck {

// What is wrong with the package, a line each: parts that are no sound XML, have no type or do not exist,
// relationships and indexes that lead nowhere, references out of order. Empty for a sound one.
std::string faults(const QString &folder);
// The cells of a sheet (1, 2, 3) as the text a reader gets: rows as lines, cells joined by "|", those that
// are missing left out. A style is shown as "{2}", a number that is no string as "#45446.5".
std::string cells(const QString &folder, int sheet);
}
