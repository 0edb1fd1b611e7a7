#include "exchange/cellvalues.h"
#include "engine/time/civildate.h"
#include "engine/time/duration.h"
#include "format/dataformat.h"
#include <QRegularExpression>
#include <QStringList>
#include <cmath>
#include <limits>

namespace cellvalues {
namespace {

constexpr int firstYear = 1970;
constexpr int lastYear = 2105;
constexpr int secsPerDay = 86400;

bool isPlainDigit(QChar sign)
{
    return sign >= QLatin1Char('0') && sign <= QLatin1Char('9');
}

bool holdsDigit(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar sign) { return sign.isDigit(); });
}

std::optional<double> finite(double value)
{
    return std::isfinite(value) ? std::optional<double>(value) : std::nullopt;
}

// A comma and what follows it: how many digits, and what stands behind them.
bool isGroup(const QString &text, int comma)
{
    int digits = 0;
    while (comma + 1 + digits < text.size() && isPlainDigit(text.at(comma + 1 + digits)))
        ++digits;
    return digits == 3;
}

// One comma before other than three digits is a point; commas before three digits group them where a point or
// another comma says so. A single "1,234" may be either.
std::optional<double> decimalNumber(QString text)
{
    text = text.trimmed();
    const int comma = text.indexOf(QLatin1Char(','));
    if (comma >= 0) {
        const bool isOne = text.indexOf(QLatin1Char(','), comma + 1) < 0;
        const int point = text.indexOf(QLatin1Char('.'));
        if (isOne && point < 0) {
            if (isGroup(text, comma))
                return std::nullopt;
            text[comma] = QLatin1Char('.');
        } else {
            for (int at = comma; at >= 0; at = text.indexOf(QLatin1Char(','), at + 1)) {
                if (!isGroup(text, at) || (point >= 0 && at > point))
                    return std::nullopt;
            }
            text.remove(QLatin1Char(','));
        }
    }
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    return isNumber ? finite(value) : std::nullopt;
}

// A few plain digits, as most cells with numbers are; -1 for anything else.
qint64 fewDigits(const QString &text)
{
    constexpr int most = 15; // always exact
    if (text.isEmpty() || text.size() > most)
        return -1;
    qint64 number = 0;
    for (const QChar sign : text) {
        if (!isPlainDigit(sign))
            return -1;
        number = number * 10 + (sign.unicode() - '0');
    }
    return number;
}

std::optional<double> numberOfText(const QString &text, Comma comma)
{
    if (const qint64 digits = fewDigits(text); digits >= 0)
        return double(digits);
    if (text.size() > maxUnits || !holdsDigit(text))
        return std::nullopt;
    const QString plain = withPlainDigits(text);
    return comma == Comma::Decimal ? decimalNumber(plain)
                                   : finite(DataFormat::numberStringFromString(plain, 0).toDouble());
}

QString lettersAtEnd(const QString &text)
{
    int end = text.size();
    while (end > 0 && text.at(end - 1).isSpace())
        --end;
    int begin = end;
    while (begin > 0 && text.at(begin - 1).isLetter())
        --begin;
    return text.mid(begin, end - begin);
}

std::optional<unsigned int> unitNamed(const QString &word, const UnitNames &names)
{
    for (const auto *each : {&names.shortNames, &names.longNames}) {
        for (unsigned int unit = 0; unit < each->size(); ++unit) {
            if (!word.isEmpty() && word.compare((*each)[unit], Qt::CaseInsensitive) == 0)
                return unit;
        }
    }
    return std::nullopt;
}
}

// ---- Numbers ----------------------------------------------------------------------------------------------

QString withPlainDigits(const QString &text)
{
    QString plain = text;
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i).unicode() > 0x7F && text.at(i).isDigit())
            plain[i] = QChar(ushort('0' + text.at(i).digitValue()));
    }
    return plain;
}

std::optional<double> number(const Cell &cell, Comma comma)
{
    if (!cell.isNumber)
        return numberOfText(cell.text, comma);
    if (const qint64 digits = fewDigits(cell.text); digits >= 0)
        return double(digits);
    bool isNumber = false;
    const double value = cell.text.toDouble(&isNumber);
    return isNumber ? finite(value) : std::nullopt;
}

