#pragma once
#include <QByteArray>
#include <QList>
#include <sys/stat.h>

// Zip archives written byte by byte, so that a test can make any field lie.
namespace rawzip {

struct Member
{
    QByteArray name;
    QByteArray content;
    quint16 method = 8;
    quint32 mode = S_IFREG | 0644;
    quint16 flags = 0x0800;       // names are UTF-8
    qint64 declaredBytes = -1;    // -1: what it holds
    int sharesPackedBytesOf = -1; // an earlier member
    quint32 crcMask = 0;
};

QByteArray archive(const QList<Member> &members, const QByteArray &comment = QByteArray());
}
