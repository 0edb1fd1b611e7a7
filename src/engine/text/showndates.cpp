#include "engine/text/showndates.h"
#include "engine/record/taskrecord.h"
#include "engine/time/dayoff.h"

using worktime::WorkCalendar;

namespace {

constexpr int nobody = -1;

bool isBefore(const shownmoment::Moment &a, const shownmoment::Moment &b)
{
    return a.day != b.day ? a.day < b.day : a.secs < b.secs;
}
}

bool ShownDates::isMoment(const TaskRecord &task)
{
    return task.Milestone && !task.isParent() && (task.Finish <= task.Start || task.Finish - task.Start == 1);
}

// Nothing that works begins on a day off or when work ends: what is stored there was put there.
ShownDates::Moment ShownDates::startOf(const WorkCalendar &calendar, quint32 secs)
{
    constexpr bool hourClock = true;
    const Moment given = shownmoment::ofStart(calendar, secs);
    const bool isEvening = given.secs == calendar.finishHour() * worktime::secsPerHour;
    if (isEvening || (calendar.hasWorkday() && !calendar.isWorkday(given.day)))
        return given;
    return shownmoment::ofStart(calendar, dayoff::startForward(calendar, secs, hourClock));
}

ShownDates::Moment ShownDates::finishOf(const WorkCalendar &calendar, quint32 secs)
{
    return shownmoment::ofFinish(calendar, secs);
}

// A project that ends with a milestone ends one second into the next day.
ShownDates::Moment ShownDates::endOf(const WorkCalendar &calendar, quint32 secs)
{
    constexpr bool hourClock = true;
    constexpr int minute = 60;
    const Moment stored = finishOf(calendar, secs);
    const Moment evening =
        finishOf(calendar, dayoff::finishBack(calendar, secs / minute * minute, hourClock));
    // Only the second was cut off.
    const bool isThere = stored.day == evening.day && stored.secs - evening.secs <= minute;
    return isThere ? stored : evening;
}

ShownDates::ShownDates(const WorkCalendar &calendar, const QList<TaskRecord *> &tasks, const TaskIndex &index,
                       const QHash<quint32, quint32> &evenings)
    : m_calendar(calendar)
    , m_tasks(tasks)
    , m_index(index)
    , m_shown(std::size_t(tasks.size()))
{
    for (int pos = 0; pos < tasks.size(); ++pos) {
        const TaskRecord &task = *tasks[pos];
        Shown &shown = m_shown[std::size_t(pos)];
        shown.isDated = task.Start != 0 && task.Finish > task.Start;
        if (isMoment(task))
            continue;
        shown.start = startOf(calendar, task.Start);
        // A summary whose subtasks are not there may have ended with a milestone.
        shown.finish = task.isParent() ? endOf(calendar, task.Finish) : finishOf(calendar, task.Finish);
        if (isBefore(shown.finish, shown.start))
            shown.finish = shown.start;
    }
    showMilestones(evenings);
    showSummaries();
}

// The predecessor whose end is the milestone's moment, to the minute that is shown: files hold no others. The
// last of several, since a break lies in one moment; a task rather than another milestone.
int ShownDates::driverOf(const TaskRecord &milestone) const
{
    const auto minute = [this](quint32 finish) {
        return shownmoment::finish(m_calendar, shownmoment::ofFinish(m_calendar, finish),
                                   shownmoment::StayOn);
    };
    if (milestone.Predecessors.isEmpty())
        return nobody;
    const quint32 moment = shownmoment::start(m_calendar, shownmoment::ofStart(m_calendar, milestone.Start),
                                              shownmoment::StayOn);
    int driver = nobody;
    for (const quint32 id : milestone.Predecessors) {
        const int pos = m_index.posOf(id);
        if (pos < 0 || !shownmoment::isSame(m_calendar, minute(m_tasks[pos]->Finish), moment))
            continue;
        const auto rank = [this](int at) {
            return std::pair(!m_tasks[at]->Milestone, quint32(m_tasks[at]->Finish));
        };
        if (driver == nobody || rank(pos) > rank(driver))
            driver = pos;
    }
    return driver;
}

// Milestones behind milestones stand where the first of them does.
void ShownDates::showMilestones(const QHash<quint32, quint32> &evenings)
{
    constexpr bool hourClock = false;
    std::vector<bool> isKnown(m_shown.size());
    for (int pos = 0; pos < m_tasks.size(); ++pos)
        isKnown[std::size_t(pos)] = !isMoment(*m_tasks[pos]);
    std::vector<int> chain;
    for (int pos = 0; pos < m_tasks.size(); ++pos) {
        chain.clear();
        int at = pos;
        while (at != nobody && !isKnown[std::size_t(at)]) {
            isKnown[std::size_t(at)] = true;
            chain.push_back(at);
            at = driverOf(*m_tasks[at]);
        }
        for (auto link = chain.rbegin(); link != chain.rend(); ++link) {
            const TaskRecord &task = *m_tasks[*link];
            const bool isEvening = task.Start > 0 && evenings.value(task.ID) == task.Start;
            Shown &shown = m_shown[std::size_t(*link)];
            if (at != nobody)
                shown.start = m_shown[std::size_t(at)].finish;
            else if (isEvening)
                shown.start = finishOf(m_calendar, dayoff::finishBack(m_calendar, task.Start, hourClock));
            else
                shown.start = shownmoment::ofStart(m_calendar, task.Start);
            shown.finish = shown.start;
            at = *link;
        }
    }
}

// Subtasks stand below their summary.
void ShownDates::showSummaries()
{
    std::vector<bool> hasSubtask(m_shown.size());
    for (int pos = m_tasks.size() - 1; pos >= 0; --pos) {
        const Shown &shown = m_shown[std::size_t(pos)];
        const int parent = m_tasks[pos]->ParentID != 0 ? m_index.posOf(m_tasks[pos]->ParentID) : nobody;
        if (parent < 0 || parent >= pos || !shown.isDated)
            continue;
        const std::size_t above = std::size_t(parent);
        Shown &summary = m_shown[above];
        if (!hasSubtask[above] || isBefore(shown.start, summary.start))
            summary.start = shown.start;
        if (!hasSubtask[above] || isBefore(summary.finish, shown.finish))
            summary.finish = shown.finish;
        summary.isDated = true;
        hasSubtask[above] = true;
    }
}

ShownDates::Moment ShownDates::lateFinish(int pos) const
{
    const TaskRecord &task = *m_tasks[pos];
    return shownmoment::isSame(m_calendar, task.Finish, task.LateFinish) ? finish(pos)
                                                                         : endOf(m_calendar, task.LateFinish);
}

ShownDates::Moment ShownDates::lateStart(int pos) const
{
    const TaskRecord &task = *m_tasks[pos];
    if (shownmoment::isSame(m_calendar, task.Start, task.LateStart))
        return start(pos);
    const Moment latest = lateFinish(pos);
    if (isMoment(task))
        return latest;
    const Moment late = startOf(m_calendar, task.LateStart);
    return isBefore(latest, late) ? latest : late;
}
