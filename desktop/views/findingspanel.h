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
    int wantedHeight() const; // pixels in which all lines are seen
    void activate(int entry);

Q_SIGNALS:
    // The number of a task, from 1; or where the file has it.
    void jumped(int number, bool isOfFile);

private:
    QListWidget *m_list;
};
