#include "styles/kwtextformat.h"
#include "styles/formatxml.h"
#include "styles/stylexml.h"

KWTextFormat KWTextFormat::fromFont(const QFont &font)
{
    KWTextFormat format;
    format.family = font.family();
    if (font.pointSizeF() > 0)
        format.pointSize = font.pointSizeF();
    else if (font.pixelSize() > 0)
        format.pointSize = font.pixelSize() * 0.75;
    format.bold = font.weight() >= formatxml::boldWeight;
    format.italic = font.style() != QFont::StyleNormal;
    format.underline = font.underline();
    format.strikeOut = font.strikeOut();
    return format;
}

QFont KWTextFormat::font() const
{
    QFont font;
    if (!family.isEmpty())
        font.setFamily(family);
    if (pointSize > 0)
        font.setPointSizeF(pointSize);
    font.setWeight(bold ? QFont::Bold : QFont::Normal);
    font.setItalic(italic);
    font.setUnderline(underline);
    font.setStrikeOut(strikeOut);
    return font;
}

void KWTextFormat::saveTo(QDomElement &parent) const
{
    QDomElement own = stylexml::append(parent, "Format");
    DomSink sink(own);
    formatxml::write(sink, *this);
    color.saveTo(own);
}

void KWTextFormat::parse(const QDomElement &element)
{
    stylexml::read(element, "Family", family);
    stylexml::read(element, "PointSize", 1, formatxml::maxPointSize, pointSize);
    stylexml::read(element, "Bold", bold);
    stylexml::read(element, "Italic", italic);
    stylexml::read(element, "Underline", underline);
    stylexml::read(element, "StrikeOut", strikeOut);
    stylexml::readChild(element, "Color", color);
}

bool KWTextFormat::operator==(const KWTextFormat &other) const
{
    return family == other.family && pointSize == other.pointSize && bold == other.bold &&
           italic == other.italic && underline == other.underline && strikeOut == other.strikeOut &&
           color == other.color;
}
