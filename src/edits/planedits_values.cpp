// Values of tasks, links between them, and what the whole plan takes: baselines, scheduling, columns.
#include "edits/oneedit.h"
#include "edits/planedits.h"
#include "edits/starttogether.h"
#include "edits/taskvalues.h"
#include "engine/cost/baselines.h"
#include "engine/network/links.h"
#include "engine/network/rollup.h"
#include "engine/time/duration.h"
#include "engine/time/timescale.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"
#include "table/rowcolumndata.h"
#include <algorithm>
#include <cmath>

namespace {

// What a change of one task reaches is found task by task; for more than these the whole list is kept.
constexpr std::size_t fewTasks = 8;
}

EditAnswer PlanEdits::set(const QVector<quint32> &ids, const TaskValues &values)
{
    OneEdit edit(step());
    const std::vector<KWTaskInfo *> tasks = edit.named(ids);
    if (edit.isRefused())
        return edit.answer;
    for (const KWTaskInfo *task : tasks) {
        if (!taskvalues::judge(edit, task, values))
            return edit.answer;
    }
    edit.begin(tasks.size() <= fewTasks ? OneEdit::SingleTasks : OneEdit::AllTasks,
               taskvalues::movesTasks(values) ? OneEdit::MovesTasks : OneEdit::MovesNothing);
    for (KWTaskInfo *task : tasks)
        taskvalues::keep(edit, *task, values);
    for (KWTaskInfo *task : tasks) {
        taskvalues::apply(edit, *task, values);
        edit.answer.tasks.append(task->ID);
    }
    return values.rowHeight ? edit.finishRows() : edit.finish();
}

// ---- Links -----------------------------------------------------------------------------------------------

namespace {

void cutLink(KWTaskInfo &before, KWTaskInfo &after)
{
    before.removeDependIDByID(after.ID);
    after.removeDependOnIDByID(before.ID);
}

// The marks of the active task's links are set anew when the links have changed.
class Highlight
{
public:
    explicit Highlight(KWTaskCollection &collection)
        : m_collection(collection)
    {
        m_collection.clearDependOrDependOnActive();
    }
    ~Highlight() { m_collection.setTaskInfoActive(m_collection.getTaskInfoActive()); }
    Q_DISABLE_COPY(Highlight)

private:
    KWTaskCollection &m_collection;
};

QString ringText(const OneEdit &edit, const QList<quint32> &ring)
{
    constexpr int longest = 12;
    QStringList names;
    for (int i = 0; i < ring.size(); ++i) {
        if (ring.size() > longest && i == longest / 2) {
            names.append(QStringLiteral("..."));
            i += ring.size() - longest;
        }
        if (const KWTaskInfo *task = edit.task(ring.at(i)))
            names.append(edit.nameOf(*task));
    }
    if (const KWTaskInfo *first = edit.task(ring.value(0)))
        names.append(edit.nameOf(*first));
    return names.join(QString::fromUtf8(" \u2192 "));
}

void refuseLink(OneEdit &edit, const KWTaskLink &link)
{
    const QStringList both{edit.nameOf(*edit.task(link.successor)),
                           edit.nameOf(*edit.task(link.predecessor))};
    switch (link.refusal) {
    case LinkRefusal::Self:
        edit.refuse(EditRefusal::LinkToItself, {both.first()});
        return;
    case LinkRefusal::Twice:
        edit.refuse(EditRefusal::LinkTwice, both);
        return;
    case LinkRefusal::OwnSummary:
        edit.refuse(EditRefusal::LinkToOwnTask, both);
        return;
    case LinkRefusal::OwnSubtask:
        edit.refuse(EditRefusal::LinkToOwnSummary, both);
        return;
    case LinkRefusal::Missing:
    case LinkRefusal::None:
    case LinkRefusal::Loop:
        break;
    }
    edit.refuse(EditRefusal::LinkInRing, {both.first(), ringText(edit, link.ring)});
    edit.answer.ring = link.ring;
}

// The tasks of a chain, in its order.
std::vector<KWTaskInfo *> chained(OneEdit &edit, const QVector<quint32> &chain)
{
    std::vector<KWTaskInfo *> tasks;
    edit.named(chain);
    for (const quint32 id : chain) {
        if (!edit.isRefused())
            tasks.push_back(edit.task(id));
    }
    if (tasks.size() == 1)
        edit.refuse(EditRefusal::NoTasks);
    return tasks;
}
}

