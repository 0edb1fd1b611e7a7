#pragma once
#include <QByteArray>
#include <QString>
#include <string_view>
#include <vector>

// Reads XML text from its first element to its last without building anything, for parts too large for a
// tree.
//
// Names of elements come without their prefix. Refuses what xmlguard refuses, but takes any number of
// elements, since none is kept; tags that do not match, a second root and attributes that are none end the
// reading, too. Entities other than those of XML itself stay as they are written.
class XmlPull
{
public:
    enum Token { Begin, End, Text, Finished, Failed };

    // The bytes are shared and kept.
    explicit XmlPull(const QByteArray &utf8);

    Token next();
    // References in the texts that were asked for which stand for no character: unknown entities, which stay
    // as they are written, and control characters, which are left out.
    int oddReferences() const { return m_oddReferences; }
    QString error() const { return m_error; } // why it failed; empty when it did not
    qint64 bytes() const { return m_bytes.size(); }
    qint64 bytesRead() const { return m_at - m_bytes.constData(); }
    // ---- At Begin and End ---------------------------------------------------------------------------------
    bool is(std::string_view name) const { return m_name == name; }
    std::string_view name() const { return m_name; }
    // Open elements, this one included.
    int depth() const { return int(m_open.size()); }
    // ---- At Begin -----------------------------------------------------------------------------------------
    QString attribute(std::string_view name) const; // empty when there is none
    // As it stands in the text, entities and all, for short values; its data are null when there is none.
    std::string_view rawAttribute(std::string_view name) const
    {
        for (const Attribute &each : m_attributes) {
            if (each.name == name)
                return each.value;
        }
        return {};
    }
    // ---- At Text ------------------------------------------------------------------------------------------
    QString text() const; // without the characters that XML cannot carry
    // Goes on to the end of the element that has begun; false when the text fails.
    bool skip();
    // The texts up to the end of the element that has begun, those of its children left out.
    QString textOfElement();
    // The same in UTF-8: a view of the text itself where nothing in it is encoded, else of `buffer`. Good
    // until the next call.
    std::string_view utf8OfElement(QByteArray &buffer);
    // The same as a number, where the element holds nothing but digits; -1 and nothing read otherwise.
    int numberOfElement();

    // Text of a part as UTF-8 without a byte order mark; UTF-16 is told by its mark or by the first "<".
    static QByteArray toUtf8(const QByteArray &bytes);

private:
    struct Attribute
    {
        std::string_view name;
        std::string_view value;
    };
    Token fail(const char *what = QT_TR_NOOP("no sound XML"));
    Token beginTag();
    Token endTag();
    bool readAttributes();
    bool startsWith(const char *mark) const;
    bool skipPast(const char *mark);

    QByteArray m_bytes;
    const char *m_at;
    const char *const m_end;
    std::vector<std::string_view> m_open; // names with their prefixes
    std::vector<Attribute> m_attributes;
    QString m_error;
    std::string_view m_name;
    std::string_view m_text;
    mutable int m_oddReferences = 0;
    bool m_isCharacterData = false;
    bool m_closesAtOnce = false; // an empty element has begun
    bool m_popsOnNext = false;   // an element has ended
    bool m_hadRoot = false;
    bool m_hasFailed = false;
};
