#pragma once
#include <QDockWidget>
#include <QTimer>

class QLabel;
class QTableView;
class Session;

// How far each task is from its baseline, as `kwgantt baseline` tells it; a row leads to its task.
class BaselinePanel : public QDockWidget
{
    Q_OBJECT
public:
    explicit BaselinePanel(Session &session, QWidget *parent = nullptr);
    ~BaselinePanel() override;
    void compareNow();
    int count() const; // of the tasks that are not where their baseline has them
    QString text(int row, int column) const;
    void sort(int column, Qt::SortOrder order);

Q_SIGNALS:
    void jumped(quint32 id);

private:
    class Rows;
    void follow(); // soon, and only while it is seen

    Session &m_session;
    QTableView *m_table;
    QLabel *m_count;
    Rows *m_rows;
    QTimer m_wait{this};
};
