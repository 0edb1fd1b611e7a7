// What scheduling moved, and because of what.
#include "datetext.h"
#include "model/kwtaskinfo.h"
#include "report.h"
#include "texts.h"
#include "texttable.h"
#include "textwidth.h"

namespace report {

namespace {

constexpr int longestName = 30;

// "12 Jan → 13 Jan"; a time stands where it is not the day's beginning or end.
QString change(const Plan &plan, const shown::Clock &before, const shown::Clock &after, bool isStart,
               const Style &style)
{
    const int usualSecs = int(KWTaskInfo::startOrFinishHour(plan.document.get(), isStart)) * 3600;
    const bool withYear = before.date.year() != after.date.year();
    const auto text = [&](const shown::Clock &clock) {
        QString words =
            datetext::dateText(clock.date, datetext::TwoDigitDay | (withYear ? datetext::Year : 0));
        if (clock.secs != usualSecs)
            words += QLatin1Char(' ') + datetext::timeText(clock.secs);
        return words;
    };
    if (before == after)
        return text(before);
    return text(before) + QLatin1Char(' ') + style.arrow + QLatin1Char(' ') + text(after);
}

QString lengthOf(const Plan &plan, quint32 from, quint32 to)
{
    const bool later = from <= to;
    const double days =
        plan.document->getDurationValue(later ? from : to, later ? to : from, duration::Day, true);
    if (days == 0) {
        const qint64 minutes = qAbs(plan::workingMinutes(plan, from, to));
        return (later ? QLatin1String("+") : QLatin1String("-")) + QString::number(minutes) +
               QLatin1String("min");
    }
    return (later ? QLatin1String("+") : QLatin1String("-")) + QString::number(days) + QLatin1Char('d');
}

QString shortName(const KWTaskInfo *task, const Style &style)
{
    return textwidth::elided(textwidth::oneLine(task->Name.trimmed(), style.ascii), longestName, style.cut);
}

// "project finish 09 Jan → 21 Jan"; with times where only those differ.
QString finishText(const Plan &plan, const Style &style)
{
    const shown::Clock before = shown::endOf(plan, plan.finishBefore);
    const shown::Clock after = shown::endOf(plan, plan::lastFinish(plan));
    if (before == after)
        return t("project finish %1 (unchanged)").arg(datetext::dateText(after.date, datetext::TwoDigitDay));
    const int years = before.date.year() != after.date.year() ? datetext::Year : datetext::Plain;
    const auto text = [&](const shown::Clock &clock) {
        const QString date = datetext::dateText(clock.date, datetext::TwoDigitDay | years);
        return before.date == after.date ? date + QLatin1Char(' ') + datetext::timeText(clock.secs) : date;
    };
    return t("project finish %1")
        .arg(text(before) + QLatin1Char(' ') + style.arrow + QLatin1Char(' ') + text(after));
}

QString movedCount(const Plan &plan)
{
    return counted(qint64(plan.moves.size()), "%1 task moved", "%1 tasks moved");
}

QString because(const Plan &plan, const Plan::Move &move, const Style &style)
{
    const KWTaskInfo *task = plan.task(move.pos);
    if (task->isParent())
        return t("its tasks moved");
    const QString length = lengthOf(plan, move.oldStart, task->Start);
    const int by = move.pushedBy ? plan.posOf(move.pushedBy) : -1;
    if (by < 0 && move.byEdit)
        return t("by the edit");
    if (by < 0)
        return t("moved with its summary (%1)").arg(length);
    return t("pushed by %1 \"%2\" (%3)")
        .arg(QString::number(by + 1), shortName(plan.task(by), style), length);
}
}

QString moves(const Plan &plan, const Style &style)
{
    if (plan.moves.empty())
        return QString();
    TextTable table({QStringLiteral(">#"), t("Task"), t("Start"), t("Finish"), t("Because")});
    const shown::Times times(plan);
    for (const Plan::Move &move : plan.moves) {
        const KWTaskInfo *task = plan.task(move.pos);
        const bool milestone = task->Milestone && !task->isParent();
        const shown::Clock oldStart = shown::startOf(plan, move.oldStart);
        const shown::Clock oldFinish = shown::finishOf(plan, move.oldFinish);
        table.add({QString::number(move.pos + 1), shortName(task, style),
                   change(plan, oldStart, times.start(move.pos), true, style),
                   milestone ? QString() : change(plan, oldFinish, times.finish(move.pos), false, style),
                   because(plan, move, style)});
    }
    return table.text();
}

QString movesSummary(const Plan &plan, const Style &style)
{
    const int unchanged = plan.taskCount() - int(plan.moves.size());
    if (plan.moves.empty())
        return t("nothing moves: every task starts at or after the end of its predecessors") +
               QLatin1Char('\n');
    return movedCount(plan) + t(", ") + t("%1 unchanged").arg(grouped(unchanged)) + t("; ") +
           finishText(plan, style) + QLatin1Char('\n');
}

QString editMovesSummary(const Plan &plan, const Style &style)
{
    return movedCount(plan) + t("; ") + finishText(plan, style);
}
}
