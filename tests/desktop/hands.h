#pragma once
#include "mainwindow.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"
#include "support/savedtext.h"
#include "views/planchart.h"
#include "views/planmodel.h"
#include "views/plantable.h"
#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <memory>

// A window, and what a user does to it.
class Hands
{
public:
    Hands()
        : window(new MainWindow)
    {
        window->setAsker(
            [this](const QString &, const QString &, QMessageBox::StandardButtons) { return answer; });
        window->resize(1200, 700);
        window->show();
        QApplication::setActiveWindow(window.get());
        QApplication::processEvents();
        window->table()->setFocus();
    }
    ~Hands()
    {
        answer = QMessageBox::Discard;
        window.reset();
    }

    // Keys go to whatever has the focus, as they do on a desk.
    QWidget *focus()
    {
        if (!QApplication::focusWidget() || QApplication::focusWidget()->window() != window.get()) {
            QApplication::setActiveWindow(window.get());
            window->table()->setFocus();
        }
        return QApplication::focusWidget() ? QApplication::focusWidget() : window->table();
    }
    void key(int code, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(focus(), Qt::Key(code), modifiers);
        QApplication::processEvents();
    }
    void type(const QString &text)
    {
        for (const QChar c : text)
            QTest::keyClick(focus(), c.toLatin1());
    }
    void go(int row, int type) { window->table()->selectRow(row, window->model()->columnOf(type)); }
    void enter(int row, int type, const QString &text)
    {
        go(row, type);
        this->type(text);
        key(Qt::Key_Return);
    }
    void empty()
    {
        key(Qt::Key_A, Qt::ControlModifier);
        key(Qt::Key_Delete);
    }
    void mouse(QEvent::Type type, const QPointF &at, Qt::MouseButton button = Qt::LeftButton)
    {
        QWidget *view = window->chart()->viewport();
        QMouseEvent event(type, at, view->mapToGlobal(at.toPoint()),
                          type == QEvent::MouseMove ? Qt::NoButton : button,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
        QApplication::sendEvent(view, &event);
    }
    // In steps, as a hand moves.
    void drag(const QPointF &from, const QPointF &to, bool letsGo = true)
    {
        mouse(QEvent::MouseButtonPress, from);
        constexpr int steps = 5;
        for (int step = 1; step <= steps; ++step)
            mouse(QEvent::MouseMove, from + (to - from) * step / steps);
        if (letsGo)
            mouse(QEvent::MouseButtonRelease, to);
    }

    KWDocument &document() { return window->session().document(); }
    quint32 id(int row) { return window->model()->taskAt(row); }
    KWTaskInfo &task(int row) { return *document().getTaskInfoByID(id(row)); }
    int steps() { return document().actionManager().undoActions().size(); }
    std::string saved()
    {
        window->session().settleBars();
        return savedText(document());
    }

    std::unique_ptr<MainWindow> window;
    QMessageBox::StandardButton answer = QMessageBox::Cancel;
};

// What users see of a plan: a line for each task.
inline std::string outlineOf(const KWDocument &document)
{
    QStringList lines;
    for (const KWTaskInfo *task : document.taskList()) {
        QStringList waits;
        for (const quint32 predecessor : task->Predecessors)
            waits.append(QString::number(document.getPosByID(predecessor) + 1));
        lines.append(QStringLiteral("%1%2 %3-%4 %5 %6% [%7] after %8%9")
                         .arg(QString(2 * (task->Level - 1), QLatin1Char(' ')), task->Name)
                         .arg(task->Start)
                         .arg(task->Finish)
                         .arg(task->DurationSecs)
                         .arg(task->Percent * 100)
                         .arg(task->Resources, waits.join(QLatin1Char(',')),
                              task->IsToggler ? QStringLiteral(" folded") : QString()));
    }
    return lines.join(QLatin1Char('\n')).toStdString();
}
