#pragma once
#include "engine/network/latedates.h"

// Late dates where the links of a summary bind all that lies below it.
namespace latedates {

// As tails() of the whole network, but the successors of a task are its own and those of all summaries above
// it, and a successor counts with its whole length, be it a summary or not. Tasks without dates come after
// nothing. In list order; without linked summaries and undated tasks the same as tails().
std::vector<Tail> inheritedTails(const outline::Tasks &tasks, const std::vector<quint32> &lengths);

// The same in parts, for who keeps them between edits. What follows each task: its links, and behind them the
// way to the nearest summary above it that has links. Links between the tasks of a ring are left out.
struct InheritedNetwork
{
    linkgraph::Graph graph;
    std::vector<int> linkEnd; // of each task: where its links end among its edges
    std::vector<char> listsUnknown;
    linkgraph::Components components;

    // Edges that close a ring lead nowhere.
    bool counts(int node, int edge) const
    {
        return components.of[graph.targets[edge]] != components.of[node];
    }
};
// What of the outline it is made of, in list order: the places are known already, and nothing else of the
// tasks has to be fetched again.
struct OutlinePlaces
{
    std::vector<char> isDated;
    std::vector<int> parents; // -1: none
};
OutlinePlaces outlinePlaces(const outline::Tasks &tasks);
InheritedNetwork inheritedNetwork(const outline::Tasks &tasks, const OutlinePlaces &places);
// From the tails of the tasks that follow.
Tail tailOf(const InheritedNetwork &network, int node, const std::vector<Tail> &tails,
            const std::vector<quint32> &lengths);

// Makes each summary critical that has a critical task below it.
void spreadCritical(const outline::Tasks &tasks);
}
