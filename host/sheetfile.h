#pragma once
#include "csv.h"
#include "plan.h"

class Findings;

// The resource sheet and the assignments of a CSV plan, in files beside it.
//
//   resources     ID,Name,Type,MaxUnitsPercent,Rate,OvertimeRate,CostPerUse,Group,Email,Notes
//   assignments   TaskID,Resource,UnitsPercent,WorkHours,Cost
//
// Titles stand in any order; Name, and TaskID with Resource, must be there. Work and cost of an assignment
// follow from the task's length, its units and the rates; the columns are read to be compared.
namespace sheetfile {

// Adds what cannot be used to `findings`, with its row. False with a sentence in `error` when the table is no
// such file.
bool readResources(const csv::Table &table, Plan &plan, Findings &findings, QString &error);
bool readAssignments(const csv::Table &table, Plan &plan, Findings &findings, QString &error);
// Assigns what the plan's own column of resources names ("Ann[50%];Crane"): those of the sheet.
void assignFromColumn(Plan &plan, Findings &findings);

QByteArray resources(const Plan &plan);
QByteArray assignments(const Plan &plan);
// "Ann[50%];Crane", as a plan's column of resources says it; units of 100% are left out, and so are the names
// of a summary that come from the tasks below it.
QString columnText(const Plan &plan, const KWTaskInfo &task);
}
