#include "mainwindow.h"
#include "actions/actiontable.h"
#include "datetext.h"
#include "edits/planreasons.h"
#include "export/ganttpdfexport.h"
#include "kwfilepathmanager.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include "schedule/kwtaskcollection.h"
#include "settings/kwrecentfilemanager.h"
#include "views/celldelegate.h"
#include "views/findingspanel.h"
#include "views/icons.h"
#include "views/notebar.h"
#include "views/planchart.h"
#include "views/planmodel.h"
#include "views/plantable.h"
#include "views/reasonspanel.h"
#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QScrollBar>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

constexpr int copyMilliseconds = 60 * 1000;
constexpr int mostNamed = 3; // tasks in a sentence

QString quoted(const QString &name)
{
    return QStringLiteral("“%1”").arg(name.simplified());
}
}

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_picture(m_session)
    , m_model(new PlanModel(m_session, this))
    , m_table(new PlanTable(m_session, *m_model, m_picture))
    , m_chart(new PlanChart(m_session, *m_model, m_picture))
    , m_splitter(new QSplitter)
    , m_note(new NoteBar)
    , m_reasons(new ReasonsPanel(m_session, this))
    , m_findings(new FindingsPanel(this))
    , m_status(new QLabel)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAcceptDrops(true);
    m_ask = [this](const QString &text, const QString &more, QMessageBox::StandardButtons buttons) {
        QMessageBox box(QMessageBox::Question, tr("kwgantt"), text, buttons, this);
        box.setInformativeText(more);
        return QMessageBox::StandardButton(box.exec());
    };
    makeLayout();
    makeActions();
    connect(&m_session, &Session::stateChanged, this, &MainWindow::updateState);
    connect(&m_session, &Session::replaced, this, &MainWindow::showPlan);
    connect(m_model, &PlanModel::entered, this, [this] {
        if (m_model->lastOutcome().isDone)
            tellOutcome(m_model->lastOutcome()); // a refusal is told in the cell
    });
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &MainWindow::updateState);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] {
        const quint32 id = m_table->currentTask();
        m_session.document().taskCollection()->setTaskInfoActive(m_session.document().getTaskInfoByID(id));
        m_reasons->explain(id);
        m_chart->viewport()->update();
        m_table->viewport()->update();
    });
    connect(m_table, &PlanTable::foldToggled, this, &MainWindow::toggleFold);
    connect(m_chart, &PlanChart::taskPressed, this, [this](quint32 id, Qt::KeyboardModifiers modifiers) {
        const int row = m_model->rowOf(id);
        if (modifiers & (Qt::ControlModifier | Qt::ShiftModifier))
            m_table->selectionModel()->setCurrentIndex(
                m_model->index(row, qMax(0, m_table->currentIndex().column())),
                QItemSelectionModel::Toggle | QItemSelectionModel::Rows);
        else if (m_table->currentTask() != id || m_table->selectedTasks().size() != 1)
            m_table->selectRow(row);
    });
    connect(m_chart, &PlanChart::taskDoubleClicked, this, [this](quint32 id) {
        m_table->selectRow(m_model->rowOf(id), m_model->columnOf(cellinput::nameType));
        editCell();
    });
    connect(m_chart, &PlanChart::dragged, this,
            [this](const QString &what, const EditAnswer &answer) { tellAnswer(what, answer, true); });
    connect(m_chart, &PlanChart::refused, this, &MainWindow::tellRefusal);
    connect(m_reasons, &ReasonsPanel::jumped, this, &MainWindow::jumpTo);
    connect(m_reasons, &QDockWidget::visibilityChanged, this,
            [this] { action("show-reasons")->setChecked(!m_reasons->isHidden()); });
    connect(m_findings, &FindingsPanel::jumped, this, [this](int number, bool isOfFile) {
        // A file may have lines that are no task.
        const int place = isOfFile ? m_session.plan().imported.rows.indexOf(number) : -1;
        if (const KWTaskInfo *task = m_session.document().getTaskInfoAt(place < 0 ? number - 1 : place))
            jumpTo(task->ID);
    });
    connect(&m_session, &Session::edited, this, [this] { m_reasons->explain(m_table->currentTask()); });
    connect(&m_copyTime, &QTimer::timeout, this, [this] {
        if (m_session.isModified())
            m_session.keepCopy();
    });
    m_copyTime.start(copyMilliseconds);
    restoreSettings();
    updateTheme();
    startAnew();
}

