#include "exchange/BasicExcel.h"
#include "exchange/biff/cells.h"
#include "exchange/biff/strings.h"
#include "support/folder.h"
#include "support/rawbiff.h"
#include <QStringList>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace {

using rawbiff::Book;
using rawbiff::bytes;
using rawbiff::record;
using rawbiff::textOf;

// ---- Packed numbers ---------------------------------------------------------------------------------------

TEST(Packed, numbersAreUnpacked)
{
    using Value = biff::Value;
    const struct
    {
        quint32 packed;
        Value::Kind kind;
        double number;
    } cases[] = {{5 << 2 | 2, Value::integer, 5},
                 {quint32(-7) << 2 | 2, Value::integer, -7},
                 {12345 << 2 | 3, Value::real, 123.45},
                 {12300 << 2 | 3, Value::integer, 123},
                 {quint32(-1) << 2 | 3, Value::real, -0.01},
                 {0x40590000, Value::real, 100},
                 {0x40590001, Value::real, 1},
                 {0x80000002, Value::integer, -536870912},
                 {0x7FFFFFFE, Value::integer, 536870911}};
    for (const auto &one : cases) {
        const Value value = biff::unpackRk(one.packed);
        EXPECT_EQ(value.kind(), one.kind) << one.number;
        EXPECT_EQ(one.kind == Value::integer ? value.asInteger() : value.asReal(), one.number);
        // We leave hundredths alone.
        if (!(one.packed & 1)) {
            EXPECT_EQ(biff::packRk(value), one.packed) << one.number;
        }
    }
    EXPECT_FALSE(biff::packRk(Value::ofInteger(536870912)) || biff::packRk(Value::ofInteger(-536870913)));
    EXPECT_FALSE(biff::packRk(Value::ofReal(0.1)));
}

RC_GTEST_PROP(Packed, onlyWhatComesBackIsPacked, (double number, int integer))
{
    for (const biff::Value &value :
         {biff::Value::ofReal(number), biff::Value::ofReal(integer / 4.0), biff::Value::ofInteger(integer)}) {
        const auto packed = biff::packRk(value);
        if (!packed)
            continue;
        const biff::Value again = biff::unpackRk(*packed);
        RC_ASSERT(again.kind() == value.kind());
        RC_ASSERT(again.asReal() == value.asReal());
        RC_ASSERT(again.asInteger() == value.asInteger());
    }
}

// ---- Shared texts -----------------------------------------------------------------------------------------

// Cells A1, A2 ... with the texts in their order.
QByteArray labels(int count)
{
    QByteArray all;
    for (int row = 0; row < count; ++row)
        all += record(0x00FD, bytes(qPrintable(QStringLiteral("w%1 w0 w15 u%1").arg(row))));
    return all;
}

struct Piece
{
    const char *name; // of what a cut behind it is inside
    QByteArray bytes;
    int cutFlag = -1; // which a Continue begins with when the cut is inside this piece
};

// The table as the format has it: plain, wide, rich, phonetic, and both.
QVector<Piece> tableOfTexts()
{
    const auto narrow = [](const char *text) { return Piece{"narrow", text, 0}; };
    const auto wide = [](const char *hex) { return Piece{"wide", bytes(hex), 1}; };
    const QByteArray phonetic = bytes("01000a000000000000000000");
    return {{"", bytes("u6 u6")}, {"", bytes("w5 00")},           narrow("plain"),
            {"", bytes("w3 01")}, wide("b103 b203 b303"),         {"", bytes("w4 08 w2")},
            narrow("rich"),       {"runs", bytes("w0 w1 w2 w3")}, {"", bytes("w2 05 u12")},
            wide("fb4e a152"),    {"phonetic", phonetic},         {"", bytes("w4 0c w1 u12")},
            narrow("both"),       {"runs", bytes("w0 w1")},       {"phonetic", phonetic},
            {"", bytes("w0 00")}};
}
constexpr const char *textsOfTable =
    "Sheet1: A1='plain' A2=\"\u03b1\u03b2\u03b3\" A3='rich' A4=\"\u4efb\u52a1\" "
    "A5='both' A6=''";

