#include "exchange/BasicExcel.h"
#include "exchange/XLSDataEngine.h"
#include "exchange/planimport.h"
#include <QFile>
#include <QLocale>
#include <algorithm>

using exceltitles::Sheet;
using YExcel::BasicExcel;
using YExcel::BasicExcelCell;
using YExcel::BasicExcelWorksheet;

namespace {

// A number as a title or a column of texts takes it.
QString shownNumber(double number)
{
    constexpr int digits = 6;
    return QString::number(number, 'g', digits);
}

// The cells of one sheet in their order.
class SheetSource : public sheetrows::Source
{
public:
    explicit SheetSource(const BasicExcelWorksheet *sheet, int rows = biff::rowLimit,
                         int columns = biff::columnLimit)
        : m_sheet(sheet)
        , m_rows(rows)
        , m_columns(columns)
    {
    }
    std::size_t rowsAtMost() const override { return std::size_t(std::min(m_rows, m_sheet->GetTotalRows())); }
    bool next(sheetrows::Row &row) override
    {
        m_row = m_sheet->NextRow(m_row + 1);
        if (m_row < 0 || m_row >= m_rows)
            return false;
        row.number = m_row + 1;
        row.cells.clear();
        for (int column = m_sheet->NextColumn(m_row, 0); column >= 0 && column < m_columns;
             column = m_sheet->NextColumn(m_row, column + 1))
            row.cells.push_back(cellAt(column));
        return true;
    }

private:
    sheetrows::Cell cellAt(int column) const
    {
        const BasicExcelCell &from = *m_sheet->Cell(m_row, column);
        sheetrows::Cell cell;
        cell.column = column + 1;
        if (m_row == 0) {
            cell.text = XLSDataEngine::getColNameByColumn(column, m_sheet);
        } else if (from.Type() == BasicExcelCell::INT) {
            cell.text = QString::number(from.GetInteger());
            cell.isNumber = true;
        } else if (from.Type() == BasicExcelCell::DOUBLE) {
            cell.text = QString::number(from.GetDouble(), 'g', QLocale::FloatingPointShortest);
            cell.isNumber = true;
        } else {
            cell.text = from.GetText();
        }
        cell.isPercent = cell.isNumber && from.IsPercent();
        return cell;
    }

    const BasicExcelWorksheet *m_sheet;
    const int m_rows;
    const int m_columns;
    int m_row = -1;
};

// The sheets of a workbook by their order; it must outlive them.
class Sheets
{
public:
    explicit Sheets(const BasicExcel &book)
    {
        m_book.is1904 = book.IsDate1904();
        for (int i = 0; i < exceltitles::SheetCount; ++i) {
            if (const BasicExcelWorksheet *sheet = book.GetWorksheet(i))
                m_book.sheets[std::size_t(i)] = &m_sources[std::size_t(i)].emplace(sheet);
        }
    }
    const planimport::Book &all() const { return m_book; }

private:
    std::array<std::optional<SheetSource>, exceltitles::SheetCount> m_sources;
    planimport::Book m_book;
};
}

QString XLSDataEngine::getColNameByColumn(int column, const BasicExcelWorksheet *sheet)
{
    const BasicExcelCell *cell = sheet ? sheet->Cell(0, column) : nullptr;
    if (!cell)
        return QString();
    switch (cell->Type()) {
    case BasicExcelCell::INT:
        return QString::number(cell->GetInteger());
    case BasicExcelCell::DOUBLE:
        return shownNumber(cell->GetDouble());
    default:
        return cell->GetText();
    }
}

bool XLSDataEngine::load(BasicExcel *book, const QString &path)
{
    m_findings.clear();
    if (m_document && book->Load(QFile::encodeName(path).constData()))
        return true;
    return fail(path, m_document ? book->ErrorText() : QStringLiteral("there is no document"));
}

bool XLSDataEngine::initExcelTitles(const QString &path)
{
    BasicExcel book;
    if (!load(&book, path))
        return false;
    planimport::readTitles(*m_document, Sheets(book).all());
    return true;
}

bool XLSDataEngine::importData(const QString &path)
{
    BasicExcel book;
    return load(&book, path) && planimport::importBook(*m_document, Sheets(book).all(), &m_findings);
}

bool XLSDataEngine::importFile(const QString &path)
{
    BasicExcel book;
    return load(&book, path) && planimport::importBook(*m_document, Sheets(book).all(),
                                                       sheetrows::workbookReading(book.IsDate1904()),
                                                       &m_findings, &m_imported, m_start);
}

void XLSDataEngine::readSheet(int which, int rows, int columns, const BasicExcelWorksheet *sheet)
{
    if (!m_document || !sheet || rows < 1 || columns < 1)
        return;
    SheetSource source(sheet, rows, columns);
    constexpr bool is1904 = false;
    planimport::importSheet(*m_document, Sheet(which), source, is1904, &m_findings);
}

void XLSDataEngine::createDocTaskInfo(int rows, int columns, BasicExcelWorksheet *sheet)
{
    readSheet(exceltitles::TaskSheet, rows, columns, sheet);
}

void XLSDataEngine::createDocResource(int rows, int columns, BasicExcelWorksheet *sheet)
{
    readSheet(exceltitles::ResourceSheet, rows, columns, sheet);
}

void XLSDataEngine::createWorkAssign(int rows, int columns, BasicExcelWorksheet *sheet)
{
    readSheet(exceltitles::AssignmentSheet, rows, columns, sheet);
}

void XLSDataEngine::updateTaskInfoParentID(KWTaskInfo *task)
{
    if (m_document && task)
        planimport::placeByLevel(*m_document, *task);
}
