#pragma once
#include <QByteArray>
#include <QSet>
#include <QString>

// What an archive may hold, by name and by size; knows nothing of the library that reads it.
namespace kwzip {

struct Entry
{
    QByteArray name;  // UTF-8; a folder's ends in "/"
    qint64 bytes = 0; // unpacked
    qint64 packedBytes = 0;

    bool isFolder() const { return name.endsWith('/'); }
};

// Empty when the name is a plain relative path, else what is wrong with it.
QString nameFault(const QByteArray &name);
// The name as a message may show it: short and without control characters.
QString shownName(const QByteArray &name);

// The entries of one archive, each checked against the limits and against those before it.
class Inventory
{
public:
    // `archiveBytes` is the length of the archive file.
    explicit Inventory(qint64 archiveBytes)
        : m_archiveBytes(archiveBytes)
    {
    }

    // Both return an empty text, or what is wrong. finish() is asked when all entries are in.
    QString add(const Entry &entry);
    QString finish() const;

private:
    bool addFoldersAbove(const QByteArray &path);

    const qint64 m_archiveBytes;
    qint64 m_bytes = 0;
    qint64 m_packedBytes = 0;
    QSet<QByteArray> m_entries; // without the slash of a folder
    QSet<QByteArray> m_files;
    QSet<QByteArray> m_folders; // entries of their own, and those that only a longer name tells of
};
}
