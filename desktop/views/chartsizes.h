#pragma once
#include "table/customtable.h"
#include <QtGlobal>

// Sizes of what the chart shows, in pixels.
namespace chartsizes {

constexpr int headHeight = int(CustomTable::headHeight);
constexpr double barHeight = 15;
constexpr double handleSize = 8;
constexpr qint64 secsOfDay = 86400;
}
