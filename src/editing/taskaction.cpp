#include "editing/taskaction.h"
#include "editing/actionmanager.h"
#include "editing/optionbackup.h"
#include "editing/renamebackup.h"
#include "editing/rowbackup.h"
#include "editing/samevalues.h"
#include "editing/sheetbackup.h"
#include "editing/taskbackups.h"
#include "editing/tasksnapshot.h"
#include "engine/cost/names.h"
#include "engine/network/linkgraph.h"
#include "engine/record/taskindex.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "resources/costsof.h"
#include "schedule/kwtaskcollection.h"
#include "table/rowcolumndata.h"
#include <algorithm>
#include <optional>
#include <vector>

struct TaskAction::Backups
{
    TaskBackups tasks;
    std::vector<UndoTaskResources> assignments;
    TaskIndex assignmentIds;
    std::optional<TaskSnapshot> allTasks;
    std::optional<RowBackup> rows;
    std::optional<optionbackup::Chart> chart;
    std::optional<UndoOptionItemData> options;
    std::optional<optionbackup::Identity> identity;
    std::optional<QVector<UndoColData>> columns;
    sheetbackup::Entries entries;
    std::optional<sheetbackup::Sheet> sheet;
    renamebackup::Names names;
};

namespace {

UndoTaskResources assignmentsOf(const KWTaskInfo &task)
{
    UndoTaskResources item;
    item.taskID = task.ID;
    item.resources.reserve(task.resourceList.size());
    for (const Resource *resource : task.resourceList)
        item.resources.append(*resource);
    return item;
}

QVector<UndoColData> columnsOf(const RowColumnData &table)
{
    QVector<UndoColData> columns(table.columns().size());
    for (int pos = 0; pos < columns.size(); ++pos)
        table.getColumnDataByPos(pos)->getUndoColVal(&columns[pos]);
    return columns;
}

// The whole list: a move or a file may have changed its order and length.
void setColumns(const QVector<UndoColData> &columns, RowColumnData &table)
{
    if (columns.size() != table.columns().size()) {
        table.clearColDataList();
        for (int pos = 0; pos < columns.size(); ++pos)
            table.appendColumnData(new RowColumnData::ColumnData);
    }
    for (int pos = 0; pos < columns.size(); ++pos) {
        RowColumnData::ColumnData column;
        column.setUndoColVal(&columns[pos]);
        RowColumnData::oldToNewColValue(&column, table.getColumnDataByPos(pos));
    }
}
}

TaskAction::TaskAction(KWDocument *document, const QString &name, unsigned int type)
    : KWOpeAction(document, name)
    , m_type(type)
    , m_backups(std::make_unique<Backups>())
{
}

TaskAction::~TaskAction() = default;

bool TaskAction::unExecute()
{
    return document() && swapData();
}

// ---- Recorders --------------------------------------------------------------------------------------------

bool TaskAction::isExist(quint32 taskID) const
{
    return m_backups->tasks.contains(taskID);
}

void TaskAction::addChangeTaskInfo(KWTaskInfo *task)
{
    // After the whole list was recorded the task may have changed already.
    if (document() && task && !m_backups->allTasks)
        m_backups->tasks.add(*document(), *task);
}

void TaskAction::addMovedTask(TaskRecord &task)
{
    if (!document() || m_backups->allTasks)
        return;
    m_backups->tasks.addMoved(task);
    if (task.isHaveResource())
        addTaskAllResources(asTask(&task));
}

void TaskAction::addTaskInfoHyperlink(KWTaskInfo *task)
{
    addChangeTaskInfo(task); // the hyperlinks are among the values
}

void TaskAction::addTaskAllResources(KWTaskInfo *task)
{
    if (task && !m_backups->allTasks && m_backups->assignmentIds.add(task->ID))
        m_backups->assignments.push_back(assignmentsOf(*task));
}

