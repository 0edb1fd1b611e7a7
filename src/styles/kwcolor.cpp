#include "styles/kwcolor.h"
#include "styles/colorutil.h"
#include "styles/stylexml.h"
#include "styles/themepalette.h"
#include <algorithm>

namespace {
constexpr const char *typeNames[] = {"none", "rgb", "theme"};
}

KWColor::KWColor(const QColor &color)
{
    if (!color.isValid())
        return;
    type = Rgb;
    rgb = color.rgb() & RGB_MASK;
    alpha = color.alphaF();
}

KWColor KWColor::fromTheme(int index, double tint)
{
    KWColor color;
    color.type = Theme;
    color.themeIndex = index;
    color.tint = tint;
    return color;
}

QColor KWColor::finished(QColor base) const
{
    if (!base.isValid())
        return base;
    base = ColorUtil::tinted(base, tint);
    base.setAlphaF(alpha > 0 ? std::min(alpha, 1.0) : 0);
    return base;
}

QColor KWColor::color() const
{
    return type == Rgb ? finished(QColor(rgb)) : QColor();
}

QColor KWColor::color(const ThemePalette &palette) const
{
    return type == Theme ? finished(palette.color(themeIndex)) : color();
}

void KWColor::saveTo(QDomElement &parent, const char *element) const
{
    QDomElement own = stylexml::append(parent, element);
    stylexml::writeName(own, "Type", typeNames, type);
    if (type == Rgb)
        stylexml::write(own, "Rgb", ColorUtil::toHex(QColor(rgb)));
    if (type == Theme)
        stylexml::write(own, "Index", themeIndex);
    stylexml::write(own, "Tint", tint);
    stylexml::write(own, "Alpha", alpha);
}

void KWColor::parse(const QDomElement &element)
{
    stylexml::readName(element, "Type", typeNames, type);
    const QColor value = ColorUtil::fromHex(element.attribute(QStringLiteral("Rgb")));
    if (value.isValid())
        rgb = value.rgb() & RGB_MASK;
    stylexml::read(element, "Index", 0, ThemePalette::colorCount - 1, themeIndex);
    stylexml::read(element, "Tint", -1, 1, tint);
    stylexml::read(element, "Alpha", 0, 1, alpha);
}

bool KWColor::operator==(const KWColor &other) const
{
    if (type != other.type)
        return false;
    if (type == None)
        return true;
    return (type == Rgb ? rgb == other.rgb : themeIndex == other.themeIndex) && tint == other.tint &&
           alpha == other.alpha;
}
