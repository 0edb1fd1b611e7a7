#include "shown.h"
#include "datetext.h"
#include "engine/record/outline.h"
#include "exchange/csvplan.h"

namespace shown {

Clock clockOf(const ShownDates::Moment &moment)
{
    return {LocalClock::dateOf(moment.day), moment.secs};
}

QString Clock::iso() const
{
    return csvplan::momentText({LocalClock::dayOf(date), secs, true});
}

QString Clock::text() const
{
    return datetext::dateText(date, datetext::TwoDigitDay | datetext::Year) + QLatin1Char(' ') +
           datetext::timeText(secs);
}

Clock startOf(const Plan &plan, quint32 secs)
{
    return clockOf(ShownDates::startOf(plan.document->workCalendar(), secs));
}

Clock finishOf(const Plan &plan, quint32 secs)
{
    return clockOf(ShownDates::finishOf(plan.document->workCalendar(), secs));
}

Clock endOf(const Plan &plan, quint32 secs)
{
    return clockOf(ShownDates::endOf(plan.document->workCalendar(), secs));
}

Times::Times(const Plan &plan)
    : m_dates(plan.document->workCalendar(), plan.document->outline().list, plan.document->outline().index,
              plan.imported.evenings)
{
}
}
