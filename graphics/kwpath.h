#pragma once
#include "kwgraphics_export.h"
#include <QPainterPath>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QString>
#include <QTransform>
#include <QVector>

class QDataStream;

// A path of lines and cubic curves, for whatever draws: y grows downwards.
//
// It consists of subpaths, each of which begins with a move. A line or curve without a move before it starts
// at the origin; after a close it starts where the closed subpath did. Points that are not finite are left
// out, with the line or curve that leads to them.
class KWGRAPHICS_EXPORT KWPath
{
public:
    enum Kind : quint8 { MoveTo, LineTo, CurveTo, Close };

    // ---- Building -----------------------------------------------------------------------------------------
    void moveTo(const QPointF &point);
    void lineTo(const QPointF &point);
    void curveTo(const QPointF &control1, const QPointF &control2, const QPointF &end);
    void quadTo(const QPointF &control, const QPointF &end);
    void close(); // nothing without an open line or curve
    void clear();
    // Each adds closed subpaths. Rectangles may have negative sides; radii are cut to half a side.
    void addRect(const QRectF &rect);
    void addRoundRect(const QRectF &rect, double radius);
    void addEllipse(const QRectF &bounds);
    void addPolygon(const QPolygonF &points); // nothing for fewer than two points
    void addPath(const KWPath &other);

    // ---- Content ------------------------------------------------------------------------------------------
    bool isEmpty() const { return m_kinds.isEmpty(); }
    int elementCount() const { return m_kinds.size(); }
    QPointF currentPoint() const; // the origin for an empty path
    // Calls visit(kind, points): one point for a move or a line, two controls and the end for a curve, none
    // for a close.
    template <typename Visitor>
    void forEach(Visitor &&visit) const
    {
        const QPointF *points = m_points.constData();
        for (const Kind kind : m_kinds) {
            visit(kind, points);
            points += pointCount(kind);
        }
    }

    // ---- Geometry -----------------------------------------------------------------------------------------
    // Of the lines and curves themselves, not of their control points; null for an empty path. A move that
    // nothing follows counts as a point.
    QRectF boundingRect() const;
    bool contains(const QPointF &point,
                  Qt::FillRule rule = Qt::WindingFill) const; // open subpaths count as closed
    double length() const;                                    // curves to about a fifth of a percent
    QPointF pointAt(double fraction) const; // 0..1 of the length, clamped; the origin for an empty path
    KWPath transformed(const QTransform &transform) const;
    KWPath translated(double dx, double dy) const { return transformed(QTransform::fromTranslate(dx, dy)); }

    // ---- Other forms --------------------------------------------------------------------------------------
    QPainterPath toPainterPath() const;
    static KWPath fromPainterPath(const QPainterPath &path); // knows no closes but lines back to the start
    // The "d" attribute of an SVG path, with absolute commands and up to so many decimals (0..6).
    QString toSvg(int decimals = 3) const;
    // Adds to the path what the text describes, arcs as curves. False, and the path is as it was, when it is
    // no path data.
    bool addSvg(const QString &data);

    bool operator==(const KWPath &other) const
    {
        return m_kinds == other.m_kinds && m_points == other.m_points;
    }
    bool operator!=(const KWPath &other) const { return !(*this == other); }
    // Reading foreign bytes gives an empty path and sets the stream's status.
    friend KWGRAPHICS_EXPORT QDataStream &operator<<(QDataStream &stream, const KWPath &path);
    friend KWGRAPHICS_EXPORT QDataStream &operator>>(QDataStream &stream, KWPath &path);

private:
    static constexpr int pointCount(Kind kind) { return kind == CurveTo ? 3 : kind == Close ? 0 : 1; }
    void start(); // the move that a line or curve needs
    void append(Kind kind, std::initializer_list<QPointF> points);

    QVector<Kind> m_kinds;
    QVector<QPointF> m_points;
    QPointF m_start; // of the last subpath
};
