// Imports a workbook and lists what could not be taken as it stands.
//     importworkbook PLAN.xlsx      exit code 1 when it is no plan
#include <QGuiApplication>
#include <QTextStream>
#include <kwgantt/exchange/XLSXDataEngine.h>
#include <kwgantt/exchange/exceltitles.h>
#include <kwgantt/model/kwdocument.h>
#include <kwgantt/model/kwtaskinfo.h>
#include <kwgantt/table/rowcolumndata.h>

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    if (argc != 2)
        qFatal("usage: importworkbook PLAN.xlsx");

    // Columns are told by their titles, in the host's language, which it says before it makes a document: by
    // the column types, and by the fields of a resource and of an assignment.
    RowColumnData::s_columnNames = {{0, "Tag"},      {1, "Task Name"},    {2, "Start"},     {3, "Finish"},
                                    {4, "Duration"}, {5, "Complete"},     {7, "Resources"}, {19, "Notes"},
                                    {23, "Level"},   {24, "Predecessors"}};
    ExcelTitles::s_resourcNames = {
        {0, "ID"}, {1, "Resource Name"}, {2, "Max Units"}, {3, "Type"}, {4, "Rate"}};
    ExcelTitles::s_strResourceList = ExcelTitles::s_resourcNames.values();
    ExcelTitles::s_workAssignNames = {{0, "Task"}, {1, "Resource"}, {3, "Work"}, {4, "Units"}};
    ExcelTitles::s_strWorkAssignList = ExcelTitles::s_workAssignNames.values();

    KWDocument document;
    const QString path = QString::fromLocal8Bit(argv[1]);
    XLSXDataEngine engine(&document);
    const bool isRead = engine.initExcelTitles(path) && engine.importData(path);

    QTextStream out(stdout);
    for (const Finding &finding : engine.findings().list())
        out << finding.place << ": " << finding.what << (finding.hint.isEmpty() ? "" : "; ") << finding.hint
            << '\n';
    for (const KWTaskInfo *task : document.taskList())
        out << QString(2 * (task->Level - 1), ' ') << task->Name << '\n';
    return isRead ? 0 : 1;
}
