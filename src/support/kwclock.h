#pragma once
#include "kwgantt_export.h"
#include <QDateTime>

// The current moment, as a host or a test may set it.
class KWGANTT_EXPORT KWClock
{
public:
    static QDateTime now();
    static void set(const QDateTime &moment); // an invalid moment brings the real clock back
};
