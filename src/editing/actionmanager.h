#pragma once
#include "kwgantt_export.h"
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <memory>

class KWDocument;
class KWOpeAction;
class KWTaskInfo;
class ResourceInfo;
class TaskAction;
class TaskSnapshot;

// Undo and redo of one document.
//
// An edit is recorded in three steps, all of them class-wide:
//
//   ActionManager::preUndoAction(document, type, 0);
//   ActionManager::addChangeTaskInfo(task);      // and other recorders, before anything changes
//   ... the edit ...
//   ActionManager::addUndoAction();
//
// Recorders do nothing without a pending action or for null; see TaskAction for what each keeps.
class KWGANTT_EXPORT ActionManager
{
public:
    // Action type -> name, filled by the host. An edit whose type has no name is not recorded.
    static QMap<int, QString> s_undoString;
    static QString undoName(int type); // empty when unknown

    ActionManager();
    ~ActionManager(); // with its actions, and the pending one of its document
    ActionManager(const ActionManager &) = delete;
    ActionManager &operator=(const ActionManager &) = delete;

    void setDocument(KWDocument *document) { m_document = document; }
    KWDocument *document() const { return m_document; }

    // ---- Recording ----------------------------------------------------------------------------------------
    // Starts an action in place of an unfinished one, which is dropped also where the type has no name. The
    // flags are kept with it for the host.
    static void preUndoAction(KWDocument *document, int type, unsigned int flags);
    static void addChangeTaskInfo(KWTaskInfo *task);
    static void addTaskInfoHyperlink(KWTaskInfo *task);
    static void addTaskAllResources(KWTaskInfo *task);
    static void backupAffected(KWTaskInfo *task);
    static void backAllTaskData();
    static void backupAllColData();
    static void addDocResource(ResourceInfo *info);
    static void backupAllDocResources();
    static void addEditTaskResourceName(ResourceInfo *info);
    static void backupAllOption();
    // Before all of the document's content is replaced: an open action of this document records all of it.
    // Without one both stacks are emptied, since what they hold belongs to other tasks.
    void prepareReplacement();
    static void addUndoAction();   // hands the pending action to its document's manager
    static void clearUndoAction(); // drops it
    static TaskAction *pendingAction() { return s_pending; }

    // ---- Stacks -------------------------------------------------------------------------------------------
    // Newest last. The stacks own their actions; each of these sets the document's modified flag.
    void addUndoAction(KWOpeAction *action, bool clearRedo);
    void addRedoAction(KWOpeAction *action);
    void undo(int steps);                // at most as many as there are
    void redo();                         // one step
    QStringList undoActionNames() const; // newest first
    const QList<KWOpeAction *> &undoActions() const { return m_undoActions; }
    const QList<KWOpeAction *> &redoActions() const { return m_redoActions; }
    void emptyActionStack(QList<KWOpeAction *> &actions); // deletes the actions
    int getUndoLevel() const;                             // steps kept; one even when it is less

private:
    friend class TaskAction;
    // The document's tasks as they stand, sharing with the snapshot before what has not changed since.
    const TaskSnapshot &takeSnapshot();
    void setSnapshot(const TaskSnapshot &snapshot);

    static TaskAction *s_pending;     // owned
    KWDocument *m_document = nullptr; // not owned; holds this manager by value
    QList<KWOpeAction *> m_undoActions;
    QList<KWOpeAction *> m_redoActions;
    std::unique_ptr<TaskSnapshot> m_snapshot;
};
