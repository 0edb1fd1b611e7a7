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
    bool isEmpty() const { return m_whole.empty() && m_blocks.empty(); }
    // The first record of a task stays.
    void add(const KWDocument &document, const KWTaskInfo &task);
    // Late dates of a task whose other values did not change. Once the edit is made; of a task that is
    // recorded they are known already.
    void addLate(const KWDocument &document, const LateValues &before);
    // The records while they are whole, in the order in which they came.
    template <typename Visit>
    void forEachWhole(Visit visit) const
    {
        for (const Whole &whole : m_whole)
            visit(whole.task);
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
    struct Block;
    class Ids;

    Block &blockOf(quint64 fields);

    std::deque<Whole> m_whole;
    TaskIndex m_ids;                        // of those that were recorded while the edit was open
    std::shared_ptr<const Ids> m_closedIds; // afterwards
    std::vector<std::unique_ptr<Block>> m_blocks;
};
