#include "format/dataformat.h"
#include "format/numericdate.h"
#include "format/wholenumber.h"
#include "kwfilepathmanager.h"
#include <QCoreApplication>
#include <QDomDocument>
#include <QLocale>
#include <cmath>
#include <limits>

namespace {

const QString isoDateFormat = QStringLiteral("yyyy-MM-dd");
const QString slashDateFormat = QStringLiteral("yyyy/M/d");

// Well inside signed 64-bit whole numbers, and still inside when rounded up to the next unit.
constexpr double wholeLimit = 4e18;
constexpr int maxRoundDigits = 19;
constexpr int largestExponent = std::numeric_limits<double>::max_exponent10;

// `value` as a whole number of 10^(roundDigits - 1), in decimal digits.
QString roundedToUnit(double value, int roundDigits)
{
    double unit = 1;
    for (int digit = 1; digit < roundDigits && digit <= largestExponent; ++digit)
        unit *= 10;
    if (std::fabs(value) < wholeLimit && roundDigits < maxRoundDigits)
        return QString::number(qRound64(value / unit) * qint64(unit));
    const double units = std::round(value / unit);
    return units == 0 ? QStringLiteral("0") : QString::number(units * unit, 'f', 0);
}

// Kept on purpose: the sign counts as a digit, so -123 in groups of three reads "-,123".
void insertGroups(QString &text, int wholeLength, int groupSize)
{
    for (int place = wholeLength - groupSize; place > 0; place -= groupSize)
        text.insert(place, QLatin1Char(','));
}

bool isAsciiDigit(QChar sign)
{
    return sign >= QLatin1Char('0') && sign <= QLatin1Char('9');
}

bool isAsciiLetter(QChar sign)
{
    const ushort lower = sign.unicode() | 0x20;
    return lower >= 'a' && lower <= 'z';
}

bool isSign(QChar sign)
{
    return sign == QLatin1Char('+') || sign == QLatin1Char('-');
}

// The first place from `place` on whose sign is not of the kind; the end when there is none.
template <typename Kind>
int skip(const QString &text, int place, Kind isOfKind)
{
    while (place < text.size() && isOfKind(text.at(place)))
        ++place;
    return place;
}

// The moment of a wall-clock time; one that the zone skips counts from the date's beginning.
QDateTime momentAt(const QDate &date, const QTime &time)
{
    const QDateTime moment(date, time);
    // Not valid, or moved to another clock time, which may be one of the day before.
    if (moment.isValid() && moment.date() == date && moment.time() == time)
        return moment;
    const QDateTime midnight = date.startOfDay();
    return midnight.addSecs(qMax(0, midnight.time().secsTo(time)));
}

// Formats with names of months or days, as the language of the program or plain English writes them.
QDateTime readNamed(const QString &text, const QString &format)
{
    for (const QLocale &locale : {QLocale::c(), QLocale()}) {
        const QDateTime read = locale.toDateTime(text, format);
        if (!read.isValid())
            continue;
        const bool twoDigitYear =
            format.contains(QLatin1String("yy")) && !format.contains(QLatin1String("yyyy"));
        return twoDigitYear && read.date().year() < 1970 ? read.addYears(100) : read;
    }
    return QDateTime();
}

QDateTime readByFormat(const QString &text, const QString &format)
{
    if (!numericdate::isNumeric(format))
        return readNamed(text, format);
    const std::optional<numericdate::Moment> read = numericdate::read(text, format);
    return read ? momentAt(read->date, read->time) : QDateTime();
}
}

QStringList DataFormat::s_dateFormats = {isoDateFormat, slashDateFormat, QStringLiteral("d.M.yyyy"),
                                         QStringLiteral("M/d/yyyy")};
int DataFormat::s_deftDateFmt = 0;
QString DataFormat::s_deftCurrencyFmt = QStringLiteral("%1");

QString DataFormat::formatNumber(double value, int groupSize, int decimals, int roundDigits)
{
    // QString::number writes what QString::arg writes (the tests compare them) and is the quicker one.
    if (groupSize == -1)
        return QString::number(value, 'e', decimals);
    const bool rounds = decimals < 1 && roundDigits >= 2;
    // What a whole number has behind its point would go again.
    QString text = rounds                ? roundedToUnit(value, roundDigits)
                   : isPlainWhole(value) ? QString::number(qint64(value))
                                         : QString::number(value, 'f', decimals);

    const int point = text.indexOf(QLatin1Char('.'));
    const int wholeLength = point < 0 ? text.size() : point;
    if (point >= 0) {
        int length = text.size();
        while (text.at(length - 1) == QLatin1Char('0'))
            --length;
        if (length == point + 1)
            length = point;
        text.truncate(length);
    }
    if (groupSize > 0)
        insertGroups(text, wholeLength, groupSize);
    return text;
}

