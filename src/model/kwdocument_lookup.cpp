// Finding tasks: by ID, by name, and by the three addresses.
#include "engine/record/taskahead.h"
#include "model/kwdocument.h"
#include "model/kwdocument_caches.h"
#include "model/kwtaskinfo.h"
#include "table/rowcolumndata.h"
#include <algorithm>
#include <limits>

// ---- The tables behind the look-ups -----------------------------------------------------------------------

KWDocument::Caches &KWDocument::withIndex() const
{
    Caches &caches = *m_caches;
    if (caches.indexedAt != m_idRevision) {
        caches.index.clear();
        caches.records.clear();
        caches.ids.clear();
        caches.isIndexed = true;
        caches.indexed = 0;
        caches.maxId = 0;
        caches.lowestFreeId = 1;
        caches.indexedAt = m_idRevision;
    }
    if (caches.indexed == 0)
        caches.records.reserve(m_tasks.size());
    if (!caches.isIndexed) {
        caches.index.clear();
        for (int pos = 0; pos < caches.indexed; ++pos)
            caches.index.add(caches.ids[std::size_t(pos)], pos);
        caches.isIndexed = true;
    }
    for (; caches.indexed < m_tasks.size(); ++caches.indexed) {
        KWTaskInfo *task = m_tasks[caches.indexed];
        caches.index.add(task->ID, caches.indexed);
        caches.records.append(task);
        caches.ids.push_back(task->ID);
        caches.maxId = qMax(caches.maxId, task->ID.value());
        // Only an ID that the table knows can make it wrong.
        task->ID.attach(&m_idRevision);
    }
    return caches;
}

KWDocument::Caches &KWDocument::withRows() const
{
    Caches &caches = *m_caches;
    if (caches.rowsAt != m_hideRevision) {
        caches.rowOfPos.clear();
        caches.posOfRow.clear();
        caches.rowsAt = m_hideRevision;
    }
    for (int pos = int(caches.rowOfPos.size()); pos < m_tasks.size(); ++pos) {
        KWTaskInfo *task = m_tasks[pos];
        if (task->HideID == 0)
            caches.posOfRow.push_back(pos);
        caches.rowOfPos.push_back(int(caches.posOfRow.size()) - 1);
        task->HideID.attach(&m_hideRevision);
    }
    return caches;
}

void KWDocument::Caches::insertIds(int pos, const QList<KWTaskInfo *> &tasks, quint64 &revision)
{
    QList<TaskRecord *> changed = records.mid(0, pos);
    std::vector<quint32> inserted;
    for (KWTaskInfo *task : tasks) {
        changed.append(task);
        inserted.push_back(task->ID);
        maxId = qMax(maxId, inserted.back());
        task->ID.attach(&revision);
    }
    records = changed + records.mid(pos);
    ids.insert(ids.begin() + pos, inserted.begin(), inserted.end());
    indexed = records.size();
    isIndexed = false;
    indexedAt = revision;
}

void KWDocument::Caches::removeIds(const std::vector<bool> &leaves, quint64 revision)
{
    QList<TaskRecord *> staying;
    staying.reserve(records.size());
    std::size_t count = 0;
    maxId = 0;
    for (std::size_t pos = 0; pos < leaves.size(); ++pos) {
        if (leaves[pos])
            continue;
        staying.append(records[int(pos)]);
        ids[count++] = ids[pos];
        maxId = qMax(maxId, ids[pos]);
    }
    ids.resize(count);
    records = staying;
    indexed = int(count);
    lowestFreeId = 1;
    isIndexed = false;
    indexedAt = revision;
}

void KWDocument::Caches::setRows(const std::vector<bool> &visible, quint64 revision)
{
    rowOfPos.clear();
    posOfRow.clear();
    for (std::size_t pos = 0; pos < visible.size(); ++pos) {
        if (visible[pos])
            posOfRow.push_back(int(pos));
        rowOfPos.push_back(int(posOfRow.size()) - 1);
    }
    rowsAt = revision;
}

void KWDocument::Caches::insertRows(int pos, const QList<KWTaskInfo *> &tasks, quint64 &revision)
{
    std::vector<bool> visible = visibleOnes();
    std::vector<bool> inserted;
    for (KWTaskInfo *task : tasks) {
        inserted.push_back(task->HideID == 0);
        task->HideID.attach(&revision);
    }
    visible.insert(visible.begin() + pos, inserted.begin(), inserted.end());
    setRows(visible, revision);
}

