#pragma once
#include "plan.h"

class Console;
class Findings;

// Plans in spreadsheet workbooks: tasks, resources and assignments on a sheet each.
namespace workbookfile {

enum Kind { None, Xlsx, Xls };
// What the file's first bytes say.
Kind kindOf(const QString &path);
// Replaces the document's tasks, resources and assignments; its working time must stand already. What could
// not be read is added to `findings`. Console::Done, or the exit code; then the reason has been told.
int load(const QString &path, Console &console, Plan &plan, const ProjectStart &start, Findings &findings);
// False when the workbook cannot be written; the reason has been told then, and so is what a workbook has no
// room for.
bool save(Console &console, Plan &plan, const QString &path, Kind kind);
}