QString DataFormat::numberStringFromString(const QString &text, int mode)
{
    QString plain;
    plain.reserve(text.size());
    for (const QChar sign : text) {
        if (!sign.isSpace() && sign != QLatin1Char('"') && sign != QLatin1Char('\'') &&
            sign != QLatin1Char(','))
            plain.append(sign);
    }
    const int digit = skip(plain, 0, [](QChar sign) { return !isAsciiDigit(sign); });
    if (digit == plain.size())
        return QStringLiteral("0");

    const int begin = digit > 0 && isSign(plain.at(digit - 1)) ? digit - 1 : digit;
    int end = skip(plain, digit, isAsciiDigit);
    if (end < plain.size() && plain.at(end) == QLatin1Char('.'))
        end = skip(plain, end + 1, isAsciiDigit);
    // "7eggs" is seven eggs, not seven to an empty power, which would read as 0.
    if (end < plain.size() && plain.at(end).toLower() == QLatin1Char('e')) {
        constexpr int maxPowerDigits = 2;
        const int power = end + 1 < plain.size() && isSign(plain.at(end + 1)) ? end + 2 : end + 1;
        const int powerEnd = qMin(power + maxPowerDigits, skip(plain, power, isAsciiDigit));
        end = powerEnd > power ? powerEnd : end;
    }
    const QString number = plain.mid(begin, end - begin);
    if (mode == 0)
        return number;
    const int letters = skip(plain, end, [](QChar sign) { return !isAsciiLetter(sign); });
    return number + plain.midRef(letters, skip(plain, letters, isAsciiLetter) - letters);
}

double DataFormat::numberFromString(const QString &text)
{
    const double value = numberStringFromString(text, 0).toDouble();
    return std::isfinite(value) ? value : 0.0;
}

QString DataFormat::numberToString(double value, int decimals)
{
    constexpr int groupSize = 3;
    return formatNumber(value, groupSize, decimals, 1);
}

QString DataFormat::formatFraction(double value, int maxDenominator)
{
    if (!(std::fabs(value) < wholeLimit))
        return formatNumber(value, 0, 0, 1);
    const double size = std::fabs(value);
    const double part = size - std::floor(size);
    qint64 numerator = std::llround(part);
    int denominator = 1;
    for (int tried = 2; tried <= maxDenominator; ++tried) {
        const qint64 nearest = std::llround(part * tried);
        // Only what is nearer, so that the smallest of equal fractions is kept.
        if (std::fabs(part - double(nearest) / tried) < std::fabs(part - double(numerator) / denominator)) {
            numerator = nearest;
            denominator = tried;
        }
    }
    const qint64 whole = qint64(std::floor(size)) + (denominator == 1 ? numerator : 0);
    const bool hasFraction = denominator > 1;
    QString text = value < 0 && (whole > 0 || hasFraction) ? QStringLiteral("-") : QString();
    if (whole > 0 || !hasFraction)
        text += QString::number(whole);
    if (hasFraction)
        text += (whole > 0 ? QStringLiteral(" ") : QString()) + QString::number(numerator) +
                QLatin1Char('/') + QString::number(denominator);
    return text;
}

QString DataFormat::dateFormat()
{
    return s_dateFormats.value(s_deftDateFmt, isoDateFormat);
}

QStringList DataFormat::generateFormats(bool withTime)
{
    static const QString timeFormats[] = {QStringLiteral(" hh:mm:ss"), QStringLiteral(" h:mm:ss"),
                                          QStringLiteral(" hh:mm"), QStringLiteral(" h:mm")};
    // The document's format comes first: day-month and month-day formats read each other's texts.
    QStringList dates =
        QStringList(dateFormat()) + s_dateFormats + QStringList{isoDateFormat, slashDateFormat};
    dates.removeDuplicates();
    QStringList formats;
    for (const QString &date : qAsConst(dates)) {
        if (withTime) {
            for (const QString &time : timeFormats)
                formats.append(date + time);
        }
        formats.append(date);
    }
    return formats;
}

QDateTime DataFormat::getDateTimeByDateTimeText(const QString &text, bool withTime)
{
    const QString trimmed = text.trimmed();
    for (const QString &format : generateFormats(withTime)) {
        const QDateTime read = readByFormat(trimmed, format);
        if (read.isValid())
            return read;
    }
    return QDateTime();
}

QString DataFormat::currencyText(const QString &number)
{
    // A format from a file may lack the place of the number, which must be seen all the same.
    const QLatin1String place("%1");
    return s_deftCurrencyFmt.contains(place) ? QString(s_deftCurrencyFmt).replace(place, number) : number;
}

void DataFormat::loadLocalize(const QString &language)
{
    const QString path = QCoreApplication::applicationDirPath() + QLatin1String("/Config/DataFormat/") +
                         language + QLatin1String(".xml");
    QDomDocument document;
    if (!KWFilePathManager::loadXmlFile(path, document))
        return;
    QStringList dateFormats;
    for (QDomElement entry = document.documentElement().firstChildElement(); !entry.isNull();
         entry = entry.nextSiblingElement()) {
        const QString format = entry.attribute(QStringLiteral("V"));
        if (format.isEmpty())
            continue;
        if (entry.tagName() == QLatin1String("DateFormat"))
            dateFormats.append(format);
        else if (entry.tagName() == QLatin1String("CurrencyFormat"))
            s_deftCurrencyFmt = format;
    }
    if (dateFormats.isEmpty())
        return;
    s_dateFormats = dateFormats;
    if (s_deftDateFmt < 0 || s_deftDateFmt >= s_dateFormats.size())
        s_deftDateFmt = 0;
}
