// Commands that make, compare, keep and bring back plans.
#include "baseline.h"
#include "commands.h"
#include "completions.h"
#include "diff.h"
#include "edit.h"
#include "format/dataformat.h"
#include "kwfilepathmanager.h"
#include "kwpxfile.h"
#include "kwzip.h"
#include "model/kwtaskinfo.h"
#include "support/kwclock.h"
#include "taskref.h"
#include "texts.h"
#include "texttable.h"
#include <QDateTime>
#include <QDir>
#include <QFileInfo>

namespace commands {

namespace {

// Runs edits on a plan; false after telling what is wrong.
bool runEdits(Console &console, Plan &plan, const std::vector<QStringList> &edits)
{
    editverbs::Outcome outcome;
    for (const QStringList &words : edits) {
        options::Fault fault;
        if (!editverbs::run(plan, words, fault, outcome)) {
            console.error(plan.file + QLatin1String(": ") + fault.what, fault.hint);
            return false;
        }
    }
    tellLost(console, plan, outcome.lost);
    return true;
}

// The task that the words mean; 0 after telling what is wrong.
quint32 taskNamed(Console &console, const Plan &plan, const QString &words)
{
    options::Fault fault;
    const int pos = taskref::find(plan, words, fault);
    if (pos >= 0)
        return plan.task(pos)->ID;
    console.error(plan.file + QLatin1String(": ") + fault.what, fault.hint);
    return 0;
}

// A small project that shows what a plan can hold.
std::vector<QStringList> sampleEdits()
{
    const QDate today = KWClock::now().date();
    const QString monday = today.addDays(8 - today.dayOfWeek()).toString(Qt::ISODate);
    const QString script = QStringLiteral(R"(resource add "Ana Ruiz" rate=50/h
resource add Workshop rate=400/d units=200%
resource add Pipe type=material rate=2.5 per-use=4
add Design start=%1
add Requirements start=%1 duration=2d percent=100
indent 2
add Sketch duration=3d percent=40
add "Order parts" duration=2d
outdent 4
add Build duration=5d
add Test duration=12h
add Handover duration=0d
link 2 3 5 6 7
link 2 4 5
assign 2 "Ana Ruiz"
assign 3 "Ana Ruiz" 50%
assign 5 Workshop 200%
assign 5 Pipe 30
assign 6 Workshop)")
                               .arg(monday);
    std::vector<QStringList> edits;
    for (const QString &line : script.split(QLatin1Char('\n'))) {
        QStringList words;
        options::Fault fault;
        editline::split(line, words, fault);
        edits.push_back(words);
    }
    return edits;
}

int loadShown(Console &console, const QString &file, Plan &plan)
{
    if (const int code = loadPlan(console, file, plan))
        return code;
    scheduleMissing(console, plan);
    plan::refresh(plan, progressOf(console));
    return Console::Done;
}
}

int newPlan(Console &console)
{
    Options options = console.options();
    options.output = options.arguments.first();
    console.follow(options);
    Plan plan;
    plan.file = options.output;
    kwpxfile::describe(plan);
    if (options.sample && !runEdits(console, plan, sampleEdits()))
        return Console::Bug;
    return writeChanged(
        console, plan,
        t("%1: written with %2").arg(options.output, counted(plan.taskCount(), "%1 task", "%1 tasks")));
}

int compare(Console &console)
{
    Plan before, after;
    for (Plan *plan : {&before, &after})
        if (const int code =
                loadShown(console, console.options().arguments.at(plan == &before ? 0 : 1), *plan))
            return code;
    const std::vector<diff::Change> changes = diff::between(before, after, console.options().only);
    const QByteArray data = console.options().format == Options::Json
                                ? diff::json(before, after, changes)
                                : diff::text(before, after, changes, styleOf(console)).toUtf8();
    return written(console, data, changes.empty() ? Console::Done : Console::AnswerIsNo);
}

int keepBaseline(Console &console)
{
    const Options &options = console.options();
    const QString verb = options.arguments.value(1, QStringLiteral("list"));
    if (verb == QLatin1String("set") || verb == QLatin1String("clear")) {
        Plan plan;
        if (const int code = loadForChange(console, options.arguments.first(), plan))
            return code;
        if (!runEdits(console, plan, {QStringList{QStringLiteral("baseline")} + options.arguments.mid(1)}))
            return Console::WrongUse;
        return writeChanged(console, plan,
                            verb == QLatin1String("set") ? t("baseline set") : t("baseline cleared"));
    }
    if (verb != QLatin1String("list") || options.arguments.size() > 2) {
        console.error(t("'%1' is nothing to do with a baseline").arg(verb), t("write list, set or clear"));
        return Console::WrongUse;
    }
    Plan plan;
    if (const int code = loadShown(console, options.arguments.first(), plan))
        return code;
    return written(console, options.format == Options::Json
                                ? baseline::json(plan)
                                : baseline::text(plan, styleOf(console)).toUtf8());
}

int recover(Console &console)
{
    const Options &options = console.options();
    const QDir folder(KWFilePathManager::configDir(QStringLiteral("autosave")));
    const QFileInfoList copies =
        folder.entryInfoList({QStringLiteral("*.kwpx")}, QDir::Files, QDir::Time | QDir::Name);
    if (options.arguments.isEmpty()) {
        TextTable table({QStringLiteral(">#"), t("Copy"), t("Saved"), t(">Tasks"), t("First task")});
        int number = 0;
        for (const QFileInfo &copy : copies) {
            KWDocument document;
            const bool sound = document.loadFromKWGT(copy.filePath());
            const KWTaskInfo *first = document.getTaskInfoAt(0);
            table.add({QString::number(++number), copy.fileName(),
                       copy.lastModified().toString(QStringLiteral("yyyy-MM-dd HH:mm")),
                       sound ? QString::number(document.taskCount()) : t("damaged"),
                       sound && first ? first->Name.simplified() : QString()});
        }
        const QString none = t("no autosave copies in %1").arg(folder.path()) + QLatin1Char('\n');
        return written(console, (table.isEmpty() ? none : table.text()).toUtf8());
    }
    const QString wanted = options.arguments.first();
    bool isNumber = false;
    const int number = wanted.toInt(&isNumber);
    for (int i = 0; i < copies.size(); ++i) {
        if (copies.at(i).fileName() != wanted && !(isNumber && number == i + 1))
            continue;
        Plan plan;
        if (const int code = loadPlan(console, copies.at(i).filePath(), plan))
            return code;
        if (options.output.isEmpty()) {
            console.error(t("where shall the copy go?"), t("-o FILE.kwpx names the file"));
            return Console::WrongUse;
        }
        return writePlan(console, plan);
    }
    console.error(t("no autosave copy '%1' in %2").arg(wanted, folder.path()),
                  t("'kwgantt recover' lists them"));
    return Console::CannotRead;
}

int copyBranch(Console &console)
{
    const Options &options = console.options();
    const QString target = options.arguments.last();
    Plan from, into;
    if (const int code = loadShown(console, options.arguments.first(), from))
        return code;
    if (const int code = loadForChange(console, target, into))
        return code;
    QVector<quint32> branches;
    for (const QString &words : options.arguments.mid(1, options.arguments.size() - 2)) {
        branches.append(taskNamed(console, from, words));
        if (branches.last() == 0)
            return Console::WrongUse;
    }
    const QString beside = options.before.isEmpty() ? options.under : options.before;
    const quint32 place = beside.isEmpty() ? 0 : taskNamed(console, into, beside);
    if (!beside.isEmpty() && place == 0)
        return Console::WrongUse;
    const int count = into.taskCount();
    PlanEdits edits(*into.document, t("copy branch"));
    const EditAnswer answer =
        place == 0 ? edits.copyBranches(*from.document, branches)
                   : edits.copyBranches(*from.document, branches, place,
                                        options.before.isEmpty() ? PlanEdits::LastChild : PlanEdits::Above);
    if (!answer.isDone()) {
        console.error(into.file + QLatin1String(": ") + answer.sentence(), answer.hint());
        return Console::WrongUse;
    }
    QStringList lost;
    for (const EditLoss &loss : answer.losses)
        lost.append(editverbs::lossText(*into.document, loss));
    tellLost(console, into, lost);
    return writeChanged(console, into,
                        counted(into.taskCount() - count, "%1 task copied", "%1 tasks copied"));
}

int completion(Console &console)
{
    const QString shell = console.options().arguments.value(0, completions::shells().first());
    const QString script = completions::script(shell);
    if (script.isEmpty()) {
        console.error(t("no completion for '%1'").arg(shell),
                      t("possible: %1").arg(completions::shells().join(QLatin1String(", "))));
        return Console::WrongUse;
    }
    return written(console, script.toUtf8());
}
}
