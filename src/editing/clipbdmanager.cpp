#include "editing/clipbdmanager.h"
#include "editing/clipboardxml.h"
#include "editing/pastedbranches.h"
#include "editing/pastednames.h"
#include "engine/cost/cost.h"
#include "engine/network/rollup.h"
#include "engine/record/outline.h"
#include "engine/time/timescale.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "resources/costsof.h"
#include "runinglog.h"
#include "schedule/kwtaskcollection.h"
#include "table/rowcolumndata.h"
#include <QClipboard>
#include <QCryptographicHash>
#include <QGuiApplication>
#include <QMimeData>
#include <limits>
#include <unordered_map>

namespace {

QString mimeType()
{
    return QString::fromLatin1(clipboardxml::mimeType);
}

// Null when the program has none.
QClipboard *clipboard()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance()) ? QGuiApplication::clipboard()
                                                                         : nullptr;
}

QByteArray digestOf(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1);
}

}

// ---- What is copied ---------------------------------------------------------------------------------------

class ClipbdManager::Selection
{
public:
    Selection(const KWDocument &document, const QList<int> &rows)
        : m_tasks(document.outline())
    {
        for (const int row : rows) {
            if (const KWTaskInfo *task = document.getTaskInfoByRow(row))
                m_ids.add(task->ID);
        }
    }

    // Whether an ancestor is selected. In a deep outline the ways up of many tasks are nearly the same, so
    // each part of them is gone once.
    bool isBelow(const KWTaskInfo &task)
    {
        std::vector<quint32> way;
        bool isInside = false;
        for (const TaskRecord *at = &task; at->ParentID != 0 && !isInside;) {
            at = m_tasks.byId(at->ParentID);
            if (!at || at->ID == task.ID)
                break;
            const auto [known, isNew] = m_isInside.emplace(at->ID, m_ids.contains(at->ID));
            isInside = known->second;
            if (!isNew) // also what closes a ring
                break;
            way.push_back(at->ID);
        }
        if (isInside) {
            for (const quint32 id : way)
                m_isInside[id] = true;
        }
        return isInside;
    }

private:
    outline::Tasks m_tasks;
    TaskIndex m_ids;
    std::unordered_map<quint32, bool> m_isInside; // it or an ancestor of it is selected
};

bool ClipbdManager::isReady() const
{
    return m_document && m_document->taskCollection() && m_document->rowColumnData();
}

void ClipbdManager::topTaskListByMultiRow(QList<int> &rows)
{
    if (!isReady() || rows.isEmpty())
        return;
    m_topTasks.clear();
    Selection selection(*m_document, rows);
    TaskIndex added;
    for (const int row : qAsConst(rows)) {
        const KWTaskInfo *task = m_document->getTaskInfoByRow(row);
        if (task && added.add(task->ID) && !selection.isBelow(*task))
            m_topTasks.append(task->ID);
    }
}

void ClipbdManager::appendTopTaskList(KWTaskInfo *task, QList<int> &rows)
{
    if (isReady() && task && !isTopTask(task) && !Selection(*m_document, rows).isBelow(*task))
        m_topTasks.append(task->ID);
}

bool ClipbdManager::isTopTask(KWTaskInfo *task) const
{
    return task && m_topTasks.contains(task->ID);
}

void ClipbdManager::getCopyIDList(QList<quint32> &ids, QList<int> &rows)
{
    putOnClipboard(ids, rows);
}

bool ClipbdManager::putOnClipboard(QList<quint32> &ids, QList<int> &rows)
{
    if (!isReady() || rows.isEmpty())
        return false;
    m_sourceDocument = m_document;
    topTaskListByMultiRow(rows);
    return putOnClipboard(branches(m_topTasks, ids));
}

