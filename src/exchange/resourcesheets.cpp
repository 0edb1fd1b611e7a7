#include "exchange/resourcesheets.h"
#include "engine/time/duration.h"
#include "exchange/exceltitles.h"
#include "exchange/tasksheet.h"
#include "resources/resourceinfodata.h"
#include <algorithm>
#include <limits>

using sheetrows::Cell;
using sheetrows::KnownCell;

namespace planimport {
namespace {

// Keys of the fields, as ExcelTitles has them.
enum ResourceKey {
    Id,
    Name,
    MaxUnits,
    Type,
    Rate,
    OvertimeRate,
    CostPerUse,
    Group,
    Email,
    Notes,
    resourceKeys
};
enum AssignmentKey { TaskName, ResourceName, Complete, Work, Units, assignmentKeys };

constexpr int maxNumberedUnits = 255; // of a name that gets a number

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}
}

// ---- Resources --------------------------------------------------------------------------------------------

ResourceSheet::ResourceSheet(const ResourceInfoData &texts, const sheetrows::Reading &reading,
                             Findings *findings, const QString &name)
    : Reader(exceltitles::ResourceSheet, reading, findings, name)
    , m_texts(texts)
    , m_names(QVector<ResourceInfo *>())
{
}

ResourceSheet::~ResourceSheet() = default;

void ResourceSheet::finish(staged::Plan &plan)
{
    plan.resources = std::move(m_infos);
}

void ResourceSheet::addRow(const sheetrows::Row &source, const std::vector<KnownCell> &cells)
{
    const int row = source.line;
    auto info = std::make_unique<ResourceInfo>();
    for (const KnownCell &known : cells)
        apply(row, known, *info);
    if (info->ID == 0 || m_ids.contains(info->ID))
        info->ID = freeId();
    m_ids.insert(info->ID);

    // Rows are counted from the one below the titles.
    const QString wanted = info->name.isEmpty() ? ExcelTitles::s_workAssignNames.value(ResourceName) +
                                                      QString::number(source.number - 1)
                                                : info->name;
    info->name = m_names.has(wanted) ? m_names.different(wanted.left(maxNumberedUnits)) : wanted;
    if (info->name != wanted)
        report(row, QString(), text("%1 is the name of another resource").arg(wanted),
               text("named %1").arg(info->name));
    m_names.add(info->name, info->ID);
    m_infos.push_back(std::move(info));
}

void ResourceSheet::apply(int row, const KnownCell &known, ResourceInfo &info)
{
    const Cell &cell = *known.cell;
    const bool isText = known.field == Name || known.field >= Group;
    if (!isText && cell.text.trimmed().isEmpty())
        return;
    switch (known.field) {
    case Id: {
        const qint64 id = cellvalues::whole(cell, reading().comma).value_or(0);
        const bool fits = id > std::numeric_limits<qint32>::min() && id <= std::numeric_limits<qint32>::max();
        info.ID = fits ? int(id) : 0;
        if (info.ID == 0 || m_ids.contains(info.ID))
            report(row, &cell, text("%1 cannot be the ID"), text("the next free ID"));
        return;
    }
    case Name:
        info.name = cell.text;
        return;
    case MaxUnits:
        readMaxUnits(row, known, info.unit);
        return;
    case Type: {
        const int type = typeOf(cell.text);
        if (type >= 0)
            info.type = type;
        else
            report(row, &cell, text("%1 is no type of resource"), text("a work resource"));
        return;
    }
    case Rate:
        readRate(row, cell, info.cost, info.costUnit);
        return;
    case OvertimeRate:
        readRate(row, cell, info.overtimeCost, info.overtimeUnit);
        return;
    case CostPerUse:
        readAmount(row, cell, info.costPer);
        return;
    case Group:
        info.group = cell.text;
        return;
    case Email:
        info.email = cell.text;
        return;
    case Notes:
        info.notes = cell.text;
        return;
    default:
        return;
    }
}

int ResourceSheet::typeOf(const QString &written) const
{
    const int type = m_texts.getTypeIndex(written);
    if (type >= 0 || reading().isExact)
        return type;
    return cellvalues::resourceTypeCalled(written);
}

void ResourceSheet::readRate(int row, const Cell &cell, double &money, qint32 &unit)
{
    const std::optional<cellvalues::Rate> rate = cellvalues::rate(cell, reading().comma);
    if (!rate) {
        report(row, &cell, text("%1 is no rate"), text("left out"));
        return;
    }
    reportComma(row, cell, rate->money);
    money = rate->money;
    if (rate->unit.isEmpty())
        return;
    const int read = m_texts.getCostUnitIndex(rate->unit);
    if (read >= 0) {
        unit = read;
        return;
    }
    const std::optional<cellvalues::CostUnit> called = cellvalues::costUnitCalled(rate->unit.mid(1));
    if (!called) {
        report(row, &cell, text("%1 has no known unit of time"), text("money for an hour"));
        return;
    }
    unit = called->unit;
    if (called->parts == 1)
        return;
    money /= called->parts;
    report(row, &cell, text("%1 is no rate for a month or less"),
           text("read as %1")
               .arg(QString::number(money, 'g', 12) + QLatin1Char('/') + cellvalues::costUnitText(unit)));
}

