#pragma once
#include "edits/planedits.h"
#include "edits/settle.h"
#include "edits/stepaction.h"
#include "engine/record/outline.h"
#include <vector>

class KWTaskInfo;
struct TaskRecord;

// The step that is being made.
struct EditStep
{
    KWDocument &document;
    QString name;
    std::vector<std::unique_ptr<TaskAction>> records;
    bool wasModified = false; // the document, before the first of them
};

// One call at work: it judges, then begins, changes and finishes.
//
// An edit that was refused is dropped with its record; it must not have changed anything. So all is judged
// beforehand.
class OneEdit
{
public:
    explicit OneEdit(EditStep &step);

    KWDocument &document() const { return m_step.document; }
    outline::Tasks tasks() const;
    KWTaskInfo *task(quint32 id) const; // null when there is none
    KWTaskInfo *parentOf(const TaskRecord &task) const;

    // ---- Judging -----------------------------------------------------------------------------------------
    EditAnswer &refuse(EditRefusal refusal, const QStringList &arguments = {});
    bool isRefused() const { return !answer.isDone(); }
    // The tasks of these IDs in list order, each once; refuses when one is missing or there is none.
    std::vector<KWTaskInfo *> named(const QVector<quint32> &ids);
    // As a user knows the task: its row number and name.
    QString nameOf(const TaskRecord &task) const;

    // ---- Recording ---------------------------------------------------------------------------------------
    // Rows: tasks come, go or change places; all other changes of tasks are recorded one by one.
    enum Backup : unsigned { SingleTasks = 0, AllTasks = 1, Sheet = 2, Options = 4, Columns = 8, Rows = 16 };
    enum Reach { MovesTasks, MovesNothing };
    // Begins the edit: what is kept of all that it changes. Without AllTasks single tasks follow.
    void begin(unsigned backups, Reach reach = MovesTasks);
    void keepValues(TaskRecord &task); // and those of the summaries above it
    void keepAssignments(TaskRecord &task);
    // What goes along with the dates or links of the task. What follows from them is kept while it is
    // settled.
    void keepReach(TaskRecord &task);
    void keepTask(TaskRecord &task);    // all of one, and nothing else
    void keepLeaving(TaskRecord &task); // one that leaves the list, before anything changes

    // ---- Changing ----------------------------------------------------------------------------------------
    settling::Changes changes;
    EditAnswer answer;
    void changed(const TaskRecord &task);
    void childrenChanged(const TaskRecord *summary); // null: the top level
    // The task is going to get children. What it cannot keep as a summary is taken away, and told, at the
    // end.
    void mayBecomeSummary(TaskRecord &task);
    // Takes away the links of summaries that got children which these links do not suit any more.
    void mayNotSuitLinks(TaskRecord &summary);
    void lose(EditLoss::Kind kind, const TaskRecord &task, const QString &name = {}, quint32 other = 0);

    // Settles and hands the record to the step.
    EditAnswer finish();
    // The same where nothing follows but rows that stand elsewhere.
    EditAnswer finishRows();

private:
    struct Dates
    {
        int pos; // in the list, unless the list is another now
        quint32 id;
        quint32 start;
        quint32 finish;
    };
    void keepDates();
    void takeFromSummaries();
    void dropUnsuitedLinks();
    void listMoves(const QVector<settling::Push> &pushes, const QVector<quint32> &edited);
    std::vector<Dates> datesBefore() const;
    EditAnswer takeBack();

    EditStep &m_step;
    std::unique_ptr<TaskAction> m_record;
    bool m_hasAllTasks = false;
    bool m_wasModified = false;
    Reach m_reach = MovesTasks;
    std::vector<Dates> m_datesBefore; // of all tasks, where all of them are kept
    std::vector<quint32> m_newSummaries;
    std::vector<quint32> m_linkedSummaries;
};
