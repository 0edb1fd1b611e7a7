#include "engine/record/outline.h"
#include "engine/record/idlist.h"
#include "engine/record/rowfont.h"
#include "engine/record/taskahead.h"
#include "engine/record/taskrecord.h"
#include <QtAlgorithms>

namespace outline {

TaskRecord *Tasks::byId(quint32 id) const
{
    const int pos = index.posOf(id);
    return pos < 0 ? nullptr : list[pos];
}

std::vector<TaskRecord *> descendants(const Tasks &tasks, const TaskRecord &task)
{
    std::vector<TaskRecord *> found;
    anyDescendant(tasks, task, [&found](TaskRecord *descendant) {
        found.push_back(descendant);
        return false;
    });
    return found;
}

bool anyDescendant(const Tasks &tasks, const TaskRecord &task, const std::function<bool(TaskRecord *)> &visit)
{
    if (task.Childs.isEmpty())
        return false;

    struct Branch
    {
        const TaskRecord *task;
        int nextChild;
    };
    std::vector<Branch> path{{&task, 0}};
    TaskIndex seen;
    seen.add(task.ID);
    while (!path.empty()) {
        Branch &branch = path.back();
        if (branch.nextChild >= branch.task->Childs.size()) {
            path.pop_back();
            continue;
        }
        TaskRecord *child = tasks.byId(branch.task->Childs[branch.nextChild++]);
        if (!child || !seen.add(child->ID))
            continue;
        if (visit(child))
            return true;
        if (child->isParent())
            path.push_back({child, 0});
    }
    return false;
}

std::vector<TaskRecord *> ancestors(const Tasks &tasks, const TaskRecord &task)
{
    // Outlines are a few levels deep: looking through the ancestors found so far costs less than a set.
    constexpr std::size_t shortChain = 16;
    std::vector<TaskRecord *> found;
    TaskIndex seen;
    const auto isMet = [&](const TaskRecord *ancestor) {
        if (found.size() < shortChain)
            return ancestor->ID == task.ID || std::find(found.begin(), found.end(), ancestor) != found.end();
        if (seen.size() == 0) {
            seen.add(task.ID);
            for (const TaskRecord *earlier : found)
                seen.add(earlier->ID);
        }
        return !seen.add(ancestor->ID);
    };
    for (quint32 id = task.ParentID; id != 0; id = found.back()->ParentID) {
        TaskRecord *ancestor = tasks.byId(id);
        if (!ancestor || isMet(ancestor))
            break;
        found.push_back(ancestor);
    }
    return found;
}

namespace {

// Places in a list. A bit for each: few of them cost little, and many need no sorting.
class Places
{
public:
    explicit Places(int size)
        : m_words(std::size_t(size / bitsOfWord + 1))
    {
    }

    bool add(int pos) // false when it is there already
    {
        quint64 &word = m_words[std::size_t(pos / bitsOfWord)];
        const quint64 bit = quint64(1) << pos % bitsOfWord;
        if (word & bit)
            return false;
        word |= bit;
        ++m_count;
        return true;
    }