std::optional<qint64> whole(const Cell &cell, Comma comma)
{
    constexpr double limit = 1e15; // where doubles still tell whole numbers apart
    const std::optional<double> read = number(cell, comma);
    return read && std::fabs(*read) < limit ? std::optional<qint64>(qint64(*read)) : std::nullopt;
}

bool hasPercentSign(const Cell &cell)
{
    return !cell.isNumber && cell.text.trimmed().endsWith(QLatin1Char('%'));
}

std::optional<double> fraction(const Cell &cell, Comma comma)
{
    if (!hasPercentSign(cell))
        return number(cell, comma);
    const QString text = cell.text.trimmed();
    const std::optional<double> read = numberOfText(text.left(text.size() - 1), comma);
    return read ? std::optional<double>(*read / 100) : std::nullopt;
}

bool showsPercent(const QString &formatCode)
{
    bool isQuoted = false;
    for (int at = 0; at < formatCode.size(); ++at) {
        const QChar sign = formatCode.at(at);
        if (sign == QLatin1Char('"'))
            isQuoted = !isQuoted;
        else if (sign == QLatin1Char('\\') && !isQuoted)
            ++at;
        else if (sign == QLatin1Char('%') && !isQuoted)
            return true;
    }
    return false;
}

bool hasOddComma(const Cell &cell)
{
    if (cell.isNumber || cell.text.size() > maxUnits)
        return false;
    const QString text = withPlainDigits(cell.text);
    for (int at = text.indexOf(QLatin1Char(',')); at >= 0; at = text.indexOf(QLatin1Char(','), at + 1)) {
        const bool isBetweenDigits =
            at > 0 && isPlainDigit(text.at(at - 1)) && at + 1 < text.size() && isPlainDigit(text.at(at + 1));
        if (isBetweenDigits && !isGroup(text, at))
            return true;
    }
    return false;
}

std::optional<Rate> rate(const Cell &cell, Comma comma)
{
    if (cell.isNumber || cell.text.size() > maxUnits) {
        const std::optional<double> money = number(cell, comma);
        return money ? std::optional<Rate>(Rate{*money, QString()}) : std::nullopt;
    }
    const int slash = cell.text.lastIndexOf(QLatin1Char('/'));
    const std::optional<double> money = numberOfText(slash < 0 ? cell.text : cell.text.left(slash), comma);
    if (!money)
        return std::nullopt;
    return Rate{*money, slash < 0 ? QString()
                                  : QLatin1Char('/') +
                                        cell.text.mid(slash + 1).simplified().remove(QLatin1Char(' '))};
}

namespace {

constexpr const char *costUnits[] = {"min", "h", "d", "w", "m"};
}

std::optional<CostUnit> costUnitCalled(const QString &word)
{
    const QString lower = word.trimmed().toLower();
    for (int unit = 0; unit < int(std::size(costUnits)); ++unit) {
        if (lower == QLatin1String(costUnits[unit]))
            return CostUnit{unit, 1};
    }
    const std::optional<unsigned int> called = unitCalled(word);
    if (!called)
        return std::nullopt;
    constexpr int month = 4;
    constexpr double months[] = {12, 3, 1}; // by duration::Unit
    return *called <= duration::Month ? CostUnit{month, months[*called]}
                                      : CostUnit{int(duration::Minute - *called), 1};
}

QString costUnitText(int unit)
{
    return unit >= 0 && unit < int(std::size(costUnits)) ? QLatin1String(costUnits[unit]) : QString();
}

int resourceTypeCalled(const QString &word)
{
    static const QStringList types[] = {
        {QStringLiteral("work"), QStringLiteral("arbeit"), QString::fromUtf8("工时")},
        {QStringLiteral("material"), QString::fromUtf8("材料")}};
    const QString lower = word.trimmed().toLower();
    return types[0].contains(lower) ? 0 : types[1].contains(lower) ? 1 : -1;
}

// ---- Lengths of time --------------------------------------------------------------------------------------

