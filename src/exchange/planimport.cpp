#include "exchange/planimport.h"
#include "engine/cost/costpass.h"
#include "engine/network/links.h"
#include "engine/record/resource.h"
#include "exchange/resourcesheets.h"
#include "exchange/tasksheet.h"
#include "model/kwdocument.h"
#include "resources/resourceinfodata.h"
#include "schedule/kwtaskcollection.h"
#include "table/rowcolumndata.h"
#include <QPair>

using exceltitles::Sheet;
using sheetrows::Cell;
using sheetrows::Source;

namespace planimport {
namespace {

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

// ---- Titles -----------------------------------------------------------------------------------------------

void setTitles(Sheet sheet, const std::vector<Cell> &titles)
{
    ExcelTitles::clearExcelTitles(exceltitles::workbookTitles(sheet));
    for (const Cell &cell : titles)
        exceltitles::addWorkbookTitle(sheet, cell.column, cell.text);
}

void showTitledColumns(RowColumnData &table)
{
    table.setAllColDataHide();
    for (const ExcelData *title : qAsConst(ExcelTitles::s_excelTaskTitles)) {
        if (RowColumnData::ColumnData *column = table.getColumnDataByName(title->name))
            column->isHide = false;
    }
}

// ---- Tasks ------------------------------------------------------------------------------------------------

void replaceTasks(KWDocument &document, TaskSheet &sheet)
{
    document.clearTaskInfoList();
    const QList<KWTaskInfo *> tasks = sheet.takeTasks();
    for (KWTaskInfo *task : tasks)
        document.appendTaskInfoList(task);

    RowColumnData &table = *document.rowColumnData();
    table.setRowHeights({});
    table.setRowHeightCount(tasks.size());
    showTitledColumns(table);

    QList<KWTaskLink> links = sheet.links();
    links::insertAll({document.taskList(), document.taskIndex()}, links);
    sheet.reportRefused(links);
    constexpr bool byTag = false;
    document.updateDependTask(byTag);
}

// ---- Resources and assignments ----------------------------------------------------------------------------

void replaceResources(ResourceInfoData &infos, ResourceSheet &sheet)
{
    infos.clearResourceInfoData();
    for (std::unique_ptr<ResourceInfo> &info : sheet.takeInfos())
        infos.appendResourceInfo(info.release());
}

// Finds tasks, resources and assignments by their names.
class Assigner
{
public:
    Assigner(KWDocument &document, const AssignmentSheet &sheet)
        : m_sheet(sheet)
        , m_measures(cost::measuresOf(document.workCalendar()))
    {
        m_tasks.reserve(document.taskCount());
        // From the last to the first, which is the one that a name means.
        for (int pos = document.taskCount() - 1; pos >= 0; --pos)
            m_tasks.insert(document.getTaskInfoAt(pos)->Name.trimmed(), document.getTaskInfoAt(pos));
        const QVector<ResourceInfo *> &infos = document.resourceInfoData()->infos;
        for (int i = infos.size() - 1; i >= 0; --i)
            m_infos.insert(infos[i]->name.trimmed(), infos[i]);
    }

    void add(const AssignmentSheet::Assignment &row)
    {
        if (row.resource.isEmpty())
            return;
        KWTaskInfo *task = m_tasks.value(row.task.trimmed());
        if (!task) {
            m_sheet.reportRow(row.row, text("there is no task ") + row.task, text("left out"));
            return;
        }
        if (task->isParent())
            return;
        Resource &resource = assigned(*task, row);
        const bool isMaterial = resource.type != 0;
        if (row.units)
            resource.percent = *row.units;
        if (isMaterial)
            return;
        if (row.work)
            resource.workSecs = cost::secsOfHours(
                m_measures, cost::toHours(m_measures, *row.work, row.workUnit), task->DurationUnits);
        else if (row.units)
            resource.workSecs = cost::workSecs(*task, resource);
    }

private:
    Resource &assigned(KWTaskInfo &task, const AssignmentSheet::Assignment &row)
    {
        if (Resource *resource = find(task, row.resource))
            return *resource;
        const ResourceInfo *info = m_infos.value(row.resource);
        if (!info)
            m_sheet.reportRow(row.row, text("there is no resource ") + row.resource,
                              text("assigned without a rate"));
        Resource *resource = CostPass::append(task, row.resource, info);
        if (m_met.contains(&task))
            m_assigned.insert({&task, row.resource}, resource);
        return *resource;
    }

