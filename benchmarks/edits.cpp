// Measures one edit of a generated project, recorded and with all that follows from it: through PlanEdits,
// and by the chain of calls that a host makes by hand for the same outcome.
#include "costs.h"
#include "editing/actionmanager.h"
#include "edits/planedits.h"
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
constexpr unsigned int day = 4;
constexpr int runs = 9;

// What is the same whatever the edit was, by hand.
void followUp(KWDocument &document)
{
    ActionManager::addUndoAction();
    document.updateAllTaskEarlyLate();
    document.taskCollection()->updateRageAndTaskPoint();
    document.updateAllParentPercent();
}

void stretchByHand(KWDocument &document, KWTaskInfo &task, double days)
{
    ActionManager::preUndoAction(&document, editType, 0);
    ActionManager::backupAffected(&task);
    task.Finish = KWTaskInfo::backwardsDateTime(&document, task.Start, days, day);
    KWTaskCollection &collection = *document.taskCollection();
    collection.refreshTask(&task);
    task.updateCostAndWork(&document);
    task.updateParentPercent(&document);
    collection.pushSuccessorsOf({&task});
    collection.updateTaskInfoParentTime(&task);
    followUp(document);
}

void insertByHand(KWDocument &document, int row)
{
    ActionManager::preUndoAction(&document, editType, 0);
    ActionManager::backAllTaskData();
    document.insertTaskByRow(row);
    followUp(document);
}

void indentByHand(KWDocument &document, int row)
{
    ActionManager::preUndoAction(&document, editType, 0);
    ActionManager::backAllTaskData();
    document.indentTaskByRow(row);
    followUp(document);
}

// The row of a leaf near the middle with a leaf before it.
int middleRow(const KWDocument &document)
{
    int row = document.visibleRowCount() / 2;
    while (document.getTaskInfoByRow(row)->isParent() || document.getTaskInfoByRow(row - 1)->isParent())
        ++row;
    return row;
}

using Work = std::function<void()>;

// Both ways in turns, since what else the machine does changes from minute to minute.
void compare(const char *name, int tasks, const Work &prepare, const Work &byHand, const Work &through)
{
    double hand = 1e9;
    double edits = 1e9;
    for (int run = 0; run < runs; ++run) {
        prepare();
        hand = std::min(hand, secondsOf(byHand));
        prepare();
        edits = std::min(edits, secondsOf(through));
    }
    std::printf("%-34s %8d %11.6f s by hand %11.6f s through PlanEdits  %5.2fx\n", name, tasks, hand, edits,
                edits / hand);
    std::fflush(stdout);
}

double megabytes()
{
    constexpr double bytesPerMegabyte = 1024.0 * 1024.0;
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks + info.hblkhd) / bytesPerMegabyte;
}

// One stretch by a day that moves few, some or all tasks, with undo and redo; then a full stack of those that
// move all.
void measureReach(int tasks)
{
    generator::Shape shape;
    shape.tasks = tasks;
    generator::Plan plan = generator::plan(shape);
    int first = 0;
    while (plan.durationDays[std::size_t(first)] == 0)
        ++first;
    for (std::size_t leaf = std::size_t(first) + 1; leaf < plan.parent.size(); ++leaf) {
        if (plan.durationDays[leaf] > 0 && plan.predecessors[leaf].empty())
            plan.predecessors[leaf].push_back(first); // everything follows the first leaf
    }
    const auto document = generator::document(plan, shape);
    document->AutoZoom = false;
    document->taskCollection()->pushAllSuccessors();
    PlanEdits(*document, QStringLiteral("Edit")).schedule(PlanEdits::AsGiven);
    ActionManager &actions = document->actionManager();
    int loose = 0; // the leaf at the end of its chain that can finish latest without consequences
    qint64 most = -1;
    for (int pos = 0; pos < document->taskCount(); ++pos) {
        const KWTaskInfo &task = *document->getTaskInfoAt(pos);
        const qint64 slack = qint64(task.LateFinish) - task.Finish;
        if (task.isParent() || !task.Depends.isEmpty() || slack <= most)
            continue;
        most = slack;
        loose = pos;
    }
    double days = 60;
    int moved = 0;
    const auto stretch = [&](int pos) {
        TaskValues values;
        values.length = TaskLength{days, day};
        moved = PlanEdits(*document, QStringLiteral("Edit"))
                    .set({document->getTaskInfoAt(pos)->ID}, values)
                    .moves.size();
    };
    const auto longer = [&days] { days += 1; };
    // The leaf that takes along the number of tasks nearest to a tenth of all.
    int middle = first;
    int nearest = tasks;
    constexpr int tries = 40;
    for (int i = 1; i < tries; ++i) {
        int pos = int(qint64(tasks) * i / tries);
        while (document->getTaskInfoAt(pos)->isParent())
            ++pos;
        stretch(pos);
        longer();
        stretch(pos); // it has used up its slack
        if (std::abs(moved - tasks / 10) < nearest) {
            nearest = std::abs(moved - tasks / 10);
            middle = pos;
        }
        actions.undo(2);
    }
    for (const auto &[name, pos] : {std::pair{"few", loose}, {"a tenth", middle}, {"all", first}}) {
        const double edit = best(runs, longer, [&, at = pos] { stretch(at); });
        const double undo = best(
            runs, [&] { actions.redo(); }, [&] { actions.undo(1); });
        const double redo = best(
            runs, [&] { actions.undo(1); }, [&] { actions.redo(); });
        std::printf("%-34s %8d %11.6f s, undo %11.6f s, redo %11.6f s (%d tasks moved)\n",
                    (std::string("an edit that moves ") + name).c_str(), tasks, edit, undo, redo, moved);
    }
    actions.undo(actions.getUndoLevel());
    const auto stack = [&](const char *name, const Work &edit) {
        const double before = megabytes();
        for (int step = 0; step < actions.getUndoLevel(); ++step) {
            longer();
            edit();
        }
        const double held = megabytes() - before;
        std::printf("%-34s %8d %11.2f MB = %.1f bytes a moved task\n", name, tasks, held,
                    held * 1024 * 1024 / actions.getUndoLevel() / std::max(1, moved));
        actions.undo(actions.getUndoLevel());
    };
    stack("60 edits that move all", [&] { stretch(first); });
    KWTaskInfo &task = *document->getTaskInfoAt(first);
    stack("60 of them by hand", [&] { stretchByHand(*document, task, days); });
    std::fflush(stdout);
}

