// What a user does with keys and mouse in the real window, on a screen that is not there.
#include "actions/actiontable.h"
#include "baseline.h"
#include "chart/layout.h"
#include "desktop/hands.h"
#include "dialogs/busy.h"
#include "dialogs/calendardialog.h"
#include "dialogs/commandpalette.h"
#include "dialogs/pagesetupdialog.h"
#include "dialogs/previewdialog.h"
#include "dialogs/printout.h"
#include "dialogs/resourcesdialog.h"
#include "edit.h"
#include "edits/planreasons.h"
#include "explain.h"
#include "export/ganttpdfexport.h"
#include "export/planview.h"
#include "kwfilepathmanager.h"
#include "kwpxfile.h"
#include "styles/chartstyle.h"
#include "support/filesizelimit.h"
#include "support/folder.h"
#include "support/kwclock.h"
#include "views/baselinepanel.h"
#include "views/celldelegate.h"
#include "views/filterpanel.h"
#include "views/findingspanel.h"
#include "views/notebar.h"
#include "views/reasonspanel.h"
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QAction>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QClipboard>
#include <QDialog>
#include <QDirIterator>
#include <QMenu>
#include <QMimeData>
#include <QPrinter>
#include <QProcess>
#include <QScreen>
#include <QScrollBar>
#include <QSplitter>
#include <QTableWidget>
#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

constexpr int start = 2, finish = 3, length = 4, percent = 5, resources = 7, name = 1, waits = 24;

// The program's own edits on a plan of its own.
std::string programs(const QStringList &edits)
{
    Plan plan;
    editverbs::Outcome outcome;
    for (const QString &line : edits) {
        QStringList words;
        options::Fault fault;
        editline::split(line, words, fault);
        EXPECT_TRUE(editverbs::run(plan, words, fault, outcome))
            << line.toStdString() << fault.what.toStdString();
        kwpxfile::describe(plan);
    }
    return outlineOf(*plan.document);
}

// Design, Build and Test, each waiting for the one before it.
void makeChain(Hands &hands)
{
    hands.empty();
    for (const char *each : {"Design", "Build", "Test"})
        hands.enter(hands.window->model()->taskRows(), name, QLatin1String(each));
    for (const int row : {0, 1, 2})
        hands.enter(row, start, QStringLiteral("2026-01-05"));
    hands.enter(0, length, QStringLiteral("3d"));
    hands.enter(1, length, QStringLiteral("2d"));
    hands.enter(2, length, QStringLiteral("4d"));
    hands.key(Qt::Key_A, Qt::ControlModifier);
    hands.key(Qt::Key_L, Qt::ControlModifier);
    hands.window->chart()->fit();
}
}

TEST(Window, keysMakeTheProgramsPlan)
{
    Hands hands;
    hands.empty();
    const char *const names[] = {"Design", "Requirements", "Sketch", "Order parts", "Build",
                                 "Cut",    "Weld",         "Paint",  "Test",        "Handover"};
    // Names one after the other: the row for a new task is always the next.
    hands.go(0, name);
    for (const char *each : names) {
        hands.type(QLatin1String(each));
        hands.key(Qt::Key_Return);
    }
    hands.enter(0, start, QStringLiteral("2026-01-05"));
    hands.go(1, start); // across one row: start, past the finish, then duration and progress
    hands.type(QStringLiteral("2026-01-05"));
    hands.key(Qt::Key_Tab);
    hands.key(Qt::Key_Tab);
    hands.type(QStringLiteral("2d"));
    hands.key(Qt::Key_Tab);
    hands.type(QStringLiteral("100"));
    hands.key(Qt::Key_Return);
    hands.enter(2, length, QStringLiteral("3d"));
    hands.enter(9, length, QStringLiteral("0"));
    hands.enter(4, resources, QStringLiteral("Workshop[50%]; Crane"));
    const auto choose = [&](int first, int last) {
        hands.go(first, name);
        for (int row = first; row < last; ++row)
            hands.key(Qt::Key_Down, Qt::ShiftModifier);
    };
    choose(1, 2);
    hands.key(Qt::Key_Right, Qt::AltModifier);
    choose(5, 7);
    hands.key(Qt::Key_Right, Qt::AltModifier);
    choose(1, 3);
    hands.key(Qt::Key_L, Qt::ControlModifier);
    hands.enter(9, waits, QStringLiteral("9"));

    QStringList edits;
    for (const char *each : names)
        edits.append(
            QStringLiteral("add '%1'").arg(QLatin1String(each)).replace(QLatin1Char('\''), QLatin1Char('"')));
    edits << QStringLiteral("set 1 start=2026-01-05") << QStringLiteral("set 2 start=2026-01-05")
          << QStringLiteral("set 2 duration=2d") << QStringLiteral("set 2 percent=100")
          << QStringLiteral("set 3 duration=3d") << QStringLiteral("set 10 duration=0")
          << QStringLiteral("resource add Workshop") << QStringLiteral("assign 5 Workshop 50%")
          << QStringLiteral("resource add Crane") << QStringLiteral("assign 5 Crane")
          << QStringLiteral("indent 2 3") << QStringLiteral("indent 6 7 8") << QStringLiteral("link 2 3 4")
          << QStringLiteral("link 9 10");
    EXPECT_EQ(outlineOf(hands.document()), programs(edits));
}

TEST(Window, aWrongValueSaysWhatIsWrongAndKeepsTheText)
{
    Hands hands;
    makeChain(hands);
    const std::string before = hands.saved();
    const struct
    {
        int type;
        const char *text;
        const char *complaint;
    } cases[] = {{start, "soon", "is not a date"},          {finish, "2025-01-01", "before the start"},
                 {length, "3 blinks", "is not a duration"}, {percent, "120", "percentage"},
                 {resources, "Ann[lots]", "no resource"},   {waits, "2; 9", "'9' is no task"},
                 {waits, "3", "wait for each other"}};
    for (const auto &each : cases) {
        hands.enter(0, each.type, QLatin1String(each.text));
        EXPECT_NE(hands.window->table()->cells()->complaint().indexOf(QLatin1String(each.complaint)), -1)
            << each.text << hands.window->table()->cells()->complaint().toStdString();
        const auto *editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        ASSERT_TRUE(editor) << each.text;
        EXPECT_EQ(editor->text(), QLatin1String(each.text));
        hands.key(Qt::Key_Escape);
        EXPECT_EQ(hands.saved(), before) << each.text;
    }
}

