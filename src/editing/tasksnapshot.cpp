#include "editing/tasksnapshot.h"
#include "editing/samevalues.h"
#include "editing/taskcopy.h"
#include "engine/cost/names.h"
#include "engine/record/fieldxml.h"
#include "engine/record/resource.h"
#include "engine/record/taskfields.h"
#include "engine/record/taskindex.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "table/rowcolumndata.h"
#include <algorithm>
#include <optional>
#include <unordered_map>

// One task as it was; never changed, so that any number of snapshots can hold it.
struct TaskSnapshot::Copy
{
    KWTaskInfo task;
    double rowHeight = 0;
    bool isOtherwiseNamed = false; // see otherwiseNamed()
};

// Some tasks that stand one behind the other.
struct TaskSnapshot::Block
{
    std::vector<std::shared_ptr<const Copy>> copies;
    bool hasOtherwiseNamed = false;

    std::size_t size() const { return copies.size(); }
    const Copy &operator[](std::size_t i) const { return *copies[i]; }
    void lookForOtherwiseNamed()
    {
        hasOtherwiseNamed = std::any_of(copies.begin(), copies.end(),
                                        [](const auto &copy) { return copy->isOtherwiseNamed; });
    }
};

namespace {

constexpr int blockSize = 128;

using samevalues::isSame;

// The finished part of a bar follows from the rest for every task, the bar itself only for visible ones.
template <typename Row>
bool isDerived(const Row &row, bool isVisible)
{
    if constexpr (std::is_same_v<std::decay_t<decltype(row.member)>, double TaskRecord::*>) {
        if (row.member == &KWTaskInfo::FirstWidth)
            return true;
        for (const auto member :
             {&KWTaskInfo::x1, &KWTaskInfo::y1, &KWTaskInfo::x2, &KWTaskInfo::y2, &KWTaskInfo::CountWidth}) {
            if (row.member == member)
                return isVisible;
        }
    }
    return false;
}

bool isSameTask(const KWTaskInfo &a, const KWTaskInfo &b)
{
    const bool isVisible = a.HideID == 0;
    bool same = true;
    fields::forEach(fields::taskFields, fields::Copy, [&](const auto &row) {
        if (same && !isDerived(row, isVisible))
            same = isSame(fields::plain(a.*row.member), fields::plain(b.*row.member));
    });
    return same && isSame(a.font, b.font) && isSame(a.hyperlinks, b.hyperlinks) &&
           isSame(a.resourceList, b.resourceList);
}

// ---- Copying ----------------------------------------------------------------------------------------------

double rowHeightAt(const QList<double> &heights, int pos)
{
    return heights.value(pos, RowColumnData::defaultRowHeight);
}
}

// ---- Making one -------------------------------------------------------------------------------------------

class TaskSnapshot::Maker
{
public:
    Maker(const KWDocument &document, const TaskSnapshot &earlier)
        : m_tasks(document.taskList())
        , m_index(document.taskIndex())
        , m_heights(document.rowColumnData()->rowHeights())
        , m_earlier(earlier.m_blocks)
        , m_earlierMaxId(earlier.m_maxId)
    {
        m_made.m_count = m_tasks.size();
        m_made.m_maxId = document.maxTaskID();
    }

    TaskSnapshot make()
    {
        std::size_t next = 0;
        int pos = 0;
        while (pos < m_tasks.size()) {
            if (next < m_earlier.size() && standsAt(*m_earlier[next], pos)) {
                appendAgain(m_earlier[next], pos);
                pos += int(m_earlier[next++]->size());
                continue;
            }
            // Tasks came, went or moved: up to the next block that is there in one piece.
            const std::size_t first = next;
            int end = m_tasks.size();
            for (; next < m_earlier.size(); ++next) {
                const int place = m_index.posOf((*m_earlier[next])[0].task.ID);
                if (place >= pos && standsAt(*m_earlier[next], place)) {
                    end = place;
                    break;
                }
            }
            appendAnew(pos, end, first, next);
            pos = end;
        }
        return std::move(m_made);
    }

private:
    bool standsAt(const Block &block, int pos) const
    {
        if (int(block.size()) > m_tasks.size() - pos)
            return false;
        for (std::size_t i = 0; i < block.size(); ++i) {
            if (m_tasks[pos + int(i)]->ID != block[i].task.ID.value())
                return false;
        }
        return true;
    }

