#include "styles/kwlineformat.h"
#include "styles/kwmath.h"
#include "styles/stylexml.h"
#include <algorithm>
#include <cmath>

namespace {
constexpr const char *headNames[] = {"none", "triangle", "open", "diamond", "circle", "tick"};
constexpr const char *capNames[] = {"flat", "square", "round"};
constexpr const char *joinNames[] = {"miter", "bevel", "round"};
constexpr double maxWidth = 1000; // pixels, or line widths
}

// ---- Dashes -----------------------------------------------------------------------------------------------

KWLineDash KWLineDash::dots()
{
    KWLineDash dash;
    dash.lengths = {1, 2};
    return dash;
}

KWLineDash KWLineDash::dashes()
{
    KWLineDash dash;
    dash.lengths = {4, 3};
    return dash;
}

QList<double> KWLineDash::pixels(double width) const
{
    QList<double> scaled;
    double sum = 0;
    for (const double length : lengths) {
        const double pixels = length * width;
        if (!std::isfinite(pixels) || pixels < 0 || scaled.size() == maxLengths)
            return QList<double>();
        scaled.append(pixels);
        sum += pixels;
    }
    return sum > 0 ? scaled : QList<double>();
}

void KWLineDash::saveTo(QDomElement &parent) const
{
    QDomElement own = stylexml::append(parent, "Dash");
    QStringList texts;
    for (const double length : lengths)
        texts.append(QString::number(length));
    stylexml::write(own, "Lengths", texts.join(QLatin1Char(';')));
    stylexml::write(own, "Offset", offset);
}

void KWLineDash::parse(const QDomElement &element)
{
    const QStringList texts =
        element.attribute(QStringLiteral("Lengths")).split(QLatin1Char(';'), Qt::SkipEmptyParts);
    if (element.hasAttribute(QStringLiteral("Lengths")) && texts.size() <= maxLengths) {
        lengths.clear();
        for (const QString &text : texts) {
            const double length = XmlText(text).toDouble();
            lengths.append(qBound(0.0, length, maxWidth));
        }
    }
    stylexml::read(element, "Offset", -maxWidth, maxWidth, offset);
}

// ---- Arrow heads ------------------------------------------------------------------------------------------

KWPath KWArrowHead::path(const QPointF &from, const QPointF &tip, double lineWidth) const
{
    KWPath head;
    const QPointF along = KWMath::direction(from, tip);
    if (type == None || along.isNull())
        return head;
    const QPointF back = tip - along * (length * lineWidth);
    const QPointF aside = QPointF(-along.y(), along.x()) * (width * lineWidth / 2);
    switch (type) {
    case None:
        break;
    case Triangle:
        head.addPolygon(QVector<QPointF>{tip, back + aside, back - aside});
        break;
    case Open:
        head.moveTo(back + aside);
        head.lineTo(tip);
        head.lineTo(back - aside);
        break;
    case Diamond: {
        const QPointF middle = (tip + back) / 2;
        head.addPolygon(QVector<QPointF>{tip, middle + aside, back, middle - aside});
        break;
    }
    case Circle: {
        const double radius = length * lineWidth / 2;
        const QPointF middle = (tip + back) / 2;
        head.addEllipse(QRectF(middle.x() - radius, middle.y() - radius, 2 * radius, 2 * radius));
        break;
    }
    case Tick:
        head.moveTo(tip + aside);
        head.lineTo(tip - aside);
        break;
    }
    return head;
}

double KWArrowHead::inset(double lineWidth) const
{
    return isFilled() ? length * lineWidth / 2 : 0;
}

void KWArrowHead::saveTo(QDomElement &parent, const char *element) const
{
    QDomElement own = stylexml::append(parent, element);
    stylexml::writeName(own, "Type", headNames, type);
    stylexml::write(own, "Length", length);
    stylexml::write(own, "Width", width);
}

void KWArrowHead::parse(const QDomElement &element)
{
    stylexml::readName(element, "Type", headNames, type);
    stylexml::read(element, "Length", 0, maxWidth, length);
    stylexml::read(element, "Width", 0, maxWidth, width);
}

bool KWArrowHead::operator==(const KWArrowHead &other) const
{
    return type == other.type && length == other.length && width == other.width;
}

// ---- Lines ------------------------------------------------------------------------------------------------

void KWLineFormat::saveTo(QDomElement &parent, const char *element) const
{
    QDomElement own = stylexml::append(parent, element);
    stylexml::write(own, "Width", width);
    stylexml::writeName(own, "Cap", capNames, cap);
    stylexml::writeName(own, "Join", joinNames, join);
    color.saveTo(own);
    dash.saveTo(own);
    begin.saveTo(own, "Begin");
    end.saveTo(own, "End");
}

void KWLineFormat::parse(const QDomElement &element)
{
    stylexml::read(element, "Width", 0, maxWidth, width);
    stylexml::readName(element, "Cap", capNames, cap);
    stylexml::readName(element, "Join", joinNames, join);
    stylexml::readChild(element, "Color", color);
    stylexml::readChild(element, "Dash", dash);
    stylexml::readChild(element, "Begin", begin);
    stylexml::readChild(element, "End", end);
}

bool KWLineFormat::operator==(const KWLineFormat &other) const
{
    return color == other.color && width == other.width && cap == other.cap && join == other.join &&
           dash == other.dash && begin == other.begin && end == other.end;
}
