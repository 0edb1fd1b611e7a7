#include "support/xmlpull.h"
#include "support/said.h"
#include "support/xmlguard.h"
#include <algorithm>
#include <cstring>

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

const char *skipBlanks(const char *at, const char *end)
{
    while (at != end && isBlank(*at))
        ++at;
    return at;
}

struct Entity
{
    const char *name;
    char character;
};
constexpr Entity entities[] = {{"amp;", '&'}, {"lt;", '<'}, {"gt;", '>'}, {"quot;", '"'}, {"apos;", '\''}};

// Reads what follows an "&"; null for what is no entity of XML. Counts what stands for no character of a
// text.
const char *readEntity(const char *at, const char *end, QString &text, int &odd)
{
    for (const Entity &entity : entities) {
        const std::size_t length = std::strlen(entity.name);
        if (std::size_t(end - at) >= length && std::memcmp(at, entity.name, length) == 0) {
            text += QLatin1Char(entity.character);
            return at + length;
        }
    }
    if (at == end || *at != '#')
        return nullptr;
    const bool isHex = ++at != end && *at == 'x';
    if (isHex)
        ++at;
    constexpr int longest = 8; // digits of any character, zeros before them included
    const char *const semicolon = std::find(at, at + std::min<std::ptrdiff_t>(longest, end - at), ';');
    if (semicolon == end || *semicolon != ';')
        return nullptr;
    bool isNumber = false;
    const uint code = QByteArray(at, int(semicolon - at)).toUInt(&isNumber, isHex ? 16 : 10);
    if (!isNumber)
        return nullptr;
    constexpr uint lastCode = 0x10ffff;
    const bool isControl = code < 0x20 && code != '\t' && code != '\n' && code != '\r';
    const bool isHalfPair = code >= 0xd800 && code < 0xe000;
    if (isControl || isHalfPair || code > lastCode)
        ++odd;
    else
        text += QString::fromUcs4(&code, 1);
    return semicolon + 1;
}

// Copies what is plain in runs, not character by character: `plain` is where the present run began. A line
// end of "\r\n" or
// "\r" becomes "\n", as XML wants it. An "&" that begins nothing known stays and is counted, since losing it
// would be silent.
QString decoded(const char *at, const char *end, bool isCharacterData, int &odd)
{
    QString text;
    for (const char *plain = at;; ++at) {
        const bool isEntity = at != end && *at == '&' && !isCharacterData;
        const bool isReturn = at != end && *at == '\r';
        if (at != end && !isEntity && !isReturn)
            continue;
        text += QString::fromUtf8(plain, int(at - plain));
        if (at == end)
            return text;
        plain = at + 1;
        if (isReturn) {
            if (plain == end || *plain != '\n')
                text += QLatin1Char('\n');
        } else if (const char *const after = readEntity(plain, end, text, odd)) {
            plain = after;
            at = after - 1;
        } else {
            text += QLatin1Char('&');
            ++odd;
        }
    }
}

// Most texts need nothing of this.
bool isPlain(const char *at, const char *end)
{
    return std::all_of(at, end, [](char c) { return c != '&' && uchar(c) >= 0x20; });
}

QString toText(std::string_view text, bool isCharacterData, int &odd)
{
    const char *const begin = text.data();
    const char *const end = begin + text.size();
    return isPlain(begin, end) ? QString::fromUtf8(begin, int(text.size()))
                               : xmlguard::clean(decoded(begin, end, isCharacterData, odd));
}

std::string_view view(const char *begin, const char *end)
{
    return std::string_view(begin, std::size_t(end - begin));
}

bool isNoName(char c)
{
    return c == '&' || c == ';' || c == '"' || c == '\'' || c == '=';
}
}

XmlPull::XmlPull(const QByteArray &utf8)
    : m_bytes(utf8)
    , m_at(m_bytes.constData())
    , m_end(m_at + m_bytes.size())
{
    m_hasFailed = !xmlguard::isSoundText(m_bytes, &m_error);
}

XmlPull::Token XmlPull::fail(const char *what)
{
    m_hasFailed = true;
    m_error = KW_TEXT("byte %1: %2").arg(m_at - m_bytes.constData()).arg(QLatin1String(what));
    return Failed;
}

