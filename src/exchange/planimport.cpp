#include "exchange/planimport.h"
#include "engine/network/links.h"
#include "engine/record/resource.h"
#include "engine/time/duration.h"
#include "exchange/resourcesheets.h"
#include "exchange/taskdates.h"
#include "exchange/tasksheet.h"
#include "model/calendarhold.h"
#include "model/kwdocument.h"
#include "resources/costsof.h"
#include "resources/resourceinfodata.h"
#include "schedule/kwcalendar.h"
#include "schedule/kwtaskcollection.h"
#include "support/kwclock.h"
#include "support/likeness.h"
#include "support/longwork.h"
#include "support/said.h"
#include "table/rowcolumndata.h"
#include <QMap>
#include <QPair>
#include <cmath>
#include <limits>

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

// Those that the sheet has a column for, however it is called.
void showColumns(RowColumnData &table, const sheetrows::Reader &tasks)
{
    table.setAllColDataHide();
    for (RowColumnData::ColumnData *column : table.columns()) {
        if (tasks.hasField(RowColumnData::typeOfTitle(column->title)))
            column->isHide = false;
    }
}

void showTitledColumns(RowColumnData &table)
{
    table.setAllColDataHide();
    for (const ExcelData *title : qAsConst(ExcelTitles::s_excelTaskTitles)) {
        if (RowColumnData::ColumnData *column = table.getColumnDataByName(title->name))
            column->isHide = false;
    }
}

// ---- Names and IDs ----------------------------------------------------------------------------------------

constexpr int maxNumberedUnits = 255; // of a name that gets a number

// Names that no other task has, as KWDocument::differentSuffixTaskName makes them one after the other.
class UniqueNames
{
public:
    // The name, or a free one in its place; either is taken from then on.
    QString take(const QString &name)
    {
        ++m_count;
        if (name.isEmpty())
            return name;
        const QString trimmed = name.trimmed();
        if (!m_taken.contains(trimmed)) {
            m_taken.insert(trimmed);
            return name;
        }
        const QString base = name.left(maxNumberedUnits);
        qint64 &number = m_nextNumber[base];
        // The tasks before this one, and one.
        number = std::max(number, qint64(m_count));
        QString numbered;
        do
            numbered = base + QString::number(number++);
        while (m_taken.contains(numbered.trimmed()));
        m_taken.insert(numbered.trimmed());
        return numbered;
    }

private:
    QSet<QString> m_taken; // trimmed
    // Behind each name, the numbers below this one that were looked at are taken.
    QHash<QString, qint64> m_nextNumber;
    int m_count = 0; // of tasks, since numbers begin after it
};

// IDs that no other task has.
class UniqueIds
{
public:
    bool take(quint32 id) // false for 0 and for one that is taken
    {
        if (id == 0 || !m_taken.add(id))
            return false;
        m_greatest = std::max(m_greatest, id);
        return true;
    }
    quint32 takeNext() // one more than the greatest, the lowest free one when there is none
    {
        if (m_greatest < std::numeric_limits<quint32>::max()) {
            take(m_greatest + 1);
            return m_greatest;
        }
        while (!take(m_lowestFree))
            ++m_lowestFree;
        return m_lowestFree;
    }

private:
    TaskIndex m_taken;
    quint32 m_greatest = 0;
    quint32 m_lowestFree = 1;
};

// ---- A staged plan becomes the document's
// ------------------------------------------------------------------

class Replacer
{
public:
    Replacer(KWDocument &document, staged::Plan &plan, const Rules &rules, Findings *findings)
        : m_document(document)
        , m_plan(plan)
        , m_tasks(plan.tasks)
        , m_rules(rules)
        , m_findings(findings)
    {
    }

    // Everything but tasks and calendar, into a document that has these.
    void addSheets()
    {
        m_document.actionManager().prepareReplacement();
        if (m_plan.resources)
            replaceResources();
        assign();
        costsOf(m_document).sumUp();
        m_document.taskCollection()->updateRageAndTaskPoint();
        m_document.setModified(true);
    }

