// The plan as a page for a browser.
#include "export/ganttpdfexport.h"
#include "export/htmlpage.h"
#include "model/kwdocument.h"
#include "support/said.h"
#include <QIODevice>

bool GanttPdfExport::exportHtml(const QString &path)
{
    m_findings.clear();
    return hasTasks() && replace(path, [&](QIODevice &device) { return writePage(device); });
}

bool GanttPdfExport::writeHtml(QIODevice &device)
{
    m_findings.clear();
    return hasTasks() && writePage(device);
}

// A page has fonts of its reader's machine, and shows folded tasks: only a plan without any is nothing to
// show.
bool GanttPdfExport::hasTasks()
{
    if (m_document && m_document->taskCount() > 0)
        return true;
    m_findings.add(QString(), m_document ? KW_TEXT("the plan has no tasks: there is nothing to draw")
                                         : KW_TEXT("there is no plan to draw"));
    return false;
}

bool GanttPdfExport::writePage(QIODevice &device)
{
    const QString title = options.title.isEmpty() ? m_document->fileName() : filled(options.title, 1, 1);
    const auto isGoingOn = [this](int done, int total) { return !isCancelled(done, total); };
    switch (htmlpage::write(device, *m_document, options, title,
                            options.now.isValid() ? options.now : stamp(), isGoingOn)) {
    case htmlpage::Result::Written:
        return true;
    case htmlpage::Result::Failed:
        m_findings.add(QString(), KW_TEXT("cannot be written: %1").arg(device.errorString()));
        return false;
    case htmlpage::Result::NoTask:
        m_findings.add(QString(), KW_TEXT("no task is shown: there is nothing to draw"));
        return false;
    case htmlpage::Result::Cancelled: // which has been told
        break;
    }
    return false;
}
