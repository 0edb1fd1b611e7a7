#include "views/tablehead.h"
#include "views/picture.h"
#include "views/planmodel.h"
#include "views/plantable.h"
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <cmath>

namespace {

constexpr double grip = 4; // pixels beside a border
}

TableHead::TableHead(PlanTable &table, PlanModel &model, Picture &picture)
    : QWidget(&table)
    , m_table(table)
    , m_model(model)
    , m_picture(picture)
{
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(tr("Titles of the columns"));
    setToolTip(
        tr("Drag a border to change a width, a title to move its column; right-click for all columns"));
}

void TableHead::setOffset(int offset)
{
    m_offset = offset;
    update();
}

int TableHead::borderAt(double x) const
{
    const auto &heads = m_model.table().heads();
    for (int column = int(heads.size()) - 1; column >= 0; --column)
        if (std::abs(heads[std::size_t(column)].right() - m_offset - x) <= grip)
            return column;
    return -1;
}

int TableHead::columnAt(double x) const
{
    return m_model.table().columnAtX(x + m_offset);
}

void TableHead::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_picture.options.columns = m_model.columnTypes();
    const int shown = qMin(width(), int(m_table.tableWidth()) - m_offset);
    m_picture.paint(painter, QRect(0, 0, shown, height()), QPointF(m_offset - m_table.tableWidth(), 0),
                    Picture::Table);
    if (shown < width())
        painter.fillRect(QRect(qMax(0, shown), 0, width() - qMax(0, shown), height()), palette().base());
    if (!m_isDragging)
        return;
    painter.setPen(QPen(palette().highlight().color(), 2));
    if (m_resized >= 0) {
        painter.drawLine(QPointF(m_x, 0), QPointF(m_x, height()));
    } else {
        const int target = columnAt(m_x);
        if (target < 0)
            return;
        const HeadItem &head = m_model.table().heads()[std::size_t(target)];
        const double at = (target > m_moved ? head.right() : head.x) - m_offset;
        painter.drawLine(QPointF(at, 0), QPointF(at, height()));
    }
}

void TableHead::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_pressX = m_x = event->localPos().x();
    m_resized = borderAt(m_pressX);
    m_moved = m_resized < 0 ? columnAt(m_pressX) : -1;
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
        const HeadItem &head = m_model.table().heads()[std::size_t(resized)];
        m_table.resizeColumn(resized, m_x + m_offset - head.x);
    } else if (moved >= 0 && columnAt(m_x) >= 0 && columnAt(m_x) != moved) {
        m_table.moveColumn(moved, columnAt(m_x));
    }
}

void TableHead::contextMenuEvent(QContextMenuEvent *event)
{
    m_table.askColumns(event->globalPos());
}
