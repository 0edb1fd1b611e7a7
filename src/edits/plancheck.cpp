#include "edits/plancheck.h"
#include "engine/record/resource.h"
#include "engine/record/taskindex.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include "schedule/kwtaskcollection.h"
#include "table/rowcolumndata.h"
#include <QSet>
#include <algorithm>
#include <limits>
#include <numeric>
#include <vector>

namespace plancheck {

namespace {

class Checker
{
public:
    explicit Checker(const KWDocument &document)
        : m_document(document)
    {
        for (const ResourceInfo *entry : qAsConst(document.resourceInfoData()->infos))
            m_resources.insert(entry->name.trimmed());
    }

    QVector<Finding> run()
    {
        checkIds();
        m_areNamesWhole = m_findings.isEmpty() && areChildrenWhole() && areLinksWhole();
        if (!m_areNamesWhole)
            collectNames();
        for (m_pos = 0; m_pos < m_document.taskCount(); ++m_pos) {
            const KWTaskInfo &task = *m_document.getTaskInfoAt(m_pos);
            checkParent(task);
            if (!m_areNamesWhole)
                checkChildren(task);
            checkHidden(task);
            if (!m_areNamesWhole)
                checkLinks(task);
            checkAssignments(task);
        }
        for (const QList<quint32> &ring : m_document.taskCollection()->linkRings())
            m_findings.append({LinkRing, m_posOfId.posOf(ring.value(0)), 0, {}, ring});
        const int heights = m_document.rowColumnData()->rowHeights().size();
        if (heights != m_document.taskCount())
            m_findings.append({WrongHeightCount, -1, quint32(heights), {}, {}});
        return m_findings;
    }

private:
    struct LinkFaults
    {
        Fault unknown, own, oneSided;
    };

    void report(Fault fault, quint32 other = 0, const QString &name = {})
    {
        m_findings.append({fault, m_pos, other, name, {}});
    }
    const KWTaskInfo *byId(quint32 id) const
    {
        const int pos = id == 0 ? -1 : m_posOfId.posOf(id);
        return pos < 0 ? nullptr : m_document.getTaskInfoAt(pos);
    }

    void checkIds()
    {
        for (m_pos = 0; m_pos < m_document.taskCount(); ++m_pos) {
            const quint32 id = m_document.getTaskInfoAt(m_pos)->ID;
            if (id == 0)
                report(NoId);
            else if (!m_posOfId.add(id, m_pos))
                report(DoubledId, quint32(m_posOfId.posOf(id)));
        }
    }

    // Every task stands once in the list of its summary, and nothing else does.
    bool areChildrenWhole() const
    {
        const QList<KWTaskInfo *> &tasks = m_document.taskList();
        std::vector<bool> isNamed(std::size_t(tasks.size()));
        int missing = 0;
        for (const KWTaskInfo *task : tasks) {
            missing += task->ParentID != 0;
            for (const quint32 id : task->Childs) {
                const int child = m_posOfId.posOf(id);
                if (child < 0 || tasks[child]->ParentID != task->ID || isNamed[std::size_t(child)])
                    return false;
                isNamed[std::size_t(child)] = true;
                --missing;
            }
        }
        return missing == 0;
    }

    // The lists of predecessors turned round are those of successors.
    bool areLinksWhole() const
    {
        const QList<KWTaskInfo *> &tasks = m_document.taskList();
        std::vector<int> first(std::size_t(tasks.size()) + 1);
        for (const KWTaskInfo *task : tasks) {
            for (const quint32 id : task->Predecessors) {
                const int predecessor = m_posOfId.posOf(id);
                if (predecessor < 0 || id == task->ID)
                    return false;
                ++first[std::size_t(predecessor) + 1];
            }
        }
        std::partial_sum(first.begin(), first.end(), first.begin());
        std::vector<int> free(first.begin(), first.end() - 1);
        std::vector<quint32> successors(std::size_t(first.back()));
        for (const KWTaskInfo *task : tasks) {
            for (const quint32 id : task->Predecessors)
                successors[std::size_t(free[std::size_t(m_posOfId.posOf(id))]++)] = task->ID;
        }
        std::vector<quint32> named;
        for (int pos = 0; pos < tasks.size(); ++pos) {
            const auto begin = successors.begin() + first[std::size_t(pos)];
            const auto end = successors.begin() + first[std::size_t(pos) + 1];
            named.assign(tasks[pos]->Depends.begin(), tasks[pos]->Depends.end());
            std::sort(named.begin(), named.end());
            std::sort(begin, end);
            if (!std::equal(begin, end, named.begin(), named.end()))
                return false;
        }
        return true;
    }

