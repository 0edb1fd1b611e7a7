#include "views/plantable.h"
#include "documents/session.h"
#include "model/kwtaskinfo.h"
#include "quoted.h"
#include "table/rowcolumndata.h"
#include "texts.h"
#include "views/celldelegate.h"
#include "views/planmodel.h"
#include "views/tablehead.h"
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <cmath>

namespace {

constexpr int headHeight = int(CustomTable::headHeight);
constexpr int rowGrip = 3; // pixels beside the border of a row
constexpr int flashMilliseconds = 900;
constexpr double leastHeight = 16; // of a row that is dragged

// A menu in which several entries are ticked one after the other.
class StayingMenu : public QMenu
{
public:
    using QMenu::QMenu;

protected:
    void mouseReleaseEvent(QMouseEvent *event) override
    {
        if (!toggles(actionAt(event->pos())))
            QMenu::mouseReleaseEvent(event);
    }
    void keyPressEvent(QKeyEvent *event) override
    {
        const bool isChoice =
            event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (!isChoice || !toggles(activeAction()))
            QMenu::keyPressEvent(event);
    }

private:
    static bool toggles(QAction *action)
    {
        if (!action || !action->isCheckable() || !action->isEnabled())
            return false;
        action->trigger();
        return true;
    }
};
}

PlanTable::PlanTable(Session &session, PlanModel &model, Picture &picture, QWidget *parent)
    : QAbstractItemView(parent)
    , m_session(session)
    , m_model(model)
    , m_picture(picture)
    , m_head(new TableHead(*this, model))
    , m_delegate(new CellDelegate(session, this))
{
    setAccessibleName(tr("Table of tasks"));
    setFrameShape(QFrame::NoFrame);
    setViewportMargins(0, headHeight, 0, 0);
    setItemDelegate(m_delegate);
    setModel(&model);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setTabKeyNavigation(true);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    viewport()->setMouseTracking(true);
    connect(m_delegate, &CellDelegate::leftTowards, this, [this](int way) {
        // The row for a new task has moved down when it made one.
        const int row = currentIndex().row();
        const QVector<quint32> &made = m_model.lastOutcome().answer.tasks;
        const int madeRow = row == m_model.taskRows() && !made.isEmpty() ? m_model.rowOf(made.first()) : -1;
        leaveTowards(way, madeRow >= 0 ? madeRow : row);
    });
    connect(&session, &Session::edited, this, &PlanTable::edited);
    connect(&session, &Session::replaced, this, &PlanTable::edited);
    connect(&model, &PlanModel::filtered, this, &PlanTable::edited);
}

// ---- Geometry ---------------------------------------------------------------------------------------------

double PlanTable::tableWidth() const
{
    return m_model.table().width();
}

double PlanTable::frozenWidth() const
{
    const int names = m_model.columnOf(cellinput::nameType);
    constexpr int mostFrozen = 2;
    if (horizontalOffset() == 0 || names < 0 || names >= mostFrozen)
        return 0;
    const double width = m_model.table().heads()[std::size_t(names)].right();
    return width <= viewport()->width() / 2.0 ? width : 0;
}

double PlanTable::leftOf(int column) const
{
    const HeadItem &head = m_model.table().heads()[std::size_t(column)];
    return head.right() <= frozenWidth() ? head.x : head.x - horizontalOffset();
}

int PlanTable::columnAtX(double x) const
{
    return m_model.table().columnAtX(x < frozenWidth() ? x : x + horizontalOffset());
}

void PlanTable::paintPicture(QPainter &painter, const QSize &view, double top) const
{
    m_picture.options.columns = m_model.columnTypes();
    const int shown = qBound(0, int(tableWidth()) - horizontalOffset(), view.width());
    const int frozen = qMin(int(frozenWidth()), view.width());
    m_picture.paint(painter, QRect(0, 0, shown, view.height()),
                    QPointF(horizontalOffset() - tableWidth(), top), Picture::Table);
    if (shown < view.width())
        painter.fillRect(QRect(shown, 0, view.width() - shown, view.height()), palette().base());
    if (frozen == 0)
        return;
    painter.save();
    painter.setClipRect(QRect(0, -1, frozen, view.height() + 2));
    m_picture.paint(painter, QRect(0, 0, frozen, view.height()), QPointF(-tableWidth(), top), Picture::Table);
    painter.restore();
    painter.setPen(palette().mid().color());
    painter.drawLine(frozen, 0, frozen, view.height());
}

