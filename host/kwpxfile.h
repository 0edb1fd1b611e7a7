#pragma once
#include "plan.h"

class Console;

// Plans in the library's own document packages.
namespace kwpxfile {

// Whether the file begins as a package does.
bool isPackage(const QString &path);
// Whether an option names a calendar or resources, which a file that brings its own cannot go with; the
// reason has been told then.
bool refusesCalendar(Console &console, const QString &path);
// Reads the document and describes its tasks as rows, but does not number them. Console::Done, or the exit
// code; then the reason has been told.
int load(const QString &path, Console &console, Plan &plan, Findings &findings);
// What the plan holds beside its document, made anew from the document.
void describe(Plan &plan);
// The plan's document as a package. False when it cannot be written; the reason has been told then.
bool save(Console &console, Plan &plan, const QString &path, bool overwrite);
}
