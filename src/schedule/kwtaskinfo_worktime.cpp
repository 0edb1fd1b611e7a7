// What dates and hours work, the two clocks and the counts of days, asked of a document.
#include "engine/text/celltext.h"
#include "engine/time/worktime.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "support/kwclock.h"

using worktime::HourPoint;
using worktime::WorkCalendar;

namespace {

int secsOfDay(const QTime &time)
{
    return time.msecsSinceStartOfDay() / 1000;
}

HourPoint hourPoint(const QDateTime &moment)
{
    return {LocalClock::dayOf(moment.date()), secsOfDay(moment.time())};
}

// The current clock time without its seconds.
QTime currentMinute()
{
    const QTime now = KWClock::now().time();
    return QTime(now.hour(), now.minute());
}

}

bool KWTaskInfo::isWorkday(KWDocument *document, const QDateTime &when)
{
    return document && when.date().isValid() &&
           document->workCalendar().isWorkday(LocalClock::dayOf(when.date()));
}

bool KWTaskInfo::isWorkTime(KWDocument *document, const QDateTime &when)
{
    return document && when.isValid() &&
           document->workCalendar().isWorkHour(LocalClock::dayOf(when.date()), when.time().hour());
}

quint32 KWTaskInfo::startOrFinishHour(KWDocument *document, bool start)
{
    if (!document)
        return 0;
    const WorkCalendar &calendar = document->workCalendar();
    return quint32(start ? calendar.startHour() : calendar.finishHour());
}

// The date is not consulted: exceptions do not change a day's hours.
quint32 KWTaskInfo::dayWorkTime(KWDocument *document, const QDateTime &)
{
    return document ? quint32(document->workCalendar().hoursPerDay()) : 0;
}

quint32 KWTaskInfo::dayTimeOff(KWDocument *document, const QDateTime &when)
{
    return document ? quint32(document->workCalendar().breakHours(LocalClock::dayOf(when.date()))) : 0;
}

double KWTaskInfo::dayTimeStartToFinishOff(KWDocument *document, const QDateTime &start,
                                           const QDateTime &finish)
{
    if (!document || !start.isValid() || !finish.isValid())
        return 0.0;
    const HourPoint from = hourPoint(start);
    const HourPoint to = hourPoint(finish);
    if (to.day < from.day)
        return 0.0;
    const qint64 untilSecs = to.day > from.day ? LocalClock::secsPerDay : to.secs;
    return double(document->workCalendar().breakSecs(from.day, from.secs, untilSecs)) / worktime::secsPerHour;
}

double KWTaskInfo::dayTimeStartToFinishWorkTime(KWDocument *document, const QDateTime &start,
                                                const QDateTime &finish)
{
    if (!document || !start.isValid() || !finish.isValid())
        return 0.0;
    return worktime::workHours(document->workCalendar(), hourPoint(start), hourPoint(finish));
}

quint32 KWTaskInfo::secsHourTransDay(KWDocument *document, quint32 secs)
{
    return document ? worktime::secsHourTransDay(document->workCalendar(), secs) : 0;
}

quint32 KWTaskInfo::secsDayTransHour(KWDocument *document, quint32 secs)
{
    return document ? worktime::secsDayTransHour(document->workCalendar(), secs) : 0;
}

QDateTime KWTaskInfo::showDateTime(KWDocument *document, quint32 secs, bool start)
{
    if (!document || (!start && secs == 0))
        return QDateTime();
    return celltext::shownDateTime(document->workCalendar(), secs, start);
}

QDateTime KWTaskInfo::editTimeTransDayTime(KWDocument *document, const QDateTime &typed, bool start)
{
    if (!document || !typed.isValid())
        return typed;
    const WorkCalendar &calendar = document->workCalendar();
    const int hour = typed.time().hour();
    if (hour < calendar.startHour())
        return typed.date().startOfDay();
    if (hour > calendar.finishHour())
        return typed.date().addDays(start ? 1 : 0).startOfDay();
    const LocalClock::Wall stored = toDayWall(calendar, hourPoint(typed));
    const LocalClock &clock = calendar.clock();
    return QDateTime::fromSecsSinceEpoch(clock.moment(start ? stored.day : stored.day - 1, stored.secs));
}

QTime KWTaskInfo::secsToTime(quint32 secsOfDay, bool)
{
    const quint32 minutes = secsOfDay / 60;
    if (minutes == 24 * 60)
        return QTime(0, 0);
    const QTime time = minutes < 24 * 60 ? QTime(int(minutes / 60), int(minutes % 60)) : QTime();
    return time.isValid() ? time : currentMinute();
}

quint32 KWTaskInfo::timeToSecs(const QTime &time, bool start)
{
    const QTime counted = time.isValid() ? time : currentMinute();
    const int minutes = counted.hour() * 60 + counted.minute();
    // A finish at midnight is the end of the day.
    if (time.isValid() && minutes == 0 && !start)
        return LocalClock::secsPerDay;
    return quint32(minutes * 60);
}

QDateTime KWTaskInfo::getDateTime(const QDateTime &moment)
{
    return moment.addSecs(-1);
}

void KWTaskInfo::onWeekWorkDays(KWDocument *document, QList<unsigned int> &days, bool work)
{
    if (!document)
        return;
    for (unsigned int weekday = 0; weekday < 7; ++weekday)
        if (document->WorkDay[weekday] == work)
            days.append(weekday);
}

bool KWTaskInfo::isHaveWorkDay(KWDocument *document)
{
    return document && std::find(std::begin(document->WorkDay), std::end(document->WorkDay), true) !=
                           std::end(document->WorkDay);
}

quint32 KWTaskInfo::totalDayOff(KWDocument *document, quint32 startSecs, quint32 finishSecs)
{
    return document ? worktime::totalDayOff(document->workCalendar(), startSecs, finishSecs) : 0;
}

double KWTaskInfo::totalWorkDays(KWDocument *document, quint32 startSecs, quint32 finishSecs,
                                 unsigned int unit)
{
    return document ? worktime::totalWorkDays(document->workCalendar(), startSecs, finishSecs, unit) : 0.0;
}

bool KWTaskInfo::dateOnDayOff(KWDocument *document, const QDateTime &when)
{
    if (!document || !when.date().isValid())
        return false;
    const WorkCalendar &calendar = document->workCalendar();
    return calendar.hasWorkday() && !calendar.isWorkday(LocalClock::dayOf(when.date()));
}
