#include "styles/kwpaint.h"
#include "styles/stylexml.h"

namespace {
constexpr const char *typeNames[] = {"none", "solid", "gradient", "hatch"};
constexpr double maxSpacing = 1000; // pixels

KWPaint paintOf(KWPaint::Type type, const KWColor &color, const KWColor &other, double angle)
{
    KWPaint paint;
    paint.type = type;
    paint.color = color;
    paint.otherColor = other;
    paint.angle = angle;
    return paint;
}
}

KWPaint KWPaint::solid(const KWColor &color)
{
    return paintOf(Solid, color, KWColor(), KWPaint().angle);
}

KWPaint KWPaint::gradient(const KWColor &from, const KWColor &to, double angle)
{
    return paintOf(Gradient, from, to, angle);
}

KWPaint KWPaint::hatch(const KWColor &lines, const KWColor &ground, double angle)
{
    return paintOf(Hatch, lines, ground, angle);
}

void KWPaint::saveTo(QDomElement &parent, const char *element) const
{
    QDomElement own = stylexml::append(parent, element);
    stylexml::writeName(own, "Type", typeNames, type);
    stylexml::write(own, "Angle", angle);
    stylexml::write(own, "Spacing", spacing);
    stylexml::write(own, "LineWidth", lineWidth);
    color.saveTo(own, "Color");
    otherColor.saveTo(own, "OtherColor");
}

void KWPaint::parse(const QDomElement &element)
{
    stylexml::readName(element, "Type", typeNames, type);
    stylexml::read(element, "Angle", -360, 360, angle);
    // A hatch of lines without distance would never end.
    stylexml::read(element, "Spacing", 0.5, maxSpacing, spacing);
    stylexml::read(element, "LineWidth", 0, maxSpacing, lineWidth);
    stylexml::readChild(element, "Color", color);
    stylexml::readChild(element, "OtherColor", otherColor);
}

bool KWPaint::operator==(const KWPaint &other) const
{
    return type == other.type && color == other.color && otherColor == other.otherColor &&
           angle == other.angle && spacing == other.spacing && lineWidth == other.lineWidth;
}