    ImportedPlan run()
    {
        m_document.actionManager().prepareReplacement();
        chooseIds();
        chooseNames();
        outline::LevelBuilder builder;
        for (const staged::Task &staged : m_tasks)
            builder.add(*staged.task);
        if (m_plan.calendar)
            setCalendar(m_document, *m_plan.calendar);
        const CalendarHold hold(m_document);
        chooseStart();
        setDates();
        setSummaryDates();
        handOver();
        link();
        addSheets();
        return std::move(m_imported);
    }

private:
    void report(const staged::Task &staged, const QString &what, const QString &taken)
    {
        if (m_findings)
            m_findings->add(m_rules.place + QLatin1Char(' ') + QString::number(staged.row), what, taken);
    }
    const worktime::WorkCalendar &calendar() { return m_document.workCalendar(); }

    // IDs that stand in the file are kept before others are given, so that none loses its own to a row
    // without.
    void chooseIds()
    {
        UniqueIds ids;
        std::vector<bool> isTaken(m_tasks.size(), false);
        const auto settle = [&](std::size_t i) {
            staged::Task &staged = m_tasks[i];
            staged.task->ID = ids.takeNext();
            if (staged.id != 0)
                report(staged, text("%1 is the ID of another task").arg(staged.id),
                       text("ID %1").arg(staged.task->ID));
        };
        for (std::size_t i = 0; i < m_tasks.size(); ++i) {
            isTaken[i] = ids.take(m_tasks[i].id);
            if (isTaken[i])
                m_tasks[i].task->ID = m_tasks[i].id;
            else if (m_rules.uniqueNames)
                settle(i);
        }
        for (std::size_t i = 0; i < m_tasks.size() && !m_rules.uniqueNames; ++i) {
            if (!isTaken[i])
                settle(i);
        }
    }

    void chooseNames()
    {
        UniqueNames names;
        for (const staged::Task &staged : m_tasks) {
            if (!m_rules.uniqueNames)
                break;
            const QString name = staged.task->Name;
            staged.task->Name = names.take(name);
            if (staged.task->Name != name)
                report(staged, text("%1 is the name of another task").arg(name),
                       text("named %1").arg(staged.task->Name));
        }
    }

    void chooseStart()
    {
        m_imported.isStartGiven = m_plan.start.isGiven();
        quint32 earliest = std::numeric_limits<quint32>::max();
        if (m_plan.start.isGiven())
            earliest = m_plan.start.kind == staged::Moment::Stored
                           ? m_plan.start.secs
                           : shownmoment::start(calendar(), m_plan.start.shown());
        for (const staged::Task &staged : m_tasks) {
            if (!m_plan.start.isGiven() && staged.moments[staged::Start].isGiven())
                earliest = std::min(earliest, taskdates::stored(calendar(), staged, staged::Start));
        }
        if (earliest == std::numeric_limits<quint32>::max())
            earliest = shownmoment::start(calendar(), {LocalClock::dayOf(KWClock::now().date()), 0, false});
        m_imported.start = earliest;
        if (m_imported.isStartGiven)
            m_document.StartDate = earliest;
    }

    void setDates()
    {
        using DateField = std::pair<staged::MomentField, quint32 TaskRecord::*>;
        constexpr DateField others[] = {{staged::LateStart, &KWTaskInfo::LateStart},
                                        {staged::LateFinish, &KWTaskInfo::LateFinish},
                                        {staged::BaseStart, &KWTaskInfo::BaseStart},
                                        {staged::BaseFinish, &KWTaskInfo::BaseFinish}};
        if (!m_tasks.empty() && !m_tasks.back().code.isEmpty())
            m_imported.codes.reserve(int(m_tasks.size()));
        for (const staged::Task &staged : m_tasks) {
            KWTaskInfo &task = *staged.task;
            if (staged.length)
                task.DurationUnits = staged.length->unit;
            else if (!staged.hasUnit)
                task.DurationUnits = m_document.ProjectUnit;
            for (const auto &[field, member] : others)
                task.*member = taskdates::stored(calendar(), staged, field);
            if (!staged.code.isEmpty())
                m_imported.codes.insert(task.ID, staged.code);
            if (task.isParent()) {
                task.Start = taskdates::stored(calendar(), staged, staged::Start);
                task.Finish = taskdates::stored(calendar(), staged, staged::Finish);
                continue;
            }
            const taskdates::Dates dates =
                taskdates::of(calendar(), staged, m_imported.start, m_rules.length);
            task.Start = dates.start;
            task.Finish = dates.finish;
            task.Milestone = dates.isMilestone;
            task.DurationSecs = duration::secs(calendar(), task.Start, task.Finish, task.DurationUnits);
            if (!staged.moments[staged::Start].isGiven())
                m_imported.withoutStart.insert(task.ID);
            if (dates.isEvening)
                m_imported.evenings.insert(task.ID, task.Start);
            tell(staged, dates.remark);
        }
    }

