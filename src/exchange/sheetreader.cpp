#include "exchange/sheetreader.h"
#include <algorithm>

namespace sheetrows {
namespace {

constexpr int maxColumns = 1 << 14; // as many as any program has

QString shown(const QString &text)
{
    constexpr int shownUnits = 40;
    return QLatin1Char('\'') + (text.size() > shownUnits ? text.left(shownUnits) + QChar(0x2026) : text) +
           QLatin1Char('\'');
}
}

Reader::Reader(Findings *findings, const QString &sheet)
    : m_findings(findings)
    , m_sheet(sheet)
{
}

bool Reader::read(Source &source)
{
    // A file may hold its rows in any order, and without their titles they say nothing.
    std::vector<Row> early;
    Row row;
    while (source.next(row)) {
        if (row.number == 1 && !m_hasTitles)
            readTitles(row);
        else if (m_hasTitles)
            readRow(row);
        else
            early.push_back(row);
    }
    if (m_hasTitles) {
        for (const Row &each : early)
            readRow(each);
    }
    if (!source.error().isEmpty() && m_findings)
        m_findings->add(m_sheet, source.error(), QStringLiteral("not read"));
    return source.error().isEmpty();
}

bool Reader::hasBlankTitles() const
{
    return !m_titles.empty() && std::all_of(m_titles.begin(), m_titles.end(),
                                            [](const Cell &cell) { return cell.text.isEmpty(); });
}

void Reader::readTitles(const Row &row)
{
    m_hasTitles = true;
    m_titles = row.cells;
    for (const Cell &cell : row.cells) {
        if (cell.column < 1 || cell.column > maxColumns)
            continue;
        if (cell.column >= int(m_fieldOfColumn.size()))
            m_fieldOfColumn.resize(std::size_t(cell.column) + 1, -1);
        const int field = cell.text.isEmpty() ? -1 : fieldOf(cell.text);
        m_fieldOfColumn[std::size_t(cell.column)] = field;
        m_isKnown = m_isKnown || field >= 0;
        if (field < 0 && !cell.text.isEmpty())
            report(row.number, cell.text, QStringLiteral("no such column"), QStringLiteral("not read"));
    }
}

void Reader::readRow(const Row &row)
{
    m_cells.clear();
    bool isBlank = true;
    for (const Cell &cell : row.cells) {
        if (cell.column < 1 || cell.column >= int(m_fieldOfColumn.size()) || cell.text.isEmpty())
            continue;
        const int field = m_fieldOfColumn[std::size_t(cell.column)];
        if (field < 0)
            continue;
        m_cells.push_back({field, &cell});
        isBlank = isBlank &&
                  std::all_of(cell.text.begin(), cell.text.end(), [](QChar sign) { return sign.isSpace(); });
    }
    if (!isBlank)
        addRow(row.number, m_cells);
}

QString Reader::titleOf(const Cell &cell) const
{
    const auto title = std::find_if(m_titles.begin(), m_titles.end(),
                                    [&cell](const Cell &each) { return each.column == cell.column; });
    return title == m_titles.end() ? QString() : title->text;
}

// The list is full, so that a text need not be made.
bool Reader::isCounting() const
{
    return m_findings && m_findings->list().size() >= Findings::limit;
}

void Reader::report(int row, const Cell *cell, const QString &what, const QString &instead) const
{
    if (isCounting())
        m_findings->add(QString(), what);
    else
        report(row, titleOf(*cell), shown(cell->text) + QLatin1Char(' ') + what, instead);
}

void Reader::report(int row, const QString &column, const QString &what, const QString &instead) const
{
    if (isCounting())
        m_findings->add(QString(), what);
    else if (m_findings)
        m_findings->add(m_sheet + QLatin1String(", row ") + QString::number(row) +
                            (column.isEmpty() ? QString() : QLatin1String(", ") + shown(column)),
                        what, instead);
}
}
