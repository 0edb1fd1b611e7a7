#pragma once
#include "kwbase_export.h"
#include <QString>

// Packs a folder into a zip archive and unpacks it again.
class KWBASE_EXPORT KWZip
{
public:
    // Packs every file below `folder`, dot files included, into `archive`. The archive is written beside its
    // place and moved there when it is whole; false leaves an archive that stood there as it was.
    static bool zip(const QString &archive, const QString &folder);
    // Unpacks into an existing folder. Refuses the whole archive, before anything is written, when an entry
    // would leave the folder, is no plain file or folder, stands there twice, or goes past a limit of
    // kwlimits.h.
    static bool unZip(const QString &archive, const QString &folder);
    // What the last call that returned false found wrong; empty after a success.
    static QString lastError();
};
