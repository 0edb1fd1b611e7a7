#pragma once
#include <QString>
#include <QStringList>

// Scripts that complete commands, options, their values and the verbs of edits, made from the tables of the
// command line.
namespace completions {

QStringList shells();
// Empty for a shell that there is none for.
QString script(const QString &shell);
}
