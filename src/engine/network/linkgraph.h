#pragma once
#include "engine/record/outline.h"
#include "engine/record/taskrecord.h"
#include <memory>
#include <vector>

// Links and outline as directed graphs, walked without recursion.
namespace linkgraph {

// The edges of node n are targets[first[n]] .. targets[first[n + 1] - 1].
struct Graph
{
    std::vector<int> first{0};
    std::vector<int> targets;
    int count() const { return int(first.size()) - 1; }
};

struct Components
{
    std::vector<int> of;    // the number of each node's strongly connected component
    std::vector<int> order; // all nodes, each before what it leads to, but for edges that close a ring
    bool hasRings = false;  // some component has several nodes, or an edge from a node to itself
};
Components components(const Graph &graph);

// What has to happen before what. A task begins and ends; one without children does both in one node. An edge
// leads from the begin of a summary to the begins of its children, from the end of a child to the end of its
// summary, from begin to end, and from the end of a predecessor to the begin of its successor.
//
// Time cannot run backwards along an edge, so a ring is a set of links that can never all hold. Tasks are
// named by their place in the list. An ID leads to its first holder, an unknown one nowhere.
class EventNetwork
{
public:
    struct Node
    {
        int pos = 0;
        bool begins = false;
        bool ends = false;
        int linkCount = 0; // the first edges of the node are links; the last one leads to the summary, if any
    };

    explicit EventNetwork(const outline::Tasks &tasks);
    // Only what follows from the begins of some tasks.
    EventNetwork(const outline::Tasks &tasks, const std::vector<int> &starts);
    // The same, given up, and of no use, where it has more nodes than these.
    EventNetwork(const outline::Tasks &tasks, const std::vector<int> &starts, std::size_t mostNodes);
    bool isWhole() const { return m_graph.first.size() > m_nodes.size(); }

    const std::vector<Node> &nodes() const { return m_nodes; }
    const Graph &graph() const { return m_graph; }
    int beginOf(int pos) const { return find(pos, false); } // -1 when it is not part of the network
    int endOf(int pos) const { return find(pos, true); }
    // The end of the task that begins at a node; itself for one without children.
    int endOfBegin(int node) const;

private:
    int find(int pos, bool end) const { return slot(pos, end) - 1; }
    int &slot(int pos, bool end) const;
    int add(int pos, bool end);
    void expandAll(std::size_t mostNodes = std::size_t(-1));

    const outline::Tasks m_tasks;
    std::vector<Node> m_nodes;
    Graph m_graph;
    // Node of each event, one higher. Zeroed by the system page by page as it is used: what a small network
    // in a large document costs depends on the network alone.
    std::unique_ptr<int[], void (*)(void *)> m_nodeOfEvent;
};

// Calls visit(pos, isEnd, isLink) for each event that directly follows an event of a task.
template <typename Visit>
void forEachFollower(const outline::Tasks &tasks, int pos, bool isEnd, Visit visit)
{
    const TaskRecord &task = *tasks.list[pos];
    if (!isEnd && task.isParent()) {
        for (const quint32 id : task.Childs) {
            const int child = tasks.index.posOf(id);
            if (child >= 0 && child != pos)
                visit(child, false, false);
        }
        visit(pos, true, false);
        return;
    }
    for (const quint32 id : task.Depends) {
        const int successor = tasks.index.posOf(id);
        if (successor >= 0)
            visit(successor, false, true);
    }
    if (task.ParentID != 0) {
        const int summary = tasks.index.posOf(task.ParentID);
        if (summary >= 0 && summary != pos && tasks.list[summary]->isParent())
            visit(summary, true, false);
    }
}

// From each task to its successors, by their places; unknown IDs lead nowhere.
Graph links(const outline::Tasks &tasks);
// Whether outline and these links, which may be others than the tasks', make a ring of events. Only an event
// network tells which.
bool hasRings(const outline::Tasks &tasks, const Graph &links);

// The links that cannot hold push nothing: those between the tasks of a ring of links, and, where links and
// outline together make a ring, the ring's links to and from summaries.
struct Schedule
{
    std::vector<int> order;     // the nodes, each after all that it waits for
    std::vector<char> deadEdge; // by edge of the graph; empty when every link counts
};
Schedule schedule(const EventNetwork &network, const outline::Tasks &tasks);
// The tasks of each ring, places in ascending order.
std::vector<std::vector<int>> rings(const EventNetwork &network);
}
