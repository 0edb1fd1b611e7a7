#include "edit.h"
#include "editing/actionmanager.h"
#include "editing/clipbdmanager.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"
#include "taskref.h"
#include "texts.h"
#include "textwidth.h"

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

// Name and fields of a task just made.
bool complete(Edit &edit, KWTaskInfo *task)
{
    QStringList words = edit.words;
    editline::Pairs values;
    if (!words.isEmpty() && !editline::isPair(words.first(), taskFields()))
        values.append({QStringLiteral("name"), words.takeFirst()});
    edit.tasks = {task->ID};
    return editline::pairs(words, taskFields(), values, edit.fault) && setTaskFields(edit, *task, values);
}

bool add(Edit &edit)
{
    return complete(edit, edit.document.addTaskInfo());
}

bool insertAbove(Edit &edit)
{
    const int row = rowOf(edit, edit.tasks.first());
    return row >= 0 && complete(edit, edit.document.insertTaskByRow(row));
}

bool insertBelow(Edit &edit)
{
    const int row = rowOf(edit, edit.tasks.first());
    return row >= 0 && complete(edit, edit.document.insertSubTaskByRow(row));
}

using RowOperation = bool (*)(KWDocument &, int row);

// One after the other; what a removal before it took along is gone.
bool onRows(Edit &edit, RowOperation operation, const char *refusal, const char *hint)
{
    for (const quint32 id : qAsConst(edit.tasks)) {
        if (!edit.document.getTaskInfoByID(id))
            continue;
        const int row = rowOf(edit, id);
        if (row < 0)
            return false;
        if (!operation(edit.document, row))
            return edit.refuse(t(refusal).arg(taskref::named(edit.document, id)), t(hint));
    }
    return true;
}

bool removeTasks(Edit &edit)
{
    return onRows(
        edit, [](KWDocument &d, int row) { return d.removeTaskByRow(row); }, "%1 cannot be removed", "");
}

bool indent(Edit &edit)
{
    return onRows(
        edit, [](KWDocument &d, int row) { return d.indentTaskByRow(row); },
        "%1 has no task before it on its level", "it becomes the last task below that one");
}

bool outdent(Edit &edit)
{
    return onRows(
        edit, [](KWDocument &d, int row) { return d.outdentTaskByRow(row); },
        "%1 is at the top level already", "only a task below a summary can move one level up");
}

bool expand(Edit &edit)
{
    for (int i = 0; i < edit.tasks.size(); ++i)
        edit.document.expandTaskInfo(edit.task(i));
    edit.document.taskCollection()->updateTaskPoint();
    return true;
}

bool collapse(Edit &edit)
{
    for (int i = 0; i < edit.tasks.size(); ++i) {
        if (!edit.task(i)->isParent())
            return edit.refuse(t("%1 is no summary").arg(taskref::named(edit.document, edit.tasks.at(i))),
                               t("only a task with tasks below it can be collapsed"));
        edit.document.collapseTaskInfo(edit.task(i));
    }
    edit.document.taskCollection()->updateTaskPoint();
    return true;
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
    if (!countOf(edit, 1, places))
        return false;
    for (int i = 0; i < places; ++i) {
        const int row = rowOf(edit, edit.tasks.first());
        if (row < 0)
            return false;
        if ((up ? edit.document.moveUpByRow(row) : edit.document.moveDownByRow(row)) < 0)
            return edit.refuse(
                (up ? t("%1 has no task before it on its level") : t("%1 has no task after it on its level"))
                    .arg(taskref::named(edit.document, edit.tasks.first())),
                t("a task moves among the tasks of its summary"));
    }
    return true;
}

// ---- Values -----------------------------------------------------------------------------------------------

bool rename(Edit &edit)
{
    return setTaskFields(edit, *edit.task(), {{QStringLiteral("name"), edit.words.first()}});
}

bool set(Edit &edit)
{
    editline::Pairs values;
    return editline::pairs(edit.words, taskFields(), values, edit.fault) &&
           setTaskFields(edit, *edit.task(), values);
}

// ---- Links ------------------------------------------------------------------------------------------------