    void tell(const staged::Task &staged, taskdates::Remark remark)
    {
        using taskdates::Remark;
        const QString oneDay = text("taken as one day long");
        if (!staged.hasPlace)
            report(staged, text("it has neither a number nor a start, as totals have"),
                   text("taken as a task"));
        switch (remark) {
        case Remark::None:
            return;
        case Remark::StartAlone:
            return report(staged, text("neither a length nor a finish"), oneDay);
        case Remark::FinishAlone:
            return report(staged, text("neither a length nor a start"), oneDay);
        case Remark::Nothing:
            if (!m_plan.hasDates)
                return;
            return report(staged, text("neither dates nor a length"), oneDay);
        case Remark::Backwards:
            return report(staged, text("it finishes before it starts"),
                          staged.length ? text("the length counts") : oneDay);
        case Remark::LengthContradicts:
            return report(staged, text("the length is not that from start to finish"),
                          text("start and finish count"));
        case Remark::FinishContradicts:
            return report(staged, text("the finish is not where start and length lead"),
                          text("the length counts"));
        case Remark::ZeroLength:
            return report(staged, text("the length is 0, and there is time between start and finish"),
                          text("start and finish count"));
        case Remark::MilestoneWithLength:
            return report(staged, text("a milestone with time between start and finish"),
                          text("a milestone at its start"));
        }
    }

    // Whether a moment is what the file shows as the finish.
    bool shows(const staged::Moment &written, quint32 finish)
    {
        if (written.kind != staged::Moment::Shown || finish == 0)
            return false;
        const shownmoment::Moment shown = shownmoment::ofFinish(calendar(), finish);
        return shown.day == written.day && shown.secs == int(written.secs);
    }

    // What a summary's file does not say, its subtasks do. The same moment has two forms, an evening and the
    // morning after: the subtasks' counts.
    void setSummaryDates()
    {
        struct Span
        {
            quint32 start = std::numeric_limits<quint32>::max();
            quint32 finish = 0;
        };
        std::vector<Span> spans(m_tasks.size());
        TaskIndex places;
        for (std::size_t i = 0; i < m_tasks.size(); ++i)
            places.add(m_tasks[i].task->ID, int(i));
        for (std::size_t i = m_tasks.size(); i-- > 0;) {
            KWTaskInfo &task = *m_tasks[i].task;
            if (task.isParent()) {
                const bool isGiven = task.Start > 0 && task.Finish > task.Start;
                if (!isGiven || shownmoment::isSame(calendar(), task.Start, spans[i].start))
                    task.Start = spans[i].start;
                if (!isGiven || shownmoment::isSame(calendar(), task.Finish, spans[i].finish) ||
                    shows(m_tasks[i].moments[staged::Finish], spans[i].finish))
                    task.Finish = spans[i].finish;
                task.DurationSecs = duration::secs(calendar(), task.Start, task.Finish, task.DurationUnits);
            }
            const int parent = task.ParentID == 0 ? -1 : places.posOf(task.ParentID);
            if (parent < 0)
                continue;
            Span &span = spans[std::size_t(parent)];
            span.start = std::min(span.start, task.Start);
            span.finish = std::max(span.finish, task.Finish);
        }
    }

