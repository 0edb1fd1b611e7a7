#include "sheetfile.h"
#include "engine/record/resource.h"
#include "model/kwtaskinfo.h"
#include "resources/assignmentbatch.h"
#include "resources/resourceinfodata.h"
#include "sheettext.h"
#include "support/findings.h"
#include "texts.h"
#include <QSet>
#include <cmath>

namespace sheetfile {

namespace {

constexpr double sameHours = 0.02; // a minute, and what rounding leaves

QString placeOf(const char *sheet, int row)
{
    return t("%1, row %2").arg(t(sheet)).arg(row);
}

// Where each title stands; -1: nowhere.
template <std::size_t count>
std::array<int, count> columnsOf(const csv::Table &table, const char *const (&titles)[count])
{
    std::array<int, count> places;
    places.fill(-1);
    for (std::size_t i = 0; i < count && !table.rows.empty(); ++i)
        for (int column = 0; places[i] < 0 && column < table.rows.front().cells.size(); ++column)
            if (table.rows.front().cells.at(column).trimmed().compare(QLatin1String(titles[i]),
                                                                      Qt::CaseInsensitive) == 0)
                places[i] = column;
    return places;
}

// "200", "200%": percent either way.
bool parsePercent(QString text, double &units)
{
    if (!text.trimmed().endsWith(QLatin1Char('%')))
        text += QLatin1Char('%');
    return sheettext::parseUnits(text, units);
}

// ---- Resources --------------------------------------------------------------------------------------------

struct SheetColumn
{
    const char *title;
    bool (*read)(ResourceInfo &, const QString &);
    QString (*written)(const ResourceInfo &);
};

template <QString ResourceEntry::*member>
constexpr SheetColumn textColumn(const char *title)
{
    return {title,
            [](ResourceInfo &entry, const QString &text) {
                entry.*member = text;
                return true;
            },
            [](const ResourceInfo &entry) { return entry.*member; }};
}

template <double ResourceEntry::*amount, qint32 ResourceEntry::*unit>
constexpr SheetColumn rateColumn(const char *title)
{
    return {title,
            [](ResourceInfo &entry, const QString &text) {
                sheettext::Rate rate;
                const bool ok = sheettext::parseRate(text, rate);
                entry.*amount = rate.amount;
                entry.*unit = rate.unit;
                return ok;
            },
            [](const ResourceInfo &entry) {
                return sheettext::rateText({entry.*amount, entry.*unit});
            }};
}

constexpr SheetColumn sheetColumns[] = {
    {"ID",
     [](ResourceInfo &entry, const QString &text) {
         bool ok = false;
         entry.ID = text.toInt(&ok);
         return ok && entry.ID > 0;
     },
     [](const ResourceInfo &entry) { return QString::number(entry.ID); }},
    textColumn<&ResourceInfo::name>("Name"),
    {"Type", [](ResourceInfo &entry, const QString &text) { return sheettext::parseType(text, entry.type); },
     [](const ResourceInfo &entry) {
         return entry.type == 0 ? QStringLiteral("WORK") : QStringLiteral("MATERIAL");
     }},
    {"MaxUnitsPercent",
     [](ResourceInfo &entry, const QString &text) { return parsePercent(text, entry.unit); },
     [](const ResourceInfo &entry) { return sheettext::numberText(entry.unit * 100); }},
    rateColumn<&ResourceInfo::cost, &ResourceInfo::costUnit>("Rate"),
    rateColumn<&ResourceInfo::overtimeCost, &ResourceInfo::overtimeUnit>("OvertimeRate"),
    {"CostPerUse",
     [](ResourceInfo &entry, const QString &text) { return sheettext::parseMoney(text, entry.costPer); },
     [](const ResourceInfo &entry) { return sheettext::numberText(entry.costPer); }},
    textColumn<&ResourceInfo::group>("Group"),
    textColumn<&ResourceInfo::email>("Email"),
    textColumn<&ResourceInfo::notes>("Notes"),
};

constexpr int nameColumn = 1;

std::array<int, std::size(sheetColumns)> sheetPlaces(const csv::Table &table)
{
    const char *titles[std::size(sheetColumns)];
    for (std::size_t i = 0; i < std::size(sheetColumns); ++i)
        titles[i] = sheetColumns[i].title;
    return columnsOf(table, titles);
}

// ---- Assignments ------------------------------------------------------------------------------------------

class Assigner
{
public:
    Assigner(Plan &plan, Findings &findings)
        : m_plan(plan)
        , m_findings(findings)
        , m_batch(*plan.document)
    {
        for (const ResourceInfo *info : qAsConst(plan.document->resourceInfoData()->infos))
            m_names.insert(info->name.trimmed());
    }

