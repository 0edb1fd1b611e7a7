#pragma once
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include <random>

// Documents and tasks with anything in every stored field: texts with characters that XML must escape or
// cannot carry, numbers that are not finite, links to nowhere.
namespace randomdocument {

void fill(KWTaskInfo &task, std::mt19937 &random);
// The titles of the columns are those of RowColumnData::s_columnNames.
void fill(KWDocument &document, std::mt19937 &random);
}
