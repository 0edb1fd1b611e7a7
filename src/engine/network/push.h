#pragma once
#include "engine/record/outline.h"
#include "engine/time/worktime.h"
#include <functional>
#include <vector>

struct TaskRecord;

// Moves tasks that start before their predecessors finish. A push goes on to the successors of what it moved,
// to what lies below a moved summary and to the summaries above, whose successors it reaches. Nothing is ever
// pulled earlier. Dates only: no chart, no assignments.
namespace linkgraph {
class KeptNetwork;
}

namespace push {

// Pixels and minutes may round a finish, so a start is late enough up to this many seconds before it.
constexpr int toleranceSecs = 59;
bool holds(quint32 finish, quint32 start);
// Where a successor starts: the finish, to the whole minute. A milestone's finish gives its start.
quint32 target(quint32 finish);

// What becomes of tasks without dates that come behind others.
enum class Undated {
    Move, // they start at a predecessor's finish
    Stay  // they take no part, in the dates of summaries either
};

struct Link
{
    const TaskRecord *predecessor;
    TaskRecord *successor; // must be in the list
};
struct Move
{
    TaskRecord *task = nullptr;
    quint32 oldStart = 0;
    quint32 oldFinish = 0;
    TaskRecord *pushedBy = nullptr; // null: it was carried along by its summary
};
// Pushes each successor to the finish of its predecessor, and all that follows from that, in one pass.
// Returns the tasks that this passed, summaries above them included; none when nothing had to move. A link
// that cannot hold pushes nothing; one that is not in the lists pushes nevertheless. `moves` gets the tasks
// that were pushed or carried along to other dates, in list order. `before` hears of each task whose dates
// may change, before they do. `kept` is the plan's network as far as the caller knows it from earlier pushes;
// one that can reach much of the plan takes it from there.
using BeforeChange = std::function<void(TaskRecord &)>;
std::vector<TaskRecord *> along(const worktime::WorkCalendar &calendar, const outline::Tasks &tasks,
                                bool hourScale, const std::vector<Link> &links,
                                Undated undated = Undated::Move, std::vector<Move> *moves = nullptr,
                                const BeforeChange &before = {}, linkgraph::KeptNetwork *kept = nullptr);
// Rolls every summary up and pushes every successor. Returns the tasks that were pushed or carried along to
// other dates, in list order.
std::vector<Move> all(const worktime::WorkCalendar &calendar, const outline::Tasks &tasks, bool hourScale,
                      Undated undated = Undated::Move);
}
