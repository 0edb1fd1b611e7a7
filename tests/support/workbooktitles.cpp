#include "support/workbooktitles.h"
#include "engine/text/columntypes.h"
#include "exchange/XLSXDataBase.h"
#include "resources/resourceinfodata.h"

using exceltitles::Sheet;

namespace {

QMap<int, QString> numbered(char letter, int count)
{
    QMap<int, QString> titles;
    for (int key = 0; key < count; ++key)
        titles.insert(key, QLatin1Char(letter) + QString::number(key));
    return titles;
}
}

WorkbookTitles::WorkbookTitles()
{
    constexpr int resourceFields = 10;
    constexpr int assignmentFields = 5;
    RowColumnData::s_columnNames = numbered('T', columntypes::count);
    ExcelTitles::s_resourcNames = numbered('R', resourceFields);
    ExcelTitles::s_workAssignNames = numbered('A', assignmentFields);
    ResourceInfoData::s_typeItems = {{0, "work"}, {1, "material"}};
}

WorkbookTitles::~WorkbookTitles()
{
    for (int sheet = 0; sheet < exceltitles::SheetCount; ++sheet)
        choose(Sheet(sheet), QString());
    RowColumnData::s_columnNames.clear();
    ExcelTitles::s_resourcNames.clear();
    ExcelTitles::s_workAssignNames.clear();
    ResourceInfoData::s_typeItems.clear();
    XLSXDataBase::s_xmlNameList.clear();
}

void WorkbookTitles::choose(Sheet sheet, const QString &titles)
{
    QList<ExcelData *> &list = exceltitles::workbookTitles(sheet);
    ExcelTitles::clearExcelTitles(list);
    for (const QString &title : titles.split(' ', Qt::SkipEmptyParts))
        list.append(new ExcelData{0, -1, title});
}

void WorkbookTitles::chooseAll()
{
    choose(exceltitles::TaskSheet, QStringList(RowColumnData::s_columnNames.values()).join(' '));
    choose(exceltitles::ResourceSheet, QStringList(ExcelTitles::s_resourcNames.values()).join(' '));
    choose(exceltitles::AssignmentSheet, QStringList(ExcelTitles::s_workAssignNames.values()).join(' '));
}
