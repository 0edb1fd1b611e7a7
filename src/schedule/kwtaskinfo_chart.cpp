// Where a task stands on the chart.
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"
#include "schedule/timescale.h"

namespace {

bool hasScale(const KWDocument *document)
{
    return document && document->taskCollection();
}
}

quint32 KWTaskInfo::milestoneSecs(KWDocument *document, quint32 secs)
{
    return hasScale(document) ? document->taskCollection()->scale().milestoneAnchor(secs) : 0;
}

int KWTaskInfo::taskDayPoint(KWDocument *document, bool start) const
{
    return hasScale(document) ? document->taskCollection()->scale().dayPoint(*this, start) : 0;
}

int KWTaskInfo::taskHourPoint(KWDocument *document, bool start) const
{
    return hasScale(document) ? document->taskCollection()->scale().hourPoint(*this, start) : 0;
}

int KWTaskInfo::taskMinutePoint(KWDocument *document, bool start) const
{
    return hasScale(document) ? document->taskCollection()->scale().minutePoint(*this, start) : 0;
}

void KWTaskInfo::updateOneTaskFirstWidth(KWDocument *document)
{
    if (hasScale(document))
        FirstWidth = document->taskCollection()->scale().finishedWidth(*this);
}
