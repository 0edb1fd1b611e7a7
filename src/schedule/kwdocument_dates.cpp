// Dates of the whole project: durations, links, late dates and slack.
#include "engine/network/latedates.h"
#include "engine/network/links.h"
#include "engine/record/outline.h"
#include "engine/time/duration.h"
#include "model/changewatch.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include <algorithm>
#include <limits>

double KWDocument::getDurationValue(quint32 start, quint32 finish, unsigned int unit, bool rounded)
{
    return duration::valueBetween(workCalendar(), start, finish, unit, rounded);
}

void KWDocument::updateDependTask(bool byTag)
{
    const ChangeWatch watch(this);
    if (byTag) {
        for (KWTaskInfo *task : qAsConst(m_tasks)) {
            QList<quint32> ids;
            for (const quint32 tag : qAsConst(task->Predecessors)) {
                const bool isTag = tag <= quint32(std::numeric_limits<int>::max());
                const KWTaskInfo *predecessor = isTag ? getTaskByTag(int(tag)) : nullptr;
                if (predecessor && predecessor->ID != task->ID)
                    ids.append(predecessor->ID);
            }
            std::sort(ids.begin(), ids.end());
            ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
            task->Predecessors = ids;
        }
    }
    links::completeSuccessors(outline());
}

void KWDocument::updateAllTaskEarlyLate()
{
    const ChangeWatch watch(this);
    if (!m_taskCollection)
        return;
    const unsigned int unit = latedates::slackUnit(getMinorUnit());
    latedates::LateDates late(workCalendar(), getMaxFinishSecs(), unit, getNameByMinorUnit(unit, false));
    const latedates::Network network = latedates::wholeNetwork(outline());
    std::vector<quint32> lengths;
    lengths.reserve(network.tasks.size());
    for (const TaskRecord *task : network.tasks)
        lengths.push_back(late.length(*task));
    const std::vector<latedates::Tail> tails = latedates::tails(network, lengths);
    for (int pos = 0; pos < m_tasks.size(); ++pos)
        late.apply(*m_tasks[pos], lengths[pos], tails[pos]);
}

void KWDocument::updateSlackAndUnit(unsigned int unit)
{
    const ChangeWatch watch(this);
    const unsigned int current = getMinorUnit();
    if (unit == current || (unit < duration::Hour && current < duration::Hour))
        return;
    const unsigned int slackUnit = latedates::slackUnit(unit);
    latedates::SlackTexts texts(workCalendar(), slackUnit, getNameByMinorUnit(slackUnit, false));
    for (KWTaskInfo *task : qAsConst(m_tasks))
        latedates::writeSlack(*task, texts);
}