TEST(SharedTexts, areReadHoweverTheTableIsCut)
{
    const QVector<Piece> pieces = tableOfTexts();
    QByteArray whole;
    for (const Piece &piece : pieces)
        whole += piece.bytes;
    Book book;
    book.sheets = {labels(6)};
    book.strings = record(0x00FC, whole);
    ASSERT_EQ(textOf(book.file()), textsOfTable);

    int at = 0, cuts = 0;
    for (const Piece &piece : pieces) {
        const int step = piece.cutFlag == 1 ? 2 : 1; // a wide character is never cut itself
        for (int inside = 0; inside < piece.bytes.size(); inside += step) {
            const int cut = at + inside;
            // Two cuts at once: an empty Continue lies between.
            const QByteArray flag = piece.cutFlag >= 0 ? QByteArray(1, char(piece.cutFlag)) : QByteArray();
            book.strings =
                record(0x00FC, whole.left(cut)) + record(0x003C, "") + record(0x003C, flag + whole.mid(cut));
            EXPECT_EQ(textOf(book.file()), textsOfTable)
                << "cut before byte " << inside << " of " << piece.name;
            ++cuts;
            if (piece.cutFlag != 0)
                continue;
            // The rest of the characters may become wide.
            QByteArray widened(1, '\1');
            for (const char c : piece.bytes.mid(inside))
                widened += QByteArray(1, c) + '\0';
            book.strings = record(0x00FC, whole.left(cut)) +
                           record(0x003C, widened + whole.mid(at + piece.bytes.size()));
            EXPECT_EQ(QString::fromStdString(textOf(book.file())).replace('"', '\''),
                      QString(textsOfTable).replace('"', '\''))
                << "widened from byte " << inside << " of " << piece.name;
        }
        at += piece.bytes.size();
    }
    EXPECT_GT(cuts, 60);
}

// Reads a table back the plain way: every record in bounds, heads of texts whole, no pair of units cut.
void expectSoundTable(const QByteArray &stream, int count)
{
    biff::RecordStream records(stream, 0, quint32(stream.size()));
    ASSERT_TRUE(records.next());
    ASSERT_EQ(records.code(), 0x00FC);
    biff::Bytes data = records.data();
    data.skip(8);
    for (int i = 0; i < count; ++i) {
        if (data.left() == 0) {
            ASSERT_TRUE(records.next());
            data = records.data();
        }
        ASSERT_GE(data.left(), 3u) << "the head of text " << i << " is cut";
        int left = data.u16();
        const bool isWide = data.u8();
        ASSERT_TRUE(left == 0 || data.left() > 0) << "text " << i << " begins in a Continue";
        while (left > 0) {
            if (data.left() == 0) {
                ASSERT_TRUE(records.next());
                ASSERT_EQ(records.code(), 0x003C);
                data = records.data();
                ASSERT_EQ(data.u8(), isWide);
            }
            ASSERT_LE(records.data().left(), 8224u);
            const int here = qMin(left, int(data.left()) / (isWide ? 2 : 1));
            ASSERT_GT(here, 0);
            const uchar *units = data.take(size_t(here) * (isWide ? 2 : 1));
            left -= here;
            if (isWide && left > 0) {
                ASSERT_NE(units[2 * here - 1] & 0xFC, 0xD8) << "a pair in text " << i << " is cut";
            }
        }
    }
    EXPECT_EQ(data.left(), 0u);
}

TEST(SharedTexts, areWrittenWholeAroundEverySplit)
{
    const QString one = QStringLiteral("x"), wide = QStringLiteral("\u4e2d"),
                  pair = QStringLiteral("\U0001F5D3");
    // The first text moves the start of the second over the end of the first record.
    for (const QString &unit : {one, wide, pair}) {
        for (int room = -3; room < 14; ++room) {
            YExcel::Workbook::SharedStringTable table;
            const QStringList texts{QString(8224 - 8 - 3 - room, QLatin1Char('f')), unit.repeated(9000),
                                    QString(), one, unit.repeated(5)};
            for (const QString &text : texts)
                table.strings.push_back({biff::Text::fromString(text), false});
            biff::Sink sink;
            YExcel::Workbook::ExtSST positions;
            table.Write(sink, &positions);
            const QByteArray stream = sink.takeBytes();
            expectSoundTable(stream, texts.size());

            biff::RecordStream records(stream, 0, quint32(stream.size()));
            YExcel::Workbook::SharedStringTable again;
            ASSERT_TRUE(records.next() && again.Read(records));
            ASSERT_EQ(again.strings.size(), size_t(texts.size()));
            for (int i = 0; i < texts.size(); ++i)
                EXPECT_EQ(again.strings[size_t(i)].text.toString(), texts[i]) << room << " text " << i;
        }
    }
}

