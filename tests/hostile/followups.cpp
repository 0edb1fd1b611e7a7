#include "hostile/followups.h"
#include "editing/actionmanager.h"
#include "hostile/smallplan.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include "schedule/kwcalendar.h"
#include "schedule/kwtaskcollection.h"
#include "table/rowcolumndata.h"
#include <QTemporaryDir>
#include <cstdio>
#include <functional>

void say(const std::string &key, const std::string &value)
{
    std::string line = key + '=' + value;
    for (char &c : line) {
        if (c == '\n' || c == '\r')
            c = ' ';
    }
    std::printf("%s\n", line.c_str());
}

void say(const std::string &key, qint64 value)
{
    say(key, std::to_string(value));
}

void sayFacts(const KWDocument &document)
{
    say("tasks", document.taskCount());
    say("rows", document.visibleRowCount());
    say("resources", document.resourceInfoData()->infos.size());
    say("calendars", document.calendars.size());
    say("hours", document.workTimes.size());
    say("heights", document.rowColumnData()->rowHeights().size());
    std::string workDays;
    for (const bool isWorking : document.WorkDay)
        workDays += isWorking ? '1' : '0';
    say("workday", workDays);
    QList<quint32> top;
    document.taskParentZeroIDList(top);
    std::string ids;
    for (const quint32 id : qAsConst(top))
        ids += (ids.empty() ? "" : ",") + std::to_string(id);
    say("top", ids);
    constexpr int shownTasks = 20;
    for (int pos = 0; pos < qMin(document.taskCount(), shownTasks); ++pos) {
        const KWTaskInfo &task = *document.getTaskInfoAt(pos);
        const std::string id = std::to_string(task.ID);
        say("parent:" + id, task.ParentID);
        say("start:" + id, task.Start);
        say("name:" + id, task.Name.toStdString());
        const KWTaskInfo *found = document.getTaskInfoByID(task.ID);
        say("byid:" + id, found ? found->Name.toStdString() : "");
    }
}

namespace {

void expandAndCollapse(KWDocument &document)
{
    for (int pos = 0; pos < document.taskCount(); ++pos) {
        KWTaskInfo *task = document.getTaskInfoAt(pos);
        if (task->isParent()) {
            document.collapseTaskInfo(task);
            document.expandTaskInfo(task);
        }
    }
}

void walkDurations(KWDocument &document)
{
    constexpr unsigned int unitCount = 7;
    for (int pos = 0; pos < document.taskCount(); ++pos) {
        const KWTaskInfo &task = *document.getTaskInfoAt(pos);
        for (unsigned int unit = 0; unit < unitCount; ++unit) {
            const double value = KWTaskInfo::getDurationValue(&document, task.DurationSecs, unit);
            KWTaskInfo::backwardsDateTime(&document, task.Start, value, unit);
            KWTaskInfo::backwardsDateTime(&document, task.Finish, -value, unit);
            KWTaskInfo::durationSecs(&document, task.Start, task.Finish, unit);
        }
    }
}

void readCells(KWDocument &document)
{
    RowColumnData &table = *document.rowColumnData();
    for (int column = 0; column < table.columnCount(); ++column) {
        for (int row = 0; row < table.rowCount(); ++row) {
            table.getRowHeightByRow(row);
            table.itemText(row, column);
        }
        table.getColumnByName(table.getColumnDataByColumn(column)->title);
    }
}

// Each edit as one that can be undone.
void editOutline(KWDocument &document)
{
    constexpr int editType = 1;
    ActionManager::s_undoString.insert(editType, QStringLiteral("Edit"));
    const std::function<void()> edits[] = {[&] { document.addTaskInfo(); },
                                           [&] { document.indentTaskByRow(document.visibleRowCount() - 1); },
                                           [&] { document.outdentTaskByRow(document.visibleRowCount() - 1); },
                                           [&] { document.moveUpByRow(document.visibleRowCount() - 1); },
                                           [&] { document.insertTaskByRow(0); },
                                           [&] { document.insertSubTaskByRow(0); },
                                           [&] { document.moveDownByRow(0); },
                                           [&] { document.removeTaskByRow(document.visibleRowCount() / 2); },
                                           [&] { document.removeTaskByRow(0); }};
    for (const auto &edit : edits) {
        ActionManager::preUndoAction(&document, editType, 0);
        ActionManager::backAllTaskData();
        edit();
        ActionManager::addUndoAction();
    }
    document.actionManager().undo(int(std::size(edits)));
    for (size_t step = 0; step < std::size(edits); ++step)
        document.actionManager().redo();
    // Whatever was done, there is one height a task.
    say("heights after edits",
        document.rowColumnData()->rowHeights().size() == document.taskCount() ? "ok" : "wrong");
}

}

void operate(KWDocument &document)
{
    KWTaskCollection &scale = *document.taskCollection();
    document.updateDependTask(false);
    document.updateAllTaskEarlyLate();
    scale.updateOptionTaskTime();
    scale.firstOpenFitWidth();
    scale.updateRageAndTaskPoint();
    scale.updateTooSmallTotalWidth(1000);
    document.updateAutoPercent();
    document.updateAllParentPercent();
    document.updateCostCompletCostWork();
    document.updateResourcesName();
    document.resourceInfoData()->udpateWorkAndCost(&document);
    document.resourceInfoData()->updateWorkStarAndFinishWork(&document);
    readCells(document);
    scale.pushAllSuccessors();
    scale.linkRings();
    if (KWTaskInfo *first = document.getTaskInfoAt(0)) {
        scale.deleteDependOrDependOnID(first);
        document.getMaxLevel();
    }
    expandAndCollapse(document);
    walkDurations(document);
    editOutline(document);
}

void sayResave(KWDocument &document)
{
    const QTemporaryDir folder;
    const QString path = folder.path() + QLatin1String("/again.kwpx");
    KWDocument second;
    if (!document.saveToKWGT(path, true, false))
        say("resave", "the document could not be saved");
    else if (!second.loadFromKWGT(path))
        say("resave", "what was saved could not be loaded");
    else
        say("resave",
            smallplan::textOf(second) == smallplan::textOf(document) ? "same" : "the second file differs");
}

void sayFactsAndOperate(KWDocument &document)
{
    sayFacts(document);
    sayResave(document);
    operate(document);
}
