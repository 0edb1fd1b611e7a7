#include "exchange/mspdi/planwriter.h"
#include "engine/cost/cost.h"
#include "engine/record/outline.h"
#include "engine/record/resource.h"
#include "engine/text/showndates.h"
#include "engine/time/duration.h"
#include "exchange/mspdi/elements.h"
#include "exchange/partwriter.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include "schedule/kwcalendar.h"
#include "support/said.h"
#include "support/xmlguard.h"
#include <QHash>
#include <QSet>
#include <algorithm>
#include <cmath>
#include <deque>
#include <memory>

namespace mspdi {
namespace {

constexpr int secsPerMinute = 60;
constexpr int secsPerDay = 86400;
constexpr int maxNameUnits = 512;

// One line, and none of the characters that divide lists.
QString cleanName(const QString &name, const QString &without, int most)
{
    QString clean = xmlguard::clean(name);
    for (const QChar &character : QLatin1String("\n\r\t") + without)
        clean.replace(character, QLatin1Char(' '));
    if (clean.trimmed().isEmpty())
        return QString();
    if (clean.size() > most)
        clean.truncate(clean.at(most - 1).isHighSurrogate() ? most - 1 : most);
    return clean;
}

// What a document consists of, in the terms of the format.
class PlanRows
{
public:
    PlanRows(KWDocument &document, const Heading &heading, FindingList &findings)
        : m_document(document)
        , m_heading(heading)
        , m_calendar(document.workCalendar())
        , m_measures(cost::measuresOf(m_calendar))
        , m_findings(findings)
    {
        m_plan.project.name = cleanName(heading.name, QString(), maxNameUnits);
        if (m_plan.project.name.isEmpty())
            m_plan.project.name = QStringLiteral("Plan");
        workingTime();
        m_minutes = std::make_unique<WorkMinutes>(m_plan.week, m_dated);
        tasks();
        resources();
        assignments();
    }

    // The rows are good as long as this object and the document are.
    const WrittenPlan &plan() const { return m_plan; }

private:
    QString placeOf(const KWTaskInfo &task, Kind kind, int number) const
    {
        return m_findings.wantsPlace(kind) ? KW_TEXT("task %1 \"%2\"").arg(number).arg(task.Name.simplified())
                                           : QString();
    }

    // ---- Working time -------------------------------------------------------------------------------------
    Hours hoursOf(const QList<KWDayTime *> &intervals)
    {
        Hours hours;
        bool runsOverMidnight = false;
        for (const KWDayTime *interval : intervals) {
            if (!interval || interval->start >= interval->finish)
                continue;
            if (interval->start % secsPerMinute != 0 || interval->finish % secsPerMinute != 0)
                m_findings.add(Kind::WholeHours);
            hours.push_back({int(interval->start / secsPerMinute),
                             int(std::min<quint32>(interval->finish, secsPerDay) / secsPerMinute)});
        }
        return soundHours(hours, runsOverMidnight);
    }

    void workingTime()
    {
        m_plan.project.hours = hoursOf(m_document.workTimes);
        int workdays = 0;
        for (std::size_t weekday = 0; weekday < m_plan.week.size(); ++weekday) {
            m_plan.week[weekday].isWorking = m_document.WorkDay[weekday];
            if (m_plan.week[weekday].isWorking)
                m_plan.week[weekday].hours = m_plan.project.hours;
            workdays += m_plan.week[weekday].isWorking;
        }
        const int minutes = minutesOf(m_plan.project.hours);
        m_plan.project.terms.minutesPerDay = minutes > 0 ? minutes : 24 * 60;
        m_plan.project.terms.minutesPerWeek =
            m_plan.project.terms.minutesPerDay * (workdays > 0 ? workdays : daysPerWeek);
        // By which money is counted, too.
        m_plan.project.terms.daysPerMonth = cost::workdaysPerMonth;
        exceptions();
    }

