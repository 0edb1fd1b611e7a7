#pragma once
#include "model/kwdocument.h"
#include <string>

// What must hold after every edit of a sound document: unique IDs; parents and children that know each other,
// no rings; levels one below the parent's; hidden tasks below the collapsed summary that hides them; bold
// summaries; links known on both sides, none between a summary and what is below it; summary dates that span
// the children; one row height for each task. A line for each fault; empty when there is none.
//
// Children of a removed summary move up while what is below them keeps its level, so a document edited in
// that way is checked without its levels. A task added at the end leaves the dates of its summary alone.
std::string outlineFaults(const KWDocument &document, bool withLevels, bool withDates = true);
