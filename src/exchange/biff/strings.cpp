#include "exchange/biff/strings.h"

using namespace biff;

ContinuedSink::ContinuedSink(Sink &to, quint16 code)
    : m_to(to)
{
    beginRecord(code);
}

void ContinuedSink::beginRecord(quint16 code)
{
    m_recordAt = m_to.size();
    m_to.u16(code);
    m_to.u16(0);
}

void ContinuedSink::endRecord()
{
    m_to.patch(m_recordAt + 2, quint16(m_to.size() - m_recordAt - 4));
}

size_t ContinuedSink::room() const
{
    return size_t(recordDataLimit) + 4 - recordOffset();
}

void ContinuedSink::keepTogether(size_t bytes)
{
    if (room() < bytes) {
        endRecord();
        beginRecord(code::continued);
    }
}

void ContinuedSink::raw(const void *from, size_t size)
{
    keepTogether(size);
    m_to.raw(from, size);
}

void ContinuedSink::u32(quint32 value)
{
    keepTogether(sizeof value);
    m_to.u32(value);
}

void ContinuedSink::characters(const biff::Text &text)
{
    const size_t unitBytes = text.isNarrow() ? 1 : 2;
    size_t written = 0;
    while (written < text.units()) {
        size_t units = qMin(text.units() - written, room() / unitBytes);
        // Some readers decode each record by itself and would find half a character.
        if (units > 0 && text.isPairAt(written + units - 1))
            --units;
        if (units == 0) {
            endRecord();
            beginRecord(code::continued);
            m_to.u8(text.isNarrow() ? 0 : wideCharacters);
            continue;
        }
        if (text.isNarrow())
            m_to.raw(text.latin1() + written, units);
        else if (uchar *to = m_to.grow(2 * units))
            qToLittleEndian<ushort>(text.utf16() + written, qsizetype(units), to);
        written += units;
    }
}

void YExcel::SmallString::Read(Bytes &from)
{
    const int length = from.u8();
    const bool isWide = from.u8() & wideCharacters;
    const uchar *characters = from.take(size_t(length) * (isWide ? 2 : 1));
    if (!characters)
        return;
    m_text = isWide ? Text::fromUtf16Bytes(characters, size_t(length)).toString()
                    : QString::fromLatin1(reinterpret_cast<const char *>(characters), length);
}

void YExcel::SmallString::Write(Sink &to) const
{
    const biff::Text text = Text::fromString(m_text.left(255)).forFile();
    to.u8(quint8(text.units()));
    to.u8(text.isNarrow() ? 0 : wideCharacters);
    if (text.isNarrow()) {
        to.raw(text.latin1(), text.units());
    } else {
        for (size_t i = 0; i < text.units(); ++i)
            to.u16(text.utf16()[i]);
    }
}

bool YExcel::LargeString::Read(ContinuedBytes &from)
{
    m_text = biff::Text();
    const size_t length = from.u16();
    quint8 flags = from.u8();
    const quint64 runBytes = flags & withRuns ? 4 * quint64(from.u16()) : 0;
    const quint64 phoneticBytes = flags & withPhonetic ? from.u32() : 0;
    m_isWide = flags & wideCharacters;
    if (!from.ok())
        return false;
    biff::Text text;
    const size_t bytes = length * (m_isWide ? 2 : 1);
    if (bytes <= from.left()) {
        const uchar *characters = from.take(bytes);
        text = m_isWide ? Text::fromUtf16Bytes(characters, length)
                        : Text::fromLatin1(reinterpret_cast<const char *>(characters), length);
    } else {
        // Each record that cuts the characters may change their width.
        std::vector<uchar> units;
        bool isWide = m_isWide;
        size_t read = 0;
        for (;;) {
            const size_t unitBytes = isWide ? 2 : 1;
            const size_t here = qMin(length - read, from.left() / unitBytes);
            const uchar *characters = from.take(here * unitBytes);
            for (size_t i = 0; i < here; ++i) {
                units.push_back(characters[i * unitBytes]);
                units.push_back(isWide ? characters[i * unitBytes + 1] : 0);
            }
            read += here;
            if (read == length)
                break;
            // A character is never cut itself: one byte that is left fills the record up.
            from.skip(from.left());
            if (!from.hasMore()) {
                from.setFailed();
                return false;
            }
            isWide = from.u8() & wideCharacters;
            m_isWide = m_isWide || isWide;
        }
        text = Text::fromUtf16Bytes(units.data(), length);
    }
    from.skip(runBytes + phoneticBytes);
    if (!from.ok())
        return false;
    m_text = text;
    return true;
}

namespace {

constexpr size_t headBytes = 3; // count and flag byte
}

void YExcel::LargeString::MakeRoom(ContinuedSink &to) const
{
    // Count and flag byte stay together, and the first character with them, so that no string begins with the
    // flag byte of a Continue.
    const size_t firstBytes = m_text.units() == 0 ? 0 : m_text.isNarrow() ? 1 : m_text.isPairAt(0) ? 4 : 2;
    to.keepTogether(headBytes + firstBytes);
}

void YExcel::LargeString::Write(ContinuedSink &to) const
{
    MakeRoom(to);
    const quint16 length = quint16(m_text.units());
    const quint8 head[headBytes] = {quint8(length), quint8(length >> 8),
                                    quint8(m_text.isNarrow() ? 0 : wideCharacters)};
    to.raw(head, sizeof head);
    to.characters(m_text);
}
