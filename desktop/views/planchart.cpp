#include "views/planchart.h"
#include "datetext.h"
#include "documents/session.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"
#include "support/kwclock.h"
#include "views/charthead.h"
#include "views/chartscale.h"
#include "views/planmodel.h"
#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>
#include <QToolTip>
#include <cmath>

namespace {

constexpr int headHeight = int(CustomTable::headHeight);
constexpr double barHeight = 15;
constexpr double around = 4; // pixels beside what is grabbed
constexpr double handleDistance = 9;
constexpr double handleSize = 8;
constexpr qint64 secsOfDay = 86400;
constexpr int flashMilliseconds = 900;
constexpr int scrollMilliseconds = 40;
constexpr int sheetMilliseconds = 250;

KWTaskCollection &collectionOf(const Session &session)
{
    return *session.document().taskCollection();
}
}

PlanChart::PlanChart(Session &session, PlanModel &model, Picture &picture, QWidget *parent)
    : QAbstractScrollArea(parent)
    , m_session(session)
    , m_model(model)
    , m_picture(picture)
    , m_head(new ChartHead(*this, picture))
    , m_hint(new QLabel(viewport()))
{
    setAccessibleName(tr("Chart"));
    setFrameShape(QFrame::NoFrame);
    setViewportMargins(0, headHeight, 0, 0);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setFocusPolicy(Qt::ClickFocus);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    m_hint->setStyleSheet(
        QStringLiteral("background:#1f2933; color:#ffffff; border-radius:4px; padding:4px 8px"));
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_hint->hide();
    connect(&session, &Session::edited, this, &PlanChart::followDocument);
    connect(&session, &Session::rescaled, this, &PlanChart::followDocument);
    connect(&session, &Session::replaced, this, &PlanChart::restart);
    updateBars();
}

const KWTaskInfo *PlanChart::task(quint32 id) const
{
    return m_session.document().getTaskInfoByID(id);
}

// ---- What is where ----------------------------------------------------------------------------------------

double PlanChart::xOf(quint32 secs) const
{
    return collectionOf(m_session).positionFromSecs(secs) - horizontalScrollBar()->value();
}

// Before the chart's first unit and behind its last one time goes on as evenly as it can.
quint32 PlanChart::momentAt(double x) const
{
    const KWTaskCollection &collection = collectionOf(m_session);
    const double at = x + horizontalScrollBar()->value();
    const double width = collection.totalWidth();
    if (at > 0 && at < width)
        return collection.secsFromPosition(at);
    const double outside = at <= 0 ? at : at - width;
    const double edge = at <= 0 ? collection.minDateStart() : collection.secsFromPosition(width - 0.5);
    return quint32(qBound(1.0, edge + outside / pixelsOfDay() * secsOfDay, 4294967295.0));
}

QRectF PlanChart::barRect(quint32 id) const
{
    const KWTaskInfo *task = this->task(id);
    const int row = m_model.rowOf(id);
    if (!task || row < 0 || task->Start == 0)
        return QRectF();
    const KWTaskCollection &collection = collectionOf(m_session);
    const double left = collection.getTaskPtBeginX(task) - horizontalScrollBar()->value();
    const double right = collection.getTaskPtEndX(task) - horizontalScrollBar()->value();
    const double middle = (m_model.rowTop(row) + m_model.rowBottom(row)) / 2 - verticalScrollBar()->value();
    if (task->Milestone && !task->isParent()) {
        const double unit = m_session.document().UnitWidth;
        return QRectF(left + qMax(0.0, (unit - barHeight) / 2), middle - barHeight / 2, barHeight, barHeight);
    }
    return QRectF(left, middle - barHeight / 2, qMax(0.0, right - left), barHeight);
}

QPointF PlanChart::handleOf(quint32 id) const
{
    const QRectF bar = barRect(id);
    return QPointF(bar.right() + handleDistance, bar.center().y());
}

