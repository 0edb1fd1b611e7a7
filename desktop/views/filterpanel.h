#pragma once
#include "documents/taskfilter.h"
#include <QDockWidget>
#include <QTimer>

class QComboBox;
class QLabel;
class QListView;
class Session;

// The tasks that a filter lets through, each a jump; the plan stays whole beside it.
class FilterPanel : public QDockWidget
{
    Q_OBJECT
public:
    explicit FilterPanel(Session &session, QWidget *parent = nullptr);
    ~FilterPanel() override;
    void choose(const taskfilter::Filter &filter);
    void filterNow();
    QVector<quint32> found() const;
    QComboBox *filters() const { return m_filters; }

Q_SIGNALS:
    void jumped(quint32 id);

private:
    class Rows;
    void follow(); // soon, and only while it is seen
    void fillFilters();

    Session &m_session;
    QComboBox *m_filters;
    QListView *m_list;
    QLabel *m_count;
    Rows *m_rows;
    QVector<taskfilter::Filter> m_all;
    QTimer m_wait{this};
};
