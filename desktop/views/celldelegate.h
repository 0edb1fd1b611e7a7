#pragma once
#include <QStyledItemDelegate>

class QAbstractItemView;
class QLabel;
class QLineEdit;
class Session;

// Edits one cell in place. A text that is refused stays, with the reason below it.
class CellDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    explicit CellDelegate(Session &session, QObject *parent = nullptr);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
    bool eventFilter(QObject *object, QEvent *event) override;
    // Takes the text of an open editor and closes it, unless it is refused.
    void finish(QLineEdit *editor);
    // What is said below the open editor; empty: nothing.
    QString complaint() const;

    enum Way { Stay, Down, Up, Next, Previous };

Q_SIGNALS:
    void leftTowards(int way) const; // the text was taken

private:
    bool ofNames(QAbstractItemView *list, QEvent *event);
    bool take(QLineEdit *editor);
    void leave(QLineEdit *editor, Way way);
    void complain(QLineEdit *editor, const QString &what, const QString &hint);

    Session &m_session;
    mutable QPersistentModelIndex m_index; // of the open editor
    QLabel *m_bubble = nullptr;            // owned by the view
    bool m_isTaking = false;
};
