#pragma once
#include "model/kwtaskinfo.h"
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

// None where the text takes more than one field.
using Field = std::variant<std::monostate, quint32 KWTaskInfo::*, qint32 KWTaskInfo::*, bool KWTaskInfo::*,
                           double KWTaskInfo::*, QString KWTaskInfo::*, TrackedField<quint32> KWTaskInfo::*>;

struct ColumnType
{
    const char *meaning; // for messages; what users see are the titles
    Kind kind;
    Field field;
};

constexpr int count = 25;
// Null for a type that this library does not know.
const ColumnType *find(int type);

// The field as a number; 0 where it is none.
double number(const KWTaskInfo &task, const Field &field);
quint32 secs(const KWTaskInfo &task, const Field &field);
QString text(const KWTaskInfo &task, const Field &field); // empty where it is no text
}
