#pragma once
#include "table/customtable.h"
#include <QDialog>

class QLabel;
class QTableWidget;
class Session;

// The resource sheet: every cell that is changed is one step.
class ResourcesDialog : public QDialog
{
    Q_OBJECT
public:
    explicit ResourcesDialog(Session &session, QWidget *parent = nullptr);
    QTableWidget *sheet() const { return m_sheet; }
    QString complaint() const;
    void addResource();
    void removeResource();

private:
    void fill();
    void changed(int row, int column);
    void say(const QString &text);

    Session &m_session;
    QTableWidget *m_sheet;
    QLabel *m_complaint;
    bool m_isFilling = false;
};
