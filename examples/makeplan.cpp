// A host of one page: makes a plan, links it, schedules it, changes it with undo, prints it and saves it.
//     makeplan PLAN.kwpx
#include <QGuiApplication>
#include <QTextStream>
#include <kwgantt/editing/actionmanager.h>
#include <kwgantt/model/kwdocument.h>
#include <kwgantt/model/kwtaskinfo.h>
#include <kwgantt/schedule/kwtaskcollection.h>

namespace {

constexpr unsigned int dayUnit = 4;
enum UndoType { TakeLonger = 1 };

// Working days from a moment of the day clock on.
void setDates(KWDocument &document, KWTaskInfo &task, quint32 start, double days)
{
    task.Start = KWTaskCollection::moveForwarstartOnDayOff(&document, start, false);
    task.Finish = KWTaskInfo::backwardsDateTime(&document, task.Start, days, dayUnit);
    document.taskCollection()->refreshTask(&task); // its length, its work and its bar follow
}

void print(KWDocument &document, const QString &heading)
{
    QTextStream out(stdout);
    out << heading << '\n';
    for (KWTaskInfo *task : document.taskList())
        out << "  " << (task->CriticalPath ? '!' : ' ') << ' ' << task->Name.leftJustified(10)
            << KWTaskInfo::showDateTime(&document, task->Start, true).toString("yyyy-MM-dd hh:mm") << "  "
            << KWTaskInfo::showDateTime(&document, task->Finish, false).toString("yyyy-MM-dd hh:mm") << '\n';
}
}

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv); // texts are measured, so fonts are needed
    if (argc != 2)
        qFatal("usage: makeplan PLAN.kwpx");

    KWDocument document; // works Monday to Friday, 08:00-12:00 and 13:00-17:00
    const quint32 monday = quint32(QDateTime(QDate(2026, 3, 2), QTime(0, 0)).toSecsSinceEpoch());
    const struct
    {
        const char *name;
        double days;
    } work[] = {{"Design", 3}, {"Order", 1}, {"Build", 5}};
    for (const auto &piece : work) {
        KWTaskInfo *task = document.addTaskInfo(); // the document owns it
        task->Name = QString::fromUtf8(piece.name);
        setDates(document, *task, monday, piece.days);
    }

    // Design, then Build; Order, then Build.
    KWTaskCollection &schedule = *document.taskCollection();
    KWTaskInfo *design = document.getTaskInfoByName("Design");
    KWTaskInfo *build = document.getTaskInfoByName("Build");
    schedule.taskDependTask(design, build);
    schedule.taskDependTask(document.getTaskInfoByName("Order"), build);
    schedule.pushAllSuccessors();
    document.updateAllTaskEarlyLate(); // late dates, slack, the critical path
    print(document, "Scheduled");

    // An edit keeps what it is going to change first; here also the tasks that it can push.
    ActionManager::s_undoString.insert(TakeLonger, "Take longer");
    ActionManager::preUndoAction(&document, TakeLonger, 0);
    ActionManager::backupAffected(design);
    setDates(document, *design, design->Start, 5);
    schedule.pushAllSuccessors();
    ActionManager::addUndoAction();
    document.updateAllTaskEarlyLate();
    print(document, "Design takes longer");

    document.actionManager().undo(1);
    document.updateAllTaskEarlyLate();
    print(document, "Taken back");

    schedule.updateRageAndTaskPoint(); // the chart's range and bars, which the file holds too
    return document.save(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
