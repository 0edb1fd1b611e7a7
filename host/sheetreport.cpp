#include "sheetreport.h"
#include "datetext.h"
#include "engine/record/resource.h"
#include "machine.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include "sheettext.h"
#include "shown.h"
#include "texts.h"
#include "texttable.h"
#include "textwidth.h"
#include <QHash>
#include <cmath>
#include <map>

namespace sheetreport {

namespace {

using Assignments = std::vector<std::pair<const KWTaskInfo *, double>>; // with the units

// The units of the assignments of each name; of several of one name on a task the first counts.
QHash<QString, Assignments> assignmentsByName(const Plan &plan)
{
    QHash<QString, Assignments> byName;
    for (const KWTaskInfo *task : plan.document->taskList()) {
        for (const Resource *assigned : task->resourceList) {
            Assignments &list = byName[assigned->name.trimmed()];
            if (resourcetypes::isWork(assigned->type) && (list.empty() || list.back().first != task))
                list.emplace_back(task, assigned->percent);
        }
    }
    return byName;
}

bool works(const Plan &plan, const QDate &date)
{
    return KWTaskInfo::isWorkday(plan.document.get(), date.startOfDay());
}

// Whether any of the dates is a working day.
bool anyWorks(const Plan &plan, qint64 from, qint64 to)
{
    for (qint64 day = from; day <= to; ++day)
        if (works(plan, QDate::fromJulianDay(day)))
            return true;
    return false;
}

// How much of a working day a task takes on its first and on its last date.
double partOfDay(const Plan &plan, quint32 from, quint32 to, const QDate &date)
{
    const auto secsAt = [](const QDate &day) {
        return quint32(qBound<qint64>(0, day.startOfDay().toSecsSinceEpoch(), 0xFFFFFFFFll));
    };
    const quint32 begin = qMax(from, secsAt(date));
    const quint32 end = qMin(to, secsAt(date.addDays(1)));
    const double minutesPerDay = plan.document->workCalendar().hoursPerDay() * 60.0;
    return begin >= end || minutesPerDay <= 0
               ? 0
               : double(plan::workingMinutes(plan, begin, end)) / minutesPerDay;
}

// The load of a resource as steps: what is added from a date on, and what one date alone has.
class Load
{
public:
    void add(const Plan &plan, const KWTaskInfo &task, double units)
    {
        if (task.isParent() || task.Milestone || task.Finish <= task.Start)
            return;
        const QDate first = QDateTime::fromSecsSinceEpoch(task.Start).date();
        const QDate last = QDateTime::fromSecsSinceEpoch(qint64(task.Finish) - 1).date();
        addDays(first, first, units * partOfDay(plan, task.Start, task.Finish, first));
        if (first == last)
            return;
        addDays(last, last, units * partOfDay(plan, task.Start, task.Finish, last));
        if (first.daysTo(last) > 1)
            addDays(first.addDays(1), last.addDays(-1), units);
    }

    const std::map<qint64, double> &steps() const { return m_steps; }

private:
    void addDays(const QDate &from, const QDate &to, double load)
    {
        m_steps[from.toJulianDay()] += load;
        m_steps[to.toJulianDay() + 1] -= load;
    }

