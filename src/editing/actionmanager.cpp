#include "editing/actionmanager.h"
#include "editing/taskaction.h"
#include "editing/taskbackups.h"
#include "editing/tasksnapshot.h"
#include "model/kwdocument.h"

QMap<int, QString> ActionManager::s_undoString;
TaskAction *ActionManager::s_pending = nullptr;

KWOpeAction::KWOpeAction(KWDocument *document, const QString &name)
    : m_name(name)
    , m_document(document)
{
}

KWOpeAction::~KWOpeAction() = default;

QString ActionManager::undoName(int type)
{
    return s_undoString.value(type);
}

ActionManager::ActionManager()
    : m_snapshot(std::make_unique<TaskSnapshot>())
{
}

ActionManager::~ActionManager()
{
    if (s_pending && s_pending->document() == m_document)
        clearUndoAction();
    emptyActionStack(m_undoActions);
    emptyActionStack(m_redoActions);
}

const TaskSnapshot &ActionManager::takeSnapshot()
{
    *m_snapshot = TaskSnapshot::of(*m_document, *m_snapshot);
    return *m_snapshot;
}

void ActionManager::setSnapshot(const TaskSnapshot &snapshot)
{
    *m_snapshot = snapshot;
}

// ---- Recording --------------------------------------------------------------------------------------------

void ActionManager::preUndoAction(KWDocument *document, int type, unsigned int flags)
{
    if (!document)
        return;
    // Also where the type has no name: what follows is no part of the unfinished edit.
    clearUndoAction();
    const QString name = undoName(type);
    if (name.isEmpty())
        return;
    s_pending = new TaskAction(document, name, flags);
}

void ActionManager::addChangeTaskInfo(KWTaskInfo *task)
{
    if (s_pending)
        s_pending->addChangeTaskInfo(task);
}

void ActionManager::addTaskInfoHyperlink(KWTaskInfo *task)
{
    if (s_pending)
        s_pending->addTaskInfoHyperlink(task);
}

void ActionManager::addTaskAllResources(KWTaskInfo *task)
{
    if (s_pending)
        s_pending->addTaskAllResources(task);
}

void ActionManager::backupAffected(KWTaskInfo *task)
{
    if (s_pending)
        s_pending->backupAffected(task);
}

void ActionManager::backAllTaskData()
{
    if (s_pending)
        s_pending->backupAllTaskData();
}

void ActionManager::backupAllColData()
{
    if (s_pending)
        s_pending->backupAllColData();
}

void ActionManager::addDocResource(ResourceInfo *info)
{
    if (s_pending)
        s_pending->addDocResource(info);
}

void ActionManager::backupAllDocResources()
{
    if (s_pending)
        s_pending->backupAllDocResources();
}

void ActionManager::addEditTaskResourceName(ResourceInfo *info)
{
    if (s_pending)
        s_pending->addEditTaskResourceName(info);
}

void ActionManager::backupAllOption()
{
    if (s_pending)
        s_pending->backupAllOption();
}

void ActionManager::prepareReplacement()
{
    if (s_pending && s_pending->document() == m_document) {
        s_pending->backupWholeDocument();
        return;
    }
    emptyActionStack(m_undoActions);
    emptyActionStack(m_redoActions);
    *m_snapshot = TaskSnapshot();
}

void ActionManager::addUndoAction()
{
    TaskAction *action = s_pending;
    if (!action)
        return;
    // A host may draw no chart after an undo, so that the bars have to come back. What a few tasks take is
    // not worth looking at.
    constexpr std::size_t fewTasks = 64;
    if (action->singleTasks().size() > fewTasks)
        action->close(Bars::Kept);
    constexpr bool clearRedo = true;
    action->document()->actionManager().addUndoAction(action, clearRedo);
    // The stack has it now: clearing the pending action must not delete it.
    s_pending = nullptr;
    clearUndoAction();
}

void ActionManager::clearUndoAction()
{
    delete s_pending;
    s_pending = nullptr;
}

// ---- Stacks -----------------------------------------------------------------------------------------------

void ActionManager::addUndoAction(KWOpeAction *action, bool clearRedo)
{
    if (!action)
        return;
    if (clearRedo)
        emptyActionStack(m_redoActions);
    if (!m_undoActions.isEmpty() && m_undoActions.size() >= getUndoLevel())
        delete m_undoActions.takeFirst();
    m_undoActions.append(action);
    if (m_document)
        m_document->setModified(true);
}

void ActionManager::addRedoAction(KWOpeAction *action)
{
    if (!action)
        return;
    m_redoActions.append(action);
    if (m_document)
        m_document->setModified(true);
}

void ActionManager::undo(int steps)
{
    for (int left = qMin(steps, m_undoActions.size()); left > 0; --left) {
        std::unique_ptr<KWOpeAction> action(m_undoActions.takeLast());
        if (action && action->unExecute())
            addRedoAction(action.release());
    }
}

void ActionManager::redo()
{
    while (!m_redoActions.isEmpty()) {
        std::unique_ptr<KWOpeAction> action(m_redoActions.takeLast());
        if (!action)
            continue;
        constexpr bool clearRedo = false;
        if (action->execute())
            addUndoAction(action.release(), clearRedo);
        return;
    }
}

QStringList ActionManager::undoActionNames() const
{
    QStringList names;
    for (int i = m_undoActions.size() - 1; i >= 0; --i)
        names.append(m_undoActions[i]->name());
    return names;
}

void ActionManager::emptyActionStack(QList<KWOpeAction *> &actions)
{
    qDeleteAll(actions);
    actions.clear();
}

int ActionManager::getUndoLevel() const
{
    return KWDocument::s_config.intValue(QStringLiteral("UndoLevel"));
}
