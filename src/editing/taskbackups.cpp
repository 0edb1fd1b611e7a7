#include "editing/taskbackups.h"
#include "editing/samevalues.h"
#include "editing/taskcopy.h"
#include "engine/record/fieldxml.h"
#include "engine/record/taskahead.h"
#include "engine/record/taskfields.h"
#include "model/kwdocument.h"
#include "table/rowcolumndata.h"
#include <algorithm>
#include <iterator>
#include <type_traits>

// The tasks of which the same fields differ. The values of one task stand together, each kind in the order of
// the fields.
struct TaskBackups::Block
{
    quint64 fields = 0; // one bit each, see forEachField
    std::vector<quint32> ids;
    std::vector<quint32> integers; // signed ones bit for bit
    std::vector<double> doubles;
    std::vector<QString> texts;
    std::vector<QList<quint32>> lists;
    std::vector<QFont> fonts;
    std::vector<KWHyperlinkSheet> hyperlinks;

    void shrink()
    {
        ids.shrink_to_fit();
        integers.shrink_to_fit();
        doubles.shrink_to_fit();
        texts.shrink_to_fit();
        lists.shrink_to_fit();
        fonts.shrink_to_fit();
        hyperlinks.shrink_to_fit();
    }
};

// IDs as runs of consecutive ones, since an edit mostly reaches neighbours.
class TaskBackups::Ids
{
public:
    explicit Ids(std::vector<quint32> ids)
    {
        if (ids.empty())
            return;
        // Many that lie close together need no sorting.
        const auto [least, greatest] = std::minmax_element(ids.begin(), ids.end());
        const quint32 first = *least;
        const std::size_t range = std::size_t(*greatest - first) + 1;
        constexpr std::size_t wide = 64;
        if (range / wide <= ids.size()) {
            std::vector<bool> isIn(range);
            for (const quint32 id : ids)
                isIn[id - first] = true;
            for (std::size_t i = 0; i < range; ++i) {
                if (isIn[i])
                    add(first + quint32(i));
            }
        } else {
            std::sort(ids.begin(), ids.end());
            for (const quint32 id : ids)
                add(id);
        }
        m_runs.shrink_to_fit();
    }
    bool contains(quint32 id) const
    {
        const auto after =
            std::upper_bound(m_runs.begin(), m_runs.end(), id,
                             [](quint32 wanted, const Run &run) { return wanted < run.first; });
        return after != m_runs.begin() && id <= std::prev(after)->last;
    }

private:
    struct Run
    {
        quint32 first, last;
    };
    void add(quint32 id) // in ascending order
    {
        if (m_runs.empty() || id - m_runs.back().last > 1)
            m_runs.push_back({id, id});
        else
            m_runs.back().last = id;
    }
    std::vector<Run> m_runs;
};