    // The first exception that covers a date decides; the format has none that overlap.
    void exceptions()
    {
        for (const KWCalendar *each : qAsConst(m_document.calendars)) {
            if (!each->isException || !each->finishDate.isValid() || each->startDate > each->finishDate)
                continue;
            WrittenException row;
            row.dates = {LocalClock::dayOf(each->startDate), LocalClock::dayOf(each->finishDate)};
            row.name = cleanName(each->name, QString(), maxNameUnits);
            if (row.name.isEmpty())
                row.name = each->isWork ? QStringLiteral("Working day") : QStringLiteral("Day off");
            row.works = each->isWork;
            row.hours = hoursOf(each->dayTimes);
            if (row.hours.empty())
                row.hours = m_plan.project.hours;
            add(row);
        }
        for (const WrittenException &row : m_plan.exceptions) {
            DatedHours dated;
            dated.dates = row.dates;
            dated.day.isWorking = row.works;
            if (row.works)
                dated.day.hours = row.hours;
            m_dated.push_back(dated);
        }
    }
    void add(const WrittenException &row)
    {
        WrittenException part = row;
        for (int day = row.dates.first; day <= row.dates.last; ++day) {
            const auto next = m_takenUntil.upperBound(day);
            // The taken dates that end here or later, if they begin here or before.
            if (next != m_takenUntil.begin() && std::prev(next).value() >= day) {
                day = std::prev(next).value();
                continue;
            }
            part.dates = {day, next == m_takenUntil.end() ? row.dates.last
                                                          : std::min(row.dates.last, next.key() - 1)};
            m_takenUntil.insert(part.dates.first, part.dates.last);
            m_plan.exceptions.push_back(part);
            day = part.dates.last;
        }
    }

    // ---- Tasks --------------------------------------------------------------------------------------------
    void tasks()
    {
        const QList<KWTaskInfo *> &list = m_document.taskList();
        chooseUids(list);
        m_plan.tasks.reserve(std::size_t(list.size()) + 1);
        m_plan.tasks.emplace_back();
        std::vector<int> numbers; // of the outline
        int above = 0;
        int number = 0;
        for (const KWTaskInfo *task : list) {
            TaskRow row;
            row.task = task;
            row.number = ++number;
            row.uid = m_uids[std::size_t(number - 1)];
            row.name = cleanName(task->Name, QString(), maxNameUnits);
            if (row.name.isEmpty())
                row.name = QStringLiteral("Task %1").arg(number);
            if (row.name != task->Name)
                m_findings.add(Kind::NameChanged, placeOf(*task, Kind::NameChanged, number));
            row.level = std::clamp(task->Level, 1, above + 1);
            if (row.level != task->Level)
                m_findings.add(Kind::LostParent, placeOf(*task, Kind::LostParent, number));
            above = row.level;
            numbers.resize(std::size_t(row.level), 0);
            ++numbers.back();
            row.outlineNumber = outlineNumber(numbers);
            fill(row);
            m_plan.tasks.push_back(std::move(row));
        }
        showDates();
        for (TaskRow &row : m_plan.tasks) {
            if (row.task)
                measure(row);
        }
        sumWork();
        projectItself();
    }

    static QByteArray outlineNumber(const std::vector<int> &numbers)
    {
        QByteArray text;
        // Numbers as deep as a hostile outline would make the file grow with the square of its length.
        constexpr std::size_t deepest = 100;
        for (std::size_t i = 0; i < std::min(numbers.size(), deepest); ++i) {
            if (i > 0)
                text += '.';
            text += QByteArray::number(numbers[i]);
        }
        return text;
    }

    // Our IDs, where the planner takes them.
    void chooseUids(const QList<KWTaskInfo *> &list)
    {
        QSet<qint64> taken;
        taken.reserve(list.size());
        m_uids.assign(std::size_t(list.size()), 0);
        for (int i = 0; i < list.size(); ++i) {
            const qint64 id = list[i]->ID;
            if (id > 0 && id < uidLimit && !taken.contains(id)) {
                taken.insert(id);
                m_uids[std::size_t(i)] = id;
                m_rowOfId.insert(quint32(id), i + 1);
            }
        }
        qint64 next = 1;
        for (int i = 0; i < list.size(); ++i) {
            if (m_uids[std::size_t(i)] != 0)
                continue;
            while (taken.contains(next))
                ++next;
            taken.insert(next);
            m_uids[std::size_t(i)] = next;
            m_findings.add(Kind::IdChanged, placeOf(*list[i], Kind::IdChanged, i + 1));
            if (!m_rowOfId.contains(list[i]->ID))
                m_rowOfId.insert(list[i]->ID, i + 1);
        }
    }

