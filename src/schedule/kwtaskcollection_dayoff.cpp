// The day-off helpers of the time axis, on a document's working time.
#include "model/kwdocument.h"
#include "schedule/dayoff.h"
#include "schedule/kwtaskcollection.h"

quint32 KWTaskCollection::moveBackOneDayStartOnDayOff(KWDocument *document, quint32 secs, bool hourClock)
{
    return document ? dayoff::startBack(document->workCalendar(), secs, hourClock) : 0;
}

quint32 KWTaskCollection::moveForwarstartOnDayOff(KWDocument *document, quint32 secs, bool hourClock)
{
    return document ? dayoff::startForward(document->workCalendar(), secs, hourClock) : 0;
}

quint32 KWTaskCollection::addFinishOnDayOff(KWDocument *document, quint32 secs, bool hourClock)
{
    return document ? dayoff::finishForward(document->workCalendar(), secs, hourClock) : 0;
}

quint32 KWTaskCollection::reduceFinishOnDayOff(KWDocument *document, quint32 secs, bool hourClock)
{
    return document ? dayoff::finishBack(document->workCalendar(), secs, hourClock) : 0;
}

unsigned int KWTaskCollection::continuousDayOff(KWDocument *document, quint32 secs)
{
    return document ? dayoff::run(document->workCalendar(), secs) : 0;
}
