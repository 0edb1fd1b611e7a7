#pragma once
#include "plan.h"

class Console;

// From a file name to a loaded plan.
namespace planfile {

// Reads the plan and its calendar and builds the document. What was found on the way is added to `findings`,
// unless it is told at once because nothing can follow. Console::Done, or the exit code.
int load(const QString &path, Console &console, Plan &plan, Findings &findings);
// The same for those who show no numbers of the outline: where the file has none, the tasks have none.
int loadUnnumbered(const QString &path, Console &console, Plan &plan, Findings &findings);

// All bytes of a file, or of standard input for "-". False with a sentence in `error`.
bool readBytes(const QString &path, qint64 most, QByteArray &bytes, QString &error);

// What a CSV plan cannot hold goes into files beside it, where load() finds them again: NAME.calendar.json,
// NAME.resources.csv, NAME.assignments.csv.
struct Side
{
    QString path;
    QByteArray bytes;
};
std::vector<Side> sidesOf(const Plan &plan, const QString &path);

// Writes an edited CSV plan into its file and what changed beside it; everything else stays as it was
// written. `before` is the file as it stands. Not 0: an exit code, after telling why nothing was written.
int saveRows(Console &console, Plan &before, const Plan &after);
}