MainWindow::~MainWindow()
{
    // They look at the session, which goes before the window's children.
    m_session.disconnect();
    m_table->selectionModel()->disconnect(this);
    m_reasons->disconnect(this);
    delete centralWidget();
    delete m_reasons;
    delete m_model;
}

// ---- The window -------------------------------------------------------------------------------------------

void MainWindow::makeLayout()
{
    m_splitter->addWidget(m_table);
    m_splitter->addWidget(m_chart);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setHandleWidth(5);
    m_splitter->setChildrenCollapsible(true);
    auto *middle = new QWidget;
    auto *layout = new QVBoxLayout(middle);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_splitter, 1);
    layout->addWidget(m_note);
    setCentralWidget(middle);
    addDockWidget(Qt::RightDockWidgetArea, m_reasons);
    addDockWidget(Qt::BottomDockWidgetArea, m_findings);
    statusBar()->addWidget(m_status, 1);
    m_status->setAccessibleName(tr("State of the plan"));
    m_chart->setKeyReceiver(m_table);
    // One bar for both.
    connect(m_chart->verticalScrollBar(), &QScrollBar::valueChanged, m_table->verticalScrollBar(),
            &QScrollBar::setValue);
    connect(m_table->verticalScrollBar(), &QScrollBar::valueChanged, m_chart->verticalScrollBar(),
            &QScrollBar::setValue);
    resize(1280, 760);
    m_splitter->setSizes({598, 682});
}

void MainWindow::makeActions()
{
    auto *toolBar = addToolBar(tr("Tools"));
    toolBar->setObjectName(QStringLiteral("tools"));
    toolBar->setMovable(false);
    QMenu *menus[actiontable::menuCount];
    for (int menu = 0; menu < actiontable::menuCount; ++menu)
        menus[menu] = menuBar()->addMenu(actiontable::menuText(actiontable::Menu(menu)));
    const auto separator = [](QWidget *widget) {
        auto *line = new QAction(widget);
        line->setSeparator(true);
        widget->addAction(line);
    };
    int lastOfToolBar = -1;
    for (const actiontable::Row &row : actiontable::rows()) {
        auto *action = new QAction(actiontable::text(row), this);
        action->setObjectName(QLatin1String(row.name));
        QList<QKeySequence> keys;
        for (const QString &key :
             QString::fromLatin1(row.keys).split(QLatin1String("; "), Qt::SkipEmptyParts))
            keys.append(QKeySequence(key));
        action->setShortcuts(keys);
        action->setCheckable(row.flags & actiontable::IsSwitch);
        action->setStatusTip(actiontable::help(row));
        action->setToolTip(QStringLiteral("%1 (%2)").arg(actiontable::help(row),
                                                         keys.value(0).toString(QKeySequence::NativeText)));
        connect(action, &QAction::triggered, this, row.run);
        if (row.flags & actiontable::BeginsGroup)
            menus[row.menu]->addSeparator();
        menus[row.menu]->addAction(action);
        addAction(action);
        if (row.flags & actiontable::InContext) {
            for (QWidget *view : {static_cast<QWidget *>(m_table), static_cast<QWidget *>(m_chart)}) {
                if (row.flags & actiontable::BeginsGroup && !view->actions().isEmpty())
                    separator(view);
                view->addAction(action);
            }
        }
        if (row.flags & actiontable::InToolBar) {
            if (lastOfToolBar >= 0 && lastOfToolBar != row.menu)
                toolBar->addSeparator();
            lastOfToolBar = row.menu;
            action->setIconVisibleInMenu(false);
            toolBar->addAction(action);
        }
        if (QLatin1String(row.name) == QLatin1String("open")) {
            m_recent = menus[row.menu]->addMenu(tr("Open &recent"));
            connect(m_recent, &QMenu::aboutToShow, this, &MainWindow::fillRecent);
        }
    }
    for (const char *name : {"show-critical", "show-baseline", "show-slack", "show-links", "show-reasons"})
        action(name)->setChecked(true);
}

QAction *MainWindow::action(const char *name) const
{
    return findChild<QAction *>(QLatin1String(name), Qt::FindDirectChildrenOnly);
}