    void handOver()
    {
        m_document.clearTaskInfoList();
        m_ids.reserve(m_tasks.size());
        m_imported.rows.reserve(int(m_tasks.size()));
        for (staged::Task &staged : m_tasks) {
            m_ids.push_back(staged.task->ID);
            m_imported.rows.append(staged.row);
            m_document.appendTaskInfoList(staged.task.release());
        }
        RowColumnData &table = *m_document.rowColumnData();
        table.setRowHeights({});
        table.setRowHeightCount(int(m_tasks.size()));
    }

    void link()
    {
        m_imported.refusedLinks = m_plan.refusedLinks;
        if (links::insertFirst(m_document.outline(), m_plan.links))
            m_imported.links = int(m_plan.links.size());
        else
            linkOneByOne();
        if (m_rules.placesBehind && !m_imported.withoutStart.isEmpty() && m_imported.links > 0)
            placeBehind();
    }

    // Those that can be made, telling of the others.
    void linkOneByOne()
    {
        QList<KWTaskLink> links;
        for (const staged::Link &wanted : m_plan.links) {
            KWTaskLink link;
            link.predecessor = m_ids[std::size_t(wanted.predecessor)];
            link.successor = m_ids[std::size_t(wanted.successor)];
            links.append(link);
        }
        m_imported.links = links::insertAll(m_document.outline(), links);
        for (int i = 0; i < links.size(); ++i) {
            if (links[i].refusal != LinkRefusal::None)
                tellRefusal(links[i], m_plan.links[std::size_t(i)]);
        }
        constexpr bool byTag = false;
        m_document.updateDependTask(byTag);
    }

    void tellRefusal(const KWTaskLink &link, const staged::Link &wanted)
    {
        if (link.refusal == LinkRefusal::Twice)
            return;
        ++m_imported.refusedLinks;
        const bool isLoop = link.refusal == LinkRefusal::Loop || link.refusal == LinkRefusal::Self;
        report(m_tasks[std::size_t(wanted.successor)],
               (isLoop ? text("it would wait for itself through %1")
                       : text("it cannot wait for its own summary or subtask in %1"))
                   .arg(m_rules.place.section(QLatin1Char(' '), -1) + QLatin1Char(' ') +
                        QString::number(m_tasks[std::size_t(wanted.predecessor)].row)),
               text("no predecessor"));
    }

    // Pushes all, and puts those back that the file places.
    void placeBehind()
    {
        struct Dates
        {
            KWTaskInfo *task;
            quint32 start, finish, durationSecs;
        };
        std::vector<Dates> given;
        for (KWTaskInfo *task : m_document.taskList()) {
            if (!task->isParent() && !m_imported.withoutStart.contains(task->ID))
                given.push_back({task, task->Start, task->Finish, task->DurationSecs});
        }
        KWTaskCollection &collection = *m_document.taskCollection();
        collection.pushAllSuccessors();
        for (const Dates &dates : given) {
            dates.task->Start = dates.start;
            dates.task->Finish = dates.finish;
            dates.task->DurationSecs = dates.durationSecs;
        }
        const QList<KWTaskInfo *> &tasks = m_document.taskList();
        constexpr bool pushes = false;
        for (auto task = tasks.rbegin(); task != tasks.rend(); ++task)
            collection.updateTaskTimeToChildsTask(*task, pushes);
    }

    void replaceResources()
    {
        ResourceInfoData &infos = *m_document.resourceInfoData();
        infos.clearResourceInfoData();
        for (std::unique_ptr<ResourceInfo> &info : *m_plan.resources)
            infos.appendResourceInfo(info.release());
    }

    void assign();

    KWDocument &m_document;
    staged::Plan &m_plan;
    std::vector<staged::Task> &m_tasks;
    const Rules &m_rules;
    Findings *m_findings;
    std::vector<quint32> m_ids; // of the tasks, after they were handed over
    ImportedPlan m_imported;
};

// ---- Assignments ------------------------------------------------------------------------------------------

