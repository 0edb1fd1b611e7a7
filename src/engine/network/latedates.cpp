#include "engine/network/latedates.h"
#include "engine/record/taskrecord.h"
#include "engine/time/duration.h"
#include "engine/time/walk.h"
#include "format/dataformat.h"
#include <algorithm>

namespace latedates {

using linkgraph::Graph;
using worktime::WorkCalendar;

namespace {

// Adds the task's links; nodeOf(pos) names the node of a successor's place.
template <typename NodeOf>
void addLinks(Network &network, const outline::Tasks &tasks, const TaskRecord &task, NodeOf nodeOf)
{
    bool listsUnknown = false;
    for (const quint32 id : task.Depends) {
        const int pos = tasks.index.posOf(id);
        if (pos >= 0)
            network.graph.targets.push_back(nodeOf(pos));
        else
            listsUnknown = true;
    }
    network.graph.first.push_back(int(network.graph.targets.size()));
    network.listsUnknown.push_back(listsUnknown);
}

// What a task without countable successors is: links of a ring count as none, unknown ones do not.
Tail lastTail(const Network &network, int node)
{
    return {network.listsUnknown[node] ? Tail::NoPath : Tail::Last, 0};
}

// Calls visit(successor) for each link that is no part of a ring.
template <typename Visit>
void forEachSuccessor(const Graph &graph, const std::vector<int> &component, int node, Visit visit)
{
    for (int edge = graph.first[node]; edge < graph.first[node + 1]; ++edge) {
        const int successor = graph.targets[edge];
        if (component[successor] != component[node])
            visit(successor);
    }
}
}

unsigned int slackUnit(unsigned int minorUnit)
{
    return std::max(minorUnit, unsigned(duration::Day));
}

Network wholeNetwork(const outline::Tasks &tasks)
{
    Network network;
    network.tasks.assign(tasks.list.begin(), tasks.list.end());
    network.graph.first.reserve(network.tasks.size() + 1);
    network.listsUnknown.reserve(network.tasks.size());
    for (const TaskRecord *task : network.tasks)
        addLinks(network, tasks, *task, [](int pos) { return pos; });
    return network;
}

Network networkAfter(const outline::Tasks &tasks, const TaskRecord &task)
{
    Network network;
    TaskIndex nodeOfPos;
    const int own = tasks.index.posOf(task.ID);
    if (own >= 0 && tasks.list[own] == &task)
        nodeOfPos.add(quint32(own), 0);
    network.tasks.push_back(&task);
    for (size_t node = 0; node < network.tasks.size(); ++node) {
        addLinks(network, tasks, *network.tasks[node], [&](int pos) {
            if (nodeOfPos.add(quint32(pos), int(network.tasks.size())))
                network.tasks.push_back(tasks.list[pos]);
            return nodeOfPos.posOf(quint32(pos));
        });
    }
    return network;
}

std::vector<Tail> tails(const Network &network, const std::vector<quint32> &lengths)
{
    const linkgraph::Components components = linkgraph::components(network.graph);
    std::vector<Tail> result(network.tasks.size());
    for (auto it = components.order.rbegin(); it != components.order.rend(); ++it) {
        Tail tail = lastTail(network, *it);
        forEachSuccessor(network.graph, components.of, *it, [&](int successor) {
            if (tail.kind == Tail::Last)
                tail.kind = Tail::NoPath;
            const Tail &after = result[successor];
            if (after.kind == Tail::NoPath)
                return;
            tail.kind = Tail::Path;
            tail.secs = std::max(tail.secs, after.secs + lengths[successor]);
        });
        result[*it] = tail;
    }
    return result;
}

std::vector<double> pathSums(const Network &network, const std::vector<double> &lengths, double sum)
{
    const linkgraph::Components components = linkgraph::components(network.graph);
    std::vector<double> pathCount(network.tasks.size());
    std::vector<double> longest(network.tasks.size());
    for (auto it = components.order.rbegin(); it != components.order.rend(); ++it) {
        double &count = pathCount[*it];
        bool isLast = lastTail(network, *it).kind == Tail::Last;
        forEachSuccessor(network.graph, components.of, *it, [&](int successor) {
            isLast = false;
            if (pathCount[successor] == 0)
                return;
            const double length = lengths[successor] + longest[successor];
            longest[*it] = count == 0 ? length : std::max(longest[*it], length);
            count += pathCount[successor];
        });
        if (isLast)
            count = 1;
    }
    constexpr int start = 0;
    std::vector<double> sums;
    if (pathCount[start] > maxPaths)
        sums.push_back(sum + longest[start]);
    if (network.tasks[start]->Depends.isEmpty() || pathCount[start] > maxPaths)
        return sums;

    struct Step
    {
        int node;
        double sum;
    };
    std::vector<Step> open{{start, sum}};
    while (!open.empty()) {
        const Step step = open.back();
        open.pop_back();
        const size_t firstNew = open.size();
        forEachSuccessor(network.graph, components.of, step.node, [&](int successor) {
            if (pathCount[successor] > 0)
                open.push_back({successor, step.sum + lengths[successor]});
        });
        if (open.size() == firstNew && pathCount[step.node] > 0)
            sums.push_back(step.sum);
        std::reverse(open.begin() + std::ptrdiff_t(firstNew), open.end());
    }
    return sums;
}

// ---- Slack ------------------------------------------------------------------------------------------------

SlackTexts::SlackTexts(const WorkCalendar &calendar, unsigned int unit, const QString &unitName)
    : m_calendar(calendar)
    , m_unit(unit)
    , m_unitName(unitName)
{
}

double SlackTexts::between(quint32 early, quint32 late) const
{
    constexpr bool rounded = true;
    return duration::valueBetween(m_calendar, early, late, m_unit, rounded);
}

QString SlackTexts::text(double units)
{
    // No slack is shown with more digits than this tells apart.
    constexpr double steps = 1000;
    return m_texts.get(qRound64(units * steps), [&] {
        constexpr int groupSize = 3;
        constexpr int decimals = 2;
        constexpr int roundDigits = 1;
        return DataFormat::formatNumber(units, groupSize, decimals, roundDigits) + QLatin1Char(' ') +
               m_unitName;
    });
}

namespace {

Early earlyOf(const TaskRecord &task)
{
    return {task.Start, task.Finish, task.Percent != 0};
}

// From the late dates that are filled in already.
void addSlack(const Early &early, SlackTexts &texts, Values &values)
{
    values.earlySlack = texts.text(early.hasBegun ? 0.0 : texts.between(early.start, values.lateStart));
    const double units = texts.between(early.finish, values.lateFinish);
    values.lateSlack = texts.text(units);
    values.isCritical = units == 0.0;
}
}

void writeSlack(TaskRecord &task, SlackTexts &texts)
{
    Values values;
    values.lateStart = task.LateStart;
    values.lateFinish = task.LateFinish;
    addSlack(earlyOf(task), texts, values);
    task.EarlySlack = values.earlySlack;
    task.LateSlack = values.lateSlack;
}

// ---- Late dates -------------------------------------------------------------------------------------------

LateDates::LateDates(const WorkCalendar &calendar, quint32 projectFinish, unsigned int unit,
                     const QString &unitName)
    : m_calendar(calendar)
    , m_projectFinish(projectFinish)
    , m_unit(unit)
    , m_slack(calendar, unit, unitName)
{
}

quint32 LateDates::length(const TaskRecord &task) const
{
    return duration::secs(m_calendar, task.Start, task.Finish, m_unit);
}

quint32 LateDates::beforeFinish(qint64 workSecs)
{
    return m_beforeFinish.get(workSecs, [&] {
        const double units = duration::value(m_calendar, workSecs, m_unit);
        return walk::byUnits(m_calendar, m_projectFinish, -units, m_unit);
    });
}

void LateDates::setProjectFinish(quint32 projectFinish)
{
    if (m_projectFinish != projectFinish)
        m_beforeFinish.clear();
    m_projectFinish = projectFinish;
}

Values LateDates::values(const Early &early, quint32 lengthSecs, const Tail &tail)
{
    Values values;
    if (tail.kind == Tail::Path) {
        values.lateStart = beforeFinish(tail.secs + lengthSecs);
        values.lateFinish = beforeFinish(tail.secs);
    } else {
        values.lateStart = early.finish == m_projectFinish ? early.start : beforeFinish(lengthSecs);
        values.lateFinish = m_projectFinish;
    }
    addSlack(early, m_slack, values);
    return values;
}

void LateDates::apply(TaskRecord &task, quint32 lengthSecs, const Tail &tail)
{
    Values found = values(earlyOf(task), lengthSecs, tail);
    task.LateStart = found.lateStart;
    task.LateFinish = found.lateFinish;
    task.EarlySlack = std::move(found.earlySlack);
    task.LateSlack = std::move(found.lateSlack);
    task.CriticalPath = found.isCritical;
}
}
