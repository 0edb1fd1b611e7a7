#pragma once
#include "exchange/biff/bytes.h"
#include "exchange/biff/records.h"
#include "exchange/biff/recordstream.h"
#include "exchange/biff/strings.h"
#include <algorithm>
#include <array>
#include <vector>

// What all records have in common, and how a list of fields becomes bytes and back.
namespace YExcel {

// Fields in the order of a record's data. Calling it with fields reads them; lists take what is left.
class FieldReader
{
public:
    explicit FieldReader(biff::Bytes &from)
        : m_from(from)
    {
    }
    template <class... Fields>
    void operator()(Fields &...fields)
    {
        (one(fields), ...);
    }
    // Items that fill the data but for some bytes at its end.
    template <class Item>
    void list(std::vector<Item> &items, size_t bytesBehind = 0)
    {
        items.clear();
        const size_t size = m_from.left() > bytesBehind ? m_from.left() - bytesBehind : 0;
        items.resize(size / itemBytes(Item()));
        for (Item &item : items)
            one(item);
        m_from.skip(size % itemBytes(Item()));
    }

private:
    template <class Field>
    void one(Field &field)
    {
        if constexpr (std::is_same<Field, double>::value)
            field = m_from.real();
        else if constexpr (std::is_integral<Field>::value)
            field = m_from.read<Field>();
        else
            Field::fields(field, *this);
    }
    template <size_t size>
    void one(std::array<quint8, size> &bytes)
    {
        if (const uchar *from = m_from.take(size))
            std::copy_n(from, size, bytes.begin());
        else
            bytes.fill(0);
    }
    void one(SmallString &string) { string.Read(m_from); }
    template <class Item>
    static constexpr size_t itemBytes(const Item &)
    {
        if constexpr (std::is_integral<Item>::value)
            return sizeof(Item);
        else
            return Item::sizeBytes;
    }

    biff::Bytes &m_from;
};

class FieldWriter
{
public:
    explicit FieldWriter(biff::Sink &to)
        : m_to(to)
    {
    }
    template <class... Fields>
    void operator()(const Fields &...fields)
    {
        (one(fields), ...);
    }
    template <class Item>
    void list(const std::vector<Item> &items, size_t = 0)
    {
        for (const Item &item : items)
            one(item);
    }

private:
    template <class Field>
    void one(const Field &field)
    {
        if constexpr (std::is_same<Field, double>::value)
            m_to.real(field);
        else if constexpr (std::is_integral<Field>::value)
            m_to.write(field);
        else
            Field::fields(field, *this);
    }
    template <size_t size>
    void one(const std::array<quint8, size> &bytes)
    {
        m_to.raw(bytes.data(), size);
    }
    void one(const SmallString &string) { string.Write(m_to); }

    biff::Sink &m_to;
};

// One record. Data that may be longer than biff::recordDataLimit goes on in Continue records.
class Record
{
public:
    virtual ~Record() = default;
    virtual quint16 Code() const = 0;
    // The record that `from` stands on. False when its data is shorter than such a record can be; what lies
    // behind its fields is ignored.
    virtual bool Read(const biff::RecordStream &from) = 0;
    // Header and data.
    virtual void Write(biff::Sink &to) const = 0;
    // What Write() puts behind the header.
    QByteArray Data() const
    {
        biff::Sink bytes;
        Write(bytes);
        return bytes.takeBytes().mid(headerBytes);
    }
    int DataSize() const { return Data().size(); }
    int RecordSize() const { return headerBytes + DataSize(); }

    static constexpr int headerBytes = 4;
};

// A record whose class lists its data in `fields(self, io)`, once for reading and writing.
template <class Derived, quint16 recordCode>
class RecordOf : public Record
{
public:
    static constexpr quint16 code = recordCode;
    static constexpr size_t smallestBytes = biff::kindOf(recordCode).smallestBytes;

    quint16 Code() const final { return code; }
    bool Read(const biff::RecordStream &from) final
    {
        biff::Bytes data = from.data();
        if (data.left() < smallestBytes)
            return false;
        FieldReader reader(data);
        Derived::fields(static_cast<Derived &>(*this), reader);
        return data.ok();
    }
    void Write(biff::Sink &to) const final
    {
        to.u16(code);
        const quint32 sizeAt = to.size();
        to.u16(0);
        FieldWriter writer(to);
        Derived::fields(static_cast<const Derived &>(*this), writer);
        to.patch(sizeAt, quint16(to.size() - sizeAt - 2));
    }
};

// Begins a workbook, or a sheet in it.
struct BOF final : RecordOf<BOF, biff::code::bof>
{
    enum Version : quint16 { Biff8 = 0x0600 };
    enum Type : quint16 { Globals = 0x0005, Sheet = 0x0010 };

    quint16 version = Biff8;
    quint16 type = Globals;
    quint16 build = 0x19A0;
    quint16 year = 0x07CD;
    quint32 history = 0xC0C9;
    quint32 lowestVersion = 0x0306;

    // Only version and type are always there; what is missing reads as 0.
    template <class Self, class Io>
    static void fields(Self &self, Io &io)
    {
        io(self.version, self.type);
        if constexpr (std::is_same<Io, FieldWriter>::value)
            io(self.build, self.year, self.history, self.lowestVersion);
    }
};

struct YEOF final : RecordOf<YEOF, biff::code::eof>
{
    template <class Self, class Io>
    static void fields(Self &, Io &)
    {
    }
};
}
