#include "editing/rowbackup.h"
#include "editing/samevalues.h"
#include "editing/taskcopy.h"
#include "engine/record/taskahead.h"
#include "engine/record/taskindex.h"
#include "model/kwdocument.h"
#include "table/rowcolumndata.h"
#include <algorithm>

namespace {

std::shared_ptr<const KWTaskInfo> copyOf(const KWTaskInfo &task)
{
    auto copy = std::make_shared<KWTaskInfo>();
    taskcopy::all(task, *copy);
    return copy;
}

template <typename List, typename Stretch, typename Values>
List replaced(const List &list, const Stretch &stretch, const Values &values)
{
    List result = list.mid(0, stretch.first);
    result.reserve(list.size() + int(values.size()));
    for (const auto &value : values)
        result.append(value);
    result += list.mid(stretch.first + stretch.count);
    return result;
}
}

RowBackup::RowBackup(const KWDocument &document)
{
    const QList<KWTaskInfo *> &tasks = document.taskList();
    m_ids.values.reserve(std::size_t(tasks.size()));
    for (int pos = 0; pos < tasks.size(); ++pos) {
        fetchTaskAhead(tasks, pos + tasksAhead);
        m_ids.values.push_back(tasks[pos]->ID);
    }
    const QList<double> &heights = document.rowColumnData()->rowHeights();
    m_heights.values.assign(heights.begin(), heights.end());
}

void RowBackup::addLeaving(const KWTaskInfo &task)
{
    m_leaving.emplace(task.ID, copyOf(task));
}

// Of all values those between the first and the last that differ.
template <typename Value, typename At>
void RowBackup::keepDifferent(Stretch<Value> &stretch, int size, At at)
{
    std::vector<Value> &values = stretch.values;
    const int most = std::min(size, int(values.size()));
    int before = 0;
    while (before < most && samevalues::isSame(values[std::size_t(before)], at(before)))
        ++before;
    int behind = 0;
    while (before + behind < most &&
           samevalues::isSame(values[values.size() - 1 - std::size_t(behind)], at(size - 1 - behind)))
        ++behind;
    stretch.first = before;
    stretch.count = size - before - behind;
    values = std::vector<Value>(values.begin() + before, values.end() - behind);
}

void RowBackup::keepChanges(const KWDocument &document)
{
    const QList<KWTaskInfo *> &tasks = document.taskList();
    keepDifferent(m_ids, tasks.size(), [&tasks](int pos) { return tasks[pos]->ID.value(); });
    const QList<double> &heights = document.rowColumnData()->rowHeights();
    keepDifferent(m_heights, heights.size(), [&heights](int pos) { return heights[pos]; });
}

template <typename Value, typename At>
RowBackup::Stretch<Value> RowBackup::inverse(const Stretch<Value> &stretch, int size, At at)
{
    Stretch<Value> now;
    now.first = stretch.first;
    now.count = int(stretch.values.size());
    for (int place = stretch.first; place < std::min(size, stretch.first + stretch.count); ++place)
        now.values.push_back(at(place));
    return now;
}

RowBackup RowBackup::now(const KWDocument &document) const
{
    RowBackup current;
    const QList<KWTaskInfo *> &tasks = document.taskList();
    current.m_ids = inverse(m_ids, tasks.size(), [&tasks](int pos) { return tasks[pos]->ID.value(); });
    const QList<double> &heights = document.rowColumnData()->rowHeights();
    current.m_heights = inverse(m_heights, heights.size(), [&heights](int pos) { return heights[pos]; });
    TaskIndex staying;
    for (const quint32 id : m_ids.values)
        staying.add(id);
    for (const quint32 id : current.m_ids.values) {
        if (!staying.contains(id))
            current.addLeaving(*document.getTaskInfoByID(id));
    }
    return current;
}

void RowBackup::restore(KWDocument &document) const
{
    if (m_heights.count > 0 || !m_heights.values.empty())
        document.rowColumnData()->setRowHeights(
            replaced(document.rowColumnData()->rowHeights(), m_heights, m_heights.values));
    if (m_ids.count == 0 && m_ids.values.empty())
        return;
    std::vector<KWTaskInfo *> tasks;
    for (const quint32 id : m_ids.values) {
        const auto leaving = m_leaving.find(id);
        KWTaskInfo *task = nullptr;
        if (leaving == m_leaving.end()) {
            task = document.getTaskInfoByID(id);
        } else {
            task = new KWTaskInfo;
            taskcopy::all(*leaving->second, *task);
        }
        if (task)
            tasks.push_back(task);
    }
    document.replaceTaskInfoList(replaced(document.taskList(), m_ids, tasks));
}
