#pragma once
#include "kwgantt_export.h"
#include <QString>
#include <cstddef>
#include <memory>
#include <utility>

namespace biff {

// Immutable text that copies share: one byte a character when all are below U+0100, else UTF-16. A workbook
// of a million cells is held in memory, so it knows only what it needs. Not for use from two threads.
class KWGANTT_EXPORT Text
{
public:
    Text() = default; // null, which is shorter than empty
    static Text fromLatin1(const char *characters, size_t count);
    // Little-endian units, which need not be aligned.
    static Text fromUtf16Bytes(const unsigned char *bytes, size_t units);
    // One character each; what is no character becomes U+FFFD.
    static Text fromWide(const wchar_t *characters, size_t count);
    static Text fromString(const QString &text);

    Text(const Text &other)
        : m_block(other.m_block)
    {
        if (m_block)
            ++m_block->users;
    }
    Text(Text &&other) noexcept
        : m_block(other.m_block)
    {
        other.m_block = nullptr;
    }
    Text &operator=(Text other) noexcept
    {
        std::swap(m_block, other.m_block);
        return *this;
    }
    ~Text()
    {
        if (m_block && --m_block->users == 0)
            free(m_block);
    }

    bool isNull() const { return !m_block; }
    bool isNarrow() const { return !m_block || m_block->isNarrow; }
    // In UTF-16 units, as the file counts.
    size_t units() const { return m_block ? m_block->units : 0; }
    // The characters, with a closing zero; "" when they are wide.
    const char *latin1() const { return m_block && m_block->isNarrow ? m_block->latin1() : ""; }
    // The characters, without a closing zero; null when they are narrow.
    const ushort *utf16() const { return m_block && !m_block->isNarrow ? m_block->utf16() : nullptr; }
    // Whether the unit there and the next are one character above U+FFFF.
    bool isPairAt(size_t unit) const;
    size_t bytes() const { return units() * (isNarrow() ? 1 : 2); }
    // One wide character a character, with a closing zero. Made once and kept as long as the text.
    const wchar_t *wide() const;
    size_t wideLength() const;
    QString toString() const;
    // The same characters as the file should hold them: readers disagree on U+0080 to U+009F when they take
    // one byte each, so a text with one of them comes back wide.
    Text forFile() const;
    bool operator==(const Text &other) const;

    // Whether both are copies of one.
    bool isShared(const Text &other) const { return m_block == other.m_block; }

    // A number that a writer leaves with the text, for all copies of it; 0 at first.
    quint32 place() const { return m_block ? m_block->place : 0; }
    void setPlace(quint32 place) const
    {
        if (m_block)
            m_block->place = place;
    }

private:
    // The characters follow in the same piece of memory.
    struct Block
    {
        std::unique_ptr<wchar_t[]> wide;
        quint32 users;
        quint32 units;
        quint32 place;
        bool isNarrow;

        char *latin1() { return reinterpret_cast<char *>(this + 1); }
        ushort *utf16() { return reinterpret_cast<ushort *>(this + 1); }
    };
    static Text make(size_t units, bool isNarrow);
    static void free(Block *block);

    Block *m_block = nullptr;
};
}
