#pragma once
#include <QtGlobal>
#include <memory>
#include <vector>

class KWDocument;

// The whole task list as it was: every task with its font, hyperlinks, assignments and row height, in order.
//
// Snapshots of one document share the copies of the tasks that did not change between them, and whole blocks
// of those, so that many of them cost little more than one. The bar of a visible task is left out: it follows
// from the dates and the scale, and every structural edit moves most of them.
class TaskSnapshot
{
public:
    TaskSnapshot() = default;
    // The document as it stands. What equals the earlier snapshot is shared with it.
    static TaskSnapshot of(const KWDocument &document, const TaskSnapshot &earlier);

    // Brings the document from `now`, which is how it stands, to this state. A task that is in both, by its
    // ID, keeps its record; others are made or deleted. The chart is left to the caller.
    void restore(KWDocument &document, const TaskSnapshot &now) const;
    // The assignments and their names text alone, of the tasks that are in the document; those that are not
    // in here get none.
    void restoreAssignments(KWDocument &document, const TaskSnapshot &now) const;
    // The places of the tasks that names::isOtherwiseNamed() is true for.
    std::vector<int> otherwiseNamed() const;

private:
    class Maker;
    class Places;
    struct Copy;
    struct Block;

    std::vector<std::shared_ptr<const Block>> m_blocks;
    int m_count = 0;
    quint32 m_maxId = 0;
};