// Says that there is no such resource, and which one was probably meant.
class MissingNames
{
public:
    template <typename Info>
    QString missing(const QString &name, const QHash<QString, const Info *> &known)
    {
        constexpr int mostCompared = 2000; // names of a sheet that a typed one is compared with
        constexpr int mostGuessed = 100;
        auto guess = m_guesses.constFind(name);
        if (guess == m_guesses.constEnd()) {
            const bool isCompared = known.size() <= mostCompared && m_guesses.size() < mostGuessed;
            QStringList candidates = isCompared ? known.keys() : QStringList();
            candidates.sort();
            guess = m_guesses.insert(name, likeness::nearest(name, candidates));
        }
        return guess->isEmpty() ? text("there is no resource %1").arg(name)
                                : text("there is no resource %1; did you mean '%2'?").arg(name, *guess);
    }

private:
    QHash<QString, QString> m_guesses;
};

// Finds tasks, resources and assignments by their names.
class Assigner
{
public:
    Assigner(KWDocument &document, const Rules &rules, Findings *findings)
        : m_document(document)
        , m_rules(rules)
        , m_findings(findings)
        , m_measures(cost::measuresOf(document.workCalendar()))
    {
        m_tasks.reserve(document.taskCount());
        // From the last to the first, which is the one that a name means.
        for (int pos = document.taskCount() - 1; pos >= 0; --pos) {
            KWTaskInfo *&task = m_tasks[document.getTaskInfoAt(pos)->Name.trimmed()];
            if (task)
                m_shared.insert(task->Name.trimmed());
            task = document.getTaskInfoAt(pos);
        }
        const QVector<ResourceInfo *> &infos = document.resourceInfoData()->infos;
        for (int i = infos.size() - 1; i >= 0; --i)
            m_infos.insert(infos[i]->name.trimmed(), infos[i]);
    }

    void add(const staged::Assignment &row)
    {
        if (row.resource.isEmpty())
            return;
        KWTaskInfo *task =
            row.task >= 0 ? m_document.getTaskInfoAt(row.task) : m_tasks.value(row.taskName.trimmed());
        if (!task) {
            report(row, text("there is no task %1").arg(row.taskName), text("left out"));
            return;
        }
        if (row.task < 0 && m_shared.contains(row.taskName.trimmed()))
            m_uncertain.insert(row.taskName.trimmed(), row.row);
        if (task->isParent()) {
            if (m_rules.comparesWork)
                report(row, text("a summary takes no resources"), text("left out"));
            return;
        }
        if (m_rules.assignsOnce && !m_infos.contains(row.resource)) {
            report(row, m_names.missing(row.resource, m_infos), text("left out"));
            return;
        }
        if (m_rules.assignsOnce && find(*task, row.resource)) {
            report(row, text("%1 is assigned to this task already").arg(row.resource), text("left out"));
            return;
        }
        Resource &resource = assigned(*task, row);
        const bool isMaterial = !resourcetypes::isWork(resource.type);
        if (row.units)
            resource.percent = *row.units;
        if (m_rules.comparesWork && row.work) {
            compareWork(*task, resource, row);
            return;
        }
        if (isMaterial)
            return;
        if (row.work)
            resource.workSecs = cost::secsOfHours(
                m_measures, cost::toHours(m_measures, *row.work, row.workUnit), task->DurationUnits);
        else if (row.units)
            resource.workSecs = cost::workSecs(*task, resource);
    }

    // Rows that name a task by a name that several have.
    void tellUncertain()
    {
        constexpr int mostNamed = 5;
        if (m_uncertain.isEmpty() || !m_findings)
            return;
        QStringList places;
        for (auto name = m_uncertain.begin(); name != m_uncertain.end() && places.size() < mostNamed; ++name)
            places.append(
                QStringLiteral("%1 (%2 %3)").arg(name.key(), m_rules.assignmentPlace).arg(name.value()));
        m_findings->add(QString(),
                        KW_TEXT("assignments name tasks by names that several have, %1 in all: %2")
                            .arg(m_uncertain.size())
                            .arg(places.join(QLatin1String(", "))),
                        text("the first task of the name has the assignments"));
    }

private:
    // Where work follows from the task's length, what the file says of it is only compared.
    void compareWork(const KWTaskInfo &task, Resource &resource, const staged::Assignment &row)
    {
        constexpr double sameHours = 0.02; // a minute, and what rounding leaves
        const bool isMaterial = !resourcetypes::isWork(resource.type);
        if (!isMaterial)
            resource.workSecs = cost::workSecs(task, resource);
        const double counted = isMaterial ? resource.percent
                                          : cost::toHours(m_measures, cost::work(m_measures, task, resource),
                                                          task.DurationUnits);
        const double written =
            cost::toHours(m_measures, *row.work, isMaterial ? duration::Hour : row.workUnit);
        if (std::fabs(counted - written) > sameHours)
            report(row, KW_TEXT("%1 hours of work are counted as %2").arg(written).arg(counted),
                   text("work is the task's length times the units"));
    }

