#include "edit.h"
#include "editing/actionmanager.h"
#include "model/kwtaskinfo.h"
#include "support/likeness.h"
#include "taskref.h"
#include "texts.h"
#include <algorithm>

bool Edit::take(const EditAnswer &answer)
{
    if (!answer.isDone())
        return refuse(answer.sentence(), answer.hint());
    for (const EditLoss &loss : answer.losses)
        outcome.lost.append(editverbs::lossText(document, loss));
    if (!outcome.watch)
        return true;
    for (const EditMove &move : answer.moves) {
        if (move.cause == EditMove::Pushed)
            outcome.watch->pushed(move.task, move.pushedBy);
        else if (move.cause == EditMove::Edited)
            outcome.watch->edited(move.task);
    }
    return true;
}

namespace editverbs {

namespace {

// ---- The outline ------------------------------------------------------------------------------------------

// The task's row. Only a task that is shown has one: -1 with a fault.
int rowOf(Edit &edit, quint32 id)
{
    const KWTaskInfo *task = edit.document.getTaskInfoByID(id);
    if (task && task->HideID == 0)
        return edit.document.getRowByTaskID(id);
    edit.refuse(
        t("%1 is hidden below a collapsed summary").arg(taskref::named(edit.document, id)),
        task ? t("'expand %1' shows it")
                   .arg(task->HideID.value() ? QStringLiteral("#%1").arg(task->HideID.value()) : QString())
             : QString());
    return -1;
}

// Whether all of them have a row.
bool areShown(Edit &edit)
{
    return std::all_of(edit.tasks.begin(), edit.tasks.end(),
                       [&](quint32 id) { return rowOf(edit, id) >= 0; });
}

// Name and fields of a task that is going to be made.
bool readNew(Edit &edit, TaskValues &values)
{
    QStringList words = edit.words;
    editline::Pairs pairs;
    if (!words.isEmpty() && !editline::isPair(words.first(), taskFields()))
        pairs.append({QStringLiteral("name"), words.takeFirst()});
    return editline::pairs(words, taskFields(), pairs, edit.fault) &&
           readTaskFields(edit, pairs, edit.document.ProjectUnit, values);
}

bool add(Edit &edit)
{
    TaskValues values;
    return readNew(edit, values) && edit.take(edit.edits.add(values));
}

template <PlanEdits::Place place>
bool insert(Edit &edit)
{
    TaskValues values;
    return areShown(edit) && readNew(edit, values) &&
           edit.take(edit.edits.insert(edit.tasks.first(), place, values));
}

// An operation on the named tasks.
template <EditAnswer (PlanEdits::*operation)(const QVector<quint32> &)>
bool onTasks(Edit &edit)
{
    return edit.take((edit.edits.*operation)(edit.tasks));
}

template <EditAnswer (PlanEdits::*operation)(const QVector<quint32> &)>
bool onShownTasks(Edit &edit)
{
    return areShown(edit) && onTasks<operation>(edit);
}

bool countOf(Edit &edit, int index, int &count)
{
    bool ok = true;
    count = edit.words.size() > index ? edit.words.at(index).toInt(&ok) : 1;
    return (ok && count > 0) ||
           edit.refuse(t("'%1' is no count").arg(edit.words.value(index)), t("write a whole number from 1"));
}

bool move(Edit &edit)
{
    const bool up = edit.words.first() == QLatin1String("up");
    int places = 0;
    if (!up && edit.words.first() != QLatin1String("down"))
        return edit.refuse(t("'%1' is no direction").arg(edit.words.first()), t("write up or down"));
    return countOf(edit, 1, places) && areShown(edit) &&
           edit.take(edit.edits.move(edit.tasks.first(), up ? -places : places));
}

// ---- Values -------------------------------------------------------------------------------------------

bool setValues(Edit &edit, const editline::Pairs &pairs)
{
    const KWTaskInfo &task = *edit.task();
    TaskValues values;
    if (!readTaskFields(edit, pairs, task.DurationUnits, values))
        return false;
    const EditAnswer answer = edit.edits.set({task.ID}, values);
    if (answer.refusal != EditRefusal::FinishBeforeStart)
        return edit.take(answer);
    const auto finish = std::find_if(pairs.begin(), pairs.end(),
                                     [](const auto &pair) { return pair.first == QLatin1String("finish"); });
    return edit.refuse(
        t("'%1' lies before the start of %2").arg(finish->second, taskref::named(edit.document, task.ID)),
        answer.hint());
}

bool rename(Edit &edit)
{
    return setValues(edit, {{QStringLiteral("name"), edit.words.first()}});
}

bool set(Edit &edit)
{
    editline::Pairs pairs;
    return editline::pairs(edit.words, taskFields(), pairs, edit.fault) && setValues(edit, pairs);
}

bool unlink(Edit &edit)
{
    return edit.take(edit.tasks.size() > 1 ? edit.edits.unlink(edit.tasks)
                                           : edit.edits.unlinkAll(edit.tasks));
}

bool schedule(Edit &edit)
{
    return edit.take(edit.edits.schedule(PlanEdits::AsGiven));
}

// ---- Going back, and the clipboard ------------------------------------------------------------------------

bool undo(Edit &edit)
{
    int steps = 0;
    if (!countOf(edit, 0, steps))
        return false;
    ActionManager &actions = edit.document.actionManager();
    if (actions.undoActions().isEmpty())
        return edit.refuse(t("nothing to undo"), t("undo takes back the edits before it"));
    actions.undo(steps);
    return true;
}

bool redo(Edit &edit)
{
    int steps = 0;
    if (!countOf(edit, 0, steps))
        return false;
    ActionManager &actions = edit.document.actionManager();
    if (actions.redoActions().isEmpty())
        return edit.refuse(t("nothing to redo"), t("redo follows undo, with no other edit between them"));
    for (; steps > 0 && !actions.redoActions().isEmpty(); --steps)
        actions.redo();
    return true;
}

bool paste(Edit &edit)
{
    return areShown(edit) &&
           edit.take(edit.tasks.isEmpty() ? edit.edits.paste()
                                          : edit.edits.paste(edit.tasks.first(), PlanEdits::Above));
}

bool pasteUnder(Edit &edit)
{
    return areShown(edit) && edit.take(edit.edits.paste(edit.tasks.first(), PlanEdits::LastChild));
}

// ---- The table --------------------------------------------------------------------------------------------

enum TaskArguments { NoTask, MaybeTask, OneTask, TaskAndMore, SomeTasks, AnyTasks };

struct Verb
{
    const char *name;
    TaskArguments tasks;
    int least; // words behind the tasks
    int most;  // -1: any number
    bool (*run)(Edit &);
    const char *arguments;
    const char *meaning;
};

constexpr int any = -1;

constexpr Verb verbs[] = {
    {"add", NoTask, 0, any, add, "[NAME] [FIELD=VALUE...]",
     QT_TR_NOOP("a task at the end, beside the last one")},
    {"insert", OneTask, 0, any, insert<PlanEdits::Above>, "TASK [NAME] [FIELD=VALUE...]",
     QT_TR_NOOP("a task above TASK")},
    {"sub", OneTask, 0, any, insert<PlanEdits::FirstChild>, "TASK [NAME] [FIELD=VALUE...]",
     QT_TR_NOOP("a task as the first one below TASK")},
    {"remove", SomeTasks, 0, 0, onShownTasks<&PlanEdits::remove>, "TASK...",
     QT_TR_NOOP("a collapsed summary goes with what is below it, the tasks below another one move up")},
    {"indent", SomeTasks, 0, 0, onShownTasks<&PlanEdits::indent>, "TASK...",
     QT_TR_NOOP("below the task before it")},
    {"outdent", SomeTasks, 0, 0, onShownTasks<&PlanEdits::outdent>, "TASK...",
     QT_TR_NOOP("one level up; the tasks that follow it on its level go below it")},
    {"move", OneTask, 1, 2, move, "TASK up|down [N]", QT_TR_NOOP("among the tasks of its summary")},
    {"expand", SomeTasks, 0, 0, onTasks<&PlanEdits::expand>, "TASK...", QT_TR_NOOP("shows what is below")},
    {"collapse", SomeTasks, 0, 0, onTasks<&PlanEdits::collapse>, "TASK...",
     QT_TR_NOOP("hides what is below")},
    {"rename", OneTask, 1, 1, rename, "TASK NAME", ""},
    {"set", OneTask, 1, any, set, "TASK FIELD=VALUE...",
     QT_TR_NOOP("dates push what waits for the task; the fields are listed below")},
    {"link", TaskAndMore, 0, 0, onTasks<&PlanEdits::link>, "TASK TASK...",
     QT_TR_NOOP("each one waits for the one before it")},
    {"unlink", SomeTasks, 0, 0, unlink, "TASK [TASK...]",
     QT_TR_NOOP("the links from each to the next; of one task, all its links")},
    {"assign", OneTask, 1, 2, assign, "TASK RESOURCE [UNITS]",
     QT_TR_NOOP("UNITS: 50% of the time, or a number of a material")},
    {"unassign", OneTask, 0, 1, unassign, "TASK [RESOURCE]", QT_TR_NOOP("one resource, or all")},
    {"resource add", NoTask, 1, any, addResource, "NAME [FIELD=VALUE...]",
     "type=work|material rate=50/h overtime=70/h per-use=20 units=100% group= email= notes="},
    {"resource set", NoTask, 2, any, setResource, "NAME FIELD=VALUE...",
     QT_TR_NOOP("the assignments follow")},
    {"resource remove", NoTask, 1, 1, removeResource, "NAME", QT_TR_NOOP("with its assignments")},
    {"resource rename", NoTask, 2, 2, renameResource, "NAME NAME", QT_TR_NOOP("the assignments follow")},
    {"calendar days", NoTask, 1, 1, setDays, "Mon-Fri",
     QT_TR_NOOP("tasks keep their working time and move off the days off")},
    {"calendar hours", NoTask, 1, 1, setHours, "08:00-12:00,13:00-17:00", ""},
    {"calendar holiday", NoTask, 1, 2, addHoliday, "DATE[..DATE] [NAME]", QT_TR_NOOP("days off")},
    {"calendar workday", NoTask, 1, 2, addWorkday, "DATE[..DATE] [NAME]",
     QT_TR_NOOP("days that work, whatever the week says")},
    {"calendar remove", NoTask, 1, 1, removeException, "DATE",
     QT_TR_NOOP("the holiday or workday that holds the date")},
    {"option", NoTask, 1, any, setOptions, "OPTION=VALUE...", QT_TR_NOOP("the options are listed below")},
    {"column", NoTask, 2, 2, setColumn, "TITLE show|hide|PIXELS", QT_TR_NOOP("a column of the task table")},
    {"baseline set", AnyTasks, 0, 0, onTasks<&PlanEdits::setBaseline>, "[TASK...]",
     QT_TR_NOOP("remembers dates and cost, of all tasks or of branches")},
    {"baseline clear", AnyTasks, 0, 0, onTasks<&PlanEdits::clearBaseline>, "[TASK...]", ""},
    {"schedule", NoTask, 0, 0, schedule, "", QT_TR_NOOP("moves every task behind its predecessors")},
    {"copy", SomeTasks, 0, 0, onShownTasks<&PlanEdits::copy>, "TASK...",
     QT_TR_NOOP("the tasks with all that is below them")},
    {"cut", SomeTasks, 0, 0, onShownTasks<&PlanEdits::cut>, "TASK...",
     QT_TR_NOOP("the same, and removes them")},
    {"paste", MaybeTask, 0, 0, paste, "[TASK]",
     QT_TR_NOOP("above TASK, or at the end, with new IDs and names")},
    {"paste under", OneTask, 0, 0, pasteUnder, "TASK",
     QT_TR_NOOP("the same as the last tasks below TASK; hidden when it is collapsed")},
    {"undo", NoTask, 0, 1, undo, "[N]",
     QT_TR_NOOP("in a script: takes the last N edits above it back, of the 60 that are kept")},
    {"redo", NoTask, 0, 1, redo, "[N]", QT_TR_NOOP("in a script: makes them again")},
};

// "resource add" is one verb in two words.
const Verb *verbNamed(const QStringList &words, int &length)
{
    for (length = qMin(2, words.size()); length > 0; --length) {
        const QString name = words.mid(0, length).join(QLatin1Char(' '));
        for (const Verb &verb : verbs)
            if (name == QLatin1String(verb.name))
                return &verb;
    }
    return nullptr;
}

QStringList verbNames()
{
    QStringList names;
    for (const Verb &verb : verbs)
        names.append(QLatin1String(verb.name));
    return names;
}

QString usage(const Verb &verb)
{
    return (QLatin1String(verb.name) + QLatin1Char(' ') + QLatin1String(verb.arguments)).trimmed();
}

bool takeTasks(const Verb &verb, Edit &edit)
{
    int wanted = edit.words.size();
    if (verb.tasks == NoTask || verb.tasks == OneTask || verb.tasks == MaybeTask)
        wanted = qMin(wanted, verb.tasks == NoTask ? 0 : 1);
    const int least = verb.tasks == TaskAndMore                          ? 2
                      : verb.tasks == SomeTasks || verb.tasks == OneTask ? 1
                                                                         : 0;
    if (edit.words.size() < least)
        return edit.refuse(t("'%1' needs more").arg(QLatin1String(verb.name)),
                           t("write it as %1").arg(usage(verb)));
    for (; wanted > 0; --wanted) {
        const int pos = taskref::find(edit.plan, edit.words.first(), edit.fault);
        if (pos < 0)
            return false;
        edit.tasks.append(edit.plan.task(pos)->ID);
        edit.words.removeFirst();
    }
    if (edit.words.size() < verb.least || (verb.most != any && edit.words.size() > verb.most))
        return edit.refuse(edit.words.size() < verb.least
                               ? t("'%1' needs more").arg(QLatin1String(verb.name))
                               : t("'%1' is one word too many for '%2'")
                                     .arg(edit.words.at(verb.most), QLatin1String(verb.name)),
                           t("write it as %1").arg(usage(verb)));
    return true;
}
}

QString lossText(const KWDocument &document, const EditLoss &loss)
{
    const KWTaskInfo *task = document.getTaskInfoByID(loss.task);
    const QString name = taskref::named(document, loss.task);
    const bool isSummary = task && task->isParent();
    switch (loss.kind) {
    case EditLoss::Assignment:
        return (isSummary ? t("%1 is a summary now and loses its resource '%2'")
                          : t("%1 loses its resource '%2'"))
            .arg(name, loss.name);
    case EditLoss::Baseline:
        return t("%1 is a summary now and loses its baseline").arg(name);
    case EditLoss::Link:
        break;
    }
    return t("%1 does not wait for %2 any more: they would wait for each other")
        .arg(name, taskref::named(document, loss.other));
}

bool run(Plan &plan, const QStringList &words, options::Fault &fault, Outcome &outcome)
{
    int length = 0;
    const Verb *verb = verbNamed(words, length);
    if (!verb) {
        QString guess = likeness::nearest(words.mid(0, 2).join(QLatin1Char(' ')), verbNames());
        if (guess.isEmpty())
            guess = likeness::nearest(words.value(0), verbNames());
        fault = {t("unknown edit '%1'").arg(words.value(0)),
                 guess.isEmpty() ? t("'kwgantt help edit' lists all edits")
                                 : t("did you mean '%1'? 'kwgantt help edit' lists all edits").arg(guess)};
        return false;
    }
    PlanEdits edits(*plan.document, QLatin1String(verb->name));
    Edit edit{plan, *plan.document, edits, {}, words.mid(length), fault, outcome};
    return takeTasks(*verb, edit) && verb->run(edit);
}

QVector<VerbInfo> all()
{
    QVector<VerbInfo> infos;
    for (const Verb &verb : verbs)
        infos.append({QLatin1String(verb.name), QLatin1String(verb.arguments)});
    return infos;
}

QString helpText()
{
    constexpr int indentColumns = 4;
    QString text = t("Edits:") + QLatin1Char('\n');
    for (const Verb &verb : verbs) {
        text += QLatin1String("  ") + usage(verb) + QLatin1Char('\n');
        if (*verb.meaning)
            text += QString(indentColumns + 2, QLatin1Char(' ')) + t(verb.meaning) + QLatin1Char('\n');
    }
    text += QLatin1Char('\n') + t("Fields: %1").arg(taskFieldsHelp()) + QLatin1String("\n\n");
    text += t("Options: %1").arg(optionsHelp()) + QLatin1Char('\n');
    return text;
}
}
