// Links between tasks: making and removing them, pushing along them, and showing those of the active task.
#include "engine/cost/cost.h"
#include "engine/network/linkgraph.h"
#include "engine/network/links.h"
#include "engine/network/push.h"
#include "engine/record/outline.h"
#include "engine/time/timescale.h"
#include "model/changewatch.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"

namespace {

void markLinked(const KWDocument &document, const KWTaskInfo &active, bool linked)
{
    const outline::Tasks tasks = document.outline();
    for (const QList<quint32> *ids : {&active.Depends, &active.Predecessors}) {
        for (const quint32 id : *ids) {
            if (TaskRecord *task = tasks.byId(id))
                task->Linked = linked;
        }
    }
}

// Clears the highlight of the active task's links while they change and shows what is left of them.
class HighlightRefresh
{
public:
    HighlightRefresh(const KWDocument &document, const KWTaskInfo *active)
        : m_document(document)
        , m_active(active)
    {
        if (m_active)
            markLinked(m_document, *m_active, false);
    }
    ~HighlightRefresh()
    {
        if (m_active)
            markLinked(m_document, *m_active, true);
    }
    Q_DISABLE_COPY(HighlightRefresh)

private:
    const KWDocument &m_document;
    const KWTaskInfo *m_active;
};
}

// ---- Active task ------------------------------------------------------------------------------------------

void KWTaskCollection::setTaskInfoActive(KWTaskInfo *task)
{
    clearDependOrDependOnActive();
    m_activeTask = task;
    if (m_document && m_activeTask)
        markLinked(*m_document, *m_activeTask, true);
}

void KWTaskCollection::clearDependOrDependOnActive()
{
    if (m_document && m_activeTask)
        markLinked(*m_document, *m_activeTask, false);
}

void KWTaskCollection::forgetTask(const KWTaskInfo *task)
{
    if (task && task == m_activeTask)
        setTaskInfoActive(nullptr);
}

// ---- Pushes -----------------------------------------------------------------------------------------------

bool KWTaskCollection::compareTaskAndDepenTask(KWTaskInfo *predecessor, KWTaskInfo *successor)
{
    // Almost every link holds: that is found out before anything is prepared.
    if (!m_document || !predecessor || !successor || push::holds(predecessor->Finish, successor->Start))
        return false;
    return pushAlong({{predecessor, successor}});
}

void KWTaskCollection::pushSuccessorsOf(const std::vector<KWTaskInfo *> &predecessors)
{
    if (m_document)
        pushAfter({predecessors.begin(), predecessors.end()});
}

void KWTaskCollection::pushAfter(const std::vector<TaskRecord *> &predecessors)
{
    const outline::Tasks tasks = m_document->outline();
    std::vector<push::Link> early;
    for (TaskRecord *predecessor : predecessors) {
        for (const quint32 id : predecessor->Depends) {
            TaskRecord *successor = tasks.byId(id);
            if (successor && !push::holds(predecessor->Finish, successor->Start))
                early.push_back({predecessor, successor});
        }
    }
    if (!early.empty())
        pushAlong(early);
}

bool KWTaskCollection::pushAlong(const std::vector<push::Link> &links)
{
    const timescale::Scale scale = this->scale();
    const std::vector<TaskRecord *> passed =
        push::along(scale.calendar(), m_document->outline(), scale.isHourBased(), links);
    for (TaskRecord *task : passed) {
        cost::updateWorkSecs(*task);
        if (task->isParent())
            scale.placeSummaryBar(*task);
        else
            scale.placeBar(*task);
        task->FirstWidth = scale.finishedWidth(*task);
    }
    if (!passed.empty())
        m_document->setModified(true);
    return !passed.empty();
}

