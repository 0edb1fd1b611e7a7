#include "engine/time/dayoff.h"
#include "engine/time/duration.h"
#include "engine/time/walk.h"
#include "support/calendartext.h"
#include "support/slowcalendar.h"
#include <gtest/gtest.h>
#include <limits>

using duration::Unit;

namespace {

const char *const office = "Mon-Fri 8-12 13-17";

QString describe(const QString &calendar, quint32 start, double value, unsigned int unit)
{
    return QString("%1\n%2 + %3 %4")
        .arg(calendar, textOf(start), QString::number(value, 'g', 17), duration::unitName(unit));
}

bool isPlainDate(quint32 secs)
{
    const QDate date = QDateTime::fromSecsSinceEpoch(secs).date();
    return date.startOfDay().secsTo(date.addDays(1).startOfDay()) == 86400;
}

struct WalkCase
{
    const char *name, *calendar, *start;
    double value;
    Unit unit;
    const char *result;
};

}

TEST(Walk, endsThere)
{
    // 2024-03-04 is a Monday. A stored 10:40 is noon on the hour clock of 8 to 17, 12:00 is 12:30.
    const WalkCase cases[] = {
        {"halfADayEndsAtNoonNotAfterLunch", office, "2024-03-04", 0.5, Unit::Day, "Mon 2024-03-04 10:40"},
        // Friday 10:15 on the hour clock and 6.5 hours: 5.75 on Friday, 0.75 on Monday.
        {"hoursRunIntoMonday", office, "2024-03-08 06:00", 6.5, Unit::Hour, "Mon 2024-03-11 02:00"},
        {"wholeDaysInYearsSurviveBinaryNoise", office, "2024-03-04", 6.0 / 365, Unit::Year,
         "Sun 2024-03-10 00:00"},
        // Noon to the morning of the day before is 12 hours; a start waits for the end of a break.
        {"backIntoABreakWaitsForItsEnd", office, "2024-03-06", -0.5, Unit::Day, "Tue 2024-03-05 13:20"},
        {"backFromSaturdayIsFromFridaysEnd", office, "2024-03-09", -5, Unit::Day, "Mon 2024-03-04 00:00"},
        // Half past eight to half past five counts 8 hours a day, its span less lunch is 9.
        {"partHoursReachTheSameDuration", "Mon-Fri 8:30-12 13-17:30", "2024-03-04 06:00", 14.5, Unit::Hour,
         "Tue 2024-03-05 21:36"},
        // The end of a day of part hours is worth its 8, not the 9 of a day that is not over.
        {"aDaysEndCountsAsItIsStored", "Mon-Fri 8:30-12 13-17:30", "2024-03-08", 18, Unit::Hour,
         "Tue 2024-03-12 02:24"},
        // Stands for 8:21 on Sunday.
        {"aStartOnADayOffWaitsForAWorkingDate", "Sun 8:30-12 13-17:30", "2024-08-24 00:50:44", 32,
         Unit::Minute, "Sun 2024-08-25 02:07:12"},
        // 3 hours on Monday and the 7 of Tuesday; stored, Tuesday's end would be worth 8.
        {"aShortDateEndsWithItsOwnHours", "Mon-Fri 8-12 13-17; work 2024-09-10 9-12 14-17",
         "2024-09-09 16:00", 10, Unit::Hour, "Wed 2024-09-11 00:00"},
        {"aDateOfFiveHoursEndsInTheEvening", "Mon-Fri 8-12 13-17; work 2024-09-10 8-10 14-17", "2024-09-09",
         13, Unit::Hour, "Wed 2024-09-11 00:00"},
        // No start has 8 hours: Tuesday 8:00 has 7, and Monday's end 10.
        {"backOverAShortDateIsItsBeginning", "Mon-Fri 8-12 13-17; work 2024-09-10 8-10 14-17",
         "2024-09-11 05:20", -8, Unit::Hour, "Tue 2024-09-10 00:00"},
        {"oldVersionHoursIgnoreLunch", "Mon-Fri 8-12 13-17; old", "2024-03-04", 9, Unit::Hour,
         "Tue 2024-03-05 00:00"}};
    for (const WalkCase &c : cases) {
        SCOPED_TRACE(c.name);
        const CalendarText calendar(c.calendar);
        EXPECT_EQ(textOf(walk::byUnits(calendar.compile(), secsOf(c.start), c.value, c.unit)).toStdString(),
                  c.result);
    }
}

TEST(WalkRandom, equalsThePlainRules)
{
    std::mt19937 random(9);
    for (int round = 0; round < 250; ++round) {
        const QString text = randomCalendar(random, Hours::any) + (round % 5 ? "" : "; old");
        const CalendarText source(text);
        const worktime::WorkCalendar calendar = source.compile();
        const SlowCalendar slow(source.source());
        for (int i = 0; i < 12; ++i) {
            const quint32 start = randomMoment(random);
            const unsigned int unit = random() % duration::unitCount;
            const double most[] = {0.1, 0.4, 1.5, 4, 15, 100, 4000};
            double value = most[unit] * (random() % 2001 / 1000.0 - 1);
            if (random() % 2)
                value = std::round(value * 4) / 4;
            EXPECT_EQ(textOf(walk::byUnits(calendar, start, value, unit)).toStdString(),
                      textOf(slow.walk(start, value, unit)).toStdString())
                << describe(text, start, value, unit).toStdString();
        }
    }
}

