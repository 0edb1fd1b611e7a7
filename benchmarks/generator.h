#pragma once
#include <QtGlobal>
#include <memory>
#include <vector>

class KWDocument;

// Large projects made by rule: the same shape and seed give the same project.
namespace generator {

struct Shape
{
    int tasks = 1000;
    int childrenPerSummary = 20;
    double linksPerTask = 1.5;
    int linkReach = 200; // a predecessor is one of this many leaves before
    int holidaysPerYear = 12;
    int years = 12; // that have holidays, from the project's start
    quint32 seed = 1;
};

// Tasks in list order; parent and predecessors are positions.
struct Plan
{
    std::vector<int> parent;                    // -1 at the top level
    std::vector<int> durationDays;              // of leaves; 0 for a summary
    std::vector<std::vector<int>> predecessors; // leaves only, always earlier in the list
    int links = 0;
};

Plan plan(const Shape &shape);
// Monday to Friday, 08:00-12:00 and 13:00-17:00, holidays spread over the years; every leaf at the project's
// start.
std::unique_ptr<KWDocument> document(const Plan &plan, const Shape &shape);
// `width` tasks in each of `layers` layers, each linked to all of the layer before: width^layers paths.
Plan layered(int layers, int width);
// One task after the other.
Plan chain(int tasks);

constexpr int startDay = 19786;                // 2024-03-04, a Monday
std::vector<int> holidays(const Shape &shape); // days since 1970, sorted
}
