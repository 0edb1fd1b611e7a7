#include "zipnulscan.h"
#include <QFile>
#include <QtEndian>

namespace {

constexpr char endMark[] = "PK\5\6";
constexpr char entryMark[] = "PK\1\2";
constexpr int endRecordBytes = 22;
constexpr int entryHeaderBytes = 46;
constexpr int maxCommentBytes = 0xffff;

quint16 u16(const QByteArray &bytes, int at)
{
    return qFromLittleEndian<quint16>(bytes.constData() + at);
}

quint32 u32(const QByteArray &bytes, int at)
{
    return qFromLittleEndian<quint32>(bytes.constData() + at);
}

// The end record is the last mark whose comment ends with the file.
int endRecordAt(const QByteArray &tail)
{
    int at = tail.lastIndexOf(endMark);
    while (at >= 0) {
        if (at + endRecordBytes <= tail.size() && at + endRecordBytes + u16(tail, at + 20) == tail.size())
            return at;
        at = at == 0 ? -1 : tail.lastIndexOf(endMark, at - 1);
    }
    return -1;
}
}

bool kwzip::hasNulInName(const QString &archive)
{
    QFile file(archive);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    file.seek(qMax<qint64>(0, file.size() - endRecordBytes - maxCommentBytes));
    const QByteArray tail = file.readAll();
    const int end = endRecordAt(tail);
    // Sizes beyond these fields mean an archive of more than 4 GiB or 65,534 entries, which is past the
    // limits anyway.
    if (end < 0 || !file.seek(u32(tail, end + 16)))
        return false;
    for (int left = u16(tail, end + 10); left > 0; --left) {
        const QByteArray header = file.read(entryHeaderBytes);
        if (header.size() < entryHeaderBytes || !header.startsWith(entryMark))
            return false;
        if (file.read(u16(header, 28)).contains('\0'))
            return true;
        if (!file.seek(file.pos() + u16(header, 30) + u16(header, 32)))
            return false;
    }
    return false;
}
