#include "export/svgwriter.h"
#include "support/xmlguard.h"
#include <algorithm>
#include <cmath>

using chart::Align;
using chart::Kind;
using chart::Mark;
using chart::Shape;
using chart::Style;

namespace {

QByteArray hex(const QColor &color)
{
    return color.name(QColor::HexRgb).toLatin1();
}

QByteArray attribute(const char *name, double value)
{
    return QByteArray(" ") + name + "=\"" + SvgWriter::number(value) + '"';
}

// An outline lies inside the shape, as on paper.
QRectF inside(const QRectF &rect, const KWLineFormat &line)
{
    const double inset = line.isNone() ? 0 : line.width / 2;
    return QRectF(rect.x() + inset, rect.y() + inset, std::max(0.0, rect.width() - 2 * inset),
                  std::max(0.0, rect.height() - 2 * inset));
}

QByteArray pointText(const QPointF &point)
{
    return SvgWriter::number(point.x()) + ' ' + SvgWriter::number(point.y());
}
}

SvgWriter::SvgWriter(const chartstyle::Sheet &sheet, const std::vector<chart::Font> &fonts,
                     const QString &family)
    : m_sheet(sheet)
    , m_fonts(fonts)
    , m_family(family)
{
}

QByteArray SvgWriter::number(double value)
{
    if (!std::isfinite(value))
        return "0";
    const double rounded = std::round(value * 100) / 100;
    QByteArray text = QByteArray::number(rounded, 'f', 2);
    while (text.endsWith('0'))
        text.chop(1);
    if (text.endsWith('.'))
        text.chop(1);
    return text == "-0" ? QByteArray("0") : text;
}

QByteArray SvgWriter::escaped(const QString &text)
{
    return xmlguard::clean(text).toHtmlEscaped().toUtf8();
}

QByteArray SvgWriter::styleSheet(const QByteArray &scope) const
{
    QByteArray css;
    const auto rule = [&](const QByteArray &name, const QByteArray &content) {
        css += scope + '.' + name + '{' + content + "}\n";
    };
    const auto stroke = [](const KWLineFormat &line) {
        QByteArray content = "stroke:" + hex(line.color.color()) + ";stroke-width:" + number(line.width);
        QByteArray dashes;
        for (const double length : line.dash.pixels(line.width))
            dashes += (dashes.isEmpty() ? "" : " ") + number(length);
        if (!dashes.isEmpty())
            content += ";stroke-dasharray:" + dashes;
        return content;
    };
    const QString family =
        m_family.isEmpty()
            ? QStringLiteral("sans-serif")
            : QLatin1Char('"') + QString(m_family).remove(QLatin1Char('"')) + QStringLiteral("\",sans-serif");
    css += scope + "text{font-family:" + escaped(family).replace("&quot;", "\"") + ";white-space:pre}\n";
    for (std::size_t i = 0; i < chartstyle::roleCount; ++i) {
        const Style role = Style(i);
        const chartstyle::Style &style = m_sheet.style(role);
        const QByteArray name = chartstyle::name(role);
        if (!style.text.color.isNone()) {
            rule(name, "fill:" + hex(style.text.color.color()) +
                           (style.text.underline ? ";text-decoration:underline" : ""));
            continue;
        }
        QByteArray content;
        if (style.fill.type == KWPaint::Hatch)
            content = "fill:url(#" + name + "-hatch)";
        else if (!style.fill.isNone())
            content = "fill:" + hex(style.fill.color.color());
        if (!style.line.isNone()) {
            const QByteArray outline = stroke(style.line);
            rule(name + "-line", "fill:none;" + outline);
            rule(name + "-head", "fill:" + hex(style.line.color.color()));
            content += content.isEmpty() ? "fill:none;" + outline : ";" + outline;
        }
        rule(name, content);
        if (!style.edge.isNone()) {
            rule(name + "-edge", "fill:" + hex(style.edge.color.color()));
            rule(name + "-edge-line", "fill:none;" + stroke(style.edge));
        }
    }
    for (std::size_t i = 0; i < m_fonts.size(); ++i) {
        const chart::Font &font = m_fonts[i];
        QByteArray content = "font-size:" + number(chart::pixelsOf(font)) + "px";
        if (font.bold)
            content += ";font-weight:bold";
        if (font.italic)
            content += ";font-style:italic";
        if (font.strikeOut || (font.underline && i >= chart::fontRoles))
            content += QByteArray(";text-decoration:") + (font.strikeOut ? "line-through" : "underline");
        if (!font.family.isEmpty())
            content += ";font-family:\"" +
                       escaped(QString(font.family).remove(QLatin1Char('"')).remove(QLatin1Char('\\'))) +
                       "\",sans-serif";
        rule("f" + QByteArray::number(int(i)), content);
    }
    return css;
}