namespace {

using samevalues::isSame;

constexpr double TaskRecord::*bars[] = {&TaskRecord::x1, &TaskRecord::x2, &TaskRecord::CountWidth,
                                        &TaskRecord::FirstWidth};

// What follows from the dates and the scale. The heights of a bar do not where the task is hidden.
template <typename Member>
constexpr bool isBar(Member member)
{
    if constexpr (std::is_same_v<Member, double TaskRecord::*>)
        return member == bars[0] || member == bars[1] || member == bars[2] || member == bars[3];
    else
        return false;
}

// Stands by itself in a record.
template <typename Member>
constexpr bool isId(Member member)
{
    if constexpr (std::is_same_v<Member, TrackedField<quint32> TaskRecord::*>)
        return member == &TaskRecord::ID;
    else
        return false;
}

// Calls visit(member, bit) for each value of a task that undo brings back, but for the height of its row.
// The bits are those of Block::fields.
template <typename Visit>
constexpr void forEachField(Visit &&visit)
{
    quint64 bit = 1;
    fields::forEach(fields::taskFields, fields::Copy, [&](const auto &row) {
        if (!isId(row.member))
            visit(row.member, bit);
        bit <<= 1;
    });
    visit(&KWTaskInfo::font, bit);
    visit(&KWTaskInfo::hyperlinks, bit << 1);
}
constexpr quint64 rowHeightBit = quint64(1) << 63;
static_assert(std::tuple_size_v<decltype(fields::taskFields)> + 2 < 63, "one bit for each field");

template <typename Value>
constexpr quint64 bitOf(Value TaskRecord::*wanted)
{
    quint64 found = 0;
    forEachField([&found, wanted](auto member, quint64 bit) {
        if constexpr (std::is_same_v<decltype(member), Value TaskRecord::*>)
            found |= member == wanted ? bit : 0;
    });
    return found;
}
// In the order of the fields.
constexpr quint64 lateBits[] = {bitOf(&TaskRecord::LateStart), bitOf(&TaskRecord::LateFinish),
                                bitOf(&TaskRecord::EarlySlack), bitOf(&TaskRecord::LateSlack),
                                bitOf(&TaskRecord::CriticalPath)};
static_assert(lateBits[0] && lateBits[0] < lateBits[1] && lateBits[1] < lateBits[2] &&
              lateBits[2] < lateBits[3] && lateBits[3] < lateBits[4]);

// The sequence of a block that holds values of this kind.
template <typename Value, typename Block>
auto &sequenceOf(Block &block)
{
    if constexpr (std::is_same_v<Value, QString>)
        return block.texts;
    else if constexpr (std::is_same_v<Value, double>)
        return block.doubles;
    else if constexpr (std::is_same_v<Value, QList<quint32>>)
        return block.lists;
    else if constexpr (std::is_same_v<Value, QFont>)
        return block.fonts;
    else if constexpr (std::is_same_v<Value, KWHyperlinkSheet>)
        return block.hyperlinks;
    else
        return block.integers;
}

template <typename Stored, typename Value>
Stored inBlock(const Value &value)
{
    if constexpr (std::is_same_v<Stored, quint32>)
        return quint32(value);
    else
        return value;
}

double rowHeightOf(const KWDocument &document, quint32 id)
{
    constexpr bool scaled = false;
    return document.rowColumnData()->getRowHeightByPos(document.getPosByID(id), scaled);
}

void setRowHeight(KWDocument &document, quint32 id, double height)
{
    // Most edits leave it alone, and a change moves every row below.
    if (!isSame(rowHeightOf(document, id), height))
        document.rowColumnData()->replaceRowHeight(document.getPosByID(id), height);
}

template <typename Block>
void append(const KWTaskInfo &task, double rowHeight, Block &block)
{
    block.ids.push_back(task.ID);
    forEachField([&](auto member, quint64 bit) {
        if (!(block.fields & bit))
            return;
        using Value = std::decay_t<decltype(fields::plain(task.*member))>;
        auto &values = sequenceOf<Value>(block);
        values.push_back(inBlock<std::decay_t<decltype(values[0])>>(fields::plain(task.*member)));
    });
    if (block.fields & rowHeightBit)
        block.doubles.push_back(rowHeight);
}

// Where the next values of a block stand, of each kind. Of a block that may change the texts are taken.
template <typename Block>
class Reader
{
public:
    explicit Reader(Block &block)
        : m_block(block)
    {
    }

    template <typename Value>
    auto &next()
    {
        std::size_t &place = sequenceOf<Value>(m_places);
        return sequenceOf<Value>(m_block)[place++];
    }

    // Writes the next task's values; all but the height of the row, which is returned where there is one.
    const double *read(KWTaskInfo &task)
    {
        forEachField([&](auto member, quint64 bit) {
            if (!(m_block.fields & bit))
                return;
            using Value = std::decay_t<decltype(fields::plain(task.*member))>;
            auto &value = next<Value>();
            if constexpr (std::is_same_v<Value, KWHyperlinkSheet>)
                (task.*member).assign(value);
            else if constexpr (std::is_same_v<std::decay_t<decltype(value)>, quint32>)
                task.*member = static_cast<Value>(value);
            else if constexpr (std::is_same_v<decltype(value), QString &>)
                task.*member = std::move(value);
            else
                task.*member = value;
        });
        return m_block.fields & rowHeightBit ? &next<double>() : nullptr;
    }

private:
    struct Places
    {
        std::size_t integers = 0, doubles = 0, texts = 0, lists = 0, fonts = 0, hyperlinks = 0;
    };
    Block &m_block;
    Places m_places;
};

// The fields of which the values differ.
quint64 differing(const KWTaskInfo &a, const KWTaskInfo &b, Bars barsToo)
{
    quint64 fields = 0;
    forEachField([&](auto member, quint64 bit) {
        if ((barsToo == Bars::Kept || !isBar(member)) &&
            !isSame(fields::plain(a.*member), fields::plain(b.*member)))
            fields |= bit;
    });
    return fields;
}
}

