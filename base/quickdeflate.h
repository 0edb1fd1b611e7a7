#pragma once
#include <QByteArray>
#include <QtGlobal>
#include <optional>

// Packing and unpacking whole entries at once, in half the time that doing it piece by piece takes. Built
// without the library that does it, nothing is packed or unpacked here, and whoever asks does it the other
// way.
namespace kwzip {

// Larger entries are packed and unpacked piece by piece. Of what is packed only the packed bytes are held in
// memory, and of these no more than the other limit: packing is at work beside the document.
constexpr qint64 maxPackedAtOnce = 128LL << 20;
constexpr qint64 maxPackedBytesHeld = 16LL << 20;
constexpr qint64 maxUnpackedAtOnce = 128LL << 20;

struct Packed
{
    QByteArray bytes;
    qint64 unpackedBytes = 0;
    quint32 crc = 0;
};

// Nothing where it cannot be done.
std::optional<Packed> packWhole(const QByteArray &bytes);
// Exactly so many bytes with that sum; nothing where they are not, or it cannot be done.
std::optional<QByteArray> unpackWhole(const QByteArray &packed, qint64 bytes, quint32 crc);
}
