#pragma once
#include <QByteArray>
#include <QList>
#include <QString>
#include <cstring>

// The text of one XML attribute in UTF-8, and what it means as a value.
//
// An absent attribute and an empty one are the same. Numbers are decimal and read as 0 when they are none or
// do not fit; so do numbers that are not finite, which no sum could recover from.
class XmlText
{
public:
    XmlText() = default;
    // The bytes belong to the caller and must outlive the object.
    XmlText(const char *utf8, int size)
        : m_data(utf8)
        , m_size(size)
    {
    }
    explicit XmlText(const QString &text)
        : m_owned(text.toUtf8())
        , m_data(m_owned.constData())
        , m_size(m_owned.size())
    {
    }
    XmlText(const XmlText &) = delete;
    XmlText &operator=(const XmlText &) = delete;

    bool isEmpty() const { return m_size == 0; }
    const char *data() const { return m_data; }
    int size() const { return m_size; }
    QString toString() const { return QString::fromUtf8(m_data, m_size); }
    qint32 toInt() const;
    quint32 toUInt() const;
    double toDouble() const;
    // A finite number in decimal digits, which has no other reading.
    bool isPlainNumber() const;
    bool operator==(const char *text) const;

    // Calls visit(part) for the texts between the separators.
    template <typename Visitor>
    void split(char separator, Qt::SplitBehaviorFlags empty, Visitor &&visit) const
    {
        if (m_size == 0)
            return;
        const char *const end = m_data + m_size;
        for (const char *from = m_data;;) {
            const auto *found = static_cast<const char *>(std::memchr(from, separator, size_t(end - from)));
            const char *const to = found ? found : end;
            if (to != from || empty == Qt::KeepEmptyParts)
                visit(XmlText(from, int(to - from)));
            if (!found)
                return;
            from = to + 1;
        }
    }

private:
    QByteArray m_owned;
    const char *m_data = "";
    int m_size = 0;
};

// Reading a member: an empty text leaves it as it was, and IDs join those that are in the list.
namespace xmltext {

void read(const XmlText &text, QString &value);
void read(const XmlText &text, qint16 &value); // left as it was by what is no number or does not fit
void read(const XmlText &text, qint32 &value);
void read(const XmlText &text, quint32 &value);
void read(const XmlText &text, double &value);
void read(const XmlText &text, bool &value); // a whole number, not 0 = true
void read(const XmlText &text, QList<quint32> &value);
}
