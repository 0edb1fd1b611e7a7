#include "exchange/csvtext.h"
#include "support/bytemarks.h"
#include <cstring>
#include <limits>

namespace csv {

namespace {

QString t(const char *text)
{
    return QString::fromLatin1(text);
}

constexpr char byteOrderMarkText[] = "\xEF\xBB\xBF";
constexpr qint64 progressStepBytes = 1024 * 1024;

// The length of the well-formed UTF-8 sequence at `at`, 0 when it is none (overlong forms, surrogates and
// values past U+10FFFF are none).
int sequenceLength(const uchar *at, qint64 left)
{
    const uchar first = *at;
    const auto follows = [at, left](int count) {
        if (left <= count)
            return false;
        for (int i = 1; i <= count; ++i)
            if ((at[i] & 0xC0) != 0x80)
                return false;
        return true;
    };
    if (first < 0x80)
        return 1;
    if (first >= 0xC2 && first <= 0xDF)
        return follows(1) ? 2 : 0;
    if (first >= 0xE0 && first <= 0xEF) {
        if (!follows(2) || (first == 0xE0 && at[1] < 0xA0) || (first == 0xED && at[1] > 0x9F))
            return 0;
        return 3;
    }
    if (first >= 0xF0 && first <= 0xF4) {
        if (!follows(3) || (first == 0xF0 && at[1] < 0x90) || (first == 0xF4 && at[1] > 0x8F))
            return 0;
        return 4;
    }
    return 0;
}

// Eight bytes of ASCII without a zero.
bool arePlain(const char *at)
{
    constexpr quint64 ones = 0x0101010101010101ULL;
    constexpr quint64 tops = 0x8080808080808080ULL;
    quint64 word = 0;
    std::memcpy(&word, at, sizeof(word));
    return ((word | (word - ones)) & tops) == 0;
}

// Where the first byte stands that is no UTF-8 text; null when there is none.
const char *badText(const char *begin, const char *end)
{
    for (const char *at = begin; at < end;) {
        if (end - at >= qint64(sizeof(quint64)) && arePlain(at)) {
            at += sizeof(quint64);
            continue;
        }
        const int length = *at == '\0' ? 0 : sequenceLength(reinterpret_cast<const uchar *>(at), end - at);
        if (length == 0)
            return at;
        at += length;
    }
    return nullptr;
}

bool isLineEnd(const char *at, const char *end)
{
    return *at == '\n' || (*at == '\r' && (at + 1 == end || at[1] != '\n'));
}

int lineOf(const char *place, const char *begin, const char *end)
{
    int line = 1;
    for (const char *at = begin; at < place; ++at)
        line += isLineEnd(at, end);
    return line;
}

// The delimiter that stands most often in the first row, outside quotes.
char sniffedDelimiter(const char *begin, const char *end)
{
    constexpr char candidates[] = {',', ';', '\t'};
    int counts[] = {0, 0, 0};
    bool quotes = false;
    for (const char *at = begin; at < end && (quotes || (*at != '\n' && *at != '\r')); ++at) {
        if (*at == '"')
            quotes = !quotes;
        for (int i = 0; i < 3 && !quotes; ++i)
            counts[i] += *at == candidates[i];
    }
    int best = 0;
    for (int i = 1; i < 3; ++i)
        if (counts[i] > counts[best])
            best = i;
    return candidates[best];
}
}

// Walks the bytes once and cuts them into cells.
class Scanner
{
public:
    Scanner(const char *at, const char *end, char delimiter, int line, const Limits &limits)
        : m_at(at)
        , m_end(end)
        , m_delimiter(delimiter)
        , m_line(line)
        , m_limits(limits)
        , m_cellEnds(at, end, {delimiter, '\n', '\r', '\n'})
    {
    }

    const char *at() const { return m_at; }
    int line() const { return m_line; }
    bool isAtEnd() const { return m_at == m_end; }
    bool rowHasText() const { return m_rowHasText; }
    bool hasCarriageReturns() const { return m_carriageReturns; }

    // Who only checks takes no cells.
    bool readRow(std::vector<CellRange> *cells, Fault &fault)
    {
        const int line = m_line;
        if (cells)
            cells->clear();
        m_rowHasText = false;
        for (qint64 columns = 0;; ++columns) {
            if (columns >= m_limits.columns)
                return refuse(fault, line, t("more than %1 columns").arg(m_limits.columns));
            if (++m_cells > m_limits.cells)
                return refuse(fault, line, t("more than %1 cells in the file").arg(m_limits.cells));
            CellRange cell;
            if (!readCell(cell, fault))
                return false;
            m_rowHasText |= cell.size > 0;
            if (cells)
                cells->push_back(cell);
            if (m_at == m_end || *m_at != m_delimiter)
                break;
            ++m_at;
        }
        takeLineEnd();
        return true;
    }

