#include "app.h"
#include "columns.h"
#include "commands.h"
#include "csvrewrite.h"
#include "edits/planreasons.h"
#include "exchange/csvplan.h"
#include "explain.h"
#include "helptext.h"
#include "kwpxfile.h"
#include "planfile.h"
#include "report.h"
#include "schedule/kwtaskcollection.h"
#include "sheetreport.h"
#include "support/findings.h"
#include "support/likeness.h"
#include "taskref.h"
#include "texts.h"
#include "textwidth.h"
#include <QDir>

using namespace commands;

namespace {

int show(Console &console)
{
    const QString file = console.options().arguments.first();
    Plan plan;
    if (const int code = loadPlan(console, file, plan))
        return code;
    if (plan.withoutStart > 0) {
        scheduleMissing(console, plan);
        console.note(file + QLatin1String(": ") +
                     counted(plan.withoutStart, "%1 task has no start: the plan is shown scheduled",
                             "%1 tasks have no start: the plan is shown scheduled"));
    }
    plan::refresh(plan, progressOf(console));
    if (console.options().resources)
        return written(console, console.options().format == Options::Json ? sheetreport::json(plan)
                                : console.options().format == Options::Csv
                                    ? csvplan::resources(*plan.document)
                                    : sheetreport::text(plan, styleOf(console)).toUtf8());
    if (const int early = planreasons::earlyTaskCount(*plan.document))
        console.warning(file + QLatin1String(": ") +
                            counted(early, "%1 task starts before its predecessor finishes",
                                    "%1 tasks start before a predecessor finishes"),
                        t("'kwgantt schedule %1' moves them").arg(file));
    return writePlan(console, plan);
}

// Links that a package holds already, and that make tasks wait for each other.
bool tellRings(Console &console, const Plan &plan)
{
    const QList<QList<quint32>> rings = plan.document->taskCollection()->linkRings();
    for (const QList<quint32> &ring : rings)
        console.error(
            t("%1: tasks wait for each other: %2").arg(plan.file, taskref::ring(*plan.document, ring)),
            t("remove one of these links with 'kwgantt edit %1 unlink TASK TASK'; nothing was changed")
                .arg(plan.file));
    return !rings.isEmpty();
}

bool replaceRows(Console &console, const Plan &plan)
{
    if (plan.lock.isUnchanged())
        return console.replaceFile(plan.file, csvrewrite::withDates(plan), true);
    console.error(t("%1: changed meanwhile by another program; nothing was written").arg(plan.file),
                  t("make the change again"));
    return false;
}

// Working time in which nothing can be done.
bool tellUnworkable(Console &console, const Plan &plan)
{
    if (!plan.isPackage || plan.document->loadFindings().count(Finding::Refused) == 0)
        return false;
    console.error(t("%1: nothing can be scheduled in its working time; nothing was changed").arg(plan.file),
                  t("'kwgantt edit %1 calendar days Mon-Fri' and 'calendar hours 08:00-17:00' give it one")
                      .arg(plan.file));
    return true;
}

int schedule(Console &console)
{
    const Options &options = console.options();
    const QString file = options.arguments.first();
    Plan plan;
    Findings findings;
    if (options.inPlace) {
        if (const int code = lockForWriting(console, file, plan))
            return code;
    }
    if (const int code = planfile::load(file, console, plan, findings))
        return code;
    tell(console, plan, findings);
    if (tellUnworkable(console, plan))
        return Console::CannotSchedule;
    if (options.inPlace && !plan.isPackage && plan.table.rows.empty()) {
        console.error(t("%1: a workbook cannot be changed in place").arg(file),
                      t("-o PLAN.kwpx writes the plan as a package"));
        return Console::WrongUse;
    }
    if (options.inPlace) {
        if (const int code = mayReplace(console, plan, findings))
            return code;
    }
    if (tellRings(console, plan))
        return Console::CannotSchedule;
    plan::schedule(plan, options.asSoonAsPossible ? plan::AsSoonAsPossible : plan::AsGiven,
                   progressOf(console));

    const Style style = styleOf(console);
    const QString summary = report::movesSummary(plan, style);
    const bool answerIsNo = options.check && (!plan.moves.empty() || !findings.isEmpty());
    int code = Console::Done;
    if (options.inPlace && plan.isPackage) {
        if (!plan.moves.empty() || plan.withoutStart > 0)
            code = kwpxfile::save(console, plan, file, true) ? Console::Done : Console::CannotWrite;
        if (code == Console::Done)
            code = written(console, (report::moves(plan, style) + summary).toUtf8());
    } else if (options.inPlace) {
        if (!plan.moves.empty() || plan.withoutStart > 0)
            code = replaceRows(console, plan) ? Console::Done : Console::CannotWrite;
        if (code == Console::Done)
            code = written(console, (report::moves(plan, style) + summary).toUtf8());
    } else if ((options.dryRun || options.check) && !options.formatGiven) {
        code = written(console, (report::moves(plan, style) + summary).toUtf8());
    } else {
        code = writePlan(console, plan);
        if (code == Console::Done)
            console.note(summary.trimmed());
    }
    return code == Console::Done && answerIsNo ? int(Console::AnswerIsNo) : code;
}

int explainTask(Console &console)
{
    const Options &options = console.options();
    Plan plan;
    if (const int code = loadPlan(console, options.arguments.first(), plan))
        return code;
    options::Fault fault;
    const int pos = taskref::find(plan, options.arguments.at(1), fault);
    if (pos < 0) {
        console.error(plan.file + QLatin1String(": ") + fault.what, fault.hint);
        return Console::WrongUse;
    }
    plan::schedule(plan, options.asSoonAsPossible ? plan::AsSoonAsPossible : plan::AsGiven,
                   progressOf(console));
    const QVector<explain::Line> lines = explain::task(plan, pos);
    return written(console, options.format == Options::Json
                                ? explain::json(lines)
                                : explain::text(lines, styleOf(console)).toUtf8());
}

int convert(Console &console)
{
    Plan plan;
    if (const int code = loadPlan(console, console.options().arguments.first(), plan))
        return code;
    // A package written anew keeps what it holds.
    if (!plan.isPackage || console.options().format != Options::Package) {
        scheduleMissing(console, plan);
        plan::refresh(plan, progressOf(console));
    }
    return writeWithSides(console, plan);
}

// One file for each command and one for all of them, as man(1) finds them.
int writeManual(Console &console, const QString &folder)
{
    if (!QDir().mkpath(folder)) {
        console.error(t("%1: the folder cannot be made").arg(folder));
        return Console::CannotWrite;
    }
    for (const QString &command : QStringList{QString()} + options::commands()) {
        const QString path = QStringLiteral("%1/kwgantt%2%3.1")
                                 .arg(folder, command.isEmpty() ? QString() : QStringLiteral("-"), command);
        if (!console.replaceFile(path, helptext::manualPage(command), true))
            return Console::CannotWrite;
    }
    return Console::Done;
}

int help(Console &console)
{
    if (!console.options().manualFolder.isEmpty())
        return writeManual(console, console.options().manualFolder);
    constexpr int widestText = 100; // longer lines are hard to read
    const QString topic = console.options().arguments.value(0);
    const QString wanted = topic == QLatin1String("check") ? QStringLiteral("load") : topic;
    const helptext::Page page = helptext::page(wanted);
    if (page.usage.isEmpty()) {
        const QString guess = likeness::nearest(topic, options::commands());
        console.error(t("no help on '%1'").arg(topic), guess.isEmpty()
                                                           ? t("'kwgantt help' lists all commands")
                                                           : t("did you mean '%1'?").arg(guess));
        return Console::WrongUse;
    }
    return written(console, helptext::shown(page, qMin(console.width(), widestText)).toUtf8());
}

int listColumns(Console &console)
{
    QString text;
    for (const QString &key : columns::keys()) {
        const bool standard = columns::standardKeys().contains(key);
        const QString heading = t(columns::named(key)->heading);
        text += textwidth::padded(key, 16) +
                textwidth::padded(heading.isEmpty() ? QStringLiteral("!") : heading, 14) +
                (standard ? t("shown unless told otherwise") : QString());
        text = text.trimmed() + QLatin1Char('\n');
    }
    return written(console, text.toUtf8());
}

int listFormats(Console &console)
{
    const QString text =
        t("kwpx   reads and writes: the whole document as a package") + QLatin1Char('\n') +
        t("csv    reads and writes: a row a task, titles in the first row, UTF-8") + QLatin1Char('\n') +
        t("xlsx   reads and writes: a workbook with a sheet each of tasks, resources and assignments") +
        QLatin1Char('\n') + t("xls    reads and writes: the same, at most 65,536 rows") + QLatin1Char('\n') +
        t("mspdi  reads and writes: project XML (.xml), as other planners exchange it") + QLatin1Char('\n') +
        t("json   writes") + QLatin1Char('\n') + t("table  writes: text for people") + QLatin1Char('\n') +
        t("'kwgantt help formats' tells titles, dates and lengths") + QLatin1Char('\n');
    return written(console, text.toUtf8());
}

int version(Console &console)
{
    const QString text =
        QStringLiteral("kwgantt %1 (Qt %2)\n").arg(QLatin1String(KWGANTT_VERSION), QLatin1String(qVersion()));
    return written(console, text.toUtf8());
}
}

int runCommand(Console &console)
{
    struct Command
    {
        const char *name;
        int (*run)(Console &);
    };
    static constexpr Command table[] = {
        {"show", show},
        {"load", load},
        {"schedule", schedule},
        {"explain", explainTask},
        {"convert", convert},
#ifdef KW_WITH_EXPORT
        {"render", render},
#endif
        {"edit", edit},
        {"new", newPlan},
        {"diff", compare},
        {"baseline", keepBaseline},
        {"copy-branch", copyBranch},
        {"recover", recover},
        {"completion", completion},
        {"formats", listFormats},
        {"columns", listColumns},
        {"help", help},
        {"version", version},
    };
    for (const Command &command : table)
        if (console.options().command == QLatin1String(command.name))
            return command.run(console);
    return Console::Bug;
}