void PlanTable::finishEditing()
{
    if (state() != EditingState)
        return;
    if (auto *editor = qobject_cast<QLineEdit *>(indexWidget(currentIndex())))
        m_delegate->finish(editor);
}

void PlanTable::edited()
{
    updateGeometries();
    viewport()->update();
    m_head->update();
}

void PlanTable::updateGeometries()
{
    QAbstractItemView::updateGeometries();
    const int height = viewport()->height(), width = viewport()->width();
    const int bottom = int(std::ceil(m_model.rowBottom(m_model.taskRows())));
    verticalScrollBar()->setRange(0, qMax(0, bottom - height));
    verticalScrollBar()->setPageStep(height);
    verticalScrollBar()->setSingleStep(int(RowColumnData::defaultRowHeight));
    horizontalScrollBar()->setRange(0, qMax(0, int(std::ceil(tableWidth())) - width));
    horizontalScrollBar()->setPageStep(width);
    horizontalScrollBar()->setSingleStep(20);
    m_head->setGeometry(viewport()->x(), viewport()->y() - headHeight, width, headHeight);
}

void PlanTable::resizeEvent(QResizeEvent *event)
{
    QAbstractItemView::resizeEvent(event);
    updateGeometries();
}

int PlanTable::horizontalOffset() const
{
    return horizontalScrollBar()->value();
}

int PlanTable::verticalOffset() const
{
    return verticalScrollBar()->value();
}

void PlanTable::verticalScrollbarValueChanged(int)
{
    updateEditorGeometries();
    viewport()->update();
}

void PlanTable::horizontalScrollbarValueChanged(int value)
{
    Q_UNUSED(value)
    m_head->update();
    updateEditorGeometries();
    viewport()->update();
}

QRectF PlanTable::cellRect(int row, int column) const
{
    const HeadItem &head = m_model.table().heads()[std::size_t(column)];
    const double top = m_model.rowTop(row);
    return QRectF(leftOf(column), top - verticalOffset(), head.width, m_model.rowBottom(row) - top);
}

QRect PlanTable::visualRect(const QModelIndex &index) const
{
    return index.isValid() && index.column() < m_model.columnCount()
               ? cellRect(index.row(), index.column()).toAlignedRect()
               : QRect();
}

QModelIndex PlanTable::indexAt(const QPoint &point) const
{
    const int row = m_model.rowAtY(point.y() + verticalOffset());
    const int column = columnAtX(point.x());
    return row < 0 || column < 0 ? QModelIndex() : m_model.index(row, column);
}

void PlanTable::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    if (!index.isValid())
        return;
    const double top = m_model.rowTop(index.row()), bottom = m_model.rowBottom(index.row());
    const int height = viewport()->height();
    int y = verticalOffset();
    if (hint == PositionAtCenter || hint == PositionAtTop) {
        y = int(hint == PositionAtTop ? top : (top + bottom - height) / 2);
    } else if (top < y) {
        y = int(std::floor(top));
    } else if (bottom > y + height) {
        y = int(std::ceil(bottom)) - height;
    }
    verticalScrollBar()->setValue(y);
    const HeadItem &head = m_model.table().heads()[std::size_t(index.column())];
    const double frozen = frozenWidth();
    if (head.right() <= frozen)
        return;
    if (head.right() > horizontalOffset() + viewport()->width())
        horizontalScrollBar()->setValue(int(std::ceil(head.right())) - viewport()->width());
    if (head.x - frozen < horizontalOffset())
        horizontalScrollBar()->setValue(int(head.x - frozen));
}

bool PlanTable::isIndexHidden(const QModelIndex &) const
{
    return false;
}

// ---- Selection --------------------------------------------------------------------------------------------

void PlanTable::setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command)
{
    const double y = verticalOffset();
    int first = m_model.rowAtY(qMax(0.0, rect.top() + y)),
        last = m_model.rowAtY(qMax(0.0, rect.bottom() + y));
    if (first < 0)
        return;
    if (last < 0)
        last = m_model.taskRows();
    if (last < first) // Shift goes up as well as down
        std::swap(first, last);
    selectionModel()->select(
        QItemSelection(m_model.index(first, 0), m_model.index(last, m_model.columnCount() - 1)), command);
}

