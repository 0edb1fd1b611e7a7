// Late dates and the network that are kept between edits against those of a pass over the whole plan, on
// plans that anybody may have written: with rings, unknown and doubled IDs, links of summaries, tasks without
// dates and a damaged outline.
#include "engine/network/inheritedtails.h"
#include "engine/network/keptlatedates.h"
#include "engine/network/keptnetwork.h"
#include "engine/network/rollup.h"
#include "engine/record/outline.h"
#include "engine/time/worktime.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"
#include <gtest/gtest.h>
#include <random>

namespace {

constexpr quint32 day = 86400;

std::string lateText(const KWDocument &document)
{
    std::string text;
    for (const KWTaskInfo *task : document.taskList()) {
        text += std::to_string(task->ID) + ": " + std::to_string(task->LateStart) + " " +
                std::to_string(task->LateFinish) + " " + task->EarlySlack.toStdString() + " " +
                task->LateSlack.toStdString() + (task->CriticalPath ? " critical\n" : "\n");
    }
    return text;
}

void workOutAll(KWDocument &document, unsigned int unit)
{
    const outline::Tasks tasks = document.outline();
    quint32 finish = 0;
    for (const TaskRecord *task : tasks.list)
        finish = rollup::isDated(*task) ? std::max(finish, task->Finish) : finish;
    latedates::LateDates late(document.workCalendar(), finish, unit, QStringLiteral("u"));
    std::vector<quint32> lengths;
    for (const TaskRecord *task : tasks.list)
        lengths.push_back(rollup::isDated(*task) ? late.length(*task) : 0);
    const std::vector<latedates::Tail> tails = latedates::inheritedTails(tasks, lengths);
    for (int pos = 0; pos < tasks.list.size(); ++pos) {
        TaskRecord &task = *tasks.list[pos];
        task.LateStart = task.LateFinish = 0;
        task.EarlySlack.clear();
        task.LateSlack.clear();
        task.CriticalPath = false;
        if (rollup::isDated(task))
            late.apply(task, lengths[std::size_t(pos)], tails[std::size_t(pos)]);
    }
    latedates::spreadCritical(tasks);
}

std::string networkText(const linkgraph::EventNetwork &network, const linkgraph::Schedule &schedule,
                        int tasks)
{
    std::string text;
    const auto add = [&text](int number) { text += std::to_string(number) + ' '; };
    for (int pos = 0; pos < tasks; ++pos) {
        add(network.beginOf(pos));
        add(network.endOf(pos));
    }
    for (const linkgraph::EventNetwork::Node &node : network.nodes())
        add(((node.pos * 2 + node.begins) * 2 + node.ends) * 100 + node.linkCount);
    for (const std::vector<int> &numbers : {network.graph().first, network.graph().targets, schedule.order})
        std::for_each(numbers.begin(), numbers.end(), add);
    std::for_each(schedule.deadEdge.begin(), schedule.deadEdge.end(), add);
    return text;
}

std::string keptNetworkText(KWDocument &document)
{
    linkgraph::KeptNetwork &kept = document.taskCollection()->keptNetwork();
    kept.update(document.outline());
    return networkText(kept.network(), kept.schedule(), document.taskCount());
}

std::string newNetworkText(const KWDocument &document)
{
    const outline::Tasks tasks = document.outline();
    const linkgraph::EventNetwork network(tasks);
    return networkText(network, linkgraph::schedule(network, tasks), document.taskCount());
}

TEST(KeptFromEditToEdit, equalsWhatTheWholePlanGives)
{
    for (unsigned int seed = 1; seed <= 60; ++seed) {
        std::mt19937 random(seed);
        const auto any = [&random](int bound) { return int(random() % unsigned(bound)); };
        KWDocument document;
        for (int i = 2 + any(30); i > 0; --i)
            document.addTaskInfo();
        const auto task = [&]() -> KWTaskInfo & {
            return *document.getTaskInfoAt(any(document.taskCount()));
        };
        const auto setDates = [&](KWTaskInfo &dated) {
            dated.Start = any(9) == 0 ? 0 : 1709510400u + quint32(any(90)) * day / 3;
            dated.Finish = dated.Start + quint32(any(40)) * day / 3;
        };
        for (KWTaskInfo *each : document.taskList())
            setDates(*each);
        unsigned int unit = duration::Day;
        for (int step = 0; step < 60; ++step) {
            for (int change = any(4); change > 0; --change) {
                KWTaskInfo &changed = task();
                switch (any(step < 20 ? 11 : 24)) { // at first the plan grows
                case 0:
                case 1:
                case 2:
                    changed.Depends.append(any(20) == 0 ? 999 : task().ID.value());
                    break;
                case 3:
                    changed.ParentID = any(3) == 0 ? 0 : task().ID.value();
                    break;
                case 4:
                    changed.Depends.clear();
                    break;
                case 5:
                    changed.LateFinish += quint32(any(3));
                    changed.CriticalPath = any(2);
                    break;
                case 6:
                    changed.Percent = any(3) / 2.0;
                    break;
                case 7:
                    unit = any(2) ? duration::Day : duration::Hour;
                    document.WorkDay[any(7)] = any(4);
                    break;
                case 8: {
                    auto *inserted = new KWTaskInfo;
                    inserted->ID = any(10) == 0 ? changed.ID.value() : document.nextTaskID();
                    inserted->Depends = any(2) ? QList<quint32>{changed.ID} : QList<quint32>();
                    setDates(*inserted);
                    document.insertTasks(any(document.taskCount() + 1), {inserted}, {});
                    break;
                }
                case 9:
                    if (document.taskCount() > 2)
                        document.removeTaskInfoByID(changed.ID);
                    break;
                case 10: {
                    TaskRecord &summary = task();
                    summary.Childs.append(changed.ID);
                    if (any(2))
                        changed.ParentID = summary.ID;
                    break;
                }
                case 11:
                    document.moveTaskInfo(&changed, document.getPosByID(changed.ID),
                                          any(document.taskCount()));
                    break;
                default:
                    setDates(changed);
                }
            }
            document.taskCollection()->keptLateDates().update(document.outline(), document.workCalendar(),
                                                              unit, QStringLiteral("u"), {});
            const std::string kept = lateText(document);
            workOutAll(document, unit);
            ASSERT_EQ(kept, lateText(document)) << "seed " << seed << ", step " << step;
            if (any(3) == 0) { // it compares with the last time that it was asked
                ASSERT_EQ(keptNetworkText(document), newNetworkText(document))
                    << "seed " << seed << ", step " << step;
            }
        }
    }
}
}
