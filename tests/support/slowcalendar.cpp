#include "support/slowcalendar.h"
#include <QDateTime>
#include <climits>
#include <cmath>

namespace {

const QDate epoch(1970, 1, 1);
const QDate firstDate(1969, 12, 30);
const QDate lastDate(2106, 2, 10);

// A millionth of a second stands against binary noise below a whole number.
constexpr double noise = 1e-6;

int wholeMinutes(double hours)
{
    return int(std::floor(hours * 60 + 0.5 + noise));
}

quint32 clamped(qint64 secs)
{
    return quint32(std::max<qint64>(0, std::min<qint64>(secs, 4294967295LL)));
}

// Seconds of the wall clock brought into one date.
SlowCalendar::Point inDate(QDate date, qint64 secs)
{
    while (secs < 0) {
        date = date.addDays(-1);
        secs += 86400;
    }
    while (secs >= 86400) {
        date = date.addDays(1);
        secs -= 86400;
    }
    return {date, secs};
}

qint64 asIfUtc(SlowCalendar::Point point)
{
    return epoch.daysTo(point.date) * 86400 + point.secs;
}

QDate dateOfFinish(SlowCalendar::Point stored)
{
    return stored.secs == 0 ? stored.date.addDays(-1) : stored.date;
}

// A point that stays, or leaves the time range, gives back its own moment.
quint32 kept(quint32 secs, SlowCalendar::Point point)
{
    const qint64 moved = SlowCalendar::moment(point);
    return point == SlowCalendar::wall(secs) || moved < 0 || moved > 4294967295LL ? secs : quint32(moved);
}

qint64 elapsed(SlowCalendar::Point from, SlowCalendar::Point to)
{
    return from.date.daysTo(to.date) * 86400 + to.secs - from.secs;
}

}

SlowCalendar::SlowCalendar(const worktime::Source &source)
    : m_hours(intervals(source.hours))
    , m_oldVersion(source.oldVersion)
{
    std::copy(source.workingDays, source.workingDays + 7, m_workingDays);
    for (int place = 0; place < source.exceptions.size(); ++place) {
        const CalendarRecord &c = *source.exceptions[place];
        m_exceptions.push_back({c.startDate, c.finishDate, c.isException, c.isWork, intervals(c.dayTimes)});
    }
    if (!m_hours.empty()) {
        const int minutes = m_hours.back().finishSecs / 60;
        startHour = std::min(24, m_hours.front().startSecs / 3600);
        finishHour = std::min(24, minutes / 60 + (minutes % 60 ? 1 : 0));
        finishHour = std::max(startHour, finishHour);
    }
    for (const Interval &interval : m_hours)
        hoursPerDay += std::max(0, interval.finishSecs / 3600 - interval.startSecs / 3600);
}

std::vector<SlowCalendar::Interval> SlowCalendar::intervals(const QList<KWDayTime *> &hours)
{
    std::vector<Interval> list;
    for (const KWDayTime *interval : hours)
        list.push_back({int(interval->start), int(interval->finish)});
    return list;
}

SlowCalendar::Point SlowCalendar::wall(qint64 secs)
{
    const QDateTime shown = QDateTime::fromSecsSinceEpoch(secs);
    // The first moment of a date is its midnight, also where the zone skips 00:00.
    if (shown.date().startOfDay() == shown)
        return {shown.date(), 0};
    return {shown.date(), shown.time().msecsSinceStartOfDay() / 1000};
}

qint64 SlowCalendar::moment(Point wall)
{
    const qint64 local = asIfUtc(wall);
    const auto offset = [](qint64 secs) {
        const QDateTime shown = QDateTime::fromSecsSinceEpoch(secs);
        return asIfUtc({shown.date(), shown.time().msecsSinceStartOfDay() / 1000}) - secs;
    };
    const qint64 first = local - offset(local - 86400);
    if (first + offset(first) == local)
        return first;
    const qint64 second = local - offset(local + 86400);
    return second + offset(second) == local ? second : first;
}

bool SlowCalendar::hasWorkday() const
{
    return std::count(m_workingDays, m_workingDays + 7, true) > 0;
}

bool SlowCalendar::isWorkday(QDate date) const
{
    for (const Exception &exception : m_exceptions)
        if (exception.isException && exception.covers(date))
            return exception.isWork;
    return m_workingDays[date.dayOfWeek() - 1];
}

