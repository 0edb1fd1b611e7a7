#pragma once
#include "engine/cost/costpass.h"
#include "model/kwdocument.h"

// The pass over a document's costs; valid while neither its task list, an ID nor its working time changes.
inline CostPass costsOf(const KWDocument &document)
{
    return CostPass(document.outline(), document.workCalendar());
}
