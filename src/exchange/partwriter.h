#pragma once
#include "support/xmlsink.h"
#include <initializer_list>

// Writes one XML part of a package straight to a device, without blanks between the elements.
//
// Names are literals that outlive the writer. Texts lose the characters that XML cannot carry.
class PartWriter : public XmlStream
{
public:
    explicit PartWriter(QIODevice &device); // begins with the XML declaration

    PartWriter &open(const char *element);
    PartWriter &attribute(const char *name, const char *latin1);
    PartWriter &attribute(const char *name, const QString &value);
    PartWriter &attribute(const char *name, int value);
    PartWriter &attribute(const char *name, double value); // shortest text that reads back the same
    PartWriter &text(const char *latin1);
    PartWriter &text(const QString &value);
    PartWriter &text(int value);
    PartWriter &text(double value);
    PartWriter &close();
    // An element whose attributes are these: name, value, name, value.
    PartWriter &element(const char *name, std::initializer_list<const char *> attributes = {});
    // As it stands, between two elements: for what is written a million times.
    PartWriter &raw(std::string_view xml)
    {
        endTag();
        put(xml);
        return *this;
    }

private:
    void endTag()
    {
        if (m_isTagOpen)
            put(">");
        m_isTagOpen = false;
    }
    void number(double value);
};