TEST(Window, pastedLinesMakeTasksAndCopiesComeBack)
{
    Hands hands;
    makeChain(hands);
    QGuiApplication::clipboard()->setText(QStringLiteral("Phase\n  One\t2026-02-02\t\t2d\n  Two\nEnd"));
    hands.go(3, name);
    hands.key(Qt::Key_V, Qt::ControlModifier);
    ASSERT_EQ(hands.document().taskCount(), 7);
    EXPECT_EQ(hands.task(4).Level, 2);
    EXPECT_EQ(hands.task(3).Childs.size(), 2);
    EXPECT_EQ(hands.task(6).Level, 1);
    const int steps = hands.steps();
    // A branch goes with what is below it, and once more; a spreadsheet gets its rows.
    hands.go(3, name);
    hands.key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(QLatin1String("Phase\t")));
    hands.go(0, name);
    hands.key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(hands.document().taskCount(), 10);
    EXPECT_EQ(hands.task(0).Childs.size(), 2);
    hands.key(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(hands.document().taskCount(), 13);
    EXPECT_EQ(hands.steps(), steps + 2);
    hands.key(Qt::Key_Z, Qt::ControlModifier);
    hands.key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(hands.document().taskCount(), 7);
}

TEST(Window, everyDragIsOneStepThatUndoTakesBackWhole)
{
    Hands hands;
    makeChain(hands);
    PlanChart &chart = *hands.window->chart();
    const double day = chart.pixelsOfDay();
    const struct
    {
        const char *what;
        std::function<std::pair<QPointF, QPointF>()> way;
        const char *hint;
        std::function<bool()> isRight;
    } cases[] = {
        {"move",
         [&] {
             const QPointF at = chart.barRect(hands.id(0)).center();
             return std::make_pair(at, at + QPointF(2 * day, 1));
         },
         "pushes",
         [&] {
             return hands.task(0).Start == 1767571200u + 2 * 86400 &&
                    hands.task(2).Start > hands.task(1).Start;
         }},
        {"move before the chart's beginning",
         [&] {
             const QPointF at = chart.barRect(hands.id(0)).center();
             return std::make_pair(at, at - QPointF(14 * day, 1));
         },
         "Moved", [&] { return hands.task(0).Start == 1767571200u - 14 * 86400; }},
        {"stretch",
         [&] {
             const QRectF bar = chart.barRect(hands.id(0));
             const QPointF at(bar.right() - 1, bar.center().y());
             return std::make_pair(at, at + QPointF(day, 0));
         },
         "lasts 4d", [&] { return hands.task(0).Finish == 1767571200u + 4 * 86400; }},
        {"percent",
         [&] {
             const QRectF bar = chart.barRect(hands.id(2));
             const QPointF at(bar.left() + 2, bar.bottom() - 2);
             return std::make_pair(at, at + QPointF(bar.width() / 2 - 2, 0));
         },
         "50% done", [&] { return hands.task(2).Percent == 0.5; }},
        {"link from the handle",
         [&] {
             hands.go(0, name);
             return std::make_pair(chart.handleOf(hands.id(0)), chart.barRect(hands.id(2)).center());
         },
         "waits for", [&] { return hands.task(2).Predecessors.size() == 2; }},
    };
    ASSERT_EQ(hands.task(0).Start % 86400, (1767571200u % 86400)) << "the zone of the test";
    for (const auto &each : cases) {
        const std::string before = hands.saved();
        const int steps = hands.steps();
        const double scrolled = chart.xOf(hands.task(1).Start);
        auto way = each.way();
        hands.drag(way.first, way.second, false);
        EXPECT_NE(chart.hint().indexOf(QLatin1String(each.hint)), -1)
            << each.what << ": " << chart.hint().toStdString();
        hands.key(Qt::Key_Escape);
        EXPECT_EQ(hands.saved(), before) << "Esc after " << each.what;
        EXPECT_EQ(hands.steps(), steps);
        EXPECT_FALSE(chart.isDragging());

        way = each.way();
        hands.drag(way.first, way.second);
        EXPECT_TRUE(each.isRight()) << each.what << '\n' << outlineOf(hands.document());
        EXPECT_EQ(hands.steps(), steps + 1) << each.what;
        EXPECT_FALSE(hands.window->note()->text().isEmpty()) << each.what;
        hands.key(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(hands.saved(), before) << "undo of " << each.what;
        EXPECT_NEAR(chart.xOf(hands.task(1).Start), scrolled, 1.5) << "the dates stay where they are";

        // The plan changes under the pointer: what is dragged may be gone.
        way = each.way();
        hands.drag(way.first, way.second, false);
        hands.window->selectAll();
        hands.window->removeTasks();
        EXPECT_FALSE(chart.isDragging());
        hands.mouse(QEvent::MouseMove, way.first);
        hands.mouse(QEvent::MouseButtonRelease, way.first);
        EXPECT_EQ(hands.steps(), steps + 1) << each.what;
        hands.window->undo();
        EXPECT_EQ(hands.saved(), before) << each.what;
    }
    // A ring is refused under the pointer, and again in the note.
    const std::string before = hands.saved();
    hands.drag(chart.handleOf(hands.id(2)), chart.barRect(hands.id(0)).center());
    EXPECT_TRUE(hands.window->note()->isRefusal());
    EXPECT_EQ(hands.saved(), before);
}

TEST(Window, outlineKeys)
{
    Hands hands;
    makeChain(hands);
    const struct
    {
        int row;
        int key;
        Qt::KeyboardModifiers modifiers;
        const char *after; // name and level of each row that is seen
    } cases[] = {
        {1, Qt::Key_Right, Qt::AltModifier, "Design1 Build2 Test1"},
        {2, Qt::Key_Right, Qt::AltModifier, "Design1 Build2 Test2"},
        {0, Qt::Key_Left, Qt::NoModifier, "Design1"},
        {0, Qt::Key_Right, Qt::NoModifier, "Design1 Build2 Test2"},
        {2, Qt::Key_Up, Qt::AltModifier, "Design1 Test2 Build2"},
        {1, Qt::Key_Left, Qt::AltModifier, "Design1 Test1 Build2"},
        {0, Qt::Key_Down, Qt::AltModifier, "Test1 Build2 Design1"},
        {0, Qt::Key_Return, Qt::AltModifier, "Test1 Design1"},
        {0, Qt::Key_Down, Qt::ControlModifier | Qt::AltModifier, "Test1 Build2 Design1"},
    };
    for (const auto &each : cases) {
        hands.go(each.row, name);
        hands.key(each.key, each.modifiers);
        QStringList rows;
        for (int row = 0; row < hands.window->model()->taskRows(); ++row)
            rows.append(hands.task(row).Name + QString::number(hands.task(row).Level));
        EXPECT_EQ(rows.join(QLatin1Char(' ')).toStdString(), each.after) << each.row;
    }
    // A new one above is named at once.
    hands.go(0, name);
    hands.key(Qt::Key_Insert);
    hands.type(QStringLiteral("First"));
    hands.key(Qt::Key_Return);
    EXPECT_EQ(hands.task(0).Name, QLatin1String("First"));
    EXPECT_EQ(hands.task(1).Name, QLatin1String("Test"));
}

TEST(Window, barsStandWhereThePictureHasThem)
{
    Hands hands;
    makeChain(hands);
    PlanChart &chart = *hands.window->chart();
    for (const double pixels : {0.05, 0.4, 2.0, 9.0, 40.0, 160.0, 700.0}) {
        chart.zoomAtCentre(pixels / chart.pixelsOfDay());
        EXPECT_NEAR(chart.pixelsOfDay() / pixels, 1, 0.15) << pixels;
        KWExportOptions options;
        const chartstyle::Sheet style(chartstyle::Theme::Light, ThemePalette::builtIn().first());
        TextShaper shaper(chart::standardFonts(style), QString());
        PlanView view(hands.document(), options, shaper);
        view.loadAll();
        const chart::Layout layout(view.plan());
        const QPointF origin(chart.horizontalScrollBar()->value(), chart.verticalScrollBar()->value() + 40);
        for (int row = 0; row < 3; ++row) {
            const QRectF drawn = layout.barRect(row).translated(-origin);
            const QRectF grabbed = chart.barRect(hands.id(row));
            EXPECT_NEAR(drawn.left(), grabbed.left(), 0.6) << pixels;
            EXPECT_NEAR(drawn.right(), grabbed.right(), 0.6) << pixels;
            EXPECT_NEAR(drawn.center().y(), grabbed.center().y(), 0.6) << pixels;
        }
        // The moment under the pointer stays there.
        constexpr double at = 300;
        const quint32 moment = chart.momentAt(at);
        chart.zoom(1.4, at);
        EXPECT_NEAR(chart.xOf(moment), chart.horizontalScrollBar()->value() > 0 ? at : chart.xOf(moment), 3);
    }
    chart.fit();
    EXPECT_GT(chart.barRect(hands.id(0)).left(), 0);
    EXPECT_LT(chart.barRect(hands.id(2)).right(), chart.viewport()->width());
    // One bar moves both.
    hands.window->resize(1200, 240);
    QApplication::processEvents();
    chart.verticalScrollBar()->setValue(20);
    EXPECT_EQ(hands.window->table()->verticalScrollBar()->value(), chart.verticalScrollBar()->value());
}

TEST(Window, thePanelSaysWhatExplainSays)
{
    Hands hands;
    makeChain(hands);
    hands.go(1, name);
    ReasonsPanel &panel = *hands.window->reasons();
    panel.explainNow();
    Plan &plan = hands.window->session().plan();
    kwpxfile::describe(plan);
    plan.tightest = planreasons::tightest(*plan.document);
    for (const explain::Line &line : explain::task(plan, 1)) {
        const QString text = QString(line.text).replace(QLatin1String(" -> "), QStringLiteral(" → "));
        EXPECT_NE(panel.text().replace(QChar(0xa0), QLatin1Char(' ')).indexOf(text), -1)
            << text.toStdString();
    }
    Q_EMIT panel.jumped(hands.id(0));
    EXPECT_EQ(hands.window->table()->currentTask(), hands.id(0));
    hands.go(2, name);
    hands.key(Qt::Key_J, Qt::ControlModifier);
    EXPECT_EQ(hands.window->table()->currentTask(), hands.id(1));
}

TEST(Window, filesAreKeptSafe)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("plan.kwpx"));
    Hands hands;
    makeChain(hands);
    const std::string before = hands.saved();
    EXPECT_FALSE(hands.window->saveTo(dir.filePath(QStringLiteral("no/such/folder.kwpx"))));
    EXPECT_TRUE(hands.window->note()->isRefusal());
    ASSERT_TRUE(hands.window->saveTo(path));
    EXPECT_FALSE(hands.window->session().isModified());
    {
        Hands others;
        ASSERT_TRUE(others.window->openFile(path));
        EXPECT_FALSE(others.window->session().otherUser().isEmpty()) << "somebody else has it";
        EXPECT_EQ(outlineOf(others.document()), outlineOf(hands.document()));
        others.enter(0, name, QStringLiteral("Plan it"));
        ASSERT_TRUE(others.window->saveTo(path));
    }
    // Changed by another: asked, and Cancel leaves that file.
    const QByteArray theirs = folder::get(path);
    hands.enter(0, name, QStringLiteral("Draw it"));
    EXPECT_TRUE(hands.window->session().wasChangedMeanwhile());
    hands.answer = QMessageBox::Cancel;
    hands.key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(folder::get(path), theirs);
    hands.answer = QMessageBox::Save;
    hands.key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(hands.window->session().isModified());
    // Opening is no step.
    ASSERT_TRUE(hands.window->openFile(path));
    EXPECT_EQ(hands.steps(), 0);
    EXPECT_EQ(hands.task(0).Name, QLatin1String("Draw it"));
    // What cannot be read leaves the plan that is open.
    folder::put(dir.filePath(QStringLiteral("bad.kwpx")), "PK nothing");
    EXPECT_FALSE(hands.window->openFile(dir.filePath(QStringLiteral("bad.kwpx"))));
    EXPECT_EQ(hands.task(0).Name, QLatin1String("Draw it"));
    for (const char *file :
         {"plan.pdf", "plan.svg", "plan.html", "plan.xlsx", "plan.xls", "plan.xml", "plan.csv"})
        EXPECT_TRUE(hands.window->exportTo(dir.filePath(QLatin1String(file))))
            << file << hands.window->note()->text().toStdString();
    EXPECT_FALSE(hands.window->exportTo(dir.filePath(QStringLiteral("plan.doc"))));
}