// Behind the mark; false when there is none.
bool XmlPull::skipPast(const char *mark)
{
    const auto *found =
        static_cast<const char *>(memmem(m_at, std::size_t(m_end - m_at), mark, std::strlen(mark)));
    if (found)
        m_at = found + std::strlen(mark);
    return found != nullptr;
}

bool XmlPull::startsWith(const char *mark) const
{
    const std::size_t length = std::strlen(mark);
    return std::size_t(m_end - m_at) >= length && std::memcmp(m_at, mark, length) == 0;
}

// Each call answers with one token. What a token is about must still be there while the caller looks at it,
// so an element that has ended leaves the stack only at the next call, and "<a/>" is a Begin now and an End
// at the next call.
XmlPull::Token XmlPull::next()
{
    if (m_hasFailed)
        return Failed;
    if (m_popsOnNext) {
        m_open.pop_back();
        m_popsOnNext = false;
    }
    if (m_closesAtOnce) {
        m_closesAtOnce = false;
        m_popsOnNext = true;
        return End;
    }
    while (m_at != m_end) {
        if (*m_at != '<') {
            const auto *next = static_cast<const char *>(std::memchr(m_at, '<', std::size_t(m_end - m_at)));
            const char *const begin = m_at;
            m_at = next ? next : m_end;
            if (!m_open.empty()) {
                m_text = view(begin, m_at);
                m_isCharacterData = false;
                return Text;
            }
            // Nothing but blanks stands beside the root.
            if (skipBlanks(begin, m_at) != m_at)
                return fail();
        } else if (startsWith("<!--")) {
            m_at += 4;
            if (!skipPast("-->"))
                return fail();
        } else if (startsWith("<?")) {
            if (!skipPast("?>"))
                return fail();
        } else if (startsWith("<![CDATA[")) {
            m_at += 9;
            const char *const begin = m_at;
            if (m_open.empty() || !skipPast("]]>"))
                return fail();
            m_text = view(begin, m_at - 3);
            m_isCharacterData = true;
            return Text;
        } else if (startsWith("<!")) {
            return fail("a document type declaration is not accepted");
        } else {
            return m_at + 1 != m_end && m_at[1] == '/' ? endTag() : beginTag();
        }
    }
    return m_open.empty() && m_hadRoot ? Finished : fail();
}

// Past the "<", at a name.
XmlPull::Token XmlPull::beginTag()
{
    if (m_open.empty() && m_hadRoot)
        return fail();
    m_hadRoot = true;
    const char *const begin = m_at + 1;
    const char *at = begin;
    // The stack has the name with its prefix, for the end tag must repeat both; callers ask for the name
    // alone.
    const char *prefixEnd = nullptr;
    for (; at != m_end && *at != '>' && *at != '/' && *at != '<' && !isBlank(*at); ++at) {
        if (*at == ':')
            prefixEnd = at + 1;
        if (isNoName(*at))
            return fail();
    }
    if (at == begin || at == m_end)
        return fail();
    const std::string_view full = view(begin, at);
    m_name = prefixEnd ? view(prefixEnd, at) : full;
    m_at = at;
    m_attributes.clear();
    if (!readAttributes())
        return fail();
    if (m_open.size() == std::size_t(xmlguard::maxDepth))
        return fail("elements are nested too deep");
    m_open.push_back(full);
    return Begin;
}

// Up to the end of the tag.
bool XmlPull::readAttributes()
{
    // A name that stands twice is looked for among all before it, so their number has a limit; no format has
    // as many.
    constexpr std::size_t most = 1000;
    const char *at = m_at;
    bool isSound = false;
    while (m_attributes.size() < most) {
        at = skipBlanks(at, m_end);
        if (at == m_end)
            break;
        if (*at == '>') {
            ++at;
            isSound = true;
            break;
        }
        if (*at == '/') {
            // Only ">" may follow; the next round takes it.
            m_closesAtOnce = true;
            ++at;
            if (at == m_end || *at != '>')
                break;
            continue;
        }
        const char *const begin = at;
        while (at != m_end && *at != '=' && *at != '>' && *at != '/' && *at != '<' && !isBlank(*at))
            ++at;
        const std::string_view name = view(begin, at);
        at = skipBlanks(at, m_end);
        if (name.empty() || at == m_end || *at != '=' || std::any_of(name.begin(), name.end(), isNoName))
            break;
        at = skipBlanks(at + 1, m_end);
        if (at == m_end || (*at != '"' && *at != '\''))
            break;
        const char *close = at + 1;
        while (close != m_end && *close != *at && *close != '<')
            ++close;
        const bool isNamedTwice = rawAttribute(name).data() != nullptr;
        if (close == m_end || *close == '<' || isNamedTwice)
            break;
        m_attributes.push_back({name, view(at + 1, close)});
        at = close + 1;
    }
    m_at = at;
    return isSound;
}

