// Measures copy, cut and paste of about a thousand tasks in the middle of generated projects, beside what any
// structural edit costs: the roll-up of all dates and the place of all bars.
#include "costs.h"
#include "engine/text/columntypes.h"
#include "generator.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "report.h"
#include "schedule/kwtaskcollection.h"
#include "table/rowcolumndata.h"
#include <QGuiApplication>

namespace {

constexpr int wanted = 1000;

// Rows of summaries from the middle on, with about as many tasks as are wanted.
QList<int> rowsToCopy(const KWDocument &document)
{
    QList<int> rows;
    int tasks = 0;
    for (int row = document.visibleRowCount() / 2; row < document.visibleRowCount() && tasks < wanted;
         ++row) {
        const KWTaskInfo *task = document.getTaskInfoByRow(row);
        const KWTaskInfo *child = document.getTaskInfoByID(task->getTaskChildIDAt(0));
        if (!child || child->isParent())
            continue;
        rows.append(row);
        tasks += 1 + task->Childs.size();
    }
    return rows;
}

QList<int> rowsFrom(int row, int count)
{
    QList<int> rows;
    for (int i = 0; i < count; ++i)
        rows.append(row + i);
    return rows;
}

void measure(Report &report, int tasks)
{
    for (int type = 0; type < columntypes::count; ++type)
        RowColumnData::s_columnNames.insert(type, QStringLiteral("Column ") + QString::number(type));
    constexpr int runs = 9;
    generator::Shape shape;
    shape.tasks = tasks;
    const auto document = generator::document(generator::plan(shape), shape);
    document->taskCollection()->pushAllSuccessors();
    costs::assign(*document, std::max(10, tasks / 100), 2);
    document->updateCostCompletCostWork();
    document->taskCollection()->updateTaskCollection();
    document->rowColumnData()->setRowHeightCount(document->taskCount());
    const auto nothing = [] {};
    ClipbdManager &manager = document->clipbdManager();

    report.line("(roll-up of dates and bars)", tasks, best(runs, nothing, [&] {
                    document->taskCollection()->updateOptionTaskTime();
                    document->taskCollection()->updateRageAndTaskPoint();
                }));
    QList<int> rows = rowsToCopy(*document);
    report.line("copy", tasks, best(runs, nothing, [&] { manager.copy(rows); }));
    // A leaf in the middle, so that the pasted branches have ancestors.
    const int count = document->taskCount();
    int target = document->visibleRowCount() / 2;
    while (document->getTaskInfoByRow(target)->isParent())
        ++target;
    QList<int> pasted;
    const auto cut = [&] { manager.cut(pasted); };
    report.line("paste", tasks, best(runs, cut, [&] {
                    manager.paste(target);
                    pasted = rowsFrom(target, document->taskCount() - count);
                }));
    std::printf("    (%d tasks, %d at the top)\n", pasted.size(), rows.size());
    report.line("cut", tasks,
                best(
                    runs,
                    [&] {
                        if (document->taskCount() == count)
                            manager.paste(target);
                    },
                    cut));
}
}

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const int largest = argc > 1 ? std::atoi(argv[1]) : 100000;
    Report report;
    for (int tasks = 10000; tasks <= largest; tasks *= 10)
        measure(report, tasks);
    return 0;
}
