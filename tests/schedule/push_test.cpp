// Pushes down the chain: where successors land, and what comes along.
#include "engine/network/moves.h"
#include "engine/network/push.h"
#include "engine/network/rollup.h"
#include "engine/record/outline.h"
#include "engine/time/duration.h"
#include "schedule/kwcalendar.h"
#include "schedule/kwtaskcollection.h"
#include "schedule/randomplan.h"
#include "support/project.h"
#include <gtest/gtest.h>

namespace {

constexpr char week[] = "Mon-Fri 8-12 13-17";

// ---- One push ---------------------------------------------------------------------------------------------

struct PushCase
{
    const char *name, *settings, *tasks, *growing, *duration, *dates;
};

TEST(Pushes, keepDurationsAndNeverPullEarlier)
{
    const PushCase cases[] = {
        {"downTheChain", week, "A 1d\nB 2d after A\nC 1d after B\n", "A", "3d",
         "A 4 Mar - 6 Mar\nB 7 Mar - 8 Mar\nC 11 Mar - 11 Mar\n"},
        {"shorterPullsNothing", week, "A 3d\nB 2d after A\n", "A", "1d",
         "A 4 Mar - 4 Mar\nB 7 Mar - 8 Mar\n"},
        {"hoursKeepTheirWork", week, "A 4h\nB 10h after A\n", "A", "7h",
         "A 4 Mar - 4 Mar 16:00\nB 4 Mar 16:00 - 6 Mar 09:00\n"},
        {"milestoneTakesItsStart", week, "A 1d\nM milestone after A\nB 1d after M\n", "A", "2d",
         "A 4 Mar - 5 Mar\nM 6 Mar\nB 6 Mar - 6 Mar\n"},
        {"summaryPushesWhatFollowsIt", week, "S\n  A 1d\n  B 2d\nC 1d after S\n", "A", "4d",
         "S 4 Mar - 7 Mar\n  A 4 Mar - 7 Mar\n  B 4 Mar - 5 Mar\nC 8 Mar - 8 Mar\n"},
        {"summaryMovesItsContent", week,
         "A 1d\nS after A\n  B 1d\n  T\n    C 2d after B\nD 1d after C\nE 1d after S\n", "A", "3d",
         "A 4 Mar - 6 Mar\nS 7 Mar - 11 Mar\n  B 7 Mar - 7 Mar\n  T 8 Mar - 11 Mar\n"
         "    C 8 Mar - 11 Mar\nD 12 Mar - 12 Mar\nE 12 Mar - 12 Mar\n"},
        // B waits for X alone, but moves as far as its summary does.
        {"contentKeepsItsDistances", week, "A 1d\nX 4d\nT after A\n  B 1d after X\n  C 1d\nD 1d after B\n",
         "A", "3d",
         "A 4 Mar - 6 Mar\nX 4 Mar - 7 Mar\nT 7 Mar - 12 Mar\n  B 12 Mar - 12 Mar\n"
         "  C 7 Mar - 7 Mar\nD 13 Mar - 13 Mar\n"}};
    for (const PushCase &push : cases) {
        SCOPED_TRACE(push.name);
        Project p(push.settings, push.tasks);
        p.rowOf(push.growing).setDuration(push.duration);
        EXPECT_EQ(p.dates(), push.dates);
    }
}

// A finish is late by less than a minute only because something was rounded.
TEST(Tolerance, endsAtAMinute)
{
    Project p(week, "A 1d\nB 1d after A\n");
    KWTaskCollection &chart = *p.document().taskCollection();
    KWTaskInfo &a = p.task("A");
    KWTaskInfo &b = p.task("B");
    const quint32 start = b.Start;
    a.Finish = start + 59;
    EXPECT_FALSE(chart.compareTaskAndDepenTask(&a, &b));
    EXPECT_EQ(b.Start, start);
    a.Finish = start + 89;
    EXPECT_TRUE(chart.compareTaskAndDepenTask(&a, &b));
    EXPECT_EQ(b.Start, start + 60);
    a.Finish = start + 150;
    EXPECT_TRUE(chart.compareTaskAndDepenTask(&a, &b));
    EXPECT_EQ(b.Start, start + 180);
}

TEST(SinglePush, setsBarsAndWorkOfWhatItMoved)
{
    Project p(week, "A 1d\nS after A\n  B 2d\nC 1d after B\n");
    KWTaskCollection &chart = *p.document().taskCollection();
    p.task("B").setPercent(1.0);
    KWTaskInfo &a = p.task("A");
    a.Finish += 86400;
    EXPECT_TRUE(chart.compareTaskAndDepenTask(&a, &p.task("S")));
    for (const char *name : {"S", "B", "C"}) {
        const KWTaskInfo &task = p.task(name);
        EXPECT_EQ(task.x1, chart.getTaskPtBeginX(&task)) << name;
        EXPECT_EQ(task.x2, chart.getTaskPtEndX(&task)) << name;
        EXPECT_EQ(task.CountWidth, task.x2 - task.x1) << name;
    }
    EXPECT_EQ(p.task("B").FirstWidth, p.task("B").CountWidth);
}

TEST(FullPush, tellsWhatMovedAndWhy)
{
    Project p(week, "A 1d\nB 3d\nS after A\n  C 1d\n  D 1d after B\nE 1d after D, A\nF 1d\n");
    KWTaskInfo &a = p.task("A");
    a.Finish += 86400;
    QList<KWTaskMove> moves;
    const int count = p.document().taskCollection()->pushAllSuccessors(&moves);
    EXPECT_EQ(count, moves.size());
    std::string text;
    for (const KWTaskMove &move : moves) {
        const KWTaskInfo *by = p.document().getTaskInfoByID(move.pushedBy);
        text += p.document().getTaskInfoByID(move.id)->Name.toStdString() + " by " +
                (by ? by->Name.toStdString() : "its summary") + '\n';
    }
    // D stood behind B already, and moved on as far as C did.
    EXPECT_EQ(text, "S by A\nC by its summary\nD by its summary\nE by D\n");
    EXPECT_EQ(p.document().taskCollection()->pushAllSuccessors(&moves), 0);
    EXPECT_TRUE(moves.isEmpty());
}

// ---- Rings ------------------------------------------------------------------------------------------------

struct RingCase
{
    const char *name, *tasks;
    QList<QPair<const char *, const char *>> links;
    const char *dates;
};

TEST(Rings, pushNothingAndTheirSurroundingsHold)
{
    const RingCase cases[] = {
        {"withItself", "A\nB\n", {{"A", "A"}, {"A", "B"}}, "A 4 Mar - 4 Mar\nB 5 Mar - 5 Mar\n"},
        {"ofThree",
         "A 2d\nB 2d\nC 2d\nD\nE\n",
         {{"A", "B"}, {"B", "C"}, {"C", "A"}, {"E", "B"}, {"C", "D"}},
         "A 4 Mar - 5 Mar\nB 5 Mar - 6 Mar\nC 4 Mar - 5 Mar\nD 6 Mar - 6 Mar\nE 4 Mar - 4 Mar\n"},
        {"withTheOwnSummary",
         "S\n  A 2d\n  B\nC\n",
         {{"A", "S"}, {"S", "B"}, {"A", "B"}, {"S", "C"}},
         "S 4 Mar - 6 Mar\n  A 4 Mar - 5 Mar\n  B 6 Mar - 6 Mar\nC 7 Mar - 7 Mar\n"},
        {"throughTheOutline",
         "S\n  A 2d\n  B\nX\n",
         {{"A", "B"}, {"B", "X"}, {"X", "S"}},
         "S 4 Mar - 6 Mar\n  A 4 Mar - 5 Mar\n  B 6 Mar - 6 Mar\nX 7 Mar - 7 Mar\n"}};
    for (const RingCase &ring : cases) {
        SCOPED_TRACE(ring.name);
        Project p(week, ring.tasks);
        for (const auto &link : ring.links)
            randomplan::link(p.document(), p.task(link.first).ID, p.task(link.second).ID);
        EXPECT_FALSE(p.document().taskCollection()->linkRings().isEmpty());
        KWTaskInfo &first = *p.document().getTaskInfoAt(0);
        p.document().taskCollection()->compareTaskAndDepenTask(
            &first, p.document().getTaskInfoByID(first.getDependIDAt(0)));
        p.document().taskCollection()->pushAllSuccessors();
        EXPECT_EQ(p.dates(), ring.dates);
    }
}

// ---- Random networks --------------------------------------------------------------------------------------

// The rule as it reads: a pushed task pushes what follows it, depth first, each as often as it comes up.
class SlowPush
{
public:
    SlowPush(KWDocument &document, bool hourScale)
        : m_calendar(document.workCalendar())
        , m_tasks(document.outline())
        , m_hourScale(hourScale)
    {
    }