PlanChart::Part PlanChart::partAt(const QPointF &point, quint32 &id) const
{
    id = m_model.taskAt(m_model.rowAtY(point.y() + verticalScrollBar()->value()));
    const KWTaskInfo *task = this->task(id);
    const QRectF bar = barRect(id);
    if (!task || bar.isNull() || std::abs(point.y() - bar.center().y()) > barHeight / 2 + around)
        return Nothing;
    if (QLineF(point, handleOf(id)).length() <= handleSize / 2 + 2)
        return Handle;
    if (point.x() < bar.left() - around || point.x() > bar.right() + around)
        return Nothing;
    if (task->isParent() || task->Milestone)
        return Body;
    // A short bar is first of all there to be moved.
    constexpr double shortBar = 14;
    const double edge = bar.width() < shortBar ? 1 : around;
    if (point.x() > bar.right() - edge)
        return Finish;
    const double done = bar.left() + bar.width() * task->Percent;
    if (bar.width() >= shortBar && std::abs(point.x() - done) <= around && point.y() > bar.center().y())
        return Done;
    return Body;
}

// ---- Scale and place --------------------------------------------------------------------------------------

double PlanChart::pixelsOfDay() const
{
    KWDocument &document = m_session.document();
    return chartscale::pixelsOfDay(
        document.getMinorUnit(), document.UnitWidth,
        int(KWTaskInfo::dayWorkTime(&document,
                                    QDateTime::fromSecsSinceEpoch(collectionOf(m_session).minDateStart()))));
}

void PlanChart::rememberAnchor()
{
    const double left = horizontalScrollBar()->value();
    m_anchor = momentAt(1);
    m_anchorPixels = left - collectionOf(m_session).positionFromSecs(m_anchor);
}

// The chart fills the view, so that bars can be dragged to where there is nothing yet.
void PlanChart::showSheets(bool areShown)
{
    m_showsSheets = areShown;
    findSheets();
    viewport()->update();
}

void PlanChart::findSheets()
{
    m_sheetTime.stop();
    m_sheets = GanttPdfExport::SheetBorders();
    if (!m_showsSheets)
        return;
    GanttPdfExport drawing(&m_session.document());
    drawing.options = m_picture.options;
    m_sheets = drawing.sheetBorders();
    viewport()->update();
}

void PlanChart::widen(int width)
{
    const bool wasModified = m_session.isModified();
    collectionOf(m_session).updateTooSmallTotalWidth(
        qMax(width, viewport()->width() + m_session.document().UnitWidth));
    m_session.document().setModified(wasModified);
}

void PlanChart::updateBars()
{
    m_isAdjusting = true;
    const int height = viewport()->height(), width = viewport()->width();
    const int bottom = int(std::ceil(m_model.rowBottom(m_model.taskRows())));
    verticalScrollBar()->setRange(0, qMax(0, bottom - height));
    verticalScrollBar()->setPageStep(height);
    verticalScrollBar()->setSingleStep(30);
    horizontalScrollBar()->setRange(0, qMax(0, collectionOf(m_session).totalWidth() - width));
    horizontalScrollBar()->setPageStep(width);
    horizontalScrollBar()->setSingleStep(qMax(20, m_session.document().UnitWidth));
    m_head->setGeometry(viewport()->x(), viewport()->y() - headHeight, width, headHeight);
    m_isAdjusting = false;
}

// The chart goes on behind the plan where the view does.
void PlanChart::scrollTo(double left)
{
    widen(int(std::ceil(left)) + viewport()->width());
    updateBars();
    if (m_showsSheets) {
        m_sheets = GanttPdfExport::SheetBorders();
        m_sheetTime.start(sheetMilliseconds, this);
    }
    m_isAdjusting = true;
    horizontalScrollBar()->setValue(int(std::lround(left)));
    m_isAdjusting = false;
}

