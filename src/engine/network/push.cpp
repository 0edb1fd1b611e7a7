#include "engine/network/push.h"
#include "engine/network/keptnetwork.h"
#include "engine/network/linkgraph.h"
#include "engine/network/moves.h"
#include "engine/network/rollup.h"
#include "engine/record/taskahead.h"
#include "engine/record/taskrecord.h"
#include <QtAlgorithms>
#include <algorithm>
#include <optional>
#include <utility>

namespace push {

using linkgraph::EventNetwork;
using linkgraph::Schedule;
using worktime::WorkCalendar;

namespace {

constexpr int secsPerMinute = 60;
constexpr int none = -1;

// Day-clock seconds of one minute of the hour clock, rounded up.
qint64 shownMinuteSecs(const WorkCalendar &calendar)
{
    const qint64 span = calendar.spanSecs();
    return span > 0 ? (qint64(secsPerMinute) * LocalClock::secsPerDay + span - 1) / span : secsPerMinute;
}

// One pass over a network. Every task is placed once, after all that can push it: the order of the links
// makes no difference.
class Pass
{
public:
    Pass(const WorkCalendar &calendar, const outline::Tasks &tasks, bool hourScale, Undated undated,
         const EventNetwork &network, const Schedule &schedule)
        : m_calendar(calendar)
        , m_tasks(tasks)
        , m_hourScale(hourScale)
        , m_undated(undated)
        , m_network(network)
        , m_schedule(schedule)
        , m_state(network.nodes().size())
        , m_open(m_state.size() / bitsOfWord + 1)
    {
        for (std::size_t rank = 0; rank < schedule.order.size(); ++rank)
            m_state[schedule.order[rank]].rank = int(rank);
    }

    // A predecessor's finish for the task that begins at the node. The latest one counts, of equal ones that
    // of the first task.
    void offer(int node, int predecessor, quint32 finish)
    {
        State &state = m_state[node];
        // None is the last of all.
        if (finish < state.finish ||
            (finish == state.finish && unsigned(predecessor) >= unsigned(state.predecessor)))
            return;
        state.finish = finish;
        state.predecessor = predecessor;
        open(node);
    }

    // Every task pushes its successors.
    void runAll()
    {
        m_fromAll = m_remembers = true;
        rollUpAll();
        for (const int node : m_schedule.order)
            happen(node);
    }
    // Only tasks that were passed push their successors.
    void run()
    {
        for (std::size_t word = 0; word < m_open.size(); ++word) {
            while (m_open[word] != 0) {
                const std::size_t rank = word * bitsOfWord + qCountTrailingZeroBits(m_open[word]);
                m_open[word] &= m_open[word] - 1;
                m_at = int(rank);
                if (rank + tasksAhead < m_schedule.order.size())
                    fetchTaskAhead(m_tasks.list, m_network.nodes()[m_schedule.order[rank + tasksAhead]].pos);
                happen(m_schedule.order[rank]);
            }
        }
    }

    // Keeps what `moves` needs.
    void rememberMoves() { m_remembers = true; }
    void announceTo(const BeforeChange &before) { m_before = &before; }