    bool knows(const QString &name) const { return m_names.contains(name.trimmed()); }

    // Null when nothing was assigned; why has been told then.
    Resource *assign(const QString &place, KWTaskInfo &task, const QString &name, double units)
    {
        if (task.isParent()) {
            m_findings.add(place, t("a summary takes no resources; skipped"),
                           t("assign them to the tasks below it"));
            return nullptr;
        }
        if (task.getResourceByName(name)) {
            m_findings.add(place, t("'%1' is assigned to this task already; skipped").arg(name.trimmed()));
            return nullptr;
        }
        Resource *assigned = m_batch.assign(task, name.trimmed());
        assigned->percent = units;
        task.updateResourceWorkSecs(m_plan.document.get());
        m_batch.updateCostAndWork(task);
        return assigned;
    }

    // Sums once more in the order of the tasks, and the names.
    void finish()
    {
        m_batch.finish();
        m_plan.document->updateCostCompletCostWork();
    }

private:
    Plan &m_plan;
    Findings &m_findings;
    AssignmentBatch m_batch;
    QSet<QString> m_names;
};

constexpr const char *assignmentTitles[] = {"TaskID", "Resource", "UnitsPercent", "WorkHours", "Cost"};
enum AssignmentColumn { TaskId, ResourceName, Units, WorkHours, AssignmentCost };

double hoursOf(const Plan &plan, const KWTaskInfo &task, const Resource &assigned)
{
    KWDocument *document = plan.document.get();
    return assigned.type == 0 ? task.transforHourWork(document, task.resourceWork(document, &assigned))
                              : assigned.percent;
}
}

bool readResources(const csv::Table &table, Plan &plan, Findings &findings, QString &error)
{
    const auto places = sheetPlaces(table);
    if (places[nameColumn] < 0) {
        error = t("no resource sheet: no title '%1'").arg(QStringLiteral("Name"));
        return false;
    }
    ResourceInfoData *sheet = plan.document->resourceInfoData();
    QSet<QString> names;
    QSet<int> ids;
    for (int row = 1; row < int(table.rows.size()); ++row) {
        const QStringList &cells = table.rows[std::size_t(row)].cells;
        auto entry = std::make_unique<ResourceInfo>();
        for (std::size_t i = 0; i < std::size(sheetColumns); ++i) {
            const QString text = cells.value(places[i]);
            if (!text.isEmpty() && !sheetColumns[i].read(*entry, text))
                findings.add(placeOf("resources", row),
                             t("'%1' is no value for '%2'").arg(text, QLatin1String(sheetColumns[i].title)));
        }
        if (entry->name.trimmed().isEmpty() || names.contains(entry->name.trimmed())) {
            findings.add(placeOf("resources", row),
                         entry->name.trimmed().isEmpty()
                             ? t("a resource without a name; skipped")
                             : t("'%1' stands twice; skipped").arg(entry->name.trimmed()));
            continue;
        }
        names.insert(entry->name.trimmed());
        if (ids.contains(entry->ID))
            entry->ID = 0;
        if (entry->ID != 0)
            ids.insert(entry->ID);
        sheet->appendResourceInfo(entry.release());
    }
    int next = sheet->maxID();
    for (ResourceInfo *entry : qAsConst(sheet->infos))
        if (entry->ID == 0)
            entry->ID = next++;
    return true;
}

bool readAssignments(const csv::Table &table, Plan &plan, Findings &findings, QString &error)
{
    const auto places = columnsOf(table, assignmentTitles);
    if (places[TaskId] < 0 || places[ResourceName] < 0) {
        error = t("no assignments: no title '%1'")
                    .arg(QLatin1String(assignmentTitles[places[TaskId] < 0 ? TaskId : ResourceName]));
        return false;
    }
    Assigner assigner(plan, findings);
    for (int row = 1; row < int(table.rows.size()); ++row) {
        const QStringList &cells = table.rows[std::size_t(row)].cells;
        const QString place = placeOf("assignments", row);
        const QString name = cells.value(places[ResourceName]);
        KWTaskInfo *task = plan.document->getTaskInfoByID(cells.value(places[TaskId]).toUInt());
        if (!task || !assigner.knows(name)) {
            findings.add(place, task ? t("no resource '%1' in the sheet; skipped").arg(name.trimmed())
                                     : t("no task %1; skipped").arg(cells.value(places[TaskId])));
            continue;
        }
        double units = 1;
        const QString unitsText = cells.value(places[Units]);
        if (!unitsText.isEmpty() && !parsePercent(unitsText, units)) {
            findings.add(place, t("'%1' are no units; taken as 100%").arg(unitsText));
            units = 1;
        }
        const Resource *assigned = assigner.assign(place, *task, name, units);
        bool saysHours = false;
        const double hours = cells.value(places[WorkHours]).toDouble(&saysHours);
        if (assigned && saysHours && std::abs(hours - hoursOf(plan, *task, *assigned)) > sameHours)
            findings.add(
                place,
                t("%1 hours of work are counted as %2").arg(hours).arg(hoursOf(plan, *task, *assigned)),
                t("work is the task's length times the units"));
    }
    assigner.finish();
    return true;
}

void assignFromColumn(Plan &plan, Findings &findings)
{
    Assigner assigner(plan, findings);
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        KWTaskInfo *task = plan.task(pos);
        const QString written = plan.rows.rows[std::size_t(pos)].resources;
        for (const QString &part : written.split(QLatin1Char(';'))) {
            const int bracket = part.endsWith(QLatin1Char(']')) ? part.lastIndexOf(QLatin1Char('[')) : -1;
            double units = 1;
            const bool hasUnits =
                bracket > 0 && sheettext::parseUnits(part.mid(bracket + 1).chopped(1), units);
            const QString name = hasUnits ? part.left(bracket) : part;
            if (!task->isParent() && assigner.knows(name))
                assigner.assign(planrows::place(pos + 1), *task, name, units);
        }
    }
    assigner.finish();
}