    bool isRight(const Copy &copy, int pos) const
    {
        return isSame(copy.rowHeight, rowHeightAt(m_heights, pos)) && isSameTask(copy.task, *m_tasks[pos]);
    }

    std::shared_ptr<const Copy> newCopy(int pos) const
    {
        auto copy = std::make_shared<Copy>();
        taskcopy::all(*m_tasks[pos], copy->task);
        copy->rowHeight = rowHeightAt(m_heights, pos);
        copy->isOtherwiseNamed = names::isOtherwiseNamed(copy->task);
        return copy;
    }

    // A block with the same tasks as before.
    void appendAgain(const std::shared_ptr<const Block> &before, int pos)
    {
        std::shared_ptr<Block> changed;
        for (std::size_t i = 0; i < before->size(); ++i) {
            if (isRight((*before)[i], pos + int(i)))
                continue;
            if (!changed)
                changed = std::make_shared<Block>(*before);
            changed->copies[i] = newCopy(pos + int(i));
        }
        if (changed)
            changed->lookForOtherwiseNamed();
        m_made.m_blocks.push_back(changed ? changed : before);
    }

    // The tasks of a stretch, in blocks of even size. Most of their copies are in the blocks given up for
    // them.
    void appendAnew(int pos, int end, std::size_t firstGivenUp, std::size_t afterGivenUp)
    {
        std::unordered_map<quint32, std::shared_ptr<const Copy>> known;
        for (std::size_t i = firstGivenUp; i < afterGivenUp; ++i) {
            for (const auto &copy : m_earlier[i]->copies)
                known.emplace(copy->task.ID, copy);
        }
        const int count = end - pos;
        const int blocks = (count + blockSize - 1) / blockSize;
        for (int block = 0; block < blocks; ++block) {
            const int blockEnd = end - int(qint64(count) * (blocks - 1 - block) / blocks);
            auto made = std::make_shared<Block>();
            made->copies.reserve(std::size_t(blockEnd - pos));
            for (; pos < blockEnd; ++pos) {
                const auto found = known.find(m_tasks[pos]->ID);
                std::shared_ptr<const Copy> copy = found != known.end() ? found->second : farCopy(pos);
                made->copies.push_back(copy && isRight(*copy, pos) ? copy : newCopy(pos));
            }
            made->lookForOtherwiseNamed();
            m_made.m_blocks.push_back(std::move(made));
        }
    }

    // The earlier copy of a task that comes from elsewhere.
    std::shared_ptr<const Copy> farCopy(int pos)
    {
        if (m_tasks[pos]->ID > m_earlierMaxId) // a new one
            return nullptr;
        if (!m_far) {
            m_far.emplace();
            for (const auto &block : m_earlier) {
                for (const auto &copy : block->copies)
                    m_far->emplace(copy->task.ID, &copy);
            }
        }
        const auto found = m_far->find(m_tasks[pos]->ID);
        return found == m_far->end() ? nullptr : *found->second;
    }

    const QList<KWTaskInfo *> &m_tasks;
    const TaskIndex &m_index;
    const QList<double> &m_heights;
    const std::vector<std::shared_ptr<const Block>> &m_earlier;
    const quint32 m_earlierMaxId;
    TaskSnapshot m_made;
    std::optional<std::unordered_map<quint32, const std::shared_ptr<const Copy> *>> m_far;
};

TaskSnapshot TaskSnapshot::of(const KWDocument &document, const TaskSnapshot &earlier)
{
    return Maker(document, earlier).make();
}

// ---- Restoring --------------------------------------------------------------------------------------------

