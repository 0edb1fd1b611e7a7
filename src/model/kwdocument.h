#pragma once
#include "editing/actionmanager.h"
#include "editing/clipbdmanager.h"
#include "engine/record/codes.h"
#include "kwgantt_export.h"
#include "kwversion.h"
#include "settings/kwconfig.h"
#include "settings/kwprintconfig.h"
#include "styles/themepalette.h"
#include "support/findings.h"
#include <QColor>
#include <QDomElement>
#include <QFont>
#include <QList>
#include <QMap>
#include <QPointF>
#include <QString>
#include <QVector>
#include <memory>
#include <vector>

class KWCalendar;
class KWDayTime;
class KWTaskCollection;
class KWTaskInfo;
class ResourceInfoData;
class RowColumnData;
class TaskIndex;
namespace outline {
struct Tasks;
}
namespace worktime {
class WorkCalendar;
}

// One project: its tasks in outline order, its options, working time, resource sheet and table.
//
// A task has three addresses: pos (index in the list, hidden tasks included), row (index among the visible
// tasks) and tag (pos + 1, 0 = none). -1, 0 or null when nothing is found.
class KWGANTT_EXPORT KWDocument
{
public:
    using ThemeColor = ThemePalette; // a name and twelve named colours

    // ---- Class-wide ---------------------------------------------------------------------------------------
    static KWConfig s_config;
    static bool s_isOldVersion;    // set by the host while a document of an older program version is open
    static QString s_mediaPath;    // "media/" folder of the package being saved or loaded
    static QDomElement s_relsNode; // relationships element of the package being saved

    // ---- Options ------------------------------------------------------------------------------------------
    qint32 ThemeIndex = 0;
    bool Auto = false; // automatic progress
    QString DocGuid;   // braced UUID
    QString HostText;  // kept for the host
    // Name of the time zone in which the plan's moments are meant ("Europe/Berlin"). Kept for the host, which
    // fills it and works in it (support/zonescope.h); travels with the package. Empty when nobody has said.
    QString TimeZone;
    // What people call the plan, on one line. Kept for the host and travels with the package; empty: the
    // file's name says it.
    QString PlanName;
    bool WorkDay[7] = {true, true, true, true, true, false, false}; // Monday first
    quint32 MajorUnit = duration::Week;
    quint32 MinorUnit = 0; // stored form, see getMinorUnit
    quint32 StartDate = 0; // seconds, 0 = not set
    quint32 FinishDate = 0;
    quint32 DayStart = 28800; // two times of day kept for the host
    quint32 DayFinish = 57600;
    qint32 UnitWidth = 100; // pixels for one minor unit
    bool AutoZoom = true;
    quint32 ProjectUnit = duration::Day; // duration unit of new tasks
    double BaselineCost = 0;
    KWPrintConfig printConfig;
    QList<KWCalendar *> calendars; // owned
    QList<KWDayTime *> workTimes;  // owned; the working intervals of a working day

    KWDocument();
    virtual ~KWDocument();
    KWDocument(const KWDocument &) = delete;
    KWDocument &operator=(const KWDocument &) = delete;

    // ---- Parts --------------------------------------------------------------------------------------------
    ActionManager &actionManager() { return m_actions; }
    ClipbdManager &clipbdManager() { return m_clipboard; }
    KWTaskCollection *taskCollection() const { return m_taskCollection; }
    ResourceInfoData *resourceInfoData() const { return m_resourceInfoData; }
    RowColumnData *rowColumnData() const { return m_rowColumnData; }
    // Set by every operation that changes what saving writes, also by those that refresh the chart: the
    // widths of bars are saved, and a plan that is shown for the first time may get others. Members that a
    // host writes itself do not set it. Loading leaves it alone.
    bool isModified() const { return m_modified; }
    void setModified(bool modified) { m_modified = modified; }
    void initThemeColor();
    const QList<ThemeColor> &themeColors() const { return m_themeColors; }
    const ThemeColor &chosenTheme() const; // without colours when the document has no theme at all
    QColor themeColor(int index) const;    // colour of the chosen theme; invalid outside 0..11
    static const QStringList &themeColorNames();

