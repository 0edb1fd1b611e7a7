#pragma once
#include "support/xmlsink.h"
#include "support/xmlsource.h"
#include <QDomDocument>
#include <cstddef>

// What the XML forms of the styles share. Elements hold elements of other classes, so they are written as a
// DOM.
namespace stylexml {

// A new last child.
inline QDomElement append(QDomElement &parent, const char *element)
{
    QDomElement child = parent.ownerDocument().createElement(QLatin1String(element));
    parent.appendChild(child);
    return child;
}

// The name of an enumerator; nothing for a value without one.
template <std::size_t Count, typename Enum>
void writeName(QDomElement &element, const char *attribute, const char *const (&names)[Count], Enum value)
{
    if (std::size_t(value) < Count)
        element.setAttribute(QLatin1String(attribute), QLatin1String(names[std::size_t(value)]));
}

// A number that is not finite becomes 0, a flag "0" or "1".
template <typename Value>
void write(QDomElement &element, const char *attribute, const Value &value)
{
    DomSink(element).attribute(attribute, value);
}

// A name that is not in the table leaves the value as it was.
template <std::size_t Count, typename Enum>
void readName(const QDomElement &element, const char *attribute, const char *const (&names)[Count],
              Enum &value)
{
    const QString text = element.attribute(QLatin1String(attribute));
    for (std::size_t i = 0; i < Count; ++i) {
        if (text == QLatin1String(names[i]))
            value = Enum(i);
    }
}

// A number out of range, or none at all, leaves the value as it was.
template <typename Number>
void read(const QDomElement &element, const char *attribute, double least, double most, Number &value)
{
    bool isNumber = false;
    const double number = element.attribute(QLatin1String(attribute)).toDouble(&isNumber);
    if (isNumber && number >= least && number <= most)
        value = Number(number);
}

template <typename Value>
void read(const QDomElement &element, const char *attribute, Value &value)
{
    xmltext::read(DomSource(element).text(attribute), value);
}

// Has the first child of that name parsed by the object, if there is one.
template <typename Object>
void readChild(const QDomElement &parent, const char *name, Object &object)
{
    const QDomElement child = parent.firstChildElement(QLatin1String(name));
    if (!child.isNull())
        object.parse(child);
}
}
