// Scheduling a loaded plan through the library, and what is measured on it.
#include "datetext.h"
#include "edits/planreasons.h"
#include "edits/settle.h"
#include "edits/starttogether.h"
#include "engine/time/shownmoment.h"
#include "engine/time/timescale.h"
#include "model/calendarhold.h"
#include "model/kwtaskinfo.h"
#include "plan.h"
#include "texts.h"
#include <QHash>
#include <algorithm>

bool Plan::isLast = false;

Plan::~Plan()
{
    struct Kept
    {
        std::unique_ptr<KWDocument> document;
        ImportedPlan imported;
    };
    static std::vector<Kept> *const kept = new std::vector<Kept>;
    if (isLast)
        kept->push_back({std::move(document), std::move(imported)});
}

MoveWatch::MoveWatch(Plan &plan)
    : m_plan(plan)
{
    plan.finishBefore = plan::lastFinish(plan);
    m_before.reserve(std::size_t(plan.taskCount()));
    for (const KWTaskInfo *task : plan.document->taskList())
        m_before.push_back({task->ID, task->Start, task->Finish});
}

void MoveWatch::tell() const
{
    const CalendarHold hold(*m_plan.document);
    std::vector<Plan::Move> &moves = m_plan.moves;
    moves.clear();
    for (const Dates &before : m_before) {
        const int pos = m_plan.posOf(before.task);
        if (pos < 0)
            continue;
        const KWTaskInfo *task = m_plan.task(pos);
        if (task->Start == before.start && task->Finish == before.finish)
            continue;
        // From the end of a morning to the beginning of the afternoon is no move.
        if (plan::workingMinutes(m_plan, before.start, task->Start) != 0 ||
            plan::workingMinutes(m_plan, before.finish, task->Finish) != 0)
            moves.push_back({pos, before.start, before.finish, m_pushedBy.value(before.task),
                             m_edited.contains(before.task)});
    }
    std::sort(moves.begin(), moves.end(), [](const auto &a, const auto &b) { return a.pos < b.pos; });
}

namespace plan {

void countSlackIn(Plan &plan, unsigned int unit)
{
    plan.document->MajorUnit = duration::Week;
    plan.document->MinorUnit = timescale::storedMinor(duration::Week, unit);
}

quint32 startSecs(KWDocument &document, const datetext::Moment &moment)
{
    return shownmoment::start(document.workCalendar(), moment.shown());
}

quint32 finishSecs(KWDocument &document, const datetext::Moment &moment)
{
    return shownmoment::finish(document.workCalendar(), moment.shown());
}

void schedule(Plan &plan, Beginning beginning, const Plan::Progress &progress)
{
    KWDocument &document = *plan.document;
    const CalendarHold hold(document);
    settling::settle(document, {settling::AsItStands | settling::SumsAlone, {}, {}});
    MoveWatch watch(plan);

    if (progress)
        progress(t("scheduling"), 0, 0);
    if (beginning == AsSoonAsPossible)
        settling::startTogether(document, plan.start);
    for (const settling::Push &push : settling::settle(document, {settling::Everything, {}, {}}))
        watch.pushed(push.task, push.pushedBy);
    plan.tightest = planreasons::tightest(document);
    watch.tell();
}

void refresh(Plan &plan, const Plan::Progress &progress)
{
    if (progress)
        progress(t("late dates and slack"), 0, 0);
    const CalendarHold hold(*plan.document);
    settling::settle(*plan.document, {settling::AsItStands, {}, {}});
    plan.tightest = planreasons::tightest(*plan.document);
}

quint32 firstStart(const Plan &plan)
{
    return plan.document->getMinStartSecs();
}

quint32 lastFinish(const Plan &plan)
{
    return plan.document->getMaxFinishSecs();
}

qint64 workingMinutes(const Plan &plan, quint32 from, quint32 to)
{
    return planreasons::workingMinutes(*plan.document, from, to);
}

double workHours(const Plan &plan, const KWTaskInfo &task)
{
    return task.isParent() ? task.Work : task.transforHourWork(plan.document.get(), task.Work);
}
}
