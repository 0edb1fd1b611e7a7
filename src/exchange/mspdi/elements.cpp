#include "exchange/mspdi/elements.h"
#include "engine/cost/cost.h"
#include "engine/record/resource.h"
#include "exchange/partwriter.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include <algorithm>
#include <charconv>
#include <cmath>

namespace mspdi {
namespace {

constexpr int secsPerMinute = 60;
constexpr int secsPerDay = 86400;
constexpr double hundredths = 100;
constexpr int calendarUid = 1;

class Output
{
public:
    explicit Output(PartWriter &part)
        : m_part(part)
    {
    }

    void open(const char *name)
    {
        newLine();
        m_part.open(name);
        ++m_depth;
    }
    void close()
    {
        --m_depth;
        newLine();
        m_part.close();
    }
    void element(const char *name) { m_name = name; }

    void put(const QString &text) { begin().text(text).close(); }
    void put(int number) { begin().text(number).close(); }
    void put(bool flag) { put(int(flag)); }
    void put(qint64 number) { putNumber(number); }
    // Never with an exponent, which decimals of the format have not.
    void put(double number) { putNumber(std::isfinite(number) ? number + 0.0 : 0.0); }
    void putText(const QString &text)
    {
        if (!text.isEmpty())
            put(text);
    }
    // Sums that differ by what rounding left are the same amount, halves of the last digit, too.
    void putMoney(double money)
    {
        constexpr double roundingError = 1e-6;
        put(std::floor(money * hundredths * hundredths + 0.5 + roundingError) / hundredths);
    }
    void putMoment(LocalClock::Wall wall)
    {
        // The last moment of a day of 24 hours is the first one of the next.
        if (wall.secs >= secsPerDay)
            wall = {wall.day + 1, wall.secs - secsPerDay};
        char text[maxValueBytes];
        putRaw(text, mspdi::putMoment(text, wall.day, wall.secs));
    }
    void putTime(int secs)
    {
        char text[maxValueBytes];
        const char *const end = mspdi::putMoment(text, 0, secs % secsPerDay);
        constexpr int timeBytes = 8;
        putRaw(end - timeBytes, end);
    }
    void putMinutes(double minutes)
    {
        char text[maxValueBytes * 2];
        putRaw(text, putDuration(text, qint64(std::llround(minutes * secsPerMinute))));
    }

private:
    void newLine()
    {
        static constexpr char blanks[] = "\n          ";
        m_part.raw(std::string_view(blanks, std::size_t(1 + m_depth)));
    }
    PartWriter &begin()
    {
        newLine();
        return m_part.open(m_name);
    }
    template <typename Number>
    void putNumber(Number number)
    {
        char text[512];
        const char *end = nullptr;
        if constexpr (std::is_integral_v<Number>)
            end = std::to_chars(text, text + sizeof(text), number).ptr;
        else
            end = std::to_chars(text, text + sizeof(text), number, std::chars_format::fixed).ptr;
        putRaw(text, end);
    }
    void putRaw(const char *text, const char *end)
    {
        begin().raw(std::string_view(text, std::size_t(end - text)));
        m_part.close();
    }

