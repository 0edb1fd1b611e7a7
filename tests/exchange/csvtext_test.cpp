// Delimited text: cells, lines and refusals.
#include "exchange/csvtext.h"
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace {

// The rows as one readable text: "1: a|b" is line 1 with two cells.
std::string picture(const QByteArray &bytes, const csv::Limits &limits = csv::Limits())
{
    csv::Table table;
    csv::Fault fault;
    if (!csv::parse(bytes, table, fault, limits))
        return "line " + std::to_string(fault.line) + ": " + fault.what.toStdString();
    QString text;
    for (const csv::Row &row : table.rows)
        text += QString::number(row.line) + QLatin1String(": ") + row.cells.join(QLatin1Char('|')) +
                QLatin1Char('\n');
    return text.toStdString();
}

struct CsvCase
{
    const char *name;
    QByteArray bytes;
    const char *picture;
};

// A literal that may hold zero bytes.
template <int size>
QByteArray bytes(const char (&text)[size])
{
    return QByteArray(text, size - 1);
}

TEST(CsvText, isCutIntoCells)
{
    const CsvCase cases[] = {
        {"commas", "a,b\n1,2\n", "1: a|b\n2: 1|2\n"},
        {"semicolonsWithCommasInside", "a;b\n1,5;2\n", "1: a|b\n2: 1,5|2\n"},
        {"delimiterInsideQuotesDoesNotCount", "\"a;b;c\",d\n", "1: a;b;c|d\n"},
        {"delimiterNamedByASpreadsheet", "sep=;\r\na,x;b\r\n", "2: a,x|b\n"},
        {"rowsWithoutTextAreLeftOutAndCounted", "a,b\n\n,\n1,2\n", "1: a|b\n4: 1|2\n"},
        {"byteOrderMark", "\xEF\xBB\xBFname,b\n", "1: name|b\n"},
        {"carriageReturnAlone", "a,b\r1,2\r", "1: a|b\n2: 1|2\n"},
        {"quoteInsideAPlainCell", "a\n5\" pipe\n", "1: a\n2: 5\" pipe\n"},
        {"linesInsideQuotesAreCounted", "a,b\n\"x\r\ny\",1\nz,2\n", "1: a|b\n2: x\r\ny|1\n4: z|2\n"},
        {"quoteNeverClosed", "a\nb\n\"c,\nd\n", "line 3: the quote opened here is never closed"},
        {"textBehindAQuote", "a\n\"b\"c,d\n", "line 2: text after a closing quote"},
        {"badUtf8", "a\nb\nc\xE9,d\n", "line 3: the text is not UTF-8"},
        {"overlongUtf8", "a\n\xC0\x80\n", "line 2: the text is not UTF-8"},
        {"surrogateInUtf8", "a\n\xED\xA0\x80\n", "line 2: the text is not UTF-8"},
        {"zeroByte", bytes("a\nb\0c\n"), "line 2: the text is not UTF-8"},
        {"utf16",
         "\xFF\xFE"
         "a",
         "line 0: the text is UTF-16"},
        {"archive", "PK\x03\x04", "line 0: not a CSV file but an archive or a workbook"}};
    for (const CsvCase &row : cases) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(picture(row.bytes), row.picture);
    }
}

TEST(CsvLimits, areNamedInTheRefusal)
{
    csv::Limits limits;
    limits.rows = 2;
    limits.columns = 3;
    limits.cellBytes = 4;
    limits.cells = 7;
    EXPECT_EQ(picture("a\nb\nc\n", limits), "line 3: more than 2 rows");
    EXPECT_EQ(picture("a,b,c,d\n", limits), "line 1: more than 3 columns");
    EXPECT_EQ(picture("a\n12345\n", limits), "line 2: a cell longer than 4 bytes");
    EXPECT_EQ(picture("a\n\"1\n2345\"\n", limits), "line 2: a cell longer than 4 bytes");
    EXPECT_EQ(picture(",,\n,,\n,,\n", limits), "line 3: more than 7 cells in the file");
    limits.bytes = 3;
    EXPECT_EQ(picture("abcd", limits), "line 0: longer than 3 bytes");
}

// What is written is read back, whatever the cells hold.
RC_GTEST_PROP(CsvText, writtenIsReadBack, ())
{
    const auto cell =
        rc::gen::container<std::string>(rc::gen::element(',', ';', '"', '\n', '\r', ' ', 'a', '=', '\t'));
    const auto rows =
        *rc::gen::container<std::vector<std::pair<std::string, std::string>>>(rc::gen::pair(cell, cell));
    csv::Table table;
    table.carriageReturns = *rc::gen::arbitrary<bool>();
    table.rows.push_back({1, {QStringLiteral("x"), QStringLiteral("y")}});
    for (const auto &[first, second] : rows)
        table.rows.push_back(
            {0, {QString::fromStdString(first), QLatin1Char('z') + QString::fromStdString(second)}});
    csv::Table again;
    csv::Fault fault;
    RC_ASSERT(csv::parse(csv::toBytes(table), again, fault));
    RC_ASSERT(again.rows.size() == table.rows.size());
    for (std::size_t i = 0; i < again.rows.size(); ++i)
        RC_ASSERT(again.rows[i].cells == table.rows[i].cells);
}

}
