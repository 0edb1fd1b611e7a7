#pragma once
#include <QDateTime>
#include <QString>
#include <QVector>
#include <memory>

class KWDocument;
class QLockFile;

// Copies of plans that were open when a program ended without closing them.
//
// Beside each copy that KWDocument::saveBackup writes lie its origin (NAME.json) and a lock that only a
// program that is alive holds (NAME.lock).
namespace recovery {

// A file as it was last seen, to know when another program has written it.
struct FileState
{
    QDateTime changed; // invalid: there was none
    qint64 bytes = -1;

    static FileState of(const QString &path);
    // Whether the file is there and no longer as it was seen; never without a path.
    bool wasWrittenSince(const QString &path) const;
};

struct Copy
{
    QString file;     // the package
    QString original; // the plan's own file; empty: it was never saved
    QString name;     // of the plan, for people
    QDateTime when;
    FileState seen; // the plan's own file as it was opened or saved
};

// Those that no running program owns, newest first. What was taken care of or cannot be read is not among
// them.
QVector<Copy> abandoned();
// A copy of the document as it stands; nothing happens while it is not modified. False when it cannot be
// written.
bool keep(KWDocument &document, const QString &original, const FileState &seen);
void discard(const Copy &copy);

// Holds the lock of a document's copy, and takes the copy away when the document is left in good order.
class Owner
{
public:
    Owner();
    ~Owner();
    Owner(const Owner &) = delete;
    Owner &operator=(const Owner &) = delete;
    // Of the copy that the document writes from now on; that of another name goes.
    void own(const KWDocument &document);
    void release();

private:
    std::unique_ptr<QLockFile> m_lock;
    QString m_name;
};
}