    bool isPassed(int node) const { return m_state[node].passed; }
    // What was pushed or carried along to other dates, in list order.
    std::vector<Move> moves()
    {
        // They are mostly in order already.
        const auto byPos = [](const Old &a, const Old &b) { return a.pos < b.pos; };
        if (!std::is_sorted(m_old.begin(), m_old.end(), byPos))
            std::sort(m_old.begin(), m_old.end(), byPos);
        std::vector<Move> moved;
        moved.reserve(m_old.size());
        for (std::size_t i = 0; i < m_old.size(); ++i) {
            if (i + tasksAhead < m_old.size())
                fetchTaskAhead(m_tasks.list, m_old[i + tasksAhead].pos);
            const Old &old = m_old[i];
            TaskRecord *task = m_tasks.list[old.pos];
            const int begin = m_network.beginOf(old.pos);
            const bool pushed = begin != none && m_state[begin].pushed;
            if ((pushed || m_state[m_network.endOf(old.pos)].carried) &&
                (task->Start != old.start || task->Finish != old.finish))
                moved.push_back({task, old.start, old.finish,
                                 pushed ? m_tasks.list[m_state[begin].predecessor] : nullptr});
        }
        return moved;
    }
    TaskRecord &task(int node) const { return *m_tasks.list[m_network.nodes()[node].pos]; }

private:
    static constexpr std::size_t bitsOfWord = 64;
    struct State
    {
        quint32 finish = 0;      // of the latest predecessor so far
        int predecessor = none;  // its place in the list
        int rank = 0;            // place in the order
        bool pushed = false;     // at the begin
        bool passed = false;     // at the end: the dates were set in this pass
        bool carried = false;    // at the end: moved with a summary above
        bool remembered = false; // at the begin
    };
    struct Old
    {
        int pos;
        quint32 start, finish;
    };

    // Something comes to the node. Each is looked at once: what stands before the one that is being looked at
    // is of a damaged outline.
    void open(int node)
    {
        const int rank = m_state[node].rank;
        if (rank > m_at)
            m_open[std::size_t(rank) / bitsOfWord] |= quint64(1) << std::size_t(rank) % bitsOfWord;
    }

    void pass(int node)
    {
        m_state[node].passed = true;
        open(node);
    }

    void happen(int node)
    {
        const EventNetwork::Node &event = m_network.nodes()[node];
        if (event.begins)
            place(node);
        if (event.ends)
            end(node);
    }

    // The dates of a task before its first change.
    void remember(int pos)
    {
        const int begin = m_network.beginOf(pos);
        if (!m_remembers || begin == none || m_state[begin].remembered)
            return;
        State &state = m_state[begin];
        state.remembered = true;
        m_old.push_back({pos, m_tasks.list[pos]->Start, m_tasks.list[pos]->Finish});
    }

    void announce(TaskRecord &task) const
    {
        if (m_before && *m_before)
            (*m_before)(task);
    }

    bool rollUp(TaskRecord &summary) const
    {
        return m_undated == Undated::Stay ? rollup::datesOfDated(m_calendar, m_tasks, summary)
                                          : rollup::dates(m_calendar, m_tasks, summary);
    }

    bool takesPart(const TaskRecord &task) const
    {
        return m_undated == Undated::Move || rollup::isDated(task);
    }

    void rollUpAll()
    {
        for (const int node : m_schedule.order) {
            const EventNetwork::Node &event = m_network.nodes()[node];
            if (event.ends && !event.begins) {
                remember(event.pos);
                rollUp(task(node));
            }
        }
    }

    // Whether the start moved. The finish goes along by the same seconds.
    bool moveStart(TaskRecord &task, quint32 finish) const
    {
        bool moved = moves::startTo(m_calendar, task, target(finish), m_hourScale);
        // On an hour-based scale the nearest minute of the hour clock can lie well before the finish.
        if (!holds(finish, task.Start)) {
            const quint32 later = worktime::clampSecs(target(finish) + shownMinuteSecs(m_calendar));
            moved = moves::startTo(m_calendar, task, later, m_hourScale) || moved;
        }
        return moved;
    }

    bool moveTask(TaskRecord &task, quint32 finish) const
    {
        const quint32 oldStart = task.Start;
        if (!moveStart(task, finish))
            return false;
        moves::keepDuration(m_calendar, task, oldStart);
        return true;
    }

    void place(int node)
    {
        State &state = m_state[node];
        TaskRecord &moving = task(node);
        if (holds(state.finish, moving.Start) || !takesPart(moving))
            return;
        remember(m_network.nodes()[node].pos);
        announce(moving);
        if (moving.isParent())
            placeSummary(node);
        else if (moveTask(moving, state.finish))
            state.pushed = state.passed = true;
    }