void MainWindow::updateTheme()
{
    constexpr int middleLightness = 128;
    const bool isDark = QApplication::palette().window().color().lightness() < middleLightness;
    m_picture.options.theme = isDark ? KWExportOptions::Dark : KWExportOptions::Light;
    for (const actiontable::Row &row : actiontable::rows())
        if (row.flags & actiontable::InToolBar)
            action(row.name)->setIcon(icons::of(QLatin1String(row.name), QApplication::palette()));
}

void MainWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_table) {
        updateTheme();
        update();
    }
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        checkFile();
}

void MainWindow::showPlan()
{
    m_picture.restart();
    m_note->hide();
    m_hasAskedAboutFile = false;
    m_findings->list(m_session.findings());
    m_finish = m_session.document().getMaxFinishSecs();
    if (m_session.document().AutoZoom)
        m_chart->fit();
    m_table->verticalScrollBar()->setValue(0);
    m_table->horizontalScrollBar()->setValue(0);
    m_table->selectRow(0, qMax(0, m_model->columnOf(cellinput::nameType)));
    m_reasons->explain(m_table->currentTask());
    updateState();
}

void MainWindow::updateState()
{
    setWindowTitle(tr("%1[*] – kwgantt").arg(m_session.name()));
    setWindowModified(m_session.isModified());
    const int tasks = m_table->selectionModel() ? chosen().size() : 0;
    const QString undoName = m_session.undoName(), redoName = m_session.redoName();
    for (const actiontable::Row &row : actiontable::rows()) {
        QAction *action = this->action(row.name);
        if (row.flags & actiontable::NeedsTasks)
            action->setEnabled(tasks >= 1);
        if (row.flags & actiontable::NeedsTwo)
            action->setEnabled(tasks >= 2);
        if (row.flags & actiontable::NeedsUndo)
            action->setEnabled(!undoName.isEmpty());
        if (row.flags & actiontable::NeedsRedo)
            action->setEnabled(!redoName.isEmpty());
    }
    action("undo")->setText(undoName.isEmpty() ? tr("&Undo") : tr("&Undo %1").arg(quoted(undoName)));
    action("redo")->setText(redoName.isEmpty() ? tr("&Redo") : tr("&Redo %1").arg(quoted(redoName)));

    KWDocument &document = m_session.document();
    QStringList parts{document.taskCount() == 1 ? tr("1 task") : tr("%1 tasks").arg(document.taskCount())};
    const quint32 finish = document.taskCollection()->getMaxTaskFinishSecs();
    if (document.taskCount() > 0 && finish != 0)
        parts.append(tr("ends %1").arg(datetext::dateText(
            KWTaskInfo::showDateTime(&document, finish, false).date(), datetext::Weekday | datetext::Year)));
    if (tasks > 1)
        parts.append(tr("%1 chosen").arg(tasks));
    if (!m_session.otherUser().isEmpty())
        parts.append(tr("also open in %1").arg(m_session.otherUser()));
    m_status->setText(parts.join(QStringLiteral("   ·   ")));
}

void MainWindow::restoreSettings()
{
    const QSettings settings(KWFilePathManager::configPath(QStringLiteral("desktop.ini")),
                             QSettings::IniFormat);
    restoreGeometry(settings.value(QStringLiteral("geometry")).toByteArray());
    restoreState(settings.value(QStringLiteral("docks")).toByteArray());
    m_splitter->restoreState(settings.value(QStringLiteral("splitter")).toByteArray());
    for (const char *name : {"show-critical", "show-baseline", "show-slack", "show-links"})
        action(name)->setChecked(settings.value(QLatin1String(name), true).toBool());
    m_picture.options.labels = KWExportOptions::Labels(
        qBound(0, settings.value(QStringLiteral("labels"), int(KWExportOptions::ResourceLabels)).toInt(), 3));
    m_model->setShowsPredecessors(settings.value(QStringLiteral("predecessors"), true).toBool());
    applySwitches();
}

void MainWindow::saveSettings()
{
    QSettings settings(KWFilePathManager::configPath(QStringLiteral("desktop.ini")), QSettings::IniFormat);
    settings.setValue(QStringLiteral("geometry"), saveGeometry());
    settings.setValue(QStringLiteral("docks"), saveState());
    settings.setValue(QStringLiteral("splitter"), m_splitter->saveState());
    settings.setValue(QStringLiteral("predecessors"), m_model->showsPredecessors());
    settings.setValue(QStringLiteral("labels"), int(m_picture.options.labels));
    for (const char *name : {"show-critical", "show-baseline", "show-slack", "show-links"})
        settings.setValue(QLatin1String(name), action(name)->isChecked());
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!mayLeave()) {
        event->ignore();
        return;
    }
    saveSettings();
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent *event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (!urls.isEmpty() && mayLeave())
        openFile(urls.first().toLocalFile());
}

