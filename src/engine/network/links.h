#pragma once
#include "engine/network/linkrefusal.h"
#include "engine/record/outline.h"
#include <unordered_map>
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
// The same without LinkRefusal::Twice: for a link that is there, whether it can hold.
LinkRefusal fault(const outline::Tasks &tasks, const TaskRecord &a, const TaskRecord &b,
                  QList<quint32> *ring = nullptr);
// Fills in what would become of these links, each judged as if those before it that may be made were there.
// Changes nothing. A few look through the network one by one, many all at once.
void judgeAll(const outline::Tasks &tasks, QList<KWTaskLink> &wanted);
// Makes those links that judgeAll allows. Returns how many these are.
int insertAll(const outline::Tasks &tasks, QList<KWTaskLink> &wanted);

// A link by the places of its tasks in the list.
struct Places
{
    int predecessor = 0;
    int successor = 0;
};
// The first links of tasks that have none: makes all of them, in lists that ascend by ID, where judgeAll
// would allow every one; else none, and false, so that it has to be asked which and why.
bool insertFirst(const outline::Tasks &tasks, const std::vector<Places> &wanted);

// ---- What the two ways of making links share --------------------------------------------------------------

// OwnSummary or OwnSubtask by the tasks' summaries, else None.
LinkRefusal outlineRefusal(const outline::Tasks &tasks, const TaskRecord &a, const TaskRecord &b);
// The place before the first listed task whose bar starts further right than x (pixels).
int placeByBar(const outline::Tasks &tasks, const QList<quint32> &ids, double x);
// Links that are not in the tasks' lists, by the place of their predecessor: the places of the successors.
using Added = std::unordered_map<int, std::vector<int>>;
// fault() with those links as well.
LinkRefusal fault(const outline::Tasks &tasks, const TaskRecord &a, const TaskRecord &b, const Added &added,
                  QList<quint32> *ring);
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
