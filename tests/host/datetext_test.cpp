// Dates, times of day, durations, weekdays and hours as people write them.
#include "datetext.h"
#include "texts.h"
#include "writtencalendar.h"
#include <gtest/gtest.h>

namespace {

struct TextCase
{
    const char *name, *text;
    const char *read; // "" : refused
};

TEST(MomentText, isReadOrRefused)
{
    const TextCase cases[] = {{"seconds", "2013-05-06T15:00:30", "2013-05-06 15:00:30"},
                              {"blankBetween", " 2026-01-05 17:30 ", "2026-01-05 17:30:00"},
                              {"dayEndIsTheNextMidnight", "2026-01-05T24:00", "2026-01-06 00:00:00"},
                              {"noLeapDay", "2026-02-29", ""},
                              {"noSuchDay", "31/02/2026", ""},
                              {"pastTheDayEnd", "2026-01-05T24:01", ""},
                              {"tooEarly", "1969-12-31", ""},
                              {"tooLate", "2106-01-01", ""},
                              {"behindIt", "2026-01-05Tuesday", ""}};
    for (const TextCase &row : cases) {
        SCOPED_TRACE(row.name);
        datetext::Moment moment;
        const bool isRead = datetext::parseMoment(QString::fromUtf8(row.text), moment);
        const QString form =
            moment.hasTime ? QStringLiteral("yyyy-MM-dd HH:mm:ss") : QStringLiteral("yyyy-MM-dd");
        EXPECT_EQ(isRead ? moment.when().toString(form).toStdString() : "", row.read);
    }
}

TEST(MomentText, ofAnotherZoneIsTheSameMoment)
{
    datetext::Moment moment;
    ASSERT_TRUE(datetext::parseMoment(QStringLiteral("2026-01-05T08:00:00+03:00"), moment));
    EXPECT_EQ(moment.when().toSecsSinceEpoch(),
              QDateTime(QDate(2026, 1, 5), QTime(5, 0), Qt::UTC).toSecsSinceEpoch());
    EXPECT_EQ(moment.when().timeSpec(), Qt::LocalTime);
}

TEST(DurationText, isReadOrRefused)
{
    const TextCase cases[] = {{"half", "0.5 days", "0.5d"},     {"comma", "1,5w", "1.5w"},
                              {"hours", "12 hrs", "12h"},       {"minutes", "30min", "30min"},
                              {"shortMinutes", "90m", "90min"}, {"months", "2mon", "2mon"},
                              {"quarters", "2 quarters", "2q"}, {"estimated", "3 days?", "3d"},
                              {"upperCase", "3 D", "3d"},       {"negative", "-3d", ""},
                              {"unknownUnit", "3 moons", ""},   {"twoPoints", "1.2.3d", ""},
                              {"elapsed", "3ed", ""},           {"endless", "1e9d", ""},
                              {"pastTheCalendar", "50000d", ""}};
    for (const TextCase &row : cases) {
        SCOPED_TRACE(row.name);
        datetext::Duration duration;
        const bool isRead = datetext::parseDuration(QString::fromUtf8(row.text), duration);
        EXPECT_EQ(isRead ? datetext::durationText(duration.value, duration.unit).toStdString() : "",
                  row.read);
    }
}

TEST(DaysText, isReadOrRefused)
{
    const TextCase cases[] = {{"range", "Mon-Fri", "Mon-Fri"},
                              {"list", "mon-thu,Saturday", "Mon-Thu, Sat"},
                              {"overTheWeekend", "Sat-Mon", "Mon, Sat-Sun"},
                              {"none", "none", "no working day"},
                              {"noDay", "Mon-Frob", ""},
                              {"empty", "Mon,,Tue", ""}};
    for (const TextCase &row : cases) {
        SCOPED_TRACE(row.name);
        WorkingTime workingTime;
        const bool isRead = writtencalendar::parseDays(QString::fromUtf8(row.text), workingTime);
        EXPECT_EQ(isRead
                      ? writtencalendar::describe(workingTime).section(QLatin1Char(' '), 0, -3).toStdString()
                      : "",
                  row.read);
    }
}

TEST(HoursText, isReadOrRefused)
{
    const TextCase cases[] = {{"short", "9-17", "09:00-17:00"},
                              {"toMidnight", "16:00-24:00", "16:00-24:00"},
                              {"toMidnightAsZero", "16:00-00:00", "16:00-24:00"},
                              {"backwards", "12:00-08:00", ""},
                              {"overlapping", "08:00-13:00,12:00-17:00", ""},
                              {"pastTheDay", "08:00-25:00", ""},
                              {"noEnd", "08:00", ""}};
    for (const TextCase &row : cases) {
        SCOPED_TRACE(row.name);
        WorkingTime workingTime;
        const bool isRead = writtencalendar::parseHours(QString::fromUtf8(row.text), workingTime);
        EXPECT_EQ(isRead ? writtencalendar::describe(workingTime).section(QLatin1Char(' '), 1).toStdString()
                         : "",
                  row.read);
    }
}

}
