// Durations as texts with tokens, and the other way.
#include "format/dataformat.h"
#include "support/casename.h"
#include <gtest/gtest.h>
#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

struct TextCase
{
    const char *name;
    double days;
    const char *format;
    const char *text;
};

class DurationText : public testing::TestWithParam<TextCase>
{
};

TEST_P(DurationText, isWritten)
{
    const TextCase &c = GetParam();
    EXPECT_EQ(DataFormat::durationToString(c.days, QString::fromUtf8(c.format)).toStdString(), c.text);
}

INSTANTIATE_TEST_SUITE_P(Formats, DurationText,
                         testing::Values(TextCase{"daysAndHours", 1.5, "[d] days [h] hours",
                                                  "1 days 12 hours"},
                                         TextCase{"hoursWithADecimal", 0.75, "[hh]", "18.0"},
                                         TextCase{"weeksAndDays", 10, "[w]w [d]d", "1w 3d"},
                                         TextCase{"weeksWithADecimalLeaveNothing", 10, "[ww] [d]", "1.4 0"},
                                         TextCase{"daysWithADecimal", 2.25, "[dd]", "2.3"},
                                         TextCase{"hoursAndMinutes", 0.0625, "[h]:[mm]", "1:30"},
                                         TextCase{"allSecondsOfManyYears", 49710, "[ss]", "4294944000"},
                                         TextCase{"secondsLeaveNothing", 1.5, "[ss] [d]", "129600 0"},
                                         TextCase{"thirdTokenStays", 1.5, "[d] [h] [mm]", "1 12 [mm]"},
                                         TextCase{"unknownTokenTakesNothing", 1.5, "[x][d]", "1"},
                                         TextCase{"caseCounts", 1.5, "[D][d]", "1"},
                                         TextCase{"equalTokensAreTwo", 1.5, "[d]/[d]", "1/0"},
                                         TextCase{"aTokenMadeByTextIsNone", 3, "[[d]] [d] [d]", "[3] 0 [d]"},
                                         TextCase{"quotesGo", 2, "\"[d] \"\"d\"\"\"", "2 d"},
                                         TextCase{"noToken", 2, "[1] [] d", "[1] [] d"},
                                         TextCase{"negativeTowardZero", -1.5, "[d] [h]", "-1 -12"},
                                         TextCase{"keptRestBelowAWholeNumber", 0.29 * 100, "[d]", "28"},
                                         TextCase{"infinity", infinity, "[dd]", "inf"}),
                         caseName<TextCase>);

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
    const char *name;
    const char *text;
    const char *format;
    double days;
};

class DurationRead : public testing::TestWithParam<ReadCase>
{
};

TEST_P(DurationRead, isRead)
{
    const ReadCase &c = GetParam();
    EXPECT_DOUBLE_EQ(DataFormat::durationFromString(QString::fromUtf8(c.text), QString::fromUtf8(c.format)),
                     c.days);
}

// Every number loses its first and last digit.
INSTANTIATE_TEST_SUITE_P(
    Texts, DurationRead,
    testing::Values(
        ReadCase{"innerDigits", "1730", "[d]", 73}, ReadCase{"twoDigitsAreNone", "47", "[d]", 0},
        ReadCase{"oneDigitStandsForTheRest", "1 8", "[d]", 8},
        ReadCase{"oneDigitAndWords", "7 days", "[d]", 0}, ReadCase{"aSignIsTheFirstToGo", "-150", "[d]", 15},
        ReadCase{"weeksAreCutToDays", "01.50", "[w]", 10},
        ReadCase{"weeksWithADecimal", "01.50", "[ww]", 10.5},
        ReadCase{"decimalTokenReadsNothingElse", "0120 0120", "[hh] [d]", 0.5},
        ReadCase{"decimalTokenInSecondPlace", "0120 0120", "[d] [hh]", 12},
        ReadCase{"weeksAndDays", "020 030", "[w] [d]", 17}, ReadCase{"daysTwice", "020 030", "[d] [d]", 5},
        ReadCase{"upToADayOfHours", "0240", "[h]", 1}, ReadCase{"manyHoursBecomeDays", "0300", "[h]", 1.25},
        ReadCase{"manyHoursInSecondPlace", "010 0300", "[d] [h]", 2.25},
        ReadCase{"minutesAndSeconds", "0900 0360", "[mm] [ss]", 90.0 / 1440 + 36.0 / 86400},
        ReadCase{"unknownTokenCountsItsNumber", "010 020", "[x] [d]", 2},
        ReadCase{"noNumber", "soon", "[d]", 0}, ReadCase{"noToken", "0120", "days", 0},
        ReadCase{"infinityIsNoNumber", "1inf", "[dd]", 0},
        ReadCase{"longNumberIsBounded", "09999999999999999999990", "[d]", 1e15}),
    caseName<ReadCase>);

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
