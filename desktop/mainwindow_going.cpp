// The actions that find places and change what is seen.
#include "edits/planreasons.h"
#include "mainwindow.h"
#include "model/kwtaskinfo.h"
#include "quoted.h"
#include "views/notebar.h"
#include "views/planchart.h"
#include "views/plantable.h"
#include "views/reasonspanel.h"
#include <QAction>
#include <QInputDialog>

void MainWindow::jumpTo(quint32 id)
{
    const KWTaskInfo *task = m_session.document().getTaskInfoByID(id);
    if (!task)
        return;
    // Folded away by several summaries, one in the other.
    QVector<quint32> folded;
    for (const KWTaskInfo *above = m_session.document().getTaskInfoByID(task->ParentID); above;
         above = m_session.document().getTaskInfoByID(above->ParentID))
        if (above->IsToggler)
            folded.append(above->ID);
    if (!folded.isEmpty())
        perform(tr("Unfold"), [&](PlanEdits &edits) { return edits.expand(folded); });
    m_table->select({id});
    m_chart->showBar(id);
    m_table->setFocus();
}

void MainWindow::goToDriver()
{
    const planreasons::Reasons reasons = planreasons::of(m_session.document(), m_table->currentTask());
    const quint32 next =
        !reasons.waitsFor.isEmpty() ? reasons.waitsFor.first().predecessor : reasons.firstChild;
    if (next != 0)
        jumpTo(next);
    else
        m_note->say(tr("It waits for no other task."));
}

bool MainWindow::findText(const QString &text, bool isFromNext)
{
    m_searched = text;
    const QList<KWTaskInfo *> &tasks = m_session.document().taskList();
    if (text.isEmpty() || tasks.isEmpty())
        return false;
    const int begin = qMax(0, m_session.document().getPosByID(m_table->currentTask())) + (isFromNext ? 1 : 0);
    for (int i = 0; i < tasks.size(); ++i) {
        const KWTaskInfo &task = *tasks.at((begin + i) % tasks.size());
        for (const QString &words : {task.Name, task.Notes, task.Resources}) {
            if (words.contains(text, Qt::CaseInsensitive)) {
                jumpTo(task.ID);
                return true;
            }
        }
    }
    tellRefusal(tr("no task has %1 in it").arg(quoted(text)), QString());
    return false;
}

void MainWindow::findAsk()
{
    bool ok = false;
    const QString text = QInputDialog::getText(this, tr("Find"), tr("Text in names, notes and resources:"),
                                               QLineEdit::Normal, m_searched, &ok);
    if (ok)
        findText(text, true);
}

void MainWindow::findNext()
{
    if (m_searched.isEmpty())
        findAsk();
    else
        findText(m_searched, true);
}

void MainWindow::goTo()
{
    bool ok = false;
    const int row = QInputDialog::getInt(this, tr("Go to row"), tr("Number of the task:"), 1, 1,
                                         qMax(1, m_session.document().taskCount()), 1, &ok);
    const KWTaskInfo *task = ok ? m_session.document().getTaskInfoAt(row - 1) : nullptr;
    if (task)
        jumpTo(task->ID);
}

void MainWindow::editCell()
{
    m_table->setFocus();
    m_table->edit(m_table->currentIndex());
}

void MainWindow::selectAll()
{
    m_table->selectAll();
}

void MainWindow::zoomIn()
{
    m_chart->zoomAtCentre(1.25);
}

void MainWindow::zoomOut()
{
    m_chart->zoomAtCentre(1 / 1.25);
}

void MainWindow::fit()
{
    m_chart->fit();
}

void MainWindow::today()
{
    m_chart->goToToday();
}

void MainWindow::applySwitches()
{
    m_picture.options.critical = action("show-critical")->isChecked();
    m_picture.options.baseline = action("show-baseline")->isChecked();
    m_picture.options.slack = action("show-slack")->isChecked();
    m_picture.options.links = action("show-links")->isChecked();
    m_chart->showSheets(action("show-sheets")->isChecked());
    m_chart->viewport()->update();
}

void MainWindow::nextLabels()
{
    static const QString names[] = {tr("No texts beside bars"), tr("Names beside bars"),
                                    tr("Resources beside bars"), tr("Dates beside bars")};
    m_picture.options.labels = KWExportOptions::Labels((int(m_picture.options.labels) + 1) % 4);
    m_note->say(names[m_picture.options.labels]);
    m_chart->viewport()->update();
}

void MainWindow::toggleReasons()
{
    m_reasons->setVisible(action("show-reasons")->isChecked());
}
