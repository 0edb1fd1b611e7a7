#pragma once
#include "editing/taskbackups.h"
#include "edits/settle.h"
#include <functional>
#include <vector>

namespace settling {

// Hears what settling replaces, so that it can be brought back.
struct Replaced
{
    // Each task whose values may change, before they do; late dates left aside.
    std::function<void(TaskRecord &)> before;
    // Late dates that were replaced by others: they change on tasks that an edit does not reach otherwise.
    std::vector<LateValues> lateValues;
};

// settle(), which tells what it replaces.
QVector<Push> settle(KWDocument &document, const Changes &changes, Replaced *replaced);
}
