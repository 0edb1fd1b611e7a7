// Somebody who cannot read at the window: whatever is pressed, the plan stays sound, and undo leads back to
// the beginning.
//
// KW_MONKEY says how many keys and clicks, KW_MONKEY_SEED where they begin.
#include "desktop/hands.h"
#include "edits/plainplan.h"
#include "edits/plancheck.h"
#include <QAbstractItemModelTester>
#include <QAction>
#include <QClipboard>
#include <QDialog>
#include <QScrollBar>
#include <QTimer>
#include <gtest/gtest.h>
#include <random>

namespace {

class Monkey
{
public:
    explicit Monkey(unsigned int seed)
        : m_random(seed)
    {
    }

    void act()
    {
        MainWindow &window = *m_hands.window;
        static const char *const texts[] = {"Task",          "3d",  "2026-03-02", "50",
                                            "Ann[50%]; Bob", "12h", "0",          "x"};
        static const char *const actions[] = {
            "undo",        "redo",         "cut",        "copy",         "paste",        "duplicate",
            "delete",      "indent",       "outdent",    "insert-above", "insert-below", "insert-child",
            "move-up",     "move-down",    "fold",       "fold-all",     "unfold-all",   "link",
            "unlink",      "milestone",    "done",       "zoom-in",      "zoom-out",     "fit",
            "schedule",    "set-baseline", "select-all", "show-reasons", "hide-others",  "compare-baseline",
            "show-filter", "close-gaps"};
        static const int keys[] = {Qt::Key_Up,     Qt::Key_Down,     Qt::Key_Left,   Qt::Key_Right,
                                   Qt::Key_Home,   Qt::Key_End,      Qt::Key_Tab,    Qt::Key_F2,
                                   Qt::Key_Escape, Qt::Key_PageDown, Qt::Key_Return, Qt::Key_Return};
        switch (any(5)) {
        case 0:
            m_hands.key(keys[any(int(std::size(keys)))], any(4) ? Qt::NoModifier : Qt::ShiftModifier);
            break;
        case 1:
            m_hands.type(QLatin1String(texts[any(int(std::size(texts)))]));
            m_hands.key(any(3) ? Qt::Key_Return : Qt::Key_Tab);
            break;
        case 2:
            if (QAction *action = window.action(actions[any(int(std::size(actions)))]))
                action->trigger();
            break;
        case 3: {
            const QSize size = window.chart()->viewport()->size();
            const QPointF from = any(3) && tasks()
                                     ? window.chart()->barRect(m_hands.id(any(tasks()))).center()
                                     : QPointF(any(size.width()), any(size.height()));
            m_hands.drag(from, QPointF(any(size.width()), any(2) ? from.y() : any(size.height())),
                         any(5) > 0);
            if (window.chart()->isDragging() && any(2))
                m_hands.key(Qt::Key_Escape);
            break;
        }
        default:
            QTest::mouseClick(window.table()->viewport(), Qt::LeftButton,
                              any(2) ? Qt::NoModifier : Qt::ControlModifier, QPoint(any(500), any(400)));
            break;
        }
        QApplication::processEvents();
    }
    // A drag that is held on leaves the plan on trial.
    void letGo() { m_hands.window->chart()->leaveDrag(); }
    Hands &hands() { return m_hands; }

private:
    int any(int bound) { return int(m_random() % unsigned(qMax(1, bound))); }
    int tasks() { return m_hands.window->model()->taskRows(); }

    std::mt19937 m_random;
    Hands m_hands;
};
}

TEST(Window, aMonkeyDoesNoHarm)
{
    const int actions =
        qEnvironmentVariableIsSet("KW_MONKEY") ? qEnvironmentVariableIntValue("KW_MONKEY") : 400;
    Monkey monkey(unsigned(qEnvironmentVariableIntValue("KW_MONKEY_SEED")));
    KWDocument &document = monkey.hands().document();
    const QAbstractItemModelTester tester(monkey.hands().window->model(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    const std::string before = outlineOf(document);
    for (int action = 0; action < actions; ++action) {
        monkey.act();
        ASSERT_TRUE(plancheck::check(document).isEmpty()) << "after action " << action;
        if (action % 50 == 0) {
            monkey.letGo();
            ASSERT_EQ(plainplan::faults(document), "") << "after action " << action;
        }
        // Before the oldest step is dropped, or copies of copies fill the plan: all the way back, and on from
        // there.
        constexpr int mostSteps = 55, mostTasks = 150;
        if (monkey.hands().steps() > mostSteps || document.taskCount() > mostTasks) {
            monkey.letGo();
            while (monkey.hands().steps() > 0)
                monkey.hands().window->undo();
            ASSERT_EQ(outlineOf(document), before) << "after action " << action;
        }
    }
}
