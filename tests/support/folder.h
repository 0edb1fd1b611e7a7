#pragma once
#include <QByteArray>
#include <QString>
#include <string>

// Files and folders of a test, as plain text.
namespace folder {

// Writes a file and makes the folders above it.
bool put(const QString &path, const QByteArray &bytes);
// The content, or "(none)".
QByteArray get(const QString &path);
// Every path below a folder in order, a file with its content, a special file with "!": "a/ a/b=text pipe!".
std::string tree(const QString &path);
}
