// Plans as XLS workbooks: the same rows as in any workbook, the limits of the format, files replaced in one
// step.
#include "exchange/BasicExcel.h"
#include "exchange/XLSDataEngine.h"
#include "exchange/XLSXDataBase.h"
#include "exchange/planexport.h"
#include "resources/resourceinfodata.h"
#include "support/filesizelimit.h"
#include "support/folder.h"
#include "support/project.h"
#include "support/rawbiff.h"
#include "support/workbooktitles.h"
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

using YExcel::BasicExcel;
using YExcel::BasicExcelWorksheet;

class XlsEngine : public testing::Test
{
protected:
    XlsEngine()
    {
        // As new sheets are named.
        XLSXDataBase::s_xmlNameList = QStringList{"Sheet2", "Sheet1", "Sheet3"};
        setTitles("T0 T1 T23 T24", "R0 R1 R2", "A0 A1 A2 A3 A4");
    }
    static void setTitles(const QString &tasks, const QString &resources, const QString &assignments)
    {
        WorkbookTitles::choose(exceltitles::TaskSheet, tasks);
        WorkbookTitles::choose(exceltitles::ResourceSheet, resources);
        WorkbookTitles::choose(exceltitles::AssignmentSheet, assignments);
    }
    QString file() const { return m_folder.path() + "/plän.xls"; }
    std::string written() const
    {
        return QString::fromStdString(rawbiff::textOf(folder::get(file()))).replace('"', '\'').toStdString();
    }

    const WorkbookTitles m_titles;
    QTemporaryDir m_folder;
};

constexpr char plan[] = "House\n  Walls 2d\n  Roof 1d after Walls\n";
constexpr char week[] = "Mon-Fri 8-12 13-17, start 2024-06-03";

TEST_F(XlsEngine, WritesTheRowsOfAPlanAsTexts)
{
    Project p(week, plan);
    p.assign("Walls", "Ann");
    XLSDataEngine engine(&p.document());
    ASSERT_TRUE(engine.exportData(file()));
    EXPECT_TRUE(engine.findings().isEmpty());
    const char *const expected =
        "Sheet2: A1='T0' B1='T1' C1='T23' D1='T24' A2='1' B2='House' C2='1' "
        "A3='2' B3='Walls' C3='2' A4='3' B4='Roof' C4='2' D4='2' | "
        "Sheet1: A1='R0' B1='R1' C1='R2' A2='1' B2='Ann' C2='100%' | "
        "Sheet3: A1='A0' B1='A1' C1='A2' D1='A3' E1='A4' A2='House' B2='Ann' C2='0%' D2='16 h' E2='100%' "
        "A3='Walls' B3='Ann' C3='0%' D3='16 h' E3='100%'";
    EXPECT_EQ(written(), expected);

    // The writers for one task, one sheet and one row put the same cells there.
    BasicExcel book, whole;
    book.New(3);
    ASSERT_TRUE(whole.LoadBytes(folder::get(file())));
    EXPECT_EQ(engine.parserTaskCont(&p.task("House"), 1, 1, book.GetWorksheet(0)), 4);
    engine.parserResourceCont(book.GetWorksheet(1));
    engine.setWorkAssignCellCont(1, &p.task("House"), p.task("Walls").resourceList.first(),
                                 book.GetWorksheet(2));
    engine.setWorkAssignCellCont(2, &p.task("Walls"), p.task("Walls").resourceList.first(),
                                 book.GetWorksheet(2));
    for (int sheet = 0; sheet < 3; ++sheet) {
        for (int row = 1; row < whole.GetWorksheet(sheet)->GetTotalRows(); ++row) {
            for (int column = 0; column < 5; ++column)
                EXPECT_EQ(book.GetWorksheet(sheet)->Cell(row, column)->GetText(),
                          whole.GetWorksheet(sheet)->Cell(row, column)->GetText());
        }
    }
    XLSDataEngine::setCellCont(0, 0, book.GetWorksheet(0), QString());
    XLSDataEngine::setCellCont(65536, 0, book.GetWorksheet(0), "x");
    XLSDataEngine::setCellCont(0, 1, book.GetWorksheet(0), QString(32768, 'x'));
    XLSDataEngine::setCellCont(0, 2, nullptr, "x");
    EXPECT_EQ(book.GetWorksheet(0)->NextRow(0), 1);
}