TEST(SharedTexts, positionsLeadToTheirTexts)
{
    // Four texts fill a record, so every eighth begins one.
    YExcel::Workbook::SharedStringTable table;
    for (int i = 0; i < 40; ++i)
        table.strings.push_back(
            {biff::Text::fromString(QString(2053 - (i == 0 ? 8 : 0), QChar('A' + i))), false});
    biff::Sink sink;
    YExcel::Workbook::ExtSST positions;
    sink.zeros(100);
    table.Write(sink, &positions);
    const QByteArray stream = sink.takeBytes();
    EXPECT_EQ(positions.stringsInBucket, 8);
    ASSERT_EQ(positions.buckets.size(), 5u);
    for (int i = 0; i < 5; ++i) {
        const auto &bucket = positions.buckets[size_t(i)];
        EXPECT_EQ(stream.mid(int(bucket.streamOffset) + 3, 2), QByteArray(2, char('A' + 8 * i)));
        EXPECT_EQ(bucket.recordOffset, i == 0 ? 12 : 4);
        const int recordAt = int(bucket.streamOffset) - bucket.recordOffset;
        EXPECT_EQ(stream.mid(recordAt, 2), i == 0 ? bytes("w252") : bytes("w60"));
    }
    // More than 128 times eight texts make longer steps.
    table.strings.resize(3000, table.strings.back());
    biff::Sink more;
    table.Write(more, &positions);
    EXPECT_EQ(positions.stringsInBucket, 24);
    EXPECT_EQ(positions.buckets.size(), 125u);
}

// ---- Whole files ------------------------------------------------------------------------------------------

// The cases of records.txt; it says how to read them.
TEST(Records, giveTheirCellsOrACleanNo)
{
    const QString path = qEnvironmentVariable("KW_TEST_DATA") + QStringLiteral("/xls/records.txt");
    const QStringList lines = QString::fromUtf8(folder::get(path)).split('\n');
    int cases = 0;
    for (const QString &line : lines) {
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        const QString place = line.section(' ', 0, 0);
        QByteArray records;
        for (const QString &one : line.section('|', 1, 1).split(';')) {
            const QString code = one.trimmed().section(' ', 0, 0), data = one.trimmed().section(' ', 1);
            if (!code.isEmpty())
                records +=
                    code == "-" ? bytes(qPrintable(data)) : record(code.toInt(nullptr, 16), qPrintable(data));
        }
        Book book;
        book.sheets = {labels(2)};
        book.strings = place == "texts" ? records : record(0x00FC, "u1 u1 w4 00 74657874");
        if (place == "sheet")
            book.sheets = {records};
        else if (place == "shared")
            book = {records, {}, {record(0x027E, "w0 w0 w15 u22"), record(0x027E, "w0 w0 w15 u26")}};
        EXPECT_EQ(textOf(book.file()), line.section('|', 2).trimmed().toStdString()) << line.toStdString();
        ++cases;
    }
    EXPECT_GT(cases, 50);
}

