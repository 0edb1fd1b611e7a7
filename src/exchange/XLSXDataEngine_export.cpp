// A plan's rows as worksheets, and the package as a file.
#include "exchange/XLSXDataEngine.h"
#include "exchange/partwriter.h"
#include "exchange/planexport.h"
#include "format/unitutil.h"
#include "kwfilepathmanager.h"
#include "kwtemporarydir.h"
#include "kwzip.h"
#include "model/kwdocument.h"
#include "table/rowcolumndata.h"
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <memory>

using exceltitles::Sheet;
using planexport::Cell;
using planexport::RowSink;
using planexport::Value;

namespace {

constexpr int maxRows = 1048576; // of a sheet; programs refuse a file with more
constexpr int lettersOfOneSign = 26;
constexpr char rowHeight[] = "0.15"; // of the descent, as all rows have it

// Kept on purpose: one sign. Past Z it is no letter.
QString columnLetter(int column)
{
    return QString(QChar(ushort('A' - 1 + column)));
}

std::vector<Sheet> allSheets()
{
    return {exceltitles::TaskSheet, exceltitles::ResourceSheet, exceltitles::AssignmentSheet};
}

// Where a readable sheet takes its look from.
struct Look
{
    int deepest = 0;         // depth of the outline
    std::vector<int> widths; // of the columns, in characters
    int titleStyle = 0;
    std::function<int(Value)> styleOf;
};

// Writes a worksheet as its rows come.
class SheetWriter : public RowSink
{
public:
    // Without a look the sheet is plain: every cell is a text.
    SheetWriter(PartWriter &part, std::function<int(const QString &)> stringIndex, const Look *look,
                bool isSelected)
        : m_part(part)
        , m_stringIndex(std::move(stringIndex))
        , m_look(look)
        , m_isSelected(isSelected)
    {
    }

    void begin(int rows, int columns) override;
    void row(int row, int depth, const std::vector<Cell> &cells) override;
    void end();
    int stringCells() const { return m_stringCells; }

private:
    void writeViews();
    void writeCell(int row, std::size_t column, const Cell &cell);

    PartWriter &m_part;
    std::function<int(const QString &)> m_stringIndex;
    const Look *m_look;
    bool m_isSelected;
    QString m_corner; // the last cell
    std::vector<QByteArray> m_cellHeads;
    QByteArray m_rowTail; // what all rows have behind their number
    int m_stringCells = 0;
};

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
    constexpr int deepestGroup = 7;
    if (columns > 0)
        m_corner = columnLetter(columns) + QString::number(rows);
    for (int column = 1; column <= columns; ++column)
        m_cellHeads.push_back("<c r=\"" + columnLetter(column).toUtf8());
    m_rowTail = "\" spans=\"1:" + QByteArray::number(columns) + "\" x14ac:dyDescent=\"" + rowHeight;

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
    m_part.attribute("x14ac:dyDescent", rowHeight).close();
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
    const auto view = [](const QByteArray &bytes) {
        return std::string_view(bytes.constData(), std::size_t(bytes.size()));
    };
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
    constexpr int deepestGroup = 7;
    m_part.raw("<row r=\"").text(row);
    m_part.raw(std::string_view(m_rowTail.constData(), std::size_t(m_rowTail.size())));
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

// Hands each cell on.
class CellSink : public RowSink
{
public:
    explicit CellSink(std::function<void(const QString &text, int row, int column)> take)
        : m_take(std::move(take))
    {
    }
    void begin(int, int) override {}
    void row(int row, int, const std::vector<Cell> &cells) override
    {
        for (std::size_t column = 0; column < cells.size(); ++column)
            m_take(cells[column].text, row, int(column) + 1);
    }

private:
    std::function<void(const QString &, int, int)> m_take;
};

// Wide enough for what the column shows; the table's own width where there is such a column.
int columnWidth(const KWDocument &document, const ExcelData &title)
{
    constexpr double pixelsPerCharacter = 7;
    constexpr int least = 12;
    constexpr int most = 60;
    const RowColumnData::ColumnData *column = document.rowColumnData()->getColumnDataByName(title.name);
    const double pixels = column ? column->width / UnitUtil::dpiScale96() : 0;
    return std::max(std::max(least, title.name.size() + 4), std::min(most, int(pixels / pixelsPerCharacter)));
}
}

// ---- Sheets -----------------------------------------------------------------------------------------------

