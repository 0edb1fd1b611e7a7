#pragma once
#include "editing/samevalues.h"
#include "engine/record/fieldxml.h"
#include "engine/record/resource.h"
#include "engine/record/taskfields.h"
#include "model/kwtaskinfo.h"

// What undo keeps of a task, brought from one record into another.
namespace taskcopy {

// All but the assignments.
inline void values(const KWTaskInfo &from, KWTaskInfo &to)
{
    fields::copy(fields::taskFields, fields::Copy, from, to);
    to.font = from.font;
    if (!samevalues::isSame(from.hyperlinks, to.hyperlinks))
        to.hyperlinks.assign(from.hyperlinks);
}

// As assignments of its own.
inline void assignments(const QList<Resource *> &from, KWTaskInfo &to)
{
    if (samevalues::isSame(from, to.resourceList))
        return;
    to.clearResources();
    to.resourceList = Resource::cloneResources(from);
}

inline void all(const KWTaskInfo &from, KWTaskInfo &to)
{
    values(from, to);
    assignments(from.resourceList, to);
}
}
