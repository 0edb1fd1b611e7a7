#pragma once
#include "axis.h"
#include "plan.h"
#include "shown.h"
#include "style.h"

// The bars of a plan in terminal columns.
namespace bars {

// A task's bar under an axis, with colours, behind what the text holds.
void add(QString &text, const Plan &plan, const shown::Times &times, const axis::Axis &axis, int pos,
         const Style &style);
}
