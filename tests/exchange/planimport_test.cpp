// What a workbook's sheets become, and what the findings say of what is spoilt.
#include "exchange/planexport.h"
#include "resources/resource.h"
#include "resources/resourceinfodata.h"
#include "support/gridbook.h"
#include "support/kwclock.h"
#include "support/project.h"
#include "table/columntypes.h"
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
        document.reset();
        for (int sheet = 0; sheet < exceltitles::SheetCount; ++sheet)
            ExcelTitles::clearExcelTitles(exceltitles::workbookTitles(exceltitles::Sheet(sheet)));
        RowColumnData::s_columnNames.clear();
        KWDocument::s_longUnitNames.clear();
        ResourceInfoData::s_typeItems.clear();
        ExcelTitles::s_resourcNames.clear();
        ExcelTitles::s_workAssignNames.clear();
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
    std::unique_ptr<KWDocument> document;
    Findings findings;
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
              "task sheet, row 5, 'After': '2;9; 3;x;1;4' does not only hold row numbers; the rest left out\n"
              "task sheet, row 6, 'ID': '5' is the ID of another task; ID 8\n"
              "task sheet, row 7, 'Name': 'A' is the name of another task; named A5\n"
              "task sheet, row 7, 'After': '2;2;4.0' does not only hold row numbers; the rest left out\n"
              "task sheet, row 7: the level is below 1; level 1\n"
              "task sheet, row 5: there is no task in row 4; no predecessor\n"
              "task sheet, row 5: there is no task in row 10; no predecessor\n"
              "task sheet, row 5: it cannot wait for its own summary or subtask in row 2; no predecessor\n"
              "task sheet, row 5: it would wait for itself through row 3; no predecessor\n"
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
}