    static bool refuse(Fault &fault, int line, const QString &what, const QString &hint = QString())
    {
        fault = {line, what, hint};
        return false;
    }

private:
    bool readCell(CellRange &cell, Fault &fault)
    {
        return m_at < m_end && *m_at == '"' ? readQuotedCell(cell, fault) : readPlainCell(cell, fault);
    }

    // A quote inside an unquoted cell is a character like any other (5" pipe).
    bool readPlainCell(CellRange &cell, Fault &fault)
    {
        const char *const begin = m_at;
        m_at = m_cellEnds.next(begin);
        if (m_at - begin > m_limits.cellBytes)
            return refuse(fault, m_line, t("a cell longer than %1 bytes").arg(m_limits.cellBytes));
        cell = {begin, int(m_at - begin), false};
        return true;
    }

    bool readQuotedCell(CellRange &cell, Fault &fault)
    {
        const int openedAt = m_line;
        qint64 size = 0; // of what the cell says
        ++m_at;
        cell.begin = m_at;
        for (;;) {
            const char *const begin = m_at;
            while (m_at < m_end && *m_at != '"') {
                m_line += isLineEnd(m_at, m_end);
                ++m_at;
            }
            size += m_at - begin;
            if (size > m_limits.cellBytes)
                return refuse(fault, openedAt, t("a cell longer than %1 bytes").arg(m_limits.cellBytes),
                              t("a quote may be missing its partner"));
            if (m_at == m_end)
                return refuse(fault, openedAt, t("the quote opened here is never closed"),
                              t("write a quote inside a quoted cell twice"));
            ++m_at;
            if (m_at == m_end || *m_at != '"')
                break;
            cell.hasQuotes = true;
            ++size;
            ++m_at;
        }
        cell.size = int(m_at - 1 - cell.begin);
        while (m_at < m_end && *m_at == ' ')
            ++m_at;
        if (m_at < m_end && *m_at != m_delimiter && *m_at != '\n' && *m_at != '\r')
            return refuse(fault, m_line, t("text after a closing quote"),
                          t("write a quote inside a quoted cell twice"));
        return true;
    }

    void takeLineEnd()
    {
        if (m_at == m_end)
            return;
        if (*m_at == '\r' && m_at + 1 < m_end && m_at[1] == '\n') {
            m_carriageReturns = true;
            ++m_at;
        }
        ++m_at;
        ++m_line;
    }

    const char *m_at;
    const char *const m_end;
    const char m_delimiter;
    int m_line;
    const Limits &m_limits;
    ByteMarks m_cellEnds; // outside quotes
    qint64 m_cells = 0;
    bool m_rowHasText = false;
    bool m_carriageReturns = false;
};

namespace {

// Of a text that has been checked.
const Limits &noLimits()
{
    constexpr int most = std::numeric_limits<int>::max();
    static const Limits limits{most, most, most, most, std::numeric_limits<qint64>::max()};
    return limits;
}

bool isOtherKnownFile(const QByteArray &bytes, Fault &fault)
{
    if (bytes.startsWith("PK\x03\x04") || bytes.startsWith("\xD0\xCF\x11\xE0")) {
        fault = {0, t("not a CSV file but an archive or a workbook"),
                 t("save the task sheet as CSV (UTF-8)")};
        return true;
    }
    if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF")) {
        fault = {0, t("the text is UTF-16"), t("save the file as CSV (UTF-8)")};
        return true;
    }
    return false;
}
}

bool check(const QByteArray &bytes, Text &text, Fault &fault, const Limits &limits,
           const std::function<void(qint64)> &progress)
{
    text = Text();
    if (bytes.size() > limits.bytes) {
        fault = {0, t("longer than %1 bytes").arg(limits.bytes), QString()};
        return false;
    }
    if (isOtherKnownFile(bytes, fault))
        return false;
    const char *begin = bytes.constData();
    const char *end = begin + bytes.size();
    if (bytes.startsWith(byteOrderMarkText)) {
        text.byteOrderMark = true;
        begin += 3;
    }
    if (const char *const bad = badText(begin, end)) {
        fault = {lineOf(bad, begin, end), t("the text is not UTF-8"), t("save the file as CSV (UTF-8)")};
        return false;
    }
    char delimiter = 0;
    // Spreadsheet programs write this line to name the delimiter.
    if (end - begin > 5 && qstrnicmp(begin, "sep=", 4) == 0 && (begin[5] == '\r' || begin[5] == '\n')) {
        delimiter = begin[4];
        begin += begin[5] == '\r' && end - begin > 6 && begin[6] == '\n' ? 7 : 6;
        ++text.firstLine;
    }
    if (delimiter != ',' && delimiter != ';' && delimiter != '\t')
        delimiter = sniffedDelimiter(begin, end);
    text.delimiter = QLatin1Char(delimiter);
    text.begin = int(begin - bytes.constData());

    Scanner scanner(begin, end, delimiter, text.firstLine, limits);
    qint64 nextReport = progressStepBytes;
    while (!scanner.isAtEnd()) {
        const int line = scanner.line();
        if (!scanner.readRow(nullptr, fault))
            return false;
        if (scanner.rowHasText() && ++text.rows > limits.rows)
            return Scanner::refuse(fault, line, t("more than %1 rows").arg(limits.rows));
        if (progress && scanner.at() - begin >= nextReport) {
            progress(scanner.at() - begin);
            nextReport = scanner.at() - begin + progressStepBytes;
        }
    }
    text.carriageReturns = scanner.hasCarriageReturns();
    text.bytes = bytes;
    return true;
}

