#pragma once
#include "exchange/mspdi/findinglist.h"
#include "exchange/mspdi/records.h"
#include "exchange/stagedplan.h"

// Makes a plan of the records of a project XML file.
namespace mspdi {

struct PlanOfFile
{
    staged::Plan plan;
    QString name; // of the project; empty when the file gives none
    // Money of the file in hundredths, where it says any.
    std::optional<double> cost;
    // For each task of the plan, what no rule of staged plans says.
    struct Kept
    {
        bool isMilestone = false;
        bool isInactive = false;
        Moment start; // as the file shows them; not set for those that it does not give
        Moment finish;
        std::optional<int> percent;
    };
    std::vector<Kept> kept;
};

PlanOfFile toPlan(File &file, FindingList &findings);
}
