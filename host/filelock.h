#pragma once
#include <QByteArray>
#include <QString>
#include <sys/stat.h>

// Keeps other writers of the program away from a file while it is read, changed and written.
//
// The lock is an advisory one of the system on the file itself, so that nothing stays behind when the process
// dies. Writing replaces the file; whoever waited for the old one takes a lock on the new one. Where a file
// system knows no locks, or another program writes, isUnchanged() still tells.
class FileLock
{
public:
    FileLock() = default;
    ~FileLock();
    FileLock(const FileLock &) = delete;
    FileLock &operator=(const FileLock &) = delete;

    // Waits for other writers, at most so long. False when one is still at work then. A file that cannot be
    // opened or locked counts as locked: reading will tell.
    bool take(const QString &path, int mostMsecs);
    // Whether the file is the one that was locked, of the same size and time. True without a lock.
    bool isUnchanged() const;

private:
    QByteArray m_path;
    int m_file = -1;
    struct stat m_seen = {};
};
