#include "exchange/mspdi/planreader.h"
#include "engine/cost/cost.h"
#include "engine/time/localclock.h"
#include "engine/time/walk.h"
#include "exchange/mspdi/calendar.h"
#include "resources/resourceinfodata.h"
#include "support/said.h"
#include <QHash>
#include <QSet>
#include <algorithm>
#include <cmath>
#include <limits>

namespace mspdi {
namespace {

constexpr int secsPerMinute = 60;
constexpr int minutesPerHour = 60;
constexpr double hundredths = 100;

QString quoted(const QString &name)
{
    constexpr int longest = 40;
    const QString text = name.simplified();
    return QLatin1Char('"') + (text.size() > longest ? text.left(longest) + QLatin1String("...") : text) +
           QLatin1Char('"');
}

QString placeOf(const Task &task)
{
    return QStringLiteral("task %1 %2").arg(task.id >= 0 ? task.id : task.uid).arg(quoted(task.name));
}

int depthOf(const Task &task)
{
    return task.outlineDepth >= 0 ? task.outlineDepth : task.wbsDepth;
}

// The project itself stands among the tasks as the first of them, above their levels.
bool isProjectItself(const Task &task)
{
    if (task.uid != 0)
        return false;
    if (task.level)
        return *task.level <= 0;
    return depthOf(task) >= 0 ? depthOf(task) == 0 : task.isSummary || task.isNull;
}

bool isBlankRow(const Task &task)
{
    return task.isNull || (task.name.trimmed().isEmpty() && task.start.state == Moment::None &&
                           task.finish.state == Moment::None);
}

// ---- Calendars --------------------------------------------------------------------------------------------

std::vector<staged::Interval> intervals(const Hours &hours)
{
    std::vector<staged::Interval> result;
    for (const Interval &interval : hours)
        result.push_back({quint32(interval.from * secsPerMinute), quint32(interval.to * secsPerMinute)});
    return result;
}

staged::Calendar stagedCalendar(const WorkingTime &time)
{
    staged::Calendar calendar;
    for (std::size_t weekday = 0; weekday < calendar.week.size(); ++weekday)
        calendar.week[weekday] = time.week[weekday].isWorking;
    calendar.hours = intervals(time.usual);
    for (const DatedHours &dated : time.exceptions) {
        staged::CalendarException exception;
        exception.name = dated.name;
        exception.from = LocalClock::dateOf(dated.dates.first);
        exception.to = LocalClock::dateOf(dated.dates.last);
        exception.works = dated.day.isWorking;
        if (dated.hasOwnHours)
            exception.hours = intervals(dated.day.hours);
        calendar.exceptions.push_back(std::move(exception));
    }
    return calendar;
}

// The calendar that the document will have, for measuring before there is one.
worktime::WorkCalendar compiled(const staged::Calendar &calendar)
{
    QList<KWDayTime *> hours;
    QList<CalendarRecord *> exceptions;
    for (const staged::Interval &interval : calendar.hours)
        hours.append(new KWDayTime(interval.startSecs, interval.finishSecs));
    for (const staged::CalendarException &each : calendar.exceptions) {
        auto *exception = new CalendarRecord;
        exception->startDate = each.from;
        exception->finishDate = each.to;
        exception->isException = true;
        exception->isWork = each.works;
        for (const staged::Interval &interval : each.hours)
            exception->dayTimes.append(new KWDayTime(interval.startSecs, interval.finishSecs));
        exceptions.append(exception);
    }
    worktime::WorkCalendar result({calendar.week.data(), hours, exceptions}, LocalClock::current());
    qDeleteAll(hours);
    for (CalendarRecord *exception : qAsConst(exceptions))
        qDeleteAll(exception->dayTimes);
    qDeleteAll(exceptions);
    return result;
}

Dates spanOf(const File &file)
{
    Dates span{std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};
    const auto widen = [&span](const Moment &moment) {
        if (!moment.isSet())
            return;
        span.first = std::min(span.first, moment.day);
        span.last = std::max(span.last, moment.day);
    };
    widen(file.start);
    widen(file.finish);
    for (const Task &task : file.tasks) {
        widen(task.start);
        widen(task.finish);
    }
    return span;
}

// ---- Moments ----------------------------------------------------------------------------------------------

// From what the file shows to what a task stores, so that the same minute is shown again.
class Moments
{
public:
    explicit Moments(const worktime::WorkCalendar &calendar)
        : m_calendar(calendar)
        , m_first(calendar.startHour() * minutesPerHour)
        , m_last(calendar.finishHour() * minutesPerHour)
    {
    }

