#include "schedule/kwcalendar.h"
#include "schedule/calendarxml.h"
#include "support/kwclock.h"
#include "support/xmlsink.h"
#include "support/xmlsource.h"
#include <QDateTime>
#include <algorithm>

namespace {

constexpr quint32 placeholderFinishSecs = 43200;
}

KWCalendar::KWCalendar()
{
    startDate = finishDate = KWClock::now().date();
}

KWCalendar::KWCalendar(const KWCalendar &other)
    : KWCalendar()
{
    *this = other;
}

KWCalendar::~KWCalendar()
{
    clear();
}

KWCalendar &KWCalendar::operator=(const KWCalendar &other)
{
    if (this == &other)
        return *this;
    name = other.name;
    startDate = other.startDate;
    finishDate = other.finishDate;
    isException = other.isException;
    isWork = other.isWork;
    clear();
    dayTimes.reserve(other.dayTimes.size());
    for (const KWDayTime *interval : other.dayTimes)
        if (interval)
            dayTimes.append(new KWDayTime(*interval));
    return *this;
}

KWDayTime *KWCalendar::getDayTimeAt(int index) const
{
    return dayTimes.value(index, nullptr);
}

void KWCalendar::removeDayTimesAt(int index)
{
    if (index >= 0 && index < dayTimes.size())
        delete dayTimes.takeAt(index);
}

void KWCalendar::clear()
{
    qDeleteAll(dayTimes);
    dayTimes.clear();
}

// ---- XML --------------------------------------------------------------------------------------------------

quint32 calendarxml::midnightSecs(const QDate &date)
{
    if (!date.isValid())
        return 0;
    return quint32(std::clamp<qint64>(date.startOfDay().toSecsSinceEpoch(), 0, 4294967295LL));
}

QDate calendarxml::dateOfSecs(quint32 secs)
{
    return QDateTime::fromSecsSinceEpoch(secs).date();
}

QList<quint32> calendarxml::starts(const QList<KWDayTime *> &intervals)
{
    QList<quint32> secs;
    for (const KWDayTime *interval : intervals)
        if (interval)
            secs.append(interval->start);
    return secs;
}

QList<quint32> calendarxml::finishes(const QList<KWDayTime *> &intervals)
{
    QList<quint32> secs;
    for (const KWDayTime *interval : intervals)
        if (interval)
            secs.append(interval->finish);
    return secs;
}

void calendarxml::appendStarts(const XmlText &text, QList<KWDayTime *> &intervals)
{
    text.split(';', Qt::KeepEmptyParts, [&intervals](const XmlText &part) {
        intervals.append(new KWDayTime(part.toUInt(), placeholderFinishSecs));
    });
}

void calendarxml::readFinishes(const XmlText &text, QList<KWDayTime *> &intervals)
{
    int index = 0;
    text.split(';', Qt::KeepEmptyParts, [&](const XmlText &part) {
        if (index < intervals.size())
            intervals[index++]->finish = part.toUInt();
    });
}

void KWCalendar::saveTo(QDomElement &element, unsigned int) const
{
    DomSink sink(element);
    calendarxml::write(sink, *this);
}

void KWCalendar::parse(const QDomElement &element, unsigned int)
{
    DomSource source(element);
    calendarxml::read(source, *this);
}
