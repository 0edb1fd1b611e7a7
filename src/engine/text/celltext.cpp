#include "engine/text/celltext.h"
#include "engine/text/columntypes.h"
#include "engine/time/duration.h"
#include "engine/time/worktime.h"
#include "format/dataformat.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "table/rowcolumndata.h"
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
    constexpr bool longName = false;
    return KWDocument::getNameByMinorUnit(unit, longName);
}

const WorkCalendar &calendarOf(KWDocument &document, const celltext::Style &style)
{
    return style.calendar ? *style.calendar : document.workCalendar();
}

QString dateText(KWDocument &document, quint32 secs, bool start, const celltext::Style &style)
{
    if (secs == 0) // not set
        return QString();
    return QLocale::c().toString(celltext::shownMoment(document, calendarOf(document, style), secs, start),
                                 style.dateFormat);
}

QString durationText(const WorkCalendar &calendar, const KWTaskInfo &task)
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
bool hasCosts(KWDocument &document, const KWTaskInfo &task)
{
    return task.isParent() ? task.isSubHaveResource(&document) : task.isHaveResource();
}
}

QDateTime celltext::shownMoment(KWDocument &document, const WorkCalendar &calendar, quint32 secs, bool start)
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
        const QDateTime exact = KWTaskInfo::showDateTime(&document, secs, start);
        moment = QDateTime(exact.date(), exact.time(), Qt::UTC);
    }
    return moment;
}

QString celltext::ofType(KWDocument &document, const KWTaskInfo &task, int type, const Style &style)
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
        return dateText(document, columntypes::secs(task, column->field), true, style);
    case Kind::FinishDate:
        return dateText(document, columntypes::secs(task, column->field), false, style);
    case Kind::Duration:
        return durationText(calendarOf(document, style), task);
    case Kind::Percent:
        return percentText(number());
    case Kind::Priority:
        return QString::number(task.Priority) + RowColumnData::s_priorityNames.value(task.Priority);
    case Kind::Hyperlinks:
        return task.getHyperlinksContent(style.linkAddresses);
    case Kind::Money:
        return hasCosts(document, task) ? DataFormat::currencyText(amount(number())) : QString();
    case Kind::Work:
        if (!hasCosts(document, task))
            return QString();
        return amount(number()) + unitName(task.isParent() ? duration::Hour : task.DurationUnits);
    case Kind::Flag:
        return QString::number(number() != 0 ? 1 : 0);
    case Kind::NumberText: {
        const QString stored = columntypes::text(task, column->field);
        return stored.isEmpty() ? QString() : amount(stored.toDouble());
    }
    case Kind::Predecessors: {
        constexpr bool predecessors = true;
        return task.getDependOnListTagContent(&document, predecessors);
    }
    }
    return QString();
}

QString RowColumnData::itemText(int row, int column) const
{
    const KWTaskInfo *task = m_document ? m_document->getTaskInfoByRow(row) : nullptr;
    const ColumnData *data = getColumnDataByColumn(column);
    if (!task || !data)
        return QString();
    return celltext::ofType(*m_document, *task, typeOfTitle(data->title), {DataFormat::dateFormat(), false});
}