void TaskAction::backupAffected(KWTaskInfo *task)
{
    const int pos = document() && task ? document()->getPosByID(task->ID) : -1;
    if (pos < 0)
        return;
    backupChart();
    // What can push goes along the links and the outline, which the events of the tasks lead along.
    const outline::Tasks tasks = document()->outline();
    // A summary above may begin earlier than its own predecessors allow, and is pushed with all it holds.
    std::vector<int> starts = {pos};
    for (const TaskRecord *ancestor : outline::ancestors(tasks, *task)) {
        if (!ancestor->Predecessors.isEmpty())
            starts.push_back(tasks.index.posOf(ancestor->ID));
    }
    const linkgraph::EventNetwork network(tasks, starts);
    for (const linkgraph::EventNetwork::Node &node : network.nodes()) {
        KWTaskInfo *reached = asTask(tasks.list[node.pos]);
        addChangeTaskInfo(reached);
        addTaskAllResources(reached);
    }
    // A link is written down at both of its ends.
    for (const quint32 id : qAsConst(task->Predecessors))
        addChangeTaskInfo(asTask(tasks.byId(id)));
}

void TaskAction::backupAllTaskData()
{
    if (!document() || m_backups->allTasks)
        return;
    m_backups->allTasks = document()->actionManager().takeSnapshot();
    backupChart();
}

bool TaskAction::backupRows()
{
    if (!document() || document()->taskIndex().size() != document()->taskCount())
        return false;
    if (!m_backups->rows)
        m_backups->rows.emplace(*document());
    return true;
}

void TaskAction::addLeavingTask(const KWTaskInfo &task)
{
    if (m_backups->rows)
        m_backups->rows->addLeaving(task);
}

void TaskAction::backupChart()
{
    if (document() && !m_backups->chart)
        m_backups->chart = optionbackup::chartOf(*document());
}

void TaskAction::backupAllColData()
{
    if (document() && !m_backups->columns)
        m_backups->columns = columnsOf(*document()->rowColumnData());
}

void TaskAction::addDocResource(ResourceInfo *info)
{
    if (!document() || !info || sheetbackup::holds(*document(), m_backups->entries, *info))
        return;
    UndoDocResourceItem item = sheetbackup::entry(*document(), *info);
    for (const UndoDocResourceItem &recorded : m_backups->entries) {
        // Nothing tells its assignments from those of the other entry, where they are recorded.
        if (recorded.info.ID == item.info.ID && recorded.info.name.trimmed() == item.info.name.trimmed())
            item.resources.clear();
    }
    m_backups->entries.push_back(item);
}

void TaskAction::backupAllDocResources()
{
    if (document() && !m_backups->sheet) {
        m_backups->sheet =
            sheetbackup::Sheet{sheetbackup::infosOf(*document()), document()->actionManager().takeSnapshot()};
    }
}

void TaskAction::addEditTaskResourceName(ResourceInfo *info)
{
    if (!document() || !info)
        return;
    const int index = document()->resourceInfoData()->infos.indexOf(info);
    for (const UndoEditResourceName &recorded : m_backups->names) {
        if (recorded.ID == info->ID && recorded.index == index)
            return;
    }
    m_backups->names.push_back({info->ID, index, info->name});
    for (KWTaskInfo *task : document()->taskList()) {
        if (task->isActiveTaskResource(info->name))
            addTaskAllResources(task);
    }
}

void TaskAction::backupAllOption()
{
    if (document() && !m_backups->options)
        m_backups->options = optionbackup::optionsOf(*document());
}

void TaskAction::backupWholeDocument()
{
    if (!document())
        return;
    backupAllTaskData();
    backupAllColData();
    backupAllDocResources();
    backupAllOption();
    if (!m_backups->identity)
        m_backups->identity = optionbackup::identityOf(*document());
}

