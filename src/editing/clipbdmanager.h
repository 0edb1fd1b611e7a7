#pragma once
#include "kwgantt_export.h"
#include <QByteArray>
#include <QList>
#include <vector>

class KWDocument;
class KWTaskInfo;
struct TaskRecord;
namespace clipboardxml {
class Content;
}
namespace pasted {
class Branches;
}

// Copy, cut and paste of whole task branches through the system clipboard.
//
// All three do nothing and answer false without a document, for rows that show no task, without a clipboard,
// and when it holds no sound tasks. Costs, names, percents and dates of the summaries concerned follow.
class KWGANTT_EXPORT ClipbdManager
{
public:
    ClipbdManager() = default;
    virtual ~ClipbdManager() = default;
    ClipbdManager(const ClipbdManager &) = delete;
    ClipbdManager &operator=(const ClipbdManager &) = delete;

    void setDocument(KWDocument *document) { m_document = document; }
    KWDocument *document() const { return m_document; }
    // Where the last copy or cut came from; null before the first. May be gone by now.
    KWDocument *sourceDocument() const { return m_sourceDocument; }

    // ---- The three operations -----------------------------------------------------------------------------
    // The tasks at the rows, each with all that is below it.
    bool copy(QList<int> &rows);
    bool cut(QList<int> &rows);
    // Before the task at the row; at the end for a negative row. What this manager has not written itself
    // comes without its assignments: they belong to another resource sheet.
    bool paste(int row);
    // The same as the last children of the task at the row; below a collapsed one they are hidden.
    bool pasteUnder(int row);

    // ---- Branches by their tasks --------------------------------------------------------------------------
    // For whoever lets the rest follow itself: nothing but the tasks, their links and their names.
    // What copy would put on the clipboard for these tasks; empty where there is none of them.
    QByteArray branches(const QList<quint32> &ids) const;
    bool copyBranches(const QList<quint32> &ids);
    // What is on the clipboard, and whether this manager has written it.
    QByteArray clipboardBytes(bool &isOwn) const;
    // Inserts branches before the list position, as children of the parent (null: the top level) before the
    // child at that place. The IDs of their tops; none when the bytes hold no sound tasks. The columns stay.
    QList<quint32> insertBranches(const QByteArray &bytes, bool withAssignments, int pos, KWTaskInfo *parent,
                                  int child);

    // ---- What is copied -----------------------------------------------------------------------------------
    // Adds the IDs of the tasks at the rows and of all below them, and puts the tasks on the clipboard.
    void getCopyIDList(QList<quint32> &ids, QList<int> &rows);
    // The tasks at the rows that have no ancestor at one of the rows, in the order of the rows.
    void topTaskListByMultiRow(QList<int> &rows);
    // Adds the task's ID unless it is there, or an ancestor of it is at one of the rows.
    void appendTopTaskList(KWTaskInfo *task, QList<int> &rows);
    bool isTopTask(KWTaskInfo *task) const; // whether its ID is in the list
    const QList<quint32> &topTaskList() const { return m_topTasks; }

    // ---- Steps of pasting ---------------------------------------------------------------------------------
    // They go by the IDs as they stand; of several tasks with one ID the first counts.
    // New IDs and levels for the tasks below a pasted one, all of them still under their old IDs. Children
    // that are not among the pasted tasks leave the list.
    void recurveTaskChildID(KWTaskInfo *task, int levelDelta, QList<KWTaskInfo *> &pasted);
    // What is below the task and hidden by the old ID is hidden by the new one.
    void updateSubTaskHideID(KWTaskInfo *task, quint32 oldID, quint32 newID);
    // Links to old tasks lead to the new ones at the same places; all others go.
    void delDependOrDependOn(KWTaskInfo *task, QList<KWTaskInfo *> &oldTasks, QList<KWTaskInfo *> &newTasks);

private:
    class Selection;
    struct Place;
    struct Inserted;
    bool isReady() const;
    bool putOnClipboard(QList<quint32> &ids, QList<int> &rows);
    bool putOnClipboard(const QByteArray &bytes);
    QByteArray branches(const QList<quint32> &tops, QList<quint32> &ids) const;
    Place placeAt(int row) const;
    Place placeUnder(KWTaskInfo &parent) const;
    bool pasteTo(const Place &place);
    Inserted insert(clipboardxml::Content &content, const Place &place, bool withColumns);
    std::vector<KWTaskInfo *> numberBranches(const QList<KWTaskInfo *> &tasks, const Place &place,
                                             pasted::Branches &branches) const;
    static void joinParent(const std::vector<KWTaskInfo *> &tops, const Place &place);
    void updateSummaries(const std::vector<TaskRecord *> &changed);

    KWDocument *m_document = nullptr;       // not owned; holds this manager by value
    KWDocument *m_sourceDocument = nullptr; // not owned
    QList<quint32> m_topTasks;
    QByteArray m_written; // the digest of what was put on the clipboard last
};
