#pragma once
#include <QByteArray>
#include <QDomElement>
#include <QIODevice>
#include <QList>
#include <QString>

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

// Writes a whole file, each element on a line of its own, indented by so many blanks a level.
class StreamSink
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
    // Hands everything to the device; false when the device did not take all of it.
    bool finish();

private:
    char *room(int bytes); // at least that many bytes to write to
    void used(const char *end) { m_size = int(end - m_buffer.constData()); }
    void put(const char *text, int size);
    void startAttribute(const char *name);
    void startLine(int level);
    void flush();

    QIODevice &m_device;
    int m_blanksPerLevel;
    QByteArray m_buffer;
    int m_size = 0;
    QList<const char *> m_open;
    bool m_isTagOpen = false;
    bool m_isSound = true;
};
