// Bars that are dragged with the mouse.
#include "datetext.h"
#include "documents/session.h"
#include "model/kwtaskinfo.h"
#include "quoted.h"
#include "views/chartsizes.h"
#include "views/planchart.h"
#include "views/planmodel.h"
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <cmath>

using namespace chartsizes;

namespace {

constexpr int scrollMilliseconds = 40;
}

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
    const QScopedValueRollback<bool> trying(m_isTrying, true);
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

// Whether the pointer stands for another value than before. Back at the task's own there is nothing to try.
bool PlanChart::isToTry(quint32 value, bool isItsOwn)
{
    if (value == m_drag.tried)
        return false;
    m_drag.tried = value;
    if (!isItsOwn)
        return true;
    m_session.dropTrial();
    taken(QString(), EditAnswer());
    return false;
}

void PlanChart::tryMove(quint32 start)
{
    if (!isToTry(start, start == m_drag.start))
        return;
    TaskValues values;
    values.start = start;
    const EditAnswer answer =
        m_session.tryOut(tr("Move task"), [&](PlanEdits &edits) { return edits.set({m_drag.task}, values); });
    const KWTaskInfo *moved = task(m_drag.task);
    taken(tr("Moved “%1” to %2").arg(shortened(moved->Name), spanText(moved->Start, moved->Finish)), answer);
}

void PlanChart::tryStretch(quint32 finish)
{
    // A day at least; a milestone is made by its length in the table.
    if (finish <= m_drag.start)
        finish = quint32(qMin<qint64>(m_drag.start + secsOfDay, 4294967295LL));
    if (!isToTry(finish, finish == m_drag.finish))
        return;
    TaskValues values;
    values.finish = finish;
    const EditAnswer answer = m_session.tryOut(
        tr("Change duration"), [&](PlanEdits &edits) { return edits.set({m_drag.task}, values); });
    const KWTaskInfo *stretched = task(m_drag.task);
    taken(tr("“%1” lasts %2 now, %3")
              .arg(shortened(stretched->Name),
                   datetext::durationText(KWTaskInfo::getDurValueByTaskInfo(&m_session.document(), stretched),
                                          stretched->DurationUnits),
                   spanText(stretched->Start, stretched->Finish)),
          answer);
}

void PlanChart::tryPercent(double percent)
{
    const quint32 hundredths = quint32(std::lround(percent * 100)) + 1;
    if (!isToTry(hundredths, percent == m_drag.percent))
        return;
    TaskValues values;
    values.percent = percent;
    const EditAnswer answer = m_session.tryOut(
        tr("Change progress"), [&](PlanEdits &edits) { return edits.set({m_drag.task}, values); });
    taken(tr("“%1” is %2% done").arg(shortened(task(m_drag.task)->Name)).arg(std::lround(percent * 100)),
          answer);
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
        taken(tr("Draw to the task that is to wait for “%1”").arg(shortened(task(m_drag.task)->Name)),
              EditAnswer());
        return;
    }
    const EditAnswer answer = m_session.tryOut(tr("Link tasks"), [&](PlanEdits &edits) {
        return edits.link({m_drag.task, target});
    });
    taken(
        tr("“%1” waits for “%2” now").arg(shortened(task(target)->Name), shortened(task(m_drag.task)->Name)),
        answer);
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
            names.append(quoted(task(move.task)->Name));
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