    // ---- The task list ------------------------------------------------------------------------------------
    const QList<KWTaskInfo *> &taskList() const { return m_tasks; }
    int taskCount() const { return m_tasks.size(); }
    void appendTaskInfoList(KWTaskInfo *task);          // takes the task over
    void insertTaskInfoList(int row, KWTaskInfo *task); // takes the task over
    // Takes the tasks over, before the one at `pos`, each with its row height (30 where there is none).
    void insertTasks(int pos, const QList<KWTaskInfo *> &tasks, const QList<double> &heights);
    // Take the task over; the replaced record is not deleted and belongs to the caller again.
    void replaceByID(quint32 id, KWTaskInfo *task); // the first task with that ID
    void replaceAt(int pos, KWTaskInfo *task);
    // Delete the task and its row height. Nothing else: neither the outline nor links are told.
    void removeTaskInfoByID(quint32 id); // the last task with that ID
    void removeTaskInfoAt(int row);
    void removeTasks(const TaskIndex &ids); // removeTaskInfoByID for each of the IDs
    void clearTaskInfoList();               // row heights stay
    // The list becomes these tasks, each of them once. New ones are taken over, those that are not in it any
    // more deleted; row heights stay.
    void replaceTaskInfoList(const QList<KWTaskInfo *> &tasks);

    // ---- Look-ups -----------------------------------------------------------------------------------------
    KWTaskInfo *getTaskInfoAt(int pos) const;
    KWTaskInfo *getTaskInfoByRow(int row) const;
    KWTaskInfo *getTaskInfoByID(quint32 id) const;
    KWTaskInfo *getTaskInfoByName(const QString &name) const;
    KWTaskInfo *getPreTaskInfoByTaskInfo(const KWTaskInfo *task) const;
    KWTaskInfo *getTaskByTag(int tag) const;
    int getPosByID(quint32 id) const;
    int getPosByRow(int row) const;
    int getRowByPos(int pos) const;
    int getRowByTaskID(quint32 id) const;
    int getTagByTaskID(quint32 id) const;
    int getTagByRow(int row) const;
    int getRowByTag(int tag) const;
    int visibleRowCount() const;
    quint32 maxTaskID() const;
    quint32 nextTaskID() const; // maxTaskID() + 1, the lowest free ID when that is past 32 bits
    bool isHaveSameTaskID(quint32 id) const;
    bool isHaveSameTaskName(const QString &name) const;
    bool isHaveDifferentTaskSameName(const KWTaskInfo *task) const;
    QString differentSuffixTaskName(const QString &name, bool useColumnTitle) const;
    quint32 getMinStartSecs() const;
    quint32 getMaxFinishSecs() const;
    int getMaxLevel() const;
    void taskParentZeroIDList(QList<quint32> &ids) const;
    // Index of the list as it stands. The reference stays good, the content until the list or an ID changes.
    const TaskIndex &taskIndex() const;
    // The list with its index, for walks over the outline. Good for as long as the index.
    outline::Tasks outline() const;