    std::map<qint64, double> m_steps;
};

struct EntryOverloads
{
    const ResourceInfo *entry;
    std::vector<Overload> overloads;
};

std::vector<EntryOverloads> rowsOf(Plan &plan)
{
    ResourceInfoData *sheet = plan.document->resourceInfoData();
    sheet->udpateWorkAndCost(plan.document.get());
    sheet->updateWorkStarAndFinishWork(plan.document.get());
    const QHash<QString, Assignments> byName = assignmentsByName(plan);
    std::vector<EntryOverloads> rows;
    for (const ResourceInfo *entry : qAsConst(sheet->infos))
        rows.push_back({entry, overloads(plan, *entry, byName.value(entry->name.trimmed()))});
    return rows;
}

QString percentText(double part)
{
    return QString::number(qRound(part * 100)) + QLatin1Char('%');
}

QString daysText(const Overload &overload)
{
    const QString from = datetext::dateText(overload.from, datetext::Weekday);
    if (overload.from == overload.to)
        return from;
    return from + QLatin1String(" - ") + datetext::dateText(overload.to, datetext::Weekday | datetext::Year);
}

QString momentText(const shown::Clock &clock)
{
    return datetext::dateText(clock.date, datetext::TwoDigitDay | datetext::Year);
}
}

std::vector<Overload> overloads(const Plan &plan, const ResourceInfo &entry,
                                const std::vector<std::pair<const KWTaskInfo *, double>> &assignments)
{
    constexpr double nothing = 1e-6;
    std::vector<Overload> found;
    if (!resourcetypes::isWork(entry.type))
        return found;
    Load load;
    for (const auto &[task, units] : assignments)
        load.add(plan, *task, units);
    double now = 0;
    bool wasOver = false; // on the last working day before
    for (auto step = load.steps().begin(); step != load.steps().end(); ++step) {
        now += step->second;
        const auto next = std::next(step);
        if (next == load.steps().end())
            break;
        if (!anyWorks(plan, step->first, next->first - 1))
            continue;
        const bool isOver = now > entry.unit + nothing;
        const QDate last = QDate::fromJulianDay(next->first - 1);
        if (isOver && wasOver) {
            found.back().to = last;
            found.back().peak = qMax(found.back().peak, now);
        } else if (isOver) {
            found.push_back({QDate::fromJulianDay(step->first), last, now});
        }
        wasOver = isOver;
    }
    // Days off at the ends have no work.
    for (Overload &overload : found) {
        while (overload.from < overload.to && !works(plan, overload.from))
            overload.from = overload.from.addDays(1);
        while (overload.from < overload.to && !works(plan, overload.to))
            overload.to = overload.to.addDays(-1);
    }
    return found;
}

QString text(Plan &plan, const Style &style)
{
    constexpr int mostListed = 5;
    TextTable table({QStringLiteral(">#"), t("Resource"), t("Type"), t(">Max"), t(">Rate"), t(">Per use"),
                     t(">Work"), t(">Done"), t(">Cost"), t(">Spent"), t("From"), t("To")});
    QString notes;
    int number = 0;
    for (const EntryOverloads &row : rowsOf(plan)) {
        const ResourceInfo &entry = *row.entry;
        const bool material = !resourcetypes::isWork(entry.type);
        const QString name = textwidth::oneLine(entry.name.trimmed(), style.ascii);
        const auto work = [&](double amount) {
            return sheettext::moneyText(amount) + (material ? QString() : QStringLiteral("h"));
        };
        table.add(
            {QString::number(++number), name, material ? t("material") : t("work"),
             material ? QString() : sheettext::unitsText(entry.unit),
             material ? sheettext::numberText(entry.cost) : sheettext::rateText({entry.cost, entry.costUnit}),
             sheettext::moneyText(entry.costPer), work(entry.totalWork), work(entry.actualWork),
             sheettext::moneyText(entry.totalCost), sheettext::moneyText(entry.actualCost),
             entry.workStart ? momentText(shown::startOf(plan, entry.workStart)) : QString(),
             entry.workFinish ? momentText(shown::endOf(plan, entry.workFinish)) : QString()});
        QStringList ranges;
        for (const Overload &overload : row.overloads) {
            if (ranges.size() == mostListed) {
                ranges.append(t("%1 more").arg(int(row.overloads.size()) - mostListed));
                break;
            }
            ranges.append(daysText(overload) + QLatin1Char(' ') + percentText(overload.peak));
        }
        if (!ranges.isEmpty())
            notes += style.toned(
                         t("! %1 has more than %2: %3")
                             .arg(name, sheettext::unitsText(entry.unit), ranges.join(QLatin1String(", "))),
                         Style::Critical) +
                     QLatin1Char('\n');
    }
    if (table.isEmpty())
        return t("no resources") + QLatin1Char('\n');
    return table.text() + (notes.isEmpty() ? notes : QLatin1Char('\n') + notes);
}

QByteArray json(Plan &plan)
{
    const auto number = [](double value) { return sheettext::numberText(value).toUtf8(); };
    QByteArray bytes = "{\n  \"resources\": [";
    bool first = true;
    for (const EntryOverloads &row : rowsOf(plan)) {
        const ResourceInfo &entry = *row.entry;
        bytes += first ? "\n    {" : ",\n    {";
        first = false;
        bytes += "\"id\": " + QByteArray::number(entry.ID) + ", \"name\": " + machine::jsonText(entry.name);
        bytes += ", \"type\": " + machine::jsonText(resourcetypes::isWork(entry.type)
                                                        ? QStringLiteral("work")
                                                        : QStringLiteral("material"));
        bytes += ", \"maxUnits\": " + number(entry.unit) + ", \"rate\": " + number(entry.cost) +
                 ", \"rateUnit\": " +
                 machine::jsonText(plan.document->resourceInfoData()->getCostUintText(entry.costUnit)) +
                 ", \"perUse\": " + number(entry.costPer);
        bytes += ", \"work\": " + number(entry.totalWork) + ", \"workDone\": " + number(entry.actualWork) +
                 ", \"cost\": " + number(entry.totalCost) + ", \"spent\": " + number(entry.actualCost);
        bytes += ", \"overallocated\": [";
        for (std::size_t i = 0; i < row.overloads.size(); ++i) {
            const Overload &overload = row.overloads[i];
            bytes += (i ? ", {\"from\": " : "{\"from\": ") +
                     machine::jsonText(overload.from.toString(Qt::ISODate)) +
                     ", \"to\": " + machine::jsonText(overload.to.toString(Qt::ISODate)) +
                     ", \"percent\": " + number(overload.peak * 100) + "}";
        }
        bytes += "]}";
    }
    return bytes + "\n  ]\n}\n";
}
}
