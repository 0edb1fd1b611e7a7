#pragma once
#include "plan.h"

class Console;
class Findings;

// Plans as project XML (MSPDI), as other planners exchange them.
namespace projectfile {

enum Kind { None, Project, OtherXml };
// What the file's root element says, whatever its name.
Kind kindOf(const QString &path);
// Reads the plan with its working time; "-" is standard input. What could not be taken as it stands is added
// to `findings`. Console::Done, or the exit code; then the reason has been told.
int load(const QString &path, Console &console, Plan &plan, Findings &findings);
// To a file, or to standard output without one. Console::Done, or the exit code; the reason has been told
// then, and so is what the format has no room for.
int save(Console &console, Plan &plan, const QString &path);
}
