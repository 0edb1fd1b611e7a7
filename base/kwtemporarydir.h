#pragma once
#include "kwbase_export.h"
#include <QString>

// A folder of its own that is removed with the object; for places where QTemporaryDir cannot make one.
class KWBASE_EXPORT KWTemporaryDir
{
public:
    KWTemporaryDir();
    ~KWTemporaryDir();
    KWTemporaryDir(const KWTemporaryDir &) = delete;
    KWTemporaryDir &operator=(const KWTemporaryDir &) = delete;
    bool isValid() const { return !m_path.isEmpty(); }
    QString path() const { return m_path; } // without a trailing slash; empty when not valid
    bool remove();

private:
    QString m_path;
};