    void placeSummary(int node)
    {
        State &state = m_state[node];
        TaskRecord &summary = task(node);
        const quint32 oldStart = summary.Start;
        if (m_remembers || m_before) {
            for (TaskRecord *below : outline::descendants(m_tasks, summary)) {
                remember(m_tasks.index.posOf(below->ID));
                announce(*below);
            }
        }
        if (!moveStart(summary, state.finish))
            return;
        const std::vector<TaskRecord *> below = moves::content(m_calendar, m_tasks, summary, oldStart);
        if (!holds(state.finish, summary.Start))
            placeContent(summary, below, state.finish);
        state.pushed = true;
        pass(m_network.endOfBegin(node));
        for (const TaskRecord *moved : below) {
            const int end = m_network.endOf(m_tasks.index.posOf(moved->ID));
            m_state[end].carried = true;
            pass(end);
        }
    }

    // Tasks that stood on days off can keep their distance from the summary's start and still come too early.
    void placeContent(TaskRecord &summary, const std::vector<TaskRecord *> &below, quint32 finish) const
    {
        for (auto it = below.rbegin(); it != below.rend(); ++it) {
            TaskRecord &task = **it;
            if (!rollUp(task) && task.Start != 0 && !holds(finish, task.Start))
                moveTask(task, finish);
        }
        rollUp(summary);
    }

    void end(int node)
    {
        const bool passed = isPassed(node);
        TaskRecord &ending = task(node);
        if (passed && ending.isParent()) {
            announce(ending);
            rollUp(ending);
        }
        if ((!passed && !m_fromAll) || !takesPart(ending))
            return;
        const linkgraph::Graph &graph = m_network.graph();
        const EventNetwork::Node &event = m_network.nodes()[node];
        const int first = graph.first[node];
        const int firstOther = first + event.linkCount;
        for (int edge = first; edge < firstOther; ++edge) {
            if (m_schedule.deadEdge.empty() || !m_schedule.deadEdge[edge])
                offer(graph.targets[edge], event.pos, ending.Finish);
        }
        if (passed && firstOther < graph.first[node + 1])
            pass(graph.targets[firstOther]);
    }

    const WorkCalendar &m_calendar;
    const outline::Tasks &m_tasks;
    bool m_hourScale;
    Undated m_undated;
    const EventNetwork &m_network;
    const Schedule &m_schedule;
    bool m_fromAll = false;
    bool m_remembers = false;
    const BeforeChange *m_before = nullptr;
    std::vector<State> m_state;
    std::vector<quint64> m_open; // a bit for each place in the order
    int m_at = none;             // the place that is being looked at
    std::vector<Old> m_old;
};

// Whether a predecessor's link to the task that begins at a node counts. When the push would come back to the
// predecessor, it has to be a link that is no part of a ring.
class Counting
{
public:
    Counting(const EventNetwork &network, const Schedule &schedule)
        : m_network(network)
        , m_schedule(schedule)
        , m_rank(schedule.deadEdge.empty() ? network.nodes().size() : 0)
    {
        for (std::size_t rank = 0; rank < schedule.order.size() && !m_rank.empty(); ++rank)
            m_rank[std::size_t(schedule.order[rank])] = int(rank);
    }

    bool operator()(int predecessorPos, int successorNode) const
    {
        const int node = predecessorPos < 0 ? none : m_network.endOf(predecessorPos);
        if (node == none)
            return true;
        // Without rings a link that is in the lists leads onward in the order.
        if (!m_rank.empty())
            return m_rank[node] < m_rank[successorNode] || !isReached(node, successorNode);
        const linkgraph::Graph &graph = m_network.graph();
        const int first = graph.first[node];
        for (int edge = first; edge < first + m_network.nodes()[node].linkCount; ++edge) {
            if (graph.targets[edge] == successorNode)
                return !m_schedule.deadEdge[edge];
        }
        return false;
    }

private:
    bool isReached(int node, int from) const
    {
        std::vector<char> isSeen(m_rank.size(), 0);
        std::vector<int> open{from};
        while (!open.empty() && !isSeen[node]) {
            const int each = open.back();
            open.pop_back();
            const linkgraph::Graph &graph = m_network.graph();
            for (int edge = graph.first[each]; edge < graph.first[each + 1]; ++edge) {
                const int target = graph.targets[edge];
                if (m_rank[target] <= m_rank[node] && !std::exchange(isSeen[target], 1))
                    open.push_back(target);
            }
        }
        return isSeen[node];
    }

