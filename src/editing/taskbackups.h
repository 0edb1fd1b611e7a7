#pragma once
#include "engine/record/taskindex.h"
#include "model/kwtaskinfo.h"
#include <deque>
#include <memory>
#include <vector>

class KWDocument;

// Whether the bars of tasks come back with their values, or whoever brings these back draws the chart anew.
enum class Bars { Kept, Follow };

// The late dates and slack of a task, as they were before they were worked out anew.
struct LateValues
{
    quint32 id = 0;
    quint32 lateStart = 0;
    quint32 lateFinish = 0;
    QString earlySlack;
    QString lateSlack;
    bool isCritical = false;
};

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
    // Late dates and slack, for tasks whose other values do not change as well. Once the edit is made; where
    // the whole task is recorded they are known already.
    void addLate(const KWDocument &document, const LateValues &before);
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
    void restore(KWDocument &document) const;

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
