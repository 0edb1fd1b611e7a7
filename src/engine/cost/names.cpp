#include "engine/cost/names.h"
#include "engine/record/resource.h"
#include "engine/record/taskrecord.h"
#include <algorithm>
#include <limits>

namespace names {

int idAfter(int id)
{
    return id == std::numeric_limits<int>::max() ? id : id + 1;
}

bool Distinct::add(const QString &name)
{
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty() || m_seen.contains(trimmed))
        return false;
    m_seen.insert(trimmed);
    m_list.append(trimmed);
    return true;
}

void Distinct::addAssignmentsOf(const TaskRecord &task)
{
    for (const Resource *resource : task.resourceList)
        add(resource->name);
}

void Distinct::addLeaves(const std::vector<TaskRecord *> &tasks)
{
    for (const TaskRecord *task : tasks) {
        if (!task->isParent())
            addAssignmentsOf(*task);
    }
}

QString ofAssignments(const TaskRecord &task)
{
    QString text;
    for (const Resource *resource : task.resourceList) {
        const QString name = resource->name.trimmed();
        if (name.isEmpty())
            continue;
        if (text.isEmpty())
            text = name;
        else
            text += QLatin1String("; ") + name;
    }
    return text;
}

bool areOfAssignments(const QString &text, const TaskRecord &task)
{
    const QLatin1String separator("; ");
    QStringView rest(text);
    bool isFirst = true;
    for (const Resource *resource : task.resourceList) {
        QStringView name(resource->name);
        // Nearly every name is trimmed already, and an undo compares those of the whole plan.
        if (!name.isEmpty() && (name.front().isSpace() || name.back().isSpace()))
            name = name.trimmed();
        if (name.isEmpty())
            continue;
        if (!isFirst) {
            if (!rest.startsWith(separator))
                return false;
            rest = rest.mid(separator.size());
        }
        if (name.size() > rest.size() || !std::equal(name.begin(), name.end(), rest.begin()))
            return false;
        rest = rest.mid(name.size());
        isFirst = false;
    }
    return rest.isEmpty();
}

bool isOtherwiseNamed(const TaskRecord &task)
{
    return !task.isParent() && task.isHaveResource() && !areOfAssignments(task.Resources, task);
}

QString Unique::different(const QString &name) const
{
    QString candidate = name;
    // Kept on purpose: the first number is one past the next ID, and numbers gather behind the name.
    for (qint64 number = qint64(m_nextId) + 1; m_names.contains(candidate.trimmed()); ++number)
        candidate += QString::number(number);
    return candidate;
}

void Unique::add(const QString &name, int id)
{
    m_names.insert(name);
    m_nextId = std::max(m_nextId, idAfter(id));
}
}