TEST(Streams, thatAreDamagedFailCleanly)
{
    Book book;
    book.sheets = {record(0x027E, "w0 w0 w15 u22"), record(0x027E, "w0 w0 w15 u26")};
    const QByteArray whole = book.stream();
    // The two entries of the list of sheets stand at 20 and 38.
    const auto patched = [&whole](int at, const QByteArray &with) {
        return QByteArray(whole).replace(at, with.size(), with);
    };
    QByteArray chartInSecond = whole.mid(42, 4);
    chartInSecond[0] = char(chartInSecond[0] + 20);
    constexpr const char *notOurs = "[is no workbook of the 97 to 2003 format]";
    constexpr const char *elsewhere = "[the sheet \"Sheet1\" does not begin where the workbook says]";
    const std::pair<QByteArray, const char *> cases[] = {
        {patched(4, bytes("w1280")), "[is a workbook of version 95 or before]"},
        {patched(6, bytes("w16")), notOurs}, // begins with a sheet
        {QByteArray(10, '\0'), notOurs},
        {patched(29, bytes("02")), "Sheet2: A1=6"}, // the first is a chart
        {patched(24, chartInSecond + bytes("00 02")), "Sheet2: A1=6"},
        {patched(24, bytes("u99999")), elsewhere},
        {patched(24, bytes("u0")), elsewhere},
        {patched(24, whole.mid(42, 4)), "[the sheet \"Sheet1\" lies where another does]"},
        {patched(30, bytes("ff")), "[the name of sheet 1 is cut]"},
        {whole.left(56), "[its stream ends early]"},
        {whole.left(whole.size() - 4), "[the sheet \"Sheet2\" ends early]"}};
    for (const auto &[stream, outcome] : cases) {
        for (const char *name : {"Workbook", "BOOK"})
            EXPECT_EQ(textOf(Book::wrap(stream, name)), outcome);
    }
    // Some writers of a single sheet give its place wrongly.
    book.sheets.removeLast();
    for (const char *at : {"u0", "u99999"})
        EXPECT_EQ(textOf(Book::wrap(book.stream().replace(24, 4, bytes(at)))), "Sheet1: A1=5");
}

TEST(Streams, keepTheirDateSystem)
{
    for (const char *is1904 : {"w0", "w1"}) {
        Book book;
        book.shared = record(0x0022, is1904);
        book.sheets = {record(0x027E, "w0 w0 w15 u22")};
        YExcel::BasicExcel loaded, again;
        ASSERT_TRUE(loaded.LoadBytes(book.file()) && again.LoadBytes(loaded.ToBytes()));
        EXPECT_EQ(again.IsDate1904(), bytes(is1904) == bytes("w1"));
    }
}

// ---- What is written --------------------------------------------------------------------------------------

// Takes the records with a code out of a stream, without their headers, as hexadecimal text.
QStringList recordsOf(const QByteArray &stream, quint16 code)
{
    QStringList found;
    biff::RecordStream records(stream, 0, quint32(stream.size()));
    while (records.next()) {
        const biff::Bytes data = records.data();
        if (records.code() == code)
            found << QString::fromLatin1(
                QByteArray(reinterpret_cast<const char *>(data.data()), int(data.left())).toHex());
    }
    return found;
}

// A1 = text, C1 = 5, A2 = the same text, A3 = a text that some readers would take for one of a code page,
// B40 = wide text, A41 = 0.1, A42 = no number; an empty second sheet.
QByteArray writtenStream()
{
    YExcel::BasicExcel book;
    book.New(2);
    YExcel::BasicExcelWorksheet *sheet = book.GetWorksheet(0);
    sheet->Cell(0, 0)->SetString("caf\xe9");
    sheet->Cell(0, 2)->SetInteger(5);
    sheet->Cell(1, 0)->SetWString(L"caf\u00e9");
    sheet->Cell(2, 0)->SetString("\x80");
    sheet->Cell(39, 1)->SetWString(L"\u4efb");
    sheet->Cell(40, 0)->SetDouble(0.1);
    sheet->Cell(41, 0)->SetDouble(qQNaN());
    QByteArray stream;
    YCompoundFiles::CompoundFile file;
    file.OpenBytes(book.ToBytes());
    file.ReadFile(QStringLiteral("Workbook"), &stream);
    return stream;
}

