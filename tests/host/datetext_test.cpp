// Dates, times of day, durations, weekdays and hours as people write them.
#include "datetext.h"
#include "support/casename.h"
#include "texts.h"
#include "workingtime.h"
#include <gtest/gtest.h>

namespace {

struct TextCase
{
    const char *name;
    const char *text;
    const char *read; // "" : refused
};

class MomentText : public testing::TestWithParam<TextCase>
{
};

TEST_P(MomentText, isReadOrRefused)
{
    datetext::Moment moment;
    const bool isRead = datetext::parseMoment(QString::fromUtf8(GetParam().text), moment);
    const QString form =
        moment.hasTime ? QStringLiteral("yyyy-MM-dd HH:mm:ss") : QStringLiteral("yyyy-MM-dd");
    EXPECT_EQ(isRead ? moment.when.toString(form).toStdString() : "", GetParam().read);
}

INSTANTIATE_TEST_SUITE_P(
    Host, MomentText,
    testing::Values(TextCase{"date", "2026-01-05", "2026-01-05"},
                    TextCase{"minutes", "2026-01-05T08:00", "2026-01-05 08:00:00"},
                    TextCase{"seconds", "2013-05-06T15:00:30", "2013-05-06 15:00:30"},
                    TextCase{"blankBetween", " 2026-01-05 17:30 ", "2026-01-05 17:30:00"},
                    TextCase{"dayEndIsKeptOnItsDate", "2026-01-05T24:00", "2026-01-05 23:59:59"},
                    TextCase{"leapDay", "2024-02-29", "2024-02-29"}, TextCase{"noLeapDay", "2026-02-29", ""},
                    TextCase{"noSuchDay", "31/02/2026", ""}, TextCase{"noSuchMonth", "2026-13-01", ""},
                    TextCase{"noSuchHour", "2026-01-05T25:00", ""},
                    TextCase{"pastTheDayEnd", "2026-01-05T24:01", ""}, TextCase{"tooEarly", "1969-12-31", ""},
                    TextCase{"tooLate", "2106-01-01", ""}, TextCase{"words", "next week", ""},
                    TextCase{"behindIt", "2026-01-05Tuesday", ""}),
    caseName<TextCase>);

TEST(MomentText, ofAnotherZoneIsTheSameMoment)
{
    datetext::Moment moment;
    ASSERT_TRUE(datetext::parseMoment(QStringLiteral("2026-01-05T08:00:00+03:00"), moment));
    EXPECT_EQ(moment.when.toSecsSinceEpoch(),
              QDateTime(QDate(2026, 1, 5), QTime(5, 0), Qt::UTC).toSecsSinceEpoch());
    EXPECT_EQ(moment.when.timeSpec(), Qt::LocalTime);
}

class DurationText : public testing::TestWithParam<TextCase>
{
};

TEST_P(DurationText, isReadOrRefused)
{
    datetext::Duration duration;
    const bool isRead = datetext::parseDuration(QString::fromUtf8(GetParam().text), duration);
    EXPECT_EQ(isRead ? datetext::durationText(duration.value, duration.unit).toStdString() : "",
              GetParam().read);
}

INSTANTIATE_TEST_SUITE_P(
    Host, DurationText,
    testing::Values(TextCase{"days", "3d", "3d"}, TextCase{"half", "0.5 days", "0.5d"},
                    TextCase{"comma", "1,5w", "1.5w"}, TextCase{"bareIsDays", "8", "8d"},
                    TextCase{"nothing", "0d", "0d"}, TextCase{"hours", "12 hrs", "12h"},
                    TextCase{"minutes", "30min", "30min"}, TextCase{"shortMinutes", "90m", "90min"},
                    TextCase{"months", "2mon", "2mon"}, TextCase{"months2", "2 mo", "2mon"},
                    TextCase{"years", "1y", "1y"}, TextCase{"quarters", "2 quarters", "2q"},
                    TextCase{"estimated", "3 days?", "3d"}, TextCase{"upperCase", "3 D", "3d"},
                    TextCase{"negative", "-3d", ""}, TextCase{"unknownUnit", "3 moons", ""},
                    TextCase{"noNumber", "d", ""}, TextCase{"twoPoints", "1.2.3d", ""},
                    TextCase{"elapsed", "3ed", ""}, TextCase{"endless", "1e9d", ""},
                    TextCase{"pastTheCalendar", "50000d", ""}),
    caseName<TextCase>);

class DaysText : public testing::TestWithParam<TextCase>
{
};

TEST_P(DaysText, isReadOrRefused)
{
    WorkingTime workingTime;
    const bool isRead = workingtime::parseDays(QString::fromUtf8(GetParam().text), workingTime);
    EXPECT_EQ(isRead ? workingtime::describe(workingTime).section(QLatin1Char(' '), 0, -3).toStdString() : "",
              GetParam().read);
}

INSTANTIATE_TEST_SUITE_P(Host, DaysText,
                         testing::Values(TextCase{"range", "Mon-Fri", "Mon-Fri"},
                                         TextCase{"list", "mon-thu,Saturday", "Mon-Thu, Sat"},
                                         TextCase{"overTheWeekend", "Sat-Mon", "Mon, Sat-Sun"},
                                         TextCase{"single", "Wed", "Wed"},
                                         TextCase{"none", "none", "no working day"},
                                         TextCase{"noDay", "Mon-Frob", ""},
                                         TextCase{"empty", "Mon,,Tue", ""}),
                         caseName<TextCase>);

class HoursText : public testing::TestWithParam<TextCase>
{
};

TEST_P(HoursText, isReadOrRefused)
{
    WorkingTime workingTime;
    const bool isRead = workingtime::parseHours(QString::fromUtf8(GetParam().text), workingTime);
    EXPECT_EQ(isRead ? workingtime::describe(workingTime).section(QLatin1Char(' '), 1).toStdString() : "",
              GetParam().read);
}

INSTANTIATE_TEST_SUITE_P(
    Host, HoursText,
    testing::Values(TextCase{"two", "08:00-12:00,13:00-17:00", "08:00-12:00 13:00-17:00"},
                    TextCase{"short", "9-17", "09:00-17:00"},
                    TextCase{"toMidnight", "16:00-24:00", "16:00-24:00"},
                    TextCase{"toMidnightAsZero", "16:00-00:00", "16:00-24:00"},
                    TextCase{"backwards", "12:00-08:00", ""},
                    TextCase{"overlapping", "08:00-13:00,12:00-17:00", ""},
                    TextCase{"pastTheDay", "08:00-25:00", ""}, TextCase{"noEnd", "08:00", ""}),
    caseName<TextCase>);

}