// ---- Telling ----------------------------------------------------------------------------------------------

void MainWindow::tellRefusal(const QString &what, const QString &hint)
{
    QString text = what;
    if (!text.isEmpty())
        text[0] = text.at(0).toUpper();
    m_note->say(hint.isEmpty() ? text : tr("%1: %2").arg(text, hint), NoteBar::Refused);
}

// "“Test” moves to Tue 20 Jan, pushed by “Build”; “Handover” …; 3 more. The project ends Fri 23 Jan."
QString MainWindow::movesText(const EditAnswer &answer) const
{
    KWDocument &document = m_session.document();
    const auto nameOf = [&](quint32 id) {
        const KWTaskInfo *task = document.getTaskInfoByID(id);
        return task ? quoted(task->Name) : QString();
    };
    const auto dateOf = [&](quint32 secs, bool isStart) {
        return datetext::dateText(KWTaskInfo::showDateTime(&document, secs, isStart).date(),
                                  datetext::Weekday);
    };
    QStringList parts;
    int others = 0;
    for (const EditMove &move : answer.moves) {
        if (move.cause != EditMove::Pushed && move.cause != EditMove::WithSummary)
            continue;
        if (++others > mostNamed)
            continue;
        QString text = tr("%1 moves to %2").arg(nameOf(move.task), dateOf(move.start, true));
        if (move.cause == EditMove::Pushed)
            text += tr(", pushed by %1").arg(nameOf(move.pushedBy));
        else
            text += tr(" with its summary");
        parts.append(text);
    }
    if (others > mostNamed)
        parts.append(tr("%1 more move").arg(others - mostNamed));
    QString text = parts.join(QLatin1String("; "));
    const quint32 finish = document.getMaxFinishSecs();
    if (finish != m_finish && m_finish != 0 && finish != 0 && !answer.moves.isEmpty()) {
        const QString before = dateOf(m_finish, false), after = dateOf(finish, false);
        if (before != after)
            text += (text.isEmpty() ? QString() : QStringLiteral(". ")) +
                    tr("The project ends %1 (before: %2)").arg(after, before);
    }
    for (const EditLoss &loss : answer.losses) {
        if (!text.isEmpty())
            text += QLatin1String(". ");
        switch (loss.kind) {
        case EditLoss::Assignment:
            text += tr("%1 loses its resource %2").arg(nameOf(loss.task), quoted(loss.name));
            break;
        case EditLoss::Baseline:
            text += tr("%1 is a summary now and loses its baseline").arg(nameOf(loss.task));
            break;
        case EditLoss::Link:
            text += tr("%1 does not wait for %2 any more").arg(nameOf(loss.task), nameOf(loss.other));
            break;
        }
    }
    return text;
}

// Says what else happened; an edit that did only what was asked needs no words unless `always`.
void MainWindow::tellAnswer(const QString &what, const EditAnswer &answer, bool always)
{
    const QString moves = movesText(answer);
    m_finish = m_session.document().getMaxFinishSecs();
    QSet<quint32> moved;
    for (const EditMove &move : answer.moves)
        if (move.cause != EditMove::Edited)
            moved.insert(move.task);
    m_table->flash(moved);
    m_chart->flash(moved);
    if (moves.isEmpty() && !always) {
        m_note->hide();
        return;
    }
    QString text = what;
    if (!moves.isEmpty())
        text += (text.isEmpty() ? QString() : QStringLiteral(". ")) + moves;
    m_note->say(text + QLatin1Char('.'), NoteBar::Told, tr("Undo"), [this] { undo(); });
}

void MainWindow::tellOutcome(const cellinput::Outcome &outcome)
{
    if (!outcome.isDone)
        tellRefusal(outcome.what, outcome.hint);
    else
        tellAnswer(outcome.note, outcome.answer, !outcome.note.isEmpty());
}

