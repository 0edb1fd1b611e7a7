#pragma once
#include "engine/cost/cost.h"
#include "engine/record/branches.h"

struct ResourceEntry;

// A pass over costs, work and names of resources: what it needs of a plan, looked up once.
//
// Refers to the plan; valid while neither the task list, an ID nor the working time changes.
class CostPass
{
public:
    CostPass(const outline::Tasks &tasks, const worktime::WorkCalendar &calendar);

    const cost::Measures &measures() const { return m_measures; }
    // Before many summaries are asked for what is below them; without it each is walked on its own.
    void gather();                                       // the whole outline
    void gather(const std::vector<TaskRecord *> &tasks); // the branches whose tops are among these
    std::vector<TaskRecord *> below(const TaskRecord &task) const;
    // For sums that count leaves only: where nothing was gathered, the summaries stand among them.
    std::vector<TaskRecord *> leavesBelow(const TaskRecord &task) const;
    std::vector<TaskRecord *> above(const TaskRecord &task) const
    {
        return outline::ancestors(m_tasks, task);
    }

    // ---- One task and its ancestors -----------------------------------------------------------------------
    // The operations of KWTaskInfo with the same names.
    void updateCostAndWork(TaskRecord &task) const;
    void updateRemainCost(TaskRecord &task) const;
    void updateParentCostAndWork(TaskRecord &task, double costChange, double workChange, bool force) const;
    void updateResourceName(TaskRecord &task) const;
    // Appends an assignment made from the entry (null: none of that name) and changes no sum.
    static Resource *append(TaskRecord &task, const QString &name, const ResourceEntry *entry);
    // The same, with the sums; names are left to the caller.
    Resource *assign(TaskRecord &task, const QString &name, const ResourceEntry *entry) const;
    // Takes the assignment out of the list and out of the sums; names are left to the caller.
    void remove(TaskRecord &task, Resource *resource) const;
    // False, and nothing changed, when there is no assignment of the old name. Names are left to the caller.
    bool rename(TaskRecord &task, const QString &oldName, const QString &newName) const;

    // ---- One summary from the leaves below it, whatever else stands among them ----------------------------
    void sumCostAndWork(TaskRecord &summary, const std::vector<TaskRecord *> &below) const;
    static void joinNames(TaskRecord &summary, const std::vector<TaskRecord *> &below);
    void sumWithoutBaseline(TaskRecord &summary) const; // work, costs and names
    void sumAll(TaskRecord &summary) const;
    void joinAncestorNames(const TaskRecord &task) const;

    // ---- Several branches ---------------------------------------------------------------------------------
    // Work, cost, remaining cost and names of these tasks and of all above them, each once, after what is
    // below them changed. All is summed anew from the leaves; baselines stay.
    void sumFrom(const std::vector<TaskRecord *> &changed);

    // ---- All tasks ----------------------------------------------------------------------------------------
    // Costs and work of every task that has assignments, and of the summaries from their leaves. A summary
    // with an assigned leaf loses assignments of its own and shows the leaves' names.
    void sumUp();

private:
    void sumWithoutBaseline(TaskRecord &summary, const std::vector<TaskRecord *> &below) const;

    outline::Tasks m_tasks;
    outline::BranchRanges m_branches;
    cost::Measures m_measures;
};