std::optional<unsigned int> unit(const QString &text, const UnitNames &names)
{
    return text.size() > maxUnits ? std::nullopt : unitNamed(lettersAtEnd(text), names);
}

std::optional<unsigned int> unitCalled(const QString &word)
{
    struct Name
    {
        const char *text;
        unsigned int unit;
    };
    using namespace duration;
    static constexpr Name names[] = {
        {"y", Year},          {"yr", Year},         {"year", Year},        {"jahr", Year},
        {"jahre", Year},      {"年", Year},         {"q", Quarter},        {"qtr", Quarter},
        {"quarter", Quarter}, {"quartal", Quarter}, {"quartale", Quarter}, {"季度", Quarter},
        {"mo", Month},        {"mon", Month},       {"mth", Month},        {"month", Month},
        {"monat", Month},     {"monate", Month},    {"月", Month},         {"个月", Month},
        {"w", Week},          {"wk", Week},         {"week", Week},        {"woche", Week},
        {"wochen", Week},     {"周", Week},         {"星期", Week},        {"d", Day},
        {"day", Day},         {"workday", Day},     {"tag", Day},          {"tage", Day},
        {"天", Day},          {"日", Day},          {"工作日", Day},       {"个工作日", Day},
        {"h", Hour},          {"hr", Hour},         {"hour", Hour},        {"std", Hour},
        {"stunde", Hour},     {"stunden", Hour},    {"小时", Hour},        {"时", Hour},
        {"工时", Hour},       {"m", Minute},        {"min", Minute},       {"minute", Minute},
        {"minuten", Minute},  {"分钟", Minute},     {"分", Minute},
    };
    const QString lower = word.trimmed().toLower();
    QString singular = lower;
    if (singular.size() > 1 && singular.endsWith(QLatin1Char('s')))
        singular.chop(1);
    for (const Name &name : names) {
        const QString text = QString::fromUtf8(name.text);
        if (lower == text || singular == text)
            return name.unit;
    }
    return std::nullopt;
}

std::optional<Length> length(const QString &text, const UnitNames &names, unsigned int bareUnit)
{
    constexpr double mostDays = 40000; // past the range of dates
    constexpr double roughDays[] = {365, 90, 30, 7, 1, 1.0 / 24, 1.0 / 1440};
    if (text.size() > maxUnits)
        return std::nullopt;
    QString rest = withPlainDigits(text).trimmed();
    // A question mark behind a length says "estimated" in plans exported elsewhere.
    if (rest.endsWith(QLatin1Char('?')))
        rest = rest.left(rest.size() - 1).trimmed();
    int end = 0;
    while (end < rest.size() && (isPlainDigit(rest.at(end)) || rest.at(end) == QLatin1Char('.') ||
                                 rest.at(end) == QLatin1Char(',')))
        ++end;
    const std::optional<double> value = decimalNumber(rest.left(end));
    const QString word = rest.mid(end).trimmed();
    std::optional<unsigned int> unit = word.isEmpty() ? bareUnit : unitNamed(word, names);
    if (!unit)
        unit = unitCalled(word);
    if (!value)
        return std::nullopt;
    const Length length{*value, unit.value_or(duration::Day), unit.has_value()};
    return length.value * roughDays[length.unit] > mostDays ? std::nullopt : std::optional<Length>(length);
}

// ---- Moments ----------------------------------------------------------------------------------------------

