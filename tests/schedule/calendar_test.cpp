#include "engine/time/calendarcache.h"
#include "schedule/kwcalendar.h"
#include "support/calendartext.h"
#include "support/kwclock.h"
#include "support/zonescope.h"
#include <QDateTime>
#include <QDomDocument>
#include <gtest/gtest.h>

namespace {

// "Mayday 2024-05-01..2024-05-02 exception off 28800-43200 46800-61200"
std::string describe(const KWCalendar &calendar)
{
    QString text = calendar.name + ' ' + calendar.startDate.toString(Qt::ISODate) + ".." +
                   calendar.finishDate.toString(Qt::ISODate) +
                   (calendar.isException ? " exception" : " plain") + (calendar.isWork ? " work" : " off");
    for (const KWDayTime *interval : calendar.dayTimes)
        text += QString(" %1-%2").arg(interval->start).arg(interval->finish);
    return text.toStdString();
}

QDomElement element(QDomDocument &document, const QString &attributes)
{
    document.setContent("<CdCalendar " + attributes + "/>");
    return document.documentElement();
}

QString secs(const char *date)
{
    return QString::number(secsOf(date));
}

struct ParseCase
{
    const char *name, *attributes, *result;
};

}

TEST(CalendarXml, isRead)
{
    const ParseCase cases[] = {
        {"nothing", "", " 2024-07-01..2024-07-01 plain work"},
        {"flagsAreNumbers", "CdIsException='7' CdIsWork='x'", " 2024-07-01..2024-07-01 exception off"},
        {"aMissingFinishIsNoon", "CdStartTime='0;28800;46800' CdFinishTime='1;43200'",
         " 2024-07-01..2024-07-01 plain work 0-1 28800-43200 46800-43200"},
        {"badPartsAreZero", "CdStartTime='x;;-5;4294967296;3000000000' CdFinishTime='7;;y'",
         " 2024-07-01..2024-07-01 plain work 0-7 0-0 0-0 0-43200 3000000000-43200"},
        {"finishesWithoutStarts", "CdFinishTime='7;8'", " 2024-07-01..2024-07-01 plain work"}};
    for (const ParseCase &row : cases) {
        SCOPED_TRACE(row.name);
        KWClock::set(QDateTime(QDate(2024, 7, 1), QTime(9, 0)));
        KWCalendar calendar;
        KWClock::set(QDateTime());
        QDomDocument document;
        calendar.parse(element(document, row.attributes), 0);
        EXPECT_EQ(describe(calendar), row.result);
    }
}

TEST(CalendarXmlText, isWrittenInSecondsAndReadBack)
{
    KWCalendar calendar;
    calendar.name = QString("half day \"%2\" & \x01 more");
    calendar.startDate = QDate(2024, 3, 10); // a clock changes that day
    calendar.finishDate = QDate(2024, 3, 11);
    calendar.isException = true;
    calendar.dayTimes = {new KWDayTime(28800, 43200), new KWDayTime(46800, 61200)};
    QDomDocument document;
    QDomElement list = document.createElement("CdCalendarList");
    document.appendChild(list);
    calendar.saveTo(list, 0);
    EXPECT_EQ(list.firstChildElement("CdCalendar").attribute("CdFinishDate"), secs("2024-03-11"));

    // Through a text and back; what XML cannot carry is gone.
    QDomDocument read;
    ASSERT_TRUE(read.setContent(document.toString()));
    KWCalendar again;
    again.dayTimes.append(new KWDayTime(1, 2));
    again.parse(read.documentElement().firstChildElement(), 0);
    calendar.name.remove(QChar(1));
    EXPECT_EQ(describe(again), describe(calendar));
    again.parse(QDomElement(), 0);
    EXPECT_EQ(describe(again), describe(calendar)) << "a null element changes nothing";

    QDomDocument nameless;
    again.parse(element(nameless, "CdExceptionName=''"), 0);
    EXPECT_EQ(again.name, "") << "an exception without a name keeps none of the name before";
}

