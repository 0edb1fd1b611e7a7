#pragma once
#include "kwgantt_export.h"
#include <QList>
#include <vector>

// Finds a task's place by its ID: the first one in list order. Also serves as a plain set of IDs.
class KWGANTT_EXPORT TaskIndex
{
public:
    TaskIndex() = default;
    template <typename Task>
    explicit TaskIndex(const QList<Task *> &tasks)
    {
        for (int pos = 0; pos < tasks.size(); ++pos)
            add(tasks[pos]->ID, pos);
    }

    int posOf(quint32 id) const; // -1 when there is none
    bool contains(quint32 id) const { return posOf(id) >= 0; }
    int size() const { return m_count; }
    // False, and nothing changed, when the ID is there already.
    bool add(quint32 id, int pos = 0);
    void clear();

private:
    struct Slot
    {
        quint32 id = 0;
        int pos = -1; // -1: free
    };
    std::vector<Slot>::size_type slotOf(quint32 id) const;
    void grow();

    // IDs are given out from 1 upward, so nearly all of them are small: those stand at their own place, in
    // the order in which they are asked for. Only the others are hashed.
    std::vector<int> m_posOfSmallId; // -1: free; as long as m_slots
    std::vector<Slot> m_slots;       // open addressing; a power of two, at most half of them taken
    int m_count = 0;
};