    void fill(TaskRow &row)
    {
        const KWTaskInfo &task = *row.task;
        row.isSummary = task.isParent();
        // A summary that lasts may have been a milestone before it had subtasks.
        const bool isMoment = task.Finish <= task.Start || task.Finish - task.Start == 1;
        row.isMilestone = task.Milestone && (isMoment || !row.isSummary);
        row.isMoment = ShownDates::isMoment(task);
        row.format = formatOfUnit(task.DurationUnits);
        if (task.DurationUnits <= duration::Month && !row.isSummary)
            m_findings.add(Kind::UnitWritten, placeOf(task, Kind::UnitWritten, row.number));
        row.percent = wholePercent(row);
        row.cost = task.Cost;
        if (!row.isSummary)
            row.workMinutes = cost::toHours(m_measures, task.Work, task.DurationUnits) * secsPerMinute;
        for (const quint32 id : task.Predecessors) {
            const int predecessor = m_rowOfId.value(id, 0);
            if (predecessor > 0)
                row.predecessors.push_back(m_uids[std::size_t(predecessor - 1)]);
        }
        // Lists of links are kept in several orders, which mean the same.
        std::sort(row.predecessors.begin(), row.predecessors.end());
        row.predecessors.erase(std::unique(row.predecessors.begin(), row.predecessors.end()),
                               row.predecessors.end());
        if (task.hyperlinks.count() > 1)
            m_findings.add(Kind::FurtherHyperlinks, placeOf(task, Kind::FurtherHyperlinks, row.number));
        if (task.Priority < -normalPriority || task.Priority > normalPriority)
            m_findings.add(Kind::PriorityClamped, placeOf(task, Kind::PriorityClamped, row.number));
        if (task.BaseStart != 0 && task.BaseFinish != 0) {
            row.hasBaseline = true;
            row.baseStart = wall(shownmoment::ofStart(m_calendar, task.BaseStart));
            row.baseFinish = wall(shownmoment::ofFinish(m_calendar, task.BaseFinish));
        }
    }

    // Begun stays begun, and unfinished unfinished.
    int wholePercent(const TaskRow &row)
    {
        constexpr int whole = 100;
        const double percent = row.task->Percent * whole;
        if (!(percent > 0))
            return 0;
        if (percent >= whole)
            return whole;
        const int rounded = std::clamp(int(std::lround(percent)), 1, whole - 1);
        constexpr double shown = 0.05;
        if (!row.isSummary && std::abs(percent - rounded) > shown)
            m_findings.add(Kind::PercentRounded, placeOf(*row.task, Kind::PercentRounded, row.number));
        return rounded;
    }

    static LocalClock::Wall wall(const shownmoment::Moment &moment) { return {moment.day, moment.secs}; }

    // As hosts show them.
    void showDates()
    {
        const outline::Tasks all = m_document.outline();
        const ShownDates dates(m_calendar, all.list, all.index, m_heading.evenings);
        for (std::size_t i = 1; i < m_plan.tasks.size(); ++i) {
            TaskRow &row = m_plan.tasks[i];
            row.hasDates = dates.isDated(int(i) - 1);
            if (!row.hasDates) {
                m_findings.add(Kind::NoMoments, placeOf(*row.task, Kind::NoMoments, row.number));
                continue;
            }
            row.start = wall(dates.start(int(i) - 1));
            row.finish = wall(dates.finish(int(i) - 1));
        }
    }
    static bool isBefore(LocalClock::Wall a, LocalClock::Wall b)
    {
        return a.day != b.day ? a.day < b.day : a.secs < b.secs;
    }

    // From the leaves up; who is only named works all the time.
    void sumWork()
    {
        for (std::size_t i = m_plan.tasks.size() - 1; i > 0; --i) {
            TaskRow &row = m_plan.tasks[i];
            if (!row.isSummary)
                row.workMinutes += row.minutes * namesOnly(row).size();
            const std::size_t above = std::size_t(m_rowOfId.value(row.task->ParentID, 0));
            if (above < i) // the project itself, too
                m_plan.tasks[above].workMinutes += row.workMinutes;
        }
    }

