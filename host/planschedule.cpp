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
    std::vector<std::pair<quint32, quint32>> before;
    settling::settle(document, {settling::AsItStands, {}, {}});
    plan.finishBefore = lastFinish(plan);
    for (int pos = 0; pos < plan.taskCount(); ++pos)
        before.emplace_back(plan.task(pos)->Start, plan.task(pos)->Finish);

    if (progress)
        progress(t("scheduling"), 0, 0);
    if (beginning == AsSoonAsPossible)
        settling::startTogether(document, plan.start);
    QHash<quint32, quint32> pushedBy;
    for (const settling::Push &push : settling::settle(document, {settling::Everything, {}, {}}))
        pushedBy.insert(push.task, push.pushedBy);
    plan.tightest = planreasons::tightest(document);
    plan.moves.clear();
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        const KWTaskInfo *task = plan.task(pos);
        const auto [oldStart, oldFinish] = before[std::size_t(pos)];
        // From the end of a morning to the beginning of the afternoon is no move.
        if (workingMinutes(plan, oldStart, task->Start) != 0 ||
            workingMinutes(plan, oldFinish, task->Finish) != 0)
            plan.moves.push_back({pos, oldStart, oldFinish, pushedBy.value(task->ID)});
    }
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