// An edit may move the chart's beginning: the dates stay where they are on the screen.
void PlanChart::followDocument()
{
    m_session.beginChartAt(m_anchor);
    const double left = m_anchor == 0 ? horizontalScrollBar()->value()
                                      : collectionOf(m_session).positionFromSecs(m_anchor) + m_anchorPixels;
    scrollTo(left);
    m_head->update();
    viewport()->update();
}

void PlanChart::restart()
{
    m_drag = Drag();
    m_hint->hide();
    m_trial = EditAnswer();
    m_hovered = 0;
    m_anchor = 0;
    m_exactPixels = 0;
    m_isFitted = false;
    scrollTo(0);
    rememberAnchor();
    m_head->update();
    viewport()->update();
}

void PlanChart::setUnits(double pixels)
{
    KWDocument &document = m_session.document();
    const int hours = int(KWTaskInfo::dayWorkTime(
        &document, QDateTime::fromSecsSinceEpoch(collectionOf(m_session).minDateStart())));
    m_exactPixels = qBound(chartscale::least, pixels, chartscale::most);
    const chartscale::Units units = chartscale::unitsFor(m_exactPixels, hours);
    m_session.setScale(units.minor, units.unitWidth);
}

void PlanChart::zoom(double factor, double x)
{
    if (isDragging() && m_drag.kind != Drag::Pan)
        return;
    m_isFitted = false;
    const quint32 moment = momentAt(x);
    // Where the units are as the last step left them, it goes on from what was wanted.
    const double shown = pixelsOfDay();
    const bool isOwn = m_exactPixels > 0 && std::abs(m_exactPixels / shown - 1) < 0.2;
    setUnits((isOwn ? m_exactPixels : shown) * factor);
    scrollTo(collectionOf(m_session).positionFromSecs(moment) - x);
    rememberAnchor();
    m_head->update();
    viewport()->update();
    Q_EMIT zoomed();
}

void PlanChart::zoomAtCentre(double factor)
{
    zoom(factor, viewport()->width() / 2.0);
}

void PlanChart::fit()
{
    m_isFitted = true;
    const KWTaskCollection &collection = collectionOf(m_session);
    const double days =
        qMax(1.0, double(collection.getMaxTaskFinishSecs() - collection.getMinTaskStartSecs()) / secsOfDay);
    constexpr double roomOfLabels = 130, roomBefore = 16;
    const double room = qMax(100.0, viewport()->width() - roomOfLabels - roomBefore);
    const quint32 first = collection.getMinTaskStartSecs(), last = collection.getMaxTaskFinishSecs();
    // Units are of whole pixels, and days off take no room where hours count.
    double pixels = room / days;
    for (int tries = 0; tries < 6; ++tries) {
        setUnits(pixels);
        const double taken = collection.positionFromSecs(last) - collection.positionFromSecs(first);
        if (taken <= room)
            break;
        pixels *= 0.97 * room / taken;
    }
    scrollTo(qMax(0.0, collection.positionFromSecs(first) - roomBefore));
    rememberAnchor();
    m_head->update();
    viewport()->update();
    Q_EMIT zoomed();
}

void PlanChart::goToToday()
{
    const quint32 now =
        KWTaskInfo::secsHourTransDay(&m_session.document(), quint32(KWClock::now().toSecsSinceEpoch()));
    horizontalScrollBar()->setValue(
        int(collectionOf(m_session).positionFromSecs(now) - viewport()->width() / 3.0));
}

void PlanChart::showBar(quint32 id)
{
    const QRectF bar = barRect(id);
    if (bar.isNull() || (bar.right() > 20 && bar.left() < viewport()->width() - 20))
        return;
    horizontalScrollBar()->setValue(
        int(horizontalScrollBar()->value() + bar.left() - viewport()->width() / 3.0));
}

void PlanChart::scrollContentsBy(int dx, int)
{
    if (!m_isAdjusting)
        rememberAnchor();
    if (dx != 0)
        m_head->update();
    viewport()->update();
}