    // A start without a time is that of its working day, a finish without one its end.
    void completeStart(Moment &start) const { complete(start, m_first); }
    void completeFinish(Moment &finish) const { complete(finish, m_last); }
    bool isEvening(const Moment &moment) const { return moment.minute == m_last && m_last > m_first; }
    bool isOutside(const Moment &start, bool isStart) const
    {
        const bool isMidnight = !isStart && start.minute == 0 && m_last == 24 * minutesPerHour;
        return !isMidnight && (start.minute < m_first || start.minute > m_last);
    }

    quint32 start(const Moment &moment) const
    {
        // The evening as a start would be the next morning: the last second of the day shows it.
        if (isEvening(moment))
            return dayEnd(moment.day) - 1;
        if (moment.minute > m_last)
            return secs({moment.day + 1, 0});
        if (moment.minute < m_first)
            return secs({moment.day, 0});
        return shownmoment::start(m_calendar, shown(moment), shownmoment::StayOn);
    }
    quint32 finish(const Moment &moment) const
    {
        // The morning as a finish would be the evening before: the first second of the day shows it.
        if (moment.minute == m_first && m_first > 0)
            return secs({moment.day, 1});
        if (moment.minute <= m_first)
            return secs({moment.day, 0});
        if (moment.minute >= m_last)
            return dayEnd(moment.day);
        return shownmoment::finish(m_calendar, shown(moment), shownmoment::StayOn);
    }
    static shownmoment::Moment shown(const Moment &moment)
    {
        return {moment.day, moment.minute * secsPerMinute, true};
    }

private:
    static void complete(Moment &moment, int minute)
    {
        constexpr int minutesPerDay = 24 * minutesPerHour;
        if (!moment.isSet() || !moment.isDate)
            return;
        moment.day += minute / minutesPerDay;
        moment.minute = minute % minutesPerDay;
    }
    quint32 secs(LocalClock::Wall wall) const
    {
        return worktime::clampSecs(m_calendar.clock().moment(wall.day, wall.secs));
    }
    quint32 dayEnd(int day) const { return secs({day + 1, 0}); }

    const worktime::WorkCalendar &m_calendar;
    const int m_first;
    const int m_last;
};

// ---- The plan ---------------------------------------------------------------------------------------------

class PlanReader
{
public:
    PlanReader(File &file, FindingList &findings)
        : m_file(file)
        , m_findings(findings)
        , m_calendars(file)
        , m_time(m_calendars.workingTime(spanOf(file)))
        , m_stagedCalendar(stagedCalendar(m_time))
        , m_calendar(compiled(m_stagedCalendar))
        , m_moments(m_calendar)
        , m_minutes(m_time.week, m_time.exceptions)
    {
        m_terms.minutesPerDay = positive(file.minutesPerDay, m_terms.minutesPerDay);
        m_terms.minutesPerWeek = positive(file.minutesPerWeek, m_terms.minutesPerWeek);
        m_terms.daysPerMonth = positive(file.daysPerMonth, m_terms.daysPerMonth);
    }

    PlanOfFile read()
    {
        tellOfCalendars();
        tellOfSpoilt();
        if (!m_file.isScheduledFromStart)
            m_findings.add(Kind::FromFinish);
        m_findings.add(Kind::RepeatedList, m_file.repeatedLists);
        orderTasks();
        resources();
        assignments();
        for (const int place : m_rows)
            task(m_file.tasks[std::size_t(place)]);
        for (std::size_t i = 0; i < m_rows.size(); ++i)
            links(m_file.tasks[std::size_t(m_rows[i])], int(i));
        m_findings.add(Kind::RepeatedLink, m_repeatedLinks);
        endWithPredecessors();
        if (!m_result.cost)
            m_result.cost = m_leafCost ? m_leafCost : m_assignedCost;
        m_moments.completeStart(m_file.start);
        if (m_file.start.isSet())
            m_result.plan.start = staged::Moment::ofStored(m_moments.start(m_file.start));
        if (!m_calendars.isEmpty())
            m_result.plan.calendar = std::move(m_stagedCalendar);
        return std::move(m_result);
    }

private:
    static double positive(const std::optional<double> &value, double otherwise)
    {
        constexpr double most = 1e6;
        return value && *value > 0 && *value < most ? *value : otherwise;
    }

