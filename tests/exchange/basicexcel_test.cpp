#include "exchange/BasicExcel.h"
#include "support/filesizelimit.h"
#include "support/folder.h"
#include "support/rawbiff.h"
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace {

using rawbiff::text;
using rawbiff::textOf;
using YExcel::BasicExcel;
using YExcel::BasicExcelCell;
using YExcel::BasicExcelWorksheet;

QByteArray sample(const char *name)
{
    return folder::get(qEnvironmentVariable("KW_TEST_DATA") + QLatin1String("/xls/") + QLatin1String(name));
}

// ---- Sheets -----------------------------------------------------------------------------------------------

std::string names(const BasicExcel &book)
{
    std::string all;
    for (int i = 0; i < book.GetTotalWorkSheets(); ++i)
        all += (i > 0 ? "," : "") + QString::fromStdWString(book.GetSheetName(i)).toStdString();
    return all;
}

TEST(Sheets, areAddedWhereTheyAreAskedFor)
{
    BasicExcel book;
    book.New(2);
    EXPECT_TRUE(book.AddWorksheet("last", -1));
    EXPECT_TRUE(book.AddWorksheet("first", 0));
    EXPECT_TRUE(book.AddWorksheet(L"\u4efb\u52a1", 2));
    EXPECT_TRUE(book.AddWorksheet("beyond", 99));
    EXPECT_EQ(names(book), "first,Sheet1,任务,Sheet2,last,beyond");
    EXPECT_TRUE(book.RenameWorksheet("first", "Sheet7"));
    EXPECT_TRUE(book.AddWorksheet()) << "takes a name that is free";
    EXPECT_EQ(names(book), "Sheet7,Sheet1,任务,Sheet2,last,beyond,Sheet8");
    EXPECT_EQ(book.GetWorksheet(L"\u4efb\u52a1"), book.GetWorksheet(2));
    EXPECT_EQ(book.GetWorksheet("SHEET1"), nullptr);
    EXPECT_EQ(book.GetWorksheet(-1), nullptr);
    EXPECT_EQ(book.GetWorksheet(7), nullptr);
    // Any integer is an index.
    EXPECT_EQ(book.GetWorksheet(size_t(0)), book.GetWorksheet(0));
    EXPECT_EQ(book.GetWorksheet(quint64(1) << 32), nullptr);
    EXPECT_EQ(book.GetSheetName(7), std::wstring());
}

TEST(Sheets, keepWhatTheyHoldWhenOthersGo)
{
    BasicExcel book;
    book.New(3);
    BasicExcelWorksheet *third = book.GetWorksheet(2);
    third->Cell(0, 0)->SetString("kept");
    EXPECT_TRUE(book.DeleteWorksheet(0));
    EXPECT_TRUE(book.DeleteWorksheet("Sheet2"));
    EXPECT_FALSE(book.DeleteWorksheet("Sheet2"));
    EXPECT_FALSE(book.DeleteWorksheet(0)) << "the last one stays";
    EXPECT_EQ(book.GetWorksheet(0), third);
    EXPECT_TRUE(third->Rename(L"Z"));
    EXPECT_TRUE(third->Rename("z")) << "another case of its own name";
    EXPECT_EQ(textOf(book.ToBytes()), "z: A1='kept'");
}

TEST(Sheets, namesThatCannotBeAreRefused)
{
    for (const wchar_t *name : {L"", L"a/b", L"a\\b", L"a?b", L"a*b", L"a[b", L"a]b", L"a:b", L"'a", L"a'",
                                L"a\nb", L"tAKEN", L"n2345678901234567890123456789012"}) {
        BasicExcel book;
        book.New(1);
        book.AddWorksheet("Taken");
        EXPECT_EQ(book.AddWorksheet(name), nullptr) << QString::fromWCharArray(name).toStdString();
        EXPECT_FALSE(book.RenameWorksheet(0, name));
        EXPECT_FALSE(book.ErrorText().isEmpty());
        EXPECT_EQ(names(book), "Sheet1,Taken");
    }
}

TEST(Sheets, ofOneNameInAFileAreAllKept)
{
    rawbiff::Book raw;
    raw.sheets = {rawbiff::record(0x027E, "w0 w0 w15 u22"), rawbiff::record(0x027E, "w0 w0 w15 u26")};
    const QByteArray file = rawbiff::Book::wrap(raw.stream().replace("Sheet2", "Sheet1"));
    BasicExcel book;
    book.New(3);
    ASSERT_TRUE(book.LoadBytes(file));
    EXPECT_EQ(text(book), "Sheet1: A1=5 | Sheet1: A1=6");
    EXPECT_TRUE(book.AddWorksheet("Sheet3")) << "the name of a sheet that was there before";
    EXPECT_EQ(book.GetWorksheet("Sheet1"), book.GetWorksheet(0));
    EXPECT_EQ(textOf(book.ToBytes()), text(book));
}

// ---- Cells ------------------------------------------------------------------------------------------------

TEST(Cells, holdOneValueOfTheirType)
{
    BasicExcel book;
    book.New(1);
    BasicExcelCell *cell = book.GetWorksheet(0)->Cell(3, 4);
    EXPECT_EQ(cell->Type(), BasicExcelCell::UNDEFINED);
    EXPECT_STREQ(cell->GetWString(), L"");

    cell->SetInteger(-5);
    EXPECT_EQ(cell->GetInteger(), -5);
    EXPECT_EQ(cell->GetDouble(), -5.0);
    cell->SetDouble(4e9);
    EXPECT_EQ(cell->Type(), BasicExcelCell::DOUBLE);
    EXPECT_EQ(cell->GetInteger(), 0) << "no integer of 32 bits";
    cell->SetDouble(7.5);
    EXPECT_EQ(cell->GetInteger(), 0);
    EXPECT_STREQ(cell->GetString(), "");

    cell->SetString("caf\xe9");
    EXPECT_EQ(cell->Type(), BasicExcelCell::STRING);
    EXPECT_EQ(cell->GetStringLength(), 4u);
    EXPECT_STREQ(cell->GetWString(), L"caf\u00e9");
    EXPECT_EQ(cell->GetDouble(), 0.0);
    // One character above U+FFFF is one wide character here and two units in the file.
    cell->SetWString(L"\U0001F5D3!");
    EXPECT_EQ(cell->Type(), BasicExcelCell::WSTRING);
    EXPECT_EQ(cell->GetStringLength(), 2u);
    EXPECT_STREQ(cell->GetWString(), L"\U0001F5D3!");
    EXPECT_EQ(cell->GetText().size(), 3);
    EXPECT_STREQ(cell->GetString(), "");
    const wchar_t noCharacter[] = {wchar_t(0x110000), wchar_t(0xD800), 0};
    cell->SetWString(noCharacter);
    EXPECT_STREQ(cell->GetWString(), L"\uFFFD\xD800");
    cell->SetString(nullptr);
    EXPECT_EQ(cell->Type(), BasicExcelCell::UNDEFINED);
}

TEST(Cells, beyondALimitAreNullAndTextsRefused)
{
    BasicExcel book;
    book.New(1);
    BasicExcelWorksheet *sheet = book.GetWorksheet(0);
    EXPECT_EQ(sheet->Cell(65536, 0), nullptr);
    EXPECT_EQ(sheet->Cell(0, 256), nullptr);
    EXPECT_EQ(sheet->Cell(-1, 0), nullptr);
    EXPECT_EQ(const_cast<const BasicExcelWorksheet *>(sheet)->Cell(65536, 0), nullptr);
    ASSERT_TRUE(sheet->Cell(65535, 255)->SetText(QString(32767, QLatin1Char('x'))));
    EXPECT_FALSE(sheet->Cell(65535, 255)->SetText(QString(32768, QLatin1Char('y'))));
    EXPECT_FALSE(sheet->Cell(65535, 255)->SetWString(std::wstring(16384, L'\U0001F5D3').c_str()));
    BasicExcel again;
    ASSERT_TRUE(again.LoadBytes(book.ToBytes()));
    EXPECT_EQ(again.GetWorksheet(0)->Cell(65535, 255)->GetText(), QString(32767, QLatin1Char('x')));
}

TEST(Cells, aTextTooLongFromAFileIsReadAndNotWritten)
{
    const QByteArray head = rawbiff::bytes("u1 u1 w40000 00");
    rawbiff::Book raw;
    raw.strings = rawbiff::record(0x00FC, head + QByteArray(8200, 'x'));
    for (int left = 40000 - 8200; left > 0; left -= 8200)
        raw.strings += rawbiff::record(0x003C, QByteArray(1, '\0') + QByteArray(qMin(left, 8200), 'x'));
    raw.sheets = {rawbiff::record(0x00FD, "w9 w2 w15 u0")};
    BasicExcel book;
    ASSERT_TRUE(book.LoadBytes(raw.file()));
    EXPECT_EQ(book.GetWorksheet(0)->Cell(9, 2)->GetStringLength(), 40000u);
    EXPECT_EQ(book.ToBytes(), QByteArray());
    EXPECT_EQ(book.ErrorText().toStdString(),
              "the text in row 10, column 3 of the sheet \"Sheet1\" is longer than 32767 characters");
}

TEST(Cells, usedSizeFollowsWhatIsThere)
{
    BasicExcel book;
    book.New(1);
    BasicExcelWorksheet *sheet = book.GetWorksheet(0);
    const auto size = [sheet] { return std::make_pair(sheet->GetTotalRows(), sheet->GetTotalCols()); };
    sheet->Cell(50000, 200); // asked for, but nothing is put there
    EXPECT_EQ(size(), std::make_pair(0, 0));
    sheet->Cell(2, 9)->SetInteger(1);
    sheet->Cell(40, 3)->SetString("");
    EXPECT_EQ(size(), std::make_pair(41, 10));
    EXPECT_EQ(sheet->NextRow(0), 2);
    EXPECT_EQ(sheet->NextRow(3), 40);
    EXPECT_EQ(sheet->NextRow(41), -1);
    sheet->Cell(2, 9)->EraseContents();
    EXPECT_EQ(size(), std::make_pair(41, 4));
    sheet->Cell(40, 3)->EraseContents();
    EXPECT_EQ(size(), std::make_pair(0, 0));
    EXPECT_EQ(sheet->NextRow(0), -1);
}

// ---- Files ------------------------------------------------------------------------------------------------

RC_GTEST_PROP(WorkbookRoundTrip, givesTheSameCells, ())
{
    const QString alphabet = QStringLiteral("aé\u0080\u00ff\u4e2d\U0001F5D3\n ");
    BasicExcel book;
    book.New(*rc::gen::inRange(1, 4));
    for (int i = *rc::gen::inRange(0, 60); i > 0; --i) {
        BasicExcelWorksheet *sheet = book.GetWorksheet(*rc::gen::inRange(0, book.GetTotalWorkSheets()));
        BasicExcelCell *cell = sheet->Cell(*rc::gen::elementOf(std::vector<int>{0, 1, 31, 32, 33, 64, 65535}),
                                           *rc::gen::elementOf(std::vector<int>{0, 1, 15, 16, 255}));
        switch (*rc::gen::inRange(0, 4)) {
        case 0: // of thirty bits: the format has no larger integers
            cell->SetInteger(*rc::gen::inRange(-(1 << 29), 1 << 29));
            break;
        case 1:
            cell->SetDouble(*rc::gen::arbitrary<double>());
            break;
        case 2:
            cell->EraseContents();
            break;
        default: {
            const QString unit = alphabet.mid(*rc::gen::inRange(0, alphabet.size() - 1), 2);
            cell->SetText(unit.repeated(*rc::gen::elementOf(std::vector<int>{0, 1, 5, 4109, 4113, 9000})));
        }
        }
    }
    const QByteArray file = book.ToBytes();
    BasicExcel again;
    RC_ASSERT(again.LoadBytes(file));
    // Whether a text came as wide is not in the file; whether it needs it is.
    const auto plain = [](const BasicExcel &of) {
        return QString::fromStdString(text(of)).replace('"', '\'');
    };
    RC_ASSERT(plain(again) == plain(book));
    RC_ASSERT(again.ToBytes() == file);
}

TEST(Files, areReplacedAtOnceOrNotAtAll)
{
    const QTemporaryDir dir;
    const QByteArray path = QFile::encodeName(dir.filePath(QStringLiteral("büro.xls")));
    BasicExcel book;
    book.New(1);
    EXPECT_FALSE(book.Save()) << "has no path yet";
    book.GetWorksheet(0)->Cell(0, 0)->SetString("before");
    ASSERT_TRUE(book.SaveAs(path.constData())) << book.ErrorText().toStdString();
    book.GetWorksheet(0)->Cell(0, 0)->SetString("after");
    {
        const FileSizeLimit fullDisk(2000);
        EXPECT_FALSE(book.Save());
        EXPECT_FALSE(book.ErrorText().isEmpty());
    }
    EXPECT_EQ(textOf(folder::get(QFile::decodeName(path))), "Sheet1: A1='before'");
    EXPECT_TRUE(book.Save());
    EXPECT_EQ(text(BasicExcel(path.constData())), "Sheet1: A1='after'");
    EXPECT_FALSE(book.SaveAs((path + "/below").constData()));
}

TEST(Files, thatCannotBeReadLeaveTheWorkbook)
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("a.xls"));
    rawbiff::Book raw; // its second sheet is damaged
    raw.sheets = {rawbiff::record(0x027E, "w0 w0 w15 u22"), rawbiff::record(0x027E, "w0")};
    ASSERT_TRUE(folder::put(path, raw.file()));
    BasicExcel book;
    book.New(1);
    book.GetWorksheet(0)->Cell(0, 0)->SetString("mine");
    const BasicExcelWorksheet *sheet = book.GetWorksheet(0);
    EXPECT_FALSE(book.Load(QFile::encodeName(path).constData()));
    EXPECT_TRUE(book.ErrorText().startsWith(path + QLatin1String(": the sheet \"Sheet2\" is damaged")));
    EXPECT_FALSE(book.Load(QFile::encodeName(dir.path()).constData()));
    EXPECT_FALSE(book.Load("/dev/zero"));
    EXPECT_FALSE(book.Load(nullptr));
    EXPECT_EQ(book.GetWorksheet(0), sheet);
    EXPECT_EQ(text(book), "Sheet1: A1='mine'");
}

