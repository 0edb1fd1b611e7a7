#pragma once
#include "styles/chartstyle.h"
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QVector>
#include <vector>

// What the layout hands to the painters.
namespace chart {

// What a mark stands for.
enum class Kind : quint8 {
    Bar,
    Progress,
    Critical, // the second sign of a critical task, beside its colour: the edge of its style
    Summary,
    Milestone,
    Baseline,
    Slack,
    Link,
    Label,
    CellText,
    FoldMark,
    Grid,
    Shade,
    Ground,
    HeadText,
    Today,
    Highlight,
    Legend,
    WebLink
};

enum class Shape : quint8 {
    Rect,
    RoundRect,     // both ends
    LeftRoundRect, // of a bar that is done in part
    Line,          // through all points
    Polygon,
    Text,  // one line, its middle in the rect's
    Anchor // nothing is seen; `text` is an address
};

enum class Align : quint8 { Left, Centre, Right };

// How a mark looks is the themes' business.
using Style = chartstyle::Role;

struct Mark
{
    Kind kind = Kind::Bar;
    Style style = Style::Paper;
    Shape shape = Shape::Rect;
    Align align = Align::Left;
    quint8 font = 0;
    quint32 task = 0; // ID; 0: none
    QRectF rect;      // the points' bounds for lines and polygons
    QVector<QPointF> points;
    QString text; // as it is drawn, an ellipsis included
};
using Marks = std::vector<Mark>;

// Pixels from the middle of a text's rect to its baseline.
inline double baselineShift(double fontPixels)
{
    constexpr double halfOfCapitals = 0.36;
    return halfOfCapitals * fontPixels;
}
}
