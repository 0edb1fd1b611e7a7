#include "engine/record/resource.h"
#include "engine/record/fieldxml.h"
#include "engine/record/resourcefields.h"

Resource::Resource(const Resource &other)
{
    *this = other;
}

Resource &Resource::operator=(const Resource &other)
{
    fields::copy(fields::resourceFields, fields::Copy, other, *this);
    return *this;
}

void Resource::save(QDomElement &parent) const
{
    DomSink sink(parent);
    sink.open("Resource");
    fields::write(sink, fields::resourceFields, *this);
    sink.close();
}

void Resource::parse(const QDomElement &element)
{
    fields::parse(fields::resourceFields, element, *this);
}

QList<Resource *> Resource::cloneResources(const QList<Resource *> &resources)
{
    QList<Resource *> clones;
    for (const Resource *resource : resources)
        clones.append(new Resource(*resource));
    return clones;
}

void Resource::release(Resource *resource)
{
    if (resource && --resource->m_uses <= 0)
        delete resource;
}
