#include "engine/time/dayhours.h"
#include <QStringList>
#include <algorithm>

namespace dayhours {

namespace {

constexpr quint32 secsPerHour = 3600;
constexpr quint32 secsPerDay = 24 * secsPerHour;

QString clock(quint32 secs)
{
    const quint32 minutes = secs / 60;
    return QStringLiteral("%1:%2")
        .arg(minutes / 60, 2, 10, QLatin1Char('0'))
        .arg(minutes % 60, 2, 10, QLatin1Char('0'));
}
}

QVector<Found> faults(const QList<KWDayTime *> &intervals)
{
    QVector<Found> found;
    quint32 latestFinish = 0;
    quint32 latestStart = 0;
    for (int i = 0; i < intervals.size(); ++i) {
        if (!intervals.at(i))
            continue;
        const quint32 start = intervals.at(i)->start;
        const quint32 finish = intervals.at(i)->finish;
        if (start > secsPerDay || finish > secsPerDay)
            found.append({PastMidnight, i});
        else if (finish < start)
            found.append({Reversed, i});
        else if (finish == start)
            found.append({Empty, i});
        else if (finish <= latestStart)
            found.append({OutOfOrder, i});
        else if (start < latestFinish)
            found.append({Overlapping, i});
        else if (start % secsPerHour != 0 || finish % secsPerHour != 0)
            found.append({PartHour, i});
        latestStart = std::max(latestStart, std::min(start, finish));
        latestFinish = std::max(latestFinish, finish);
    }
    return found;
}

QString text(const KWDayTime &interval)
{
    return clock(interval.start) + QLatin1Char('-') + clock(interval.finish);
}

QString text(const QList<KWDayTime *> &intervals)
{
    QStringList parts;
    for (const KWDayTime *interval : intervals) {
        if (interval)
            parts.append(text(*interval));
    }
    return parts.join(QLatin1Char(' '));
}

int wholeHours(const QList<KWDayTime *> &intervals)
{
    qint64 hours = 0;
    for (const KWDayTime *interval : intervals) {
        if (interval && interval->finish > interval->start)
            hours += qint64(std::min(interval->finish, secsPerDay) / secsPerHour) -
                     qint64(std::min(interval->start, secsPerDay) / secsPerHour);
    }
    return int(std::min<qint64>(hours, 1000000));
}
}
