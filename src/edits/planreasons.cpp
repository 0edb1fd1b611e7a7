#include "edits/planreasons.h"
#include "engine/network/push.h"
#include "engine/network/rollup.h"
#include "engine/record/outline.h"
#include "engine/time/duration.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include <QDateTime>
#include <algorithm>

namespace planreasons {

namespace {

class Finder
{
public:
    Finder(const KWDocument &document, const TaskRecord &task)
        : m_document(document)
        , m_tasks(document.outline())
        , m_task(task)
    {
    }

    Reasons run(int longestChain)
    {
        Reasons reasons;
        reasons.isDated = rollup::isDated(m_task);
        findPredecessors(reasons);
        reasons.isAtProjectStart = reasons.isDated && m_task.Start == projectStart();
        findDaysOff(reasons);
        findSpan(reasons);
        findTightest(reasons);
        reasons.isCritical = m_task.CriticalPath;
        reasons.successorCount = int(successorsOf(m_task).size());
        TaskIndex seen;
        seen.add(m_task.ID);
        for (const TaskRecord *next = nextInChain(m_task); next && reasons.chain.size() < longestChain;
             next = nextInChain(*next)) {
            if (!seen.add(next->ID))
                break;
            reasons.chain.append(next->ID);
        }
        return reasons;
    }

private:
    quint32 projectStart() const
    {
        quint32 start = 0;
        for (const TaskRecord *task : m_tasks.list) {
            if (rollup::isDated(*task))
                start = start == 0 ? task->Start : std::min(start, task->Start);
        }
        return start;
    }

    // The task and the summaries above it.
    std::vector<const TaskRecord *> withAbove(const TaskRecord &task) const
    {
        std::vector<const TaskRecord *> all{&task};
        for (const TaskRecord *summary : outline::ancestors(m_tasks, task))
            all.push_back(summary);
        return all;
    }

    void findPredecessors(Reasons &reasons) const
    {
        TaskIndex seen;
        for (const TaskRecord *holder : withAbove(m_task)) {
            for (const quint32 id : holder->Predecessors) {
                const TaskRecord *predecessor = m_tasks.byId(id);
                if (!predecessor || !seen.add(id))
                    continue;
                const bool isDriving = reasons.isDated && rollup::isDated(*predecessor) &&
                                       workingMinutes(m_document, predecessor->Finish, m_task.Start) <= 0;
                reasons.waitsFor.append({id, holder == &m_task ? 0 : holder->ID.value(), isDriving});
            }
        }
        std::stable_sort(reasons.waitsFor.begin(), reasons.waitsFor.end(),
                         [this](const Waiting &a, const Waiting &b) {
                             return m_tasks.byId(a.predecessor)->Finish > m_tasks.byId(b.predecessor)->Finish;
                         });
    }

    void findDaysOff(Reasons &reasons) const
    {
        const unsigned int unit = m_task.DurationUnits;
        if (!reasons.isDated || m_task.isParent() || m_task.Milestone || unit <= duration::Month)
            return;
        const worktime::WorkCalendar &calendar = m_document.workCalendar();
        const int last = calendar.clock().wall(m_task.Finish - 1).day;
        int day = calendar.clock().wall(m_task.Start).day;
        while (day <= last) {
            // From one date off to the next, however far that is.
            if (calendar.isWorkday(day)) {
                if (calendar.daysOff(day, last) == 0)
                    return;
                ++day;
                continue;
            }
            const bool isUsual = isUsuallyOff(day);
            int end = day;
            while (end < last && !calendar.isWorkday(end + 1) && isUsuallyOff(end + 1) == isUsual)
                ++end;
            reasons.daysOff.append({LocalClock::dateOf(day), LocalClock::dateOf(end), isUsual});
            day = end + 1;
        }
    }

    bool isUsuallyOff(int day) const { return !m_document.WorkDay[LocalClock::weekday(day)]; }

    void findSpan(Reasons &reasons) const
    {
        const TaskRecord *first = nullptr;
        const TaskRecord *last = nullptr;
        for (const quint32 id : m_task.Childs) {
            const TaskRecord *child = m_tasks.byId(id);
            if (!child || !rollup::isDated(*child))
                continue;
            if (!first || child->Start < first->Start)
                first = child;
            if (!last || child->Finish > last->Finish)
                last = child;
        }
        reasons.firstChild = first ? first->ID.value() : 0;
        reasons.lastChild = last ? last->ID.value() : 0;
    }

