#pragma once
#include "kwgantt_export.h"
#include "table/rowcolumndata.h"
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

class KWDocument;

// One column title of a workbook or of the program.
class KWGANTT_EXPORT ExcelData
{
public:
    qint32 type = 0; // column type of a task column, else 0
    // Place in the program's list of the same sheet. A workbook's title that the program does not know has
    // its column number, from 0; so a pos never says where in a row the cells stand.
    qint32 pos = -1;
    QString name;
};

// The titles that tie the columns of a workbook to the fields of the program.
//
// A workbook has three sheets: tasks, resources, assignments. The tables are process-wide and serve one
// import or export at a time. Their lists own the entries.
class KWGANTT_EXPORT ExcelTitles
{
public:
    // ---- The program's side, made by initImportMapList ----------------------------------------------------
    static QList<ExcelData *> s_projectTaskTitles;
    static QList<ExcelData *> s_projectResTitles;
    static QList<ExcelData *> s_projectWorkTitls;
    // ---- The workbook's side: an import reads them from row 1, the host fills them before an export
    // --------
    static QList<ExcelData *> s_excelTaskTitles;
    static QList<ExcelData *> s_excelResourceTitles;
    static QList<ExcelData *> s_excelWorkTitles;
    // ---- Filled by the host
    // ---------------------------------------------------------------------------------
    static QMap<int, QString> s_resourcNames;    // field of a resource (0..9) -> title
    static QMap<int, QString> s_workAssignNames; // field of an assignment (0..4) -> title
    static QStringList s_strResourceList;        // titles offered for import
    static QStringList s_strWorkAssignList;
    static qint32 s_nType; // kept for the host

    // Makes the program's side anew; nothing happens without a document.
    static void initImportMapList(KWDocument *document);
    static void clearExcelTitles(QList<ExcelData *> &titles);
    static void clearProjectTaskTitles(QList<RowColumnData::ColumnData *> &columns);

    // Place of the first title that is equal, letter case included; -1 when there is none and for an empty
    // one.
    static int getPosByTaskTitles(const QString &title);
    static int getPosByResTitles(const QString &title);
    static int getPosByWorkTitls(const QString &title);
    // The first entry with that pos; null when there is none.
    static ExcelData *getTaskProjectDataByPos(int pos);
    static ExcelData *getResProjectDataByPos(int pos);
    static ExcelData *getWorkProjectDataByPos(int pos);
    static ExcelData *getTaskExcelDataByPos(int pos);
    static ExcelData *getResExcelDataByPos(int pos);
    static ExcelData *getWorkExcelDataByPos(int pos);
};

// What both kinds of workbook do with the titles.
namespace exceltitles {

enum Sheet { TaskSheet, ResourceSheet, AssignmentSheet, SheetCount };

// The workbook's side of a sheet.
KWGANTT_EXPORT QList<ExcelData *> &workbookTitles(Sheet sheet);
// Appends a cell of row 1 to the workbook's side; columns count from 1, one below that is skipped.
KWGANTT_EXPORT void addWorkbookTitle(Sheet sheet, int column, const QString &title);
// The column type that a task title stands for; entries for levels and predecessors have type 0 of their own.
// A title that is in no table falls back to the entry's type.
KWGANTT_EXPORT int columnType(const ExcelData &title);
}
