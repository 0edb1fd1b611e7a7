#pragma once
#include "model/kwdocument.h"
#include <string>

// The small plan that stands in a document before a file is read into it, and that the saving commands write.
namespace smallplan {

inline constexpr const char *oldName = "The old plan";
inline constexpr const char *newName = "The new plan";

// The column titles that the corpus uses, for the whole process.
void fillTitles();
// Appends three tasks 1, 2, 3 with their row heights.
void fill(KWDocument &document, const char *name);
// What saving would give; the same text for the same content.
std::string textOf(const KWDocument &document);
}