bool link(Edit &edit)
{
    KWTaskCollection *collection = edit.document.taskCollection();
    for (int i = 1; i < edit.tasks.size(); ++i) {
        KWTaskInfo *before = edit.task(i - 1);
        KWTaskInfo *after = edit.task(i);
        KWTaskLink wanted{before->ID, after->ID, LinkRefusal::None, {}};
        wanted.refusal = collection->linkRefusal(before, after, &wanted.ring);
        if (wanted.refusal != LinkRefusal::None) {
            const options::Fault why = taskref::refusal(edit.document, wanted);
            return edit.refuse(taskref::named(edit.document, after->ID) + QLatin1String(": ") + why.what,
                               why.hint);
        }
        collection->taskDependTask(before, after);
        pushBehindPredecessors(edit.document, *after);
    }
    return true;
}

void cut(KWTaskInfo &before, KWTaskInfo &after)
{
    before.removeDependIDByID(after.ID);
    after.removeDependOnIDByID(before.ID);
}

bool unlink(Edit &edit)
{
    KWTaskInfo *task = edit.task();
    for (int i = 1; i < edit.tasks.size(); ++i) {
        KWTaskInfo *after = edit.task(i);
        if (!after->Predecessors.contains(edit.tasks.at(i - 1)))
            return edit.refuse(t("%1 does not wait for %2")
                                   .arg(taskref::named(edit.document, after->ID),
                                        taskref::named(edit.document, edit.tasks.at(i - 1))));
        cut(*edit.task(i - 1), *after);
    }
    if (edit.tasks.size() > 1)
        return true;
    const QList<quint32> before = task->Predecessors;
    const QList<quint32> after = task->Depends;
    for (const quint32 id : before)
        if (KWTaskInfo *other = edit.document.getTaskInfoByID(id))
            cut(*other, *task);
    for (const quint32 id : after)
        if (KWTaskInfo *other = edit.document.getTaskInfoByID(id))
            cut(*task, *other);
    return true;
}

// ---- The whole plan ---------------------------------------------------------------------------------------

void setBaseline(KWTaskInfo &task, bool keep)
{
    constexpr int digits = 15;
    task.BaseStart = keep ? task.Start : 0;
    task.BaseFinish = keep ? task.Finish : 0;
    task.BaselineCost = keep ? QString::number(task.Cost, 'g', digits) : QString();
}

// Of all tasks, or of the named ones with what lies below them.
bool changeBaseline(Edit &edit, bool keep)
{
    if (edit.tasks.isEmpty()) {
        for (KWTaskInfo *task : edit.document.taskList())
            setBaseline(*task, keep);
        edit.document.BaselineCost = keep ? edit.document.getToltalCost() : 0;
        return true;
    }
    for (const quint32 id : qAsConst(edit.tasks)) {
        KWTaskInfo *task = edit.document.getTaskInfoByID(id);
        const double before = task->BaselineCost.toDouble();
        QList<quint32> branch{id};
        edit.document.taskCollection()->subIDListByTask(task, branch);
        for (const quint32 each : qAsConst(branch))
            setBaseline(*edit.document.getTaskInfoByID(each), keep);
        task->updateParentStrBaseCost(&edit.document, task->BaselineCost.toDouble() - before);
        task->updateParentBaselineStartAndFinish(&edit.document);
    }
    return true;
}