void PlanChart::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    if (m_isFitted && event->size().width() != event->oldSize().width()) {
        fit();
        return;
    }
    scrollTo(horizontalScrollBar()->value());
    rememberAnchor();
}

void PlanChart::wheelEvent(QWheelEvent *event)
{
    constexpr double degreesOfDouble = 360;
    if (event->modifiers() & Qt::ControlModifier) {
        zoom(std::exp2(event->angleDelta().y() / degreesOfDouble), event->position().x());
        event->accept();
        return;
    }
    const QPoint turn = event->angleDelta();
    constexpr int degreesOfStep = 120, rowsOfStep = 3;
    const bool isAcross = turn.x() != 0 || event->modifiers() & Qt::ShiftModifier;
    QScrollBar *bar = isAcross ? horizontalScrollBar() : verticalScrollBar();
    bar->setValue(bar->value() -
                  (turn.x() != 0 ? turn.x() : turn.y()) * rowsOfStep * bar->singleStep() / degreesOfStep);
    event->accept();
}

// ---- Dragging ---------------------------------------------------------------------------------------------

void PlanChart::mousePressEvent(QMouseEvent *event)
{
    quint32 id = 0;
    const Part part = partAt(event->localPos(), id);
    if (event->button() == Qt::MiddleButton) {
        m_drag = Drag();
        m_drag.kind = Drag::Pan;
        m_drag.press = event->localPos();
        m_drag.scrolled = QPoint(horizontalScrollBar()->value(), verticalScrollBar()->value());
        viewport()->setCursor(Qt::ClosedHandCursor);
        return;
    }
    if (id != 0)
        Q_EMIT taskPressed(id, event->modifiers());
    const KWTaskInfo *task = this->task(id);
    if (event->button() != Qt::LeftButton || part == Nothing || !task)
        return;
    leaveDrag();
    setFocus(); // for Esc
    m_drag.kind = Drag::Pressed;
    m_drag.part = part;
    m_drag.task = id;
    m_drag.press = event->localPos();
    m_drag.start = task->Start;
    m_drag.finish = task->Finish;
    m_drag.percent = task->Percent;
    m_drag.grab = m_drag.press.x() - (part == Finish ? barRect(id).right() : barRect(id).left());
}

void PlanChart::beginDrag(const QPointF &point)
{
    const QPointF way = point - m_drag.press;
    constexpr double begin = 4;
    if (std::abs(way.x()) < begin && std::abs(way.y()) < begin)
        return;
    switch (m_drag.part) {
    case Finish:
        m_drag.kind = Drag::Stretch;
        break;
    case Done:
        m_drag.kind = Drag::Percent;
        break;
    case Handle:
        m_drag.kind = Drag::Link;
        break;
    default:
        // Along its row a bar is moved, away from it a link is drawn.
        m_drag.kind = std::abs(way.y()) > std::abs(way.x()) ? Drag::Link : Drag::Move;
        break;
    }
    viewport()->setCursor(m_drag.kind == Drag::Link ? Qt::CrossCursor : Qt::SizeHorCursor);
}

// Whole days keep the hour at which a task begins or ends; below them hours and minutes count.
quint32 PlanChart::snapped(quint32 secs, quint32 from) const
{
    KWDocument &document = m_session.document();
    constexpr quint32 hour = 5;
    if (QApplication::keyboardModifiers() & Qt::AltModifier)
        return secs;
    if (document.getMinorUnit() < hour) {
        const double days = (double(secs) - double(from)) / secsOfDay;
        return quint32(
            QDateTime::fromSecsSinceEpoch(from).addDays(qint64(std::llround(days))).toSecsSinceEpoch());
    }
    constexpr qint64 quarter = 900;
    const qint64 shown = KWTaskInfo::secsDayTransHour(&document, secs);
    return KWTaskInfo::secsHourTransDay(&document, quint32((shown + quarter / 2) / quarter * quarter));
}