QRegion PlanTable::visualRegionForSelection(const QItemSelection &) const
{
    return viewport()->rect();
}

void PlanTable::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    // An open cell is taken on the way, and what follows from it may choose another row: the indexes that are
    // referred to are gone then.
    const QModelIndex now = current, before = previous;
    QAbstractItemView::currentChanged(now, before);
    viewport()->update();
}

QVector<quint32> PlanTable::selectedTasks() const
{
    QVector<int> rows;
    for (const QItemSelectionRange &range : selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.append(row);
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    QVector<quint32> ids;
    for (const int row : qAsConst(rows))
        if (const quint32 id = m_model.taskAt(row))
            ids.append(id);
    return ids;
}

quint32 PlanTable::currentTask() const
{
    return m_model.taskAt(currentIndex().row());
}

void PlanTable::selectRow(int row, int column)
{
    finishEditing(); // before the row is looked for: it may come with what was typed
    if (m_model.columnCount() == 0)
        return;
    if (column < 0)
        column = currentIndex().isValid() ? currentIndex().column()
                                          : qMax(0, m_model.columnOf(cellinput::nameType));
    const QModelIndex index =
        m_model.index(qBound(0, row, m_model.taskRows()), qBound(0, column, m_model.columnCount() - 1));
    // Through the view, which remembers where Shift goes on from.
    setCurrentIndex(index);
    selectionModel()->select(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(index);
}

void PlanTable::select(const QVector<quint32> &ids, int column)
{
    QItemSelection selection;
    int first = -1;
    for (const quint32 id : ids) {
        const int row = m_model.rowOf(id);
        if (row < 0)
            continue;
        first = first < 0 ? row : first;
        selection.select(m_model.index(row, 0), m_model.index(row, m_model.columnCount() - 1));
    }
    if (first < 0)
        return;
    selectRow(first, column);
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

// ---- Keys -------------------------------------------------------------------------------------------------

QModelIndex PlanTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const QModelIndex current = currentIndex();
    const int columns = m_model.columnCount(), lastRow = m_model.taskRows();
    if (columns == 0)
        return QModelIndex();
    int row = qMax(0, current.row()), column = qMax(0, current.column());
    const bool isControl = modifiers & Qt::ControlModifier;
    const auto page = [&](int direction) {
        const double y =
            m_model.rowTop(row) + direction * (viewport()->height() - RowColumnData::defaultRowHeight);
        const int found = m_model.rowAtY(qMax(0.0, y));
        return found < 0 ? lastRow : found;
    };
    switch (action) {
    case MoveUp:
        row = isControl ? 0 : row - 1;
        break;
    case MoveDown:
        row = isControl ? lastRow : row + 1;
        break;
    case MovePageUp:
        row = page(-1);
        break;
    case MovePageDown:
        row = page(1);
        break;
    case MoveHome:
        (isControl ? row : column) = 0;
        break;
    case MoveEnd:
        isControl ? row = lastRow : column = columns - 1;
        break;
    case MoveLeft:
        --column;
        break;
    case MoveRight:
        ++column;
        break;
    case MoveNext:
        if (++column == columns) {
            column = 0;
            ++row;
        }
        break;
    case MovePrevious:
        if (--column < 0) {
            column = columns - 1;
            --row;
        }
        break;
    }
    return m_model.index(qBound(0, row, lastRow), qBound(0, column, columns - 1));
}

void PlanTable::goDown()
{
    selectRow(currentIndex().row() + 1);
}

// After an editor in that row was left: Tab passes the cells that take no text.
void PlanTable::leaveTowards(int way, int from)
{
    setFocus();
    const QModelIndex current = currentIndex();
    if (!current.isValid())
        return;
    if (way == CellDelegate::Down || way == CellDelegate::Up) {
        selectRow(from + (way == CellDelegate::Down ? 1 : -1), current.column());
        return;
    }
    const int step = way == CellDelegate::Next ? 1 : -1, columns = m_model.columnCount();
    int row = from, column = current.column();
    for (int tried = 0; tried < columns; ++tried) {
        column += step;
        if (column < 0 || column >= columns) {
            row += step;
            column = step > 0 ? 0 : columns - 1;
        }
        if (cellinput::isEditable(m_model.typeOf(column)))
            break;
    }
    selectRow(row, column);
}

void PlanTable::keyPressEvent(QKeyEvent *event)
{
    const QModelIndex current = currentIndex();
    const bool isPlain = event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier;
    const KWTaskInfo *task = m_session.document().getTaskInfoByID(currentTask());
    const bool isName = current.isValid() && m_model.typeOf(current.column()) == cellinput::nameType;
    if (isPlain && isName && task && task->isParent()) {
        const bool folds = event->key() == Qt::Key_Left && !task->IsToggler;
        const bool unfolds = event->key() == Qt::Key_Right && task->IsToggler;
        if (folds || unfolds) {
            Q_EMIT foldToggled(task->ID);
            return;
        }
    }
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && isPlain) {
        goDown();
        return;
    }
    if ((event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab) && current.isValid()) {
        leaveTowards(event->key() == Qt::Key_Tab ? CellDelegate::Next : CellDelegate::Previous,
                     current.row());
        return;
    }
    // Also where the cursor is there already, and other rows are chosen.
    if ((event->key() == Qt::Key_Home || event->key() == Qt::Key_End) && current.isValid() &&
        !(event->modifiers() & Qt::ShiftModifier)) {
        const QModelIndex to =
            moveCursor(event->key() == Qt::Key_Home ? MoveHome : MoveEnd, event->modifiers());
        selectRow(to.row(), to.column());
        return;
    }
    // A blank alone would only wipe out what stands in a cell.
    if (event->key() == Qt::Key_Space)
        return;
    constexpr Qt::KeyboardModifiers ofShortcuts = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const QString typed = event->text();
    if (current.isValid() && !(event->modifiers() & ofShortcuts) && !typed.isEmpty() &&
        typed.at(0).isPrint() && !takesText(current))
        return;
    QAbstractItemView::keyPressEvent(event);
}

bool PlanTable::takesText(const QModelIndex &index)
{
    if (!index.isValid() || index.flags() & Qt::ItemIsEditable)
        return index.isValid();
    const QString title = index.model()->headerData(index.column(), Qt::Horizontal).toString();
    if (m_model.typeOf(index.column()) == 0)
        Q_EMIT refused(tr("the numbers of the rows are counted, not typed"),
                       tr("names go into the column beside them; Alt+Up and Alt+Down move a task"));
    else
        Q_EMIT refused(tr("%1 is worked out from the other columns").arg(quoted(title)), QString());
    return false;
}

// With Ctrl a key that moves the cursor would leave the chosen rows as they are, out of sight.
QItemSelectionModel::SelectionFlags PlanTable::selectionCommand(const QModelIndex &index,
                                                                const QEvent *event) const
{
    if (event && event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<const QKeyEvent *>(event);
        const bool isFar = key->key() == Qt::Key_Home || key->key() == Qt::Key_End ||
                           key->key() == Qt::Key_Up || key->key() == Qt::Key_Down;
        if (isFar && key->modifiers() & Qt::ControlModifier)
            return QItemSelectionModel::Rows |
                   (key->modifiers() & Qt::ShiftModifier ? QItemSelectionModel::SelectCurrent
                                                         : QItemSelectionModel::ClearAndSelect);
    }
    return QAbstractItemView::selectionCommand(index, event);
}

// ---- Mouse ------------------------------------------------------------------------------------------------

bool PlanTable::isOnFoldMark(const QPoint &point, quint32 &id) const
{
    const QModelIndex index = indexAt(point);
    if (!index.isValid() || m_model.typeOf(index.column()) != cellinput::nameType)
        return false;
    const Cell cell = m_model.cell(index);
    if (cell.fold == Cell::NoFold)
        return false;
    id = m_model.taskAt(index.row());
    const double text = leftOf(index.column()) + cell.indent;
    constexpr double around = 4;
    return point.x() >= text - CustomTable::foldMarkWidth - around && point.x() <= text + around;
}

int PlanTable::rowBorderAt(const QPoint &point) const
{
    if (m_model.typeOf(columnAtX(point.x())) != 0)
        return -1;
    const double y = point.y() + verticalOffset();
    const int row = m_model.rowAtY(qMax(0.0, y - rowGrip));
    return row >= 0 && row < m_model.taskRows() && std::abs(m_model.rowBottom(row) - y) <= rowGrip ? row : -1;
}

void PlanTable::mousePressEvent(QMouseEvent *event)
{
    quint32 id = 0;
    if (event->button() == Qt::LeftButton && isOnFoldMark(event->pos(), id)) {
        Q_EMIT foldToggled(id);
        return;
    }
    m_resizedRow = event->button() == Qt::LeftButton ? rowBorderAt(event->pos()) : -1;
    if (m_resizedRow >= 0) {
        m_resizedHeight = m_model.rowBottom(m_resizedRow) - m_model.rowTop(m_resizedRow);
        return;
    }
    QAbstractItemView::mousePressEvent(event);
}

void PlanTable::mouseMoveEvent(QMouseEvent *event)
{
    if (m_resizedRow >= 0) {
        m_resizedHeight =
            qMax(leastHeight, event->pos().y() + verticalOffset() - m_model.rowTop(m_resizedRow));
        viewport()->update();
        return;
    }
    if (event->buttons() == Qt::NoButton) {
        viewport()->setCursor(rowBorderAt(event->pos()) >= 0 ? Qt::SplitVCursor : Qt::ArrowCursor);
        return;
    }
    QAbstractItemView::mouseMoveEvent(event);
}

void PlanTable::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_resizedRow >= 0) {
        const quint32 id = m_model.taskAt(m_resizedRow);
        const double before = m_model.rowBottom(m_resizedRow) - m_model.rowTop(m_resizedRow);
        m_resizedRow = -1;
        TaskValues values;
        values.rowHeight = m_resizedHeight;
        if (id != 0 && std::abs(before - m_resizedHeight) >= 1)
            m_session.edit(tr("Change row height"),
                           [&](PlanEdits &edits) { return edits.set({id}, values); });
        viewport()->update();
        return;
    }
    QAbstractItemView::mouseReleaseEvent(event);
}

