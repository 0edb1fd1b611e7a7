// The window at plans of every size, beside what the library takes without one.
#include "documents/session.h"
#include "edits/settle.h"
#include "export/ganttpdfexport.h"
#include "generator.h"
#include "kwfilepathmanager.h"
#include "mainwindow.h"
#include "model/kwtaskinfo.h"
#include "report.h"
#include "schedule/kwtaskcollection.h"
#include "texts.h"
#include "views/planchart.h"
#include "views/planmodel.h"
#include "views/plantable.h"
#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QScrollBar>
#include <QTemporaryDir>
#include <unistd.h>

namespace {

double megabytesNow()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    file.open(QIODevice::ReadOnly);
    constexpr double megabyte = 1 << 20;
    return file.readAll().split(' ').value(1).toDouble() * double(sysconf(_SC_PAGESIZE)) / megabyte;
}

QString packageOf(const QTemporaryDir &folder, int tasks)
{
    generator::Shape shape;
    shape.tasks = tasks;
    const auto document = generator::document(generator::plan(shape), shape);
    settling::settle(*document, {settling::Everything, {}, {}});
    const QString path = folder.filePath(QStringLiteral("plan.kwpx"));
    document->save(path);
    return path;
}

void show(MainWindow &window)
{
    window.table()->viewport()->repaint();
    window.chart()->viewport()->repaint();
}

// A delay, and how many tasks it moves.
struct Delay
{
    quint32 task = 0;
    int days = 0;
    int moves = 0;
};

// The one that moves the most tasks of those that move no more than 10,000. A task moves only those behind
// it, so the candidates stand all over the last of them.
Delay longestDelay(Session &session)
{
    constexpr int mostMoves = 10000, candidates = 24;
    KWDocument &document = session.document();
    const int count = document.taskCount(), first = qMax(0, count - mostMoves - mostMoves / 2);
    Delay longest;
    for (int i = 0; i < candidates; ++i) {
        const KWTaskInfo *task = document.getTaskInfoAt(first + (count - first) / candidates * i);
        if (task->isParent())
            continue;
        for (const int days : {5, 100, 400}) {
            TaskValues values;
            values.finish = task->Finish + quint32(days) * 86400;
            PlanEdits edits(document, QStringLiteral("Measure"));
            const int moves = edits.set({task->ID}, values).moves.size();
            edits.cancel();
            if (moves > longest.moves && moves <= mostMoves)
                longest = {task->ID, days, moves};
        }
    }
    return longest;
}

constexpr char firstWindow[] = "--first-window", onlyDocument[] = "--document", inWindow[] = "--window";

// What a process of its own prints.
double printedBy(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(-1);
    return process.readAllStandardOutput().toDouble();
}

