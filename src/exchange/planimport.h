#pragma once
#include "exchange/exceltitles.h"
#include "exchange/sheetreader.h"
#include "exchange/sheetrows.h"
#include "exchange/stagedplan.h"
#include "support/findings.h"
#include "support/said.h"
#include <array>

class KWDocument;
class KWTaskInfo;

// Makes a plan from the sheets of a workbook, whatever kind of workbook it is.
//
// Everything is read before anything is replaced. Columns are told by the titles of row 1; what a cell, a row
// or a link costs that is spoilt is itself, with a line in the findings.
namespace planimport {

struct Book
{
    // By exceltitles::Sheet; null for a sheet that the workbook has not.
    std::array<sheetrows::Source *, exceltitles::SheetCount> sheets{};
    bool is1904 = false; // day numbers count from 1 January 1904
    // As findings call the sheets.
    std::array<QString, exceltitles::SheetCount> names{
        {KW_TEXT("task sheet"), KW_TEXT("resource sheet"), KW_TEXT("assignment sheet")}};
};

// Rebuilds the title tables of ExcelTitles, reading each sheet no further than its first row.
void readTitles(KWDocument &document, const Book &book);

// Rebuilds the title tables and replaces the document's tasks, and the resources and assignments of those
// sheets that there are. False leaves the document as it was: the task sheet is missing or cannot be read, it
// has no title that is known, or a cell cannot be read where that refuses the file. `start` is the project's,
// where the caller knows it. The findings may be null.
bool importBook(KWDocument &document, const Book &book, const sheetrows::Reading &reading, Findings *findings,
                ImportedPlan *imported = nullptr, const ProjectStart &start = ProjectStart());
// By the rules of importData; shows those columns of the task table that the task sheet has, and hides the
// others.
bool importBook(KWDocument &document, const Book &book, Findings *findings);
// One sheet into a document that has the others; the title tables stay. The same rules.
bool importSheet(KWDocument &document, exceltitles::Sheet sheet, sheetrows::Source &source, bool is1904,
                 Findings *findings);

// Gives a task that is about to be appended its place in the outline: below the last task of the level above
// its own. Looks through the whole list; importBook does not need it.
void placeByLevel(KWDocument &document, KWTaskInfo &task);
}
