#pragma once
#include <functional>

class KWDocument;

// Reads a workbook into the small plan and says what became of it; each kind of workbook brings its own call.
int sayImport(const std::function<bool(KWDocument &)> &import);
// The titles alone, as how many there are on each sheet.
int sayTitles(const std::function<bool(KWDocument &)> &readTitles);
