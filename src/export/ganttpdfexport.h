#pragma once
#include "export/exportoptions.h"
#include "kwgantt_export.h"
#include "support/findings.h"
#include <QImage>
#include <QRectF>
#include <QSizeF>
#include <functional>
#include <memory>
#include <vector>

class KWDocument;
class PlanView;
class QIODevice;
namespace picture {
struct Block;
}

// The chart of a document as a picture: on sheets of paper, as an image, for a page, and on a host's screen.
//
// Nothing of the document is changed. What fails returns false, an empty image or 0, tells why in findings(),
// and leaves a file that was there as it was.
class KWGANTT_EXPORT GanttPdfExport
{
public:
    explicit GanttPdfExport(KWDocument *document);
    ~GanttPdfExport();
    GanttPdfExport(const GanttPdfExport &) = delete;
    GanttPdfExport &operator=(const GanttPdfExport &) = delete;

    // Whether the machine has any font; without one nothing can be drawn.
    static bool hasFonts();

    KWExportOptions options;
    // Called now and then with how much is done; false gives up. May be empty.
    std::function<bool(int done, int total)> progress;

    // ---- Files --------------------------------------------------------------------------------------------
    // On sheets as the document's print setup asks for.
    bool exportPdf(const QString &path);
    // All in one PNG; `ratio` is pixels of the image for a pixel at 96 dpi, 1..4.
    bool exportImage(const QString &path, double ratio = 1);
    bool exportSvg(const QString &path);
    // A page for a browser that needs nothing beside it. Its time axis is its own, and tasks that are folded
    // away are in it, to be unfolded.
    bool exportHtml(const QString &path);
    // The same into a device that is open for writing.
    bool writePdf(QIODevice &device);
    bool writeImage(QIODevice &device, double ratio = 1);
    bool writeSvg(QIODevice &device);
    bool writeHtml(QIODevice &device);

    // ---- Preview ------------------------------------------------------------------------------------------
    int pageCount();
    QSizeF pageSize();     // millimetres
    QSize sheetCounts();   // across and down
    double smallestText(); // points on paper; 0 without sheets
    // Where the sheets end on the chart that paint() shows: places of the axis, and the rows that begin
    // further sheets below the first ones.
    struct SheetBorders
    {
        std::vector<double> places;
        std::vector<int> rows;
    };
    SheetBorders sheetBorders();
    // How many sheets across and down make the smallest text at least so many points high; the document's own
    // numbers where it is as they stand.
    QSize sheetsForText(double points);
    QImage pageImage(int page, double dpi); // 0-based

    // ---- Screen -------------------------------------------------------------------------------------------
    // The part `visible` of the picture, from the image's top left corner on, `ratio` device pixels for each
    // of its pixels. The chart's left edge is x = 0 and the table stands left of it, the head begins at y = 0
    // and moves away with the rows. The image must be of Format_RGB32 or Format_ARGB32_Premultiplied.
    bool paint(QImage &image, const QRectF &visible, double ratio);

    // What the last call found.
    const Findings &findings() const { return m_findings; }

private:
    struct Drawing;
    struct Screen;
    std::unique_ptr<Drawing> prepare();
    std::unique_ptr<Drawing> prepareSheets();
    std::unique_ptr<Drawing> prepareWhole();
    std::vector<picture::Block> blocksOfPage(const Drawing &drawing, int page) const;
    bool writeSheets(Drawing &drawing, QIODevice &device);
    QImage wholeImage(double ratio);
    QByteArray svgText();
    bool hasTasks();
    bool writePage(QIODevice &device);
    bool screenIsReady();
    void setToday(PlanView &view) const;
    bool isCancelled(int done, int total);
    void tellGaps(const Drawing &drawing);
    bool replace(const QString &path, const std::function<bool(QIODevice &)> &write);
    bool canDraw();
    QString filled(QString text, int page, int pages) const; // signs replaced
    QDateTime stamp() const;
    static QDateTime epochStamp(); // of SOURCE_DATE_EPOCH, in UTC

    KWDocument *m_document; // not owned
    Findings m_findings;
    std::unique_ptr<Screen> m_screen; // what frames have in common
};
