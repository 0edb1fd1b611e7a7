#pragma once
#include "views/picture.h"
#include <QAbstractItemView>
#include <QBasicTimer>
#include <QSet>

class CellDelegate;
class PlanModel;
class Session;
class TableHead;

// The table of tasks: cells are painted as in the picture, edited in place, and fast at any number of rows.
class PlanTable : public QAbstractItemView
{
    Q_OBJECT
public:
    PlanTable(Session &session, PlanModel &model, Picture &picture, QWidget *parent = nullptr);

    QRect visualRect(const QModelIndex &index) const override;
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;
    QModelIndex indexAt(const QPoint &point) const override;
    CellDelegate *cells() const { return m_delegate; }

    QVector<quint32> selectedTasks() const; // IDs, in the order of the rows
    quint32 currentTask() const;            // 0: the row for a new one
    void select(const QVector<quint32> &ids, int column = -1);
    void selectRow(int row, int column = -1);
    // Whether the cell can be typed in; says why not.
    bool takesText(const QModelIndex &index);
    void goDown(); // to the next row, for a new task at the end
    double tableWidth() const;
    // Numbers and names stay where they are when the others are scrolled, unless that would leave no room for
    // those.
    double frozenWidth() const;
    double leftOf(int column) const; // in the view
    int columnAtX(double x) const;   // of the view; -1 beside the table
    // Paints the table's part of the picture into the width of a view, `top` pixels below the picture's.
    void paintPicture(QPainter &painter, const QSize &view, double top) const;
    // Takes what is typed in an open cell; what is refused stays there, with the reason.
    void finishEditing();
    // Rows of tasks that have just moved, for a moment.
    void flash(const QSet<quint32> &ids);

    // Of columns: dragged on the head.
    void resizeColumn(int column, double width);
    void moveColumn(int from, int to);
    void askColumns(const QPoint &globalPos); // a menu of those there are

Q_SIGNALS:
    void foldToggled(quint32 id);
    void refused(const QString &what, const QString &hint);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void updateGeometries() override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    int horizontalOffset() const override;
    int verticalOffset() const override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;
    bool isIndexHidden(const QModelIndex &index) const override;
    void setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command) override;
    QRegion visualRegionForSelection(const QItemSelection &selection) const override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void verticalScrollbarValueChanged(int value) override;
    void horizontalScrollbarValueChanged(int value) override;

private:
    void leaveTowards(int way, int from);
    QRectF cellRect(int row, int column) const;
    bool isOnFoldMark(const QPoint &point, quint32 &id) const;
    int rowBorderAt(const QPoint &point) const; // the row above it; -1: none
    void edited();

    Session &m_session;
    PlanModel &m_model;
    Picture &m_picture;
    TableHead *m_head;
    CellDelegate *m_delegate;
    int m_resizedRow = -1;
    double m_resizedHeight = 0;
    QSet<quint32> m_flashed;
    QBasicTimer m_flashTime;
};
