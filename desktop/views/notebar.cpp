#include "views/notebar.h"
#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

NoteBar::NoteBar(QWidget *parent)
    : QFrame(parent)
    , m_text(new QLabel)
    , m_first(new QToolButton)
    , m_second(new QToolButton)
{
    setObjectName(QStringLiteral("note"));
    auto *close = new QToolButton;
    close->setText(QStringLiteral("✕"));
    close->setAutoRaise(true);
    close->setAccessibleName(tr("Close the note"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setAccessibleName(tr("Note"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(10, 4, 4, 4);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_first);
    layout->addWidget(m_second);
    layout->addWidget(close);
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    const auto run = [this](std::function<void()> NoteBar::*action) {
        hide();
        const std::function<void()> chosen = this->*action;
        if (chosen)
            chosen();
    };
    connect(m_first, &QToolButton::clicked, this, [run] { run(&NoteBar::m_action); });
    connect(m_second, &QToolButton::clicked, this, [run] { run(&NoteBar::m_secondAction); });
    hide();
}

void NoteBar::say(const QString &text, Kind kind, const QString &button, const std::function<void()> &action,
                  const QString &secondButton, const std::function<void()> &secondAction)
{
    m_kind = kind;
    constexpr int longest = 1000; // names of a file may be of any length
    m_text->setText(text.size() <= longest ? text : text.left(longest - 1) + QStringLiteral("…"));
    m_first->setText(button);
    m_first->setVisible(!button.isEmpty());
    m_second->setText(secondButton);
    m_second->setVisible(!secondButton.isEmpty());
    m_action = action;
    m_secondAction = secondAction;
    colour();
    setVisible(!text.isEmpty());
}

void NoteBar::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        colour();
}

void NoteBar::colour()
{
    const bool isDark = QApplication::palette().window().color().lightness() < 128;
    const char *const colors[2][2] = {{"#e8f0fb; color:#1f2933", "#fff1e0; color:#5b2500"},
                                      {"#27364a; color:#e6eaf0", "#4a3018; color:#ffe3c8"}};
    const QString sheet =
        QStringLiteral("QFrame#note { background:%1; } QFrame#note QLabel { color:%2; }")
            .arg(QString::fromLatin1(colors[isDark][m_kind]).section(QLatin1Char(';'), 0, 0),
                 QString::fromLatin1(colors[isDark][m_kind]).section(QLatin1Char(':'), -1));
    if (sheet != styleSheet()) // setting it changes the palette again
        setStyleSheet(sheet);
}

QString NoteBar::text() const
{
    return isHidden() ? QString() : m_text->text();
}
