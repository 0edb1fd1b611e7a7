#pragma once
#include "documents/taskfilter.h"
#include <QDockWidget>
#include <QTimer>

class QCheckBox;
class QComboBox;
class QLabel;
class QListView;
class Session;

// The tasks that a filter lets through, each a jump. The plan stays whole beside it, unless the others are
// hidden.
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
    bool hidesOthers() const; // while the panel is open
    void setHidesOthers(bool hides);

Q_SIGNALS:
    void jumped(quint32 id);
    void narrowed(); // other tasks are to be hidden, or none; an edit hides nothing

private:
    class Rows;
    void follow(); // soon, and only while it is seen
    void fillFilters();

    Session &m_session;
    QComboBox *m_filters;
    QCheckBox *m_hides;
    QListView *m_list;
    QLabel *m_count;
    Rows *m_rows;
    QVector<taskfilter::Filter> m_all;
    QTimer m_wait{this};
};
