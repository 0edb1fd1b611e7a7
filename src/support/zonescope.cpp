#include "support/zonescope.h"
#include <QTimeZone>
#include <algorithm>
#include <cstdlib>
#include <ctime>

namespace {

QByteArray variable()
{
    const char *const zone = std::getenv("TZ");
    return zone ? QByteArray(zone) : QByteArray();
}
}

ZoneScope::ZoneScope(const QByteArray &zone)
    : m_before(variable())
    , m_isSet(set(zone))
{
}

ZoneScope::~ZoneScope()
{
    if (!m_isSet)
        return;
    if (m_before.isNull())
        qunsetenv("TZ");
    else
        qputenv("TZ", m_before);
    tzset();
}

bool ZoneScope::set(const QByteArray &zone)
{
    if (!isKnown(zone))
        return false;
    qputenv("TZ", zone);
    tzset();
    return true;
}

bool ZoneScope::isKnown(const QByteArray &zone)
{
    // Lists of zones leave out names such as "Etc/UTC", so there is no looking into one.
    return isName(zone) && QTimeZone(zone).isValid();
}

bool ZoneScope::isName(const QByteArray &zone)
{
    constexpr int longest = 64;
    return !zone.isEmpty() && zone.size() <= longest &&
           std::all_of(zone.begin(), zone.end(), [](char letter) {
               return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
                      (letter >= '0' && letter <= '9') || QByteArray("/_+-").contains(letter);
           });
}

QByteArray ZoneScope::current()
{
    return QTimeZone::systemTimeZoneId();
}
