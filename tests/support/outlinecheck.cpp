#include "support/outlinecheck.h"
#include "model/kwtaskinfo.h"
#include "table/rowcolumndata.h"
#include <algorithm>
#include <map>
#include <set>
#include <sstream>

namespace {

// Looks everything up in tables of its own: the document's may be what is wrong.
class Check
{
public:
    Check(const KWDocument &document, bool withLevels, bool withDates)
        : m_document(document)
        , m_withLevels(withLevels)
        , m_withDates(withDates)
    {
        for (const KWTaskInfo *task : document.taskList())
            m_byId.emplace(task->ID.value(), task);
    }

    std::string faults()
    {
        const QList<KWTaskInfo *> &tasks = m_document.taskList();
        if (int(m_byId.size()) != tasks.size() || m_byId.count(0) != 0)
            m_out << "IDs are not unique\n";
        if (m_document.rowColumnData()->rowHeights().size() != tasks.size())
            m_out << m_document.rowColumnData()->rowHeights().size() << " heights for " << tasks.size()
                  << " tasks\n";
        int row = 0;
        for (int pos = 0; pos < tasks.size(); ++pos) {
            const KWTaskInfo &task = *tasks[pos];
            if (m_document.getPosByID(task.ID) != pos)
                fault(task, "is found elsewhere", m_document.getPosByID(task.ID));
            if (task.HideID == 0 && m_document.getPosByRow(row++) != pos)
                fault(task, "is not at its row", row - 1);
            checkFamily(task);
            checkHiding(task);
            checkLinks(task);
        }
        return m_out.str();
    }

private:
    void checkFamily(const KWTaskInfo &task)
    {
        const KWTaskInfo *parent = byId(task.ParentID);
        if (task.ParentID != 0 && !parent)
            fault(task, "has no such parent", task.ParentID);
        if (parent && parent->Childs.count(task.ID) != 1)
            fault(task, "is not one child of", parent->ID);
        if (m_withLevels && task.Level != (parent ? parent->Level + 1 : 1))
            fault(task, "has the level", task.Level);
        quint32 start = 0xffffffff;
        quint32 finish = 0;
        for (const quint32 id : task.Childs) {
            const KWTaskInfo *child = byId(id);
            if (!child || child->ParentID != task.ID) {
                fault(task, "has a wrong child", id);
                continue;
            }
            start = std::min(start, child->Start);
            finish = std::max(finish, child->Finish);
        }
        if (m_withDates && task.isParent() && (task.Start != start || task.Finish != finish))
            fault(task, "does not span its children", task.Childs.size());
        if ((task.font.weight() == QFont::Bold) != task.isParent())
            fault(task, "has the font weight", task.font.weight());
        if (above(task).count(&task) != 0)
            fault(task, "is below itself", 0);
    }

    void checkHiding(const KWTaskInfo &task)
    {
        if (task.HideID == 0)
            return;
        const KWTaskInfo *hiding = byId(task.HideID);
        if (!hiding || !hiding->IsToggler || above(task).count(hiding) == 0)
            fault(task, "is hidden by", task.HideID);
    }

    void checkLinks(const KWTaskInfo &task)
    {
        const std::set<const KWTaskInfo *> ancestors = above(task);
        for (const bool forward : {true, false}) {
            const QList<quint32> &ids = forward ? task.Depends : task.Predecessors;
            for (const quint32 id : ids) {
                const KWTaskInfo *other = byId(id);
                if (!other || (forward ? other->Predecessors : other->Depends).count(task.ID) != 1)
                    fault(task, "has a link on one side with", id);
                else if (other == &task || ancestors.count(other) != 0)
                    fault(task, "is linked to the summary above it", id);
            }
        }
    }

    const KWTaskInfo *byId(quint32 id) const
    {
        const auto found = m_byId.find(id);
        return found == m_byId.end() ? nullptr : found->second;
    }
    std::set<const KWTaskInfo *> above(const KWTaskInfo &task) const
    {
        std::set<const KWTaskInfo *> found;
        for (const KWTaskInfo *up = byId(task.ParentID); up && found.insert(up).second;
             up = byId(up->ParentID))
            ;
        return found;
    }
    void fault(const KWTaskInfo &task, const char *what, qint64 which)
    {
        m_out << task.ID << ' ' << what << ' ' << which << '\n';
    }

    const KWDocument &m_document;
    bool m_withLevels;
    bool m_withDates;
    std::map<quint32, const KWTaskInfo *> m_byId;
    std::ostringstream m_out;
};
}

std::string outlineFaults(const KWDocument &document, bool withLevels, bool withDates)
{
    return Check(document, withLevels, withDates).faults();
}
