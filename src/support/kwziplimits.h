#pragma once
#include <QtGlobal>

// How much an archive may hold; a file that unpacks to more is an attack or no document of ours.
namespace kwzip {

constexpr qint64 maxEntries = 10000;
constexpr qint64 maxEntryBytes = 256LL << 20;   // one entry, unpacked
constexpr qint64 maxArchiveBytes = 512LL << 20; // all entries, unpacked
// Unpacked bytes for each packed byte, asked for once more than this many bytes are out: short texts of
// blanks and repeated rows legitimately reach higher ratios.
constexpr qint64 maxRatio = 400;
constexpr qint64 ratioFreeBytes = 8LL << 20;
}
