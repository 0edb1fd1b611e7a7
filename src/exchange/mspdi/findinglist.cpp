#include "exchange/mspdi/findinglist.h"
#include "support/findings.h"
#include "support/said.h"

namespace mspdi {
namespace {

struct Text
{
    Kind kind;
    const char *what;
    const char *instead;
};
constexpr Text texts[] = {
    {Kind::RepeatedList, "a second list of the same kind", "left out"},
    {Kind::SpoiltValue, "a value that cannot be read", "taken as not given"},
    {Kind::PercentOutside, "a percentage outside 0 to 100", "taken as the nearest one"},
    {Kind::RepeatedUid, "a UID that is taken", "another ID; links and assignments mean the first one"},
    {Kind::UnknownCalendar, "the project's calendar is not in the file", "the usual working time instead"},
    {Kind::OtherHours, "a weekday has other hours", "all working days have the commonest ones"},
    {Kind::OverMidnight, "a shift runs over midnight", "its parts count on one day"},
    {Kind::WorkWeeks, "a work week that differs for a time", "left out"},
    {Kind::CutRecurrence, "a recurring exception has dates outside the plan", "only those inside are taken"},
    {Kind::SpoiltException, "an exception without sound dates", "left out"},
    {Kind::ManyExceptions, "too many exceptions", "left out"},
    {Kind::FromFinish, "the project is scheduled from its finish",
     "the dates are kept, and count from the start"},
    {Kind::NoDates, "no start or no finish", "set from the project's start and the length"},
    {Kind::FinishFirst, "the finish lies before the start", "the start and the length are taken"},
    {Kind::OutsideHours, "a date outside the working hours", "taken as their next border"},
    {Kind::DayOff, "starts or finishes on a day off", "the dates are kept"},
    {Kind::OtherCalendar, "a working time of its own", "left out; the dates are kept"},
    {Kind::OtherLevel, "the level is below 1", "all levels count from 1"},
    {Kind::Elapsed, "an elapsed duration", "the dates are kept"},
    {Kind::Interrupted, "the work is interrupted, or its length is not that of its dates",
     "one bar; the dates are kept"},
    {Kind::LongMilestone, "a milestone that lasts", "a task"},
    {Kind::Manual, "scheduled by hand", "an ordinary task with its dates"},
    {Kind::Inactive, "inactive", "struck through, without links"},
    {Kind::Recurring, "a recurring task", "an ordinary summary"},
    {Kind::Subproject, "the tasks of a subproject are in another file", "its row alone"},
    {Kind::ConstraintKept, "a constraint", "left out; the dates are kept"},
    {Kind::Deadline, "a deadline", "left out"},
    {Kind::LagKept, "a link with a lag", "a link without one; the dates are kept"},
    {Kind::OtherLink, "a link that is not plainly from finish to start", "left out; the dates are kept"},
    {Kind::AcrossLink, "a link with another file", "left out; the dates are kept"},
    {Kind::LostLink, "a predecessor that is not in the file", "left out"},
    {Kind::RepeatedLink, "a link that stands twice", "taken once"},
    {Kind::Baselines, "further baselines", "left out"},
    {Kind::SummaryDates, "a summary's dates are not those of its subtasks", "taken from the subtasks"},
    {Kind::SummaryPercent, "a summary's progress is not that of its subtasks", "taken from the subtasks"},
    {Kind::CostResource, "a cost resource", "a material"},
    {Kind::RenamedResource, "a resource's name is taken or empty", "named otherwise"},
    {Kind::YearRate, "a rate per year", "a twelfth of it per month"},
    {Kind::MoreRates, "further rates, or some that change with the date", "left out"},
    {Kind::Availability, "units that change with the date", "left out"},
    {Kind::OnSummary, "an assignment on a summary", "left out"},
    {Kind::LostAssignment, "an assignment of a task or a resource that is not in the file", "left out"},
    {Kind::JoinedAssignment, "a resource is assigned to a task more than once", "joined"},
    {Kind::Spread, "how work is spread over its task: day by day, by a contour, a delay or overtime",
     "left out; it is spread evenly"},
    {Kind::UnitWritten, "a length in calendar days (month, quarter, year)", "written as working days"},
    {Kind::FurtherHyperlinks, "more than one hyperlink", "the first one is written"},
    {Kind::RowHeights, "rows of another height", "not written"},
    {Kind::PriorityClamped, "a priority outside -500 to 500", "written as the nearest one"},
    {Kind::PercentRounded, "a percentage that is not whole", "rounded"},
    {Kind::NameChanged, "a name that the format cannot hold", "changed"},
    {Kind::IdChanged, "an ID above 2,097,150, or one that is there twice", "written with another UID"},
    {Kind::NoMoments, "no dates", "written at the project's start"},
    {Kind::WholeHours, "hours that the format cannot hold", "written as they are measured"},
    {Kind::LostParent, "belongs to no summary of the plan", "written at its level"},
};

constexpr bool standInOrder()
{
    std::size_t place = 0;
    for (const Text &text : texts) {
        if (std::size_t(text.kind) != place++)
            return false;
    }
    return place == std::size_t(Kind::kinds);
}
static_assert(standInOrder(), "one text for each kind, in their order");
}

void FindingList::add(Kind kind, const QString &place)
{
    Entry &entry = m_entries[std::size_t(kind)];
    ++entry.count;
    if (!place.isEmpty() && entry.places.size() < shownPlaces)
        entry.places.append(place);
}

void FindingList::add(Kind kind, int count)
{
    m_entries[std::size_t(kind)].count += count;
}

void FindingList::tell(Findings &findings) const
{
    for (const Text &text : texts) {
        const Entry &entry = m_entries[std::size_t(text.kind)];
        if (entry.count == 0)
            continue;
        // texts: "%1, %2"
        QString places = entry.places.join(QLatin1String(", "));
        if (!places.isEmpty() && entry.count > entry.places.size())
            places += QLatin1String(", ...");
        QString what = QString::fromLatin1(text.what);
        if (entry.count > 1)
            what = KW_TEXT("%1 (%2 times)").arg(what, QString::number(entry.count));
        findings.add(places, what, QString::fromLatin1(text.instead));
    }
}
}
