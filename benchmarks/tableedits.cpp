#include "tableedits.h"
#include "costs.h"
#include "engine/text/columntypes.h"
#include "generator.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "report.h"
#include "schedule/kwtaskcollection.h"
#include "table/rowcolumndata.h"

namespace tableedits {
namespace {

constexpr int windowRows = 60;
constexpr int windowColumns = 24;

// The texts of a window that begins in the middle; their length, so that nothing is left out.
int window(const KWDocument &document)
{
    int length = 0;
    const int first = (document.rowColumnData()->rowCount() - windowRows) / 2;
    for (int row = first; row < first + windowRows; ++row) {
        for (int column = 0; column < windowColumns; ++column)
            length += document.rowColumnData()->itemText(row, column).size();
    }
    return length;
}

// The row of a task near the middle that has siblings on both sides.
int middleRow(const KWDocument &document)
{
    int row = document.visibleRowCount() / 2;
    for (;; ++row) {
        const KWTaskInfo *task = document.getTaskInfoByRow(row);
        const KWTaskInfo *parent = document.getTaskInfoByID(task->ParentID);
        const int place = parent ? parent->Childs.indexOf(task->ID) : -1;
        if (place >= 3 && place + 3 < parent->Childs.size())
            return row;
    }
}
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
    document->updateAllTaskEarlyLate();
    document->taskCollection()->updateTaskCollection();
    document->rowColumnData()->initColumnDataList();
    for (RowColumnData::ColumnData *column : document->rowColumnData()->columns())
        column->isHide = false;
    const auto nothing = [] {};
    const int row = middleRow(*document);

    int length = 0;
    report.line("a window of the table", tasks, best(runs, nothing, [&] { length += window(*document); }));
    report.line("addTaskInfo", tasks, best(runs, nothing, [&] { document->addTaskInfo(); }));
    report.line("insertTaskByRow", tasks, best(runs, nothing, [&] { document->insertTaskByRow(row); }));
    report.line("removeTaskByRow", tasks, best(runs, nothing, [&] { document->removeTaskByRow(row); }));
    report.line(
        "insertSubTaskByRow", tasks,
        best(
            runs, [&] { document->removeTaskByRow(row + 1); }, [&] { document->insertSubTaskByRow(row); }));
    report.line("indentTaskByRow", tasks, best(1, nothing, [&] { document->indentTaskByRow(row); }));
    report.line("outdentTaskByRow, the last child", tasks,
                best(1, nothing, [&] { document->outdentTaskByRow(row); }));
    report.line("moveDownByRow", tasks, best(1, nothing, [&] { document->moveDownByRow(row); }));
    report.line("moveUpByRow", tasks, best(1, nothing, [&] { document->moveUpByRow(row + 1); }));
    report.line("outdentTaskByRow with followers", tasks,
                best(1, nothing, [&] { document->outdentTaskByRow(row); }));
    if (length == 42)
        std::printf(" ");
}
}