TEST(Window, findingsLeadToTheirRows)
{
    QTemporaryDir dir;
    folder::put(dir.filePath(QStringLiteral("plan.csv")),
                "Name,Start,Duration,Predecessors\nA,2026-01-05,2d,\nB,2026-01-05,1d,9\nC,,1d,A\n");
    Hands hands;
    ASSERT_TRUE(hands.window->openFile(dir.filePath(QStringLiteral("plan.csv"))));
    ASSERT_GT(hands.window->findingsPanel()->count(), 0);
    hands.window->findingsPanel()->activate(1);
    EXPECT_EQ(hands.window->table()->currentTask(), hands.id(1));
    EXPECT_TRUE(hands.window->session().path().isEmpty()) << "a CSV file is not overwritten with a package";
}

// The part of the next test that dies.
TEST(Window, DISABLED_diesWhileEditing)
{
    Hands hands;
    ASSERT_TRUE(hands.window->openFile(qEnvironmentVariable("KW_DESKTOP_PLAN")));
    hands.enter(0, name, QStringLiteral("Unsaved"));
    // The copy is made by the clock.
    hands.window->setCopyInterval(1);
    const QDir copies(KWFilePathManager::configDir(QStringLiteral("autosave")));
    const QString copy = hands.document().backupName() + QLatin1String(".json");
    ASSERT_TRUE(QTest::qWaitFor([&] { return copies.exists(copy); }, 30000));
    kill(getpid(), SIGKILL);
}

