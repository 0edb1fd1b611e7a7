// Which rows the sheets of a workbook have, and the text of every field.
#include "engine/record/resource.h"
#include "exchange/planexport.h"
#include "format/dataformat.h"
#include "resources/resourceinfodata.h"
#include "support/project.h"
#include "support/workbooktitles.h"
#include <gtest/gtest.h>

namespace {

using exceltitles::Sheet;

// Rows as lines, cells joined by "|".
class TextSink : public planexport::RowSink
{
public:
    void begin(int rows, int columns) override
    {
        m_text = std::to_string(rows) + " x " + std::to_string(columns) + '\n';
    }
    void row(int row, int depth, const std::vector<planexport::Cell> &cells) override
    {
        m_text += std::to_string(row) + std::string(std::size_t(depth), '>') + ':';
        for (const planexport::Cell &cell : cells) {
            m_text += ' ' + cell.text.toStdString();
            if (cell.value != planexport::Value::None)
                m_text += '=' + QString::number(cell.number, 'g', 8).toStdString();
            m_text += &cell == &cells.back() ? "\n" : " |";
        }
    }
    const std::string &text() const { return m_text; }

private:
    std::string m_text;
};

class PlanExport : public testing::Test
{
protected:
    ~PlanExport() override { DataFormat::s_deftCurrencyFmt = QStringLiteral("%1"); }
    static std::string sheet(KWDocument &document, Sheet which, const char *titles, bool values = false,
                             int maxRows = 1000)
    {
        WorkbookTitles::choose(which, titles);
        TextSink sink;
        const bool isWhole = planexport::Rows(document).write(which, sink, maxRows, values);
        return sink.text() + (isWhole ? "" : "cut\n");
    }

