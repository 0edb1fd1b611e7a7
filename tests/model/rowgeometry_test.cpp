// Which row and which bar lie under a point.
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "table/rowcolumndata.h"
#include <gtest/gtest.h>
#include <limits>

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

struct Rows
{
    KWDocument document;

    explicit Rows(const QList<double> &heights, const QList<int> &hiddenPositions = {})
    {
        for (int pos = 0; pos < heights.size(); ++pos) {
            auto *task = new KWTaskInfo;
            task->ID = quint32(pos) + 1;
            task->HideID = hiddenPositions.contains(pos) ? 1 : 0;
            task->x1 = 100;
            task->x2 = 200;
            document.appendTaskInfoList(task);
            document.rowColumnData()->appendRowHeight(heights[pos]);
        }
    }
};

struct RowAtCase
{
    const char *name;
    QList<double> heights;
    double y;
    bool clampToLast;
    int row;
};

TEST(RowAt, isTheBandThatContainsThePoint)
{
    // Rows begin 40 pixels below the top.
    const RowAtCase cases[] = {{"theTopEdgeBelongsToTheHead", {30, 20}, 40, false, -1},
                               {"justBelowTheHead", {30, 20}, 40.001, false, 0},
                               {"theBottomEdgeBelongsToTheRow", {30, 20}, 70, false, 0},
                               {"justBelowTheBottomEdge", {30, 20}, 70.001, false, 1},
                               {"belowTheLastRow", {30, 20}, 91, false, -1},
                               {"belowTheLastRowClamped", {30, 20}, 91, true, 1},
                               {"aboveTheFirstRowIsNeverClamped", {30, 20}, 10, true, -1},
                               {"clampedWithoutRows", {}, 91, true, -1},
                               {"aRowWithoutHeightHasNoBand", {30, 0, 20}, 70.5, false, 2},
                               {"theFirstOfTwoBandsThatOverlap", {30, -20, 40}, 60, false, 0},
                               {"belowARowWhoseHeightIsNoNumber", {30, notANumber, 20}, 80, true, -1},
                               {"noNumber", {30, 20}, notANumber, true, -1}};
    for (const RowAtCase &row : cases) {
        SCOPED_TRACE(row.name);
        Rows rows(row.heights);
        EXPECT_EQ(rows.document.getRowByPtY(row.y, row.clampToLast), row.row);
    }
}

TEST(RowGeometry, heightsAreAddedFromTheTopInOrder)
{
    // In another order these sums differ in their last bit.
    QList<double> heights;
    for (int i = 0; i < 1000; ++i)
        heights.append(i % 3 ? 0.1 : 1e9 / 7);
    Rows rows(heights);
    double y = 40;
    for (int pos = 0; pos < heights.size(); ++pos) {
        y += heights[pos];
        ASSERT_EQ(rows.document.getRowYByPos(pos, false), y) << pos;
    }
}

TEST(RowGeometry, textIsCentredInItsRow)
{
    Rows rows({30, 50, 21}, {1});
    EXPECT_EQ(rows.document.getRowYByPos(0, true), 40 + 7.5);
    EXPECT_EQ(rows.document.getRowYByRow(1, true), 70 + 3);
    EXPECT_EQ(rows.document.getRowYByRow(-1, true), 40);
    EXPECT_EQ(rows.document.getRowYByPos(-1, true), 40);
    EXPECT_EQ(Rows({}).document.getRowYByPos(0, true), 40);
    EXPECT_EQ(rows.document.rowYs(true), (std::vector<double>{47.5, 62.5, 73}));
}

struct BarCase
{
    const char *name;
    bool milestone;
    int unitWidth;
    double x;
    bool hit;
};

TEST(Bar, isHitAlongItsLength)
{
    // The bar goes from 100 to 200.
    const BarCase cases[] = {{"withinTheLeftMargin", false, 100, 98, true},
                             {"beforeTheLeftMargin", false, 100, 97.5, false},
                             {"withinTheRightMargin", false, 100, 202, true},
                             {"leftEndOfADiamondAmongWideUnits", true, 100, 142.5, true},
                             {"rightEndOfADiamondAmongWideUnits", true, 100, 157.5, true},
                             {"afterADiamondAmongWideUnits", true, 100, 158, false},
                             {"leftEndOfADiamondAmongMiddleUnits", true, 60, 122.5, true},
                             {"leftEndOfADiamondAmongNarrowUnits", true, 20, 102.5, true},
                             {"aDiamondAmongOtherUnitsStandsAtItsBar", true, 77, 100, true}};
    for (const BarCase &row : cases) {
        SCOPED_TRACE(row.name);
        Rows rows({30, 30});
        KWTaskInfo *task = rows.document.getTaskInfoAt(1);
        task->Milestone = row.milestone;
        rows.document.UnitWidth = row.unitWidth;
        constexpr bool onBar = true;
        EXPECT_EQ(rows.document.getTaskInfoByToScenePoint({row.x, 80}, onBar), row.hit ? task : nullptr);
        EXPECT_EQ(rows.document.getTaskInfoByToScenePoint({row.x, 80}, !onBar), task);
        EXPECT_EQ(rows.document.getTaskInfoByToScenePoint({row.x, 200}, onBar), nullptr);
    }
}

}