    void push(const TaskRecord &predecessor, TaskRecord &successor)
    {
        if (push::holds(predecessor.Finish, successor.Start))
            return;
        const quint32 oldStart = successor.Start;
        moves::startTo(m_calendar, successor, push::target(predecessor.Finish), m_hourScale);
        if (successor.isParent()) {
            for (TaskRecord *below : moves::content(m_calendar, m_tasks, successor, oldStart))
                pushSuccessors(*below);
        } else {
            moves::keepDuration(m_calendar, successor, oldStart);
        }
        pushAncestors(successor);
        pushSuccessors(successor);
    }
    void pushSuccessors(const TaskRecord &task)
    {
        for (const quint32 id : task.Depends)
            push(task, *m_tasks.byId(id));
    }
    void pushAncestors(const TaskRecord &task)
    {
        for (TaskRecord *above : outline::ancestors(m_tasks, task)) {
            rollup::dates(m_calendar, m_tasks, *above);
            pushSuccessors(*above);
        }
    }

private:
    const worktime::WorkCalendar &m_calendar;
    outline::Tasks m_tasks;
    bool m_hourScale;
};

struct Plans
{
    std::unique_ptr<KWDocument> quick, slow;
};

// Two equal plans; links to summaries only when asked for.
Plans linkedPlans(unsigned seed, bool toSummaries)
{
    std::mt19937 random(seed);
    const int tasks = randomplan::between(random, 4, 30);
    std::mt19937 again = random;
    Plans plans{randomplan::plan(random, tasks, 4), randomplan::plan(again, tasks, 4)};
    for (int i = 2 * tasks; i-- > 0;) {
        const int a = randomplan::between(random, 0, tasks - 1);
        const int b = randomplan::between(random, 0, tasks - 1);
        for (KWDocument *document : {plans.quick.get(), plans.slow.get()}) {
            KWTaskInfo *successor = document->getTaskInfoAt(b);
            if (toSummaries || !successor->isParent())
                document->taskCollection()->taskDependTask(document->getTaskInfoAt(a), successor);
            document->MajorUnit = 3;
            document->MinorUnit = seed % 3 == 0 ? 1 : 0; // hours or days
        }
    }
    return plans;
}

// The first link that does not hold, and the first summary whose dates are not its children's.
std::string faults(const KWDocument &document)
{
    for (const KWTaskInfo *task : document.taskList()) {
        for (const quint32 id : task->Depends) {
            if (!push::holds(task->Finish, document.getTaskInfoByID(id)->Start))
                return std::to_string(task->ID) + " > " + std::to_string(id) + " does not hold\n";
        }
        quint32 start = 4294967295u;
        quint32 finish = 0;
        for (const quint32 id : task->Childs) {
            start = qMin(start, document.getTaskInfoByID(id)->Start);
            finish = qMax(finish, document.getTaskInfoByID(id)->Finish);
        }
        if (task->isParent() && (start != task->Start || finish != task->Finish))
            return std::to_string(task->ID) + " is not rolled up\n";
    }
    return {};
}

TEST(RandomPlans, endWhereTheDepthFirstPushEnds)
{
    for (unsigned seed = 1; seed <= 150; ++seed) {
        const Plans plans = linkedPlans(seed, false);
        SlowPush slow(*plans.slow, seed % 3 == 0);
        for (KWTaskInfo *task : plans.slow->taskList())
            slow.pushSuccessors(*task);
        plans.quick->taskCollection()->pushAllSuccessors();
        ASSERT_EQ(randomplan::dates(*plans.quick), randomplan::dates(*plans.slow)) << "seed " << seed;
        ASSERT_EQ(faults(*plans.quick), "") << "seed " << seed;

        // Then one task of the settled plan grows.
        for (KWDocument *document : {plans.quick.get(), plans.slow.get()}) {
            KWTaskInfo *task = document->getTaskInfoAt(int(seed) % document->taskCount());
            if (!task->isParent())
                task->Finish += 3 * 86400;
            if (document == plans.slow.get()) {
                slow.pushSuccessors(*task);
                slow.pushAncestors(*task);
            } else {
                for (const quint32 id : task->Depends)
                    document->taskCollection()->compareTaskAndDepenTask(task, document->getTaskInfoByID(id));
                document->taskCollection()->updateTaskInfoParentTime(task);
            }
        }
        ASSERT_EQ(randomplan::dates(*plans.quick), randomplan::dates(*plans.slow)) << "seed " << seed;
    }
}

TEST(RandomPlans, holdEveryLinkAndKeepEveryDuration)
{
    for (unsigned seed = 1; seed <= 200; ++seed) {
        const Plans plans = linkedPlans(seed, true);
        KWDocument &document = *plans.quick;
        document.taskCollection()->pushAllSuccessors();
        ASSERT_EQ(faults(document), "") << "seed " << seed;
        for (int pos = 0; pos < document.taskCount(); ++pos) {
            const KWTaskInfo *now = document.getTaskInfoAt(pos);
            const KWTaskInfo *before = plans.slow->getTaskInfoAt(pos);
            ASSERT_GE(now->Start, before->Start) << "seed " << seed << ", task " << now->ID;
            if (!now->isParent() && !now->Milestone) {
                ASSERT_NEAR(now->DurationSecs, before->DurationSecs, 240)
                    << "seed " << seed << ", task " << now->ID;
            }
        }
        QList<KWTaskMove> moves;
        ASSERT_EQ(document.taskCollection()->pushAllSuccessors(&moves), 0) << "seed " << seed;
    }
}

// A finish off the hour clock's grid must not leave the successor before it.
TEST(HourScale, holdsLinksFromFinishesBetweenTheMinutes)
{
    Project p("Mon-Fri 8-17", "A 1h\nB 1h after A\n");
    p.document().MinorUnit = 1;
    KWTaskInfo &a = p.task("A");
    KWTaskInfo &b = p.task("B");
    const quint32 finish = a.Finish;
    for (quint32 secs = 60; secs < 1200; secs += 7) {
        a.Finish = finish + secs;
        p.document().taskCollection()->compareTaskAndDepenTask(&a, &b);
        ASSERT_TRUE(push::holds(a.Finish, b.Start)) << secs;
        ASSERT_LE(b.Start, a.Finish + 240) << secs;
    }
}

TEST(LongChains, arePushedWithoutRecursion)
{
    constexpr quint32 length = 100000;
    KWDocument document;
    for (quint32 id = 1; id <= length; ++id) {
        auto *task = new KWTaskInfo;
        task->ID = id;
        task->Start = 1709500000;
        task->Finish = 1709500060;
        task->DurationUnits = duration::Minute;
        task->Milestone = true;
        document.appendTaskInfoList(task);
        if (id > 1)
            randomplan::link(document, id - 1, id);
    }
    KWTaskInfo *last = document.getTaskInfoAt(int(length) - 1);
    EXPECT_TRUE(document.taskCollection()->compareTaskAndDepenTask(document.getTaskInfoAt(0),
                                                                   document.getTaskInfoAt(1)));
    EXPECT_GE(last->Start, 1709500000 + (length - 1) * 60);
}
}
