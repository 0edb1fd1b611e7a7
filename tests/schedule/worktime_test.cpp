#include "engine/time/dayoff.h"
#include "engine/time/worktime.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"
#include "support/calendartext.h"
#include "support/kwclock.h"
#include "support/slowcalendar.h"
#include <QScopedValueRollback>
#include <gtest/gtest.h>

namespace {

const char *const office = "Mon-Fri 8-12 13-17";

// A document with that working time.
class Planned : public KWDocument
{
public:
    explicit Planned(const QString &text)
    {
        CalendarText calendar(text);
        std::copy(calendar.workingDays, calendar.workingDays + 7, WorkDay);
        workTimes.swap(calendar.hours);
        calendars.swap(calendar.exceptions);
    }
};

QDateTime at(const char *text)
{
    return QDateTime::fromSecsSinceEpoch(secsOf(text));
}

std::string shown(const QDateTime &moment)
{
    return moment.isValid() ? textOf(quint32(moment.toSecsSinceEpoch())).toStdString() : "invalid";
}

std::string shown(quint32 secs)
{
    return textOf(secs).toStdString();
}

// ---- Hours ------------------------------------------------------------------------------------------------

struct HoursCase
{
    const char *name, *calendar;
    int startHour, finishHour, workHours, breakHours;
    const char *works; // one letter for each hour from 0 to 23, of 2024-05-01
};

}

TEST(DayHours, ofACalendarKept)
{
    const HoursCase cases[] = {
        {"onlyBreaksRestWithTwoIntervals", office, 8, 17, 8, 1, "wwwwwwwwwwww.wwwwwwwwwww"},
        {"theFinishHourWorksWithOneInterval", "Mon-Fri 8-17", 8, 17, 9, 0, "........wwwwwwwwww......"},
        {"noHours", "Mon-Fri", 0, 0, 0, 0, "w......................."},
        {"exceptionsOnlyAddHours", "Mon-Fri 8-12; work 2024-05-01 14-16:30", 8, 12, 4, 0,
         "........wwwww.ww........"},
        {"aPlainCalendarGivesBreaksButNoHours", "Mon-Fri 8-17; plain 2024-05-01 2-3 6-7", 8, 17, 9, 3,
         "........wwwwwwwwww......"}};
    for (const HoursCase &c : cases) {
        SCOPED_TRACE(c.name);
        Planned document(c.calendar);
        const QDateTime day = at("2024-05-01");
        QString works;
        for (int hour = 0; hour < 24; ++hour)
            works += KWTaskInfo::isWorkTime(&document, QDateTime(day.date(), QTime(hour, 59))) ? 'w' : '.';
        EXPECT_EQ(works.toStdString(), c.works);
        EXPECT_EQ(KWTaskInfo::startOrFinishHour(&document, true), quint32(c.startHour));
        EXPECT_EQ(KWTaskInfo::startOrFinishHour(&document, false), quint32(c.finishHour));
        EXPECT_EQ(KWTaskInfo::dayWorkTime(&document, day), quint32(c.workHours));
        EXPECT_EQ(KWTaskInfo::dayTimeOff(&document, day), quint32(c.breakHours));
    }
}

TEST(Workdays, theFirstExceptionThatCoversADateDecides)
{
    Planned document(
        "Mon-Fri 8-12; work 2024-05-04; off 2024-05-01..2024-05-04; plain 2024-05-06; work 2024-05-02");
    QString works;
    for (QDate date(2024, 4, 29); date <= QDate(2024, 5, 7); date = date.addDays(1))
        works += KWTaskInfo::isWorkday(&document, date.startOfDay()) ? 'w' : '.';
    EXPECT_EQ(works.toStdString(), "ww...w.ww");
    EXPECT_TRUE(KWTaskInfo::dateOnDayOff(&document, at("2024-05-01 09:00")));
    EXPECT_FALSE(KWTaskInfo::isWorkday(&document, QDateTime()));
    std::fill(document.WorkDay, document.WorkDay + 7, false);
    EXPECT_FALSE(KWTaskInfo::dateOnDayOff(&document, at("2024-05-01 09:00"))) << "no weekday works";
    EXPECT_TRUE(KWTaskInfo::isWorkday(&document, at("2024-05-04"))) << "changes of the options are seen";
}

