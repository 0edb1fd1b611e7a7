#include "datetext.h"
#include "exchange/cellvalues.h"
#include "format/dataformat.h"
#include "model/kwdocument.h"
#include "texts.h"
#include <cmath>

namespace datetext {

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
