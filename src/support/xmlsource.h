#pragma once
#include "support/xmltext.h"
#include <QDomElement>
#include <pugixml.hpp>

// Two views of an XML element with the same members, for reading one element of a DOM and whole documents
// alike: what is stored is described once, over either.

class DomSource
{
public:
    explicit DomSource(const QDomElement &element)
        : m_element(element)
    {
    }
    bool isNull() const { return m_element.isNull(); }
    bool is(const char *name) const { return m_element.tagName() == QLatin1String(name); }
    // Empty when the element has no such attribute.
    XmlText text(const char *attribute) { return XmlText(m_element.attribute(QLatin1String(attribute))); }
    // Elements only; a null source after the last.
    DomSource firstChild() const { return DomSource(m_element.firstChildElement()); }
    DomSource nextSibling() const { return DomSource(m_element.nextSiblingElement()); }

private:
    QDomElement m_element;
};

class TreeSource
{
public:
    explicit TreeSource(pugi::xml_node element)
        : m_element(element)
    {
    }
    bool isNull() const { return !m_element; }
    bool is(const char *name) const { return std::strcmp(m_element.name(), name) == 0; }
    // Quick when attributes are asked for in the order they were written.
    XmlText text(const char *attribute)
    {
        const char *const value = m_element.attribute(attribute, m_hint).value();
        return XmlText(value, int(std::strlen(value)));
    }
    TreeSource firstChild() const { return TreeSource(elementFrom(m_element.first_child())); }
    TreeSource nextSibling() const { return TreeSource(elementFrom(m_element.next_sibling())); }

private:
    static pugi::xml_node elementFrom(pugi::xml_node node)
    {
        while (node && node.type() != pugi::node_element)
            node = node.next_sibling();
        return node;
    }

    pugi::xml_node m_element;
    pugi::xml_attribute m_hint;
};
