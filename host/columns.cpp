#include "columns.h"
#include "datetext.h"
#include "format/dataformat.h"
#include "model/kwtaskinfo.h"
#include "sheettext.h"
#include "texts.h"
#include <charconv>

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
void addMoment(QString &text, const Sheet &sheet, const shown::Clock &clock, bool isStart)
{
    datetext::addDate(text, clock.date, datetext::TwoDigitDay | (sheet.showYears ? datetext::Year : 0));
    if (clock.secs != usualSecs(sheet, isStart))
        text += QLatin1Char(' ') + datetext::timeText(clock.secs);
}

void addNumber(QString &text, qint64 number)
{
    constexpr int most = 20;
    char digits[most];
    const char *const end = std::to_chars(digits, digits + most, number).ptr;
    text += QLatin1String(digits, int(end - digits));
}

// "1.5 d" as "1.5d"; nothing to spare is a plain 0.
void addCompactSlack(QString &text, const QString &slack)
{
    const int blank = slack.indexOf(QLatin1Char(' '));
    if (blank == 1 && slack.at(0) == QLatin1Char('0')) {
        text += slack.at(0);
        return;
    }
    for (const QChar sign : slack) {
        if (sign != QLatin1Char(' '))
            text += sign;
    }
}

void addTags(QString &text, const Plan &plan, const QList<quint32> &ids)
{
    for (int i = 0; i < ids.size(); ++i) {
        if (i > 0)
            text += QLatin1Char(';');
        addNumber(text, plan.document->getTagByTaskID(ids.at(i)));
    }
}

void addWbs(const Sheet &sheet, int pos, QString &text)
{
    text += sheet.plan.imported.codes.value(sheet.plan.task(pos)->ID);
}

void addId(const Sheet &sheet, int pos, QString &text)
{
    addNumber(text, sheet.plan.task(pos)->ID);
}

void addPosition(const Sheet &, int pos, QString &text)
{
    addNumber(text, pos + 1);
}

void addMark(const Sheet &sheet, int pos, QString &text)
{
    if (sheet.plan.urgent(pos)->CriticalPath)
        text += QLatin1Char('!');
}

void addName(const Sheet &sheet, int pos, QString &text)
{
    const KWTaskInfo *task = sheet.plan.task(pos);
    const int indent = qBound(0, task->Level - 1, deepestIndent) * blanksPerLevel;
    const int blanks = indent + (task->isParent() ? 0 : blanksPerLevel);
    for (int i = 0; i < blanks; ++i)
        text += QLatin1Char(' ');
    if (task->isParent()) {
        text += sheet.expanded;
        text += QLatin1Char(' ');
    }
    text += task->Name.trimmed();
}

void addLevel(const Sheet &sheet, int pos, QString &text)
{
    addNumber(text, sheet.plan.task(pos)->Level);
}

void addStart(const Sheet &sheet, int pos, QString &text)
{
    const shown::Clock start = sheet.times.start(pos);
    // A milestone's finish says its time.
    if (start == sheet.times.finish(pos))
        addMoment(text, sheet, {start.date, usualSecs(sheet, true)}, true);
    else
        addMoment(text, sheet, start, true);
}

void addFinish(const Sheet &sheet, int pos, QString &text)
{
    addMoment(text, sheet, sheet.times.finish(pos), false);
}

void addDuration(const Sheet &sheet, int pos, QString &text)
{
    const KWTaskInfo *task = sheet.plan.task(pos);
    if (!task->Milestone || task->isParent())
        text += datetext::durationText(KWTaskInfo::getDurValueByTaskInfo(sheet.plan.document.get(), task),
                                       task->DurationUnits);
}

void addDone(const Sheet &sheet, int pos, QString &text)
{
    const KWTaskInfo *task = sheet.plan.task(pos);
    if (task->Milestone && !task->isParent() && task->Percent == 0)
        return;
    addNumber(text, qRound(task->Percent * 100));
    text += QLatin1Char('%');
}

void addSlack(const Sheet &sheet, int pos, QString &text)
{
    addCompactSlack(text, sheet.plan.urgent(pos)->LateSlack);
}

