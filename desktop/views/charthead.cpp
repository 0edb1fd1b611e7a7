#include "views/charthead.h"
#include "views/picture.h"
#include "views/planchart.h"
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <cmath>

ChartHead::ChartHead(PlanChart &chart, Picture &picture)
    : QWidget(&chart)
    , m_chart(chart)
    , m_picture(picture)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::SizeHorCursor);
    setAccessibleName(tr("Dates of the chart"));
    setToolTip(tr("Drag sideways, or turn the wheel, to zoom"));
}

void ChartHead::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_picture.paint(painter, rect(), QPointF(m_chart.horizontalScrollBar()->value(), 0), Picture::Chart);
}

void ChartHead::mousePressEvent(QMouseEvent *event)
{
    m_lastX = m_pressX = event->localPos().x();
}

void ChartHead::mouseMoveEvent(QMouseEvent *event)
{
    constexpr double pixelsOfDouble = 120;
    const double x = event->localPos().x();
    m_chart.zoom(std::exp2((x - m_lastX) / pixelsOfDouble), m_pressX);
    m_lastX = x;
}

void ChartHead::wheelEvent(QWheelEvent *event)
{
    constexpr double degreesOfDouble = 360;
    m_chart.zoom(std::exp2(event->angleDelta().y() / degreesOfDouble), event->position().x());
    event->accept();
}
