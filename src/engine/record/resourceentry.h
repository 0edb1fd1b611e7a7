#pragma once
#include "engine/record/codes.h"
#include <QString>

// One entry of the resource sheet as the rules read it; ResourceInfo, which a sheet holds, is one.
struct ResourceEntry
{
    QString name;
    qint32 ID = 0;
    qint32 type = resourcetypes::Work;
    double unit = 1.0; // maximum units, 1.0 = 100 %
    double cost = 0;   // standard rate: money for a cost unit of work, or for one of a material
    qint32 costUnit = cost::PerHour;
    double overtimeCost = 0;
    qint32 overtimeUnit = cost::PerHour;
    double costPer = 0; // cost per use
    QString group;
    QString email;
    QString notes;

    // Rolled up from the assignments, not saved.
    double totalCost = 0;
    double totalWork = 0; // hours of a work resource, units of a material
    double actualCost = 0;
    double actualWork = 0;
    double unitsSum = 0; // units of work assignments; for a material, how many assignments there are
    quint32 workStart = 0;
    quint32 workFinish = 0;
};
