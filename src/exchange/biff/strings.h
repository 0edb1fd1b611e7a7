#pragma once
#include "exchange/biff/bytes.h"
#include "exchange/biff/recordstream.h"
#include "exchange/biff/text.h"
#include "kwgantt_export.h"
#include <QString>
#include <vector>

namespace biff {

// Writes one record, which goes on in Continue records when it grows too long.
class KWGANTT_EXPORT ContinuedSink
{
public:
    ContinuedSink(Sink &to, quint16 code);
    ~ContinuedSink() { endRecord(); }
    ContinuedSink(const ContinuedSink &) = delete;
    ContinuedSink &operator=(const ContinuedSink &) = delete;

    // Bytes that stay together in one record.
    void raw(const void *from, size_t size);
    void u32(quint32 value);
    // Goes on in a new record unless so many bytes fit in this one.
    void keepTogether(size_t bytes);
    // Before the characters of the text, those of this record; each Continue that cuts them repeats the flag
    // byte.
    void characters(const Text &text);
    // Where the next byte goes: in the stream, and in the record with its header.
    quint32 streamOffset() const { return m_to.size(); }
    quint16 recordOffset() const { return quint16(m_to.size() - m_recordAt); }

private:
    size_t room() const;
    void beginRecord(quint16 code);
    void endRecord();

    Sink &m_to;
    quint32 m_recordAt = 0;
};

// Flag byte of a string.
enum StringFlags : quint8 { wideCharacters = 1, withPhonetic = 4, withRuns = 8 };
}

namespace YExcel {

// A string with an 8-bit length: names of sheets and fonts.
class KWGANTT_EXPORT SmallString
{
public:
    SmallString() = default;
    SmallString(const QString &text)
        : m_text(text)
    {
    }
    const QString &Value() const { return m_text; }
    // Takes the characters that are there and fails when some are missing.
    void Read(biff::Bytes &from);
    // At most 255 units.
    void Write(biff::Sink &to) const;

private:
    QString m_text;
};

// A string with a 16-bit length: all text of cells. Runs of formatting and phonetic data are read over.
class KWGANTT_EXPORT LargeString
{
public:
    LargeString() = default;
    explicit LargeString(const biff::Text &text)
        : m_text(text)
    {
    }
    const biff::Text &Value() const { return m_text; }
    // Whether the file holds 16-bit characters, needed or not.
    bool IsWide() const { return m_isWide; }
    // False when the string is cut; then it is null.
    bool Read(biff::ContinuedBytes &from);
    // Begins a new record unless the string can begin in this one; Write() does so too.
    void MakeRoom(biff::ContinuedSink &to) const;
    void Write(biff::ContinuedSink &to) const;

private:
    biff::Text m_text;
    bool m_isWide = false;
};
}