TEST_F(XlsEngine, SaysWhatTheFormatCannotHold)
{
    Project p(week, plan);
    XLSDataEngine engine(&p.document());
    // The pair stands over the border.
    p.task("Roof").Name = QString(32766, 'x') + QString::fromUtf8("\U0001F5D3") + "\x01";
    QString titles = "T1";
    for (int column = 2; column <= 257; ++column)
        titles += " more" + QString::number(column);
    setTitles(titles, "", "");
    ASSERT_TRUE(engine.exportData(file()));
    ASSERT_EQ(engine.findings().count(), 2);
    EXPECT_EQ(engine.findings().list()[0].what, "there are 257 columns, of which the first 256 are written");
    EXPECT_EQ(engine.findings().list()[1].place, "Sheet2, row 4, column 1");
    EXPECT_EQ(engine.findings().list()[1].what, "a text of 32769 characters is cut to 32767");
    BasicExcel book;
    ASSERT_TRUE(book.LoadBytes(folder::get(file())));
    EXPECT_EQ(book.GetWorksheet(0)->Cell(3, 0)->GetText(), QString(32766, 'x'));
    EXPECT_EQ(book.GetWorksheet(0)->GetTotalCols(), 256);

    // What cannot be written leaves the file.
    const QByteArray before = folder::get(file());
    setTitles("T1", "", "");
    KWDocument large;
    for (quint32 id = 1; id <= 65536; ++id) {
        auto *task = new KWTaskInfo;
        task->ID = id;
        large.appendTaskInfoList(task);
    }
    XLSDataEngine tooMany(&large);
    EXPECT_FALSE(tooMany.exportData(file()));
    EXPECT_EQ(tooMany.findings().list().value(0).what,
              "the sheet 'Sheet2' holds 65536 rows, and there are more");
    EXPECT_FALSE(XLSDataEngine(nullptr).exportData(file()));
    EXPECT_FALSE(engine.exportData(file() + "/below.xls"));
    EXPECT_FALSE(engine.findings().isEmpty());
    {
        const FileSizeLimit fullDisk(2000);
        EXPECT_FALSE(engine.exportData(file()));
    }
    EXPECT_EQ(folder::get(file()), before);
}

// A workbook of one sheet whose rows are lines, cells joined by "|"; "=" begins a number, with a point a
// double.
QByteArray workbook(const QString &lines)
{
    BasicExcel book;
    book.New(1);
    int row = 0;
    for (const QString &line : lines.split('\n')) {
        int column = 0;
        for (const QString &cell : line.split('|')) {
            YExcel::BasicExcelCell *to = book.GetWorksheet(0)->Cell(row, column++);
            if (!cell.startsWith('='))
                to->SetWString(cell.toStdWString().c_str());
            else if (cell.contains('.'))
                to->SetDouble(cell.mid(1).toDouble());
            else
                to->SetInteger(cell.mid(1).toInt());
        }
        ++row;
    }
    return book.ToBytes();
}