void KWDocument::Caches::removeRows(const std::vector<bool> &leaves, quint64 revision)
{
    std::vector<bool> visible;
    visible.reserve(leaves.size());
    for (std::size_t pos = 0; pos < leaves.size(); ++pos) {
        if (!leaves[pos])
            visible.push_back(isVisible(pos));
    }
    setRows(visible, revision);
}

void KWDocument::Caches::permuteIds(int first, int last, const QList<KWTaskInfo *> &tasks, quint64 revision)
{
    for (int pos = first; pos <= last; ++pos) {
        records[pos] = tasks[pos];
        ids[std::size_t(pos)] = tasks[pos]->ID;
    }
    isIndexed = false;
    indexedAt = revision;
}

void KWDocument::Caches::permuteRows(int first, int last, const QList<KWTaskInfo *> &tasks, quint64 revision)
{
    std::vector<bool> visible = visibleOnes();
    for (int pos = first; pos <= last; ++pos)
        visible[std::size_t(pos)] = tasks[pos]->HideID == 0;
    setRows(visible, revision);
}

std::vector<bool> KWDocument::Caches::visibleOnes() const
{
    std::vector<bool> visible(rowOfPos.size());
    for (std::size_t pos = 0; pos < visible.size(); ++pos)
        visible[pos] = isVisible(pos);
    return visible;
}

const TaskIndex &KWDocument::taskIndex() const
{
    return withIndex().index;
}

outline::Tasks KWDocument::outline() const
{
    const Caches &caches = withIndex();
    return {caches.records, caches.index};
}

// ---- Tasks ------------------------------------------------------------------------------------------------

KWTaskInfo *KWDocument::getTaskInfoAt(int pos) const
{
    return m_tasks.value(pos, nullptr);
}

KWTaskInfo *KWDocument::getTaskInfoByRow(int row) const
{
    return getTaskInfoAt(getPosByRow(row));
}

KWTaskInfo *KWDocument::getTaskInfoByID(quint32 id) const
{
    return getTaskInfoAt(getPosByID(id));
}

KWTaskInfo *KWDocument::getTaskInfoByName(const QString &name) const
{
    const QStringView wanted = QStringView(name).trimmed();
    for (KWTaskInfo *task : m_tasks) {
        if (QStringView(task->Name).trimmed() == wanted)
            return task;
    }
    return nullptr;
}

KWTaskInfo *KWDocument::getPreTaskInfoByTaskInfo(const KWTaskInfo *task) const
{
    if (!task)
        return nullptr;
    int pos = getPosByID(task->ID);
    if (getTaskInfoAt(pos) != task) // another task has the same ID
        pos = m_tasks.indexOf(const_cast<KWTaskInfo *>(task));
    return getTaskInfoAt(pos - 1);
}

KWTaskInfo *KWDocument::getTaskByTag(int tag) const
{
    return tag == 0 ? nullptr : getTaskInfoByRow(getRowByTag(tag));
}

// ---- Addresses --------------------------------------------------------------------------------------------

int KWDocument::getPosByID(quint32 id) const
{
    return withIndex().index.posOf(id);
}

int KWDocument::getPosByRow(int row) const
{
    const std::vector<int> &posOfRow = withRows().posOfRow;
    return row >= 0 && row < int(posOfRow.size()) ? posOfRow[row] : -1;
}

int KWDocument::getRowByPos(int pos) const
{
    if (pos < 0)
        return pos;
    return pos < m_tasks.size() ? withRows().rowOfPos[pos] : -1;
}

int KWDocument::getRowByTaskID(quint32 id) const
{
    return getRowByPos(getPosByID(id));
}

// Kept on purpose: a hidden task has the tag of the visible task before it.
int KWDocument::getTagByTaskID(quint32 id) const
{
    return getTagByRow(getRowByTaskID(id));
}

int KWDocument::getTagByRow(int row) const
{
    return getPosByRow(row) + 1;
}

int KWDocument::getRowByTag(int tag) const
{
    // A hidden task's row is that of the visible one before it, whose own place then is another.
    const int pos = tag - 1;
    if (pos < 0 || pos >= m_tasks.size())
        return -1;
    const Caches &caches = withRows();
    const int row = caches.rowOfPos[std::size_t(pos)];
    return row >= 0 && caches.posOfRow[std::size_t(row)] == pos ? row : -1;
}

int KWDocument::visibleRowCount() const
{
    return int(withRows().posOfRow.size());
}

