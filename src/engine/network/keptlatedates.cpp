#include "engine/network/keptlatedates.h"
#include "engine/network/rollup.h"
#include "engine/record/taskahead.h"
#include "engine/record/taskrecord.h"
#include <algorithm>

namespace latedates {

namespace {

bool isSame(const QString &text, QString &known)
{
    if (text.isSharedWith(known))
        return true;
    if (text != known)
        return false;
    known = text;
    return true;
}

bool hasBegun(const TaskRecord &task)
{
    return task.Percent != 0;
}

bool isDated(const Early &early)
{
    return early.start != 0 && early.finish != 0;
}

// Shares the texts where they only read the same, so that one look tells it the next time.
bool areIn(const TaskRecord &task, Values &values)
{
    return task.LateStart == values.lateStart && task.LateFinish == values.lateFinish &&
           task.CriticalPath == values.isCritical && isSame(task.EarlySlack, values.earlySlack) &&
           isSame(task.LateSlack, values.lateSlack);
}
}

void Kept::reset()
{
    m_late.reset();
    m_known.clear();
}

// False where only a new beginning helps.
bool Kept::findChanges(const outline::Tasks &tasks)
{
    m_changedDates.clear();
    m_changedValues.clear();
    if (!m_late || int(m_known.size()) != tasks.list.size())
        return false;
    for (int pos = 0; pos < tasks.list.size(); ++pos) {
        fetchLateAhead(tasks.list, pos + tasksAhead);
        const TaskRecord &task = *tasks.list[pos];
        Known &known = m_known[std::size_t(pos)];
        if (task.ID != known.id || task.ParentID != known.parent)
            return false;
        if (!task.Depends.isSharedWith(known.links)) {
            if (task.Depends != known.links)
                return false;
            known.links = task.Depends;
        }
        if (task.Start != known.early.start || task.Finish != known.early.finish) {
            if (rollup::isDated(task) != isDated(known.early))
                return false;
            m_changedDates.push_back(pos);
        } else if (hasBegun(task) != known.early.hasBegun || !areIn(task, known.values)) {
            m_changedValues.push_back(pos);
        }
        if (!rollup::isDated(task))
            continue;
        m_span.start = m_span.start == 0 ? task.Start : std::min(m_span.start, task.Start);
        m_span.finish = std::max(m_span.finish, task.Finish);
    }
    return true;
}

namespace {

// Where tasks stood in an earlier list. Most of them follow each other there as they do now.
template <typename Known>
class OldPlaces
{
public:
    explicit OldPlaces(const std::vector<Known> &known)
        : m_known(known)
    {
    }

