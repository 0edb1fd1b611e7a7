#pragma once
#include "plan.h"
#include "style.h"
#include <QByteArray>

// How far a plan is from its baseline.
namespace baseline {

// Working minutes and money that a task is later and dearer than its baseline.
struct Variance
{
    qint64 startMinutes;
    qint64 finishMinutes;
    double cost;
};

bool has(const KWTaskInfo &task);
Variance varianceOf(const Plan &plan, const KWTaskInfo &task);
// "+1.5d", "0"
QString daysText(const Plan &plan, qint64 minutes);
QString moneyText(double amount);

QString text(const Plan &plan, const Style &style);
QByteArray json(const Plan &plan);
}
