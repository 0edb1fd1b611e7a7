#pragma once
#include "schedule/kwcalendar.h"
#include "support/xmltext.h"

// The XML form of a calendar and of lists of working intervals, over any of the XML sinks and sources.
namespace calendarxml {

// Seconds as files keep them: of the date's first moment, and the date of such seconds.
quint32 midnightSecs(const QDate &date);
QDate dateOfSecs(quint32 secs);

// All starts or all finishes, in list order.
QList<quint32> starts(const QList<KWDayTime *> &intervals);
QList<quint32> finishes(const QList<KWDayTime *> &intervals);
// One interval for each start, with a finish at noon until its own is read.
void appendStarts(const XmlText &text, QList<KWDayTime *> &intervals);
// Finishes beyond the intervals are left aside.
void readFinishes(const XmlText &text, QList<KWDayTime *> &intervals);

template <typename Sink>
void write(Sink &sink, const KWCalendar &calendar)
{
    sink.open("CdCalendar");
    sink.attribute("CdExceptionName", calendar.name);
    sink.attribute("CdStartDate", midnightSecs(calendar.startDate));
    sink.attribute("CdFinishDate", midnightSecs(calendar.finishDate));
    sink.attribute("CdIsException", calendar.isException);
    sink.attribute("CdIsWork", calendar.isWork);
    sink.attribute("CdStartTime", starts(calendar.dayTimes));
    sink.attribute("CdFinishTime", finishes(calendar.dayTimes));
    sink.close();
}

template <typename Source>
void read(Source &source, KWCalendar &calendar)
{
    if (source.isNull())
        return;
    // An exception without a name is saved with an empty one.
    calendar.name = source.text("CdExceptionName").toString();
    const XmlText start = source.text("CdStartDate");
    if (!start.isEmpty())
        calendar.startDate = dateOfSecs(start.toUInt());
    const XmlText finish = source.text("CdFinishDate");
    if (!finish.isEmpty())
        calendar.finishDate = dateOfSecs(finish.toUInt());
    xmltext::read(source.text("CdIsException"), calendar.isException);
    xmltext::read(source.text("CdIsWork"), calendar.isWork);
    // No text at all means no intervals: that is what a calendar without any saves.
    calendar.clear();
    appendStarts(source.text("CdStartTime"), calendar.dayTimes);
    readFinishes(source.text("CdFinishTime"), calendar.dayTimes);
}
}