void ResourceSheet::readMaxUnits(int row, const KnownCell &known, double &units)
{
    const Cell &cell = *known.cell;
    const bool isSigned = cellvalues::hasPercentSign(cell);
    const std::optional<double> read = cellvalues::fraction(cell, reading().comma);
    if (!read || *read < 0) {
        report(row, &cell, text("%1 is no amount"), text("left out"));
        return;
    }
    reportComma(row, cell, isSigned ? *read * 100 : *read);
    // A percentage even without its sign.
    units = isSigned ? *read : *read / 100;
    if (!isSigned && !known.title->isPercent && *read > 0 && *read <= 1)
        report(row, &cell, text("%1 is taken as a percentage"),
               QString::number(units * 100) + QLatin1Char('%'));
}

void ResourceSheet::readAmount(int row, const Cell &cell, double &amount)
{
    const std::optional<double> read = cellvalues::number(cell, reading().comma);
    if (!read) {
        report(row, &cell, text("%1 is no amount"), text("left out"));
        return;
    }
    reportComma(row, cell, *read);
    amount = *read;
}

int ResourceSheet::freeId()
{
    const int next = m_names.nextId();
    if (!m_ids.contains(next))
        return next;
    while (m_ids.contains(m_lowestFreeId))
        ++m_lowestFreeId;
    return m_lowestFreeId;
}

// ---- Assignments ------------------------------------------------------------------------------------------

AssignmentSheet::AssignmentSheet(const sheetrows::Reading &reading, Findings *findings, const QString &name)
    : Reader(exceltitles::AssignmentSheet, reading, findings, name)
    , m_unitNames(unitNames())
{
}

AssignmentSheet::~AssignmentSheet() = default;

void AssignmentSheet::findTasks(const staged::Plan &plan)
{
    for (std::size_t i = plan.tasks.size(); i-- > 0;) {
        if (plan.tasks[i].id != 0)
            m_placeOfId.insert(plan.tasks[i].id, int(i));
    }
}

void AssignmentSheet::finish(staged::Plan &plan)
{
    plan.assignments = std::move(m_assignments);
}

bool AssignmentSheet::isLeftOut(const QString &task)
{
    if (!task.isSharedWith(m_lastTask)) {
        m_lastTask = task;
        m_isLastLeftOut = m_leftOut.contains(task.trimmed());
    }
    return m_isLastLeftOut;
}

void AssignmentSheet::addRow(const sheetrows::Row &row, const std::vector<KnownCell> &cells)
{
    const bool hasId = std::any_of(cells.begin(), cells.end(),
                                   [](const KnownCell &known) { return known.field == titletable::TaskId; });
    if (!hasId && std::any_of(cells.begin(), cells.end(), [this](const KnownCell &known) {
            return known.field == TaskName && isLeftOut(known.cell->text);
        }))
        return;
    staged::Assignment assignment;
    assignment.row = row.line;
    for (const KnownCell &known : cells) {
        const Cell &cell = *known.cell;
        switch (known.field) {
        case titletable::TaskId: {
            const qint64 id = cellvalues::whole(cell, reading().comma).value_or(0);
            assignment.task =
                id > 0 && id <= std::numeric_limits<quint32>::max() ? m_placeOfId.value(quint32(id), -1) : -1;
            if (assignment.task < 0) {
                report(row.line, &cell, text("%1 is the ID of no task"), text("left out"));
                return;
            }
            break;
        }
        case TaskName:
            assignment.taskName = cell.text;
            break;
        case ResourceName:
            assignment.resource = cell.text.trimmed();
            break;
        case Work: {
            const Amount work = amountOf(row.line, known);
            assignment.work = work.value;
            assignment.workUnit = work.unit;
            break;
        }
        case Units:
            assignment.units = amountOf(row.line, known).value;
            break;
        default:
            break;
        }
    }
    m_assignments.push_back(std::move(assignment));
}

AssignmentSheet::Amount AssignmentSheet::amountOf(int row, const KnownCell &known)
{
    const Cell &cell = *known.cell;
    QHash<QString, Amount> &amounts = m_amounts[known.field == Work ? 0 : 1][known.title->isPercent ? 2
                                                                             : cell.isNumber        ? 1
                                                                                                    : 0];
    const auto found = amounts.constFind(cell.text);
    if (found != amounts.constEnd())
        return *found;
    Amount amount;
    amount.value = known.field == Work ? cellvalues::number(cell, reading().comma)
                                       : cellvalues::fraction(cell, reading().comma);
    // Work is a number with a unit behind it.
    if (!amount.value && known.field == Work && reading().comma == cellvalues::Comma::Decimal)
        amount.value = cellvalues::number(cell);
    if (amount.value && known.title->isPercent && !cellvalues::hasPercentSign(cell))
        *amount.value /= 100;
    amount.unit = cellvalues::unit(cell.text, m_unitNames).value_or(duration::Hour);
    if (!amount.value || *amount.value < 0) {
        if (cell.text.trimmed().isEmpty())
            return Amount();
        report(row, &cell, text("%1 is no amount"), text("left out"));
        amount.value.reset();
        return amount;
    }
    reportComma(row, cell, *amount.value);
    amounts.insert(cell.text, amount);
    return amount;
}
}