// A thousand leaves copied, pasted in the middle and cut again.
void measureClipboard(KWDocument &document, quint32 beside)
{
    constexpr int few = 9;
    constexpr int count = 1000;
    const int tasks = document.taskCount();
    QVector<quint32> ids;
    for (int pos = tasks / 3; ids.size() < count && pos < tasks; ++pos) {
        const KWTaskInfo &task = *document.getTaskInfoAt(pos);
        if (!task.isParent())
            ids.append(task.ID);
    }
    const auto nothing = [] {};
    const auto undo = [&] { document.actionManager().undo(1); };
    const auto line = [tasks](const char *name, double seconds) {
        std::printf("%-34s %8d %11.6f s\n", name, tasks, seconds);
    };
    line("copy 1,000 tasks",
         best(few, nothing, [&] { PlanEdits(document, QStringLiteral("Edit")).copy(ids); }));
    const auto paste = [&] { PlanEdits(document, QStringLiteral("Edit")).paste(beside, PlanEdits::Below); };
    paste();
    line("paste 1,000 tasks", best(few, undo, paste));
    line("undo of that", best(
                             few, [&] { document.actionManager().redo(); }, undo));
    const auto cut = [&] { PlanEdits(document, QStringLiteral("Edit")).cut(ids); };
    cut();
    line("cut 1,000 tasks", best(few, undo, cut));
    undo();
}

void measure(int tasks, int assignmentsPerLeaf)
{
    generator::Shape shape;
    shape.tasks = tasks;
    const auto document = generator::document(generator::plan(shape), shape);
    document->AutoZoom = false;
    document->rowColumnData()->setRowHeightCount(tasks);
    document->taskCollection()->pushAllSuccessors();
    if (assignmentsPerLeaf > 0)
        costs::assign(*document, std::max(10, tasks / 100), assignmentsPerLeaf);
    document->updateCostCompletCostWork();
    PlanEdits(*document, QStringLiteral("Edit")).schedule(PlanEdits::AsGiven);
    std::printf("%d tasks with %d assignments a leaf\n", document->taskCount(), assignmentsPerLeaf);

    const int row = middleRow(*document);
    const quint32 id = document->getTaskInfoByRow(row)->ID;
    const auto nothing = [] {};
    const auto last = [&] { return document->getTaskInfoAt(document->taskCount() - 1)->ID.value(); };
    const auto stretch = [&](quint32 task, double days) {
        TaskValues values;
        values.length = TaskLength{days, day};
        PlanEdits(*document, QStringLiteral("Edit")).set({task}, values);
    };
    // Every other stretch is a day longer, so that each one changes something.
    double days = 2;
    const auto longer = [&days] { days += 1; };
    for (const quint32 task : {id, last()}) {
        compare(
            task == id ? "stretch a task in the middle" : "stretch the last task", tasks, longer,
            [&] { stretchByHand(*document, *document->getTaskInfoByID(task), days); },
            [&] { stretch(task, days); });
    }
    compare(
        "rename a task", tasks, nothing,
        [&] {
            ActionManager::preUndoAction(document.get(), editType, 0);
            ActionManager::addChangeTaskInfo(document->getTaskInfoByID(id));
            document->getTaskInfoByID(id)->Name += QLatin1Char('x');
            ActionManager::addUndoAction();
        },
        [&] {
            TaskValues values;
            values.name = document->getTaskInfoByID(id)->Name + QLatin1Char('x');
            PlanEdits(*document, QStringLiteral("Edit")).set({id}, values);
        });
    compare(
        "insert a task in the middle", tasks, nothing, [&] { insertByHand(*document, row); },
        [&] { PlanEdits(*document, QStringLiteral("Edit")).insert(id, PlanEdits::Above); });
    measureClipboard(*document, id);
    const int inner = middleRow(*document);
    const quint32 innerId = document->getTaskInfoByRow(inner)->ID;
    const auto undo = [&] { document->actionManager().undo(1); };
    indentByHand(*document, inner);
    compare(
        "indent a task", tasks, undo, [&] { indentByHand(*document, inner); },
        [&] { PlanEdits(*document, QStringLiteral("Edit")).indent({innerId}); });
}
}

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    ActionManager::s_undoString.insert(editType, QStringLiteral("Edit"));
    const int largest = argc > 1 ? std::atoi(argv[1]) : 100000;
    for (int tasks = 10000; tasks <= largest; tasks *= 10)
        measureReach(tasks);
    for (const int assignments : {0, 2}) {
        for (int tasks = 10000; tasks <= largest; tasks *= 10)
            measure(tasks, assignments);
    }
    return 0;
}
