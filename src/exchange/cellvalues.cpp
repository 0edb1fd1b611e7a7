#include "exchange/cellvalues.h"
#include "format/dataformat.h"
#include <cmath>
#include <limits>

namespace cellvalues {
namespace {

bool holdsDigit(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar sign) { return sign.isDigit(); });
}

std::optional<double> finite(double value)
{
    return std::isfinite(value) ? std::optional<double>(value) : std::nullopt;
}

std::optional<double> numberOfText(const QString &text)
{
    if (text.size() > maxUnits || !holdsDigit(text))
        return std::nullopt;
    return finite(DataFormat::numberStringFromString(text, 0).toDouble());
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
}

std::optional<double> number(const Cell &cell)
{
    if (!cell.isNumber)
        return numberOfText(cell.text);
    bool isNumber = false;
    const double value = cell.text.toDouble(&isNumber);
    return isNumber ? finite(value) : std::nullopt;
}

std::optional<qint64> whole(const Cell &cell)
{
    constexpr double limit = 1e15; // where doubles still tell whole numbers apart
    const std::optional<double> read = number(cell);
    return read && std::fabs(*read) < limit ? std::optional<qint64>(qint64(*read)) : std::nullopt;
}

std::optional<double> fraction(const Cell &cell)
{
    std::optional<double> read = number(cell);
    if (read && !cell.isNumber && cell.text.trimmed().endsWith(QLatin1Char('%')))
        *read /= 100;
    return read;
}

std::optional<Rate> rate(const Cell &cell)
{
    if (cell.isNumber || cell.text.size() > maxUnits) {
        const std::optional<double> money = number(cell);
        return money ? std::optional<Rate>(Rate{*money, QString()}) : std::nullopt;
    }
    const int slash = cell.text.lastIndexOf(QLatin1Char('/'));
    const std::optional<double> money = numberOfText(slash < 0 ? cell.text : cell.text.left(slash));
    if (!money)
        return std::nullopt;
    return Rate{*money, slash < 0 ? QString() : cell.text.mid(slash).trimmed()};
}

std::optional<unsigned int> unit(const QString &text, const UnitNames &names)
{
    const QString letters = text.size() > maxUnits ? QString() : lettersAtEnd(text);
    if (letters.isEmpty())
        return std::nullopt;
    for (const auto *each : {&names.shortNames, &names.longNames}) {
        for (unsigned int unit = 0; unit < each->size(); ++unit) {
            if (letters.compare((*each)[unit], Qt::CaseInsensitive) == 0)
                return unit;
        }
    }
    return std::nullopt;
}

QDateTime momentOfDayNumber(double dayNumber, bool is1904)
{
    constexpr int daysTo1904 = 1462;
    constexpr double limit = 3e6; // the year 10000
    constexpr double secsPerDay = 86400;
    const double number = is1904 ? dayNumber + daysTo1904 : dayNumber;
    if (!(std::fabs(number) < limit))
        return QDateTime();
    // Kept on purpose: the day is cut toward zero, so below 2 a fraction counts from the wrong end.
    const QDate date = QDate(1900, 1, 1).addDays(qint64(number - 2));
    const qint64 secs = qint64((number - std::trunc(number)) * secsPerDay + 0.5);
    const bool isNextDay = secs >= qint64(secsPerDay);
    return QDateTime(isNextDay ? date.addDays(1) : date,
                     isNextDay ? QTime(0, 0) : QTime(0, 0).addSecs(int(secs)));
}

std::optional<QDateTime> moment(const Cell &cell, bool is1904)
{
    QDateTime read;
    if (cell.isNumber) {
        if (const std::optional<double> dayNumber = number(cell))
            read = momentOfDayNumber(*dayNumber, is1904);
    } else if (cell.text.size() <= maxUnits) {
        constexpr bool withTime = true;
        read = DataFormat::getDateTimeByDateTimeText(cell.text, withTime);
    }
    if (!read.isValid() || read.toSecsSinceEpoch() < 0 ||
        read.toSecsSinceEpoch() > std::numeric_limits<quint32>::max())
        return std::nullopt;
    return read;
}
}