namespace {

// The first day of 1970 may begin at 0 seconds, which a task stores for no date.
std::optional<shownmoment::Moment> momentAt(const QDate &date, int secs, bool hasTime)
{
    if (!date.isValid() || LocalClock::dayOf(date) < 1 || date.year() > lastYear)
        return std::nullopt;
    return shownmoment::Moment{LocalClock::dayOf(date), secs, hasTime};
}

int fullYear(const QString &digits)
{
    const int year = digits.toInt();
    return digits.size() > 2 ? year : year + (year < firstYear % 100 ? 2000 : 1900);
}

// By the first three letters and the whole word; 0 when it is none.
int monthCalled(const QString &word)
{
    static const char *const months[][3] = {
        {"jan", "january", "januar"},  {"feb", "february", "februar"},  {"mar", "march", "märz"},
        {"apr", "april", "april"},     {"may", "may", "mai"},           {"jun", "june", "juni"},
        {"jul", "july", "juli"},       {"aug", "august", "august"},     {"sep", "september", "sept"},
        {"oct", "october", "oktober"}, {"nov", "november", "november"}, {"dec", "december", "dezember"}};
    static const QHash<QString, int> others = {{QStringLiteral("mär"), 3},
                                               {QStringLiteral("mrz"), 3},
                                               {QStringLiteral("jänner"), 1},
                                               {QStringLiteral("okt"), 10},
                                               {QStringLiteral("dez"), 12}};
    const QString lower = word.toLower();
    for (int month = 0; month < 12; ++month) {
        for (const char *name : months[month]) {
            if (lower == QString::fromUtf8(name))
                return month + 1;
        }
    }
    return others.value(lower);
}

// What stands behind a date: nothing, or a time. -1 when it is neither.
int secsBehindDate(const QString &rest, bool &hasTime)
{
    static const QRegularExpression form(QStringLiteral(
        "^(?:[Tt]|,?\\s+)(\\d{1,2}:\\d{2}(?::\\d{2}(?:[.,]\\d+)?)?)\\s*([AaPp])?\\.?(?:[Mm]\\.?)?$"));
    hasTime = !rest.trimmed().isEmpty();
    if (!hasTime)
        return 0;
    const QRegularExpressionMatch match = form.match(rest);
    if (!match.hasMatch())
        return -1;
    int secs = timeOfDay(match.captured(1));
    const QString half = match.captured(2).toLower();
    if (secs < 0 || half.isEmpty())
        return secs;
    const int hour = secs / 3600;
    if (hour < 1 || hour > 12)
        return -1;
    secs -= hour == 12 ? 12 * 3600 : 0;
    return half == QLatin1String("p") ? secs + 12 * 3600 : secs;
}

std::optional<Moment> eitherWay(int first, int second, int year, int secs, bool hasTime, bool isDayFirst)
{
    const QDate date = isDayFirst ? QDate(year, second, first) : QDate(year, first, second);
    const std::optional<shownmoment::Moment> shown = momentAt(date, secs, hasTime);
    if (!shown)
        return std::nullopt;
    return Moment{*shown, true, first, second, year};
}

std::optional<Moment> zoned(const QString &text)
{
    QString iso = text.toUpper();
    iso[10] = QLatin1Char('T');
    const QDateTime when = QDateTime::fromString(iso, Qt::ISODateWithMs).toLocalTime();
    const auto shown = momentAt(when.date(), when.time().msecsSinceStartOfDay() / 1000, true);
    return when.isValid() && shown ? std::optional<Moment>(Moment{*shown}) : std::nullopt;
}

}

std::optional<Moment> plainIso(const QString &text)
{
    const bool hasTime = text.size() == 16;
    if (!hasTime && text.size() != 10)
        return std::nullopt;
    const QChar *const signs = text.constData();
    const auto digits = [signs](int at, int count) {
        int value = 0;
        for (int i = at; i < at + count; ++i) {
            if (!isPlainDigit(signs[i]))
                return -1;
            value = value * 10 + (signs[i].unicode() - '0');
        }
        return value;
    };
    if (signs[4] != QLatin1Char('-') || signs[7] != QLatin1Char('-') ||
        (hasTime &&
         (signs[13] != QLatin1Char(':') || (signs[10] != QLatin1Char('T') && signs[10] != QLatin1Char(' ')))))
        return std::nullopt;
    const int hour = hasTime ? digits(11, 2) : 0;
    const int minute = hasTime ? digits(14, 2) : 0;
    if (hour < 0 || minute < 0 || minute > 59 || hour > 24 || (hour == 24 && minute > 0))
        return std::nullopt;
    const civildate::Date date{digits(0, 4), digits(5, 2), digits(8, 2)};
    if (date.year < firstYear || date.year > lastYear || date.month < 1 || date.month > 12 || date.day < 1 ||
        date.day > civildate::daysInMonth(date.year, date.month))
        return std::nullopt;
    // The first day of 1970 is none, see momentAt.
    const int day = civildate::dayOf(date);
    if (day < 1)
        return std::nullopt;
    return Moment{shownmoment::Moment{day, hour * 3600 + minute * 60, hasTime}};
}

