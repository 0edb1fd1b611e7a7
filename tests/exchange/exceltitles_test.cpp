#include "exchange/exceltitles.h"
#include "model/kwdocument.h"
#include "support/project.h"
#include <gtest/gtest.h>

namespace {

QString shown(const QList<ExcelData *> &titles)
{
    QStringList entries;
    for (const ExcelData *title : titles)
        entries.append(QStringLiteral("%1:%2@%3").arg(title->name).arg(title->type).arg(title->pos));
    return entries.join(QLatin1Char(' '));
}

TEST(ExcelTitlesTest, MatchTitlesOfAWorkbookByTextOnly)
{
    const QMap<int, QString> names = RowColumnData::s_columnNames;
    RowColumnData::s_columnNames = {{0, "ID"}, {1, "Name"}, {3, "Finish"}, {23, "Level"}, {24, "After"}};
    ExcelTitles::s_strResourceList = QStringList{"No", "Name"};
    KWDocument document;
    document.rowColumnData()->clearColDataList();
    for (const char *title : {"Name", "Finish", "Level", "Foreign"}) {
        auto *column = new RowColumnData::ColumnData;
        column->title = QString::fromLatin1(title);
        document.rowColumnData()->appendColumnData(column);
    }
    ExcelTitles::initImportMapList(nullptr);
    EXPECT_TRUE(ExcelTitles::s_projectTaskTitles.isEmpty());
    ExcelTitles::initImportMapList(&document);
    ExcelTitles::initImportMapList(&document);
    EXPECT_EQ(shown(ExcelTitles::s_projectTaskTitles).toStdString(),
              "Name:1@0 Finish:3@1 Level:0@2 Foreign:0@3 After:0@4");
    EXPECT_EQ(shown(ExcelTitles::s_projectResTitles).toStdString(), "No:0@0 Name:0@1");

    QList<ExcelData *> &sheet = exceltitles::workbookTitles(exceltitles::TaskSheet);
    ExcelTitles::clearExcelTitles(sheet);
    int column = 0;
    for (const char *title : {"AAA1", "After", "name", "Finish", "", "Level"})
        exceltitles::addWorkbookTitle(exceltitles::TaskSheet, column++, QString::fromLatin1(title));
    EXPECT_EQ(shown(sheet).toStdString(), "After:0@4 name:0@1 Finish:3@1 :0@3 Level:0@2");
    // Two entries share the pos 1.
    EXPECT_EQ(ExcelTitles::getTaskExcelDataByPos(1), sheet[1]);
    EXPECT_EQ(ExcelTitles::getTaskExcelDataByPos(-1), nullptr);
    QStringList types;
    for (const ExcelData *title : qAsConst(sheet))
        types.append(QString::number(exceltitles::columnType(*title)));
    EXPECT_EQ(types.join(' ').toStdString(), "24 0 3 0 23");
    ExcelTitles::s_strResourceList.clear();
    RowColumnData::s_columnNames = names;
}
}
