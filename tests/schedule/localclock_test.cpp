#include "engine/time/civildate.h"
#include "engine/time/localclock.h"
#include "support/zonescope.h"
#include <QDateTime>
#include <QLocale>
#include <gtest/gtest.h>
#include <random>

namespace {

constexpr qint64 lastSecs = 4294967295LL;

std::string text(const QDateTime &moment)
{
    return QLocale::c().toString(moment, QString("yyyy-MM-dd hh:mm:ss")).toStdString();
}

std::string text(LocalClock::Wall wall)
{
    return text(QDateTime(LocalClock::dateOf(wall.day), QTime(0, 0), Qt::UTC).addSecs(wall.secs));
}

std::string shownByQt(qint64 secs)
{
    return text(QDateTime::fromSecsSinceEpoch(secs));
}

qint64 fromUtc(const char *text)
{
    return QDateTime::fromString(QString(text) + "Z", Qt::ISODate).toSecsSinceEpoch();
}

int dayOf(const char *date)
{
    return LocalClock::dayOf(QDate::fromString(date, Qt::ISODate));
}

}

TEST(LocalClock, showsWhatQDateTimeShows)
{
    const auto clock = LocalClock::current();
    std::mt19937 random(1);
    std::vector<qint64> moments = {0, 1, 86399, 86400, 2147483647, 2147483648, lastSecs - 1, lastSecs};
    for (int i = 0; i < 20000; ++i)
        moments.push_back(random());
    for (const qint64 secs : moments) {
        ASSERT_EQ(text(clock->wall(secs)), shownByQt(secs)) << secs;
        const LocalClock::Wall wall = clock->wall(secs);
        // The same moment again, or the first of two that show the same.
        const qint64 again = clock->moment(wall.day, wall.secs);
        ASSERT_EQ(shownByQt(again), shownByQt(secs)) << secs;
        ASSERT_LE(again, secs);
    }
}

TEST(LocalClock, findsTheFirstMomentOfEveryDate)
{
    const auto clock = LocalClock::current();
    for (int day = 1; day < 49710; ++day)
        ASSERT_EQ(clock->startOfDay(day), LocalClock::dateOf(day).startOfDay().toSecsSinceEpoch())
            << LocalClock::dateOf(day).toString(Qt::ISODate).toStdString();
}

TEST(LocalClock, skippedAndDoubledTimes)
{
    const ZoneScope zone("America/New_York");
    const auto clock = LocalClock::current();
    const int spring = dayOf("2024-03-10");
    EXPECT_EQ(clock->moment(spring, 7200 + 1800), fromUtc("2024-03-10 07:30:00")) << "02:30 becomes 03:30";
    EXPECT_EQ(clock->moment(spring, 7200 - 1), fromUtc("2024-03-10 06:59:59"));
    EXPECT_EQ(clock->moment(spring, 10800), fromUtc("2024-03-10 07:00:00"));
    EXPECT_EQ(clock->moment(spring, 86400), fromUtc("2024-03-11 04:00:00")) << "a day of 23 hours";
    const int autumn = dayOf("2024-11-03");
    EXPECT_EQ(clock->moment(autumn, 5400), fromUtc("2024-11-03 05:30:00")) << "the first 01:30";
    EXPECT_EQ(text(clock->wall(fromUtc("2024-11-03 06:30:00"))), "2024-11-03 01:30:00") << "the second one";
    EXPECT_EQ(clock->moment(autumn, 7200), fromUtc("2024-11-03 07:00:00"));
}

TEST(LocalClock, aSkippedMidnightIsTheFirstMoment)
{
    const ZoneScope zone("America/Sao_Paulo");
    const auto clock = LocalClock::current();
    const int day = dayOf("2018-11-04"); // 00:00 became 01:00
    const qint64 first = fromUtc("2018-11-04 03:00:00");
    EXPECT_EQ(clock->startOfDay(day), first);
    EXPECT_EQ(text(clock->wall(first)), "2018-11-04 00:00:00");
    EXPECT_EQ(text(clock->wall(first + 1)), "2018-11-04 01:00:01");
    EXPECT_EQ(text(clock->wall(first - 1)), "2018-11-03 23:59:59");
}

TEST(LocalClock, isMadeAgainForAnotherZone)
{
    const auto before = LocalClock::current();
    EXPECT_EQ(LocalClock::current(), before);
    const ZoneScope zone("Asia/Kathmandu");
    const auto there = LocalClock::current();
    EXPECT_NE(there, before);
    EXPECT_EQ(text(there->wall(fromUtc("2024-03-04 00:00:00"))), "2024-03-04 05:45:00");
    // The earlier one still tells its own zone.
    EXPECT_EQ(there->moment(10, 0) - before->moment(10, 0),
              before->wall(864000).secs - there->wall(864000).secs +
                  (before->wall(864000).day - there->wall(864000).day) * 86400);
}

TEST(LocalClock, staysInsideItsTableForAnyInput)
{
    const auto clock = LocalClock::current();
    const qint64 far = std::numeric_limits<qint64>::max();
    EXPECT_GE(clock->wall(-far).day, LocalClock::firstDay);
    EXPECT_LE(clock->wall(far).day, LocalClock::lastDay);
    EXPECT_LT(clock->moment(-1000000, -1000000), 0);
    EXPECT_GT(clock->moment(1000000, far / 1000), lastSecs);
    EXPECT_EQ(LocalClock::dayOf(QDate(9999, 1, 1)), LocalClock::lastDay);
    EXPECT_EQ(LocalClock::dayOf(QDate()), LocalClock::firstDay);
    for (const qint64 secs : {-1LL, -86400LL, -86401LL, 0LL, 86399LL, 86400LL, 900000LL, -900000LL}) {
        const LocalClock::Wall wall = LocalClock::normalized(100, secs);
        EXPECT_EQ(qint64(wall.day) * 86400 + wall.secs, 100 * 86400 + secs);
        EXPECT_TRUE(wall.secs >= 0 && wall.secs < 86400) << secs;
    }
}

TEST(CivilDate, isTheCalendarsDate)
{
    for (int day = LocalClock::firstDay; day <= LocalClock::lastDay; ++day) {
        const civildate::Date date = civildate::of(day);
        ASSERT_EQ(QDate(date.year, date.month, date.day), LocalClock::dateOf(day)) << day;
        ASSERT_EQ(civildate::dayOf(date), day);
        ASSERT_EQ(civildate::daysInMonth(date.year, date.month), LocalClock::dateOf(day).daysInMonth());
    }
}
