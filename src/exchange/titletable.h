#pragma once
#include "engine/record/codes.h"
#include "exchange/exceltitles.h"
#include "kwgantt_export.h"
#include <QString>
#include <QStringList>

// Which field the title of a column stands for.
//
// The exact titles of the program come first. A person may type others: in English, German or Chinese, in any
// case, with blanks and signs between the words.
namespace titletable {

// Fields of the task sheet besides the column types, and of the assignment sheet besides its keys.
enum TaskField { OutlineCode = 100, MilestoneFlag, Ignored };
enum AssignmentField { TaskId = 100, IgnoredAssignment };

struct Known
{
    int field = -1; // a column type, a key of a resource or an assignment, or one of those above; -1: unknown
    unsigned int bareUnit = duration::Day; // of a length without a unit
    bool isPercent = false;                // a number without a sign is a percentage
};

// `isExact` finds the program's own titles alone, letter for letter.
KWGANTT_EXPORT Known find(exceltitles::Sheet sheet, const QString &title, bool isExact);
// The known title that is most like it; empty when none is.
QString nearest(exceltitles::Sheet sheet, const QString &title, bool isExact);
// What a person may call the columns: a text for each field, its words joined by blanks, the English ones
// first.
KWGANTT_EXPORT QStringList words(exceltitles::Sheet sheet);
}