// Where the blocks of a snapshot stand in the task list.
class TaskSnapshot::Places
{
public:
    explicit Places(const TaskSnapshot &snapshot)
        : m_snapshot(snapshot)
    {
        int pos = 0;
        for (const auto &block : snapshot.m_blocks) {
            m_firstPos.push_back(pos);
            m_ofBlock.emplace(block.get(), pos);
            pos += int(block->size());
        }
    }

    int posOf(const Block &block) const // -1: not in the snapshot
    {
        const auto found = m_ofBlock.find(&block);
        return found == m_ofBlock.end() ? -1 : found->second;
    }

    const Copy *copyAt(int pos) const
    {
        const auto after = std::upper_bound(m_firstPos.begin(), m_firstPos.end(), pos);
        const std::size_t block = std::size_t(after - m_firstPos.begin()) - 1;
        return &(*m_snapshot.m_blocks[block])[std::size_t(pos - m_firstPos[block])];
    }

private:
    const TaskSnapshot &m_snapshot;
    std::vector<int> m_firstPos;
    std::unordered_map<const Block *, int> m_ofBlock;
};

void TaskSnapshot::restore(KWDocument &document, const TaskSnapshot &now) const
{
    const QList<KWTaskInfo *> &tasks = document.taskList();
    const TaskIndex &index = document.taskIndex();
    const QList<double> &oldHeights = document.rowColumnData()->rowHeights();
    const Places places(now);
    // A record stands at one place only, also where several tasks have one ID.
    std::vector<bool> isTaken(std::size_t(tasks.size()), false);
    for (const auto &block : m_blocks) {
        const int pos = places.posOf(*block);
        if (pos >= 0)
            std::fill_n(isTaken.begin() + pos, block->size(), true);
    }

    QList<KWTaskInfo *> restored;
    QList<double> heights;
    restored.reserve(m_count);
    heights.reserve(m_count);
    for (const auto &block : m_blocks) {
        const int blockPos = places.posOf(*block);
        for (std::size_t i = 0; i < block->size(); ++i) {
            const Copy &copy = (*block)[i];
            heights.append(copy.rowHeight);
            if (blockPos >= 0) {
                restored.append(tasks[blockPos + int(i)]);
                continue;
            }
            const int pos = index.posOf(copy.task.ID);
            const bool isThere = pos >= 0 && !isTaken[std::size_t(pos)];
            if (isThere)
                isTaken[std::size_t(pos)] = true;
            restored.append(isThere ? tasks[pos] : new KWTaskInfo);
            if (!isThere || places.copyAt(pos) != &copy)
                taskcopy::all(copy.task, *restored.last());
        }
    }
    if (heights != oldHeights)
        document.rowColumnData()->setRowHeights(heights);
    if (restored != tasks)
        document.replaceTaskInfoList(restored);
}

void TaskSnapshot::restoreAssignments(KWDocument &document, const TaskSnapshot &now) const
{
    const Places places(now);
    const TaskIndex &index = document.taskIndex();
    TaskIndex restored;
    for (const auto &block : m_blocks) {
        for (const auto &copy : block->copies) {
            const int pos = index.posOf(copy->task.ID);
            if (pos < 0 || !restored.add(copy->task.ID) || places.copyAt(pos) == copy.get())
                continue;
            KWTaskInfo &task = *document.getTaskInfoAt(pos);
            taskcopy::assignments(copy->task.resourceList, task);
            task.Resources = copy->task.Resources;
        }
    }
    for (KWTaskInfo *task : document.taskList()) {
        if (restored.contains(task->ID))
            continue;
        task->clearResources();
        task->Resources.clear();
    }
}

std::vector<int> TaskSnapshot::otherwiseNamed() const
{
    std::vector<int> places;
    int pos = 0;
    for (const auto &block : m_blocks) {
        for (std::size_t i = 0; block->hasOtherwiseNamed && i < block->size(); ++i) {
            if ((*block)[i].isOtherwiseNamed)
                places.push_back(pos + int(i));
        }
        pos += int(block->size());
    }
    return places;
}