    void tellOfCalendars()
    {
        if (m_file.calendar != noUid && !m_calendars.has(m_file.calendar))
            m_findings.add(Kind::UnknownCalendar);
        m_findings.add(Kind::OtherHours, int(m_time.otherWeekdays.size()));
        m_findings.add(Kind::OverMidnight, m_time.runsOverMidnight);
        m_findings.add(Kind::WorkWeeks, m_time.workWeeks);
        m_findings.add(Kind::CutRecurrence, m_time.cutRecurring);
        m_findings.add(Kind::SpoiltException, m_time.spoilt);
        m_findings.add(Kind::ManyExceptions, m_time.dropped);
    }

    void tellOfSpoilt()
    {
        for (const Spoilt &spoilt : m_file.spoilt) {
            if (!m_findings.wantsPlace(Kind::SpoiltValue))
                break;
            QString place;
            if (spoilt.list == Spoilt::OfTask)
                place = placeOf(m_file.tasks[spoilt.place]);
            else if (spoilt.list == Spoilt::OfResource)
                place = KW_TEXT("resource %1").arg(quoted(m_file.resources[spoilt.place].name));
            else if (spoilt.list == Spoilt::OfCalendar)
                place = KW_TEXT("calendar %1").arg(quoted(m_file.calendars[spoilt.place].name));
            else if (spoilt.list == Spoilt::OfAssignment)
                place = KW_TEXT("assignment %1").arg(m_file.assignments[spoilt.place].uid);
            else
                place = QStringLiteral("project");
            m_findings.add(Kind::SpoiltValue,
                           QStringLiteral("%1, %2 '%3'").arg(place, spoilt.element, spoilt.text));
        }
        m_findings.add(Kind::SpoiltValue, m_file.spoiltCount - m_findings.count(Kind::SpoiltValue));
    }

    // ---- Rows ---------------------------------------------------------------------------------------------
    void orderTasks()
    {
        std::vector<Task> &tasks = m_file.tasks;
        int lowestLevel = 1;
        bool areAllNumbered = true;
        for (std::size_t i = 0; i < tasks.size(); ++i) {
            if (isProjectItself(tasks[i])) {
                // The first that has a name names the plan.
                if (m_result.name.isEmpty())
                    m_result.name = tasks[i].name.trimmed();
                if (tasks[i].cost && !m_result.cost)
                    m_result.cost = tasks[i].cost;
                continue;
            }
            if (isBlankRow(tasks[i]) || tasks[i].isExternal) {
                if (tasks[i].isExternal)
                    m_externals.insert(tasks[i].uid);
                continue;
            }
            areAllNumbered = areAllNumbered && tasks[i].id >= 0;
            lowestLevel = std::min(lowestLevel, levelOf(tasks[i]));
            m_rows.push_back(int(i));
        }
        if (m_result.name.isEmpty())
            m_result.name = m_file.title.trimmed();
        if (areAllNumbered) {
            std::stable_sort(m_rows.begin(), m_rows.end(), [&](int a, int b) {
                return tasks[std::size_t(a)].id < tasks[std::size_t(b)].id;
            });
        }
        m_levelShift = 1 - lowestLevel;
        if (lowestLevel < 0)
            m_findings.add(Kind::OtherLevel);
        m_placeOfUid.reserve(int(m_rows.size()));
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            const Task &task = tasks[std::size_t(m_rows[i])];
            if (task.uid == noUid)
                continue;
            if (m_placeOfUid.contains(task.uid))
                m_findings.add(Kind::RepeatedUid, placeOf(task));
            else
                m_placeOfUid.insert(task.uid, int(i));
        }
        const int rows = int(m_rows.size());
        m_isSummary.assign(std::size_t(rows), false);
        for (int i = 0; i + 1 < rows; ++i)
            m_isSummary[std::size_t(i)] = levelOf(tasks[std::size_t(m_rows[std::size_t(i + 1)])]) >
                                          levelOf(tasks[std::size_t(m_rows[std::size_t(i)])]);
        m_hasOtherWorkers.assign(std::size_t(rows), false);
        m_result.plan.tasks.reserve(std::size_t(rows));
        m_result.kept.reserve(std::size_t(rows));
    }

