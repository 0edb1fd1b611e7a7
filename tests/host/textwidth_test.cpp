// Texts in terminal columns.
#include "textwidth.h"
#include <gtest/gtest.h>

namespace {

struct WidthCase
{
    const char *name, *text;
    int columns, cutAt;
    const char *cut;
};

TEST(TextWidth, isMeasuredAndCut)
{
    const WidthCase cases[] = {
        {"wideCountsTwo", "设计阶段", 8, 6, "设计~"},
        {"wideDoesNotFitHalf", "设计阶段", 8, 4, "设~"},
        {"combiningCountsNothing", "e\xCC\x81t\xC3\xA9s", 4, 3, "e\xCC\x81t~"},
        {"markStaysWithItsLetter", "ae\xCC\x81xx", 4, 3, "ae\xCC\x81~"},
        {"hangulJamo", "\xE1\x84\x92\xE1\x85\xA1\xE1\x86\xAB", 2, 1, "~"},
        {"emoji", "\xF0\x9F\x9A\x80go", 4, 3, "\xF0\x9F\x9A\x80~"},
        {"halfWidthKana", "\xEF\xBD\xB1\xEF\xBD\xB2", 2, 2, "\xEF\xBD\xB1\xEF\xBD\xB2"},
        {"noRoom", "abc", 3, 0, ""}};
    for (const WidthCase &row : cases) {
        SCOPED_TRACE(row.name);
        const QString text = QString::fromUtf8(row.text);
        EXPECT_EQ(textwidth::of(text), row.columns);
        const QString cut = textwidth::elided(text, row.cutAt, QStringLiteral("~"));
        EXPECT_EQ(cut.toStdString(), row.cut);
        EXPECT_LE(textwidth::of(cut), row.cutAt);
    }
}

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
