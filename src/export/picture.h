#pragma once
#include "chart/layout.h"
#include "chart/pages.h"
#include "export/planview.h"
#include "export/printsheet.h"
#include <vector>

// The marks of a sheet of paper, or of the whole plan in one picture.
namespace picture {

// Marks at one place. Pixels at 96 dpi of what is drawn on.
struct Block
{
    chart::Marks marks;
    QPointF offset;
    QRectF clip;
    double scale = 1;
    bool mayRepeat = false; // on the sheets below: it tells of no task
};

// The texts around the picture, with all signs replaced.
struct Frame
{
    QString title;
    QString head;
    QString foot;
    QString number; // of the sheet
};

std::vector<Block> sheet(const chart::Layout &layout, const chart::Sheets &sheets,
                         const chart::SheetPart &part, const printsheet::Paper &paper,
                         const chart::Used &used, const Frame &frame, bool hasLegend);

// Everything beside each other: title, table, chart between `from` and `to`, legend.
struct Whole
{
    double width = 0;
    double height = 0;
    std::vector<Block> blocks;
};
Whole whole(const chart::Layout &layout, double from, double to, const QString &title, bool hasLegend);
// How high a legend is, with the gap above it, in so much room.
double legendHeight(const chart::Plan &plan, const chart::Used &used, double width);
}