TEST(Workdays, areCountedByDates)
{
    Planned document(office);
    EXPECT_EQ(KWTaskInfo::totalDayOff(&document, secsOf("2024-03-09"), secsOf("2024-03-10 23:00")), 2u);
    EXPECT_EQ(KWTaskInfo::totalDayOff(&document, secsOf("2024-03-08 17:00"), secsOf("2024-03-16 00:00")), 3u);
    EXPECT_EQ(KWTaskInfo::totalDayOff(&document, secsOf("2024-03-10"), secsOf("2024-03-09")), 0u);
    EXPECT_EQ(KWTaskCollection::continuousDayOff(&document, secsOf("2024-03-09 12:00")), 2u);
    EXPECT_EQ(KWTaskCollection::continuousDayOff(&document, secsOf("2024-03-08")), 0u);
    QList<unsigned int> days = {9};
    KWTaskInfo::onWeekWorkDays(&document, days, false);
    EXPECT_EQ(days, (QList<unsigned int>{9, 5, 6}));

    const CalendarText text("Mon-Fri 8-12; off 2024-03-12");
    const worktime::WorkCalendar calendar = text.compile();
    const int saturday = LocalClock::dayOf(QDate(2024, 3, 9));
    EXPECT_EQ(calendar.addWorkdays(saturday, 0), saturday + 2);
    EXPECT_EQ(calendar.addWorkdays(saturday, 1), saturday + 2);
    EXPECT_EQ(calendar.addWorkdays(saturday, -1), saturday - 1);
    EXPECT_EQ(calendar.addWorkdays(saturday + 2, 1), saturday + 4) << "Monday to Wednesday";
    EXPECT_EQ(calendar.addWorkdays(saturday + 4, -2), saturday - 1);
    EXPECT_EQ(calendar.addWorkdays(saturday, 100000), worktime::WorkCalendar::noDay);
    EXPECT_EQ(calendar.addWorkdays(saturday, -100000), worktime::WorkCalendar::noDay);
}

// ---- The two clocks ---------------------------------------------------------------------------------------

namespace {

struct ClockCase
{
    const char *name, *calendar, *stored, *shown;
};

bool isOld(const char *calendar)
{
    return QString(calendar).endsWith("old");
}

}

TEST(StoredToShown, onTheHourClock)
{
    const ClockCase cases[] = {
        {"29SecondsGoDown", "Mon-Fri 8-17", "2024-03-04 00:01:18", "Mon 2024-03-04 08:00"},
        {"30SecondsGoUp", "Mon-Fri 8-17", "2024-03-04 00:01:20", "Mon 2024-03-04 08:01"},
        {"39SecondsGoDownInOldVersions", "Mon-Fri 8-17; old", "2024-03-04 00:01:44", "Mon 2024-03-04 08:00"},
        {"40SecondsGoUpInOldVersions", "Mon-Fri 8-17; old", "2024-03-04 00:01:47", "Mon 2024-03-04 08:01"},
        {"lastSecondIsTheFinishHour", "Mon-Fri 8-17", "2024-03-04 23:59:59", "Mon 2024-03-04 17:00"},
        {"noSpan", "Mon-Fri 8-8", "2024-03-04 15:00", "Mon 2024-03-04 08:00"}};
    for (const ClockCase &row : cases) {
        SCOPED_TRACE(row.name);
        const QScopedValueRollback<bool> old(KWDocument::s_isOldVersion, isOld(row.calendar));
        Planned document(row.calendar);
        EXPECT_EQ(shown(KWTaskInfo::secsDayTransHour(&document, secsOf(row.stored))), row.shown);
    }
}

TEST(ShownToStored, onTheDayClock)
{
    const ClockCase cases[] = {
        {"theFinishHourIsTheNextMidnight", "Mon-Fri 8-17", "Tue 2024-03-05 00:00", "2024-03-04 17:00"},
        {"afterTheFinishHourLandsOnTheNextDay", "Mon-Fri 8-17", "Tue 2024-03-05 02:40", "2024-03-04 18:00"},
        {"beforeTheStartHourStays", "Mon-Fri 8-17", "Mon 2024-03-04 06:00", "2024-03-04 06:00"},
        {"beforeTheStartHourGoesBackInOldVersions", "Mon-Fri 8-17; old", "Sun 2024-03-03 18:40",
         "2024-03-04 06:00"},
        {"aSpanToMidnightIsASecondShort", "all 16-24", "Mon 2024-03-04 23:57:02", "2024-03-04 23:59"},
        {"noSpan", "Mon-Fri 8-8", "Mon 2024-03-04 15:00", "2024-03-04 15:00"}};
    for (const ClockCase &row : cases) {
        SCOPED_TRACE(row.name);
        const QScopedValueRollback<bool> old(KWDocument::s_isOldVersion, isOld(row.calendar));
        Planned document(row.calendar);
        EXPECT_EQ(shown(KWTaskInfo::secsHourTransDay(&document, secsOf(row.shown))), row.stored);
    }
}

