#pragma once

class Report;

// Edits of the outline in the middle of generated projects, and a window of the task table.
namespace tableedits {

void measure(Report &report, int tasks);
}
