#include "bars.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"
#include <vector>

namespace bars {

using axis::Axis;
using axis::Slot;

namespace {

constexpr qint64 secsPerDay = 86400;
using Columns = std::pair<int, int>; // the second one exclusive

// How far the done part of a bar goes: a column is done when the greater part of it is. A task that has begun
// shows a first piece, one that is not finished a last piece to do.
int columnsReached(const Axis &axis, std::pair<int, int> bar, qint64 reached)
{
    int end = qMax(0, bar.first);
    for (; end < bar.second - 1 && end < int(axis.slots.size()); ++end) {
        const Slot &slot = axis.slots[std::size_t(end)];
        if (slot.from + (slot.to - slot.from) / 2 > reached)
            break;
    }
    return bar.second - bar.first > 1 ? qMax(end, bar.first + 1) : end;
}

// The column of a shown moment: the one that it ends, or that it begins at the beginning of a day.
int columnOfMoment(const Plan &plan, const Axis &axis, const shown::Clock &clock)
{
    const int startSecs = int(KWTaskInfo::startOrFinishHour(plan.document.get(), true)) * 3600;
    const int spanSecs = int(KWTaskInfo::startOrFinishHour(plan.document.get(), false)) * 3600 - startSecs;
    const qint64 intoDay =
        qBound<qint64>(0, spanSecs > 0 ? (clock.secs - startSecs) * secsPerDay / spanSecs : 0, secsPerDay);
    const qint64 moment = axis::secsOf(clock.date) + intoDay;
    const qint64 inside = intoDay > 0 ? moment - 1 : moment;
    const int column = axis.columnsOf(inside, moment).first;
    // Before the axis there is no column.
    return column == 0 && inside < axis.slots.front().from ? -1 : column;
}

// One line of columns, painted over from what matters least to what matters most.
class Line
{
public:
    Line(const Axis &axis, const Style &style)
        : m_axis(axis)
        , m_style(style)
    {
        static const QString blank = QStringLiteral(" ");
        m_cells.reserve(axis.slots.size());
        for (const Slot &slot : axis.slots)
            m_cells.push_back(slot.off ? Cell{&style.dayOff, Style::Dim} : Cell{&blank, Style::Plain});
    }

    // What lies outside the line is left out, and so are days off unless told otherwise.
    void fill(Columns columns, const QString &symbol, Style::Tone tone, bool overDaysOff = false)
    {
        const int end = qMin(columns.second, int(m_cells.size()));
        for (int i = qMax(0, columns.first); i < end; ++i)
            if (overDaysOff || !m_axis.slots[std::size_t(i)].off)
                m_cells[std::size_t(i)] = {&symbol, tone};
    }

    void addTo(QString &line) const
    {
        if (!m_style.color) {
            for (const Cell &cell : m_cells)
                line += *cell.symbol;
            return;
        }
        for (std::size_t i = 0; i < m_cells.size();) {
            QString run;
            const Style::Tone tone = m_cells[i].tone;
            for (; i < m_cells.size() && m_cells[i].tone == tone; ++i)
                run += *m_cells[i].symbol;
            line += m_style.toned(run, tone);
        }
    }

private:
    struct Cell
    {
        const QString *symbol;
        Style::Tone tone;
    };

    const Axis &m_axis;
    const Style &m_style;
    std::vector<Cell> m_cells;
};

constexpr bool overDaysOff = true;

void paintSummary(Line &line, const Axis &axis, Columns columns, qint64 start, qint64 finish,
                  const Style &style)
{
    line.fill(columns, style.summary, Style::Bold, overDaysOff);
    if (columns.first >= columns.second)
        return;
    // An end that lies outside the axis has no mark.
    if (start >= axis.slots.front().from)
        line.fill({columns.first, columns.first + 1}, style.summaryEnd, Style::Bold, overDaysOff);
    if (finish <= axis.slots.back().to)
        line.fill({columns.second - 1, columns.second}, style.summaryEnd, Style::Bold, overDaysOff);
}

void paintTask(Line &line, const Plan &plan, const KWTaskInfo &task, const Axis &axis, Columns columns,
               const Style &style)
{
    // A late finish is given as the beginning of the next working day, which is no slack.
    const LocalClock &clock = plan.document->workCalendar().clock();
    if (plan::workingMinutes(plan, task.Finish, task.LateFinish) > 0) {
        const quint32 lateFinish =
            KWTaskCollection::reduceFinishOnDayOff(plan.document.get(), task.LateFinish, true);
        const Columns late =
            axis.columnsOf(axis::secsOf(clock, task.Finish), axis::secsOf(clock, lateFinish));
        line.fill({columns.second, late.second}, style.slack, Style::Dim);
    }
    line.fill(columns, style.toDo, task.CriticalPath ? Style::Critical : Style::ToDoTone);
    if (task.Percent > 0) {
        const quint32 reached = KWTaskInfo::getTaskPercentFinishSecs(plan.document.get(), &task);
        const int doneEnd =
            task.Percent < 1 ? columnsReached(axis, columns, axis::secsOf(clock, reached)) : columns.second;
        line.fill({columns.first, doneEnd}, style.done,
                  task.CriticalPath ? Style::Critical : Style::DoneTone);
    }
}
}

void add(QString &text, const Plan &plan, const shown::Times &times, const Axis &axis, int pos,
         const Style &style)
{
    Line line(axis, style);
    if (axis.isEmpty())
        return;
    const KWTaskInfo *task = plan.task(pos);
    const LocalClock &clock = plan.document->workCalendar().clock();
    const qint64 start = axis::secsOf(
        clock, KWTaskCollection::moveForwarstartOnDayOff(plan.document.get(), task->Start, true));
    const qint64 finish = axis::secsOf(clock, task->Finish);
    const Columns columns = axis.columnsOf(start, finish);
    if (task->isParent()) {
        paintSummary(line, axis, columns, start, finish, style);
    } else if (task->Milestone) {
        const int column = columnOfMoment(plan, axis, times.start(pos));
        line.fill({column, column + 1}, style.milestone, task->CriticalPath ? Style::Critical : Style::Plain,
                  overDaysOff);
    } else {
        paintTask(line, plan, *task, axis, columns, style);
    }
    line.addTo(text);
}
}