Table tableOf(const Text &text)
{
    Table table;
    table.byteOrderMark = text.byteOrderMark;
    table.delimiter = text.delimiter;
    table.carriageReturns = text.carriageReturns;
    table.rows.reserve(std::size_t(text.rows));
    for (Rows rows(text); rows.next();) {
        Row row;
        row.line = rows.line();
        row.cells.reserve(int(rows.cells().size()));
        for (const CellRange &cell : rows.cells()) {
            row.cells.append(QString());
            Rows::read(cell, row.cells.last());
        }
        table.rows.push_back(std::move(row));
    }
    return table;
}

bool parse(const QByteArray &bytes, Table &table, Fault &fault, const Limits &limits,
           const std::function<void(qint64)> &progress)
{
    table = Table();
    Text text;
    if (!check(bytes, text, fault, limits, progress))
        return false;
    table = tableOf(text);
    return true;
}

Rows::Rows(const Text &text)
    : m_bytes(text.bytes)
    , m_scanner(std::make_unique<Scanner>(m_bytes.constData() + text.begin,
                                          m_bytes.constData() + m_bytes.size(), text.delimiter.toLatin1(),
                                          text.firstLine, noLimits()))
{
}

Rows::~Rows() = default;

bool Rows::next()
{
    Fault fault;
    bool hasText = false;
    while (!hasText && !m_scanner->isAtEnd()) {
        m_rowLine = m_scanner->line();
        if (!m_scanner->readRow(&m_cells, fault))
            break;
        hasText = m_scanner->rowHasText();
    }
    return hasText;
}

namespace {

// Whether all bytes are ASCII. Eight of them are widened at once, by way of a copy: it is clear of it that
// neither text lies in the other.
bool widen(const char *from, int size, ushort *to)
{
    constexpr int blockBytes = 8;
    quint64 seen = 0;
    const auto widenBlock = [&seen, from, to](int at, int bytes) {
        uchar block[blockBytes] = {};
        std::memcpy(block, from + at, std::size_t(bytes));
        quint64 word = 0;
        std::memcpy(&word, block, blockBytes);
        seen |= word;
        ushort wide[blockBytes];
        for (int i = 0; i < blockBytes; ++i)
            wide[i] = block[i];
        std::memcpy(to + at, wide, std::size_t(bytes) * sizeof(ushort));
    };
    if (size < blockBytes) {
        widenBlock(0, size);
    } else {
        for (int at = 0; at < size - blockBytes; at += blockBytes)
            widenBlock(at, blockBytes);
        widenBlock(size - blockBytes, blockBytes); // some of it once more
    }
    constexpr quint64 beyondAscii = 0x8080808080808080ULL;
    return (seen & beyondAscii) == 0;
}
}

void Rows::read(const CellRange &cell, QString &text)
{
    if (text.isDetached() && text.capacity() >= cell.size)
        text.resize(cell.size);
    else
        text = QString(cell.size, Qt::Uninitialized);
    if (!cell.hasQuotes && widen(cell.begin, cell.size, reinterpret_cast<ushort *>(text.data())))
        return;
    const QByteArray bytes = QByteArray::fromRawData(cell.begin, cell.size);
    text = QString::fromUtf8(cell.hasQuotes ? QByteArray(bytes).replace("\"\"", "\"") : bytes);
}

QString quoted(const QString &text, QChar delimiter)
{
    bool needed = text.startsWith(QLatin1Char(' ')) || text.endsWith(QLatin1Char(' '));
    for (const QChar c : text)
        needed |= c == delimiter || c == QLatin1Char('"') || c == QLatin1Char('\n') || c == QLatin1Char('\r');
    if (!needed)
        return text;
    QString result = text;
    result.replace(QLatin1String("\""), QLatin1String("\"\""));
    return QLatin1Char('"') + result + QLatin1Char('"');
}

QByteArray toBytes(const Table &table)
{
    const QByteArray lineEnd = table.carriageReturns ? "\r\n" : "\n";
    QByteArray bytes;
    if (table.byteOrderMark)
        bytes += byteOrderMarkText;
    for (const Row &row : table.rows) {
        QString line;
        for (int i = 0; i < row.cells.size(); ++i) {
            if (i)
                line += table.delimiter;
            line += quoted(row.cells.at(i), table.delimiter);
        }
        bytes += line.toUtf8() + lineEnd;
    }
    return bytes;
}
}
