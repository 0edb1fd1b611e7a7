#include "engine/network/links.h"
#include "engine/network/linkgraph.h"
#include "engine/record/idlist.h"
#include "engine/record/taskahead.h"
#include "engine/record/taskrecord.h"
#include <algorithm>

namespace links {

using outline::Tasks;

namespace {

using IdList = QList<quint32> TaskRecord::*;

constexpr int none = -1;

// ---- Whether a task leads to another ----------------------------------------------------------------------

// The IDs of a task, of the summaries above it but below the one it shares with another task, and of all
// below it.
TaskIndex family(const Tasks &tasks, const TaskRecord &a, const TaskRecord &other)
{
    TaskIndex ids;
    ids.add(a.ID);
    const TaskRecord *common = outline::commonSummary(tasks, a, other);
    for (const TaskRecord *above : outline::ancestors(tasks, a)) {
        if (above == common)
            break;
        ids.add(above->ID);
    }
    for (const TaskRecord *below : outline::descendants(tasks, a))
        ids.add(below->ID);
    return ids;
}

bool contains(const std::vector<TaskRecord *> &tasks, quint32 id)
{
    return std::any_of(tasks.begin(), tasks.end(), [id](const TaskRecord *task) { return task->ID == id; });
}

// One event reached on the way from b to a.
struct Reached
{
    int pos = 0;
    bool isEnd = false;
    int from = none; // index of the event that led here
};

// Looks for a way along links and outline from the begin of b to the end of a, the nearest first.
bool isReached(const Tasks &tasks, int a, int b, const Added &added, QList<quint32> *ring)
{
    TaskIndex aboveA;
    for (const TaskRecord *above : outline::ancestors(tasks, *tasks.list[a]))
        aboveA.add(above->ID);
    std::vector<Reached> reached;
    TaskIndex seen;
    int from = none;
    const bool isLeaf = !tasks.list[a]->isParent();
    // A task is only looked at when it has its turn: by then it was fetched.
    const auto reach = [&](int pos, bool isEnd, bool isLink) {
        // The end of a summary that holds a says nothing of a itself.
        const bool goesUp = isEnd && !isLink && aboveA.contains(tasks.list[pos]->ID);
        if (!goesUp && seen.add(2 * quint32(pos) + (isEnd ? 1 : 0)))
            reached.push_back({pos, isEnd, from});
        return pos == a && (isEnd || isLeaf);
    };
    bool found = reach(b, false, true);
    for (size_t i = 0; i < reached.size() && !found; ++i) {
        if (i + 2 * tasksAhead < reached.size())
            fetchTaskAhead(tasks.list, reached[i + 2 * tasksAhead].pos);
        if (i + tasksAhead < reached.size())
            fetchListsAhead(tasks.list, reached[i + tasksAhead].pos);
        const Reached event = reached[i];
        from = int(i);
        linkgraph::forEachFollower(tasks, event.pos, event.isEnd, [&](int pos, bool isEnd, bool isLink) {
            found = found || reach(pos, isEnd, isLink);
        });
        const bool ends = event.isEnd || !tasks.list[event.pos]->isParent();
        const auto more = ends ? added.find(event.pos) : added.end();
        for (std::size_t k = 0; more != added.end() && k < more->second.size(); ++k)
            found = found || reach(more->second[k], false, true);
    }
    if (found && ring) {
        std::vector<int> path;
        for (int i = int(reached.size()) - 1; i != none; i = reached[i].from)
            path.push_back(reached[i].pos);
        std::reverse(path.begin(), path.end());
        *ring = ringAlong(tasks, path);
    }
    return found;
}

// ---- The lists --------------------------------------------------------------------------------------------

void removeAlong(const Tasks &tasks, const std::vector<TaskRecord *> &from, TaskRecord &x, IdList onward,
                 IdList back)
{
    TaskIndex seen;
    TaskIndex parted;
    std::vector<TaskRecord *> open = from;
    while (!open.empty()) {
        TaskRecord *task = open.back();
        open.pop_back();
        if (!seen.add(task->ID))
            continue;
        for (const quint32 id : qAsConst(task->*onward)) {
            TaskRecord *next = tasks.byId(id);
            if (next && !seen.contains(id))
                open.push_back(next);
        }
        if ((task->*onward).removeAll(x.ID) > 0)
            parted.add(task->ID);
    }
    QList<quint32> &others = x.*back;
    others.erase(
        std::remove_if(others.begin(), others.end(), [&](quint32 id) { return parted.contains(id); }),
        others.end());
}

}

LinkRefusal outlineRefusal(const Tasks &tasks, const TaskRecord &a, const TaskRecord &b)
{
    if (contains(outline::ancestors(tasks, a), b.ID))
        return LinkRefusal::OwnSummary;
    if (contains(outline::ancestors(tasks, b), a.ID))
        return LinkRefusal::OwnSubtask;
    return LinkRefusal::None;
}

int placeByBar(const Tasks &tasks, const QList<quint32> &ids, double x)
{
    for (int i = 0; i < ids.size(); ++i) {
        const TaskRecord *task = tasks.byId(ids[i]);
        if (task && task->x1 > x)
            return i;
    }
    return ids.size();
}

QList<quint32> ringAlong(const Tasks &tasks, const std::vector<int> &path)
{
    QList<quint32> ids{tasks.list[path.back()]->ID};
    for (size_t i = 0; i + 1 < path.size(); ++i) {
        // A task is there with its begin and its end.
        if (path[i] != path.back() && (i == 0 || path[i] != path[i - 1]))
            ids.append(tasks.list[path[i]]->ID);
    }
    return ids;
}

bool leadsTo(const Tasks &tasks, const TaskRecord &t, const TaskRecord &a)
{
    if (t.Depends.isEmpty())
        return false;
    const TaskIndex ids = family(tasks, a, t);
    return std::any_of(t.Depends.begin(), t.Depends.end(), [&](quint32 id) { return ids.contains(id); });
}

LinkRefusal fault(const Tasks &tasks, const TaskRecord &a, const TaskRecord &b, const Added &added,
                  QList<quint32> *ring)
{
    const int posOfA = tasks.index.posOf(a.ID);
    const int posOfB = tasks.index.posOf(b.ID);
    if (posOfA < 0 || posOfB < 0)
        return LinkRefusal::Missing;
    if (posOfA == posOfB)
        return LinkRefusal::Self;
    const LinkRefusal byOutline = outlineRefusal(tasks, a, b);
    if (byOutline != LinkRefusal::None)
        return byOutline;
    // A child that names another summary is still below this one.
    if (contains(outline::descendants(tasks, a), b.ID))
        return LinkRefusal::OwnSubtask;
    return isReached(tasks, posOfA, posOfB, added, ring) ? LinkRefusal::Loop : LinkRefusal::None;
}

LinkRefusal fault(const Tasks &tasks, const TaskRecord &a, const TaskRecord &b, QList<quint32> *ring)
{
    return fault(tasks, a, b, {}, ring);
}

LinkRefusal refusal(const Tasks &tasks, const TaskRecord &a, const TaskRecord &b, QList<quint32> *ring)
{
    const bool isLinked = a.ID != b.ID && a.Depends.contains(b.ID) && tasks.byId(a.ID) && tasks.byId(b.ID);
    return isLinked ? LinkRefusal::Twice : fault(tasks, a, b, {}, ring);
}

void insert(const Tasks &tasks, TaskRecord &a, TaskRecord &b)
{
    idlist::insert(a.Depends, placeByBar(tasks, a.Depends, b.x1), b.ID);
    idlist::insert(b.Predecessors, placeByBar(tasks, b.Predecessors, a.x1), a.ID);
}

void removeDownstream(const Tasks &tasks, const std::vector<TaskRecord *> &from, TaskRecord &x)
{
    removeAlong(tasks, from, x, &TaskRecord::Depends, &TaskRecord::Predecessors);
}

void removeUpstream(const Tasks &tasks, const std::vector<TaskRecord *> &from, TaskRecord &x)
{
    removeAlong(tasks, from, x, &TaskRecord::Predecessors, &TaskRecord::Depends);
}

void completeSuccessors(const Tasks &tasks)
{
    // The successors that are named, by predecessor: first how many, then which.
    std::vector<int> ends(size_t(tasks.list.size()) + 1);
    for (TaskRecord *task : tasks.list) {
        std::sort(task->Predecessors.begin(), task->Predecessors.end());
        for (const quint32 id : qAsConst(task->Predecessors))
            ++ends[size_t(tasks.index.posOf(id) + 1)]; // of those that there are not, too
    }
    ends[0] = 0;
    for (size_t i = 1; i < ends.size(); ++i)
        ends[i] += ends[i - 1];
    std::vector<int> free(ends.begin(), ends.end() - 1);
    std::vector<quint32> named(size_t(ends.back()));
    for (const TaskRecord *task : tasks.list) {
        for (const quint32 id : task->Predecessors) {
            const int predecessor = tasks.index.posOf(id);
            if (predecessor >= 0)
                named[size_t(free[size_t(predecessor)]++)] = task->ID;
        }
    }
    std::vector<quint32> missing;
    for (int pos = 0; pos < tasks.list.size(); ++pos) {
        QList<quint32> &successors = tasks.list[pos]->Depends;
        const auto first = named.begin() + ends[size_t(pos)];
        const auto last = named.begin() + ends[size_t(pos) + 1];
        std::sort(first, last);
        std::sort(successors.begin(), successors.end());
        missing.clear();
        std::set_difference(first, std::unique(first, last), successors.begin(), successors.end(),
                            std::back_inserter(missing));
        if (missing.empty())
            continue;
        for (const quint32 id : missing)
            successors.append(id);
        std::sort(successors.begin(), successors.end());
    }
}
}
