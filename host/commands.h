#pragma once
#include "console.h"
#include "plan.h"
#include "style.h"

class Findings;

// What the commands share, and those that stand in files of their own. Each returns the exit code.
namespace commands {

Style styleOf(const Console &console);
Plan::Progress progressOf(Console &console);
// Data to the output; `code` when it could be written.
int written(Console &console, const QByteArray &data, int code = Console::Done);
// The findings, unless the user wants quiet.
void tell(Console &console, const Plan &plan, const Findings &findings);
// What edits had to take away, the first of it line by line.
void tellLost(Console &console, const Plan &plan, const QStringList &lost);
// Dates that the file does not give come from the links.
void scheduleMissing(Console &console, Plan &plan);
// Loads the plan and tells what was found. Not 0: an exit code, and the reason has been told.
int loadPlan(Console &console, const QString &file, Plan &plan, Findings *findings = nullptr);
// In the format that was asked for.
int writePlan(Console &console, Plan &plan);
// The same, and where a CSV file is asked for also what stands beside it.
int writeWithSides(Console &console, Plan &plan);
// Keeps other writers away from a file that is going to be written in place, before it is read. Not 0: the
// exit code.
int lockForWriting(Console &console, const QString &file, Plan &plan);
// Whether the file may be written over: nothing of it was lost in loading, or the user insists; and the copy
// of it is made that the user asked for. Not 0: the exit code.
int mayReplace(Console &console, const Plan &plan, const Findings &findings);
// Loads a plan that is going to be changed in its document: dates stand, and its chart is its own.
int loadForChange(Console &console, const QString &file, Plan &plan);
// Where the changed plan goes: into its file, another one, or to standard output. `summary` goes to standard
// error when the plan was written.
int writeChanged(Console &console, Plan &plan, const QString &summary);

int load(Console &console); // and check
int edit(Console &console);
int newPlan(Console &console);
int compare(Console &console);
int keepBaseline(Console &console);
int recover(Console &console);
int copyBranch(Console &console);
int completion(Console &console);
int render(Console &console); // with KW_WITH_EXPORT
}
