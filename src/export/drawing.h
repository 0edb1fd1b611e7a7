#pragma once
#include "chart/layout.h"
#include "chart/pages.h"
#include "export/cairopainter.h"
#include "export/ganttpdfexport.h"
#include "export/picture.h"
#include "export/planview.h"
#include "export/printsheet.h"
#include "export/textshaper.h"
#include "styles/chartstyle.h"

// What one export needs from beginning to end.
struct GanttPdfExport::Drawing
{
    Drawing(KWDocument &document, const KWExportOptions &options, const chartstyle::Sheet &style);

    chartstyle::Sheet style;
    TextShaper shaper;
    PlanView view;
    std::unique_ptr<chart::Layout> layout; // when all rows are at hand
    // Of an export on sheets.
    printsheet::Paper paper;
    chart::SheetSetup setup;
    chart::Sheets sheets;
    chart::Used used;

    double from = 0, to = 0; // of one picture: the part of the axis

    void paintBlock(cairo_t *context, const picture::Block &block, const QRectF &area, double ratio,
                    CairoPainter::Device device);
    // The blocks on the ground; `area` and they are pixels at 96 dpi.
    void paintBlocks(cairo_t *context, const std::vector<picture::Block> &blocks, const QRectF &area,
                     double ratio, CairoPainter::Device device);
    // The same as an image; an empty one and a finding when it cannot be that large.
    QImage image(double width, double height, double ratio, const std::vector<picture::Block> &blocks,
                 Findings &findings);

    const chart::Plan &plan() const { return view.plan(); }
    void makeLayout() { layout = std::make_unique<chart::Layout>(view.plan()); }
};
