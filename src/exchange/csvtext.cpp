#include "exchange/csvtext.h"

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

// The line of the first byte that is no UTF-8 text; 0 when there is none.
int lineOfBadText(const char *begin, const char *end)
{
    int line = 1;
    for (const char *at = begin; at < end;) {
        if (*at == '\0')
            return line;
        const int length = sequenceLength(reinterpret_cast<const uchar *>(at), end - at);
        if (length == 0)
            return line;
        if (*at == '\n' || (*at == '\r' && (at + 1 == end || at[1] != '\n')))
            ++line;
        at += length;
    }
    return 0;
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

// Walks the bytes once and cuts them into cells.
class Parser
{
public:
    Parser(const char *begin, const char *end, char delimiter, int firstLine, const Limits &limits)
        : m_begin(begin)
        , m_at(begin)
        , m_end(end)
        , m_delimiter(delimiter)
        , m_line(firstLine)
        , m_limits(limits)
    {
    }

    bool run(Table &table, Fault &fault, const std::function<void(qint64)> &progress)
    {
        qint64 nextReport = progressStepBytes;
        while (m_at < m_end) {
            Row row;
            row.line = m_line;
            if (!readRow(row, fault))
                return false;
            if (m_rowHasText) {
                if (int(table.rows.size()) >= m_limits.rows)
                    return refuse(fault, row.line, t("more than %1 rows").arg(m_limits.rows));
                table.rows.push_back(std::move(row));
            }
            if (progress && m_at - m_begin >= nextReport) {
                progress(m_at - m_begin);
                nextReport = m_at - m_begin + progressStepBytes;
            }
        }
        table.carriageReturns = m_carriageReturns;
        return true;
    }

private:
    static bool refuse(Fault &fault, int line, const QString &what, const QString &hint = QString())
    {
        fault = {line, what, hint};
        return false;
    }

    bool readRow(Row &row, Fault &fault)
    {
        m_rowHasText = false;
        for (;;) {
            if (row.cells.size() >= m_limits.columns)
                return refuse(fault, row.line, t("more than %1 columns").arg(m_limits.columns));
            if (++m_cells > m_limits.cells)
                return refuse(fault, row.line, t("more than %1 cells in the file").arg(m_limits.cells));
            QString cell;
            if (!readCell(cell, fault))
                return false;
            m_rowHasText |= !cell.isEmpty();
            row.cells.append(cell);
            if (m_at == m_end || *m_at != m_delimiter)
                break;
            ++m_at;
        }
        takeLineEnd();
        return true;
    }

    bool readCell(QString &cell, Fault &fault)
    {
        return m_at < m_end && *m_at == '"' ? readQuotedCell(cell, fault) : readPlainCell(cell, fault);
    }

    // A quote inside an unquoted cell is a character like any other (5" pipe).
    bool readPlainCell(QString &cell, Fault &fault)
    {
        const char *begin = m_at;
        while (m_at < m_end && *m_at != m_delimiter && *m_at != '\n' && *m_at != '\r')
            ++m_at;
        if (m_at - begin > m_limits.cellBytes)
            return refuse(fault, m_line, t("a cell longer than %1 bytes").arg(m_limits.cellBytes));
        cell = QString::fromUtf8(begin, int(m_at - begin));
        return true;
    }

    bool readQuotedCell(QString &cell, Fault &fault)
    {
        const int openedAt = m_line;
        QByteArray bytes;
        ++m_at;
        for (;;) {
            const char *begin = m_at;
            while (m_at < m_end && *m_at != '"') {
                if (*m_at == '\n' || (*m_at == '\r' && (m_at + 1 == m_end || m_at[1] != '\n')))
                    ++m_line;
                ++m_at;
            }
            if (bytes.size() + (m_at - begin) > m_limits.cellBytes)
                return refuse(fault, openedAt, t("a cell longer than %1 bytes").arg(m_limits.cellBytes),
                              t("a quote may be missing its partner"));
            bytes.append(begin, int(m_at - begin));
            if (m_at == m_end)
                return refuse(fault, openedAt, t("the quote opened here is never closed"),
                              t("write a quote inside a quoted cell twice"));
            ++m_at;
            if (m_at == m_end || *m_at != '"')
                break;
            bytes.append('"');
            ++m_at;
        }
        while (m_at < m_end && *m_at == ' ')
            ++m_at;
        if (m_at < m_end && *m_at != m_delimiter && *m_at != '\n' && *m_at != '\r')
            return refuse(fault, m_line, t("text after a closing quote"),
                          t("write a quote inside a quoted cell twice"));
        cell = QString::fromUtf8(bytes);
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

    const char *m_begin;
    const char *m_at;
    const char *m_end;
    char m_delimiter;
    int m_line;
    const Limits &m_limits;
    qint64 m_cells = 0;
    bool m_rowHasText = false;
    bool m_carriageReturns = false;
};

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

bool parse(const QByteArray &bytes, Table &table, Fault &fault, const Limits &limits,
           const std::function<void(qint64)> &progress)
{
    table = Table();
    if (bytes.size() > limits.bytes) {
        fault = {0, t("longer than %1 bytes").arg(limits.bytes), QString()};
        return false;
    }
    if (isOtherKnownFile(bytes, fault))
        return false;
    const char *begin = bytes.constData();
    const char *end = begin + bytes.size();
    if (bytes.startsWith(byteOrderMarkText)) {
        table.byteOrderMark = true;
        begin += 3;
    }
    if (const int line = lineOfBadText(begin, end)) {
        fault = {line, t("the text is not UTF-8"), t("save the file as CSV (UTF-8)")};
        return false;
    }
    int firstLine = 1;
    char delimiter = 0;
    // Spreadsheet programs write this line to name the delimiter.
    if (end - begin > 5 && qstrnicmp(begin, "sep=", 4) == 0 && (begin[5] == '\r' || begin[5] == '\n')) {
        delimiter = begin[4];
        begin += begin[5] == '\r' && end - begin > 6 && begin[6] == '\n' ? 7 : 6;
        ++firstLine;
    }
    if (delimiter != ',' && delimiter != ';' && delimiter != '\t')
        delimiter = sniffedDelimiter(begin, end);
    table.delimiter = QLatin1Char(delimiter);
    return Parser(begin, end, delimiter, firstLine, limits).run(table, fault, progress);
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