TEST(Window, whatAKilledProgramHadOpenIsOffered)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("plan.kwpx"));
    Hands hands;
    makeChain(hands);
    ASSERT_TRUE(hands.window->saveTo(path));
    const QString copy = KWFilePathManager::configDir(QStringLiteral("autosave")) + QLatin1Char('/') +
                         hands.document().backupName() + QLatin1String(".kwpx");
    hands.window->setCopyInterval(1);
    QTest::qWait(30);
    EXPECT_FALSE(QFile::exists(copy)) << "what is saved needs no copy";
    hands.enter(1, name, QStringLiteral("Still alive"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(copy); }, 30000));
    hands.window->setCopyInterval(60000);
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("KW_DESKTOP_CONFIG"), KWFilePathManager::configDir());
    environment.insert(QStringLiteral("KW_DESKTOP_PLAN"), path);
    program.setProcessEnvironment(environment);
    program.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--gtest_also_run_disabled_tests"),
                                                            QStringLiteral("--gtest_filter=*diesWhile*")});
    ASSERT_TRUE(program.waitForFinished(60000));
    ASSERT_EQ(program.exitStatus(), QProcess::CrashExit) << program.readAll().toStdString();
    ASSERT_EQ(recovery::abandoned().size(), 1) << "that of the window that lives is not offered";
    hands.answer = QMessageBox::Open;
    folder::put(path, folder::get(path)); // by somebody else, after the copy was made
    hands.window->offerCopies();
    EXPECT_EQ(hands.task(1).Name, QLatin1String("Still alive")) << "it has changes of its own";
    std::unique_ptr<MainWindow> other;
    for (QWidget *widget : QApplication::topLevelWidgets())
        if (auto *window = qobject_cast<MainWindow *>(widget); window && window != hands.window.get())
            other.reset(window);
    ASSERT_TRUE(other);
    EXPECT_EQ(other->session().document().getTaskInfoAt(0)->Name, QLatin1String("Unsaved"));
    EXPECT_TRUE(other->session().isModified());
    EXPECT_EQ(other->session().path(), path);
    EXPECT_TRUE(other->session().wasChangedMeanwhile());
    EXPECT_TRUE(recovery::abandoned().isEmpty());
}

// Foreign and damaged files, each opened, looked at from all sides, edited and taken back. KW_DESKTOP_FILES
// names another folder of them.
TEST(Window, whateverIsOpenedCanBeLookedAt)
{
    const QString given = qEnvironmentVariable("KW_DESKTOP_FILES");
    const QString corpus = QString::fromUtf8(qgetenv("KW_TEST_DATA")) + QLatin1String("/../../fuzz/corpus");
    Hands hands;
    MainWindow &window = *hands.window;
    hands.answer = QMessageBox::Discard;
    window.filterPanel()->show();
    window.baselinePanel()->show();
    int opened = 0, refused = 0;
    for (QDirIterator files(given.isEmpty() ? corpus : given, QDir::Files, QDirIterator::Subdirectories);
         files.hasNext();) {
        const std::string path = files.next().toStdString();
        SCOPED_TRACE(path);
        if (!given.isEmpty())
            std::fprintf(stderr, "%s\n", path.c_str());
        const std::string before = outlineOf(hands.document());
        if (!window.openFile(files.filePath())) {
            ++refused;
            EXPECT_TRUE(window.note()->isRefusal());
            EXPECT_EQ(outlineOf(hands.document()), before);
            continue;
        }
        ++opened;
        PlanChart &chart = *window.chart();
        window.filterPanel()->filterNow();
        window.baselinePanel()->compareNow();
        window.reasons()->explainNow();
        for (const double factor : {1.0, 1e-3, 1e6}) {
            chart.zoomAtCentre(factor);
            chart.verticalScrollBar()->setValue(chart.verticalScrollBar()->maximum());
            window.grab();
        }
        window.action("hide-others")->trigger();
        chart.fit();
        window.grab();
        window.action("hide-others")->trigger();
        const std::string whole = outlineOf(hands.document());
        hands.go(0, name);
        window.insertBelow();
        hands.type(QStringLiteral("New"));
        hands.key(Qt::Key_Return);
        window.selectAll();
        window.indent();
        window.schedule();
        while (hands.steps() > 0)
            window.undo();
        EXPECT_EQ(outlineOf(hands.document()), whole);
        hands.document().setModified(false);
    }
    if (given.isEmpty()) {
        EXPECT_GT(opened, 0);
        EXPECT_GT(refused, 0);
    } else {
        std::fprintf(stderr, "%d opened, %d refused\n", opened, refused);
    }
}

