#pragma once
#include "plan.h"
#include "style.h"
#include <QByteArray>

// How far a plan is from its baseline.
namespace baseline {

QString text(const Plan &plan, const Style &style);
QByteArray json(const Plan &plan);
}
