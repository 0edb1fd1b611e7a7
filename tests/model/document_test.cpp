// The document: names, files, collapsed branches, and the life of its tasks.
#include "kwfilepathmanager.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"
#include "table/rowcolumndata.h"
#include <QFile>
#include <functional>
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

TEST(FreeName, isOneNoTaskHas)
{
    const FreeNameCase cases[] = {
        {"numberedFromTheCount", {"A", "Design", "B"}, "Design", false, "Design4"},
        {"pastNumbersInUse", {"Design", " Design4 ", "Design5"}, "Design", false, "Design6"},
        {"fromTheColumnTitle", {"Task1", "B"}, "Task1", true, "Task3"},
        {"placeMarksStay", {"%1%2"}, "%1%2", false, "%1%22"}};
    for (const FreeNameCase &row : cases) {
        SCOPED_TRACE(row.name);
        const QMap<int, QString> titles = RowColumnData::s_columnNames;
        RowColumnData::s_columnNames = {{0, "ID"}, {1, "Task"}};
        KWDocument document;
        addNamed(document, row.taken);
        EXPECT_EQ(document.differentSuffixTaskName(row.wanted, row.useColumnTitle), row.result);
        RowColumnData::s_columnNames = titles;
    }
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

TEST(ActiveTask, isForgottenWhenItGoes)
{
    KWDocument document;
    std::unique_ptr<KWTaskInfo> replaced;
    const std::function<void()> ways[] = {[&] { document.removeTaskInfoByID(document.getTaskInfoAt(0)->ID); },
                                          [&] { document.removeTaskInfoAt(0); },
                                          [&] {
                                              replaced.reset(document.getTaskInfoAt(0));
                                              document.replaceAt(0, new KWTaskInfo);
                                          },
                                          [&] { document.clearTaskInfoList(); }};
    for (const auto &way : ways) {
        addNamed(document, {"A"});
        document.taskCollection()->setTaskInfoActive(document.getTaskInfoAt(0));
        way();
        EXPECT_EQ(document.taskCollection()->getTaskInfoActive(), nullptr);
    }
}

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

}
