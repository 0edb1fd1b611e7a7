#pragma once
#include "exchange/mspdi/records.h"

// Reads the text of a project XML file into records.
//
// Elements are told by their local names, may stand in any order, and what is not known is skipped whole. Of
// a value that is said twice the first counts.
namespace mspdi {

// Whether a file that begins with these bytes is one of the format: its root is a project, in the format's
// namespace or in none.
bool isProject(const QByteArray &beginning);
constexpr qint64 beginningBytes = 64 << 10; // enough for that

// False with a reason in `error` for what is no such file, no sound XML, or larger than the limits.
bool readFile(const QByteArray &bytes, File &file, QString &error);
}
