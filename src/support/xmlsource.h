#pragma once
#include "support/xmltext.h"
#include <QDomElement>
#include <array>
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
    pugi::xml_node node() const { return m_element; }
    bool is(const char *name) const { return std::strcmp(m_element.name(), name) == 0; }
    // Quick when attributes are asked for in the order they were written.
    XmlText text(const char *attribute)
    {
        const char *const value = m_element.attribute(attribute, m_hint).value();
        return XmlText(value, int(std::strlen(value)));
    }
    // The same for many: values[i] becomes the text of names[i], "" when the element has no such attribute.
    // One pass when they were written in this order, whatever was left out.
    template <size_t Count>
    void texts(const std::array<const char *, Count> &names, std::array<const char *, Count> &values) const
    {
        values.fill("");
        size_t expected = 0;
        for (pugi::xml_attribute one = m_element.first_attribute(); one; one = one.next_attribute()) {
            const char *const name = one.name();
            for (size_t tried = 0, i = expected; tried < Count; ++tried, i = i + 1 == Count ? 0 : i + 1) {
                if (std::strcmp(names[i], name) == 0) {
                    values[i] = one.value();
                    expected = i + 1 == Count ? 0 : i + 1;
                    break;
                }
            }
        }
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
