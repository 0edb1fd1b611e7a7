// The task as an XML element.
#include "model/kwtaskinfo_xml.h"
#include "model/kwtaskinfo.h"
#include "support/xmlsink.h"
#include "support/xmlsource.h"

void KWTaskInfo::saveTo(QDomElement &parent, unsigned int) const
{
    DomSink sink(parent);
    taskxml::write(sink, *this);
}

bool KWTaskInfo::parse(const QDomElement &element, unsigned int)
{
    DomSource source(element);
    taskxml::read(source, *this);
    return true;
}
