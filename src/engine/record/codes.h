#pragma once
#include <QtGlobal>

// Names for the codes that tasks, assignments, columns and the chart's scale are kept in. The fields stay
// plain numbers: a file may hold others, and every rule says what it makes of them.

// Units of lengths, of work, of slack, and of the two lines of the chart's head.
namespace duration {

enum Unit : unsigned int { Year = 0, Quarter, Month, Week, Day, Hour, Minute };
constexpr unsigned int unitCount = 7;
// The line above in the chart's head has one of the units up to this.
constexpr unsigned int smallestMajorUnit = Week;
// A milestone finishes a second after its start: a finish of the same moment would be none.
constexpr quint32 milestoneSecs = 1;
}

// Assignments and entries of the resource sheet.
namespace resourcetypes {

enum Type : qint32 { Work = 0, Material }; // whatever is not Work counts like a material

constexpr bool isWork(qint32 type)
{
    return type == Work;
}
}

namespace cost {

// Rates are money for so much work.
enum RateUnit : qint32 { PerMinute = 0, PerHour, PerDay, PerWeek, PerMonth };
constexpr int rateUnitCount = 5;
}

// Columns of the task table, by the key of their title in RowColumnData::s_columnNames.
namespace columntypes {

enum Type : int {
    Id = 0,
    Name,
    Start,
    Finish,
    Duration,
    Percent,
    Priority,
    ResourceNames,
    Hyperlinks,
    Cost,
    RemainingCost,
    Work,
    EarlyStart,
    EarlyFinish,
    LateStart,
    LateFinish,
    StartSlack,
    FinishSlack,
    Critical,
    Notes,
    BaselineStart,
    BaselineFinish,
    BaselineCost,
    Level,
    Predecessors
};
constexpr int count = 25;
}