void XLSXDataEngine::createMindmapSheet()
{
    if (!m_document)
        return;
    const planexport::Rows rows(*m_document);
    const QStringList names = sheetNames();
    for (const Sheet sheet : allSheets()) {
        Look look;
        look.titleStyle = titleStyle();
        look.styleOf = [this](Value value) { return styleOf(value); };
        look.deepest = sheet == exceltitles::TaskSheet ? rows.deepest() : 0;
        for (const ExcelData *title : exceltitles::workbookTitles(sheet))
            look.widths.push_back(columnWidth(*m_document, *title));

        const bool isSelected = !m_isRich || sheet == exceltitles::TaskSheet;
        bool isComplete = true;
        writePart(QStringLiteral("xl/worksheets/sheet%1.xml").arg(int(sheet) + 1), [&](PartWriter &part) {
            SheetWriter writer(
                part, [this](const QString &text) { return sharedStringIndex(text); },
                m_isRich ? &look : nullptr, isSelected);
            isComplete = rows.write(sheet, writer, maxRows, m_isRich);
            writer.end();
            m_stringCells += writer.stringCells();
        });
        if (!isComplete)
            fail(names.at(sheet), QStringLiteral("a sheet holds %1 rows, and there are more").arg(maxRows));
        if (exceltitles::workbookTitles(sheet).size() > lettersOfOneSign)
            fail(names.at(sheet), QStringLiteral("there are more than %1 columns").arg(lettersOfOneSign));
    }
    if (rows.unreachedTasks() > 0)
        m_findings.add(
            names.first(),
            QStringLiteral("%1 tasks belong to no summary and are not written").arg(rows.unreachedTasks()));
}

QDomDocument XLSXDataEngine::sheetDocument(int sheet)
{
    QDomDocument document;
    if (!m_document || sheet < 0 || sheet >= sheetCount)
        return document;
    const auto which = Sheet(sheet);
    const planexport::Rows rows(*m_document);
    QBuffer frame;
    frame.open(QIODevice::WriteOnly);
    PartWriter part(frame);
    SheetWriter writer(
        part, [](const QString &) { return 0; }, nullptr, true);
    const int titles = exceltitles::workbookTitles(which).size();
    writer.begin(titles > 0 ? rows.count(which, maxRows - 1) + 1 : 0, titles);
    writer.end();
    part.finish();
    document.setContent(frame.data());

    QDomElement sheetData = document.documentElement().firstChildElement(QStringLiteral("sheetData"));
    m_titleCount = titles;
    int counter = 0;
    CellSink sink([&](const QString &text, int row, int column) {
        setCellCont(text, counter, row, column, sheetData, document);
    });
    rows.write(which, sink, maxRows);
    return document;
}

QDomElement XLSXDataEngine::findRow(const QDomElement &sheetData, int row)
{
    const QString tag = QStringLiteral("row");
    const QString key = QStringLiteral("r");
    const QString number = QString::number(row);
    // Rows are asked for one after the other.
    const QDomElement last = sheetData.lastChildElement(tag);
    if (last.isNull() || last.attribute(key) == number)
        return last;
    if (last.attribute(key).toInt() < row)
        return QDomElement();
    QDomElement found = sheetData.firstChildElement(tag);
    while (!found.isNull() && found.attribute(key) != number)
        found = found.nextSiblingElement(tag);
    return found;
}

void XLSXDataEngine::setCellCont(const QString &text, int &counter, int row, int column,
                                 QDomElement &sheetData, QDomDocument &document)
{
    if (!m_document)
        return;
    QDomElement line = findRow(sheetData, row);
    if (line.isNull()) {
        const int titles =
            m_titleCount > 0 ? m_titleCount : exceltitles::workbookTitles(exceltitles::TaskSheet).size();
        line = document.createElement(QStringLiteral("row"));
        line.setAttribute(QStringLiteral("r"), row);
        line.setAttribute(QStringLiteral("spans"), QStringLiteral("1:%1").arg(titles));
        line.setAttribute(QStringLiteral("x14ac:dyDescent"), QLatin1String(rowHeight));
        sheetData.appendChild(line);
    }
    QDomElement cell = document.createElement(QStringLiteral("c"));
    cell.setAttribute(QStringLiteral("r"), columnLetter(column) + QString::number(row));
    cell.setAttribute(QStringLiteral("t"), QStringLiteral("s"));
    QDomElement value = document.createElement(QStringLiteral("v"));
    value.appendChild(document.createTextNode(QString::number(sharedStringIndex(text))));
    cell.appendChild(value);
    line.appendChild(cell);
    ++counter;
}

// ---- The package ------------------------------------------------------------------------------------------

bool XLSXDataEngine::exportData(const QString &path)
{
    startExport();
    initExport(path);
    if (m_isRich)
        combineExportFormat(); // before the cells that refer to it
    createMindmapSheet();
    // Kept on purpose: without readable sheets the formats are combined when the styles have been written.
    createStyles();
    createSharedString();
    combineExportFormat();
    // Kept on purpose: takes effect only where no styles could be written, since a copy replaces nothing.
    QFile::copy(KWFilePathManager::appConfigDir() + QLatin1String("/ExpMediate/DX/XLSXDataStyles.xml"),
                m_path + QLatin1String("xl/styles.xml"));
    return true;
}

bool XLSXDataEngine::exportFile(const QString &path)
{
    startExport();
    if (!m_document) {
        fail(path, QStringLiteral("there is no document"));
        return false;
    }
    const QTemporaryDir usual;
    std::unique_ptr<KWTemporaryDir> fallback;
    if (!usual.isValid())
        fallback = std::make_unique<KWTemporaryDir>();
    const QString folder = fallback ? fallback->path() : usual.path();
    if (folder.isEmpty()) {
        fail(path, QStringLiteral("no temporary folder"));
        return false;
    }
    exportData(folder);
    if (isWhole() && !KWZip::zip(path, folder))
        fail(path, KWZip::lastError());
    return isWhole();
}
