#pragma once
#include "chart/pages.h"
#include "settings/kwprintconfig.h"

class Findings;

// A document's print setup as the lengths of a sheet.
namespace printsheet {

// Pixels at 96 dpi.
struct Paper
{
    double width = 0; // as it is turned
    double height = 0;
    double marginX = 0; // left and right
    double marginY = 0; // above and below
};

// Measures that no sheet can have are told and replaced.
Paper paperOf(const KWPrintConfig &config, Findings &findings);
// Across and down where it fits to sheets, else the zoom in its limits; what of the sheet may be drawn on.
chart::SheetSetup setupOf(const KWPrintConfig &config, const Paper &paper);
}