// Adds the IDs of the tasks and of all below them to those that are there, and writes all of these tasks.
QByteArray ClipbdManager::branches(const QList<quint32> &tops, QList<quint32> &ids) const
{
    const outline::Tasks all = m_document->outline();
    TaskIndex listed;
    for (const quint32 id : qAsConst(ids))
        listed.add(id);
    const auto add = [&](quint32 id) {
        if (listed.add(id))
            ids.append(id);
    };
    for (const quint32 id : tops) {
        if (!all.byId(id))
            continue;
        add(id);
        for (const TaskRecord *below : outline::descendants(all, *all.byId(id)))
            add(below->ID);
    }
    QList<KWTaskInfo *> tasks;
    for (const quint32 id : qAsConst(ids)) {
        KWTaskInfo *task = asTask(all.byId(id));
        if (task && !task->isEmpty()) // which would not be written, and its height go to the next
            tasks.append(task);
    }
    return tasks.isEmpty() ? QByteArray() : clipboardxml::write(*m_document, tasks);
}

QByteArray ClipbdManager::branches(const QList<quint32> &ids) const
{
    QList<quint32> all;
    return isReady() ? branches(ids, all) : QByteArray();
}

bool ClipbdManager::copyBranches(const QList<quint32> &ids)
{
    if (!isReady() || !putOnClipboard(branches(ids)))
        return false;
    m_sourceDocument = m_document;
    m_topTasks = ids;
    return true;
}

bool ClipbdManager::putOnClipboard(const QByteArray &bytes)
{
    QClipboard *target = clipboard();
    if (bytes.isEmpty() || !target)
        return false;
    auto *data = new QMimeData;
    data->setData(mimeType(), bytes);
    target->setMimeData(data, QClipboard::Clipboard);
    m_written = digestOf(bytes);
    return true;
}

// ---- Copy and cut -----------------------------------------------------------------------------------------

bool ClipbdManager::copy(QList<int> &rows)
{
    QList<quint32> ids;
    return putOnClipboard(ids, rows);
}

bool ClipbdManager::cut(QList<int> &rows)
{
    QList<quint32> ids;
    if (!putOnClipboard(ids, rows))
        return false;
    const outline::Tasks tasks = m_document->outline();
    TaskIndex leavingIds;
    std::vector<TaskRecord *> leaving;
    for (const quint32 id : qAsConst(ids)) {
        leavingIds.add(id);
        leaving.push_back(tasks.byId(id));
    }
    TaskIndex parentIds;
    std::vector<TaskRecord *> parents; // that stay and lose children
    for (const TaskRecord *task : leaving) {
        TaskRecord *parent = task->ParentID == 0 ? nullptr : tasks.byId(task->ParentID);
        if (parent && !leavingIds.contains(parent->ID) && parentIds.add(parent->ID))
            parents.push_back(parent);
    }
    outline::cutLinks(tasks, leaving, leavingIds);
    m_document->removeTasks(leavingIds);
    const outline::Tasks left = m_document->outline();
    for (TaskRecord *parent : parents) {
        outline::removeChilds(*parent, leavingIds);
        const auto isThere = [&](quint32 id) { return left.byId(id) != nullptr; };
        if (std::none_of(parent->Childs.cbegin(), parent->Childs.cend(), isThere))
            parent->font.setWeight(QFont::Normal);
    }
    updateSummaries(parents);
    return true;
}

// After what is below these tasks has changed.
void ClipbdManager::updateSummaries(const std::vector<TaskRecord *> &changed)
{
    KWTaskCollection &collection = *m_document->taskCollection();
    costsOf(*m_document).sumFrom(changed);
    collection.updateOptionTaskTime();
    const timescale::Scale scale = collection.scale();
    const outline::Tasks tasks = m_document->outline();
    for (TaskRecord *task : outline::withAncestors(tasks, changed)) {
        if (task->isParent())
            asTask(task)->setPercent(rollup::percent(scale.calendar(), tasks, *task));
    }
    collection.updateRageAndTaskPoint();
    m_document->setModified(true);
}

// ---- Paste ------------------------------------------------------------------------------------------------

// Where pasted tasks go, found before any of them is there.
struct ClipbdManager::Place
{
    int pos = 0;
    int level = 1;
    KWTaskInfo *parent = nullptr; // null: top level
    int child = 0;                // place among the parent's children
    quint32 hideID = 0;           // what hides them there
};

