#pragma once
#include "edits/editanswer.h"
#include <QString>

class KWTaskInfo;
class Session;

// What is typed into the cells of the table.
namespace cellinput {

// What became of it. A refusal has changed nothing.
struct Outcome
{
    bool isDone = true;
    QString what; // why not
    QString hint;
    QString note; // what was done beside what was typed
    EditAnswer answer;
};

constexpr int nameType = 1;
constexpr int resourcesType = 7;
constexpr int predecessorsType = 24;

// Whether cells of that column type take a text; of a task that is not there yet too.
bool isEditable(int type);
// The text of a cell as enter() takes it back.
QString text(Session &session, const KWTaskInfo &task, int type);
// Makes one step of it; of an ID of 0 a new task at the end. Text that says what the cell says already does
// nothing.
Outcome enter(Session &session, quint32 id, int type, const QString &text);
// Tasks from lines of text, each with cells that are separated by tabs, behind the task of the ID (0: at the
// end). The cells are those of the column types; blanks before the first one say the level.
Outcome enterLines(Session &session, quint32 after, const QString &lines, const QVector<int> &types);
// Of an answer.
Outcome outcomeOf(const EditAnswer &answer);
}
