#include "views/tablehead.h"
#include "views/planmodel.h"
#include "views/plantable.h"
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <cmath>

namespace {

constexpr double grip = 4; // pixels beside a border
}

TableHead::TableHead(PlanTable &table, PlanModel &model)
    : QWidget(&table)
    , m_table(table)
    , m_model(model)
{
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(tr("Titles of the columns"));
    setToolTip(
        tr("Drag a border to change a width, a title to move its column; right-click for all columns"));
}

int TableHead::borderAt(double x) const
{
    const auto &heads = m_model.table().heads();
    for (int column = int(heads.size()) - 1; column >= 0; --column) {
        const double border = m_table.leftOf(column) + heads[std::size_t(column)].width;
        // Not those that the frozen columns hide.
        if (std::abs(border - x) <= grip &&
            (border >= m_table.frozenWidth() || m_table.columnAtX(x) == column))
            return column;
    }
    return -1;
}

void TableHead::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_table.paintPicture(painter, size(), 0);
    if (!m_isDragging)
        return;
    painter.setPen(QPen(palette().highlight().color(), 2));
    if (m_resized >= 0) {
        painter.drawLine(QPointF(m_x, 0), QPointF(m_x, height()));
    } else {
        const int target = m_table.columnAtX(m_x);
        if (target < 0)
            return;
        const double at = m_table.leftOf(target) +
                          (target > m_moved ? m_model.table().heads()[std::size_t(target)].width : 0);
        painter.drawLine(QPointF(at, 0), QPointF(at, height()));
    }
}

void TableHead::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_pressX = m_x = event->localPos().x();
    m_resized = borderAt(m_pressX);
    m_moved = m_resized < 0 ? m_table.columnAtX(m_pressX) : -1;
}

void TableHead::mouseMoveEvent(QMouseEvent *event)
{
    m_x = event->localPos().x();
    if (!(event->buttons() & Qt::LeftButton)) {
        setCursor(borderAt(m_x) >= 0 ? Qt::SplitHCursor : Qt::ArrowCursor);
        return;
    }
    constexpr double begin = 4;
    m_isDragging = m_isDragging || std::abs(m_x - m_pressX) > begin;
    update();
}

void TableHead::mouseReleaseEvent(QMouseEvent *event)
{
    m_x = event->localPos().x();
    const bool wasDragging = m_isDragging;
    const int resized = m_resized, moved = m_moved;
    m_isDragging = false;
    m_resized = m_moved = -1;
    update();
    if (!wasDragging)
        return;
    if (resized >= 0) {
        m_table.resizeColumn(resized, m_x - m_table.leftOf(resized));
    } else if (moved >= 0 && m_table.columnAtX(m_x) >= 0 && m_table.columnAtX(m_x) != moved) {
        m_table.moveColumn(moved, m_table.columnAtX(m_x));
    }
}

void TableHead::contextMenuEvent(QContextMenuEvent *event)
{
    m_table.askColumns(event->globalPos());
}
