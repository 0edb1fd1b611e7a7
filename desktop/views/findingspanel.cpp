#include "views/findingspanel.h"
#include "support/findings.h"
#include "texts.h"
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

void FindingsPanel::list(const Findings &findings)
{
    m_list->clear();
    for (const Finding &finding : findings.list()) {
        const QString what = texts::said(finding.what);
        QString text =
            finding.place.isEmpty() ? what : texts::said(finding.place) + QLatin1String(": ") + what;
        // What stood there, and below it what was taken or what to do.
        if (!finding.hint.isEmpty())
            text += QStringLiteral("\n    → ") + texts::said(finding.hint);
        auto *item = new QListWidgetItem(text, m_list);
        // "row 17, 'Finish'", "line 17", "task 17"
        static const QRegularExpression form(QStringLiteral("\\b(row|line|task) (\\d+)\\b"));
        const QRegularExpressionMatch match = form.match(finding.place);
        item->setData(Qt::UserRole, match.captured(2).toInt());
        item->setData(Qt::UserRole + 1, match.captured(1) != QLatin1String("task"));
    }
    if (findings.count() > findings.list().size())
        new QListWidgetItem(tr("… and %1 more").arg(findings.count() - findings.list().size()), m_list);
    setWindowTitle(tr("Findings (%1)").arg(findings.count()));
    setVisible(!findings.isEmpty());
}

int FindingsPanel::wantedHeight() const
{
    int height = style()->pixelMetric(QStyle::PM_TitleBarHeight) + 2 * m_list->spacing();
    constexpr int most = 20; // more scroll
    for (int row = 0; row < qMin(most, m_list->count()); ++row)
        height += m_list->sizeHintForRow(row);
    return height + fontMetrics().height() / 2;
}

int FindingsPanel::count() const
{
    return m_list->count();
}

void FindingsPanel::activate(int entry)
{
    const QListWidgetItem *item = m_list->item(entry);
    if (item && item->data(Qt::UserRole).toInt() > 0)
        Q_EMIT jumped(item->data(Qt::UserRole).toInt(), item->data(Qt::UserRole + 1).toBool());
}