namespace {

std::optional<Moment> freeForm(const QString &text)
{
    static const QRegularExpression yearFirst(
        QStringLiteral("^(\\d{4})([-/.])(\\d{1,2})\\2(\\d{1,2})(?!\\d)(.*)$"));
    static const QRegularExpression chinese(
        QStringLiteral("^(\\d{4})\\s*年\\s*(\\d{1,2})\\s*月\\s*(\\d{1,2})\\s*日(.*)$"));
    static const QRegularExpression dayFirst(
        QStringLiteral("^(\\d{1,2})\\.\\s?(\\d{1,2})\\.\\s?(\\d{4}|\\d{2})(?!\\d)(.*)$"));
    static const QRegularExpression either(
        QStringLiteral("^(\\d{1,2})([-/])(\\d{1,2})\\2(\\d{4}|\\d{2})(?!\\d)(.*)$"));
    static const QRegularExpression weekday(
        QStringLiteral("^\\p{L}{2,10}[.,]*\\s+(?=\\d|\\p{L}{3,}\\.?\\s+\\d)"));
    static const QRegularExpression dayMonth(QStringLiteral(
        "^(\\d{1,2})(?:\\.|st|nd|rd|th)?[\\s-]*(\\p{L}{3,})\\.?[\\s,-]*(\\d{4}|\\d{2})(?!\\d)(.*)$"));
    static const QRegularExpression monthDay(
        QStringLiteral("^(\\p{L}{3,})\\.?\\s+(\\d{1,2})(?:st|nd|rd|th)?[\\s,]+(\\d{4})(?!\\d)(.*)$"));

    bool hasTime = false;
    QRegularExpressionMatch match = yearFirst.match(text);
    if (!match.hasMatch())
        match = chinese.match(text);
    if (match.hasMatch()) {
        const bool isSigned = match.lastCapturedIndex() == 5;
        const int secs = secsBehindDate(match.captured(isSigned ? 5 : 4), hasTime);
        const QDate date(match.captured(1).toInt(), match.captured(isSigned ? 3 : 2).toInt(),
                         match.captured(isSigned ? 4 : 3).toInt());
        const auto shown = secs < 0 ? std::nullopt : momentAt(date, secs, hasTime);
        return shown ? std::optional<Moment>(Moment{*shown}) : std::nullopt;
    }
    match = either.match(text);
    if (match.hasMatch()) {
        const int secs = secsBehindDate(match.captured(5), hasTime);
        const int first = match.captured(1).toInt();
        const int second = match.captured(3).toInt();
        const int year = fullYear(match.captured(4));
        if (secs < 0)
            return std::nullopt;
        const auto monthFirst = eitherWay(first, second, year, secs, hasTime, false);
        return monthFirst ? monthFirst : eitherWay(first, second, year, secs, hasTime, true);
    }
    int year = 0, month = 0, day = 0;
    QString rest;
    QString named = text;
    match = dayFirst.match(text);
    if (match.hasMatch()) {
        day = match.captured(1).toInt();
        month = match.captured(2).toInt();
    } else {
        if (monthCalled(text.section(QRegularExpression(QStringLiteral("[\\s.,]")), 0, 0)) == 0)
            named.remove(weekday);
        match = dayMonth.match(named);
        if (match.hasMatch()) {
            day = match.captured(1).toInt();
            month = monthCalled(match.captured(2));
        } else {
            match = monthDay.match(named);
            if (!match.hasMatch())
                return std::nullopt;
            day = match.captured(2).toInt();
            month = monthCalled(match.captured(1));
        }
    }
    year = fullYear(match.captured(3));
    const int secs = secsBehindDate(match.captured(4), hasTime);
    const auto shown =
        secs < 0 || month == 0 ? std::nullopt : momentAt(QDate(year, month, day), secs, hasTime);
    return shown ? std::optional<Moment>(Moment{*shown}) : std::nullopt;
}
}

