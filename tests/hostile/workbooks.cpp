// Reading workbooks.
#include "hostile/workbooks.h"
#include "exchange/XLSXDataEngine.h"
#include "exchange/exceltitles.h"
#include "hostile/entries.h"
#include "hostile/followups.h"
#include "hostile/smallplan.h"

int sayImport(const std::function<bool(KWDocument &)> &import)
{
    KWDocument document;
    smallplan::fill(document, smallplan::oldName);
    const std::string before = smallplan::textOf(document);
    const bool isImported = import(document);
    say("result", isImported ? "true" : "false");
    if (isImported)
        sayFactsAndOperate(document);
    else
        say("document", smallplan::textOf(document) == before ? "same" : "changed");
    return 0;
}

int sayTitles(const std::function<bool(KWDocument &)> &readTitles)
{
    KWDocument document;
    say("result", readTitles(document) ? "true" : "false");
    std::string counts;
    for (int sheet = 0; sheet < exceltitles::SheetCount; ++sheet)
        counts += (sheet > 0 ? "," : "") +
                  std::to_string(exceltitles::workbookTitles(exceltitles::Sheet(sheet)).size());
    say("titles", counts);
    return 0;
}

int importXlsx(const QString &path)
{
    return sayImport([&](KWDocument &document) { return XLSXDataEngine(&document).importData(path); });
}

int readXlsxTitles(const QString &path)
{
    return sayTitles([&](KWDocument &document) { return XLSXDataEngine(&document).initExcelTitles(path); });
}
