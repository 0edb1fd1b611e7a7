// A plan's rows as worksheets, and the package as a file.
#include "exchange/XLSXDataEngine.h"
#include "exchange/sheetwriter.h"
#include "format/unitutil.h"
#include "kwfilepathmanager.h"
#include "kwtemporarydir.h"
#include "kwzip.h"
#include "model/kwdocument.h"
#include "support/said.h"
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

std::vector<Sheet> allSheets()
{
    return {exceltitles::TaskSheet, exceltitles::ResourceSheet, exceltitles::AssignmentSheet};
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
    const planexport::Rows rows(*m_document, m_imported.evenings);
    const QStringList names = sheetNames();
    for (const Sheet sheet : allSheets()) {
        SheetLook look;
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
            isComplete = rows.write(sheet, writer, maxRows, m_isRich, &m_findings, names.at(sheet));
            writer.end();
            m_stringCells += writer.stringCells();
        });
        if (!isComplete)
            fail(names.at(sheet), KW_TEXT("a sheet holds %1 rows, and there are more").arg(maxRows));
        if (exceltitles::workbookTitles(sheet).size() > SheetWriter::letters)
            fail(names.at(sheet), KW_TEXT("there are more than %1 columns").arg(SheetWriter::letters));
    }
    if (rows.unreachedTasks() > 0)
        m_findings.add(
            names.first(),
            KW_TEXT("%1 tasks belong to no summary and are not written").arg(rows.unreachedTasks()));
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
    m_sheetData = QDomElement();
    return document;
}

QDomElement XLSXDataEngine::findRow(const QDomElement &sheetData, int row)
{
    const QString tag = QStringLiteral("row");
    const QString key = QStringLiteral("r");
    const QString number = QString::number(row);
    // Cells are asked for one after the other.
    const QDomElement last = sheetData.lastChildElement(tag);
    if (last.attribute(key) == number)
        return last;
    QDomElement found = sheetData.firstChildElement(tag);
    while (!found.isNull() && found.attribute(key) != number)
        found = found.nextSiblingElement(tag);
    return found;
}

// Looked for once: among all rows that stand there, each new one would take time with their square.
int XLSXDataEngine::greatestRow(const QDomElement &sheetData)
{
    const QString tag = QStringLiteral("row");
    const auto numberOf = [](const QDomElement &row) { return row.attribute(QStringLiteral("r")).toInt(); };
    const QDomElement last = sheetData.lastChildElement(tag);
    if (sheetData == m_sheetData && numberOf(last) <= m_greatestRow)
        return m_greatestRow;
    m_sheetData = sheetData;
    m_greatestRow = 0;
    for (QDomElement row = sheetData.firstChildElement(tag); !row.isNull(); row = row.nextSiblingElement(tag))
        m_greatestRow = std::max(m_greatestRow, numberOf(row));
    return m_greatestRow;
}

void XLSXDataEngine::setCellCont(const QString &text, int &counter, int row, int column,
                                 QDomElement &sheetData, QDomDocument &document)
{
    if (!m_document)
        return;
    QDomElement line = row > greatestRow(sheetData) ? QDomElement() : findRow(sheetData, row);
    if (line.isNull()) {
        const int titles =
            m_titleCount > 0 ? m_titleCount : exceltitles::workbookTitles(exceltitles::TaskSheet).size();
        line = document.createElement(QStringLiteral("row"));
        line.setAttribute(QStringLiteral("r"), row);
        line.setAttribute(QStringLiteral("spans"), QStringLiteral("1:%1").arg(titles));
        line.setAttribute(QStringLiteral("x14ac:dyDescent"), QLatin1String(SheetWriter::descent));
        sheetData.appendChild(line);
        m_greatestRow = std::max(m_greatestRow, row);
    }
    QDomElement cell = document.createElement(QStringLiteral("c"));
    cell.setAttribute(QStringLiteral("r"), SheetWriter::columnLetter(column) + QString::number(row));
    cell.setAttribute(QStringLiteral("t"), QStringLiteral("s"));
    QDomElement value = document.createElement(QStringLiteral("v"));
    value.appendChild(document.createTextNode(QString::number(sharedStringIndex(text))));
    cell.appendChild(value);
    line.appendChild(cell);
    ++counter;
    ++m_stringCells;
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
        fail(path, KW_TEXT("no temporary folder"));
        return false;
    }
    const bool wasRich = m_isRich;
    m_isRich = m_isFileRich;
    const int sharedNames = planexport::Rows(*m_document).sharedNames();
    // One column more tells tasks of one name apart; other readers know no such title.
    QList<ExcelData *> &titles = exceltitles::workbookTitles(exceltitles::AssignmentSheet);
    const QString idTitle = RowColumnData::s_columnNames.value(0);
    const bool hasIds = std::any_of(titles.begin(), titles.end(),
                                    [&idTitle](const ExcelData *title) { return title->name == idTitle; });
    const bool addsIds = sharedNames > 0 && m_isRich && !hasIds && !titles.isEmpty() && !idTitle.isEmpty();
    if (addsIds)
        titles.append(new ExcelData{0, titles.size(), idTitle});
    exportData(folder);
    if (addsIds)
        delete titles.takeLast();
    if (sharedNames > 0 && !addsIds && !hasIds)
        m_findings.add(
            sheetNames().at(exceltitles::AssignmentSheet),
            KW_TEXT("%1 tasks share a name: a workbook cannot tell their assignments apart").arg(sharedNames),
            KW_TEXT("give them different names, or write readable sheets"));
    m_isRich = wasRich;
    if (isWhole() && !KWZip::zip(path, folder))
        fail(path, KW_TEXT("cannot be written: %1").arg(KWZip::lastError()));
    return isWhole();
}
