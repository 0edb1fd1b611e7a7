// Where rows, columns and cells of the drawn table are, against the document's own answers.
#include "model/randomdocument.h"
#include "resources/resourceinfodata.h"
#include "table/customtable.h"
#include "table/rowcolumndata.h"
#include <gtest/gtest.h>

namespace {

class Tables : public testing::Test
{
protected:
    Tables()
    {
        for (int type = 0; type < 25; ++type)
            RowColumnData::s_columnNames.insert(type, QLatin1Char('T') + QString::number(type));
    }
    ~Tables() override { RowColumnData::s_columnNames.clear(); }
};

TEST_F(Tables, answerAsTheDocument)
{
    for (unsigned int seed = 0; seed < 20; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        KWDocument document;
        randomdocument::fill(document, random);
        if (seed > 0) // the first has heights and widths that are no numbers, too
            for (int pos = 0; pos < document.taskCount(); ++pos)
                document.rowColumnData()->replaceRowHeight(pos, random() % 50);
        RowColumnData &columns = *document.rowColumnData();
        const CustomTable table(&document);
        ASSERT_EQ(table.columnCount(), columns.columnCount());
        ASSERT_EQ(table.rowCount(), columns.rowCount());
        double x = 0;
        for (int column = 0; column < table.columnCount(); ++column) {
            const HeadItem &head = table.heads()[std::size_t(column)];
            EXPECT_EQ(head.title, columns.getColumnDataByColumn(column)->title);
            EXPECT_EQ(head.x, x);
            EXPECT_EQ(table.columnAtX(x), column);
            x += head.width;
            EXPECT_EQ(table.columnAtX(std::nextafter(x, 0)), column);
        }
        EXPECT_EQ(table.columnAtX(x), -1);
        for (int row = 0; row < table.rowCount(); ++row) {
            EXPECT_EQ(table.taskRow(row).task, document.getTaskInfoByRow(row));
            if (seed > 0) {
                EXPECT_EQ(table.taskRow(row).height(), columns.getRowHeightByRow(row));
                EXPECT_EQ(table.taskRow(row).bottom, document.getRowYByRow(row, false));
            }
            for (int column = 0; column < table.columnCount(); ++column)
                EXPECT_EQ(table.cell(row, column).text, columns.itemText(row, column));
        }
        for (double y = 0; seed > 0 && y < table.bottom() + 60; y += 3.5)
            EXPECT_EQ(table.rowAtY(y), document.getRowByPtY(y, false)) << y;
        EXPECT_EQ(table.taskRow(table.rowCount()).row, -1);
        EXPECT_TRUE(table.cell(0, table.columnCount()).rect.isNull());
    }
}

TEST_F(Tables, showChosenColumnsAndResources)
{
    KWDocument document;
    document.addTaskInfo()->Name = QStringLiteral("Build");
    document.rowColumnData()->setAllColDataHide();
    const CustomTable tasks(&document, {1, 99, 0});
    ASSERT_EQ(tasks.columnCount(), 2);
    EXPECT_EQ(tasks.cell(0, 0).text, QStringLiteral("Build"));
    EXPECT_EQ(tasks.cell(0, 0).rect, QRectF(0, 40, 240, 30));
    EXPECT_TRUE(tasks.cell(0, 1).isRightAligned);

    for (const char *name : {"Ana", "Ben", "Cem"}) {
        auto *info = new ResourceInfo;
        info->name = QString::fromLatin1(name);
        document.resourceInfoData()->appendResourceInfo(info);
    }
    const CustomTable resources(&document,
                                QMap<int, QString>{{1, QStringLiteral("Name")}, {4, QStringLiteral("Rate")}});
    EXPECT_EQ(resources.cell(2, 0).text, QStringLiteral("Cem"));
    EXPECT_EQ(resources.cell(2, 1).text, QStringLiteral("0/h"));
    EXPECT_EQ(resources.rowCount(), 3);
    const struct
    {
        double y;
        int row;
    } rows[] = {{40, -1}, {40.5, 0}, {70, 0}, {70.5, 1}, {130, 2}, {130.5, -1}, {-1e300, -1}, {qQNaN(), -1}};
    for (const auto &each : rows)
        EXPECT_EQ(resources.rowAtY(each.y), each.row) << each.y;
    EXPECT_EQ(CustomTable(nullptr).rowAtY(50), -1);
}
}
