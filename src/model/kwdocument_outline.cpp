// Editing the outline: new tasks, one level in or out, places among siblings, removal.
#include "engine/cost/cost.h"
#include "engine/record/outline.h"
#include "engine/time/localclock.h"
#include "model/kwdocument.h"
#include "model/kwdocument_caches.h"
#include "model/kwtaskinfo.h"
#include "resources/costsof.h"
#include "schedule/kwtaskcollection.h"
#include "support/kwclock.h"
#include "table/rowcolumndata.h"
#include <QScopedValueRollback>
#include <limits>

namespace {

constexpr bool hourClock = false;
constexpr bool pushSuccessors = true;

quint32 clamped(qint64 secs)
{
    return quint32(qBound(qint64(0), secs, qint64(std::numeric_limits<quint32>::max())));
}

bool lastsADayAtMost(const KWTaskInfo &task)
{
    return qint64(task.Finish) - task.Start <= LocalClock::secsPerDay;
}

// Levels come from files as they like; they stop at the ends of their type.
void addToLevel(TaskRecord &task, int levels)
{
    task.Level = qint32(qBound(qint64(std::numeric_limits<qint32>::min()), qint64(task.Level) + levels,
                               qint64(std::numeric_limits<qint32>::max())));
}

KWTaskInfo *parentOf(const KWDocument &document, const KWTaskInfo &task)
{
    return task.ParentID == 0 ? nullptr : document.getTaskInfoByID(task.ParentID);
}

bool hasChild(const outline::Tasks &tasks, const KWTaskInfo &task)
{
    return std::any_of(task.Childs.begin(), task.Childs.end(), [&](quint32 id) { return tasks.byId(id); });
}
}

// ---- New tasks --------------------------------------------------------------------------------------------

KWTaskInfo *KWDocument::newTask(quint32 start, quint32 finish, int level, quint32 parentId) const
{
    auto *task = new KWTaskInfo;
    task->ID = nextTaskID();
    constexpr bool useColumnTitle = true;
    task->Name = differentSuffixTaskName(
        RowColumnData::s_columnNames.value(columntypes::Name) + QLatin1Char('1'), useColumnTitle);
    task->Level = level;
    task->ParentID = parentId;
    task->Start = start;
    task->Finish = finish;
    task->DurationUnits = ProjectUnit;
    task->DurationSecs = KWTaskInfo::durationSecs(const_cast<KWDocument *>(this), start, finish, ProjectUnit);
    return task;
}

// The task is in the list and the outline.
void KWDocument::completeNewTask(KWTaskInfo *task, int pos)
{
    m_rowColumnData->insertRowHeightByPos(pos, RowColumnData::defaultRowHeight);
    task->initFont();
    task->updateEarlyLate(this, getMaxFinishSecs());
    task->updateParentPercent(this);
}

// As long as the one it is made after, or a day.
quint32 KWDocument::newFinish(const KWTaskInfo &like, bool sameLength)
{
    const quint32 finish = sameLength ? like.Finish : clamped(qint64(like.Start) + LocalClock::secsPerDay);
    return KWTaskCollection::addFinishOnDayOff(this, finish, hourClock);
}

KWTaskInfo *KWDocument::addTaskInfo()
{
    if (!m_taskCollection || !m_rowColumnData)
        return nullptr;
    const KWTaskInfo *last = getTaskInfoByRow(visibleRowCount() - 1);
    KWTaskInfo *parent = last ? parentOf(*this, *last) : nullptr;
    quint32 start = 0;
    quint32 finish = 0;
    if (last) {
        start = last->Start;
        finish = newFinish(*last, lastsADayAtMost(*last));
    } else {
        const qint64 today = KWClock::now().date().startOfDay().toSecsSinceEpoch();
        start = KWTaskCollection::moveForwarstartOnDayOff(this, clamped(today), hourClock);
        finish = KWTaskCollection::addFinishOnDayOff(this, clamped(qint64(start) + LocalClock::secsPerDay),
                                                     hourClock);
    }
    KWTaskInfo *task = newTask(start, finish, 1, 0);
    if (parent) {
        task->ParentID = parent->ID;
        task->Level = parent->Level;
        addToLevel(*task, 1);
        parent->insertTaskChildID(parent->Childs.size(), task->ID);
    }
    appendTaskInfoList(task);
    completeNewTask(task, taskCount() - 1);
    m_taskCollection->updateRageAndTaskPoint();
    return task;
}

