#include "engine/time/zonefit.h"
#include "engine/time/duration.h"
#include <algorithm>
#include <cstdlib>
#include <map>

namespace zonefit {

namespace {

constexpr std::size_t mostBars = 150;
constexpr int probes = 24; // zones that agree at so many of the moments count as one

LocalClock::Wall wallOf(quint32 secs, int offset)
{
    const LocalClock::Wall wall = LocalClock::normalized(0, qint64(secs) + offset);
    return {std::clamp(wall.day, LocalClock::firstDay, LocalClock::lastDay), wall.secs};
}

// 1 where a working day begins or ends, a half where a break does, a fifth at another quarter of an hour of
// work.
double pointsOf(LocalClock::Wall stored, bool isFinish, const worktime::WorkCalendar &calendar)
{
    const int day = isFinish ? worktime::dayBefore(stored) : stored.day;
    constexpr double breakEnds = 0.5;
    constexpr double quarterOfHour = 0.2; // eight hours of the zone are three of the clock
    if (!calendar.isWorkday(day))
        return 0;
    if (stored.secs == 0)
        return 1;
    // What is stored is cut to whole seconds, which are up to so many of the clock that is shown.
    constexpr qint64 secsPerQuarter = 900;
    const qint64 shown = qint64(calendar.startHour()) * worktime::secsPerHour +
                         calendar.spanSecs() * stored.secs / LocalClock::secsPerDay;
    const qint64 past = (shown + 1) % secsPerQuarter;
    if (past > 1)
        return 0;
    const qint64 quarter = shown + 1 - past;
    const auto works = [&](qint64 secs) {
        return calendar.isWorkHour(day, int(std::clamp<qint64>(secs / worktime::secsPerHour, 0, 23)));
    };
    if (works(quarter - 1) != works(quarter))
        return breakEnds;
    return works(quarter) ? quarterOfHour : 0;
}
}

std::vector<Moments::Bar> Moments::sample(const std::vector<Bar> &bars)
{
    if (bars.size() <= mostBars)
        return bars;
    std::vector<Bar> some;
    some.reserve(mostBars);
    for (std::size_t i = 0; i < mostBars; ++i)
        some.push_back(bars[i * bars.size() / mostBars]);
    return some;
}

double share(const Moments &moments, const worktime::WorkCalendar &calendar, const Zone &zone)
{
    double points = 0;
    double all = double(moments.midnights.size());
    for (const Moments::Bar &bar : moments.bars) {
        const LocalClock::Wall start = wallOf(bar.start, zone.offset(bar.start));
        const LocalClock::Wall finish = wallOf(bar.finish, zone.offset(bar.finish));
        points += pointsOf(start, false, calendar) + pointsOf(finish, true, calendar);
        all += 2;
        if (bar.lengthSecs == 0 || bar.unit < duration::Week || bar.unit > duration::Minute)
            continue;
        const qint64 length = duration::secs(calendar, start, finish, bar.unit);
        points += std::abs(length - qint64(bar.lengthSecs)) < 60 ? 1 : 0;
        all += 1;
    }
    for (const quint32 secs : moments.midnights)
        points += wallOf(secs, zone.offset(secs)).secs == 0;
    return all > 0 ? points / all : 1;
}

QList<QByteArray> better(const Moments &moments, const worktime::WorkCalendar &calendar, const Zone &present,
                         const std::vector<Zone> &candidates)
{
    if (!moments.areEnough())
        return {};
    const double here = share(moments, calendar, present);
    if (here >= surelyRight)
        return {};

    std::vector<quint32> probed(moments.midnights);
    for (const Moments::Bar &bar : moments.bars)
        probed.push_back(bar.start);
    std::sort(probed.begin(), probed.end());
    for (std::size_t i = 0; i < probes && probed.size() > probes; ++i)
        probed[i] = probed[i * (probed.size() - 1) / (probes - 1)];
    probed.resize(std::min<std::size_t>(probed.size(), probes));

    std::map<std::vector<int>, double> shares; // by the offsets at the probed moments
    QList<QByteArray> best;
    double bestShare = here + clearlyBetter;
    for (const Zone &zone : candidates) {
        std::vector<int> offsets;
        offsets.reserve(probed.size());
        for (const quint32 secs : probed)
            offsets.push_back(zone.offset(secs));
        const auto [known, isNew] = shares.try_emplace(std::move(offsets), 0.0);
        if (isNew)
            known->second = share(moments, calendar, zone);
        if (known->second < bestShare)
            continue;
        if (known->second > bestShare)
            best.clear();
        bestShare = known->second;
        best.append(zone.name);
    }
    return best;
}
}
