#include "styles/kwmath.h"
#include <algorithm>
#include <cmath>

double KWMath::snapped(double position, double pixelRatio)
{
    return pixelRatio > 0 ? std::floor(position * pixelRatio + 0.5) / pixelRatio : position;
}

double KWMath::snappedLine(double position, double width, double pixelRatio)
{
    if (!(pixelRatio > 0))
        return position;
    const double pixels = std::max(1.0, std::floor(width * pixelRatio + 0.5));
    const double half = pixels / 2 / pixelRatio;
    return snapped(position - half, pixelRatio) + half;
}

QRectF KWMath::snapped(const QRectF &rect, double pixelRatio)
{
    const QPointF topLeft(snapped(rect.left(), pixelRatio), snapped(rect.top(), pixelRatio));
    return QRectF(topLeft, QPointF(snapped(rect.right(), pixelRatio), snapped(rect.bottom(), pixelRatio)));
}

QPointF KWMath::direction(const QPointF &from, const QPointF &to)
{
    const QPointF way = to - from;
    const double length = std::hypot(way.x(), way.y());
    return length > 0 && std::isfinite(length) ? way / length : QPointF();
}

QPointF KWMath::between(const QPointF &from, const QPointF &to, double fraction)
{
    return from + (to - from) * fraction;
}

bool KWMath::overlap(double from, double to, double otherFrom, double otherTo)
{
    return from < otherTo && otherFrom < to;
}

bool KWMath::crosses(const QPointF &from, const QPointF &to, const QRectF &rect)
{
    const QRectF box = rect.normalized();
    // What is left of the line, as fractions of it, after it was cut at each pair of edges.
    double first = 0, last = 1;
    const auto cut = [&](double start, double way, double low, double high) {
        if (way == 0)
            return start > low && start < high;
        const double a = (low - start) / way, b = (high - start) / way;
        first = std::max(first, std::min(a, b));
        last = std::min(last, std::max(a, b));
        return first < last;
    };
    if (from == to)
        return from.x() > box.left() && from.x() < box.right() && from.y() > box.top() &&
               from.y() < box.bottom();
    return cut(from.x(), to.x() - from.x(), box.left(), box.right()) &&
           cut(from.y(), to.y() - from.y(), box.top(), box.bottom());
}