// By a duration from its start to its finish and back, on calendars of whole hours.
TEST(WalkRandom, andDurationAreInverse)
{
    std::mt19937 random(2);
    for (int round = 0; round < 300; ++round) {
        const QString text = randomCalendar(random, Hours::whole);
        const CalendarText source(text);
        const worktime::WorkCalendar calendar = source.compile();
        if (!calendar.hasWorkday())
            continue;
        for (int i = 0; i < 30; ++i) {
            const unsigned int unit = Unit::Week + random() % 4;
            const quint32 start = dayoff::startForward(calendar, randomMoment(random), true);
            const quint32 finish = dayoff::finishBack(calendar, start + random() % (30 * 86400), true);
            const quint32 secs = duration::secs(calendar, start, finish, unit);
            const double value = duration::value(calendar, secs, unit);
            // A clock change skips or doubles moments of its date.
            if (secs == 0 || !isPlainDate(start) || !isPlainDate(finish))
                continue;
            const std::string what = describe(text, start, value, unit).toStdString();
            EXPECT_EQ(textOf(walk::byUnits(calendar, start, value, unit)).toStdString(),
                      textOf(finish).toStdString())
                << what;
            EXPECT_EQ(textOf(walk::byUnits(calendar, finish, -value, unit)).toStdString(),
                      textOf(start).toStdString())
                << what;
            EXPECT_TRUE(calendar.isWorkday(calendar.clock().wall(qint64(finish) - 1).day)) << what;
            EXPECT_TRUE(calendar.isWorkday(calendar.clock().wall(start).day)) << what;
        }
    }
}

// What a file may hold must end, and soon, in a point of the time range.
TEST(WalkHostile, everyInputEnds)
{
    const double infinity = std::numeric_limits<double>::infinity();
    const double values[] = {1e308, -1e308, 1e15,  -1e15, 5e-324, -5e-324, 4294967295.0, 0.0001,
                             -0.01, 1e7,    -33e3, 49710, 7.5,    -7.5,    std::nan(""), infinity};
    const char *const calendars[] = {
        office,
        "none 8-12 13-17",
        "none",
        "Mon-Fri",
        "Mon-Fri 8-8",
        "Mon-Fri 17-8",
        "Mon-Fri 13-17 8-12",
        "Mon-Fri 8:20-8:50",
        "Mon-Fri 24-24",
        "Mon-Fri 0-0 24-24",
        "Mon-Fri 0-1 23-24",
        "Mon-Fri 8-9 15-16 11-12 17-18",
        "Mon-Fri 8-17 9-18 0-24 0-24",
        "Mon-Fri 8-12 13-17; off 1960-01-01..2200-01-01",
        "Mon-Fri 8-12 13-17; work 2024-02-29; off 1960-01-01..2200-01-01",
        "Mon-Fri 8-12 13-17; off 2024-06-01..2200-01-01",
        "Mon-Fri 8-12 13-17; off 1960-01-01..2024-02-28",
        "none 8-12 13-17; work 1960-01-01..2200-01-01",
        "Mon-Fri 8-17; plain 1960-01-01..2200-01-01 0-0 24-24",
        "Mon-Fri 8-17; off 1960-01-01..2200-01-01 0-8 17-24",
        "Mon-Fri 0-0 24-24; work 2024-05-01 3-4",
    };
    for (const char *text : calendars) {
        for (const char *old : {"", "; old"}) {
            const CalendarText source(QString(text) + old);
            const worktime::WorkCalendar calendar = source.compile();
            for (const quint32 start :
                 {0u, 1u, 86399u, secsOf("2024-03-04"), secsOf("2024-06-01 12:00"), 4294967295u}) {
                for (unsigned int unit = 0; unit <= duration::unitCount; ++unit) {
                    for (const double value : values) {
                        const quint32 result = walk::byUnits(calendar, start, value, unit);
                        const bool stays = !std::isfinite(value) || unit == duration::unitCount;
                        const std::string what =
                            describe(source.oldVersion ? QString(text) + " old" : text, start, value, unit)
                                .toStdString();
                        if (stays) {
                            EXPECT_EQ(result, start) << what;
                        } else if (value > 0) {
                            EXPECT_GE(result, start) << what;
                        }
                        // With hours and days to work, past the range is its end.
                        if (text == office && std::abs(value) >= 1e7 && !stays && unit < Unit::Hour) {
                            EXPECT_EQ(result, value > 0 ? 4294967295u : 0u) << what;
                        }
                    }
                }
                for (const bool hourClock : {false, true}) {
                    dayoff::startForward(calendar, start, hourClock);
                    dayoff::startBack(calendar, start, hourClock);
                    dayoff::finishForward(calendar, start, hourClock);
                    dayoff::finishBack(calendar, start, hourClock);
                }
                EXPECT_LE(dayoff::run(calendar, start), 49712u);
            }
        }
    }
}
