// Plans that are opened, saved and left.
#include "edits/planreasons.h"
#include "mainwindow.h"
#include "quoted.h"
#include "settings/kwrecentfilemanager.h"
#include "views/notebar.h"
#include "views/planchart.h"
#include "views/plantable.h"
#include <QAction>
#include <QApplication>
#include <QFileInfo>
#include <QMenu>

bool MainWindow::openFile(const QString &path)
{
    m_chart->leaveDrag();
    QString error;
    bool isOpen = false;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    watch(tr("Opening %1…").arg(QFileInfo(path).fileName()), Busy::Stays,
          [&] { isOpen = m_session.open(path, error); });
    QApplication::restoreOverrideCursor();
    if (!isOpen) {
        if (error.isEmpty())
            tellRefusal(tr("cancelled: the plan that was open stays"), QString());
        else
            m_note->say(error, NoteBar::Refused); // begins with the name of the file, as it is written
        return false;
    }
    addRecent(path);
    const int early = planreasons::earlyTaskCount(m_session.document());
    if (m_session.tasksWithoutStart() > 0)
        m_note->say(tr("%1 tasks had no start and were scheduled.").arg(m_session.tasksWithoutStart()));
    else if (early > 0)
        m_note->say(early == 1 ? tr("One task starts before a task that it waits for ends.")
                               : tr("%1 tasks start before a task that they wait for ends.").arg(early),
                    NoteBar::Told, tr("Schedule"), [this] { schedule(); });
    if (!m_session.otherUser().isEmpty())
        m_note->say(tr("The plan is also open in %1: whoever saves last wins.").arg(m_session.otherUser()),
                    NoteBar::Refused);
    return true;
}

void MainWindow::watch(const QString &what, Busy::Plan plan, const std::function<void()> &work)
{
    Busy busy(this, what, plan);
    const Session::Hold hold(m_session);
    busy.watch(work);
}

void MainWindow::startAnew()
{
    m_session.startAnew();
    m_note->say(
        tr("Three tasks to try things on: type over a name, drag a bar, draw from one bar to another. "
           "Ctrl+Shift+P finds every command."));
}

void MainWindow::offerCopies()
{
    for (const recovery::Copy &copy : recovery::abandoned()) {
        const QMessageBox::StandardButton answer =
            m_ask(tr("%1 was open when the program ended without closing it.").arg(quoted(copy.name)),
                  tr("There is a copy of %1, with what had not been saved. Open it? Discard takes it away, "
                     "Cancel keeps it for the next start.")
                          .arg(copy.when.toString(QStringLiteral("yyyy-MM-dd HH:mm"))) +
                      (copy.seen.wasWrittenSince(copy.original)
                           ? QLatin1Char(' ') + tr("The file itself was written since it was opened.")
                           : QString()),
                  QMessageBox::Open | QMessageBox::Discard | QMessageBox::Cancel);
        if (answer == QMessageBox::Discard)
            recovery::discard(copy);
        if (answer != QMessageBox::Open)
            continue;
        // Another plan that is open stays in its window, and so does what was edited.
        const QString &shown = m_session.source();
        if (!m_session.isModified() && (shown.isEmpty() || shown == copy.original)) {
            openCopy(copy);
        } else {
            auto *window = new MainWindow;
            window->show();
            window->openCopy(copy);
        }
    }
}

void MainWindow::openCopy(const recovery::Copy &copy)
{
    QString error;
    bool isOpen = false;
    watch(tr("Opening %1…").arg(copy.name), Busy::Stays, [&] { isOpen = m_session.openCopy(copy, error); });
    if (!isOpen)
        tellRefusal(error.isEmpty() ? tr("cancelled: the copy is kept") : error, QString());
    else
        m_note->say(copy.original.isEmpty() ? tr("This is the copy of a plan that was never saved.")
                    : m_session.wasChangedMeanwhile()
                        ? tr("This is the copy. Its file was written by another program since.")
                        : tr("This is the copy. Saving it replaces the plan's own file."));
}

void MainWindow::newPlan()
{
    if (mayLeave())
        startAnew();
}

bool MainWindow::mayLeave()
{
    m_chart->leaveDrag();
    m_table->finishEditing();
    if (!m_session.isModified())
        return true;
    switch (m_ask(tr("Save the changes to %1?").arg(quoted(m_session.name())), QString(),
                  QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel)) {
    case QMessageBox::Save:
        save();
        return !m_session.isModified();
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

void MainWindow::save()
{
    if (m_session.path().isEmpty()) {
        saveAs();
        return;
    }
    if (m_session.wasChangedMeanwhile() &&
        m_ask(tr("%1 was changed by another program since it was opened.").arg(quoted(m_session.name())),
              tr("Saving replaces what was written there."),
              QMessageBox::Save | QMessageBox::Cancel) != QMessageBox::Save)
        return;
    saveTo(m_session.path());
}

bool MainWindow::saveTo(const QString &path)
{
    m_table->finishEditing();
    QString error;
    if (!m_session.save(path, error)) {
        tellRefusal(error, QString());
        return false;
    }
    addRecent(path);
    m_note->say(tr("Saved."));
    QTimer::singleShot(2500, m_note, [this] {
        if (m_note->text() == tr("Saved."))
            m_note->hide();
    });
    return true;
}

void MainWindow::checkFile()
{
    if (m_hasAskedAboutFile || !m_session.wasChangedMeanwhile())
        return;
    m_hasAskedAboutFile = true;
    m_note->say(
        tr("%1 was changed by another program.").arg(quoted(m_session.name())), NoteBar::Refused,
        tr("Open it again"), [this] { openFile(m_session.path()); }, tr("Keep mine"),
        [this] { m_session.acceptChangeMeanwhile(); });
}

void MainWindow::addRecent(const QString &path)
{
    KWRecentFileManager recent;
    recent.load();
    recent.addFile(QFileInfo(path).absoluteFilePath());
    recent.save();
}

void MainWindow::fillRecent()
{
    m_recent->clear();
    KWRecentFileManager recent;
    recent.load();
    for (const QString &path : recent.recentFiles()) {
        const QFileInfo info(path);
        QAction *action = m_recent->addAction(QStringLiteral("%1   (%2)").arg(info.fileName(), info.path()));
        action->setEnabled(info.exists());
        connect(action, &QAction::triggered, this, [this, path] {
            if (mayLeave())
                openFile(path);
        });
    }
    if (m_recent->isEmpty())
        m_recent->addAction(tr("None yet"))->setEnabled(false);
}
