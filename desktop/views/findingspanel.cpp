#include "views/findingspanel.h"
#include "support/findings.h"
#include <QListWidget>
#include <QRegularExpression>

FindingsPanel::FindingsPanel(QWidget *parent)
    : QDockWidget(tr("Findings"), parent)
    , m_list(new QListWidget)
{
    setObjectName(QStringLiteral("findings"));
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setWordWrap(true);
    m_list->setAccessibleName(windowTitle());
    setWidget(m_list);
    hide();
    connect(m_list, &QListWidget::itemActivated, this, [this] { activate(m_list->currentRow()); });
    connect(m_list, &QListWidget::itemClicked, this, [this] { activate(m_list->currentRow()); });
}

int FindingsPanel::rowOf(const QString &place)
{
    static const QRegularExpression form(QStringLiteral("\\b(?:row|task) (\\d+)\\b"));
    const QRegularExpressionMatch match = form.match(place);
    return match.hasMatch() ? match.captured(1).toInt() - 1 : -1;
}

void FindingsPanel::list(const Findings &findings)
{
    m_list->clear();
    for (const Finding &finding : findings.list()) {
        QString text =
            finding.place.isEmpty() ? finding.what : finding.place + QLatin1String(": ") + finding.what;
        if (!finding.hint.isEmpty())
            text += QLatin1String("\n") + finding.hint;
        auto *item = new QListWidgetItem(text, m_list);
        item->setData(Qt::UserRole, rowOf(finding.place));
    }
    if (findings.count() > findings.list().size())
        new QListWidgetItem(tr("… and %1 more").arg(findings.count() - findings.list().size()), m_list);
    setWindowTitle(tr("Findings (%1)").arg(findings.count()));
    setVisible(!findings.isEmpty());
}

int FindingsPanel::count() const
{
    return m_list->count();
}

void FindingsPanel::activate(int entry)
{
    const QListWidgetItem *item = m_list->item(entry);
    const int pos = item ? item->data(Qt::UserRole).toInt() : -1;
    if (item && pos >= 0)
        Q_EMIT jumped(pos);
}