TEST(Clocks, theEndOfADayKeepsItsDateUntilMidnight)
{
    for (const char *hours : {"all 8-17", "all 0-24", "all 16-24", "all 16-24; old"}) {
        const CalendarText text(hours);
        const worktime::WorkCalendar calendar = text.compile();
        const qint64 midnight = secsOf("2024-03-05");
        const worktime::HourPoint end = toHourClock(calendar, midnight - 1);
        EXPECT_EQ(end.secs, calendar.finishHour() * 3600) << hours;
        EXPECT_EQ(LocalClock::dateOf(end.day), QDate(2024, 3, 4)) << hours;
        EXPECT_EQ(toDayClock(calendar, end), midnight) << hours;
    }
}

// ---- Shown and typed times --------------------------------------------------------------------------------

TEST(ShownTimes, ofStartsAndFinishes)
{
    Planned document("Mon-Fri 8-17");
    EXPECT_EQ(shown(KWTaskInfo::showDateTime(&document, secsOf("2024-03-04"), true)), "Mon 2024-03-04 08:00");
    EXPECT_EQ(shown(KWTaskInfo::showDateTime(&document, secsOf("2024-03-09"), false)),
              "Fri 2024-03-08 17:00");
    EXPECT_EQ(shown(KWTaskInfo::showDateTime(&document, secsOf("2024-03-08 12:00"), false)),
              "Fri 2024-03-08 12:30");
    EXPECT_EQ(shown(KWTaskInfo::showDateTime(&document, 0, false)), "invalid");
    EXPECT_EQ(shown(KWTaskInfo::showDateTime(nullptr, 1, true)), "invalid");
    EXPECT_EQ(shown(KWTaskInfo::getDateTime(at("2024-03-09"))), "Fri 2024-03-08 23:59:59");
}

TEST(ShownTimes, keptAsMidnightOfItsDateAroundTheClock)
{
    Planned document("all 0-24");
    EXPECT_EQ(shown(KWTaskInfo::showDateTime(&document, secsOf("2024-03-09"), false)),
              "Fri 2024-03-08 00:00");
}

namespace {

struct TypedCase
{
    const char *name, *typed, *start;
    const char *finish; // the last day; its storing caller adds one
};

}

TEST(TypedTimes, inStoredFormKept)
{
    const TypedCase cases[] = {
        {"inside", "2024-03-05 12:30", "Tue 2024-03-05 12:00", "Mon 2024-03-04 12:00"},
        {"atTheFinishHour", "2024-03-05 17:00", "Wed 2024-03-06 00:00", "Tue 2024-03-05 00:00"},
        {"inTheFinishHour", "2024-03-05 17:54", "Wed 2024-03-06 02:24", "Tue 2024-03-05 02:24"},
        {"after", "2024-03-05 18:00", "Wed 2024-03-06 00:00", "Tue 2024-03-05 00:00"},
        {"before", "2024-03-05 07:59", "Tue 2024-03-05 00:00", "Tue 2024-03-05 00:00"}};
    for (const TypedCase &row : cases) {
        SCOPED_TRACE(row.name);
        Planned document("Mon-Fri 8-17");
        EXPECT_EQ(shown(KWTaskInfo::editTimeTransDayTime(&document, at(row.typed), true)), row.start);
        EXPECT_EQ(shown(KWTaskInfo::editTimeTransDayTime(&document, at(row.typed), false)), row.finish);
    }
}

TEST(TypedTimesOf, aShownFinishGiveTheStoredOneADayLater)
{
    Planned document(office);
    std::mt19937 random(3);
    for (int i = 0; i < 2000; ++i) {
        // Whole minutes of the hour clock are 160 seconds of the day clock.
        const quint32 midnight = secsOf("2024-06-01");
        const quint32 finish = midnight + (1 + random() % (60 * 540)) * 160;
        const QDateTime typed = KWTaskInfo::showDateTime(&document, finish, false);
        const QDateTime stored = KWTaskInfo::editTimeTransDayTime(&document, typed, false).addDays(1);
        ASSERT_EQ(shown(stored), shown(finish)) << shown(typed);
    }
}

