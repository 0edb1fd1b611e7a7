#pragma once
#include "kwgantt_export.h"
#include "kwpath.h"
#include "styles/kwcolor.h"
#include <QList>

// How a line is broken up.
class KWGANTT_EXPORT KWLineDash
{
public:
    static constexpr int maxLengths = 16;

    // Strokes and gaps in turn, in line widths; empty for a line without gaps. With an odd number of them
    // strokes and gaps change places in every second round.
    QList<double> lengths;
    double offset = 0; // line widths into the pattern at which a line begins

    static KWLineDash solid() { return KWLineDash(); }
    static KWLineDash dots();
    static KWLineDash dashes();

    // In pixels for a line of that width, fit to be drawn: empty unless all lengths are finite, none is
    // negative and one is above 0.
    QList<double> pixels(double width) const;

    void saveTo(QDomElement &parent) const; // appends a "Dash" element
    void parse(const QDomElement &element);
    bool operator==(const KWLineDash &other) const
    {
        return lengths == other.lengths && offset == other.offset;
    }
    bool operator!=(const KWLineDash &other) const { return !(*this == other); }
};

// What stands at an end of a line.
class KWGANTT_EXPORT KWArrowHead
{
public:
    enum Type { None, Triangle, Open, Diamond, Circle, Tick };

    Type type = None;
    double length = 6; // along the line, in line widths
    double width = 6;  // across it, in line widths

    bool isNone() const { return type == None; }
    bool isFilled() const { return type == Triangle || type == Diamond || type == Circle; }
    // The head at `tip` of a line that comes from `from`; empty for no head, and where the two are one point.
    KWPath path(const QPointF &from, const QPointF &tip, double lineWidth) const;
    // Pixels by which the line ends before its tip, so that it does not show through the head.
    double inset(double lineWidth) const;

    void saveTo(QDomElement &parent, const char *element = "Arrow") const;
    void parse(const QDomElement &element);
    bool operator==(const KWArrowHead &other) const;
    bool operator!=(const KWArrowHead &other) const { return !(*this == other); }
};

// A line or an outline.
class KWGANTT_EXPORT KWLineFormat
{
public:
    enum Cap { FlatCap, SquareCap, RoundCap };
    enum Join { MiterJoin, BevelJoin, RoundJoin };

    KWColor color;    // none: no line
    double width = 1; // pixels
    Cap cap = FlatCap;
    Join join = MiterJoin;
    KWLineDash dash;
    KWArrowHead begin;
    KWArrowHead end;

    KWLineFormat() = default;
    KWLineFormat(const KWColor &lineColor, double lineWidth)
        : color(lineColor)
        , width(lineWidth)
    {
    }

    bool isNone() const { return color.isNone() || !(width > 0); }

    // Appends an element with "Color", "Dash", "Begin" and "End" below it.
    void saveTo(QDomElement &parent, const char *element = "Line") const;
    // What is absent, or out of range, stays as it was.
    void parse(const QDomElement &element);
    bool operator==(const KWLineFormat &other) const;
    bool operator!=(const KWLineFormat &other) const { return !(*this == other); }
};