TaskBackups::TaskBackups() = default;
TaskBackups::~TaskBackups() = default;
TaskBackups::TaskBackups(TaskBackups &&) noexcept = default;
TaskBackups &TaskBackups::operator=(TaskBackups &&) noexcept = default;

bool TaskBackups::contains(quint32 id) const
{
    return m_ids.contains(id) || (m_closedIds && m_closedIds->contains(id));
}

void TaskBackups::add(const KWDocument &document, const KWTaskInfo &task)
{
    if ((m_closedIds && m_closedIds->contains(task.ID)) || !m_ids.add(task.ID, IsWhole))
        return;
    m_whole.emplace_back();
    taskcopy::values(task, m_whole.back().task);
    m_whole.back().rowHeight = rowHeightOf(document, task.ID);
}

void TaskBackups::addMoved(const TaskRecord &task)
{
    if ((m_closedIds && m_closedIds->contains(task.ID)) || !m_ids.add(task.ID, IsMoved))
        return;
    m_moved.push_back({task.ID, task.Start, task.Finish, task.DurationSecs, task.Percent, task.Cost,
                       task.Work, task.RemainingCost});
}

void TaskBackups::addLate(TaskRecord &task, const latedates::Values &now)
{
    if (m_ids.posOf(task.ID) == IsWhole || (m_closedIds && m_closedIds->contains(task.ID)))
        return;
    const bool differs[] = {task.LateStart != now.lateStart, task.LateFinish != now.lateFinish,
                            !isSame(task.EarlySlack, now.earlySlack), !isSame(task.LateSlack, now.lateSlack),
                            task.CriticalPath != now.isCritical};
    quint64 fields = 0;
    for (std::size_t i = 0; i < std::size(differs); ++i)
        fields |= differs[i] ? lateBits[i] : 0;
    if (!fields)
        return;
    Block &block = blockOf(fields);
    block.ids.push_back(task.ID);
    if (differs[0])
        block.integers.push_back(task.LateStart);
    if (differs[1])
        block.integers.push_back(task.LateFinish);
    if (differs[2])
        block.texts.push_back(std::move(task.EarlySlack));
    if (differs[3])
        block.texts.push_back(std::move(task.LateSlack));
    if (differs[4])
        block.integers.push_back(task.CriticalPath);
}

TaskBackups::Block &TaskBackups::blockOf(quint64 fields)
{
    // Neighbours mostly differ in the same fields, and there are few sets of them.
    for (auto block = m_blocks.rbegin(); block != m_blocks.rend(); ++block) {
        if ((*block)->fields == fields)
            return **block;
    }
    m_blocks.push_back(std::make_unique<Block>());
    m_blocks.back()->fields = fields;
    return *m_blocks.back();
}

