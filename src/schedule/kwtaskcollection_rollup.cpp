// Walks over the outline, and the dates that summaries take from their children.
#include "engine/network/rollup.h"
#include "engine/record/outline.h"
#include "engine/record/taskahead.h"
#include "engine/time/timescale.h"
#include "model/changewatch.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"

void KWTaskCollection::subIDListByTask(const KWTaskInfo *task, QList<quint32> &ids) const
{
    if (!m_document || !task)
        return;
    const outline::Tasks tasks = m_document->outline();
    for (const TaskRecord *below : outline::descendants(tasks, *task))
        ids.append(below->ID);
}

void KWTaskCollection::parentIDListByTask(const KWTaskInfo *task, QList<KWTaskInfo *> &parents) const
{
    parents.clear();
    if (!m_document || !task)
        return;
    const outline::Tasks tasks = m_document->outline();
    for (TaskRecord *ancestor : outline::ancestors(tasks, *task))
        parents.append(asTask(ancestor));
}

void KWTaskCollection::rollUp(const timescale::Scale &scale, const outline::Tasks &tasks, TaskRecord &summary,
                              bool pushSuccessors)
{
    if (!summary.isParent())
        return;
    if (rollup::dates(scale.calendar(), tasks, summary))
        scale.placeSummaryBar(summary);
    if (pushSuccessors && !summary.Depends.isEmpty())
        pushAfter({&summary});
}

void KWTaskCollection::updateTaskTimeToChildsTask(KWTaskInfo *summary, bool pushSuccessors)
{
    const ChangeWatch watch(m_document, summary, ChangeWatch::Alone);
    if (!m_document || !summary || !summary->isParent())
        return;
    rollUp(scale(), m_document->outline(), *summary, pushSuccessors);
}

void KWTaskCollection::updateTaskInfoParentTime(KWTaskInfo *task)
{
    const ChangeWatch watch(m_document, task, ChangeWatch::WithSummaries);
    if (!m_document || !task)
        return;
    constexpr bool pushSuccessors = true;
    const timescale::Scale scale = this->scale();
    const outline::Tasks tasks = m_document->outline();
    for (TaskRecord *ancestor : outline::ancestors(tasks, *task))
        rollUp(scale, tasks, *ancestor, pushSuccessors);
}

void KWTaskCollection::updateOptionTaskTime()
{
    const ChangeWatch watch(m_document);
    if (!m_document)
        return;
    constexpr bool pushSuccessors = true;
    const timescale::Scale scale = this->scale();
    const outline::Tasks tasks = m_document->outline();
    // A summary stands before its descendants, so from the last to the first the inner ones are rolled up
    // first.
    for (int pos = tasks.list.size() - 1; pos >= 0; --pos) {
        fetchTaskAhead(tasks.list, pos - tasksAhead);
        rollUp(scale, tasks, *tasks.list[pos], pushSuccessors);
    }
}
