#include "settings/kwrecentfilemanager.h"
#include "kwfilepathmanager.h"
#include "support/atomicfile.h"
#include "support/xmlsink.h"
#include "support/xmltree.h"
#include <QDir>
#include <QFileInfo>

namespace {

constexpr qint64 maxFileBytes = 1 << 20;
constexpr int maxPathLength = 4096;
constexpr char fileTag[] = "File";
constexpr char folderTag[] = "Folder";

QString pathIn(const QString &folder)
{
    const QString fileName = QStringLiteral("RecentFiles.xml");
    return folder.isEmpty() ? KWFilePathManager::configPath(fileName) : folder + QLatin1Char('/') + fileName;
}

void cut(QStringList &list, int count)
{
    if (list.size() > count)
        list.erase(list.begin() + count, list.end());
}

void addFirst(QStringList &list, const QString &path, int maxCount)
{
    list.removeAll(path);
    list.prepend(path);
    cut(list, maxCount);
}

void addLast(QStringList &list, const QString &path, int maxCount)
{
    if (!path.isEmpty() && path.size() <= maxPathLength && list.size() < maxCount && !list.contains(path))
        list.append(path);
}

void writeList(StreamSink &sink, const char *tag, const QStringList &list)
{
    for (const QString &path : list) {
        sink.open(tag);
        sink.attribute("V", path);
        sink.close();
    }
}
}

KWRecentFileManager::KWRecentFileManager(int maxCount)
    : m_maxCount(qMax(0, maxCount))
{
}

void KWRecentFileManager::setMaxCount(int count)
{
    m_maxCount = qMax(0, count);
    cut(m_files, m_maxCount);
    cut(m_folders, m_maxCount);
}

void KWRecentFileManager::addFile(const QString &path)
{
    if (path.isEmpty())
        return;
    const QFileInfo file(QDir::cleanPath(path));
    addFirst(m_files, file.absoluteFilePath(), m_maxCount);
    addFirst(m_folders, file.absolutePath(), m_maxCount);
}

void KWRecentFileManager::removeFile(const QString &path)
{
    m_files.removeAll(QFileInfo(QDir::cleanPath(path)).absoluteFilePath());
}

void KWRecentFileManager::clear()
{
    m_files.clear();
    m_folders.clear();
}

bool KWRecentFileManager::load(const QString &folder)
{
    XmlTree tree;
    if (!tree.load(pathIn(folder), maxFileBytes) || !tree.root().is("RecentFiles"))
        return false;
    clear();
    for (TreeSource entry = tree.root().firstChild(); !entry.isNull(); entry = entry.nextSibling()) {
        if (entry.is(fileTag))
            addLast(m_files, entry.text("V").toString(), m_maxCount);
        else if (entry.is(folderTag))
            addLast(m_folders, entry.text("V").toString(), m_maxCount);
    }
    return true;
}

bool KWRecentFileManager::save(const QString &folder) const
{
    return atomicfile::replace(pathIn(folder), [this](QIODevice &device) {
        StreamSink sink(device);
        sink.open("RecentFiles");
        writeList(sink, fileTag, m_files);
        writeList(sink, folderTag, m_folders);
        sink.close();
        return sink.finish();
    });
}
