#include "documents/recovery.h"
#include "kwfilepathmanager.h"
#include "model/kwdocument.h"
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLockFile>
#include <QSaveFile>
#include <algorithm>

namespace recovery {

namespace {

const QString changedKey = QStringLiteral("changed"), bytesKey = QStringLiteral("bytes");

QString folder()
{
    return KWFilePathManager::configDir(QStringLiteral("autosave"));
}

QString fileOf(const QString &name, const char *suffix)
{
    return folder() + QLatin1Char('/') + name + QLatin1String(suffix);
}

void remove(const QString &name)
{
    for (const char *suffix : {".kwpx", ".json"})
        QFile::remove(fileOf(name, suffix));
}
}

FileState FileState::of(const QString &path)
{
    const QFileInfo info(path);
    return path.isEmpty() || !info.exists() ? FileState() : FileState{info.lastModified(), info.size()};
}

bool FileState::wasWrittenSince(const QString &path) const
{
    const FileState now = of(path);
    return now.changed.isValid() && (now.changed != changed || now.bytes != bytes);
}

Owner::Owner() = default;

Owner::~Owner()
{
    release();
}

void Owner::own(const KWDocument &document)
{
    if (m_lock && document.backupName() == m_name)
        return;
    release();
    m_name = document.backupName();
    m_lock = std::make_unique<QLockFile>(fileOf(m_name, ".lock"));
    m_lock->setStaleLockTime(0); // only a dead owner makes it stale, however long a living one works
    m_lock->tryLock(0);
}

void Owner::release()
{
    if (!m_lock)
        return;
    remove(m_name);
    m_lock.reset();
}

bool keep(KWDocument &document, const QString &original, const FileState &seen)
{
    if (!document.isModified())
        return true;
    if (!document.saveBackup())
        return false;
    QSaveFile file(fileOf(document.backupName(), ".json"));
    const QJsonObject origin{{QStringLiteral("original"), original},
                             {QStringLiteral("name"), document.fileName()},
                             {changedKey, seen.changed.toUTC().toString(Qt::ISODateWithMs)},
                             {bytesKey, double(seen.bytes)}};
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(origin).toJson()) > 0 && file.commit();
}

QVector<Copy> abandoned()
{
    QVector<Copy> copies;
    const QDir dir(folder());
    for (const QFileInfo &info : dir.entryInfoList({QStringLiteral("*.kwpx")}, QDir::Files, QDir::Time)) {
        const QString name = info.completeBaseName();
        QLockFile lock(fileOf(name, ".lock"));
        lock.setStaleLockTime(0);
        if (!lock.tryLock(0))
            continue;
        QFile origin(fileOf(name, ".json"));
        QJsonObject object;
        if (origin.open(QIODevice::ReadOnly))
            object = QJsonDocument::fromJson(origin.read(1 << 16)).object();
        const QString own = object.value(QStringLiteral("name")).toString();
        copies.append({info.filePath(),
                       object.value(QStringLiteral("original")).toString(),
                       own.isEmpty() ? name : own,
                       info.lastModified(),
                       {QDateTime::fromString(object.value(changedKey).toString(), Qt::ISODateWithMs),
                        qint64(object.value(bytesKey).toDouble(-1))}});
    }
    return copies;
}

void discard(const Copy &copy)
{
    remove(QFileInfo(copy.file).completeBaseName());
}
}
