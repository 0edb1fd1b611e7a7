// Opens a file that may hold anything, and does to the document what a user would do next.
//
//   kwhostile ENTRY FILE      ENTRY is kwpx.load or kwpx.structure; prints "key=value" lines, ends with 0
//   kwhostile make FILE       writes the old version of a small plan
//   kwhostile save FILE       loads, changes and saves it; prints result= and modified=
//   kwhostile check FILE      prints "old", "new" or "neither"
//
// The follow-up operations have no result to check here: they have to end, within the limits of whoever runs
// this.
#include "kwfilepathmanager.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include "schedule/kwcalendar.h"
#include "schedule/kwtaskcollection.h"
#include "support/folder.h"
#include "support/sortedxml.h"
#include "table/rowcolumndata.h"
#include <QDir>
#include <QGuiApplication>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <cstdio>
#include <memory>
#include <string>

namespace {

const char *const oldName = "The old plan";
const char *const newName = "The new plan";

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

void fillTitles()
{
    static const char *const titles[] = {
        "ID",         "Name",       "Start",      "Finish",      "Duration", "Complete",   "Priority",
        "Resources",  "Links",      "Cost",       "Remaining",   "Work",     "EarlyStart", "EarlyFinish",
        "LateStart",  "LateFinish", "StartSlack", "FinishSlack", "Critical", "Notes",      "BaseStart",
        "BaseFinish", "BaseCost",   "Level",      "Predecessors"};
    for (int type = 0; type < int(std::size(titles)); ++type)
        RowColumnData::s_columnNames.insert(type, QString::fromLatin1(titles[type]));
}

// What saving would give.
std::string textOf(const KWDocument &document)
{
    const QTemporaryDir folder;
    if (!document.saveDocument(folder.path() + QLatin1Char('/')))
        return "(not written)";
    return sortedXml(folder::get(folder.path() + QLatin1String("/document.xml")));
}

void fillSmall(KWDocument &document, const char *name)
{
    for (quint32 id = 1; id <= 3; ++id) {
        auto *task = new KWTaskInfo;
        task->ID = id;
        task->Name = QString::fromLatin1(name);
        task->Start = 1773619200;
        task->Finish = task->Start + 86400 * id;
        document.appendTaskInfoList(task);
        document.rowColumnData()->appendRowHeight(RowColumnData::defaultRowHeight);
    }
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
        for (int row = 0; row < table.rowCount(); ++row)
            table.getRowHeightByRow(row);
        table.getColumnByName(table.getColumnDataByColumn(column)->title);
    }
}

void editOutline(KWDocument &document)
{
    document.addTaskInfo();
    const int last = document.visibleRowCount() - 1;
    document.indentTaskByRow(last);
    document.outdentTaskByRow(document.visibleRowCount() - 1);
    document.moveUpByRow(document.visibleRowCount() - 1);
    document.insertTaskByRow(0);
    document.insertSubTaskByRow(0);
    document.moveDownByRow(0);
    document.removeTaskByRow(document.visibleRowCount() / 2);
    document.removeTaskByRow(0);
    // Whatever was done, there is one height a task.
    say("heights after edits",
        document.rowColumnData()->rowHeights().size() == document.taskCount() ? "ok" : "wrong");
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
        say("resave", textOf(second) == textOf(document) ? "same" : "the second file differs");
}

int load(const QString &path, bool isStructure)
{
    KWDocument document;
    fillSmall(document, oldName);
    const std::string before = textOf(document);
    const bool isLoaded = isStructure ? document.loadStructure(path) : document.loadFromKWGT(path);
    say("result", isLoaded ? "true" : "false");
    if (!isLoaded && !isStructure)
        say("document", textOf(document) == before ? "same" : "changed");
    if (!isLoaded)
        return 0;
    sayFacts(document);
    sayResave(document);
    operate(document);
    return 0;
}

int make(const QString &path)
{
    KWDocument document;
    fillSmall(document, oldName);
    document.DocGuid = QStringLiteral("{11111111-1111-4111-8111-111111111111}");
    return document.save(path) ? 0 : 1;
}

int save(const QString &path)
{
    KWDocument document;
    bool isSaved = false;
    bool isModified = true;
    if (document.loadFromKWGT(path)) {
        for (KWTaskInfo *task : document.taskList())
            task->Name = QString::fromLatin1(newName);
        document.setModified(true);
        isSaved = document.save(QString());
        isModified = document.isModified();
    }
    say("result", isSaved ? "true" : "false");
    say("modified", isModified ? 1 : 0);
    return 0;
}

int check(const QString &path)
{
    KWDocument document;
    KWDocument expected;
    const char *found = "neither";
    if (document.loadFromKWGT(path)) {
        for (const auto &[name, said] : {std::pair(oldName, "old"), std::pair(newName, "new")}) {
            KWDocument plan;
            fillSmall(plan, name);
            plan.DocGuid = document.DocGuid;
            if (textOf(plan) == textOf(document))
                found = said;
        }
    }
    std::printf("%s\n", found);
    return 0;
}
}

// Without a folder for it in the environment Qt makes one among the temporary files and leaves it there.
struct RuntimeFolder
{
    const bool isQts = !qEnvironmentVariableIsSet("XDG_RUNTIME_DIR");
    ~RuntimeFolder()
    {
        if (isQts)
            QDir().rmdir(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation));
    }
};

int main(int argc, char **argv)
{
    const RuntimeFolder runtimeFolder;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const auto application = std::make_unique<QGuiApplication>(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: kwhostile ENTRY FILE\n");
        return 2;
    }
    const std::string entry = argv[1];
    const QString path = QString::fromLocal8Bit(argv[2]);
    fillTitles();
    if (entry == "make")
        return make(path);
    if (entry == "save")
        return save(path);
    if (entry == "check")
        return check(path);
    if (entry != "kwpx.load" && entry != "kwpx.structure") {
        std::fprintf(stderr, "kwhostile: no such entry: %s\n", argv[1]);
        return 2;
    }
    return load(path, entry == "kwpx.structure");
}