void TaskAction::close(Bars bars)
{
    Backups &backups = *m_backups;
    if (document() && backups.rows)
        backups.rows->keepChanges(*document());
    // Each of these gives tasks other values when it comes back, which their own records then put right.
    if (!document() || backups.allTasks || backups.sheet || !backups.entries.empty() ||
        !backups.names.empty() || backups.options || backups.identity)
        return;
    backups.tasks.keepChanges(*document(), bars);
    const auto isUnchanged = [this](const UndoTaskResources &backup) {
        const KWTaskInfo *task = document()->getTaskInfoByID(backup.taskID);
        return task &&
               std::equal(backup.resources.begin(), backup.resources.end(), task->resourceList.begin(),
                          task->resourceList.end(), [](const Resource &was, const Resource *is) {
                              return samevalues::isSame(was, *is);
                          });
    };
    std::vector<UndoTaskResources> &assignments = backups.assignments;
    assignments.erase(std::remove_if(assignments.begin(), assignments.end(), isUnchanged), assignments.end());
    assignments.shrink_to_fit();
    backups.assignmentIds = TaskIndex();
}

void TaskAction::addLateValues(TaskRecord &task, const latedates::Values &now)
{
    if (document() && !m_backups->allTasks)
        m_backups->tasks.addLate(task, now);
}

const TaskBackups &TaskAction::singleTasks() const
{
    return m_backups->tasks;
}

void TaskAction::getAllContainResrourceTask(const ResourceInfo *info,
                                            QVector<UndoResource> &assignments) const
{
    if (document() && info)
        sheetbackup::appendAssignments(*document(), info->name, assignments);
}

void TaskAction::clearUndoItemDatas()
{
    m_backups->tasks = TaskBackups();
    m_backups->assignments.clear();
    m_backups->assignmentIds = TaskIndex();
    m_backups->allTasks.reset();
    m_backups->rows.reset();
    m_backups->chart.reset();
}

void TaskAction::clearUndoColDatas()
{
    m_backups->columns.reset();
}

void TaskAction::clearUndoDocResources()
{
    m_backups->entries.clear();
    m_backups->sheet.reset();
    m_backups->names.clear();
}

// ---- The swap ---------------------------------------------------------------------------------------------

bool TaskAction::swapData()
{
    if (!document())
        return false;
    // All of the present state is read before any of it changes: kinds of backups may overlap.
    auto current = std::make_unique<Backups>(now(For::SwappingBack));
    restore(*m_backups, *current);
    m_backups = std::move(current);
    return true;
}

bool TaskAction::takeBack()
{
    if (!document())
        return false;
    restore(*m_backups, now(For::Restoring));
    m_backups = std::make_unique<Backups>();
    return true;
}

// The document's state, of the kinds that the action has.
TaskAction::Backups TaskAction::now(For purpose) const
{
    KWDocument &document = *this->document();
    Backups current;
    if (m_backups->allTasks) // single tasks are left aside from now on
        current.allTasks = document.actionManager().takeSnapshot();
    else
        addSingleTasks(current, purpose);
    if (m_backups->rows && purpose == For::SwappingBack)
        current.rows = m_backups->rows->now(document);
    if (m_backups->chart)
        current.chart = optionbackup::chartOf(document);
    if (m_backups->options)
        current.options = optionbackup::optionsOf(document);
    if (m_backups->identity)
        current.identity = optionbackup::identityOf(document);
    if (m_backups->columns)
        current.columns = columnsOf(*document.rowColumnData());
    current.entries = sheetbackup::now(document, m_backups->entries);
    if (m_backups->sheet) {
        current.sheet =
            sheetbackup::Sheet{sheetbackup::infosOf(document), document.actionManager().takeSnapshot()};
    }
    current.names = renamebackup::now(document, m_backups->names);
    return current;
}

void TaskAction::addSingleTasks(Backups &current, For purpose) const
{
    const KWDocument &document = *this->document();
    if (purpose == For::SwappingBack)
        current.tasks = m_backups->tasks.now(document);
    current.assignmentIds = m_backups->assignmentIds;
    for (const UndoTaskResources &backup : m_backups->assignments) {
        // A task that is not there keeps its record for another time.
        const KWTaskInfo *task = document.getTaskInfoByID(backup.taskID);
        current.assignments.push_back(task ? assignmentsOf(*task) : backup);
    }
}