    // The latest finish of what the task waits for, by its own links and by those of the summaries above it.
    bool isBroughtThere(const TaskRow &row) const
    {
        quint32 latest = 0;
        const outline::Tasks all = m_document.outline();
        const auto look = [&](const TaskRecord &task) {
            for (const quint32 id : task.Predecessors) {
                if (const TaskRecord *predecessor = all.byId(id))
                    latest = std::max(latest, predecessor->Finish);
            }
        };
        look(*row.task);
        for (const TaskRecord *above : outline::ancestors(all, *row.task))
            look(*above);
        return latest != 0 && shownmoment::isSame(m_calendar, latest, row.task->Start);
    }

    void measure(TaskRow &row)
    {
        if (!row.hasDates)
            return;
        const auto moment = [](LocalClock::Wall at) {
            return Moment{at.day, at.secs / secsPerMinute, Moment::Set};
        };
        if (!row.isMoment)
            row.minutes = double(m_minutes->between(moment(row.start), moment(row.finish)));
        row.isFixed = !row.isSummary && !isBroughtThere(row);
    }

    void projectItself()
    {
        TaskRow &project = m_plan.tasks.front();
        project.name = m_plan.project.name;
        project.outlineNumber = "0";
        project.isSummary = true;
        double done = 0;
        double all = 0;
        for (const TaskRow &row : m_plan.tasks) {
            if (!row.task)
                continue;
            if (!row.isSummary) {
                project.cost += row.cost;
                all += row.minutes;
                done += row.minutes * row.percent;
            }
            if (!row.hasDates)
                continue;
            if (!project.hasDates || isBefore(row.start, project.start))
                project.start = row.start;
            if (!project.hasDates || isBefore(project.finish, row.finish))
                project.finish = row.finish;
            project.hasDates = true;
        }
        if (all > 0)
            project.percent = int(done / all);
        if (project.hasDates)
            project.minutes = double(
                m_minutes->between({project.start.day, project.start.secs / secsPerMinute, Moment::Set},
                                   {project.finish.day, project.finish.secs / secsPerMinute, Moment::Set}));
        m_plan.project.hasDates = project.hasDates;
        m_plan.project.start = project.start;
        if (m_heading.start != 0 && project.hasDates) {
            const LocalClock::Wall start = wall(shownmoment::ofStart(m_calendar, m_heading.start));
            if (isBefore(start, project.start))
                m_plan.project.start = start;
        }
        m_plan.project.finish = project.finish;
        for (TaskRow &row : m_plan.tasks) {
            if (row.hasDates)
                continue;
            row.hasDates = project.hasDates;
            row.start = row.finish = project.start;
        }
    }

    // ---- Resources and assignments ------------------------------------------------------------------------
    // Those of the sheet, and those that tasks only name.
    QVector<const ResourceInfo *> allResources()
    {
        QVector<const ResourceInfo *> infos;
        QSet<QString> names;
        for (const ResourceInfo *info : qAsConst(m_document.resourceInfoData()->infos)) {
            infos.append(info);
            names.insert(info->name.trimmed());
        }
        const auto add = [&](const QString &name, int type) {
            if (name.isEmpty() || names.contains(name))
                return;
            names.insert(name);
            m_named.emplace_back();
            m_named.back().name = name;
            m_named.back().type = type;
            infos.append(&m_named.back());
        };
        for (const TaskRow &row : m_plan.tasks) {
            if (!row.task || row.isSummary)
                continue;
            for (const ::Resource *resource : row.task->resourceList)
                add(resource->name.trimmed(), resource->type);
            for (const QString &name : namesOnly(row))
                add(name, 0);
        }
        return infos;
    }

    // A task without assignments may name who works on it.
    static QStringList namesOnly(const TaskRow &row)
    {
        QStringList names;
        if (!row.task->resourceList.isEmpty())
            return names;
        for (const QString &name : row.task->Resources.split(QLatin1Char(';'))) {
            if (!name.trimmed().isEmpty() && !names.contains(name.trimmed()))
                names.append(name.trimmed());
        }
        return names;
    }

