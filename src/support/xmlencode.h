#pragma once
#include <QChar>
#include <cstring>

// UTF-16 as the UTF-8 of an XML file. Inline, for loops over millions of characters.
namespace xmlencode {

constexpr int maxUnitBytes = 6; // of one UTF-16 unit, as an entity

inline char *append(char *to, const char *text)
{
    const size_t length = std::strlen(text);
    std::memcpy(to, text, length);
    return to + length;
}

// What XML wants escaped in an attribute, so that it reads back as it was; null when nothing.
inline const char *escapeOf(ushort unit)
{
    switch (unit) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '"':
        return "&quot;";
    case '\t':
        return "&#x9;";
    case '\n':
        return "&#xa;";
    case '\r':
        return "&#xd;";
    default:
        return nullptr;
    }
}

// What escapeOf wrote; behind it, or null where something else stands.
inline const char *readEscape(const char *at, char &sign)
{
    for (const char each : {'&', '<', '"', '\t', '\n', '\r'}) {
        const char *const escape = escapeOf(ushort(each));
        const size_t length = std::strlen(escape);
        if (std::strncmp(at, escape, length) == 0) {
            sign = each;
            return at + length;
        }
    }
    return nullptr;
}

// One character, as UTF-8 or escaped; nothing for one that XML cannot carry. Moves `at` past it.
inline char *character(char *to, const ushort *&at, const ushort *end)
{
    const ushort unit = *at++;
    if (unit < 0x80) {
        if (const char *escape = escapeOf(unit))
            return append(to, escape);
        if (unit >= 0x20)
            *to++ = char(unit);
        return to;
    }
    if (unit < 0x800) {
        *to++ = char(0xc0 | unit >> 6);
        *to++ = char(0x80 | (unit & 0x3f));
        return to;
    }
    if (QChar::isSurrogate(unit)) {
        if (!QChar::isHighSurrogate(unit) || at == end || !QChar::isLowSurrogate(*at))
            return to;
        const uint code = QChar::surrogateToUcs4(unit, *at++);
        *to++ = char(0xf0 | code >> 18);
        *to++ = char(0x80 | (code >> 12 & 0x3f));
        *to++ = char(0x80 | (code >> 6 & 0x3f));
        *to++ = char(0x80 | (code & 0x3f));
        return to;
    }
    if (unit >= 0xfffe)
        return to;
    *to++ = char(0xe0 | unit >> 12);
    *to++ = char(0x80 | (unit >> 6 & 0x3f));
    *to++ = char(0x80 | (unit & 0x3f));
    return to;
}
}
