#pragma once
#include <QByteArray>
#include <QString>
#include <functional>

class QIODevice;

// Replaces a file as one step: after any failure or crash the old file is still there, whole. `error` tells
// why, without the path. The base library is built from this file too, so it knows nothing but Qt.
namespace atomicfile {

// The file a path really names: the end of a chain of links. What is written must stand beside that one.
QString realPath(const QString &path);
// `write` fills the device and returns false to give up. The text is flushed, synced, and renamed into place.
bool replace(const QString &path, const std::function<bool(QIODevice &)> &write, QString *error = nullptr);
bool replace(const QString &path, const QByteArray &bytes, QString *error = nullptr);
// Moves a finished file from the folder of realPath(path) into place, synced like the above. After a failure
// the finished file is where it was, for the caller to remove.
bool replaceWith(const QString &path, const QString &finishedFile, QString *error = nullptr);
}
