#include "filelock.h"
#include <QElapsedTimer>
#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

constexpr useconds_t pauseUsecs = 20000;

bool isSame(const struct stat &a, const struct stat &b)
{
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino && a.st_size == b.st_size &&
           a.st_mtim.tv_sec == b.st_mtim.tv_sec && a.st_mtim.tv_nsec == b.st_mtim.tv_nsec;
}
}

FileLock::~FileLock()
{
    if (m_file >= 0)
        close(m_file);
}

bool FileLock::take(const QString &path, int mostMsecs)
{
    m_path = QFile::encodeName(path);
    QElapsedTimer waited;
    waited.start();
    for (;;) {
        m_file = open(m_path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
        if (m_file < 0)
            return true;
        while (flock(m_file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
            if (waited.elapsed() > mostMsecs)
                return false;
            usleep(pauseUsecs);
        }
        // Whoever held it has replaced the file, perhaps.
        struct stat now = {};
        if (fstat(m_file, &m_seen) == 0 && stat(m_path.constData(), &now) == 0 && isSame(m_seen, now))
            return true;
        close(m_file);
        m_file = -1;
        if (waited.elapsed() > mostMsecs)
            return false;
    }
}

bool FileLock::isUnchanged() const
{
    struct stat now = {};
    return m_file < 0 || (stat(m_path.constData(), &now) == 0 && isSame(m_seen, now));
}
