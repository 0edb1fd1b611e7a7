#include "quickdeflate.h"
#ifdef KW_WITH_LIBDEFLATE
#include <libdeflate.h>
#include <memory>

namespace {

struct FreeCompressor
{
    void operator()(libdeflate_compressor *one) const { libdeflate_free_compressor(one); }
};
struct FreeDecompressor
{
    void operator()(libdeflate_decompressor *one) const { libdeflate_free_decompressor(one); }
};

quint32 crcOf(const QByteArray &bytes)
{
    return libdeflate_crc32(0, bytes.constData(), size_t(bytes.size()));
}
}

std::optional<kwzip::Packed> kwzip::packWhole(const QByteArray &bytes)
{
    constexpr int quickest = 1;
    const std::unique_ptr<libdeflate_compressor, FreeCompressor> compressor(
        libdeflate_alloc_compressor(quickest));
    if (!compressor || bytes.isEmpty() || bytes.size() > maxPackedAtOnce)
        return std::nullopt;
    // Pages that nothing is written to take no memory. What does not get smaller is packed the other way,
    // which has an answer to that.
    Packed packed{QByteArray(bytes.size(), Qt::Uninitialized), bytes.size(), crcOf(bytes)};
    const size_t size = libdeflate_deflate_compress(compressor.get(), bytes.constData(), size_t(bytes.size()),
                                                    packed.bytes.data(), size_t(packed.bytes.size()));
    if (size == 0)
        return std::nullopt;
    packed.bytes.truncate(int(size));
    packed.bytes.squeeze();
    return packed;
}

std::optional<QByteArray> kwzip::unpackWhole(const QByteArray &packed, qint64 bytes, quint32 crc)
{
    const std::unique_ptr<libdeflate_decompressor, FreeDecompressor> decompressor(
        libdeflate_alloc_decompressor());
    if (!decompressor || bytes <= 0 || bytes > maxUnpackedAtOnce)
        return std::nullopt;
    QByteArray unpacked(int(bytes), Qt::Uninitialized);
    const libdeflate_result result =
        libdeflate_deflate_decompress(decompressor.get(), packed.constData(), size_t(packed.size()),
                                      unpacked.data(), size_t(unpacked.size()), nullptr);
    if (result != LIBDEFLATE_SUCCESS || crcOf(unpacked) != crc)
        return std::nullopt;
    return unpacked;
}
#else

std::optional<kwzip::Packed> kwzip::packWhole(const QByteArray &)
{
    return std::nullopt;
}

std::optional<QByteArray> kwzip::unpackWhole(const QByteArray &, qint64, quint32)
{
    return std::nullopt;
}
#endif
