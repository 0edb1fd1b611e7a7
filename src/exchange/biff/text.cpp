#include "exchange/biff/text.h"
#include <QtEndian>
#include <algorithm>
#include <cstring>
#include <new>

using namespace biff;

namespace {

constexpr ushort firstHighSurrogate = 0xD800, firstLowSurrogate = 0xDC00, afterSurrogates = 0xE000;
}

bool Text::isPairAt(size_t unit) const
{
    const ushort *at = utf16() ? utf16() + unit : nullptr;
    return at && unit + 1 < units() && at[0] >= firstHighSurrogate && at[0] < firstLowSurrogate &&
           at[1] >= firstLowSurrogate && at[1] < afterSurrogates;
}

Text Text::make(size_t units, bool isNarrow)
{
    void *memory = ::operator new(sizeof(Block) + (isNarrow ? units + 1 : 2 * units));
    Text text;
    text.m_block = new (memory) Block{nullptr, 1, quint32(units), 0, isNarrow};
    if (isNarrow)
        text.m_block->latin1()[units] = '\0';
    return text;
}

void Text::free(Block *block)
{
    block->~Block();
    ::operator delete(block);
}

Text Text::fromLatin1(const char *characters, size_t count)
{
    constexpr bool isNarrow = true;
    Text text = make(count, isNarrow);
    if (count > 0)
        std::memcpy(text.m_block->latin1(), characters, count);
    return text;
}

Text Text::fromUtf16Bytes(const unsigned char *bytes, size_t units)
{
    const bool isNarrow = [&] {
        for (size_t i = 0; i < units; ++i) {
            if (bytes[2 * i + 1] != 0)
                return false;
        }
        return true;
    }();
    Text text = make(units, isNarrow);
    if (isNarrow) {
        for (size_t i = 0; i < units; ++i)
            text.m_block->latin1()[i] = char(bytes[2 * i]);
    } else {
        qFromLittleEndian<ushort>(bytes, qsizetype(units), text.m_block->utf16());
    }
    return text;
}

Text Text::fromWide(const wchar_t *characters, size_t count)
{
    const auto isBeyondUnit = [](wchar_t c) { return quint32(c) > 0xFFFF && quint32(c) <= 0x10FFFF; };
    quint32 allBits = 0;
    for (size_t i = 0; i < count; ++i)
        allBits |= quint32(characters[i]);
    const bool isNarrow = allBits < 0x100;
    const size_t pairs =
        allBits <= 0xFFFF ? 0 : size_t(std::count_if(characters, characters + count, isBeyondUnit));
    Text text = make(count + pairs, isNarrow);
    if (isNarrow) {
        std::transform(characters, characters + count, text.m_block->latin1(),
                       [](wchar_t c) { return char(c); });
        return text;
    }
    ushort *to = text.m_block->utf16();
    for (size_t i = 0; i < count; ++i) {
        const quint32 character = quint32(characters[i]);
        if (isBeyondUnit(characters[i])) {
            *to++ = ushort(firstHighSurrogate + ((character - 0x10000) >> 10));
            *to++ = ushort(firstLowSurrogate + ((character - 0x10000) & 0x3FF));
        } else {
            *to++ = character > 0xFFFF ? ushort(0xFFFD) : ushort(character);
        }
    }
    return text;
}

Text Text::fromString(const QString &string)
{
    const ushort *units = string.utf16();
    const ushort *end = units + string.size();
    const bool isNarrow = std::all_of(units, end, [](ushort unit) { return unit < 0x100; });
    Text text = make(size_t(string.size()), isNarrow);
    if (isNarrow)
        std::transform(units, end, text.m_block->latin1(), [](ushort unit) { return char(unit); });
    else
        std::copy(units, end, text.m_block->utf16());
    return text;
}

size_t Text::wideLength() const
{
    size_t length = units();
    if (!isNarrow()) {
        for (size_t i = 0; i < units(); ++i)
            length -= isPairAt(i);
    }
    return length;
}

const wchar_t *Text::wide() const
{
    if (!m_block)
        return L"";
    if (m_block->wide)
        return m_block->wide.get();
    m_block->wide.reset(new wchar_t[wideLength() + 1]);
    wchar_t *to = m_block->wide.get();
    for (size_t i = 0; i < units(); ++i) {
        if (isNarrow()) {
            *to++ = wchar_t(uchar(latin1()[i]));
        } else if (isPairAt(i)) {
            const quint32 high = utf16()[i] - firstHighSurrogate;
            *to++ = wchar_t(0x10000 + (high << 10) + utf16()[++i] - firstLowSurrogate);
        } else {
            *to++ = wchar_t(utf16()[i]);
        }
    }
    *to = L'\0';
    return m_block->wide.get();
}

QString Text::toString() const
{
    return isNarrow() ? QString::fromLatin1(latin1(), int(units()))
                      : QString(reinterpret_cast<const QChar *>(utf16()), int(units()));
}

Text Text::forFile() const
{
    const auto isDoubtful = [](char c) { return (uchar(c) & 0xE0) == 0x80; };
    if (!isNarrow() || std::none_of(latin1(), latin1() + units(), isDoubtful))
        return *this;
    constexpr bool isNarrow = false;
    Text text = make(units(), isNarrow);
    std::transform(latin1(), latin1() + units(), text.m_block->utf16(), [](char c) { return uchar(c); });
    return text;
}

bool Text::operator==(const Text &other) const
{
    const auto characters = [](const Text &text) {
        return text.isNarrow() ? static_cast<const void *>(text.latin1()) : text.utf16();
    };
    return units() == other.units() && isNarrow() == other.isNarrow() &&
           std::memcmp(characters(*this), characters(other), bytes()) == 0;
}