    static int levelOf(const Task &task)
    {
        constexpr int deepest = 1000000;
        return task.level ? std::clamp(*task.level, -deepest, deepest) : std::max(1, depthOf(task));
    }

    // ---- Tasks --------------------------------------------------------------------------------------------
    void task(Task &from)
    {
        const std::size_t place = m_result.plan.tasks.size();
        staged::Task to;
        to.row =
            int(std::clamp<qint64>(from.id >= 0 ? from.id : from.uid, 0, std::numeric_limits<int>::max()));
        const bool isFirst = m_placeOfUid.value(from.uid, -1) == int(place);
        if (isFirst && from.uid > 0 && from.uid <= std::numeric_limits<quint32>::max())
            to.id = quint32(from.uid);
        to.task = std::make_unique<KWTaskInfo>();
        KWTaskInfo &info = *to.task;
        info.Name = from.name;
        info.Level = levelOf(from) + m_levelShift;
        info.Notes = from.notes;
        info.Priority = from.priority.value_or(normalPriority) - normalPriority;
        constexpr int whole = 100;
        info.setPercent(std::clamp(from.percent.value_or(0), 0, whole) / double(whole));
        if (from.percent && (*from.percent < 0 || *from.percent > whole))
            m_findings.add(Kind::PercentOutside,
                           QStringLiteral("%1, %2 %").arg(placeOf(from)).arg(*from.percent));
        const DurationFormat format =
            durationFormat(from.durationFormat > 0 ? from.durationFormat : m_file.durationFormat);
        info.DurationUnits = format.unit;
        to.hasUnit = true;
        const bool isOneDate = from.start.isDate && from.finish.isDate && from.start == from.finish;
        m_moments.completeStart(from.start);
        m_moments.completeFinish(from.finish);
        if (isOneDate && (from.isMilestone.value_or(false) || from.minutes.value_or(1) == 0))
            from.finish = from.start;
        hyperlink(from, info);
        byHand(from, info);
        if (from.baseline)
            baseline(*from.baseline, to);

        PlanOfFile::Kept kept;
        kept.percent = from.percent;
        kept.isInactive = !from.isActive;
        dates(from, to, kept);
        tell(from, format, place, kept);
        if (!m_isSummary[place] && from.cost)
            m_leafCost = m_leafCost.value_or(0) + *from.cost;
        m_result.kept.push_back(kept);
        m_result.plan.tasks.push_back(std::move(to));
    }

    void hyperlink(const Task &from, KWTaskInfo &info)
    {
        if (from.hyperlinkAddress.trimmed().isEmpty() && from.hyperlinkSubAddress.trimmed().isEmpty())
            return;
        auto *link = new KWHyperlink;
        link->ID = 1;
        const QString title = from.hyperlink.trimmed();
        link->name = title.isEmpty() ? QStringLiteral("Hyperlink1") : title;
        link->address = from.hyperlinkAddress.trimmed();
        link->subAddress = from.hyperlinkSubAddress.trimmed();
        link->type = KWHyperlink::hyperlinkType(link->address);
        info.hyperlinks.appendHyperlink(link);
    }

    // Tasks that a user dates by hand may show words in place of dates.
    void byHand(const Task &from, KWTaskInfo &info)
    {
        if (!from.isManual)
            return;
        m_findings.add(Kind::Manual, placeOf(from));
        const auto note = [&info](const char *title, const QString &text) {
            if (text.trimmed().isEmpty())
                return;
            if (!info.Notes.isEmpty())
                info.Notes += QLatin1Char('\n');
            info.Notes += QString::fromLatin1(title) + text.trimmed();
        };
        note("Start: ", from.startText);
        note("Finish: ", from.finishText);
        note("Duration: ", from.durationText);
    }

