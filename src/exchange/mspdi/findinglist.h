#pragma once
#include <QString>
#include <QStringList>
#include <array>

class Findings;

// What a project XML file says and a plan here cannot, or the other way round: one line for each kind, with
// how often it is there and the first places.
namespace mspdi {

enum class Kind {
    // ---- Reading ------------------------------------------------------------------------------------------
    RepeatedList,
    SpoiltValue,
    PercentOutside,
    RepeatedUid,
    UnknownCalendar,
    OtherHours,
    OverMidnight,
    WorkWeeks,
    CutRecurrence,
    SpoiltException,
    ManyExceptions,
    FromFinish,
    NoDates,
    FinishFirst,
    OutsideHours,
    DayOff,
    OtherCalendar,
    OtherLevel,
    Elapsed,
    Interrupted,
    LongMilestone,
    Manual,
    Inactive,
    Recurring,
    Subproject,
    ConstraintKept,
    Deadline,
    LagKept,
    OtherLink,
    AcrossLink,
    LostLink,
    RepeatedLink,
    Baselines,
    SummaryDates,
    SummaryPercent,
    CostResource,
    RenamedResource,
    YearRate,
    MoreRates,
    Availability,
    OnSummary,
    LostAssignment,
    JoinedAssignment,
    Spread,
    // ---- Writing ------------------------------------------------------------------------------------------
    UnitWritten,
    FurtherHyperlinks,
    RowHeights,
    PriorityClamped,
    PercentRounded,
    NameChanged,
    IdChanged,
    NoMoments,
    WholeHours,
    LostParent,
    kinds
};

class FindingList
{
public:
    // The place is a task, a link or the like, as a user finds it.
    void add(Kind kind, const QString &place = QString());
    void add(Kind kind, int count);
    int count(Kind kind) const { return m_entries[std::size_t(kind)].count; }
    // The places of the first few are kept; others need not be made.
    bool wantsPlace(Kind kind) const { return m_entries[std::size_t(kind)].places.size() < shownPlaces; }
    // Hands them on in the order of the kinds.
    void tell(Findings &findings) const;

private:
    static constexpr int shownPlaces = 3;
    struct Entry
    {
        int count = 0;
        QStringList places;
    };
    std::array<Entry, std::size_t(Kind::kinds)> m_entries;
};
}
