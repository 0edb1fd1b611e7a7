#include "schedule/randomplan.h"
#include "engine/record/outline.h"
#include "engine/time/localclock.h"
#include "schedule/kwcalendar.h"
#include "schedule/kwtaskcollection.h"
#include "table/rowcolumndata.h"

namespace randomplan {

int between(std::mt19937 &random, int low, int high)
{
    return low + int(random() % unsigned(high - low + 1));
}

std::unique_ptr<KWDocument> plan(std::mt19937 &random, int tasks, int levels)
{
    constexpr int firstDay = 19786; // 4 March 2024
    auto document = std::make_unique<KWDocument>();
    for (int i = 0; i < 4; ++i) {
        auto *off = new KWCalendar;
        off->isException = true;
        off->isWork = false;
        off->startDate = off->finishDate = LocalClock::dateOf(firstDay + between(random, 0, 40));
        document->calendars.append(off);
    }
    outline::LevelBuilder builder;
    for (int i = 0; i < tasks; ++i) {
        auto *task = new KWTaskInfo;
        task->ID = quint32(i + 1);
        task->Level =
            i == 0 ? 1 : between(random, 1, std::min(levels, document->taskList().last()->Level + 1));
        const int hour = between(random, 0, 7) * 3; // 3 hours of the day clock are one of work
        const qint64 start = LocalClock::current()->moment(firstDay + between(random, 0, 14), hour * 3600);
        task->Start = KWTaskCollection::moveForwarstartOnDayOff(document.get(), quint32(start), false);
        task->DurationUnits = quint32(between(random, 3, 6));
        const int most[] = {0, 0, 0, 2, 5, 30, 600};
        const int length = between(random, 1, most[task->DurationUnits]);
        task->Milestone = between(random, 0, 9) == 0;
        task->Finish = task->Milestone ? task->Start + 1
                                       : KWTaskInfo::backwardsDateTime(document.get(), task->Start, length,
                                                                       task->DurationUnits);
        task->DurationSecs =
            KWTaskInfo::durationSecs(document.get(), task->Start, task->Finish, task->DurationUnits);
        builder.add(*task);
        document->appendTaskInfoList(task);
        document->rowColumnData()->appendRowHeight(RowColumnData::defaultRowHeight);
    }
    document->taskCollection()->updateOptionTaskTime();
    return document;
}

std::string dates(const KWDocument &document)
{
    std::string text;
    for (const KWTaskInfo *task : document.taskList()) {
        text += std::to_string(task->ID) + ": " + std::to_string(task->Start) + ' ' +
                std::to_string(task->Finish) + ' ' + std::to_string(task->DurationSecs) + '\n';
    }
    return text;
}

void link(KWDocument &document, quint32 predecessor, quint32 successor)
{
    if (KWTaskInfo *task = document.getTaskInfoByID(predecessor))
        task->Depends.append(successor);
    if (KWTaskInfo *task = document.getTaskInfoByID(successor))
        task->Predecessors.append(predecessor);
}
}