void addStartSlack(const Sheet &sheet, int pos, QString &text)
{
    addCompactSlack(text, sheet.plan.task(pos)->EarlySlack);
}

void addLateStart(const Sheet &sheet, int pos, QString &text)
{
    addMoment(text, sheet, sheet.times.lateStart(pos), true);
}

void addLateFinish(const Sheet &sheet, int pos, QString &text)
{
    addMoment(text, sheet, sheet.times.lateFinish(pos), false);
}

void addPredecessors(const Sheet &sheet, int pos, QString &text)
{
    addTags(text, sheet.plan, sheet.plan.task(pos)->Predecessors);
}

void addSuccessors(const Sheet &sheet, int pos, QString &text)
{
    addTags(text, sheet.plan, sheet.plan.task(pos)->Depends);
}

void addResources(const Sheet &sheet, int pos, QString &text)
{
    text += sheet.plan.task(pos)->Resources;
}

void addNotes(const Sheet &sheet, int pos, QString &text)
{
    text += sheet.plan.task(pos)->Notes;
}

void addWork(const Sheet &sheet, int pos, QString &text)
{
    text += DataFormat::formatNumber(plan::workHours(sheet.plan, *sheet.plan.task(pos)), 0, 2, 1) +
            QLatin1Char('h');
}

template <double TaskRecord::*member>
void addCost(const Sheet &sheet, int pos, QString &text)
{
    text += sheettext::moneyText(sheet.plan.task(pos)->*member);
}

void addBaseCost(const Sheet &sheet, int pos, QString &text)
{
    const QString &cost = sheet.plan.task(pos)->BaselineCost;
    if (!cost.isEmpty())
        text += sheettext::moneyText(cost.toDouble());
}

template <quint32 TaskRecord::*member, shown::Clock (*clock)(const Plan &, quint32)>
void addBase(const Sheet &sheet, int pos, QString &text)
{
    const quint32 secs = sheet.plan.task(pos)->*member;
    if (secs != 0)
        addMoment(text, sheet, clock(sheet.plan, secs), clock == shown::startOf);
}

constexpr Column table[] = {
    {"number", "#", true, addPosition},
    {"critical", "", false, addMark},
    {"id", QT_TR_NOOP("ID"), true, addId},
    {"wbs", QT_TR_NOOP("WBS"), false, addWbs},
    {"level", QT_TR_NOOP("Level"), true, addLevel},
    {"name", QT_TR_NOOP("Task"), false, addName},
    {"start", QT_TR_NOOP("Start"), false, addStart},
    {"finish", QT_TR_NOOP("Finish"), false, addFinish},
    {"duration", QT_TR_NOOP("Dur"), true, addDuration},
    {"done", QT_TR_NOOP("Done"), true, addDone},
    {"slack", QT_TR_NOOP("Slack"), true, addSlack},
    {"start-slack", QT_TR_NOOP("Start slack"), true, addStartSlack},
    {"late-start", QT_TR_NOOP("Late start"), false, addLateStart},
    {"late-finish", QT_TR_NOOP("Late finish"), false, addLateFinish},
    {"predecessors", QT_TR_NOOP("After"), false, addPredecessors},
    {"successors", QT_TR_NOOP("Before"), false, addSuccessors},
    {"resources", QT_TR_NOOP("Resources"), false, addResources},
    {"work", QT_TR_NOOP("Work"), true, addWork},
    {"cost", QT_TR_NOOP("Cost"), true, addCost<&KWTaskInfo::Cost>},
    {"remaining", QT_TR_NOOP("Remaining"), true, addCost<&KWTaskInfo::RemainingCost>},
    {"base-start", QT_TR_NOOP("Base start"), false, addBase<&KWTaskInfo::BaseStart, shown::startOf>},
    {"base-finish", QT_TR_NOOP("Base finish"), false, addBase<&KWTaskInfo::BaseFinish, shown::endOf>},
    {"base-cost", QT_TR_NOOP("Base cost"), true, addBaseCost},
    {"notes", QT_TR_NOOP("Notes"), false, addNotes},
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