    // Few tasks have more resources than can be looked through.
    Resource *find(const KWTaskInfo &task, const QString &name)
    {
        constexpr int few = 8;
        if (task.resourceList.size() <= few) {
            for (Resource *resource : task.resourceList) {
                if (resource->name.trimmed() == name)
                    return resource;
            }
            return nullptr;
        }
        if (!m_met.contains(&task)) {
            m_met.insert(&task);
            for (int i = task.resourceList.size() - 1; i >= 0; --i)
                m_assigned.insert({&task, task.resourceList[i]->name.trimmed()}, task.resourceList[i]);
        }
        return m_assigned.value({&task, name});
    }

    const AssignmentSheet &m_sheet;
    const cost::Measures m_measures;
    QHash<QString, KWTaskInfo *> m_tasks;
    QHash<QString, const ResourceInfo *> m_infos;
    QSet<const KWTaskInfo *> m_met;
    QHash<QPair<const KWTaskInfo *, QString>, Resource *> m_assigned;
};

void addAssignments(KWDocument &document, const AssignmentSheet &sheet)
{
    Assigner assigner(document, sheet);
    for (const AssignmentSheet::Assignment &row : sheet.assignments())
        assigner.add(row);
}

void finish(KWDocument &document)
{
    CostPass(document).sumUp();
    document.taskCollection()->updateRageAndTaskPoint();
    document.setModified(true);
}
}

void readTitles(KWDocument &document, const Book &book)
{
    ExcelTitles::initImportMapList(&document);
    for (int sheet = 0; sheet < exceltitles::SheetCount; ++sheet) {
        sheetrows::Row row;
        Source *source = book.sheets[std::size_t(sheet)];
        const bool hasTitles = source && source->next(row) && row.number == 1;
        setTitles(Sheet(sheet), hasTitles ? row.cells : std::vector<Cell>());
    }
}

bool importBook(KWDocument &document, const Book &book, Findings *findings)
{
    TaskSheet tasks(document, book.is1904, findings);
    ResourceSheet resources(*document.resourceInfoData(), findings);
    AssignmentSheet assignments(findings);
    sheetrows::Reader *const readers[] = {&tasks, &resources, &assignments};

    ExcelTitles::initImportMapList(&document);
    std::array<bool, exceltitles::SheetCount> isUsed{};
    for (std::size_t sheet = 0; sheet < isUsed.size(); ++sheet) {
        isUsed[sheet] =
            book.sheets[sheet] && readers[sheet]->read(*book.sheets[sheet]) && readers[sheet]->isKnown();
        setTitles(Sheet(sheet), readers[sheet]->titles());
        if (sheet == exceltitles::TaskSheet && isUsed[sheet]) {
            tasks.arrange();
            // Workbooks repeat the assignments below a summary for the summary.
            assignments.leaveOut(tasks.summaryNames());
        }
    }
    if (tasks.hasBlankTitles()) {
        if (findings)
            findings->add(text("task sheet"), text("the cells of its first row are empty"),
                          text("nothing imported"));
        return true;
    }
    if (!isUsed[exceltitles::TaskSheet]) {
        if (findings)
            findings->add(text("task sheet"), text("no title of its first row is known"),
                          text("nothing imported"));
        return false;
    }
    replaceTasks(document, tasks);
    if (isUsed[exceltitles::ResourceSheet])
        replaceResources(*document.resourceInfoData(), resources);
    if (isUsed[exceltitles::AssignmentSheet])
        addAssignments(document, assignments);
    finish(document);
    return true;
}

bool importSheet(KWDocument &document, Sheet sheet, Source &source, bool is1904, Findings *findings)
{
    TaskSheet tasks(document, is1904, findings);
    ResourceSheet resources(*document.resourceInfoData(), findings);
    AssignmentSheet assignments(findings);
    sheetrows::Reader *const readers[] = {&tasks, &resources, &assignments};
    if (!readers[sheet]->read(source) || !readers[sheet]->isKnown())
        return false;
    if (sheet == exceltitles::TaskSheet) {
        tasks.arrange();
        replaceTasks(document, tasks);
    } else if (sheet == exceltitles::ResourceSheet) {
        replaceResources(*document.resourceInfoData(), resources);
    } else {
        addAssignments(document, assignments);
    }
    finish(document);
    return true;
}

void placeByLevel(KWDocument &document, KWTaskInfo &task)
{
    task.ParentID = 0;
    const QList<KWTaskInfo *> &tasks = document.taskList();
    for (int pos = tasks.size() - 1; pos >= 0 && task.Level != 1; --pos) {
        KWTaskInfo &summary = *tasks[pos];
        if (qint64(summary.Level) != qint64(task.Level) - 1)
            continue;
        task.ParentID = summary.ID;
        summary.insertTaskChildID(summary.Childs.size(), task.ID);
        summary.font.setWeight(QFont::Bold);
        break;
    }
    task.initFont();
}
}