KWTaskInfo *KWDocument::insertTaskByRow(int row)
{
    const KWTaskInfo *next = getTaskInfoByRow(row);
    if (!next || !m_taskCollection || !m_rowColumnData)
        return addTaskInfo();
    KWTaskInfo *parent = parentOf(*this, *next);
    KWTaskInfo *task = newTask(next->Start, newFinish(*next, lastsADayAtMost(*next)), next->Level,
                               parent ? parent->ID.value() : 0);
    if (parent)
        parent->insertTaskChildID(parent->Childs.indexOf(next->ID), task->ID);
    const int pos = getPosByRow(row);
    insertTaskInfoList(row, task);
    completeNewTask(task, pos);
    m_taskCollection->updateTaskCollection();
    return task;
}

KWTaskInfo *KWDocument::insertSubTaskByRow(int row)
{
    KWTaskInfo *parent = getTaskInfoByRow(row);
    if (!parent || !m_taskCollection || !m_rowColumnData)
        return nullptr;
    const bool wasLeaf = !parent->isParent();
    KWTaskInfo *task = newTask(parent->Start, newFinish(*parent, lastsADayAtMost(*parent) || wasLeaf),
                               parent->Level, parent->ID);
    addToLevel(*task, 1);
    parent->insertTaskChildID(0, task->ID);
    parent->font.setWeight(QFont::Bold);
    // Kept on purpose: under a collapsed summary the new task is visible and stands after the hidden ones.
    const int nextPos = getPosByRow(row + 1);
    const int pos = nextPos < 0 ? taskCount() : nextPos;
    insertTaskInfoList(row + 1, task);
    completeNewTask(task, pos);
    if (wasLeaf)
        updateCostsFrom(parent);
    m_taskCollection->updateTaskCollection();
    return task;
}

// ---- One level in -----------------------------------------------------------------------------------------

KWTaskInfo *KWDocument::previousTopLevelTask(const KWTaskInfo &task) const
{
    KWTaskInfo *previous = nullptr;
    for (KWTaskInfo *other : m_tasks) {
        if (other == &task)
            return previous;
        if (other->ParentID == 0)
            previous = other;
    }
    return nullptr;
}

KWTaskInfo *KWDocument::previousVisibleSibling(const KWTaskInfo &task, int row) const
{
    while (--row >= 0) {
        KWTaskInfo *other = getTaskInfoByRow(row);
        if (other->ParentID == task.ParentID)
            return other;
    }
    return nullptr;
}

bool KWDocument::indentTaskByRow(int row)
{
    KWTaskInfo *task = getTaskInfoByRow(row);
    if (!task || !m_taskCollection)
        return false;
    KWTaskInfo *oldParent = parentOf(*this, *task);
    KWTaskInfo *parent = oldParent             ? previousVisibleSibling(*task, row)
                         : task->ParentID == 0 ? previousTopLevelTask(*task)
                                               : nullptr;
    if (!parent || parent == task)
        return false;

    const std::vector<TaskRecord *> below = outline::descendants(outline(), *task);
    task->ParentID = parent->ID;
    addToLevel(*task, 1);
    for (TaskRecord *descendant : below)
        addToLevel(*descendant, 1);
    // Kept on purpose: a top-level task stays visible under a collapsed one.
    if (oldParent) {
        task->HideID = parent->IsToggler ? parent->ID : parent->HideID;
        oldParent->removeTaskChildIDByID(task->ID);
    }
    parent->addTaskInfoChildID(this, task->ID);
    parent->font.setWeight(QFont::Bold);
    // What a collapsed summary inside hides already stays its own.
    if (task->HideID != 0 && !task->IsToggler) {
        for (TaskRecord *descendant : below) {
            if (descendant->HideID == 0)
                descendant->HideID = task->HideID;
        }
    }

    m_taskCollection->deleteDependOrDependOnID(parent);
    if (task->Start < parent->Start && !parent->Predecessors.isEmpty())
        task->updateMoveAfter(this, m_taskCollection->positionFromSecs(parent->Start));
    m_taskCollection->updateTaskTimeToChildsTask(parent, pushSuccessors);
    m_taskCollection->updateTaskInfoParentTime(parent);
    updateCostsFrom(parent);
    if (task->HideID != 0)
        m_taskCollection->updateTaskPoint();
    setModified(true);
    task->updateParentPercent(this);
    return true;
}