bool SlowCalendar::isWorkTime(QDate date, int hour) const
{
    for (const Exception &exception : m_exceptions) {
        if (!exception.isException || !exception.covers(date))
            continue;
        for (const Interval &interval : exception.hours)
            if (interval.startSecs / 3600 <= hour && interval.finishSecs / 3600 > hour)
                return true;
    }
    if (m_hours.size() < 2)
        return startHour <= hour && hour <= finishHour;
    for (size_t i = 0; i + 1 < m_hours.size(); ++i)
        if (m_hours[i].finishSecs / 3600 <= hour && m_hours[i + 1].startSecs / 3600 > hour)
            return false;
    return true;
}

const std::vector<SlowCalendar::Interval> &SlowCalendar::breakSource(QDate date) const
{
    for (const Exception &exception : m_exceptions)
        if (exception.covers(date))
            return exception.hours.size() >= 2 ? exception.hours : m_hours;
    return m_hours;
}

int SlowCalendar::dayTimeOff(QDate date) const
{
    const std::vector<Interval> &hours = breakSource(date);
    int sum = 0;
    for (size_t i = 0; i + 1 < hours.size(); ++i)
        sum += std::max(0, hours[i + 1].startSecs / 3600 - hours[i].finishSecs / 3600);
    return sum;
}

double SlowCalendar::breakHours(QDate date, double fromSecs, double toSecs) const
{
    const auto within = [this](double secs) {
        return std::max(startHour * 3600.0, std::min(secs, finishHour * 3600.0));
    };
    const double from = within(fromSecs);
    const double to = within(toSecs);
    const std::vector<Interval> &hours = breakSource(date);
    double secs = 0;
    for (size_t i = 0; i + 1 < hours.size(); ++i) {
        const double begin = hours[i].finishSecs / 3600 * 3600;
        const double end = hours[i + 1].startSecs / 3600 * 3600;
        secs += std::max(0.0, std::min(end, to) - std::max(begin, from));
    }
    return secs / 3600;
}

int SlowCalendar::daysOff(QDate first, QDate last) const
{
    int off = 0;
    if (hasWorkday())
        for (QDate date = first; date <= last; date = date.addDays(1))
            off += isWorkday(date) ? 0 : 1;
    return off;
}

SlowCalendar::Point SlowCalendar::toHour(Point stored) const
{
    const double fraction = stored.secs / 86400.0;
    const qint64 shown =
        qint64(std::floor(startHour * 3600 + (finishHour - startHour) * 3600 * fraction + noise));
    const qint64 second = shown % 60;
    return {stored.date, shown - second + (second >= (m_oldVersion ? 40 : 30) ? 60 : 0)};
}

SlowCalendar::Point SlowCalendar::toDay(Point shown) const
{
    if (startHour == finishHour)
        return inDate(shown.date, shown.secs);
    if (finishHour == 24 && shown.secs == 86400)
        return {shown.date.addDays(1), 0};
    const Point point = inDate(shown.date, shown.secs);
    const double from = startHour * 3600;
    const double to = finishHour == 24 ? 86399 : finishHour * 3600;
    if (point.secs < from && !m_oldVersion)
        return point;
    const double fraction = (point.secs - from) / (to - from);
    const qint64 stored = qint64(std::floor(double(asIfUtc({point.date, 0})) + fraction * 86400.0 + noise));
    return inDate(point.date, stored - asIfUtc({point.date, 0}));
}

double SlowCalendar::workHours(Point a, Point b) const
{
    const auto hours = [](qint64 secs) { return double(secs) / 3600; };
    double sum = 0;
    if (a.date == b.date) {
        sum = hours(b.secs - a.secs) - breakHours(a.date, a.secs, b.secs);
    } else if (a.date < b.date) {
        const qint64 first = std::clamp<qint64>(a.secs, startHour * 3600, finishHour * 3600);
        const qint64 last = std::clamp<qint64>(b.secs, startHour * 3600, finishHour * 3600);
        sum = finishHour - hours(first) - breakHours(a.date, a.secs, 86400);
        sum += hours(last) - startHour - breakHours(b.date, 0, b.secs);
        sum += double(a.date.daysTo(b.date) - 1) * hoursPerDay;
    }
    return std::max(0.0, sum - daysOff(a.date, dateOfFinish(toDay(b))) * hoursPerDay);
}