EditAnswer MainWindow::perform(const QString &name, const Session::Change &change, bool selects)
{
    const EditAnswer answer = m_session.edit(name, change);
    if (!answer.isDone()) {
        tellRefusal(answer.sentence(), answer.hint());
        return answer;
    }
    if (selects && !answer.tasks.isEmpty())
        m_table->select(answer.tasks);
    tellAnswer(QString(), answer, false);
    return answer;
}

QVector<quint32> MainWindow::chosen() const
{
    return m_table->selectedTasks();
}

// ---- Files ------------------------------------------------------------------------------------------------

bool MainWindow::openFile(const QString &path)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QString error;
    const bool isOpen = m_session.open(path, error);
    QApplication::restoreOverrideCursor();
    if (!isOpen) {
        tellRefusal(error, QString());
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
                      .arg(copy.when.toString(QStringLiteral("yyyy-MM-dd HH:mm"))),
                  QMessageBox::Open | QMessageBox::Discard | QMessageBox::Cancel);
        if (answer == QMessageBox::Discard)
            recovery::discard(copy);
        if (answer != QMessageBox::Open)
            continue;
        QString error;
        if (!m_session.openCopy(copy, error))
            tellRefusal(error, QString());
        else
            m_note->say(tr("This is the copy. Saving it replaces the plan's own file."));
        return;
    }
}

void MainWindow::newPlan()
{
    if (mayLeave())
        startAnew();
}

