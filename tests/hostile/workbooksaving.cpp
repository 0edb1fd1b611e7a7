// Exporting a workbook over another, for a test that stops the program on the way.
#include "exchange/XLSXDataEngine.h"
#include "exchange/exceltitles.h"
#include "hostile/entries.h"
#include "hostile/followups.h"
#include "hostile/smallplan.h"
#include "model/kwtaskinfo.h"
#include <cstdio>

namespace {

bool exportXlsx(KWDocument &document, const QString &path)
{
    ExcelTitles::clearExcelTitles(ExcelTitles::s_excelTaskTitles);
    for (const QString &title : qAsConst(RowColumnData::s_columnNames)) {
        ExcelTitles::s_excelTaskTitles.append(new ExcelData);
        ExcelTitles::s_excelTaskTitles.last()->name = title;
    }
    return XLSXDataEngine(&document).exportFile(path);
}

// Names are unique after an import, so they begin alike and end differently.
bool allNamesBegin(const KWDocument &document, const char *begin)
{
    constexpr int tasks = 3; // of a small plan
    int matching = 0;
    for (const KWTaskInfo *task : document.taskList())
        matching += task->Name.startsWith(QLatin1String(begin));
    return document.taskCount() == tasks && matching == tasks;
}
}

int makeXlsx(const QString &path)
{
    KWDocument document;
    smallplan::fill(document, smallplan::oldName);
    return exportXlsx(document, path) ? 0 : 1;
}

int saveXlsx(const QString &path)
{
    KWDocument document;
    document.setModified(true);
    bool isExported = false;
    if (XLSXDataEngine(&document).importData(path)) {
        for (KWTaskInfo *task : document.taskList())
            task->Name = QString::fromLatin1(smallplan::newName);
        isExported = exportXlsx(document, path);
    }
    say("result", isExported ? "true" : "false");
    // An export is no save: whether there is something to save stays as it was.
    say("modified", document.isModified() ? 1 : 0);
    return 0;
}

int checkXlsx(const QString &path)
{
    KWDocument document;
    const bool isRead = XLSXDataEngine(&document).importData(path);
    std::printf("%s\n", isRead && allNamesBegin(document, smallplan::oldName)   ? "old"
                        : isRead && allNamesBegin(document, smallplan::newName) ? "new"
                                                                                : "neither");
    return 0;
}
