// Reading XLS workbooks, and saving one over another for a test that stops the program on the way.
#include "exchange/BasicExcel.h"
#include "exchange/XLSDataEngine.h"
#include "exchange/exceltitles.h"
#include "hostile/entries.h"
#include "hostile/followups.h"
#include "hostile/smallplan.h"
#include "hostile/workbooks.h"
#include "support/folder.h"
#include "table/rowcolumndata.h"
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>

namespace {

bool writeXls(const QString &path, const char *name)
{
    KWDocument document;
    smallplan::fill(document, name);
    ExcelTitles::clearExcelTitles(ExcelTitles::s_excelTaskTitles);
    for (const int type : {0, 1})
        exceltitles::addWorkbookTitle(exceltitles::TaskSheet, type + 1,
                                      RowColumnData::s_columnNames.value(type));
    return XLSDataEngine(&document).exportData(path);
}
}

int importXls(const QString &path)
{
    const int code =
        sayImport([&](KWDocument &document) { return XLSDataEngine(&document).importData(path); });
    YExcel::BasicExcel book;
    if (book.Load(QFile::encodeName(path).constData()))
        say("sheets", book.GetTotalWorkSheets());
    return code;
}

int readXlsTitles(const QString &path)
{
    return sayTitles([&](KWDocument &document) { return XLSDataEngine(&document).initExcelTitles(path); });
}

int makeXls(const QString &path)
{
    return writeXls(path, smallplan::oldName) ? 0 : 1;
}

int saveXls(const QString &path)
{
    KWDocument document;
    const bool isSaved = XLSDataEngine(&document).importData(path) && writeXls(path, smallplan::newName);
    say("result", isSaved ? "true" : "false");
    say("modified", isSaved ? 0 : 1);
    return 0;
}

int checkXls(const QString &path)
{
    const QTemporaryDir folder;
    const QString expected = folder.path() + QLatin1String("/expected.xls");
    const char *found = "neither";
    for (const auto &[name, said] :
         {std::pair(smallplan::oldName, "old"), std::pair(smallplan::newName, "new")}) {
        if (writeXls(expected, name) && folder::get(path) == folder::get(expected))
            found = said;
    }
    std::printf("%s\n", found);
    return 0;
}
