#include "export/cairopainter.h"
#include <algorithm>
#include <cmath>

using chart::Kind;
using chart::Mark;
using chart::Shape;
using chart::Style;

namespace {

constexpr double quarterCircle = M_PI / 2;
// Numbers of cairo's have no room for the far ends of a long bar.
constexpr double viewMargin = 100; // chart pixels

QRectF cutTo(const QRectF &rect, const QRectF &view)
{
    const double left = std::max(rect.left(), view.left()), right = std::min(rect.right(), view.right());
    const double top = std::max(rect.top(), view.top()), bottom = std::min(rect.bottom(), view.bottom());
    return QRectF(left, top, std::max(0.0, right - left), std::max(0.0, bottom - top));
}

QPointF cutTo(const QPointF &point, const QRectF &view)
{
    return QPointF(std::clamp(point.x(), view.left(), view.right()),
                   std::clamp(point.y(), view.top(), view.bottom()));
}

void addPath(cairo_t *context, const KWPath &path)
{
    path.forEach([context](KWPath::Kind kind, const QPointF *at) {
        switch (kind) {
        case KWPath::MoveTo:
            cairo_move_to(context, at[0].x(), at[0].y());
            break;
        case KWPath::LineTo:
            cairo_line_to(context, at[0].x(), at[0].y());
            break;
        case KWPath::CurveTo:
            cairo_curve_to(context, at[0].x(), at[0].y(), at[1].x(), at[1].y(), at[2].x(), at[2].y());
            break;
        case KWPath::Close:
            cairo_close_path(context);
            break;
        }
    });
}
}

CairoPainter::CairoPainter(cairo_t *context, const chartstyle::Sheet &sheet, TextShaper &shaper,
                           const std::vector<chart::Font> &fonts, Device device, double scale)
    : m_context(context)
    , m_sheet(sheet)
    , m_shaper(shaper)
    , m_fonts(fonts)
    , m_device(device)
    , m_scale(scale)
{
}

void CairoPainter::setColor(const QColor &color)
{
    cairo_set_source_rgba(m_context, color.redF(), color.greenF(), color.blueF(), color.alphaF());
}

void CairoPainter::fillGround(const QRectF &area)
{
    setColor(m_sheet.color(Style::Paper));
    cairo_rectangle(m_context, area.x(), area.y(), area.width(), area.height());
    cairo_fill(m_context);
}

void CairoPainter::paint(const chart::Marks &marks, const QPointF &offset, const QRectF &clip)
{
    if (clip.isEmpty())
        return;
    cairo_save(m_context);
    cairo_rectangle(m_context, clip.x(), clip.y(), clip.width(), clip.height());
    cairo_clip(m_context);
    cairo_translate(m_context, offset.x(), offset.y());
    cairo_scale(m_context, m_scale, m_scale);
    m_offset = offset;
    m_view = QRectF((clip.x() - offset.x()) / m_scale, (clip.y() - offset.y()) / m_scale,
                    clip.width() / m_scale, clip.height() / m_scale)
                 .adjusted(-viewMargin, -viewMargin, viewMargin, viewMargin);
    const auto isSeen = [this](const Mark &mark) {
        return mark.rect.right() >= m_view.left() && mark.rect.left() <= m_view.right() &&
               mark.rect.bottom() >= m_view.top() && mark.rect.top() <= m_view.bottom();
    };
    for (std::size_t i = 0; i < marks.size(); ++i) {
        if (!isSeen(marks[i]))
            continue;
        if (marks[i].kind != Kind::Grid || m_device == Pixels) {
            paintMark(marks[i]);
            continue;
        }
        // Lines of the grid that look alike are one stroke: each of its own would take more of a file than a
        // name.
        const KWLineFormat &format = m_sheet.style(marks[i].style).line;
        for (; i < marks.size() && marks[i].kind == Kind::Grid &&
               &m_sheet.style(marks[i].style).line == &format;
             ++i) {
            if (!isSeen(marks[i]))
                continue;
            const QPointF from = cutTo(marks[i].points.first(), m_view),
                          to = cutTo(marks[i].points.last(), m_view);
            cairo_move_to(m_context, from.x(), from.y());
            cairo_line_to(m_context, to.x(), to.y());
        }
        --i;
        stroke(format);
    }
    cairo_restore(m_context);
}

double CairoPainter::snapped(double position, double offset) const
{
    return (std::round(position * m_scale + offset) - offset) / m_scale;
}

QRectF CairoPainter::snapped(const QRectF &rect) const
{
    if (m_device == Paper)
        return rect;
    const double left = snapped(rect.left(), m_offset.x()), top = snapped(rect.top(), m_offset.y());
    return QRectF(left, top, std::max(1 / m_scale, snapped(rect.right(), m_offset.x()) - left),
                  std::max(1 / m_scale, snapped(rect.bottom(), m_offset.y()) - top));
}