    void resources()
    {
        const QVector<const ResourceInfo *> infos = allResources();
        QSet<qint64> taken;
        QHash<QString, int> names; // with the number that the next one of the name gets
        const auto isGood = [](const ResourceInfo &info) { return info.ID > 0 && info.ID < uidLimit; };
        for (const ResourceInfo *info : infos) {
            if (isGood(*info))
                taken.insert(info->ID);
        }
        QSet<qint64> used;
        qint64 next = 1;
        for (const ResourceInfo *info : infos) {
            ResourceRow row;
            row.info = info;
            row.number = int(m_plan.resources.size()) + 1;
            row.terms = m_plan.project.terms;
            row.uid = info->ID;
            if (!isGood(*info) || used.contains(row.uid)) {
                while (taken.contains(next))
                    ++next;
                row.uid = next;
                taken.insert(next);
            }
            used.insert(row.uid);
            const QString clean = cleanName(info->name, QStringLiteral("[],"), maxNameUnits);
            const QString wanted = clean.isEmpty() ? QStringLiteral("Resource %1").arg(row.number) : clean;
            row.name = wanted;
            for (int number = names.value(wanted, 1); names.contains(row.name);) {
                row.name = wanted + QStringLiteral(" %1").arg(++number);
                names[wanted] = number;
            }
            names.insert(row.name, 1);
            if (row.name != info->name.trimmed())
                m_findings.add(Kind::NameChanged, KW_TEXT("resource \"%1\"").arg(info->name.simplified()));
            const QString key = info->name.trimmed();
            if (!m_resourceUids.contains(key))
                m_resourceUids.insert(key, row.uid);
            m_plan.resources.push_back(row);
        }
    }

    void assignments()
    {
        for (const TaskRow &row : m_plan.tasks) {
            if (!row.task || row.isSummary)
                continue;
            bool hasAny = false;
            for (const ::Resource *resource : row.task->resourceList) {
                const auto uid = m_resourceUids.constFind(resource->name.trimmed());
                if (uid == m_resourceUids.constEnd()) {
                    m_findings.add(Kind::LostAssignment,
                                   placeOf(*row.task, Kind::LostAssignment, row.number));
                    continue;
                }
                hasAny = true;
                add(row, resource, *uid);
            }
            for (const QString &name : namesOnly(row)) {
                hasAny = true;
                add(row, nullptr, m_resourceUids.value(name));
            }
            // A reader takes a finished task that nobody works on for an unfinished one.
            if (!hasAny && row.percent > 0)
                add(row, nullptr, noResource);
        }
    }

    void add(const TaskRow &task, const ::Resource *resource, qint64 uid)
    {
        AssignmentRow row;
        row.task = &task;
        row.resource = resource;
        row.uid = int(m_plan.assignments.size()) + 1;
        row.resourceUid = uid;
        if (!resource) {
            row.minutes = uid == noResource ? 0 : task.minutes;
        } else if (!resourcetypes::isWork(resource->type)) {
            row.minutes = resource->percent * secsPerMinute;
        } else {
            row.minutes = cost::toHours(m_measures, cost::work(m_measures, *task.task, *resource),
                                        task.task->DurationUnits) *
                          secsPerMinute;
        }
        if (resource)
            row.cost = cost::ofAssignment(m_measures, *task.task, *resource);
        m_plan.assignments.push_back(row);
    }

    KWDocument &m_document;
    const Heading &m_heading;
    const worktime::WorkCalendar &m_calendar;
    const cost::Measures m_measures;
    FindingList &m_findings;
    WrittenPlan m_plan;          // of the tasks the project is the first
    QMap<int, int> m_takenUntil; // the last date of each exception by its first one
    std::vector<DatedHours> m_dated;
    std::unique_ptr<WorkMinutes> m_minutes;
    std::vector<qint64> m_uids;            // by place in the list
    QHash<quint32, int> m_rowOfId;         // the row's number
    std::deque<ResourceInfo> m_named;      // resources that the sheet has not
    QHash<QString, qint64> m_resourceUids; // by trimmed name
};
}

bool write(QIODevice &device, KWDocument &document, const Heading &heading, FindingList &findings)
{
    const PlanRows rows(document, heading, findings);
    PartWriter part(device);
    return writeElements(part, rows.plan());
}
}
