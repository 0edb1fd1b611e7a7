#pragma once
#include "columns.h"
#include "console.h"
#include "options.h"
#include "plan.h"
#include "shown.h"
#include "style.h"
#include <QString>

// What a plan looks like in a terminal.
namespace report {

// Title lines, table with bars, legend, to where the console's options say. The exit code: the options may
// name an unknown column or range.
int writeTable(Console &console, const Plan &plan, const Style &style);

// "Pump replacement   7 tasks   Mon 5 Jan - Wed 21 Jan 2026   length 11.5 d, all of it critical", the line
// about the calendar, and why the critical path begins late.
QString title(const Plan &plan, const shown::Times &times, const Style &style, int width);

// What schedule() or edits moved and because of what, and a line that sums it up.
QString moves(const Plan &plan, const Style &style);
QString movesSummary(const Plan &plan, const Style &style);
QString editMovesSummary(const Plan &plan, const Style &style);
}
