#pragma once
#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QVector>
#include <functional>
#include <memory>

class QDialog;
class QLabel;
class QProgressBar;

// Work that may last. After a moment a dialog says how far it is and lets the user give it up; until then
// nothing is to be seen of it.
//
// Windows go on being painted, but nobody can touch the plan that is worked on: between construction and
// destruction they get no keys and no mouse, none of their timers runs, and they are not closed. What resized
// them is told to them afterwards.
class Busy : public QObject
{
    Q_OBJECT
public:
    enum Plan { Stays, Changes }; // while it changes, the window is not painted either
    Busy(QWidget *window, const QString &what, Plan plan);
    ~Busy() override;

    // Processes events now and then; false when the user has given up. A total of 0 is not known.
    bool step(qint64 done, qint64 total);
    // The work, with the steps of the library told to this. False when it was given up.
    bool watch(const std::function<void()> &work);

    static int s_patience; // milliseconds until the dialog comes

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void show();
    bool isOfDialog(const QObject *object) const;

    QPointer<QWidget> m_window;
    const QString m_what;
    const Plan m_plan;
    QElapsedTimer m_since;
    QElapsedTimer m_shown; // since the last step that was shown
    std::unique_ptr<QDialog> m_dialog;
    QProgressBar *m_bar = nullptr;
    QVector<QPointer<QWidget>> m_resized;
    bool m_isGivenUp = false;
};