void PlanChart::drag(const QPointF &point)
{
    const QRectF bar = barRect(m_drag.task);
    switch (m_drag.kind) {
    case Drag::Move:
        tryMove(snapped(momentAt(point.x() - m_drag.grab), m_drag.start));
        break;
    case Drag::Stretch:
        tryStretch(snapped(momentAt(point.x() - m_drag.grab), m_drag.finish));
        break;
    case Drag::Percent: {
        constexpr double steps = 20;
        tryPercent(std::round(qBound(0.0, (point.x() - bar.left()) / qMax(1.0, bar.width()), 1.0) * steps) /
                   steps);
        break;
    }
    case Drag::Link:
        tryLink(point);
        break;
    case Drag::None:
    case Drag::Pressed:
    case Drag::Pan:
        break;
    }
    if (m_drag.kind >= Drag::Move && m_drag.kind <= Drag::Link)
        say(m_trialText, point);
}

void PlanChart::tryMove(quint32 start)
{
    if (start == m_drag.tried)
        return;
    m_drag.tried = start;
    if (start == m_drag.start) {
        m_session.dropTrial();
        taken(QString(), EditAnswer());
        return;
    }
    TaskValues values;
    values.start = start;
    const EditAnswer answer =
        m_session.tryOut(tr("Move task"), [&](PlanEdits &edits) { return edits.set({m_drag.task}, values); });
    const KWTaskInfo *moved = task(m_drag.task);
    taken(tr("Moved “%1” to %2").arg(moved->Name, spanText(moved->Start, moved->Finish)), answer);
}

void PlanChart::tryStretch(quint32 finish)
{
    // A day at least; a milestone is made by its length in the table.
    if (finish <= m_drag.start)
        finish = quint32(qMin<qint64>(m_drag.start + secsOfDay, 4294967295LL));
    if (finish == m_drag.tried)
        return;
    m_drag.tried = finish;
    if (finish == m_drag.finish) {
        m_session.dropTrial();
        taken(QString(), EditAnswer());
        return;
    }
    TaskValues values;
    values.finish = finish;
    const EditAnswer answer = m_session.tryOut(
        tr("Change duration"), [&](PlanEdits &edits) { return edits.set({m_drag.task}, values); });
    const KWTaskInfo *stretched = task(m_drag.task);
    taken(tr("“%1” lasts %2 now, %3")
              .arg(stretched->Name,
                   datetext::durationText(KWTaskInfo::getDurValueByTaskInfo(&m_session.document(), stretched),
                                          stretched->DurationUnits),
                   spanText(stretched->Start, stretched->Finish)),
          answer);
}

void PlanChart::tryPercent(double percent)
{
    const quint32 hundredths = quint32(std::lround(percent * 100)) + 1;
    if (hundredths == m_drag.tried)
        return;
    m_drag.tried = hundredths;
    if (percent == m_drag.percent) {
        m_session.dropTrial();
        taken(QString(), EditAnswer());
        return;
    }
    TaskValues values;
    values.percent = percent;
    const EditAnswer answer = m_session.tryOut(
        tr("Change progress"), [&](PlanEdits &edits) { return edits.set({m_drag.task}, values); });
    taken(tr("“%1” is %2% done").arg(task(m_drag.task)->Name).arg(std::lround(percent * 100)), answer);
}

void PlanChart::tryLink(const QPointF &point)
{
    quint32 target = m_model.taskAt(m_model.rowAtY(point.y() + verticalScrollBar()->value()));
    if (target == m_drag.task)
        target = 0;
    if (target == m_drag.tried)
        return;
    m_drag.tried = target;
    if (target == 0) {
        m_session.dropTrial();
        taken(tr("Draw to the task that is to wait for “%1”").arg(task(m_drag.task)->Name), EditAnswer());
        return;
    }
    const EditAnswer answer = m_session.tryOut(tr("Link tasks"), [&](PlanEdits &edits) {
        return edits.link({m_drag.task, target});
    });
    taken(tr("“%1” waits for “%2” now").arg(task(target)->Name, task(m_drag.task)->Name), answer);
}

