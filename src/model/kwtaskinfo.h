#pragma once
#include "editing/kwhyperlink.h"
#include "engine/record/taskrecord.h"
#include "kwgantt_export.h"
#include <QDateTime>
#include <QDomElement>
#include <QPair>
#include <QStringList>
#include <QTime>

class KWDocument;
class UndoItemData;

// One task: a row of the task table and a bar of the chart.
//
// Times are unsigned seconds since 1970-01-01 00:00 UTC on the day clock; 0 means not set and a finish is
// exclusive. Tasks refer to each other by ID only. The owner is the document's task list.
class KWGANTT_EXPORT KWTaskInfo : public TaskRecord
{
public:
    // The fields of the task itself are those of the record.
    KWHyperlinkSheet hyperlinks;

    // While set, moves and stretches on a day-based scale do not snap to the chart's grid.
    static bool s_isSetTime;

    // ---- Construction and copies (model/kwtaskinfo.cpp) ---------------------------------------------------
    KWTaskInfo();
    KWTaskInfo(const KWTaskInfo &other); // a default font, then as operator=
    ~KWTaskInfo();
    KWTaskInfo &operator=(const KWTaskInfo &other); // everything but the font; shares the assignments
    void assign(const KWTaskInfo &other);           // as operator= without the bar and its widths
    void clear();
    bool isEmpty() const;
    static QString unitString(unsigned int unit);

    // ---- XML (model/kwtaskinfo.cpp) -----------------------------------------------------------------------
    // Appends a "Task" element; an empty task writes nothing. Numbers that are not finite are written as 0,
    // texts without the characters that XML cannot carry.
    void saveTo(QDomElement &parent, unsigned int version) const;
    // Attributes that are absent or empty leave their fields as they were; IDs join those in the lists. True.
    bool parse(const QDomElement &element, unsigned int version);

    // ---- Undo records (editing/kwtaskinfo_undo.cpp) -------------------------------------------------------
    // All values but the assignments. A record of another make is left aside.
    void getUndoVal(UndoItemData *item) const;
    void setUndoVal(const UndoItemData *item);

    // ---- Children and links, by ID ------------------------------------------------------------------------
    // Reading outside a list gives 0, writing outside it does nothing, insertions are clamped to it and leave
    // an ID that is in the list already where it is. Removing and replacing by ID take the first occurrence.
    quint32 getTaskChildIDAt(int index) const;
    quint32 getTaskChildIDByID(quint32 id) const;
    void removeTaskChildIDAt(int index);
    void removeTaskChildIDByID(quint32 id);
    void replaceChlidIDAt(int index, quint32 id);
    void replaceChlidIDByID(quint32 oldId, quint32 newId);
    void insertTaskChildID(int index, quint32 id);
    // Adds a child that is in the document: before the last child when it stands before it in the task list,
    // else at the end.
    void addTaskInfoChildID(KWDocument *document, quint32 id);

    quint32 getDependIDAt(int index) const;
    void replaceDependIDAt(int index, quint32 id);
    void removeDependIDByID(quint32 id);
    void insertDependID(int index, quint32 id);
    quint32 getDependOnIDAt(int index) const;
    void replaceDependOnIDAt(int index, quint32 id);
    void removeDependOnIDByID(quint32 id);
    void insertDependOnID(int index, quint32 id);

    // ---- Display ------------------------------------------------------------------------------------------
    // The tags of the successors (false) or predecessors (true), joined by "; "; tags below 1 are left out.
    QString getDependOnListTagContent(KWDocument *document, bool predecessors) const;
    QString getHyperlinksContent(bool addresses) const;
    void initFont();
    void move(int dx); // pixels

    // ---- Progress levels ----------------------------------------------------------------------------------
    void setPercent(double percent); // NaN is 0; clamped to 0..1
    static double percentOfIndex(int index);
    static double percentOfIndex(const QString &label);
    static bool isPercentOfIndex(double fraction);
    static int indexFromPercent(double fraction); // 1..9

