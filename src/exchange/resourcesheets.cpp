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

int keyOf(const QMap<int, QString> &names, const QString &title, int count)
{
    const int key = names.key(title, -1);
    return key < count ? key : -1;
}
}

// ---- Resources --------------------------------------------------------------------------------------------

ResourceSheet::ResourceSheet(const ResourceInfoData &texts, Findings *findings)
    : Reader(findings, text("resource sheet"))
    , m_texts(texts)
    , m_names({})
{
}

ResourceSheet::~ResourceSheet() = default;

int ResourceSheet::fieldOf(const QString &title) const
{
    return keyOf(ExcelTitles::s_resourcNames, title, resourceKeys);
}

void ResourceSheet::addRow(int row, const std::vector<KnownCell> &cells)
{
    auto info = std::make_unique<ResourceInfo>();
    for (const KnownCell &known : cells)
        apply(row, known, *info);
    if (info->ID == 0 || m_ids.contains(info->ID))
        info->ID = freeId();
    m_ids.insert(info->ID);

    // Rows are counted from the one below the titles.
    const QString wanted = info->name.isEmpty()
                               ? ExcelTitles::s_workAssignNames.value(ResourceName) + QString::number(row - 1)
                               : info->name;
    info->name = m_names.has(wanted) ? m_names.different(wanted.left(maxNumberedUnits)) : wanted;
    if (info->name != wanted)
        report(row, QString(), wanted + text(" is the name of another resource"),
               text("named ") + info->name);
    m_names.add(info->name, info->ID);
    m_infos.push_back(std::move(info));
}

void ResourceSheet::apply(int row, const KnownCell &known, ResourceInfo &info)
{
    const Cell &cell = *known.cell;
    constexpr double any = std::numeric_limits<double>::lowest();
    constexpr double whole = 1;
    constexpr double percent = 100;
    switch (known.field) {
    case Id: {
        const qint64 id = cellvalues::whole(cell).value_or(0);
        const bool fits = id > std::numeric_limits<qint32>::min() && id <= std::numeric_limits<qint32>::max();
        info.ID = fits ? int(id) : 0;
        if (info.ID == 0 || m_ids.contains(info.ID))
            report(row, &cell, text("cannot be the ID"), text("the next free ID"));
        return;
    }
    case Name:
        info.name = cell.asText();
        return;
    case MaxUnits:
        // Kept on purpose: a percentage even without its sign.
        readAmount(row, cell, 0, percent, info.unit);
        return;
    case Type: {
        const int type = m_texts.getTypeIndex(cell.text);
        if (type >= 0)
            info.type = type;
        else
            report(row, &cell, text("is no type of resource"), text("a work resource"));
        return;
    }
    case Rate:
        readRate(row, cell, info.cost, info.costUnit);
        return;
    case OvertimeRate:
        readRate(row, cell, info.overtimeCost, info.overtimeUnit);
        return;
    case CostPerUse:
        readAmount(row, cell, any, whole, info.costPer);
        return;
    case Group:
        info.group = cell.asText();
        return;
    case Email:
        info.email = cell.asText();
        return;
    case Notes:
        info.notes = cell.asText();
        return;
    default:
        return;
    }
}

void ResourceSheet::readRate(int row, const Cell &cell, double &money, qint32 &unit)
{
    const std::optional<cellvalues::Rate> rate = cellvalues::rate(cell);
    if (!rate) {
        report(row, &cell, text("is no rate"), text("left out"));
        return;
    }
    money = rate->money;
    const int read = m_texts.getCostUnitIndex(rate->unit);
    if (read >= 0)
        unit = read;
    else if (!rate->unit.isEmpty())
        report(row, &cell, text("has no known unit of time"), text("money for an hour"));
}

void ResourceSheet::readAmount(int row, const Cell &cell, double least, double divisor, double &amount)
{
    const std::optional<double> read = cellvalues::number(cell);
    if (read && *read >= least)
        amount = *read / divisor;
    else
        report(row, &cell, text("is no such number"), text("left out"));
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

AssignmentSheet::AssignmentSheet(Findings *findings)
    : Reader(findings, text("assignment sheet"))
    , m_unitNames(unitNames())
{
}

AssignmentSheet::~AssignmentSheet() = default;

int AssignmentSheet::fieldOf(const QString &title) const
{
    return keyOf(ExcelTitles::s_workAssignNames, title, assignmentKeys);
}

bool AssignmentSheet::isLeftOut(const QString &task)
{
    if (!task.isSharedWith(m_lastTask)) {
        m_lastTask = task;
        m_isLastLeftOut = m_leftOut.contains(task.trimmed());
    }
    return m_isLastLeftOut;
}

void AssignmentSheet::addRow(int row, const std::vector<KnownCell> &cells)
{
    if (std::any_of(cells.begin(), cells.end(), [this](const KnownCell &known) {
            return known.field == TaskName && isLeftOut(known.cell->asText());
        }))
        return;
    Assignment assignment;
    assignment.row = row;
    for (const KnownCell &known : cells) {
        const Cell &cell = *known.cell;
        switch (known.field) {
        case TaskName:
            assignment.task = cell.asText();
            break;
        case ResourceName:
            assignment.resource = cell.asText().trimmed();
            break;
        case Work: {
            const Amount work = amountOf(row, cell, Work);
            assignment.work = work.value;
            assignment.workUnit = work.unit;
            break;
        }
        case Units:
            assignment.units = amountOf(row, cell, Units).value;
            break;
        default:
            break;
        }
    }
    m_assignments.push_back(std::move(assignment));
}

AssignmentSheet::Amount AssignmentSheet::amountOf(int row, const Cell &cell, int field)
{
    QHash<QString, Amount> &known = m_amounts[field == Work ? 0 : 1][cell.isNumber ? 1 : 0];
    const auto found = known.constFind(cell.text);
    if (found != known.constEnd())
        return *found;
    Amount amount;
    amount.value = field == Work ? cellvalues::number(cell) : cellvalues::fraction(cell);
    amount.unit = cellvalues::unit(cell.text, m_unitNames).value_or(duration::Hour);
    if (!amount.value || *amount.value < 0) {
        report(row, &cell, text("is no amount"), text("left out"));
        amount.value.reset();
        return amount;
    }
    known.insert(cell.text, amount);
    return amount;
}

void AssignmentSheet::reportRow(int row, const QString &what, const QString &instead) const
{
    report(row, QString(), what, instead);
}
}
