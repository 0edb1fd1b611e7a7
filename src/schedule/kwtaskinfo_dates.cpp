// A task's late dates, slack and critical flag.
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "model/outline.h"
#include "schedule/duration.h"
#include "schedule/latedates.h"

void KWTaskInfo::updateEarlyLate(KWDocument *document, quint32 projectFinish)
{
    if (!document || !document->taskCollection())
        return;
    const unsigned int unit = latedates::slackUnit(document->getMinorUnit());
    latedates::LateDates late(document->workCalendar(), projectFinish, unit,
                              KWDocument::getNameByMinorUnit(unit, false));
    const latedates::Network network =
        latedates::networkAfter({document->taskList(), document->taskIndex()}, *this);
    std::vector<quint32> lengths;
    for (const KWTaskInfo *task : network.tasks)
        lengths.push_back(late.length(*task));
    late.apply(*this, lengths.front(), latedates::tails(network, lengths).front());
}

void KWTaskInfo::recurDependTaskMaxDurValue(KWDocument *document, const KWTaskInfo *task, double &sum,
                                            QList<double> &sums)
{
    if (!document || !document->taskCollection() || !task)
        return;
    const unsigned int unit = latedates::slackUnit(document->getMinorUnit());
    const latedates::Network network =
        latedates::networkAfter({document->taskList(), document->taskIndex()}, *task);
    const worktime::WorkCalendar &calendar = document->workCalendar();
    std::vector<double> lengths;
    for (const KWTaskInfo *other : network.tasks)
        lengths.push_back(duration::valueBetween(calendar, other->Start, other->Finish, unit, false));
    for (const double pathSum : latedates::pathSums(network, lengths, sum))
        sums.append(pathSum);
}
