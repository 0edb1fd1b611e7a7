// A workbook loads or not, and what has loaded can be written and loads again with the same cells. The input
// is the stream of records; its container is made here, so that the search does not have to find it.
#include "exchange/BasicExcel.h"
#include "fuzz.h"
#include <QBuffer>

namespace {

using namespace YExcel;

QByteArray inContainer(const QByteArray &stream)
{
    YCompoundFiles::CompoundFile file;
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    file.Create(QString());
    FUZZ_CHECK(file.MakeFile(QStringLiteral("Workbook")));
    FUZZ_CHECK(file.WriteFile(QStringLiteral("Workbook"), stream) && file.WriteTo(buffer));
    return buffer.data();
}

struct Cells
{
    QString text;
    bool canBeWritten = true;
};

Cells cellsOf(const BasicExcel &book)
{
    Cells cells;
    for (int i = 0; i < book.GetTotalWorkSheets(); ++i) {
        const BasicExcelWorksheet *sheet = book.GetWorksheet(i);
        cells.text += QString::fromStdWString(sheet->GetSheetName()) + QLatin1Char('\n');
        for (int row = sheet->NextRow(0); row >= 0; row = sheet->NextRow(row + 1)) {
            FUZZ_CHECK(row < sheet->GetTotalRows());
            for (int column = 0; column < sheet->GetTotalCols(); ++column) {
                const BasicExcelCell *cell = sheet->Cell(row, column);
                if (cell->Type() == BasicExcelCell::UNDEFINED)
                    continue;
                cells.canBeWritten = cells.canBeWritten && cell->GetText().size() <= 32767;
                cells.text += QStringLiteral("%1,%2:").arg(row).arg(column);
                const bool isText = cell->GetStringLength() > 0 || !cell->GetText().isNull();
                cells.text +=
                    isText ? QLatin1Char('t') + cell->GetText() : QString::number(cell->GetDouble(), 'g', 17);
                FUZZ_CHECK(std::wcslen(cell->GetWString()) <= size_t(cell->GetText().size()));
            }
        }
    }
    cells.canBeWritten = cells.canBeWritten && book.GetTotalWorkSheets() > 0;
    return cells;
}

// Texts as wide characters and back are the same texts.
void rewriteTexts(BasicExcel &book)
{
    for (int i = 0; i < book.GetTotalWorkSheets(); ++i) {
        BasicExcelWorksheet *sheet = book.GetWorksheet(i);
        for (int row = sheet->NextRow(0); row >= 0; row = sheet->NextRow(row + 1)) {
            for (int column = 0; column < sheet->GetTotalCols(); ++column) {
                BasicExcelCell *cell = sheet->Cell(row, column);
                const QString text = cell->GetText();
                if (text.isEmpty() || text.contains(QChar(0)))
                    continue;
                const std::wstring wide = cell->GetWString();
                FUZZ_CHECK(text.size() > 32767 || cell->SetWString(wide.c_str()));
                FUZZ_CHECK(cell->GetText() == text);
            }
        }
    }
}
}

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    BasicExcel book;
    if (!book.LoadBytes(inContainer(QByteArray(reinterpret_cast<const char *>(data), int(size))))) {
        FUZZ_CHECK(!book.ErrorText().isEmpty() && book.GetTotalWorkSheets() == 0);
        return 0;
    }
    const Cells before = cellsOf(book);
    const QByteArray file = book.ToBytes();
    FUZZ_CHECK(file.isEmpty() != before.canBeWritten);
    if (file.isEmpty())
        return 0;
    BasicExcel again;
    FUZZ_CHECK(again.LoadBytes(file));
    FUZZ_CHECK(cellsOf(again).text == before.text);
    rewriteTexts(again);
    return 0;
}