    // ---- Working time (schedule/kwtaskinfo_worktime.cpp) --------------------------------------------------
    static bool isWorkday(KWDocument *document, const QDateTime &when);
    static bool isWorkTime(KWDocument *document, const QDateTime &when);
    static quint32 startOrFinishHour(KWDocument *document, bool start);
    static quint32 dayWorkTime(KWDocument *document, const QDateTime &when); // hours
    static quint32 dayTimeOff(KWDocument *document, const QDateTime &when);  // hours
    // Hours between two moments of the hour clock: breaks of one date, and working time.
    static double dayTimeStartToFinishOff(KWDocument *document, const QDateTime &start,
                                          const QDateTime &finish);
    static double dayTimeStartToFinishWorkTime(KWDocument *document, const QDateTime &start,
                                               const QDateTime &finish);
    static quint32 secsHourTransDay(KWDocument *document, quint32 secs); // shown -> stored
    static quint32 secsDayTransHour(KWDocument *document, quint32 secs); // stored -> shown
    static QDateTime showDateTime(KWDocument *document, quint32 secs, bool start);
    // A typed time in stored form. A finish inside working hours comes back as the last day: whoever stores
    // it adds one day and passes it through addFinishOnDayOff.
    static QDateTime editTimeTransDayTime(KWDocument *document, const QDateTime &typed, bool start);
    static QTime secsToTime(quint32 secsOfDay, bool ignored = true);
    static quint32 timeToSecs(const QTime &time, bool start);
    static QDateTime getDateTime(const QDateTime &moment); // one second earlier
    static void onWeekWorkDays(KWDocument *document, QList<unsigned int> &days, bool work);
    static bool isHaveWorkDay(KWDocument *document);
    static quint32 totalDayOff(KWDocument *document, quint32 startSecs, quint32 finishSecs);
    static double totalWorkDays(KWDocument *document, quint32 startSecs, quint32 finishSecs,
                                unsigned int unit);
    static bool dateOnDayOff(KWDocument *document, const QDateTime &when);

    // ---- Durations (schedule/kwtaskinfo_dates.cpp) --------------------------------------------------------
    static quint32 durationSecs(KWDocument *document, quint32 start, quint32 finish, unsigned int unit);
    static double getDurationValue(KWDocument *document, quint32 durationSecs, unsigned int unit);
    static quint32 backwardsDateTime(KWDocument *document, quint32 start, double value, unsigned int unit);
    static quint32 getTaskPercentFinishSecs(KWDocument *document, const KWTaskInfo *task);
    static double getDurValueByTaskInfo(KWDocument *document, const KWTaskInfo *task);
    static double stretchDayOff(KWDocument *document, quint32 start, quint32 finish);
    static quint32 removeLastDayOff(KWDocument *document, quint32 secs);

    // ---- Moves and stretches (schedule/kwtaskinfo_moves.cpp) ----------------------------------------------
    // Snaps a moment to the chart's grid; may move the chart's origin to an earlier midnight.
    quint32 onHalfOrOneDaySecs(KWDocument *document, quint32 secs) const;
    // Moves the task to a chart position, not before the reference's finish; `snap` uses the grid.
    void moveToStop(KWDocument *document, double x, const KWTaskInfo *reference, bool snap);
    // Moves the start to a moment (day clock), pushed off non-working time; the finish moves by the same
    // seconds.
    void moveStartTo(KWDocument *document, quint32 secs);
    void updateMoveAfter(KWDocument *document, double x);
    // Drags the finish to a chart position.
    void stretch(KWDocument *document, double x, bool snap);

    // ---- Chart positions (schedule/kwtaskinfo_dates.cpp) --------------------------------------------------
    // Where a milestone is anchored on the document's scale.
    static quint32 milestoneSecs(KWDocument *document, quint32 secs);
    int taskDayPoint(KWDocument *document, bool start) const; // whole pixels
    int taskHourPoint(KWDocument *document, bool start) const;
    int taskMinutePoint(KWDocument *document, bool start) const;
    void updateOneTaskFirstWidth(KWDocument *document);

    // ---- Late dates and slack (schedule/kwtaskinfo_dates.cpp) ---------------------------------------------
    void updateEarlyLate(KWDocument *document, quint32 projectFinish);
    // Appends `sum` plus the lengths of the successors for each path from `task` to a task without
    // successors. One sum for each path is exponential by nature: of a network with more than
    // latedates::maxPaths only the greatest.
    static void recurDependTaskMaxDurValue(KWDocument *document, const KWTaskInfo *task, double &sum,
                                           QList<double> &sums);