    void baseline(Baseline &from, staged::Task &to)
    {
        m_moments.completeStart(from.start);
        m_moments.completeFinish(from.finish);
        if (from.start.isSet() && from.finish.isSet()) {
            to.moments[staged::BaseStart] = staged::Moment::ofStored(m_moments.start(from.start));
            to.moments[staged::BaseFinish] = staged::Moment::ofStored(m_moments.finish(from.finish));
        }
        if (from.cost)
            to.task->BaselineCost = cost::baselineText(*from.cost / hundredths);
    }

    // The length in units of the task, as the file counts them.
    double lengthIn(duration::Unit unit, double minutes) const
    {
        switch (unit) {
        case duration::Week:
            return minutes / m_terms.minutesPerWeek;
        case duration::Day:
            return minutes / m_terms.minutesPerDay;
        case duration::Hour:
            return minutes / minutesPerHour;
        default:
            return minutes;
        }
    }

    void dates(const Task &from, staged::Task &to, PlanOfFile::Kept &kept)
    {
        const bool isZero = from.minutes && *from.minutes == 0;
        kept.isMilestone = from.isMilestone.value_or(isZero);
        bool hasFinish = from.finish.isSet();
        if (from.start.isSet() && hasFinish && from.finish < from.start) {
            m_findings.add(Kind::FinishFirst, placeOf(from));
            hasFinish = false;
        }
        if (from.start.isSet()) {
            kept.start = from.start;
            to.moments[staged::Start] = staged::Moment::ofStored(m_moments.start(from.start));
        }
        if (hasFinish) {
            kept.finish = from.finish;
            quint32 finish = m_moments.finish(from.finish);
            if (from.start.isSet())
                finish = std::max(finish, to.moments[staged::Start].secs + 1);
            to.moments[staged::Finish] = staged::Moment::ofStored(finish);
        }
        const bool lasts =
            from.start.isSet() && hasFinish ? kept.start < kept.finish : from.minutes.value_or(0) > 0;
        if (kept.isMilestone && lasts) {
            m_findings.add(Kind::LongMilestone, placeOf(from));
            kept.isMilestone = false;
        }
        to.isMilestone = kept.isMilestone;
        if (from.start.isSet() && hasFinish)
            return;
        // One of them and the length say both.
        const bool hasOne = (from.start.isSet() || from.finish.isSet()) && from.minutes;
        if (!hasOne && from.start.state != Moment::Spoilt && from.finish.state != Moment::Spoilt)
            m_findings.add(Kind::NoDates, placeOf(from));
        const auto unit = duration::Unit(to.task->DurationUnits);
        if (durationFormat(from.durationFormat).isElapsed && from.minutes && from.start.isSet())
            to.moments[staged::Finish] = staged::Moment::ofStored(worktime::clampSecs(
                qint64(to.moments[staged::Start].secs) + qint64(*from.minutes) * secsPerMinute));
        else
            to.length = staged::Length{from.minutes       ? lengthIn(unit, *from.minutes)
                                       : kept.isMilestone ? 0
                                                          : 1,
                                       unit};
    }

    void tell(const Task &from, const DurationFormat &format, std::size_t place, const PlanOfFile::Kept &kept)
    {
        const auto say = [&](bool isSo, Kind kind) {
            if (isSo)
                m_findings.add(kind, m_findings.wantsPlace(kind) ? placeOf(from) : QString());
        };
        const bool isSummary = m_isSummary[place];
        const bool isElapsed = format.isElapsed && from.minutes.value_or(0) > 0;
        say(isElapsed, Kind::Elapsed);
        say(!from.isActive, Kind::Inactive);
        say(from.isRecurring, Kind::Recurring);
        say(from.isSubproject, Kind::Subproject);
        if (!isHeldByDates(from.constraint))
            m_findings.add(Kind::ConstraintKept, m_findings.wantsPlace(Kind::ConstraintKept)
                                                     ? placeOf(from) + QLatin1String(": ") +
                                                           QLatin1String(constraintText(from.constraint))
                                                     : QString());
        // Some writers put a date long before the project for "none".
        say(from.deadline.isSet() && !(from.deadline < m_file.start), Kind::Deadline);
        say(from.hasFurtherBaselines, Kind::Baselines);
        const bool hasOwnTime = from.calendar != noUid && m_calendars.differs(from.calendar);
        say(hasOwnTime, Kind::OtherCalendar);
        if (isSummary)
            return;
        const bool isOutside = (kept.start.isSet() && m_moments.isOutside(kept.start, true)) ||
                               (kept.finish.isSet() && m_moments.isOutside(kept.finish, false));
        say(isOutside, Kind::OutsideHours);
        const auto isOff = [this](int day) { return m_calendar.hasWorkday() && !m_calendar.isWorkday(day); };
        // A finish at midnight belongs to the day before.
        const int lastDay = kept.finish.day - (kept.finish.minute == 0 ? 1 : 0);
        say((kept.start.isSet() && isOff(kept.start.day)) ||
                (kept.finish.isSet() && kept.start < kept.finish && isOff(lastDay)),
            Kind::DayOff);
        const bool isMeasured = kept.start.isSet() && kept.finish.isSet() && from.minutes && !isElapsed &&
                                !from.isManual && !hasOwnTime && !isOutside && !m_hasOtherWorkers[place];
        constexpr double sameMinutes = 2;
        say(isMeasured &&
                std::abs(double(m_minutes.between(kept.start, kept.finish)) - *from.minutes) > sameMinutes,
            Kind::Interrupted);
    }