QByteArray SvgWriter::patterns() const
{
    QByteArray out;
    for (std::size_t i = 0; i < chartstyle::roleCount; ++i) {
        const KWPaint &paint = m_sheet.style(Style(i)).fill;
        if (paint.type != KWPaint::Hatch)
            continue;
        const QByteArray size = number(paint.spacing);
        out += QByteArray("<pattern id=\"") + chartstyle::name(Style(i)) +
               "-hatch\" patternUnits=\"userSpaceOnUse\" width=\"" + size + "\" height=\"" + size +
               "\" patternTransform=\"rotate(" + number(paint.angle) + ")\">";
        if (!paint.otherColor.isNone())
            out += "<rect width=\"" + size + "\" height=\"" + size + "\" fill=\"" +
                   hex(paint.otherColor.color()) + "\"/>";
        out += "<rect width=\"" + size + "\" height=\"" + number(paint.lineWidth) + "\" fill=\"" +
               hex(paint.color.color()) + "\"/></pattern>\n";
    }
    return out;
}

void SvgWriter::addLine(QByteArray &out, const Mark &mark, const QByteArray &name,
                        const KWLineFormat &line) const
{
    const int count = mark.points.size();
    if (count < 2)
        return;
    QVector<QPointF> corners = mark.points;
    const QPointF tip = corners.last(), before = corners.at(count - 2);
    const double whole = std::hypot(tip.x() - before.x(), tip.y() - before.y());
    const double inset = line.end.isNone() || whole == 0 ? 0 : std::min(line.end.inset(line.width), whole);
    if (inset > 0)
        corners[count - 1] = tip - (tip - before) * (inset / whole);
    QByteArray path = "M" + pointText(corners.first());
    for (int i = 1; i < count; ++i) {
        if (corners.at(i).x() == corners.at(i - 1).x())
            path += "V" + number(corners.at(i).y());
        else if (corners.at(i).y() == corners.at(i - 1).y())
            path += "H" + number(corners.at(i).x());
        else
            path += "L" + pointText(corners.at(i));
    }
    out += "<path class=\"" + name + "-line\" d=\"" + path + "\"/>\n";
    if (!line.end.isNone() && whole > 0)
        out += "<path class=\"" + name + (line.end.isFilled() ? "-head" : "-line") + "\" d=\"" +
               line.end.path(before, tip, line.width).toSvg(2).toLatin1() + "\"/>\n";
}

