#pragma once
#include "engine/record/taskindex.h"
#include "engine/time/shownmoment.h"
#include "kwgantt_export.h"
#include <QHash>
#include <QList>
#include <vector>

struct TaskRecord;

// The starts and finishes of all tasks as people are to see them.
//
// A milestone is one moment, and the end of one working day is the beginning of the next: it is shown where
// the task that it waits for ends, or on the side where its file put it, else as it is stored. A summary
// begins and ends as its subtasks are shown to. A start never stands in a break, and the end of a day that
// ends at midnight is its 24:00.
class KWGANTT_EXPORT ShownDates
{
public:
    using Moment = shownmoment::Moment;
    // Evenings: the milestones that a file puts at the end of a working day, with the start that they had
    // then; one that has moved since is not among them. The tasks may not change while this lives.
    ShownDates(const worktime::WorkCalendar &calendar, const QList<TaskRecord *> &tasks,
               const TaskIndex &index, const QHash<quint32, quint32> &evenings = {});

    const Moment &start(int pos) const { return m_shown[std::size_t(pos)].start; }
    const Moment &finish(int pos) const { return m_shown[std::size_t(pos)].finish; }
    // Whether the task has dates, or a summary a subtask that has.
    bool isDated(int pos) const { return m_shown[std::size_t(pos)].isDated; }
    // Where nothing is to spare they are the dates themselves; the start is never after the finish.
    Moment lateStart(int pos) const;
    Moment lateFinish(int pos) const;

    // Whether a task is shown as one moment. A summary is not, nor a milestone that lasts.
    static bool isMoment(const TaskRecord &task);
    // Single moments, by the same rules.
    static Moment startOf(const worktime::WorkCalendar &calendar, quint32 secs);
    static Moment finishOf(const worktime::WorkCalendar &calendar, quint32 secs);
    // An end that is stored as the beginning of the next working day or half day.
    static Moment endOf(const worktime::WorkCalendar &calendar, quint32 secs);

private:
    struct Shown
    {
        Moment start;
        Moment finish;
        bool isDated = false;
    };
    int driverOf(const TaskRecord &milestone) const; // -1: none
    void showMilestones(const QHash<quint32, quint32> &evenings);
    void showSummaries();

    const worktime::WorkCalendar &m_calendar;
    const QList<TaskRecord *> &m_tasks;
    const TaskIndex &m_index;
    std::vector<Shown> m_shown;
};
