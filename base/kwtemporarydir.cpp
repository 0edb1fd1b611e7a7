#include "kwtemporarydir.h"
#include "kwfilepathmanager.h"
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <sys/stat.h>

namespace {

// Makes a new folder that only its owner can enter; false when something stands there already.
bool makePrivateFolder(const QString &path)
{
    return ::mkdir(QFile::encodeName(path).constData(), S_IRWXU) == 0;
}
}

KWTemporaryDir::KWTemporaryDir()
{
    const QString path = KWFilePathManager::templatePathName();
    if (makePrivateFolder(path)) {
        m_path = path;
        return;
    }
    // The usual place is full, missing or read-only: the configuration folder belongs to the user in any
    // case.
    const QString second =
        KWFilePathManager::configDir(QStringLiteral("temp")) + QLatin1Char('/') + QFileInfo(path).fileName();
    if (makePrivateFolder(second))
        m_path = second;
}

KWTemporaryDir::~KWTemporaryDir()
{
    remove();
}

bool KWTemporaryDir::remove()
{
    if (m_path.isEmpty())
        return true;
    if (!QDir(m_path).removeRecursively())
        return false;
    m_path.clear();
    return true;
}