void PlanChart::taken(const QString &what, const EditAnswer &answer)
{
    m_trial = answer;
    if (!answer.isDone()) {
        m_trialText = answer.hint().isEmpty() ? answer.sentence()
                                              : answer.sentence() + QLatin1Char('\n') + answer.hint();
    } else {
        m_trialText = what;
        const QString more = consequences(answer);
        if (!more.isEmpty())
            m_trialText += QLatin1Char('\n') + more;
    }
    viewport()->update();
}

QString PlanChart::spanText(quint32 start, quint32 finish) const
{
    KWDocument &document = m_session.document();
    const QDate first = KWTaskInfo::showDateTime(&document, start, true).date();
    const QDate last = KWTaskInfo::showDateTime(&document, finish, false).date();
    const QString begin = datetext::dateText(first, datetext::Weekday);
    return first == last ? begin
                         : begin + QStringLiteral(" – ") + datetext::dateText(last, datetext::Weekday);
}

// "pushes 2 tasks, “Test” and “Handover”"
QString PlanChart::consequences(const EditAnswer &answer) const
{
    QStringList names;
    int pushed = 0;
    for (const EditMove &move : answer.moves) {
        if (move.cause != EditMove::Pushed)
            continue;
        constexpr int mostNamed = 2;
        if (++pushed <= mostNamed && task(move.task))
            names.append(QStringLiteral("“%1”").arg(task(move.task)->Name));
    }
    if (pushed == 0)
        return QString();
    if (pushed > names.size())
        return tr("pushes %1 tasks: %2 and more").arg(pushed).arg(names.join(QLatin1String(", ")));
    return tr("pushes %1").arg(names.join(tr(" and ")));
}

void PlanChart::say(const QString &text, const QPointF &point)
{
    m_hint->setVisible(!text.isEmpty());
    if (text.isEmpty())
        return;
    m_hint->setText(text);
    m_hint->adjustSize();
    const QSize room = viewport()->size();
    // Above the row where there is room: what is pushed mostly stands below it.
    constexpr int distance = 22;
    QPoint at = point.toPoint() + QPoint(distance, -distance - m_hint->height());
    if (at.x() + m_hint->width() > room.width())
        at.setX(qMax(0, room.width() - m_hint->width()));
    if (at.y() < 0)
        at.setY(point.toPoint().y() + distance);
    m_hint->move(at);
    m_hint->raise();
}

QString PlanChart::hint() const
{
    return m_hint->isVisibleTo(viewport()) ? m_hint->text() : QString();
}

void PlanChart::leaveDrag()
{
    m_drag = Drag();
    m_trial = EditAnswer();
    m_trialText.clear();
    m_hint->hide();
    m_scrollTime.stop();
    viewport()->setCursor(Qt::ArrowCursor);
    m_session.dropTrial();
    viewport()->update();
}

void PlanChart::mouseMoveEvent(QMouseEvent *event)
{
    m_pointer = event->localPos();
    if (m_drag.kind == Drag::Pan) {
        const QPointF way = m_pointer - m_drag.press;
        horizontalScrollBar()->setValue(m_drag.scrolled.x() - int(way.x()));
        verticalScrollBar()->setValue(m_drag.scrolled.y() - int(way.y()));
        return;
    }
    if (m_drag.kind == Drag::None) {
        quint32 id = 0;
        const Part part = partAt(m_pointer, id);
        viewport()->setCursor(part == Handle                   ? Qt::CrossCursor
                              : part == Finish || part == Done ? Qt::SizeHorCursor
                              : part == Body                   ? Qt::OpenHandCursor
                                                               : Qt::ArrowCursor);
        const quint32 hovered = part == Nothing ? 0 : id;
        if (hovered != m_hovered) {
            m_hovered = hovered;
            viewport()->update();
        }
        return;
    }
    if (m_drag.kind == Drag::Pressed)
        beginDrag(m_pointer);
    drag(m_pointer);
    constexpr int edge = 24;
    const QRect inner = viewport()->rect().adjusted(edge, edge, -edge, -edge);
    if (m_drag.kind > Drag::Pressed && !inner.contains(m_pointer.toPoint())) {
        if (!m_scrollTime.isActive())
            m_scrollTime.start(scrollMilliseconds, this);
    } else {
        m_scrollTime.stop();
    }
    viewport()->update();
}

