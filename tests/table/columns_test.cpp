// The table's columns and row heights, and their XML.
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "support/sortedxml.h"
#include "table/rowcolumndata.h"
#include <QDomDocument>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <memory>

namespace {

using Column = RowColumnData::ColumnData;

QString utf8(const char *text)
{
    return QString::fromUtf8(text);
}

class Columns : public testing::Test
{
protected:
    void SetUp() override
    {
        RowColumnData::s_columnNames.clear();
        for (int type = 0; type < 25; ++type)
            RowColumnData::s_columnNames.insert(type, QLatin1Char('T') + QString::number(type));
    }
    void TearDown() override { RowColumnData::s_columnNames.clear(); }

    // Columns by title, a hidden one in brackets.
    static std::string shown(const RowColumnData &table)
    {
        QStringList titles;
        for (const Column *column : table.columns())
            titles.append(column->isHide ? QLatin1Char('(') + column->title + QLatin1Char(')')
                                         : column->title.value());
        return titles.join(QLatin1Char(' ')).toStdString();
    }
    static void set(RowColumnData &table, const char *titles)
    {
        table.clearColDataList();
        const QStringList parts = utf8(titles).split(QLatin1Char(' '));
        for (const QString &part : parts) {
            auto *column = new Column;
            column->isHide = part.startsWith(QLatin1Char('('));
            column->title = column->isHide ? part.mid(1, part.size() - 2) : part;
            table.appendColumnData(column);
        }
    }
    static std::string saved(const RowColumnData &table)
    {
        QDomDocument document;
        QDomElement root = document.createElement(QStringLiteral("RowColumn"));
        table.save(root);
        return sortedXml(root);
    }
    static void parse(RowColumnData &table, const char *xml, bool skipRowHeights = false)
    {
        QDomDocument document;
        ASSERT_TRUE(document.setContent(QByteArray(xml)));
        table.parse(document.documentElement(), skipRowHeights);
    }

    KWDocument m_document;
};

TEST_F(Columns, AreFoundByPlaceAndTitle)
{
    RowColumnData table(nullptr);
    set(table, "(A) B C B");
    EXPECT_EQ(table.columnCount(), 3);
    EXPECT_EQ(table.getColumnDataByColumn(0), table.columns()[1]);
    EXPECT_EQ(table.getColumnDataByColumn(3), nullptr);
    EXPECT_EQ(table.getColumnDataByColumn(-1), nullptr);
    EXPECT_EQ(table.getColumnDataByPos(4), nullptr);
    EXPECT_EQ(table.getPosByName(utf8("B")), 1);
    EXPECT_EQ(table.getColumnByName(utf8("C")), 1);
    EXPECT_EQ(table.getColumnByName(utf8("A")), -1);
    EXPECT_EQ(table.getPosByName(QString()), -1);
    EXPECT_EQ(table.getColumnDataByName(utf8("X")), nullptr);
    // A host writes the fields itself.
    table.columns()[0]->isHide = false;
    table.columns()[2]->title = utf8("D");
    EXPECT_EQ(table.columnCount(), 4);
    EXPECT_EQ(table.getColumnByName(utf8("A")), 0);
    EXPECT_EQ(table.getPosByName(utf8("C")), -1);
    EXPECT_EQ(table.getColumnByName(utf8("D")), 2);
    table.setAllColDataHide();
    EXPECT_EQ(table.columnCount(), 0);
}

struct Move
{
    const char *name;
    int from, to;
    const char *after;
};

TEST_F(Columns, MoveByVisibleNumbers)
{
    const Move cases[] = {
        {"right", 0, 1, "(B) C A D (E)"},        {"left", 2, 0, "D A (B) C (E)"},
        {"past_the_end", 0, 9, "(B) C D A (E)"}, {"before_the_start", 1, -3, "C A (B) D (E)"},
        {"from_nowhere", 3, 0, "A (B) C D (E)"}, {"from_before", -1, 0, "A (B) C D (E)"}};
    for (const Move &row : cases) {
        SCOPED_TRACE(row.name);
        RowColumnData table(nullptr);
        set(table, "A (B) C D (E)");
        table.moveColumnDataList(row.from, row.to);
        EXPECT_EQ(shown(table), row.after);
    }
}

TEST_F(Columns, OnlyIdAndNameCannotBeReplaced)
{
    RowColumnData table(nullptr);
    set(table, "T1 T0 T2 unknown");
    EXPECT_FALSE(table.isReplaceColumn(0));
    EXPECT_FALSE(table.isReplaceColumn(1));
    EXPECT_TRUE(table.isReplaceColumn(2));
    EXPECT_FALSE(table.isReplaceColumn(3)); // a title found nowhere counts as type 0
    EXPECT_FALSE(table.isReplaceColumn(4));
}

TEST_F(Columns, ComeBackFromXml)
{
    RowColumnData table(nullptr);
    set(table, "T24 (T1) unknown");
    table.columns()[0]->width = 80.5;
    table.setRowHeights({30, 42.5, 1.0 / 3, std::numeric_limits<double>::quiet_NaN(), 1e20});
    const std::string first = saved(table);
    EXPECT_EQ(first, "RowColumn\n"
                     " RowHeightList RowHeight='30;42.5;0.333333;0;1e+20'\n"
                     " ColumnList\n"
                     "  Column IsHide='0' Key='24' Width='80.5'\n"
                     "  Column IsHide='1' Key='1' Width='0'\n"
                     "  Column IsHide='0' Key='0' Width='0'\n");
    QDomDocument document;
    QDomElement root = document.createElement(QStringLiteral("RowColumn"));
    table.save(root);
    RowColumnData loaded(nullptr);
    loaded.parse(root, false);
    EXPECT_EQ(shown(loaded), "T24 (T1) T0");
    EXPECT_EQ(saved(loaded), first);
}

TEST_F(Columns, ReadsWhatIsThere)
{
    const int titles = RowColumnData::s_columnNames.size();
    RowColumnData table(nullptr);
    table.setRowHeights({1, 2});
    set(table, "T5");
    parse(table, "<r><Other/><RowHeightList RowHeight=';;30;x;nan;-5;1e999;'/></r>");
    EXPECT_EQ(table.rowHeights(), QList<double>({30, 0, 0, -5, 0}));
    EXPECT_EQ(shown(table), "T5");
    parse(table,
          "<r><RowHeightList RowHeight='7'/><ColumnList><Column Key='999' IsHide='2' Width='nan'/>"
          "<Column Width='12'/><x Key='x'/></ColumnList></r>",
          true);
    EXPECT_EQ(table.rowHeights().size(), 5);
    EXPECT_EQ(shown(table), "()  T0");
    EXPECT_EQ(table.columns()[0]->width, 0);
    EXPECT_EQ(RowColumnData::s_columnNames.size(), titles);
}

TEST_F(Columns, RowHeightsFollowTheTaskCount)
{
    RowColumnData table(nullptr);
    table.setRowHeights({1, 2, 3});
    const quint64 before = table.revision();
    table.setRowHeightCount(2);
    EXPECT_EQ(table.rowHeights(), QList<double>({1, 2}));
    EXPECT_NE(table.revision(), before);
    table.setRowHeightCount(4);
    EXPECT_EQ(table.rowHeights(), QList<double>({1, 2, 30, 30}));
}
}
