#pragma once
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include <memory>
#include <random>
#include <string>

// Small projects thrown together by a seed, for comparisons with a slow and obvious reading of a rule.
namespace randomplan {

int between(std::mt19937 &random, int low, int high);

// Tasks with the IDs 1, 2, 3... in an outline of at most `levels` levels, on the default calendar with some
// days off; starts within two weeks, lengths of minutes to weeks, some milestones; rolled up, not linked.
std::unique_ptr<KWDocument> plan(std::mt19937 &random, int tasks, int levels);
// Every task on a line: "3: start finish duration".
std::string dates(const KWDocument &document);
// Links by fields alone, without any check.
void link(KWDocument &document, quint32 predecessor, quint32 successor);
}
