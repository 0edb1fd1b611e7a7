#pragma once
#include "kwgantt_export.h"
#include "styles/kwcolor.h"

// What fills a shape.
class KWGANTT_EXPORT KWPaint
{
public:
    enum Type { None, Solid, Gradient, Hatch };

    Type type = None;
    KWColor color;      // of the fill, of a gradient's start, of the hatch lines
    KWColor otherColor; // of a gradient's end, of the ground under a hatch; none: nothing under it
    // Degrees, clockwise: of a gradient the way from start to end, 0 to the right; of a hatch its lines, 0
    // level.
    double angle = 0;
    double spacing = 4;   // pixels between the middles of two hatch lines
    double lineWidth = 1; // pixels, of a hatch line

    KWPaint() = default;
    static KWPaint solid(const KWColor &color);
    static KWPaint gradient(const KWColor &from, const KWColor &to, double angle);
    static KWPaint hatch(const KWColor &lines, const KWColor &ground, double angle = -45);

    bool isNone() const { return type == None; }

    // Appends an element with the two colours as "Color" and "OtherColor" below it.
    void saveTo(QDomElement &parent, const char *element = "Paint") const;
    // What is absent, or out of range, stays as it was.
    void parse(const QDomElement &element);

    bool operator==(const KWPaint &other) const;
    bool operator!=(const KWPaint &other) const { return !(*this == other); }
};