    int posOf(quint32 id) // -1: nowhere
    {
        if (m_next < m_known.size() && m_known[m_next].id == id)
            return int(m_next++);
        for (; m_indexed < m_known.size(); ++m_indexed)
            m_index.add(m_known[m_indexed].id, int(m_indexed));
        const int pos = m_index.posOf(id);
        if (pos >= 0)
            m_next = std::size_t(pos) + 1;
        return pos;
    }

private:
    const std::vector<Known> &m_known;
    std::size_t m_next = 0;
    std::size_t m_indexed = 0;
    TaskIndex m_index;
};
}

// What the tasks are and how they hang together. Nothing is filled in yet: of those that were there before,
// all of which the values depend on but the project's finish, nothing will have to be.
void Kept::beginAnew(const outline::Tasks &tasks)
{
    const std::size_t count = std::size_t(tasks.list.size());
    std::vector<Known> oldKnown = std::move(m_known);
    const std::vector<quint32> oldLengths = std::move(m_lengths);
    const std::vector<Tail> oldTails = std::move(m_tails);
    OldPlaces<Known> oldPlaces(oldKnown);
    std::vector<int> oldPos(count);
    m_span = Span();
    m_known.clear();
    m_known.reserve(count);
    m_lengths.assign(count, 0);
    m_places.isDated.assign(count, 0);
    m_places.parents.assign(count, -1);
    for (std::size_t pos = 0; pos < count; ++pos) {
        fetchLateAhead(tasks.list, int(pos) + tasksAhead);
        const TaskRecord &task = *tasks.list[int(pos)];
        int &old = oldPos[pos] = oldPlaces.posOf(task.ID);
        Known *before = old < 0 ? nullptr : &oldKnown[std::size_t(old)];
        const bool hasDates =
            before && before->early.start == task.Start && before->early.finish == task.Finish;
        if (hasDates && before->early.hasBegun == hasBegun(task) && areIn(task, before->values)) {
            m_known.push_back(std::move(*before)); // the numbers of it stay, and so does the ID
        } else {
            m_known.emplace_back();
            old = -1;
        }
        Known &known = m_known.back();
        known.id = task.ID;
        known.parent = task.ParentID;
        if (!known.links.isSharedWith(task.Depends))
            known.links = task.Depends;
        known.early = {task.Start, task.Finish, hasBegun(task)};
        if (task.ParentID != 0)
            m_places.parents[pos] = tasks.index.posOf(task.ParentID);
        if (!rollup::isDated(task))
            continue;
        m_places.isDated[pos] = 1;
        m_lengths[pos] = old < 0 ? m_late->length(task) : oldLengths[std::size_t(old)];
        m_span.start = m_span.start == 0 ? task.Start : std::min(m_span.start, task.Start);
        m_span.finish = std::max(m_span.finish, task.Finish);
    }
    m_network = inheritedNetwork(tasks, m_places);
    const linkgraph::Graph &graph = m_network.graph;
    const std::vector<int> &order = m_network.components.order;
    m_rank.resize(count);
    for (std::size_t rank = 0; rank < count; ++rank)
        m_rank[std::size_t(order[rank])] = int(rank);
    m_tails.assign(count, Tail());
    for (auto node = order.rbegin(); node != order.rend(); ++node)
        m_tails[std::size_t(*node)] = tailOf(m_network, *node, m_tails, m_lengths);

    m_before.first.assign(count + 1, 0);
    for (const int target : graph.targets)
        ++m_before.first[std::size_t(target) + 1];
    for (std::size_t pos = 0; pos < count; ++pos)
        m_before.first[pos + 1] += m_before.first[pos];
    m_before.targets.resize(graph.targets.size());
    m_isLinkBefore.resize(graph.targets.size());
    std::vector<int> next(m_before.first.begin(), m_before.first.end() - 1);
    for (int node = 0; node < int(count); ++node) {
        for (int edge = graph.first[node]; edge < graph.first[node + 1]; ++edge) {
            const int place = next[graph.targets[edge]]++;
            m_before.targets[place] = node;
            m_isLinkBefore[place] = edge < m_network.linkEnd[node];
        }
    }
    m_isTailOpen.assign(count, 0);
    m_isToFill.assign(count, 0);
    m_toFill.clear();
    m_changedDates.clear();
    m_changedValues.clear();
    for (std::size_t pos = 0; pos < count; ++pos) {
        const int old = oldPos[pos];
        if (old < 0 || oldTails[std::size_t(old)].kind != m_tails[pos].kind ||
            oldTails[std::size_t(old)].secs != m_tails[pos].secs)
            addWork(int(pos));
    }
}

void Kept::addWork(int pos)
{
    if (m_isToFill[pos])
        return;
    m_isToFill[pos] = 1;
    m_toFill.push_back(pos);
}

// The tasks that this one follows: their tails may be others now. What follows a summary counts for those
// below it whatever its own length is.
void Kept::addTailsBefore(int pos, bool isLength)
{
    for (int edge = m_before.first[pos]; edge < m_before.first[pos + 1]; ++edge) {
        const int node = m_before.targets[edge];
        if ((isLength && !m_isLinkBefore[edge]) ||
            m_network.components.of[node] == m_network.components.of[pos])
            continue;
        const int rank = m_rank[node];
        if (m_isTailOpen[rank])
            continue;
        m_isTailOpen[rank] = 1;
        ++m_openTails;
        m_lastOpen = std::max(m_lastOpen, rank);
    }
}

// From the last one on, so that each is worked out once.
void Kept::followTails()
{
    const std::vector<int> &order = m_network.components.order;
    for (int rank = m_lastOpen; m_openTails > 0; --rank) {
        if (!m_isTailOpen[rank])
            continue;
        m_isTailOpen[rank] = 0;
        --m_openTails;
        const int pos = order[rank];
        const Tail tail = tailOf(m_network, pos, m_tails, m_lengths);
        if (tail.kind == m_tails[pos].kind && tail.secs == m_tails[pos].secs)
            continue;
        m_tails[pos] = tail;
        addWork(pos);
        addTailsBefore(pos, false);
    }
    m_lastOpen = -1;
}

// A summary is critical with each of the tasks below it.
void Kept::spread()
{
    std::vector<char> isCritical(m_known.size(), 0);
    for (std::size_t pos = 0; pos < m_known.size(); ++pos) {
        for (int at = m_known[pos].isOwnCritical ? int(pos) : -1; at >= 0 && !isCritical[at];
             at = m_places.parents[at])
            isCritical[at] = 1;
    }
    for (std::size_t pos = 0; pos < m_known.size(); ++pos) {
        if (m_known[pos].values.isCritical == bool(isCritical[pos]))
            continue;
        m_known[pos].values.isCritical = isCritical[pos];
        addWork(int(pos));
    }
}

Kept::Span Kept::update(const outline::Tasks &tasks, const worktime::WorkCalendar &calendar,
                        unsigned int unit, const QString &unitName, const BeforeChange &before)
{
    if (m_late && (unit != m_unit || unitName != m_unitName))
        reset();
    m_span = Span();
    bool isAnew = !findChanges(tasks);
    if (isAnew) {
        if (!m_late)
            m_late.emplace(calendar, 0, unit, unitName);
        m_unit = unit;
        m_unitName = unitName;
        beginAnew(tasks);
    }
    for (std::size_t i = 0; i < m_changedDates.size(); ++i) {
        if (i + tasksAhead < m_changedDates.size())
            fetchTaskAhead(tasks.list, m_changedDates[i + tasksAhead]);
        const int pos = m_changedDates[i];
        const TaskRecord &task = *tasks.list[pos];
        m_known[pos].early = {task.Start, task.Finish, hasBegun(task)};
        addWork(pos);
        const quint32 length = rollup::isDated(task) ? m_late->length(task) : 0;
        if (length == m_lengths[pos])
            continue;
        m_lengths[pos] = length;
        addTailsBefore(pos, true);
    }
    for (const int pos : m_changedValues) {
        m_known[pos].early.hasBegun = hasBegun(*tasks.list[pos]);
        addWork(pos);
    }
    followTails();
    if (m_projectFinish != m_span.finish) {
        for (int pos = 0; pos < tasks.list.size(); ++pos)
            addWork(pos);
    }
    m_projectFinish = m_span.finish;
    m_late->setProjectFinish(m_span.finish);

    bool isSpread = isAnew;
    for (const int pos : m_toFill) {
        Known &known = m_known[pos];
        const bool wasCritical = known.values.isCritical;
        known.values =
            isDated(known.early) ? m_late->values(known.early, m_lengths[pos], m_tails[pos]) : Values();
        isSpread = isSpread || known.values.isCritical != known.isOwnCritical;
        known.isOwnCritical = known.values.isCritical;
        known.values.isCritical = wasCritical; // with those below it, which may change yet
    }
    if (isSpread)
        spread();
    for (std::size_t i = 0; i < m_toFill.size(); ++i) {
        if (i + tasksAhead < m_toFill.size())
            fetchLateAhead(tasks.list, m_toFill[i + tasksAhead]);
        const int pos = m_toFill[i];
        TaskRecord &task = *tasks.list[pos];
        Values &values = m_known[pos].values;
        m_isToFill[pos] = 0;
        if (areIn(task, values))
            continue;
        if (before)
            before(task, values);
        task.LateStart = values.lateStart;
        task.LateFinish = values.lateFinish;
        task.EarlySlack = values.earlySlack;
        task.LateSlack = values.lateSlack;
        task.CriticalPath = values.isCritical;
    }
    m_toFill.clear();
    return m_span;
}
}
