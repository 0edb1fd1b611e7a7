#include "invariants.h"
#include "engine/record/resource.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "planrows.h"
#include "resources/resourceinfodata.h"
#include "schedule/kwtaskcollection.h"
#include "support/findings.h"
#include "table/rowcolumndata.h"
#include "taskref.h"
#include "texts.h"
#include <QHash>
#include <QSet>

namespace invariants {

namespace {

class Checker
{
public:
    Checker(const KWDocument &document, Findings &findings)
        : m_document(document)
        , m_findings(findings)
    {
    }

    void run()
    {
        checkIds();
        collectNamed();
        for (int pos = 0; pos < m_document.taskCount(); ++pos) {
            m_place = planrows::place(pos + 1);
            const KWTaskInfo &task = *m_document.getTaskInfoAt(pos);
            checkParent(task, pos);
            checkChildren(task);
            checkHidden(task);
            checkLinks(task.Predecessors, task, Successor, "predecessor");
            checkLinks(task.Depends, task, Predecessor, "successor");
            checkAssignments(task);
        }
        checkRings();
        m_place.clear();
        const int heights = m_document.rowColumnData()->rowHeights().size();
        if (heights != m_document.taskCount())
            report(t("%1 row heights for %2 tasks").arg(heights).arg(m_document.taskCount()));
    }

private:
    // What a task names another as.
    enum Role : quint32 { Child, Successor, Predecessor };
    struct Named
    {
        const KWTaskInfo *by;
        quint32 id;
        Role role;
        bool operator==(const Named &other) const
        {
            return by == other.by && id == other.id && role == other.role;
        }
        friend uint qHash(const Named &named)
        {
            constexpr quint64 spread = 0x9e3779b97f4a7c15ULL; // IDs and addresses lie side by side
            const quint64 number = (quint64(quintptr(named.by)) ^ (quint64(named.id) << 32)) + named.role;
            return uint((number * spread) >> 32);
        }
    };

    void collectNamed()
    {
        for (const KWTaskInfo *task : m_document.taskList()) {
            for (const quint32 id : task->Childs)
                m_named.insert({task, id, Child});
            for (const quint32 id : task->Depends)
                m_named.insert({task, id, Successor});
            for (const quint32 id : task->Predecessors)
                m_named.insert({task, id, Predecessor});
        }
    }

    void report(const QString &what) { m_findings.add(m_place, what); }
    const KWTaskInfo *byId(quint32 id) const { return m_posOfId.contains(id) ? taskAt(id) : nullptr; }
    const KWTaskInfo *taskAt(quint32 id) const { return m_document.getTaskInfoAt(m_posOfId.value(id)); }

    void checkIds()
    {
        for (int pos = 0; pos < m_document.taskCount(); ++pos) {
            m_place = planrows::place(pos + 1);
            const quint32 id = m_document.getTaskInfoAt(pos)->ID;
            if (id == 0)
                report(t("the task has no ID"));
            else if (m_posOfId.contains(id))
                report(t("ID %1 is that of row %2, too").arg(id).arg(m_posOfId.value(id) + 1));
            else
                m_posOfId.insert(id, pos);
        }
    }

    void checkParent(const KWTaskInfo &task, int pos)
    {
        const KWTaskInfo *parent = task.ParentID ? byId(task.ParentID) : nullptr;
        if (task.ParentID && !parent)
            report(t("its summary %1 does not exist").arg(task.ParentID));
        else if (parent && m_posOfId.value(task.ParentID) >= pos)
            report(t("it stands above its summary %1").arg(task.ParentID));
        else if (parent && !m_named.contains({parent, task.ID, Child}))
            report(t("its summary %1 does not name it").arg(task.ParentID));
        const int level = parent ? parent->Level + 1 : 1;
        if (task.Level != level)
            report(t("level %1 where the outline has %2").arg(task.Level).arg(level));
    }

    void checkChildren(const KWTaskInfo &task)
    {
        QSet<quint32> seen;
        for (const quint32 id : task.Childs) {
            const KWTaskInfo *child = byId(id);
            if (seen.contains(id))
                report(t("it names %1 twice as its subtask").arg(id));
            else if (!child)
                report(t("its subtask %1 does not exist").arg(id));
            else if (child->ParentID != task.ID)
                report(t("its subtask %1 belongs to %2").arg(id).arg(child->ParentID));
            seen.insert(id);
        }
    }

    void checkHidden(const KWTaskInfo &task)
    {
        if (task.HideID == 0)
            return;
        const KWTaskInfo *summary = byId(task.HideID);
        if (!summary || !summary->IsToggler)
            report(t("it is hidden by %1, which is no collapsed summary").arg(task.HideID.value()));
    }

    void checkLinks(const QList<quint32> &ids, const KWTaskInfo &task, Role role, const char *kind)
    {
        for (const quint32 id : ids) {
            const KWTaskInfo *linked = byId(id);
            if (!linked)
                report(t("its %1 %2 does not exist").arg(t(kind)).arg(id));
            else if (linked == &task)
                report(t("it is its own %1").arg(t(kind)));
            else if (!m_named.contains({linked, task.ID, role}))
                report(t("its %1 %2 does not know of the link").arg(t(kind)).arg(id));
        }
    }

    void checkAssignments(const KWTaskInfo &task)
    {
        if (task.isParent() && task.isHaveResource())
            report(t("a summary with resources of its own"));
        for (const Resource *assigned : task.resourceList)
            if (!sheetNames().contains(assigned->name.trimmed()))
                report(t("its resource '%1' is not in the sheet").arg(assigned->name.trimmed()));
    }

    const QSet<QString> &sheetNames()
    {
        if (m_sheetNames.isEmpty())
            for (const ResourceInfo *entry : qAsConst(m_document.resourceInfoData()->infos))
                m_sheetNames.insert(entry->name.trimmed());
        return m_sheetNames;
    }

    void checkRings()
    {
        for (const QList<quint32> &ring : m_document.taskCollection()->linkRings()) {
            m_place = planrows::place(m_posOfId.value(ring.value(0)) + 1);
            m_findings.add(m_place, t("tasks wait for each other: %1").arg(taskref::ring(m_document, ring)),
                           t("remove one of these links"));
        }
    }

    const KWDocument &m_document;
    Findings &m_findings;
    QString m_place;
    QHash<quint32, int> m_posOfId;
    QSet<Named> m_named; // long lists are not looked through for each of their tasks
    QSet<QString> m_sheetNames;
};
}

void check(const KWDocument &document, Findings &findings)
{
    Checker(document, findings).run();
}
}
