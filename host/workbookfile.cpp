#include "workbookfile.h"
#include "console.h"
#include "exchange/XLSDataEngine.h"
#include "exchange/XLSXDataEngine.h"
#include "exchange/exceltitles.h"
#include "support/findings.h"
#include "table/rowcolumndata.h"
#include "texts.h"
#include <QFile>
#include <QFileInfo>

namespace workbookfile {

namespace {

void append(QList<ExcelData *> &titles, int type, const QString &name)
{
    auto *title = new ExcelData;
    title->type = type;
    title->pos = titles.size();
    title->name = name;
    titles.append(title);
}

// All columns of the task table, hidden ones too, and the predecessors, which it has none for.
void chooseColumns(const KWDocument &document)
{
    constexpr int predecessors = 24;
    ExcelTitles::clearExcelTitles(ExcelTitles::s_excelTaskTitles);
    for (const RowColumnData::ColumnData *column : document.rowColumnData()->columns())
        append(ExcelTitles::s_excelTaskTitles, RowColumnData::typeOfTitle(column->title), column->title);
    append(ExcelTitles::s_excelTaskTitles, predecessors, RowColumnData::s_columnNames.value(predecessors));
    ExcelTitles::clearExcelTitles(ExcelTitles::s_excelResourceTitles);
    for (const QString &title : qAsConst(ExcelTitles::s_strResourceList))
        append(ExcelTitles::s_excelResourceTitles, 0, title);
    ExcelTitles::clearExcelTitles(ExcelTitles::s_excelWorkTitles);
    for (const QString &title : qAsConst(ExcelTitles::s_strWorkAssignList))
        append(ExcelTitles::s_excelWorkTitles, 0, title);
}

// The file stands in front of all of them anyway.
void collect(const Findings &found, const QString &path, Findings &findings)
{
    for (const Finding &finding : found.list())
        findings.add(finding.kind, finding.place == path ? QString() : finding.place, finding.what,
                     finding.hint);
}

template <typename Engine>
bool readWith(Plan &plan, const ProjectStart &start, const QString &path, Findings &findings)
{
    Engine engine(plan.document.get());
    engine.setStart(start);
    const bool read = engine.importFile(path);
    collect(engine.findings(), path, findings);
    plan.imported = engine.imported();
    return read;
}
}

Kind kindOf(const QString &path)
{
    constexpr int longestMark = 8;
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return None;
    const QByteArray mark = file.read(longestMark);
    if (mark.startsWith("PK\x03\x04"))
        return Xlsx;
    return mark == "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1" ? Xls : None;
}

int load(const QString &path, Console &console, Plan &plan, const ProjectStart &start, Findings &findings)
{
    Findings own;
    if (!(kindOf(path) == Xlsx ? readWith<XLSXDataEngine>(plan, start, path, own)
                               : readWith<XLSDataEngine>(plan, start, path, own))) {
        if (own.isEmpty())
            console.error(t("%1: not a plan: no title of the task sheet is known").arg(path),
                          t("the first row holds titles such as %1")
                              .arg(QStringList(RowColumnData::s_columnNames.values().mid(0, 5))
                                       .join(QLatin1String(", "))));
        console.list(path, own);
        return Console::CannotRead;
    }
    findings.append(own);
    return Console::Done;
}

bool save(Console &console, Plan &plan, const QString &path, Kind kind)
{
    const QFileInfo info(path);
    if (info.exists() && (!info.isFile() || !console.options().force)) {
        console.error(t("%1: exists already and stays as it is").arg(path),
                      info.isFile() ? t("--force replaces it") : t("give a file name"));
        return false;
    }
    chooseColumns(*plan.document);
    Findings findings;
    bool written = false;
    if (kind == Xlsx) {
        XLSXDataEngine engine(plan.document.get());
        engine.setRich(console.options().richSheets);
        engine.setImported(plan.imported);
        written = engine.exportFile(path);
        collect(engine.findings(), path, findings);
    } else {
        XLSDataEngine engine(plan.document.get());
        engine.setImported(plan.imported);
        written = engine.exportFile(path);
        collect(engine.findings(), path, findings);
        if (written && console.options().sheetsGiven && console.options().richSheets)
            findings.add(QString(), t("an .xls workbook is written with texts alone"),
                         t("--sheets rich makes a difference to .xlsx"));
    }
    console.list(path, findings);
    if (!written && findings.isEmpty())
        console.error(t("%1: cannot be written").arg(path),
                      t("the folder must exist and have room; nothing was changed"));
    return written;
}
}