void PlanChart::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_drag.kind == Drag::Pan) {
        m_drag = Drag();
        viewport()->setCursor(Qt::ArrowCursor);
        return;
    }
    if (event->button() != Qt::LeftButton || m_drag.kind == Drag::None)
        return;
    drag(event->localPos());
    const EditAnswer answer = m_trial;
    const QString text = m_trialText.section(QLatin1Char('\n'), 0, 0);
    if (answer.isDone() && m_session.isTrying()) {
        m_session.keepTrial();
        leaveDrag();
        Q_EMIT dragged(text, answer);
        return;
    }
    const bool wasRefused = !answer.isDone();
    leaveDrag();
    if (wasRefused)
        Q_EMIT refused(answer.sentence(), answer.hint());
}

void PlanChart::mouseDoubleClickEvent(QMouseEvent *event)
{
    quint32 id = 0;
    partAt(event->localPos(), id);
    if (id != 0)
        Q_EMIT taskDoubleClicked(id);
}

void PlanChart::leaveEvent(QEvent *event)
{
    QAbstractScrollArea::leaveEvent(event);
    m_hovered = 0;
    viewport()->update();
}

void PlanChart::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && isDragging()) {
        leaveDrag();
        return;
    }
    if (m_keys)
        QApplication::sendEvent(m_keys, event);
}

void PlanChart::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_flashTime.timerId()) {
        m_flashTime.stop();
        m_flashed.clear();
        viewport()->update();
        return;
    }
    if (event->timerId() == m_sheetTime.timerId()) {
        findSheets();
        return;
    }
    if (event->timerId() != m_scrollTime.timerId()) {
        QAbstractScrollArea::timerEvent(event);
        return;
    }
    constexpr int edge = 24, step = 18;
    const QSize room = viewport()->size();
    if (m_pointer.x() > room.width() - edge)
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + step);
    if (m_pointer.x() < edge)
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - step);
    if (m_drag.kind == Drag::Link && m_pointer.y() > room.height() - edge)
        verticalScrollBar()->setValue(verticalScrollBar()->value() + step);
    if (m_drag.kind == Drag::Link && m_pointer.y() < edge)
        verticalScrollBar()->setValue(verticalScrollBar()->value() - step);
    drag(m_pointer);
}

bool PlanChart::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QAbstractScrollArea::viewportEvent(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    quint32 id = 0;
    const Part part = partAt(help->pos(), id);
    const KWTaskInfo *shown = task(id);
    if (part == Nothing || !shown) {
        QToolTip::hideText();
        return true;
    }
    const QString length = datetext::durationText(
        KWTaskInfo::getDurValueByTaskInfo(&m_session.document(), shown), shown->DurationUnits);
    QStringList lines{shown->Name.toHtmlEscaped(),
                      spanText(shown->Start, shown->Finish) + QStringLiteral(" · ") + length};
    if (shown->Percent > 0)
        lines.append(tr("%1% done").arg(qRound(shown->Percent * 100)));
    if (!shown->isParent())
        lines.append(shown->CriticalPath ? tr("critical: a delay moves the finish of the project")
                                         : tr("slack: %1").arg(shown->LateSlack));
    if (!shown->Resources.isEmpty())
        lines.append(shown->Resources.toHtmlEscaped());
    QToolTip::showText(
        help->globalPos(),
        QStringLiteral("<p style='white-space:pre'>%1</p>").arg(lines.join(QLatin1String("<br>"))),
        viewport());
    return true;
}