TEST(Window, aSaveThatFailsLeavesTheFileAndSaysSo)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("plan.kwpx"));
    Hands hands;
    makeChain(hands);
    ASSERT_TRUE(hands.window->saveTo(path));
    hands.enter(0, name, QStringLiteral("Later"));
    const QByteArray old = folder::get(path);
    const std::string tree = folder::tree(dir.path());
    folder::put(dir.filePath(QStringLiteral("file")), "in the way");
    const struct
    {
        const char *what;
        QString path;
        rlim_t bytes;
    } cases[] = {{"a full disk", path, 100},
                 {"a disk that is full at once", path, 0},
                 {"a folder", dir.path() + QLatin1String("/"), RLIM_INFINITY},
                 {"no folder", dir.filePath(QStringLiteral("none/plan.kwpx")), RLIM_INFINITY},
                 {"a file for a folder", dir.filePath(QStringLiteral("file/plan.kwpx")), RLIM_INFINITY}};
    for (const auto &each : cases) {
        {
            const FileSizeLimit limit(each.bytes);
            EXPECT_FALSE(hands.window->saveTo(each.path)) << each.what;
        }
        EXPECT_TRUE(hands.window->note()->isRefusal()) << each.what;
        EXPECT_NE(hands.window->note()->text(), QString()) << each.what;
        EXPECT_TRUE(hands.window->session().isModified()) << each.what;
        EXPECT_EQ(hands.window->session().path(), path) << each.what;
        EXPECT_EQ(folder::get(path), old) << each.what;
    }
    QFile::remove(dir.filePath(QStringLiteral("file")));
    EXPECT_EQ(folder::tree(dir.path()), tree) << "nothing is left beside it";
    EXPECT_TRUE(hands.window->saveTo(path));
    EXPECT_NE(folder::get(path), old);
}

// Presses Cancel when work says how far it is, after a look at the window.
class Impatient : public QObject
{
public:
    explicit Impatient(Hands &hands)
        : m_hands(hands)
    {
        Busy::s_patience = 0;
        startTimer(0);
    }
    ~Impatient() override { Busy::s_patience = 400; }
    int painted = 0;
    int pressed = 0;
    bool cancels = true;

protected:
    void timerEvent(QTimerEvent *) override
    {
        auto *dialog = m_hands.window->findChild<QDialog *>(QStringLiteral("busy"));
        if (!dialog)
            return;
        // Nobody gets at the plan meanwhile.
        const int steps = m_hands.steps();
        QTest::keyClick(m_hands.window->table(), Qt::Key_Delete);
        QTest::mouseClick(m_hands.window->table()->viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(60, 60));
        m_hands.window->action("delete")->trigger();
        m_hands.window->undo();
        m_hands.window->resize(m_hands.window->width() + 10, 700);
        EXPECT_FALSE(m_hands.window->close());
        EXPECT_TRUE(m_hands.window->session().keepCopy());
        EXPECT_EQ(m_hands.steps(), steps);
        ++pressed;
        if (cancels)
            QTest::keyClick(dialog, Qt::Key_Escape);
    }

private:
    Hands &m_hands;
};

TEST(Window, longWorkCanBeGivenUp)
{
    QTemporaryDir dir;
    Hands hands;
    makeChain(hands);
    hands.key(Qt::Key_D, Qt::ControlModifier);
    const QString path = dir.filePath(QStringLiteral("other.csv"));
    folder::put(path, "Name,Duration\nA,2d\nB,1d\n");
    const std::string before = outlineOf(hands.document()); // the scale follows the window's width
    const int steps = hands.steps();
    Impatient user(hands);
    for (const bool cancels : {true, false}) {
        user.cancels = cancels;
        user.pressed = 0;
        hands.window->schedule();
        EXPECT_GT(user.pressed, 0);
        EXPECT_EQ(hands.window->note()->isRefusal(), cancels);
        EXPECT_EQ(hands.steps(), steps + (cancels ? 0 : 1));
        if (cancels)
            EXPECT_EQ(outlineOf(hands.document()), before);
        else
            hands.window->undo();
        user.pressed = 0;
        EXPECT_EQ(hands.window->exportTo(dir.filePath(QStringLiteral("plan.pdf"))), !cancels);
        EXPECT_EQ(QFile::exists(dir.filePath(QStringLiteral("plan.pdf"))), !cancels);
        EXPECT_GT(user.pressed, 0);
        user.pressed = 0;
        EXPECT_EQ(hands.window->openFile(path), !cancels);
        EXPECT_GT(user.pressed, 0);
        EXPECT_EQ(hands.document().taskCount(), cancels ? 6 : 2);
    }
    EXPECT_TRUE(hands.window->chart()->updatesEnabled());
}

TEST(Window, dialogsMakeOneStep)
{
    Hands hands;
    makeChain(hands);
    Session &session = hands.window->session();
    const std::string before = hands.saved();
    const int steps = hands.steps();
    {
        CalendarDialog dialog(session);
        dialog.day(4)->setChecked(false); // no Fridays
        dialog.hours()->setText(QStringLiteral("08:00-"));
        EXPECT_FALSE(dialog.apply());
        EXPECT_FALSE(dialog.complaint().isEmpty());
        dialog.hours()->setText(QStringLiteral("09:00-12:00, 13:00-16:00"));
        dialog.addRow(
            {QStringLiteral("Open day"), QDate(2026, 1, 9), QDate(2026, 1, 9), true, {{36000, 54000}}});
        EXPECT_FALSE(dialog.complaint().isEmpty()) << "five hours count as six";
        dialog.addRow({QStringLiteral("Holiday"), QDate(2026, 1, 6), QDate(2026, 1, 7), false, {}});
        ASSERT_TRUE(dialog.apply()) << dialog.complaint().toStdString();
    }
    EXPECT_EQ(hands.steps(), steps + 1);
    ASSERT_EQ(hands.document().calendars.size(), 2);
    EXPECT_FALSE(CalendarDialog(session).day(4)->isChecked());
    EXPECT_EQ(CalendarDialog(session).exceptions()->item(0, 3)->text(), QLatin1String("10:00-15:00"));
    session.undo();
    EXPECT_EQ(hands.saved(), before);

    ResourcesDialog sheet(session);
    sheet.addResource();
    sheet.sheet()->item(0, 0)->setText(QStringLiteral("Ann"));
    sheet.sheet()->item(0, 3)->setText(QStringLiteral("50/h"));
    EXPECT_EQ(sheet.sheet()->item(0, 3)->text(), QLatin1String("50/h")) << sheet.complaint().toStdString();
    sheet.sheet()->item(0, 3)->setText(QStringLiteral("dear"));
    EXPECT_FALSE(sheet.complaint().isEmpty());
    EXPECT_EQ(sheet.sheet()->item(0, 3)->text(), QLatin1String("50/h"));

    KWPrintConfig config;
    config.FittoSheet = true;
    config.HSheet = 3;
    config.VSheet = 2;
    PageSetupDialog setup(session);
    setup.fill(config);
    setup.accept();
    GanttPdfExport drawing(&hands.document());
    EXPECT_EQ(hands.document().printConfig.HSheet, 3);
    EXPECT_EQ(PreviewDialog(session, KWExportOptions()).pageCount(), drawing.pageCount());

    const QTemporaryDir folder;
    QPrinter printer;
    printer.setOutputFileName(folder.filePath(QStringLiteral("sheets.pdf")));
    printout::setPaper(printer, drawing);
    EXPECT_EQ(printer.pageLayout().fullRect(QPageLayout::Millimeter).size().toSize(),
              drawing.pageSize().toSize());
    ASSERT_GE(drawing.pageCount(), 2);
    EXPECT_FALSE(printout::print(printer, drawing, [](int done, int) { return done < 1; }));
    printer.setPrintRange(QPrinter::PageRange);
    printer.setFromTo(2, drawing.pageCount());
    ASSERT_TRUE(printout::print(printer, drawing, [](int, int) { return true; }));
    EXPECT_EQ(folder::get(printer.outputFileName()).count("/Type /Page\n"), drawing.pageCount() - 1);
}

