#pragma once
#include "engine/time/worktime.h"
#include "model/kwdocument.h"
#include "schedule/kwcalendar.h"

// What the working time of a document is made from.
inline worktime::Source worktimeSource(const KWDocument &document)
{
    return {document.WorkDay, document.workTimes, document.calendars, KWDocument::s_isOldVersion};
}
