#include "mainwindow.h"
#include "actions/actiontable.h"
#include "datetext.h"
#include "dialogs/fitting.h"
#include "kwfilepathmanager.h"
#include "model/kwtaskinfo.h"
#include "quoted.h"
#include "schedule/kwtaskcollection.h"
#include "texts.h"
#include "views/baselinepanel.h"
#include "views/celldelegate.h"
#include "views/filterpanel.h"
#include "views/findingspanel.h"
#include "views/icons.h"
#include "views/notebar.h"
#include "views/planchart.h"
#include "views/planmodel.h"
#include "views/plantable.h"
#include "views/reasonspanel.h"
#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
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
    , m_filter(new FilterPanel(m_session, this))
    , m_baseline(new BaselinePanel(m_session, this))
    , m_status(new QLabel)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAcceptDrops(true);
    m_ask = [this](const QString &text, const QString &more, QMessageBox::StandardButtons buttons) {
        QMessageBox box(QMessageBox::Question, tr("kwgantt"), text, buttons, this);
        box.setTextFormat(Qt::PlainText); // names of files are no markup
        box.setInformativeText(more);
        return QMessageBox::StandardButton(box.exec());
    };
    m_open = [](const QUrl &url) { return QDesktopServices::openUrl(url); };
    m_picture.options.language = texts::chosen();
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
    connect(m_table, &PlanTable::refused, this, &MainWindow::tellRefusal);
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
    connect(m_filter, &FilterPanel::jumped, this, &MainWindow::jumpTo);
    connect(m_filter, &QDockWidget::visibilityChanged, this,
            [this] { action("show-filter")->setChecked(!m_filter->isHidden()); });
    connect(m_baseline, &BaselinePanel::jumped, this, &MainWindow::jumpTo);
    connect(m_baseline, &QDockWidget::visibilityChanged, this,
            [this] { action("compare-baseline")->setChecked(!m_baseline->isHidden()); });
    connect(m_filter, &FilterPanel::narrowed, this, &MainWindow::hideOthers);
    const auto drawRows = [this] {
        m_picture.options.onlyTasks = m_model->isFiltered();
        m_picture.options.tasks = m_model->isFiltered() ? m_model->tasks() : std::vector<quint32>();
    };
    connect(m_model, &QAbstractItemModel::rowsInserted, this, drawRows);
    connect(m_model, &QAbstractItemModel::rowsRemoved, this, drawRows);
    connect(m_model, &QAbstractItemModel::modelReset, this, drawRows);
    connect(m_model, &PlanModel::filtered, this, drawRows);
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
    setCopyInterval(copyMilliseconds);
    m_session.setWatcher([this](const QString &what, const std::function<void()> &work) {
        watch(what + QStringLiteral("…"), Busy::Changes, work);
    });
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
    m_filter->disconnect(this);
    m_baseline->disconnect(this);
    delete centralWidget();
    delete m_reasons;
    delete m_filter;
    delete m_baseline;
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
    addDockWidget(Qt::RightDockWidgetArea, m_filter);
    addDockWidget(Qt::BottomDockWidgetArea, m_findings);
    addDockWidget(Qt::BottomDockWidgetArea, m_baseline);
    statusBar()->addWidget(m_status, 1);
    m_status->setTextFormat(Qt::PlainText);
    m_status->setAccessibleName(tr("State of the plan"));
    m_chart->setKeyReceiver(m_table);
    // One bar for both.
    connect(m_chart->verticalScrollBar(), &QScrollBar::valueChanged, m_table->verticalScrollBar(),
            &QScrollBar::setValue);
    connect(m_table->verticalScrollBar(), &QScrollBar::valueChanged, m_chart->verticalScrollBar(),
            &QScrollBar::setValue);
    m_status->setMinimumWidth(1); // long texts are no reason for a wide window
    fitting::resize(*this, QSize(1280, 760));
    m_splitter->setSizes({width() * 48 / 100, width() * 52 / 100});
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
    m_note->colour(); // its own colours keep the window's from it
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
    m_filter->setHidesOthers(false);
    m_picture.restart();
    m_note->hide();
    m_hasAskedAboutFile = false;
    m_findings->list(m_session.findings());
    if (!m_findings->isHidden()) // the plan is what is looked at
        resizeDocks({m_findings}, {qMin(m_findings->wantedHeight(), height() / 4)}, Qt::Vertical);
    m_finish = m_session.document().getMaxFinishSecs();
    if (m_session.document().AutoZoom)
        m_chart->fit();
    m_table->verticalScrollBar()->setValue(0);
    m_table->horizontalScrollBar()->setValue(0);
    m_table->selectRow(0, qMax(0, m_model->columnOf(cellinput::nameType)));
    m_reasons->explain(m_table->currentTask());
    m_table->setFocus(); // keys go where the cursor is
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
    if (m_model->isFiltered())
        parts.append(tr("%1 of them shown").arg(m_model->taskRows()));
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