    // ---- Roll-ups (schedule/kwtaskinfo_rollup.cpp) --------------------------------------------------------
    void updateParentPercent(KWDocument *document);
    void basisSubUpdateBaselineStartAndFinish(KWDocument *document);
    void updateParentBaselineStartAndFinish(KWDocument *document);
    bool recurveShowOrHide(KWDocument *document, KWTaskInfo *summary, KWTaskInfo *task, bool hide);

    // ---- Assignments (resources/kwtaskinfo_assign.cpp) ----------------------------------------------------
    // Names are compared trimmed; of several assignments of one name the first counts. What only changes the
    // list leaves costs and names to the caller.
    Resource *getResourceAt(int index) const; // null outside the list
    Resource *getResourceByName(const QString &name) const;
    static bool isResourceContains(const QList<Resource *> &resources, const Resource *resource);
    bool isActiveTaskResource(const QString &name) const { return getResourceByName(name) != nullptr; }
    bool isSubHaveResource(KWDocument *document) const; // this task or any below it
    // Appends the assignments of the leaves below this task, each with its leaf; those of one name are not
    // merged.
    void allSubTaskResourceList(KWDocument *document,
                                QList<QPair<KWTaskInfo *, Resource *>> &assignments) const;
    // Assigns a resource with the rates of its sheet entry, or takes it away; rolls costs and names up. A
    // summary takes no assignments.
    void addOrDelResourceByName(KWDocument *document, const QString &name, bool add);
    void deleteResourceByID(int id); // every assignment of that sheet ID
    void clearResources();           // gives back every use and empties the list
    // New records with the same values, for copies that must not follow later edits; the caller owns their
    // uses.
    QList<Resource *> cloneResources() const;
    // Working seconds of each assignment from the task's duration.
    void updateResourceWorkSecs(KWDocument *document);

    // The names text of this task and of its ancestors. A summary shows the distinct names of the leaves
    // below it and loses assignments of its own.
    void updateResourceName(KWDocument *document);
    void basisSubUpdateResourceName(KWDocument *document);                    // this summary alone
    void subTaskResourceName(KWDocument *document, QStringList &names) const; // appends those not yet in it
    // The ancestors alone; with `own` false as if this task and what is below it had left.
    void updateParentResources(KWDocument *document, bool own);
    void outdentUpateParentResources(KWDocument *document); // the direct parent, as if this task had left
    // A task that holds the new name already loses the assignment of the old one.
    void replaceResourceName(KWDocument *document, const QString &oldName, const QString &newName);

    // ---- Cost and work (resources/kwtaskinfo_cost.cpp) ----------------------------------------------------
    // Work counts in the task's own duration unit, a summary's in hours. Without a document: nothing, and 0.
    double resourceWork(KWDocument *document, const Resource *resource) const;
    double transforHourWork(KWDocument *document, double work) const; // unit of the task -> hours
    double resourceCost(KWDocument *document, const Resource *resource) const;
    // From the assignments, or for a summary from the leaves; ancestors take the change, then remaining cost.
    void updateCostAndWork(KWDocument *document);
    void updateRemainCost(KWDocument *document);
    // Add a change to every ancestor. Work changes come in this task's unit when it is a leaf or with
    // `force`, else in hours.
    void updateParentCostAndWork(KWDocument *document, double costChange, double workChange, bool force);
    void updateParentCompletCost(KWDocument *document, double change);
    void updateParentStrBaseCost(KWDocument *document, double change);
    // A summary's own values from the leaves below it; its ancestors stay.
    void basisSubUpdateCostAndWork(KWDocument *document);
    void basisSubUpdateCompletCost(KWDocument *document);
    void basisSubUpdateStrBaseCost(KWDocument *document);
    void basisSubUpdateFromSomeColumn(KWDocument *document); // all of them, names and baseline dates
    // This task's values join its ancestors or leave them.
    void updateParentInfoFromSomeColumn(KWDocument *document, bool added, bool namesByCaller);

private:
    friend class KWDocument;
    void copyOwned(const KWTaskInfo &other); // hyperlinks, and shared uses of the assignments
    int m_places = 0;                        // how often the owning document's list holds this record
};

// Every record in a document's list is a task.
inline KWTaskInfo *asTask(TaskRecord *record)
{
    return static_cast<KWTaskInfo *>(record);
}
inline const KWTaskInfo *asTask(const TaskRecord *record)
{
    return static_cast<const KWTaskInfo *>(record);
}
