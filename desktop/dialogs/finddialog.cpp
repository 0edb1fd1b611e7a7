#include "dialogs/finddialog.h"
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

FindDialog::FindDialog(QWidget *parent)
    : QDialog(parent)
    , m_text(new QLineEdit)
    , m_replacement(new QLineEdit)
    , m_case(new QCheckBox(tr("&Match case")))
    , m_said(new QLabel)
    , m_replaceAll(new QPushButton(tr("&Replace all")))
{
    setWindowTitle(tr("Find and replace"));
    auto *form = new QFormLayout;
    form->addRow(tr("&Text in names, notes and resources:"), m_text);
    form->addRow(tr("Replace in &names and notes by:"), m_replacement);
    form->addRow(QString(), m_case);
    m_said->setTextFormat(Qt::PlainText);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    auto *next = new QPushButton(tr("&Find next"));
    next->setDefault(true);
    buttons->addButton(next, QDialogButtonBox::ActionRole);
    buttons->addButton(m_replaceAll, QDialogButtonBox::ActionRole);
    m_replaceAll->setAutoDefault(false);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_said);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(next, &QPushButton::clicked, this,
            [this] { Q_EMIT findWanted(m_text->text(), m_case->isChecked()); });
    connect(m_replaceAll, &QPushButton::clicked, this,
            [this] { Q_EMIT replaceWanted(m_text->text(), m_replacement->text(), m_case->isChecked()); });
    const auto follow = [this, next] {
        next->setEnabled(!m_text->text().isEmpty());
        m_replaceAll->setEnabled(!m_text->text().isEmpty());
        say(QString());
    };
    connect(m_text, &QLineEdit::textChanged, this, follow);
    follow();
}

void FindDialog::begin(const QString &text, bool isReplacing)
{
    if (!text.isEmpty())
        m_text->setText(text);
    say(QString());
    show();
    raise();
    activateWindow();
    QLineEdit *line = isReplacing && !m_text->text().isEmpty() ? m_replacement : m_text;
    line->setFocus();
    line->selectAll();
}

void FindDialog::say(const QString &words)
{
    m_said->setText(words);
}
