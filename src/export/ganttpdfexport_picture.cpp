// The whole plan in one picture, and parts of it on a screen.
#include "export/cairopainter.h"
#include "export/drawing.h"
#include "export/ganttpdfexport.h"
#include "export/svgwriter.h"
#include "model/kwdocument.h"
#include "support/said.h"
#include <cmath>

namespace {

constexpr int longestSide = 32767;       // of an image; cairo's own limit
constexpr double widestSvg = 500000;     // pixels; no viewer pans further
constexpr double mostPixels = 200000000; // of an image; 800 MB
}

void GanttPdfExport::Drawing::paintBlocks(cairo_t *context, const std::vector<picture::Block> &blocks,
                                          const QRectF &area, double ratio, CairoPainter::Device device)
{
    CairoPainter(context, style, shaper, plan().fonts, device, ratio)
        .fillGround(QRectF(area.topLeft() * ratio, area.size() * ratio));
    for (const picture::Block &block : blocks)
        paintBlock(context, block, area, ratio, device);
}

void GanttPdfExport::Drawing::paintBlock(cairo_t *context, const picture::Block &block, const QRectF &area,
                                         double ratio, CairoPainter::Device device)
{
    CairoPainter painter(context, style, shaper, plan().fonts, device, block.scale * ratio);
    const QRectF clip(block.clip.topLeft() * ratio, block.clip.size() * ratio);
    painter.paint(block.marks, block.offset * ratio,
                  clip & QRectF(area.topLeft() * ratio, area.size() * ratio));
}

QImage GanttPdfExport::Drawing::image(double width, double height, double ratio,
                                      const std::vector<picture::Block> &blocks, Findings &findings)
{
    const double across = std::ceil(width * ratio), down = std::ceil(height * ratio);
    if (!(across <= longestSide && down <= longestSide && across * down <= mostPixels)) {
        findings.add(
            QString(),
            KW_TEXT("an image of %1 x %2 pixels is too large").arg(across, 0, 'f', 0).arg(down, 0, 'f', 0),
            KW_TEXT("export a PDF, take a coarser scale, or draw a part of the plan"));
        return QImage();
    }
    QImage image(int(across), int(down), QImage::Format_RGB32);
    if (image.isNull()) {
        findings.add(QString(), KW_TEXT("there is no memory for the image"));
        return image;
    }
    cairo_surface_t *surface = cairo_image_surface_create_for_data(
        image.bits(), CAIRO_FORMAT_RGB24, image.width(), image.height(), image.bytesPerLine());
    cairo_t *context = cairo_create(surface);
    // The last, broken pixel belongs to the ground.
    paintBlocks(context, blocks, QRectF(0, 0, across / ratio, down / ratio), ratio, CairoPainter::Pixels);
    cairo_destroy(context);
    cairo_surface_finish(surface);
    cairo_surface_destroy(surface);
    return image;
}

std::unique_ptr<GanttPdfExport::Drawing> GanttPdfExport::prepareWhole()
{
    std::unique_ptr<Drawing> drawing = prepare();
    if (!drawing)
        return nullptr;
    PlanView &view = drawing->view;
    view.loadAll();
    view.makeRoom();
    chart::Plan &plan = view.plan();
    const bool toEnd = view.to() >= plan.axis.width;
    const double to = toEnd ? plan.width() : view.to();
    plan.sheetEdges = {view.from(), to};
    drawing->makeLayout();
    drawing->from = view.from();
    drawing->to = to;
    return drawing;
}

bool GanttPdfExport::exportImage(const QString &path, double ratio)
{
    const QImage image = wholeImage(ratio);
    return !image.isNull() && replace(path, [&](QIODevice &device) { return image.save(&device, "PNG"); });
}

bool GanttPdfExport::writeImage(QIODevice &device, double ratio)
{
    const QImage image = wholeImage(ratio);
    if (image.isNull())
        return false;
    if (image.save(&device, "PNG"))
        return true;
    m_findings.add(QString(), KW_TEXT("cannot be written: %1").arg(device.errorString()));
    return false;
}

QImage GanttPdfExport::wholeImage(double ratio)
{
    const std::unique_ptr<Drawing> drawing = prepareWhole();
    if (!drawing)
        return QImage();
    constexpr double least = 1, most = 4;
    const double clamped = ratio >= least ? std::min(ratio, most) : least;
    // The size decides before much is laid out.
    const double width = drawing->plan().tableWidth() + drawing->to - drawing->from,
                 height = drawing->plan().bottom;
    if (width * clamped > longestSide || height * clamped > longestSide)
        return drawing->image(width, height, clamped, {}, m_findings);
    const picture::Whole whole = picture::whole(*drawing->layout, drawing->from, drawing->to,
                                                filled(options.title, 1, 1), options.legend);
    if (isCancelled(1, 2))
        return QImage();
    const QImage image = drawing->image(whole.width, whole.height, clamped, whole.blocks, m_findings);
    tellGaps(*drawing);
    return image;
}

bool GanttPdfExport::exportSvg(const QString &path)
{
    const QByteArray text = svgText();
    return !text.isEmpty() &&
           replace(path, [&](QIODevice &device) { return device.write(text) == text.size(); });
}

bool GanttPdfExport::writeSvg(QIODevice &device)
{
    const QByteArray text = svgText();
    if (text.isEmpty())
        return false;
    if (device.write(text) == text.size())
        return true;
    m_findings.add(QString(), KW_TEXT("cannot be written: %1").arg(device.errorString()));
    return false;
}

QByteArray GanttPdfExport::svgText()
{
    const std::unique_ptr<Drawing> drawing = prepareWhole();
    if (!drawing)
        return QByteArray();
    if (drawing->to - drawing->from > widestSvg) {
        m_findings.add(
            QString(),
            KW_TEXT("a chart of %1 pixels is too wide").arg(drawing->to - drawing->from, 0, 'f', 0),
            KW_TEXT("export a PDF, take a coarser scale, or draw a part of the plan"));
        return QByteArray();
    }
    const QString title = filled(options.title, 1, 1);
    const picture::Whole whole =
        picture::whole(*drawing->layout, drawing->from, drawing->to, title, options.legend);
    if (isCancelled(1, 2))
        return QByteArray();
    const SvgWriter writer(drawing->style, drawing->plan().fonts, options.family);
    const QByteArray width = SvgWriter::number(whole.width), height = SvgWriter::number(whole.height);
    QByteArray text =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
        width + "\" height=\"" + height + "\" viewBox=\"0 0 " + width + ' ' + height + "\">\n";
    text += "<title>" + SvgWriter::escaped(title.isEmpty() ? m_document->fileName() : title) + "</title>\n";
    text += "<style>\n" + writer.styleSheet() + "</style>\n<defs>\n" + writer.patterns() + "</defs>\n";
    text += "<rect class=\"paper\" width=\"" + width + "\" height=\"" + height + "\"/>\n";
    int number = 0;
    for (const picture::Block &block : whole.blocks)
        text += writer.group(block.marks, block.offset, block.scale, block.clip, ++number);
    tellGaps(*drawing);
    return text + "</svg>\n";
}