bool schedule(Edit &edit)
{
    KWTaskCollection *collection = edit.document.taskCollection();
    collection->updateOptionTaskTime();
    collection->pushAllSuccessors();
    collection->updateOptionTaskTime();
    return true;
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

bool rowsOf(Edit &edit, QList<int> &rows)
{
    for (const quint32 id : qAsConst(edit.tasks)) {
        rows.append(rowOf(edit, id));
        if (rows.last() < 0)
            return false;
    }
    return true;
}

bool copy(Edit &edit)
{
    QList<int> rows;
    return rowsOf(edit, rows) &&
           (edit.document.clipbdManager().copy(rows) || edit.refuse(t("the tasks cannot be copied")));
}

bool cutBranches(Edit &edit)
{
    QList<int> rows;
    return rowsOf(edit, rows) &&
           (edit.document.clipbdManager().cut(rows) || edit.refuse(t("the tasks cannot be cut")));
}

bool isPasted(Edit &edit, bool isDone)
{
    return isDone || edit.refuse(t("nothing to paste"), t("copy or cut tasks first"));
}

bool paste(Edit &edit)
{
    const int row = edit.tasks.isEmpty() ? -1 : rowOf(edit, edit.tasks.first());
    if (!edit.tasks.isEmpty() && row < 0)
        return false;
    return isPasted(edit, edit.document.clipbdManager().paste(row));
}

bool pasteUnder(Edit &edit)
{
    const int row = rowOf(edit, edit.tasks.first());
    return row >= 0 && isPasted(edit, edit.document.clipbdManager().pasteUnder(row));
}

// ---- The table --------------------------------------------------------------------------------------------

enum TaskArguments { NoTask, MaybeTask, OneTask, TaskAndMore, SomeTasks, AnyTasks };

// What an edit changes, and so what is kept of before it.
enum Backup : unsigned {
    Nothing = 0,
    AllTasks = 1, // the list, with everything in it
    Affected = 2, // the named tasks with what they can push, and their summaries
    Sheet = 4,    // the resource sheet with all assignments
    Settings = 8, // calendar and options
    Columns = 16,
};

struct Verb
{
    const char *name;
    TaskArguments tasks;
    int least; // words behind the tasks
    int most;  // -1: any number
    unsigned backup;
    bool (*run)(Edit &);
    const char *arguments;
    const char *meaning;
};

constexpr int any = -1;

constexpr Verb verbs[] = {
    {"add", NoTask, 0, any, AllTasks, add, "[NAME] [FIELD=VALUE...]",
     "a task at the end, beside the last one"},
    {"insert", OneTask, 0, any, AllTasks, insertAbove, "TASK [NAME] [FIELD=VALUE...]", "a task above TASK"},
    {"sub", OneTask, 0, any, AllTasks, insertBelow, "TASK [NAME] [FIELD=VALUE...]",
     "a task as the first one below TASK"},
    {"remove", SomeTasks, 0, 0, AllTasks, removeTasks, "TASK...",
     "a collapsed summary goes with what is below it, the tasks below another one move up"},
    {"indent", SomeTasks, 0, 0, AllTasks, indent, "TASK...", "below the task before it"},
    {"outdent", SomeTasks, 0, 0, AllTasks, outdent, "TASK...",
     "one level up; the tasks that follow it on its level go below it"},
    {"move", OneTask, 1, 2, AllTasks, move, "TASK up|down [N]", "among the tasks of its summary"},
    {"expand", SomeTasks, 0, 0, AllTasks, expand, "TASK...", "shows what is below"},
    {"collapse", SomeTasks, 0, 0, AllTasks, collapse, "TASK...", "hides what is below"},
    {"rename", OneTask, 1, 1, Affected, rename, "TASK NAME", ""},
    {"set", OneTask, 1, any, Affected, set, "TASK FIELD=VALUE...",
     "dates push what waits for the task; the fields are listed below"},
    {"link", TaskAndMore, 0, 0, Affected, link, "TASK TASK...", "each one waits for the one before it"},
    {"unlink", SomeTasks, 0, 0, Affected, unlink, "TASK [TASK...]",
     "the links from each to the next; of one task, all its links"},
    {"assign", OneTask, 1, 2, Affected, assign, "TASK RESOURCE [UNITS]",
     "UNITS: 50% of the time, or a number of a material"},
    {"unassign", OneTask, 0, 1, Affected, unassign, "TASK [RESOURCE]", "one resource, or all"},
    {"resource add", NoTask, 1, any, Sheet, addResource, "NAME [FIELD=VALUE...]",
     "type=work|material rate=50/h overtime=70/h per-use=20 units=100% group= email= notes="},
    {"resource set", NoTask, 2, any, AllTasks | Sheet, setResource, "NAME FIELD=VALUE...",
     "the assignments follow"},
    {"resource remove", NoTask, 1, 1, AllTasks | Sheet, removeResource, "NAME", "with its assignments"},
    {"resource rename", NoTask, 2, 2, AllTasks | Sheet, renameResource, "NAME NAME",
     "the assignments follow"},
    {"calendar days", NoTask, 1, 1, AllTasks | Settings, setDays, "Mon-Fri",
     "tasks keep their working time and move off the days off"},
    {"calendar hours", NoTask, 1, 1, AllTasks | Settings, setHours, "08:00-12:00,13:00-17:00", ""},
    {"calendar holiday", NoTask, 1, 2, AllTasks | Settings, addHoliday, "DATE[..DATE] [NAME]", "days off"},
    {"calendar workday", NoTask, 1, 2, AllTasks | Settings, addWorkday, "DATE[..DATE] [NAME]",
     "days that work, whatever the week says"},
    {"calendar remove", NoTask, 1, 1, AllTasks | Settings, removeException, "DATE",
     "the holiday or workday that holds the date"},
    {"option", NoTask, 1, any, AllTasks | Settings, setOptions, "OPTION=VALUE...",
     "the options are listed below"},
    {"column", NoTask, 2, 2, Columns, setColumn, "TITLE show|hide|PIXELS", "a column of the task table"},
    {"baseline set", AnyTasks, 0, 0, AllTasks | Settings,
     [](Edit &edit) { return changeBaseline(edit, true); }, "[TASK...]",
     "remembers dates and cost, of all tasks or of branches"},
    {"baseline clear", AnyTasks, 0, 0, AllTasks | Settings,
     [](Edit &edit) { return changeBaseline(edit, false); }, "[TASK...]", ""},
    {"schedule", NoTask, 0, 0, AllTasks, schedule, "", "moves every task behind its predecessors"},
    {"copy", SomeTasks, 0, 0, Nothing, copy, "TASK...", "the tasks with all that is below them"},
    {"cut", SomeTasks, 0, 0, AllTasks, cutBranches, "TASK...", "the same, and removes them"},
    {"paste", MaybeTask, 0, 0, AllTasks | Columns, paste, "[TASK]",
     "above TASK, or at the end, with new IDs and names"},
    {"paste under", OneTask, 0, 0, AllTasks | Columns, pasteUnder, "TASK",
     "the same as the last tasks below TASK; hidden when it is collapsed"},
    {"undo", NoTask, 0, 1, Nothing, undo, "[N]", "takes the last N edits back, of the 60 that are kept"},
    {"redo", NoTask, 0, 1, Nothing, redo, "[N]", "makes them again"},
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

int codeOf(const Verb &verb)
{
    return int(&verb - verbs) + 1;
}

// Keeps what the verb is going to change.
void record(const Verb &verb, const Edit &edit)
{
    if (verb.backup == Nothing)
        return;
    ActionManager::preUndoAction(&edit.document, codeOf(verb), 0);
    if (verb.backup & AllTasks)
        ActionManager::backAllTaskData();
    for (int i = 0; (verb.backup & Affected) && i < edit.tasks.size(); ++i)
        ActionManager::backupAffected(edit.task(i));
    if (verb.backup & Sheet)
        ActionManager::backupAllDocResources();
    if (verb.backup & Settings)
        ActionManager::backupAllOption();
    if (verb.backup & Columns)
        ActionManager::backupAllColData();
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

bool run(Plan &plan, const QStringList &words, options::Fault &fault)
{
    int length = 0;
    const Verb *verb = verbNamed(words, length);
    if (!verb) {
        QString guess = options::nearest(words.mid(0, 2).join(QLatin1Char(' ')), verbNames());
        if (guess.isEmpty())
            guess = options::nearest(words.value(0), verbNames());
        fault = {t("unknown edit '%1'").arg(words.value(0)),
                 guess.isEmpty() ? t("'kwgantt help edit' lists all edits")
                                 : t("did you mean '%1'? 'kwgantt help edit' lists all edits").arg(guess)};
        return false;
    }
    Edit edit{plan, *plan.document, {}, words.mid(length), fault};
    if (!takeTasks(*verb, edit))
        return false;
    record(*verb, edit);
    if (!verb->run(edit))
        return false;
    ActionManager::addUndoAction();
    return true;
}

void fillUndoNames()
{
    for (const Verb &verb : verbs)
        ActionManager::s_undoString.insert(codeOf(verb), QLatin1String(verb.name));
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
    QString text;
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
