#pragma once
#include "engine/record/taskrecord.h"
#include <variant>

// What each column type of the task table holds: the one place that ties a type to a field of the task.
namespace columntypes {

// How a field is shown.
enum class Kind {
    Whole,
    Text,
    StartDate,  // the moment a day begins with
    FinishDate, // the last moment of a day
    Duration,   // value and unit
    Percent,
    Priority,
    Hyperlinks,
    Money,
    Work, // number and unit
    Flag,
    NumberText, // a number kept as text; an empty one stays empty
    Predecessors
};

// How an imported cell becomes the field; the moments are those a user sees, and a cell that is empty changes
// nothing.
enum class Import {
    None,           // what the field shows follows from others
    Text,           // as it stands
    Whole,          // a whole number
    Number,         // the first number of the text
    NumberText,     // the same, kept as a text
    OwnId,          // unique among the tasks before it
    OwnName,        // unique among the tasks before it
    StartOnWorkday, // moved to a working day
    StartAsShown,   // left on the day it names
    Finish,         // a last moment, moved to a working day
    Duration,       // only the unit: the length follows from start and finish
    Percent,
    Hyperlinks,
    RowTags // of predecessors
};

// None where the text takes more than one field.
using Field = std::variant<std::monostate, quint32 TaskRecord::*, qint32 TaskRecord::*, bool TaskRecord::*,
                           double TaskRecord::*, QString TaskRecord::*, TrackedField<quint32> TaskRecord::*>;

struct ColumnType
{
    const char *meaning; // for messages; what users see are the titles
    Kind kind;
    Field field;
    Import import;
};

// Null for a type that this library does not know.
const ColumnType *find(int type);

// The field as a number; 0 where it is none.
double number(const TaskRecord &task, const Field &field);
quint32 secs(const TaskRecord &task, const Field &field);
QString text(const TaskRecord &task, const Field &field); // empty where it is no text
// What does not fit becomes the nearest value that does; nothing happens where the field is of another kind.
void setNumber(TaskRecord &task, const Field &field, double value);
void setText(TaskRecord &task, const Field &field, const QString &text);
}