TEST(TimesOfDay, toSecondsAndBack)
{
    KWClock::set(QDateTime(QDate(2024, 3, 4), QTime(13, 47, 59)));
    EXPECT_EQ(KWTaskInfo::timeToSecs(QTime(0, 0), false), 86400u);
    EXPECT_EQ(KWTaskInfo::timeToSecs(QTime(0, 0), true), 0u);
    EXPECT_EQ(KWTaskInfo::timeToSecs(QTime(8, 30, 59), true), 30600u);
    EXPECT_EQ(KWTaskInfo::timeToSecs(QTime(), false), 13u * 3600 + 47 * 60) << "the current minute";
    EXPECT_EQ(KWTaskInfo::secsToTime(86400), QTime(0, 0));
    EXPECT_EQ(KWTaskInfo::secsToTime(86459), QTime(0, 0));
    EXPECT_EQ(KWTaskInfo::secsToTime(86460), QTime(13, 47));
    EXPECT_EQ(KWTaskInfo::secsToTime(4294967295u), QTime(13, 47));
    EXPECT_EQ(KWTaskInfo::secsToTime(30659), QTime(8, 30));
    KWClock::set(QDateTime(QDate(2024, 3, 4), QTime(0, 0, 30)));
    EXPECT_EQ(KWTaskInfo::timeToSecs(QTime(), false), 0u) << "only a valid midnight is a day's end";
    KWClock::set(QDateTime());
}

// ---- Measures ---------------------------------------------------------------------------------------------

TEST(Measures, equalThePlainRules)
{
    std::mt19937 random(4);
    for (int round = 0; round < 150; ++round) {
        const QString text = randomCalendar(random, Hours::any) + (round % 5 ? "" : "; old");
        const CalendarText source(text);
        const worktime::WorkCalendar calendar = source.compile();
        const SlowCalendar slow(source.source());
        for (int i = 0; i < 15; ++i) {
            const quint32 secs = randomMoment(random);
            const quint32 later = secs + random() % (12 * 86400);
            const std::string what = (text + '\n' + textOf(secs) + " to " + textOf(later)).toStdString();
            const SlowCalendar::Point wall = SlowCalendar::wall(secs);
            const int day = calendar.clock().wall(secs).day;
            ASSERT_EQ(calendar.isWorkday(day), slow.isWorkday(wall.date)) << what;
            ASSERT_EQ(calendar.breakHours(day), slow.dayTimeOff(wall.date)) << what;
            for (int hour = 0; hour < 24; ++hour)
                ASSERT_EQ(calendar.isWorkHour(day, hour), slow.isWorkTime(wall.date, hour)) << what << hour;
            const int from = int(random() % 86400);
            const int to = int(random() % 86400);
            ASSERT_NEAR(double(calendar.breakSecs(day, from, to)),
                        slow.breakHours(wall.date, from, to) * 3600, 1e-6)
                << what;

            ASSERT_EQ(shown(worktime::secsDayTransHour(calendar, secs)),
                      shown(quint32(SlowCalendar::moment(slow.toHour(wall)))))
                << what;
            ASSERT_EQ(shown(worktime::secsHourTransDay(calendar, secs)),
                      shown(quint32(SlowCalendar::moment(slow.toDay(wall)))))
                << what;
            ASSERT_EQ(int(worktime::totalDayOff(calendar, secs, later)),
                      slow.daysOff(wall.date, SlowCalendar::wall(later).date))
                << what;
            for (const unsigned int unit : {4u, 5u})
                ASSERT_NEAR(worktime::totalWorkDays(calendar, secs, later, unit),
                            slow.totalWorkDays(secs, later, unit), 1e-9)
                    << what;
            const SlowCalendar::Point end = SlowCalendar::wall(later);
            ASSERT_NEAR(
                worktime::workHours(calendar, {day, wall.secs}, {LocalClock::dayOf(end.date), end.secs}),
                slow.workHours(wall, end), 1e-9)
                << what;
        }
    }
}

// ---- Days off ---------------------------------------------------------------------------------------------

namespace {

struct DayOffCase
{
    const char *name;
    const char *shown; // a point of the hour clock
    const char *startForward, *startBack, *finishForward, *finishBack;
};

std::string onHourClock(Planned &document, quint32 stored)
{
    return textOf(KWTaskInfo::secsDayTransHour(&document, stored)).mid(4).toStdString();
}

}

