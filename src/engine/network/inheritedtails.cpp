#include "engine/network/inheritedtails.h"
#include "engine/network/rollup.h"
#include "engine/record/taskahead.h"
#include "engine/record/taskrecord.h"
#include <algorithm>

namespace latedates {

using linkgraph::Components;
using linkgraph::Graph;

namespace {

constexpr int none = -1;

InheritedNetwork linksAndWays(const outline::Tasks &tasks, const OutlinePlaces &places)
{
    const std::size_t count = std::size_t(tasks.list.size());
    InheritedNetwork network;
    network.graph.first.reserve(count + 1);
    network.linkEnd.reserve(count);
    network.listsUnknown.reserve(count);
    std::vector<int> linkedAbove(count, none);
    std::vector<int> &targets = network.graph.targets;
    for (int pos = 0; pos < tasks.list.size(); ++pos) {
        if (pos + 2 * tasksAhead < tasks.list.size())
            __builtin_prefetch(&tasks.list[pos + 2 * tasksAhead]->Depends);
        if (pos + tasksAhead < tasks.list.size())
            fetchContentAhead(tasks.list[pos + tasksAhead]->Depends);
        bool listsUnknown = false;
        if (places.isDated[std::size_t(pos)]) {
            for (const quint32 id : tasks.list[pos]->Depends) {
                const int successor = tasks.index.posOf(id);
                listsUnknown = listsUnknown || successor < 0;
                if (successor >= 0 && places.isDated[std::size_t(successor)])
                    targets.push_back(successor);
            }
        }
        network.linkEnd.push_back(int(targets.size()));
        network.listsUnknown.push_back(listsUnknown);
        const int summary = places.parents[std::size_t(pos)];
        if (summary != none && summary != pos) {
            // In a damaged outline a summary stands below what it holds: then the way leads over it in any
            // case.
            const bool isKnown = summary < pos && tasks.list[summary]->Depends.isEmpty();
            linkedAbove[pos] = isKnown ? linkedAbove[summary] : summary;
        }
        if (linkedAbove[pos] != none)
            targets.push_back(linkedAbove[pos]);
        network.graph.first.push_back(int(targets.size()));
    }
    return network;
}

// Links between the tasks of a ring do not count; the outline does.
InheritedNetwork withoutRings(const InheritedNetwork &network)
{
    const Components &components = network.components;
    InheritedNetwork rest;
    rest.listsUnknown = network.listsUnknown;
    for (int node = 0; node < network.graph.count(); ++node) {
        for (int edge = network.graph.first[node]; edge < network.linkEnd[node]; ++edge) {
            if (components.of[network.graph.targets[edge]] != components.of[node])
                rest.graph.targets.push_back(network.graph.targets[edge]);
        }
        rest.linkEnd.push_back(int(rest.graph.targets.size()));
        for (int edge = network.linkEnd[node]; edge < network.graph.first[node + 1]; ++edge)
            rest.graph.targets.push_back(network.graph.targets[edge]);
        rest.graph.first.push_back(int(rest.graph.targets.size()));
    }
    return rest;
}
}

OutlinePlaces outlinePlaces(const outline::Tasks &tasks)
{
    OutlinePlaces places;
    places.isDated.reserve(std::size_t(tasks.list.size()));
    places.parents.reserve(std::size_t(tasks.list.size()));
    for (int pos = 0; pos < tasks.list.size(); ++pos) {
        fetchTaskAhead(tasks.list, pos + tasksAhead);
        const TaskRecord &task = *tasks.list[pos];
        places.isDated.push_back(rollup::isDated(task));
        places.parents.push_back(task.ParentID == 0 ? none : tasks.index.posOf(task.ParentID));
    }
    return places;
}

InheritedNetwork inheritedNetwork(const outline::Tasks &tasks, const OutlinePlaces &places)
{
    InheritedNetwork network = linksAndWays(tasks, places);
    network.components = linkgraph::components(network.graph);
    if (network.components.hasRings) {
        network = withoutRings(network);
        // What rings are left are of a damaged outline.
        network.components = linkgraph::components(network.graph);
    }
    return network;
}

Tail tailOf(const InheritedNetwork &network, int node, const std::vector<Tail> &tails,
            const std::vector<quint32> &lengths)
{
    Tail tail{network.listsUnknown[node] ? Tail::NoPath : Tail::Last, 0};
    const auto follow = [&](const Tail &after, qint64 length) {
        if (after.kind != Tail::Path && length < 0) { // nothing follows the summary
            if (after.kind == Tail::NoPath && tail.kind == Tail::Last)
                tail.kind = Tail::NoPath;
            return;
        }
        if (tail.kind == Tail::Last)
            tail.kind = Tail::NoPath;
        if (after.kind == Tail::NoPath)
            return;
        tail.kind = Tail::Path;
        tail.secs = std::max(tail.secs, after.secs + std::max<qint64>(length, 0));
    };
    const Graph &graph = network.graph;
    for (int edge = graph.first[node]; edge < graph.first[node + 1]; ++edge) {
        const int target = graph.targets[edge];
        const bool isLink = edge < network.linkEnd[node];
        if (network.counts(node, edge))
            follow(tails[target], isLink ? qint64(lengths[target]) : -1);
    }
    return tail;
}

std::vector<Tail> inheritedTails(const outline::Tasks &tasks, const std::vector<quint32> &lengths)
{
    const InheritedNetwork network = inheritedNetwork(tasks, outlinePlaces(tasks));
    std::vector<Tail> result(lengths.size());
    const std::vector<int> &order = network.components.order;
    for (auto node = order.rbegin(); node != order.rend(); ++node)
        result[*node] = tailOf(network, *node, result, lengths);
    return result;
}

void spreadCritical(const outline::Tasks &tasks)
{
    // What is above a summary that was made critical here is critical already.
    std::vector<char> isDone(std::size_t(tasks.list.size()), 0);
    for (int pos = 0; pos < tasks.list.size(); ++pos) {
        if (!tasks.list[pos]->CriticalPath)
            continue;
        int at = pos;
        while (!isDone[at]) {
            isDone[at] = 1;
            tasks.list[at]->CriticalPath = true;
            const quint32 parent = tasks.list[at]->ParentID;
            const int above = parent == 0 ? -1 : tasks.index.posOf(parent);
            if (above < 0)
                break;
            at = above;
        }
    }
}
}
