#include "exchange/CSVDataEngine.h"
#include "exchange/csvplan.h"
#include "exchange/csvtext.h"
#include "exchange/planimport.h"
#include "model/kwdocument.h"
#include "support/atomicfile.h"
#include "support/said.h"
#include <QFile>
#include <algorithm>
#include <optional>

namespace {

// The rows of a text, the titles first.
class TextSource : public sheetrows::Source
{
    using Need = sheetrows::Need;

public:
    explicit TextSource(csv::Text text)
        : m_rowCount(text.rows)
    {
        m_rows.emplace(text);
    }
    std::size_t rowsAtMost() const override { return std::size_t(m_rowCount); }
    // Cells keep their memory from one row to the next.
    bool next(sheetrows::Row &row) override
    {
        if (!m_rows || !m_rows->next()) {
            m_rows.reset(); // the bytes are needed no more
            return false;
        }
        row.number = ++m_number;
        row.line = m_rows->line();
        std::size_t count = 0;
        bool isBlank = true; // as far as is sure
        for (std::size_t i = 0; i < m_rows->cells().size(); ++i) {
            const csv::CellRange &from = m_rows->cells()[i];
            const Need need = needOf(i + 1);
            if (from.size == 0 || need == Need::Nothing || (need == Need::Row && !isBlank))
                continue;
            if (count == row.cells.size())
                row.cells.emplace_back();
            sheetrows::Cell &cell = row.cells[count++];
            cell.column = int(i) + 1;
            if (need == Need::Content || !hasSigns(from))
                csv::Rows::read(from, cell.text);
            else
                cell.text = m_anyText;
            isBlank = isBlank && (need == Need::Presence || !hasSigns(from));
        }
        row.cells.resize(count);
        return true;
    }
    void readOnly(const std::vector<Need> &needs) override { m_needs = needs; }

private:
    Need needOf(std::size_t column) const
    {
        if (column < m_needs.size())
            return m_needs[column];
        return m_needs.empty() ? Need::Content : Need::Presence;
    }
    // Whether a cell surely has more than blanks.
    static bool hasSigns(const csv::CellRange &cell)
    {
        return std::any_of(cell.begin, cell.begin + cell.size,
                           [](char sign) { return sign > ' ' && sign <= '~'; });
    }

    const QString m_anyText = QStringLiteral("-");
    std::vector<Need> m_needs; // by column; empty: all of them have content
    const int m_rowCount;
    std::optional<csv::Rows> m_rows;
    int m_number = 0;
};

sheetrows::Reading readingOf(bool placesBehind)
{
    sheetrows::Reading reading;
    reading.isExact = false;
    reading.isStrict = true;
    reading.linksById = true;
    reading.length = planimport::LengthRule::Decides;
    reading.plainPercent = true;
    reading.comparesWork = true;
    reading.placesBehind = placesBehind;
    reading.comma = cellvalues::Comma::Decimal;
    reading.word = QStringLiteral("line");
    return reading;
}
}

CSVDataEngine::CSVDataEngine(KWDocument *document)
    : m_document(document)
{
}

CSVDataEngine::~CSVDataEngine() = default;

bool CSVDataEngine::readText(const QString &path, csv::Text &text)
{
    const csv::Limits limits;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        m_findings.add(path, file.errorString(), KW_TEXT("nothing imported"));
        return false;
    }
    // One byte more tells that there are too many.
    csv::Fault fault;
    if (csv::check(file.read(limits.bytes + 1), text, fault, limits))
        return true;
    m_findings.add(fault.line > 0 ? path + QStringLiteral(", line %1").arg(fault.line) : path, fault.what,
                   fault.hint);
    return false;
}

bool CSVDataEngine::importFile(const QString &path)
{
    m_findings.clear();
    csv::Text tasks, resources, assignments;
    if (!readText(path, tasks) || (!m_resourceFile.isEmpty() && !readText(m_resourceFile, resources)) ||
        (!m_assignmentFile.isEmpty() && !readText(m_assignmentFile, assignments)))
        return false;
    return importTexts(std::move(tasks), m_resourceFile.isEmpty() ? nullptr : &resources,
                       m_assignmentFile.isEmpty() ? nullptr : &assignments);
}

bool CSVDataEngine::importTexts(csv::Text tasks, const csv::Text *resources, const csv::Text *assignments)
{
    m_findings.clear();
    if (!m_document)
        return false;
    TextSource taskRows(std::move(tasks));
    const csv::Text none;
    TextSource resourceRows(resources ? *resources : none);
    TextSource assignmentRows(assignments ? *assignments : none);
    planimport::Book book;
    book.sheets = {&taskRows, resources ? &resourceRows : nullptr, assignments ? &assignmentRows : nullptr};
    book.names = {QString(), QStringLiteral("resources"), KW_TEXT("assignments")};
    return planimport::importBook(*m_document, book, readingOf(m_placesBehind), &m_findings, &m_imported,
                                  m_start);
}

bool CSVDataEngine::writeFile(const QString &path, const QByteArray &bytes)
{
    QString error;
    if (atomicfile::replace(path, bytes, &error))
        return true;
    m_findings.add(path, KW_TEXT("cannot be written: %1").arg(error),
                   KW_TEXT("a file that stood there was kept"));
    return false;
}

bool CSVDataEngine::exportFile(const QString &path)
{
    m_findings.clear();
    if (!m_document)
        return false;
    ImportedPlan imported = m_imported;
    if (imported.codes.isEmpty())
        imported.codes = csvplan::outlineCodes(*m_document);
    return writeFile(path, csvplan::Rows(*m_document, imported).bytes()) &&
           (m_resourceFile.isEmpty() || writeFile(m_resourceFile, csvplan::resources(*m_document))) &&
           (m_assignmentFile.isEmpty() || writeFile(m_assignmentFile, csvplan::assignments(*m_document)));
}