// The outline of a closed shape as the current path.
void CairoPainter::trace(const Mark &mark, const QRectF &rect)
{
    if (mark.shape == Shape::Polygon) {
        for (int i = 0; i < mark.points.size(); ++i) {
            const QPointF corner = cutTo(mark.points.at(i), m_view);
            i == 0 ? cairo_move_to(m_context, corner.x(), corner.y())
                   : cairo_line_to(m_context, corner.x(), corner.y());
        }
        cairo_close_path(m_context);
        return;
    }
    const double radius =
        mark.shape == Shape::Rect
            ? 0
            : std::min({m_sheet.style(mark.style).radius, rect.width() / 2, rect.height() / 2});
    if (!(radius > 0)) {
        cairo_rectangle(m_context, rect.x(), rect.y(), rect.width(), rect.height());
        return;
    }
    const double right = mark.shape == Shape::LeftRoundRect ? 0 : radius;
    const auto corner = [&](double x, double y, double size, double angle) {
        if (size > 0)
            cairo_arc(m_context, x, y, size, angle, angle + quarterCircle);
        else
            cairo_line_to(m_context, x, y);
    };
    cairo_new_sub_path(m_context);
    corner(rect.left() + radius, rect.top() + radius, radius, 2 * quarterCircle);
    corner(rect.right() - right, rect.top() + right, right, 3 * quarterCircle);
    corner(rect.right() - right, rect.bottom() - right, right, 0);
    corner(rect.left() + radius, rect.bottom() - radius, radius, quarterCircle);
    cairo_close_path(m_context);
}

// Fills the current path and takes it away.
void CairoPainter::fill(const KWPaint &paint, const QRectF &bounds)
{
    if (paint.type == KWPaint::Gradient) {
        // Across the bounds in the gradient's direction.
        const double angle = paint.angle * M_PI / 180;
        const QPointF way(std::cos(angle) * bounds.width() / 2, std::sin(angle) * bounds.height() / 2);
        const QPointF from = bounds.center() - way, to = bounds.center() + way;
        cairo_pattern_t *gradient = cairo_pattern_create_linear(from.x(), from.y(), to.x(), to.y());
        const auto stop = [gradient](double place, const QColor &color) {
            cairo_pattern_add_color_stop_rgba(gradient, place, color.redF(), color.greenF(), color.blueF(),
                                              color.alphaF());
        };
        stop(0, paint.color.color());
        stop(1, paint.otherColor.color());
        cairo_set_source(m_context, gradient);
        cairo_fill(m_context);
        cairo_pattern_destroy(gradient);
        return;
    }
    if (paint.type != KWPaint::Hatch) {
        setColor(paint.color.color());
        cairo_fill(m_context);
        return;
    }
    cairo_save(m_context);
    if (!paint.otherColor.isNone()) {
        setColor(paint.otherColor.color());
        cairo_fill_preserve(m_context);
    }
    cairo_clip(m_context);
    // Lines through the bounds, counted from the origin so that neighbours go on in each other.
    const double angle = paint.angle * M_PI / 180;
    const QPointF along(std::cos(angle), std::sin(angle)), across(-along.y(), along.x());
    double least = chart::nowhere, most = -chart::nowhere;
    for (const QPointF &corner :
         {bounds.topLeft(), bounds.topRight(), bounds.bottomLeft(), bounds.bottomRight()}) {
        const double distance = QPointF::dotProduct(corner, across);
        least = std::min(least, distance);
        most = std::max(most, distance);
    }
    const double reach = bounds.width() + bounds.height();
    const double middle = QPointF::dotProduct(bounds.center(), along);
    const double spacing = std::max(1.0, paint.spacing);
    for (double distance = std::ceil(least / spacing) * spacing; distance <= most; distance += spacing) {
        const QPointF foot = across * distance + along * middle;
        const QPointF from = foot - along * reach, to = foot + along * reach;
        cairo_move_to(m_context, from.x(), from.y());
        cairo_line_to(m_context, to.x(), to.y());
    }
    setColor(paint.color.color());
    cairo_set_dash(m_context, nullptr, 0, 0);
    cairo_set_line_width(m_context, paint.lineWidth);
    cairo_stroke(m_context);
    cairo_restore(m_context);
}

// Strokes the current path and takes it away.
void CairoPainter::stroke(const KWLineFormat &line)
{
    setColor(line.color.color());
    cairo_set_line_width(m_context, line.width);
    cairo_set_line_cap(m_context, line.cap == KWLineFormat::RoundCap    ? CAIRO_LINE_CAP_ROUND
                                  : line.cap == KWLineFormat::SquareCap ? CAIRO_LINE_CAP_SQUARE
                                                                        : CAIRO_LINE_CAP_BUTT);
    cairo_set_line_join(m_context, line.join == KWLineFormat::RoundJoin   ? CAIRO_LINE_JOIN_ROUND
                                   : line.join == KWLineFormat::BevelJoin ? CAIRO_LINE_JOIN_BEVEL
                                                                          : CAIRO_LINE_JOIN_MITER);
    const QList<double> lengths = line.dash.pixels(line.width);
    const std::vector<double> dashes(lengths.begin(), lengths.end());
    cairo_set_dash(m_context, dashes.empty() ? nullptr : dashes.data(), int(dashes.size()),
                   line.dash.offset * line.width);
    cairo_stroke(m_context);
}

