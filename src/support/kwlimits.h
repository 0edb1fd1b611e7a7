#pragma once
#include <QtGlobal>

// How much a file or the clipboard may hold that somebody hands us; more is an attack or no document of ours.
// A project of 100,000 tasks with two assignments each has 96 MB of XML and 6 million elements and
// attributes.

namespace kwzip {

constexpr qint64 maxEntries = 10000;
constexpr qint64 maxEntryBytes = 256LL << 20;   // one entry, unpacked
constexpr qint64 maxArchiveBytes = 512LL << 20; // all entries, unpacked
// Unpacked bytes for each packed byte, asked for once more than this many bytes are out: short texts of
// blanks and repeated rows legitimately reach higher ratios.
constexpr qint64 maxRatio = 400;
constexpr qint64 ratioFreeBytes = 8LL << 20;
}

namespace xmlguard {

constexpr int maxDepth = 100;              // of elements in each other
constexpr int maxNodes = 20000000;         // elements, attributes, comments and the like
constexpr qint64 maxDomBytes = 64LL << 20; // where a DOM is made of it, twenty times as large
}

namespace mspdi {

// A project of 100,000 tasks that another planner wrote, with all that it keeps for itself, has 260 MB.
constexpr qint64 maxFileBytes = 768LL << 20;
constexpr std::size_t maxTasks = 1000000;
constexpr std::size_t maxResources = 200000;
constexpr std::size_t maxAssignments = 2000000;
constexpr std::size_t maxCalendars = 200000; // a resource may have one of its own
constexpr int maxLinks = 2000000;
constexpr int maxExceptions = 1000000; // days and exceptions of all calendars together
}

namespace clipboardxml {

constexpr qint64 maxBytes = kwzip::maxEntryBytes;
constexpr int maxTasks = 1000000;
}

namespace pasted {

// Behind the name of a pasted task, to make it different. A thousand tasks of one name would have names of a
// thousand digits, and a million would not fit into memory: from there on a number takes the place of the
// ones.
constexpr int maxOnes = 1000;
}
