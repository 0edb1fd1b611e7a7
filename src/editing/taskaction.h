#pragma once
#include "editing/kwopeaction.h"
#include "editing/undoitems.h"
#include <memory>
#include <vector>

class KWTaskInfo;
class TaskBackups;
struct TaskRecord;
enum class Bars;
namespace latedates {
struct Values;
}

// The undoable edit: backups of what it changes, each kind optional.
//
// A recorder is called before the change. Of what is recorded twice the first backup stays, null is ignored.
// Where assignments come back, the costs and names texts of their tasks and of the summaries above follow
// from them, but for the values of tasks that are recorded: those come back as they were.
class KWGANTT_EXPORT TaskAction : public KWOpeAction
{
public:
    TaskAction(KWDocument *document, const QString &name, unsigned int type);
    ~TaskAction() override;

    bool execute() override { return unExecute(); }
    bool unExecute() override; // false without a document
    unsigned int type() const { return m_type; }

    // ---- Recorders ----------------------------------------------------------------------------------------
    void addChangeTaskInfo(KWTaskInfo *task); // all values of one task but its assignments
    // See TaskBackups::addMoved; with its assignments where it has any.
    void addMovedTask(TaskRecord &task);
    bool isExist(quint32 taskID) const; // whether the values of that task are recorded
    void addTaskInfoHyperlink(KWTaskInfo *task);
    void addTaskAllResources(KWTaskInfo *task); // all assignments of one task
    // The task, what a change of it can push, and the summaries above all of these: values, assignments and
    // the scale. Of the predecessors, whose links may change with it, the values.
    void backupAffected(KWTaskInfo *task);
    // Every task with all that belongs to it. An action that has this leaves single tasks aside.
    void backupAllTaskData();
    // The order of the list and the heights of its rows, and of tasks that leave it all that belongs to them.
    // False where several tasks have one ID: then every task has to be recorded.
    bool backupRows();
    void addLeavingTask(const KWTaskInfo &task); // after that, and before anything changes
    void backupAllColData();
    void addDocResource(ResourceInfo *info); // one entry of the sheet with its assignments
    void backupAllDocResources();            // the whole sheet and every task's assignments
    // The assignments follow the name. Those that the entry has are recorded, in case another one has the
    // new name.
    void addEditTaskResourceName(ResourceInfo *info);
    void backupChart();         // the project's span and the scale
    void backupAllOption();     // calendars, working time, options
    void backupWholeDocument(); // all of these, the page and the document's ID

    // The edit is made. What it did not change of single tasks is dropped, unless something else is recorded
    // that may change them when it comes back; nothing more is to be recorded then.
    void close(Bars bars);
    // See TaskBackups::addLate.
    void addLateValues(TaskRecord &task, const latedates::Values &now);
    const TaskBackups &singleTasks() const;

    // The assignments of an entry's name on all tasks, in document order; appended.
    void getAllContainResrourceTask(const ResourceInfo *info, QVector<UndoResource> &assignments) const;

    void clearUndoItemDatas();
    void clearUndoColDatas();
    void clearUndoDocResources();

    // Exchanges every backup with the document's state. Only a backup of every task refreshes the chart.
    bool swapData();
    // Brings every backup back for the last time: nothing is kept of the present state.
    bool takeBack();

private:
    struct Backups;
    enum class For { SwappingBack, Restoring }; // restoring alone asks for less
    Backups now(For purpose) const;
    void addSingleTasks(Backups &current, For purpose) const;
    void restore(Backups &backups, const Backups &current);
    template <typename Tasks>
    static void addConcerned(const Backups &backups, const Backups &current, Tasks &tasks);
    void restoreSheet(const Backups &backups, const Backups &current, bool withAssignments);
    void restoreSingleAssignments(const Backups &backups);

    unsigned int m_type;
    std::unique_ptr<Backups> m_backups;
};
