#pragma once
#include "model/kwdocument.h"
#include <string>

// What must hold of a plan after every edit, read plainly: a line for each fault, empty when there is none.
//
// The outline and its two ways of naming things; no violated link, own or of a summary above; every summary
// as its leaves have it, in dates, percent, work, cost, names and baseline; every leaf's money as its
// assignments have it; late dates and the critical path by walking every way through the links; tasks without
// dates apart.
namespace plainplan {

std::string faults(KWDocument &document);
}