ClipbdManager::Place ClipbdManager::placeAt(int row) const
{
    Place place;
    place.pos = m_document->taskCount();
    const KWTaskInfo *target = m_document->getTaskInfoByRow(row);
    if (!target)
        return place;
    place.pos = m_document->getPosByRow(row);
    place.level = target->Level;
    KWTaskInfo *parent = target->ParentID == 0 ? nullptr : m_document->getTaskInfoByID(target->ParentID);
    const int child = parent ? parent->Childs.indexOf(target->ID) : -1;
    // A damaged file may hold a child that its parent does not name.
    if (child >= 0 && parent != target) {
        place.parent = parent;
        place.child = child;
    }
    return place;
}

ClipbdManager::Place ClipbdManager::placeUnder(KWTaskInfo &parent) const
{
    Place place;
    const outline::Tasks tasks = m_document->outline();
    place.pos = tasks.index.posOf(parent.ID);
    for (const TaskRecord *below : outline::descendants(tasks, parent))
        place.pos = qMax(place.pos, tasks.index.posOf(below->ID));
    ++place.pos;
    place.level = int(qMin(qint64(parent.Level) + 1, qint64(std::numeric_limits<qint32>::max())));
    place.parent = &parent;
    place.child = parent.Childs.size();
    place.hideID = parent.IsToggler ? parent.ID.value() : 0;
    return place;
}

bool ClipbdManager::paste(int row)
{
    return isReady() && pasteTo(placeAt(row));
}

bool ClipbdManager::pasteUnder(int row)
{
    KWTaskInfo *parent = isReady() ? m_document->getTaskInfoByRow(row) : nullptr;
    return parent && pasteTo(placeUnder(*parent));
}

QByteArray ClipbdManager::clipboardBytes(bool &isOwn) const
{
    const QClipboard *source = clipboard();
    const QMimeData *data = source ? source->mimeData(QClipboard::Clipboard) : nullptr;
    if (!data || !data->hasFormat(mimeType()))
        return {};
    const QByteArray bytes = data->data(mimeType());
    isOwn = digestOf(bytes) == m_written;
    return bytes;
}

namespace {

bool readContent(const QByteArray &bytes, bool withAssignments, clipboardxml::Content &content)
{
    QString error;
    if (bytes.isEmpty())
        return false;
    if (!content.read(bytes, &error)) {
        RuningLog::log(QLatin1String("Clipboard not read: ") + error);
        return false;
    }
    if (!withAssignments)
        content.dropAssignments();
    return true;
}
}

// New IDs and levels for the tasks as they go to the place. The top tasks of the branches.
std::vector<KWTaskInfo *> ClipbdManager::numberBranches(const QList<KWTaskInfo *> &tasks, const Place &place,
                                                        pasted::Branches &branches) const
{
    quint32 greatestId = m_document->maxTaskID();
    for (const KWTaskInfo *task : tasks)
        greatestId = qMax(greatestId, task->ID.value());
    pasted::NewIds ids(m_document->taskIndex(), greatestId);
    std::vector<KWTaskInfo *> tops;
    // Then those that no branch holds, since they are in a ring or their parent does not name them.
    for (const bool isLeftOver : {false, true}) {
        for (int pos = 0; pos < tasks.size(); ++pos) {
            if (branches.isNumbered(pos) || !(isLeftOver || branches.isTop(pos)))
                continue;
            KWTaskInfo *top = tasks[pos];
            const qint64 levels = qint64(place.level) - top->Level;
            top->ParentID = place.parent ? place.parent->ID.value() : 0;
            top->Level = place.level;
            branches.number(pos, levels, ids);
            tops.push_back(top);
        }
    }
    return tops;
}

struct ClipbdManager::Inserted
{
    std::vector<KWTaskInfo *> tops;
    std::vector<KWTaskInfo *> robbed; // of children
};

