#pragma once
#include <QtAlgorithms>
#include <QtGlobal>
#include <array>
#include <cstring>
#ifdef __SSE2__
#include <emmintrin.h>
#endif

// Finds the next of a few signs in a text, again and again.
//
// Where they stand close together, as quotes and delimiters do, looking byte by byte spends most of its time
// on guessing wrongly which byte is the last. So the signs of 64 bytes are found at once and kept as bits.
class ByteMarks
{
public:
    using Marks = std::array<char, 4>; // not 0; the same may stand twice

    // The bytes belong to the caller.
    ByteMarks(const char *begin, const char *end, const Marks &marks)
        : m_end(end)
    {
        for (std::size_t i = 0; i < marks.size(); ++i)
            m_marks[i].fill(marks[i]);
        load(begin);
    }

    // The first of the signs at `from` or behind it; the end of the bytes when there is none.
    const char *next(const char *from)
    {
        if (quint64(from - m_block) >= quint64(blockBytes))
            load(from);
        quint64 bits = m_bits >> (from - m_block);
        while (bits == 0) {
            if (m_end - m_block <= blockBytes)
                return m_end;
            from = m_block + blockBytes;
            load(from);
            bits = m_bits;
        }
        return from + qCountTrailingZeroBits(bits);
    }

private:
    static constexpr std::ptrdiff_t blockBytes = 64;
    static constexpr int partBytes = 16; // that a processor compares at once
    using Part = std::array<char, partBytes>;

    void load(const char *block)
    {
        m_block = block;
        const std::ptrdiff_t left = m_end - block;
        if (left >= blockBytes) {
            m_bits = bitsOf(block);
            return;
        }
        char last[blockBytes] = {};
        if (left > 0)
            std::memcpy(last, block, std::size_t(left));
        m_bits = bitsOf(last);
    }

    quint64 bitsOf(const char *block) const
    {
        quint64 bits = 0;
#ifdef __SSE2__
        for (int at = 0; at < blockBytes; at += partBytes) {
            const __m128i part = _mm_loadu_si128(reinterpret_cast<const __m128i *>(block + at));
            __m128i found = _mm_setzero_si128();
            for (const Part &mark : m_marks)
                found = _mm_or_si128(
                    found,
                    _mm_cmpeq_epi8(part, _mm_loadu_si128(reinterpret_cast<const __m128i *>(mark.data()))));
            bits |= quint64(quint32(_mm_movemask_epi8(found))) << at;
        }
#else
        for (int at = 0; at < blockBytes; ++at) {
            bool isMark = false;
            for (const Part &mark : m_marks)
                isMark |= block[at] == mark[0];
            bits |= quint64(isMark) << at;
        }
#endif
        return bits;
    }

    const char *m_block = nullptr;
    const char *const m_end;
    std::array<Part, 4> m_marks; // each sign all over a part
    quint64 m_bits = 0;          // of the signs in the block, the first byte lowest
};
