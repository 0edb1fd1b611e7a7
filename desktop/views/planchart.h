#pragma once
#include "edits/editanswer.h"
#include "export/ganttpdfexport.h"
#include "views/picture.h"
#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QPainter>
#include <QSet>

class ChartHead;
class KWTaskInfo;
class PlanModel;
class QLabel;
class Session;

// The chart, in step with the table: bars are dragged, linked and stretched with the mouse.
//
// While a bar is dragged the plan is what it would be (Session::tryOut), and the places where bars stood are
// drawn as ghosts; nothing is kept before the button is let go.
class PlanChart : public QAbstractScrollArea
{
    Q_OBJECT
public:
    PlanChart(Session &session, PlanModel &model, Picture &picture, QWidget *parent = nullptr);

    // ---- What is where: pixels of the viewport ------------------------------------------------------------
    QRectF barRect(quint32 id) const; // empty for tasks that are not shown
    double xOf(quint32 secs) const;   // day clock
    quint32 momentAt(double x) const; // day clock, also beside the chart's range
    // The parts of a bar that are dragged for different things.
    enum Part { Nothing, Body, Finish, Done, Handle };
    Part partAt(const QPointF &point, quint32 &id) const;
    QPointF handleOf(quint32 id) const; // from where links are drawn

    // ---- Scale and place ----------------------------------------------------------------------------------
    void zoom(double factor, double x); // the moment at x stays where it is
    void zoomAtCentre(double factor);
    void fit();
    void goToToday();
    void showBar(quint32 id); // across; the rows follow the table
    double pixelsOfDay() const;
    void flash(const QSet<quint32> &ids);
    void showSheets(bool areShown); // where the sheets of paper end

    bool isDragging() const { return m_drag.kind != Drag::None; }
    QString hint() const; // what is said beside the pointer while dragging
    void leaveDrag();     // nothing has happened
    // Who takes the keys that the chart has no use for.
    void setKeyReceiver(QWidget *receiver) { m_keys = receiver; }

Q_SIGNALS:
    void taskPressed(quint32 id, Qt::KeyboardModifiers modifiers);
    void taskDoubleClicked(quint32 id);
    void dragged(const QString &what, const EditAnswer &answer); // a drag was kept
    void refused(const QString &what, const QString &hint);
    void zoomed();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    bool viewportEvent(QEvent *event) override;

private:
    struct Drag
    {
        enum Kind { None, Pressed, Move, Stretch, Percent, Link, Pan };
        Kind kind = None;
        Part part = Nothing;
        quint32 task = 0;
        QPointF press;
        double grab = 0; // from the bar's edge that is dragged to the pointer
        quint32 start = 0;
        quint32 finish = 0;
        double percent = 0;
        quint32 tried = 0; // a moment, a percent or a task: no need to try it again
        QPoint scrolled;
    };
    void followDocument();
    void restart();
    void updateBars();
    void scrollTo(double left);
    void rememberAnchor();
    void setUnits(double pixelsOfDay);
    void widen(int width);
    void beginDrag(const QPointF &point);
    void drag(const QPointF &point);
    void tryMove(quint32 start);
    bool isToTry(quint32 value, bool isItsOwn);
    void tryStretch(quint32 finish);
    void tryPercent(double percent);
    void tryLink(const QPointF &point);
    void taken(const QString &what, const EditAnswer &answer);
    void say(const QString &text, const QPointF &point);
    quint32 snapped(quint32 secs, quint32 from) const;
    QString spanText(quint32 start, quint32 finish) const;
    QString consequences(const EditAnswer &answer) const;
    const KWTaskInfo *task(quint32 id) const;
    QVector<quint32> tasksInView() const;
    void paintGhosts(QPainter &painter) const;
    void paintHover(QPainter &painter) const;
    void paintSheets(QPainter &painter) const;
    void findSheets();

    Session &m_session;
    PlanModel &m_model;
    Picture &m_picture;
    ChartHead *m_head;
    QLabel *m_hint;
    QWidget *m_keys = nullptr;
    Drag m_drag;
    EditAnswer m_trial; // what the drag would do
    QString m_trialText;
    QPointF m_pointer;
    quint32 m_hovered = 0;
    quint32 m_anchor = 0; // the moment at the left edge, and how far right of it the edge is
    double m_anchorPixels = 0;
    double m_exactPixels = 0; // of a day: small steps of the wheel add up
    bool m_isAdjusting = false;
    bool m_isTrying = false; // the drag itself changes the plan
    bool m_isFitted = false; // until the user zooms, also when the window grows
    bool m_showsSheets = false;
    GanttPdfExport::SheetBorders m_sheets;
    QBasicTimer m_sheetTime; // they are found when nothing has changed for a moment
    QSet<quint32> m_flashed;
    QBasicTimer m_flashTime;
    QBasicTimer m_scrollTime;
};