TEST(Written, recordsAreTheFormatsByteByByte)
{
    const QByteArray stream = writtenStream();
    const struct
    {
        quint16 code;
        int count;
        QVector<const char *> first; // of these records
    } cases[] = {
        {0x0809, 3, {"0006 0500 a019 cd07 c9c00000 06030000", "0006 1000 a019 cd07 c9c00000 06030000"}},
        {0x003D, 1, {"7800 7800 1f3b 5424 3800 0000 0000 0200 5802"}},
        {0x0031, 4, {"c800 0000 ff7f 9001 0000 00 00 00 00 05 00 417269616c"}},
        {0x00E0,
         21,
         {"0000 0000 f5ff 20 00 00 00 00000000 00000000 c020",
          "0000 0000 f5ff 20 00 00 f4 00000000 00000000 c020"}},
        {0x0293, 1, {"0080 00 ff"}},
        {0x00FC, 1, {"u4 u3 w4 00 636166e9 w1 01 8000 w1 01 fb4e"}},
        {0x0200, 2, {"u0 u42 w0 w3 w0", "u0 u0 w0 w0 w0"}},
        {0x0208, 6, {"w0 w0 w3 ff00 0000 0000 00010f00", "w1 w0 w1 ff00 0000 0000 00010f00"}},
        {0x00FD, 4, {"w0 w0 w15 u0", "w1 w0 w15 u0", "w2 w0 w15 u1", "w39 w1 w15 u2"}},
        {0x027E, 1, {"w0 w2 w15 u22"}},
        {0x0203, 1, {"w40 w0 w15 9a9999999999b93f"}},
        {0x0205, 1, {"w41 w0 w15 24 01"}},
        // Back to the block's first row; the cells of that begin 40 bytes behind where its record ends.
        {0x00D7, 2, {"u116 w40 w28 w14", "u104 w40 w14 w18"}},
        {0x023E, 2, {"b606 w0 w0 u64 w0 w0 u0"}},
        {0x000A, 3, {"", "", ""}}};
    for (const auto &one : cases) {
        const QStringList found = recordsOf(stream, one.code);
        ASSERT_EQ(found.size(), one.count) << one.code;
        for (int i = 0; i < one.first.size(); ++i)
            EXPECT_EQ(found[i].toStdString(), bytes(one.first[i]).toHex().toStdString()) << one.code;
    }
    EXPECT_EQ(recordsOf(stream, 0x00E0)[15].mid(8, 12), QStringLiteral("010020000000"));
}

TEST(Written, recordsWithoutAFixedLayoutReadWhatTheyWrote)
{
    using Formula = YExcel::Worksheet::CellTable::RowBlock::CellBlock::Formula;
    const auto check = [](const auto &record) {
        biff::Sink sink;
        record.Write(sink);
        const QByteArray stream = sink.takeBytes();
        biff::RecordStream records(stream, 0, quint32(stream.size()));
        std::decay_t<decltype(record)> again;
        EXPECT_TRUE(records.next() && again.Read(records)) << record.Code();
        EXPECT_EQ(again.Data(), record.Data()) << record.Code();
    };
    YExcel::Workbook::Style named;
    named.format = 16;
    named.name = YExcel::LargeString(biff::Text::fromString(QStringLiteral("Mine")));
    check(named);
    check(Formula());
    check(Formula::Array());
    check(Formula::ShrFmla());
}

TEST(Written, offsetsLeadToWhatTheyName)
{
    const QByteArray stream = writtenStream();
    EXPECT_EQ(stream.size(), 4096) << "so that it lies in ordinary sectors";
    const auto number = [](const QString &hex, int at) {
        return qFromLittleEndian<quint32>(QByteArray::fromHex(hex.toLatin1()).constData() + at);
    };
    const auto codeAt = [&stream](quint32 offset) { return stream.mid(int(offset), 2).toHex(); };
    const QStringList sheets = recordsOf(stream, 0x0085);
    ASSERT_EQ(sheets.size(), 2);
    for (const QString &sheet : sheets)
        EXPECT_EQ(codeAt(number(sheet, 0)), "0908");
    EXPECT_EQ(sheets[0].mid(8).toStdString(), bytes("w0 06 00 536865657431").toHex().toStdString());
    const QString index = recordsOf(stream, 0x020B).value(0);
    EXPECT_EQ(index.size(), 2 * 24);
    EXPECT_EQ(number(index, 8), 42u);
    EXPECT_EQ(codeAt(number(index, 16)), "d700");
    EXPECT_EQ(codeAt(number(index, 20)), "d700");
}
}
