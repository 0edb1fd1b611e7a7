#include "support/atomicfile.h"
#include "support/said.h"
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool fail(QString *error, const QString &what)
{
    if (error)
        *error = what;
    return false;
}

// What the system says of files, as Qt gives it. Where the system's own catalogues are installed they have
// it. texts: "No such file or directory", "Permission denied", "Operation not permitted", "Not a directory"
// texts: "Is a directory", "File name too long", "Too many open files", "Too many levels of symbolic links"
// texts: "No space left on device", "Disk quota exceeded", "File too large", "Read-only file system"
// texts: "Input/output error", "Device or resource busy", "Unknown error"
QString systemError()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

bool syncPath(const QString &path, int flags)
{
    const int handle = ::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC);
    if (handle < 0)
        return false;
    // Some file systems cannot sync a folder, or anything at all; they have done what they can.
    const bool isSynced = ::fsync(handle) == 0 || errno == EINVAL || errno == ENOTSUP;
    const int fault = errno;
    ::close(handle);
    errno = fault;
    return isSynced;
}

// The rename itself lasts only once the folder is on disk. By then the new file stands in its place, whole:
// that a power cut may still bring the old one back is no failure, which would tell of an old file that is
// not there.
void syncFolderOf(const QString &path)
{
    static_cast<void>(syncPath(QFileInfo(path).absolutePath(), O_RDONLY | O_DIRECTORY));
}

// A rename would put a plain file in the place of a device or a pipe.
bool mayBeReplaced(const QString &path, QString *error)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        return fail(error, KW_TEXT("is no plain file"));
    return true;
}
}

QString atomicfile::realPath(const QString &path)
{
    const QFileInfo info(path);
    return info.isSymLink() && info.exists() ? info.canonicalFilePath() : path;
}

bool atomicfile::replace(const QString &path, const std::function<bool(QIODevice &)> &write, QString *error)
{
    const QString target = realPath(path);
    if (!mayBeReplaced(target, error))
        return false;
    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly))
        return fail(error, file.errorString());
    if (!write(file)) {
        file.cancelWriting();
        return fail(error, file.error() == QFileDevice::NoError ? KW_TEXT("writing was given up")
                                                                : file.errorString());
    }
    // commit() does not look whether its own last flush worked.
    if (!file.flush() || file.error() != QFileDevice::NoError) {
        const QString what = file.errorString();
        file.cancelWriting();
        return fail(error, what);
    }
    if (::fsync(file.handle()) != 0 && errno != EINVAL && errno != ENOTSUP) {
        const QString what = systemError();
        file.cancelWriting();
        return fail(error, what);
    }
    if (!file.commit())
        return fail(error, file.errorString());
    syncFolderOf(target);
    return true;
}

bool atomicfile::replace(const QString &path, const QByteArray &bytes, QString *error)
{
    return replace(
        path, [&bytes](QIODevice &device) { return device.write(bytes) == bytes.size(); }, error);
}

bool atomicfile::replaceWith(const QString &path, const QString &finishedFile, QString *error)
{
    const QString target = realPath(path);
    if (!mayBeReplaced(target, error))
        return false;
    if (!syncPath(finishedFile, O_RDONLY))
        return fail(error, systemError());
    const QByteArray targetName = QFile::encodeName(target);
    const QByteArray finishedName = QFile::encodeName(finishedFile);
    // The new file is as private as the one it takes the place of.
    struct stat old = {};
    if (::stat(targetName.constData(), &old) == 0 &&
        ::chmod(finishedName.constData(), old.st_mode & 07777) != 0)
        return fail(error, systemError());
    if (std::rename(finishedName.constData(), targetName.constData()) != 0)
        return fail(error, systemError());
    syncFolderOf(target);
    return true;
}