// Foreign workbooks, with the beginning of what they hold.
struct Foreign
{
    const char *file;
    bool is1904;
    const char *begin;
};
const Foreign foreign[] = {
    {"53404.xls", false, // in the mini stream
     "test-sheet: A1=7.21r B1=41207.692290219908r C1=41207.692290300925r "
     "D1='row:0/col:3' E1=1 F1='#VALUE!'"},
    {"ExcelLibrary_newdoc.xls", true,
     "First Sheet: B1=1 A3=9999999 C3='Text string' E3='Second string' "
     "D4=3.4500000000000002r A5=32764.5r B6=41429.999534302988r"},
    {"Test_git_issue_111_NoRowRecords.xls", false,
     "Sheet1: F1='Barclay UCITS Index Historical Data' B2='Jan' C2='Feb'"},
    {"date.xls", false, "Sheet1: A1=44197 B1=15 A2=44198 B2=16 A3=10.632060185185185r B3=17"}};

// Whatever is left of a truncated file, it is all of the workbook or none.
TEST(Files, ofOthersAreReadWhollyOrNotAtAll)
{
    for (const Foreign &one : foreign) {
        const QByteArray whole = sample(one.file);
        BasicExcel book;
        ASSERT_TRUE(book.LoadBytes(whole)) << book.ErrorText().toStdString();
        const std::string expected = text(book);
        EXPECT_EQ(book.IsDate1904(), one.is1904);
        EXPECT_EQ(expected.substr(0, std::strlen(one.begin)), one.begin);
        EXPECT_EQ(textOf(book.ToBytes()), expected);
        int loads = 0;
        for (int size = 0; size < whole.size(); ++size) {
            const bool isLoaded = book.LoadBytes(whole.left(size));
            loads += isLoaded;
            ASSERT_NE(isLoaded, !book.ErrorText().isEmpty()) << size;
            ASSERT_EQ(text(book), expected) << one.file << " cut after " << size << " bytes";
        }
        EXPECT_LT(loads, 1024) << "at most the padding of the last sectors can go";
    }
}

}
