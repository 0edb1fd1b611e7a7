#pragma once
#include "engine/network/linkrefusal.h"
#include "kwgantt_export.h"
#include <QDateTime>
#include <QList>
#include <memory>
#include <vector>

class KWDocument;
class KWTaskInfo;
struct TaskRecord;
namespace latedates {
class Kept;
}
namespace linkgraph {
class KeptNetwork;
}
namespace outline {
struct Tasks;
}
namespace push {
struct Link;
}
namespace timerange {
class UnitDates;
}
namespace timescale {
class Scale;
}

// One task that a push moved: where it was, and the predecessor that pushed it (0: moved with its summary).
struct KWTaskMove
{
    quint32 id = 0;
    quint32 oldStart = 0;
    quint32 oldFinish = 0;
    quint32 pushedBy = 0;
};

// The chart's time axis, and the scheduling operations that span several tasks.
//
// Belongs to one document, which owns it. Moments are seconds since 1970 on the day clock, positions are
// chart pixels.
class KWGANTT_EXPORT KWTaskCollection
{
public:
    explicit KWTaskCollection(KWDocument *document);
    ~KWTaskCollection();
    KWTaskCollection(const KWTaskCollection &) = delete;
    KWTaskCollection &operator=(const KWTaskCollection &) = delete;

    KWDocument *document() const { return m_document; }

    // ---- Active task and its highlighted links (schedule/kwtaskcollection_links.cpp) ----------------------
    KWTaskInfo *getTaskInfoActive() const { return m_activeTask; }
    void setTaskInfoActive(KWTaskInfo *task); // null clears; marks the linked tasks
    void clearDependOrDependOnActive();
    // The document calls this before a task dies.
    void forgetTask(const KWTaskInfo *task);

    // ---- Links (schedule/kwtaskcollection_links.cpp) ------------------------------------------------------
    bool compareTaskAndDepenTask(KWTaskInfo *predecessor, KWTaskInfo *successor);
    // Pushes every successor of these tasks that starts too early, and down the chains, in one pass.
    void pushSuccessorsOf(const std::vector<KWTaskInfo *> &predecessors);
    // Rolls every summary up and pushes every successor that starts before a predecessor's finish, each task
    // at most once. Links that cannot hold push nothing (see linkRings). Returns how many tasks were pushed
    // or moved along with their summary; `moves` lists them in the order of the task list. Bars are left to
    // the caller.
    int pushAllSuccessors(QList<KWTaskMove> *moves = nullptr);
    // The rings of links, and of links together with the outline: the IDs of each ring's tasks, in list
    // order.
    QList<QList<quint32>> linkRings() const;
    // Makes a a predecessor of b. Looks through all that follows b: many links are better made by linkTasks.
    bool taskDependTask(KWTaskInfo *a, KWTaskInfo *b);
    // What taskDependTask would find, and for a loop the ring (see KWTaskLink).
    LinkRefusal linkRefusal(const KWTaskInfo *a, const KWTaskInfo *b, QList<quint32> *ring = nullptr) const;
    // taskDependTask on one after the other, for many links at once. Fills in what became of each; returns
    // how many were made.
    int linkTasks(QList<KWTaskLink> &wanted);
    bool taskEqualDependTask(const KWTaskInfo *a, const KWTaskInfo *task) const;
    KWTaskInfo *sameParentTask(const KWTaskInfo *a, const KWTaskInfo *b) const;
    void deleteDependOrDependOnID(KWTaskInfo *task);
    void deleteDependIDFromParent(KWTaskInfo *task, KWTaskInfo *x);
    void deleteDependOnIDFromParent(KWTaskInfo *task, KWTaskInfo *x);

    // ---- Outline walks and roll-ups (schedule/kwtaskcollection_rollup.cpp) --------------------------------
    void subIDListByTask(const KWTaskInfo *task, QList<quint32> &ids) const; // appended, pre-order
    void parentIDListByTask(const KWTaskInfo *task,
                            QList<KWTaskInfo *> &parents) const; // replaced, nearest first
    void updateTaskTimeToChildsTask(KWTaskInfo *summary, bool pushSuccessors);
    void updateTaskInfoParentTime(KWTaskInfo *task);
    void updateOptionTaskTime();

    // ---- Days off (schedule/kwtaskcollection_moves.cpp) ---------------------------------------------------
    // Each returns secs unchanged when no weekday works, 0 for a missing document.
    static quint32 moveBackOneDayStartOnDayOff(KWDocument *document, quint32 secs, bool hourClock);
    static quint32 moveForwarstartOnDayOff(KWDocument *document, quint32 secs, bool hourClock);
    static quint32 addFinishOnDayOff(KWDocument *document, quint32 secs, bool hourClock);
    static quint32 reduceFinishOnDayOff(KWDocument *document, quint32 secs, bool hourClock);
    static unsigned int continuousDayOff(KWDocument *document, quint32 secs); // dates

