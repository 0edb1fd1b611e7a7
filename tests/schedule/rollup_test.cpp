// What summaries take from the tasks below them.
#include "schedule/kwtaskcollection.h"
#include "support/calendartext.h"
#include "support/project.h"
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>

namespace {

const char june[] = "Mon-Fri 8-12 13-17, start 2024-06-03";

// ---- Dates ------------------------------------------------------------------------------------------------

TEST(SummaryDates, stayWhenAChildHasNone)
{
    Project p(june, "Sum\n"
                    "  One 2d\n"
                    "  Two 3d\n");
    p.task("One").Start = 0;
    p.task("Two").Finish = secsOf("2024-06-20");
    p.document().taskCollection()->updateOptionTaskTime();
    EXPECT_EQ(p.dates(), "Sum 3 Jun - 5 Jun\n"
                         "  One\n"
                         "  Two 3 Jun - 19 Jun\n");
}

// ---- Percent ----------------------------------------------------------------------------------------------

struct PercentCase
{
    const char *name, *tasks;
    double percent;
};

TEST(SummaryPercent, weighsTheChildrenByLength)
{
    const PercentCase cases[] = {{"oneTaskAndAMilestone", "Sum\n  Task 2d 50%\n  Last milestone\n", 0.5},
                                 {"onlyMilestones", "Sum 70%\n  Last milestone 100%\n", 0.0},
                                 {"longerTasksCountMore", "Sum\n  Task 3d 100%\n  Last 1d\n", 0.75},
                                 {"unitsAreMixedKept", "Sum\n  Task 1d\n  Last 3h 100%\n", 0.75},
                                 {"ofNestedSummariesComesFromInside",
                                  "Sum\n  Task 2d\n  Inner\n    Piece 1d 100%\n    Last 2d\n", 1.0 / 6}};
    for (const PercentCase &row : cases) {
        SCOPED_TRACE(row.name);
        Project p(june, row.tasks);
        p.task("Last").updateParentPercent(&p.document());
        EXPECT_DOUBLE_EQ(p.task("Sum").Percent, row.percent);
        EXPECT_EQ(p.task("Sum").FirstWidth > 0, row.percent > 0);
        // The same for all summaries at once.
        for (KWTaskInfo *task : p.document().taskList()) {
            if (task->isParent())
                task->setPercent(0.9);
        }
        p.document().updateAllParentPercent();
        EXPECT_DOUBLE_EQ(p.task("Sum").Percent, row.percent);
        EXPECT_EQ(p.task("Sum").FirstWidth > 0, row.percent > 0);
    }
}

TEST(SummaryPercent, ignoresOneSecondAndMilestonesAndTurnsNoNumberToZero)
{
    Project p(june, "Sum\n"
                    "  Task 4h 100%\n"
                    "  Last 1d\n");
    p.task("Task").Finish = p.task("Task").Start + 1;
    p.task("Last").Percent = std::numeric_limits<double>::quiet_NaN();
    p.task("Sum").setPercent(0.5);
    p.task("Sum").updateParentPercent(&p.document());
    EXPECT_EQ(p.task("Sum").Percent, 0.0);

    p.task("Last").setPercent(0.5);
    p.task("Task").Finish = p.task("Last").Finish; // foreign files have milestones that last
    p.task("Task").Milestone = true;
    p.task("Sum").updateParentPercent(&p.document());
    EXPECT_EQ(p.task("Sum").Percent, 0.5);
}

// ---- Baseline ---------------------------------------------------------------------------------------------

// Any outline, broken ones included: the children of a task are any tasks, its parent is any task.
RC_GTEST_PROP(Baseline, ofAncestorsEqualsTheirLeaves, ())
{
    Project p(june, "A\nB\nC\nD\nE\nF\nG\n");
    KWDocument &document = p.document();
    for (KWTaskInfo *task : document.taskList()) {
        task->ParentID = *rc::gen::inRange(0u, 8u);
        for (const quint32 id : *rc::gen::container<std::vector<quint32>>(rc::gen::inRange(1u, 9u)))
            task->Childs.append(id == 8 ? task->ID.value() : id);
        task->BaseStart = *rc::gen::inRange(0u, 100u);
        task->BaseFinish = *rc::gen::inRange(0u, 100u);
    }
    KWTaskInfo &from = *document.getTaskInfoAt(*rc::gen::inRange(0, 7));
    from.updateParentBaselineStartAndFinish(&document);

    QList<KWTaskInfo *> ancestors;
    document.taskCollection()->parentIDListByTask(&from, ancestors);
    for (const KWTaskInfo *ancestor : ancestors) {
        if (!ancestor->isParent())
            continue;
        QList<quint32> ids;
        document.taskCollection()->subIDListByTask(ancestor, ids);
        quint32 start = std::numeric_limits<quint32>::max();
        quint32 finish = 0;
        for (const quint32 id : ids) {
            const KWTaskInfo *task = document.getTaskInfoByID(id);
            if (!task->isParent()) {
                start = std::min(start, task->BaseStart);
                finish = std::max(finish, task->BaseFinish);
            }
        }
        if (start > 100)
            start = 0;
        RC_ASSERT(ancestor->BaseStart == start);
        RC_ASSERT(ancestor->BaseFinish == finish);
    }
}

// ---- Collapse ---------------------------------------------------------------------------------------------

TEST(Collapse, isNotAsDeepAsTheOutline)
{
    KWDocument document;
    constexpr quint32 levels = 100000;
    for (quint32 id = 1; id <= levels; ++id) {
        auto *task = new KWTaskInfo;
        task->ID = id;
        task->ParentID = id - 1;
        task->Start = 1000000;
        task->Finish = 1100000;
        task->BaseStart = id;
        if (id < levels)
            task->Childs = {id + 1};
        document.appendTaskInfoList(task);
    }
    KWTaskInfo *top = document.getTaskInfoAt(0);
    KWTaskInfo *leaf = document.getTaskInfoAt(int(levels) - 1);
    EXPECT_TRUE(top->recurveShowOrHide(&document, top, top, true));
    EXPECT_EQ(leaf->HideID, 1u);
    leaf->updateParentBaselineStartAndFinish(&document);
    EXPECT_EQ(top->BaseStart, levels);
    leaf->setPercent(0.25);
    leaf->updateParentPercent(&document);
    EXPECT_EQ(top->Percent, 0.25);
    const quint32 oldStart = top->Start;
    top->Start += 14 * 86400;
    document.taskCollection()->recalculateTask(top, oldStart);
    EXPECT_EQ(leaf->Start, 1000000u + 14 * 86400);
}
}