TEST_F(XlsEngine, ReadsNumbersAsTheirColumnsNeedThem)
{
    RowColumnData::s_columnNames[7] = "2024";
    RowColumnData::s_columnNames[19] = "1.5";
    Project p(week, plan);
    XLSDataEngine engine(&p.document());
    ASSERT_TRUE(folder::put(
        file(), workbook("T0|=2024|=1.5|T2|T1|T22\n"
                         "=1234567.0|=12345678|=1234567.0|=45446.666666666664|\U0001F5D3|=0.1234567\n"
                         "=7654321|=0.1|x||=3.0|=12345678.5")));
    ASSERT_TRUE(engine.importData(file())) << engine.findings().list().value(0).what.toStdString();
    const auto shown = [&p] {
        QStringList all;
        for (const KWTaskInfo *task : p.document().taskList())
            all << QStringLiteral("%1 %2 %3 %4 %5")
                       .arg(task->ID)
                       .arg(task->Name, task->Resources, task->Notes, task->BaselineCost);
        return all.join('\n').toStdString();
    };
    EXPECT_EQ(shown(), "1234567 \U0001F5D3 12345678 1234567 0.1234567\n7654321 3 0.1 x 12345678.5");
    EXPECT_EQ(p.dates().substr(0, 16), "\U0001F5D3 3 Jun 16:00");
    BasicExcel book;
    ASSERT_TRUE(book.LoadBytes(folder::get(file())));
    EXPECT_EQ(XLSDataEngine::getColNameByColumn(1, book.GetWorksheet(0)), "2024");
    EXPECT_EQ(XLSDataEngine::getColNameByColumn(2, book.GetWorksheet(0)), "1.5");
    EXPECT_EQ(XLSDataEngine::getColNameByColumn(9, book.GetWorksheet(0)), "");
    EXPECT_EQ(XLSDataEngine::getColNameByColumn(256, nullptr), "");
    // The builder for one sheet reads as far as it is told.
    engine.createDocTaskInfo(2, 2, book.GetWorksheet(0));
    EXPECT_EQ(shown(), "1234567  12345678  ");
    // The same day in a workbook that counts from 1904: "T2", and below it a packed integer.
    rawbiff::Book raw{rawbiff::record(0x0022, "w1"), rawbiff::record(0x00FC, "u1 u1 w2 00 5432"), {}};
    raw.sheets = {rawbiff::record(0x00FD, "w0 w0 w15 u0") + rawbiff::record(0x027E, "w1 w0 w15 u175938")};
    ASSERT_TRUE(folder::put(file(), raw.file()) && engine.importData(file()));
    EXPECT_EQ(p.dates(), " 3 Jun - 3 Jun\n");
}

TEST_F(XlsEngine, LeavesThePlanAloneWhenThereIsNone)
{
    Project p(week, plan);
    const std::string before = p.dates();
    XLSDataEngine engine(&p.document());
    for (const QByteArray &bytes : {QByteArray("no workbook"), workbook("t0|t1\n=1|x")}) {
        folder::put(file(), bytes);
        EXPECT_FALSE(engine.importData(file()));
        EXPECT_FALSE(engine.findings().isEmpty());
    }
    EXPECT_EQ(p.dates(), before);
    folder::put(file(), "no workbook");
    EXPECT_FALSE(engine.initExcelTitles(file()));
    EXPECT_EQ(engine.findings().list().value(0).what, "is no compound file");
    folder::put(file(), workbook("T1|what\nx|y"));
    EXPECT_TRUE(engine.initExcelTitles(file()));
    ASSERT_EQ(ExcelTitles::s_excelTaskTitles.size(), 2);
    EXPECT_EQ(ExcelTitles::s_excelTaskTitles[1]->pos, 1);
    EXPECT_EQ(ExcelTitles::s_excelResourceTitles.size(), 0);
    EXPECT_EQ(p.dates(), before);
}

TEST_F(XlsEngine, BringsBackTheSamePlan)
{
    Project p(
        week,
        "House\n  Walls 2d\n  Roof 4h 50% after Walls\n  Ready milestone after Roof\n任务 3d after Ready\n");
    p.assign("Walls", "Ann");
    setTitles("T24 T23 T5 T4 T3 T2 T1 T0", "R0 R1 R2", "A0 A1 A2 A3 A4");
    ASSERT_TRUE(XLSDataEngine(&p.document()).exportData(file()));
    const QByteArray before = folder::get(file());
    const std::string dates = p.dates();
    XLSDataEngine engine(&p.document());
    ASSERT_TRUE(engine.importData(file()));
    EXPECT_TRUE(engine.findings().isEmpty()) << engine.findings().list()[0].what.toStdString();
    EXPECT_EQ(p.dates(), dates);
    ASSERT_TRUE(engine.exportData(file()));
    EXPECT_EQ(folder::get(file()), before);
}
}
