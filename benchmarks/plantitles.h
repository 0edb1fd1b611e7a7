#pragma once

// Titles for the tables of a workbook, as a host would fill them: twelve columns of tasks, all of resources
// and of assignments; on the workbook's side too, for an export.
namespace plantitles {

void fill();
}
