#pragma once
#include "exchange/XLSXDataBase.h"
#include "exchange/importedplan.h"
#include <QDomDocument>
#include <QDomElement>
#include <QDomNodeList>
#include <QMap>
#include <functional>

class KWTaskInfo;
namespace planexport {
enum class Value;
}

// A plan as a workbook of three sheets - tasks, resources, work assignments - and back.
//
// Columns are told by their titles in row 1, see ExcelTitles, which the host fills before an export.
class KWGANTT_EXPORT XLSXDataEngine : public XLSXDataBase
{
public:
    explicit XLSXDataEngine(KWDocument *document); // not owned, may be null
    ~XLSXDataEngine() override;

    // Readable sheets: dates and numbers as values, column widths, a frozen header with filters, outline
    // groups; else every cell is a text and carries no style. Unless told, exportFile writes readable sheets
    // and exportData does not.
    void setRich(bool rich) { m_isRich = m_isFileRich = rich; }
    bool isRich() const { return m_isRich; }

    // ---- Export (exchange/XLSXDataEngine_export.cpp) ------------------------------------------------------
    // Writes the package unpacked below a folder, which is made. Always true: see findings(), or exportFile.
    bool exportData(const QString &path);
    // Writes the packed workbook, replacing the file in one step. False leaves a file that stood there as it
    // was; findings() then says why.
    bool exportFile(const QString &path);
    void createMindmapSheet(); // the three worksheets, straight to their files
    void createStyles();
    void combineExportFormat(); // fills numberFormats() from the task titles

    // For one row or one sheet at hand: the same cells as the streaming writer's, in a DOM.
    // Appends a shared-string cell to the row, which is made when there is none; `counter` counts the cells.
    // Columns are counted from 1 and only those up to 26 have a letter.
    void setCellCont(const QString &text, int &counter, int row, int column, QDomElement &sheetData,
                     QDomDocument &document);
    // Sheet 0, 1 or 2 as a whole; empty for another number or without a document.
    QDomDocument sheetDocument(int sheet);
    // The row of that number, the last one at once; a null element when there is none.
    static QDomElement findRow(const QDomElement &sheetData, int row);

    // ---- Import (exchange/XLSXDataEngine_import.cpp) ------------------------------------------------------
    // Rebuilds the title tables of ExcelTitles from the first rows; whether the file is an archive.
    bool initExcelTitles(const QString &path);
    // Replaces the document's tasks, and its resources and assignments where the workbook has these sheets.
    // False leaves the document as it was: no archive, or no title of the task sheet is known.
    bool importData(const QString &path);

    // The same from what a person may have typed: titles in any case and in other words, IDs and names as
    // they stand, percentages as they are shown; tasks without dates are placed behind their predecessors.
    bool importFile(const QString &path);
    // Where tasks without dates begin, for importFile.
    void setStart(const ProjectStart &start) { m_start = start; }
    // What the last importFile found that the document has no field for.
    const ImportedPlan &imported() const { return m_imported; }
    // For an export: which milestones stand on an evening.
    void setImported(const ImportedPlan &imported) { m_imported = imported; }

    // Passes the number formats of an unpacked package to parseFormatType. False when the part cannot be
    // read.
    bool parseStylesXml(const QString &folder);
    // The formats of dates and times among them, by their id.
    const QMap<int, QString> &dateFormats() const { return m_dateFormats; }
    // The date-time format in Qt's letters; empty for a format that shows no date or time.
    static QString parseFormatType(const QString &formatCode);
    // Reads the worksheets of a folder in the order of their numbers.
    bool praserSheetXml(const QString &folder, const QStringList &sharedStrings);
    // Builders for one sheet held in a DOM: `rowNodes` are its "row" elements, the first of them the titles.
    void createDocTaskInfo(int rows, int columns, const QDomNodeList &rowNodes,
                           const QStringList &sharedStrings);
    void createDocResource(int rows, int columns, const QDomNodeList &rowNodes,
                           const QStringList &sharedStrings);
    void createWorkAssign(int rows, int columns, const QDomNodeList &rowNodes,
                          const QStringList &sharedStrings);
    // Finds the parent of a task that is about to be appended: the last task of the level above its own.
    void updateTaskInfoParentID(KWTaskInfo *task);

private:
    QPair<int, QString> numberFormatOf(planexport::Value value) const;
    int numberFormatIndex(planexport::Value value) const;
    int styleOf(planexport::Value value) const;
    int titleStyle() const;
    int greatestRow(const QDomElement &sheetData);

    // What both imports do: the sheets of a packed workbook, read by `read`.
    bool importSheets(const QString &path, const std::function<bool(const QString &folder)> &read);

    bool m_isRich = false;
    bool m_isFileRich = true; // of exportFile
    ProjectStart m_start;
    ImportedPlan m_imported;
    QMap<int, QString> m_dateFormats;
    int m_titleCount = 0;    // of the sheet being written
    QDomElement m_sheetData; // that cells were put into last
    int m_greatestRow = 0;   // of it
};
