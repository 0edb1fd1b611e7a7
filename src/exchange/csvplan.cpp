#include "exchange/csvplan.h"
#include "engine/cost/cost.h"
#include "engine/record/codes.h"
#include "engine/record/outline.h"
#include "engine/record/resource.h"
#include "engine/time/duration.h"
#include "exchange/cellvalues.h"
#include "exchange/csvtext.h"
#include "exchange/titletable.h"
#include "format/dataformat.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include <cmath>
#include <limits>

namespace csvplan {
namespace {

constexpr int deepestCode = 1000;

// What the cells of a row need.
struct Row
{
    KWDocument &document;
    const ImportedPlan &imported;
    const ShownDates &dates;
    const KWTaskInfo &task;
    int pos;
    quint32 start; // of the project

    QString minutes(quint32 to) const { return minutesBetween(start, to); }
    QString minutesBetween(quint32 from, quint32 to, qint64 least = std::numeric_limits<qint64>::min()) const
    {
        const worktime::WorkCalendar &calendar = document.workCalendar();
        const qint64 secs =
            duration::secs(calendar, std::min(from, to), std::max(from, to), duration::Minute);
        const qint64 minutes = (secs + 30) / 60;
        return QString::number(std::max(least, from <= to ? minutes : -minutes));
    }
};

QString flag(bool value)
{
    return value ? QStringLiteral("1") : QStringLiteral("0");
}

QString joined(const QList<quint32> &ids)
{
    QStringList texts;
    for (const quint32 id : ids)
        texts.append(QString::number(id));
    return texts.join(QLatin1Char(';'));
}

struct Cell
{
    Column column;
    QString (*text)(const Row &row);
};

const Cell cells[] = {
    {{"ID", "id", true}, [](const Row &row) { return QString::number(quint32(row.task.ID)); }},
    {{"WBS", "wbs", false}, [](const Row &row) { return row.imported.codes.value(row.task.ID); }},
    {{"Level", "level", true}, [](const Row &row) { return QString::number(row.task.Level); }},
    {{"Name", "name", false}, [](const Row &row) { return row.task.Name; }},
    {{"Start", "start", false}, [](const Row &row) { return momentText(row.dates.start(row.pos)); }},
    {{"Finish", "finish", false}, [](const Row &row) { return momentText(row.dates.finish(row.pos)); }},
    {{"Duration", "duration", false},
     [](const Row &row) {
         return lengthText(duration::ofTask(row.document.workCalendar(), row.task.Start, row.task.Finish,
                                            row.task.DurationUnits),
                           row.task.DurationUnits);
     }},
    {{"Percent", "percent", true},
     [](const Row &row) {
         // What comes from below is rounded; what a task says itself is not.
         return row.task.isParent() ? DataFormat::formatNumber(row.task.Percent * 100, 0, 2, 1)
                                    : numberText(row.task.Percent * 100);
     }},
    {{"Predecessors", "predecessors", false}, [](const Row &row) { return joined(row.task.Predecessors); }},
    {{"Resources", "resources", false}, [](const Row &row) { return resourceNames(row.document, row.task); }},
    {{"Summary", "summary", true}, [](const Row &row) { return flag(row.task.isParent()); }},
    {{"Milestone", "milestone", true},
     [](const Row &row) { return flag(row.task.Milestone && !row.task.isParent()); }},
    {{"Notes", "notes", false}, [](const Row &row) { return row.task.Notes; }},
    {{"Critical", "critical", true}, [](const Row &row) { return flag(row.task.CriticalPath); }},
    {{"LateStart", "lateStart", false},
     [](const Row &row) { return momentText(row.dates.lateStart(row.pos)); }},
    {{"LateFinish", "lateFinish", false},
     [](const Row &row) { return momentText(row.dates.lateFinish(row.pos)); }},
    {{"StartSlack", "startSlack", false}, [](const Row &row) { return row.task.EarlySlack; }},
    {{"FinishSlack", "finishSlack", false}, [](const Row &row) { return row.task.LateSlack; }},
    {{"StartMin", "startMin", true}, [](const Row &row) { return row.minutes(row.task.Start); }},
    {{"FinishMin", "finishMin", true}, [](const Row &row) { return row.minutes(row.task.Finish); }},
    {{"LateStartMin", "lateStartMin", true}, [](const Row &row) { return row.minutes(row.task.LateStart); }},
    {{"LateFinishMin", "lateFinishMin", true},
     [](const Row &row) { return row.minutes(row.task.LateFinish); }},
    {{"SlackMin", "slackMin", true},
     [](const Row &row) { return row.minutesBetween(row.task.Finish, row.task.LateFinish, 0); }},
};

QByteArray line(const QStringList &texts)
{
    QStringList quoted;
    for (const QString &text : texts)
        quoted.append(csv::quoted(text));
    return quoted.join(QLatin1Char(',')).toUtf8() + '\n';
}

double hoursOf(KWDocument &document, const KWTaskInfo &task, const Resource &assigned)
{
    return resourcetypes::isWork(assigned.type)
               ? task.transforHourWork(&document, task.resourceWork(&document, &assigned))
               : assigned.percent;
}
}

const std::vector<Column> &columns()
{
    static const std::vector<Column> all = [] {
        std::vector<Column> list;
        for (const Cell &cell : cells)
            list.push_back(cell.column);
        return list;
    }();
    return all;
}

// ---- Texts ------------------------------------------------------------------------------------------------

QString momentText(const shownmoment::Moment &moment)
{
    return LocalClock::dateOf(moment.day).toString(Qt::ISODate) +
           QStringLiteral("T%1:%2")
               .arg(moment.secs / 3600, 2, 10, QLatin1Char('0'))
               .arg(moment.secs / 60 % 60, 2, 10, QLatin1Char('0'));
}

QString numberText(double number)
{
    constexpr int digits = 12;
    return QString::number(std::isfinite(number) ? number : 0, 'g', digits);
}

QString rateText(double money, int unit)
{
    const QString name = cellvalues::costUnitText(unit);
    return name.isEmpty() ? numberText(money) : numberText(money) + QLatin1Char('/') + name;
}

QString lengthText(double value, unsigned int unit)
{
    static const char *const names[] = {"y", "q", "mon", "w", "d", "h", "min"};
    constexpr int decimals[] = {8, 7, 6, 6, 5, 4, 3};
    const unsigned int known = std::min(unit, unsigned(duration::Minute));
    return DataFormat::formatNumber(value, 0, decimals[known], 1) + QLatin1String(names[known]);
}

QString resourceNames(KWDocument &document, const KWTaskInfo &task)
{
    if (task.isParent())
        return task.isSubHaveResource(&document) ? QString() : task.Resources;
    if (!task.isHaveResource())
        return task.Resources;
    QStringList parts;
    for (const Resource *assigned : task.resourceList) {
        const QString name = assigned->name.trimmed();
        if (!name.isEmpty())
            parts.append(assigned->percent == 1
                             ? name
                             : QStringLiteral("%1[%2%]").arg(name, numberText(assigned->percent * 100)));
    }
    return parts.join(QLatin1Char(';'));
}

QHash<quint32, QString> outlineCodes(const KWDocument &document)
{
    QHash<quint32, QString> codes;
    QVector<int> numbers;
    for (const KWTaskInfo *task : document.taskList()) {
        const int depth = qBound(1, task->Level, deepestCode);
        while (numbers.size() < depth)
            numbers.append(0);
        numbers.erase(numbers.begin() + depth, numbers.end());
        ++numbers.last();
        QStringList parts;
        for (const int number : qAsConst(numbers))
            parts.append(QString::number(number));
        codes.insert(task->ID, parts.join(QLatin1Char('.')));
    }
    return codes;
}

Places placesIn(const QStringList &titles)
{
    constexpr bool isExact = false;
    Places places;
    for (int column = titles.size() - 1; column >= 0; --column) {
        const int field = titletable::find(exceltitles::TaskSheet, titles.at(column), isExact).field;
        if (field == columntypes::Start)
            places.start = column;
        else if (field == columntypes::Finish)
            places.finish = column;
        else if (field == columntypes::Duration)
            places.length = column;
    }
    return places;
}

// ---- Files ------------------------------------------------------------------------------------------------

Rows::Rows(KWDocument &document, const ImportedPlan &imported)
    : m_document(document)
    , m_imported(imported)
    , m_start(imported.start > 0 ? imported.start : document.getMinStartSecs())
    , m_dates(document.workCalendar(), document.outline().list, document.outline().index, imported.evenings)
{
}

QString Rows::text(int pos, std::size_t column) const
{
    return cells[column].text(
        {m_document, m_imported, m_dates, *m_document.getTaskInfoAt(pos), pos, m_start});
}

QByteArray Rows::bytes() const
{
    QStringList texts;
    for (const Cell &cell : cells)
        texts.append(QLatin1String(cell.column.title));
    QByteArray bytes = line(texts);
    for (int pos = 0; pos < m_document.taskCount(); ++pos) {
        texts.clear();
        for (std::size_t column = 0; column < std::size(cells); ++column)
            texts.append(text(pos, column));
        bytes += line(texts);
    }
    return bytes;
}

QByteArray resources(KWDocument &document)
{
    QByteArray bytes = "ID,Name,Type,MaxUnitsPercent,Rate,OvertimeRate,CostPerUse,Group,Email,Notes\n";
    for (const ResourceInfo *entry : qAsConst(document.resourceInfoData()->infos))
        bytes +=
            line({QString::number(entry->ID), entry->name,
                  resourcetypes::isWork(entry->type) ? QStringLiteral("WORK") : QStringLiteral("MATERIAL"),
                  numberText(entry->unit * 100), rateText(entry->cost, entry->costUnit),
                  rateText(entry->overtimeCost, entry->overtimeUnit), numberText(entry->costPer),
                  entry->group, entry->email, entry->notes});
    return bytes;
}

QByteArray assignments(KWDocument &document)
{
    QByteArray bytes = "TaskID,Resource,UnitsPercent,WorkHours,Cost\n";
    for (const KWTaskInfo *task : document.taskList()) {
        for (const Resource *assigned : task->resourceList)
            bytes +=
                line({QString::number(quint32(task->ID)), assigned->name.trimmed(),
                      numberText(assigned->percent * 100), numberText(hoursOf(document, *task, *assigned)),
                      numberText(task->resourceCost(&document, assigned))});
    }
    return bytes;
}
}
