#pragma once
#include <QByteArray>
#include <QDomElement>
#include <QIODevice>
#include <QList>
#include <QString>
#include <charconv>
#include <cstring>
#include <string_view>
#include <vector>

// Two ways to write the same XML: as elements of a DOM, for one element, and as text straight into a file,
// for whole documents. Both have the same members, so whatever is stored is described once, over either.
//
// Texts lose the characters that XML cannot carry. A number that is not finite is written as 0, since no
// reader would take "nan" for a number. IDs are joined by ";".

// Appends elements below `parent`.
class DomSink
{
public:
    explicit DomSink(const QDomElement &parent)
        : m_element(parent)
    {
    }
    void open(const char *element);
    void close();
    void attribute(const char *name, const QString &value);
    void attribute(const char *name, qint32 value);
    void attribute(const char *name, quint32 value);
    void attribute(const char *name, bool value); // "1" or "0"
    void attribute(const char *name, double value);
    void attribute(const char *name, const QList<quint32> &value);

private:
    QDomElement m_element;
};

// Writes XML text to a device as it comes, in pieces of its own size: what all writers of text share. Names
// are literals that outlive the writer.
class XmlStream
{
public:
    XmlStream(const XmlStream &) = delete;
    XmlStream &operator=(const XmlStream &) = delete;
    // Hands everything to the device; false when the device did not take all of it.
    bool finish();

protected:
    XmlStream(QIODevice &device, std::string_view declaration);
    ~XmlStream() = default;

    char *room(int bytes) // at least that many bytes to write to
    {
        if (m_size + bytes > m_buffer.size())
            flush();
        return m_buffer.data() + m_size;
    }
    void used(const char *end) { m_size = int(end - m_buffer.constData()); }
    void put(std::string_view text)
    {
        std::memcpy(room(int(text.size())), text.data(), text.size());
        m_size += int(text.size());
    }
    void startAttribute(const char *name);
    // ">" never needs to be encoded in an attribute, but "]]>" must not stand in a text.
    template <bool encodesGreater>
    void encode(const QString &value);
    template <typename Number>
    void putNumber(Number value)
    {
        constexpr int maxBytes = 32;
        char *const to = room(maxBytes);
        used(std::to_chars(to, to + maxBytes, value).ptr);
    }

    std::vector<const char *> m_open; // elements, the innermost last
    bool m_isTagOpen = false;

private:
    void flush();

    QIODevice &m_device;
    QByteArray m_buffer;
    int m_size = 0;
    bool m_isSound = true;
};

// Writes a whole file, each element on a line of its own, indented by so many blanks a level.
class StreamSink : public XmlStream
{
public:
    explicit StreamSink(QIODevice &device, int blanksPerLevel = 4);
    void open(const char *element);
    void close();
    void attribute(const char *name, const QString &value);
    void attribute(const char *name, qint32 value);
    void attribute(const char *name, quint32 value);
    void attribute(const char *name, bool value);
    void attribute(const char *name, double value);
    void attribute(const char *name, const QList<quint32> &value);

private:
    void startLine();

    int m_blanksPerLevel;
};