QString columnText(const Plan &plan, const KWTaskInfo &task)
{
    if (task.isParent())
        return task.isSubHaveResource(plan.document.get()) ? QString() : task.Resources;
    if (!task.isHaveResource())
        return task.Resources;
    QStringList parts;
    for (const Resource *assigned : task.resourceList) {
        const QString name = assigned->name.trimmed();
        if (!name.isEmpty())
            parts.append(assigned->percent == 1
                             ? name
                             : QStringLiteral("%1[%2]").arg(name, sheettext::unitsText(assigned->percent)));
    }
    return parts.join(QLatin1Char(';'));
}

namespace {

QByteArray line(const QStringList &cells)
{
    QStringList quoted;
    for (const QString &cell : cells)
        quoted.append(csv::quoted(cell));
    return quoted.join(QLatin1Char(',')).toUtf8() + '\n';
}
}

QByteArray resources(const Plan &plan)
{
    QStringList titles;
    for (const SheetColumn &column : sheetColumns)
        titles.append(QLatin1String(column.title));
    QByteArray bytes = line(titles);
    for (const ResourceInfo *entry : qAsConst(plan.document->resourceInfoData()->infos)) {
        QStringList cells;
        for (const SheetColumn &column : sheetColumns)
            cells.append(column.written(*entry));
        bytes += line(cells);
    }
    return bytes;
}

QByteArray assignments(const Plan &plan)
{
    QStringList titles;
    for (const char *title : assignmentTitles)
        titles.append(QLatin1String(title));
    QByteArray bytes = line(titles);
    for (const KWTaskInfo *task : plan.document->taskList()) {
        for (const Resource *assigned : task->resourceList)
            bytes += line({QString::number(task->ID), assigned->name.trimmed(),
                           sheettext::numberText(assigned->percent * 100),
                           sheettext::numberText(hoursOf(plan, *task, *assigned)),
                           sheettext::numberText(task->resourceCost(plan.document.get(), assigned))});
    }
    return bytes;
}
}
