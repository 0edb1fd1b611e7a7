#pragma once
#include "plan.h"
#include "style.h"
#include <QByteArray>

class ResourceInfo;

// The resource sheet for people and for programs.
namespace sheetreport {

// A run of days on which a resource has more work than it can do.
struct Overload
{
    QDate from;
    QDate to;        // inclusive
    double peak = 0; // of the days: work as a fraction of a working day, 1.5 = 150 %
};

// Of a work resource, in the order of time.
std::vector<Overload> overloads(const Plan &plan, const ResourceInfo &entry,
                                const std::vector<std::pair<const KWTaskInfo *, double>> &assignments);

QString text(Plan &plan, const Style &style);
QByteArray json(Plan &plan);
}
