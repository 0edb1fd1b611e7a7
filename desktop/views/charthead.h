#pragma once
#include <QWidget>

class Picture;
class PlanChart;

// The dates above the chart; dragged sideways they zoom.
class ChartHead : public QWidget
{
    Q_OBJECT
public:
    ChartHead(PlanChart &chart, Picture &picture);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    PlanChart &m_chart;
    Picture &m_picture;
    double m_lastX = 0;
    double m_pressX = 0;
};
