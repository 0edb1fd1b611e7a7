// Many links at once: the same links and refusals as one by one, without walking the network for each.
#include "engine/network/growingorder.h"
#include "engine/network/linkgraph.h"
#include "engine/network/links.h"
#include "engine/record/taskrecord.h"
#include <QVector>
#include <algorithm>
#include <limits>
#include <numeric>
#include <vector>

namespace links {

using linkgraph::EventNetwork;
using outline::Tasks;

namespace {

constexpr int none = -1;

// ---- Many links at once -----------------------------------------------------------------------------------

// Pairs of places in one block of memory: there may be a million links.
class PairSet
{
public:
    // False when it is there already.
    bool insert(int a, int b)
    {
        if (m_count >= m_slots.size() / 2)
            grow();
        quint64 &slot = m_slots[slotOf(keyOf(a, b))];
        const bool isNew = slot == empty;
        slot = keyOf(a, b);
        m_count += isNew;
        return isNew;
    }
    bool contains(int a, int b) const { return !m_slots.empty() && m_slots[slotOf(keyOf(a, b))] != empty; }

private:
    static constexpr quint64 empty = 0;
    static quint64 keyOf(int a, int b) { return ((quint64(quint32(a)) + 1) << 32) | quint32(b); }
    // Links lie along a diagonal, so the upper bits of a product have to tell them apart.
    std::size_t slotOf(quint64 key) const
    {
        std::size_t slot = std::size_t((key * 0x9e3779b97f4a7c15ULL) >> m_shift);
        while (m_slots[slot] != empty && m_slots[slot] != key)
            slot = (slot + 1) & (m_slots.size() - 1);
        return slot;
    }
    void grow()
    {
        constexpr int firstBits = 4;
        m_shift = m_slots.empty() ? 64 - firstBits : m_shift - 1;
        std::vector<quint64> keys(std::size_t(1) << (64 - m_shift), empty);
        keys.swap(m_slots);
        for (const quint64 key : keys) {
            if (key != empty)
                m_slots[slotOf(key)] = key;
        }
    }

    std::vector<quint64> m_slots;
    std::size_t m_count = 0;
    int m_shift = 0;
};

// Every child names its summary and every summary its children.
bool isOutlineSound(const Tasks &tasks)
{
    const auto summaryOf = [&tasks](int pos) {
        const quint32 id = tasks.list[pos]->ParentID;
        return id == 0 ? none : tasks.index.posOf(id);
    };
    int named = 0;
    std::vector<bool> isListed(std::size_t(tasks.list.size()));
    for (int pos = 0; pos < tasks.list.size(); ++pos) {
        if (tasks.index.posOf(tasks.list[pos]->ID) != pos)
            return false;
        named += summaryOf(pos) != none;
        for (const quint32 id : tasks.list[pos]->Childs) {
            const int child = tasks.index.posOf(id);
            if (child < 0 || isListed[std::size_t(child)] || summaryOf(child) != pos)
                return false;
            isListed[std::size_t(child)] = true;
            --named;
        }
    }
    return named == 0;
}

// What becomes of links, with what is asked again and again at hand.
class Judge
{
public:
    Judge(const Tasks &tasks, const EventNetwork &network, QList<KWTaskLink> &wanted)
        : m_tasks(tasks)
        , m_network(network)
        , m_wanted(wanted)
    {
        for (int pos = 0; pos < tasks.list.size(); ++pos) {
            for (const quint32 id : tasks.list[pos]->Depends)
                m_linked.insert(pos, tasks.index.posOf(id));
        }
        m_from.reserve(wanted.size());
        for (KWTaskLink &link : wanted)
            m_from.append({tasks.index.posOf(link.predecessor), tasks.index.posOf(link.successor)});
    }

    void run()
    {
        linkgraph::GrowingOrder order(linkgraph::components(withWanted()).order);
        addPresent(order);
        for (int i = 0; i < m_wanted.size(); ++i) {
            m_wanted[i].ring.clear();
            m_wanted[i].refusal = judged(i, order);
            if (m_wanted[i].refusal == LinkRefusal::None)
                m_linked.insert(m_from[i].predecessor, m_from[i].successor);
        }
    }

private:
    struct Ends
    {
        int predecessor, successor; // places
    };

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
        if (m_linked.contains(ends.predecessor, ends.successor))
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

    const Tasks &m_tasks;
    const EventNetwork &m_network;
    QList<KWTaskLink> &m_wanted;
    QVector<Ends> m_from;
    PairSet m_linked; // by Depends
};

void judgeOneByOne(const Tasks &tasks, QList<KWTaskLink> &wanted)
{
    Added added;
    for (KWTaskLink &link : wanted) {
        const TaskRecord *a = tasks.byId(link.predecessor);
        const TaskRecord *b = tasks.byId(link.successor);
        link.ring.clear();
        if (!a || !b) {
            link.refusal = LinkRefusal::Missing;
            continue;
        }
        const int successor = tasks.index.posOf(b->ID);
        std::vector<int> &successors = added[tasks.index.posOf(a->ID)];
        if (a != b && (a->Depends.contains(b->ID) ||
                       std::find(successors.begin(), successors.end(), successor) != successors.end())) {
            link.refusal = LinkRefusal::Twice;
            continue;
        }
        link.refusal = fault(tasks, *a, *b, added, &link.ring);
        if (link.refusal == LinkRefusal::None)
            successors.push_back(successor);
    }
}

// ---- Making them ------------------------------------------------------------------------------------------

// The lists of IDs on one side of the links, with what is asked of them again and again.
class Lists
{
public:
    Lists(const Tasks &tasks, QList<quint32> TaskRecord::*ids)
        : m_tasks(tasks)
        , m_ids(ids)
        , m_right(std::size_t(tasks.list.size()))
        , m_isRead(std::size_t(tasks.list.size()))
    {
    }

