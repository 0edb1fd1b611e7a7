// Many links at once: the same links and refusals as one by one, without walking the network for each.
#include "engine/network/growingorder.h"
#include "engine/network/linkgraph.h"
#include "engine/network/links.h"
#include "engine/record/taskrecord.h"
#include <QSet>
#include <QVector>
#include <limits>
#include <numeric>

namespace links {

using linkgraph::EventNetwork;
using outline::Tasks;

namespace {

constexpr int none = -1;

// ---- Many links at once -----------------------------------------------------------------------------------

// Each pair its own number. The odd factor keeps them apart and spreads them: Qt's hash of the halves side by
// side is the same for all pairs along a diagonal, and links lie there.
quint64 pairOf(int predecessor, int successor)
{
    return ((quint64(quint32(predecessor)) << 32) | quint32(successor)) * 0x9e3779b97f4a7c15ULL;
}

// Every child names its summary and every summary its children.
bool isOutlineSound(const Tasks &tasks)
{
    QSet<quint64> listed;
    int children = 0;
    for (int pos = 0; pos < tasks.list.size(); ++pos) {
        for (const quint32 id : tasks.list[pos]->Childs)
            listed.insert(pairOf(pos, tasks.index.posOf(id)));
        children += tasks.list[pos]->Childs.size();
        if (tasks.index.posOf(tasks.list[pos]->ID) != pos)
            return false;
    }
    int named = 0;
    for (int pos = 0; pos < tasks.list.size(); ++pos) {
        const int summary =
            tasks.list[pos]->ParentID == 0 ? none : tasks.index.posOf(tasks.list[pos]->ParentID);
        if (summary == none)
            continue;
        if (!listed.contains(pairOf(summary, pos)))
            return false;
        ++named;
    }
    return named == children;
}

// The links of all tasks, with what is asked again and again at hand.
class Linker
{
public:
    Linker(const Tasks &tasks, const EventNetwork &network, QList<KWTaskLink> &wanted)
        : m_tasks(tasks)
        , m_network(network)
        , m_wanted(wanted)
        , m_successorsRight(size_t(tasks.list.size()), unknown)
        , m_predecessorsRight(size_t(tasks.list.size()), unknown)
    {
        for (int pos = 0; pos < tasks.list.size(); ++pos) {
            for (const quint32 id : tasks.list[pos]->Depends)
                m_linked.insert(pairOf(pos, tasks.index.posOf(id)));
            for (const quint32 id : tasks.list[pos]->Predecessors)
                m_named.insert(pairOf(tasks.index.posOf(id), pos));
        }
        m_from.reserve(wanted.size());
        for (KWTaskLink &link : wanted)
            m_from.append({tasks.index.posOf(link.predecessor), tasks.index.posOf(link.successor)});
    }

    int run()
    {
        linkgraph::GrowingOrder order(linkgraph::components(withWanted()).order);
        addPresent(order);
        int made = 0;
        for (int i = 0; i < m_wanted.size(); ++i) {
            KWTaskLink &link = m_wanted[i];
            link.ring.clear();
            link.refusal = judged(i, order);
            if (link.refusal != LinkRefusal::None)
                continue;
            insert(m_from[i].predecessor, m_from[i].successor);
            ++made;
        }
        return made;
    }

private:
    struct Ends
    {
        int predecessor, successor; // places
    };
    static constexpr double unknown = std::numeric_limits<double>::infinity();

    bool isPossible(const Ends &link) const
    {
        return link.predecessor >= 0 && link.successor >= 0 && link.predecessor != link.successor;
    }

    // The network with all wanted links, to find an order that suits most of them.
    linkgraph::Graph withWanted() const
    {
        const linkgraph::Graph &present = m_network.graph();
        std::vector<int> extra(size_t(present.count()) + 1);
        for (const Ends &link : m_from) {
            if (isPossible(link))
                ++extra[m_network.endOf(link.predecessor)];
        }
        linkgraph::Graph all;
        all.targets.resize(present.targets.size() + size_t(std::accumulate(extra.begin(), extra.end(), 0)));
        std::vector<int> free;
        for (int node = 0; node < present.count(); ++node) {
            const auto first = present.targets.begin() + present.first[node];
            const auto last = present.targets.begin() + present.first[node + 1];
            const int at = all.first.back();
            std::copy(first, last, all.targets.begin() + at);
            free.push_back(at + int(last - first));
            all.first.push_back(free.back() + extra[node]);
        }
        for (const Ends &link : m_from) {
            if (isPossible(link))
                all.targets[free[m_network.endOf(link.predecessor)]++] = m_network.beginOf(link.successor);
        }
        return all;
    }