TEST(Calendars, copiesOwnTheirIntervals)
{
    KWCalendar calendar;
    calendar.name = "first";
    calendar.dayTimes = {new KWDayTime(1, 2), new KWDayTime(3, 4)};
    KWCalendar copy(calendar);
    KWCalendar assigned;
    assigned.dayTimes.append(new KWDayTime(9, 9));
    assigned = calendar;
    const KWCalendar &same = assigned;
    assigned = same;
    calendar.getDayTimeAt(0)->start = 100;
    calendar.removeDayTimesAt(1);
    calendar.removeDayTimesAt(1);
    calendar.removeDayTimesAt(-1);
    EXPECT_EQ(calendar.dayTimes.size(), 1);
    EXPECT_EQ(calendar.getDayTimeAt(1), nullptr);
    EXPECT_EQ(describe(copy), describe(assigned));
    EXPECT_EQ(copy.getDayTimeAt(0)->start, 1u);
    EXPECT_EQ(copy.getDayTimeAt(1)->finish, 4u);
    copy.clear();
    EXPECT_EQ(copy.name, "first");
    EXPECT_TRUE(copy.dayTimes.isEmpty());
}

TEST(CalendarCaches, seeEveryChange)
{
    CalendarText text("Mon-Fri 8-12 13-17; off 2024-05-01; work 2024-05-04 8-12");
    CalendarCache cache;
    const auto works = [&](int dayOfMay) {
        return cache.get(text.source()).isWorkday(LocalClock::dayOf(QDate(2024, 5, dayOfMay)));
    };
    EXPECT_FALSE(works(1));
    text.exceptions[0]->isWork = true;
    EXPECT_TRUE(works(1));
    text.exceptions[0]->finishDate = QDate(2024, 5, 5);
    EXPECT_TRUE(works(5));
    text.exceptions[0]->startDate = QDate(2024, 5, 6); // now it covers nothing
    EXPECT_FALSE(works(5));
    text.exceptions[1]->isException = false;
    EXPECT_FALSE(works(4));
    text.workingDays[5] = true;
    EXPECT_TRUE(works(4));
    const worktime::WorkCalendar *made = &cache.get(text.source());
    EXPECT_EQ(&cache.get(text.source()), made) << "nothing changed";
    text.hours[1]->finish = 18 * 3600;
    EXPECT_EQ(cache.get(text.source()).hoursPerDay(), 9);
    text.exceptions.swapItemsAt(0, 1);
    text.exceptions[0]->dayTimes[0]->start = 9 * 3600;
    const quint64 before = worktime::WorkCalendar::digest(text.source());
    text.exceptions.swapItemsAt(0, 1);
    EXPECT_NE(worktime::WorkCalendar::digest(text.source()), before) << "the order matters";
    text.oldVersion = true;
    EXPECT_TRUE(cache.get(text.source()).oldVersion());
    const ZoneScope zone("Asia/Kathmandu");
    EXPECT_EQ(cache.get(text.source()).clock().wall(0).secs, 5 * 3600 + 30 * 60);
}

TEST(CalendarTables, invalidDatesCoverWhatLiesBetweenThem)
{
    CalendarText text("none 8-12");
    auto calendar = std::make_unique<KWCalendar>();
    calendar->isException = true;
    calendar->startDate = QDate();
    calendar->finishDate = QDate(2024, 5, 1);
    KWCalendar *exception = calendar.get();
    text.exceptions.append(calendar.release());
    const int day = LocalClock::dayOf(QDate(2024, 5, 1));
    EXPECT_TRUE(text.compile().isWorkday(0));
    EXPECT_TRUE(text.compile().isWorkday(day));
    EXPECT_FALSE(text.compile().isWorkday(day + 1));
    exception->finishDate = QDate();
    EXPECT_FALSE(text.compile().isWorkday(LocalClock::firstDay));
    exception->startDate = QDate(1900, 1, 1);
    exception->finishDate = QDate(1960, 1, 1);
    EXPECT_FALSE(text.compile().isWorkday(LocalClock::firstDay));
    exception->startDate = QDate(2150, 1, 1);
    exception->finishDate = QDate(2160, 1, 1);
    EXPECT_FALSE(text.compile().isWorkday(LocalClock::lastDay));
}