    // ---- Moves (schedule/kwtaskcollection_moves.cpp) ------------------------------------------------------
    static bool isStrechOrMoveToChange(const KWTaskInfo *task, quint32 oldStart, quint32 oldFinish);
    void moveAllSubTask(KWTaskInfo *summary, quint32 oldStart);
    void recalculateTask(KWTaskInfo *task, quint32 oldStart);

    // ---- Range and scale (schedule/kwtaskcollection.cpp) --------------------------------------------------
    quint32 getMinTaskStartSecs() const; // today's midnight without tasks
    quint32 getMaxTaskFinishSecs() const;
    void updateRange();
    void updateRangeOf(quint32 firstStart,
                       quint32 lastFinish); // the same for other moments than those of all tasks
    quint32 updateMinDateStartSecs(quint32 secs, unsigned int minor) const;
    quint32 updateMaxDateFinishSecs(quint32 secs, unsigned int minor) const;
    quint32 getQuarterMinDateStartSecs(quint32 secs) const;
    quint32 getMonthMinDateStartSecs(quint32 secs) const;
    quint32 getWeekMinDateStartSecs(quint32 secs) const;
    void appendMinorTypeDateTime();
    void setStDateToFiDate(const QDateTime &start, const QDateTime &finish);
    void updateTotalWidth();
    void updateTooSmallTotalWidth(int viewWidth); // pixels
    void firstOpenFitWidth();
    void updateTaskPoint();
    void updateRageAndTaskPoint();
    void updateTaskCollection();
    double getTaskPtBeginX(const KWTaskInfo *task) const;
    double getTaskPtEndX(const KWTaskInfo *task) const;

    quint32 secsFromPosition(double x) const; // 0 cancels an edit
    double positionFromSecs(quint32 secs) const;
    double dayPositionFromSecs(quint32 secs) const;
    double hourPositionFromSecs(quint32 hourSecs) const;   // hour clock
    double minutePositionFromSecs(quint32 hourSecs) const; // hour clock

    // Unit boundaries; an invalid date-time outside the list.
    QDateTime getYearDateListAt(int index) const;
    QDateTime getQuarterDateListAt(int index) const;
    QDateTime getMonthDateListAt(int index) const;
    QDateTime getWeekDateListAt(int index) const;
    QDateTime getDayDateListAt(int index) const;
    int unitCount(unsigned int minor) const; // entries of the list that matches the minor unit

    quint32 minDateStart() const { return m_minDateStart; }   // O, x = 0
    quint32 maxDateFinish() const { return m_maxDateFinish; } // E, start of the last unit
    int totalWidth() const { return m_totalWidth; }           // pixels
    void setMinDateStart(quint32 secs);

    // The document's scale as it stands, for passes over many tasks. Valid until an option, the calendar or
    // the range changes. There must be a document.
    timescale::Scale scale() const;
    // The late dates as they were worked out last, for passes that follow an edit. There must be a document.
    latedates::Kept &keptLateDates();
    // What follows what, as it was found last.
    linkgraph::KeptNetwork &keptNetwork();
    // After a task's dates changed: its duration, its assignments' work, its bar and its widths.
    void refreshTask(KWTaskInfo *task);

private:
    struct Span
    {
        quint32 start = 0;
        quint32 finish = 0;
    };
    Span taskSpan() const;
    timerange::UnitDates unitDates() const;
    void pushAfter(const std::vector<TaskRecord *> &predecessors);
    bool pushAlong(const std::vector<push::Link> &links);
    void redraw(const timescale::Scale &scale,
                TaskRecord &task); // the assignments' work, the bar, its widths
    void rollUp(const timescale::Scale &scale, const outline::Tasks &tasks, TaskRecord &summary,
                bool pushSuccessors);

    struct LateDates;
    KWDocument *m_document;             // not owned
    KWTaskInfo *m_activeTask = nullptr; // not owned
    QDateTime m_listsStart;             // the ends of the unit lists; invalid: they are empty
    QDateTime m_listsFinish;
    quint32 m_minDateStart = 0;
    quint32 m_maxDateFinish = 0;
    int m_totalWidth = 100;
    std::unique_ptr<LateDates> m_lateDates; // null until they are asked for
    std::unique_ptr<linkgraph::KeptNetwork> m_network;
};
