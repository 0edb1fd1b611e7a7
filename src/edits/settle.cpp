#include "edits/settle.h"
#include "edits/settlepass.h"
#include "engine/cost/baselines.h"
#include "engine/cost/cost.h"
#include "engine/cost/names.h"
#include "engine/network/inheritedtails.h"
#include "engine/network/keptlatedates.h"
#include "engine/network/latedates.h"
#include "engine/network/push.h"
#include "engine/network/rollup.h"
#include "engine/record/branches.h"
#include "engine/record/outline.h"
#include "engine/record/resource.h"
#include "engine/record/taskahead.h"
#include "engine/time/duration.h"
#include "engine/time/timescale.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"
#include "support/kwclock.h"
#include "support/longwork.h"
#include <algorithm>
#include <cstring>
#include <optional>

namespace settling {

namespace {

using outline::Tasks;

constexpr unsigned wholePlan = Calendar | Everything | AsItStands;
constexpr unsigned movesTasks = Dates | Length | Outline | Links | wholePlan;
// Pushes and summaries move in turns. Every turn moves something later, so few are needed; a plan of links
// that cannot all hold must end as well.
constexpr int mostTurns = 50;

Tasks tasksOf(const KWDocument &document)
{
    return document.outline();
}

bool isSame(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

// Tasks of a list, each once, in the order in which they came.
class TaskSet
{
public:
    explicit TaskSet(const Tasks &all)
        : m_all(all)
        , m_isIn(std::size_t(all.list.size()))
    {
    }

    bool add(TaskRecord *task)
    {
        const std::size_t pos = placeOf(*task);
        if (m_isIn[pos])
            return false;
        m_isIn[pos] = true;
        m_tasks.push_back(task);
        return true;
    }
    bool contains(const TaskRecord &task) const { return m_isIn[placeOf(task)]; }
    const std::vector<TaskRecord *> &tasks() const { return m_tasks; }

private:
    std::size_t placeOf(const TaskRecord &task) const { return std::size_t(m_all.index.posOf(task.ID)); }

    const Tasks &m_all;
    std::vector<bool> m_isIn; // by place
    std::vector<TaskRecord *> m_tasks;
};

using Span = latedates::Kept::Span;

// From the first start to the last finish of the tasks that have dates.
Span spanOf(const Tasks &tasks)
{
    Span span;
    for (int pos = 0; pos < tasks.list.size(); ++pos) {
        fetchTaskAhead(tasks.list, pos + tasksAhead);
        const TaskRecord *task = tasks.list[pos];
        if (!rollup::isDated(*task))
            continue;
        span.start = span.start == 0 ? task->Start : std::min(span.start, task->Start);
        span.finish = std::max(span.finish, task->Finish);
    }
    return span;
}

class Settling
{
public:
    Settling(KWDocument &document, const Changes &changes, Replaced *replaced)
        : m_document(document)
        , m_collection(*document.taskCollection())
        , m_tasks(tasksOf(document))
        , m_calendar(document.workCalendar())
        , m_hourScale(document.getMinorUnit() >= duration::Hour)
        , m_what(changes.what)
        , m_replaced(replaced)
        , m_named(m_tasks)
        , m_summaries(m_tasks)
        , m_touched(m_tasks)
        , m_progressed(m_tasks)
    {
        for (const quint32 id : changes.tasks) {
            if (TaskRecord *task = m_tasks.byId(id))
                m_named.add(task);
        }
        for (const quint32 id : changes.summaries) {
            if (TaskRecord *task = m_tasks.byId(id))
                m_summaries.add(task);
        }
    }

    QVector<Push> run()
    {
        enum { Begun, Moved, Summed, Found, Done };
        const auto goesOn = [](int done) { return LongWork::goesOn(LongWork::Scheduling, done, Done); };
        if (!goesOn(Begun))
            return {};
        if (m_what & AsItStands)
            rollUpAll();
        else if (isWhole())
            moveAll();
        else if (m_what & movesTasks)
            moveReached();
        if (!goesOn(Moved))
            return {};
        measure();
        sumPercents();
        if (!(m_what & AsItStands))
            sumMoney();
        sumBaselines();
        if (!goesOn(Summed) || (m_what & SumsAlone))
            return {};
        if (m_what & movesTasks)
            findLateDates();
        else
            refreshSlack();
        if (!goesOn(Found))
            return {};
        if (m_what & (Outline | Everything))
            emboldenSummaries();
        drawChart();
        if (!(m_what & AsItStands))
            m_document.setModified(true);
        return m_pushes;
    }

private:
    bool isWhole() const { return m_what & wholePlan; }

    void before(TaskRecord &task) const
    {
        if (m_replaced)
            m_replaced->before(task);
    }

    void touch(TaskRecord *task)
    {
        if (m_touched.add(task))
            before(*task);
    }

    // ---- Dates -------------------------------------------------------------------------------------------

    // Summaries above these tasks, and these where they are summaries; those whose dates became others.
    std::vector<TaskRecord *> rollUpFrom(const std::vector<TaskRecord *> &tasks)
    {
        std::vector<TaskRecord *> changed;
        for (TaskRecord *task : outline::summariesWithAncestors(m_tasks, tasks)) {
            touch(task);
            const quint32 start = task->Start;
            const quint32 finish = task->Finish;
            rollup::datesOfDated(m_calendar, m_tasks, *task);
            if (task->Start != start || task->Finish != finish)
                changed.push_back(task);
        }
        return changed;
    }

    void remember(const std::vector<push::Move> &moves)
    {
        if (m_pushOf.empty() && !moves.empty())
            m_pushOf.assign(std::size_t(m_tasks.list.size()), -1);
        for (std::size_t i = 0; i < moves.size(); ++i) {
            if (i + tasksAhead < moves.size() && moves[i + tasksAhead].pushedBy) {
                __builtin_prefetch(&moves[i + tasksAhead].task->ID);
                __builtin_prefetch(&moves[i + tasksAhead].pushedBy->ID);
            }
            const push::Move &move = moves[i];
            if (!move.pushedBy)
                continue;
            int &place = m_pushOf[std::size_t(m_tasks.index.posOf(move.task->ID))];
            if (place < 0) {
                place = m_pushes.size();
                m_pushes.append({move.task->ID, 0});
            }
            m_pushes[place].pushedBy = move.pushedBy->ID;
        }
    }

    void moveAll()
    {
        std::vector<quint32> lengths;
        for (TaskRecord *task : m_tasks.list) {
            lengths.push_back(task->DurationSecs);
            touch(task);
        }
        for (int turn = 0; turn < mostTurns; ++turn) {
            const std::vector<push::Move> moves =
                push::all(m_calendar, m_tasks, m_hourScale, push::Undated::Stay);
            remember(moves);
            if (moves.empty())
                break;
        }
        rollUpAll();
        m_lengthsBefore = std::move(lengths);
    }

    // Inner summaries first.
    void rollUpAll()
    {
        for (int pos = m_tasks.list.size() - 1; pos >= 0; --pos) {
            TaskRecord *task = m_tasks.list[pos];
            if (!task->isParent())
                continue;
            rollup::datesOfDated(m_calendar, m_tasks, *task);
            touch(task);
        }
    }

    void moveReached()
    {
        std::vector<TaskRecord *> starts = m_named.tasks();
        for (TaskRecord *task : m_named.tasks()) {
            touch(task);
            // What lies below a summary went along with it.
            for (TaskRecord *below : outline::descendants(m_tasks, *task)) {
                touch(below);
                if (!m_named.contains(*below))
                    starts.push_back(below);
            }
        }
        const auto byPlace = [this](const TaskRecord *a, const TaskRecord *b) {
            return m_tasks.index.posOf(a->ID) < m_tasks.index.posOf(b->ID);
        };
        std::sort(starts.begin(), starts.end(), byPlace); // summaries before what they hold
        std::vector<TaskRecord *> grown = starts;
        std::vector<TaskRecord *> moved = starts;
        moved.insert(moved.end(), m_summaries.tasks().begin(), m_summaries.tasks().end());
        for (int turn = 0; turn < mostTurns; ++turn) {
            const std::vector<TaskRecord *> changed = rollUpFrom(moved);
            grown.insert(grown.end(), changed.begin(), changed.end());
            std::vector<push::Link> links = linksBefore(starts);
            addLinksAfter(grown, links);
            if (links.empty())
                break;
            std::vector<push::Move> moves;
            moved = push::along(m_calendar, m_tasks, m_hourScale, links, push::Undated::Stay, &moves,
                                m_replaced ? m_replaced->before : push::BeforeChange(),
                                &m_collection.keptNetwork());
            remember(moves);
            if (moved.empty())
                break;
            // A push leaves no successor of what it passed too early, but for summaries that grow with it.
            grown.clear();
            for (std::size_t i = 0; i < moved.size(); ++i) {
                fetchTaskAhead(moved, int(i) + tasksAhead);
                TaskRecord *task = moved[i];
                touch(task);
                if (task->isParent())
                    grown.push_back(task);
            }
        }
    }

    // The links that a task comes too early for: its own, and those of the summaries above it. A summary is
    // pushed as a whole, and before what it holds.
    std::vector<push::Link> linksBefore(const std::vector<TaskRecord *> &tasks) const
    {
        std::vector<push::Link> links;
        TaskIndex pushed;
        for (TaskRecord *task : tasks) {
            if (!rollup::isDated(*task))
                continue;
            const std::vector<TaskRecord *> above = outline::ancestors(m_tasks, *task);
            const auto isPushed = [&](const TaskRecord *summary) { return pushed.contains(summary->ID); };
            if (std::any_of(above.begin(), above.end(), isPushed))
                continue;
            const std::size_t count = links.size();
            addLinksBefore(*task, *task, links);
            for (const TaskRecord *summary : above)
                addLinksBefore(*summary, *task, links);
            if (links.size() > count)
                pushed.add(task->ID);
        }
        return links;
    }

    void addLinksBefore(const TaskRecord &linked, TaskRecord &task, std::vector<push::Link> &links) const
    {
        for (const quint32 id : linked.Predecessors) {
            const TaskRecord *predecessor = m_tasks.byId(id);
            if (predecessor && rollup::isDated(*predecessor) && !push::holds(predecessor->Finish, task.Start))
                links.push_back({predecessor, &task});
        }
    }

    void addLinksAfter(const std::vector<TaskRecord *> &tasks, std::vector<push::Link> &links) const
    {
        for (std::size_t i = 0; i < tasks.size(); ++i) {
            fetchTaskAhead(tasks, int(i) + tasksAhead);
            const TaskRecord *task = tasks[i];
            if (!rollup::isDated(*task))
                continue;
            for (const quint32 id : task->Depends) {
                TaskRecord *successor = m_tasks.byId(id);
                if (successor && rollup::isDated(*successor) && !push::holds(task->Finish, successor->Start))
                    links.push_back({task, successor});
            }
        }
    }

    // ---- Lengths and percents ----------------------------------------------------------------------------

    void measure()
    {
        const std::vector<TaskRecord *> &touched = m_touched.tasks();
        for (std::size_t i = 0; i < touched.size(); ++i) {
            fetchTaskAhead(touched, int(i) + tasksAhead);
            TaskRecord *task = touched[i];
            if (rollup::isDated(*task))
                task->DurationSecs =
                    duration::secs(m_calendar, task->Start, task->Finish, task->DurationUnits);
            if (task->isParent() || !task->isHaveResource())
                continue;
            // Work that was written by hand stays as long as the length does.
            if ((m_what & Everything) && !m_named.contains(*task) &&
                m_lengthsBefore[m_tasks.index.posOf(task->ID)] == task->DurationSecs)
                continue;
            for (Resource *resource : qAsConst(task->resourceList))
                resource->workSecs = cost::workSecs(*task, *resource);
        }
    }

    // The summaries that change with these tasks, inner ones first.
    std::vector<TaskRecord *> summariesOf(const std::vector<TaskRecord *> &tasks) const
    {
        if (!isWhole())
            return outline::summariesWithAncestors(m_tasks, tasks);
        std::vector<TaskRecord *> summaries;
        std::copy_if(m_tasks.list.rbegin(), m_tasks.list.rend(), std::back_inserter(summaries),
                     [](const TaskRecord *task) { return task->isParent(); });
        return summaries;
    }

    std::vector<TaskRecord *> changedTasks() const
    {
        std::vector<TaskRecord *> tasks = m_touched.tasks();
        tasks.insert(tasks.end(), m_named.tasks().begin(), m_named.tasks().end());
        tasks.insert(tasks.end(), m_summaries.tasks().begin(), m_summaries.tasks().end());
        return tasks;
    }

    void sumPercents()
    {
        if (!(m_what & (movesTasks | Progress)))
            return;
        for (TaskRecord *summary : summariesOf(changedTasks())) {
            const double old = summary->Percent;
            const double percent = rollup::percent(m_calendar, m_tasks, *summary);
            if (isSame(old, percent))
                continue;
            before(*summary);
            asTask(summary)->setPercent(percent);
            if (!isSame(old, summary->Percent))
                m_progressed.add(summary);
        }
        for (TaskRecord *task : m_named.tasks())
            m_progressed.add(task);
    }

    // ---- Money -------------------------------------------------------------------------------------------

    // Whether anything of the leaf became another.
    bool sumLeaf(const cost::Measures &measures, TaskRecord &leaf) const
    {
        const bool isNamed = !isWhole() && m_named.contains(leaf);
        const bool isAssigned = leaf.isHaveResource() || (isNamed && (m_what & Assignments));
        if (!isAssigned && !(isNamed && (m_what & Progress)))
            return false;
        const double oldCost = leaf.Cost;
        const double oldWork = leaf.Work;
        const double oldRemaining = leaf.RemainingCost;
        if (isAssigned) {
            const cost::Total total = cost::ofAssignments(measures, leaf);
            leaf.Cost = total.cost;
            leaf.Work = total.work;
        }
        leaf.RemainingCost = cost::remaining(leaf);
        // The same number in another unit is other work.
        return isNamed || !isSame(oldCost, leaf.Cost) || !isSame(oldWork, leaf.Work) ||
               !isSame(oldRemaining, leaf.RemainingCost);
    }

    // A summary that has lost its last child has nothing left of what it took from them.
    static void makeLeaf(TaskRecord &task)
    {
        task.Cost = task.Work = task.RemainingCost = 0;
        task.Resources.clear();
        baselines::store({}, task);
    }

    void sumMoney()
    {
        const cost::Measures measures = cost::measuresOf(m_calendar);
        std::vector<TaskRecord *> changed;
        const bool withNames = m_what & (Assignments | Everything);
        const std::vector<TaskRecord *> tasks = isWhole() ? m_touched.tasks() : changedTasks();
        for (std::size_t i = 0; i < tasks.size(); ++i) {
            fetchTaskAhead(tasks, int(i) + tasksAhead);
            TaskRecord *task = tasks[i];
            if (task->isParent())
                continue;
            if (m_what & Outline)
                before(*task); // a summary that lost its last child
            if (sumLeaf(measures, *task))
                changed.push_back(task);
            if (withNames && (task->isHaveResource() || ((m_what & Assignments) && m_named.contains(*task))))
                task->Resources = names::ofAssignments(*task);
        }
        if (m_what & (Outline | Assignments)) {
            for (TaskRecord *task : m_summaries.tasks()) {
                if (task->isParent() || task->isHaveResource())
                    continue;
                before(*task);
                makeLeaf(*task);
            }
            changed.insert(changed.end(), m_named.tasks().begin(), m_named.tasks().end());
            changed.insert(changed.end(), m_summaries.tasks().begin(), m_summaries.tasks().end());
        }
        forEachSummary(changed, [&](TaskRecord &summary, const std::vector<TaskRecord *> &leaves) {
            before(summary);
            const cost::Total total = cost::ofLeaves(measures, leaves);
            summary.Cost = total.cost;
            summary.Work = total.work;
            summary.RemainingCost = cost::remainingOfLeaves(leaves);
            if (!withNames)
                return;
            asTask(&summary)->clearResources();
            names::Distinct distinct;
            distinct.addLeaves(leaves);
            // Names that were typed where nobody is assigned stay.
            if (!(m_what & Everything) || !distinct.list().isEmpty())
                summary.Resources = distinct.text();
        });
    }

    void sumBaselines()
    {
        if (!(m_what & (Baseline | Outline | Everything)))
            return;
        std::vector<TaskRecord *> changed = m_named.tasks();
        changed.insert(changed.end(), m_summaries.tasks().begin(), m_summaries.tasks().end());
        forEachSummary(changed, [this](TaskRecord &summary, const std::vector<TaskRecord *> &leaves) {
            before(summary);
            baselines::store(baselines::ofLeaves(leaves), summary);
        });
    }

    // Each summary at or above these tasks, with the leaves below it.
    template <typename Visit>
    void forEachSummary(const std::vector<TaskRecord *> &changed, Visit visit)
    {
        const std::vector<TaskRecord *> summaries = summariesOf(changed);
        std::vector<TaskRecord *> tops;
        for (TaskRecord *summary : summaries) {
            if (summary->ParentID == 0 || !m_tasks.byId(summary->ParentID))
                tops.push_back(summary);
        }
        std::reverse(tops.begin(), tops.end());
        const outline::BranchRanges branches(m_tasks, tops);
        for (TaskRecord *summary : summaries)
            visit(*summary, branches.knows(*summary) ? branches.leavesBelow(*summary)
                                                     : outline::descendants(m_tasks, *summary));
    }

    // ---- Late dates --------------------------------------------------------------------------------------

    void findLateDates()
    {
        const unsigned int unit = latedates::slackUnit(m_document.getMinorUnit());
        const QString unitName = KWDocument::getNameByMinorUnit(unit, false);
        if (m_replaced) {
            m_span = m_collection.keptLateDates().update(m_tasks, m_calendar, unit, unitName,
                                                         m_replaced->beforeLate);
            return;
        }
        m_span = spanOf(m_tasks);
        latedates::LateDates late(m_calendar, m_span->finish, unit, unitName);
        std::vector<quint32> lengths;
        lengths.reserve(std::size_t(m_tasks.list.size()));
        for (const TaskRecord *task : m_tasks.list)
            lengths.push_back(rollup::isDated(*task) ? late.length(*task) : 0);
        const std::vector<latedates::Tail> tails = latedates::inheritedTails(m_tasks, lengths);
        for (int pos = 0; pos < m_tasks.list.size(); ++pos) {
            TaskRecord &task = *m_tasks.list[pos];
            if (rollup::isDated(task)) {
                late.apply(task, lengths[pos], tails[pos]);
            } else {
                task.LateStart = task.LateFinish = 0;
                task.EarlySlack.clear();
                task.LateSlack.clear();
                task.CriticalPath = false;
            }
        }
        latedates::spreadCritical(m_tasks);
    }

    // Work that has begun has no start slack.
    void refreshSlack()
    {
        if (m_progressed.tasks().empty())
            return;
        const unsigned int unit = latedates::slackUnit(m_document.getMinorUnit());
        latedates::SlackTexts texts(m_calendar, unit, KWDocument::getNameByMinorUnit(unit, false));
        for (TaskRecord *task : m_progressed.tasks()) {
            if (rollup::isDated(*task))
                latedates::writeSlack(*task, texts);
        }
    }

    // ---- The chart ---------------------------------------------------------------------------------------

    void emboldenSummaries()
    {
        for (TaskRecord *summary : summariesOf(changedTasks())) {
            before(*summary);
            summary->font.setWeight(QFont::Bold);
        }
        for (TaskRecord *task : m_summaries.tasks()) {
            if (task->isParent())
                continue;
            before(*task);
            task->font.setWeight(QFont::Normal);
        }
    }

    void drawChart();

    KWDocument &m_document;
    KWTaskCollection &m_collection;
    const Tasks m_tasks;
    const worktime::WorkCalendar &m_calendar;
    bool m_hourScale;
    unsigned m_what;
    Replaced *m_replaced;
    TaskSet m_named;
    TaskSet m_summaries;  // whose children became others
    TaskSet m_touched;    // whose dates may have become others
    TaskSet m_progressed; // whose percent may have become another
    std::vector<quint32> m_lengthsBefore;
    std::vector<int> m_pushOf; // by place: which of m_pushes; -1: none; empty before the first
    QVector<Push> m_pushes;
    std::optional<Span> m_span; // where late dates were worked out
};

// ---- The chart -------------------------------------------------------------------------------------------

// The chart's range. Whether it became another, or the width.
bool updateRange(KWDocument &document, Span span)
{
    KWTaskCollection &collection = *document.taskCollection();
    if (span.start == 0) // as without tasks
        span.start = span.finish = worktime::clampSecs(KWClock::now().date().startOfDay().toSecsSinceEpoch());
    const quint32 oldStart = collection.minDateStart();
    const quint32 oldFinish = collection.maxDateFinish();
    const int oldWidth = collection.totalWidth();
    collection.updateRangeOf(span.start, span.finish);
    collection.updateTotalWidth();
    return oldStart != collection.minDateStart() || oldFinish != collection.maxDateFinish() ||
           oldWidth != collection.totalWidth();
}

void place(const timescale::Scale &scale, TaskRecord &task)
{
    scale.placeBar(task);
    task.FirstWidth = scale.finishedWidth(task);
}

// Hidden bars as well: they are there when their summary is expanded, and progress is measured on them.
void placeAll(KWDocument &document)
{
    const timescale::Scale scale = document.taskCollection()->scale();
    const std::vector<double> rowYs = document.rowYs(true);
    const QList<TaskRecord *> &tasks = document.outline().list;
    for (int pos = 0; pos < tasks.size(); ++pos) {
        fetchTaskAhead(tasks, pos + tasksAhead);
        TaskRecord &task = *tasks[pos];
        place(scale, task);
        if (task.HideID == 0)
            task.y1 = task.y2 = timescale::wholePixels(rowYs[std::size_t(pos)]);
    }
}

void Settling::drawChart()
{
    if ((m_span && updateRange(m_document, *m_span)) || (m_what & (Outline | wholePlan))) {
        placeAll(m_document);
        return;
    }
    const timescale::Scale scale = m_collection.scale();
    const std::vector<TaskRecord *> &touched = m_touched.tasks();
    for (std::size_t i = 0; i < touched.size(); ++i) {
        fetchTaskAhead(touched, int(i) + tasksAhead);
        place(scale, *touched[i]);
    }
    for (TaskRecord *task : m_progressed.tasks())
        place(scale, *task);
}
}

QVector<Push> settle(KWDocument &document, const Changes &changes, Replaced *replaced)
{
    if (changes.what == 0 || !document.taskCollection())
        return {};
    return Settling(document, changes, replaced).run();
}

QVector<Push> settle(KWDocument &document, const Changes &changes)
{
    return settle(document, changes, nullptr);
}

void settleChart(KWDocument &document)
{
    if (!document.taskCollection())
        return;
    updateRange(document, spanOf(document.outline()));
    placeAll(document);
}
}
