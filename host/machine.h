#pragma once
#include "plan.h"
#include <QByteArray>
#include <QStringList>
#include <functional>

class Findings;

// A plan for other programs.
namespace machine {

// A JSON string with its quotes.
QByteArray jsonText(const QString &text);

// One row or object a task. The first columns are a plan that this program reads again; the last ones are
// working minutes from the project's start, in which the end of one working day and the beginning of the next
// are one number. Both go out piece by piece, until `take` answers false.
bool writeCsv(const Plan &plan, const std::function<bool(const QByteArray &)> &take);
bool writeJson(const Plan &plan, const std::function<bool(const QByteArray &)> &take);
// The plan without its tasks, and what was found in it.
QByteArray summaryJson(const Plan &plan, const Findings &findings, int earlyTasks,
                       const QStringList &refusals = {});
}
