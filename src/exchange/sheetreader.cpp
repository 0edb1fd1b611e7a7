#include "exchange/sheetreader.h"
#include "format/wholenumber.h"
#include "support/longwork.h"
#include "support/said.h"
#include <QLocale>
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

// Without what the multiplication leaves behind, where the text still is that fraction.
QString textOfPercent(double fraction)
{
    constexpr double whole = 100;
    if (isPlainWhole(fraction * whole) && fraction * whole / whole == fraction)
        return QString::number(qint64(fraction * whole));
    constexpr int digits = 15;
    const QString text = QString::number(fraction * whole, 'g', digits);
    return text.toDouble() / whole == fraction
               ? text
               : QString::number(fraction * whole, 'g', QLocale::FloatingPointShortest);
}
}

Reader::Reader(exceltitles::Sheet sheet, const Reading &reading, Findings *findings, const QString &name)
    : m_kind(sheet)
    , m_reading(reading)
    , m_findings(findings)
    , m_name(name)
{
}

bool Reader::read(Source &source)
{
    // A file may hold its rows in any order, and without their titles they say nothing.
    std::vector<Row> early;
    if (source.rowsAtMost() > 0)
        expectRows(source.rowsAtMost());
    Row row;
    constexpr qint64 rowsBetween = 256;
    for (qint64 done = 0; source.next(row); ++done) {
        if (done % rowsBetween == 0 &&
            !LongWork::goesOn(LongWork::Reading, done, qint64(source.rowsAtMost())))
            return false;
        row.line = row.line > 0 ? row.line : row.number;
        if (!m_reading.isExact)
            showPercentages(row);
        if (row.number == 1 && !m_hasTitles) {
            readTitles(row);
            source.readOnly(needs());
        } else if (m_hasTitles) {
            readRow(row);
        } else {
            early.push_back(row);
        }
        row.line = 0;
    }
    if (m_hasTitles) {
        for (const Row &each : early)
            readRow(each);
    }
    m_hasLostRows = !m_hasTitles && !early.empty();
    if (!source.error().isEmpty() && m_findings)
        m_findings->add(m_name, source.error(), KW_TEXT("not read"));
    if (m_isKnown)
        reportUntitled();
    return source.error().isEmpty();
}

bool Reader::hasBlankTitles() const
{
    return !m_titles.empty() && std::all_of(m_titles.begin(), m_titles.end(),
                                            [](const Cell &cell) { return cell.text.isEmpty(); });
}

bool Reader::hasField(int field) const
{
    return std::any_of(m_fieldOfColumn.begin(), m_fieldOfColumn.end(),
                       [field](const titletable::Known &known) { return known.field == field; });
}

QString Reader::titleOfField(int field) const
{
    for (const Cell &cell : m_titles) {
        if (cell.column > 0 && cell.column < int(m_fieldOfColumn.size()) &&
            m_fieldOfColumn[std::size_t(cell.column)].field == field)
            return cell.text.trimmed();
    }
    return QString();
}

void Reader::readTitles(const Row &row)
{
    m_hasTitles = true;
    m_titles = row.cells;
    for (const Cell &cell : row.cells) {
        if (cell.column < 1 || cell.column > maxColumns)
            continue;
        const std::size_t column = std::size_t(cell.column);
        if (column >= m_fieldOfColumn.size()) {
            m_fieldOfColumn.resize(column + 1);
            m_hasTitle.resize(column + 1, false);
        }
        if (cell.text.trimmed().isEmpty())
            continue;
        m_hasTitle[column] = true;
        titletable::Known known = titletable::find(m_kind, cell.text, m_reading.isExact);
        m_isKnown = m_isKnown || known.field >= 0;
        const bool isIgnored =
            known.field == titletable::Ignored || known.field == titletable::IgnoredAssignment;
        if (known.field >= 0 && !isIgnored && !m_reading.isExact && hasField(known.field)) {
            report(row.line, cell.text, KW_TEXT("it is a second %1").arg(shown(titleOfField(known.field))),
                   KW_TEXT("not read"));
            known.field = -1;
        } else if (known.field < 0) {
            const QString nearest =
                isCounting() ? QString() : titletable::nearest(m_kind, cell.text, m_reading.isExact);
            report(row.line, cell.text, KW_TEXT("no such column"),
                   nearest.isEmpty() ? KW_TEXT("not read")
                                     : KW_TEXT("not read; did you mean %1?").arg(shown(nearest)));
        }
        m_fieldOfColumn[column] = known;
    }
}