// Packs what changed of the tasks that were only moved.
void TaskBackups::keepMoves(const KWDocument &document)
{
    KWTaskInfo old;
    for (std::size_t i = 0; i < m_moved.size(); ++i) {
        if (i + tasksAhead < m_moved.size())
            fetchTaskAhead(document.taskList(), document.getPosByID(m_moved[i + tasksAhead].id));
        const Moved &moved = m_moved[i];
        const KWTaskInfo *task = document.getTaskInfoByID(moved.id);
        if (!task)
            continue;
        quint64 fields = 0;
        const auto compare = [&](auto member, auto value, quint64 bit) {
            if (isSame(fields::plain(task->*member), value))
                return;
            fields |= bit;
            old.*member = value;
        };
        compare(&TaskRecord::Start, moved.start, bitOf(&TaskRecord::Start));
        compare(&TaskRecord::Finish, moved.finish, bitOf(&TaskRecord::Finish));
        compare(&TaskRecord::DurationSecs, moved.durationSecs, bitOf(&TaskRecord::DurationSecs));
        compare(&TaskRecord::Percent, moved.percent, bitOf(&TaskRecord::Percent));
        compare(&TaskRecord::Cost, moved.cost, bitOf(&TaskRecord::Cost));
        compare(&TaskRecord::Work, moved.work, bitOf(&TaskRecord::Work));
        compare(&TaskRecord::RemainingCost, moved.remainingCost, bitOf(&TaskRecord::RemainingCost));
        if (!fields)
            continue;
        old.ID = moved.id;
        append(old, 0, blockOf(fields));
    }
    m_moved = std::vector<Moved>(); // gives its memory back
}

void TaskBackups::keepChanges(const KWDocument &document, Bars barsToo)
{
    std::vector<quint32> ids;
    ids.reserve(m_whole.size() + m_moved.size());
    for (const Moved &moved : m_moved)
        ids.push_back(moved.id);
    keepMoves(document);
    std::deque<Whole> missing;
    for (Whole &whole : m_whole) {
        ids.push_back(whole.task.ID);
        const KWTaskInfo *task = document.getTaskInfoByID(whole.task.ID);
        if (!task) {
            missing.emplace_back();
            taskcopy::values(whole.task, missing.back().task);
            missing.back().rowHeight = whole.rowHeight;
            continue;
        }
        quint64 fields = differing(whole.task, *task, barsToo);
        if (!isSame(rowHeightOf(document, whole.task.ID), whole.rowHeight))
            fields |= rowHeightBit;
        if (fields)
            append(whole.task, whole.rowHeight, blockOf(fields));
    }
    m_whole = std::move(missing);
    for (const std::unique_ptr<Block> &block : m_blocks)
        block->shrink();
    m_closedIds = std::make_shared<const Ids>(std::move(ids));
    m_ids = TaskIndex();
}

TaskBackups TaskBackups::now(const KWDocument &document) const
{
    TaskBackups current;
    current.m_ids = m_ids;
    current.m_closedIds = m_closedIds;
    for (const Whole &whole : m_whole) {
        const KWTaskInfo *task = document.getTaskInfoByID(whole.task.ID);
        current.m_whole.emplace_back();
        taskcopy::values(task ? *task : whole.task, current.m_whole.back().task);
        current.m_whole.back().rowHeight = task ? rowHeightOf(document, task->ID) : whole.rowHeight;
    }
    for (const std::unique_ptr<Block> &block : m_blocks) {
        Block &made = *current.m_blocks.emplace_back(std::make_unique<Block>());
        made.fields = block->fields;
        made.ids.reserve(block->ids.size());
        made.integers.reserve(block->integers.size());
        made.doubles.reserve(block->doubles.size());
        made.texts.reserve(block->texts.size());
        KWTaskInfo held; // what is held of a task that is not there
        Reader<const Block> reader(*block);
        for (const quint32 id : block->ids) {
            const double *height = reader.read(held);
            const KWTaskInfo *task = document.getTaskInfoByID(id);
            if (task) {
                append(*task, height ? rowHeightOf(document, id) : 0, made);
            } else {
                held.ID = id;
                append(held, height ? *height : 0, made);
            }
        }
    }
    return current;
}

void TaskBackups::restore(KWDocument &document)
{
    for (const Whole &whole : m_whole) {
        if (KWTaskInfo *task = document.getTaskInfoByID(whole.task.ID)) {
            taskcopy::values(whole.task, *task);
            setRowHeight(document, whole.task.ID, whole.rowHeight);
        }
    }
    for (const std::unique_ptr<Block> &block : m_blocks) {
        KWTaskInfo nobody;
        Reader<Block> reader(*block); // takes the texts
        for (const quint32 id : block->ids) {
            KWTaskInfo *task = document.getTaskInfoByID(id);
            const double *height = reader.read(task ? *task : nobody);
            if (task && height)
                setRowHeight(document, id, *height);
        }
    }
}
