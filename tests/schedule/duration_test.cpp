#include "engine/time/duration.h"
#include "format/dataformat.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "support/calendartext.h"
#include "support/slowcalendar.h"
#include <gtest/gtest.h>

using duration::Unit;

namespace {

struct DurationCase
{
    const char *name, *calendar, *start, *finish;
    Unit unit;
    quint32 secs;
    double value;
};

constexpr quint32 day = 86400;
const char *const office = "Mon-Fri 8-12 13-17";

}

TEST(Duration, isMeasured)
{
    // 2024-03-04 is a Monday.
    const DurationCase cases[] = {
        // 14.0125 days less 4 off are 865079.9999999999 seconds as doubles.
        {"noSecondIsLost", office, "2024-03-04", "2024-03-18 00:16", Unit::Day, 865080, 865080 / 86400.0},
        {"clockChangesDoNotCount", office, "2024-03-09 06:00", "2024-03-11 06:00", Unit::Quarter, 2 * day,
         2 / 90.0},
        {"allDaysOffCountElapsedTime", "none 8-12 13-17", "2024-03-04", "2024-03-11", Unit::Week, 7 * day, 1},
        {"aDayAloneOfPartHours", "Mon-Fri 8:30-12 13-17:30", "2024-03-04", "2024-03-05", Unit::Day, 97200,
         1.125},
        {"aHalfDayExceptionIsAFullDay", "Mon-Fri 8-12 13-17; work 2024-03-05 8-12", "2024-03-04",
         "2024-03-07", Unit::Hour, 24 * 3600, 24},
        {"oldVersionTakesPartOfADayOff", "Mon-Fri 8-12 13-17; old", "2024-03-09 18:00", "2024-03-11 12:00",
         Unit::Day, 12 * 3600, 0.5},
        {"oldVersionHoursKeepTheBreak", "Mon-Fri 8-12 13-17; old", "2024-03-04", "2024-03-06", Unit::Hour,
         18 * 3600, 18}};
    for (const DurationCase &c : cases) {
        SCOPED_TRACE(c.name);
        const CalendarText text(c.calendar);
        const worktime::WorkCalendar calendar = text.compile();
        EXPECT_EQ(duration::secs(calendar, secsOf(c.start), secsOf(c.finish), c.unit), c.secs);
        EXPECT_EQ(duration::valueBetween(calendar, secsOf(c.start), secsOf(c.finish), c.unit, false),
                  c.value);
    }
}

TEST(DurationRandom, equalsThePlainRules)
{
    std::mt19937 random(6);
    for (int round = 0; round < 150; ++round) {
        const QString text = randomCalendar(random, Hours::any) + (round % 4 ? "" : "; old");
        const CalendarText source(text);
        const worktime::WorkCalendar calendar = source.compile();
        const SlowCalendar slow(source.source());
        for (int i = 0; i < 30; ++i) {
            const quint32 start = randomMoment(random);
            const quint32 finish = i % 2 ? randomMoment(random) : start + random() % (5 * day);
            const std::string what = (text + '\n' + textOf(start) + " to " + textOf(finish)).toStdString();
            for (unsigned int unit = 0; unit <= duration::unitCount; ++unit)
                ASSERT_EQ(duration::secs(calendar, start, finish, unit),
                          slow.durationSecs(start, finish, unit))
                    << what << " in " << duration::unitName(unit);
            ASSERT_NEAR(duration::stretchDayOff(calendar, start, finish), slow.stretchDayOff(start, finish),
                        1e-9)
                << what;
        }
    }
}

// Every minute of two weeks as a number of days and back loses no second.
TEST(DurationRandom, wholeMinutesAreExact)
{
    const CalendarText text(office);
    const worktime::WorkCalendar calendar = text.compile();
    const quint32 monday = secsOf("2024-06-03");
    for (int minute = 1; minute < 14 * 540; ++minute) {
        const quint32 finish = monday + quint32(minute) * 160;
        const quint32 hours = duration::secs(calendar, monday, finish, Unit::Hour);
        ASSERT_EQ(hours % 60, 0u) << textOf(finish).toStdString();
        ASSERT_EQ(duration::secs(calendar, monday, finish, Unit::Day), hours * 3)
            << textOf(finish).toStdString();
    }
}

