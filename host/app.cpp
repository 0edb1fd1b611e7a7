#include "app.h"
#include "columns.h"
#include "commands.h"
#include "csvrewrite.h"
#include "edit.h"
#include "edits/planreasons.h"
#include "exchange/csvplan.h"
#include "explain.h"
#include "helptext.h"
#include "invariants.h"
#include "kwpxfile.h"
#include "machine.h"
#include "model/kwtaskinfo.h"
#include "planfile.h"
#include "report.h"
#include "schedule/kwtaskcollection.h"
#include "sheetreport.h"
#include "sheettext.h"
#include "shown.h"
#include "support/findings.h"
#include "support/likeness.h"
#include "support/zonescope.h"
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

QString summaryText(const Plan &plan, const Style &style, int width, int findings, int early,
                    const QStringList &refusals)
{
    int summaries = 0;
    int milestones = 0;
    int begun = 0;
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        const KWTaskInfo *task = plan.task(pos);
        summaries += task->isParent();
        milestones += task->Milestone && !task->isParent();
        begun += !task->isParent() && task->Percent > 0;
    }
    QString text = report::title(plan, shown::Times(plan), style, width);
    const auto line = [&text](const QString &words) {
        text += QLatin1String("  ") + words + QLatin1Char('\n');
    };
    // What there is none of is not counted up.
    const auto counts = [&line](const QStringList &parts) {
        if (!parts.isEmpty())
            line(parts.join(QLatin1String(", ")));
    };
    const auto some = [](int number, const char *one, const char *many) {
        return number > 0 ? QStringList(counted(number, one, many)) : QStringList();
    };
    const int levels = plan.document->getMaxLevel();
    counts(some(summaries, QT_TR_NOOP("%1 summary task"), QT_TR_NOOP("%1 summary tasks")) +
           some(levels > 1 ? levels : 0, QT_TR_NOOP("%1 level"), QT_TR_NOOP("%1 levels")));
    counts(some(milestones, QT_TR_NOOP("%1 milestone"), QT_TR_NOOP("%1 milestones")) +
           some(begun, QT_TR_NOOP("%1 task begun"), QT_TR_NOOP("%1 tasks begun")));
    counts(some(plan.links, QT_TR_NOOP("%1 link"), QT_TR_NOOP("%1 links")) +
           some(plan.refusedLinks, QT_TR_NOOP("%1 refused"), QT_TR_NOOP("%1 refused")));
    if (plan.withoutStart)
        line(counted(plan.withoutStart, "%1 task without a start: scheduling places it",
                     "%1 tasks without a start: scheduling places them"));
    if (early)
        line(counted(early, "%1 task starts before its predecessor finishes: scheduling moves it",
                     "%1 tasks start before a predecessor finishes: scheduling moves them"));
    for (const QString &refusal : refusals)
        line(refusal);
    if (findings > 0)
        line(counted(findings, "%1 finding", "%1 findings"));
    else if (early == 0 && refusals.isEmpty())
        line(t("nothing to complain about"));
    return text;
}

// ---- Checking ---------------------------------------------------------------------------------------------

// How far the finish of critical tasks lies behind the baseline, in percent of the baseline's length.
void askSlip(const Plan &plan, double mostPercent, QStringList &refusals)
{
    quint32 first = 0;
    quint32 last = 0;
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        const KWTaskInfo *task = plan.task(pos);
        if (task->BaseStart == 0 || task->BaseFinish == 0)
            continue;
        first = first == 0 ? task->BaseStart : qMin(first, task->BaseStart);
        last = qMax(last, task->BaseFinish);
    }
    const qint64 length = plan::workingMinutes(plan, first, last);
    if (first == 0 || length <= 0) {
        refusals.append(t("there is no baseline to compare with"));
        return;
    }
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        const KWTaskInfo *task = plan.task(pos);
        if (!task->CriticalPath || task->isParent() || task->BaseFinish == 0)
            continue;
        const double slip =
            100.0 * double(plan::workingMinutes(plan, task->BaseFinish, task->Finish)) / double(length);
        if (slip > mostPercent)
            refusals.append(
                t("%1 slips by %2 % of the baseline")
                    .arg(taskref::named(*plan.document, task->ID), sheettext::numberText(qRound(slip))));
    }
}