double SlowCalendar::totalWorkDays(quint32 start, quint32 finish, unsigned int unit) const
{
    const Point from = wall(start);
    const Point to = wall(finish);
    const Point a = toHour(from);
    Point b = toHour(to);
    const int off = daysOff(from.date, dateOfFinish(to));
    if (m_oldVersion) {
        if (unit < 5)
            return std::max(0.0, elapsed(from, to) / 86400.0 - off);
        const qint64 band = a.date.daysTo(b.date) * spanSecs() + b.secs - a.secs;
        return spanSecs() == 0 ? 0 : std::max(0.0, double(band) / double(spanSecs()) - off);
    }
    if (hoursPerDay == 0)
        return 0;
    const Point before = inDate(b.date, b.secs - 1);
    if (!isWorkTime(before.date, int(before.secs / 3600)))
        b.secs -= b.secs % 3600;
    double hours = 0;
    if (a.date == b.date) {
        hours = double(b.secs - a.secs) / 3600 - breakHours(a.date, a.secs, b.secs);
    } else {
        hours = finishHour - double(a.secs) / 3600 - breakHours(a.date, a.secs, 86400);
        hours += double(b.secs) / 3600 - startHour - breakHours(b.date, 0, b.secs);
        hours += double(a.date.daysTo(b.date) - 1) * hoursPerDay;
    }
    return std::max(0.0, hours / hoursPerDay - off);
}

double SlowCalendar::stretchDayOff(quint32 start, quint32 finish) const
{
    double days = 0;
    if (start > finish || !hasWorkday())
        return days;
    const Point from = wall(start);
    const Point to = wall(finish);
    for (QDate date = from.date; date <= to.date; date = date.addDays(1)) {
        if (isWorkday(date))
            continue;
        const qint64 begin = date == from.date ? from.secs : 0;
        const qint64 end = date == to.date ? to.secs : 86400;
        days += double(end - begin) / 86400;
    }
    return days;
}

quint32 SlowCalendar::durationSecs(quint32 start, quint32 finish, unsigned int unit) const
{
    if (start >= finish)
        return 0;
    const qint64 all = elapsed(wall(start), wall(finish));
    if (!hasWorkday() || unit < 3 || unit > 6)
        return clamped(all);
    if (m_oldVersion && unit < 5)
        return clamped(qint64(double(all) - stretchDayOff(start, finish) * 86400 + noise));
    const double days = totalWorkDays(start, finish, unit);
    if (unit < 5)
        return clamped(qint64(days * 86400 + noise));
    return clamped(
        qint64(std::floor((m_oldVersion ? finishHour - startHour : hoursPerDay) * days * 3600 + 0.5)));
}

bool SlowCalendar::inRange(QDate date) const
{
    return date >= firstDate && date <= lastDate;
}

// Date by date until the point stands on a working date; itself when there is none.
SlowCalendar::Point SlowCalendar::pushed(Point point, bool finish, int step) const
{
    Point moved = point;
    while (!isWorkday(finish ? dateOfFinish(moved) : moved.date)) {
        moved.date = moved.date.addDays(step);
        if (!inRange(moved.date))
            return point;
    }
    return moved;
}

SlowCalendar::Point SlowCalendar::startForward(Point stored, bool hourClock) const
{
    if (!hasWorkday())
        return stored;
    stored = pushed(stored, false, 1);
    if (!hourClock)
        return stored;
    Point point = toHour(stored);
    Point at = inDate(point.date, point.secs);
    for (int hours = 0; hours < 48; ++hours) {
        if (isWorkTime(at.date, int(at.secs / 3600)))
            return toDay(hours == 0 ? point : at);
        at = inDate(at.date, (at.secs / 3600 + 1) * 3600);
    }
    return toDay(point);
}

SlowCalendar::Point SlowCalendar::startBack(Point stored, bool hourClock) const
{
    if (!hasWorkday())
        return stored;
    stored = pushed(stored, false, -1);
    if (!hourClock)
        return stored;
    const Point point = toHour(stored);
    Point at = inDate(point.date, point.secs);
    for (int hours = 0; hours < 48; ++hours) {
        if (isWorkTime(at.date, int(at.secs / 3600)))
            return toDay(hours == 0 ? point : at);
        at = inDate(at.date, at.secs - 3600);
    }
    return toDay(point);
}

SlowCalendar::Point SlowCalendar::finishForward(Point stored, bool hourClock) const
{
    if (!hasWorkday())
        return stored;
    stored = pushed(stored, true, 1);
    if (!hourClock)
        return stored;
    Point point = toHour(stored);
    while (point.secs > startHour * 3600 && !isWorkTime(point.date, int((point.secs - 1) / 3600))) {
        point.secs += 3600;
        if (point.secs > 86400)
            return stored;
    }
    return toDay(point);
}

SlowCalendar::Point SlowCalendar::finishBack(Point stored, bool hourClock) const
{
    if (!hasWorkday())
        return stored;
    stored = pushed(stored, true, -1);
    if (!hourClock)
        return stored;
    Point point = toHour(stored);
    while (point.secs > startHour * 3600 && !isWorkTime(point.date, int((point.secs - 1) / 3600)))
        point.secs -= point.secs % 3600 ? point.secs % 3600 : 3600;
    // Rounded down to the beginning of a date, it belongs to the date before.
    return startHour == finishHour ? toDay(point) : pushed(toDay(point), true, -1);
}

