#pragma once
#include "engine/network/latedates.h"
#include "engine/record/taskindex.h"
#include "model/kwtaskinfo.h"
#include <deque>
#include <memory>
#include <vector>

class KWDocument;

// Whether the bars of tasks come back with their values, or whoever brings these back draws the chart anew.
enum class Bars { Kept, Follow };

// The values of single tasks as they were, without their assignments: whole records while an edit is open,
// afterwards only what it changed.
//
// An edit can reach every task of a plan and mostly changes a few numbers of each. So the values that differ
// are packed one behind the other, by kind, and tasks of which the same fields differ share a block that says
// once which these are.
class TaskBackups
{
public:
    TaskBackups();
    ~TaskBackups();
    TaskBackups(TaskBackups &&) noexcept;
    TaskBackups &operator=(TaskBackups &&) noexcept;

    // Whether the task is recorded, changed or not.
    bool contains(quint32 id) const;
    std::size_t size() const { return m_whole.size(); } // of the whole records
    bool isEmpty() const { return m_whole.empty() && m_moved.empty() && m_blocks.empty(); }
    // The first record of a task stays.
    void add(const KWDocument &document, const KWTaskInfo &task);
    // Of a task that is only moved: its dates, and the numbers that follow from these. Nothing else of it may
    // change before the edit is made.
    void addMoved(const TaskRecord &task);
    // Late dates and slack, before they become these. Once for each task and after all that is recorded of
    // it; where that is the whole task they are known already. Takes the texts that others replace out of it.
    void addLate(TaskRecord &task, const latedates::Values &now);
    // Calls visit(id, start, finish) with the dates of each task that is recorded while the edit is open.
    template <typename Visit>
    void forEachDates(Visit visit) const
    {
        for (const Whole &whole : m_whole)
            visit(whole.task.ID, whole.task.Start, whole.task.Finish);
        for (const Moved &moved : m_moved)
            visit(moved.id, moved.start, moved.finish);
    }

    // The edit is made: what equals the document is dropped. A task that is not there keeps its record for
    // another time.
    void keepChanges(const KWDocument &document, Bars bars);
    // The document's values, of all that is held here.
    TaskBackups now(const KWDocument &document) const;
    // Texts are taken out of here: afterwards nothing can be brought back from it.
    void restore(KWDocument &document);

private:
    struct Whole
    {
        KWTaskInfo task; // has no assignments
        double rowHeight = 0;
    };
    struct Moved
    {
        quint32 id, start, finish, durationSecs;
        double percent, cost, work, remainingCost;
    };
    struct Block;
    class Ids;
    // How a task is recorded: what its ID stands for in m_ids.
    enum Kind { IsWhole, IsMoved };

    void keepMoves(const KWDocument &document);
    Block &blockOf(quint64 fields);

    std::deque<Whole> m_whole;
    std::vector<Moved> m_moved;             // while the edit is open
    TaskIndex m_ids;                        // of those that were recorded while the edit was open
    std::shared_ptr<const Ids> m_closedIds; // afterwards
    std::vector<std::unique_ptr<Block>> m_blocks;
};
