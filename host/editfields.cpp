// What 'set' can set of a task.
#include "datetext.h"
#include "edit.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"
#include "table/rowcolumndata.h"
#include "taskref.h"
#include "texts.h"

namespace editverbs {

namespace {

constexpr quint32 milestoneSecs = 1; // a milestone's finish lies one second after its start
constexpr double oneDay = 1;
constexpr unsigned int day = 4;

bool readMoment(Edit &edit, const QString &text, datetext::Moment &moment)
{
    return datetext::parseMoment(text, moment) ||
           edit.refuse(t("'%1' is not a date").arg(text), t("write it as 2026-02-28 or 2026-02-28T17:00"));
}

bool isYes(const QString &text)
{
    return text == QLatin1String("yes") || text == QLatin1String("1") || text == QLatin1String("true");
}

bool refuseSummary(Edit &edit, const KWTaskInfo &task)
{
    return edit.refuse(
        t("%1 is a summary: that comes from the tasks below it").arg(taskref::named(edit.document, task.ID)),
        t("set it on those"));
}

void setLength(Edit &edit, KWTaskInfo &task, double value, unsigned int unit)
{
    const quint32 finish = KWTaskInfo::backwardsDateTime(&edit.document, task.Start, value, unit);
    task.Milestone = value == 0;
    task.DurationUnits = unit;
    task.Finish = task.Milestone ? task.Start + milestoneSecs : qMax(finish, task.Start + milestoneSecs);
    datesChanged(edit.document, task);
}

bool setName(Edit &, KWTaskInfo &task, const QString &text)
{
    task.Name = text;
    return true;
}

bool setNotes(Edit &, KWTaskInfo &task, const QString &text)
{
    task.Notes = text;
    return true;
}

bool setStart(Edit &edit, KWTaskInfo &task, const QString &text)
{
    datetext::Moment moment;
    if (!readMoment(edit, text, moment))
        return false;
    const quint32 oldStart = task.Start;
    task.moveStartTo(&edit.document, plan::startSecs(edit.document, moment));
    edit.document.taskCollection()->recalculateTask(&task, oldStart);
    if (task.Milestone && !task.isParent())
        task.Finish = task.Start + milestoneSecs;
    datesChanged(edit.document, task);
    pushBehindPredecessors(edit.document, task);
    return true;
}

bool setFinish(Edit &edit, KWTaskInfo &task, const QString &text)
{
    datetext::Moment moment;
    if (!readMoment(edit, text, moment))
        return false;
    const quint32 finish = plan::finishSecs(edit.document, moment);
    if (finish <= task.Start)
        return edit.refuse(
            t("'%1' lies before the start of %2").arg(text, taskref::named(edit.document, task.ID)),
            t("set start first; it takes the finish along"));
    task.Finish = finish;
    task.Milestone = false;
    datesChanged(edit.document, task);
    return true;
}

bool setDuration(Edit &edit, KWTaskInfo &task, const QString &text)
{
    datetext::Duration length;
    if (!datetext::parseDuration(text, length, task.DurationUnits))
        return edit.refuse(t("'%1' is not a duration").arg(text),
                           t("write it as 3d, 12h, 30min, 1.5w or 2mon"));
    setLength(edit, task, length.value, length.unit);
    return true;
}

bool setMilestone(Edit &edit, KWTaskInfo &task, const QString &text)
{
    if (isYes(text) != task.Milestone)
        setLength(edit, task, isYes(text) ? 0 : oneDay, isYes(text) ? task.DurationUnits : day);
    return true;
}

bool setPercent(Edit &edit, KWTaskInfo &task, const QString &text)
{
    bool ok = false;
    const double percent = QString(text).remove(QLatin1Char('%')).toDouble(&ok);
    if (!ok || percent < 0 || percent > 100)
        return edit.refuse(t("'%1' is not a percentage").arg(text), t("write a number from 0 to 100"));
    task.setPercent(percent / 100);
    task.Progress = KWTaskInfo::indexFromPercent(task.Percent);
    task.updateOneTaskFirstWidth(&edit.document);
    task.updateRemainCost(&edit.document);
    task.updateParentPercent(&edit.document);
    return true;
}

bool setPriority(Edit &edit, KWTaskInfo &task, const QString &text)
{
    bool ok = false;
    const int priority = text.toInt(&ok);
    if (!ok)
        return edit.refuse(t("'%1' is not a whole number").arg(text));
    task.Priority = priority;
    return true;
}

bool setHeight(Edit &edit, KWTaskInfo &task, const QString &text)
{
    constexpr double tallest = 10000;
    bool ok = false;
    const double pixels = text.toDouble(&ok);
    if (!ok || !(pixels > 0 && pixels <= tallest))
        return edit.refuse(t("'%1' is no row height").arg(text), t("write a number of pixels"));
    edit.document.rowColumnData()->replaceRowHeight(edit.document.getPosByID(task.ID), pixels);
    edit.document.taskCollection()->updateTaskPoint();
    return true;
}

bool setHyperlinks(Edit &, KWTaskInfo &task, const QString &text)
{
    task.hyperlinks.clear();
    for (const QString &part : text.split(QLatin1Char(';'))) {
        if (part.trimmed().isEmpty())
            continue;
        KWHyperlink *link = task.hyperlinks.autoAddHyperlink();
        link->address = part.trimmed();
        link->type = KWHyperlink::hyperlinkType(link->address);
    }
    return true;
}

template <quint32 TaskRecord::*member, quint32 (*secs)(KWDocument &, const datetext::Moment &)>
bool setBaseDate(Edit &edit, KWTaskInfo &task, const QString &text)
{
    datetext::Moment moment;
    if (!text.isEmpty() && !readMoment(edit, text, moment))
        return false;
    task.*member = text.isEmpty() ? 0 : secs(edit.document, moment);
    task.updateParentBaselineStartAndFinish(&edit.document);
    return true;
}

bool setBaseCost(Edit &edit, KWTaskInfo &task, const QString &text)
{
    bool ok = text.isEmpty();
    const double cost = text.isEmpty() ? 0 : text.toDouble(&ok);
    if (!ok)
        return edit.refuse(t("'%1' is no amount").arg(text), t("write a number"));
    const double before = task.BaselineCost.toDouble();
    task.BaselineCost = text;
    task.updateParentStrBaseCost(&edit.document, cost - before);
    return true;
}

struct TaskField
{
    const char *name;
    const char *value;
    bool ofSummaries; // a summary has a value of its own
    bool (*set)(Edit &, KWTaskInfo &, const QString &);
};

constexpr TaskField fieldTable[] = {
    {"name", "TEXT", true, setName},
    {"start", "DATE", true, setStart},
    {"finish", "DATE", false, setFinish},
    {"duration", "3d|12h|30min|1.5w|2mon", false, setDuration},
    {"percent", "0..100", false, setPercent},
    {"milestone", "yes|no", false, setMilestone},
    {"priority", "NUMBER", true, setPriority},
    {"notes", "TEXT", true, setNotes},
    {"hyperlinks", "ADDRESS;ADDRESS...", true, setHyperlinks},
    {"height", "PIXELS", true, setHeight},
    {"base-start", "DATE", false, setBaseDate<&KWTaskInfo::BaseStart, plan::startSecs>},
    {"base-finish", "DATE", false, setBaseDate<&KWTaskInfo::BaseFinish, plan::finishSecs>},
    {"base-cost", "NUMBER", false, setBaseCost},
};

const TaskField *fieldNamed(const QString &name)
{
    for (const TaskField &field : fieldTable)
        if (name == QLatin1String(field.name))
            return &field;
    return nullptr;
}
}

const QStringList &taskFields()
{
    static const QStringList names = [] {
        QStringList all;
        for (const TaskField &field : fieldTable)
            all.append(QLatin1String(field.name));
        return all;
    }();
    return names;
}

QString taskFieldsHelp()
{
    QStringList texts;
    for (const TaskField &field : fieldTable)
        texts.append(QLatin1String(field.name) + QLatin1Char('=') + QLatin1String(field.value));
    return texts.join(QLatin1Char(' '));
}

bool setTaskFields(Edit &edit, KWTaskInfo &task, const editline::Pairs &values)
{
    for (const auto &[name, value] : values) {
        const TaskField *field = fieldNamed(name);
        if (task.isParent() && !field->ofSummaries)
            return refuseSummary(edit, task);
        if (!field->set(edit, task, value))
            return false;
    }
    return true;
}

void datesChanged(KWDocument &document, KWTaskInfo &task)
{
    KWTaskCollection *collection = document.taskCollection();
    collection->refreshTask(&task);
    if (!task.isParent()) {
        task.updateCostAndWork(&document);
        task.updateParentPercent(&document);
    }
    QList<quint32> ids;
    collection->subIDListByTask(&task, ids);
    std::vector<KWTaskInfo *> moved{&task};
    for (const quint32 id : qAsConst(ids))
        moved.push_back(document.getTaskInfoByID(id));
    collection->pushSuccessorsOf(moved);
    collection->updateTaskInfoParentTime(&task);
}

void pushBehindPredecessors(KWDocument &document, const KWTaskInfo &task)
{
    KWTaskCollection *collection = document.taskCollection();
    std::vector<KWTaskInfo *> predecessors;
    for (const quint32 id : task.Predecessors)
        if (KWTaskInfo *predecessor = document.getTaskInfoByID(id))
            predecessors.push_back(predecessor);
    QList<KWTaskInfo *> above;
    collection->parentIDListByTask(&task, above);
    for (const KWTaskInfo *summary : qAsConst(above))
        for (const quint32 id : summary->Predecessors)
            if (KWTaskInfo *predecessor = document.getTaskInfoByID(id))
                predecessors.push_back(predecessor);
    collection->pushSuccessorsOf(predecessors);
    collection->updateTaskInfoParentTime(const_cast<KWTaskInfo *>(&task));
}
}
