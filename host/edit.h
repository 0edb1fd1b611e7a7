#pragma once
#include "editline.h"
#include "plan.h"
#include <QStringList>

class KWTaskInfo;

// One edit at work: the plan, and what its line names.
struct Edit
{
    Plan &plan;
    KWDocument &document;
    QVector<quint32> tasks; // IDs of the TASK arguments
    QStringList words;      // what follows them
    options::Fault &fault;

    KWTaskInfo *task(int index = 0) const { return document.getTaskInfoByID(tasks.value(index)); }
    bool refuse(const QString &what, const QString &hint = QString())
    {
        fault = {what, hint};
        return false;
    }
};

// The verbs of the language of edits. `editverbs.cpp` holds the table with their arguments and what they do.
namespace editverbs {

// How the verbs are written and what they do, for people.
QString helpText();
// The verbs with their arguments, as the help lists them.
struct VerbInfo
{
    QString name; // "resource add"
    QString arguments;
};
QVector<VerbInfo> all();
// Does one edit and records it, so that it can be undone. False with a fault; the plan may be half changed
// then.
bool run(Plan &plan, const QStringList &words, options::Fault &fault);
// Names of the edits for the library's undo, by their codes.
void fillUndoNames();

// ---- The parts of a verb
// ------------------------------------------------------------------------------------ Values of a task
// (editfields.cpp).
const QStringList &taskFields();
QString taskFieldsHelp();
bool setTaskFields(Edit &edit, KWTaskInfo &task, const editline::Pairs &values);
// After a task's dates or length changed: its cost, what follows it, what holds it.
void datesChanged(KWDocument &document, KWTaskInfo &task);
// Moves the task behind the ends of its predecessors, and what follows.
void pushBehindPredecessors(KWDocument &document, const KWTaskInfo &task);

// Resource sheet and assignments (editresources.cpp).
bool addResource(Edit &edit);
bool setResource(Edit &edit);
bool removeResource(Edit &edit);
bool renameResource(Edit &edit);
bool assign(Edit &edit);
bool unassign(Edit &edit);

// Calendar, options and columns (editoptions.cpp).
bool setDays(Edit &edit);
bool setHours(Edit &edit);
bool addHoliday(Edit &edit);
bool addWorkday(Edit &edit);
bool removeException(Edit &edit);
bool setOptions(Edit &edit);
QString optionsHelp();
bool setColumn(Edit &edit);
}
