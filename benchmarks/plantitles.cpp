#include "plantitles.h"
#include "exchange/exceltitles.h"
#include "table/rowcolumndata.h"

void plantitles::fill()
{
    const char *const names[] = {"ID",       "Name", "Start", "Finish", "Duration",
                                 "Complete", "",     "Who",   "",       "Cost",
                                 "",         "Work", "",      "",       "",
                                 "",         "",     "",      "",       "",
                                 "",         "",     "",      "Level",  "Predecessors"};
    for (int type = 0; type < int(std::size(names)); ++type) {
        if (*names[type])
            RowColumnData::s_columnNames.insert(type, QString::fromLatin1(names[type]));
    }
    RowColumnData::s_columnNames.insert(18, QStringLiteral("Critical"));
    for (const char *name : {"Task", "Resource", "Complete", "Work", "Units"})
        ExcelTitles::s_workAssignNames.insert(ExcelTitles::s_workAssignNames.size(),
                                              QString::fromLatin1(name));
    for (int key = 0; key < 10; ++key)
        ExcelTitles::s_resourcNames.insert(key, QStringLiteral("Field %1").arg(key));
    const auto fill = [](exceltitles::Sheet sheet, const QMap<int, QString> &titles) {
        for (const QString &title : titles) {
            exceltitles::workbookTitles(sheet).append(new ExcelData);
            exceltitles::workbookTitles(sheet).last()->name = title;
        }
    };
    fill(exceltitles::TaskSheet, RowColumnData::s_columnNames);
    fill(exceltitles::ResourceSheet, ExcelTitles::s_resourcNames);
    fill(exceltitles::AssignmentSheet, ExcelTitles::s_workAssignNames);
}