    // As links::insert does it for one list.
    void insert(int pos, int other)
    {
        QList<quint32> &ids = m_tasks.list[pos]->*m_ids;
        double &right = m_right[std::size_t(pos)];
        if (!m_isRead[std::size_t(pos)]) {
            m_isRead[std::size_t(pos)] = true;
            right = -std::numeric_limits<double>::infinity();
            read(pos, right);
        }
        if (!m_listed.insert(pos, other))
            return;
        // Where no bar starts further right the list need not be looked through.
        const TaskRecord &task = *m_tasks.list[other];
        ids.insert(right > task.x1 ? placeByBar(m_tasks, ids, task.x1) : ids.size(), task.ID);
        right = std::max(right, task.x1);
    }

private:
    void read(int pos, double &right)
    {
        for (const quint32 id : qAsConst(m_tasks.list[pos]->*m_ids)) {
            const int listed = m_tasks.index.posOf(id);
            if (listed < 0)
                continue;
            m_listed.insert(pos, listed);
            right = std::max(right, m_tasks.list[listed]->x1);
        }
    }

    const Tasks &m_tasks;
    QList<quint32> TaskRecord::*m_ids;
    std::vector<double> m_right; // by place: the greatest left edge of the listed bars
    std::vector<bool> m_isRead;  // by place: whether that is known
    PairSet m_listed;
};
}

void judgeAll(const Tasks &tasks, QList<KWTaskLink> &wanted)
{
    constexpr int few = 8;
    if (wanted.size() <= few || !isOutlineSound(tasks))
        return judgeOneByOne(tasks, wanted);
    const EventNetwork network(tasks);
    // With rings there is no order to begin with.
    if (linkgraph::components(network.graph()).hasRings)
        return judgeOneByOne(tasks, wanted);
    Judge(tasks, network, wanted).run();
}

namespace {

// From each task, by its place, to the other ends of its links.
template <typename From, typename To>
linkgraph::Graph grouped(int tasks, const std::vector<Places> &links, From from, To to)
{
    linkgraph::Graph graph;
    graph.first.assign(std::size_t(tasks) + 1, 0);
    for (const Places &link : links)
        ++graph.first[std::size_t(link.*from) + 1];
    std::partial_sum(graph.first.begin(), graph.first.end(), graph.first.begin());
    std::vector<int> free(graph.first.begin(), graph.first.end() - 1);
    graph.targets.resize(links.size());
    for (const Places &link : links)
        graph.targets[std::size_t(free[std::size_t(link.*from)]++)] = link.*to;
    return graph;
}

// Fills the lists of IDs from a graph of places.
void fill(const Tasks &tasks, const linkgraph::Graph &graph, QList<quint32> TaskRecord::*list)
{
    for (int pos = 0; pos < graph.count(); ++pos) {
        const int first = graph.first[std::size_t(pos)];
        const int last = graph.first[std::size_t(pos) + 1];
        if (first == last)
            continue;
        QList<quint32> &ids = tasks.list[pos]->*list;
        ids.reserve(last - first);
        bool ascends = true;
        for (int edge = first; edge < last; ++edge) {
            const quint32 id = tasks.list[graph.targets[std::size_t(edge)]]->ID;
            ascends = ascends && (ids.isEmpty() || ids.constLast() < id);
            ids.append(id);
        }
        if (!ascends)
            std::sort(ids.begin(), ids.end());
    }
}
}

bool insertFirst(const Tasks &tasks, const std::vector<Places> &wanted)
{
    const auto hasLinks = [](const TaskRecord *task) {
        return !task->Depends.isEmpty() || !task->Predecessors.isEmpty();
    };
    if (std::any_of(tasks.list.begin(), tasks.list.end(), hasLinks) || !isOutlineSound(tasks))
        return false;
    for (const Places &link : wanted) {
        const TaskRecord &a = *tasks.list[link.predecessor];
        const TaskRecord &b = *tasks.list[link.successor];
        if (&a == &b || ((a.isParent() || b.isParent()) && outlineRefusal(tasks, a, b) != LinkRefusal::None))
            return false;
    }
    linkgraph::Graph successors =
        grouped(tasks.list.size(), wanted, &Places::predecessor, &Places::successor);
    for (int pos = 0; pos < successors.count(); ++pos) {
        const auto first = successors.targets.begin() + successors.first[std::size_t(pos)];
        const auto last = successors.targets.begin() + successors.first[std::size_t(pos) + 1];
        std::sort(first, last);
        if (std::adjacent_find(first, last) != last)
            return false;
    }
    if (linkgraph::hasRings(tasks, successors))
        return false;
    fill(tasks, successors, &TaskRecord::Depends);
    fill(tasks, grouped(tasks.list.size(), wanted, &Places::successor, &Places::predecessor),
         &TaskRecord::Predecessors);
    return true;
}

int insertAll(const Tasks &tasks, QList<KWTaskLink> &wanted)
{
    judgeAll(tasks, wanted);
    Lists successors(tasks, &TaskRecord::Depends);
    Lists predecessors(tasks, &TaskRecord::Predecessors);
    int made = 0;
    for (const KWTaskLink &link : qAsConst(wanted)) {
        if (link.refusal != LinkRefusal::None)
            continue;
        const int a = tasks.index.posOf(link.predecessor);
        const int b = tasks.index.posOf(link.successor);
        successors.insert(a, b);
        predecessors.insert(b, a);
        ++made;
    }
    return made;
}
}