// What the plan is asked for beside being sound, and does not give. Not 0: an exit code, after telling why.
int askGates(Console &console, const Plan &plan, QStringList &refusals)
{
    const Options &options = console.options();
    KWDocument &document = *plan.document;
    if (!options.finishBy.isEmpty()) {
        const QString date = options.finishBy.section(QLatin1Char(' '), 0, 0);
        const QString words = options.finishBy.section(QLatin1Char(' '), 1);
        datetext::Moment moment;
        if (!datetext::parseMoment(date, moment)) {
            console.error(t("'%1' is no value for '%2'").arg(date, QStringLiteral("--finish-by")),
                          t("write it as 2026-02-28 or '2026-02-28 TASK'"));
            return Console::WrongUse;
        }
        quint32 finish = plan::lastFinish(plan);
        QString who = t("the project");
        if (!words.isEmpty()) {
            options::Fault fault;
            const int pos = taskref::find(plan, words, fault);
            if (pos < 0) {
                console.error(plan.file + QLatin1String(": ") + fault.what, fault.hint);
                return Console::WrongUse;
            }
            finish = plan.task(pos)->Finish;
            who = taskref::named(document, plan.task(pos)->ID);
        }
        if (finish > plan::finishSecs(document, moment))
            refusals.append(
                t("%1 finishes on %2, later than %3").arg(who, shown::endOf(plan, finish).text(), date));
    }
    if (!options.mostCost.isEmpty() && document.getToltalCost() > options.mostCost.toDouble())
        refusals.append(t("the cost of %1 is more than %2")
                            .arg(sheettext::moneyText(document.getToltalCost()), options.mostCost));
    if (!options.mostSlip.isEmpty())
        askSlip(plan, options.mostSlip.toDouble(), refusals);
    return Console::Done;
}

struct Checked
{
    int code = Console::Done;
    bool isRead = false;
    QString line;    // of one among many files
    QByteArray data; // of one file
};

Checked checkFile(Console &console, const QString &file, bool isOneOfMany)
{
    const Options &options = console.options();
    Checked checked;
    Plan plan;
    Findings findings;
    checked.code = planfile::load(file, console, plan, findings);
    if (checked.code != Console::Done) {
        checked.line = t("cannot be read as a plan");
        checked.data = "{\n  \"file\": " + machine::jsonText(file) +
                       ",\n  \"code\": " + QByteArray::number(checked.code) + "\n}\n";
        return checked;
    }
    invariants::check(*plan.document, findings);
    scheduleMissing(console, plan);
    plan::refresh(plan, progressOf(console));
    const int early = plan.withoutStart ? 0 : planreasons::earlyTaskCount(*plan.document);
    QStringList refusals;
    if (const int code = askGates(console, plan, refusals)) {
        checked.code = code;
        return checked;
    }
    checked.isRead = true;
    const bool isSound = findings.isEmpty() && early == 0 && refusals.isEmpty();
    if (plan.isPackage && plan.document->loadFindings().count(Finding::Refused) > 0)
        checked.code = Console::CannotSchedule;
    else if (options.check && !isSound)
        checked.code = Console::AnswerIsNo;
    // Quiet prints what failed and nothing else.
    if (!options.quiet || checked.code != Console::Done)
        console.list(file, findings);
    if (options.quiet && early > 0)
        console.error(file + QLatin1String(": ") +
                      counted(early, "%1 task starts before its predecessor finishes",
                              "%1 tasks start before a predecessor finishes"));
    for (const QString &refusal : qAsConst(refusals))
        if (options.quiet || isOneOfMany)
            console.error(file + QLatin1String(": ") + refusal);
    QStringList parts{counted(plan.taskCount(), "%1 task", "%1 tasks")};
    if (isSound)
        parts.append(t("nothing to complain about"));
    if (!findings.isEmpty())
        parts.append(counted(findings.count(), "%1 finding", "%1 findings"));
    if (early > 0)
        parts.append(counted(early, "%1 task too early", "%1 tasks too early"));
    checked.line = (parts + refusals).join(QLatin1String(", "));
    checked.data = options.format == Options::Json ? machine::summaryJson(plan, findings, early, refusals)
                                                   : summaryText(plan, styleOf(console), console.width(),
                                                                 findings.count(), early, refusals)
                                                         .toUtf8();
    return checked;
}

int load(Console &console)
{
    const Options &options = console.options();
    const QStringList &files = options.arguments;
    if (files.size() == 1) {
        const Checked checked = checkFile(console, files.first(), false);
        if (!checked.isRead)
            return checked.code;
        if (options.quiet && options.format != Options::Json)
            return checked.code;
        return written(console, checked.data, checked.code);
    }
    Plan::isLast = false;
    const bool isJson = options.format == Options::Json;
    QByteArray data = isJson ? "[\n" : "";
    int worst = Console::Done;
    int sound = 0;
    for (const QString &file : files) {
        const ZoneScope zone(ZoneScope::current()); // a package brings its own
        const Checked checked = checkFile(console, file, true);
        if (checked.code == Console::WrongUse)
            return checked.code;
        worst = qMax(worst, checked.code);
        sound += checked.code == Console::Done;
        if (isJson)
            data += (file == files.first() ? "" : ",\n") + checked.data.trimmed();
        else if (!options.quiet || checked.code != Console::Done)
            data += (file + QLatin1String(": ") + checked.line + QLatin1Char('\n')).toUtf8();
    }
    if (isJson)
        data += "\n]\n";
    else if (!options.quiet || worst != Console::Done)
        data += (t("%1 of %2 files are sound").arg(sound).arg(files.size()) + QLatin1Char('\n')).toUtf8();
    return written(console, data, worst);
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
