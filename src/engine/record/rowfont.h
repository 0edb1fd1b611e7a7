#pragma once

struct TaskRecord;

// The font of a task's row: that of the application at 9 points, bold for a summary.
namespace rowfont {

void set(TaskRecord &task);
}
