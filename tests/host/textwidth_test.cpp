// Texts in terminal columns.
#include "support/casename.h"
#include "textwidth.h"
#include <gtest/gtest.h>

namespace {

struct WidthCase
{
    const char *name;
    const char *text;
    int columns;
    int cutAt;
    const char *cut;
};

class TextWidth : public testing::TestWithParam<WidthCase>
{
};

TEST_P(TextWidth, isMeasuredAndCut)
{
    const QString text = QString::fromUtf8(GetParam().text);
    EXPECT_EQ(textwidth::of(text), GetParam().columns);
    const QString cut = textwidth::elided(text, GetParam().cutAt, QStringLiteral("~"));
    EXPECT_EQ(cut.toStdString(), GetParam().cut);
    EXPECT_LE(textwidth::of(cut), GetParam().cutAt);
}

INSTANTIATE_TEST_SUITE_P(
    Host, TextWidth,
    testing::Values(WidthCase{"plain", "Build", 5, 4, "Bui~"}, WidthCase{"fits", "Build", 5, 5, "Build"},
                    WidthCase{"wideCountsTwo", "设计阶段", 8, 6, "设计~"},
                    WidthCase{"wideDoesNotFitHalf", "设计阶段", 8, 4, "设~"},
                    WidthCase{"combiningCountsNothing", "e\xCC\x81t\xC3\xA9s", 4, 3, "e\xCC\x81t~"},
                    WidthCase{"markStaysWithItsLetter", "ae\xCC\x81xx", 4, 3, "ae\xCC\x81~"},
                    WidthCase{"hangulJamo", "\xE1\x84\x92\xE1\x85\xA1\xE1\x86\xAB", 2, 1, "~"},
                    WidthCase{"emoji", "\xF0\x9F\x9A\x80go", 4, 3, "\xF0\x9F\x9A\x80~"},
                    WidthCase{"halfWidthKana", "\xEF\xBD\xB1\xEF\xBD\xB2", 2, 2, "\xEF\xBD\xB1\xEF\xBD\xB2"},
                    WidthCase{"noRoom", "abc", 3, 0, ""}),
    caseName<WidthCase>);

TEST(OneLine, letsNothingSteerTheTerminal)
{
    const QString hostile = QString::fromUtf8("a\x1B[31mb\nc\td\xC2\x9B"
                                              "e\xE2\x80\xAE"
                                              "f\xE2\x80\xA8g");
    EXPECT_EQ(textwidth::oneLine(hostile).toStdString(), "a [31mb c d ef g");
    EXPECT_EQ(textwidth::oneLine(QString::fromUtf8("é设x"), true).toStdString(), "??x");
}

TEST(Padded, countsColumnsNotCharacters)
{
    EXPECT_EQ(textwidth::padded(QString::fromUtf8("设"), 4).toStdString(), "设  ");
    EXPECT_EQ(textwidth::padded(QString::fromUtf8("设"), 4, true).toStdString(), "  设");
    EXPECT_EQ(textwidth::padded(QStringLiteral("long"), 2).toStdString(), "long");
}

}