    std::vector<TaskRecord *> fromTheLast(const QList<TaskRecord *> &list) const
    {
        std::vector<TaskRecord *> ordered;
        ordered.reserve(m_count);
        for (int word = int(m_words.size()) - 1; word >= 0; --word) {
            for (quint64 bits = m_words[std::size_t(word)]; bits != 0;) {
                const int bit = bitsOfWord - 1 - int(qCountLeadingZeroBits(bits));
                bits &= ~(quint64(1) << bit);
                ordered.push_back(list[word * bitsOfWord + bit]);
            }
        }
        return ordered;
    }

private:
    static constexpr int bitsOfWord = 64;
    std::vector<quint64> m_words;
    std::size_t m_count = 0;
};

// Calls visit(pos) once for each of these tasks and of all above them.
template <typename Visit>
void forEachWithAncestors(const Tasks &tasks, const std::vector<TaskRecord *> &changed, Visit visit)
{
    Places met(tasks.list.size());
    for (std::size_t i = 0; i < changed.size(); ++i) {
        fetchTaskAhead(changed, int(i) + tasksAhead);
        int pos = tasks.index.posOf(changed[i]->ID);
        while (pos >= 0 && met.add(pos)) {
            visit(pos);
            const quint32 parent = tasks.list[pos]->ParentID;
            pos = parent == 0 ? -1 : tasks.index.posOf(parent);
        }
    }
}
}

std::vector<TaskRecord *> withAncestors(const Tasks &tasks, const std::vector<TaskRecord *> &changed)
{
    Places found(tasks.list.size());
    forEachWithAncestors(tasks, changed, [&found](int pos) { found.add(pos); });
    return found.fromTheLast(tasks.list);
}

std::vector<TaskRecord *> summariesWithAncestors(const Tasks &tasks, const std::vector<TaskRecord *> &changed)
{
    Places found(tasks.list.size());
    forEachWithAncestors(tasks, changed, [&](int pos) {
        if (tasks.list[pos]->isParent())
            found.add(pos);
    });
    return found.fromTheLast(tasks.list);
}

TaskRecord *commonSummary(const Tasks &tasks, const TaskRecord &a, const TaskRecord &b)
{
    TaskIndex aboveB;
    for (const TaskRecord *ancestor : ancestors(tasks, b))
        aboveB.add(ancestor->ID);
    for (TaskRecord *ancestor : ancestors(tasks, a)) {
        if (aboveB.contains(ancestor->ID))
            return ancestor;
    }
    return nullptr;
}

void addChilds(const Tasks &tasks, TaskRecord &summary, const std::vector<TaskRecord *> &children)
{
    // Looking for each among all the others would be quadratic.
    TaskIndex held;
    for (const quint32 id : qAsConst(summary.Childs))
        held.add(id);
    for (const TaskRecord *child : children) {
        const int pos = tasks.index.posOf(child->ID);
        if (pos < 0 || !held.add(child->ID))
            continue;
        QList<quint32> &ids = summary.Childs;
        const bool beforeLast = !ids.isEmpty() && pos < tasks.index.posOf(ids.last());
        ids.insert(beforeLast ? ids.size() - 1 : ids.size(), child->ID);
    }
}

namespace {

void removeIds(QList<quint32> &list, const TaskIndex &ids)
{
    const auto isGone = [&](quint32 id) { return ids.contains(id); };
    list.erase(std::remove_if(list.begin(), list.end(), isGone), list.end());
}
}

void removeChilds(TaskRecord &summary, const TaskIndex &ids)
{
    removeIds(summary.Childs, ids);
}

void cutLinks(const Tasks &tasks, const std::vector<TaskRecord *> &leaving, const TaskIndex &leavingIds)
{
    TaskIndex done;
    for (const TaskRecord *task : leaving) {
        for (const QList<quint32> *linked : {&task->Depends, &task->Predecessors}) {
            for (const quint32 id : *linked) {
                TaskRecord *other = tasks.byId(id);
                if (!other || leavingIds.contains(id) || !done.add(id))
                    continue;
                removeIds(other->Depends, leavingIds);
                removeIds(other->Predecessors, leavingIds);
            }
        }
    }
}

void LevelBuilder::add(TaskRecord &task)
{
    const bool isNewId = m_addedIds.add(task.ID);
    const auto parent = m_lastOfLevel.find(qint64(task.Level) - 1);
    if (task.Level == 1 || parent == m_lastOfLevel.end()) {
        task.ParentID = 0;
    } else {
        TaskRecord *summary = parent->second.task;
        task.ParentID = summary->ID;
        // Looking through all children would make a flat outline quadratic; a new ID cannot be among those
        // given here.
        if (isNewId && !parent->second.hasForeignChilds)
            summary->Childs.append(task.ID);
        else
            idlist::insert(summary->Childs, summary->Childs.size(), task.ID);
        summary->font.setWeight(QFont::Bold);
    }
    m_lastOfLevel[task.Level] = {&task, !task.Childs.isEmpty()};
    rowfont::set(task);
}
}
