#pragma once
#include "engine/record/taskindex.h"
#include <QList>
#include <vector>

class KWTaskInfo;

// Tasks that were copied somewhere become branches of their own: new IDs, and parents, children, links and
// hidden flags that go by them.
namespace pasted {

// IDs upward from the greatest one in use; when 32 bits are used up, those that were left free.
class NewIds
{
public:
    NewIds(const TaskIndex &taken, quint32 greatest)
        : m_taken(taken)
        , m_last(greatest)
    {
    }
    quint32 next();

private:
    const TaskIndex &m_taken;
    quint32 m_last;
    quint32 m_lowest = 1;
};

// The list without what is not among the old IDs; what is there becomes the ID of the new task at its place.
// Each at most once.
QList<quint32> relinked(const QList<quint32> &ids, const TaskIndex &oldIds,
                        const QList<KWTaskInfo *> &newTasks);

// Tasks found by the IDs they come with: of several with one ID the first, none for 0. They may say anything
// of each other; whatever it is, each ends up in one branch.
class Branches
{
public:
    // The list must outlive the object and stay as it is.
    explicit Branches(const QList<KWTaskInfo *> &tasks);

    int count() const { return int(m_rank.size()); }
    // Whether the task's parent is not among the tasks.
    bool isTop(int pos) const;
    bool isNumbered(int pos) const { return m_rank[std::size_t(pos)] >= 0; }

    // A new ID for the task and for each task below it, one branch after the other in the order of the
    // children, with so many levels added. Children that are not there, or in a branch already, leave the
    // list.
    void number(int pos, qint64 levels, NewIds &ids);
    // The same for what is below a task that has its ID already.
    void numberBelow(KWTaskInfo &task, qint64 levels, NewIds &ids);
    // Tasks that have lost children.
    const std::vector<KWTaskInfo *> &robbed() const { return m_robbed; }

    // Links and hidden flags, once all tasks are numbered. What was hidden by a task that is not above it any
    // more becomes visible.
    void relink();

private:
    void relinkTask(int pos);
    void mirrorLinks();
    bool isBelow(int pos, int above) const;

    const QList<KWTaskInfo *> &m_tasks;
    TaskIndex m_index;       // by the old IDs
    std::vector<int> m_rank; // places in the order of the numbering; -1: none yet
    std::vector<int> m_end;  // the rank after the last task below
    int m_numbered = 0;
    std::vector<KWTaskInfo *> m_robbed;
};
}