    PartWriter &m_part;
    const char *m_name = "";
    int m_depth = 0;
};

// What a record consists of, in the order of the format.
template <typename Row>
struct Column
{
    const char *name;
    void (*put)(Output &, const Row &);
};

template <typename Row, std::size_t count>
void putRecord(Output &out, const char *name, const Column<Row> (&columns)[count], const Row &row)
{
    out.open(name);
    for (const Column<Row> &column : columns) {
        out.element(column.name);
        column.put(out, row);
    }
    out.close();
}

// ---- Tables -----------------------------------------------------------------------------------------------

const Column<ProjectRow> projectColumns[] = {
    {"SaveVersion", [](Output &out, const ProjectRow &) { out.put(14); }},
    {"Name", [](Output &out, const ProjectRow &row) { out.put(row.name); }},
    {"Title", [](Output &out, const ProjectRow &row) { out.put(row.name); }},
    {"ScheduleFromStart", [](Output &out, const ProjectRow &) { out.put(true); }},
    {"StartDate",
     [](Output &out, const ProjectRow &row) {
         if (row.hasDates)
             out.putMoment(row.start);
     }},
    {"FinishDate",
     [](Output &out, const ProjectRow &row) {
         if (row.hasDates)
             out.putMoment(row.finish);
     }},
    {"CriticalSlackLimit", [](Output &out, const ProjectRow &) { out.put(0); }},
    {"CurrencyDigits", [](Output &out, const ProjectRow &) { out.put(2); }},
    {"CurrencySymbol", [](Output &out, const ProjectRow &) { out.put(QString()); }},
    // The code for "no currency".
    {"CurrencyCode", [](Output &out, const ProjectRow &) { out.put(QStringLiteral("XXX")); }},
    {"CalendarUID", [](Output &out, const ProjectRow &) { out.put(calendarUid); }},
    {"DefaultStartTime",
     [](Output &out, const ProjectRow &row) {
         out.putTime(row.hours.empty() ? 0 : row.hours.front().from * secsPerMinute);
     }},
    {"DefaultFinishTime",
     [](Output &out, const ProjectRow &row) {
         out.putTime(row.hours.empty() ? 0 : row.hours.back().to * secsPerMinute);
     }},
    {"MinutesPerDay", [](Output &out, const ProjectRow &row) { out.put(int(row.terms.minutesPerDay)); }},
    {"MinutesPerWeek", [](Output &out, const ProjectRow &row) { out.put(int(row.terms.minutesPerWeek)); }},
    {"DaysPerMonth", [](Output &out, const ProjectRow &row) { out.put(int(row.terms.daysPerMonth)); }},
    {"DefaultTaskType", [](Output &out, const ProjectRow &) { out.put(1); }},
    {"DurationFormat", [](Output &out, const ProjectRow &) { out.put(formatDays); }},
    {"WorkFormat", [](Output &out, const ProjectRow &) { out.put(2); }},
    {"HonorConstraints", [](Output &out, const ProjectRow &) { out.put(true); }},
    {"NewTasksEffortDriven", [](Output &out, const ProjectRow &) { out.put(false); }},
    {"NewTasksEstimated", [](Output &out, const ProjectRow &) { out.put(false); }},
    {"WeekStartDay", [](Output &out, const ProjectRow &) { out.put(1); }},
    {"NewTasksAreManual", [](Output &out, const ProjectRow &) { out.put(false); }},
};

void putLinks(Output &out, const TaskRow &row)
{
    for (const qint64 predecessor : row.predecessors) {
        out.open("PredecessorLink");
        out.element("PredecessorUID");
        out.put(predecessor);
        out.element("Type");
        out.put(int(FinishToStart));
        out.element("CrossProject");
        out.put(false);
        out.element("LinkLag");
        out.put(0);
        out.element("LagFormat");
        out.put(formatDays);
        out.close();
    }
}

void putBaseline(Output &out, const TaskRow &row)
{
    const bool hasCost = row.task && !row.task->BaselineCost.isEmpty();
    if (!row.hasBaseline && !hasCost)
        return;
    out.open("Baseline");
    out.element("Number");
    out.put(0);
    if (row.hasBaseline) {
        out.element("Start");
        out.putMoment(row.baseStart);
        out.element("Finish");
        out.putMoment(row.baseFinish);
    }
    if (hasCost) {
        out.element("Cost");
        out.putMoney(cost::baselineValue(row.task->BaselineCost));
    }
    out.close();
}

const KWHyperlink *hyperlinkOf(const TaskRow &row)
{
    return row.task ? row.task->hyperlinks.getAt(0) : nullptr;
}

const Column<TaskRow> taskColumns[] = {
    {"UID", [](Output &out, const TaskRow &row) { out.put(row.uid); }},
    {"ID", [](Output &out, const TaskRow &row) { out.put(row.number); }},
    {"Name", [](Output &out, const TaskRow &row) { out.put(row.name); }},
    {"Active", [](Output &out, const TaskRow &) { out.put(true); }},
    {"Manual", [](Output &out, const TaskRow &) { out.put(false); }},
    {"Type", [](Output &out, const TaskRow &) { out.put(1); }}, // its length does not follow its work
    {"IsNull", [](Output &out, const TaskRow &) { out.put(false); }},
    {"WBS", [](Output &out, const TaskRow &row) { out.put(QString::fromLatin1(row.outlineNumber)); }},
    {"OutlineNumber", [](Output &out, const TaskRow &row) { out.put(QString::fromLatin1(row.outlineNumber)); }},
    {"OutlineLevel", [](Output &out, const TaskRow &row) { out.put(row.level); }},
    {"Priority",
     [](Output &out, const TaskRow &row) {
         const qint64 priority = qint64(row.task ? row.task->Priority : 0) + normalPriority;
         out.put(int(std::clamp<qint64>(priority, 0, maxPriority)));
     }},
    {"Start",
     [](Output &out, const TaskRow &row) {
         if (row.hasDates)
             out.putMoment(row.start);
     }},
    {"Finish",
     [](Output &out, const TaskRow &row) {
         if (row.hasDates)
             out.putMoment(row.finish);
     }},
    {"Duration", [](Output &out, const TaskRow &row) { out.putMinutes(row.minutes); }},
    {"DurationFormat", [](Output &out, const TaskRow &row) { out.put(row.format); }},
    {"Work", [](Output &out, const TaskRow &row) { out.putMinutes(row.workMinutes); }},
    {"ResumeValid", [](Output &out, const TaskRow &) { out.put(false); }},
    {"EffortDriven", [](Output &out, const TaskRow &) { out.put(false); }},
    {"Recurring", [](Output &out, const TaskRow &) { out.put(false); }},
    {"Estimated", [](Output &out, const TaskRow &) { out.put(false); }},
    {"Milestone", [](Output &out, const TaskRow &row) { out.put(row.isMilestone); }},
    {"Summary", [](Output &out, const TaskRow &row) { out.put(row.isSummary); }},
    {"PercentComplete", [](Output &out, const TaskRow &row) { out.put(row.percent); }},
    {"Cost",
     [](Output &out, const TaskRow &row) {
         if (row.cost != 0)
             out.putMoney(row.cost);
     }},
    {"ActualStart",
     [](Output &out, const TaskRow &row) {
         if (row.percent > 0 && !row.isSummary && row.hasDates)
             out.putMoment(row.start);
     }},
    {"ActualFinish",
     [](Output &out, const TaskRow &row) {
         constexpr int whole = 100;
         if (row.percent == whole && !row.isSummary && row.hasDates)
             out.putMoment(row.finish);
     }},
    {"ConstraintType",
     [](Output &out, const TaskRow &row) { out.put(int(row.isFixed ? StartNoEarlier : AsSoonAsPossible)); }},
    {"CalendarUID", [](Output &out, const TaskRow &) { out.put(-1); }},
    {"ConstraintDate",
     [](Output &out, const TaskRow &row) {
         if (row.isFixed)
             out.putMoment(row.start);
     }},
    {"Hyperlink",
     [](Output &out, const TaskRow &row) {
         if (const KWHyperlink *link = hyperlinkOf(row))
             out.putText(link->name);
     }},
    {"HyperlinkAddress",
     [](Output &out, const TaskRow &row) {
         if (const KWHyperlink *link = hyperlinkOf(row))
             out.putText(link->address);
     }},
    {"HyperlinkSubAddress",
     [](Output &out, const TaskRow &row) {
         if (const KWHyperlink *link = hyperlinkOf(row))
             out.putText(link->subAddress);
     }},
    {"Notes",
     [](Output &out, const TaskRow &row) {
         if (row.task)
             out.putText(row.task->Notes);
     }},
    {"PredecessorLink", putLinks},
    {"Baseline", putBaseline},
};

constexpr bool isWork(const ResourceInfo &info)
{
    return resourcetypes::isWork(info.type);
}

const Column<ResourceRow> resourceColumns[] = {
    {"UID", [](Output &out, const ResourceRow &row) { out.put(row.uid); }},
    {"ID", [](Output &out, const ResourceRow &row) { out.put(row.number); }},
    {"Name", [](Output &out, const ResourceRow &row) { out.put(row.name); }},
    {"Type", [](Output &out, const ResourceRow &row) { out.put(isWork(*row.info)); }},
    {"IsNull", [](Output &out, const ResourceRow &) { out.put(false); }},
    {"Group", [](Output &out, const ResourceRow &row) { out.putText(row.info->group); }},
    {"EmailAddress", [](Output &out, const ResourceRow &row) { out.putText(row.info->email); }},
    {"MaxUnits", [](Output &out, const ResourceRow &row) { out.put(row.info->unit); }},
    {"StandardRate",
     [](Output &out, const ResourceRow &row) {
         const ResourceInfo &info = *row.info;
         out.put(isWork(info) ? perHour(info.cost, info.costUnit, row.terms) : info.cost);
     }},
    {"StandardRateFormat",
     [](Output &out, const ResourceRow &row) {
         out.put(isWork(*row.info) ? formatOfRate(row.info->costUnit) : formatMaterialRate);
     }},
    {"OvertimeRate",
     [](Output &out, const ResourceRow &row) {
         const ResourceInfo &info = *row.info;
         out.put(isWork(info) ? perHour(info.overtimeCost, info.overtimeUnit, row.terms) : info.overtimeCost);
     }},
    {"OvertimeRateFormat",
     [](Output &out, const ResourceRow &row) {
         out.put(formatOfRate(isWork(*row.info) ? row.info->overtimeUnit : 1));
     }},
    {"CostPerUse", [](Output &out, const ResourceRow &row) { out.putMoney(row.info->costPer); }},
    {"Notes", [](Output &out, const ResourceRow &row) { out.putText(row.info->notes); }},
};

double doneMinutes(const AssignmentRow &row)
{
    constexpr double whole = 100;
    return row.minutes * row.task->percent / whole;
}

const Column<AssignmentRow> assignmentColumns[] = {
    {"UID", [](Output &out, const AssignmentRow &row) { out.put(row.uid); }},
    {"TaskUID", [](Output &out, const AssignmentRow &row) { out.put(row.task->uid); }},
    {"ResourceUID", [](Output &out, const AssignmentRow &row) { out.put(row.resourceUid); }},
    {"PercentWorkComplete", [](Output &out, const AssignmentRow &row) { out.put(row.task->percent); }},
    {"ActualFinish",
     [](Output &out, const AssignmentRow &row) {
         constexpr int whole = 100;
         if (row.task->percent == whole && row.task->hasDates)
             out.putMoment(row.task->finish);
     }},
    {"ActualStart",
     [](Output &out, const AssignmentRow &row) {
         if (row.task->percent > 0 && row.task->hasDates)
             out.putMoment(row.task->start);
     }},
    {"ActualWork", [](Output &out, const AssignmentRow &row) { out.putMinutes(doneMinutes(row)); }},
    {"Cost", [](Output &out, const AssignmentRow &row) { out.putMoney(row.cost); }},
    {"Finish",
     [](Output &out, const AssignmentRow &row) {
         if (row.task->hasDates)
             out.putMoment(row.task->finish);
     }},
    {"RemainingWork",
     [](Output &out, const AssignmentRow &row) { out.putMinutes(row.minutes - doneMinutes(row)); }},
    {"Start",
     [](Output &out, const AssignmentRow &row) {
         if (row.task->hasDates)
             out.putMoment(row.task->start);
     }},
    {"Units",
     [](Output &out, const AssignmentRow &row) { out.put(row.resource ? row.resource->percent : 1.0); }},
    {"Work", [](Output &out, const AssignmentRow &row) { out.putMinutes(row.minutes); }},
    {"WorkContour", [](Output &out, const AssignmentRow &) { out.put(0); }},
};

void putHours(Output &out, const Hours &hours)
{
    if (hours.empty())
        return;
    out.open("WorkingTimes");
    for (const Interval &interval : hours) {
        out.open("WorkingTime");
        out.element("FromTime");
        out.putTime(interval.from * secsPerMinute);
        out.element("ToTime");
        out.putTime(interval.to * secsPerMinute);
        out.close();
    }
    out.close();
}

void putPeriod(Output &out, const Dates &dates)
{
    constexpr int lastMinute = secsPerDay - secsPerMinute;
    out.open("TimePeriod");
    out.element("FromDate");
    out.putMoment({dates.first, 0});
    out.element("ToDate");
    out.putMoment({dates.last, lastMinute});
    out.close();
}

struct WeekDayRow
{
    int dayType = 0;
    bool works = false;
    const Dates *dates = nullptr;
    const Hours *hours = nullptr;
};

const Column<WeekDayRow> weekDayColumns[] = {
    {"DayType", [](Output &out, const WeekDayRow &row) { out.put(row.dayType); }},
    {"DayWorking", [](Output &out, const WeekDayRow &row) { out.put(row.works); }},
    {"TimePeriod",
     [](Output &out, const WeekDayRow &row) {
         if (row.dates)
             putPeriod(out, *row.dates);
     }},
    {"WorkingTimes",
     [](Output &out, const WeekDayRow &row) {
         if (row.works)
             putHours(out, *row.hours);
     }},
};

const Column<WrittenException> exceptionColumns[] = {
    {"EnteredByOccurrences", [](Output &out, const WrittenException &) { out.put(false); }},
    {"TimePeriod", [](Output &out, const WrittenException &row) { putPeriod(out, row.dates); }},
    {"Occurrences", [](Output &out, const WrittenException &) { out.put(1); }},
    {"Name", [](Output &out, const WrittenException &row) { out.put(row.name); }},
    {"Type", [](Output &out, const WrittenException &) { out.put(int(DailyRange)); }},
    {"DayWorking", [](Output &out, const WrittenException &row) { out.put(row.works); }},
    {"WorkingTimes",
     [](Output &out, const WrittenException &row) {
         if (row.works)
             putHours(out, row.hours);
     }},
};

void putCalendar(Output &out, const WrittenPlan &plan)
{
    out.open("Calendar");
    out.element("UID");
    out.put(calendarUid);
    out.element("Name");
    out.put(QStringLiteral("Standard"));
    out.element("IsBaseCalendar");
    out.put(true);
    out.element("BaseCalendarUID");
    out.put(-1);
    out.open("WeekDays");
    for (int type = 1; type <= daysPerWeek; ++type) {
        // Sunday comes first.
        const DayHours &day = plan.week[std::size_t((type + daysPerWeek - 2) % daysPerWeek)];
        putRecord(out, "WeekDay", weekDayColumns, {type, day.isWorking, nullptr, &day.hours});
    }
    // Every exception stands there twice: older programs know only the first way.
    for (const WrittenException &row : plan.exceptions)
        putRecord(out, "WeekDay", weekDayColumns, {0, row.works, &row.dates, &row.hours});
    out.close();
    if (!plan.exceptions.empty()) {
        out.open("Exceptions");
        for (const WrittenException &row : plan.exceptions)
            putRecord(out, "Exception", exceptionColumns, row);
        out.close();
    }
    out.close();
}
}

bool writeElements(PartWriter &part, const WrittenPlan &plan)
{
    part.open("Project").attribute("xmlns", "http://schemas.microsoft.com/project");
    Output out(part);
    for (const Column<ProjectRow> &column : projectColumns) {
        out.element(column.name);
        column.put(out, plan.project);
    }
    out.open("Calendars");
    putCalendar(out, plan);
    out.close();
    out.open("Tasks");
    for (const TaskRow &row : plan.tasks)
        putRecord(out, "Task", taskColumns, row);
    out.close();
    out.open("Resources");
    for (const ResourceRow &row : plan.resources)
        putRecord(out, "Resource", resourceColumns, row);
    out.close();
    out.open("Assignments");
    for (const AssignmentRow &row : plan.assignments)
        putRecord(out, "Assignment", assignmentColumns, row);
    out.close();
    part.raw("\n").close();
    part.raw("\n");
    return part.finish();
}
}
