#include "support/xmlsink.h"
#include "support/xmlencode.h"
#include "support/xmlguard.h"
#include <charconv>
#include <cmath>
#include <cstring>

namespace {

constexpr int flushBytes = 256 << 10;
constexpr int bufferBytes = flushBytes + (64 << 10);
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

StreamSink::StreamSink(QIODevice &device, int blanksPerLevel)
    : m_device(device)
    , m_blanksPerLevel(blanksPerLevel)
    , m_buffer(bufferBytes, Qt::Uninitialized)
{
    const char head[] = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n";
    put(head, int(sizeof head) - 1);
}

void StreamSink::flush()
{
    if (m_isSound && m_device.write(m_buffer.constData(), m_size) != m_size)
        m_isSound = false;
    m_size = 0;
}

char *StreamSink::room(int bytes)
{
    if (m_size + bytes > m_buffer.size())
        flush();
    return m_buffer.data() + m_size;
}

void StreamSink::put(const char *text, int size)
{
    char *to = room(size);
    std::memcpy(to, text, size_t(size));
    used(to + size);
}

void StreamSink::startLine(int level)
{
    const int blanks = level * m_blanksPerLevel;
    char *to = room(blanks);
    std::memset(to, ' ', size_t(blanks));
    used(to + blanks);
}

void StreamSink::open(const char *element)
{
    if (m_isTagOpen)
        put(">\n", 2);
    if (m_size > flushBytes)
        flush();
    startLine(m_open.size());
    put("<", 1);
    put(element, int(std::strlen(element)));
    m_open.append(element);
    m_isTagOpen = true;
}

void StreamSink::close()
{
    const char *const element = m_open.takeLast();
    if (m_isTagOpen) {
        put("/>\n", 3);
    } else {
        startLine(m_open.size());
        put("</", 2);
        put(element, int(std::strlen(element)));
        put(">\n", 2);
    }
    m_isTagOpen = false;
}

void StreamSink::startAttribute(const char *name)
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

void StreamSink::attribute(const char *name, const QString &value)
{
    constexpr int piece = 4096;
    startAttribute(name);
    const ushort *at = value.utf16();
    const ushort *const end = at + value.size();
    while (at != end) {
        // A pair of units makes fewer bytes than two single ones, so a pair across the border has room too.
        const ushort *const stop = at + qMin<qint64>(piece, end - at);
        char *to = room((piece + 1) * xmlencode::maxUnitBytes);
        while (at < stop)
            to = xmlencode::character(to, at, end);
        used(to);
    }
    put("\"", 1);
}

void StreamSink::attribute(const char *name, qint32 value)
{
    startAttribute(name);
    char *to = room(maxNumberBytes);
    to = std::to_chars(to, to + maxNumberBytes, value).ptr;
    *to++ = '"';
    used(to);
}

void StreamSink::attribute(const char *name, quint32 value)
{
    startAttribute(name);
    char *to = room(maxNumberBytes);
    to = std::to_chars(to, to + maxNumberBytes, value).ptr;
    *to++ = '"';
    used(to);
}

void StreamSink::attribute(const char *name, bool value)
{
    attribute(name, qint32(value));
}

void StreamSink::attribute(const char *name, double value)
{
    startAttribute(name);
    char *to = appendNumber(room(maxNumberBytes + 1), value);
    *to++ = '"';
    used(to);
}

void StreamSink::attribute(const char *name, const QList<quint32> &value)
{
    startAttribute(name);
    for (int i = 0; i < value.size(); ++i) {
        char *to = room(maxNumberBytes);
        if (i > 0)
            *to++ = ';';
        used(std::to_chars(to, to + maxNumberBytes - 1, value[i]).ptr);
    }
    put("\"", 1);
}

bool StreamSink::finish()
{
    flush();
    return m_isSound;
}