    // ---- Links --------------------------------------------------------------------------------------------
    QString linkText(const Task &successor, const Link &link) const
    {
        const int place = m_placeOfUid.value(link.predecessor, -1);
        const QString predecessor = place >= 0
                                        ? quoted(m_file.tasks[std::size_t(m_rows[std::size_t(place)])].name)
                                        : QStringLiteral("task with UID %1").arg(link.predecessor);
        QString text = QStringLiteral("%1 to %2 %3")
                           .arg(predecessor, quoted(successor.name), QLatin1String(linkTypeText(link.type)));
        const DurationFormat format = durationFormat(link.lagFormat);
        constexpr double tenths = 10;
        const double lag = format.isPercent ? link.lag : lengthOfLag(link, format) / tenths;
        if (link.lag != 0)
            text += QStringLiteral("%1%2%3")
                        .arg(lag > 0 ? QStringLiteral("+") : QString())
                        .arg(lag)
                        .arg(formatSuffix(link.lagFormat));
        return text;
    }
    double lengthOfLag(const Link &link, const DurationFormat &format) const
    {
        constexpr double minutesPerDay = 24 * 60;
        constexpr double elapsedDays = 7;
        if (!format.isElapsed)
            return lengthIn(format.unit, link.lag);
        return format.unit == duration::Day    ? link.lag / minutesPerDay
               : format.unit == duration::Week ? link.lag / minutesPerDay / elapsedDays
                                               : lengthIn(format.unit, link.lag);
    }

    void links(const Task &successor, int place)
    {
        QSet<int> made;
        for (const Link &link : successor.links) {
            const auto say = [&](Kind kind) {
                m_findings.add(kind, m_findings.wantsPlace(kind) ? linkText(successor, link) : QString());
            };
            if (link.isAcross || m_externals.contains(link.predecessor)) {
                say(Kind::AcrossLink);
                continue;
            }
            const int predecessor = m_placeOfUid.value(link.predecessor, -1);
            if (predecessor < 0) {
                say(Kind::LostLink);
                continue;
            }
            if (!successor.isActive || !m_file.tasks[std::size_t(m_rows[std::size_t(predecessor)])].isActive)
                continue;
            const bool isPercentLag = durationFormat(link.lagFormat).isPercent;
            if (link.type != FinishToStart || link.lag < 0 || (isPercentLag && link.lag != 0)) {
                say(Kind::OtherLink);
                continue;
            }
            if (link.lag > 0)
                say(Kind::LagKept);
            if (made.contains(predecessor)) {
                ++m_repeatedLinks;
                continue;
            }
            made.insert(predecessor);
            m_result.plan.links.push_back({predecessor, place});
        }
    }

    // A milestone in the evening that a predecessor brings about is stored where that one ends.
    void endWithPredecessors()
    {
        for (const staged::Link &link : m_result.plan.links) {
            staged::Task &task = m_result.plan.tasks[std::size_t(link.successor)];
            const PlanOfFile::Kept &kept = m_result.kept[std::size_t(link.successor)];
            const PlanOfFile::Kept &before = m_result.kept[std::size_t(link.predecessor)];
            if (!kept.isMilestone || m_isSummary[std::size_t(link.successor)] || !kept.start.isSet() ||
                !m_moments.isEvening(kept.start) || !(before.finish == kept.start))
                continue;
            task.moments[staged::Start] = Moments::shown(kept.start);
            task.moments[staged::Finish] = Moments::shown(kept.start);
        }
    }

