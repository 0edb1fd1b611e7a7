// Percent, baseline and visibility along the outline.
#include "engine/network/rollup.h"
#include "engine/record/outline.h"
#include "engine/time/timescale.h"
#include "model/changewatch.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"

void KWTaskInfo::updateParentPercent(KWDocument *document)
{
    const ChangeWatch watch(document, this, ChangeWatch::WithSummaries);
    if (!document || !document->taskCollection())
        return;
    const timescale::Scale scale = document->taskCollection()->scale();
    const outline::Tasks tasks = document->outline();
    std::vector<TaskRecord *> summaries = outline::ancestors(tasks, *this);
    if (isParent())
        summaries.insert(summaries.begin(), this);
    for (TaskRecord *summary : summaries) {
        if (!summary->isParent())
            return;
        asTask(summary)->setPercent(rollup::percent(scale.calendar(), tasks, *summary));
        summary->FirstWidth = scale.finishedWidth(*summary);
    }
}

void KWTaskInfo::basisSubUpdateBaselineStartAndFinish(KWDocument *document)
{
    const ChangeWatch watch(document, this, ChangeWatch::Alone);
    if (document && document->taskCollection() && isParent())
        rollup::baseline(outline::descendants(document->outline(), *this), *this);
}

void KWTaskInfo::updateParentBaselineStartAndFinish(KWDocument *document)
{
    const ChangeWatch watch(document, this, ChangeWatch::WithSummaries);
    if (document && document->taskCollection())
        rollup::ancestorBaselines(document->outline(), *this);
}

bool KWTaskInfo::recurveShowOrHide(KWDocument *document, KWTaskInfo *summary, KWTaskInfo *task, bool hide)
{
    if (!document || !summary || !task)
        return false;
    const quint32 from = hide ? 0 : summary->ID.value();
    const quint32 to = hide ? summary->ID.value() : 0;
    const std::vector<TaskRecord *> below = outline::descendants(document->outline(), *task);
    for (TaskRecord *child : below) {
        if (child->HideID != from)
            continue;
        child->HideID = to;
        document->setModified(true);
    }
    return !below.empty();
}