// A file can list as many intervals as it likes; every one adds to a day's hours.
TEST(DurationOverlaps, countAllTheirHours)
{
    CalendarText text("all 0-24");
    constexpr int intervals = 30000;
    while (text.hours.size() < intervals)
        text.hours.append(new KWDayTime(0, day));
    const quint32 start = secsOf("1971-01-01");
    const quint32 finish = secsOf("2106-01-01");
    // The first date alone has no more hours than the clock: 24 of a working day's 720,000.
    const qint64 otherDays = QDate(1971, 1, 2).daysTo(QDate(2106, 1, 1));
    EXPECT_EQ(duration::secs(text.compile(), start, finish, Unit::Day), otherDays * day + day / intervals);
}

TEST(DurationValues, unitsAndTheirNames)
{
    const CalendarText text("Mon-Thu 8-12 13-17");
    const worktime::WorkCalendar calendar = text.compile();
    QString names;
    for (unsigned int unit = 0; unit <= duration::unitCount; ++unit)
        names += QString("%1 %2, ")
                     .arg(KWTaskInfo::unitString(unit))
                     .arg(duration::value(calendar, 31104000, unit));
    EXPECT_EQ(names.toStdString(),
              "year 0.986301, quarter 4, month 12, week 90, day 360, hour 8640, minute 518400, day 0, ");
    EXPECT_EQ(duration::value(calendar, 2592000, Unit::Month), 1.0);
    const CalendarText idle("none 8-12");
    EXPECT_EQ(duration::value(idle.compile(), 604800, Unit::Week), 1.0);
}

TEST(DurationValues, roundedAsTheyAreShown)
{
    std::mt19937 random(7);
    const double special[] = {0,      0.05,   0.15, 0.25, 0.35,      2.5,
                              0.0005, 0.9995, 1e9,  1e15, 123456.75, 0.049999999999999996};
    for (int i = 0; i < 50000; ++i) {
        const unsigned int unit = random() % duration::unitCount;
        double value = random() / 1000.0 / (1 + random() % 5000);
        if (i < 12)
            value = special[i];
        else if (i % 3 == 0)
            value = double(random() % 100000) / (i % 2 ? 20 : 2000); // ties and near ties
        const int decimals = unit == Unit::Minute ? 0 : unit <= Unit::Quarter ? 3 : 1;
        ASSERT_EQ(duration::roundedValue(value, unit),
                  DataFormat::formatNumber(value, 0, decimals, 1).toDouble())
            << QString::number(value, 'g', 17).toStdString() << ' ' << duration::unitName(unit);
    }
}

TEST(TaskDurations, ofTasks)
{
    KWDocument document;
    KWTaskInfo task;
    task.Start = secsOf("2024-03-08");
    task.Finish = secsOf("2024-03-12");
    task.DurationUnits = Unit::Day;
    EXPECT_EQ(KWTaskInfo::getDurValueByTaskInfo(&document, &task), 2.0);
    task.Percent = 0.5;
    EXPECT_EQ(textOf(KWTaskInfo::getTaskPercentFinishSecs(&document, &task)).toStdString(),
              "Sat 2024-03-09 00:00");
    task.Percent = std::nan("");
    EXPECT_EQ(KWTaskInfo::getTaskPercentFinishSecs(&document, &task), task.Start);

    // On an elapsed unit a second is a second, and counts as none.
    task.DurationUnits = Unit::Month;
    task.Finish = task.Start + 1;
    EXPECT_EQ(KWTaskInfo::durationSecs(&document, task.Start, task.Finish, Unit::Month), 1u);
    EXPECT_EQ(KWTaskInfo::getDurValueByTaskInfo(&document, &task), 0.0);
    task.Finish = task.Start + 2;
    EXPECT_GT(KWTaskInfo::getDurValueByTaskInfo(&document, &task), 0.0);

    EXPECT_EQ(KWTaskInfo::durationSecs(nullptr, 1, 2, Unit::Day), 0u);
    EXPECT_EQ(KWTaskInfo::getDurationValue(nullptr, 86400, Unit::Day), 0.0);
    EXPECT_EQ(KWTaskInfo::backwardsDateTime(nullptr, 77, 1, Unit::Day), 77u);
    EXPECT_EQ(KWTaskInfo::getTaskPercentFinishSecs(&document, nullptr), 0u);
}
