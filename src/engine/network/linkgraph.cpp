#include "engine/network/linkgraph.h"
#include <algorithm>
#include <cstdlib>
#include <numeric>

namespace linkgraph {

namespace {

constexpr int unvisited = -1;

// The node whose edges are the links of the task that begins here, for each node.
std::vector<int> linkEnds(const EventNetwork &network)
{
    std::vector<int> ends(network.nodes().size());
    for (int node = 0; node < int(ends.size()); ++node)
        ends[node] = network.endOfBegin(node);
    return ends;
}

// The links alone, between the nodes where tasks end.
Graph linksOnly(const EventNetwork &network, const std::vector<int> &ends)
{
    const Graph &events = network.graph();
    Graph links;
    for (int node = 0; node < events.count(); ++node) {
        const int first = events.first[node];
        for (int edge = first; edge < first + network.nodes()[node].linkCount; ++edge)
            links.targets.push_back(ends[events.targets[edge]]);
        links.first.push_back(int(links.targets.size()));
    }
    return links;
}

Graph without(const Graph &graph, const std::vector<char> &deadEdge)
{
    Graph rest;
    for (int node = 0; node < graph.count(); ++node) {
        for (int edge = graph.first[node]; edge < graph.first[node + 1]; ++edge) {
            if (!deadEdge[edge])
                rest.targets.push_back(graph.targets[edge]);
        }
        rest.first.push_back(int(rest.targets.size()));
    }
    return rest;
}
}

namespace {

enum class From { First, Last };

// Depth first, from the first node and the first edge of each on or from the last ones.
Components search(const Graph &graph, From from)
{
    struct Step
    {
        int node, edge;
    };
    const bool isForward = from == From::First;
    const int count = graph.count();
    Components found;
    found.of.assign(size_t(count), unvisited);
    found.order.reserve(size_t(count));
    std::vector<int> visitedAt(graph.first.size() - 1, unvisited);
    std::vector<int> lowest(graph.first.size() -
                            1); // the earliest visited node of its component that it leads to
    std::vector<int> open;      // visited, component not yet known
    open.reserve(size_t(count));
    std::vector<Step> path;
    int visits = 0;
    int number = 0;
    const auto enter = [&](int node) {
        visitedAt[node] = lowest[node] = visits++;
        open.push_back(node);
        path.push_back({node, isForward ? graph.first[node] : graph.first[node + 1] - 1});
    };
    for (int i = 0; i < count; ++i) {
        const int root = isForward ? i : count - 1 - i;
        if (visitedAt[root] == unvisited)
            enter(root);
        while (!path.empty()) {
            Step &step = path.back();
            const int node = step.node;
            if (isForward ? step.edge < graph.first[node + 1] : step.edge >= graph.first[node]) {
                const int target = graph.targets[isForward ? step.edge++ : step.edge--];
                if (visitedAt[target] == unvisited)
                    enter(target);
                else if (found.of[target] == unvisited)
                    lowest[node] = std::min(lowest[node], visitedAt[target]);
                found.hasRings = found.hasRings || target == node;
                continue;
            }
            path.pop_back();
            found.order.push_back(node);
            if (!path.empty()) {
                int &above = lowest[path.back().node];
                above = std::min(above, lowest[node]);
            }
            if (lowest[node] != visitedAt[node])
                continue;
            found.hasRings = found.hasRings || open.back() != node;
            int member = 0;
            do {
                member = open.back();
                open.pop_back();
                found.of[member] = number;
            } while (member != node);
            ++number;
        }
    }
    std::reverse(found.order.begin(), found.order.end());
    return found;
}
}

namespace {

// Whether every edge leads to a later node: then there is nothing to search.
bool isInOrder(const Graph &graph)
{
    for (int node = 0; node < graph.count(); ++node) {
        for (int edge = graph.first[node]; edge < graph.first[node + 1]; ++edge) {
            if (graph.targets[edge] <= node)
                return false;
        }
    }
    return true;
}

Components eachAlone(int count)
{
    Components found;
    found.of.resize(size_t(count));
    std::iota(found.of.begin(), found.of.end(), 0);
    found.order = found.of;
    return found;
}
}

Components components(const Graph &graph)
{
    if (isInOrder(graph))
        return eachAlone(graph.count());
    // From the last node on the order comes out near that of the nodes, since most of what follows a task
    // stands behind it: walks in that order pass through the memory. Which edges close a ring, and so the
    // order where there are any, has always been found from the first node on.
    Components found = search(graph, From::Last);
    return found.hasRings ? search(graph, From::First) : found;
}

namespace {

int *zeroed(int count)
{
    void *memory = std::calloc(std::max<std::size_t>(1, std::size_t(count)), sizeof(int));
    Q_CHECK_PTR(memory);
    return static_cast<int *>(memory);
}
}

EventNetwork::EventNetwork(const outline::Tasks &tasks)
    : m_tasks(tasks)
    , m_nodeOfEvent(zeroed(2 * tasks.list.size()), std::free)
{
    m_nodes.reserve(size_t(tasks.list.size()));
    for (int pos = 0; pos < tasks.list.size(); ++pos)
        add(pos, false);
    expandAll();
}

EventNetwork::EventNetwork(const outline::Tasks &tasks, const std::vector<int> &starts)
    : EventNetwork(tasks, starts, std::size_t(-1))
{
}

EventNetwork::EventNetwork(const outline::Tasks &tasks, const std::vector<int> &starts, std::size_t mostNodes)
    : m_tasks(tasks)
    , m_nodeOfEvent(zeroed(2 * tasks.list.size()), std::free)
{
    for (const int pos : starts)
        add(pos, false);
    expandAll(mostNodes);
}

// A task without children has one event.
int &EventNetwork::slot(int pos, bool end) const
{
    return m_nodeOfEvent[2 * std::size_t(pos) + (end && m_tasks.list[pos]->isParent() ? 1 : 0)];
}

int EventNetwork::add(int pos, bool end)
{
    int &number = slot(pos, end);
    if (number == 0) {
        m_nodes.push_back({pos, !end, end, 0});
        number = int(m_nodes.size());
    }
    return number - 1;
}

void EventNetwork::expandAll(std::size_t mostNodes)
{
    for (size_t i = 0; i < m_nodes.size() && m_nodes.size() <= mostNodes; ++i) {
        const Node node = m_nodes[i];
        int links = 0;
        forEachFollower(m_tasks, node.pos, node.ends, [&](int pos, bool isEnd, bool isLink) {
            m_graph.targets.push_back(add(pos, isEnd));
            links += isLink ? 1 : 0;
        });
        m_nodes[i].linkCount = links;
        if (!m_tasks.list[node.pos]->isParent())
            m_nodes[i].begins = m_nodes[i].ends = true;
        m_graph.first.push_back(int(m_graph.targets.size()));
    }
}

int EventNetwork::endOfBegin(int node) const
{
    return m_nodes[node].ends ? node : m_graph.targets[m_graph.first[node + 1] - 1];
}

Schedule schedule(const EventNetwork &network, const outline::Tasks &tasks)
{
    const Graph &events = network.graph();
    Components all = components(events);
    Schedule result;
    if (!all.hasRings) {
        result.order = std::move(all.order);
        return result;
    }
    const std::vector<int> ends = linkEnds(network);
    const Components links = components(linksOnly(network, ends));
    const auto isSummary = [&](int node) { return tasks.list[network.nodes()[node].pos]->isParent(); };
    result.deadEdge.assign(events.targets.size(), 0);
    for (int node = 0; node < events.count(); ++node) {
        const int first = events.first[node];
        for (int edge = first; edge < first + network.nodes()[node].linkCount; ++edge) {
            const int target = events.targets[edge];
            const bool inLinkRing = links.of[node] == links.of[ends[target]];
            const bool inRing = all.of[node] == all.of[target];
            result.deadEdge[edge] = inLinkRing || (inRing && (isSummary(node) || isSummary(target)));
        }
    }
    result.order = components(without(events, result.deadEdge)).order;
    return result;
}

Graph links(const outline::Tasks &tasks)
{
    Graph links;
    links.first.reserve(std::size_t(tasks.list.size()) + 1);
    for (const TaskRecord *task : tasks.list) {
        for (const quint32 id : task->Depends) {
            const int successor = tasks.index.posOf(id);
            if (successor >= 0)
                links.targets.push_back(successor);
        }
        links.first.push_back(int(links.targets.size()));
    }
    return links;
}

// Takes away events that wait for nothing: what is left in the end waits for itself.
bool hasRings(const outline::Tasks &tasks, const Graph &links)
{
    const std::size_t count = std::size_t(tasks.list.size());
    std::vector<char> isSummary(count);
    for (std::size_t pos = 0; pos < count; ++pos)
        isSummary[pos] = tasks.list[int(pos)]->isParent();
    std::vector<int> summaryOf(count, -1);
    for (std::size_t pos = 0; pos < count; ++pos) {
        const quint32 id = tasks.list[int(pos)]->ParentID;
        const int summary = id == 0 ? -1 : tasks.index.posOf(id);
        if (summary >= 0 && summary != int(pos) && isSummary[std::size_t(summary)])
            summaryOf[pos] = summary;
    }
    // As in forEachFollower; the begin of a task is event 2 pos, the end of a summary 2 pos + 1.
    const auto forEach = [&](std::size_t event, auto visit) {
        const std::size_t pos = event / 2;
        if (isSummary[pos] && event % 2 == 0) {
            for (const quint32 id : tasks.list[int(pos)]->Childs) {
                const int child = tasks.index.posOf(id);
                if (child >= 0 && child != int(pos))
                    visit(2 * std::size_t(child));
            }
            visit(event + 1);
            return;
        }
        for (int edge = links.first[pos]; edge < links.first[pos + 1]; ++edge)
            visit(2 * std::size_t(links.targets[std::size_t(edge)]));
        if (summaryOf[pos] >= 0)
            visit(2 * std::size_t(summaryOf[pos]) + 1);
    };
    std::vector<int> waits(2 * count);
    std::vector<std::size_t> free;
    free.reserve(count);
    std::size_t left = 0; // events that were not taken away
    const auto isEvent = [&](std::size_t event) { return event % 2 == 0 || isSummary[event / 2]; };
    for (std::size_t event = 0; event < waits.size(); ++event) {
        if (!isEvent(event))
            continue;
        ++left;
        forEach(event, [&waits](std::size_t follower) { ++waits[follower]; });
    }
    for (std::size_t event = 0; event < waits.size(); ++event) {
        if (waits[event] == 0 && isEvent(event))
            free.push_back(event);
    }
    while (!free.empty()) {
        const std::size_t event = free.back();
        free.pop_back();
        --left;
        forEach(event, [&](std::size_t follower) {
            if (--waits[follower] == 0)
                free.push_back(follower);
        });
    }
    return left > 0;
}

std::vector<std::vector<int>> rings(const EventNetwork &network)
{
    const Graph &events = network.graph();
    const Components all = components(events);
    std::vector<std::vector<int>> result;
    if (!all.hasRings)
        return result;
    std::vector<std::vector<int>> members(events.first.size());
    std::vector<char> isRing(events.first.size());
    for (int node = 0; node < events.count(); ++node) {
        const size_t component = size_t(all.of[node]);
        for (int edge = events.first[node]; edge < events.first[node + 1]; ++edge) {
            if (all.of[events.targets[edge]] == int(component))
                isRing[component] = 1;
        }
        members[component].push_back(network.nodes()[node].pos);
    }
    for (size_t component = 0; component < members.size(); ++component) {
        if (!isRing[component])
            continue;
        std::vector<int> &places = members[component];
        std::sort(places.begin(), places.end());
        places.erase(std::unique(places.begin(), places.end()), places.end());
        result.push_back(std::move(places));
    }
    std::sort(result.begin(), result.end());
    return result;
}
}
