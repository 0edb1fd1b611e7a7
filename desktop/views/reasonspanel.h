#pragma once
#include <QDockWidget>
#include <QTimer>

class Session;
class QTextBrowser;

// Why the chosen task is when it is, in the words of `kwgantt explain`; every task named is a jump.
class ReasonsPanel : public QDockWidget
{
    Q_OBJECT
public:
    explicit ReasonsPanel(Session &session, QWidget *parent = nullptr);
    void explain(quint32 id); // 0: nothing; soon, since the question goes through the whole plan
    void explainNow();
    QString text() const; // as it is shown

Q_SIGNALS:
    void jumped(quint32 id);

private:
    Session &m_session;
    QTextBrowser *m_text;
    QTimer m_wait{this};
    quint32 m_task = 0;
};
