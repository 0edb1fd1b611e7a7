// The actions that find places and change what is seen.
#include "dialogs/finddialog.h"
#include "documents/weblink.h"
#include "edits/planreasons.h"
#include "mainwindow.h"
#include "model/kwtaskinfo.h"
#include "quoted.h"
#include "views/baselinepanel.h"
#include "views/filterpanel.h"
#include "views/notebar.h"
#include "views/planchart.h"
#include "views/planmodel.h"
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
    if (m_model->isLeftOut(id))
        m_filter->setHidesOthers(false);
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
    // As far as the chosen task, which may be the only one.
    const int begin = qMax(0, m_session.document().getPosByID(m_table->currentTask())) + (isFromNext ? 1 : 0);
    for (int i = 0; i < tasks.size(); ++i) {
        const KWTaskInfo &task = *tasks.at((begin + i) % tasks.size());
        if (hasText(task, text)) {
            jumpTo(task.ID);
            return true;
        }
    }
    tellRefusal(tr("no task has %1 in it").arg(quoted(text)), QString());
    return false;
}

bool MainWindow::hasText(const KWTaskInfo &task, const QString &text) const
{
    return task.Name.contains(text, m_searchedCase) || task.Notes.contains(text, m_searchedCase) ||
           task.Resources.contains(text, m_searchedCase);
}

void MainWindow::findAsk()
{
    showFind(false);
}

void MainWindow::replaceAsk()
{
    showFind(true);
}

void MainWindow::showFind(bool isReplacing)
{
    if (!m_find) {
        m_find = new FindDialog(this);
        const auto follow = [this](bool matchesCase) {
            m_searchedCase = matchesCase ? Qt::CaseSensitive : Qt::CaseInsensitive;
        };
        connect(m_find, &FindDialog::findWanted, this, [this, follow](const QString &text, bool matchesCase) {
            follow(matchesCase);
            m_find->say(findText(text, true) ? QString() : m_note->text());
        });
        connect(m_find, &FindDialog::replaceWanted, this,
                [this, follow](const QString &text, const QString &by, bool matchesCase) {
                    follow(matchesCase);
                    replaceText(text, by, m_searchedCase);
                    m_find->say(m_note->text());
                });
    }
    m_find->begin(m_searched, isReplacing);
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
    if (m_table->takesText(m_table->currentIndex()))
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

void MainWindow::toggleFilter()
{
    m_filter->setVisible(action("show-filter")->isChecked());
}

void MainWindow::toggleComparison()
{
    m_baseline->setVisible(action("compare-baseline")->isChecked());
}

void MainWindow::toggleHiding()
{
    const bool hides = action("hide-others")->isChecked();
    if (hides && m_filter->isHidden()) {
        action("show-filter")->setChecked(true);
        toggleFilter();
    }
    m_filter->setHidesOthers(hides);
}

void MainWindow::hideOthers()
{
    const bool hides = m_filter->hidesOthers();
    action("hide-others")->setChecked(hides);
    QSet<quint32> hidden;
    if (hides) {
        const KWDocument &document = m_session.document();
        for (const KWTaskInfo *task : document.taskList())
            hidden.insert(task->ID);
        for (const quint32 found : m_filter->found())
            for (const KWTaskInfo *task = document.getTaskInfoByID(found); task && hidden.remove(task->ID);
                 task = document.getTaskInfoByID(task->ParentID))
                continue;
    }
    if (!hides && !m_model->isFiltered())
        return;
    const QVector<quint32> ids = chosen();
    m_model->hide(hidden);
    if (chosen().isEmpty())
        m_table->select(ids);
    updateState();
}

// Nothing of a plan is opened unless the user asks for it, and then only what cannot run anything.
void MainWindow::openLink()
{
    const KWTaskInfo *task = m_session.document().getTaskInfoByID(m_table->currentTask());
    QStringList addresses;
    for (int i = 0; task && i < task->hyperlinks.count(); ++i)
        addresses.append(task->hyperlinks.getAt(i)->address.trimmed());
    if (addresses.isEmpty()) {
        tellRefusal(tr("the task has no hyperlink"), tr("the column of hyperlinks takes addresses"));
        return;
    }
    QString address = addresses.first();
    if (addresses.size() > 1) {
        bool ok = false;
        address = QInputDialog::getItem(this, tr("Open link"), tr("Address:"), addresses, 0, false, &ok);
        if (!ok)
            return;
    }
    const QUrl url = weblink::openable(address);
    if (url.isEmpty())
        tellRefusal(tr("%1 is not opened").arg(quoted(address)),
                    tr("only pages (http, https, ftp) and mail addresses are"));
    else if (m_open(url))
        m_note->say(tr("Opened %1.").arg(url.toDisplayString()));
    else
        tellRefusal(tr("no program here opens %1").arg(quoted(url.toDisplayString())), QString());
}