TEST(Window, textsAreReplacedInOneStep)
{
    Hands hands;
    makeChain(hands);
    MainWindow &window = *hands.window;
    const std::string before = hands.saved();
    const int steps = hands.steps();
    EXPECT_EQ(window.replaceText(QStringLiteral("E"), QStringLiteral("3"), Qt::CaseSensitive), 0);
    EXPECT_TRUE(window.note()->isRefusal());
    EXPECT_EQ(window.replaceText(QString(), QStringLiteral("3"), Qt::CaseInsensitive), 0);
    EXPECT_EQ(window.replaceText(QStringLiteral("E"), QStringLiteral("(e)"), Qt::CaseInsensitive), 2);
    EXPECT_EQ(hands.task(0).Name, QLatin1String("D(e)sign"));
    EXPECT_EQ(hands.task(2).Name, QLatin1String("T(e)st"));
    EXPECT_EQ(hands.steps(), steps + 1);
    window.undo();
    EXPECT_EQ(hands.saved(), before);
}

TEST(Window, theFilterListsWhatItSays)
{
    Hands hands;
    makeChain(hands);
    hands.enter(3, name, QStringLiteral("Gate"));
    hands.enter(3, start, QStringLiteral("2026-01-05"));
    hands.enter(3, length, QStringLiteral("0"));
    hands.enter(1, resources, QStringLiteral("Ann[50%]"));
    hands.enter(0, percent, QStringLiteral("100"));
    hands.window->setBaseline();
    hands.enter(1, length, QStringLiteral("4d")); // pushes Test
    KWClock::set(QDateTime(QDate(2026, 1, 20), QTime(12, 0)));
    const struct
    {
        taskfilter::Filter filter;
        const char *names;
    } cases[] = {{{taskfilter::Critical, {}}, "Design Build Test"},
                 {{taskfilter::Late, {}}, "Build Test Gate"},
                 {{taskfilter::BehindBaseline, {}}, "Build Test"},
                 {{taskfilter::Milestones, {}}, "Gate"},
                 {{taskfilter::Unassigned, {}}, "Design Test"},
                 {{taskfilter::OfResource, QStringLiteral("Ann")}, "Build"}};
    FilterPanel &panel = *hands.window->filterPanel();
    hands.window->action("show-filter")->trigger();
    for (const auto &each : cases) {
        panel.choose(each.filter);
        QStringList names;
        for (const quint32 id : panel.found())
            names.append(hands.document().getTaskInfoByID(id)->Name);
        EXPECT_EQ(names.join(QLatin1Char(' ')).toStdString(), each.names)
            << taskfilter::title(each.filter).toStdString();
    }
    KWClock::set(QDateTime());
    // It follows the plan.
    panel.choose({taskfilter::BehindBaseline, {}});
    hands.window->undo();
    EXPECT_TRUE(QTest::qWaitFor([&] { return panel.found().isEmpty(); })) << "as long as planned again";
}

TEST(Window, aFilterHidesTheOthersInTableChartAndPicture)
{
    Hands hands;
    makeChain(hands);
    MainWindow &window = *hands.window;
    hands.enter(3, name, QStringLiteral("Rest"));
    for (const char *each : {"Sweep", "Paint"}) {
        hands.enter(window.model()->taskRows(), name, QLatin1String(each));
        hands.go(window.model()->taskRows() - 1, name);
        if (QLatin1String(each) == QLatin1String("Sweep"))
            window.indent();
    }
    hands.enter(4, resources, QStringLiteral("Ann"));
    const std::string before = outlineOf(hands.document());
    const int steps = hands.steps();
    window.action("hide-others")->trigger();
    window.filterPanel()->choose({taskfilter::OfResource, QStringLiteral("Ann")});
    const auto rows = [&] {
        QStringList names;
        for (const quint32 id : window.model()->tasks())
            names.append(hands.document().getTaskInfoByID(id)->Name);
        return names.join(QLatin1Char(' ')).toStdString();
    };
    ASSERT_EQ(rows(), "Rest Sweep");
    EXPECT_EQ(outlineOf(hands.document()), before);
    EXPECT_EQ(hands.steps(), steps) << "what is seen is no step";
    const QTemporaryDir folder;
    ASSERT_TRUE(window.exportTo(folder.filePath(QStringLiteral("plan.svg"))));
    const QByteArray drawn = folder::get(folder.filePath(QStringLiteral("plan.svg")));
    EXPECT_TRUE(drawn.contains("Sweep") && !drawn.contains("Paint") && !drawn.contains("Design"));
    // The row of the table is that of the bar, and both have the height that the plan says.
    EXPECT_NEAR(window.chart()->barRect(hands.id(1)).center().y(),
                window.table()->visualRect(window.model()->index(1, name)).center().y(), 2);
    EXPECT_EQ(window.chart()->barRect(hands.document().getTaskInfoAt(0)->ID), QRectF());
    hands.go(1, name);
    window.insertBelow();
    hands.type(QStringLiteral("Dust"));
    hands.key(Qt::Key_Return);
    EXPECT_EQ(rows(), "Rest Sweep Dust") << "what is new is seen";
    window.jumpTo(hands.document().getTaskInfoAt(0)->ID);
    EXPECT_EQ(rows(), "Design Build Test Rest Sweep Dust Paint") << "a jump leads to what was hidden";
}