// ---- One level out ----------------------------------------------------------------------------------------

bool KWDocument::outdentTaskByRow(int row)
{
    const KWTaskInfo *task = getTaskInfoByRow(row);
    return task && parentOf(*this, *task) && upgradeChildTaskByRow(row);
}

// Takes children from a parent: the task itself goes beside the parent, others below the task.
void KWDocument::relinkOutdented(const std::vector<KWTaskInfo *> &children, KWTaskInfo &task,
                                 KWTaskInfo &parent)
{
    TaskIndex ids;
    std::vector<TaskRecord *> followers;
    for (KWTaskInfo *child : children) {
        ids.add(child->ID);
        if (child != &task) {
            child->ParentID = task.ID;
            followers.push_back(child);
        }
    }
    outline::addChilds(outline(), task, followers);
    outline::removeChilds(parent, ids);
    if (!ids.contains(task.ID))
        return;
    task.Level = parent.Level;
    task.ParentID = parent.ParentID;
    if (KWTaskInfo *grandparent = parentOf(*this, parent))
        grandparent->addTaskInfoChildID(this, task.ID);
}

bool KWDocument::upgradeChildTaskByRow(int row)
{
    KWTaskInfo *task = getTaskInfoByRow(row);
    KWTaskInfo *parent = task ? parentOf(*this, *task) : nullptr;
    if (!parent || parent == task || !m_taskCollection)
        return false;
    // The siblings that follow, hidden ones where their summary shows, become children; the last comes first.
    const bool isLast = parent->getTaskChildIDAt(parent->Childs.size() - 1) == task->ID;
    std::vector<KWTaskInfo *> leaving;
    for (int i = isLast ? -1 : parent->Childs.size() - 1; i >= 0; --i) {
        KWTaskInfo *child = getTaskInfoByID(parent->Childs[i]);
        if (child && (child == task || getRowByTaskID(child->ID) >= row))
            leaving.push_back(child);
    }
    if (isLast)
        leaving.push_back(task);
    // A damaged file may hold a child that its parent does not name.
    if (std::find(leaving.begin(), leaving.end(), task) == leaving.end())
        return false;
    for (TaskRecord *descendant : outline::descendants(outline(), *task))
        addToLevel(*descendant, -1);
    for (KWTaskInfo *child : leaving) {
        if (!child->BaselineCost.isEmpty())
            child->updateParentStrBaseCost(this, -cost::baselineValue(child->BaselineCost));
    }
    // The baseline dates are those that the last one finds, still below its parent.
    KWTaskInfo *last = leaving.back();
    leaving.pop_back();
    relinkOutdented(leaving, *task, *parent);
    last->updateParentBaselineStartAndFinish(this);
    relinkOutdented({last}, *task, *parent);

    // A task that was hidden below the old parent would stay so for ever: nothing above it shows it again.
    bool isShown = false;
    for (TaskRecord *descendant : outline::descendants(outline(), *task)) {
        if (descendant->HideID == parent->ID) {
            descendant->HideID = task->IsToggler ? task->ID.value() : 0;
            isShown = true;
        }
    }

    if (!isLast) {
        task->basisSubUpdateFromSomeColumn(this);
        m_taskCollection->deleteDependOrDependOnID(task);
        m_taskCollection->updateTaskTimeToChildsTask(task, pushSuccessors);
        const QScopedValueRollback<bool> keepPlace(KWTaskInfo::s_isSetTime, true);
        task->updateMoveAfter(this, m_taskCollection->positionFromSecs(task->Start));
    }
    m_taskCollection->updateTaskTimeToChildsTask(parent, pushSuccessors);
    m_taskCollection->updateTaskInfoParentTime(parent);
    updateCostsFrom(parent);
    if (isShown)
        m_taskCollection->updateTaskPoint();
    if (!hasChild(outline(), *parent))
        parent->font.setWeight(QFont::Normal);
    if (task->isParent())
        task->font.setWeight(QFont::Bold);
    parent->updateParentPercent(this);
    task->updateParentPercent(this);
    setModified(true);
    return true;
}

