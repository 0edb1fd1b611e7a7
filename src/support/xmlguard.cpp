#include "support/xmlguard.h"
#include "support/bytemarks.h"
#include "support/said.h"
#include <cstring>

namespace {

bool isBlank(const char *at, const char *end)
{
    while (at != end && (*at == ' ' || *at == '\t' || *at == '\n' || *at == '\r'))
        ++at;
    return at == end;
}

// A walk over the bytes that only ever goes forward.
class Scan
{
public:
    explicit Scan(const QByteArray &text, xmlguard::ListPlace *list = nullptr)
        : m_begin(text.constData())
        , m_at(m_begin)
        , m_end(m_begin + text.size())
        , m_tagMarks(m_begin, m_end, {'<', '>', '"', '\''})
        , m_list(list)
    {
    }

    bool run();
    QString error() const { return m_error; }

private:
    bool fail(const char *what);
    bool startsWith(const char *mark) const;
    bool skipPast(const char *mark, const char *whatIsOpen);
    bool markup();
    bool tag();
    void noteStart(const char *end, bool isEmptyElement);
    void noteEnd();

    const char *const m_begin;
    const char *m_at;
    const char *const m_end;
    ByteMarks m_tagMarks; // what ends a run of plain bytes inside a tag
    xmlguard::ListPlace *const m_list;
    bool m_isInList = false;
    int m_elements = 0; // of the list
    int m_depth = 0;
    int m_nodes = 0;
    QString m_error;
};

bool Scan::fail(const char *what)
{
    m_error = KW_TEXT("byte %1: %2").arg(m_at - m_begin).arg(QLatin1String(what));
    return false;
}

bool Scan::startsWith(const char *mark) const
{
    const size_t length = std::strlen(mark);
    return size_t(m_end - m_at) >= length && std::memcmp(m_at, mark, length) == 0;
}

bool Scan::skipPast(const char *mark, const char *whatIsOpen)
{
    const size_t length = std::strlen(mark);
    const auto *found = static_cast<const char *>(memmem(m_at, size_t(m_end - m_at), mark, length));
    if (!found)
        return fail(whatIsOpen);
    m_at = found + length;
    return true;
}

bool Scan::run()
{
    while (true) {
        const auto *next = static_cast<const char *>(std::memchr(m_at, '<', size_t(m_end - m_at)));
        if (!next) {
            m_at = m_end;
            return m_depth == 0 || fail("the text ends inside an element");
        }
        if (m_isInList && m_depth == 2)
            m_list->hasText = m_list->hasText || !isBlank(m_at, next);
        m_at = next;
        if (!markup())
            return false;
        if (m_nodes > xmlguard::maxNodes)
            return fail("there are too many elements and attributes");
    }
}

bool Scan::markup()
{
    if (!startsWith("</"))
        ++m_nodes;
    if (startsWith("<!--")) {
        m_at += 4;
        return skipPast("-->", QT_TR_NOOP("a comment does not end"));
    }
    if (startsWith("<![CDATA[")) {
        m_at += 9;
        return skipPast("]]>", QT_TR_NOOP("a CDATA section does not end"));
    }
    if (startsWith("<!"))
        return fail("a document type declaration is not accepted");
    if (startsWith("<?"))
        return skipPast("?>", QT_TR_NOOP("a processing instruction does not end"));
    return tag();
}

// At a tag directly below the root or in the list, which ends at `end`.
void Scan::noteStart(const char *end, bool isEmptyElement)
{
    constexpr int every = 32;
    if (m_depth == 2) {
        if (m_elements++ % every == 0)
            m_list->starts.push_back(int(m_at - m_begin));
        return;
    }
    const size_t length = std::strlen(m_list->name);
    const char *const behind = m_at + 1 + length;
    if (behind > end || std::memcmp(m_at + 1, m_list->name, length) != 0 ||
        (*behind != '>' && *behind != '/' && *behind != ' ' && *behind != '\t' && *behind != '\n' &&
         *behind != '\r'))
        return;
    ++m_list->lists;
    if (!isEmptyElement && m_list->lists == 1) {
        m_isInList = true;
        m_list->begin = int(end + 1 - m_begin);
    }
}

void Scan::noteEnd()
{
    m_isInList = false;
    m_list->end = int(m_at - m_begin);
}

bool Scan::tag()
{
    const bool isEndTag = startsWith("</");
    for (const char *p = m_tagMarks.next(m_at + 1); p != m_end; p = m_tagMarks.next(p + 1)) {
        if (*p == '<') {
            m_at = p;
            return fail("'<' inside a tag");
        }
        if (*p == '>') {
            const bool isEmptyElement = !isEndTag && p[-1] == '/';
            if (isEndTag && --m_depth < 0)
                return fail("an end tag without its element");
            if (isEndTag && m_isInList && m_depth == 1)
                noteEnd();
            if (!isEndTag && m_list && (m_depth == 1 || (m_isInList && m_depth == 2)))
                noteStart(p, isEmptyElement);
            if (!isEndTag && ++m_depth > xmlguard::maxDepth)
                return fail("elements are nested too deep");
            if (isEmptyElement)
                --m_depth;
            m_at = p + 1;
            return true;
        }
        const char quote = *p;
        const char *close = m_tagMarks.next(p + 1);
        // A parser that took the quote for something else must not find markup in here either.
        while (close != m_end && *close != quote && *close != '<')
            close = m_tagMarks.next(close + 1);
        if (close == m_end || *close == '<') {
            m_at = p;
            return fail("an attribute value does not end");
        }
        p = close;
        ++m_nodes;
    }
    return fail("a tag does not end");
}

constexpr int plainBlock = 32;

// Whether none of the bytes of a block is 0 or beyond ASCII; most of any file is like that.
bool isPlainBlock(const uchar *bytes)
{
    constexpr quint64 ones = 0x0101010101010101u;
    constexpr quint64 highBits = ones << 7;
    quint64 words[plainBlock / sizeof(quint64)];
    std::memcpy(words, bytes, plainBlock);
    quint64 seen = 0;
    // Taking 1 from each byte sets the high bit of a byte that was 0; the high bits are all clear before.
    for (const quint64 word : words)
        seen |= word | (word - ones);
    return (seen & highBits) == 0;
}

// The first byte that is no sound UTF-8 or no character for XML; -1 when there is none.
int firstBadByte(const QByteArray &text)
{
    const auto *bytes = reinterpret_cast<const uchar *>(text.constData());
    const int size = text.size();
    for (int i = 0; i < size;) {
        if (size - i >= plainBlock && isPlainBlock(bytes + i)) {
            i += plainBlock;
            continue;
        }
        const uint lead = bytes[i];
        if (lead < 0x80) {
            if (lead == 0)
                return i;
            ++i;
            continue;
        }
        const int length = lead < 0xc2 ? 0 : lead < 0xe0 ? 2 : lead < 0xf0 ? 3 : lead < 0xf5 ? 4 : 0;
        if (length == 0 || size - i < length)
            return i;
        uint code = lead & (0xffu >> (length + 1));
        for (int k = 1; k < length; ++k) {
            if ((bytes[i + k] & 0xc0) != 0x80)
                return i;
            code = code << 6 | (bytes[i + k] & 0x3fu);
        }
        const bool isOverlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
        const bool isSurrogate = code >= 0xd800 && code < 0xe000;
        if (isOverlong || isSurrogate || code > 0x10ffff || code == 0xfffe || code == 0xffff)
            return i;
        i += length;
    }
    return -1;
}

// Whether XML 1.0 can carry the character at `i`; sets `units` to the UTF-16 units it takes.
bool isXmlChar(const QString &text, int i, int &units)
{
    units = 1;
    const QChar c = text[i];
    if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
        units = 2;
        return true;
    }
    const ushort code = c.unicode();
    return !c.isSurrogate() && code < 0xfffe &&
           (code >= 0x20 || code == '\t' || code == '\n' || code == '\r');
}
}

bool xmlguard::isSoundText(const QByteArray &text, QString *error)
{
    const int badByte = firstBadByte(text);
    if (badByte >= 0 && error)
        *error = KW_TEXT("byte %1: no sound UTF-8").arg(badByte);
    return badByte < 0;
}

bool xmlguard::isSafe(const QByteArray &text, QString *error)
{
    ListPlace none;
    return isSafe(text, none, error);
}

bool xmlguard::isSafe(const QByteArray &text, ListPlace &list, QString *error)
{
    if (!isSoundText(text, error))
        return false;
    Scan scan(text, list.name ? &list : nullptr);
    if (scan.run())
        return true;
    if (error)
        *error = scan.error();
    return false;
}

QString xmlguard::clean(const QString &text)
{
    int i = 0;
    int units = 1;
    while (i < text.size() && isXmlChar(text, i, units))
        i += units;
    if (i == text.size())
        return text;

    QString kept = text.left(i);
    kept.reserve(text.size());
    for (; i < text.size(); i += units) {
        if (isXmlChar(text, i, units))
            kept.append(text.constData() + i, units);
    }
    return kept;
}
