#include "datetext.h"
#include "engine/time/civildate.h"
#include "exchange/cellvalues.h"
#include "format/dataformat.h"
#include "format/wholenumber.h"
#include "model/kwdocument.h"
#include "texts.h"
#include <charconv>
#include <cmath>
#include <limits>

namespace datetext {

namespace {

constexpr qint64 julianDayOf1970 = 2440588;

void addNumber(QString &text, int number)
{
    char digits[std::numeric_limits<int>::digits10 + 2];
    text += QLatin1String(digits, int(std::to_chars(digits, std::end(digits), number).ptr - digits));
}
}

QDateTime Moment::when() const
{
    const std::shared_ptr<const LocalClock> clock = LocalClock::current();
    return QDateTime::fromSecsSinceEpoch(clock->moment(LocalClock::dayOf(date), secs));
}

bool parseMoment(const QString &text, Moment &moment)
{
    const std::optional<cellvalues::Moment> read = cellvalues::momentOfText(text);
    if (!read)
        return false;
    moment = {LocalClock::dateOf(read->shown.day), read->shown.secs, read->shown.hasTime};
    return true;
}

bool parseDuration(const QString &text, Duration &duration, unsigned int bareUnit)
{
    cellvalues::UnitNames names;
    for (unsigned int unit = 0; unit < names.longNames.size(); ++unit)
        names.longNames[unit] = KWDocument::s_longUnitNames.value(unit);
    const std::optional<cellvalues::Length> read = cellvalues::length(text, names, bareUnit);
    if (!read || !read->isUnitKnown)
        return false;
    duration = {read->value, read->unit};
    return true;
}

int parseTimeOfDay(const QString &text)
{
    return cellvalues::timeOfDay(text);
}

QString durationText(double value, unsigned int unit)
{
    static const char *const shortNames[] = {"y", "q", "mon", "w", "d", "h", "min"};
    constexpr int decimals = 3;
    constexpr double leastLong = 1e9;
    const QLatin1String name(shortNames[qMin(unit, 6u)]);
    if (!isPlainWhole(value) || std::fabs(value) >= leastLong)
        return DataFormat::formatNumber(value, 0, decimals, 1) + name;
    constexpr int usualLength = 8;
    QString text;
    text.reserve(usualLength);
    addNumber(text, int(value));
    return text += name;
}

void addDate(QString &text, const QDate &date, int style)
{
    if (!date.isValid())
        return;
    const EnglishTexts &language = englishTexts();
    const civildate::Date parts = civildate::of(int(date.toJulianDay() - julianDayOf1970));
    if (style & Weekday)
        text += language.weekdays.value(date.dayOfWeek() - 1) + QLatin1Char(' ');
    if (parts.day >= 10 || style & TwoDigitDay)
        text += QLatin1Char(char('0' + parts.day / 10));
    text += QLatin1Char(char('0' + parts.day % 10));
    text += QLatin1Char(' ');
    text += language.months.at(parts.month - 1);
    if (style & Year) {
        text += QLatin1Char(' ');
        addNumber(text, parts.year);
    }
}

QString dateText(const QDate &date, int style)
{
    constexpr int usualLength = 16;
    QString text;
    if (date.isValid())
        text.reserve(usualLength);
    addDate(text, date, style);
    return text;
}

QString timeText(int secsOfDay)
{
    const int hour = secsOfDay / 3600;
    const int minute = secsOfDay / 60 % 60;
    const char text[] = {char('0' + hour / 10), char('0' + hour % 10), ':', char('0' + minute / 10),
                         char('0' + minute % 10)};
    return QString::fromLatin1(text, int(sizeof(text)));
}
}