TEST(Window, thePanelComparesAsTheProgramDoes)
{
    Hands hands;
    makeChain(hands);
    MainWindow &window = *hands.window;
    window.setBaseline();
    window.action("compare-baseline")->trigger();
    BaselinePanel &panel = *window.baselinePanel();
    panel.compareNow();
    EXPECT_EQ(panel.count(), 0);
    hands.enter(1, length, QStringLiteral("4d")); // pushes Test
    panel.compareNow();
    ASSERT_EQ(panel.count(), 2);
    panel.sort(4, Qt::DescendingOrder); // by the start
    const QString told = baseline::text(window.session().plan(), Style(false, false));
    for (int row = 0; row < 2; ++row)
        for (int column = 1; column < 7; ++column)
            EXPECT_TRUE(told.contains(panel.text(row, column))) << panel.text(row, column).toStdString();
    EXPECT_EQ(panel.text(0, 1).toStdString(), "Test");
}

TEST(Window, columnsAreFoundWhereTheyAreSeen)
{
    Hands hands;
    makeChain(hands);
    PlanTable &table = *hands.window->table();
    PlanModel &model = *hands.window->model();
    hands.window->findChild<QSplitter *>()->setSizes({600, 300});
    QApplication::processEvents();
    table.horizontalScrollBar()->setValue(table.horizontalScrollBar()->maximum());
    ASSERT_GT(table.horizontalScrollBar()->value(), 0);
    EXPECT_EQ(table.visualRect(model.index(1, 0)).left(), 0) << "numbers and names stay";
    int seen = 0;
    for (int x = 0; x < table.viewport()->width(); x += 7) {
        const QModelIndex at = table.indexAt(QPoint(x, table.visualRect(model.index(1, 0)).center().y()));
        ASSERT_EQ(at.row(), 1);
        EXPECT_TRUE(table.visualRect(at).contains(x, table.visualRect(at).center().y())) << x;
        seen |= 1 << at.column();
    }
    EXPECT_TRUE(seen & 1 << model.columnOf(waits));
    table.selectRow(1, model.columnOf(start));
    EXPECT_GE(table.visualRect(table.currentIndex()).left(), table.visualRect(model.index(1, name)).right());
}

TEST(Window, whatIsTypedIsNotLost)
{
    Hands hands;
    makeChain(hands);
    hands.enter(0, resources, QStringLiteral("Ann"));
    // The list of names that opens meanwhile does not hold it up.
    hands.go(1, resources);
    hands.type(QStringLiteral("Ann"));
    QWidget *names = QApplication::activePopupWidget();
    ASSERT_TRUE(names);
    QTest::keyClick(names, Qt::Key_Return);
    EXPECT_EQ(hands.task(1).Resources, QLatin1String("Ann"));
    EXPECT_EQ(hands.window->table()->currentIndex().row(), 2);
    // A cell that is still open is part of what is saved.
    hands.go(2, name);
    hands.type(QStringLiteral("Trial"));
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("plan.kwpx"));
    ASSERT_TRUE(hands.window->saveTo(path));
    KWDocument saved;
    ASSERT_TRUE(saved.loadFromKWGT(path));
    EXPECT_EQ(saved.getTaskInfoAt(2)->Name, QLatin1String("Trial"));
}

TEST(Window, windowsStandWholeOnASmallScreen)
{
    Hands hands;
    CalendarDialog calendar(hands.window->session());
    ResourcesDialog resources(hands.window->session());
    PreviewDialog preview(hands.window->session(), KWExportOptions());
    constexpr int frame = 40; // 1600x1000 at a scale of 2
    for (const QWidget *window : {static_cast<QWidget *>(&calendar), static_cast<QWidget *>(&resources),
                                  static_cast<QWidget *>(&preview)}) {
        const QSize least = window->minimumSizeHint().expandedTo(window->minimumSize());
        EXPECT_LE(least.width(), 800) << window->windowTitle().toStdString();
        EXPECT_LE(least.height(), 500 - frame) << window->windowTitle().toStdString();
        EXPECT_LE(window->width(), QGuiApplication::primaryScreen()->availableSize().width());
    }
}

