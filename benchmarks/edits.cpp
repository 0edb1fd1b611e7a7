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

void compare(const char *name, int tasks, double byHand, double through)
{
    std::printf("%-34s %8d %11.6f s by hand %11.6f s through PlanEdits  %5.2fx\n", name, tasks, byHand,
                through, through / byHand);
    std::fflush(stdout);
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
    ActionManager &actions = document->actionManager();
    const auto nothing = [] {};
    const auto undo = [&] { actions.undo(1); };
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
        const double byHand =
            best(runs, longer, [&] { stretchByHand(*document, *document->getTaskInfoByID(task), days); });
        const double through = best(runs, longer, [&] { stretch(task, days); });
        compare(task == id ? "stretch a task in the middle" : "stretch the last task", tasks, byHand,
                through);
    }
    compare("rename a task", tasks,
            best(runs, nothing,
                 [&] {
                     ActionManager::preUndoAction(document.get(), editType, 0);
                     ActionManager::addChangeTaskInfo(document->getTaskInfoByID(id));
                     document->getTaskInfoByID(id)->Name += QLatin1Char('x');
                     ActionManager::addUndoAction();
                 }),
            best(runs, nothing, [&] {
                TaskValues values;
                values.name = document->getTaskInfoByID(id)->Name + QLatin1Char('x');
                PlanEdits(*document, QStringLiteral("Edit")).set({id}, values);
            }));
    compare("insert a task in the middle", tasks, best(runs, nothing, [&] { insertByHand(*document, row); }),
            best(runs, nothing,
                 [&] { PlanEdits(*document, QStringLiteral("Edit")).insert(id, PlanEdits::Above); }));
    const int inner = middleRow(*document);
    const quint32 innerId = document->getTaskInfoByRow(inner)->ID;
    indentByHand(*document, inner);
    compare("indent a task", tasks, best(runs, undo, [&] { indentByHand(*document, inner); }),
            best(runs, undo, [&] { PlanEdits(*document, QStringLiteral("Edit")).indent({innerId}); }));
    compare(
        "undo an insertion", tasks,
        [&] {
            insertByHand(*document, row);
            const double least = best(
                runs, [&] { actions.redo(); }, undo);
            return least;
        }(),
        [&] {
            PlanEdits(*document, QStringLiteral("Edit")).insert(id, PlanEdits::Above);
            return best(
                runs, [&] { actions.redo(); }, undo);
        }());
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
        for (int tasks = 10000; tasks <= largest; tasks *= 10)
            measure(tasks, assignments);
    }
    return 0;
}
