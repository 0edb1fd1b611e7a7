#include "columns.h"
#include "datetext.h"
#include "format/dataformat.h"
#include "model/kwtaskinfo.h"
#include "sheettext.h"
#include "texts.h"

namespace columns {

namespace {

constexpr int deepestIndent = 20; // levels; deeper ones would push the names out of the table
constexpr int blanksPerLevel = 2;

// When a working day begins or ends.
int usualSecs(const Sheet &sheet, bool isStart)
{
    return isStart ? sheet.dayStartSecs : sheet.dayFinishSecs;
}

int secsOfDay(const Plan &plan, bool isStart)
{
    return int(KWTaskInfo::startOrFinishHour(plan.document.get(), isStart)) * 3600;
}

// The time stands beside the date only where it is not the day's beginning or end.
QString momentText(const Sheet &sheet, const shown::Clock &clock, bool isStart)
{
    QString text =
        datetext::dateText(clock.date, datetext::TwoDigitDay | (sheet.showYears ? datetext::Year : 0));
    if (clock.secs != usualSecs(sheet, isStart))
        text += QLatin1Char(' ') + datetext::timeText(clock.secs);
    return text;
}

// "1.5 d" as "1.5d"; nothing to spare is a plain 0.
QString compactSlack(const QString &slack)
{
    const int blank = slack.indexOf(QLatin1Char(' '));
    if (blank < 0)
        return slack;
    const QStringRef number = slack.leftRef(blank);
    return number == QLatin1String("0") ? number.toString() : QString(slack).remove(QLatin1Char(' '));
}

QString tagsText(const Plan &plan, const QList<quint32> &ids)
{
    QStringList tags;
    for (const quint32 id : ids)
        tags.append(QString::number(plan.document->getTagByTaskID(id)));
    return tags.join(QLatin1Char(';'));
}

QString wbsText(const Sheet &sheet, int pos)
{
    return sheet.plan.imported.codes.value(sheet.plan.task(pos)->ID);
}

QString idText(const Sheet &sheet, int pos)
{
    return QString::number(sheet.plan.task(pos)->ID);
}

QString numberText(const Sheet &, int pos)
{
    return QString::number(pos + 1);
}

QString markText(const Sheet &sheet, int pos)
{
    return sheet.plan.urgent(pos)->CriticalPath ? QStringLiteral("!") : QString();
}

QString nameText(const Sheet &sheet, int pos)
{
    const KWTaskInfo *task = sheet.plan.task(pos);
    const int indent = qBound(0, task->Level - 1, deepestIndent) * blanksPerLevel;
    return QString(indent, QLatin1Char(' ')) +
           (task->isParent() ? sheet.expanded + QLatin1Char(' ')
                             : QString(blanksPerLevel, QLatin1Char(' '))) +
           task->Name.trimmed();
}

QString levelText(const Sheet &sheet, int pos)
{
    return QString::number(sheet.plan.task(pos)->Level);
}

QString startText(const Sheet &sheet, int pos)
{
    const shown::Clock start = sheet.times.start(pos);
    // A milestone's finish says its time.
    if (start == sheet.times.finish(pos))
        return momentText(sheet, {start.date, usualSecs(sheet, true)}, true);
    return momentText(sheet, start, true);
}

QString finishText(const Sheet &sheet, int pos)
{
    return momentText(sheet, sheet.times.finish(pos), false);
}

QString durationText(const Sheet &sheet, int pos)
{
    const KWTaskInfo *task = sheet.plan.task(pos);
    if (task->Milestone && !task->isParent())
        return QString();
    return datetext::durationText(KWTaskInfo::getDurValueByTaskInfo(sheet.plan.document.get(), task),
                                  task->DurationUnits);
}

QString doneText(const Sheet &sheet, int pos)
{
    const KWTaskInfo *task = sheet.plan.task(pos);
    if (task->Milestone && !task->isParent() && task->Percent == 0)
        return QString();
    return QString::number(qRound(task->Percent * 100)) + QLatin1Char('%');
}

QString slackText(const Sheet &sheet, int pos)
{
    return compactSlack(sheet.plan.urgent(pos)->LateSlack);
}

QString startSlackText(const Sheet &sheet, int pos)
{
    return compactSlack(sheet.plan.task(pos)->EarlySlack);
}

QString lateStartText(const Sheet &sheet, int pos)
{
    return momentText(sheet, sheet.times.lateStart(pos), true);
}

QString lateFinishText(const Sheet &sheet, int pos)
{
    return momentText(sheet, sheet.times.lateFinish(pos), false);
}

QString predecessorsText(const Sheet &sheet, int pos)
{
    return tagsText(sheet.plan, sheet.plan.task(pos)->Predecessors);
}

QString successorsText(const Sheet &sheet, int pos)
{
    return tagsText(sheet.plan, sheet.plan.task(pos)->Depends);
}

QString resourcesText(const Sheet &sheet, int pos)
{
    return sheet.plan.task(pos)->Resources;
}

QString notesText(const Sheet &sheet, int pos)
{
    return sheet.plan.task(pos)->Notes;
}

QString workText(const Sheet &sheet, int pos)
{
    return DataFormat::formatNumber(plan::workHours(sheet.plan, *sheet.plan.task(pos)), 0, 2, 1) +
           QLatin1Char('h');
}

template <double TaskRecord::*member>
QString costText(const Sheet &sheet, int pos)
{
    return sheettext::moneyText(sheet.plan.task(pos)->*member);
}

QString baseCostText(const Sheet &sheet, int pos)
{
    const QString &text = sheet.plan.task(pos)->BaselineCost;
    return text.isEmpty() ? text : sheettext::moneyText(text.toDouble());
}

template <quint32 TaskRecord::*member, shown::Clock (*clock)(const Plan &, quint32)>
QString baseText(const Sheet &sheet, int pos)
{
    const quint32 secs = sheet.plan.task(pos)->*member;
    return secs == 0 ? QString() : momentText(sheet, clock(sheet.plan, secs), clock == shown::startOf);
}

constexpr Column table[] = {
    {"number", "#", true, numberText},
    {"critical", "", false, markText},
    {"id", QT_TR_NOOP("ID"), true, idText},
    {"wbs", QT_TR_NOOP("WBS"), false, wbsText},
    {"level", QT_TR_NOOP("Level"), true, levelText},
    {"name", QT_TR_NOOP("Task"), false, nameText},
    {"start", QT_TR_NOOP("Start"), false, startText},
    {"finish", QT_TR_NOOP("Finish"), false, finishText},
    {"duration", QT_TR_NOOP("Dur"), true, durationText},
    {"done", QT_TR_NOOP("Done"), true, doneText},
    {"slack", QT_TR_NOOP("Slack"), true, slackText},
    {"start-slack", QT_TR_NOOP("Start slack"), true, startSlackText},
    {"late-start", QT_TR_NOOP("Late start"), false, lateStartText},
    {"late-finish", QT_TR_NOOP("Late finish"), false, lateFinishText},
    {"predecessors", QT_TR_NOOP("After"), false, predecessorsText},
    {"successors", QT_TR_NOOP("Before"), false, successorsText},
    {"resources", QT_TR_NOOP("Resources"), false, resourcesText},
    {"work", QT_TR_NOOP("Work"), true, workText},
    {"cost", QT_TR_NOOP("Cost"), true, costText<&KWTaskInfo::Cost>},
    {"remaining", QT_TR_NOOP("Remaining"), true, costText<&KWTaskInfo::RemainingCost>},
    {"base-start", QT_TR_NOOP("Base start"), false, baseText<&KWTaskInfo::BaseStart, shown::startOf>},
    {"base-finish", QT_TR_NOOP("Base finish"), false, baseText<&KWTaskInfo::BaseFinish, shown::endOf>},
    {"base-cost", QT_TR_NOOP("Base cost"), true, baseCostText},
    {"notes", QT_TR_NOOP("Notes"), false, notesText},
};
}

Sheet::Sheet(const Plan &shownPlan, const shown::Times &shownTimes, bool years, const QString &mark)
    : plan(shownPlan)
    , times(shownTimes)
    , showYears(years)
    , expanded(mark)
    , dayStartSecs(secsOfDay(shownPlan, true))
    , dayFinishSecs(secsOfDay(shownPlan, false))
{
}

const Column *named(const QString &key)
{
    for (const Column &column : table)
        if (key == QLatin1String(column.key))
            return &column;
    return nullptr;
}

QStringList keys()
{
    QStringList list;
    for (const Column &column : table)
        list.append(QLatin1String(column.key));
    return list;
}

QStringList standardKeys()
{
    return {QStringLiteral("number"), QStringLiteral("critical"), QStringLiteral("name"),
            QStringLiteral("start"),  QStringLiteral("finish"),   QStringLiteral("duration"),
            QStringLiteral("done"),   QStringLiteral("slack")};
}
}