EditAnswer PlanEdits::link(const QVector<quint32> &chain)
{
    OneEdit edit(step());
    const std::vector<KWTaskInfo *> tasks = chained(edit, chain);
    if (edit.isRefused())
        return edit.answer;
    QList<KWTaskLink> wanted;
    for (std::size_t i = 1; i < tasks.size(); ++i)
        wanted.append({tasks[i - 1]->ID, tasks[i]->ID, {}, {}});
    links::judgeAll(edit.tasks(), wanted);
    for (const KWTaskLink &link : qAsConst(wanted)) {
        if (link.refusal != LinkRefusal::None) {
            refuseLink(edit, link);
            return edit.answer;
        }
    }
    edit.begin(tasks.size() <= fewTasks ? OneEdit::SingleTasks : OneEdit::AllTasks);
    for (KWTaskInfo *task : tasks) {
        edit.keepValues(*task);
        edit.keepReach(*task);
    }
    const Highlight highlight(*edit.document().taskCollection());
    for (std::size_t i = 1; i < tasks.size(); ++i) {
        links::insert(edit.tasks(), *tasks[i - 1], *tasks[i]);
        edit.changed(*tasks[i]);
        edit.answer.tasks.append(tasks[i]->ID);
    }
    edit.changes.what |= settling::Links;
    return edit.finish();
}

EditAnswer PlanEdits::unlink(const QVector<quint32> &chain)
{
    OneEdit edit(step());
    const std::vector<KWTaskInfo *> tasks = chained(edit, chain);
    if (edit.isRefused())
        return edit.answer;
    for (std::size_t i = 1; i < tasks.size(); ++i) {
        if (!tasks[i]->Predecessors.contains(tasks[i - 1]->ID))
            return edit.refuse(EditRefusal::NotLinked, {edit.nameOf(*tasks[i]), edit.nameOf(*tasks[i - 1])});
    }
    edit.begin(OneEdit::SingleTasks);
    for (KWTaskInfo *task : tasks)
        edit.keepValues(*task);
    const Highlight highlight(*edit.document().taskCollection());
    for (std::size_t i = 1; i < tasks.size(); ++i) {
        cutLink(*tasks[i - 1], *tasks[i]);
        edit.answer.tasks.append(tasks[i]->ID);
    }
    edit.changes.what |= settling::Links; // nothing is pushed, and nothing comes earlier
    return edit.finish();
}

EditAnswer PlanEdits::unlinkAll(const QVector<quint32> &ids)
{
    OneEdit edit(step());
    const std::vector<KWTaskInfo *> tasks = edit.named(ids);
    if (edit.isRefused())
        return edit.answer;
    edit.begin(tasks.size() <= fewTasks ? OneEdit::SingleTasks : OneEdit::AllTasks);
    const Highlight highlight(*edit.document().taskCollection());
    for (KWTaskInfo *task : tasks) {
        edit.keepValues(*task);
        const QList<quint32> before = task->Predecessors;
        const QList<quint32> after = task->Depends;
        for (const quint32 id : before + after) {
            if (KWTaskInfo *other = edit.task(id)) {
                edit.keepValues(*other);
                cutLink(*other, *task);
                cutLink(*task, *other);
            }
        }
        edit.answer.tasks.append(task->ID);
    }
    edit.changes.what |= settling::Links;
    return edit.finish();
}

// ---- Baselines -------------------------------------------------------------------------------------------

namespace {

EditAnswer changeBaseline(OneEdit &edit, const QVector<quint32> &ids, bool isKept)
{
    KWDocument &document = edit.document();
    const outline::Tasks all = edit.tasks();
    std::vector<TaskRecord *> tasks(all.list.begin(), all.list.end());
    if (!ids.isEmpty()) {
        const std::vector<KWTaskInfo *> named = edit.named(ids);
        if (edit.isRefused())
            return edit.answer;
        tasks.assign(named.begin(), named.end());
        for (const KWTaskInfo *task : named) {
            for (TaskRecord *below : outline::descendants(all, *task))
                tasks.push_back(below);
        }
    }
    edit.begin(OneEdit::AllTasks | OneEdit::Options, OneEdit::MovesNothing);
    for (TaskRecord *task : tasks) {
        edit.changed(*task);
        if (task->isParent())
            continue;
        const bool isDated = rollup::isDated(*task);
        baselines::Baseline baseline;
        if (isKept)
            baseline = {isDated ? task->Start : 0, isDated ? task->Finish : 0,
                        baselines::costText(task->Cost)};
        baselines::store(baseline, *task);
    }
    if (ids.isEmpty())
        document.BaselineCost = isKept ? document.getToltalCost() : 0;
    edit.changes.what |= settling::Baseline;
    return edit.finish();
}
}