// By column, as readRow asks.
std::vector<Need> Reader::needs() const
{
    std::vector<Need> needs(m_fieldOfColumn.size(), Need::Presence);
    for (std::size_t column = 0; column < needs.size(); ++column) {
        const int field = m_fieldOfColumn[column].field;
        if (m_hasTitle[column])
            needs[column] = field < 0 ? Need::Nothing : isFieldRead(field) ? Need::Content : Need::Row;
    }
    return needs;
}

// What a spreadsheet shows as "50%" it holds as 0.5.
void Reader::showPercentages(Row &row) const
{
    for (Cell &cell : row.cells) {
        if (!cell.isPercent)
            continue;
        cell.text = textOfPercent(cell.text.toDouble()) + QLatin1Char('%');
        cell.isNumber = false;
    }
}

void Reader::readRow(const Row &row)
{
    m_cells.clear();
    bool isBlank = true;
    for (const Cell &cell : row.cells) {
        if (cell.column < 1 || cell.column > maxColumns || cell.text.isEmpty())
            continue;
        const std::size_t column = std::size_t(cell.column);
        const bool isSpace =
            std::all_of(cell.text.begin(), cell.text.end(), [](QChar sign) { return sign.isSpace(); });
        if (column >= m_hasTitle.size() || !m_hasTitle[column]) {
            if (isSpace)
                continue;
            if (column >= m_untitled.size())
                m_untitled.resize(column + 1);
            if (m_untitled[column].cells++ == 0)
                m_untitled[column].firstRow = row.line;
            continue;
        }
        if (m_fieldOfColumn[column].field < 0)
            continue;
        m_cells.push_back({m_fieldOfColumn[column].field, &cell, &m_fieldOfColumn[column]});
        isBlank = isBlank && isSpace;
    }
    if (!isBlank)
        addRow(row, m_cells);
}

void Reader::reportUntitled() const
{
    for (std::size_t column = 0; column < m_untitled.size(); ++column) {
        const Untitled &untitled = m_untitled[column];
        if (untitled.cells > 0)
            report(untitled.firstRow, QString(),
                   KW_TEXT("column %1 has no title and %2 cells").arg(column).arg(untitled.cells),
                   KW_TEXT("not read"));
    }
}

// texts: "row %1", "%1, row %2", "row %1, '%2'", "%1, row %2, '%3'"
// texts: "line %1", "%1, line %2", "line %1, '%2'", "%1, line %2, '%3'"
QString Reader::place() const
{
    return m_name.isEmpty() ? m_reading.word : m_name + QLatin1String(", ") + m_reading.word;
}

void Reader::refuse(int row, const Cell *cell, const QString &what, const QString &instead)
{
    m_isRefused = m_isRefused || m_reading.isStrict;
    report(row, cell, what, m_reading.isStrict ? KW_TEXT("nothing was read") : instead);
}

void Reader::reportComma(int row, const Cell &cell, double value) const
{
    if (m_reading.comma == cellvalues::Comma::Groups && cellvalues::hasOddComma(cell))
        report(row, &cell, KW_TEXT("%1 has a comma that groups no digits"), KW_TEXT("read as %1").arg(value));
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
        report(row, titleOf(*cell), what.arg(shown(cell->text)), instead);
}

void Reader::report(int row, const QString &column, const QString &what, const QString &instead) const
{
    if (isCounting())
        m_findings->add(QString(), what);
    else if (m_findings)
        m_findings->add(place() + QLatin1Char(' ') + QString::number(row) +
                            (column.isEmpty() ? QString() : QLatin1String(", ") + shown(column)),
                        what, instead);
}
}
