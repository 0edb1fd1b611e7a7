#pragma once
#include "plan.h"
#include <QByteArray>

// A CSV plan written back into its own text: separator, line ends, the mark at the beginning, all other
// columns and every cell that still holds stay as they were written.
namespace csvrewrite {

// With the dates as scheduling left them. `plan` was loaded to be written in place.
QByteArray withDates(const Plan &plan);
// Of tasks that the file gives no start: scheduling places them, so that an empty cell may go on meaning the
// date that an edit led to.
enum class MissingStarts {
    StayEmpty, // but those that the edit itself set
    AreWritten
};
// With what edits changed. `before` is the file as it was, `after` was loaded to be written in place and
// edited.
QByteArray withEdits(const Plan &before, const Plan &after, MissingStarts missing);
}
