#include "engine/record/recordfaults.h"
#include <QSet>
#include <algorithm>

namespace recordfaults {

namespace {

constexpr quint32 durationUnits = 7;
constexpr int rateUnits = 5;
constexpr quint32 milestoneSecs = 1; // some planners give a milestone a second

// The first ID that stands twice; 0 when there is none. Lists are short, but a file may hold any.
quint32 repeated(const QList<quint32> &ids)
{
    constexpr int few = 16; // are compared faster than hashed
    if (ids.size() <= few) {
        for (auto id = ids.begin(); id != ids.end(); ++id) {
            if (std::find(ids.begin(), id, *id) != id)
                return *id;
        }
        return 0;
    }
    QSet<quint32> seen;
    seen.reserve(ids.size());
    for (const quint32 id : ids) {
        if (seen.contains(id))
            return id;
        seen.insert(id);
    }
    return 0;
}

bool isRate(qint32 unit)
{
    return unit >= 0 && unit < rateUnits;
}

bool isNothing(const TaskRecord &task)
{
    return task.ID == 0 && task.Level <= 0 && task.Name.isEmpty() && task.Resources.isEmpty() &&
           task.Priority == 0 && task.Progress == 0 && task.DurationSecs == 0 && !task.Milestone &&
           !task.IsToggler && task.Childs.isEmpty() && task.Depends.isEmpty() && task.Predecessors.isEmpty();
}
}

QVector<Found> of(const TaskRecord &task)
{
    QVector<Found> found;
    if (!(task.Percent >= 0 && task.Percent <= 1))
        found.append(Found{PercentOutside});
    if (task.Start == 0 && task.Finish != 0)
        found.append(Found{NoStart});
    else if (task.Start != 0 && task.Finish == 0)
        found.append(Found{NoFinish});
    else if (task.Finish < task.Start)
        found.append(Found{FinishFirst});
    else if (task.Milestone && !task.isParent() &&
             (task.Finish - task.Start > milestoneSecs || task.DurationSecs > milestoneSecs))
        found.append(Found{LongMilestone});
    if (task.DurationUnits >= durationUnits)
        found.append(Found{UnknownUnit});
    if (const quint32 id = repeated(task.Predecessors))
        found.append(Found{RepeatedPredecessor, id});
    if (const quint32 id = repeated(task.Depends))
        found.append(Found{RepeatedSuccessor, id});
    if (isNothing(task))
        found.append(Found{NothingInIt});
    return found;
}

QVector<Found> of(const Resource &assignment)
{
    QVector<Found> found;
    if (assignment.name.trimmed().isEmpty())
        found.append(Found{NoName});
    if (!(assignment.percent >= 0))
        found.append(Found{NegativeUnits});
    if (!isRate(assignment.costUnit) || !isRate(assignment.overtimeUnit))
        found.append(Found{UnknownRate});
    return found;
}

QVector<Found> of(const ResourceEntry &entry)
{
    QVector<Found> found;
    if (entry.name.trimmed().isEmpty())
        found.append(Found{NoName});
    if (!(entry.unit >= 0))
        found.append(Found{NegativeUnits});
    if (!isRate(entry.costUnit) || !isRate(entry.overtimeUnit))
        found.append(Found{UnknownRate});
    return found;
}
}
