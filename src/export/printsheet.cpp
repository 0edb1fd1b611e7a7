#include "export/printsheet.h"
#include "format/unitutil.h"
#include "support/findings.h"
#include "support/said.h"
#include <algorithm>
#include <cmath>

namespace printsheet {

namespace {

constexpr unsigned int millimetre = 1;
constexpr double leastInside = 20;    // millimetres between the margins
constexpr double spareMargin = 10;    // millimetres
constexpr double largestPaper = 5000; // millimetres; what a PDF's page can have

double pixels(double millimetres)
{
    return UnitUtil::unitToPixel(millimetres, millimetre);
}

bool isLength(double value)
{
    return std::isfinite(value) && value > 0;
}
}

Paper paperOf(const KWPrintConfig &config, Findings &findings)
{
    double width = UnitUtil::unitToPixel(config.Width, config.Unit);
    double height = UnitUtil::unitToPixel(config.Height, config.Unit);
    const double least = pixels(leastInside + 2 * spareMargin), most = pixels(largestPaper);
    if (!isLength(width) || !isLength(height) || std::min(width, height) < least ||
        std::max(width, height) > most) {
        findings.add(KW_TEXT("print setup"),
                     KW_TEXT("paper of %1 cannot be printed on; A4 was taken").arg(config.paperSize()),
                     KW_TEXT("at least 40 mm and at most 5 m each way"));
        width = pixels(210);
        height = pixels(297);
    }
    // Whatever the order in which they are stored.
    if ((width < height) != config.Portrait)
        std::swap(width, height);
    Paper paper{width, height, UnitUtil::unitToPixel(config.Left, config.Unit),
                UnitUtil::unitToPixel(config.Top, config.Unit)};
    const auto isMargin = [&](double margin, double side) {
        return std::isfinite(margin) && margin >= 0 && side - 2 * margin >= pixels(leastInside) - 1e-6;
    };
    if (!isMargin(paper.marginX, width) || !isMargin(paper.marginY, height)) {
        findings.add(KW_TEXT("print setup"),
                     KW_TEXT("the margins leave less than 20 mm of the paper; margins of 10 mm were taken"));
        paper.marginX = paper.marginY = pixels(spareMargin);
    }
    return paper;
}

chart::SheetSetup setupOf(const KWPrintConfig &config, const Paper &paper)
{
    chart::SheetSetup setup;
    setup.width = paper.width - 2 * paper.marginX;
    setup.height = paper.height - 2 * paper.marginY;
    setup.fits = config.FittoSheet;
    setup.across = std::max<int>(1, config.HSheet);
    setup.down = std::max<int>(1, config.VSheet);
    constexpr int leastZoom = 10, mostZoom = 400;
    setup.zoom = std::clamp(int(config.Zoom), leastZoom, mostZoom) / 100.0;
    return setup;
}
}
