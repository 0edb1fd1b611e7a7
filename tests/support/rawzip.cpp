#include "support/rawzip.h"
#include <QVector>

namespace {

quint32 crc32(const QByteArray &bytes)
{
    quint32 crc = 0xffffffffu;
    for (const char c : bytes) {
        crc ^= uchar(c);
        for (int bit = 0; bit < 8; ++bit)
            crc = crc & 1 ? crc >> 1 ^ 0xedb88320u : crc >> 1;
    }
    return ~crc;
}

// Qt packs with four bytes of length, two of header and four of checksum around the bare stream.
QByteArray deflated(const QByteArray &bytes)
{
    return qCompress(bytes, 9).mid(6).chopped(4);
}

class Bytes : public QByteArray
{
public:
    Bytes &u16(quint32 value) { return number(value, 2); }
    Bytes &u32(quint32 value) { return number(value, 4); }

private:
    Bytes &number(quint32 value, int bytes)
    {
        for (; bytes > 0; --bytes, value >>= 8)
            append(char(value & 0xff));
        return *this;
    }
};
}

QByteArray rawzip::archive(const QList<Member> &members, const QByteArray &comment)
{
    Bytes out;
    Bytes directory;
    QVector<quint32> offsets;
    QVector<QByteArray> packs;
    for (const Member &member : members) {
        const int shared = member.sharesPackedBytesOf;
        const QByteArray packed = shared >= 0          ? packs[shared]
                                  : member.method == 8 ? deflated(member.content)
                                                       : member.content;
        const quint32 offset = shared >= 0 ? offsets[shared] : quint32(out.size());
        offsets.append(offset);
        packs.append(packed);

        Bytes common; // the fields that both headers hold
        common.u16(20).u16(member.flags).u16(member.method).u16(0).u16(0x21);
        common.u32(crc32(member.content) ^ member.crcMask).u32(quint32(packed.size()));
        common.u32(quint32(member.declaredBytes >= 0 ? member.declaredBytes : member.content.size()));
        common.u16(quint32(member.name.size())).u16(0);
        if (shared < 0) {
            out.u32(0x04034b50).append(common);
            out.append(member.name + packed);
        }
        directory.u32(0x02014b50).u16(3 << 8 | 30).append(common);
        directory.u16(0).u16(0).u16(0).u32(member.mode << 16).u32(offset);
        directory.append(member.name);
    }
    const auto start = quint32(out.size());
    const auto count = quint32(members.size());
    out.append(directory);
    out.u32(0x06054b50).u16(0).u16(0).u16(count).u16(count);
    out.u32(quint32(directory.size())).u32(start).u16(quint32(comment.size())).append(comment);
    return out;
}
