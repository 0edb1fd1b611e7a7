#include "generator.h"
#include "engine/record/outline.h"
#include "engine/time/dayoff.h"
#include "engine/time/duration.h"
#include "engine/time/localclock.h"
#include "engine/time/walk.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwcalendar.h"
#include "table/rowcolumndata.h"
#include <random>

namespace generator {

namespace {

int between(std::mt19937 &random, int low, int high)
{
    return low + int(random() % quint32(high - low + 1));
}

// Lists the outline in pre-order; `size` tasks go below this parent, spread over its children.
void fillOutline(Plan &plan, int parent, int size, int childrenPerSummary)
{
    struct Pending
    {
        int parent, size;
    };
    std::vector<Pending> stack{{parent, size}};
    while (!stack.empty()) {
        const Pending next = stack.back();
        stack.pop_back();
        if (next.size <= 0)
            continue;
        const int self = int(plan.parent.size());
        plan.parent.push_back(next.parent);
        const int below = next.size - 1;
        const int children = std::min(below, childrenPerSummary);
        for (int i = children; i-- > 0;)
            stack.push_back({self, below / children + (i < below % children ? 1 : 0)});
    }
}
}

Plan plan(const Shape &shape)
{
    std::mt19937 random(shape.seed);
    Plan plan;
    const int top = std::min(shape.tasks, shape.childrenPerSummary);
    for (int i = 0; i < top; ++i)
        fillOutline(plan, -1, shape.tasks / top + (i < shape.tasks % top ? 1 : 0), shape.childrenPerSummary);

    const int count = int(plan.parent.size());
    std::vector<char> summary(count);
    for (int parent : plan.parent) {
        if (parent >= 0)
            summary[parent] = 1;
    }
    plan.durationDays.resize(count);
    plan.predecessors.resize(count);
    std::vector<int> leaves;
    for (int task = 0; task < count; ++task) {
        if (summary[task])
            continue;
        plan.durationDays[task] = between(random, 1, 10);
        leaves.push_back(task);
    }
    const int wanted = int(shape.tasks * shape.linksPerTask);
    while (leaves.size() > 1 && plan.links < wanted) {
        const int successor = between(random, 1, int(leaves.size()) - 1);
        const int predecessor = successor - between(random, 1, std::min(successor, shape.linkReach));
        auto &list = plan.predecessors[leaves[successor]];
        if (std::find(list.begin(), list.end(), leaves[predecessor]) != list.end())
            continue;
        list.push_back(leaves[predecessor]);
        ++plan.links;
    }
    return plan;
}

Plan layered(int layers, int width)
{
    Plan plan;
    for (int layer = 0; layer < layers; ++layer) {
        for (int i = 0; i < width; ++i) {
            plan.parent.push_back(-1);
            plan.durationDays.push_back(1 + (layer + i) % 3);
            plan.predecessors.emplace_back();
            for (int before = 0; layer > 0 && before < width; ++before) {
                plan.predecessors.back().push_back((layer - 1) * width + before);
                ++plan.links;
            }
        }
    }
    return plan;
}

Plan chain(int tasks)
{
    return layered(tasks, 1);
}

std::vector<int> holidays(const Shape &shape)
{
    std::mt19937 random(shape.seed + 1);
    std::vector<int> days;
    for (int year = 0; year < shape.years; ++year) {
        for (int i = 0; i < shape.holidaysPerYear; ++i)
            days.push_back(startDay + year * 365 + between(random, 7, 364));
    }
    std::sort(days.begin(), days.end());
    days.erase(std::unique(days.begin(), days.end()), days.end());
    return days;
}

std::unique_ptr<KWDocument> document(const Plan &plan, const Shape &shape)
{
    auto document = std::make_unique<KWDocument>();
    for (int day : holidays(shape)) {
        auto *holiday = new KWCalendar;
        holiday->startDate = holiday->finishDate = LocalClock::dateOf(day);
        holiday->isException = true;
        holiday->isWork = false;
        document->calendars.append(holiday);
    }
    document->MajorUnit = 3;
    document->MinorUnit = 0; // days
    document->AutoZoom = false;
    const auto &calendar = document->workCalendar();
    const quint32 start = worktime::clampSecs(LocalClock::current()->startOfDay(startDay));
    document->StartDate = start;

    const int count = int(plan.parent.size());
    std::vector<int> level(count, 1);
    outline::LevelBuilder levels;
    for (int pos = 0; pos < count; ++pos) {
        auto *task = new KWTaskInfo;
        task->ID = quint32(pos + 1);
        task->Name = QStringLiteral("Task ") + QString::number(pos + 1);
        if (plan.parent[pos] >= 0)
            level[pos] = level[plan.parent[pos]] + 1;
        task->Level = level[pos];
        task->Start = start;
        const int days = std::max(1, plan.durationDays[pos]);
        task->Finish = walk::byUnits(calendar, start, days, duration::Day);
        task->DurationSecs = duration::secs(calendar, task->Start, task->Finish, duration::Day);
        for (int predecessor : plan.predecessors[pos])
            task->Predecessors.append(quint32(predecessor + 1));
        levels.add(*task);
        document->appendTaskInfoList(task);
        document->rowColumnData()->appendRowHeight(RowColumnData::defaultRowHeight);
    }
    document->updateDependTask(false);
    return document;
}
}
