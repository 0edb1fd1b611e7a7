#include "views/planchart.h"
#include "documents/session.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"
#include "support/kwclock.h"
#include "views/charthead.h"
#include "views/chartscale.h"
#include "views/chartsizes.h"
#include "views/planmodel.h"
#include <QLabel>
#include <QScrollBar>
#include <QWheelEvent>
#include <cmath>

using namespace chartsizes;

namespace {

constexpr double around = 4; // pixels beside what is grabbed
constexpr double handleDistance = 9;
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
    connect(&model, &PlanModel::filtered, this, &PlanChart::followDocument);
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
    drawing.options = m_picture.onPaper();
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
    // What is dragged may be gone, or elsewhere: another edit ends a drag.
    if (!m_isTrying && m_drag.kind != Drag::None && m_drag.kind != Drag::Pan)
        leaveDrag();
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
