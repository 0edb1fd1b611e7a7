// Progress by the calendar, and the finished part of a bar.
#include "schedule/kwtaskcollection.h"
#include "support/kwclock.h"
#include "support/project.h"
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <limits>

namespace {

const char june[] = "Mon-Fri 8-12 13-17, start 2024-06-03";

class AutomaticProgress : public testing::Test
{
protected:
    ~AutomaticProgress() override { KWClock::set(QDateTime()); }

    static void setNow(int day, int hour) { KWClock::set(QDateTime(QDate(2024, 6, day), QTime(hour, 0))); }

    // Percent, level, and the finished pixels of each bar.
    static std::string progress(Project &p)
    {
        std::string text;
        for (const KWTaskInfo *task : p.document().taskList()) {
            text += QStringLiteral("%1 %2 % level %3, %4 of %5\n")
                        .arg(task->Name)
                        .arg(task->Percent * 100)
                        .arg(task->Progress)
                        .arg(task->FirstWidth)
                        .arg(task->CountWidth)
                        .toStdString();
        }
        return text;
    }
};

TEST_F(AutomaticProgress, followsTheDate)
{
    Project p(june, "Over 2d\n"
                    "Sum\n"
                    "  Running 4d\n"
                    "  Weekend 2d start 2024-06-07\n"
                    "Later 3d start 2024-06-06 90%\n"
                    "Passed milestone start 2024-06-04\n"
                    "Due milestone start 2024-06-05\n");
    p.document().Auto = true;
    setNow(5, 12);
    p.document().updateAutoPercent();
    EXPECT_EQ(progress(p), "Over 100 % level 9, 200 of 200\n"
                           "Sum 41.6667 % level 4, 250 of 800\n"
                           "Running 62.5 % level 6, 250 of 400\n"
                           "Weekend 0 % level 1, 0 of 400\n"
                           "Later 0 % level 1, 0 of 500\n"
                           "Passed 100 % level 9, 100 of 100\n"
                           "Due 100 % level 9, 50 of 100\n");
}

// Hidden tasks and loaded plans have no bars.
TEST_F(AutomaticProgress, needsNoBars)
{
    Project p(june, "Sum\n"
                    "  Over 2d\n"
                    "  Running 4d\n"
                    "  Later 3d start 2024-06-06 90%\n"
                    "  Undated 2d 30%\n");
    setNow(5, 12);
    const auto percents = [](KWDocument &document) {
        document.Auto = true;
        document.updateAutoPercent();
        std::string text;
        for (const KWTaskInfo *task : document.taskList())
            text += QString::number(task->Percent).toStdString() + ' ';
        return text;
    };
    const char *const expected = "0.625 1 0.625 0 0.3 ";
    p.task("Undated").Start = p.task("Undated").Finish = 0;
    p.task("Sum").Finish = p.task("Running").Finish;
    const QTemporaryDir folder;
    KWDocument loaded;
    ASSERT_TRUE(p.document().saveDocument(folder.path() + '/') &&
                loaded.loadDocument(folder.path() + '/', 0));
    EXPECT_EQ(percents(loaded), expected);
    p.document().collapseTaskInfo(&p.task("Sum"));
    for (KWTaskInfo *task : p.document().taskList())
        task->x1 = task->x2 = 0;
    EXPECT_EQ(percents(p.document()), expected);
}

TEST_F(AutomaticProgress, isOffWithoutTheOption)
{
    Project p(june, "Over 2d 10%\n");
    setNow(20, 12);
    p.document().updateAutoPercent();
    EXPECT_EQ(p.task("Over").Percent, 0.1);
}

TEST_F(AutomaticProgress, ofABarOnDaysOffChangesAtItsEnd)
{
    Project p(june, "Task 1d\n");
    KWTaskInfo &task = p.task("Task");
    p.document().Auto = true;
    task.Start = quint32(QDate(2024, 6, 8).startOfDay().toSecsSinceEpoch());
    task.Finish = task.Start + 2 * 86400;
    p.document().taskCollection()->updateRageAndTaskPoint();
    setNow(9, 12);
    p.document().updateAutoPercent();
    EXPECT_EQ(progress(p), "Task 0 % level 1, 150 of 200\n");
    // A bar drawn further than its finish.
    task.x2 += 200;
    setNow(10, 6);
    p.document().updateAutoPercent();
    EXPECT_EQ(progress(p), "Task 100 % level 9, 225 of 200\n");
}

TEST_F(AutomaticProgress, isFarFromTheProject)
{
    Project p(june, "Task 1d 40%\n");
    p.document().Auto = true;
    for (const int year : {1950, 1970, 2023}) {
        KWClock::set(QDateTime(QDate(year, 1, 1), QTime(0, 0)));
        p.document().updateAutoPercent();
        EXPECT_EQ(p.task("Task").Percent, 0.0) << year;
    }
    KWClock::set(QDateTime(QDate(2200, 1, 1), QTime(0, 0)));
    p.document().updateAutoPercent();
    EXPECT_EQ(p.task("Task").Percent, 1.0);
}

TEST_F(AutomaticProgress, readsTenDecimals)
{
    Project p(june, "Task 3d\n");
    p.document().Auto = true;
    setNow(4, 0);
    p.document().updateAutoPercent();
    EXPECT_EQ(p.task("Task").Percent, 0.3333333333);
}

// ---- The finished part of a bar ---------------------------------------------------------------------------

struct WidthCase
{
    const char *name, *task;
    double percent, width;
};

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

TEST(FinishedWidth, endsAtTheWorkDone)
{
    const WidthCase cases[] = {
        {"nothing", "Task 4d", 0.0, 0.0},
        // Half of six working days from Thursday ends on Monday, the weekend is part of the bar.
        {"acrossAWeekend", "Task 6d start 2024-06-06", 0.5, 500.0},
        {"all", "Task 4d", 1.0, 400.0},
        {"less", "Task 4d", -1.0, 0.0},
        {"noNumber", "Task 4d", nan, 0.0},
        {"milestone", "Task milestone", 0.5, 0.0}};
    for (const WidthCase &row : cases) {
        SCOPED_TRACE(row.name);
        Project p(june, row.task);
        KWTaskInfo &task = p.task("Task");
        task.Percent = row.percent;
        p.document().updateAllTaskFirstWidth();
        EXPECT_EQ(task.FirstWidth, row.width);
    }
}

}
