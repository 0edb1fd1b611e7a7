#include "kwpath.h"
#include "svgpath.h"
#include <QDataStream>
#include <algorithm>
#include <cmath>

namespace {

// A quarter of a circle as one curve: its controls lie this far along the tangents, in radii.
constexpr double circleControl = 0.5522847498;

bool isFinite(const QPointF &point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

// Where a cubic curve turns in one direction; up to two places between 0 and 1.
int turns(double p0, double p1, double p2, double p3, double (&at)[2])
{
    // The derivative is a t² + b t + c, but for a factor of 3.
    const double a = p3 - 3 * p2 + 3 * p1 - p0;
    const double b = 2 * (p2 - 2 * p1 + p0);
    const double c = p1 - p0;
    int count = 0;
    const auto take = [&](double t) {
        if (t > 0 && t < 1)
            at[count++] = t;
    };
    const double discriminant = b * b - 4 * a * c;
    if (!(discriminant >= 0))
        return 0;
    // The form that loses no digits when b is large.
    const double q = -(b + std::copysign(std::sqrt(discriminant), b)) / 2;
    if (a != 0)
        take(q / a);
    if (q != 0)
        take(c / q);
    return count;
}

double valueAt(double t, double p0, double p1, double p2, double p3)
{
    const double u = 1 - t;
    return u * u * u * p0 + 3 * u * u * t * p1 + 3 * u * t * t * p2 + t * t * t * p3;
}

class Bounds
{
public:
    void add(const QPointF &point)
    {
        m_left = std::min(m_left, point.x());
        m_right = std::max(m_right, point.x());
        m_top = std::min(m_top, point.y());
        m_bottom = std::max(m_bottom, point.y());
    }
    void addCurve(const QPointF &from, const QPointF *points)
    {
        add(points[2]);
        double at[2];
        const QPointF &c1 = points[0], &c2 = points[1], &end = points[2];
        const auto pointAt = [&](double t) {
            return QPointF(valueAt(t, from.x(), c1.x(), c2.x(), end.x()),
                           valueAt(t, from.y(), c1.y(), c2.y(), end.y()));
        };
        for (int i = turns(from.x(), c1.x(), c2.x(), end.x(), at); i > 0; --i)
            add(pointAt(at[i - 1]));
        for (int i = turns(from.y(), c1.y(), c2.y(), end.y(), at); i > 0; --i)
            add(pointAt(at[i - 1]));
    }
    QRectF rect() const { return QRectF(QPointF(m_left, m_top), QPointF(m_right, m_bottom)); }

private:
    double m_left = HUGE_VAL, m_right = -HUGE_VAL, m_top = HUGE_VAL, m_bottom = -HUGE_VAL;
};
}

// ---- Building ---------------------------------------------------------------------------------------------

void KWPath::append(Kind kind, std::initializer_list<QPointF> points)
{
    m_kinds.append(kind);
    for (const QPointF &point : points)
        m_points.append(point);
}

void KWPath::start()
{
    if (m_kinds.isEmpty() || m_kinds.last() == Close)
        append(MoveTo, {m_start});
}

void KWPath::moveTo(const QPointF &point)
{
    if (!isFinite(point))
        return;
    m_start = point;
    if (!m_kinds.isEmpty() && m_kinds.last() == MoveTo) // of two moves the second counts
        m_points.last() = point;
    else
        append(MoveTo, {point});
}

void KWPath::lineTo(const QPointF &point)
{
    if (!isFinite(point))
        return;
    start();
    append(LineTo, {point});
}

void KWPath::curveTo(const QPointF &control1, const QPointF &control2, const QPointF &end)
{
    if (!isFinite(control1) || !isFinite(control2) || !isFinite(end))
        return;
    start();
    append(CurveTo, {control1, control2, end});
}

void KWPath::quadTo(const QPointF &control, const QPointF &end)
{
    const QPointF from = currentPoint();
    curveTo(from + (control - from) * 2 / 3, end + (control - end) * 2 / 3, end);
}

void KWPath::close()
{
    if (!m_kinds.isEmpty() && (m_kinds.last() == LineTo || m_kinds.last() == CurveTo))
        append(Close, {});
}

void KWPath::clear()
{
    *this = KWPath();
}

void KWPath::addRect(const QRectF &rect)
{
    addPolygon(QVector<QPointF>{rect.topLeft(), rect.topRight(), rect.bottomRight(), rect.bottomLeft()});
}

void KWPath::addRoundRect(const QRectF &rect, double radius)
{
    const QRectF box = rect.normalized();
    const double r = std::min({radius, box.width() / 2, box.height() / 2});
    if (!(r > 0)) {
        addRect(box);
        return;
    }
    const double left = box.left(), top = box.top(), right = box.right(), bottom = box.bottom();
    const double c = r * (1 - circleControl);
    moveTo({left + r, top});
    lineTo({right - r, top});
    curveTo({right - c, top}, {right, top + c}, {right, top + r});
    lineTo({right, bottom - r});
    curveTo({right, bottom - c}, {right - c, bottom}, {right - r, bottom});
    lineTo({left + r, bottom});
    curveTo({left + c, bottom}, {left, bottom - c}, {left, bottom - r});
    lineTo({left, top + r});
    curveTo({left, top + c}, {left + c, top}, {left + r, top});
    close();
}

void KWPath::addEllipse(const QRectF &bounds)
{
    const QPointF middle = bounds.center();
    const double rx = bounds.width() / 2, ry = bounds.height() / 2;
    const double cx = rx * circleControl, cy = ry * circleControl;
    const auto at = [&](double dx, double dy) { return middle + QPointF(dx, dy); };
    moveTo(at(rx, 0));
    curveTo(at(rx, cy), at(cx, ry), at(0, ry));
    curveTo(at(-cx, ry), at(-rx, cy), at(-rx, 0));
    curveTo(at(-rx, -cy), at(-cx, -ry), at(0, -ry));
    curveTo(at(cx, -ry), at(rx, -cy), at(rx, 0));
    close();
}

void KWPath::addPolygon(const QPolygonF &points)
{
    if (points.size() < 2)
        return;
    moveTo(points.first());
    for (int i = 1; i < points.size(); ++i)
        lineTo(points[i]);
    close();
}

void KWPath::addPath(const KWPath &other)
{
    m_kinds += other.m_kinds;
    m_points += other.m_points;
    m_start = other.m_start;
}

// ---- Geometry ---------------------------------------------------------------------------------------------

QPointF KWPath::currentPoint() const
{
    if (m_kinds.isEmpty() || m_kinds.last() == Close)
        return m_start;
    return m_points.last();
}

QRectF KWPath::boundingRect() const
{
    if (isEmpty())
        return QRectF();
    Bounds bounds;
    QPointF from;
    forEach([&](Kind kind, const QPointF *points) {
        if (kind == CurveTo)
            bounds.addCurve(from, points);
        else if (kind != Close)
            bounds.add(points[0]);
        if (kind != Close)
            from = points[pointCount(kind) - 1];
    });
    return bounds.rect();
}

bool KWPath::contains(const QPointF &point, Qt::FillRule rule) const
{
    QPainterPath path = toPainterPath();
    path.setFillRule(rule);
    return path.contains(point);
}

double KWPath::length() const
{
    return toPainterPath().length();
}

QPointF KWPath::pointAt(double fraction) const
{
    if (isEmpty())
        return QPointF();
    return toPainterPath().pointAtPercent(fraction > 0 ? std::min(fraction, 1.0) : 0);
}

KWPath KWPath::transformed(const QTransform &transform) const
{
    // Built anew, since a transform may take points out of the range of numbers.
    KWPath path;
    forEach([&](Kind kind, const QPointF *points) {
        const auto at = [&](int i) { return transform.map(points[i]); };
        switch (kind) {
        case MoveTo:
            path.moveTo(at(0));
            break;
        case LineTo:
            path.lineTo(at(0));
            break;
        case CurveTo:
            path.curveTo(at(0), at(1), at(2));
            break;
        case Close:
            path.close();
            break;
        }
    });
    return path;
}

// ---- Other forms ------------------------------------------------------------------------------------------

QPainterPath KWPath::toPainterPath() const
{
    QPainterPath path;
    forEach([&](Kind kind, const QPointF *points) {
        switch (kind) {
        case MoveTo:
            path.moveTo(points[0]);
            break;
        case LineTo:
            path.lineTo(points[0]);
            break;
        case CurveTo:
            path.cubicTo(points[0], points[1], points[2]);
            break;
        case Close:
            path.closeSubpath();
            break;
        }
    });
    return path;
}

KWPath KWPath::fromPainterPath(const QPainterPath &from)
{
    KWPath path;
    for (int i = 0; i < from.elementCount(); ++i) {
        const QPainterPath::Element &element = from.elementAt(i);
        switch (element.type) {
        case QPainterPath::MoveToElement:
            path.moveTo(element);
            break;
        case QPainterPath::LineToElement:
            path.lineTo(element);
            break;
        case QPainterPath::CurveToElement: // two elements with the second control and the end follow
            if (i + 2 < from.elementCount())
                path.curveTo(element, from.elementAt(i + 1), from.elementAt(i + 2));
            i += 2;
            break;
        case QPainterPath::CurveToDataElement:
            break;
        }
    }
    return path;
}

QString KWPath::toSvg(int decimals) const
{
    static constexpr char letters[] = {'M', 'L', 'C', 'Z'};
    QString data;
    forEach([&](Kind kind, const QPointF *points) {
        data += QLatin1Char(letters[kind]);
        for (int i = 0; i < pointCount(kind); ++i) {
            if (i > 0)
                data += QLatin1Char(' ');
            data += svgpath::number(points[i].x(), decimals) + QLatin1Char(' ') +
                    svgpath::number(points[i].y(), decimals);
        }
    });
    return data;
}

bool KWPath::addSvg(const QString &data)
{
    KWPath path = *this;
    if (!svgpath::read(data, path))
        return false;
    *this = path;
    return true;
}

QDataStream &operator<<(QDataStream &stream, const KWPath &path)
{
    stream << quint32(path.m_kinds.size());
    path.forEach([&](KWPath::Kind kind, const QPointF *points) {
        stream << quint8(kind);
        for (int i = 0; i < KWPath::pointCount(kind); ++i)
            stream << double(points[i].x()) << double(points[i].y());
    });
    return stream;
}

QDataStream &operator>>(QDataStream &stream, KWPath &path)
{
    quint32 count = 0;
    stream >> count;
    KWPath read;
    // The count is not believed: the list grows with what is really there.
    for (quint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        quint8 kind = 0;
        stream >> kind;
        if (kind > KWPath::Close || (kind != KWPath::MoveTo && read.isEmpty())) {
            stream.setStatus(QDataStream::ReadCorruptData);
            break;
        }
        QPointF points[3];
        for (int p = 0; p < KWPath::pointCount(KWPath::Kind(kind)); ++p) {
            double x = 0, y = 0;
            stream >> x >> y;
            points[p] = QPointF(x, y);
            if (!isFinite(points[p]))
                stream.setStatus(QDataStream::ReadCorruptData);
        }
        switch (kind) {
        case KWPath::MoveTo:
            read.moveTo(points[0]);
            break;
        case KWPath::LineTo:
            read.lineTo(points[0]);
            break;
        case KWPath::CurveTo:
            read.curveTo(points[0], points[1], points[2]);
            break;
        case KWPath::Close:
            read.close();
            break;
        }
    }
    path = stream.status() == QDataStream::Ok ? read : KWPath();
    return stream;
}
