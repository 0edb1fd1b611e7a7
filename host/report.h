#pragma once
#include "columns.h"
#include "options.h"
#include "plan.h"
#include "shown.h"
#include "style.h"
#include <QString>

// What a plan looks like in a terminal.
namespace report {

// Title lines, table with bars, legend; as wide as `width` columns. False with a sentence in `error` when the
// options name an unknown column or range.
bool table(const Plan &plan, const Options &options, const Style &style, int width, QString &text,
           QString &error);

// "Pump replacement   7 tasks   Mon 5 Jan - Wed 21 Jan 2026   critical path 11.5 d" and the line about the
// calendar.
QString title(const Plan &plan, const shown::Times &times, const Style &style);

// What schedule() moved and because of what, and a sentence that sums it up.
QString moves(const Plan &plan, const Style &style);
QString movesSummary(const Plan &plan, const Style &style);
}
