#pragma once
#include <QWidget>

class PlanModel;
class PlanTable;

// The titles above the table: borders are dragged for widths, titles for places.
class TableHead : public QWidget
{
    Q_OBJECT
public:
    TableHead(PlanTable &table, PlanModel &model);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    int borderAt(double x) const; // the column left of it; -1: none

    PlanTable &m_table;
    PlanModel &m_model;
    int m_resized = -1;
    int m_moved = -1;
    double m_pressX = 0;
    double m_x = 0;
    bool m_isDragging = false;
};
