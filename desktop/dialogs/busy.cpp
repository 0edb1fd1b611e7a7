#include "dialogs/busy.h"
#include "support/longwork.h"
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QResizeEvent>
#include <QVBoxLayout>

int Busy::s_patience = 400;

namespace {

constexpr int shownMilliseconds = 40; // between two steps that are shown
constexpr int parts = 1000;           // of the bar

// What could make a window do something with its plan.
bool isAnAct(QEvent::Type type)
{
    switch (type) {
    case QEvent::Timer:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::DragLeave:
    case QEvent::Drop:
    case QEvent::Enter:
    case QEvent::Leave:
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
    case QEvent::HoverLeave:
    case QEvent::ToolTip:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::ActivationChange:
    case QEvent::Close:
    case QEvent::Resize:
        return true;
    default:
        return false;
    }
}
}

Busy::Busy(QWidget *window, const QString &what, Plan plan)
    : m_window(window)
    , m_what(what)
    , m_plan(plan)
{
    m_since.start();
}

Busy::~Busy()
{
    if (!m_dialog)
        return;
    qApp->removeEventFilter(this);
    QApplication::restoreOverrideCursor();
    if (m_plan == Changes && m_window)
        m_window->setUpdatesEnabled(true);
    m_dialog.reset();
    for (const QPointer<QWidget> &widget : qAsConst(m_resized)) {
        if (widget) {
            QResizeEvent event(widget->size(), QSize());
            QApplication::sendEvent(widget, &event);
        }
    }
}

void Busy::show()
{
    m_dialog = std::make_unique<QDialog>(m_window);
    m_dialog->setObjectName(QStringLiteral("busy"));
    m_dialog->setWindowTitle(tr("kwgantt"));
    m_dialog->setWindowModality(Qt::ApplicationModal);
    auto *label = new QLabel(m_what);
    label->setTextFormat(Qt::PlainText);
    m_bar = new QProgressBar;
    m_bar->setTextVisible(false);
    m_bar->setMinimumWidth(320);
    m_bar->setAccessibleName(m_what);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    auto *layout = new QVBoxLayout(m_dialog.get());
    layout->addWidget(label);
    layout->addWidget(m_bar);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, m_dialog.get(), &QDialog::reject);
    // Esc and the frame's button end here, too.
    connect(m_dialog.get(), &QDialog::rejected, this, [this, label, buttons] {
        m_isGivenUp = true;
        label->setText(tr("Cancelling…"));
        buttons->setEnabled(false);
    });
    if (m_plan == Changes && m_window)
        m_window->setUpdatesEnabled(false);
    qApp->installEventFilter(this);
    QApplication::setOverrideCursor(Qt::ArrowCursor); // over a waiting one
    m_dialog->show();
}

bool Busy::step(qint64 done, qint64 total)
{
    if (m_isGivenUp)
        return false;
    if (!m_dialog) {
        if (m_since.elapsed() < s_patience)
            return true;
        show();
    } else if (s_patience > 0 && m_shown.elapsed() < shownMilliseconds) {
        return true;
    }
    m_bar->setRange(0, total > 0 ? parts : 0);
    m_bar->setValue(total > 0 ? int(qMin(done, total) * parts / total) : 0);
    QApplication::processEvents();
    m_shown.start();
    return !m_isGivenUp;
}

bool Busy::watch(const std::function<void()> &work)
{
    const LongWork watched([this](LongWork::Stage, qint64 done, qint64 total) { return step(done, total); });
    work();
    return !watched.isGivenUp();
}

bool Busy::isOfDialog(const QObject *object) const
{
    for (; object; object = object->parent())
        if (object == m_dialog.get())
            return true;
    return false;
}

bool Busy::eventFilter(QObject *object, QEvent *event)
{
    if (!isAnAct(event->type()) || isOfDialog(object))
        return false;
    // Of windows: what stands in none of them has no plan.
    const QObject *above = object;
    while (above && !above->isWidgetType())
        above = above->parent();
    if (!above)
        return false;
    if (event->type() == QEvent::Resize) {
        auto *widget = static_cast<QWidget *>(object);
        if (object->isWidgetType() && !m_resized.contains(widget))
            m_resized.append(widget);
        return true;
    }
    if (event->type() == QEvent::Close)
        event->ignore();
    return true;
}