int timeOfDay(const QString &text)
{
    const QStringList parts = withPlainDigits(text).trimmed().split(QLatin1Char(':'));
    if (parts.size() > 3)
        return -1;
    int values[3] = {0, 0, 0};
    for (int i = 0; i < parts.size(); ++i) {
        // Fractions of a second are dropped.
        const QString part =
            i == 2 ? parts.at(i).section(QRegularExpression(QStringLiteral("[.,]")), 0, 0) : parts.at(i);
        const bool isSound =
            !part.isEmpty() && part.size() <= 2 && std::all_of(part.begin(), part.end(), isPlainDigit);
        values[i] = isSound ? part.toInt() : -1;
        if (values[i] < 0 || values[i] > (i ? 59 : 24))
            return -1;
    }
    const int secs = values[0] * 3600 + values[1] * 60 + values[2];
    return secs <= secsPerDay ? secs : -1;
}

std::optional<Moment> withMonthFirst(const Moment &moment)
{
    return eitherWay(moment.first, moment.second, moment.year, moment.shown.secs, moment.shown.hasTime,
                     false);
}

std::optional<Moment> withDayFirst(const Moment &moment)
{
    return eitherWay(moment.first, moment.second, moment.year, moment.shown.secs, moment.shown.hasTime, true);
}

std::optional<Moment> momentOfText(const QString &text)
{
    constexpr int shortest = 6;
    if (text.size() > maxUnits)
        return std::nullopt;
    const QString plain = withPlainDigits(text).trimmed();
    if (plain.size() < shortest)
        return std::nullopt;
    if (const std::optional<Moment> iso = plainIso(plain))
        return iso;
    static const QRegularExpression zone(
        QStringLiteral("^\\d{4}-\\d{2}-\\d{2}[Tt ].*(?:[Zz]|[+-]\\d{2}(?::?\\d{2})?)$"));
    if (zone.match(plain).hasMatch())
        return zoned(plain);
    if (const std::optional<Moment> read = freeForm(plain))
        return read;
    const bool hasTime = plain.contains(QLatin1Char(':'));
    const QDateTime when = DataFormat::getDateTimeByDateTimeText(plain, hasTime);
    if (!when.isValid())
        return std::nullopt;
    const auto shown =
        momentAt(when.date(), hasTime ? when.time().msecsSinceStartOfDay() / 1000 : 0, hasTime);
    return shown ? std::optional<Moment>(Moment{*shown}) : std::nullopt;
}

std::optional<shownmoment::Moment> momentOfDayNumber(double dayNumber, bool is1904)
{
    constexpr int daysTo1904 = 1462;
    constexpr double limit = 3e6; // the year 10000
    const double number = is1904 ? dayNumber + daysTo1904 : dayNumber;
    if (!(std::fabs(number) < limit))
        return std::nullopt;
    // Kept on purpose: the day is cut toward zero, so below 2 a fraction counts from the wrong end.
    const QDate date = QDate(1900, 1, 1).addDays(qint64(number - 2));
    const int secs = int((number - std::trunc(number)) * secsPerDay + 0.5);
    const bool isNextDay = secs >= secsPerDay;
    // Midnight is how programs store a date alone.
    return shownmoment::Moment{int(QDate(1970, 1, 1).daysTo(date)) + (isNextDay ? 1 : 0),
                               isNextDay ? 0 : secs, secs != 0 && !isNextDay};
}

std::optional<Moment> moment(const Cell &cell, bool is1904)
{
    if (!cell.isNumber)
        return momentOfText(cell.text);
    const std::optional<double> dayNumber = number(cell);
    const auto shown = dayNumber ? momentOfDayNumber(*dayNumber, is1904) : std::nullopt;
    if (!shown)
        return std::nullopt;
    const auto known = momentAt(QDate(1970, 1, 1).addDays(shown->day), shown->secs, shown->hasTime);
    return known ? std::optional<Moment>(Moment{*known}) : std::nullopt;
}
}
