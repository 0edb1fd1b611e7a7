#include "edits/planzone.h"
#include "engine/time/zonefit.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include <QDateTime>
#include <QSet>
#include <QTimeZone>

namespace planzone {

namespace {

// Where most plans are made, so that the first name of many that are alike is one that people know.
constexpr const char *wellKnown[] = {
    "UTC",
    "Europe/Berlin",
    "Europe/Paris",
    "Europe/London",
    "Europe/Madrid",
    "Europe/Rome",
    "Europe/Warsaw",
    "Europe/Athens",
    "Europe/Helsinki",
    "Europe/Istanbul",
    "Europe/Moscow",
    "America/New_York",
    "America/Chicago",
    "America/Denver",
    "America/Los_Angeles",
    "America/Toronto",
    "America/Mexico_City",
    "America/Bogota",
    "America/Sao_Paulo",
    "America/Argentina/Buenos_Aires",
    "Africa/Lagos",
    "Africa/Cairo",
    "Africa/Johannesburg",
    "Africa/Nairobi",
    "Asia/Shanghai",
    "Asia/Tokyo",
    "Asia/Seoul",
    "Asia/Singapore",
    "Asia/Hong_Kong",
    "Asia/Kolkata",
    "Asia/Dubai",
    "Asia/Karachi",
    "Asia/Bangkok",
    "Asia/Jakarta",
    "Australia/Sydney",
    "Pacific/Auckland",
};

zonefit::Zone zoneOf(const QTimeZone &zone)
{
    return {zone.id(), [zone](quint32 secs) {
                return zone.offsetFromUtc(QDateTime::fromSecsSinceEpoch(secs, Qt::UTC));
            }};
}

// Other names of zones that stand in the list already would only make it longer.
bool isPlaceName(const QByteArray &zone)
{
    for (const char *group : {"Africa/", "America/", "Antarctica/", "Asia/", "Atlantic/", "Australia/",
                              "Europe/", "Indian/", "Pacific/"}) {
        if (zone.startsWith(group))
            return true;
    }
    return false;
}

std::vector<zonefit::Zone> candidates()
{
    std::vector<zonefit::Zone> zones;
    QSet<QByteArray> taken;
    const auto add = [&](const QByteArray &name) {
        const QTimeZone zone(name);
        if (zone.isValid() && !taken.contains(name)) {
            taken.insert(name);
            zones.push_back(zoneOf(zone));
        }
    };
    for (const char *name : wellKnown)
        add(name);
    for (const QByteArray &name : QTimeZone::availableTimeZoneIds()) {
        if (isPlaceName(name))
            add(name);
    }
    return zones;
}

zonefit::Moments momentsOf(const KWDocument &document)
{
    zonefit::Moments moments;
    std::vector<zonefit::Moments::Bar> bars;
    for (const KWTaskInfo *task : document.taskList()) {
        if (!task->isParent() && !task->Milestone && task->Start != 0 && task->Start < task->Finish)
            bars.push_back({task->Start, task->Finish, task->DurationSecs, task->DurationUnits});
    }
    moments.bars = zonefit::Moments::sample(bars);
    constexpr int mostMidnights = 100;
    for (const quint32 secs : document.storedMidnights().mid(0, mostMidnights)) {
        if (secs != 0)
            moments.midnights.push_back(secs);
    }
    return moments;
}
}

QList<QByteArray> better(const KWDocument &document)
{
    const zonefit::Moments moments = momentsOf(document);
    const worktime::WorkCalendar &calendar = document.workCalendar();
    if (!moments.areEnough() || !calendar.hasWorkday())
        return {};
    const LocalClock &clock = calendar.clock();
    const zonefit::Zone present{QByteArray(), [&clock](quint32 secs) {
                                    const LocalClock::Wall wall = clock.wall(secs);
                                    return int(qint64(wall.day) * LocalClock::secsPerDay + wall.secs -
                                               qint64(secs));
                                }};
    if (zonefit::share(moments, calendar, present) >= zonefit::surelyRight)
        return {};
    return zonefit::better(moments, calendar, present, candidates());
}
}
