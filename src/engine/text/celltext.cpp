#include "engine/text/celltext.h"
#include "engine/record/taskrecord.h"
#include "engine/text/columntypes.h"
#include "engine/time/duration.h"
#include "engine/time/worktime.h"
#include "format/dataformat.h"
#include <QLocale>

using columntypes::ColumnType;
using columntypes::Kind;
using worktime::WorkCalendar;

namespace {

constexpr int groupSize = 3;

QString amount(double value)
{
    constexpr int decimals = 2;
    return DataFormat::formatNumber(value, groupSize, decimals, 1);
}

QString unitName(unsigned int unit)
{
    return QString::fromLatin1(duration::shortUnitName(unit));
}

QString dateText(const celltext::Plan &plan, quint32 secs, bool start, const celltext::Style &style)
{
    if (secs == 0) // not set
        return QString();
    return QLocale::c().toString(celltext::shownMoment(plan.calendar(), secs, start), style.dateFormat);
}

QString durationText(const WorkCalendar &calendar, const TaskRecord &task)
{
    constexpr int decimals = 1;
    const double value = duration::ofTask(calendar, task.Start, task.Finish, task.DurationUnits);
    return DataFormat::formatNumber(value, 0, decimals, 1) + unitName(task.DurationUnits);
}

QString percentText(double fraction)
{
    constexpr int decimals = 1;
    return DataFormat::formatNumber(fraction * 100, groupSize, decimals, 1) + QLatin1Char('%');
}

// Without assignments there is nothing to pay and nothing to work.
bool hasCosts(const celltext::Plan &plan, const TaskRecord &task)
{
    return task.isHaveResource() ||
           (task.isParent() && outline::anyDescendant(plan.outline(), task, [](const TaskRecord *below) {
                return below->isHaveResource();
            }));
}
}

QDateTime celltext::shownDateTime(const WorkCalendar &calendar, quint32 secs, bool start)
{
    if (start)
        return QDateTime::fromSecsSinceEpoch(worktime::secsDayTransHour(calendar, secs));
    const worktime::HourPoint shown = toHourClock(calendar, qint64(secs) - 1);
    // Kept on purpose: a day that ends at 24:00 shows that end as 00:00 of its own date.
    const int minutes = int(shown.secs % LocalClock::secsPerDay) / 60;
    const QDateTime moment(LocalClock::dateOf(shown.day), QTime(minutes / 60, minutes % 60));
    return moment.isValid() ? moment
                            : QDateTime::fromSecsSinceEpoch(calendar.clock().moment(shown.day, minutes * 60));
}

QDateTime celltext::shownMoment(const WorkCalendar &calendar, quint32 secs, bool start)
{
    LocalClock::Wall shown;
    if (start) {
        shown = calendar.clock().wall(worktime::secsDayTransHour(calendar, secs));
    } else {
        const worktime::HourPoint last = worktime::toHourClock(calendar, qint64(secs) - 1);
        const int secsOfDay = int(last.secs % LocalClock::secsPerDay);
        // There and back, since a clock change may skip this time.
        shown = calendar.clock().wall(calendar.clock().moment(last.day, secsOfDay - secsOfDay % 60));
    }
    QDateTime moment(LocalClock::dateOf(shown.day), QTime::fromMSecsSinceStartOfDay(shown.secs * 1000),
                     Qt::UTC);
    if (shown.secs == 0) { // also the clock's word for a later first moment of a date
        const QDateTime exact = shownDateTime(calendar, secs, start);
        moment = QDateTime(exact.date(), exact.time(), Qt::UTC);
    }
    return moment;
}

QString celltext::ofType(const Plan &plan, const TaskRecord &task, int type, const Style &style)
{
    const ColumnType *column = columntypes::find(type);
    if (!column)
        return QString();
    const auto number = [&] { return columntypes::number(task, column->field); };
    switch (column->kind) {
    case Kind::Whole:
        return QString::number(qint64(number()));
    case Kind::Text:
        return columntypes::text(task, column->field);
    case Kind::StartDate:
        return dateText(plan, columntypes::secs(task, column->field), true, style);
    case Kind::FinishDate:
        return dateText(plan, columntypes::secs(task, column->field), false, style);
    case Kind::Duration:
        return durationText(plan.calendar(), task);
    case Kind::Percent:
        return percentText(number());
    case Kind::Priority:
        return QString::number(task.Priority) + plan.priorityName(task.Priority);
    case Kind::Hyperlinks:
        return plan.hyperlinks(task, style.linkAddresses);
    case Kind::Money:
        return hasCosts(plan, task) ? DataFormat::currencyText(amount(number())) : QString();
    case Kind::Work:
        if (!hasCosts(plan, task))
            return QString();
        return amount(number()) + unitName(task.isParent() ? duration::Hour : task.DurationUnits);
    case Kind::Flag:
        return QString::number(number() != 0 ? 1 : 0);
    case Kind::NumberText: {
        const QString stored = columntypes::text(task, column->field);
        return stored.isEmpty() ? QString() : amount(stored.toDouble());
    }
    case Kind::Predecessors:
        return plan.predecessors(task);
    }
    return QString();
}