// ---- Places among siblings --------------------------------------------------------------------------------

int KWDocument::nextSiblingPos(int pos) const
{
    const KWTaskInfo *task = getTaskInfoAt(pos);
    for (int next = pos + 1; task && next < taskCount(); ++next) {
        if (m_tasks[next]->ParentID == task->ParentID)
            return next;
    }
    return -1;
}

bool KWDocument::isCanMoveUp(int row) const
{
    const KWTaskInfo *task = getTaskInfoByRow(row);
    const KWTaskInfo *above = getTaskInfoByRow(row - 1);
    return task && above && above->ID != task->ParentID;
}

bool KWDocument::isCanMoveDown(int row) const
{
    return nextSiblingPos(getPosByRow(row)) >= 0;
}

int KWDocument::moveUpByRow(int row)
{
    if (!m_taskCollection || !isCanMoveUp(row))
        return -1;
    KWTaskInfo *task = getTaskInfoByRow(row);
    int to = getPosByRow(row - 1);
    while (to >= 0 && m_tasks[to]->ParentID != task->ParentID)
        --to;
    if (to >= 0)
        moveTaskInfo(task, getPosByRow(row), to);
    m_taskCollection->updateTaskPoint();
    return getRowByPos(to);
}

int KWDocument::moveDownByRow(int row)
{
    const int pos = getPosByRow(row);
    const int next = nextSiblingPos(pos);
    if (!m_taskCollection || next < 0)
        return -1;
    const int place = moveTaskInfo(m_tasks[next], next, pos);
    m_taskCollection->updateTaskPoint();
    return getRowByPos(place);
}

int KWDocument::moveTaskInfo(KWTaskInfo *task, int from, int to)
{
    if (!task || !m_rowColumnData || from < 0 || to < 0 || from >= taskCount() || to >= taskCount())
        return -1;
    const KWTaskInfo *target = m_tasks[to];
    KWTaskInfo *parent = parentOf(*this, *target);
    if (parent && target->ParentID == task->ParentID) {
        const int fromChild = parent->Childs.indexOf(task->ID);
        const int toChild = parent->Childs.indexOf(target->ID);
        if (fromChild >= 0 && toChild >= 0)
            parent->Childs.move(fromChild, toChild);
    }
    const int below = int(outline::descendants(outline(), *task).size());
    Caches &caches = *m_caches;
    const bool knowsIds = caches.knowsIds(m_tasks.size(), m_idRevision);
    const bool knowsRows = caches.knowsRows(m_tasks.size(), m_hideRevision);
    outline::moveEntries(m_tasks, from, to, below + 1);
    m_rowColumnData->moveRowHeights(from, to, below + 1);
    listChanged();
    const int first = std::min(from, to);
    const int last = std::min(std::max(from, to) + below, m_tasks.size() - 1);
    if (knowsIds)
        caches.permuteIds(first, last, m_tasks, m_idRevision);
    if (knowsRows)
        caches.permuteRows(first, last, m_tasks, m_hideRevision);
    return to + 1 + below;
}

// ---- Removal ----------------------------------------------------------------------------------------------

