#include "exchange/sheetwriter.h"
#include <algorithm>

using planexport::Cell;
using planexport::Value;

namespace {

constexpr int deepestGroup = 7; // of an outline in the format

std::string_view view(const QByteArray &bytes)
{
    return std::string_view(bytes.constData(), std::size_t(bytes.size()));
}
}

SheetWriter::SheetWriter(PartWriter &part, StringIndex stringIndex, const SheetLook *look, bool isSelected)
    : m_part(part)
    , m_stringIndex(std::move(stringIndex))
    , m_look(look)
    , m_isSelected(isSelected)
{
}

QString SheetWriter::columnLetter(int column)
{
    return QString(QChar(ushort('A' - 1 + column)));
}

void SheetWriter::writeViews()
{
    m_part.open("sheetViews").open("sheetView").attribute("workbookViewId", "0");
    if (m_isSelected)
        m_part.attribute("tabSelected", "1");
    if (m_look) {
        m_part.element("pane",
                       {"ySplit", "1", "topLeftCell", "A2", "activePane", "bottomLeft", "state", "frozen"});
        m_part.element("selection", {"pane", "bottomLeft", "activeCell", "A2", "sqref", "A2"});
    } else {
        m_part.element("selection", {"activeCell", "A1", "sqref", "A1"});
    }
    m_part.close().close();
}

void SheetWriter::begin(int rows, int columns)
{
    if (columns > 0)
        m_corner = columnLetter(columns) + QString::number(rows);
    for (int column = 1; column <= columns; ++column)
        m_cellHeads.push_back("<c r=\"" + columnLetter(column).toUtf8());
    m_rowTail = "\" spans=\"1:" + QByteArray::number(columns) + "\" x14ac:dyDescent=\"" + descent;

    m_part.open("worksheet");
    m_part.attribute("xmlns", "http://schemas.openxmlformats.org/spreadsheetml/2006/main");
    m_part.attribute("xmlns:r", "http://schemas.openxmlformats.org/officeDocument/2006/relationships");
    m_part.attribute("xmlns:mc", "http://schemas.openxmlformats.org/markup-compatibility/2006");
    m_part.attribute("mc:Ignorable", "x14ac");
    m_part.attribute("xmlns:x14ac", "http://schemas.microsoft.com/office/spreadsheetml/2009/9/ac");
    if (m_look)
        m_part.open("sheetPr").element("outlinePr", {"summaryBelow", "0"}).close();
    m_part.open("dimension");
    m_part.attribute("ref", m_corner.isEmpty() ? QStringLiteral("A1") : QLatin1String("A1:") + m_corner)
        .close();
    writeViews();
    m_part.open("sheetFormatPr").attribute("defaultRowHeight", "13.5");
    if (m_look && m_look->deepest > 0)
        m_part.attribute("outlineLevelRow", std::min(m_look->deepest, deepestGroup));
    m_part.attribute("x14ac:dyDescent", descent).close();
    if (m_look && columns > 0) {
        m_part.open("cols");
        for (int column = 1; column <= columns; ++column) {
            m_part.open("col").attribute("min", column).attribute("max", column);
            m_part.attribute("width", m_look->widths[std::size_t(column - 1)])
                .attribute("customWidth", "1")
                .close();
        }
        m_part.close();
    }
    m_part.open("sheetData");
}

void SheetWriter::writeCell(int row, std::size_t column, const Cell &cell)
{
    const bool isTitle = row == 1;
    if (m_look && cell.text.isEmpty())
        return;
    m_part.raw(view(m_cellHeads[column])).text(row);
    if (m_look) {
        const int style = isTitle ? m_look->titleStyle : m_look->styleOf(cell.value);
        if (style > 0)
            m_part.raw("\" s=\"").text(style);
        if (cell.value != Value::None) {
            m_part.raw("\"><v>").text(cell.number).raw("</v></c>");
            return;
        }
    }
    m_part.raw("\" t=\"s\"><v>").text(m_stringIndex(cell.text)).raw("</v></c>");
    ++m_stringCells;
}

void SheetWriter::row(int row, int depth, const std::vector<Cell> &cells)
{
    m_part.raw("<row r=\"").text(row);
    m_part.raw(view(m_rowTail));
    if (m_look && depth > 0)
        m_part.raw("\" outlineLevel=\"").text(std::min(depth, deepestGroup));
    m_part.raw("\">");
    for (std::size_t column = 0; column < cells.size(); ++column)
        writeCell(row, column, cells[column]);
    m_part.raw("</row>");
}

void SheetWriter::end()
{
    m_part.close(); // the rows
    if (m_look && !m_corner.isEmpty())
        m_part.open("autoFilter").attribute("ref", QLatin1String("A1:") + m_corner).close();
    m_part.element("phoneticPr", {"fontId", "1", "type", "noConversion"});
    m_part.element("pageMargins", {"left", "0.7", "right", "0.7", "top", "0.75", "bottom", "0.75", "header",
                                   "0.3", "footer", "0.3"});
    m_part.element("pageSetup", {"paperSize", "9", "orientation", "portrait", "r:id", "rId1"});
    m_part.close();
}