    const WorkbookTitles m_titles;
};

TEST_F(PlanExport, WritesHiddenRowsAndCountsPredecessorsByWrittenRow)
{
    Project p("Mon-Fri 8-12 13-17, start 2024-06-03", "Shell\n"
                                                      "  Walls 2d\n"
                                                      "  Roof 3h after Walls\n"
                                                      "Paint 30min after Roof, Walls\n");
    p.task("Walls").setPercent(0.125);
    p.task("Paint").Notes = "a|b";
    p.document().collapseTaskInfo(&p.task("Shell"));
    // A title that is in no table falls back to the type of its entry, here 0.
    EXPECT_EQ(sheet(p.document(), exceltitles::TaskSheet, "T1 T23 T24 T2 T3 T4 T5 T18 T19 T20 other"),
              "5 x 11\n"
              "1: T1 | T23 | T24 | T2 | T3 | T4 | T5 | T18 | T19 | T20 | other\n"
              "2: Shell | 1 |  | 2024-06-03 08:00 | 2024-06-05 11:00 | 2.4d | 0% | 0 |  |  | 1\n"
              "3>: Walls | 2 |  | 2024-06-03 08:00 | 2024-06-04 17:00 | 2d | 12.5% | 1 |  |  | 2\n"
              "4>: Roof | 2 | 2 | 2024-06-05 08:00 | 2024-06-05 11:00 | 3h | 0% | 1 |  |  | 3\n"
              "5: Paint | 1 | 3; 2 | 2024-06-05 11:00 | 2024-06-05 11:30 | 30min | 0% | 1 | a|b |  | 4\n");
    EXPECT_EQ(sheet(p.document(), exceltitles::TaskSheet, "T0 T2 T5", true, 3),
              "3 x 3\n1: T0 | T2 | T5\n"
              "2: 1=1 | 2024-06-03 08:00=45446.333 | 0%=0\n"
              "3>: 2=2 | 2024-06-03 08:00=45446.333 | 12.5%=0.125\ncut\n");
    EXPECT_EQ(sheet(p.document(), exceltitles::TaskSheet, ""), "0 x 0\n");
}

TEST_F(PlanExport, WritesResourcesAndRepeatsAssignmentsUnderEachSummary)
{
    DataFormat::s_deftCurrencyFmt = QStringLiteral("$%1");
    Project p("Mon-Fri 8-12 13-17, start 2024-06-03", "House\n"
                                                      "  Shell\n"
                                                      "    Walls 2d\n"
                                                      "  Paint 90min\n");
    KWDocument &document = p.document();
    const auto addResource = [&](const char *name, int type, double rate, int unit) {
        auto *info = new ResourceInfo;
        info->ID = document.resourceInfoData()->maxID();
        info->name = QString::fromUtf8(name);
        info->type = type;
        info->unit = 2.5;
        info->cost = rate;
        info->costUnit = unit;
        info->costPer = 0.5;
        info->email = "a@b";
        document.resourceInfoData()->appendResourceInfo(info);
    };
    addResource("Ann", 0, 1234.5, 2);
    addResource("Brick", 1, 0.25, 1);
    p.task("Walls").addOrDelResourceByName(&document, "Ann", true);
    p.task("Walls").addOrDelResourceByName(&document, "Brick", true);
    p.task("Walls").getResourceByName("Brick")->percent = 1500;
    p.task("Paint").addOrDelResourceByName(&document, "Ann", true);
    // A summary's rows count the work in the unit of the task it belongs to.
    p.task("House").DurationUnits = 5;
    EXPECT_EQ(sheet(document, exceltitles::ResourceSheet, "R0 R1 R2 R3 R4 R5 R6 R7 R8 R9 x"),
              "3 x 11\n1: R0 | R1 | R2 | R3 | R4 | R5 | R6 | R7 | R8 | R9 | x\n"
              "2: 1 | Ann | 250% | work | $1,234.5/d | $0/h | $0.5 |  | a@b |  | \n"
              "3: 2 | Brick | 250% | material | $0.25/h | $0/h | $0.5 |  | a@b |  | \n");
    const std::string assignments = "2: House | Ann | 0% | 16 h | 100%\n"
                                    "3: House | Brick | 0% | 1500 | 1500\n"
                                    "4: House | Ann | 0% | 90 min | 100%\n"
                                    "5: Shell | Ann | 0% | 16 h | 100%\n"
                                    "6: Shell | Brick | 0% | 1500 | 1500\n"
                                    "7: Walls | Ann | 0% | 16 h | 100%\n"
                                    "8: Walls | Brick | 0% | 1500 | 1500\n"
                                    "9: Paint | Ann | 0% | 90 min | 100%\n";
    EXPECT_EQ(sheet(document, exceltitles::AssignmentSheet, "A0 A1 A2 A3 A4"),
              "9 x 5\n1: A0 | A1 | A2 | A3 | A4\n" + assignments);
    // Titles that the host has not told us stand in the usual order.
    EXPECT_EQ(sheet(document, exceltitles::AssignmentSheet, "a b c d e"),
              "9 x 5\n1: a | b | c | d | e\n" + assignments);
    EXPECT_EQ(sheet(document, exceltitles::AssignmentSheet, "A4 A3", true, 5),
              "5 x 2\n1: A4 | A3\n2: 100%=1 | 16 h=16\n3: 1500=1500 | 1500=1500\n4: 100%=1 | 90 min=1.5\n"
              "5: 100%=1 | 16 h=16\ncut\n");
}

// A ring of summaries and a child of two: each task is written once, and every summary has the assignments
// below it.
TEST_F(PlanExport, EndsOnDamagedOutlines)
{
    Project p("Mon-Fri 8-12 13-17, start 2024-06-03", "A\n  B\n    C 1d\nD\n  E 1d\n");
    KWDocument &document = p.document();
    p.task("B").Childs.append(p.task("A").ID);
    p.task("D").Childs.append(p.task("C").ID);
    p.task("D").Childs.append(77);
    p.task("C").addOrDelResourceByName(&document, "Ann", true);
    EXPECT_EQ(sheet(document, exceltitles::TaskSheet, "T1"),
              "6 x 1\n1: T1\n2: A\n3>: B\n4>>: C\n5: D\n6>: E\n");
    EXPECT_EQ(sheet(document, exceltitles::AssignmentSheet, "A0"), "5 x 1\n1: A0\n2: A\n3: B\n4: C\n5: D\n");
    p.task("A").ParentID = 99;
    EXPECT_EQ(planexport::Rows(document).unreachedTasks(), 2); // C is reached through D
}
}
