#pragma once
#include <QFrame>
#include <functional>

class QLabel;
class QToolButton;

// A line below the plan that says what has just happened, with the way back in it.
class NoteBar : public QFrame
{
    Q_OBJECT
public:
    explicit NoteBar(QWidget *parent = nullptr);

    enum Kind { Told, Refused };
    // The button does what it says and closes the line; without a text there is none.
    void say(const QString &text, Kind kind = Told, const QString &button = QString(),
             const std::function<void()> &action = nullptr, const QString &secondButton = QString(),
             const std::function<void()> &secondAction = nullptr);
    QString text() const;
    QToolButton *button() const { return m_first; }
    bool isRefusal() const { return m_kind == Refused; }
    void colour(); // as dark as the window

protected:
    void changeEvent(QEvent *event) override;

private:
    QLabel *m_text;
    QToolButton *m_first;
    QToolButton *m_second;
    std::function<void()> m_action;
    std::function<void()> m_secondAction;
    Kind m_kind = Told;
};