XmlPull::Token XmlPull::endTag()
{
    const char *const begin = m_at + 2;
    const auto *close = static_cast<const char *>(std::memchr(begin, '>', std::size_t(m_end - begin)));
    if (!close || m_open.empty())
        return fail();
    const char *end = close;
    while (end != begin && isBlank(end[-1]))
        --end;
    const std::string_view full = view(begin, end);
    if (full != m_open.back())
        return fail();
    const std::size_t colon = full.rfind(':');
    m_name = colon == full.npos ? full : full.substr(colon + 1);
    m_at = close + 1;
    m_popsOnNext = true;
    return End;
}

QString XmlPull::attribute(std::string_view name) const
{
    const std::string_view raw = rawAttribute(name);
    return raw.data() ? toText(raw, false, m_oddReferences) : QString();
}

QString XmlPull::text() const
{
    return toText(m_text, m_isCharacterData, m_oddReferences);
}

bool XmlPull::skip()
{
    const int outer = depth() - 1;
    Token token = next();
    while (token != Finished && token != Failed && !(token == End && depth() == outer + 1))
        token = next();
    return token == End;
}

QString XmlPull::textOfElement()
{
    QString joined;
    const int inner = depth();
    for (Token token = next(); token != Finished && token != Failed; token = next()) {
        if (token == End && depth() == inner)
            break;
        if (token == Text && depth() == inner)
            joined = joined.isEmpty() ? text() : joined + text();
    }
    return joined;
}

// The way most cells of a large sheet take: their text lies in the bytes as it is wanted, up to "</", and
// nothing is copied. Whatever is not that plain goes the long way round.
std::string_view XmlPull::utf8OfElement(QByteArray &buffer)
{
    const char *at = m_at;
    while (!m_closesAtOnce && at != m_end && *at != '<' && *at != '&' && uchar(*at) >= 0x20)
        ++at;
    if (m_closesAtOnce || m_end - at < 2 || at[0] != '<' || at[1] != '/') {
        buffer = textOfElement().toUtf8();
        return view(buffer.constData(), buffer.constData() + buffer.size());
    }
    const std::string_view text = view(m_at, at);
    m_at = at;
    next();
    return text;
}

int XmlPull::numberOfElement()
{
    constexpr int maxDigits = 9; // never past an int; a longer number is read as text
    const char *at = m_at;
    int number = 0;
    while (!m_closesAtOnce && at != m_end && at - m_at < maxDigits && *at >= '0' && *at <= '9')
        number = number * 10 + (*at++ - '0');
    if (at == m_at || m_end - at < 2 || at[0] != '<' || at[1] != '/')
        return -1;
    m_at = at;
    next();
    return number;
}

QByteArray XmlPull::toUtf8(const QByteArray &bytes)
{
    const auto startsWithBytes = [&bytes](const char *mark, int size) {
        return bytes.size() >= size && std::memcmp(bytes.constData(), mark, std::size_t(size)) == 0;
    };
    if (startsWithBytes("\xef\xbb\xbf", 3))
        return bytes.mid(3);
    const bool isBig = startsWithBytes("\xfe\xff", 2) || startsWithBytes("\0<", 2);
    const bool isLittle = startsWithBytes("\xff\xfe", 2) || startsWithBytes("<\0", 2);
    if (!isBig && !isLittle)
        return bytes;
    QString text(bytes.size() / 2, Qt::Uninitialized);
    for (int i = 0; i < text.size(); ++i) {
        const uchar first = uchar(bytes.at(2 * i));
        const uchar second = uchar(bytes.at(2 * i + 1));
        text[i] = QChar(isBig ? first << 8 | second : second << 8 | first);
    }
    if (text.startsWith(QChar(QChar::ByteOrderMark)))
        text.remove(0, 1);
    return text.toUtf8();
}