quint32 SlowCalendar::startForward(quint32 secs, bool hourClock) const
{
    return kept(secs, startForward(wall(secs), hourClock));
}

quint32 SlowCalendar::startBack(quint32 secs, bool hourClock) const
{
    return kept(secs, startBack(wall(secs), hourClock));
}

quint32 SlowCalendar::finishForward(quint32 secs, bool hourClock) const
{
    return kept(secs, finishForward(wall(secs), hourClock));
}

quint32 SlowCalendar::finishBack(quint32 secs, bool hourClock) const
{
    return kept(secs, finishBack(wall(secs), hourClock));
}

// ---- The walk ---------------------------------------------------------------------------------------------

int SlowCalendar::weekLength() const
{
    const int days = int(std::count(m_workingDays, m_workingDays + 7, true));
    return days > 0 ? days : 7;
}

bool SlowCalendar::counts(QDate date) const
{
    return !hasWorkday() || isWorkday(date);
}

QDate SlowCalendar::nextCounting(QDate date, int step) const
{
    do
        date = date.addDays(step);
    while (!counts(date));
    return date;
}

qint64 SlowCalendar::workDone(QDate date, qint64 offset) const
{
    const qint64 from = startHour * 3600;
    return offset - std::llround(breakHours(date, double(from), double(from + offset)) * 3600);
}

SlowCalendar::Point SlowCalendar::moveFinish(Point point, int days, qint64 secs) const
{
    QDate date = point.date;
    qint64 work = 0;
    if (counts(date)) {
        work = workDone(date, point.secs - startHour * 3600);
    } else {
        date = nextCounting(date, -1);
        work = workDone(date, spanSecs());
    }
    for (; days != 0; days += days > 0 ? -1 : 1)
        date = nextCounting(date, days > 0 ? 1 : -1);
    work += secs;
    while (work < 0) {
        date = nextCounting(date, -1);
        work += workDone(date, spanSecs());
    }
    while (work > workDone(date, spanSecs())) {
        work -= workDone(date, spanSecs());
        date = nextCounting(date, 1);
    }
    qint64 offset = 0; // the earliest with that work
    while (workDone(date, offset) < work)
        offset += 60;
    return {date, startHour * 3600 + offset};
}

SlowCalendar::Point SlowCalendar::moveStart(Point point, int days, qint64 secs) const
{
    QDate date = point.date;
    qint64 work = workDone(date, point.secs - startHour * 3600) + secs;
    for (; days != 0; days += days > 0 ? -1 : 1)
        date = nextCounting(date, days > 0 ? 1 : -1);
    while (work < 0) {
        date = nextCounting(date, -1);
        work += workDone(date, spanSecs());
    }
    while (work >= workDone(date, spanSecs())) {
        work -= workDone(date, spanSecs());
        date = nextCounting(date, 1);
    }
    qint64 offset = spanSecs(); // the latest with that work
    while (workDone(date, offset) > work)
        offset -= 60;
    return asStart({date, startHour * 3600 + offset});
}

// Out of a break to its end, from a day's end to the next working day.
SlowCalendar::Point SlowCalendar::asStart(Point point) const
{
    const qint64 to = finishHour * 3600;
    while (point.secs < to) {
        const qint64 minute = startHour * 3600;
        if (workDone(point.date, point.secs + 60 - minute) > workDone(point.date, point.secs - minute))
            return point;
        point.secs += 60;
    }
    return {nextCounting(point.date, 1), startHour * 3600};
}

SlowCalendar::Point SlowCalendar::forward(Point start, Point coarse, double target) const
{
    const Point a = toHour(startForward(start, false));
    const qint64 dayEnd = finishHour * 3600;
    // A day's end is stored as the next date's beginning.
    const auto stored = [&](Point b) {
        return workHours(a, b.secs == dayEnd ? Point{b.date.addDays(1), startHour * 3600} : b);
    };
    Point b = toHour(finishForward(coarse, false));
    for (int i = 0; i < 100; ++i) {
        const double missing = target - stored(b);
        if (std::abs(missing) < 59 / 3600.0)
            return finishBack(toDay(b), true);
        const int minutes = wholeMinutes(missing);
        b = moveFinish(b, minutes / (hoursPerDay * 60), minutes % (hoursPerDay * 60) * 60);
    }
    // Every minute until the target is long past; the later one of equals, but before a break.
    int least = INT_MAX;
    for (QDate date = a.date; stored({date, startHour * 3600}) < target + 24; date = nextCounting(date, 1)) {
        for (qint64 secs = date == a.date ? a.secs : startHour * 3600; secs <= dayEnd; secs += 60) {
            const int minutes = wholeMinutes(target);
            int missing = std::abs(minutes - wholeMinutes(workHours(a, {date, secs})));
            if (secs == dayEnd)
                missing = std::min(missing, std::abs(minutes - wholeMinutes(stored({date, secs}))));
            const bool inBreak = missing == 0 && date == b.date && secs < dayEnd;
            if (missing < least || (missing == least && !inBreak)) {
                b = {date, secs};
                least = missing;
            }
        }
    }
    return finishBack(toDay(b), true);
}