    // What tasks say of each other is looked up here: their own lists may be as long as the plan.
    class Names // who names, and whom
    {
    public:
        void collect(const KWDocument &document, QList<quint32> TaskRecord::*ids)
        {
            for (const KWTaskInfo *task : document.taskList()) {
                for (const quint32 id : task->*ids)
                    m_pairs.push_back(pair(task->ID, id));
            }
            if (!std::is_sorted(m_pairs.begin(), m_pairs.end()))
                std::sort(m_pairs.begin(), m_pairs.end());
        }
        bool contains(quint32 who, quint32 whom) const
        {
            return std::binary_search(m_pairs.begin(), m_pairs.end(), pair(who, whom));
        }

    private:
        static quint64 pair(quint32 who, quint32 whom) { return quint64(who) << 32 | whom; }
        std::vector<quint64> m_pairs;
    };

    void collectNames()
    {
        m_children.collect(m_document, &TaskRecord::Childs);
        m_predecessors.collect(m_document, &TaskRecord::Predecessors);
        m_successors.collect(m_document, &TaskRecord::Depends);
    }

    void checkParent(const KWTaskInfo &task)
    {
        const KWTaskInfo *parent = byId(task.ParentID);
        if (task.ParentID && !parent)
            report(UnknownSummary, task.ParentID);
        else if (parent && m_posOfId.posOf(task.ParentID) >= m_pos)
            report(AboveItsSummary, task.ParentID);
        else if (parent && !m_areNamesWhole && !m_children.contains(parent->ID, task.ID))
            report(UnnamedBySummary, task.ParentID);
        const qint64 level = parent ? qint64(parent->Level) + 1 : 1;
        if (task.Level != level && level <= std::numeric_limits<qint32>::max())
            report(WrongLevel, quint32(level));
    }

    void checkLinks(const KWTaskInfo &task)
    {
        checkLinks(task.Predecessors, task, m_successors,
                   {UnknownPredecessor, OwnPredecessor, OneSidedPredecessor});
        checkLinks(task.Depends, task, m_predecessors, {UnknownSuccessor, OwnSuccessor, OneSidedSuccessor});
    }

    void checkChildren(const KWTaskInfo &task)
    {
        QSet<quint32> seen;
        for (const quint32 id : task.Childs) {
            const KWTaskInfo *child = byId(id);
            if (seen.contains(id))
                report(DoubledChild, id);
            else if (!child)
                report(UnknownChild, id);
            else if (child->ParentID != task.ID)
                report(ChildOfAnother, id);
            seen.insert(id);
        }
    }

    void checkHidden(const KWTaskInfo &task)
    {
        if (task.HideID == 0)
            return;
        const KWTaskInfo *summary = byId(task.HideID);
        if (!summary || !summary->IsToggler)
            report(WrongHider, task.HideID);
    }

    void checkLinks(const QList<quint32> &ids, const KWTaskInfo &task, const Names &others,
                    const LinkFaults &faults)
    {
        for (const quint32 id : ids) {
            const KWTaskInfo *linked = byId(id);
            if (!linked)
                report(faults.unknown, id);
            else if (linked == &task)
                report(faults.own);
            else if (!others.contains(linked->ID, task.ID))
                report(faults.oneSided, id);
        }
    }

    void checkAssignments(const KWTaskInfo &task)
    {
        if (task.isParent() && task.isHaveResource())
            report(AssignedSummary);
        for (const Resource *assigned : task.resourceList) {
            if (!m_resources.contains(assigned->name.trimmed()))
                report(UnknownResource, 0, assigned->name.trimmed());
        }
    }

    const KWDocument &m_document;
    QVector<Finding> m_findings;
    int m_pos = -1;
    TaskIndex m_posOfId;
    QSet<QString> m_resources;
    bool m_areNamesWhole = false; // what tasks say of each other fits: nothing of it has to be looked up
    Names m_children;
    Names m_predecessors;
    Names m_successors;
};
}

QVector<Finding> check(const KWDocument &document)
{
    return Checker(document).run();
}
}
