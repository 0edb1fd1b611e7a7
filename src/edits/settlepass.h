#pragma once
#include "edits/settle.h"
#include <functional>

struct TaskRecord;
namespace latedates {
struct Values;
}

namespace settling {

// Hears what settling replaces, so that it can be brought back.
struct Replaced
{
    // Each task whose values may change, before they do; late dates left aside.
    std::function<void(TaskRecord &)> before;
    // Each task whose late dates become these, before they do: they change on tasks that an edit does not
    // reach otherwise. The texts that others replace may be taken out of it.
    std::function<void(TaskRecord &, const latedates::Values &)> beforeLate;
};

// settle(), which tells what it replaces.
QVector<Push> settle(KWDocument &document, const Changes &changes, Replaced *replaced);
}
