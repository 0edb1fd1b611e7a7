#pragma once
#include "kwgantt_export.h"
#include <QByteArray>
#include <QDate>
#include <QtGlobal>
#include <algorithm>
#include <memory>
#include <vector>

// Local dates and wall-clock times of the 32-bit time range, by integer arithmetic.
//
// QDateTime costs hundreds of nanoseconds a conversion; the scheduling rules make millions of them. This
// table holds the zone's offsets from 1970 to 2106 as QDateTime tells them, and answers in a few nanoseconds.
class KWGANTT_EXPORT LocalClock
{
public:
    // A wall-clock moment: a local date as days since 1970-01-01 and seconds since that date's 00:00 on the
    // wall clock (not elapsed seconds: they differ on the days of a clock change).
    struct Wall
    {
        int day = 0;
        int secs = 0;
    };
    static constexpr int firstDay = -2; // local dates the 32-bit range can touch, with a margin
    static constexpr int lastDay = 49713;
    static constexpr int secsPerDay = 86400;

    // The clock of the process's time zone now; made again when the TZ variable has changed.
    static std::shared_ptr<const LocalClock> current();

    // secs since 1970 UTC; clamped to the table's range. The first moment of a date has second 0 even where
    // the zone skips that date's midnight, so that a stored midnight is always one.
    inline Wall wall(qint64 secs) const;
    // The moment when the wall clock shows `secsOfDay` on `day`; secsOfDay may be 86400 and beyond, and below
    // 0 (a later or earlier date). A time that a clock change skips moves on by the gap, a doubled one is the
    // first.
    inline qint64 moment(int day, qint64 secsOfDay) const;
    // The first moment of the date (00:00 where the zone has it).
    qint64 startOfDay(int day) const { return moment(day, 0); }

    static int dayOf(const QDate &date); // clamped to firstDay..lastDay; an invalid date gives firstDay
    static QDate dateOf(int day);
    static int weekday(int day) { return int((qint64(day) % 7 + 10) % 7); } // 0 = Monday .. 6 = Sunday
    // The same wall-clock point with its seconds brought into 0..86399.
    static inline Wall normalized(qint64 day, qint64 secs);

private:
    struct Span
    {
        qint64 from;        // from this moment on, local = UTC + offset
        qint64 localSwitch; // wall-clock seconds from which `offset` answers moment()
        int offset;
        bool skipsMidnight; // `from` is the first moment of a date that has no 00:00
    };
    // Buckets of 2^20 seconds (12 days): a zone changes at most once or twice in one.
    static constexpr int bucketBits = 20;
    static constexpr qint64 minMoment = -qint64(secsPerDay);
    static constexpr qint64 maxMoment = qint64(lastDay) * secsPerDay - 1;

    LocalClock();
    void addSpan(qint64 from, int offset);
    const Span &bucketSpan(qint64 secs) const
    {
        return m_spans[size_t(m_spanOfBucket[size_t((secs - minMoment) >> bucketBits)])];
    }

    QByteArray m_zone;               // TZ when the table was made; null when it was not set
    std::vector<Span> m_spans;       // ends with one that is never reached
    std::vector<int> m_spanOfBucket; // span in force at a bucket's first moment
};

inline LocalClock::Wall LocalClock::normalized(qint64 day, qint64 secs)
{
    if (secs >= 0 && secs < secsPerDay)
        return {int(day), int(secs)};
    const qint64 days = secs >= 0 ? secs / secsPerDay : -((-secs + secsPerDay - 1) / secsPerDay);
    return {int(day + days), int(secs - days * secsPerDay)};
}

inline LocalClock::Wall LocalClock::wall(qint64 secs) const
{
    secs = std::clamp(secs, minMoment, maxMoment);
    const Span *span = &bucketSpan(secs);
    while (secs >= span[1].from)
        ++span;
    // Counted from firstDay the seconds are never negative, so unsigned division serves.
    const quint64 local = quint64(secs + span->offset - qint64(firstDay) * secsPerDay);
    const int day = int(local / secsPerDay);
    const int ofDay = int(local - quint64(day) * secsPerDay);
    return {day + firstDay, span->skipsMidnight && secs == span->from ? 0 : ofDay};
}

inline qint64 LocalClock::moment(int day, qint64 secsOfDay) const
{
    const qint64 local = qint64(day) * secsPerDay + secsOfDay;
    // A day early is before any moment that can show this wall time.
    const Span *span = &bucketSpan(std::clamp(local - secsPerDay, minMoment, maxMoment));
    while (local >= span[1].localSwitch)
        ++span;
    return local - span->offset;
}
