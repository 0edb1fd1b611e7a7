#pragma once
#include <QString>

namespace kwzip {

// Whether the central directory of an archive that libzip has opened holds a name with a NUL in it. libzip
// reads such a name with a blank in the NUL's place, so the names it gives do not tell.
bool hasNulInName(const QString &archive);
}