namespace {

// What gives the list other tasks; the active one stays it where it is there afterwards.
template <typename Restore>
void restoreList(KWDocument &document, Restore restore)
{
    KWTaskCollection &collection = *document.taskCollection();
    const KWTaskInfo *active = collection.getTaskInfoActive();
    const quint32 activeId = active ? active->ID.value() : 0;
    collection.setTaskInfoActive(nullptr);
    restore();
    if (active)
        collection.setTaskInfoActive(document.getTaskInfoByID(activeId));
}
}

namespace {

// Tasks whose assignments come back: what they cost and how they read before.
class Assigned
{
public:
    explicit Assigned(KWDocument &document)
        : m_document(document)
        , m_measures(cost::measuresOf(document.workCalendar()))
    {
    }

    void add(quint32 id)
    {
        KWTaskInfo *task = m_document.getTaskInfoByID(id);
        if (!task || task->isParent() || !m_ids.add(id))
            return;
        const bool tellsThem = names::areOfAssignments(task->Resources, *task);
        m_tasks.push_back({task, cost::ofAssignments(m_measures, *task), tellsThem});
    }

    void addAll()
    {
        for (const KWTaskInfo *task : m_document.taskList())
            add(task->ID);
    }

    // Afterwards. A text that is somebody's own stays; costs only follow where the assignments cost anything
    // else by now.
    void follow(const TaskBackups &recordedValues, bool withTexts) const
    {
        std::vector<TaskRecord *> named;
        std::vector<TaskRecord *> paid;
        for (const Task &before : m_tasks) {
            KWTaskInfo &task = *before.task;
            if (recordedValues.contains(task.ID))
                continue;
            const QString text = names::ofAssignments(task);
            if (withTexts && before.tellsThem && task.Resources != text) {
                task.Resources = text;
                named.push_back(&task);
            }
            const cost::Total total = cost::ofAssignments(m_measures, task);
            if (total.cost == before.total.cost && total.work == before.total.work)
                continue;
            task.Cost = total.cost;
            task.Work = total.work;
            task.RemainingCost = cost::remaining(task);
            paid.push_back(&task);
        }
        const outline::Tasks tasks = m_document.outline();
        CostPass pass = costsOf(m_document);
        const std::vector<TaskRecord *> namedAndAbove = outline::withAncestors(tasks, named);
        pass.gather(namedAndAbove);
        for (TaskRecord *summary : namedAndAbove) {
            if (summary->isParent())
                CostPass::joinNames(*summary, pass.leavesBelow(*summary));
        }
        const std::vector<TaskRecord *> paidAndAbove = outline::withAncestors(tasks, paid);
        pass.gather(paidAndAbove);
        for (TaskRecord *summary : paidAndAbove) {
            if (!summary->isParent())
                continue;
            const std::vector<TaskRecord *> leaves = pass.leavesBelow(*summary);
            pass.sumCostAndWork(*summary, leaves);
            summary->RemainingCost = cost::remainingOfLeaves(leaves);
        }
    }

private:
    struct Task
    {
        KWTaskInfo *task;
        cost::Total total;
        bool tellsThem; // its names text is the names of its assignments
    };
    KWDocument &m_document;
    cost::Measures m_measures;
    TaskIndex m_ids;
    std::vector<Task> m_tasks;
};

std::vector<int> otherwiseNamed(const KWDocument &document)
{
    std::vector<int> places;
    for (int pos = 0; pos < document.taskCount(); ++pos) {
        if (names::isOtherwiseNamed(*document.taskList()[pos]))
            places.push_back(pos);
    }
    return places;
}

// The names texts of a whole list that came back: of leaves with assignments, and of the summaries above
// them. Others have texts that somebody typed.
void namesFollow(KWDocument &document, const std::vector<int> &otherwiseNamed)
{
    std::vector<TaskRecord *> renamed;
    for (const int pos : otherwiseNamed) {
        TaskRecord *task = document.taskList()[pos];
        task->Resources = names::ofAssignments(*task);
        renamed.push_back(task);
    }
    if (renamed.empty())
        return;
    CostPass pass = costsOf(document);
    const outline::Tasks tasks = document.outline();
    const std::vector<TaskRecord *> concerned = outline::withAncestors(tasks, renamed);
    pass.gather(concerned);
    for (TaskRecord *summary : concerned) {
        if (summary->isParent())
            CostPass::joinNames(*summary, pass.leavesBelow(*summary));
    }
}
}

