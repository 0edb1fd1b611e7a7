// What a workbook's sheets become, and what the findings say of what is spoilt.
#include "engine/record/resource.h"
#include "engine/text/columntypes.h"
#include "exchange/planexport.h"
#include "resources/resourceinfodata.h"
#include "support/gridbook.h"
#include "support/kwclock.h"
#include "support/workbooktitles.h"
#include <gtest/gtest.h>

namespace {

const char *const taskTitles[] = {"ID",         "Name",       "Start",       "Finish",      "Duration",
                                  "Complete",   "Priority",   "Names",       "Links",       "Cost",
                                  "Remaining",  "Work",       "EarlyStart",  "EarlyFinish", "LateStart",
                                  "LateFinish", "StartSlack", "FinishSlack", "Critical",    "Notes",
                                  "BaseStart",  "BaseFinish", "BaseCost",    "Level",       "After"};
const char *const resourceTitles[] = {"ID",       "Name",   "Units", "Type",  "Rate",
                                      "Overtime", "PerUse", "Group", "Email", "Notes"};
const char *const assignmentTitles[] = {"Task", "Resource", "Complete", "Work", "Units"};

class PlanImport : public testing::Test
{
protected:
    PlanImport()
    {
        for (int type = 0; type < columntypes::count; ++type)
            RowColumnData::s_columnNames.insert(type, QString::fromLatin1(taskTitles[type]));
        for (int key = 0; key < 10; ++key)
            ExcelTitles::s_resourcNames.insert(key, QString::fromLatin1(resourceTitles[key]));
        for (int key = 0; key < 5; ++key)
            ExcelTitles::s_workAssignNames.insert(key, QString::fromLatin1(assignmentTitles[key]));
        KWDocument::s_longUnitNames = {{3, "Week"}, {4, "Day"}};
        ResourceInfoData::s_typeItems = {{0, "Work"}, {1, "Material"}};
        KWClock::set(QDateTime(QDate(2024, 3, 9), QTime(15, 0))); // a Saturday
        document = std::make_unique<KWDocument>();
    }
    ~PlanImport() override
    {
        KWClock::set(QDateTime());
        KWDocument::s_longUnitNames = m_unitNames;
    }
    bool import(const char *tasks, const char *resources = "", const char *assignments = "",
                bool is1904 = false)
    {
        GridSheet sheets[] = {GridSheet(tasks), GridSheet(resources), GridSheet(assignments)};
        findings.clear();
        return planimport::importBook(*document, {{&sheets[0], &sheets[1], &sheets[2]}, is1904}, &findings);
    }
    std::string found() const
    {
        std::string text;
        for (const Finding &finding : findings.list())
            text += (finding.place + ": " + finding.what + "; " + finding.hint).toStdString() + '\n';
        return text;
    }
    std::string outline() const
    {
        std::string text;
        for (const KWTaskInfo *task : document->taskList()) {
            text += QStringLiteral("%1 %2 in %3 at %4")
                        .arg(task->ID)
                        .arg(task->Name)
                        .arg(task->ParentID)
                        .arg(task->Level)
                        .toStdString();
            for (const quint32 id : task->Predecessors)
                text += " <" + std::to_string(id);
            for (const quint32 id : task->Depends)
                text += " >" + std::to_string(id);
            text += '\n';
        }
        return text;
    }
    const WorkbookTitles titles;
    std::unique_ptr<KWDocument> document;
    Findings findings;

private:
    const QMap<unsigned int, QString> m_unitNames = KWDocument::s_longUnitNames;
};

TEST_F(PlanImport, BuildsOutlineAndLinksFromLevelsAndRows)
{
    ASSERT_TRUE(import("Name|Level|After|ID|Colour\n"
                       "A|=1||=5|red\n"
                       "B|2|=4\n"
                       "||||green\n"
                       "C|2|2;9; 3;x;1;4\n"
                       "D|4||5\n"
                       "A|0|2;2;4.0\n"
                       "E|3|=6.0")); // below C, which B waits for, which the second A waits for
    EXPECT_EQ(outline(), "5 A in 0 at 1\n"
                         "6 B in 5 at 2 <7 >9\n"
                         "7 C in 5 at 2 >6\n"
                         "8 D in 0 at 4\n"
                         "9 A5 in 0 at 1 <6\n"
                         "10 E in 7 at 3\n");
    EXPECT_EQ(found(),
              "task sheet, row 1, 'Colour': no such column; not read\n"
              "task sheet, row 5, 'After': 'x' is no task; no predecessor\n"
              "task sheet, row 7, 'After': '4.0' is no task; no predecessor\n"
              "task sheet, row 7: the level is below 1; level 1\n"
              "task sheet, row 5: there is no task in row 10; no predecessor\n"
              "task sheet, row 5: there is no task in row 4; no predecessor\n"
              "task sheet, row 1: there are neither dates nor lengths; all tasks are one day long\n"
              "task sheet, row 6: 5 is the ID of another task; ID 8\n"
              "task sheet, row 7: A is the name of another task; named A5\n"
              "task sheet, row 5: it would wait for itself through row 3; no predecessor\n"
              "task sheet, row 5: it cannot wait for its own summary or subtask in row 2; no predecessor\n"
              "task sheet, row 5: it would wait for itself through row 5; no predecessor\n"
              "task sheet, row 8: it would wait for itself through row 7; no predecessor\n");
    EXPECT_EQ(document->rowColumnData()->rowHeights(), QList<double>({30, 30, 30, 30, 30, 30}));
    EXPECT_EQ(document->rowColumnData()->columnCount(), 3);
    EXPECT_TRUE(document->isModified());
    // A workbook that is no plan leaves the plan alone.
    document->setModified(false);
    EXPECT_FALSE(import("name|LEVEL\nZ|1"));
    EXPECT_EQ(document->taskCount(), 6);
    EXPECT_FALSE(document->isModified());
}

struct CellCase
{
    const char *title;
    const char *cell;
    const char *shown;
    bool isFaulty = false;
    bool is1904 = false;
};

class CellOfATask : public PlanImport, public testing::WithParamInterface<CellCase>
{
};

// The document works Monday to Friday, 8 to 12 and 13 to 17; today is Saturday, 9 March 2024.
TEST_P(CellOfATask, BecomesItsField)
{
    const CellCase &param = GetParam();
    const std::string title = param.title;
    const std::string other = title == "Duration" ? "Start|" : "Duration|";
    ASSERT_TRUE(
        import(("Name|" + other + title + "\nA|" + (title == "Duration" ? "2024-03-11|" : "1d|") + param.cell)
                   .c_str(),
               "", "", param.is1904));
    const KWTaskInfo &task = *document->getTaskInfoAt(0);
    const int type = RowColumnData::s_columnNames.key(QString::fromLatin1(param.title));
    const QString shown =
        type == 11 ? QString::number(task.Work) : planexport::Rows(*document).taskText(task, type);
    EXPECT_EQ(shown.toStdString(), param.shown);
    EXPECT_EQ(!findings.isEmpty(), param.isFaulty) << found();
}

const CellCase cellCases[] = {
    {"Start", "2024-03-06 10:30", "2024-03-06 10:30"},
    {"Start", "=45357.4375", "2024-03-06 10:30"},
    {"Start", "=43895.4375", "2024-03-06 10:30", false, true},
    {"Start", "45357.4375", "2024-03-11 08:00", true}, // a text is no day number
    {"Start", "2024/3/9", "2024-03-11 08:00"},         // a Saturday
    {"Start", "2024-03-06 06:00", "2024-03-06 08:00"},
    {"Start", "2024-03-06 18:00", "2024-03-07 08:00"},
    {"Start", "=1e308", "2024-03-11 08:00", true},
    {"Start", "=2", "2024-03-11 08:00", true}, // 1900
    {"Start", "1969-12-30", "2024-03-11 08:00", true},
    {"Finish", "2024-03-15 17:00", "2024-03-15 17:00"},
    {"Finish", "2024-03-11 09:00", "2024-03-11 09:00"}, // an hour of the stored day that clocks may skip
    {"Finish", "2024-03-15 17:30", "2024-03-15 17:00"},
    {"Finish", "2024-03-15", "2024-03-15 17:00"},
    {"Finish", "2024-03-16 10:00", "2024-03-18 10:00"}, // a Saturday
    {"Finish", "31/31/2024", "2024-03-11 17:00", true},
    {"Duration", "3 day", "3d"},
    {"Duration", "2 Week", "2w"},
    {"Duration", "=7", "7d"},
    {"Duration", "3 moons", "3d", true},
    {"Duration", "1,5d", "1.5d"},
    {"Duration", "1,234d", "1d", true},
    {"Complete", "=0.125", "12.5%"},
    {"Complete", "1,200 %", "100%", true},
    {"Complete", "-3%", "0%", true},
    {"Complete", "half", "0%", true},
    {"Priority", "3High", "3"},
    {"Links", " www.a.com;; b ", "www.a.com;b"},
    {"Work", "1,016.5 h", "1016.5"},
    {"EarlyStart", "2020-01-01", "2024-03-11 08:00"}, // the start, not a field of its own
    {"LateStart", "2024-03-09 10:30", "2024-03-11 10:30"},
    {"LateFinish", "2024-03-09 10:30", "2024-03-11 10:30"},
    {"StartSlack", " 3d", "3d"},
    {"Critical", "=1", "1"},
    {"BaseStart", "2024-03-09 10:30", "2024-03-09 10:30"},
    {"BaseFinish", "2024-03-09 10:30", "2024-03-11 10:30"},
    {"BaseCost", "$ 1,234.50", "1,234.5"},
    {"Level", "2.9", "2"},
    {"Level", "=99999999999", "2147483647"},
    {"ID", "=4294967295", "4294967295"},
    {"ID", "4294967296", "1", true},
    {"ID", "=-1", "1", true},
};
INSTANTIATE_TEST_SUITE_P(All, CellOfATask, testing::ValuesIn(cellCases));

TEST_F(PlanImport, EndsASummaryWithItsMilestone)
{
    ASSERT_TRUE(import("Name|Level|Start|Finish|Duration\n"
                       "All|1|2024-03-04|2024-03-11 08:00|5d\n"
                       "Dig|2|2024-03-04|2024-03-08|5d\n"
                       "Ready|2|2024-03-11 08:00|2024-03-11 08:00|0d"));
    EXPECT_EQ(document->getTaskInfoAt(0)->Finish, document->getTaskInfoAt(2)->Finish);
}

TEST_F(PlanImport, ReadsResourcesAndAssignments)
{
    ASSERT_TRUE(import("Name|Start|Finish|Duration|Level\n"
                       "All|2024-03-04|2024-03-05|2d|1\n"
                       "Dig|2024-03-04|2024-03-05|2d|2\n"
                       "Pay|2024-03-04|2024-03-04|60min|2\n"
                       "Dig|2024-03-04 17:00|2024-03-04 17:00|0d|2",
                       "ID|Name|Units|Type|Rate|Overtime|PerUse|Email\n"
                       "3|Ann|200%|Work|$1,000.5/d|3/x|-2|a@b\n"
                       "3| Ann |=2||7|x||\n"
                       "||50|Material|/h|2/min|5|c\n"
                       "9||||||||\n"
                       "|||||||\n"
                       "||||||| d",
                       "Task|Resource|Complete|Work|Units\n"
                       "All|Ann|0%|1 h|100%\n"
                       "Dig|Ann ||4 h|50%\n"
                       "Dig|Resource3|||3\n"
                       "Pay|Ann||90 min|\n"
                       "Pay|Zoe|||=0.5\n"
                       "Nobody|Ann\n"
                       "Dig|Ann||-4 h|inf"));
    std::string text;
    for (const ResourceInfo *info : document->resourceInfoData()->infos) {
        const auto number = [](double value) { return QString::number(value); };
        text += QStringList{number(info->ID),           info->name,
                            number(info->unit),         number(info->type),
                            number(info->cost),         number(info->costUnit),
                            number(info->overtimeCost), number(info->overtimeUnit),
                            number(info->costPer),      info->email}
                    .join('|')
                    .toStdString() +
                '\n';
    }
    EXPECT_EQ(text, "3|Ann|2|0|1000.5|2|3|1|-2|a@b\n"
                    "4|Ann5|0.02|0|7|1|0|1|0|\n"
                    "5|Resource3|0.5|1|0|1|2|0|5|c\n"
                    "9|Resource4|1|0|0|1|0|1|0|\n"
                    "10|Resource6|1|0|0|1|0|1|0|d\n");
    text.clear();
    for (const KWTaskInfo *task : document->taskList()) {
        text += QStringLiteral("%1 %2 cost %3 left %4 work %5:")
                    .arg(task->Name, task->Resources)
                    .arg(task->Cost)
                    .arg(task->RemainingCost)
                    .arg(task->Work)
                    .toStdString();
        for (const Resource *resource : task->resourceList)
            text += QStringLiteral(" %1 x%2 %3s")
                        .arg(resource->name)
                        .arg(resource->percent)
                        .arg(resource->workSecs)
                        .toStdString();
        text += task->Milestone ? " milestone\n" : "\n";
    }
    // Half a day of Ann at 1000.5 and half of her -2 for a use; the material at 0, 5 for a use; 1.5 h of Ann,
    // half the task's day of Zoe.
    EXPECT_EQ(text, "All Ann; Resource3; Zoe cost 689.844 left 689.844 work 9.5:\n"
                    "Dig Ann; Resource3 cost 504.25 left 504.25 work 0.5: Ann x0.5 43200s Resource3 x3 0s\n"
                    "Pay Ann; Zoe cost 185.594 left 185.594 work 330: Ann x1 5400s Zoe x0.5 14400s\n"
                    "Dig4  cost 0 left 0 work 0: milestone\n");
    EXPECT_EQ(found(),
              "resource sheet, row 2, 'Overtime': '3/x' has no known unit of time; money for an hour\n"
              "resource sheet, row 3, 'ID': '3' cannot be the ID; the next free ID\n"
              "resource sheet, row 3, 'Overtime': 'x' is no rate; left out\n"
              "resource sheet, row 3: Ann is the name of another resource; named Ann5\n"
              "resource sheet, row 4, 'Rate': '/h' is no rate; left out\n"
              "assignment sheet, row 8, 'Work': '-4 h' is no amount; left out\n"
              "assignment sheet, row 8, 'Units': 'inf' is no amount; left out\n"
              "task sheet, row 5: Dig is the name of another task; named Dig4\n"
              "task sheet, row 4: the length is not that from start to finish; start and finish count\n"
              "assignment sheet, row 6: there is no resource Zoe; assigned without a rate\n"
              "assignment sheet, row 7: there is no task Nobody; left out\n");
}
}