void SvgWriter::addElement(QByteArray &out, const Mark &mark) const
{
    const chartstyle::Style &style = m_sheet.style(mark.style);
    QByteArray name = chartstyle::name(mark.style);
    const bool isEdge = mark.kind == Kind::Critical;
    if (isEdge)
        name += "-edge";
    switch (mark.shape) {
    case Shape::Anchor:
        out += "<a href=\"" + escaped(mark.text) + "\"><rect fill=\"transparent\"" +
               attribute("x", mark.rect.x()) + attribute("y", mark.rect.y()) +
               attribute("width", mark.rect.width()) + attribute("height", mark.rect.height()) + "/></a>\n";
        return;
    case Shape::Text: {
        const double x = mark.align == Align::Left    ? mark.rect.left()
                         : mark.align == Align::Right ? mark.rect.right()
                                                      : mark.rect.center().x();
        const char *anchor = mark.align == Align::Left    ? ""
                             : mark.align == Align::Right ? " text-anchor=\"end\""
                                                          : " text-anchor=\"middle\"";
        const double y = mark.rect.center().y() + chart::baselineShift(chart::pixelsOf(m_fonts[mark.font]));
        out += "<text class=\"" + name + " f" + QByteArray::number(mark.font) + '"' + attribute("x", x) +
               attribute("y", y) + anchor + '>' + escaped(mark.text) + "</text>\n";
        return;
    }
    case Shape::Line:
        addLine(out, mark, name, isEdge ? style.edge : style.line);
        return;
    case Shape::Polygon: {
        QByteArray points;
        for (const QPointF &corner : mark.points)
            points += (points.isEmpty() ? "" : " ") + number(corner.x()) + ',' + number(corner.y());
        out += "<polygon class=\"" + name + "\" points=\"" + points + "\"/>\n";
        return;
    }
    case Shape::LeftRoundRect: {
        const double radius = std::min({style.radius, mark.rect.width() / 2, mark.rect.height() / 2});
        const QByteArray r = number(radius);
        out += "<path class=\"" + name + "\" d=\"M" + pointText(mark.rect.topRight()) + "V" +
               number(mark.rect.bottom()) + "H" + number(mark.rect.left() + radius) + "a" + r + ' ' + r +
               " 0 0 1 -" + r + " -" + r + "V" + number(mark.rect.top() + radius) + "a" + r + ' ' + r +
               " 0 0 1 " + r + " -" + r + "Z\"/>\n";
        return;
    }
    case Shape::Rect:
    case Shape::RoundRect:
        break;
    }
    // A line given as the area that it covers has no outline.
    const bool isLineArea = !isEdge && style.fill.isNone() && mark.shape == Shape::Rect;
    const QRectF rect = isEdge || isLineArea ? mark.rect : inside(mark.rect, style.line);
    out += "<rect class=\"" + name + (isLineArea ? "-head" : "") + '"' + attribute("x", rect.x()) +
           attribute("y", rect.y()) + attribute("width", rect.width()) + attribute("height", rect.height());
    if (mark.shape == Shape::RoundRect && style.radius > 0)
        out += attribute("rx", style.radius);
    out += "/>\n";
}

QByteArray SvgWriter::elements(const chart::Marks &marks, bool namesTasks) const
{
    QByteArray out;
    for (std::size_t i = 0; i < marks.size(); ++i) {
        const bool opens = namesTasks && marks[i].task != 0 && (i == 0 || marks[i - 1].task != marks[i].task);
        const bool closes =
            namesTasks && marks[i].task != 0 && (i + 1 == marks.size() || marks[i + 1].task != marks[i].task);
        if (opens)
            out += "<g data-task=\"" + QByteArray::number(marks[i].task) + "\">";
        addElement(out, marks[i]);
        if (closes)
            out += "</g>\n";
    }
    return out;
}

QByteArray SvgWriter::group(const chart::Marks &marks, const QPointF &offset, double scale,
                            const QRectF &clip, int clipNumber) const
{
    const QByteArray id = "clip" + QByteArray::number(clipNumber);
    QByteArray out = "<clipPath id=\"" + id + "\"><rect" + attribute("x", clip.x()) +
                     attribute("y", clip.y()) + attribute("width", clip.width()) +
                     attribute("height", clip.height()) + "/></clipPath>\n";
    out += "<g clip-path=\"url(#" + id + ")\"><g transform=\"translate(" + number(offset.x()) + ' ' +
           number(offset.y()) + ')';
    if (scale != 1)
        out += " scale(" + QByteArray::number(scale, 'g', 8) + ')';
    return out + "\">\n" + elements(marks) + "</g></g>\n";
}
