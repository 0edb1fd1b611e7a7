#include "engine/time/localclock.h"
#include <QDateTime>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace {

constexpr qint64 epochJulianDay = 2440588; // 1970-01-01

// What QDateTime shows at this moment, as seconds ahead of UTC.
int offsetAt(qint64 secs)
{
    const QDateTime shown = QDateTime::fromSecsSinceEpoch(secs);
    const qint64 local = (shown.date().toJulianDay() - epochJulianDay) * LocalClock::secsPerDay +
                         shown.time().msecsSinceStartOfDay() / 1000;
    return int(local - secs);
}

}

std::shared_ptr<const LocalClock> LocalClock::current()
{
    static std::shared_ptr<const LocalClock> clock;
    const char *zone = std::getenv("TZ");
    const bool same =
        clock && (zone ? clock->m_zone == zone && !clock->m_zone.isNull() : clock->m_zone.isNull());
    if (!same)
        clock.reset(new LocalClock);
    return clock;
}

LocalClock::LocalClock()
{
    const char *zone = std::getenv("TZ");
    m_zone = zone ? QByteArray(zone, int(std::strlen(zone))) : QByteArray();

    // No zone changes its clock twice within a week in this range. Before 1970 QDateTime knows no changes and
    // may show another offset than just after; no stored time lies there.
    constexpr qint64 step = 7 * qint64(secsPerDay);
    qint64 low = 0;
    int lowOffset = offsetAt(low);
    addSpan(std::numeric_limits<qint64>::min(), lowOffset);
    while (low < maxMoment) {
        const qint64 high = std::min(low + step, maxMoment);
        const int highOffset = offsetAt(high);
        if (highOffset != lowOffset) {
            qint64 before = low;
            qint64 change = high;
            while (change - before > 1) {
                const qint64 middle = before + (change - before) / 2;
                (offsetAt(middle) == lowOffset ? before : change) = middle;
            }
            addSpan(change, highOffset);
        }
        low = high;
        lowOffset = highOffset;
    }
    constexpr qint64 never = std::numeric_limits<qint64>::max();
    m_spans.push_back({never, never, lowOffset, false});

    const size_t buckets = size_t((maxMoment - minMoment) >> bucketBits) + 1;
    m_spanOfBucket.reserve(buckets);
    int span = 0;
    for (size_t bucket = 0; bucket < buckets; ++bucket) {
        const qint64 first = minMoment + (qint64(bucket) << bucketBits);
        while (first >= m_spans[size_t(span) + 1].from)
            ++span;
        m_spanOfBucket.push_back(span);
    }
}

void LocalClock::addSpan(qint64 from, int offset)
{
    if (m_spans.empty()) {
        m_spans.push_back({from, from, offset, false});
        return;
    }
    const int before = m_spans.back().offset;
    // In a gap and in a doubled hour alike the old offset answers until the wall clock is past the change.
    const qint64 localSwitch = from + std::max(before, offset);
    const Wall shown = normalized(0, from + offset);
    const bool skipsMidnight = shown.secs > 0 && normalized(0, from - 1 + before).day < shown.day;
    m_spans.push_back({from, localSwitch, offset, skipsMidnight});
}

int LocalClock::dayOf(const QDate &date)
{
    if (!date.isValid())
        return firstDay;
    return int(std::clamp<qint64>(date.toJulianDay() - epochJulianDay, firstDay, lastDay));
}

QDate LocalClock::dateOf(int day)
{
    return QDate::fromJulianDay(epochJulianDay + day);
}