void measure(Report &report, const QString &program, int tasks)
{
    const QTemporaryDir folder;
    const QString path = packageOf(folder, tasks);
    double alone = 0;
    {
        // What opening and editing take without a window; the document is gone before the window comes.
        KWDocument document;
        alone = secondsOf([&] {
            document.loadFromKWGT(path);
            settling::settle(document, {settling::AsItStands, {}, {}});
        });
    }
    MainWindow window;
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    window.setAsker(
        [](const QString &, const QString &, QMessageBox::StandardButtons) { return QMessageBox::Discard; });
    window.resize(1200, 900);
    report.line("opened and shown", tasks, secondsOf([&] {
                    window.openFile(path);
                    window.show();
                    QApplication::processEvents();
                }),
                alone);
    std::printf("  %.0f MB with the document, %.0f MB with its window\n",
                printedBy(program, {QLatin1String(onlyDocument), path}),
                printedBy(program, {QLatin1String(inWindow), path}));

    Session &session = window.session();
    PlanChart &chart = *window.chart();
    KWDocument &document = session.document();
    QImage image(1200, 900, QImage::Format_RGB32);
    GanttPdfExport picture(&document);
    constexpr int frames = 40;
    const int bottom = chart.verticalScrollBar()->maximum();
    const auto everyFrame = [&](const std::function<void(int)> &work) {
        return best(
                   3, [] {},
                   [&] {
                       for (int frame = 0; frame < frames; ++frame)
                           work(frame);
                   }) /
               frames;
    };
    const double floorOfFrame = everyFrame([&](int frame) {
        picture.paint(image, QRectF(-600, double(bottom) * frame / frames, 1200, 900), 1);
    });
    report.line("a frame while scrolling", tasks, everyFrame([&](int frame) {
                    chart.verticalScrollBar()->setValue(bottom / frames * frame);
                    show(window);
                }),
                floorOfFrame);
    report.line("a frame while zooming", tasks, everyFrame([&](int frame) {
                    chart.zoom(frame < frames / 2 ? 1.2 : 1 / 1.2, 300);
                    show(window);
                }),
                floorOfFrame);

    const Delay delay = longestDelay(session);
    const quint32 id = delay.task;
    if (id == 0)
        return;
    std::printf("  the edits move %d tasks\n", delay.moves);
    window.jumpTo(id);
    KWTaskInfo *task = document.getTaskInfoByID(id);
    const int row = window.model()->rowOf(id), column = window.model()->columnOf(4);
    TaskValues longer;
    longer.length =
        TaskLength{document.getDurationValue(task->Start, task->Finish, 4, true) + delay.days * 5 / 7, 4};
    const QString typed = QString::number(longer.length->value) + QLatin1Char('d');
    const auto takeBack = [&] {
        while (!document.actionManager().undoActions().isEmpty())
            document.actionManager().undo(1);
    };
    const double floorOfEdit = best(3, takeBack, [&] {
        PlanEdits edits(document, QStringLiteral("Measure"));
        edits.set({id}, longer);
    });
    takeBack();
    report.line("a duration that is typed", tasks,
                best(
                    3,
                    [&] {
                        while (!session.undoName().isEmpty())
                            session.undo();
                    },
                    [&] {
                        window.model()->setData(window.model()->index(row, column), typed, Qt::EditRole);
                        show(window);
                    }),
                floorOfEdit);
    while (!session.undoName().isEmpty())
        session.undo();
    TaskValues later;
    int steps = delay.days;
    const auto next = [&] { later.start = task->Start + quint32(++steps) * 86400; };
    const double floorOfDrag = best(
        3, [&] { next(); },
        [&] {
            PlanEdits edits(document, QStringLiteral("Measure"));
            edits.set({id}, later);
            edits.cancel();
        });
    session.tryOut(QStringLiteral("Drag"), [&](PlanEdits &edits) { return edits.set({id}, later); });
    report.line("a step of a drag", tasks,
                best(
                    3, [&] { later.start = *later.start + 86400; },
                    [&] {
                        session.tryOut(QStringLiteral("Drag"),
                                       [&](PlanEdits &edits) { return edits.set({id}, later); });
                        show(window);
                    }),
                floorOfDrag);
    session.dropTrial();
    document.setModified(false);
}

// What a process of its own has taken when its window is painted, and where it has none.
void measureStart(Report &report, const QString &program)
{
    double shown = 1e9, alone = 1e9;
    for (int i = 0; i < 5; ++i) {
        shown = qMin(printedBy(program, {QLatin1String(firstWindow)}), shown);
        alone = qMin(printedBy(program, {QStringLiteral("--no-window")}), alone);
    }
    report.line("from start to first window", 3, shown, alone);
}
}

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setStyle(QStringLiteral("fusion"));
    const QApplication application(argc, argv);
    QTemporaryDir configuration;
    KWFilePathManager::setConfigRoot(configuration.path());
    texts::fillLibraryTables();
    if (argc > 1) {
        // The program as it begins, an application that shows nothing beside it, and what both keep of a
        // plan.
        const QLatin1String what(argv[1]);
        KWDocument document;
        if (what == QLatin1String(onlyDocument)) {
            document.loadFromKWGT(QString::fromLocal8Bit(argv[2]));
            settling::settle(document, {settling::AsItStands, {}, {}});
        } else if (what != QLatin1String("--no-window")) {
            auto *window = new MainWindow;
            window->resize(1200, 900);
            window->show();
            if (what == QLatin1String(inWindow))
                window->openFile(QString::fromLocal8Bit(argv[2]));
            QApplication::processEvents();
        }
        std::printf("%.6f\n", argc > 2 ? megabytesNow() : processorSeconds());
        std::fflush(stdout);
        configuration.remove(); // nothing behind the next line does
        _exit(0);
    }
    Report report;
    const QString program = QString::fromLocal8Bit(argv[0]);
    measureStart(report, program);
    for (const int tasks : {1000, 10000, 100000})
        measure(report, program, tasks);
    return 0;
}