    // ---- Editing the outline (model/kwdocument_outline.cpp) -----------------------------------------------
    // Each works on the task shown at the row and does nothing when there is none. Row heights, links, dates,
    // percents and costs follow. New tasks belong to the document, take the dates of the task beside them and
    // the next ID.
    KWTaskInfo *addTaskInfo();               // at the end, beside the last visible task
    KWTaskInfo *insertTaskByRow(int row);    // above the task; without one as addTaskInfo
    KWTaskInfo *insertSubTaskByRow(int row); // its first child; null when there is no task
    // The last child of the sibling before it. Whether there is one.
    bool indentTaskByRow(int row);
    // One level up; the siblings that follow become its children. Whether it has a parent.
    bool outdentTaskByRow(int row);
    bool upgradeChildTaskByRow(int row);
    // Places with the sibling before or after it, each with its content. The task's new row; -1 when there is
    // none.
    int moveUpByRow(int row);
    int moveDownByRow(int row);
    bool isCanMoveUp(int row) const;
    bool isCanMoveDown(int row) const;
    // Moves the entries of a task and of as many after it as it has descendants. The position after them; -1
    // when a position is outside the list.
    int moveTaskInfo(KWTaskInfo *task, int from, int to);
    // A collapsed summary goes with its content, the children of another one move up in its place. Whether
    // there was a task.
    bool removeTaskByRow(int row);
    // Everything but Progress and the text of the resources; shares the assignments.
    static void assignPartValue(const KWTaskInfo *source, KWTaskInfo *target);

    // ---- Rows on the chart --------------------------------------------------------------------------------
    // Pixels from the top: the row's bottom edge, or with `centre` where a line of text starts. A hidden task
    // has no height; a negative index or an empty list gives the top of the first row.
    double getRowYByPos(int pos, bool centre) const;
    double getRowYByRow(int row, bool centre) const;
    // getRowYByPos(pos, centre) for every pos.
    std::vector<double> rowYs(bool centre) const;
    int getRowByPtY(double y, bool clampToLast) const; // top < y <= bottom
    KWTaskInfo *getTaskInfoByToScenePoint(const QPointF &point, bool onBar) const;
    // Whether any descendant was visited.
    bool expandTaskInfo(KWTaskInfo *task);
    bool collapseTaskInfo(KWTaskInfo *task);

    // ---- Texts --------------------------------------------------------------------------------------------
    static double getTextWidth(const QString &text, const QFont &font);
    static QString getElidedText(const QString &text, double width, const QFont &font);
    static bool findTextStr(const QString &text, const QString &find, bool caseSensitive, bool wholeWords);
    static bool replaceTextStr(QString &text, const QString &find, const QString &replace, bool caseSensitive,
                               bool wholeWords, bool flag);

    // ---- Files --------------------------------------------------------------------------------------------
    void setFilePath(const QString &path, const QString &secondPath);
    void setFileName(const QString &name);
    QString filePath() const { return m_filePath; }
    QString fileName() const { return m_fileName; }
    QString secondPath() const { return m_secondPath; }
    QString backupName() const { return m_backupName; }
    QString fileSaveName() const;

    // ---- Packages (model/kwdocument_package.cpp) ----------------------------------------------------------
    // All false results leave the file and the document as they were, with a line in the run log. Saving
    // changes the file path and the modified flag only when the file is on disk, and not at all for a backup.
    bool saveTo(const QString &path, bool isBackup, bool updatePath);
    bool save(const QString &path); // an empty path means the file path; the path must end with ".kwpx"
    bool saveToKWGT(const QString &path, bool isBackup, bool updatePath); // an empty path as above
    bool saveDocument(const QString &folder) const; // only "document.xml", into a folder that ends with "/"
    // Saves to the folder "autosave" of the configuration while the document is modified; true when it is
    // not.
    bool saveBackup();
    // Loading takes dates, roll-ups and costs as they are stored and recomputes nothing. It empties both undo
    // stacks; inside an open action of this document it is recorded there instead.
    void loadFromFile(const QString &path); // of a path that ends with ".kwpx"
    bool loadFromKWGT(const QString &path);
    bool loadDocument(const QString &folder, unsigned int version);
    bool loadStructure(const QString &path);        // loads, and tells whether the page could be read as well
    bool loadStructureFromDDX(const QString &path); // reads the version and the page only
    // What the file loaded last holds that was not taken as it stands or cannot be meant so, with what was
    // taken; after a load that failed also why. A finding of kind Lost means that saving over the file loses
    // something.
    const Findings &loadFindings() const { return m_loadFindings; }
    // The moments that the exceptions of the file loaded last name as the beginnings of dates. They are
    // midnights in the zone that it was made in, see edits/planzone.h.
    const QVector<quint32> &storedMidnights() const { return m_storedMidnights; }
    // The version of the package read last; "1.4" for a text that is none.
    KWVersion loadedVersion() const { return m_loadedVersion; }

