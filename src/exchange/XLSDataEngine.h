#pragma once
#include "exchange/importedplan.h"
#include "kwgantt_export.h"
#include "support/findings.h"
#include <QString>

class KWDocument;
class KWTaskInfo;
class Resource;

namespace YExcel {
class BasicExcel;
class BasicExcelWorksheet;
}

// A plan as an XLS workbook of three sheets - tasks, resources, work assignments - and back: the same rows
// and the same rules as XLSXDataEngine has.
//
// Rows and columns of sheets are counted from 0, so the titles stand in row 0. The titles of the columns to
// write and the names of the sheets come from the host, see ExcelTitles and XLSXDataBase::s_xmlNameList.
class KWGANTT_EXPORT XLSDataEngine
{
public:
    explicit XLSDataEngine(KWDocument *document); // not owned, may be null
    ~XLSDataEngine();
    XLSDataEngine(const XLSDataEngine &) = delete;
    XLSDataEngine &operator=(const XLSDataEngine &) = delete;

    KWDocument *document() const { return m_document; }
    // What the last export or import found wrong.
    const Findings &findings() const { return m_findings; }

    // ---- Export (exchange/XLSDataEngine_export.cpp) -------------------------------------------------------
    // Replaces the file in one step. False, with a finding, leaves a file that stood there as it was: without
    // a document, with more rows than a sheet has, or when the file cannot be written. What does not fit
    // otherwise is left out or cut, with a finding for each.
    bool exportData(const QString &path);
    // The same, as all engines have it.
    bool exportFile(const QString &path) { return exportData(path); }
    // Writes a text; null writes nothing, and neither does one for which the sheet has no cell or that is
    // longer than a cell holds.
    static void setCellCont(int row, int column, YExcel::BasicExcelWorksheet *sheet, const QString &text);
    // Writes a task and the tasks below it from `row` on; `level` is the task's, 1 at the top. Returns the
    // row behind the last.
    int parserTaskCont(KWTaskInfo *task, int row, int level, YExcel::BasicExcelWorksheet *sheet);
    // The titles, and a row for each resource, or for each assignment.
    void parserResourceCont(YExcel::BasicExcelWorksheet *sheet);
    void parserWorkAssignCont(YExcel::BasicExcelWorksheet *sheet);
    // One row of the assignment sheet: a task, or a summary with an assignment from below it.
    void setWorkAssignCellCont(int row, KWTaskInfo *task, Resource *resource,
                               YExcel::BasicExcelWorksheet *sheet);

    // ---- Import (exchange/XLSDataEngine_import.cpp) -------------------------------------------------------
    // Rebuilds the title tables of ExcelTitles from the first rows; whether the file is a workbook.
    bool initExcelTitles(const QString &path);
    // Replaces the document's tasks, and its resources and assignments where the workbook has these sheets.
    // False leaves the document as it was: no workbook, or no title of the task sheet is known.
    bool importData(const QString &path);
    // The same from what a person may have typed, see XLSXDataEngine.
    bool importFile(const QString &path);
    void setStart(const ProjectStart &start) { m_start = start; }
    const ImportedPlan &imported() const { return m_imported; }
    // For an export: which milestones stand on an evening.
    void setImported(const ImportedPlan &imported) { m_imported = imported; }
    // The text of a column's title: numbers with six significant digits, "" for what is neither number nor
    // text.
    static QString getColNameByColumn(int column, const YExcel::BasicExcelWorksheet *sheet);
    // Builders for one sheet, of which the first `rows` and `columns` are read; day numbers count from 1900.
    void createDocTaskInfo(int rows, int columns, YExcel::BasicExcelWorksheet *sheet);
    void createDocResource(int rows, int columns, YExcel::BasicExcelWorksheet *sheet);
    void createWorkAssign(int rows, int columns, YExcel::BasicExcelWorksheet *sheet);
    // Finds the parent of a task that is about to be appended: the last task of the level above its own.
    void updateTaskInfoParentID(KWTaskInfo *task);

private:
    void writeSheet(int which, YExcel::BasicExcelWorksheet *sheet);
    void readSheet(int which, int rows, int columns, const YExcel::BasicExcelWorksheet *sheet);
    bool load(YExcel::BasicExcel *book, const QString &path);
    // What is wrong with the file, which the text may name already; false.
    bool fail(const QString &path, const QString &what, const QString &hint = QString());

    KWDocument *m_document;
    Findings m_findings;
    ProjectStart m_start;
    ImportedPlan m_imported;
};
