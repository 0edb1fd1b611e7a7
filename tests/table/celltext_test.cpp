// The text of every kind of cell.
#include "engine/record/resource.h"
#include "engine/text/celltext.h"
#include "engine/text/columntypes.h"
#include "format/dataformat.h"
#include "support/project.h"
#include "table/documenttexts.h"
#include "table/rowcolumndata.h"
#include <QLocale>
#include <QScopeGuard>
#include <gtest/gtest.h>
#include <limits>

namespace {

// A project with a column for every type, none of them hidden, in the order of the types.
class Cells : public testing::Test
{
protected:
    Cells()
    {
        RowColumnData::s_columnNames.clear();
        for (int type = 0; type < columntypes::count; ++type)
            RowColumnData::s_columnNames.insert(type, QLatin1Char('T') + QString::number(type));
    }
    ~Cells() override
    {
        RowColumnData::s_columnNames.clear();
        RowColumnData::s_priorityNames.clear();
        DataFormat::s_deftCurrencyFmt = QStringLiteral("%1");
        DataFormat::s_deftDateFmt = 0;
    }
    static void showAllColumns(Project &p)
    {
        RowColumnData &table = *p.document().rowColumnData();
        auto *predecessors = new RowColumnData::ColumnData;
        predecessors->title = QStringLiteral("T24");
        table.appendColumnData(predecessors);
        for (RowColumnData::ColumnData *column : table.columns())
            column->isHide = false;
    }
    // Every cell that has a text, one a line: type and text.
    static std::string row(Project &p, const char *name)
    {
        std::string text;
        const int row = p.document().getRowByTaskID(p.task(name).ID);
        for (int type = 0; type < columntypes::count; ++type) {
            const QString cell = p.document().rowColumnData()->itemText(row, type);
            if (!cell.isEmpty())
                text += std::to_string(type) + ": " + cell.toStdString() + '\n';
        }
        return text;
    }
    static std::string cell(Project &p, const char *name, int type)
    {
        return celltext::ofType(DocumentTexts(p.document()), p.task(name), type,
                                {DataFormat::dateFormat(), false})
            .toStdString();
    }
};

constexpr char walls[] = "Mon-Fri 8-12 13-17, start 2024-06-03";
constexpr char tasks[] = "House\n"
                         "  Walls 2.5d 30%\n"
                         "  Roof 3d after Walls\n"
                         "  Done milestone after Roof\n";

// An assignment with an hourly rate.
void assign(Project &p, const char *task, const char *resource, double rate)
{
    p.task(task).addOrDelResourceByName(&p.document(), resource, true);
    p.task(task).getResourceByName(resource)->cost = rate;
    p.task(task).updateCostAndWork(&p.document());
}

TEST_F(Cells, ofALeaf)
{
    Project p(walls, tasks);
    showAllColumns(p);
    KWTaskInfo &task = p.task("Walls");
    assign(p, "Walls", "Ann", 100.125);
    task.Priority = 500;
    task.Notes = QStringLiteral("dry");
    task.BaselineCost = QStringLiteral("1234.5");
    task.BaseStart = task.Start;
    task.BaseFinish = task.Finish;
    KWHyperlink *link = task.hyperlinks.autoAddHyperlink();
    link->name = QStringLiteral("Plan");
    link->address = QStringLiteral("a.org");
    EXPECT_EQ(row(p, "Walls"), "0: 2\n"
                               "1: Walls\n"
                               "2: 2024-06-03\n"
                               "3: 2024-06-05\n"
                               "4: 2.5d\n"
                               "5: 30%\n"
                               "6: 500\n"
                               "7: Ann\n"
                               "8: Plan\n"
                               "9: 2,002.5\n"
                               "10: 1,401.75\n"
                               "11: 2.5d\n"
                               "12: 2024-06-03\n"
                               "13: 2024-06-05\n"
                               "14: 2024-06-03\n"
                               "15: 2024-06-05\n"
                               "16: 0 d\n"
                               "17: 0 d\n"
                               "18: 1\n"
                               "19: dry\n"
                               "20: 2024-06-03\n"
                               "21: 2024-06-05\n"
                               "22: 1,234.5\n"
                               "23: 2\n");
    EXPECT_EQ(cell(p, "Roof", 24), "2");
}

TEST_F(Cells, ofCostsAreEmptyWithoutAssignments)
{
    Project p(walls, tasks);
    for (const char *name : {"House", "Roof"}) {
        p.task(name).Cost = p.task(name).RemainingCost = p.task(name).Work = 5;
        for (int type = 9; type <= 11; ++type)
            EXPECT_EQ(cell(p, name, type), "") << name << ' ' << type;
    }
    assign(p, "Walls", "Ann", 0);
    EXPECT_EQ(cell(p, "Walls", 9), "0");
    EXPECT_EQ(cell(p, "House", 11), "25h"); // 20 for the walls, and what the host wrote
}

// A finish at midnight, shown as the end of its day and as the beginning of the next.
TEST_F(Cells, ofFinishesShownLikeStartsAreADayLater)
{
    Project p(walls, "Walls 2d\n");
    KWTaskInfo &task = p.task("Walls");
    task.BaseFinish = task.LateFinish = task.Finish;
    EXPECT_EQ(cell(p, "Walls", 3), "2024-06-04");
    EXPECT_EQ(cell(p, "Walls", 13), "2024-06-05");
    EXPECT_EQ(cell(p, "Walls", 15), "2024-06-04");
    EXPECT_EQ(cell(p, "Walls", 21), "2024-06-05");
}

TEST_F(Cells, followTheFormats)
{
    Project p(walls, tasks);
    assign(p, "Walls", "Ann", 10);
    p.task("Walls").Priority = 3;
    RowColumnData::s_priorityNames[3] = QStringLiteral(" high");
    DataFormat::s_deftCurrencyFmt = QStringLiteral("%1 EUR");
    DataFormat::s_deftDateFmt = 2;
    EXPECT_EQ(cell(p, "Walls", 2), "3.6.2024");
    EXPECT_EQ(cell(p, "Walls", 6), "3 high");
    EXPECT_EQ(cell(p, "Walls", 9), "200 EUR");
    EXPECT_EQ(cell(p, "Walls", 11), "2.5d");
    DataFormat::s_deftCurrencyFmt = QStringLiteral("EUR");
    DataFormat::s_deftDateFmt = 99;
    EXPECT_EQ(cell(p, "Walls", 9), "200");
    EXPECT_EQ(cell(p, "Walls", 2), "2024-06-03");
}

TEST_F(Cells, areTheSameInEveryLocale)
{
    const auto reset = qScopeGuard([] { QLocale::setDefault(QLocale::c()); });
    Project p(walls, tasks);
    assign(p, "Walls", "Ann", 1000.5);
    for (const QLocale::Language language : {QLocale::German, QLocale::Arabic}) {
        QLocale::setDefault(QLocale(language));
        EXPECT_EQ(cell(p, "Walls", 9), "20,010");
        EXPECT_EQ(cell(p, "Walls", 2), "2024-06-03");
    }
}

TEST_F(Cells, ofOtherValues)
{
    Project p(walls, "Walls 2w\nRoof 90min\n");
    KWTaskInfo &task = p.task("Walls");
    task.ID = std::numeric_limits<quint32>::max();
    task.Level = -3;
    task.Priority = std::numeric_limits<qint32>::min();
    task.BaselineCost = QStringLiteral("much");
    task.setPercent(0.125);
    EXPECT_EQ(cell(p, "Walls", 0), "4294967295");
    EXPECT_EQ(cell(p, "Walls", 23), "-3");
    EXPECT_EQ(cell(p, "Walls", 6), "-2147483648");
    EXPECT_EQ(cell(p, "Walls", 22), "0");
    EXPECT_EQ(cell(p, "Walls", 4), "2w");
    EXPECT_EQ(cell(p, "Walls", 5), "12.5%");
    EXPECT_EQ(cell(p, "Roof", 4), "90min");
    EXPECT_EQ(cell(p, "Roof", 22), "");
    EXPECT_EQ(cell(p, "Roof", 25), "");
    EXPECT_EQ(cell(p, "Roof", -1), "");
}

TEST_F(Cells, areFoundByVisibleRowAndColumn)
{
    Project p(walls, "House\n"
                     "  Walls\n"
                     "Garden\n");
    RowColumnData &table = *p.document().rowColumnData();
    p.document().collapseTaskInfo(&p.task("House"));
    table.getColumnDataByPos(0)->isHide = true;
    EXPECT_EQ(table.itemText(1, 0), "Garden");
    EXPECT_EQ(table.itemText(2, 0), "");
    EXPECT_EQ(table.itemText(-1, 0), "");
    EXPECT_EQ(table.itemText(0, -1), "");
    EXPECT_EQ(table.itemText(0, table.columnCount()), "");
    // A title that stands for nothing counts as the first type.
    table.getColumnDataByColumn(0)->title = QStringLiteral("Unknown");
    EXPECT_EQ(table.itemText(1, 0), "3");
    EXPECT_EQ(RowColumnData(nullptr).itemText(0, 0), "");
}

// Across clock changes and zones without midnights, in working days that end at any hour.
TEST_F(Cells, ShowMomentsLikeShowDateTime)
{
    for (const char *hours : {"8-12 13-17", "0-24", "22-24", "0-2 3-5"}) {
        Project p((std::string("Mon-Fri ") + hours).c_str(), "A\n");
        KWDocument &document = p.document();
        quint32 secs = 1;
        for (int i = 0; i < 20000; ++i) {
            secs = secs * 1664525 + 1013904223;
            if (i % 4 == 0) // near a midnight
                secs = secs / 3600 * 3600;
            for (const bool start : {true, false}) {
                const QDateTime slow = KWTaskInfo::showDateTime(&document, secs, start);
                const QDateTime quick = celltext::shownMoment(document.workCalendar(), secs, start);
                ASSERT_TRUE(quick.date() == slow.date() && quick.time() == slow.time())
                    << hours << ' ' << secs << ' ' << start << ' ' << qPrintable(slow.toString(Qt::ISODate))
                    << ' ' << qPrintable(quick.toString(Qt::ISODate));
            }
        }
    }
}
}
