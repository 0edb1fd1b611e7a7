// Whole networks against the integer arithmetic of a bare kernel: working day k of the project is the k-th
// working date of the calendar, so every date, late date and slack is known by construction.
#include "engine/time/localclock.h"
#include "generator.h"
#include "kernel.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"
#include <QLocale>
#include <QStringList>
#include <gtest/gtest.h>
#include <random>

namespace {

struct NetworkCase
{
    const char *name;
    int tasks;
    double linksPerTask;
    int linkReach, holidaysPerYear;
};

void PrintTo(const NetworkCase &network, std::ostream *out)
{
    *out << network.name;
}

class Networks : public testing::TestWithParam<NetworkCase>
{
protected:
    // The links of the plan, made one by one in random order.
    static void link(KWDocument &document, const generator::Plan &plan, quint32 seed)
    {
        std::vector<std::pair<int, int>> links;
        for (int pos = 0; pos < int(plan.predecessors.size()); ++pos) {
            for (int predecessor : plan.predecessors[size_t(pos)])
                links.emplace_back(predecessor, pos);
        }
        std::shuffle(links.begin(), links.end(), std::mt19937(seed));
        for (const auto &[predecessor, successor] : links) {
            ASSERT_TRUE(document.taskCollection()->taskDependTask(document.getTaskInfoAt(predecessor),
                                                                  document.getTaskInfoAt(successor)));
        }
    }

    static QString line(int pos, int start, int finish, int lateStart, int lateFinish, bool critical)
    {
        return QStringLiteral("%1: %2-%3 late %4-%5%6")
            .arg(pos + 1)
            .arg(start)
            .arg(finish)
            .arg(lateStart)
            .arg(lateFinish)
            .arg(critical ? QStringLiteral(" critical") : QString());
    }
};

TEST_P(Networks, datesEqualThoseKnownByConstruction)
{
    const NetworkCase &network = GetParam();
    for (quint32 seed = 1; seed <= 8; ++seed) {
        generator::Shape shape;
        shape.tasks = network.tasks;
        shape.linksPerTask = network.linksPerTask;
        shape.linkReach = network.linkReach;
        shape.holidaysPerYear = network.holidaysPerYear;
        shape.seed = seed;
        const generator::Plan plan = generator::plan(shape);
        generator::Plan unlinked = plan;
        for (auto &list : unlinked.predecessors)
            list.clear();
        const auto document = generator::document(unlinked, shape);
        link(*document, plan, seed);
        document->taskCollection()->pushAllSuccessors();
        document->taskCollection()->updateOptionTaskTime();
        document->updateAllTaskEarlyLate();

        const kernel::Result expected = kernel::reschedule(plan, shape);
        const auto clock = LocalClock::current();
        // Working day k of a moment that starts a date (a start) or ends one (a finish).
        const auto workingDay = [&](quint32 secs, bool start) {
            const auto wall = clock->wall(qint64(secs) - (start ? 0 : 1));
            if (start && wall.secs != 0)
                return -1;
            const auto found = std::lower_bound(expected.days.begin(), expected.days.end(), wall.day);
            if (found == expected.days.end() || *found != wall.day)
                return -2;
            return int(found - expected.days.begin()) + (start ? 0 : 1);
        };
        QStringList wanted, seen;
        for (int pos = 0; pos < int(plan.parent.size()); ++pos) {
            const KWTaskInfo *task = document->getTaskInfoAt(pos);
            if (task->isParent()) {
                const int start = expected.start[size_t(pos)], finish = expected.finish[size_t(pos)];
                wanted << QStringLiteral("%1: %2-%3").arg(pos + 1).arg(start).arg(finish);
                seen << QStringLiteral("%1: %2-%3")
                            .arg(pos + 1)
                            .arg(workingDay(task->Start, true))
                            .arg(workingDay(task->Finish, false));
                continue;
            }
            const int late = expected.lateFinish[size_t(pos)];
            const int days = plan.durationDays[size_t(pos)];
            const int slack = late - expected.finish[size_t(pos)];
            wanted << line(pos, expected.start[size_t(pos)], expected.finish[size_t(pos)], late - days, late,
                           slack == 0) +
                          QStringLiteral(" slack %1 d").arg(QLocale::c().toString(slack));
            // A late finish is a start-type moment: the beginning of the working day after it.
            const bool endsProject = task->LateFinish == document->getMaxFinishSecs();
            seen << line(pos, workingDay(task->Start, true), workingDay(task->Finish, false),
                         workingDay(task->LateStart, true), workingDay(task->LateFinish, !endsProject),
                         task->CriticalPath) +
                        QStringLiteral(" slack ") + task->LateSlack;
        }
        ASSERT_EQ(wanted.join(QLatin1Char('\n')).toStdString(), seen.join(QLatin1Char('\n')).toStdString())
            << "seed " << seed;
    }
}

INSTANTIATE_TEST_SUITE_P(Shapes, Networks,
                         testing::Values(NetworkCase{"sparse", 60, 0.7, 20, 12},
                                         NetworkCase{"usual", 120, 1.5, 40, 12},
                                         NetworkCase{"dense", 90, 6, 89, 12},
                                         NetworkCase{"manyHolidays", 150, 1.5, 30, 120},
                                         NetworkCase{"deepOutline", 500, 1.2, 60, 0}),
                         [](const auto &shape) { return std::string(shape.param.name); });
}
