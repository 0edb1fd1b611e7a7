#include "dialogs/commandpalette.h"
#include "actions/actiontable.h"
#include "dialogs/fitting.h"
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

CommandPalette::CommandPalette(const QList<QAction *> &actions, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
    , m_actions(actions)
    , m_line(new QLineEdit)
    , m_list(new QListWidget)
{
    setWindowTitle(tr("Commands"));
    m_line->setPlaceholderText(tr("Type what you want to do"));
    m_line->setAccessibleName(tr("Command"));
    m_list->setAccessibleName(tr("Commands that fit"));
    m_list->setFrameShape(QFrame::NoFrame);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_line);
    layout->addWidget(m_list);
    m_line->installEventFilter(this);
    connect(m_line, &QLineEdit::textChanged, this, &CommandPalette::fill);
    connect(m_list, &QListWidget::itemActivated, this, &CommandPalette::choose);
    fitting::resize(*this, QSize(620, 380));
    fill();
}

int CommandPalette::matches() const
{
    return m_hasNone ? 0 : m_list->count();
}

// All words must occur, in any order; those in the name come before those in the help.
void CommandPalette::fill()
{
    m_list->clear();
    const QStringList words = m_line->text().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const bool inName : {true, false}) {
        for (QAction *action : qAsConst(m_actions)) {
            const QString name = actiontable::withoutMnemonic(action->text());
            const auto fits = [&words](const QString &text) {
                return std::all_of(words.begin(), words.end(), [&text](const QString &word) {
                    return text.contains(word, Qt::CaseInsensitive);
                });
            };
            if (fits(name) != inName || (!inName && !fits(name + QLatin1Char(' ') + action->statusTip())))
                continue;
            const QString keys = action->shortcut().toString(QKeySequence::NativeText);
            auto *item =
                new QListWidgetItem(QStringLiteral("%1%2\n%3")
                                        .arg(name, keys.isEmpty() ? QString() : QStringLiteral("    ") + keys,
                                             action->statusTip()),
                                    m_list);
            item->setData(Qt::UserRole, QVariant::fromValue(static_cast<QObject *>(action)));
            if (!action->isEnabled())
                item->setFlags(item->flags() & ~Qt::ItemIsEnabled);
        }
    }
    m_hasNone = m_list->count() == 0;
    if (m_hasNone)
        (new QListWidgetItem(tr("No command has all of these words"), m_list))->setFlags(Qt::NoItemFlags);
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->flags() & Qt::ItemIsEnabled) {
            m_list->setCurrentRow(row);
            break;
        }
    }
}

void CommandPalette::choose()
{
    const QListWidgetItem *item = m_list->currentItem();
    if (!item || !(item->flags() & Qt::ItemIsEnabled))
        return;
    m_chosen = static_cast<QAction *>(item->data(Qt::UserRole).value<QObject *>());
    accept();
}

bool CommandPalette::eventFilter(QObject *object, QEvent *event)
{
    if (object != m_line || event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(object, event);
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QApplication::sendEvent(m_list, event);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        choose();
        return true;
    default:
        return false;
    }
}