ClipbdManager::Inserted ClipbdManager::insert(clipboardxml::Content &content, const Place &place,
                                              bool withColumns)
{
    const QList<KWTaskInfo *> tasks = content.takeTasks();
    pasted::Branches branches(tasks);
    const std::vector<KWTaskInfo *> tops = numberBranches(tasks, place, branches);
    branches.relink();
    for (KWTaskInfo *task : branches.robbed()) {
        if (!task->isParent())
            task->font.setWeight(QFont::Normal);
    }
    for (KWTaskInfo *task : tasks) {
        if (task->HideID == 0)
            task->HideID = place.hideID;
    }

    if (withColumns)
        content.giveColumns(*m_document->rowColumnData());
    m_document->insertTasks(place.pos, tasks, content.heights());
    if (place.parent)
        joinParent(tops, place);
    pasted::makeNamesDifferent(m_document->taskList(), tasks);
    return {tops, branches.robbed()};
}

bool ClipbdManager::pasteTo(const Place &place)
{
    bool isOwn = false;
    const QByteArray bytes = clipboardBytes(isOwn);
    clipboardxml::Content content;
    if (!readContent(bytes, isOwn, content))
        return false;
    constexpr bool withColumns = true;
    const Inserted inserted = insert(content, place, withColumns);
    std::vector<TaskRecord *> changed;
    if (isOwn) // others came without money
        changed.assign(inserted.robbed.begin(), inserted.robbed.end());
    if (place.parent) {
        for (KWTaskInfo *top : inserted.tops) {
            if (!top->BaselineCost.isEmpty())
                top->updateParentStrBaseCost(m_document, cost::baselineValue(top->BaselineCost));
        }
        // They have the same ancestors.
        inserted.tops.front()->updateParentBaselineStartAndFinish(m_document);
        changed.push_back(place.parent);
    }
    updateSummaries(changed);
    return true;
}

QList<quint32> ClipbdManager::insertBranches(const QByteArray &bytes, bool withAssignments, int pos,
                                             KWTaskInfo *parent, int child)
{
    QList<quint32> tops;
    clipboardxml::Content content;
    if (!isReady() || !readContent(bytes, withAssignments, content))
        return tops;
    Place place;
    place.pos = pos;
    place.parent = parent;
    place.child = child;
    if (parent) {
        place.level = int(qMin(qint64(parent->Level) + 1, qint64(std::numeric_limits<qint32>::max())));
        place.hideID = parent->IsToggler ? parent->ID.value() : parent->HideID.value();
    }
    constexpr bool withColumns = false;
    for (const KWTaskInfo *top : insert(content, place, withColumns).tops)
        tops.append(top->ID);
    return tops;
}

// The tasks are in the list.
void ClipbdManager::joinParent(const std::vector<KWTaskInfo *> &tops, const Place &place)
{
    QList<quint32> &children = place.parent->Childs;
    if (children.isEmpty())
        place.parent->font.setWeight(QFont::Bold);
    const QList<quint32> after = children.mid(place.child);
    children = children.mid(0, place.child);
    for (const KWTaskInfo *top : tops)
        children.append(top->ID);
    children += after;
}

// ---- Steps of pasting -------------------------------------------------------------------------------------

void ClipbdManager::recurveTaskChildID(KWTaskInfo *task, int levelDelta, QList<KWTaskInfo *> &pasted)
{
    if (!m_document || !task)
        return;
    quint32 greatestId = m_document->maxTaskID();
    for (const KWTaskInfo *each : qAsConst(pasted))
        greatestId = qMax(greatestId, each->ID.value());
    pasted::NewIds ids(m_document->taskIndex(), greatestId);
    pasted::Branches(pasted).numberBelow(*task, levelDelta, ids);
}

void ClipbdManager::updateSubTaskHideID(KWTaskInfo *task, quint32 oldID, quint32 newID)
{
    if (!m_document || !task)
        return;
    for (TaskRecord *below : outline::descendants(m_document->outline(), *task)) {
        if (below->HideID == oldID)
            below->HideID = newID;
    }
}

void ClipbdManager::delDependOrDependOn(KWTaskInfo *task, QList<KWTaskInfo *> &oldTasks,
                                        QList<KWTaskInfo *> &newTasks)
{
    if (!m_document || !task || oldTasks.isEmpty() || newTasks.isEmpty())
        return;
    const TaskIndex oldIds(oldTasks);
    task->Depends = pasted::relinked(task->Depends, oldIds, newTasks);
    task->Predecessors = pasted::relinked(task->Predecessors, oldIds, newTasks);
}
