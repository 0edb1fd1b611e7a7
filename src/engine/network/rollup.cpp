#include "engine/network/rollup.h"
#include "engine/record/taskrecord.h"
#include "engine/time/duration.h"
#include <algorithm>
#include <unordered_set>

namespace rollup {
namespace {

// The range of a set of tasks; none of them is not the same as one from 0 to 0.
class Span
{
public:
    void add(quint32 start, quint32 finish)
    {
        m_start = m_empty ? start : std::min(m_start, start);
        m_finish = m_empty ? finish : std::max(m_finish, finish);
        m_empty = false;
    }
    quint32 start() const { return m_start; }
    quint32 finish() const { return m_finish; }

private:
    bool m_empty = true;
    quint32 m_start = 0;
    quint32 m_finish = 0;
};

void store(const Span &span, TaskRecord &summary)
{
    summary.BaseStart = span.start();
    summary.BaseFinish = span.finish();
}

// Adds the leaves below the summary, the tasks already in `seen` and what lies below them left out.
void addSubtrees(const outline::Tasks &tasks, const TaskRecord &summary,
                 std::unordered_set<const TaskRecord *> &seen, Span &span)
{
    std::vector<const TaskRecord *> from{&summary};
    while (!from.empty()) {
        const TaskRecord *task = from.back();
        from.pop_back();
        for (const quint32 id : task->Childs) {
            const TaskRecord *child = tasks.byId(id);
            if (child && seen.insert(child).second) {
                if (child->isParent())
                    from.push_back(child);
                else
                    span.add(child->BaseStart, child->BaseFinish);
            }
        }
    }
}
}

namespace {

bool datesOf(const worktime::WorkCalendar &calendar, const outline::Tasks &tasks, TaskRecord &summary,
             bool datedOnly)
{
    Span span;
    for (const quint32 id : summary.Childs) {
        const TaskRecord *child = tasks.byId(id);
        if (child && (!datedOnly || isDated(*child)))
            span.add(child->Start, child->Finish);
    }
    if (span.start() == 0 || span.finish() == 0)
        return false;
    summary.Start = span.start();
    summary.Finish = span.finish();
    summary.DurationSecs = duration::secs(calendar, summary.Start, summary.Finish, summary.DurationUnits);
    return true;
}
}

bool dates(const worktime::WorkCalendar &calendar, const outline::Tasks &tasks, TaskRecord &summary)
{
    return datesOf(calendar, tasks, summary, false);
}

bool datesOfDated(const worktime::WorkCalendar &calendar, const outline::Tasks &tasks, TaskRecord &summary)
{
    return datesOf(calendar, tasks, summary, true);
}

double percent(const worktime::WorkCalendar &calendar, const outline::Tasks &tasks, const TaskRecord &summary)
{
    // Where nothing has begun no length makes a difference, and nearly every plan has many such summaries.
    const auto hasBegun = [&tasks](quint32 id) {
        const TaskRecord *child = tasks.byId(id);
        return child && child->Percent != 0.0;
    };
    if (std::none_of(summary.Childs.cbegin(), summary.Childs.cend(), hasBegun))
        return 0.0;
    double weighted = 0.0;
    double total = 0.0;
    for (const quint32 id : summary.Childs) {
        const TaskRecord *child = tasks.byId(id);
        if (!child || child->Milestone)
            continue;
        const double length = duration::ofTask(calendar, child->Start, child->Finish, child->DurationUnits);
        weighted += length * child->Percent;
        total += length;
    }
    return weighted != 0.0 && total != 0.0 ? weighted / total : 0.0;
}

void baseline(const std::vector<TaskRecord *> &below, TaskRecord &summary)
{
    Span span;
    for (const TaskRecord *task : below) {
        if (!task->isParent())
            span.add(task->BaseStart, task->BaseFinish);
    }
    store(span, summary);
}

void ancestorBaselines(const outline::Tasks &tasks, const TaskRecord &task)
{
    // A summary holds the one below it, so only the other branches of each are walked.
    Span span;
    std::unordered_set<const TaskRecord *> seen;
    const TaskRecord *below = nullptr;
    for (TaskRecord *ancestor : outline::ancestors(tasks, task)) {
        if (below && !ancestor->Childs.contains(below->ID)) {
            span = Span();
            seen.clear();
        }
        below = ancestor;
        if (!ancestor->isParent())
            continue;
        addSubtrees(tasks, *ancestor, seen, span);
        store(span, *ancestor);
    }
}
}
