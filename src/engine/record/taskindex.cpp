#include "engine/record/taskindex.h"
#include <random>

namespace {

// Drawn once for each process: nobody can write a file whose IDs all meet in one place.
quint32 seed()
{
    static const quint32 drawn = std::random_device()();
    return drawn;
}

// Spreads neighbouring IDs over all bits.
quint32 mixed(quint32 id)
{
    id ^= seed();
    id ^= id >> 16;
    id *= 0x7feb352dU;
    id ^= id >> 15;
    id *= 0x846ca68bU;
    id ^= id >> 16;
    return id;
}
}

int TaskIndex::posOf(quint32 id) const
{
    if (id < m_posOfSmallId.size())
        return m_posOfSmallId[id];
    return m_count == 0 ? -1 : m_slots[slotOf(id)].pos;
}

bool TaskIndex::add(quint32 id, int pos)
{
    if (2 * (m_count + 1) > int(m_slots.size()))
        grow();
    if (id < m_posOfSmallId.size()) {
        if (m_posOfSmallId[id] >= 0)
            return false;
        m_posOfSmallId[id] = pos;
    } else {
        Slot &slot = m_slots[slotOf(id)];
        if (slot.pos >= 0)
            return false;
        slot.id = id;
        slot.pos = pos;
    }
    ++m_count;
    return true;
}

void TaskIndex::clear()
{
    m_posOfSmallId.assign(m_posOfSmallId.size(), -1);
    m_slots.assign(m_slots.size(), Slot());
    m_count = 0;
}

// The slot that holds the ID, or the free one where it belongs.
std::vector<TaskIndex::Slot>::size_type TaskIndex::slotOf(quint32 id) const
{
    const auto mask = m_slots.size() - 1;
    auto slot = mixed(id) & mask;
    while (m_slots[slot].pos >= 0 && m_slots[slot].id != id)
        slot = (slot + 1) & mask;
    return slot;
}

void TaskIndex::grow()
{
    std::vector<Slot> old(m_slots.empty() ? 16 : 2 * m_slots.size());
    old.swap(m_slots);
    m_posOfSmallId.resize(m_slots.size(), -1);
    for (const Slot &slot : old) {
        if (slot.pos < 0)
            continue;
        if (slot.id < m_posOfSmallId.size())
            m_posOfSmallId[slot.id] = slot.pos;
        else
            m_slots[slotOf(slot.id)] = slot;
    }
}
