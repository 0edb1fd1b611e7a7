#pragma once
#include "exchange/biff/bytes.h"
#include "exchange/biff/records.h"

namespace biff {

// The records of a stretch of a stream, one after the other. The stream must outlive it.
class RecordStream
{
public:
    RecordStream(const QByteArray &stream, quint32 begin, quint32 end)
        : m_begin(reinterpret_cast<const uchar *>(stream.constData()))
        , m_at(qMin(begin, quint32(stream.size())))
        , m_end(qMin(end, quint32(stream.size())))
    {
    }

    // Goes to the next record. False at the end, or when the record is cut.
    bool next()
    {
        Bytes rest(m_begin + m_at, m_at < m_end ? m_end - m_at : 0);
        m_offset = m_at;
        m_code = rest.u16();
        const size_t size = rest.u16();
        const uchar *data = rest.take(size);
        if (!data)
            return false;
        m_data = Bytes(data, size);
        m_at += quint32(4 + size);
        return true;
    }
    quint16 code() const { return m_code; }
    const Bytes &data() const { return m_data; }
    // Where the record's header stands in the stream.
    quint32 offset() const { return m_offset; }

private:
    const uchar *m_begin;
    quint32 m_at;
    quint32 m_end;
    quint16 m_code = 0;
    Bytes m_data;
    quint32 m_offset = 0;
};

// The data of one record and of the Continue records after it, read as one. Bytes run on from record to
// record; a reader of characters has to look at left(), because each Continue that cuts them begins with a
// flag byte.
class ContinuedBytes
{
public:
    // `stream` stands on the record; it is a copy, so the caller's goes on with the record behind.
    explicit ContinuedBytes(const RecordStream &stream)
        : m_stream(stream)
        , m_data(stream.data())
    {
    }

    bool ok() const { return m_ok; }
    // In this record.
    size_t left() const { return m_data.left(); }
    // Goes to a Continue that holds something when this record is read up. False when nothing is left at all.
    bool hasMore()
    {
        while (m_ok && m_data.left() == 0) {
            if (m_isLast || !m_stream.next() || m_stream.code() != code::continued) {
                m_isLast = true;
                return false;
            }
            m_data = m_stream.data();
        }
        return m_ok;
    }
    // Bytes of this record; null when it has fewer.
    const uchar *take(size_t size)
    {
        const uchar *from = m_data.take(size);
        m_ok = m_ok && from;
        return from;
    }
    template <class Number>
    Number read()
    {
        if (m_data.left() >= sizeof(Number))
            return m_data.read<Number>();
        quint64 number = 0;
        for (size_t i = 0; i < sizeof(Number); ++i) {
            m_ok = hasMore();
            number |= m_ok ? quint64(m_data.u8()) << (8 * i) : 0;
        }
        return Number(number);
    }
    quint8 u8() { return read<quint8>(); }
    quint16 u16() { return read<quint16>(); }
    quint32 u32() { return read<quint32>(); }
    void skip(quint64 size)
    {
        while (size > 0 && m_ok) {
            m_ok = hasMore();
            const size_t step = size_t(qMin(size, quint64(m_data.left())));
            m_data.skip(step);
            size -= step;
        }
    }
    void setFailed() { m_ok = false; }

private:
    RecordStream m_stream;
    Bytes m_data;
    bool m_isLast = false;
    bool m_ok = true;
};
}
