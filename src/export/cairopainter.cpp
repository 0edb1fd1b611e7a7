#include "export/cairopainter.h"
#include <algorithm>
#include <cmath>
#include <numeric>
#include <unordered_set>

using chart::Kind;
using chart::Mark;
using chart::Shape;
using chart::Style;

namespace {

constexpr double roundness = 0.5522847498; // of a curve that is a quarter of a circle
// Numbers of cairo's have no room for the far ends of a long bar.
constexpr double viewMargin = 100; // chart pixels
constexpr double pointsPerUnit = 72 / 96.0;
constexpr double dotsPerPoint = 8; // of a printer, about

// Places for each device unit that shapes stand on: few digits make a short file. Quarters of a point, and
// finer ones where a pixel of the chart is smaller than those.
double stepsOnPaper(double scale)
{
    constexpr double leastPerPixel = 1;
    double perPoint = 4;
    while (perPoint * pointsPerUnit * scale < leastPerPixel && perPoint < 256)
        perPoint *= 2;
    return perPoint * pointsPerUnit;
}

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

bool isIn(const QRectF &rect, const QRectF &view)
{
    return rect.right() >= view.left() && rect.left() <= view.right() && rect.bottom() >= view.top() &&
           rect.top() <= view.bottom();
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
    , m_steps(device == Paper ? stepsOnPaper(scale) : 1)
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
    m_seen = QRectF((clip.x() - offset.x()) / m_scale, (clip.y() - offset.y()) / m_scale,
                    clip.width() / m_scale, clip.height() / m_scale);
    m_view = m_seen.adjusted(-viewMargin, -viewMargin, viewMargin, viewMargin);
    // Neighbours that look alike are one path: each of its own would take more of a file than a name, and
    // cairo most of its time.
    constexpr std::size_t longestRun = 1000;
    const auto isLine = [](const Mark &mark) { return mark.shape == Shape::Line; };
    for (std::size_t first = 0, end; first < marks.size(); first = end) {
        const Mark &mark = marks[first];
        end = first + 1;
        if (mark.shape == Shape::Anchor)
            continue;
        if (mark.shape == Shape::Text) {
            while (end < marks.size() && marks[end].shape >= Shape::Text)
                ++end;
            drawTexts({&mark, &mark + (end - first)});
            continue;
        }
        while (end < marks.size() && end - first < longestRun && marks[end].kind == mark.kind &&
               marks[end].style == mark.style && marks[end].shape < Shape::Text &&
               isLine(marks[end]) == isLine(mark))
            ++end;
        const Run run{&marks[first], &marks[first] + (end - first)};
        const chartstyle::Style &style = m_sheet.style(mark.style);
        // The second sign of a critical task is its style's edge.
        const bool isEdge = mark.kind == Kind::Critical;
        if (isLine(mark))
            strokeLines(run, isEdge ? style.edge : style.line);
        else if (isEdge)
            fillAreas(run, style.edge.color.color());
        else if (style.fill.isNone() && mark.shape == Shape::Rect) // a line given as the area that it covers
            fillAreas(run, style.line.color.color());
        else
            paintShapes(run, style);
    }
    cairo_restore(m_context);
}

namespace {

double onSteps(double position, double scale, double offset, double steps)
{
    return (std::round((position * scale + offset) * steps) / steps - offset) / scale;
}
}

double CairoPainter::snapped(double position, double offset, double finer) const
{
    return onSteps(position, m_scale, offset, m_steps * finer);
}

double CairoPainter::snapped(double length) const
{
    return snapped(length, 0);
}

double CairoPainter::dotted(double position, double offset) const
{
    return m_device == Paper
               ? onSteps(position, m_scale, offset, std::max(m_steps, dotsPerPoint * pointsPerUnit))
               : position;
}

void CairoPainter::addPath(const KWPath &path)
{
    path.forEach([this](KWPath::Kind kind, const QPointF *at) {
        const auto x = [&](int number) { return dotted(at[number].x(), m_offset.x()); };
        const auto y = [&](int number) { return dotted(at[number].y(), m_offset.y()); };
        switch (kind) {
        case KWPath::MoveTo:
            cairo_move_to(m_context, x(0), y(0));
            break;
        case KWPath::LineTo:
            cairo_line_to(m_context, x(0), y(0));
            break;
        case KWPath::CurveTo:
            cairo_curve_to(m_context, x(0), y(0), x(1), y(1), x(2), y(2));
            break;
        case KWPath::Close:
            cairo_close_path(m_context);
            break;
        }
    });
}

QRectF CairoPainter::snapped(const QRectF &rect) const
{
    const double left = snapped(rect.left(), m_offset.x()), top = snapped(rect.top(), m_offset.y());
    const double least = 1 / (m_scale * m_steps);
    return QRectF(left, top, std::max(least, snapped(rect.right(), m_offset.x()) - left),
                  std::max(least, snapped(rect.bottom(), m_offset.y()) - top));
}

// Adds the outline of a closed shape to the current path.
void CairoPainter::trace(const Mark &mark, const QRectF &rect)
{
    if (mark.shape == Shape::Polygon) {
        for (int i = 0; i < mark.points.size(); ++i) {
            QPointF corner = cutTo(mark.points.at(i), m_view);
            if (m_device == Paper)
                corner = QPointF(snapped(corner.x(), m_offset.x()), snapped(corner.y(), m_offset.y()));
            i == 0 ? cairo_move_to(m_context, corner.x(), corner.y())
                   : cairo_line_to(m_context, corner.x(), corner.y());
        }
        cairo_close_path(m_context);
        return;
    }
    double radius = mark.shape == Shape::Rect ? 0 : m_sheet.style(mark.style).radius;
    if (m_device == Paper) {
        // The corners of a bar that is hardly wider than they are would take most of a file.
        const bool isSeen = rect.width() > 2 * radius && rect.height() > 2 * radius;
        radius = isSeen ? snapped(radius) : 0;
    } else {
        radius = std::min({radius, rect.width() / 2, rect.height() / 2});
    }
    if (!(radius > 0)) {
        cairo_rectangle(m_context, rect.x(), rect.y(), rect.width(), rect.height());
        return;
    }
    const double left = rect.left(), top = rect.top(), right = rect.right(), bottom = rect.bottom();
    const bool isRoundRight = mark.shape != Shape::LeftRoundRect;
    double reach = radius * (1 - roundness); // of a curve's handle from the corner
    if (m_device == Paper)
        reach = snapped(reach);
    const double turn = isRoundRight ? radius : 0;
    cairo_move_to(m_context, left + radius, top);
    cairo_line_to(m_context, right - turn, top);
    if (isRoundRight)
        cairo_curve_to(m_context, right - reach, top, right, top + reach, right, top + radius);
    cairo_line_to(m_context, right, bottom - turn);
    if (isRoundRight)
        cairo_curve_to(m_context, right, bottom - reach, right - reach, bottom, right - radius, bottom);
    cairo_line_to(m_context, left + radius, bottom);
    cairo_curve_to(m_context, left + reach, bottom, left, bottom - reach, left, bottom - radius);
    cairo_line_to(m_context, left, top + radius);
    cairo_curve_to(m_context, left, top + reach, left + reach, top, left + radius, top);
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
    // As in SVG. With cairo's own limit an outline might reach out of the clip that its fill keeps within,
    // and the two would be written as two paths.
    constexpr double miterLimit = 4;
    cairo_set_miter_limit(m_context, miterLimit);
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

void CairoPainter::strokeLines(const Run &run, const KWLineFormat &line)
{
    if (line.isNone())
        return;
    KWLineFormat format = line;
    double shift = 0; // to the middle of a device pixel
    if (m_device == Pixels) {
        const double width = std::max(1.0, std::round(line.width * m_scale));
        format.width = width / m_scale;
        shift = std::fmod(width, 2) == 1 ? 0.5 / m_scale : 0;
    }
    const double inset = line.end.isNone() ? 0 : line.end.inset(line.width);
    const double reach = line.width * (1 + line.end.length + line.end.width);
    const QRectF seen = m_seen.adjusted(-reach, -reach, reach, reach);
    const QList<double> dashes = format.dash.pixels(format.width);
    const double period =
        std::accumulate(dashes.begin(), dashes.end(), 0.0) * (dashes.size() % 2 == 1 ? 2 : 1);
    KWPath heads;
    // Links of one predecessor begin alike, those to one successor end alike, and many only pass: what has
    // been drawn is not drawn again.
    std::unordered_set<quint64> drawn;
    const auto isDrawn = [&](const QPointF &a, const QPointF &b, bool isLast) {
        const bool isLevel = a.y() == b.y();
        if (!isLevel && a.x() != b.x())
            return false;
        constexpr int bits = 20;
        const auto number = [&](double at, double offset) {
            const qint64 step = std::llround((at * m_scale + offset) * m_steps);
            return quint64(step + (1 << (bits - 1))) & ((1 << bits) - 1);
        };
        const double dx = m_offset.x(), dy = m_offset.y();
        const quint64 across = isLevel ? number(a.y(), dy) : number(a.x(), dx);
        const quint64 from = isLevel ? number(a.x(), dx) : number(a.y(), dy);
        const quint64 to = isLevel ? number(b.x(), dx) : number(b.y(), dy);
        // An end with its head is another one than what passes there.
        const bool turns = !isLast && from > to;
        const quint64 key = ((across << bits | (turns ? to : from)) << bits | (turns ? from : to)) << 2;
        return !drawn.insert(key | (isLevel ? 2 : 0) | (isLast ? 1 : 0)).second;
    };
    for (const Mark &mark : run) {
        const int count = mark.points.size();
        if (count < 2 || !isIn(mark.rect, seen))
            continue;
        // A straight line keeps its ends.
        const bool isLevel = count == 2 && mark.points.at(0).y() == mark.points.at(1).y();
        const bool isUpright = count == 2 && mark.points.at(0).x() == mark.points.at(1).x();
        const QPointF toMiddle(isLevel ? 0 : shift, isUpright ? 0 : shift);
        const auto corner = [&](int number) {
            const QPointF at = cutTo(mark.points.at(number), m_view);
            return QPointF(snapped(at.x(), m_offset.x()), snapped(at.y(), m_offset.y())) + toMiddle;
        };
        QPointF before = corner(0);
        if (period > 0) {
            // Dashes stay where they are when the beginning is cut off: by whole ones.
            const QPointF cutOff = cutTo(mark.points.at(0), m_view) - mark.points.at(0);
            const double length = std::hypot(cutOff.x(), cutOff.y());
            if (length > 0)
                before -= cutOff * (std::fmod(length, period) / length);
        }
        bool isOn = false; // at the end of the segment before
        for (int i = 1; i < count; ++i) {
            const QPointF at = corner(i);
            const bool isLast = i + 1 == count;
            if (isIn(QRectF(before, at).normalized(), seen) &&
                !(mark.kind == Kind::Link && isDrawn(before, at, isLast))) {
                if (!isOn)
                    cairo_move_to(m_context, before.x(), before.y());
                isOn = true;
                const double whole = isLast ? std::hypot(at.x() - before.x(), at.y() - before.y()) : 0;
                // The line ends before the tip of its head.
                const QPointF end = whole > 0 ? at - (at - before) * (std::min(inset, whole) / whole) : at;
                cairo_line_to(m_context, dotted(end.x(), m_offset.x()), dotted(end.y(), m_offset.y()));
                if (isLast && whole > 0 && !line.end.isNone())
                    heads.addPath(line.end.path(before, at, line.width));
            } else {
                isOn = false;
            }
            before = at;
        }
    }
    stroke(format);
    if (heads.isEmpty())
        return;
    addPath(heads);
    if (line.end.isFilled()) {
        setColor(line.color.color());
        cairo_fill(m_context);
    } else {
        format.dash = KWLineDash();
        stroke(format);
    }
}

void CairoPainter::drawTexts(const Run &run)
{
    QColor color;
    for (const Mark &mark : run) {
        if (mark.shape != Shape::Text || !isIn(mark.rect, m_view))
            continue;
        const QColor its = m_sheet.style(mark.style).text.color.color();
        if (its != color) {
            m_shaper.finish(m_context);
            setColor(color = its);
        }
        const double y = mark.rect.center().y() + chart::baselineShift(chart::pixelsOf(m_fonts[mark.font]));
        constexpr double finer = 4; // or what is aligned on the right seems to stand unevenly
        const QPointF at = m_device == Pixels ? QPointF(mark.rect.x(), y)
                                              : QPointF(snapped(mark.rect.x(), m_offset.x(), finer),
                                                        snapped(y, m_offset.y()));
        m_shaper.draw(m_context, at.x(), at.y(), mark.text, mark.font);
    }
    m_shaper.finish(m_context);
}

void CairoPainter::fillAreas(const Run &run, const QColor &color)
{
    for (const Mark &mark : run)
        if (isIn(mark.rect, m_view)) {
            const QRectF rect = snapped(cutTo(mark.rect, m_view));
            cairo_rectangle(m_context, rect.x(), rect.y(), rect.width(), rect.height());
        }
    setColor(color);
    cairo_fill(m_context);
}

void CairoPainter::paintShapes(const Run &run, const chartstyle::Style &style)
{
    const bool hasLine = !style.line.isNone(), hasFill = !style.fill.isNone();
    // An outline lies inside the shape.
    const double inset = hasLine ? dotted(style.line.width / 2, 0) : 0;
    const bool isPlain = style.fill.type == KWPaint::Solid;
    for (const Mark &mark : run) {
        // Progress of less than a dot lies under the outline of its bar.
        const bool isHidden =
            m_device == Paper && mark.kind == Kind::Progress && mark.rect.width() * m_scale * m_steps < 1;
        if (isHidden || !isIn(mark.rect, m_view))
            continue;
        const QRectF rect = snapped(cutTo(mark.rect, m_view));
        trace(mark, QRectF(rect.x() + inset, rect.y() + inset, std::max(0.0, rect.width() - 2 * inset),
                           std::max(0.0, rect.height() - 2 * inset)));
        if (!hasFill || isPlain)
            continue;
        // What is not of one colour is laid out in its own bounds.
        cairo_path_t *outline = hasLine ? cairo_copy_path(m_context) : nullptr;
        fill(style.fill, rect);
        if (outline) {
            cairo_append_path(m_context, outline);
            cairo_path_destroy(outline);
            stroke(style.line);
        }
    }
    if (hasFill && isPlain) {
        setColor(style.fill.color.color());
        hasLine ? cairo_fill_preserve(m_context) : cairo_fill(m_context);
    }
    if (hasLine)
        stroke(style.line);
}
