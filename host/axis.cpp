#include "axis.h"
#include "datetext.h"
#include "engine/time/localclock.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"
#include "texts.h"
#include "textwidth.h"
#include <algorithm>

namespace axis {

namespace {

constexpr qint64 secsPerDay = 86400;
constexpr qint64 julianDayOf1970 = 2440588;

struct Scale
{
    const char *name;
    Unit unit;
    int columnsPerUnit; // 0: one for each hour of the working day
};

// From the finest to the coarsest.
constexpr Scale scales[] = {
    {"hour", Hour, 0},   {"day", Day, 2},     {"day", Day, 1},         {"week", Week, 2}, {"week", Week, 1},
    {"month", Month, 2}, {"month", Month, 1}, {"quarter", Quarter, 1}, {"year", Year, 1},
};

// Hours are for plans of a few days; on a wide terminal a longer plan is easier to read in days.
constexpr int mostDaysInHours = 5;

QDate dateOf(qint64 secs)
{
    return QDate::fromJulianDay(secs / secsPerDay);
}

QDate unitStart(const QDate &date, Unit unit)
{
    switch (unit) {
    case Week:
        return date.addDays(1 - date.dayOfWeek());
    case Month:
        return QDate(date.year(), date.month(), 1);
    case Quarter:
        return QDate(date.year(), (date.month() - 1) / 3 * 3 + 1, 1);
    case Year:
        return QDate(date.year(), 1, 1);
    default:
        return date;
    }
}

QDate nextUnit(const QDate &date, Unit unit)
{
    switch (unit) {
    case Week:
        return date.addDays(7);
    case Month:
        return date.addMonths(1);
    case Quarter:
        return date.addMonths(3);
    case Year:
        return date.addYears(1);
    default:
        return date.addDays(1);
    }
}

bool isBreak(const Plan &plan, const QDate &date, int hour)
{
    return !KWTaskInfo::isWorkTime(plan.document.get(), QDateTime(date, QTime(qBound(0, hour, 23), 0)));
}

// Every unit is cut into equal pieces of its own length, so a month of 28 days is as wide as one of 31: in a
// terminal equal columns read better than true lengths. Only days and hours know days off, coarser units
// would be half one, half the other. The slots of one scale, at most `most` of them; `fits` tells whether
// those were all.
std::vector<Slot> slotsOf(const Plan &plan, const Scale &scale, const QDate &first, const QDate &last,
                          int most, bool &fits)
{
    const int startHour = int(KWTaskInfo::startOrFinishHour(plan.document.get(), true));
    const int finishHour = int(KWTaskInfo::startOrFinishHour(plan.document.get(), false));
    const int pieces = scale.columnsPerUnit ? scale.columnsPerUnit : qMax(1, finishHour - startHour);
    std::vector<Slot> slotList;
    fits = true;
    for (QDate date = unitStart(first, scale.unit); date <= last; date = nextUnit(date, scale.unit)) {
        const qint64 from = secsOf(date);
        const qint64 length = secsOf(nextUnit(date, scale.unit)) - from;
        const bool off = scale.unit <= Day && !KWTaskInfo::isWorkday(plan.document.get(), date.startOfDay());
        for (int piece = 0; piece < pieces; ++piece) {
            if (int(slotList.size()) == most) {
                fits = false;
                return slotList;
            }
            const bool inBreak = scale.unit == Hour && isBreak(plan, date, startHour + piece);
            slotList.push_back(
                {from + length * piece / pieces, from + length * (piece + 1) / pieces, off || inBreak});
        }
    }
    return slotList;
}

struct Label
{
    int column;
    QString text;
};

// The texts one after the other, those left out for which there is no room. The first one, which begins in
// the middle of its unit, gives way to the second.
QString joined(std::vector<Label> labels, int columns)
{
    QString line;
    if (labels.size() > 1 && labels[0].column + textwidth::of(labels[0].text) >= labels[1].column)
        labels.erase(labels.begin());
    for (const Label &label : labels) {
        const int used = textwidth::of(line);
        if (label.column < used + (used ? 1 : 0) || label.column + textwidth::of(label.text) > columns)
            continue;
        line = textwidth::padded(line, label.column) + label.text;
    }
    return line;
}

bool beginsLabel(const Axis &axis, const QDate &date, bool isFirst)
{
    switch (axis.unit) {
    case Hour:
        return true;
    case Day:
        return date.dayOfWeek() == 1 || isFirst;
    case Week:
        return date.day() <= 7 || isFirst;
    default:
        return date.month() == 1 || isFirst;
    }
}

QString labelText(const Axis &axis, const QDate &date)
{
    const QString month = englishTexts().months.value(date.month() - 1);
    switch (axis.unit) {
    case Hour:
    case Day:
        return datetext::dateText(date, datetext::Plain);
    case Week:
        return month;
    default:
        return QString::number(date.year());
    }
}

// What stands under the labels: a weekday, a month, or a quarter.
QString letterOf(const Axis &axis, const QDate &date)
{
    switch (axis.unit) {
    case Day:
        return englishTexts().weekdayLetters.value(date.dayOfWeek() - 1);
    case Month:
        return englishTexts().months.value(date.month() - 1).left(1);
    case Quarter:
        return QString::number((date.month() + 2) / 3);
    default:
        return QString();
    }
}
}

qint64 secsOf(const QDate &date)
{
    return date.toJulianDay() * secsPerDay;
}

qint64 secsOf(const LocalClock &clock, quint32 secs)
{
    // The clocks round to the minute; a second more would reach into the next column.
    constexpr qint64 minuteSecs = 60;
    const qint64 wholeMinutes = (secs + minuteSecs / 2) / minuteSecs * minuteSecs;
    const LocalClock::Wall wall = clock.wall(wholeMinutes);
    return (wall.day + julianDayOf1970) * secsPerDay + wall.secs;
}

std::pair<int, int> Axis::columnsOf(qint64 from, qint64 to) const
{
    const auto begin = slots.begin();
    const auto first = std::upper_bound(begin, slots.end(), from,
                                        [](qint64 secs, const Slot &slot) { return secs < slot.to; });
    const auto last = std::lower_bound(begin, slots.end(), to,
                                       [](const Slot &slot, qint64 secs) { return slot.from < secs; });
    return {int(first - begin), int(last - begin)};
}

// From fine to coarse, the first that fits; what no scale fits keeps the last one tried and is cut off. A
// scale that is named has two widths at most, and the wider one is tried first.
Axis make(const Plan &plan, const QDate &first, const QDate &last, const QString &wanted, int columns)
{
    Axis result;
    const bool automatic = wanted.isEmpty() || wanted == QLatin1String("auto");
    for (const Scale &scale : scales) {
        const bool named = wanted == QLatin1String(scale.name);
        if (automatic ? scale.unit == Hour && first.daysTo(last) >= mostDaysInHours : !named)
            continue;
        bool fits = false;
        result.unit = scale.unit;
        result.slots = slotsOf(plan, scale, first, last, columns, fits);
        result.startHour = int(KWTaskInfo::startOrFinishHour(plan.document.get(), true));
        result.hoursPerDay =
            int(KWTaskInfo::startOrFinishHour(plan.document.get(), false)) - result.startHour;
        result.cutOff = !fits;
        if (fits)
            break;
    }
    return result;
}

QString heading(const Axis &axis, int line)
{
    const int columns = int(axis.slots.size());
    std::vector<Label> labels;
    QDate before;
    int unitColumn = 0; // where the present day begins, on an axis of hours
    for (int column = 0; column < columns; ++column) {
        const Slot &slot = axis.slots[std::size_t(column)];
        const QDate date = dateOf(slot.from);
        const QDate unit = unitStart(date, axis.unit);
        const bool newUnit = unit != before;
        unitColumn = newUnit ? column : unitColumn;
        before = unit;
        if (line == 0) {
            if (newUnit && beginsLabel(axis, date, column == 0))
                labels.push_back({column, labelText(axis, date)});
        } else if (axis.unit == Hour) {
            constexpr int hoursPerLabel = 3;
            const int hour = column - unitColumn;
            if (hour % hoursPerLabel == 0 && hour + hoursPerLabel <= axis.hoursPerDay)
                labels.push_back(
                    {column, QStringLiteral("%1").arg(axis.startHour + hour, 2, 10, QLatin1Char('0'))});
        } else if (axis.unit == Week) {
            if (newUnit && (column == 0 || (date.month() == 1 && beginsLabel(axis, date, false))))
                labels.push_back({column, QString::number(date.year())});
        } else if (newUnit) {
            labels.push_back({column, letterOf(axis, date)});
        }
    }
    if (line == 0 || axis.unit == Hour || axis.unit == Week)
        return joined(labels, columns);
    QString letters;
    for (const Label &label : labels)
        letters = textwidth::padded(letters, label.column) + label.text;
    return letters;
}
}
