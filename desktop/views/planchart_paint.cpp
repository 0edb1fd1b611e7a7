// What is painted over the picture of the plan, and what is told of a bar under the pointer.
#include "datetext.h"
#include "documents/session.h"
#include "model/kwtaskinfo.h"
#include "quoted.h"
#include "views/chartsizes.h"
#include "views/planchart.h"
#include "views/planmodel.h"
#include <QHelpEvent>
#include <QScrollBar>
#include <QToolTip>

using namespace chartsizes;

namespace {

constexpr int flashMilliseconds = 900;
}

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
    QStringList lines{shortened(shown->Name).toHtmlEscaped(),
                      spanText(shown->Start, shown->Finish) + QStringLiteral(" · ") + length};
    if (shown->Percent > 0)
        lines.append(tr("%1% done").arg(qRound(shown->Percent * 100)));
    if (!shown->isParent())
        lines.append(shown->CriticalPath ? tr("critical: a delay moves the finish of the project")
                                         : tr("slack: %1").arg(shown->LateSlack));
    if (!shown->Resources.isEmpty())
        lines.append(shortened(shown->Resources).toHtmlEscaped());
    QToolTip::showText(
        help->globalPos(),
        QStringLiteral("<p style='white-space:pre'>%1</p>").arg(lines.join(QLatin1String("<br>"))),
        viewport());
    return true;
}
