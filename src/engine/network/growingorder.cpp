#include "engine/network/growingorder.h"
#include <algorithm>

namespace linkgraph {

namespace {

constexpr int none = -1;
}

GrowingOrder::GrowingOrder(const std::vector<int> &order)
    : m_nodeAt(order)
    , m_place(order.size())
    , m_firstEdge(order.size(), none)
    , m_reachedBy(order.size())
    , m_cameFrom(order.size())
{
    for (int place = 0; place < int(order.size()); ++place)
        m_place[order[place]] = place;
}

bool GrowingOrder::add(int from, int to, std::vector<int> &path)
{
    if (!follows(from, to) && !reorder(from, to, path))
        return false;
    m_edges.push_back({to, m_firstEdge[from]});
    m_firstEdge[from] = int(m_edges.size()) - 1;
    return true;
}

// Puts all that follows from `to` behind `from`, unless `from` is part of it.
bool GrowingOrder::reorder(int from, int to, std::vector<int> &path)
{
    const int first = m_place[to];
    const int last = m_place[from];
    std::vector<int> reached{to};
    m_reachedBy[to] = ++m_search;
    m_cameFrom[to] = none;
    for (size_t i = 0; i < reached.size(); ++i) {
        const int node = reached[i];
        if (node == from) {
            for (int step = node; step != none; step = m_cameFrom[step])
                path.push_back(step);
            std::reverse(path.begin(), path.end());
            return false;
        }
        for (int edge = m_firstEdge[node]; edge != none; edge = m_edges[edge].next) {
            const int target = m_edges[edge].target;
            if (m_place[target] > last || m_reachedBy[target] == m_search)
                continue;
            m_reachedBy[target] = m_search;
            m_cameFrom[target] = node;
            reached.push_back(target);
        }
    }
    std::vector<int> later;
    int free = first;
    for (int place = first; place <= last; ++place) {
        const int node = m_nodeAt[place];
        if (m_reachedBy[node] == m_search)
            later.push_back(node);
        else
            put(node, free++);
    }
    for (const int node : later)
        put(node, free++);
    return true;
}

void GrowingOrder::put(int node, int place)
{
    m_nodeAt[place] = node;
    m_place[node] = place;
}
}
