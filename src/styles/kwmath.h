#pragma once
#include "kwgantt_export.h"
#include <QPointF>
#include <QRectF>

// The geometry that drawing needs; y grows downwards.
class KWGANTT_EXPORT KWMath
{
public:
    // The nearest place on a whole device pixel of a screen with so many of them to a pixel.
    static double snapped(double position, double pixelRatio);
    // The place at which the middle of a line of that width has both edges on whole device pixels.
    static double snappedLine(double position, double width, double pixelRatio);
    static QRectF snapped(const QRectF &rect, double pixelRatio);

    // From one point to the other, 1 long; null where they are one point.
    static QPointF direction(const QPointF &from, const QPointF &to);
    static QPointF between(const QPointF &from, const QPointF &to, double fraction);

    // Whether the ranges share more than an end.
    static bool overlap(double from, double to, double otherFrom, double otherTo);
    // Whether any part of the line lies inside the rectangle; its edges are outside.
    static bool crosses(const QPointF &from, const QPointF &to, const QRectF &rect);
};
