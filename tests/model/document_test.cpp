// The document: names, files, collapsed branches, and the life of its tasks.
#include "kwfilepathmanager.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"
#include "support/casename.h"
#include "table/rowcolumndata.h"
#include <QFile>
#include <gtest/gtest.h>
#include <memory>

namespace {

void addNamed(KWDocument &document, const QStringList &names)
{
    for (const QString &name : names) {
        auto *task = new KWTaskInfo;
        task->ID = document.nextTaskID();
        task->Name = name;
        document.appendTaskInfoList(task);
    }
}

TEST(TaskNames, blanksAroundANameDoNotCountAndCaseDoes)
{
    KWDocument document;
    addNamed(document, {"Build", " Design\t", "Design"});
    EXPECT_EQ(document.getTaskInfoByName("  Design"), document.getTaskInfoAt(1));
    EXPECT_TRUE(document.isHaveSameTaskName("Design "));
    EXPECT_FALSE(document.isHaveSameTaskName("design"));
    EXPECT_TRUE(document.isHaveDifferentTaskSameName(document.getTaskInfoAt(2)));
    EXPECT_FALSE(document.isHaveDifferentTaskSameName(document.getTaskInfoAt(0)));
    EXPECT_FALSE(document.isHaveDifferentTaskSameName(nullptr));
}

struct FreeNameCase
{
    const char *name;
    QStringList taken;
    const char *wanted;
    bool useColumnTitle;
    const char *result;
};

class FreeName : public testing::TestWithParam<FreeNameCase>
{
};

TEST_P(FreeName, isOneNoTaskHas)
{
    const QMap<int, QString> titles = RowColumnData::s_columnNames;
    RowColumnData::s_columnNames = {{0, "ID"}, {1, "Task"}};
    KWDocument document;
    addNamed(document, GetParam().taken);
    EXPECT_EQ(document.differentSuffixTaskName(GetParam().wanted, GetParam().useColumnTitle),
              GetParam().result);
    RowColumnData::s_columnNames = titles;
}

INSTANTIATE_TEST_SUITE_P(
    Names, FreeName,
    testing::Values(FreeNameCase{"freeAlready", {"A", "B"}, " Design ", false, "Design"},
                    FreeNameCase{"numberedFromTheCount", {"A", "Design", "B"}, "Design", false, "Design4"},
                    FreeNameCase{
                        "pastNumbersInUse", {"Design", " Design4 ", "Design5"}, "Design", false, "Design6"},
                    FreeNameCase{"fromTheColumnTitle", {"Task1", "B"}, "Task1", true, "Task3"},
                    FreeNameCase{"placeMarksStay", {"%1%2"}, "%1%2", false, "%1%22"}),
    caseName<FreeNameCase>);

TEST(TaskNames, thousandsOfClashesAreResolvedAtOnce)
{
    KWDocument document;
    addNamed(document, {"Design"});
    for (int i = 0; i < 20000; ++i) {
        addNamed(document, {"Design"});
        document.getTaskInfoAt(i + 1)->Name += QString::number(20002 + i);
    }
    EXPECT_EQ(document.differentSuffixTaskName("Design", false), "Design40002");
}

// ---- Extremes ---------------------------------------------------------------------------------------------

TEST(Extremes, areThoseOfAllTasksHiddenOnesIncluded)
{
    KWDocument document;
    EXPECT_EQ(document.getMinStartSecs(), 0u);
    EXPECT_EQ(document.getMaxFinishSecs(), 0u);
    EXPECT_EQ(document.getMaxLevel(), 0);
    addNamed(document, {"A", "B", "C"});
    const quint32 starts[] = {3000000000u, 5, 7};
    for (int pos = 0; pos < 3; ++pos) {
        KWTaskInfo *task = document.getTaskInfoAt(pos);
        task->Start = starts[pos];
        task->Finish = starts[pos] + 1;
        task->Level = -pos - 1;
    }
    document.getTaskInfoAt(1)->HideID = 1;
    EXPECT_EQ(document.getMinStartSecs(), 5u);
    EXPECT_EQ(document.getMaxFinishSecs(), 3000000001u);
    EXPECT_EQ(document.getMaxLevel(), -1);
}

// ---- Files ------------------------------------------------------------------------------------------------

TEST(FileNames, aSecondPathBecomesTheDocumentsPath)
{
    KWDocument document;
    document.setFilePath("/plans/Tower v1.2.kwpx", QString());
    EXPECT_EQ(document.filePath(), "/plans/Tower v1.2.kwpx");
    EXPECT_EQ(document.fileName(), "Tower v1.2");
    EXPECT_EQ(document.fileSaveName(), "Tower v1.2.kwpx");
    EXPECT_TRUE(document.backupName().startsWith("Tower v1.2_backup_"));
    EXPECT_GT(document.backupName().size(), int(strlen("Tower v1.2_backup_")));

    const QString backup = document.backupName();
    document.setFileName("Other");
    EXPECT_EQ(document.backupName(), backup) << "the name is only the first time a reason for a backup name";

    document.setFilePath("/plans/a.kwpx", "/copies/b.kwpx");
    EXPECT_EQ(document.filePath(), "/copies/b.kwpx");
    EXPECT_EQ(document.secondPath(), "/copies/b.kwpx");
    EXPECT_EQ(document.fileName(), "b");
    EXPECT_TRUE(document.backupName().startsWith("b_backup_"));
}

TEST(FileNames, theDestructorRemovesTheOldBackupAndLeavesTheNewOneKept)
{
    auto document = std::make_unique<KWDocument>();
    document->setFileName("Tower");
    const QString backup = KWFilePathManager::configDir("autosave") + '/' + document->backupName();
    for (const char *extension : {".hbnx", ".kwpx"})
        ASSERT_TRUE(QFile(backup + extension).open(QIODevice::WriteOnly));
    document.reset();
    EXPECT_FALSE(QFile::exists(backup + ".hbnx"));
    EXPECT_TRUE(QFile::exists(backup + ".kwpx"));
}

// ---- Tasks that go ----------------------------------------------------------------------------------------

enum class Way { removeById, removeByRow, clear, replace };

class ActiveTask : public testing::TestWithParam<Way>
{
};

TEST_P(ActiveTask, isForgottenWhenItGoes)
{
    KWDocument document;
    addNamed(document, {"A", "B"});
    KWTaskInfo *active = document.getTaskInfoAt(0);
    std::unique_ptr<KWTaskInfo> replaced;
    document.taskCollection()->setTaskInfoActive(active);
    switch (GetParam()) {
    case Way::removeById:
        document.removeTaskInfoByID(active->ID);
        break;
    case Way::removeByRow:
        document.removeTaskInfoAt(0);
        break;
    case Way::clear:
        document.clearTaskInfoList();
        break;
    case Way::replace:
        replaced.reset(active);
        document.replaceAt(0, new KWTaskInfo);
        break;
    }
    EXPECT_EQ(document.taskCollection()->getTaskInfoActive(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Ways, ActiveTask,
                         testing::Values(Way::removeById, Way::removeByRow, Way::clear, Way::replace));

TEST(TaskList, clearingLeavesTheRowHeights)
{
    KWDocument document;
    addNamed(document, {"A", "B"});
    document.rowColumnData()->setRowHeights({30, 40});
    document.clearTaskInfoList();
    EXPECT_EQ(document.taskCount(), 0);
    EXPECT_EQ(document.rowColumnData()->rowHeights().size(), 2);
    document.appendTaskInfoList(nullptr);
    document.insertTaskInfoList(0, nullptr);
    EXPECT_EQ(document.taskCount(), 0);
}

TEST(TaskList, aRecordThatStandsTwiceDiesWithItsLastPlace)
{
    KWDocument document;
    addNamed(document, {"A", "B"});
    KWTaskInfo *twice = document.getTaskInfoAt(0);
    document.appendTaskInfoList(twice);
    document.taskCollection()->setTaskInfoActive(twice);
    document.removeTaskInfoAt(0);
    EXPECT_EQ(document.taskCollection()->getTaskInfoActive(), twice);
    EXPECT_EQ(document.getPosByID(twice->ID), 1);
    document.removeTaskInfoAt(1);
    EXPECT_EQ(document.taskCollection()->getTaskInfoActive(), nullptr);
}

// ---- Collapsed branches -----------------------------------------------------------------------------------

TEST(Collapse, aBranchInsideACollapsedOneStaysHiddenWhenTheOuterOpens)
{
    KWDocument document;
    addNamed(document, {"outer", "inner", "leaf", "after"});
    for (int pos = 1; pos < 3; ++pos) {
        document.getTaskInfoAt(pos)->ParentID = quint32(pos);
        document.getTaskInfoAt(pos - 1)->Childs = {quint32(pos + 1)};
    }
    KWTaskInfo *outer = document.getTaskInfoAt(0);
    KWTaskInfo *inner = document.getTaskInfoAt(1);
    KWTaskInfo *after = document.getTaskInfoAt(3);

    EXPECT_TRUE(document.collapseTaskInfo(inner));
    EXPECT_EQ(document.getRowByTaskID(after->ID), 2);
    EXPECT_TRUE(document.collapseTaskInfo(outer));
    EXPECT_FALSE(document.collapseTaskInfo(outer)) << "collapsed already";
    EXPECT_EQ(document.getRowByTaskID(after->ID), 1);
    EXPECT_TRUE(document.expandTaskInfo(outer));
    EXPECT_FALSE(document.expandTaskInfo(outer)) << "open already";
    EXPECT_EQ(document.getRowByTaskID(after->ID), 2);
    EXPECT_TRUE(inner->IsToggler);
    EXPECT_FALSE(document.collapseTaskInfo(after)) << "nothing below it";
    EXPECT_TRUE(after->IsToggler);
    EXPECT_FALSE(document.collapseTaskInfo(nullptr));
    EXPECT_FALSE(document.expandTaskInfo(nullptr));
}
}
