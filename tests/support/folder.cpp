#include "support/folder.h"
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

bool folder::put(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).absolutePath()) && file.open(QIODevice::WriteOnly) &&
           file.write(bytes) == bytes.size() && file.flush();
}

QByteArray folder::get(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

std::string folder::tree(const QString &path)
{
    QStringList lines;
    QDirIterator entries(path, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString entry = entries.next();
        const QString name = entry.mid(path.size() + 1);
        if (entries.fileInfo().isDir())
            lines.append(name + QLatin1Char('/'));
        else if (entries.fileInfo().isFile())
            lines.append(name + QLatin1Char('=') + QString::fromUtf8(get(entry)));
        else
            lines.append(name + QLatin1Char('!'));
    }
    lines.sort();
    return lines.join(QLatin1Char(' ')).toStdString();
}