TEST(DayOff, movesOutOfDatesAndHours)
{
    // 08:00 is where the day clock has midnight: the end of the date before for a finish. 2024-03-09 is a
    // Saturday.
    const DayOffCase cases[] = {{"inABreak", "2024-03-05 12:30", "2024-03-05 13:00", "2024-03-05 11:30",
                                 "2024-03-05 13:30", "2024-03-05 12:00"},
                                {"atABreaksEnd", "2024-03-05 13:00", "2024-03-05 13:00", "2024-03-05 13:00",
                                 "2024-03-05 14:00", "2024-03-05 12:00"},
                                {"atFridaysEnd", "2024-03-09 08:00", "2024-03-11 08:00", "2024-03-08 08:00",
                                 "2024-03-09 08:00", "2024-03-09 08:00"},
                                {"onSundayInABreak", "2024-03-10 12:30", "2024-03-11 13:00",
                                 "2024-03-08 11:30", "2024-03-11 13:30", "2024-03-08 12:00"}};
    for (const DayOffCase &c : cases) {
        SCOPED_TRACE(c.name);
        Planned document(office);
        const quint32 stored = KWTaskInfo::secsHourTransDay(&document, secsOf(c.shown));
        EXPECT_EQ(onHourClock(document, KWTaskCollection::moveForwarstartOnDayOff(&document, stored, true)),
                  c.startForward);
        EXPECT_EQ(
            onHourClock(document, KWTaskCollection::moveBackOneDayStartOnDayOff(&document, stored, true)),
            c.startBack);
        EXPECT_EQ(onHourClock(document, KWTaskCollection::addFinishOnDayOff(&document, stored, true)),
                  c.finishForward);
        EXPECT_EQ(onHourClock(document, KWTaskCollection::reduceFinishOnDayOff(&document, stored, true)),
                  c.finishBack);
    }
}

TEST(DayOffs, aDraggedFinishEndsWithTheLastWorkedDay)
{
    Planned document(office);
    EXPECT_EQ(shown(KWTaskInfo::removeLastDayOff(&document, secsOf("2024-03-10 15:00"))),
              "Sat 2024-03-09 00:00");
    EXPECT_EQ(shown(KWTaskInfo::removeLastDayOff(&document, secsOf("2024-03-09 00:00"))),
              "Sat 2024-03-09 00:00");
    EXPECT_EQ(shown(KWTaskInfo::removeLastDayOff(&document, secsOf("2024-03-08 15:00"))),
              "Fri 2024-03-08 15:00");
}

TEST(DayOffs, aFinishSecondsIntoMondayIsFridaysEnd)
{
    Planned document(office);
    const quint32 finish = secsOf("2024-03-11 00:00:20");
    EXPECT_EQ(shown(KWTaskCollection::reduceFinishOnDayOff(&document, finish, true)), "Sat 2024-03-09 00:00");
}

TEST(DayOffs, nothingMovesWhereNothingWorks)
{
    for (const char *text : {"none 8-12 13-17", "Mon-Fri 8-12 13-17; off 1960-01-01..2200-01-01"}) {
        Planned document(text);
        const quint32 saturday = secsOf("2024-03-09 06:00");
        EXPECT_EQ(KWTaskCollection::moveForwarstartOnDayOff(&document, saturday, false), saturday) << text;
        EXPECT_EQ(KWTaskCollection::moveBackOneDayStartOnDayOff(&document, saturday, false), saturday)
            << text;
        EXPECT_EQ(KWTaskCollection::addFinishOnDayOff(&document, saturday, false), saturday) << text;
        EXPECT_EQ(KWTaskCollection::reduceFinishOnDayOff(&document, saturday, false), saturday) << text;
        EXPECT_EQ(KWTaskInfo::removeLastDayOff(&document, saturday), saturday) << text;
    }
    EXPECT_EQ(KWTaskCollection::moveForwarstartOnDayOff(nullptr, 5, false), 0u);
}

TEST(DayOffs, equalThePlainRules)
{
    std::mt19937 random(5);
    for (int round = 0; round < 200; ++round) {
        const QString text = randomCalendar(random, Hours::any);
        const CalendarText source(text);
        const worktime::WorkCalendar calendar = source.compile();
        const SlowCalendar slow(source.source());
        for (int i = 0; i < 20; ++i) {
            const quint32 secs = i < 18         ? randomMoment(random)
                                 : random() % 2 ? random() % 999999
                                                : 4294967295u - random() % 999999;
            const bool hourClock = random() % 2;
            const std::string what =
                (text + '\n' + textOf(secs) + (hourClock ? " with hours" : "")).toStdString();
            ASSERT_EQ(shown(dayoff::startForward(calendar, secs, hourClock)),
                      shown(slow.startForward(secs, hourClock)))
                << what;
            ASSERT_EQ(shown(dayoff::startBack(calendar, secs, hourClock)),
                      shown(slow.startBack(secs, hourClock)))
                << what;
            ASSERT_EQ(shown(dayoff::finishForward(calendar, secs, hourClock)),
                      shown(slow.finishForward(secs, hourClock)))
                << what;
            ASSERT_EQ(shown(dayoff::finishBack(calendar, secs, hourClock)),
                      shown(slow.finishBack(secs, hourClock)))
                << what;
        }
    }
}
