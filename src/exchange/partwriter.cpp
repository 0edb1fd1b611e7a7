#include "exchange/partwriter.h"
#include <cmath>

PartWriter::PartWriter(QIODevice &device)
    : XmlStream(device, "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n")
{
}

void PartWriter::number(double value)
{
    putNumber(std::isfinite(value) ? value + 0.0 : 0.0);
}

PartWriter &PartWriter::open(const char *element)
{
    endTag();
    put("<");
    put(element);
    m_open.push_back(element);
    m_isTagOpen = true;
    return *this;
}

PartWriter &PartWriter::close()
{
    if (m_isTagOpen) {
        put("/>");
    } else {
        put("</");
        put(m_open.back());
        put(">");
    }
    m_isTagOpen = false;
    m_open.pop_back();
    return *this;
}

PartWriter &PartWriter::attribute(const char *name, const char *latin1)
{
    return attribute(name, QString::fromLatin1(latin1));
}

PartWriter &PartWriter::attribute(const char *name, const QString &value)
{
    startAttribute(name);
    encode<true>(value);
    put("\"");
    return *this;
}

PartWriter &PartWriter::attribute(const char *name, int value)
{
    startAttribute(name);
    putNumber(value);
    put("\"");
    return *this;
}

PartWriter &PartWriter::attribute(const char *name, double value)
{
    startAttribute(name);
    number(value);
    put("\"");
    return *this;
}

PartWriter &PartWriter::text(const char *latin1)
{
    return text(QString::fromLatin1(latin1));
}

PartWriter &PartWriter::text(const QString &value)
{
    endTag();
    encode<true>(value);
    return *this;
}

PartWriter &PartWriter::text(int value)
{
    endTag();
    putNumber(value);
    return *this;
}

PartWriter &PartWriter::text(double value)
{
    endTag();
    number(value);
    return *this;
}

PartWriter &PartWriter::element(const char *name, std::initializer_list<const char *> attributes)
{
    open(name);
    for (auto at = attributes.begin(); at != attributes.end(); at += 2)
        attribute(at[0], at[1]);
    return close();
}