    void report(const staged::Assignment &row, const QString &what, const QString &taken)
    {
        if (m_findings)
            m_findings->add(m_rules.assignmentPlace + QLatin1Char(' ') + QString::number(row.row), what,
                            taken);
    }

    Resource &assigned(KWTaskInfo &task, const staged::Assignment &row)
    {
        if (Resource *resource = find(task, row.resource))
            return *resource;
        const ResourceInfo *info = m_infos.value(row.resource);
        if (!info)
            report(row, m_names.missing(row.resource, m_infos), text("assigned without a rate"));
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

    KWDocument &m_document;
    const Rules &m_rules;
    Findings *m_findings;
    const cost::Measures m_measures;
    QHash<QString, KWTaskInfo *> m_tasks;
    QSet<QString> m_shared;         // names of several tasks
    QMap<QString, int> m_uncertain; // of these, those that rows name; with the last such row
    QHash<QString, const ResourceInfo *> m_infos;
    MissingNames m_names;
    QSet<const KWTaskInfo *> m_met;
    QHash<QPair<const KWTaskInfo *, QString>, Resource *> m_assigned;
};

void Replacer::assign()
{
    if (m_plan.assignments.empty())
        return;
    Assigner assigner(m_document, m_rules, m_findings);
    for (const staged::Assignment &row : m_plan.assignments)
        assigner.add(row);
    if (!m_rules.uniqueNames)
        assigner.tellUncertain();
}
}

void setCalendar(KWDocument &document, const staged::Calendar &calendar)
{
    const auto setIntervals = [](const std::vector<staged::Interval> &from, QList<KWDayTime *> &to) {
        qDeleteAll(to);
        to.clear();
        for (const staged::Interval &interval : from)
            to.append(new KWDayTime(interval.startSecs, interval.finishSecs));
    };
    std::copy(calendar.week.begin(), calendar.week.end(), document.WorkDay);
    setIntervals(calendar.hours, document.workTimes);
    document.clearCalendar();
    for (const staged::CalendarException &from : calendar.exceptions) {
        auto *exception = new KWCalendar;
        exception->name = from.name;
        exception->startDate = from.from;
        exception->finishDate = from.to;
        exception->isException = true;
        exception->isWork = from.works;
        setIntervals(from.hours, exception->dayTimes);
        document.calendars.append(exception);
    }
}

