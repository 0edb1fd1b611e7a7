#pragma once
#include "kwgantt_export.h"
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>
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

// `progress` hears the bytes read so far. False and a fault when the text is not such a file.
KWGANTT_EXPORT bool parse(const QByteArray &bytes, Table &table, Fault &fault,
                          const Limits &limits = Limits(),
                          const std::function<void(qint64)> &progress = nullptr);

// One cell as it is written: quoted when it must be.
KWGANTT_EXPORT QString quoted(const QString &text, QChar delimiter = QLatin1Char(','));
// Rows as a file's bytes, with the table's delimiter, mark and line ends.
KWGANTT_EXPORT QByteArray toBytes(const Table &table);
}