    // ---- Scheduling ---------------------------------------------------------------------------------------
    // The working time as compiled tables; made again when the options, the calendars or the zone have
    // changed.
    const worktime::WorkCalendar &workCalendar() const;
    void clearCalendar();
    double getDurationValue(quint32 start, quint32 finish, unsigned int unit, bool rounded);
    unsigned int getMinorUnit() const; // of duration::Unit
    // Names for the codes above, English ones until the host fills its own in; the short names are built in.
    static QMap<unsigned int, QString> s_longUnitNames;
    static QString getNameByMinorUnit(unsigned int unit, bool longName = false); // empty past 6
    void updateDependTask(bool byTag);
    void updateAllTaskEarlyLate();
    void updateSlackAndUnit(unsigned int unit);
    void updateAutoPercent();
    void updateAllTaskFirstWidth();
    // Percent of every summary, inner ones first: one pass where updateParentPercent goes up from one task.
    void updateAllParentPercent();

    // ---- Resources and costs (resources/kwdocument_cost.cpp) ----------------------------------------------
    void updateResourcesName();          // every task's names text
    void updateCostCompletCostWork();    // remaining cost of every task, then every summary's sums
    void basisSubUpdateFromSomeColumn(); // every summary's sums, names and baseline from the leaves below it
    void replaceTaskResourceName(const QString &oldName, const QString &newName); // on every task
    double getToltalCost() const;                                                 // of the top-level tasks
    double getCostToCompletion() const;

private:
    struct Caches;
    void listChanged(); // other than by appending
    void join(KWTaskInfo *task);
    void leave(KWTaskInfo *task, bool destroy);
    void removeAt(int pos);
    Caches &withIndex() const; // the caches with their tables of IDs, rows or row edges up to date
    Caches &withRows() const;
    Caches &withBottoms() const;
    KWTaskInfo *newTask(quint32 start, quint32 finish, int level, quint32 parentId) const;
    void completeNewTask(KWTaskInfo *task, int pos);
    quint32 newFinish(const KWTaskInfo &like, bool sameLength);
    KWTaskInfo *previousTopLevelTask(const KWTaskInfo &task) const;
    KWTaskInfo *previousVisibleSibling(const KWTaskInfo &task, int row) const;
    int nextSiblingPos(int pos) const; // in the list, hidden tasks included; -1 when there is none
    void relinkOutdented(const std::vector<KWTaskInfo *> &children, KWTaskInfo &task, KWTaskInfo &parent);
    void updateCostsFrom(KWTaskInfo *task);
    void makeBackupName();
    static KWVersion versionOf(const QString &text);

    QList<ThemeColor> m_themeColors;
    bool m_modified = false;
    ActionManager m_actions;
    ClipbdManager m_clipboard;
    QList<KWTaskInfo *> m_tasks;          // owned
    KWTaskCollection *m_taskCollection;   // owned
    ResourceInfoData *m_resourceInfoData; // owned
    RowColumnData *m_rowColumnData;       // owned
    QString m_filePath;
    QString m_fileName;
    QString m_secondPath;
    QString m_backupName;
    KWVersion m_loadedVersion;
    Findings m_loadFindings;
    QVector<quint32> m_storedMidnights;
    // Count the changes of IDs and of hidden flags; a change of the list other than an append counts in both.
    mutable quint64 m_idRevision = 1;
    mutable quint64 m_hideRevision = 1;
    mutable std::unique_ptr<Caches> m_caches;
};