void PlanTable::mouseDoubleClickEvent(QMouseEvent *event)
{
    quint32 id = 0;
    if (isOnFoldMark(event->pos(), id))
        Q_EMIT foldToggled(id);
    else
        QAbstractItemView::mouseDoubleClickEvent(event);
}

void PlanTable::wheelEvent(QWheelEvent *event)
{
    // Beside the table's own bar, which is not shown, for the one that both views share.
    const QPoint turn = event->angleDelta();
    QScrollBar *bar =
        turn.x() != 0 || event->modifiers() & Qt::ShiftModifier ? horizontalScrollBar() : verticalScrollBar();
    constexpr int degreesOfStep = 120, rowsOfStep = 3;
    const int delta = turn.x() != 0 ? turn.x() : turn.y();
    bar->setValue(bar->value() - delta * rowsOfStep * bar->singleStep() / degreesOfStep);
    event->accept();
}

// ---- Columns ----------------------------------------------------------------------------------------------

void PlanTable::resizeColumn(int column, double width)
{
    ColumnValues values;
    values.width = qMax(width, CustomTable::minimumWidth);
    const QString title = m_model.table().heads()[std::size_t(column)].title;
    m_session.edit(tr("Change column width"),
                   [&](PlanEdits &edits) { return edits.setColumn(title, values); });
}

