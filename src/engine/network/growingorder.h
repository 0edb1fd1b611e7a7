#pragma once
#include <vector>

namespace linkgraph {

// A graph that grows edge by edge and stays free of rings: it keeps its nodes in an order that every edge
// follows. Starting from an order that suits the edges to come, few of them need any work.
class GrowingOrder
{
public:
    explicit GrowingOrder(const std::vector<int> &order);

    bool follows(int from, int to) const { return m_place[from] < m_place[to]; }
    // False, and nothing changed, when the edge would close a ring; `path` then gets the nodes from `to` to
    // `from`.
    bool add(int from, int to, std::vector<int> &path);

private:
    struct Edge
    {
        int target, next;
    };
    bool reorder(int from, int to, std::vector<int> &path);
    void put(int node, int place);

    std::vector<int> m_nodeAt;
    std::vector<int> m_place;
    std::vector<int> m_firstEdge;
    std::vector<Edge> m_edges;
    std::vector<unsigned int> m_reachedBy; // the last search that reached a node
    std::vector<int> m_cameFrom;
    unsigned int m_search = 0;
};
}
