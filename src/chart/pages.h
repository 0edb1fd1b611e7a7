#pragma once
#include "chart/plan.h"
#include <functional>
#include <vector>

// How a picture is cut into sheets.
namespace chart {

// All lengths in pixels at 96 dpi. `width` and `height` are what of a sheet may be drawn on.
struct SheetSetup
{
    double width = 0;
    double height = 0;
    bool fits = true; // one scale, at most 1, so that everything fits on across x down sheets
    int across = 1;
    int down = 1;
    double zoom = 1;           // else this scale, and as many sheets as it takes
    double from = 0, to = 0;   // the part of the axis; nothing where from >= to
    std::vector<int> repeated; // columns that stand on every sheet; too wide ones do not
    std::function<double(double width)> legendHeight; // under the last row, for that room; may be null
};

struct SheetPart
{
    int across = 0; // 0-based place
    int down = 0;
    int firstRow = 0, lastRow = -1;
    std::vector<int> columns; // of the table, in order
    double x0 = 0, x1 = 0;    // of the chart
    bool isLastDown = false;
};

constexpr int mostSheets = 20000;
struct Sheets
{
    double scale = 1;
    int across = 0;
    int down = 0;
    std::vector<SheetPart> parts; // down first, then across; none when there are more than mostSheets
    std::vector<double> edges;    // x where the sheets end
};

// The plan must hold all its rows. Breaks stand between rows and between columns or minor units; what is
// larger than a sheet alone is cut off. At least one sheet.
Sheets cutIntoSheets(const Plan &plan, const SheetSetup &setup);
// The same at a scale, whatever the setup says about it.
Sheets cutAtScale(const Plan &plan, const SheetSetup &setup, double scale);
// "B1": columns of sheets as letters, rows of them as numbers.
QString placeName(int across, int down);
}
