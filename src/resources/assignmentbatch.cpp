#include "resources/assignmentbatch.h"
#include "engine/cost/names.h"
#include "model/changewatch.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "resources/costsof.h"
#include "resources/resourceinfodata.h"
#include <QHash>
#include <QSet>

struct AssignmentBatch::Private
{
    KWDocument &document;
    CostPass pass;
    QHash<QString, const ResourceInfo *> entries; // the first of each trimmed name
    QSet<KWTaskInfo *> named;                     // whose texts are to be made anew

    explicit Private(KWDocument &of)
        : document(of)
        , pass(costsOf(of))
    {
        for (const ResourceInfo *info : qAsConst(document.resourceInfoData()->infos)) {
            const QString name = info ? info->name.trimmed() : QString();
            if (info && !entries.contains(name))
                entries.insert(name, info);
        }
    }
};

AssignmentBatch::AssignmentBatch(KWDocument &document)
    : m_private(std::make_unique<Private>(document))
{
}

AssignmentBatch::~AssignmentBatch()
{
    finish();
}

Resource *AssignmentBatch::assign(KWTaskInfo &task, const QString &name)
{
    if (name.isEmpty())
        return nullptr;
    Resource *assigned = nullptr;
    if (!task.isParent()) {
        assigned = task.getResourceByName(name);
        if (assigned)
            return assigned;
        m_private->document.setModified(true);
        assigned = m_private->pass.assign(task, name, m_private->entries.value(name.trimmed()));
    }
    m_private->named.insert(&task);
    return assigned;
}

void AssignmentBatch::updateCostAndWork(KWTaskInfo &task)
{
    const ChangeWatch watch(&m_private->document, &task, ChangeWatch::WithSummaries);
    m_private->pass.updateCostAndWork(task);
}

void AssignmentBatch::finish()
{
    if (m_private->named.isEmpty())
        return;
    m_private->document.setModified(true);
    const CostPass &pass = m_private->pass;
    QSet<TaskRecord *> summaries;
    for (KWTaskInfo *task : qAsConst(m_private->named)) {
        if (task->isParent())
            summaries.insert(task);
        else
            task->Resources = names::ofAssignments(*task);
        for (TaskRecord *ancestor : pass.above(*task)) {
            if (ancestor->isParent())
                summaries.insert(ancestor);
        }
    }
    for (TaskRecord *summary : qAsConst(summaries))
        CostPass::joinNames(*summary, pass.below(*summary));
    m_private->named.clear();
}
