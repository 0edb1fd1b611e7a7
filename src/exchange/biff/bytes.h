#pragma once
#include <QByteArray>
#include <QtEndian>
#include <cstring>
#include <type_traits>

// Little-endian bytes: read within their bounds, or appended.
namespace biff {

// Reads through a stretch of memory that must outlive it. What lies past the end reads as 0 and turns ok()
// false for good, so a list of reads needs one check at its end.
class Bytes
{
public:
    Bytes() = default;
    Bytes(const uchar *begin, size_t size)
        : m_at(begin)
        , m_left(size)
    {
    }
    explicit Bytes(const QByteArray &bytes)
        : Bytes(reinterpret_cast<const uchar *>(bytes.constData()), size_t(bytes.size()))
    {
    }

    bool ok() const { return m_ok; }
    size_t left() const { return m_left; }
    const uchar *data() const { return m_at; }

    template <class Number>
    Number read()
    {
        static_assert(std::is_integral<Number>::value, "doubles have real()");
        const uchar *from = take(sizeof(Number));
        return from ? qFromLittleEndian<Number>(from) : Number(0);
    }
    quint8 u8() { return read<quint8>(); }
    quint16 u16() { return read<quint16>(); }
    quint32 u32() { return read<quint32>(); }
    double real()
    {
        const quint64 bits = read<quint64>();
        double number;
        std::memcpy(&number, &bits, sizeof number);
        return number;
    }
    // The next bytes as they lie; null when there are fewer.
    const uchar *take(size_t size)
    {
        if (size > m_left || !m_ok) {
            m_ok = false;
            m_left = 0;
            return nullptr;
        }
        const uchar *from = m_at;
        m_at += size;
        m_left -= size;
        return from;
    }
    void skip(size_t size) { take(size); }

private:
    const uchar *m_at = nullptr;
    size_t m_left = 0;
    bool m_ok = true;
};

// Appends to one growing array. Past its limit it keeps nothing more and turns ok() false for good.
class Sink
{
public:
    static constexpr size_t limitBytes = 0x7F000000; // below what a QByteArray can hold

    bool ok() const { return m_ok; }
    quint32 size() const { return quint32(m_size); }

    template <class Number>
    void write(Number value)
    {
        static_assert(std::is_integral<Number>::value, "doubles have real()");
        if (uchar *to = grow(sizeof(Number)))
            qToLittleEndian(value, to);
    }
    void u8(quint8 value) { write(value); }
    void u16(quint16 value) { write(value); }
    void u32(quint32 value) { write(value); }
    void real(double value)
    {
        quint64 bits;
        std::memcpy(&bits, &value, sizeof bits);
        write(bits);
    }
    void raw(const void *from, size_t size)
    {
        uchar *to = grow(size);
        if (to && size > 0)
            std::memcpy(to, from, size);
    }
    void zeros(size_t size)
    {
        uchar *to = grow(size);
        if (to && size > 0)
            std::memset(to, 0, size);
    }
    // Room for so many bytes at the end, to be filled by the caller before the next call; null past the
    // limit.
    uchar *grow(size_t size)
    {
        if (size > limitBytes - m_size) {
            m_ok = false;
            return nullptr;
        }
        if (m_size + size > size_t(m_bytes.size()))
            m_bytes.resize(int(qMin(limitBytes, qMax(m_size + size, 2 * m_size) + 4096)));
        uchar *to = reinterpret_cast<uchar *>(m_bytes.data()) + m_size;
        m_size += size;
        return to;
    }
    // Writes over what is there already.
    template <class Number>
    void patch(quint32 offset, Number value)
    {
        if (m_ok && offset + sizeof value <= m_size)
            qToLittleEndian(value, reinterpret_cast<uchar *>(m_bytes.data()) + offset);
    }
    // Hands the bytes over and is empty again.
    QByteArray takeBytes()
    {
        m_bytes.truncate(int(m_size));
        m_size = 0;
        return std::move(m_bytes);
    }

private:
    QByteArray m_bytes; // its size is the room, not what was written
    size_t m_size = 0;
    bool m_ok = true;
};
}
