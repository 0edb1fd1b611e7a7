#pragma once
#include "kwgantt_export.h"
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <vector>

// Delimited text: UTF-8, quotes as in RFC 4180, comma, semicolon or tab.
namespace csv {

// What a file may hold at most; a hostile one is refused before it fills the memory.
struct Limits
{
    qint64 bytes = 128 * 1024 * 1024;
    int rows = 1000000;
    int columns = 1000;
    int cellBytes = 1024 * 1024;
    qint64 cells = 10000000;
};

struct Row
{
    int line = 0; // of the file, from 1, where the row begins
    QStringList cells;
};

struct Table
{
    QChar delimiter = QLatin1Char(',');
    bool byteOrderMark = false;
    bool carriageReturns = false; // lines end in CR LF
    std::vector<Row> rows;        // rows without any text are left out
};

// Why a text could not be read.
struct Fault
{
    int line = 0; // 0: the whole file
    QString what;
    QString hint;
};

// The bytes of a file that are known to be such a text; Rows reads them.
struct Text
{
    QByteArray bytes;
    QChar delimiter = QLatin1Char(',');
    bool byteOrderMark = false;
    bool carriageReturns = false; // lines end in CR LF
    int begin = 0;                // where the rows begin, in bytes
    int firstLine = 1;            // of the file, that the first row has
    int rows = 0;                 // rows without any text are left out
};

// Checks a whole file without making its cells. `progress` hears the bytes read so far. False and a fault
// when the text is not such a file.
KWGANTT_EXPORT bool check(const QByteArray &bytes, Text &text, Fault &fault, const Limits &limits = Limits(),
                          const std::function<void(qint64)> &progress = nullptr);
// All cells of a text at once.
KWGANTT_EXPORT Table tableOf(const Text &text);
// Both.
KWGANTT_EXPORT bool parse(const QByteArray &bytes, Table &table, Fault &fault,
                          const Limits &limits = Limits(),
                          const std::function<void(qint64)> &progress = nullptr);

// Where a cell stands in the text.
struct CellRange
{
    const char *begin = nullptr; // behind the quote that opens it
    int size = 0;
    bool hasQuotes = false; // quotes in it stand twice
};

class Scanner;

// The rows of a text that has been checked, one after the other.
class KWGANTT_EXPORT Rows
{
public:
    explicit Rows(const Text &text); // shares the bytes
    ~Rows();
    bool next(); // false after the last
    int line() const { return m_rowLine; }
    const std::vector<CellRange> &cells() const { return m_cells; }
    // The cell's text into a string whose memory is used again if it can be.
    static void read(const CellRange &cell, QString &text);

private:
    const QByteArray m_bytes;
    const std::unique_ptr<Scanner> m_scanner;
    int m_rowLine = 0;
    std::vector<CellRange> m_cells;
};

// One cell as it is written: quoted when it must be.
KWGANTT_EXPORT QString quoted(const QString &text, QChar delimiter = QLatin1Char(','));
// Rows as a file's bytes, with the table's delimiter, mark and line ends.
KWGANTT_EXPORT QByteArray toBytes(const Table &table);
}
