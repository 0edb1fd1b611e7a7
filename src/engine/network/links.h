#pragma once
#include "engine/network/linkrefusal.h"
#include "engine/record/outline.h"
#include <vector>

struct TaskRecord;

// Finish-to-start links: which may be made, and keeping both ends' lists alike. A link is the successor's ID
// in Depends of the predecessor and the predecessor's ID in Predecessors of the successor.
namespace links {

// Whether t links to a, to a summary above a but below their common one, or to a task below a.
bool leadsTo(const outline::Tasks &tasks, const TaskRecord &t, const TaskRecord &a);
// Why a may not become a predecessor of b. For a loop, `ring` is filled as KWTaskLink has it.
LinkRefusal refusal(const outline::Tasks &tasks, const TaskRecord &a, const TaskRecord &b,
                    QList<quint32> *ring = nullptr);
// Makes the link without asking. Each list takes the ID before the first task whose bar starts further right,
// else at its end; an ID that it holds already stays where it is.
void insert(const outline::Tasks &tasks, TaskRecord &a, TaskRecord &b);
// Makes those links that may be made, each judged after the ones before it, and fills in what became of them.
// As refusal and insert on one after the other, without walking the network for each. Returns how many it
// made.
int insertAll(const outline::Tasks &tasks, QList<KWTaskLink> &wanted);

// ---- What the two ways of making links share --------------------------------------------------------------

// OwnSummary or OwnSubtask by the tasks' summaries, else None.
LinkRefusal outlineRefusal(const outline::Tasks &tasks, const TaskRecord &a, const TaskRecord &b);
// The place before the first listed task whose bar starts further right than x (pixels).
int placeByBar(const outline::Tasks &tasks, const QList<quint32> &ids, double x);
// The ring of KWTaskLink for a way through the network: places in the list, from the successor to the
// predecessor.
QList<quint32> ringAlong(const outline::Tasks &tasks, const std::vector<int> &path);

// ---- Removing and rebuilding ------------------------------------------------------------------------------

// Takes away x's links from these tasks and from every task after them (along Depends).
void removeDownstream(const outline::Tasks &tasks, const std::vector<TaskRecord *> &from, TaskRecord &x);
// The same for every task before them (along Predecessors).
void removeUpstream(const outline::Tasks &tasks, const std::vector<TaskRecord *> &from, TaskRecord &x);

// Completes every Depends list from the Predecessors lists and sorts all of them by ID. Nothing is taken
// away.
void completeSuccessors(const outline::Tasks &tasks);
}