void PlanTable::moveColumn(int from, int to)
{
    m_session.edit(tr("Move column"), [&](PlanEdits &edits) { return edits.moveColumn(from, to); });
}

void PlanTable::askColumns(const QPoint &globalPos)
{
    StayingMenu menu(this);
    const RowColumnData &columns = *m_session.document().rowColumnData();
    for (int pos = 0; pos < columns.columns().size(); ++pos) {
        const RowColumnData::ColumnData &column = *columns.columns().at(pos);
        // As it is called above the table.
        const bool isNumber = RowColumnData::typeOfTitle(column.title) == 0;
        QAction *action = menu.addAction(
            CustomTable::shownTitle(isNumber ? QString::fromLatin1(CustomTable::placeTitle) : column.title));
        action->setData(QString(column.title));
        action->setCheckable(true);
        action->setChecked(!column.isHide);
        action->setEnabled(columns.isReplaceColumn(pos));
    }
    QAction *waits = nullptr;
    const QString waitsTitle = RowColumnData::s_columnNames.value(cellinput::predecessorsType);
    if (!columns.getColumnDataByName(waitsTitle)) {
        waits = menu.addAction(t(waitsTitle));
        waits->setCheckable(true);
        waits->setChecked(m_model.showsPredecessors());
    }
    connect(&menu, &QMenu::triggered, this, [this, waits](QAction *chosen) {
        if (chosen == waits) {
            m_model.setShowsPredecessors(waits->isChecked());
            edited();
            return;
        }
        ColumnValues values;
        values.isHidden = !chosen->isChecked();
        const QString title = chosen->data().toString();
        const EditAnswer answer =
            m_session.edit(values.isHidden.value() ? tr("Hide column") : tr("Show column"),
                           [&](PlanEdits &edits) { return edits.setColumn(title, values); });
        if (!answer.isDone())
            chosen->setChecked(values.isHidden.value());
    });
    menu.exec(globalPos);
}

