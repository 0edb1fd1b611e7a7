#include "engine/record/assignments.h"
#include "engine/record/resource.h"

namespace assignments {

Resource *byName(const QList<Resource *> &assigned, const QString &name)
{
    const QString trimmed = name.trimmed();
    for (Resource *resource : assigned) {
        if (resource->name.trimmed() == trimmed)
            return resource;
    }
    return nullptr;
}

void clear(QList<Resource *> &assigned)
{
    for (Resource *resource : qAsConst(assigned))
        Resource::release(resource);
    assigned.clear();
}
}