int KWTaskCollection::pushAllSuccessors(QList<KWTaskMove> *moves)
{
    const ChangeWatch watch(m_document);
    if (moves)
        moves->clear();
    if (!m_document)
        return 0;
    const bool hourScale = m_document->getMinorUnit() >= duration::Hour;
    const std::vector<push::Move> moved =
        push::all(m_document->workCalendar(), m_document->outline(), hourScale);
    for (const push::Move &move : moved) {
        cost::updateWorkSecs(*move.task);
        if (moves) {
            const quint32 pushedBy = move.pushedBy ? move.pushedBy->ID.value() : 0;
            moves->append({move.task->ID, move.oldStart, move.oldFinish, pushedBy});
        }
    }
    return int(moved.size());
}

QList<QList<quint32>> KWTaskCollection::linkRings() const
{
    QList<QList<quint32>> rings;
    if (!m_document)
        return rings;
    const outline::Tasks tasks = m_document->outline();
    if (!linkgraph::hasRings(tasks, linkgraph::links(tasks)))
        return rings;
    for (const std::vector<int> &places : linkgraph::rings(linkgraph::EventNetwork(tasks))) {
        QList<quint32> ids;
        for (const int pos : places)
            ids.append(m_document->getTaskInfoAt(pos)->ID);
        rings.append(ids);
    }
    return rings;
}

// ---- Making links -----------------------------------------------------------------------------------------

LinkRefusal KWTaskCollection::linkRefusal(const KWTaskInfo *a, const KWTaskInfo *b,
                                          QList<quint32> *ring) const
{
    if (ring)
        ring->clear();
    if (!m_document || !a || !b)
        return LinkRefusal::Missing;
    return links::refusal(m_document->outline(), *a, *b, ring);
}

bool KWTaskCollection::taskDependTask(KWTaskInfo *a, KWTaskInfo *b)
{
    if (linkRefusal(a, b) != LinkRefusal::None)
        return false;
    const HighlightRefresh refresh(*m_document, m_activeTask);
    links::insert(m_document->outline(), *a, *b);
    m_document->setModified(true);
    return true;
}

int KWTaskCollection::linkTasks(QList<KWTaskLink> &wanted)
{
    if (!m_document) {
        for (KWTaskLink &link : wanted)
            link.refusal = LinkRefusal::Missing;
        return 0;
    }
    const HighlightRefresh refresh(*m_document, m_activeTask);
    const int made = links::insertAll(m_document->outline(), wanted);
    if (made > 0)
        m_document->setModified(true);
    return made;
}

bool KWTaskCollection::taskEqualDependTask(const KWTaskInfo *a, const KWTaskInfo *task) const
{
    return m_document && a && task && links::leadsTo(m_document->outline(), *task, *a);
}

KWTaskInfo *KWTaskCollection::sameParentTask(const KWTaskInfo *a, const KWTaskInfo *b) const
{
    return m_document && a && b ? asTask(outline::commonSummary(m_document->outline(), *a, *b)) : nullptr;
}

// ---- Removing links ---------------------------------------------------------------------------------------

void KWTaskCollection::deleteDependOrDependOnID(KWTaskInfo *task)
{
    const ChangeWatch watch(m_document, task, ChangeWatch::Alone);
    if (!m_document || !task)
        return;
    const HighlightRefresh refresh(*m_document, m_activeTask);
    const outline::Tasks tasks = m_document->outline();
    const std::vector<TaskRecord *> below = outline::descendants(tasks, *task);
    links::removeDownstream(tasks, below, *task);
    links::removeUpstream(tasks, below, *task);
}

void KWTaskCollection::deleteDependIDFromParent(KWTaskInfo *task, KWTaskInfo *x)
{
    const ChangeWatch watch(m_document, x, ChangeWatch::Alone);
    if (!m_document || !task || !x)
        return;
    const HighlightRefresh refresh(*m_document, m_activeTask);
    links::removeDownstream(m_document->outline(), {task}, *x);
}

void KWTaskCollection::deleteDependOnIDFromParent(KWTaskInfo *task, KWTaskInfo *x)
{
    const ChangeWatch watch(m_document, x, ChangeWatch::Alone);
    if (!m_document || !task || !x)
        return;
    const HighlightRefresh refresh(*m_document, m_activeTask);
    links::removeUpstream(m_document->outline(), {task}, *x);
}
