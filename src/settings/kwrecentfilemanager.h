#pragma once
#include "kwgantt_export.h"
#include <QString>
#include <QStringList>

// The files a user opened or saved last, and the folders they lie in, newest first and each only once.
class KWGANTT_EXPORT KWRecentFileManager
{
public:
    // As many files, and as many folders, as the setting "RecentFileNum" says.
    explicit KWRecentFileManager(int maxCount = 10);

    int maxCount() const { return m_maxCount; }
    void setMaxCount(int count);                               // drops what is too much; below 0 counts as 0
    const QStringList &recentFiles() const { return m_files; } // absolute paths
    const QStringList &recentFolders() const { return m_folders; }
    void addFile(const QString &path);    // and its folder; an empty path is ignored
    void removeFile(const QString &path); // one that is gone; its folder stays
    void clear();

    // Reads or writes "RecentFiles.xml" of a folder; an empty folder means the configuration folder. False
    // leaves the lists, or the file, as they were.
    bool load(const QString &folder = QString());
    bool save(const QString &folder = QString()) const;

private:
    int m_maxCount;
    QStringList m_files;
    QStringList m_folders;
};
