#pragma once
#include <QList>

// Lists of task IDs: children, successors, predecessors. An ID stands in a list at most once, and 0 is
// "none".
namespace idlist {

// 0 outside the list.
inline quint32 at(const QList<quint32> &ids, int index)
{
    return ids.value(index, 0);
}

inline void removeAt(QList<quint32> &ids, int index)
{
    if (index >= 0 && index < ids.size())
        ids.removeAt(index);
}

inline void replaceAt(QList<quint32> &ids, int index, quint32 id)
{
    if (index >= 0 && index < ids.size())
        ids[index] = id;
}

// The first occurrence only.
inline void replace(QList<quint32> &ids, quint32 oldId, quint32 newId)
{
    replaceAt(ids, ids.indexOf(oldId), newId);
}

// The index is clamped to the list; an ID that is there already stays where it is.
inline void insert(QList<quint32> &ids, int index, quint32 id)
{
    if (!ids.contains(id))
        ids.insert(qBound(0, index, ids.size()), id);
}
}