bool KWDocument::removeTaskByRow(int row)
{
    KWTaskInfo *task = getTaskInfoByRow(row);
    if (!task || !m_taskCollection || !m_rowColumnData)
        return false;
    KWTaskInfo *parent = parentOf(*this, *task);
    if (parent == task)
        parent = nullptr;
    std::vector<TaskRecord *> leaving{task};
    const outline::Tasks tasks = outline();
    if (task->IsToggler) {
        const std::vector<TaskRecord *> below = outline::descendants(tasks, *task);
        leaving.insert(leaving.end(), below.begin(), below.end());
    } else {
        // Kept on purpose: deeper descendants keep their levels.
        std::vector<TaskRecord *> children;
        for (const quint32 id : qAsConst(task->Childs)) {
            TaskRecord *child = tasks.byId(id);
            if (!child || child == task)
                continue;
            child->Level = task->Level;
            child->ParentID = task->ParentID;
            children.push_back(child);
        }
        if (parent)
            outline::addChilds(tasks, *parent, children);
    }
    TaskIndex leavingIds;
    for (const TaskRecord *gone : leaving)
        leavingIds.add(gone->ID);
    outline::cutLinks(tasks, leaving, leavingIds);

    const bool hasLivingParent = parent && !leavingIds.contains(parent->ID);
    const quint32 parentId = hasLivingParent ? parent->ID.value() : 0;
    if (hasLivingParent) {
        parent->removeTaskChildIDByID(task->ID);
        m_taskCollection->updateTaskInfoParentTime(task);
        if (!hasChild(tasks, *parent))
            parent->font.setWeight(QFont::Normal);
        parent->updateParentPercent(this);
    }
    removeTasks(leavingIds);
    updateCostsFrom(getTaskInfoByID(parentId));
    m_taskCollection->updateRageAndTaskPoint();
    return true;
}

// Of several tasks with one ID the last goes, as in removeTaskInfoByID.
void KWDocument::removeTasks(const TaskIndex &ids)
{
    QList<KWTaskInfo *> staying;
    QList<double> heights;
    QList<KWTaskInfo *> leaving;
    std::vector<bool> leaves(std::size_t(m_tasks.size()));
    TaskIndex done;
    Caches &caches = *m_caches;
    const bool knowsIds = caches.knowsIds(m_tasks.size(), m_idRevision);
    const bool knowsRows = caches.knowsRows(m_tasks.size(), m_hideRevision);
    staying.reserve(m_tasks.size());
    heights.reserve(m_tasks.size());
    const QList<double> &oldHeights = m_rowColumnData->rowHeights();
    for (int pos = m_tasks.size() - 1; pos >= 0; --pos) {
        KWTaskInfo *task = m_tasks[pos];
        const quint32 id = knowsIds ? caches.ids[std::size_t(pos)] : task->ID.value();
        if (ids.contains(id) && done.add(id)) {
            leaves[std::size_t(pos)] = true;
            leaving.append(task);
            continue;
        }
        staying.append(task);
        if (pos < oldHeights.size())
            heights.append(oldHeights[pos]);
    }
    std::reverse(staying.begin(), staying.end());
    std::reverse(heights.begin(), heights.end());
    for (int pos = m_tasks.size(); pos < oldHeights.size(); ++pos)
        heights.append(oldHeights[pos]);

    m_rowColumnData->setRowHeights(heights);
    m_tasks = staying;
    listChanged();
    if (knowsIds)
        caches.removeIds(leaves, m_idRevision);
    if (knowsRows)
        caches.removeRows(leaves, m_hideRevision);
    constexpr bool destroy = true;
    for (KWTaskInfo *task : qAsConst(leaving))
        leave(task, destroy);
}

// ---- Costs ------------------------------------------------------------------------------------------------

void KWDocument::updateCostsFrom(KWTaskInfo *task)
{
    if (task)
        costsOf(*this).sumFrom({task});
}

// ---- Copies -----------------------------------------------------------------------------------------------

void KWDocument::assignPartValue(const KWTaskInfo *source, KWTaskInfo *target)
{
    if (!source || !target || source == target)
        return;
    const QString resources = target->Resources;
    const qint32 progress = target->Progress;
    const bool criticalVisible = target->CriticalVisible;
    *target = *source;
    target->font = source->font;
    target->Resources = resources;
    target->Progress = progress;
    target->CriticalVisible = criticalVisible;
}