// ---- Painting ---------------------------------------------------------------------------------------------

void PlanChart::flash(const QSet<quint32> &ids)
{
    m_flashed = ids;
    m_flashTime.start(flashMilliseconds, this);
    viewport()->update();
}

QVector<quint32> PlanChart::tasksInView() const
{
    QVector<quint32> ids;
    const double top = verticalScrollBar()->value();
    const int first = qMax(0, m_model.rowAtY(top)), last = m_model.rowAtY(top + viewport()->height());
    for (int row = first; row <= (last < 0 ? m_model.taskRows() - 1 : last); ++row)
        ids.append(m_model.taskAt(row));
    return ids;
}

// Where the bars stood before the drag. A drag may move thousands; those that are seen are few.
void PlanChart::paintGhosts(QPainter &painter) const
{
    if (m_trial.moves.isEmpty())
        return;
    QHash<quint32, const EditMove *> moves;
    const QVector<quint32> seen = tasksInView();
    const QSet<quint32> inView(seen.begin(), seen.end());
    for (const EditMove &move : m_trial.moves)
        if (inView.contains(move.task))
            moves.insert(move.task, &move);
    QColor line = palette().text().color();
    line.setAlpha(150);
    painter.setPen(QPen(line, 1, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    for (const EditMove *move : qAsConst(moves)) {
        const QRectF now = barRect(move->task);
        if (now.isNull() || move->oldStart == 0)
            continue;
        const double left = xOf(move->oldStart);
        const double width = task(move->task)->Milestone ? barHeight : qMax(2.0, xOf(move->oldFinish) - left);
        painter.drawRect(QRectF(left, now.top(), width, now.height()).adjusted(0.5, 0.5, -0.5, -0.5));
    }
}

void PlanChart::paintHover(QPainter &painter) const
{
    const bool isLinking = m_drag.kind == Drag::Link;
    const quint32 shown = isLinking ? m_drag.task : m_drag.kind == Drag::None ? m_hovered : 0;
    if (shown == 0 || !task(shown))
        return;
    const QColor accent = palette().highlight().color();
    painter.setPen(QPen(accent, 1.5));
    painter.setBrush(palette().base());
    painter.drawEllipse(handleOf(shown), handleSize / 2, handleSize / 2);
    if (isLinking && m_drag.tried == 0) {
        painter.setPen(QPen(accent, 1.5, Qt::DashLine));
        painter.drawLine(handleOf(shown), m_pointer);
    }
}

void PlanChart::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    const QRect view = viewport()->rect();
    m_picture.paint(painter, view,
                    QPointF(horizontalScrollBar()->value(), verticalScrollBar()->value() + headHeight),
                    Picture::Chart);
    painter.setRenderHint(QPainter::Antialiasing);
    constexpr int flashAlpha = 60;
    for (const quint32 id : m_flashed.isEmpty() ? QVector<quint32>() : tasksInView()) {
        const QRectF bar = m_flashed.contains(id) ? barRect(id) : QRectF();
        if (bar.isNull())
            continue;
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(255, 190, 60, flashAlpha));
        painter.drawRoundedRect(bar.adjusted(-5, -5, 5, 5), 5, 5);
    }
    if (m_showsSheets)
        paintSheets(painter);
    paintGhosts(painter);
    paintHover(painter);
}

void PlanChart::paintSheets(QPainter &painter) const
{
    painter.setPen(QPen(QColor(0x8e, 0x44, 0xad), 1.5, Qt::DashDotLine));
    for (const double place : m_sheets.places) {
        const double x = place - horizontalScrollBar()->value();
        painter.drawLine(QPointF(x, 0), QPointF(x, viewport()->height()));
    }
    for (const int row : m_sheets.rows) {
        const double y = m_model.rowTop(row) - verticalScrollBar()->value();
        painter.drawLine(QPointF(0, y), QPointF(viewport()->width(), y));
    }
}