SlowCalendar::Point SlowCalendar::backward(Point finish, Point coarse, double target) const
{
    const Point a = toHour(finishBack(finish, false));
    Point b = asStart(toHour(startBack(coarse, false)));
    for (int i = 0; i < 100; ++i) {
        const double missing = target - workHours(b, a);
        if (std::abs(missing) < 59 / 3600.0)
            return startBack(toDay(b), true);
        const int minutes = wholeMinutes(missing);
        b = moveStart(b, -minutes / (hoursPerDay * 60), -minutes % (hoursPerDay * 60) * 60);
    }
    // Every minute at which work begins; the earlier one of equals.
    int least = INT_MAX;
    const qint64 dayEnd = finishHour * 3600;
    QDate date = counts(a.date) ? a.date : nextCounting(a.date, -1);
    for (; workHours({date, dayEnd}, a) < target + 24; date = nextCounting(date, -1)) {
        for (qint64 secs = date == a.date ? a.secs : dayEnd - 60; secs >= startHour * 3600; secs -= 60) {
            if (!(asStart({date, secs}) == Point{date, secs}))
                continue;
            const int minutes = wholeMinutes(target);
            int missing = std::abs(minutes - wholeMinutes(workHours({date, secs}, a)));
            if (secs == startHour * 3600) {
                const double before = workHours({nextCounting(date, -1), dayEnd}, a);
                missing = std::min(missing, std::abs(minutes - wholeMinutes(before)));
            }
            if (missing <= least) {
                b = {date, secs};
                least = missing;
            }
        }
    }
    return startBack(toDay(b), true);
}

SlowCalendar::Point SlowCalendar::oldVersionWalk(Point start, Point coarse, bool isForward) const
{
    Point point = coarse;
    for (int known = 0;;) {
        const int off =
            isForward ? daysOff(start.date, dateOfFinish(point)) : daysOff(point.date, dateOfFinish(start));
        if (off == known)
            return point;
        point.date = point.date.addDays(isForward ? off - known : known - off);
        known = off;
    }
}

quint32 SlowCalendar::walk(quint32 start, double value, unsigned int unit) const
{
    if (value == 0 || unit > 6)
        return start;
    const Point from = wall(start);
    const int span = finishHour - startHour;
    const int perDay = m_oldVersion ? span : hoursPerDay;
    const int unitsPerHour = unit == 6 ? 60 : 1;
    double days = 0;
    double fraction = 0;
    if (unit < 3) {
        days = std::trunc((unit == 0 ? 365 : unit == 1 ? 90 : 30) * value + (value > 0 ? 1e-6 : -1e-6));
    } else if (unit < 5) {
        fraction = std::modf(unit == 3 ? weekLength() * value : value, &days);
    } else {
        if (perDay == 0)
            return start;
        const qint64 whole = qint64(value);
        days = double(whole / (perDay * unitsPerHour));
        fraction =
            (double(whole % (perDay * unitsPerHour)) + (value - double(whole))) / (span * unitsPerHour);
    }
    const Point coarse =
        inDate(from.date.addDays(int(days)), from.secs + qint64(std::floor(fraction * 86400 + 0.5)));
    if (unit < 3)
        return clamped(moment(coarse));
    const bool isForward = value > 0;
    if (m_oldVersion)
        return clamped(moment(oldVersionWalk(from, coarse, isForward)));
    if (hoursPerDay == 0)
        return clamped(moment(isForward ? finishForward(coarse, false) : startBack(coarse, false)));
    const double hours = unit == 3   ? weekLength() * value * hoursPerDay
                         : unit == 4 ? value * hoursPerDay
                         : unit == 5 ? value
                                     : value / 60;
    const Point point = isForward ? forward(from, coarse, hours) : backward(from, coarse, -hours);
    const quint32 found = point == from ? start : clamped(moment(point));
    return isForward ? std::max(found, start) : found;
}
