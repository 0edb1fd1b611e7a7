#include "support/kwclock.h"

namespace {

QDateTime &fixedMoment()
{
    static QDateTime instance;
    return instance;
}
}

QDateTime KWClock::now()
{
    return fixedMoment().isValid() ? fixedMoment() : QDateTime::currentDateTime();
}

void KWClock::set(const QDateTime &moment)
{
    fixedMoment() = moment;
}
