#include "support/xmlsink.h"
#include "support/xmlencode.h"
#include "support/xmlguard.h"
#include <cmath>

namespace {

constexpr int bufferBytes = 256 << 10; // larger than any piece that is put at once
constexpr int maxNumberBytes = 32;

// Seventeen significant digits, which read back as the same number, in at most maxNumberBytes.
char *appendNumber(char *to, double value)
{
    constexpr int digits = 17;
    constexpr double maxWhole = 999999999; // below this a whole number is written the same way, only quicker
    // Adding 0 takes the sign off a zero.
    const double number = std::isfinite(value) ? value + 0.0 : 0.0;
    if (number == std::floor(number) && std::abs(number) < maxWhole)
        return std::to_chars(to, to + maxNumberBytes, qint32(number)).ptr;
    return std::to_chars(to, to + maxNumberBytes, number, std::chars_format::general, digits).ptr;
}
}

// ---- DOM --------------------------------------------------------------------------------------------------

void DomSink::open(const char *element)
{
    QDomElement child = m_element.ownerDocument().createElement(QLatin1String(element));
    m_element.appendChild(child);
    m_element = child;
}

void DomSink::close()
{
    m_element = m_element.parentNode().toElement();
}

void DomSink::attribute(const char *name, const QString &value)
{
    m_element.setAttribute(QLatin1String(name), xmlguard::clean(value));
}

void DomSink::attribute(const char *name, qint32 value)
{
    m_element.setAttribute(QLatin1String(name), value);
}

void DomSink::attribute(const char *name, quint32 value)
{
    m_element.setAttribute(QLatin1String(name), value);
}

void DomSink::attribute(const char *name, bool value)
{
    m_element.setAttribute(QLatin1String(name), int(value));
}

void DomSink::attribute(const char *name, double value)
{
    char text[maxNumberBytes];
    m_element.setAttribute(QLatin1String(name),
                           QString::fromLatin1(text, int(appendNumber(text, value) - text)));
}

void DomSink::attribute(const char *name, const QList<quint32> &value)
{
    QStringList parts;
    parts.reserve(value.size());
    for (const quint32 id : value)
        parts.append(QString::number(id));
    m_element.setAttribute(QLatin1String(name), parts.join(QLatin1Char(';')));
}

// ---- Text -------------------------------------------------------------------------------------------------

XmlStream::XmlStream(QIODevice &device, std::string_view declaration)
    : m_device(device)
    , m_buffer(bufferBytes, Qt::Uninitialized)
{
    put(declaration);
}

void XmlStream::flush()
{
    if (m_isSound && m_device.write(m_buffer.constData(), m_size) != m_size)
        m_isSound = false;
    m_size = 0;
}

bool XmlStream::finish()
{
    flush();
    return m_isSound;
}

void XmlStream::startAttribute(const char *name)
{
    const int length = int(std::strlen(name));
    char *to = room(length + 3);
    *to++ = ' ';
    std::memcpy(to, name, size_t(length));
    to += length;
    *to++ = '=';
    *to++ = '"';
    used(to);
}

template <bool encodesGreater>
void XmlStream::encode(const QString &value)
{
    constexpr int piece = 4096;
    const ushort *at = value.utf16();
    const ushort *const end = at + value.size();
    while (at != end) {
        // A pair of units makes fewer bytes than two single ones, so a pair across the border has room too.
        const ushort *const stop = at + qMin<qint64>(piece, end - at);
        char *to = room((piece + 1) * xmlencode::maxUnitBytes);
        while (at < stop) {
            if (encodesGreater && *at == '>') {
                to = xmlencode::append(to, "&gt;");
                ++at;
            } else {
                to = xmlencode::character(to, at, end);
            }
        }
        used(to);
    }
}
template void XmlStream::encode<false>(const QString &value);
template void XmlStream::encode<true>(const QString &value);

StreamSink::StreamSink(QIODevice &device, int blanksPerLevel)
    : XmlStream(device, "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n")
    , m_blanksPerLevel(blanksPerLevel)
{
}

void StreamSink::startLine()
{
    const int blanks = int(m_open.size()) * m_blanksPerLevel;
    char *to = room(blanks);
    std::memset(to, ' ', size_t(blanks));
    used(to + blanks);
}

void StreamSink::open(const char *element)
{
    if (m_isTagOpen)
        put(">\n");
    startLine();
    put("<");
    put(element);
    m_open.push_back(element);
    m_isTagOpen = true;
}

void StreamSink::close()
{
    const char *const element = m_open.back();
    m_open.pop_back();
    if (m_isTagOpen) {
        put("/>\n");
    } else {
        startLine();
        put("</");
        put(element);
        put(">\n");
    }
    m_isTagOpen = false;
}

void StreamSink::attribute(const char *name, const QString &value)
{
    startAttribute(name);
    encode<false>(value);
    put("\"");
}

void StreamSink::attribute(const char *name, qint32 value)
{
    startAttribute(name);
    putNumber(value);
    put("\"");
}

void StreamSink::attribute(const char *name, quint32 value)
{
    startAttribute(name);
    putNumber(value);
    put("\"");
}

void StreamSink::attribute(const char *name, bool value)
{
    attribute(name, qint32(value));
}

void StreamSink::attribute(const char *name, double value)
{
    startAttribute(name);
    used(appendNumber(room(maxNumberBytes), value));
    put("\"");
}

void StreamSink::attribute(const char *name, const QList<quint32> &value)
{
    startAttribute(name);
    for (int i = 0; i < value.size(); ++i) {
        if (i > 0)
            put(";");
        putNumber(value[i]);
    }
    put("\"");
}
