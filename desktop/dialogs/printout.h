#pragma once
#include <functional>

class GanttPdfExport;
class QPrinter;

// Sheets on a printer, from the painter of the preview and of the PDF.
namespace printout {

// The printer's paper as the drawing's page set-up has it.
void setPaper(QPrinter &printer, GanttPdfExport &drawing);
// The sheets and copies that the printer was asked for. `goesOn` hears how many of how many are done; false
// gives up, and so does a printer that refuses: false then.
bool print(QPrinter &printer, GanttPdfExport &drawing,
           const std::function<bool(int done, int total)> &goesOn);
}
