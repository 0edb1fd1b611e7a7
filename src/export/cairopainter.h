#pragma once
#include "chart/mark.h"
#include "chart/plan.h"
#include "export/textshaper.h"
#include "styles/chartstyle.h"
#include <cairo.h>

// Paints marks with cairo, on paper and on screens.
class CairoPainter
{
public:
    enum Device {
        Paper, // places are rounded to what can be seen
        Pixels // fills and fine lines stand on whole device pixels
    };
    // The context must outlive it. `scale` is device units for a pixel of the chart.
    CairoPainter(cairo_t *context, const chartstyle::Sheet &sheet, TextShaper &shaper,
                 const std::vector<chart::Font> &fonts, Device device, double scale);

    // The marks moved by `offset` (device units), inside `clip` (device units) alone.
    void paint(const chart::Marks &marks, const QPointF &offset, const QRectF &clip);
    void fillGround(const QRectF &area); // device units, with the paper's colour

private:
    // Marks that look alike.
    struct Run
    {
        const chart::Mark *first;
        const chart::Mark *behind;
        const chart::Mark *begin() const { return first; }
        const chart::Mark *end() const { return behind; }
    };
    void trace(const chart::Mark &mark, const QRectF &rect);
    void fill(const KWPaint &paint, const QRectF &bounds);
    void stroke(const KWLineFormat &line);
    void strokeLines(const Run &run, const KWLineFormat &line);
    void fillAreas(const Run &run, const QColor &color);
    void paintShapes(const Run &run, const chartstyle::Style &style);
    void drawTexts(const Run &run);
    void setColor(const QColor &color);
    double snapped(double position, double offset, double finer = 1) const;
    double snapped(double length) const;
    QRectF snapped(const QRectF &rect) const;
    // On paper the nearest of a printer's dots or of the steps, with that offset on the sheet.
    double dotted(double position, double offset) const;
    void addPath(const KWPath &path);

    cairo_t *m_context;
    const chartstyle::Sheet &m_sheet;
    TextShaper &m_shaper;
    const std::vector<chart::Font> &m_fonts;
    Device m_device;
    double m_scale;
    double m_steps; // places for each device unit
    QPointF m_offset;
    QRectF m_seen; // chart pixels that can be seen
    QRectF m_view; // the same with a margin
};