namespace {

// The number that a text is, as it would be written; -1 for any other text and for one that is too long.
qint64 plainNumber(QStringView text)
{
    constexpr int mostDigits = 10;
    if (text.isEmpty() || text.size() > mostDigits || text.front() == QLatin1Char('0'))
        return -1;
    qint64 number = 0;
    for (const QChar digit : text) {
        if (digit < QLatin1Char('0') || digit > QLatin1Char('9'))
            return -1;
        number = 10 * number + (digit.unicode() - '0');
    }
    return number;
}
}

// ---- Unique IDs and names ---------------------------------------------------------------------------------

quint32 KWDocument::maxTaskID() const
{
    return withIndex().maxId;
}

quint32 KWDocument::nextTaskID() const
{
    Caches &caches = withIndex();
    if (caches.maxId < std::numeric_limits<quint32>::max())
        return caches.maxId + 1;
    while (caches.index.contains(caches.lowestFreeId))
        ++caches.lowestFreeId;
    return caches.lowestFreeId;
}

bool KWDocument::isHaveSameTaskID(quint32 id) const
{
    return getPosByID(id) >= 0;
}

bool KWDocument::isHaveSameTaskName(const QString &name) const
{
    return getTaskInfoByName(name) != nullptr;
}

bool KWDocument::isHaveDifferentTaskSameName(const KWTaskInfo *task) const
{
    if (!task)
        return false;
    const QString name = task->Name.trimmed();
    return std::any_of(m_tasks.begin(), m_tasks.end(), [&](const KWTaskInfo *other) {
        return other->ID != task->ID && other->Name.trimmed() == name;
    });
}

QString KWDocument::differentSuffixTaskName(const QString &name, bool useColumnTitle) const
{
    const QString base = useColumnTitle ? RowColumnData::s_columnNames.value(columntypes::Name) : name;
    QStringView shownBase(base);
    while (!shownBase.isEmpty() && shownBase.front().isSpace())
        shownBase = shownBase.mid(1);

    // The numbers in use behind the base. Each task takes one at most, so that of one more than there are
    // tasks one is free.
    const QString trimmed = name.trimmed();
    const int first = m_tasks.size() + 1;
    std::vector<bool> taken(std::size_t(first), false);
    const uint wanted = qHash(QStringView(trimmed));
    bool isFree = true;
    using NumberedName = Caches::NumberedName;
    const auto read = [&shownBase](const QString &taskName) {
        const QStringView shown = QStringView(taskName).trimmed();
        const bool isNumbered = shown.startsWith(shownBase);
        return NumberedName{qHash(shown), isNumbered ? plainNumber(shown.mid(shownBase.size())) : -1};
    };
    if (m_caches->numberedBase != base) {
        m_caches->numberedBase = base;
        m_caches->numberedNames = {};
    }
    m_caches->numberedNames.forEach(m_tasks, read, [&](const KWTaskInfo &task, const NumberedName &is) {
        isFree = isFree && (is.hash != wanted || QStringView(task.Name).trimmed() != trimmed);
        const qint64 number = is.number - first;
        if (number >= 0 && number < first)
            taken[std::size_t(number)] = true;
    });
    if (isFree)
        return trimmed;
    const auto free = std::find(taken.begin(), taken.end(), false);
    // Put together, not filled in: a name may hold a place marker of its own.
    return base + QString::number(first + (free - taken.begin()));
}

// ---- Extremes ---------------------------------------------------------------------------------------------

quint32 KWDocument::getMinStartSecs() const
{
    if (m_tasks.isEmpty())
        return 0;
    quint32 secs = m_tasks.first()->Start;
    for (const KWTaskInfo *task : m_tasks)
        secs = qMin(secs, task->Start);
    return secs;
}

quint32 KWDocument::getMaxFinishSecs() const
{
    quint32 secs = 0;
    for (const KWTaskInfo *task : m_tasks)
        secs = qMax(secs, task->Finish);
    return secs;
}

int KWDocument::getMaxLevel() const
{
    if (m_tasks.isEmpty())
        return 0;
    int level = m_tasks.first()->Level;
    for (const KWTaskInfo *task : m_tasks)
        level = qMax(level, task->Level);
    return level;
}

void KWDocument::taskParentZeroIDList(QList<quint32> &ids) const
{
    for (const KWTaskInfo *task : m_tasks) {
        if (task->ParentID == 0)
            ids.append(task->ID);
    }
}