// ---- Painting ---------------------------------------------------------------------------------------------

void PlanTable::flash(const QSet<quint32> &ids)
{
    m_flashed = ids;
    m_flashTime.start(flashMilliseconds, this);
    viewport()->update();
}

void PlanTable::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_flashTime.timerId()) {
        QAbstractItemView::timerEvent(event);
        return;
    }
    m_flashTime.stop();
    m_flashed.clear();
    viewport()->update();
}

void PlanTable::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    const QRect view = viewport()->rect();
    paintPicture(painter, view.size(), verticalOffset() + headHeight);
    const int shown = qBound(0, int(tableWidth()) - horizontalOffset(), view.width());
    if (m_model.columnCount() == 0)
        return;

    // What belongs to the window alone lies over the picture, and lets it shine through.
    const QColor accent = palette().highlight().color();
    const auto tint = [&](int row, const QColor &color, int alpha) {
        QColor veil = color;
        veil.setAlpha(alpha);
        const double top = m_model.rowTop(row) - verticalOffset();
        painter.fillRect(QRectF(0, top, shown, m_model.rowBottom(row) - m_model.rowTop(row) - 1), veil);
    };
    const int first = qMax(0, m_model.rowAtY(verticalOffset()));
    const int atBottom = m_model.rowAtY(verticalOffset() + view.height());
    const int last = atBottom < 0 ? m_model.taskRows() : atBottom;
    constexpr int selectedAlpha = 44, flashAlpha = 70;
    for (int row = first; row <= last; ++row) {
        if (selectionModel()->isRowSelected(row, QModelIndex()))
            tint(row, accent, selectedAlpha);
        if (!m_flashed.isEmpty() && m_flashed.contains(m_model.taskAt(row)))
            tint(row, QColor(255, 190, 60), flashAlpha);
    }
    if (last == m_model.taskRows() && m_model.columnOf(cellinput::nameType) >= 0) {
        QRectF cell = cellRect(last, m_model.columnOf(cellinput::nameType));
        cell.setRight(qMax(cell.right(), double(shown))); // nothing stands beside it
        QColor quiet = palette().text().color();
        quiet.setAlpha(120);
        painter.setPen(quiet);
        painter.drawText(cell.adjusted(CustomTable::foldMarkWidth + 4, 0, -4, 0),
                         Qt::AlignVCenter | Qt::AlignLeft, tr("Type here for a new task"));
    }
    const QModelIndex current = currentIndex();
    if (current.isValid() && state() != EditingState) {
        painter.setPen(QPen(accent, 2));
        painter.setBrush(Qt::NoBrush);
        if (m_model.table().heads()[std::size_t(current.column())].right() > frozenWidth())
            painter.setClipRect(view.adjusted(int(frozenWidth()), 0, 0, 0));
        painter.drawRect(cellRect(current.row(), current.column()).adjusted(1, 1, -1, -2));
        painter.setClipping(false);
    }
    if (m_resizedRow >= 0) {
        painter.setPen(QPen(accent, 2));
        const double y = m_model.rowTop(m_resizedRow) + m_resizedHeight - verticalOffset();
        painter.drawLine(QPointF(0, y), QPointF(shown, y));
    }
}