    // ---- Resources ----------------------------------------------------------------------------------------
    void resources()
    {
        std::vector<std::unique_ptr<ResourceInfo>> infos;
        QHash<QString, int> names; // with the number that the next one of the name gets
        QSet<qint32> ids;
        qint32 nextId = 1;
        for (const Resource &from : m_file.resources) {
            const QString given = from.name.trimmed();
            if (from.isNull || isNobody(from.uid) || (from.uid <= 0 && given.isEmpty()))
                continue;
            auto info = std::make_unique<ResourceInfo>();
            const QString wanted = given.isEmpty() ? QStringLiteral("Resource %1").arg(from.uid) : given;
            info->name = wanted;
            for (int number = names.value(wanted, 1); names.contains(info->name);) {
                info->name = wanted + QStringLiteral(" %1").arg(++number);
                names[wanted] = number;
            }
            names.insert(info->name, 1);
            if (info->name != given)
                m_findings.add(Kind::RenamedResource, quoted(info->name));
            const bool isTaken = from.uid != noUid && m_resources.contains(from.uid);
            if (isTaken)
                m_findings.add(Kind::RepeatedUid, KW_TEXT("resource %1").arg(quoted(info->name)));
            const bool hasId = from.uid > 0 && from.uid < std::numeric_limits<qint32>::max() &&
                               !ids.contains(qint32(from.uid));
            while (!hasId && ids.contains(nextId))
                ++nextId;
            info->ID = hasId ? qint32(from.uid) : nextId;
            ids.insert(info->ID);
            fill(from, *info);
            if (from.uid != noUid && !isTaken)
                m_resources.insert(from.uid, {info->name, !resourcetypes::isWork(info->type),
                                              from.calendar != noUid && m_calendars.differs(from.calendar)});
            infos.push_back(std::move(info));
        }
        m_result.plan.resources = std::move(infos);
    }

    void fill(const Resource &from, ResourceInfo &info)
    {
        constexpr int cost = 2;
        constexpr int work = 1;
        const bool isCost = from.isCost || from.type == cost;
        info.type = from.type == work && !isCost ? 0 : 1;
        info.unit = from.maxUnits.value_or(1);
        const auto rate = [&](const std::optional<double> &perHour, int format, double &money, qint32 &unit) {
            if (!resourcetypes::isWork(info.type)) {
                money = perHour.value_or(0);
                return;
            }
            const Rate found = rateOf(perHour.value_or(0), format, m_terms);
            money = found.money;
            unit = found.costUnit;
            if (found.isApproximate && found.money != 0)
                m_findings.add(Kind::YearRate, quoted(info.name));
        };
        rate(from.standardRate, from.standardFormat, info.cost, info.costUnit);
        rate(from.overtimeRate, from.overtimeFormat, info.overtimeCost, info.overtimeUnit);
        info.costPer = from.costPerUse.value_or(0) / hundredths;
        info.group = from.group.trimmed();
        info.email = from.email.trimmed();
        info.notes = from.notes;
        const auto say = [&](bool isSo, Kind kind) {
            if (isSo)
                m_findings.add(kind, quoted(info.name));
        };
        say(isCost, Kind::CostResource);
        say(from.hasFurtherRates, Kind::MoreRates);
        say(from.hasAvailability, Kind::Availability);
        if (from.calendar != noUid && m_calendars.differs(from.calendar))
            m_findings.add(Kind::OtherCalendar, KW_TEXT("resource %1").arg(quoted(info.name)));
    }

