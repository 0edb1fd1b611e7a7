// Durations as texts with tokens, and the other way.
#include "format/dataformat.h"
#include <gtest/gtest.h>
#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

struct TextCase
{
    const char *name;
    double days;
    const char *format, *text;
};

TEST(DurationText, isWritten)
{
    const TextCase cases[] = {{"daysAndHours", 1.5, "[d] days [h] hours", "1 days 12 hours"},
                              {"hoursWithADecimal", 0.75, "[hh]", "18.0"},
                              {"weeksWithADecimalLeaveNothing", 10, "[ww] [d]", "1.4 0"},
                              {"hoursAndMinutes", 0.0625, "[h]:[mm]", "1:30"},
                              {"allSecondsOfManyYears", 49710, "[ss]", "4294944000"},
                              {"secondsLeaveNothing", 1.5, "[ss] [d]", "129600 0"},
                              {"thirdTokenStays", 1.5, "[d] [h] [mm]", "1 12 [mm]"},
                              {"equalTokensAreTwo", 1.5, "[d]/[d]", "1/0"},
                              {"aTokenMadeByTextIsNone", 3, "[[d]] [d] [d]", "[3] 0 [d]"},
                              {"quotesGo", 2, "\"[d] \"\"d\"\"\"", "2 d"},
                              {"negativeTowardZero", -1.5, "[d] [h]", "-1 -12"},
                              {"keptRestBelowAWholeNumber", 0.29 * 100, "[d]", "28"},
                              {"infinity", infinity, "[dd]", "inf"}};
    for (const TextCase &c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(DataFormat::durationToString(c.days, QString::fromUtf8(c.format)).toStdString(), c.text);
    }
}

TEST(DurationText, aTokenKeepsTheRestForTheNext)
{
    double value = 9.75;
    EXPECT_EQ(DataFormat::formatDuration(value, "w"), "1");
    EXPECT_EQ(value, 2.75);
    EXPECT_EQ(DataFormat::formatDuration(value, "nothing"), "");
    EXPECT_EQ(value, 2.75);
    EXPECT_EQ(DataFormat::formatDuration(value, "d"), "2");
    EXPECT_EQ(DataFormat::formatDuration(value, "h"), "18");
    EXPECT_EQ(value, 0.0);
}

struct ReadCase
{
    const char *name, *text, *format;
    double days;
};

TEST(DurationRead, isRead)
{
    // Every number loses its first and last digit.
    const ReadCase cases[] = {{"innerDigits", "1730", "[d]", 73},
                              {"twoDigitsAreNone", "47", "[d]", 0},
                              {"oneDigitStandsForTheRest", "1 8", "[d]", 8},
                              {"oneDigitAndWords", "7 days", "[d]", 0},
                              {"aSignIsTheFirstToGo", "-150", "[d]", 15},
                              {"weeksAreCutToDays", "01.50", "[w]", 10},
                              {"weeksWithADecimal", "01.50", "[ww]", 10.5},
                              {"decimalTokenReadsNothingElse", "0120 0120", "[hh] [d]", 0.5},
                              {"decimalTokenInSecondPlace", "0120 0120", "[d] [hh]", 12},
                              {"weeksAndDays", "020 030", "[w] [d]", 17},
                              {"upToADayOfHours", "0240", "[h]", 1},
                              {"manyHoursBecomeDays", "0300", "[h]", 1.25},
                              {"manyHoursInSecondPlace", "010 0300", "[d] [h]", 2.25},
                              {"minutesAndSeconds", "0900 0360", "[mm] [ss]", 90.0 / 1440 + 36.0 / 86400},
                              {"unknownTokenCountsItsNumber", "010 020", "[x] [d]", 2},
                              {"noToken", "0120", "days", 0},
                              {"infinityIsNoNumber", "1inf", "[dd]", 0},
                              {"longNumberIsBounded", "09999999999999999999990", "[d]", 1e15}};
    for (const ReadCase &c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_DOUBLE_EQ(
            DataFormat::durationFromString(QString::fromUtf8(c.text), QString::fromUtf8(c.format)), c.days);
    }
}

TEST(DurationParts, areJoinedAndTaken)
{
    EXPECT_EQ(DataFormat::timeToDuration(1, 12, 0, 0), 1.5);
    EXPECT_DOUBLE_EQ(DataFormat::timeToDuration(0, 0, 3, 30), 210.0 / 86400);
    int days = -1, hours = -1, minutes = -1, seconds = -1;
    DataFormat::durationToTime(1.5 + 0.5 / 1440, days, hours, minutes, seconds);
    EXPECT_EQ((std::vector<int>{days, hours, minutes, seconds}), (std::vector<int>{1, 12, 0, 30}));
    DataFormat::durationToTime(-2.25, days, hours, minutes, seconds);
    EXPECT_EQ((std::vector<int>{days, hours, minutes, seconds}), (std::vector<int>{-2, -6, 0, 0}));
    DataFormat::durationToTime(std::numeric_limits<double>::quiet_NaN(), days, hours, minutes, seconds);
    EXPECT_EQ((std::vector<int>{days, hours, minutes, seconds}), (std::vector<int>{0, 0, 0, 0}));
}
}