// The tasks whose assignments the swap exchanges.
template <typename Tasks>
void TaskAction::addConcerned(const Backups &backups, const Backups &current, Tasks &tasks)
{
    for (const Backups *side : {&backups, &current}) {
        for (const UndoDocResourceItem &item : side->entries) {
            for (const UndoResource &resource : item.resources)
                tasks.add(resource.taskID);
        }
        for (const UndoTaskResources &assignments : side->assignments)
            tasks.add(assignments.taskID);
    }
}

void TaskAction::restore(Backups &backups, const Backups &current)
{
    KWDocument &document = *this->document();
    if (backups.chart)
        optionbackup::restore(document, *backups.chart);
    if (backups.options)
        optionbackup::restore(document, *backups.options);
    if (backups.identity)
        optionbackup::restore(document, *backups.identity);
    if (backups.columns)
        setColumns(*backups.columns, *document.rowColumnData());
    if (backups.allTasks)
        restoreList(document, [&] { backups.allTasks->restore(document, *current.allTasks); });
    else if (backups.rows)
        restoreList(document, [&] { backups.rows->restore(document); });

    // Every task has its own assignments back already; else the sheet's come first, then those of single
    // tasks, which are exact, and last the values that are recorded.
    const bool withTasks = !backups.allTasks;
    Assigned assigned(document);
    if (withTasks && backups.sheet)
        assigned.addAll();
    else if (withTasks)
        addConcerned(backups, current, assigned);
    restoreSheet(backups, current, withTasks);
    // With the whole list, too: single tasks were recorded before it.
    restoreSingleAssignments(backups);
    if (withTasks)
        assigned.follow(backups.tasks, !backups.sheet);
    backups.tasks.restore(document);
    if (!withTasks) {
        // Single tasks that were recorded as well have come back over it.
        const bool isAsRecorded = backups.assignments.empty() && backups.tasks.isEmpty();
        namesFollow(document, isAsRecorded ? backups.allTasks->otherwiseNamed() : otherwiseNamed(document));
        document.actionManager().setSnapshot(*backups.allTasks);
        document.taskCollection()->updateRageAndTaskPoint();
    }
}

void TaskAction::restoreSheet(const Backups &backups, const Backups &current, bool withAssignments)
{
    KWDocument &document = *this->document();
    if (backups.sheet) {
        sheetbackup::restore(document, *backups.sheet, *current.sheet, withAssignments);
        renamebackup::restore(document, backups.names);
        return;
    }
    const renamebackup::Assignments renamed(document, current.names, backups.names, backups.entries);
    if (withAssignments)
        renamed.setAside();
    sheetbackup::restore(document, backups.entries, current.entries, withAssignments);
    renamebackup::restore(document, backups.names);
    if (withAssignments)
        renamed.giveBack();
}

void TaskAction::restoreSingleAssignments(const Backups &backups)
{
    KWDocument &document = *this->document();
    for (const UndoTaskResources &backup : backups.assignments) {
        KWTaskInfo *task = document.getTaskInfoByID(backup.taskID);
        if (!task)
            continue;
        task->clearResources();
        for (const Resource &resource : backup.resources)
            task->resourceList.append(new Resource(resource));
    }
}
