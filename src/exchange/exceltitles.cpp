#include "exchange/exceltitles.h"
#include "engine/record/codes.h"
#include "model/kwdocument.h"
#include <algorithm>

QList<ExcelData *> ExcelTitles::s_projectTaskTitles;
QList<ExcelData *> ExcelTitles::s_projectResTitles;
QList<ExcelData *> ExcelTitles::s_projectWorkTitls;
QList<ExcelData *> ExcelTitles::s_excelTaskTitles;
QList<ExcelData *> ExcelTitles::s_excelResourceTitles;
QList<ExcelData *> ExcelTitles::s_excelWorkTitles;
QMap<int, QString> ExcelTitles::s_resourcNames;
QMap<int, QString> ExcelTitles::s_workAssignNames;
QStringList ExcelTitles::s_strResourceList;
QStringList ExcelTitles::s_strWorkAssignList;
qint32 ExcelTitles::s_nType = 0;

namespace {

// Stands behind the lists, so it goes before them.
struct EmptyAtExit
{
    ~EmptyAtExit()
    {
        for (auto *titles : {&ExcelTitles::s_projectTaskTitles, &ExcelTitles::s_projectResTitles,
                             &ExcelTitles::s_projectWorkTitls, &ExcelTitles::s_excelTaskTitles,
                             &ExcelTitles::s_excelResourceTitles, &ExcelTitles::s_excelWorkTitles})
            ExcelTitles::clearExcelTitles(*titles);
    }
} emptyAtExit;

void append(QList<ExcelData *> &titles, int type, const QString &name)
{
    titles.append(new ExcelData{type, titles.size(), name});
}

void replaceByNames(QList<ExcelData *> &titles, const QStringList &names)
{
    ExcelTitles::clearExcelTitles(titles);
    for (const QString &name : names)
        append(titles, 0, name);
}

int posOf(const QList<ExcelData *> &titles, const QString &name)
{
    if (name.isEmpty())
        return -1;
    const auto found = std::find_if(titles.begin(), titles.end(),
                                    [&name](const ExcelData *title) { return title->name == name; });
    return found == titles.end() ? -1 : int(found - titles.begin());
}

ExcelData *entryAt(const QList<ExcelData *> &titles, int pos)
{
    if (pos < 0)
        return nullptr;
    const auto found = std::find_if(titles.begin(), titles.end(),
                                    [pos](const ExcelData *title) { return title->pos == pos; });
    return found == titles.end() ? nullptr : *found;
}
}

void ExcelTitles::initImportMapList(KWDocument *document)
{
    if (!document || !document->rowColumnData())
        return;
    const QString levelTitle = RowColumnData::s_columnNames.value(columntypes::Level);
    clearExcelTitles(s_projectTaskTitles);
    for (const RowColumnData::ColumnData *column : document->rowColumnData()->columns()) {
        const QString title = column->title;
        append(s_projectTaskTitles, title == levelTitle ? 0 : RowColumnData::typeOfTitle(title), title);
    }
    append(s_projectTaskTitles, 0, RowColumnData::s_columnNames.value(columntypes::Predecessors));
    replaceByNames(s_projectResTitles, s_strResourceList);
    replaceByNames(s_projectWorkTitls, s_strWorkAssignList);
}

void ExcelTitles::clearExcelTitles(QList<ExcelData *> &titles)
{
    qDeleteAll(titles);
    titles.clear();
}

void ExcelTitles::clearProjectTaskTitles(QList<RowColumnData::ColumnData *> &columns)
{
    qDeleteAll(columns);
    columns.clear();
}

int ExcelTitles::getPosByTaskTitles(const QString &title)
{
    return posOf(s_projectTaskTitles, title);
}

int ExcelTitles::getPosByResTitles(const QString &title)
{
    return posOf(s_projectResTitles, title);
}

int ExcelTitles::getPosByWorkTitls(const QString &title)
{
    return posOf(s_projectWorkTitls, title);
}

ExcelData *ExcelTitles::getTaskProjectDataByPos(int pos)
{
    return entryAt(s_projectTaskTitles, pos);
}

ExcelData *ExcelTitles::getResProjectDataByPos(int pos)
{
    return entryAt(s_projectResTitles, pos);
}

ExcelData *ExcelTitles::getWorkProjectDataByPos(int pos)
{
    return entryAt(s_projectWorkTitls, pos);
}

ExcelData *ExcelTitles::getTaskExcelDataByPos(int pos)
{
    return entryAt(s_excelTaskTitles, pos);
}

ExcelData *ExcelTitles::getResExcelDataByPos(int pos)
{
    return entryAt(s_excelResourceTitles, pos);
}

ExcelData *ExcelTitles::getWorkExcelDataByPos(int pos)
{
    return entryAt(s_excelWorkTitles, pos);
}

namespace exceltitles {
namespace {

struct Side
{
    QList<ExcelData *> &project;
    QList<ExcelData *> &workbook;
};

Side sideOf(Sheet sheet)
{
    if (sheet == TaskSheet)
        return {ExcelTitles::s_projectTaskTitles, ExcelTitles::s_excelTaskTitles};
    if (sheet == ResourceSheet)
        return {ExcelTitles::s_projectResTitles, ExcelTitles::s_excelResourceTitles};
    return {ExcelTitles::s_projectWorkTitls, ExcelTitles::s_excelWorkTitles};
}
}

QList<ExcelData *> &workbookTitles(Sheet sheet)
{
    return sideOf(sheet).workbook;
}

void addWorkbookTitle(Sheet sheet, int column, const QString &title)
{
    if (column < 1)
        return;
    const Side side = sideOf(sheet);
    const int pos = posOf(side.project, title);
    side.workbook.append(pos < 0 ? new ExcelData{0, column - 1, title}
                                 : new ExcelData{side.project[pos]->type, pos, title});
}

int columnType(const ExcelData &title)
{
    return RowColumnData::s_columnNames.key(title.name, title.type);
}
}
