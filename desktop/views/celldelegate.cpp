#include "views/celldelegate.h"
#include "documents/session.h"
#include "look.h"
#include "resources/resourceinfodata.h"
#include "views/planmodel.h"
#include <QAbstractItemView>
#include <QCompleter>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QStringListModel>

namespace {

// Completes the last of several names that are separated by semicolons.
class NameCompleter : public QCompleter
{
public:
    using QCompleter::QCompleter;
    QStringList splitPath(const QString &text) const override
    {
        return {text.section(QLatin1Char(';'), -1).trimmed()};
    }
    QString pathFromIndex(const QModelIndex &index) const override
    {
        const auto *edit = static_cast<const QLineEdit *>(widget());
        const QString before = edit->text().section(QLatin1Char(';'), 0, -2);
        const QString name = QCompleter::pathFromIndex(index);
        return before.isEmpty() ? name : before + QLatin1String("; ") + name;
    }
};
}

CellDelegate::CellDelegate(Session &session, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_session(session)
{
}

QWidget *CellDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                    const QModelIndex &index) const
{
    auto *editor = new QLineEdit(parent);
    editor->setFrame(false);
    editor->setContentsMargins(1, 0, 1, 0);
    editor->setAccessibleName(index.model()->headerData(index.column(), Qt::Horizontal).toString());
    const auto *model = static_cast<const PlanModel *>(index.model());
    if (model->typeOf(index.column()) == cellinput::resourcesType) {
        QStringList names;
        for (const ResourceInfo *info : m_session.document().resourceInfoData()->infos)
            names.append(info->name.trimmed());
        auto *completer = new NameCompleter(names, editor);
        completer->setCaseSensitivity(Qt::CaseInsensitive);
        editor->setCompleter(completer);
        completer->popup()->installEventFilter(const_cast<CellDelegate *>(this));
    }
    m_index = index;
    return editor;
}

void CellDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    // The plan may change while the editor is open, what is typed stays.
    auto *line = static_cast<QLineEdit *>(editor);
    if (line->property("isFilled").toBool())
        return;
    line->setProperty("isFilled", true);
    line->setText(index.data(Qt::EditRole).toString());
    line->selectAll();
}

void CellDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                        const QModelIndex &) const
{
    editor->setGeometry(option.rect);
}

QString CellDelegate::complaint() const
{
    return m_bubble && m_bubble->isVisibleTo(m_bubble->parentWidget()) ? m_bubble->text() : QString();
}

void CellDelegate::complain(QLineEdit *editor, const QString &what, const QString &hint)
{
    delete m_bubble;
    m_bubble = new QLabel(editor->parentWidget());
    m_bubble->setObjectName(QStringLiteral("complaint"));
    connect(m_bubble, &QObject::destroyed, this, [this] { m_bubble = nullptr; });
    m_bubble->setTextFormat(Qt::PlainText);
    constexpr int longest = 300; // of what was typed or pasted
    const QString said = what.size() <= longest ? what : what.left(longest - 1) + QStringLiteral("…");
    m_bubble->setText(hint.isEmpty() ? said : said + QLatin1Char('\n') + hint);
    m_bubble->setStyleSheet(
        QStringLiteral("background:%1; border:1px solid #c4601d; border-radius:3px; padding:3px 6px")
            .arg(look::isDark() ? QStringLiteral("#4a3018; color:#ffe3c8")
                                : QStringLiteral("#fff4e5; color:#7a2e00")));
    const QRect cell = editor->geometry();
    const QRect room = editor->parentWidget()->rect();
    m_bubble->setWordWrap(m_bubble->sizeHint().width() > room.width() - 4);
    m_bubble->setMaximumWidth(qMax(80, room.width() - 4));
    m_bubble->adjustSize();
    int y = cell.bottom() + 2;
    if (y + m_bubble->height() > room.bottom())
        y = cell.top() - m_bubble->height() - 2;
    m_bubble->move(qMax(2, qMin(cell.left(), room.right() - m_bubble->width() - 2)), y);
    m_bubble->show();
    m_bubble->raise();
    editor->setAccessibleDescription(m_bubble->text());
    editor->setStyleSheet(QStringLiteral("border:1px solid #c4601d"));
}

// Whether the text was taken; the editor stays open where it was not.
bool CellDelegate::take(QLineEdit *editor)
{
    if (m_isTaking || !m_index.isValid())
        return true;
    m_isTaking = true;
    // The model is const for delegates alone.
    auto *model = const_cast<PlanModel *>(static_cast<const PlanModel *>(m_index.model()));
    const bool isTaken = model->setData(m_index, editor->text(), Qt::EditRole);
    m_isTaking = false;
    if (!isTaken)
        complain(editor, model->lastOutcome().what, model->lastOutcome().hint);
    return isTaken;
}

void CellDelegate::finish(QLineEdit *editor)
{
    const QPointer<QLineEdit> alive(editor);
    if (take(editor) && alive)
        leave(editor, Stay);
}

void CellDelegate::leave(QLineEdit *editor, Way way)
{
    delete m_bubble;
    Q_EMIT closeEditor(editor, NoHint);
    if (way != Stay)
        Q_EMIT leftTowards(way);
}

// A list of names that offers more is no reason to press a key twice: what leaves a cell leaves it, unless a
// name is chosen in the list.
bool CellDelegate::ofNames(QAbstractItemView *list, QEvent *event)
{
    if (!list || event->type() != QEvent::KeyPress || list->currentIndex().isValid())
        return false;
    const int key = static_cast<QKeyEvent *>(event)->key();
    QWidget *editor = list->focusProxy();
    if (!editor ||
        (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Tab && key != Qt::Key_Backtab))
        return false;
    list->hide();
    QCoreApplication::sendEvent(editor, event);
    return true;
}

bool CellDelegate::eventFilter(QObject *object, QEvent *event)
{
    auto *editor = qobject_cast<QLineEdit *>(object);
    if (!editor)
        return ofNames(qobject_cast<QAbstractItemView *>(object), event);
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool isShift = key->modifiers() & Qt::ShiftModifier;
        Way way = Stay;
        switch (key->key()) {
        case Qt::Key_Escape:
            event->accept();
            if (event->type() == QEvent::KeyPress)
                leave(editor, Stay);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            way = isShift ? Up : Down;
            break;
        case Qt::Key_Tab:
            way = Next;
            break;
        case Qt::Key_Backtab:
            way = Previous;
            break;
        case Qt::Key_Up:
            way = Up;
            break;
        case Qt::Key_Down:
            way = Down;
            break;
        default:
            return false;
        }
        if (event->type() == QEvent::ShortcutOverride)
            return false;
        const QPointer<QLineEdit> alive(editor);
        if (take(editor) && alive)
            leave(editor, way);
        return true;
    }
    if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        // Another window or a menu in front of this one, or the completer's list: the editor goes on.
        if (!editor->isVisible() || reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason ||
            reason == Qt::MenuBarFocusReason)
            return false;
        finish(editor);
    }
    return false;
}