TEST(Window, keysGoWhereTheCursorIs)
{
    Hands hands;
    {
        MainWindow other;
        other.setAttribute(Qt::WA_DeleteOnClose, false);
        other.show();
        QApplication::setActiveWindow(&other);
        EXPECT_EQ(QApplication::focusWidget(), other.table());
    }
    makeChain(hands);
    const auto chosen = [&] { return hands.window->table()->selectedTasks(); };
    hands.key(Qt::Key_A, Qt::ControlModifier);
    hands.key(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(chosen(), QVector<quint32>{hands.id(0)});
    hands.key(Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(chosen().size(), 3);
    hands.key(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(hands.window->table()->currentIndex().row(), 3);
    EXPECT_TRUE(chosen().isEmpty());
    hands.go(3, name);
    hands.type(QStringLiteral("Ship"));
    hands.key(Qt::Key_Tab);
    hands.type(QStringLiteral("2026-02-02"));
    hands.key(Qt::Key_Tab);
    EXPECT_EQ(hands.window->model()->taskRows(), 4);
    EXPECT_EQ(QDateTime::fromSecsSinceEpoch(hands.task(3).Start).date(), QDate(2026, 2, 2));
    hands.go(0, 0);
    hands.type(QStringLiteral("7"));
    EXPECT_FALSE(hands.window->note()->text().isEmpty());
}

TEST(Window, rowsAreCountedAsPredecessorsCountThem)
{
    Hands hands;
    makeChain(hands);
    hands.go(1, name);
    hands.key(Qt::Key_Insert);
    hands.key(Qt::Key_Escape);
    hands.go(2, name);
    hands.key(Qt::Key_Right, Qt::AltModifier); // Build goes into the new task
    hands.go(1, name);
    hands.key(Qt::Key_Left); // which is folded
    const PlanModel &model = *hands.window->model();
    const auto text = [&](int row, int type) {
        return model.index(row, model.columnOf(type)).data().toString();
    };
    ASSERT_EQ(model.taskRows(), 3);
    EXPECT_EQ(text(1, 0), QLatin1String("2"));
    EXPECT_EQ(text(2, 0), QLatin1String("4"));
    EXPECT_EQ(text(2, waits), QLatin1String("3"));
    const quint32 before = hands.task(2).Predecessors.value(0);
    hands.enter(2, waits, QStringLiteral("3; 1"));
    EXPECT_TRUE(hands.task(2).Predecessors.contains(before)) << "the number is of the task in the fold";
    EXPECT_EQ(text(2, waits), QLatin1String("1; 3"));
}

TEST(Window, undoLeadsBackToWhatIsSaved)
{
    Hands hands;
    QTemporaryDir folder;
    const auto isModified = [&] { return hands.window->session().isModified(); };
    hands.enter(0, name, QStringLiteral("A"));
    hands.enter(1, name, QStringLiteral("B"));
    ASSERT_TRUE(hands.window->saveTo(folder.filePath(QStringLiteral("a.kwpx"))));
    hands.key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(isModified());
    hands.key(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_FALSE(isModified());
    // Another way from the step before: the saved one is gone.
    hands.key(Qt::Key_Z, Qt::ControlModifier);
    hands.enter(1, name, QStringLiteral("C"));
    EXPECT_TRUE(isModified());
    ASSERT_TRUE(hands.window->saveTo(folder.filePath(QStringLiteral("a.kwpx"))));
    const int kept = hands.document().actionManager().getUndoLevel();
    for (int step = 0; step <= kept; ++step)
        hands.enter(0, name, QString::number(step));
    for (int step = 0; step <= kept; ++step)
        hands.key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(isModified());
}

TEST(Window, onlyPagesAndMailsAreOpened)
{
    Hands hands;
    makeChain(hands);
    QStringList opened;
    hands.window->setOpener([&](const QUrl &url) {
        opened.append(url.toString());
        return true;
    });
    const struct
    {
        const char *address;
        const char *opened; // empty: refused
    } cases[] = {{"https://example.com/a b", ""},
                 {"https://example.com/a?b=c#d", "https://example.com/a?b=c#d"},
                 {" HTTP://example.com ", "http://example.com"},
                 {"www.example.com", "https://www.example.com"},
                 {"ftp://example.com/x", "ftp://example.com/x"},
                 {"ann@example.com", "mailto:ann@example.com"},
                 {"mailto:ann@example.com", "mailto:ann@example.com"},
                 {"file:///etc/passwd", ""},
                 {"/bin/sh", ""},
                 {"C:\\a.exe", ""},
                 {"\\\\host\\share", ""},
                 {"javascript:alert(1)", ""},
                 {"data:text/html,x", ""},
                 {"smb://host/x", ""},
                 {"https:", ""},
                 {"//example.com", ""},
                 {"", ""}};
    for (const auto &each : cases) {
        auto *link = new KWHyperlink;
        link->address = QLatin1String(each.address);
        hands.task(0).hyperlinks.clear();
        hands.task(0).hyperlinks.appendHyperlink(link);
        hands.go(0, name);
        opened.clear();
        hands.window->action("open-link")->trigger();
        EXPECT_EQ(opened.join(QLatin1Char(' ')).toStdString(), each.opened) << each.address;
        EXPECT_EQ(hands.window->note()->isRefusal(), opened.isEmpty()) << each.address;
    }
}

TEST(Window, everyControlHasANameForThoseWhoHearIt)
{
    Hands hands;
    makeChain(hands);
    Session &session = hands.window->session();
    hands.window->action("show-filter")->trigger();
    hands.window->replaceAsk();
    CalendarDialog calendar(session);
    ResourcesDialog sheet(session);
    PageSetupDialog setup(session);
    PreviewDialog preview(session, KWExportOptions());
    CommandPalette palette({hands.window->action("save")}, hands.window.get());
    for (QWidget *window : QApplication::topLevelWidgets()) {
        for (QWidget *widget : window->findChildren<QWidget *>()) {
            const bool isInner = widget->objectName().startsWith(QLatin1String("qt_")) ||
                                 qobject_cast<QAbstractScrollArea *>(widget->parentWidget());
            const bool isPutAway =
                widget->isHidden() && widget->testAttribute(Qt::WA_WState_ExplicitShowHide);
            if (isInner || isPutAway || widget->focusPolicy() == Qt::NoFocus ||
                qobject_cast<QCalendarWidget *>(widget->parentWidget()) || qobject_cast<QMenu *>(window))
                continue;
            const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
            ASSERT_TRUE(interface);
            EXPECT_FALSE(interface->text(QAccessible::Name).isEmpty())
                << window->windowTitle().toStdString() << ": " << widget->metaObject()->className() << ' '
                << widget->objectName().toStdString();
        }
    }
}

TEST(Window, commandsAreFoundAndKeysAreTold)
{
    Hands hands;
    QList<QAction *> actions;
    QStringList keys;
    for (const actiontable::Row &row : actiontable::rows()) {
        ASSERT_TRUE(hands.window->action(row.name)) << row.name;
        actions.append(hands.window->action(row.name));
        for (const QKeySequence &key : actions.last()->shortcuts()) {
            EXPECT_FALSE(keys.contains(key.toString()))
                << key.toString().toStdString() << " means two things";
            keys.append(key.toString());
        }
    }
    CommandPalette palette(actions, hands.window.get());
    palette.line()->setText(QStringLiteral("base set"));
    EXPECT_EQ(palette.matches(), 1);
    QTest::keyClick(palette.line(), Qt::Key_Return);
    EXPECT_EQ(palette.chosen(), hands.window->action("set-baseline"));
    const QByteArray page =
        folder::get(QString::fromUtf8(qgetenv("KW_TEST_DATA")) + QLatin1String("/../../docs/desktop.md"));
    EXPECT_NE(page.indexOf(actiontable::asMarkdown().trimmed().toUtf8()), -1)
        << "docs/desktop.md is older than the table: kwgantt-desktop --keys prints it";
}
