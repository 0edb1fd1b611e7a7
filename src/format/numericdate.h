#pragma once
#include <QDate>
#include <QStringView>
#include <QTime>
#include <optional>

// Reads dates and times by formats of numbers: d, dd, M, MM, yy, yyyy, h, hh, mm, ss and literal signs.
namespace numericdate {

struct Moment
{
    QDate date;
    QTime time;
};

// True for a format that read() understands; month and day names, AM/PM and quoted texts are not numbers.
bool isNumeric(QStringView format);
// The whole text must fit. A doubled letter takes exactly that many digits, a single one takes one or two.
// The time is 00:00 where the format has none; two-digit years are 1970 to 2069.
std::optional<Moment> read(QStringView text, QStringView format);
}
