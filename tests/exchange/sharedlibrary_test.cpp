// What a host builds against the shared library: classes whose inline members need more than is exported do
// not link here.
#include "exchange/BasicExcel.h"
#include "exchange/biff/record.h"
#include "exchange/biff/workbook.h"
#include <gtest/gtest.h>

TEST(SharedLibrary, takesWorkbooksApart)
{
    YExcel::BasicExcel workbook;
    workbook.New(1);
    YExcel::BasicExcelCell *cell = workbook.GetWorksheet(0)->Cell(0, 0);
    cell->SetWString(L"\u20ac 5");
    EXPECT_STREQ(cell->GetWString(), L"\u20ac 5");
    EXPECT_EQ(cell->GetStringLength(), 3u);
    cell->SetString("plain");
    EXPECT_STREQ(cell->GetString(), "plain");

    biff::Sink bytes;
    YExcel::BOF().Write(bytes);
    YExcel::Workbook::Font().Write(bytes);
    YExcel::SmallString(QStringLiteral("ab")).Write(bytes);
    EXPECT_GT(bytes.size(), 20u + 4 + 14 + 4);
}
