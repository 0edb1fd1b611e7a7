#include "editing/optionbackup.h"
#include "model/kwdocument.h"
#include "model/kwdocument_options.h"
#include "schedule/kwcalendar.h"
#include <algorithm>

namespace optionbackup {
namespace {

// Calls visit(member) for each option in the tables.
template <typename Visitor>
void forEachOption(Visitor &&visit)
{
    const auto visitTable = [&visit](const auto &table) {
        std::apply([&visit](const auto &...rows) { (visit(rows.member), ...); }, table);
    };
    visitTable(optionsxml::units);
    visitTable(optionsxml::display);
}

QVector<UndoDayTime> intervals(const QList<KWDayTime *> &dayTimes)
{
    QVector<UndoDayTime> kept;
    for (const KWDayTime *dayTime : dayTimes) {
        if (dayTime)
            kept.append({dayTime->start, dayTime->finish});
    }
    return kept;
}

void setIntervals(const QVector<UndoDayTime> &kept, QList<KWDayTime *> &dayTimes)
{
    qDeleteAll(dayTimes);
    dayTimes.clear();
    for (const UndoDayTime &each : kept)
        dayTimes.append(new KWDayTime(each.start, each.finish));
}
}

Chart chartOf(const KWDocument &document)
{
    return {document.StartDate, document.FinishDate, document.MajorUnit, document.MinorUnit,
            document.UnitWidth};
}

void restore(KWDocument &document, const Chart &backup)
{
    document.StartDate = backup.startDate;
    document.FinishDate = backup.finishDate;
    document.MajorUnit = backup.majorUnit;
    document.MinorUnit = backup.minorUnit;
    document.UnitWidth = backup.unitWidth;
}

Identity identityOf(const KWDocument &document)
{
    return {document.DocGuid, document.TimeZone, document.PlanName, document.printConfig};
}

void restore(KWDocument &document, const Identity &backup)
{
    document.DocGuid = backup.guid;
    document.TimeZone = backup.zone;
    document.PlanName = backup.name;
    document.printConfig = backup.page;
}

UndoOptionItemData optionsOf(const KWDocument &document)
{
    UndoOptionItemData item;
    std::copy(std::begin(document.WorkDay), std::end(document.WorkDay), item.workDay);
    forEachOption([&](auto member) { item.values.append(double(document.*member)); });
    item.workTimes = intervals(document.workTimes);
    for (const KWCalendar *calendar : document.calendars) {
        if (!calendar)
            continue;
        item.calendars.append({calendar->name, calendar->startDate, calendar->finishDate,
                               calendar->isException, calendar->isWork, intervals(calendar->dayTimes)});
    }
    return item;
}

void restore(KWDocument &document, const UndoOptionItemData &backup)
{
    std::copy(std::begin(backup.workDay), std::end(backup.workDay), document.WorkDay);
    auto value = backup.values.begin();
    forEachOption([&](auto member) {
        document.*member = static_cast<std::decay_t<decltype(document.*member)>>(*value++);
    });
    setIntervals(backup.workTimes, document.workTimes);
    document.clearCalendar();
    for (const UndoCalendar &kept : backup.calendars) {
        auto *calendar = new KWCalendar;
        calendar->name = kept.name;
        calendar->startDate = kept.startDate;
        calendar->finishDate = kept.finishDate;
        calendar->isException = kept.isException;
        calendar->isWork = kept.isWork;
        setIntervals(kept.dayTimes, calendar->dayTimes);
        document.calendars.append(calendar);
    }
}
}
