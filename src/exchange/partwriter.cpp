#include "exchange/partwriter.h"
#include "support/xmlencode.h"
#include <QIODevice>
#include <charconv>
#include <cmath>

namespace {

// Larger than any piece that is put at once.
constexpr int bufferBytes = 256 << 10;
constexpr int maxNumberBytes = 32;
}

PartWriter::PartWriter(QIODevice &device)
    : m_device(device)
    , m_buffer(bufferBytes, Qt::Uninitialized)
{
    put("<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n");
}

void PartWriter::flush()
{
    if (m_isSound && m_device.write(m_buffer.constData(), m_size) != m_size)
        m_isSound = false;
    m_size = 0;
}

void PartWriter::encode(const QString &value)
{
    constexpr int piece = 4096;
    const ushort *at = value.utf16();
    const ushort *const end = at + value.size();
    while (at != end) {
        // A pair of units makes fewer bytes than two single ones, so a pair across the border has room too.
        const ushort *const stop = at + qMin<qint64>(piece, end - at);
        char *to = room((piece + 1) * xmlencode::maxUnitBytes);
        while (at < stop) {
            // Never needed in an attribute, but "]]>" must not stand in a text.
            if (*at == '>') {
                to = xmlencode::append(to, "&gt;");
                ++at;
            } else {
                to = xmlencode::character(to, at, end);
            }
        }
        used(to);
    }
}

void PartWriter::number(int value)
{
    char *const to = room(maxNumberBytes);
    used(std::to_chars(to, to + maxNumberBytes, value).ptr);
}

void PartWriter::number(double value)
{
    char *const to = room(maxNumberBytes);
    used(std::to_chars(to, to + maxNumberBytes, std::isfinite(value) ? value + 0.0 : 0.0).ptr);
}

void PartWriter::startAttribute(const char *name)
{
    put(" ");
    put(name);
    put("=\"");
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
    encode(value);
    put("\"");
    return *this;
}

PartWriter &PartWriter::attribute(const char *name, int value)
{
    startAttribute(name);
    number(value);
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
    encode(value);
    return *this;
}

PartWriter &PartWriter::text(int value)
{
    endTag();
    number(value);
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

bool PartWriter::finish()
{
    flush();
    return m_isSound;
}