    // First the edges that follow the order: only then can the others be put in place.
    void addPresent(linkgraph::GrowingOrder &order) const
    {
        const linkgraph::Graph &present = m_network.graph();
        std::vector<std::pair<int, int>> against;
        std::vector<int> path;
        for (int node = 0; node < present.count(); ++node) {
            for (int edge = present.first[node]; edge < present.first[node + 1]; ++edge) {
                const int target = present.targets[edge];
                if (order.follows(node, target))
                    order.add(node, target, path);
                else
                    against.push_back({node, target});
            }
        }
        for (const auto &edge : against)
            order.add(edge.first, edge.second, path);
    }

    LinkRefusal judged(int i, linkgraph::GrowingOrder &order)
    {
        KWTaskLink &link = m_wanted[i];
        const Ends &ends = m_from[i];
        if (ends.predecessor < 0 || ends.successor < 0)
            return LinkRefusal::Missing;
        if (ends.predecessor == ends.successor)
            return LinkRefusal::Self;
        if (m_linked.contains(pairOf(ends.predecessor, ends.successor)))
            return LinkRefusal::Twice;
        const TaskRecord &a = *m_tasks.list[ends.predecessor];
        const TaskRecord &b = *m_tasks.list[ends.successor];
        const LinkRefusal byOutline =
            a.isParent() || b.isParent() ? outlineRefusal(m_tasks, a, b) : LinkRefusal::None;
        if (byOutline != LinkRefusal::None)
            return byOutline;
        std::vector<int> path;
        if (order.add(m_network.endOf(ends.predecessor), m_network.beginOf(ends.successor), path))
            return LinkRefusal::None;
        for (int &node : path)
            node = m_network.nodes()[node].pos;
        link.ring = ringAlong(m_tasks, path);
        return LinkRefusal::Loop;
    }

    void insert(int predecessor, int successor)
    {
        TaskRecord &a = *m_tasks.list[predecessor];
        TaskRecord &b = *m_tasks.list[successor];
        const quint64 pair = pairOf(predecessor, successor);
        m_linked.insert(pair);
        insertByBar(a.Depends, b, m_successorsRight[predecessor]);
        if (m_named.contains(pair))
            return;
        m_named.insert(pair);
        insertByBar(b.Predecessors, a, m_predecessorsRight[successor]);
    }

    // `right` is the greatest left edge of the listed bars: without a greater one the list need not be read.
    void insertByBar(QList<quint32> &ids, const TaskRecord &task, double &right) const
    {
        if (right == unknown) {
            right = -unknown;
            for (const quint32 id : qAsConst(ids)) {
                const TaskRecord *listed = m_tasks.byId(id);
                if (listed && listed->x1 > right)
                    right = listed->x1;
            }
        }
        ids.insert(right > task.x1 ? placeByBar(m_tasks, ids, task.x1) : ids.size(), task.ID);
        if (task.x1 > right)
            right = task.x1;
    }

    const Tasks &m_tasks;
    const EventNetwork &m_network;
    QList<KWTaskLink> &m_wanted;
    QVector<Ends> m_from;
    QSet<quint64> m_linked; // by Depends
    QSet<quint64> m_named;  // by Predecessors
    std::vector<double> m_successorsRight;
    std::vector<double> m_predecessorsRight;
};

int insertOneByOne(const Tasks &tasks, QList<KWTaskLink> &wanted)
{
    int made = 0;
    for (KWTaskLink &link : wanted) {
        TaskRecord *a = tasks.byId(link.predecessor);
        TaskRecord *b = tasks.byId(link.successor);
        link.ring.clear();
        link.refusal = a && b ? refusal(tasks, *a, *b, &link.ring) : LinkRefusal::Missing;
        if (link.refusal != LinkRefusal::None)
            continue;
        insert(tasks, *a, *b);
        ++made;
    }
    return made;
}
}

int insertAll(const Tasks &tasks, QList<KWTaskLink> &wanted)
{
    if (!isOutlineSound(tasks))
        return insertOneByOne(tasks, wanted);
    const EventNetwork network(tasks);
    // With rings there is no order to begin with.
    if (linkgraph::components(network.graph()).hasRings)
        return insertOneByOne(tasks, wanted);
    return Linker(tasks, network, wanted).run();
}
}
