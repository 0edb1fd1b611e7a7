#include "dialogs/printout.h"
#include "export/ganttpdfexport.h"
#include <QPainter>
#include <QPrinter>
#include <cmath>

namespace printout {

namespace {

constexpr double millimetresOfInch = 25.4;
constexpr double mostDpi = 300;
constexpr double mostPixels = 60e6; // of a sheet: larger ones are printed coarser

double dpiOf(const QPrinter &printer, const QSizeF &paper)
{
    const double squareInches = paper.width() * paper.height() / (millimetresOfInch * millimetresOfInch);
    return std::min(
        {double(printer.resolution()), mostDpi, std::sqrt(mostPixels / std::max(squareInches, 1.0))});
}
}

void setPaper(QPrinter &printer, GanttPdfExport &drawing)
{
    const QSizeF paper = drawing.pageSize();
    if (paper.isEmpty())
        return;
    const bool isLandscape = paper.width() > paper.height();
    printer.setPageLayout(
        QPageLayout(QPageSize(isLandscape ? paper.transposed() : paper, QPageSize::Millimeter),
                    isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()));
    printer.setFullPage(true);
}

bool print(QPrinter &printer, GanttPdfExport &drawing, const std::function<bool(int done, int total)> &goesOn)
{
    const int pages = drawing.pageCount();
    const bool isRange = printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0;
    int first = isRange ? printer.fromPage() - 1 : 0;
    int last = isRange ? std::min(printer.toPage(), pages) - 1 : pages - 1;
    if (last < first)
        return false;
    const int copies = printer.supportsMultipleCopies() ? 1 : std::max(1, printer.copyCount());
    const bool isCollated = printer.collateCopies();
    const int step = printer.pageOrder() == QPrinter::LastPageFirst ? -1 : 1;
    const int count = last - first + 1, total = count * copies;
    if (step < 0)
        std::swap(first, last);
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    const double dpi = dpiOf(printer, drawing.pageSize());
    QImage sheet;
    int drawn = -1;
    for (int i = 0; i < total; ++i) {
        const int page = first + step * (isCollated ? i % count : i / copies);
        if (!goesOn(i, total) || (i > 0 && !printer.newPage())) {
            printer.abort();
            return false;
        }
        if (page != drawn)
            sheet = drawing.pageImage(page, dpi);
        drawn = page;
        if (sheet.isNull()) {
            printer.abort();
            return false;
        }
        painter.drawImage(QRectF(printer.pageLayout().fullRectPixels(printer.resolution())), sheet);
    }
    return painter.end();
}
}
