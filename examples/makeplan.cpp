// A host of one page: makes a plan, changes it, tells what followed, takes it back, prints it and saves it.
//     makeplan PLAN.kwpx
#include <QGuiApplication>
#include <QTextStream>
#include <kwgantt/editing/actionmanager.h>
#include <kwgantt/edits/planedits.h>
#include <kwgantt/model/kwdocument.h>
#include <kwgantt/model/kwtaskinfo.h>

namespace {

QTextStream out(stdout);

quint32 addTask(PlanEdits &edits, const char *name, quint32 start, double days)
{
    TaskValues values;
    values.name = QString::fromUtf8(name);
    values.start = start;
    values.length = TaskLength{days, duration::Day};
    return edits.add(values).tasks.value(0);
}

QString shown(KWDocument &document, quint32 secs, bool isStart)
{
    return KWTaskInfo::showDateTime(&document, secs, isStart).toString("yyyy-MM-dd hh:mm");
}

void print(KWDocument &document, const QString &heading)
{
    out << heading << '\n';
    for (const KWTaskInfo *task : document.taskList())
        out << "  " << (task->CriticalPath ? '!' : ' ') << ' ' << task->Name.leftJustified(10)
            << shown(document, task->Start, true) << "  " << shown(document, task->Finish, false) << '\n';
}

void showRefusal(const EditAnswer &answer)
{
    out << "Refused: " << answer.sentence() << '\n';
}

void tell(const EditLoss &loss)
{
    out << "Lost: " << loss.name << '\n';
}

void repaint(KWDocument &document, const QVector<EditMove> &moves)
{
    for (const EditMove &move : moves) {
        const KWTaskInfo *task = document.getTaskInfoByID(move.task);
        const KWTaskInfo *pusher =
            document.getTaskInfoByID(move.pushedBy); // null unless a predecessor pushed it
        out << "  " << task->Name << " finishes " << shown(document, move.finish, false) << " instead of "
            << shown(document, move.oldFinish, false) << (pusher ? ", behind " + pusher->Name : QString())
            << '\n';
    }
}
}

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv); // texts are measured, so fonts are needed
    if (argc != 2)
        qFatal("usage: makeplan PLAN.kwpx");

    KWDocument document; // works Monday to Friday, 08:00-12:00 and 13:00-17:00
    const quint32 monday = quint32(QDateTime(QDate(2026, 3, 2), QTime(0, 0)).toSecsSinceEpoch());

    // Design, then Build; Order, then Build.
    PlanEdits making(document, "Make the plan");
    const quint32 design = addTask(making, "Design", monday, 3);
    const quint32 order = addTask(making, "Order", monday, 1);
    const quint32 build = addTask(making, "Build", monday, 5);
    making.link({design, build});
    making.link({order, build});
    making.finish();
    print(document, "Planned");

    PlanEdits edits(document, "Take longer"); // one step of the undo menu, under this name
    TaskValues values;
    values.length = TaskLength{5, duration::Day};
    const EditAnswer answer = edits.set({design}, values);
    if (!answer.isDone())
        showRefusal(answer); // nothing has changed
    for (const EditLoss &loss : answer.losses)
        tell(loss); // what a task had to give up, such as the assignments of one that became a summary
    repaint(document, answer.moves); // every task that moved, from where to where, because of whom
    edits.finish();
    print(document, "Design takes longer");

    showRefusal(edits.link({build, design})); // changes nothing
    document.actionManager().undo(1);
    print(document, "Taken back");
    return document.save(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