ImportedPlan replace(KWDocument &document, staged::Plan &plan, const Rules &rules, Findings *findings)
{
    return Replacer(document, plan, rules, findings).run();
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

namespace {

Rules rulesOf(const sheetrows::Reading &reading, const sheetrows::Reader &tasks,
              const sheetrows::Reader &assignments)
{
    Rules rules;
    rules.uniqueNames = reading.isExact;
    rules.length = reading.length;
    rules.comparesWork = reading.comparesWork;
    rules.assignsOnce = reading.comparesWork;
    rules.placesBehind = !reading.isExact && reading.placesBehind;
    rules.place = tasks.place();
    rules.assignmentPlace = assignments.place();
    return rules;
}

QSet<QString> summaryNames(const staged::Plan &plan)
{
    QHash<qint64, const KWTaskInfo *> lastOfLevel;
    QSet<QString> names;
    for (const staged::Task &staged : plan.tasks) {
        const KWTaskInfo &task = *staged.task;
        const KWTaskInfo *summary = task.Level > 1 ? lastOfLevel.value(qint64(task.Level) - 1) : nullptr;
        if (summary && !summary->Name.isEmpty())
            names.insert(summary->Name.trimmed());
        lastOfLevel.insert(task.Level, &task);
    }
    return names;
}

// Any file of text has rows; a plan's have names and times.
bool isPlan(const TaskSheet &tasks, Findings *findings)
{
    const bool hasNames = tasks.hasField(columntypes::Name) || tasks.hasField(columntypes::Id);
    if (hasNames && tasks.hasTimes())
        return true;
    if (findings)
        findings->add(tasks.place() + text(" 1"),
                      hasNames ? text("not a plan: no title 'Duration'")
                               : text("not a plan: no title 'Name'"),
                      text("the first row holds the titles: Name, Duration, Start, Predecessors, ..."));
    return false;
}

// What a column of resources' names says, "Ann[50%];Crane", where no sheet of assignments does.
class ColumnAssigner
{
public:
    ColumnAssigner(staged::Plan &plan, const QString &place, Findings *findings)
        : m_plan(plan)
        , m_place(place)
        , m_findings(findings)
    {
        for (const auto &info : *plan.resources)
            m_known.insert(info->name.trimmed(), info.get());
    }

    void run()
    {
        // A plan without resources has names for its readers alone.
        for (std::size_t i = 0; i < m_plan.tasks.size() && !m_known.isEmpty(); ++i) {
            QSet<QString> names;
            for (const QString &part : m_plan.tasks[i].task->Resources.split(QLatin1Char(';')))
                assign(int(i), part.trimmed(), names);
        }
    }

private:
    void report(int task, const QString &what, const QString &taken)
    {
        if (m_findings)
            m_findings->add(m_place + QLatin1Char(' ') + QString::number(m_plan.tasks[std::size_t(task)].row),
                            what, taken);
    }

    void assign(int task, const QString &part, QSet<QString> &names)
    {
        constexpr double mostWithoutSign = 10; // of one person nobody means so many
        const int bracket = part.endsWith(QLatin1Char(']')) ? part.lastIndexOf(QLatin1Char('[')) : -1;
        const bool hasUnits = bracket > 0 && !m_known.contains(part);
        staged::Assignment assignment;
        assignment.row = m_plan.tasks[std::size_t(task)].row;
        assignment.task = task;
        assignment.units = 1;
        assignment.resource = (hasUnits ? part.left(bracket) : part).trimmed();
        if (assignment.resource.isEmpty())
            return;
        const ResourceInfo *info = m_known.value(assignment.resource);
        if (!info) {
            report(task, m_names.missing(assignment.resource, m_known),
                   text("kept as a text that costs nothing"));
            return;
        }
        if (names.contains(assignment.resource)) {
            report(task, text("%1 stands twice").arg(assignment.resource), text("assigned once"));
            return;
        }
        names.insert(assignment.resource);
        if (hasUnits) {
            sheetrows::Cell cell;
            cell.text = part.mid(bracket + 1).chopped(1);
            const std::optional<double> units = cellvalues::fraction(cell, cellvalues::Comma::Decimal);
            if (!units || *units < 0)
                report(task, text("'%1' has no units such as 50%").arg(part), text("assigned with 100%"));
            else
                assignment.units = *units;
            if (units && *units >= mostWithoutSign && resourcetypes::isWork(info->type) &&
                !cellvalues::hasPercentSign(cell))
                report(task, text("'%1' has no sign of percent").arg(part),
                       text("read as %1").arg(QString::number(*units * 100) + QLatin1Char('%')));
        }
        m_plan.assignments.push_back(std::move(assignment));
    }

    staged::Plan &m_plan;
    const QString m_place;
    Findings *m_findings;
    QHash<QString, const ResourceInfo *> m_known;
    MissingNames m_names;
};
}

bool importBook(KWDocument &document, const Book &book, const sheetrows::Reading &reading, Findings *findings,
                ImportedPlan *imported, const ProjectStart &start)
{
    TaskSheet tasks(reading, findings, book.names[exceltitles::TaskSheet]);
    ResourceSheet resources(*document.resourceInfoData(), reading, findings,
                            book.names[exceltitles::ResourceSheet]);
    AssignmentSheet assignments(reading, findings, book.names[exceltitles::AssignmentSheet]);
    sheetrows::Reader *const readers[] = {&tasks, &resources, &assignments};

    ExcelTitles::initImportMapList(&document);
    staged::Plan plan;
    if (start.date.isValid())
        plan.start = shownmoment::Moment{LocalClock::dayOf(start.date), std::max(0, start.secsOfDay),
                                         start.secsOfDay >= 0};
    for (int sheet = 0; sheet < exceltitles::SheetCount; ++sheet) {
        sheetrows::Reader &reader = *readers[sheet];
        Source *source = book.sheets[std::size_t(sheet)];
        const bool isRead = source && reader.read(*source);
        if (LongWork::wasGivenUp())
            return false;
        setTitles(Sheet(sheet), reader.titles());
        if (sheet == exceltitles::TaskSheet) {
            if (!isRead || !reader.isKnown()) {
                if (findings && source && source->error().isEmpty())
                    findings->add(book.names[std::size_t(sheet)],
                                  reader.hasBlankTitles() ? text("the cells of its first row are empty")
                                  : reader.hasTitles()    ? text("no title of its first row is known")
                                                          : text("it has no first row with titles"),
                                  text("nothing imported"));
                return false;
            }
            if (reading.isStrict && !isPlan(tasks, findings))
                return false;
            tasks.finish(plan);
            if (book.sheets[exceltitles::AssignmentSheet]) {
                // Workbooks repeat the assignments below a summary for the summary.
                assignments.leaveOut(summaryNames(plan));
                assignments.findTasks(plan);
            }
        } else if (sheet == exceltitles::ResourceSheet && isRead && reader.hasTitles()) {
            resources.finish(plan);
        } else if (sheet == exceltitles::AssignmentSheet && isRead && reader.isKnown()) {
            assignments.finish(plan);
        } else if (sheet == exceltitles::AssignmentSheet && !source && plan.resources && !reading.isExact) {
            ColumnAssigner(plan, tasks.place(), findings).run();
        }
        if (isRead && reader.hasLostRows() && !reading.isExact && findings)
            findings->add(book.names[std::size_t(sheet)], text("it has no first row with titles"),
                          text("not read"));
    }
    if (tasks.isRefused() || resources.isRefused() || assignments.isRefused())
        return false;
    ImportedPlan result = replace(document, plan, rulesOf(reading, tasks, assignments), findings);
    if (reading.showsColumns)
        showColumns(*document.rowColumnData(), tasks);
    if (imported)
        *imported = std::move(result);
    return true;
}

bool importBook(KWDocument &document, const Book &book, Findings *findings)
{
    sheetrows::Reading reading;
    reading.is1904 = book.is1904;
    if (!importBook(document, book, reading, findings))
        return false;
    showTitledColumns(*document.rowColumnData());
    return true;
}

bool importSheet(KWDocument &document, Sheet sheet, Source &source, bool is1904, Findings *findings)
{
    sheetrows::Reading reading;
    reading.is1904 = is1904;
    const Book names;
    TaskSheet tasks(reading, findings, names.names[exceltitles::TaskSheet]);
    ResourceSheet resources(*document.resourceInfoData(), reading, findings,
                            names.names[exceltitles::ResourceSheet]);
    AssignmentSheet assignments(reading, findings, names.names[exceltitles::AssignmentSheet]);
    sheetrows::Reader *const readers[] = {&tasks, &resources, &assignments};
    const bool isRead = readers[sheet]->read(source);
    if (!isRead || !(sheet == exceltitles::ResourceSheet ? resources.hasTitles() : readers[sheet]->isKnown()))
        return false;
    staged::Plan plan;
    const Rules rules = rulesOf(reading, tasks, assignments);
    if (sheet == exceltitles::TaskSheet) {
        tasks.finish(plan);
        replace(document, plan, rules, findings);
        showTitledColumns(*document.rowColumnData());
        return true;
    }
    if (sheet == exceltitles::ResourceSheet)
        resources.finish(plan);
    else
        assignments.finish(plan);
    Replacer(document, plan, rules, findings).addSheets();
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
