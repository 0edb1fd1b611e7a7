#pragma once
#include "engine/cost/cost.h"
#include "engine/record/branches.h"

class KWDocument;
class ResourceInfo;

// A pass over costs, work and names of resources: what it needs of the document, looked up once.
//
// Refers to the document; valid while neither the task list, an ID nor the working time changes.
class CostPass
{
public:
    // The document has its timeline.
    explicit CostPass(KWDocument &document);

    const cost::Measures &measures() const { return m_measures; }
    // Before many summaries are asked for what is below them; without it each is walked on its own.
    void gather();                                       // the whole outline
    void gather(const std::vector<KWTaskInfo *> &tasks); // the branches whose tops are among these
    std::vector<KWTaskInfo *> below(const KWTaskInfo &task) const;
    // For sums that count leaves only: where nothing was gathered, the summaries stand among them.
    std::vector<KWTaskInfo *> leavesBelow(const KWTaskInfo &task) const;
    std::vector<KWTaskInfo *> above(const KWTaskInfo &task) const
    {
        return outline::ancestors(m_tasks, task);
    }

    // ---- One task and its ancestors -----------------------------------------------------------------------
    // The operations of KWTaskInfo with the same names.
    void updateCostAndWork(KWTaskInfo &task) const;
    void updateRemainCost(KWTaskInfo &task) const;
    void updateParentCostAndWork(KWTaskInfo &task, double costChange, double workChange, bool force) const;
    void updateResourceName(KWTaskInfo &task) const;
    // Appends an assignment made from the entry (null: none of that name) and changes no sum.
    static Resource *append(KWTaskInfo &task, const QString &name, const ResourceInfo *entry);
    // The same, with the sums; names are left to the caller.
    Resource *assign(KWTaskInfo &task, const QString &name, const ResourceInfo *entry) const;
    // Takes the assignment out of the list and out of the sums; names are left to the caller.
    void remove(KWTaskInfo &task, Resource *resource) const;
    // False, and nothing changed, when there is no assignment of the old name. Names are left to the caller.
    bool rename(KWTaskInfo &task, const QString &oldName, const QString &newName) const;

    // ---- One summary from the leaves below it, whatever else stands among them ----------------------------
    void sumCostAndWork(KWTaskInfo &summary, const std::vector<KWTaskInfo *> &below) const;
    static void joinNames(KWTaskInfo &summary, const std::vector<KWTaskInfo *> &below);
    void sumWithoutBaseline(KWTaskInfo &summary) const; // work, costs and names
    void sumAll(KWTaskInfo &summary) const;
    void joinAncestorNames(const KWTaskInfo &task) const;

    // ---- Several branches ---------------------------------------------------------------------------------
    // Work, cost, remaining cost and names of these tasks and of all above them, each once, after what is
    // below them changed. All is summed anew from the leaves; baselines stay.
    void sumFrom(const std::vector<KWTaskInfo *> &changed);

    // ---- All tasks (engine/cost/sumup.cpp) -------------------------------------------------------
    // Costs and work of every task that has assignments, and of the summaries from their leaves. A summary
    // with an assigned leaf loses assignments of its own and shows the leaves' names.
    void sumUp() const;

private:
    void sumWithoutBaseline(KWTaskInfo &summary, const std::vector<KWTaskInfo *> &below) const;

    outline::Tasks m_tasks;
    outline::Branches m_branches;
    cost::Measures m_measures;
};
