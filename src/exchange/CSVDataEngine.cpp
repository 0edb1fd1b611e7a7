#include "exchange/CSVDataEngine.h"
#include "exchange/csvplan.h"
#include "exchange/csvtext.h"
#include "exchange/planimport.h"
#include "model/kwdocument.h"
#include "support/atomicfile.h"
#include <QFile>

namespace {

// The rows of a table, the titles first.
class TableSource : public sheetrows::Source
{
public:
    explicit TableSource(const csv::Table &table, csv::Table *givenUp = nullptr)
        : m_table(table)
        , m_givenUp(givenUp)
    {
    }
    std::size_t rowsAtMost() const override { return m_table.rows.size(); }
    bool next(sheetrows::Row &row) override
    {
        if (m_next == m_table.rows.size())
            return false;
        const csv::Row &from = m_table.rows[m_next++];
        row.number = int(m_next);
        row.line = from.line;
        row.cells.clear();
        for (int column = 0; column < from.cells.size(); ++column) {
            if (!from.cells.at(column).isEmpty())
                row.cells.push_back({column + 1, from.cells.at(column)});
        }
        // Two copies of all cells would be the most that an import holds.
        if (m_givenUp && m_next > 1)
            m_givenUp->rows[m_next - 1].cells = QStringList();
        return true;
    }

private:
    const csv::Table &m_table;
    csv::Table *const m_givenUp;
    std::size_t m_next = 0;
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

bool CSVDataEngine::readTable(const QString &path, csv::Table &table)
{
    const csv::Limits limits;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        m_findings.add(path, file.errorString(), QStringLiteral("nothing imported"));
        return false;
    }
    // One byte more tells that there are too many.
    csv::Fault fault;
    if (csv::parse(file.read(limits.bytes + 1), table, fault, limits))
        return true;
    m_findings.add(fault.line > 0 ? path + QStringLiteral(", line %1").arg(fault.line) : path, fault.what,
                   fault.hint);
    return false;
}

bool CSVDataEngine::importFile(const QString &path)
{
    m_findings.clear();
    csv::Table tasks, resources, assignments;
    if (!readTable(path, tasks) || (!m_resourceFile.isEmpty() && !readTable(m_resourceFile, resources)) ||
        (!m_assignmentFile.isEmpty() && !readTable(m_assignmentFile, assignments)))
        return false;
    return importTables(tasks, m_resourceFile.isEmpty() ? nullptr : &resources,
                        m_assignmentFile.isEmpty() ? nullptr : &assignments);
}

bool CSVDataEngine::importTables(csv::Table &tasks, const csv::Table *resources,
                                 const csv::Table *assignments, bool keepsCells)
{
    m_findings.clear();
    if (!m_document)
        return false;
    TableSource taskRows(tasks, keepsCells ? nullptr : &tasks);
    const csv::Table none;
    TableSource resourceRows(resources ? *resources : none);
    TableSource assignmentRows(assignments ? *assignments : none);
    planimport::Book book;
    book.sheets = {&taskRows, resources ? &resourceRows : nullptr, assignments ? &assignmentRows : nullptr};
    book.names = {QString(), QStringLiteral("resources"), QStringLiteral("assignments")};
    return planimport::importBook(*m_document, book, readingOf(m_placesBehind), &m_findings, &m_imported,
                                  m_start);
}

bool CSVDataEngine::writeFile(const QString &path, const QByteArray &bytes)
{
    QString error;
    if (atomicfile::replace(path, bytes, &error))
        return true;
    m_findings.add(path, error, QStringLiteral("a file that stood there was kept"));
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