    qint64 slackOf(const TaskRecord &task) const
    {
        return workingMinutes(m_document, task.Finish, task.LateFinish);
    }

    // Of several the last in the list, and the task itself only where nothing below it is as tight.
    void findTightest(Reasons &reasons) const
    {
        const TaskRecord *tightest = nullptr;
        qint64 least = 0;
        const auto offer = [&](const TaskRecord &task) {
            const qint64 slack = slackOf(task);
            if (!tightest || slack < least) {
                tightest = &task;
                least = slack;
            }
        };
        std::vector<TaskRecord *> below = outline::descendants(m_tasks, m_task);
        for (auto task = below.rbegin(); task != below.rend(); ++task) {
            if (!(*task)->isParent() && rollup::isDated(**task))
                offer(**task);
        }
        if (reasons.isDated && !tightest)
            offer(m_task);
        reasons.tightest = tightest ? tightest->ID.value() : 0;
    }

    std::vector<const TaskRecord *> successorsOf(const TaskRecord &task) const
    {
        TaskIndex seen;
        std::vector<const TaskRecord *> successors;
        for (const TaskRecord *holder : withAbove(task)) {
            for (const quint32 id : holder->Depends) {
                const TaskRecord *successor = m_tasks.byId(id);
                if (successor && seen.add(id))
                    successors.push_back(successor);
            }
        }
        return successors;
    }

    const TaskRecord *nextInChain(const TaskRecord &task) const
    {
        const TaskRecord *next = nullptr;
        for (const TaskRecord *successor : successorsOf(task)) {
            if (!rollup::isDated(*successor))
                continue;
            if (!next || slackOf(*successor) < slackOf(*next))
                next = successor;
        }
        return next;
    }

    const KWDocument &m_document;
    const outline::Tasks m_tasks;
    const TaskRecord &m_task;
};
}

Reasons of(const KWDocument &document, quint32 id, int longestChain)
{
    const TaskRecord *task = id == 0 ? nullptr : document.getTaskInfoByID(id);
    return task ? Finder(document, *task).run(longestChain) : Reasons();
}

std::vector<int> tightest(const KWDocument &document)
{
    constexpr int nobody = -1;
    const outline::Tasks tasks = document.outline();
    const std::size_t count = std::size_t(tasks.list.size());
    std::vector<qint64> slack(count);
    std::vector<int> places(count, nobody);
    // A summary stands before the tasks that it holds.
    for (int pos = tasks.list.size() - 1; pos >= 0; --pos) {
        const TaskRecord &task = *tasks.list[pos];
        const std::size_t at = std::size_t(pos);
        if (places[at] == nobody) {
            places[at] = pos;
            slack[at] = workingMinutes(document, task.Finish, task.LateFinish);
        }
        const int parent = task.ParentID != 0 ? tasks.index.posOf(task.ParentID) : nobody;
        if (parent < 0 || parent >= pos)
            continue;
        const std::size_t above = std::size_t(parent);
        if (places[above] == nobody || slack[at] < slack[above]) {
            places[above] = places[at];
            slack[above] = slack[at];
        }
    }
    return places;
}

int earlyTaskCount(const KWDocument &document)
{
    const outline::Tasks tasks = document.outline();
    const auto isEarly = [&](const TaskRecord *task) {
        return std::any_of(task->Predecessors.begin(), task->Predecessors.end(), [&](quint32 id) {
            const TaskRecord *predecessor = tasks.byId(id);
            return predecessor && rollup::isDated(*task) && !push::holds(predecessor->Finish, task->Start);
        });
    };
    return int(std::count_if(tasks.list.begin(), tasks.list.end(), isEarly));
}

qint64 workingMinutes(const KWDocument &document, quint32 from, quint32 to)
{
    constexpr int secsPerMinute = 60;
    const bool forward = from <= to;
    const quint32 secs =
        duration::secs(document.workCalendar(), forward ? from : to, forward ? to : from, duration::Minute);
    const qint64 minutes = (qint64(secs) + secsPerMinute / 2) / secsPerMinute;
    return forward ? minutes : -minutes;
}
}
