#include "exchange/planexport.h"
#include "engine/record/outline.h"
#include "engine/record/resource.h"
#include "engine/text/celltext.h"
#include "engine/text/columntypes.h"
#include "engine/time/duration.h"
#include "exchange/titletable.h"
#include "format/dataformat.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include "support/findings.h"
#include "support/said.h"
#include "support/xmlguard.h"
#include "table/documenttexts.h"
#include "table/resourcetext.h"
#include <QHash>
#include <QLocale>
#include <algorithm>
#include <cmath>

using columntypes::Kind;
using exceltitles::Sheet;

namespace planexport {
namespace {

// Keys of the assignment fields, as ExcelTitles has them.
enum AssignmentKey { TaskName, ResourceName, Complete, Work, Units, assignmentKeys };

constexpr int groupSize = 3;

constexpr int percentDecimals = 1;
constexpr int amountDecimals = 2;

QString percentText(double fraction)
{
    return DataFormat::formatNumber(fraction * 100, groupSize, percentDecimals, 1) + QLatin1Char('%');
}

// Whether the digits of a value go beyond its decimals.
bool isRounded(double value, int decimals)
{
    const double scaled = value * std::pow(10, decimals);
    return std::isfinite(scaled) &&
           std::fabs(scaled - std::round(scaled)) > 1e-7 * std::max(1.0, std::fabs(value));
}

QString exactText(double value)
{
    return QString::number(value, 'f', QLocale::FloatingPointShortest);
}

// With all its digits.
QString rateText(double value)
{
    QString text = exactText(value);
    const int point = text.indexOf(QLatin1Char('.'));
    for (int at = (point < 0 ? text.size() : point) - groupSize; at > (value < 0 ? 1 : 0); at -= groupSize)
        text.insert(at, QLatin1Char(','));
    return DataFormat::currencyText(text);
}

// To the second even where a month or a year is its unit.
QString workText(double amount)
{
    constexpr int decimals = 6;
    return DataFormat::formatNumber(amount, groupSize, decimals, 1);
}

QString nameOfUnit(duration::Unit unit)
{
    constexpr bool longName = false;
    return KWDocument::getNameByMinorUnit(unit, longName);
}

// Days from the day that programs count from; the clock time is the fraction.
double dayNumber(const QDateTime &shown)
{
    constexpr double msecsPerDay = 86400000;
    return double(QDate(1899, 12, 30).daysTo(shown.date())) +
           shown.time().msecsSinceStartOfDay() / msecsPerDay;
}

bool isMaterial(const Resource &resource)
{
    return !resourcetypes::isWork(resource.type);
}

// What a column shows besides texts. Not durations, work, rates and maximum units: an import reads them
// from the text, where the unit stands.
Value valueOf(Sheet sheet, int field)
{
    if (sheet == exceltitles::ResourceSheet)
        return field == resourcetext::Id           ? Value::Number
               : field == resourcetext::CostPerUse ? Value::Money
                                                   : Value::None;
    if (sheet == exceltitles::AssignmentSheet)
        return field == Work                         ? Value::Work
               : field == Complete || field == Units ? Value::Percent
                                                     : Value::None;
    const columntypes::ColumnType *column = columntypes::find(field);
    if (!column)
        return Value::None;
    switch (column->kind) {
    case Kind::Whole:
    case Kind::Flag:
        return Value::Number;
    case Kind::Percent:
        return Value::Percent;
    case Kind::Money:
    case Kind::NumberText:
        return Value::Money;
    case Kind::StartDate:
    case Kind::FinishDate:
        return Value::Moment;
    case Kind::Priority:
    case Kind::Text:
    case Kind::Duration:
    case Kind::Work:
    case Kind::Hyperlinks:
    case Kind::Predecessors:
        break;
    }
    return Value::None;
}
}

QString cellText(const QString &text)
{
    QString cleaned = xmlguard::clean(text);
    if (cleaned.size() > maxUnits)
        cleaned.truncate(cleaned.at(maxUnits - 1).isHighSurrogate() ? maxUnits - 1 : maxUnits);
    return cleaned;
}

std::vector<int> fieldsOf(Sheet sheet)
{
    const QList<ExcelData *> &titles = exceltitles::workbookTitles(sheet);
    const QMap<int, QString> &names =
        sheet == exceltitles::ResourceSheet ? ExcelTitles::s_resourcNames : ExcelTitles::s_workAssignNames;
    std::vector<int> fields;
    for (const ExcelData *title : titles)
        fields.push_back(sheet == exceltitles::TaskSheet ? exceltitles::columnType(*title)
                                                         : names.key(title->name, -1));
    for (std::size_t column = 0; sheet == exceltitles::AssignmentSheet && column < fields.size(); ++column) {
        if (fields[column] < 0)
            fields[column] = titletable::find(sheet, titles[int(column)]->name, true).field;
    }
    // Titles that the host has not told us: the assignment sheet has a usual order.
    const bool isUnknown = std::all_of(fields.begin(), fields.end(), [](int field) { return field < 0; });
    if (sheet == exceltitles::AssignmentSheet && isUnknown) {
        for (int column = 0; column < int(fields.size()) && column < assignmentKeys; ++column)
            fields[std::size_t(column)] = column;
    }
    return fields;
}

std::vector<Value> valuesOfTitles()
{
    std::vector<Value> values;
    for (const Sheet sheet :
         {exceltitles::TaskSheet, exceltitles::ResourceSheet, exceltitles::AssignmentSheet}) {
        for (const int field : fieldsOf(sheet)) {
            const columntypes::ColumnType *column = columntypes::find(field);
            const bool isWork = sheet == exceltitles::TaskSheet && column && column->kind == Kind::Work;
            values.push_back(isWork ? Value::Work : valueOf(sheet, field));
        }
    }
    return values;
}

// ---- Which rows there are ---------------------------------------------------------------------------------

Rows::Rows(KWDocument &document, const QHash<quint32, quint32> &evenings)
    : m_document(document)
    , m_measures(cost::measuresOf(document.workCalendar()))
    , m_dates(document.workCalendar(), document.outline().list, document.outline().index, evenings)
    , m_dateFormat(DataFormat::dateFormat() + QLatin1String(" hh:mm"))
{
    collectTasks();
    collectAssignments();
}

void Rows::collectTasks()
{
    struct Branch
    {
        const QList<quint32> *ids;
        int next;
        int row; // of the summary, -1 for the top
    };
    const outline::Tasks all = m_document.outline();
    QList<quint32> top;
    m_document.taskParentZeroIDList(top);
    std::vector<Branch> path{{&top, 0, -1}};
    while (!path.empty()) {
        Branch &branch = path.back();
        if (branch.next >= branch.ids->size()) {
            if (branch.row >= 0)
                m_ends[std::size_t(branch.row)] = int(m_tasks.size());
            path.pop_back();
            continue;
        }
        const KWTaskInfo *task = asTask(all.byId(branch.ids->at(branch.next++)));
        if (!task)
            continue;
        const int row = int(m_tasks.size());
        if (!m_rowOfId.add(task->ID, row)) {
            m_isTree = false;
            continue;
        }
        m_tasks.push_back(task);
        m_depths.push_back(int(path.size()) - 1);
        m_ends.push_back(row + 1);
        if (task->isParent())
            path.push_back({&task->Childs, 0, row});
    }
}

void Rows::collectAssignments()
{
    m_firstAssignment.reserve(m_tasks.size() + 1);
    for (const KWTaskInfo *task : m_tasks) {
        m_firstAssignment.push_back(m_assignments.size());
        if (task->isParent())
            continue;
        for (const Resource *resource : task->resourceList)
            m_assignments.push_back({task, task, resource});
    }
    m_firstAssignment.push_back(m_assignments.size());
}

int Rows::unreachedTasks() const
{
    return m_document.taskCount() - int(m_tasks.size());
}

int Rows::sharedNames() const
{
    QHash<QString, int> counts;
    for (const KWTaskInfo *task : m_tasks)
        ++counts[task->Name.trimmed()];
    return int(std::count_if(m_tasks.begin(), m_tasks.end(), [&counts](const KWTaskInfo *task) {
        return !task->resourceList.isEmpty() && counts.value(task->Name.trimmed()) > 1;
    }));
}

int Rows::deepest() const
{
    return m_depths.empty() ? 0 : *std::max_element(m_depths.begin(), m_depths.end());
}

// Every task of the list with its own assignments, or for a summary with those of the leaves below it, up to
// the first for which `visit` is false; whether there was none.
bool Rows::forEachAssignment(const std::function<bool(const Assignment &)> &visit) const
{
    for (KWTaskInfo *task : m_document.taskList()) {
        if (!task->isParent()) {
            for (const Resource *resource : qAsConst(task->resourceList)) {
                if (!visit({task, task, resource}))
                    return false;
            }
            continue;
        }
        const int row = m_rowOfId.posOf(task->ID);
        if (m_isTree && row >= 0 && m_tasks[std::size_t(row)] == task) {
            // The descendants are the rows that follow.
            const std::size_t end = m_firstAssignment[std::size_t(m_ends[std::size_t(row)])];
            for (std::size_t i = m_firstAssignment[std::size_t(row)]; i < end; ++i) {
                if (!visit({task, m_assignments[i].owner, m_assignments[i].resource}))
                    return false;
            }
            continue;
        }
        QList<QPair<KWTaskInfo *, Resource *>> below;
        task->allSubTaskResourceList(&m_document, below);
        for (const auto &[owner, resource] : qAsConst(below)) {
            if (!visit({task, owner, resource}))
                return false;
        }
    }
    return true;
}

int Rows::count(Sheet sheet, int limit) const
{
    switch (sheet) {
    case exceltitles::TaskSheet:
        return std::min(limit, int(m_tasks.size()));
    case exceltitles::ResourceSheet:
        return std::min(limit, m_document.resourceInfoData()->infos.size());
    default:
        break;
    }
    int rows = 0;
    forEachAssignment([&](const Assignment &) { return rows < limit && ++rows < limit; });
    return rows;
}

// ---- What a field shows -----------------------------------------------------------------------------------

// The rows are counted as they are written, not as the table on the screen counts them: rows hidden under a
// collapsed summary are written too.
QString Rows::predecessorText(const KWTaskInfo &task) const
{
    QString text;
    for (const quint32 id : task.Predecessors) {
        const int row = m_rowOfId.posOf(id);
        if (row < 0)
            continue;
        if (!text.isEmpty())
            text += QLatin1String("; ");
        text += QString::number(row + 1);
    }
    return text;
}

// As people see it. What a column of moments has no rule for of its own is shown as the task table does: all
// but the dates of summaries and milestones, which are stored as the next working morning when they stand on
// an evening, where nobody would look for them.
QDateTime Rows::shownMoment(const KWTaskInfo &task, int type) const
{
    const columntypes::ColumnType &column = *columntypes::find(type);
    const worktime::WorkCalendar &calendar = m_measures.calendar;
    const bool isOwn = type == columntypes::Start || type == columntypes::Finish;
    const bool isMoment = ShownDates::isMoment(task);
    const int pos = isOwn && (isMoment || task.isParent()) ? m_document.getPosByID(task.ID) : -1;
    if (pos < 0 || m_document.getTaskInfoAt(pos) != &task || !m_dates.isDated(pos))
        return celltext::shownMoment(calendar, columntypes::secs(task, column.field),
                                     column.kind == Kind::StartDate);
    const bool isFinish = type == columntypes::Finish && !isMoment;
    ShownDates::Moment shown = type == columntypes::Start ? m_dates.start(pos) : m_dates.finish(pos);
    // The end of a day is no time of a cell: as a finish 00:00 of its date means that.
    if (shown.secs >= LocalClock::secsPerDay) {
        shown.day += isFinish ? 0 : 1;
        shown.secs = 0;
    }
    return QDateTime(LocalClock::dateOf(shown.day), QTime::fromMSecsSinceStartOfDay(shown.secs * 1000),
                     Qt::UTC);
}

QString Rows::taskText(const KWTaskInfo &task, int type) const
{
    const columntypes::ColumnType *column = columntypes::find(type);
    if (column && column->kind == Kind::Predecessors)
        return predecessorText(task);
    if (column && (column->kind == Kind::StartDate || column->kind == Kind::FinishDate) &&
        columntypes::secs(task, column->field) != 0)
        return QLocale::c().toString(shownMoment(task, type), m_dateFormat);
    // By address, since that is what an import takes each part of the text for.
    constexpr bool linkAddresses = true;
    return celltext::ofType(DocumentTexts(m_document, &m_measures.calendar), task, type,
                            {m_dateFormat, linkAddresses});
}

QString Rows::resourceText(const ResourceInfo &resource, int key) const
{
    const ResourceInfoData &sheet = *m_document.resourceInfoData();
    // A rate for a minute is small, and two decimals are not enough for it.
    if (key == resourcetext::Rate)
        return rateText(resource.cost) + sheet.getCostUintText(resource.costUnit);
    if (key == resourcetext::OvertimeRate)
        return rateText(resource.overtimeCost) + sheet.getCostUintText(resource.overtimeUnit);
    return resourcetext::ofField(sheet, resource, key);
}

QString Rows::assignmentText(const Assignment &assignment, int key) const
{
    const KWTaskInfo &owner = *assignment.owner;
    const Resource &resource = *assignment.resource;
    switch (key) {
    case titletable::TaskId:
        return QString::number(quint32(assignment.task->ID));
    case TaskName:
        return assignment.task->Name;
    case ResourceName:
        return resource.name;
    case Complete:
        return percentText(assignment.task->Percent);
    case Work: {
        if (isMaterial(resource))
            return exactText(resource.percent);
        const double work = cost::work(m_measures, owner, resource);
        const bool inMinutes = owner.DurationUnits == duration::Minute;
        return workText(inMinutes ? work : cost::toHours(m_measures, work, owner.DurationUnits)) +
               QLatin1Char(' ') + nameOfUnit(inMinutes ? duration::Minute : duration::Hour);
    }
    case Units:
        return isMaterial(resource) ? exactText(resource.percent) : percentText(resource.percent);
    default:
        return QString();
    }
}

// ---- Cells with their values ------------------------------------------------------------------------------

Cell Rows::taskCell(const KWTaskInfo &task, int type, bool withValue) const
{
    Cell cell{taskText(task, type)};
    if (!withValue || cell.text.isEmpty())
        return cell;
    cell.value = valueOf(exceltitles::TaskSheet, type);
    if (cell.value == Value::None)
        return cell;
    const columntypes::ColumnType &column = *columntypes::find(type);
    if (cell.value == Value::Moment)
        cell.number = dayNumber(shownMoment(task, type));
    else if (column.kind == Kind::NumberText)
        cell.number = columntypes::text(task, column.field).toDouble();
    else
        cell.number = columntypes::number(task, column.field);
    return cell;
}

Cell Rows::resourceCell(const ResourceInfo &resource, int key, bool withValue) const
{
    Cell cell{resourceText(resource, key)};
    if (!withValue)
        return cell;
    cell.value = valueOf(exceltitles::ResourceSheet, key);
    cell.number = key == resourcetext::Id           ? resource.ID
                  : key == resourcetext::CostPerUse ? resource.costPer
                                                    : 0;
    return cell;
}

Cell Rows::assignmentCell(const Assignment &assignment, int key, bool withValue) const
{
    Cell cell{assignmentText(assignment, key)};
    if (!withValue)
        return cell;
    const Resource &resource = *assignment.resource;
    const KWTaskInfo &owner = *assignment.owner;
    cell.value = valueOf(exceltitles::AssignmentSheet, key);
    if (key == Complete)
        cell.number = assignment.task->Percent;
    else if (key == Units || isMaterial(resource))
        cell.number = resource.percent;
    else
        cell.number = cost::toHours(m_measures, cost::work(m_measures, owner, resource), owner.DurationUnits);
    if (cell.value != Value::None && key != Complete && isMaterial(resource))
        cell.value = Value::Number;
    return cell;
}

// ---- Rows -------------------------------------------------------------------------------------------------

// Only what an import reads back, and only what the cell does not hold as a value.
bool Rows::isCut(const KWTaskInfo &task, int type) const
{
    const columntypes::ColumnType *column = columntypes::find(type);
    if (!column || task.isParent())
        return false;
    if (column->kind == Kind::Percent)
        return isRounded(columntypes::number(task, column->field) * 100, percentDecimals);
    return column->kind == Kind::NumberText &&
           isRounded(columntypes::text(task, column->field).toDouble(), amountDecimals);
}

bool Rows::isCut(const ResourceInfo &resource, int key) const
{
    return (key == resourcetext::MaxUnits && isRounded(resource.unit * 100, percentDecimals)) ||
           (key == resourcetext::CostPerUse && isRounded(resource.costPer, amountDecimals));
}

bool Rows::isCut(const Assignment &assignment, int key) const
{
    return key == Units && !assignment.task->isParent() && !isMaterial(*assignment.resource) &&
           isRounded(assignment.resource->percent * 100, percentDecimals);
}

bool Rows::write(Sheet sheet, RowSink &sink, int maxRows, bool withValues, Findings *findings,
                 const QString &place) const
{
    const std::vector<int> fields = fieldsOf(sheet);
    if (fields.empty() || maxRows < 1) {
        sink.begin(0, 0);
        return true;
    }
    const int needed = count(sheet, maxRows);
    const int rows = std::min(needed, maxRows - 1);
    sink.begin(rows + 1, int(fields.size()));

    std::vector<Cell> cells(fields.size());
    int row = 1;
    int cut = 0;
    const auto fill = [&](int depth, auto &&cellOf, auto &&isCutAt) {
        for (std::size_t column = 0; column < fields.size(); ++column) {
            cells[column] = cellOf(int(column));
            if (cells[column].value == Value::None && isCutAt(fields[column]))
                ++cut;
        }
        sink.row(row++, depth, cells);
    };
    const QList<ExcelData *> &titles = exceltitles::workbookTitles(sheet);
    fill(
        0, [&](int column) { return Cell{titles[column]->name}; }, [](int) { return false; });
    if (sheet == exceltitles::TaskSheet) {
        for (std::size_t i = 0; i < std::size_t(rows); ++i)
            fill(
                m_depths[i],
                [&](int column) { return taskCell(*m_tasks[i], fields[std::size_t(column)], withValues); },
                [&](int field) { return isCut(*m_tasks[i], field); });
    } else if (sheet == exceltitles::ResourceSheet) {
        for (const ResourceInfo *info : m_document.resourceInfoData()->infos.mid(0, rows))
            fill(
                0, [&](int column) { return resourceCell(*info, fields[std::size_t(column)], withValues); },
                [&](int field) { return isCut(*info, field); });
    } else {
        forEachAssignment([&](const Assignment &assignment) {
            if (row > rows + 1)
                return false;
            fill(
                0,
                [&](int column) {
                    return assignmentCell(assignment, fields[std::size_t(column)], withValues);
                },
                [&](int field) { return isCut(assignment, field); });
            return true;
        });
    }
    if (cut > 0 && findings)
        findings->add(place, KW_TEXT("%1 numbers have more digits than their texts").arg(cut),
                      KW_TEXT("rounded"));
    return needed == rows;
}
}
