#include "views/reasonspanel.h"
#include "documents/session.h"
#include "edits/planreasons.h"
#include "explain.h"
#include "model/kwtaskinfo.h"
#include <QRegularExpression>
#include <QTextBrowser>
#include <QUrl>

namespace {

constexpr int waitMilliseconds = 120;

// `12 "Build"` leads to the task of row 12 where it has that name.
QString withJumps(const Plan &plan, const QString &line)
{
    static const QRegularExpression form(QStringLiteral("\\b(\\d+) \"([^\"]*)"));
    // A link with its number, and what stands between links, as long as can be read.
    constexpr int longestLink = 120, longestText = 600;
    const auto cut = [&line](int begin, int end, int longest) {
        return (end - begin <= longest ? line.mid(begin, end - begin)
                                       : line.mid(begin, longest - 1) + QStringLiteral("…"))
            .toHtmlEscaped();
    };
    QString html;
    int at = 0;
    for (auto matches = form.globalMatch(line); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const int pos = match.captured(1).toInt() - 1;
        if (pos < 0 || pos >= plan.taskCount() || match.capturedStart() < at ||
            !plan.task(pos)->Name.trimmed().startsWith(match.captured(2)))
            continue;
        const int end = match.capturedStart(2) + plan.task(pos)->Name.trimmed().size() + 1;
        html += cut(at, match.capturedStart(), longestText);
        html += QStringLiteral("<a href=\"task:%1\">%2</a>")
                    .arg(plan.task(pos)->ID.value())
                    .arg(cut(match.capturedStart(), end, longestLink));
        at = end;
    }
    html += cut(at, line.size(), longestText);
    // One sign, which no line breaks in two.
    return html.replace(QStringLiteral(" -&gt; "), QStringLiteral(" →\u00a0"));
}
}

ReasonsPanel::ReasonsPanel(Session &session, QWidget *parent)
    : QDockWidget(tr("Why is it when it is?"), parent)
    , m_session(session)
    , m_text(new QTextBrowser)
{
    setObjectName(QStringLiteral("reasons"));
    m_text->setOpenLinks(false);
    m_text->setFrameShape(QFrame::NoFrame);
    m_text->setAccessibleName(windowTitle());
    setWidget(m_text);
    m_wait.setSingleShot(true);
    m_wait.setInterval(waitMilliseconds);
    connect(&m_wait, &QTimer::timeout, this, &ReasonsPanel::explainNow);
    connect(m_text, &QTextBrowser::anchorClicked, this,
            [this](const QUrl &link) { Q_EMIT jumped(link.path().toUInt()); });
    connect(this, &QDockWidget::visibilityChanged, this, [this](bool isShown) {
        if (isShown)
            explain(m_task);
    });
}

void ReasonsPanel::explain(quint32 id)
{
    m_task = id;
    if (!isHidden())
        m_wait.start();
}

void ReasonsPanel::explainNow()
{
    m_wait.stop();
    Plan &plan = m_session.plan();
    const int pos = plan.posOf(m_task);
    if (pos < 0) {
        m_text->setHtml(
            tr("<p>Choose a task: here it says what it waits for, what waits for it, and whether a "
               "delay moves the end of the project.</p>"));
        return;
    }
    if (!plan.imported.isStartGiven)
        plan.start = plan::firstStart(plan);
    plan.tightest = planreasons::tightest(m_session.document());
    QString html;
    for (const explain::Line &line : explain::task(plan, pos)) {
        if (line.label.isEmpty())
            html += QStringLiteral("<p style='white-space:pre-wrap'><b>%1</b></p>")
                        .arg(withJumps(plan, line.text));
        else
            html += QStringLiteral("<p style='white-space:pre-wrap'><small>%1</small><br>%2</p>")
                        .arg(line.label.toHtmlEscaped(), withJumps(plan, line.text));
    }
    m_text->setHtml(html);
}

QString ReasonsPanel::text() const
{
    return m_text->toPlainText();
}