EditAnswer PlanEdits::setBaseline(const QVector<quint32> &ids)
{
    OneEdit edit(step());
    return changeBaseline(edit, ids, true);
}

EditAnswer PlanEdits::clearBaseline(const QVector<quint32> &ids)
{
    OneEdit edit(step());
    return changeBaseline(edit, ids, false);
}

// ---- Scheduling ------------------------------------------------------------------------------------------

EditAnswer PlanEdits::schedule(Beginning beginning, quint32 projectStart)
{
    OneEdit edit(step());
    KWDocument &document = edit.document();
    edit.begin(OneEdit::AllTasks);
    if (beginning != AsGiven) {
        if (beginning == AsSoonAsPossible)
            settling::startTogether(document, projectStart);
        else
            settling::startLinkedTogether(document);
        for (const KWTaskInfo *task : document.taskList()) {
            if (!task->isParent())
                edit.changed(*task);
        }
    }
    edit.changes.what |= settling::Everything;
    return edit.finish();
}

// ---- Options ---------------------------------------------------------------------------------------------

namespace {

EditRefusal refusalOf(const KWDocument &document, const PlanOptions &options)
{
    constexpr qint32 widest = 10000;
    const auto isUnit = [](const std::optional<quint32> &unit) {
        return !unit || *unit < duration::unitCount;
    };
    const quint32 major = options.majorUnit.value_or(document.MajorUnit);
    if (!isUnit(options.projectUnit) || !isUnit(options.minorUnit) || major > duration::smallestMajorUnit ||
        (options.minorUnit && *options.minorUnit <= major))
        return EditRefusal::BadUnit;
    if (options.unitWidth && (*options.unitWidth < 1 || *options.unitWidth > widest))
        return EditRefusal::BadWidth;
    if (options.baselineCost && !std::isfinite(*options.baselineCost))
        return EditRefusal::BadAmount;
    return EditRefusal::None;
}

template <typename Value>
void take(const std::optional<Value> &wanted, Value &value)
{
    if (wanted)
        value = *wanted;
}
}

EditAnswer PlanEdits::setOptions(const PlanOptions &options)
{
    OneEdit edit(step());
    KWDocument &document = edit.document();
    const EditRefusal refusal = refusalOf(document, options);
    if (refusal == EditRefusal::BadAmount)
        return edit.refuse(refusal, {QString::number(*options.baselineCost)});
    if (refusal != EditRefusal::None)
        return edit.refuse(refusal);
    edit.begin(OneEdit::Options, OneEdit::MovesNothing);
    take(options.projectUnit, document.ProjectUnit);
    take(options.startDate, document.StartDate);
    take(options.finishDate, document.FinishDate);
    take(options.majorUnit, document.MajorUnit);
    if (options.minorUnit)
        document.MinorUnit = timescale::storedMinor(document.MajorUnit, *options.minorUnit);
    take(options.unitWidth, document.UnitWidth);
    take(options.autoZoom, document.AutoZoom);
    take(options.autoProgress, document.Auto);
    take(options.theme, document.ThemeIndex);
    take(options.baselineCost, document.BaselineCost);
    edit.changes.what |= settling::Links; // of no task: slack is counted in the unit of the scale
    return edit.finishRows();
}

// ---- The table -------------------------------------------------------------------------------------------

EditAnswer PlanEdits::setColumn(const QString &title, const ColumnValues &values)
{
    constexpr double widest = 10000;
    OneEdit edit(step());
    RowColumnData::ColumnData *column = edit.document().rowColumnData()->getColumnDataByName(title);
    if (!column)
        return edit.refuse(EditRefusal::NoSuchColumn, {title});
    if (values.width && !(*values.width > 0 && *values.width <= widest))
        return edit.refuse(EditRefusal::BadWidth);
    edit.begin(OneEdit::Columns, OneEdit::MovesNothing);
    if (values.isHidden)
        column->isHide = *values.isHidden;
    if (values.width)
        column->width = *values.width;
    return edit.finish();
}

EditAnswer PlanEdits::moveColumn(int from, int to)
{
    OneEdit edit(step());
    RowColumnData &table = *edit.document().rowColumnData();
    if (!table.getColumnDataByColumn(from) || !table.getColumnDataByColumn(to))
        return edit.refuse(EditRefusal::NoSuchColumn,
                           {QString::number(table.getColumnDataByColumn(from) ? to : from)});
    edit.begin(OneEdit::Columns, OneEdit::MovesNothing);
    table.moveColumnDataList(from, to);
    return edit.finish();
}
