#include "commands.h"
#include "datetext.h"
#include "edits/planreasons.h"
#include "invariants.h"
#include "machine.h"
#include "model/kwtaskinfo.h"
#include "planfile.h"
#include "report.h"
#include "sheettext.h"
#include "shown.h"
#include "support/findings.h"
#include "support/zonescope.h"
#include "taskref.h"
#include "texts.h"

// `load` and `check`. Three questions are kept apart: can the file be read as a plan (else the reader's exit
// code), is the plan what the file says (findings, and tasks that start too early), and does it do what the
// user demands of it (refusals). Only the last two are a "no" that --check turns into an exit code.
namespace commands {

namespace {

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
            line(parts.join(t(", ")));
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
    checked.code = planfile::loadUnnumbered(file, console, plan, findings);
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
    checked.line = (parts + refusals).join(t(", "));
    checked.data = options.format == Options::Json ? machine::summaryJson(plan, findings, early, refusals)
                                                   : summaryText(plan, styleOf(console), console.width(),
                                                                 findings.count(), early, refusals)
                                                         .toUtf8();
    return checked;
}
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
}
