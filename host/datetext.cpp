#include "datetext.h"
#include "format/dataformat.h"
#include "model/kwdocument.h"
#include "texts.h"
#include <cmath>

namespace datetext {

namespace {

constexpr int firstYear = 1970;
constexpr int lastYear = 2105;
constexpr int secsPerDay = 86400;

// Reads `count` digits at `at`; -1 when there are not that many.
int digits(const QString &text, int at, int count)
{
    if (at + count > text.size())
        return -1;
    int value = 0;
    for (int i = at; i < at + count; ++i) {
        const ushort c = text.at(i).unicode();
        if (c < '0' || c > '9')
            return -1;
        value = value * 10 + (c - '0');
    }
    return value;
}

QDateTime localMoment(const QDate &date, int secsOfDay)
{
    // Kept away from QTime(24, 0), which is no time: the day's last second stands for its end.
    const QTime time = QTime::fromMSecsSinceStartOfDay(qMin(secsOfDay, secsPerDay - 1) * 1000);
    const QDateTime moment(date, time);
    // A time that a clock change skips.
    return moment.isValid() ? moment : date.startOfDay().addSecs(secsOfDay);
}

// yyyy-MM-dd, then nothing or (T or blank) HH:mm[:ss[.fraction]] and perhaps Z or an offset.
bool parseIso(const QString &text, Moment &moment)
{
    const int year = digits(text, 0, 4);
    const int month = digits(text, 5, 2);
    const int day = digits(text, 8, 2);
    if (year < 0 || month < 0 || day < 0 || text.at(4) != QLatin1Char('-') || text.at(7) != QLatin1Char('-'))
        return false;
    const QDate date(year, month, day);
    if (!date.isValid())
        return false;
    if (text.size() == 10) {
        moment = {date.startOfDay(), false};
        return true;
    }
    const QChar separator = text.at(10);
    if (separator != QLatin1Char('T') && separator != QLatin1Char('t') && separator != QLatin1Char(' '))
        return false;
    const QChar last = text.at(text.size() - 1);
    const bool zoned = last == QLatin1Char('Z') || last == QLatin1Char('z') ||
                       text.indexOf(QLatin1Char('+'), 11) > 0 || text.indexOf(QLatin1Char('-'), 11) > 0;
    if (zoned) {
        QString iso = text;
        iso[10] = QLatin1Char('T');
        const QDateTime when = QDateTime::fromString(iso.toUpper(), Qt::ISODateWithMs);
        moment = {when.toLocalTime(), true};
        return when.isValid();
    }
    const int secsOfDay = parseTimeOfDay(text.mid(11));
    if (secsOfDay < 0)
        return false;
    moment = {localMoment(date, secsOfDay), true};
    return true;
}

// The unit that a word names; -1 when it names none.
int unitNamed(const QString &word)
{
    struct Name
    {
        const char *text;
        int unit;
    };
    static constexpr Name names[] = {
        {"y", 0},    {"yr", 0},  {"year", 0}, {"q", 1},       {"qtr", 1}, {"quarter", 1},
        {"mo", 2},   {"mon", 2}, {"mth", 2},  {"month", 2},   {"w", 3},   {"wk", 3},
        {"week", 3}, {"d", 4},   {"day", 4},  {"workday", 4}, {"h", 5},   {"hr", 5},
        {"hour", 5}, {"m", 6},   {"min", 6},  {"minute", 6},
    };
    QString singular = word;
    if (singular.size() > 1 && singular.endsWith(QLatin1Char('s')))
        singular.chop(1);
    for (const Name &name : names)
        if (singular == QLatin1String(name.text))
            return name.unit;
    for (unsigned int unit = 0; unit <= 6; ++unit) {
        const QString own = KWDocument::s_longUnitNames.value(unit).toLower();
        if (!own.isEmpty() && (word == own || singular == own))
            return int(unit);
    }
    return -1;
}
}

bool parseMoment(const QString &text, Moment &moment)
{
    const QString trimmed = text.trimmed();
    if (trimmed.size() < 6)
        return false;
    Moment read;
    if (!(trimmed.size() >= 10 && parseIso(trimmed, read))) {
        const bool withTime = trimmed.contains(QLatin1Char(':'));
        read = {DataFormat::getDateTimeByDateTimeText(trimmed, withTime), withTime};
    }
    if (!read.when.isValid() || read.when.date().year() < firstYear || read.when.date().year() > lastYear)
        return false;
    moment = read;
    return true;
}

bool parseDuration(const QString &text, Duration &duration, unsigned int bareUnit)
{
    QString rest = text.trimmed().toLower();
    // A question mark behind a duration says "estimated" in plans exported elsewhere.
    if (rest.endsWith(QLatin1Char('?')))
        rest = rest.left(rest.size() - 1).trimmed();
    int length = 0;
    while (length < rest.size() && (rest.at(length).isDigit() || rest.at(length) == QLatin1Char('.') ||
                                    rest.at(length) == QLatin1Char(',')))
        ++length;
    QString number = rest.left(length);
    if (number.count(QLatin1Char(',')) == 1 && !number.contains(QLatin1Char('.')))
        number.replace(QLatin1Char(','), QLatin1Char('.'));
    bool isNumber = false;
    const double value = number.toDouble(&isNumber);
    const QString word = rest.mid(length).trimmed();
    const int unit = word.isEmpty() ? int(bareUnit) : unitNamed(word);
    if (!isNumber || unit < 0 || !std::isfinite(value) || value < 0)
        return false;
    static constexpr double roughDays[] = {365, 90, 30, 7, 1, 1.0 / 24, 1.0 / 1440};
    if (value * roughDays[unit] > longestDurationDays)
        return false;
    duration = {value, unsigned(unit)};
    return true;
}

int parseTimeOfDay(const QString &text)
{
    const QString trimmed = text.trimmed();
    const QStringList parts = trimmed.split(QLatin1Char(':'));
    if (parts.size() > 3)
        return -1;
    int values[3] = {0, 0, 0};
    for (int i = 0; i < parts.size(); ++i) {
        // Fractions of a second are dropped.
        const QString part = i == 2 ? parts.at(i).section(QLatin1Char('.'), 0, 0) : parts.at(i);
        if (part.isEmpty() || part.size() > 2)
            return -1;
        values[i] = digits(part, 0, part.size());
        if (values[i] < 0 || values[i] > (i ? 59 : 24))
            return -1;
    }
    const int secs = values[0] * 3600 + values[1] * 60 + values[2];
    return secs <= secsPerDay ? secs : -1;
}

QString durationText(double value, unsigned int unit)
{
    static const char *const shortNames[] = {"y", "q", "mon", "w", "d", "h", "min"};
    constexpr int decimals = 3;
    return DataFormat::formatNumber(value, 0, decimals, 1) + QLatin1String(shortNames[qMin(unit, 6u)]);
}

QString dateText(const QDate &date, int style)
{
    if (!date.isValid())
        return QString();
    const LanguageTexts &language = texts::current();
    QString text = QString::number(date.day());
    if (style & TwoDigitDay)
        text = text.rightJustified(2, QLatin1Char('0'));
    text += QLatin1Char(' ') + language.months.value(date.month() - 1);
    if (style & Year)
        text += QLatin1Char(' ') + QString::number(date.year());
    if (style & Weekday)
        text = language.weekdays.value(date.dayOfWeek() - 1) + QLatin1Char(' ') + text;
    return text;
}

QString timeText(int secsOfDay)
{
    return QStringLiteral("%1:%2")
        .arg(secsOfDay / 3600, 2, 10, QLatin1Char('0'))
        .arg(secsOfDay / 60 % 60, 2, 10, QLatin1Char('0'));
}
}