    // ---- Assignments --------------------------------------------------------------------------------------
    static bool isNobody(qint64 resource) { return resource == noResource || resource == noResourceOld; }
    static const char *spreadBy(const Assignment &assignment)
    {
        return assignment.contour != 0       ? "a contour"
               : assignment.delay != 0       ? "a delay"
               : assignment.overtimeWork > 0 ? "overtime"
               : assignment.hasTimephased    ? "day by day"
                                             : nullptr;
    }
    // Once for each task.
    void tellOfSpread()
    {
        QHash<qint64, const char *> spread;
        const auto add = [&spread](qint64 task, const char *by) {
            const char *&known = spread[task];
            known = known ? known : by;
        };
        for (const Assignment &assignment : m_file.assignments) {
            const char *const by = spreadBy(assignment);
            if (by && assignment.task >= 0)
                add(assignment.task, by);
        }
        for (const Task &task : m_file.tasks) {
            if (task.hasTimephased)
                add(task.uid, "day by day");
            const char *const by = spread.value(task.uid, nullptr);
            if (by)
                m_findings.add(Kind::Spread,
                               m_findings.wantsPlace(Kind::Spread)
                                   ? QStringLiteral("%1 (%2)").arg(placeOf(task), QLatin1String(by))
                                   : QString());
        }
    }
    void assignments()
    {
        tellOfSpread();
        QHash<QPair<int, qint64>, std::size_t> known;
        std::vector<staged::Assignment> &list = m_result.plan.assignments;
        for (const Assignment &from : m_file.assignments) {
            const int place = m_placeOfUid.value(from.task, -1);
            const auto say = [&](Kind kind) {
                const QString at = place < 0 ? KW_TEXT("assignment %1").arg(from.uid)
                                             : placeOf(m_file.tasks[std::size_t(m_rows[std::size_t(place)])]);
                m_findings.add(kind, m_findings.wantsPlace(kind) ? at : QString());
            };
            if (from.cost)
                m_assignedCost = m_assignedCost.value_or(0) + *from.cost;
            const auto resource = m_resources.constFind(from.resource);
            // Some write nobody as another number that no resource has.
            if (resource == m_resources.constEnd() && from.resource <= 0)
                continue;
            if (place < 0 || resource == m_resources.constEnd()) {
                // The project itself has rows of assignments, too.
                if (from.task != 0 || resource == m_resources.constEnd())
                    say(Kind::LostAssignment);
                continue;
            }
            if (m_isSummary[std::size_t(place)]) {
                say(Kind::OnSummary);
                continue;
            }
            if (from.rateTable != 0)
                say(Kind::MoreRates);
            m_hasOtherWorkers[std::size_t(place)] =
                m_hasOtherWorkers[std::size_t(place)] || resource->hasOwnTime;
            const auto twin = known.constFind({place, from.resource});
            if (twin != known.constEnd()) {
                say(Kind::JoinedAssignment);
                join(list[*twin], from);
                continue;
            }
            staged::Assignment to;
            to.row = int(std::clamp<qint64>(from.uid, 0, std::numeric_limits<int>::max()));
            to.task = place;
            to.resource = resource->name;
            to.units = from.units;
            if (from.work && !resource->isMaterial)
                to.work = *from.work / minutesPerHour;
            known.insert({place, from.resource}, list.size());
            list.push_back(to);
        }
    }
    static void join(staged::Assignment &to, const Assignment &more)
    {
        to.units = to.units.value_or(1) + more.units.value_or(1);
        if (to.work && more.work)
            to.work = *to.work + *more.work / minutesPerHour;
    }

    struct KnownResource
    {
        QString name;
        bool isMaterial = false;
        bool hasOwnTime = false;
    };

    File &m_file;
    FindingList &m_findings;
    Calendars m_calendars;
    const WorkingTime m_time;
    staged::Calendar m_stagedCalendar;
    const worktime::WorkCalendar m_calendar;
    const Moments m_moments;
    const WorkMinutes m_minutes;
    WorkTerms m_terms;
    std::vector<int> m_rows;       // places of the tasks in the file, by their places in the plan
    std::vector<bool> m_isSummary; // by places in the plan
    std::vector<bool> m_hasOtherWorkers;
    QHash<qint64, int> m_placeOfUid;
    QSet<qint64> m_externals; // UIDs
    QHash<qint64, KnownResource> m_resources;
    int m_levelShift = 0;
    int m_repeatedLinks = 0;
    std::optional<double> m_leafCost;
    std::optional<double> m_assignedCost;
    PlanOfFile m_result;
};
}

PlanOfFile toPlan(File &file, FindingList &findings)
{
    return PlanReader(file, findings).read();
}
}