    const EventNetwork &m_network;
    const Schedule &m_schedule;
    std::vector<int> m_rank; // by node; empty with rings
};

int posOf(const outline::Tasks &tasks, const TaskRecord &task)
{
    const int pos = tasks.index.posOf(task.ID);
    if (pos >= 0 && tasks.list[pos] == &task)
        return pos;
    return tasks.list.indexOf(const_cast<TaskRecord *>(&task)); // another task has the same ID
}
}

bool holds(quint32 finish, quint32 start)
{
    return finish <= qint64(start) + toleranceSecs;
}

quint32 target(quint32 finish)
{
    const quint32 second = finish % secsPerMinute;
    const qint64 whole = qint64(finish) - second;
    return worktime::clampSecs(second < secsPerMinute / 2 ? whole : whole + secsPerMinute);
}

std::vector<TaskRecord *> along(const WorkCalendar &calendar, const outline::Tasks &tasks, bool hourScale,
                                const std::vector<Link> &links, Undated undated, std::vector<Move> *moves,
                                const BeforeChange &before, linkgraph::KeptNetwork *kept)
{
    struct Ends
    {
        int predecessor; // places in the list
        int successor;
        quint32 finish;
    };
    std::vector<Ends> early;
    std::vector<int> starts;
    for (const Link &link : links) {
        if (link.predecessor == link.successor || holds(link.predecessor->Finish, link.successor->Start))
            continue;
        const int successor = posOf(tasks, *link.successor);
        if (successor >= 0) {
            early.push_back({posOf(tasks, *link.predecessor), successor, link.predecessor->Finish});
            starts.push_back(successor);
        }
    }
    std::vector<TaskRecord *> passed;
    if (early.empty())
        return passed;

    // Where a push can reach little, its own network costs less than a look at the whole plan.
    constexpr std::size_t leastTasks = 16;
    const std::size_t mostNodes = kept ? std::size_t(tasks.list.size()) / leastTasks : std::size_t(-1);
    std::optional<EventNetwork> own;
    if (starts.size() <= mostNodes)
        own.emplace(tasks, starts, mostNodes);
    if (own && !own->isWhole())
        own.reset();
    if (!own) {
        kept->update(tasks);
        // Which links of rings count depends on where a push starts.
        if (!kept->schedule().deadEdge.empty())
            own.emplace(tasks, starts);
    }
    std::optional<Schedule> ownOrder;
    if (own)
        ownOrder = linkgraph::schedule(*own, tasks);
    const EventNetwork &network = own ? *own : kept->network();
    const Schedule &order = own ? *ownOrder : kept->schedule();
    Pass pass(calendar, tasks, hourScale, undated, network, order);
    if (moves)
        pass.rememberMoves();
    pass.announceTo(before);
    const Counting counts(network, order);
    for (const Ends &link : early) {
        const int node = network.beginOf(link.successor);
        if (counts(link.predecessor, node))
            pass.offer(node, link.predecessor, link.finish);
    }
    pass.run();
    if (moves)
        *moves = pass.moves();
    for (int node = 0; node < int(network.nodes().size()); ++node) {
        if (pass.isPassed(node))
            passed.push_back(&pass.task(node));
    }
    return passed;
}

std::vector<Move> all(const WorkCalendar &calendar, const outline::Tasks &tasks, bool hourScale,
                      Undated undated)
{
    const EventNetwork network(tasks);
    const Schedule order = linkgraph::schedule(network, tasks);
    Pass pass(calendar, tasks, hourScale, undated, network, order);
    pass.runAll();
    return pass.moves();
}
}
