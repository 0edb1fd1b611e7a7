#pragma once
#include <QDialog>

class QAction;
class QLineEdit;
class QListWidget;

// Finds an action by any part of its name, and says its keys.
class CommandPalette : public QDialog
{
    Q_OBJECT
public:
    CommandPalette(const QList<QAction *> &actions, QWidget *parent);
    QLineEdit *line() const { return m_line; }
    QAction *chosen() const { return m_chosen; } // after exec(); null: none
    int matches() const;

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void fill();
    void choose();

    QList<QAction *> m_actions;
    QLineEdit *m_line;
    QListWidget *m_list;
    bool m_hasNone = false;
    QAction *m_chosen = nullptr;
};