bool MainWindow::mayLeave()
{
    m_chart->leaveDrag();
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

// ---- Steps ------------------------------------------------------------------------------------------------

void MainWindow::undo()
{
    const QVector<quint32> ids = chosen();
    m_session.undo();
    m_finish = m_session.document().getMaxFinishSecs();
    m_note->hide();
    if (chosen().isEmpty())
        m_table->select(ids);
}

void MainWindow::redo()
{
    m_session.redo();
    m_finish = m_session.document().getMaxFinishSecs();
    m_note->hide();
}

void MainWindow::insert(PlanEdits::Place place)
{
    const quint32 at = m_table->currentTask();
    const EditAnswer answer = perform(
        tr("Insert task"), [&](PlanEdits &edits) { return at ? edits.insert(at, place) : edits.add(); },
        true);
    if (answer.isDone() && m_model->rowOf(answer.tasks.value(0)) >= 0) {
        m_table->selectRow(m_model->rowOf(answer.tasks.first()), m_model->columnOf(cellinput::nameType));
        editCell();
    }
}

void MainWindow::insertAbove()
{
    insert(PlanEdits::Above);
}

void MainWindow::insertBelow()
{
    insert(PlanEdits::Below);
}

void MainWindow::insertChild()
{
    const quint32 at = m_table->currentTask();
    const KWTaskInfo *task = m_session.document().getTaskInfoByID(at);
    if (task && task->IsToggler)
        toggleFold(at);
    insert(PlanEdits::LastChild);
}

void MainWindow::removeTasks()
{
    const int row = m_table->currentIndex().row();
    const QVector<quint32> ids = chosen();
    if (perform(tr("Delete"), [&](PlanEdits &edits) { return edits.remove(ids); }).isDone())
        m_table->selectRow(row);
}

void MainWindow::duplicate()
{
    const QVector<quint32> ids = chosen();
    if (ids.isEmpty())
        return;
    perform(
        tr("Duplicate"),
        [&](PlanEdits &edits) {
            return edits.copyBranches(m_session.document(), ids, ids.last(), PlanEdits::Below);
        },
        true);
}

void MainWindow::indent()
{
    const QVector<quint32> ids = chosen();
    perform(tr("Indent"), [&](PlanEdits &edits) { return edits.indent(ids); });
    m_table->select(ids);
}

void MainWindow::outdent()
{
    const QVector<quint32> ids = chosen();
    perform(tr("Outdent"), [&](PlanEdits &edits) { return edits.outdent(ids); });
    m_table->select(ids);
}

void MainWindow::moveUp()
{
    const QVector<quint32> ids = chosen();
    perform(tr("Move up"), [&](PlanEdits &edits) {
        EditAnswer all;
        for (const quint32 id : ids)
            if (all.isDone())
                Session::join(all, edits.move(id, -1));
        return all;
    });
    m_table->select(ids);
}

void MainWindow::moveDown()
{
    const QVector<quint32> ids = chosen();
    perform(tr("Move down"), [&](PlanEdits &edits) {
        EditAnswer all;
        for (int i = ids.size() - 1; i >= 0; --i)
            if (all.isDone())
                Session::join(all, edits.move(ids.at(i), 1));
        return all;
    });
    m_table->select(ids);
}

void MainWindow::toggleFold(quint32 id)
{
    const KWTaskInfo *task = m_session.document().getTaskInfoByID(id);
    if (!task)
        return;
    const bool isFolded = task->IsToggler;
    perform(isFolded ? tr("Unfold") : tr("Fold"),
            [&](PlanEdits &edits) { return isFolded ? edits.expand({id}) : edits.collapse({id}); });
    if (m_table->currentTask() == 0)
        m_table->select({id});
}

void MainWindow::fold()
{
    toggleFold(m_table->currentTask());
}

void MainWindow::foldEverything(bool isFolded)
{
    QVector<quint32> ids;
    for (const KWTaskInfo *task : m_session.document().taskList())
        if (task->isParent() && task->IsToggler != isFolded)
            ids.append(task->ID);
    if (!ids.isEmpty())
        perform(isFolded ? tr("Fold all") : tr("Unfold all"),
                [&](PlanEdits &edits) { return isFolded ? edits.collapse(ids) : edits.expand(ids); });
}

void MainWindow::foldAll()
{
    foldEverything(true);
}

void MainWindow::unfoldAll()
{
    foldEverything(false);
}

void MainWindow::link()
{
    const QVector<quint32> ids = chosen();
    perform(tr("Link tasks"), [&](PlanEdits &edits) { return edits.link(ids); });
}

void MainWindow::unlink()
{
    const QVector<quint32> ids = chosen();
    perform(tr("Unlink tasks"), [&](PlanEdits &edits) {
        if (ids.size() == 1)
            return edits.unlinkAll(ids);
        // Between those that are linked at all.
        EditAnswer all;
        bool isAny = false;
        for (int i = 1; i < ids.size(); ++i) {
            const KWTaskInfo *task = m_session.document().getTaskInfoByID(ids.at(i));
            if (!task || !task->Predecessors.contains(ids.at(i - 1)))
                continue;
            isAny = true;
            Session::join(all, edits.unlink({ids.at(i - 1), ids.at(i)}));
        }
        return isAny ? all : edits.unlink(ids);
    });
}

void MainWindow::milestone()
{
    const QVector<quint32> ids = chosen();
    const KWTaskInfo *first = m_session.document().getTaskInfoByID(ids.value(0));
    TaskValues values;
    values.isMilestone = first && !first->Milestone;
    perform(*values.isMilestone ? tr("Make milestone") : tr("Make task"),
            [&](PlanEdits &edits) { return edits.set(ids, values); });
}

void MainWindow::done()
{
    const QVector<quint32> ids = chosen();
    TaskValues values;
    values.percent = 1;
    perform(tr("Done"), [&](PlanEdits &edits) { return edits.set(ids, values); });
}

void MainWindow::schedule()
{
    const EditAnswer answer =
        m_session.edit(tr("Schedule"), [](PlanEdits &edits) { return edits.schedule(PlanEdits::AsGiven); });
    if (!answer.isDone())
        tellRefusal(answer.sentence(), answer.hint());
    else if (answer.moves.isEmpty())
        m_note->say(tr("Nothing moves: every task starts when those it waits for have ended."));
    else
        tellAnswer(tr("%1 tasks moved").arg(answer.moves.size()), answer, true);
}

void MainWindow::setBaseline()
{
    const QVector<quint32> ids = chosen().size() > 1 ? chosen() : QVector<quint32>();
    if (perform(tr("Set baseline"), [&](PlanEdits &edits) { return edits.setBaseline(ids); }).isDone())
        m_note->say(ids.isEmpty() ? tr("The dates of all tasks are the baseline now.")
                                  : tr("The dates of %1 tasks are their baseline now.").arg(ids.size()),
                    NoteBar::Told, tr("Undo"), [this] { undo(); });
}

void MainWindow::clearBaseline()
{
    const QVector<quint32> ids = chosen().size() > 1 ? chosen() : QVector<quint32>();
    perform(tr("Clear baseline"), [&](PlanEdits &edits) { return edits.clearBaseline(ids); });
}

// ---- Going around -----------------------------------------------------------------------------------------

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

void MainWindow::closeWindow()
{
    close();
}

void MainWindow::quit()
{
    QApplication::closeAllWindows();
}

void MainWindow::newWindow()
{
    (new MainWindow)->show();
}
