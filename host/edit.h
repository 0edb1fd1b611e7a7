#pragma once
#include "editline.h"
#include "edits/planedits.h"
#include "plan.h"
#include <QStringList>

class KWTaskInfo;

namespace editverbs {

// What edits had to take away, in words, and what they moved.
struct Outcome
{
    QStringList lost;
    MoveWatch *watch = nullptr; // may be missing
};
}

// One edit at work: the plan, and what its line names.
struct Edit
{
    Plan &plan;
    KWDocument &document;
    PlanEdits &edits;
    QVector<quint32> tasks; // IDs of the TASK arguments
    QStringList words;      // what follows them
    options::Fault &fault;
    editverbs::Outcome &outcome;

    KWTaskInfo *task(int index = 0) const { return document.getTaskInfoByID(tasks.value(index)); }
    bool refuse(const QString &what, const QString &hint = QString())
    {
        fault = {what, hint};
        return false;
    }
    // What the library answered: whether it was done, with its reason or with what was lost.
    bool take(const EditAnswer &answer);
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
// Does one edit and records it, so that it can be undone; what became of it is added to the outcome. False
// with a fault; the plan is as it was then.
bool run(Plan &plan, const QStringList &words, options::Fault &fault, Outcome &outcome);

// Something that an edit had to take away.
QString lossText(const KWDocument &document, const EditLoss &loss);

// ---- The parts of a verb ------------------------------------------------------------------------------

// Values of a task (editfields.cpp).
const QStringList &taskFields();
QString taskFieldsHelp();
// The values that the pairs give to a task whose length counts in `unit` where none is written.
bool readTaskFields(Edit &edit, const editline::Pairs &pairs, quint32 unit, TaskValues &values);

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
