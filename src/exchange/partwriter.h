#pragma once
#include <QByteArray>
#include <QString>
#include <cstring>
#include <string_view>
#include <vector>

class QIODevice;

// Writes one XML part of a package straight to a device, without blanks between the elements.
//
// Names are literals that outlive the writer. Texts lose the characters that XML cannot carry.
class PartWriter
{
public:
    explicit PartWriter(QIODevice &device); // begins with the XML declaration
    PartWriter(const PartWriter &) = delete;
    PartWriter &operator=(const PartWriter &) = delete;

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

    // Hands everything to the device; false when the device did not take all of it.
    bool finish();

private:
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
    void endTag()
    {
        if (m_isTagOpen)
            put(">");
        m_isTagOpen = false;
    }
    void encode(const QString &value);
    void number(int value);
    void number(double value);
    void startAttribute(const char *name);
    void flush();

    QIODevice &m_device;
    QByteArray m_buffer;
    int m_size = 0;
    std::vector<const char *> m_open;
    bool m_isTagOpen = false;
    bool m_isSound = true;
};