void CairoPainter::strokeLine(const Mark &mark, const KWLineFormat &line)
{
    const int count = mark.points.size();
    if (count < 2 || line.isNone())
        return;
    KWLineFormat format = line;
    double shift = 0; // to the middle of a device pixel
    if (m_device == Pixels) {
        const double width = std::max(1.0, std::round(line.width * m_scale));
        format.width = width / m_scale;
        shift = std::fmod(width, 2) == 1 ? 0.5 / m_scale : 0;
    }
    // A straight line keeps its ends.
    const bool isLevel = count == 2 && mark.points.at(0).y() == mark.points.at(1).y();
    const bool isUpright = count == 2 && mark.points.at(0).x() == mark.points.at(1).x();
    const QPointF toMiddle(isLevel ? 0 : shift, isUpright ? 0 : shift);
    QVector<QPointF> corners(count);
    for (int i = 0; i < count; ++i) {
        const QPointF corner = cutTo(mark.points.at(i), m_view);
        corners[i] =
            m_device == Paper
                ? corner
                : QPointF(snapped(corner.x(), m_offset.x()), snapped(corner.y(), m_offset.y())) + toMiddle;
    }
    // Dashes stay where they are when the beginning is cut off.
    const QPointF cutOff = cutTo(mark.points.at(0), m_view) - mark.points.at(0);
    format.dash.offset += (std::abs(cutOff.x()) + std::abs(cutOff.y())) / format.width;
    // The line ends before the tip of its head.
    const QPointF tip = corners.last(), before = corners.at(count - 2);
    const double whole = std::hypot(tip.x() - before.x(), tip.y() - before.y());
    const double inset = std::min(line.end.isNone() ? 0 : line.end.inset(line.width), whole);
    if (inset > 0)
        corners[count - 1] = tip - (tip - before) * (inset / whole);
    for (int i = 0; i < count; ++i)
        i == 0 ? cairo_move_to(m_context, corners.at(i).x(), corners.at(i).y())
               : cairo_line_to(m_context, corners.at(i).x(), corners.at(i).y());
    stroke(format);
    if (line.end.isNone() || whole == 0)
        return;
    addPath(m_context, line.end.path(before, tip, line.width));
    if (line.end.isFilled()) {
        cairo_fill(m_context);
    } else {
        format.dash = KWLineDash();
        stroke(format);
    }
}

void CairoPainter::drawText(const Mark &mark, const chartstyle::Style &style)
{
    setColor(style.text.color.color());
    const double y = mark.rect.center().y() + chart::baselineShift(chart::pixelsOf(m_fonts[mark.font]));
    m_shaper.draw(m_context, mark.rect.x(), y, mark.text, mark.font);
}

void CairoPainter::paintMark(const Mark &mark)
{
    const chartstyle::Style &style = m_sheet.style(mark.style);
    // The second sign of a critical task is its style's edge.
    const bool isEdge = mark.kind == Kind::Critical;
    switch (mark.shape) {
    case Shape::Anchor:
        return;
    case Shape::Text:
        drawText(mark, style);
        return;
    case Shape::Line:
        strokeLine(mark, isEdge ? style.edge : style.line);
        return;
    case Shape::Rect:
    case Shape::RoundRect:
    case Shape::LeftRoundRect:
    case Shape::Polygon:
        break;
    }
    const QRectF rect = snapped(cutTo(mark.rect, m_view));
    if (isEdge) {
        setColor(style.edge.color.color());
        cairo_rectangle(m_context, rect.x(), rect.y(), rect.width(), rect.height());
        cairo_fill(m_context);
        return;
    }
    if (!style.fill.isNone()) {
        trace(mark, rect);
        fill(style.fill, rect);
    } else if (mark.shape == Shape::Rect && !style.line.isNone()) {
        // A line given as the area that it covers.
        setColor(style.line.color.color());
        trace(mark, rect);
        cairo_fill(m_context);
        return;
    }
    if (style.line.isNone())
        return;
    // An outline lies inside the shape.
    const double inset = style.line.width / 2;
    const QRectF inner(rect.x() + inset, rect.y() + inset, std::max(0.0, rect.width() - 2 * inset),
                       std::max(0.0, rect.height() - 2 * inset));
    trace(mark, mark.shape == Shape::Polygon ? rect : inner);
    stroke(style.line);
}
