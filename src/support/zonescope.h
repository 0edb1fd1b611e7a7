#pragma once
#include "kwgantt_export.h"
#include <QByteArray>
#include <QList>

// Working in a given time zone.
//
// A document holds moments, and their dates and hours are those of the process's zone: its TZ variable, or
// the machine's zone without one. As long as a ZoneScope lives, that zone is another one, for this library,
// for Qt and for the C library alike:
//
//     ZoneScope zone(document.TimeZone.toLatin1());
//     document.taskCollection()->pushAllSuccessors();
//
// The zone belongs to the whole process, so scopes are for its one thread, and end in the reverse order of
// their beginning. Documents of different zones may be open side by side, each worked on within its own
// scope.
class KWGANTT_EXPORT ZoneScope
{
public:
    // A name that is unknown here, or an empty one, changes nothing.
    explicit ZoneScope(const QByteArray &zone);
    ~ZoneScope();
    ZoneScope(const ZoneScope &) = delete;
    ZoneScope &operator=(const ZoneScope &) = delete;

    // Whether the zone is in force.
    bool isSet() const { return m_isSet; }

    // The same for the rest of the process; false when the name is unknown here.
    static bool set(const QByteArray &zone);
    // Whether it is the name of a zone of this machine, such as "Europe/Berlin".
    static bool isKnown(const QByteArray &zone);
    // Whether it could be the name of a zone: letters, digits and "/_+-", at most 64.
    static bool isName(const QByteArray &zone);
    // The zone in force.
    static QByteArray current();

private:
    QByteArray m_before; // TZ; null when it was not set
    bool m_isSet = false;
};
