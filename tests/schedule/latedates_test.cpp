// Late dates, slack texts and the critical path.
#include "engine/network/latedates.h"
#include "engine/time/duration.h"
#include "schedule/kwcalendar.h"
#include "schedule/kwtaskcollection.h"
#include "schedule/randomplan.h"
#include "support/project.h"
#include <algorithm>
#include <gtest/gtest.h>

namespace {

constexpr char week[] = "Mon-Fri 8-12 13-17";

// Scales by their stored options.
struct Scale
{
    quint32 major, minor;
};
constexpr Scale days{3, 0}, hours{3, 1}, minutes{3, 2};

// Each task as "A late 4 Mar - 5 Mar, slack 1 d / 1 d", critical ones with a "!".
std::string lateDates(Project &p)
{
    KWDocument &document = p.document();
    std::string slack;
    std::vector<std::pair<quint32, quint32>> early;
    for (KWTaskInfo *task : document.taskList()) {
        slack += task->Name.toStdString() + ' ' + task->EarlySlack.toStdString() + " / " +
                 task->LateSlack.toStdString() + (task->CriticalPath ? " !" : "") + '\n';
        early.push_back({task->Start, task->Finish});
        task->Start = task->LateStart;
        task->Finish = task->LateFinish;
    }
    const std::string late = p.dates();
    for (int pos = 0; pos < document.taskCount(); ++pos) {
        document.getTaskInfoAt(pos)->Start = early[size_t(pos)].first;
        document.getTaskInfoAt(pos)->Finish = early[size_t(pos)].second;
    }
    return late + slack;
}

struct LateCase
{
    const char *name;
    Scale scale;
    const char *tasks, *result;
};

TEST(LateDates, andSlackAre)
{
    // A late finish is the next start: the Monday 00:00, which shows as the Sunday.
    const LateCase cases[] = {
        {"shorterBranchHasSlack", days, "A 1d\nB 3d after A\nC 1d after A\nD 1d after B, C\n",
         "A 4 Mar - 4 Mar\nB 5 Mar - 7 Mar\nC 7 Mar - 7 Mar\nD 8 Mar - 8 Mar\n"
         "A 0 d / 0 d !\nB 0 d / 0 d !\nC 2 d / 2 d\nD 0 d / 0 d !\n"},
        {"begunTaskHasNoStartSlack", days, "A 1d 25%\nB 3d\n",
         "A 6 Mar - 6 Mar\nB 4 Mar - 6 Mar\nA 0 d / 2 d\nB 0 d / 0 d !\n"},
        {"weekendsAreNoSlack", days, "A 5d\nB 1d after A\nC 5d\n",
         "A 4 Mar - 10 Mar\nB 11 Mar - 11 Mar\nC 5 Mar - 11 Mar\n"
         "A 0 d / 0 d !\nB 0 d / 0 d !\nC 1 d / 1 d\n"},
        {"halfDays", days, "A 1d\nB 12h\n",
         "A 4 Mar 13:00 - 5 Mar 12:00\nB 4 Mar - 5 Mar 12:00\nA 0.5 d / 0.5 d\nB 0 d / 0 d !\n"},
        {"minutesAreGrouped", minutes, "A 1d\nB 6d\n",
         "A 11 Mar - 11 Mar\nB 4 Mar - 11 Mar\nA 2,400 min / 2,400 min\nB 0 min / 0 min !\n"},
        {"summaryHasItsOwnLinks", days, "S\n  A 1d\nB 2d after S\nC 4d\n",
         "S 5 Mar - 5 Mar\n  A 7 Mar - 7 Mar\nB 6 Mar - 7 Mar\nC 4 Mar - 7 Mar\n"
         "S 1 d / 1 d\nA 3 d / 3 d\nB 1 d / 1 d\nC 0 d / 0 d !\n"},
        {"milestones", days, "A 1d\nM milestone after A\nB 2d\n",
         "A 5 Mar - 5 Mar\nM 6 Mar\nB 4 Mar - 5 Mar\nA 1 d / 1 d\nM 1 d / 1 d\nB 0 d / 0 d !\n"}};
    for (const LateCase &late : cases) {
        SCOPED_TRACE(late.name);
        Project p(week, late.tasks);
        p.document().MajorUnit = late.scale.major;
        p.document().MinorUnit = late.scale.minor;
        p.document().updateAllTaskEarlyLate();
        EXPECT_EQ(lateDates(p), late.result);
    }
}

// ---- Links that lead nowhere ------------------------------------------------------------------------------

struct BrokenCase
{
    const char *name;
    QList<QPair<quint32, quint32>> links; // A is 1 ... D is 4; above that there is no task
    const char *lateFinishes;             // in working days before the project's finish
};

TEST(BrokenLinks, leaveThePathsThatThereAre)
{
    const BrokenCase cases[] = {{"unknownSuccessor", {{1, 2}, {2, 9}}, "0000"},
                                {"unknownBesideAKnownOne", {{1, 2}, {2, 9}, {2, 3}}, "2100"},
                                {"pathOverAnUnknownOneAddsNothing", {{1, 2}, {2, 3}, {3, 9}, {1, 4}}, "1000"},
                                {"itself", {{1, 1}, {1, 2}}, "1000"},
                                {"ringCountsAsItsEnd", {{1, 2}, {2, 3}, {3, 2}}, "1000"},
                                {"ringWithAWayOut", {{1, 2}, {2, 3}, {3, 2}, {3, 4}}, "1010"},
                                {"ringWithAnUnknownWayOut", {{1, 2}, {2, 3}, {3, 2}, {2, 9}}, "0000"}};
    for (const BrokenCase &row : cases) {
        SCOPED_TRACE(row.name);
        Project p(week, "A 1d\nB 1d\nC 1d\nD 1d\nEnd 8d\n");
        KWDocument &document = p.document();
        for (const auto &link : row.links)
            randomplan::link(document, link.first, link.second);
        document.updateAllTaskEarlyLate();
        std::string finishes;
        for (const char *name : {"A", "B", "C", "D"}) {
            const quint32 finish = p.task(name).LateFinish;
            finishes += std::to_string(
                int(document.getDurationValue(finish, document.getMaxFinishSecs(), duration::Day, true)));
        }
        EXPECT_EQ(finishes, row.lateFinishes);
    }
}

// ---- Random networks --------------------------------------------------------------------------------------

// The longest sum of successor lengths by walking every path; below 0 when there is none.
double longestPath(KWDocument &document, const KWTaskInfo &task, unsigned int unit, double sum)
{
    double longest = -1;
    for (const quint32 id : task.Depends) {
        const KWTaskInfo *next = document.getTaskInfoByID(id);
        const double length = document.getDurationValue(next->Start, next->Finish, unit, false);
        longest =
            std::max(longest, next->Depends.isEmpty() ? sum + length
                                                      : longestPath(document, *next, unit, sum + length));
    }
    return longest;
}

TEST(RandomNetworks, haveTheLateDatesOfTheirLongestPaths)
{
    for (unsigned seed = 1; seed <= 100; ++seed) {
        std::mt19937 random(seed);
        const int tasks = randomplan::between(random, 2, 16);
        const auto document = randomplan::plan(random, tasks, 3);
        document->MinorUnit = unsigned(randomplan::between(random, 0, 2));
        for (int i = 2 * tasks; i-- > 0;) {
            const int a = randomplan::between(random, 0, tasks - 1);
            const int b = randomplan::between(random, 0, tasks - 1);
            document->taskCollection()->taskDependTask(document->getTaskInfoAt(a),
                                                       document->getTaskInfoAt(b));
        }
        document->taskCollection()->pushAllSuccessors();
        document->updateAllTaskEarlyLate();
        const quint32 finish = document->getMaxFinishSecs();
        const unsigned int unit = document->getMinorUnit();
        const auto before = [&](double units) {
            return KWTaskInfo::backwardsDateTime(document.get(), finish, -units, unit);
        };
        for (const KWTaskInfo *task : document->taskList()) {
            const double own = document->getDurationValue(task->Start, task->Finish, unit, false);
            const double after = longestPath(*document, *task, unit, 0);
            const bool isLast = task->Finish == finish && after < 0;
            const QString where = QStringLiteral("seed %1, task %2").arg(seed).arg(task->ID);
            ASSERT_EQ(task->LateStart, isLast ? task->Start : before(own + std::max(0.0, after)))
                << where.toStdString();
            ASSERT_EQ(task->LateFinish, after < 0 ? finish : before(after)) << where.toStdString();

            double sum = 0;
            QList<double> sums;
            KWTaskInfo::recurDependTaskMaxDurValue(document.get(), task, sum, sums);
            ASSERT_EQ(sums.isEmpty() ? -1 : *std::max_element(sums.begin(), sums.end()), after)
                << where.toStdString();
            KWTaskInfo alone(*task);
            alone.updateEarlyLate(document.get(), finish);
            ASSERT_EQ(alone.LateStart, task->LateStart) << where.toStdString();
            ASSERT_EQ(alone.LateFinish, task->LateFinish) << where.toStdString();
            ASSERT_EQ(alone.EarlySlack + alone.LateSlack, task->EarlySlack + task->LateSlack);
        }
    }
}

// Tasks of a day each, `width` in each layer, every layer linked to the next one.
std::unique_ptr<KWDocument> layers(quint32 count, quint32 width)
{
    auto document = std::make_unique<KWDocument>();
    for (quint32 id = 1; id <= count * width; ++id) {
        auto *task = new KWTaskInfo;
        task->ID = id;
        task->Start = 1700000000 / 86400 * 86400;
        task->Finish = task->Start + 86400;
        document->appendTaskInfoList(task);
    }
    for (quint32 id = 1; id + width <= count * width; ++id) {
        const quint32 nextLayer = ((id - 1) / width + 1) * width;
        for (quint32 i = 1; i <= width; ++i)
            randomplan::link(*document, id, nextLayer + i);
    }
    return document;
}

TEST(Paths, areListedOneByOneUpToALimit)
{
    const auto few = layers(4, 3);
    QList<double> sums{7};
    double sum = 2;
    KWTaskInfo::recurDependTaskMaxDurValue(few.get(), few->getTaskInfoAt(0), sum, sums);
    EXPECT_EQ(sums.size(), 1 + 27);
    EXPECT_EQ(sum, 2);
    EXPECT_EQ(sums.last(),
              2 + 3 * few->getDurationValue(few->getTaskInfoAt(0)->Start, few->getTaskInfoAt(0)->Finish,
                                            duration::Day, false));

    const auto many = layers(64, 2);
    sums.clear();
    KWTaskInfo::recurDependTaskMaxDurValue(many.get(), many->getTaskInfoAt(0), sum, sums);
    EXPECT_EQ(sums.size(), 1);
}

TEST(Paths, mayBeAsDeepAsThePlanIsLong)
{
    const auto chain = layers(100000, 1);
    chain->updateAllTaskEarlyLate();
    const KWTaskInfo first = *chain->getTaskInfoAt(0);
    chain->getTaskInfoAt(0)->LateStart = 1;
    chain->getTaskInfoAt(0)->updateEarlyLate(chain.get(), chain->getMaxFinishSecs());
    EXPECT_EQ(chain->getTaskInfoAt(0)->LateStart, first.LateStart);
    EXPECT_TRUE(chain->getTaskInfoAt(99999)->CriticalPath);
    QList<double> sums;
    double sum = 0;
    KWTaskInfo::recurDependTaskMaxDurValue(chain.get(), chain->getTaskInfoAt(0), sum, sums);
    EXPECT_EQ(sums.size(), 1);
}

// ---- Another unit -----------------------------------------------------------------------------------------

TEST(SlackUnit, changesTheTextsOnlyWhereItIsAnotherOne)
{
    Project p(week, "A 1d\nB 3d\n");
    p.document().MinorUnit = days.minor;
    const auto slackAfter = [&](unsigned int unit) {
        p.task("A").LateSlack = QStringLiteral("old");
        p.document().updateSlackAndUnit(unit);
        return p.task("A").LateSlack.toStdString();
    };
    p.document().updateAllTaskEarlyLate();
    EXPECT_EQ(slackAfter(duration::Day), "old");
    EXPECT_EQ(slackAfter(duration::Year), "old");
    EXPECT_EQ(slackAfter(duration::Hour), "16 h");
    p.document().MinorUnit = hours.minor;
    EXPECT_EQ(slackAfter(duration::Hour), "old");
    EXPECT_EQ(slackAfter(duration::Minute), "960 min");
    EXPECT_EQ(slackAfter(duration::Month), "2 d");
}
}
