#pragma once
#include <QDockWidget>

class Findings;
class QListWidget;

// What of a file could not be taken as it stands; an entry that names a row leads there.
class FindingsPanel : public QDockWidget
{
    Q_OBJECT
public:
    explicit FindingsPanel(QWidget *parent = nullptr);
    void list(const Findings &findings); // hides itself when there are none
    int count() const;
    void activate(int entry);
    // The row of the plan that a place such as "row 17, 'Finish'" names; -1: none.
    static int rowOf(const QString &place);

Q_SIGNALS:
    void jumped(int pos);

private:
    QListWidget *m_list;
};
