// Measures recording, undoing and redoing edits of generated projects, and what a full stack of them holds. A
// program of its own, so that the memory it reports is its own.
#include "costs.h"
#include "editing/actionmanager.h"
#include "generator.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "report.h"
#include "schedule/kwtaskcollection.h"
#include "table/rowcolumndata.h"
#include <QGuiApplication>
#include <cstdio>
#include <malloc.h>

namespace {

constexpr int editType = 1;
constexpr int runs = 9;
constexpr double bytesPerMegabyte = 1024.0 * 1024.0;

double megabytes()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks + info.hblkhd) / bytesPerMegabyte;
}

void record(KWDocument &document, const std::function<void()> &recorders)
{
    ActionManager::preUndoAction(&document, editType, 0);
    recorders();
}

// Times the recording without the edit, then undo and redo of the last edit.
void measureEdit(Report &report, const char *name, KWDocument &document,
                 const std::function<void()> &recorders, const std::function<void()> &edit)
{
    const int tasks = document.taskCount();
    ActionManager &actions = document.actionManager();
    double recording = 1e9;
    for (int run = 0; run < runs; ++run) {
        const double before = secondsOf([&] { record(document, recorders); });
        edit();
        recording = std::min(recording, before + secondsOf([] { ActionManager::addUndoAction(); }));
    }
    const auto nothing = [] {};
    report.line(std::string("record ") + name, tasks, recording);
    report.line(std::string("undo ") + name, tasks,
                best(
                    runs, [&] { actions.redo(); }, [&] { actions.undo(1); }));
    report.line(std::string("redo ") + name, tasks,
                best(
                    runs, [&] { actions.undo(1); }, [&] { actions.redo(); }));
    actions.undo(runs);
    record(document, nothing);
    ActionManager::addUndoAction(); // drops what can be redone
}

// The row of a leaf near the middle.
int middleRow(const KWDocument &document)
{
    int row = document.visibleRowCount() / 2;
    while (document.getTaskInfoByRow(row)->isParent())
        ++row;
    return row;
}

void copyTasks(const KWDocument &document)
{
    std::vector<KWTaskInfo> copies;
    copies.reserve(std::size_t(document.taskCount()));
    for (const KWTaskInfo *task : document.taskList())
        copies.push_back(*task);
}

// A stack of edits of one kind: what all of them hold together.
void measureStack(const char *name, KWDocument &document, double documentMegabytes,
                  const std::function<void()> &recorders, const std::function<void(int)> &edit)
{
    const double before = megabytes();
    const int level = document.actionManager().getUndoLevel();
    for (int step = 0; step < level; ++step) {
        record(document, recorders);
        edit(step);
        ActionManager::addUndoAction();
        if (step == 0)
            std::printf("    (the first of them: %.2f MB)\n", megabytes() - before);
    }
    const double held = megabytes() - before;
    std::printf("%-34s %8d %11.2f MB = %.2fx the document's\n", name, document.taskCount(), held,
                held / documentMegabytes);
    for (int step = 0; step < level; ++step)
        document.actionManager().undo(1);
    record(document, [] {});
    ActionManager::addUndoAction();
}

void measure(Report &report, int tasks, int assignmentsPerLeaf)
{
    const double empty = megabytes();
    generator::Shape shape;
    shape.tasks = tasks;
    const auto document = generator::document(generator::plan(shape), shape);
    document->rowColumnData()->setRowHeightCount(tasks);
    document->taskCollection()->pushAllSuccessors();
    if (assignmentsPerLeaf > 0) {
        costs::assign(*document, std::max(10, tasks / 100), assignmentsPerLeaf);
        document->updateResourcesName(); // as after any load or edit
    }
    document->updateCostCompletCostWork();
    document->updateAllTaskEarlyLate();
    document->taskCollection()->updateTaskCollection();
    const double size = megabytes() - empty;
    std::printf("%d tasks with %d assignments a leaf: %.1f MB\n", document->taskCount(), assignmentsPerLeaf,
                size);

    const auto nothing = [] {};
    report.line("(copying every task)", tasks, best(3, nothing, [&] { copyTasks(*document); }));
    const int row = middleRow(*document);
    KWTaskInfo *task = document->getTaskInfoByRow(row);
    measureEdit(
        report, "one task", *document,
        [&] { ActionManager::addChangeTaskInfo(document->getTaskInfoByRow(row)); },
        [&] { document->getTaskInfoByRow(row)->Priority += 1; });
    measureEdit(
        report, "a task with all it can push", *document, [&] { ActionManager::backupAffected(task); },
        [&] { document->getTaskInfoByRow(row)->Priority += 1; });

    report.line("record every task, the first time", tasks, secondsOf([&] {
                    record(*document, [] { ActionManager::backAllTaskData(); });
                    ActionManager::clearUndoAction();
                }));
    measureEdit(
        report, "an insert in the middle", *document, [] { ActionManager::backAllTaskData(); },
        [&] { document->insertTaskByRow(row); });
    constexpr int pastedTasks = 1000;
    QList<int> rows; // of leaves: a summary would bring along what is below it
    for (int copied = tasks / 3; rows.size() < pastedTasks && copied < document->visibleRowCount();
         ++copied) {
        if (!document->getTaskInfoByRow(copied)->isParent())
            rows.append(copied);
    }
    document->clipbdManager().copy(rows);
    measureEdit(
        report, "a paste of 1,000 tasks", *document,
        [] {
            ActionManager::backAllTaskData();
            ActionManager::backupAllColData();
        },
        [&] { document->clipbdManager().paste(row); });

    measureStack(
        "60 tasks changed", *document, size,
        [&] { ActionManager::addChangeTaskInfo(document->getTaskInfoAt(5)); },
        [&](int) { document->getTaskInfoAt(5)->Notes += QLatin1Char('x'); });
    measureStack(
        "60 inserts all over", *document, size, [] { ActionManager::backAllTaskData(); },
        [&](int step) { document->insertTaskByRow(tasks / 61 * step); });
    measureStack(
        "60 moves, half the list each", *document, size, [] { ActionManager::backAllTaskData(); },
        [&](int) {
            const int place = document->taskCount() / 2;
            document->moveTaskInfo(document->getTaskInfoAt(place), place, 0);
        });
}
}

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    ActionManager::s_undoString.insert(editType, QStringLiteral("Edit"));
    const int largest = argc > 1 ? std::atoi(argv[1]) : 100000;
    for (const int assignments : {0, 2}) {
        Report report;
        for (int tasks = 10000; tasks <= largest; tasks *= 10)
            measure(report, tasks, assignments);
    }
    return 0;
}
