#include "exchange/BasicExcel.h"
#include "exchange/biff/cells.h"
#include "exchange/biff/strings.h"
#include "support/casename.h"
#include "support/rawbiff.h"
#include <QStringList>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace {

using rawbiff::Book;
using rawbiff::bytes;
using rawbiff::record;
using rawbiff::textOf;

// --------------------------------------------------------------------------------------------- packed
// numbers

struct PackedCase
{
    const char *name;
    quint32 packed;
    biff::Value::Kind kind;
    double number;
};
class Packed : public testing::TestWithParam<PackedCase>
{
};

TEST_P(Packed, numberIsUnpacked)
{
    const biff::Value value = biff::unpackRk(GetParam().packed);
    EXPECT_EQ(value.kind(), GetParam().kind);
    EXPECT_EQ(value.kind() == biff::Value::integer ? value.asInteger() : value.asReal(), GetParam().number);
}
INSTANTIATE_TEST_SUITE_P(
    Encodings, Packed,
    testing::Values(PackedCase{"integer", 5 << 2 | 2, biff::Value::integer, 5},
                    PackedCase{"negativeInteger", quint32(-7) << 2 | 2, biff::Value::integer, -7},
                    PackedCase{"integerHundredths", 12345 << 2 | 3, biff::Value::real, 123.45},
                    PackedCase{"integerHundredthsWithoutFraction", 12300 << 2 | 3, biff::Value::integer, 123},
                    PackedCase{"negativeHundredths", quint32(-1) << 2 | 3, biff::Value::real, -0.01},
                    PackedCase{"real", 0x40590000, biff::Value::real, 100},
                    PackedCase{"realHundredths", 0x40590001, biff::Value::real, 1},
                    PackedCase{"smallestInteger", 0x80000002, biff::Value::integer, -536870912},
                    PackedCase{"greatestInteger", 0x7FFFFFFE, biff::Value::integer, 536870911}),
    caseName<PackedCase>);

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

TEST(Packed, integersBeyondThirtyBitsAreNot)
{
    EXPECT_TRUE(biff::packRk(biff::Value::ofInteger(536870911)));
    EXPECT_FALSE(biff::packRk(biff::Value::ofInteger(536870912)));
    EXPECT_TRUE(biff::packRk(biff::Value::ofInteger(-536870912)));
    EXPECT_FALSE(biff::packRk(biff::Value::ofInteger(-536870913)));
    EXPECT_TRUE(biff::packRk(biff::Value::ofReal(0.5)));
    EXPECT_FALSE(biff::packRk(biff::Value::ofReal(0.1)));
}

// --------------------------------------------------------------------------------------------------- shared
// texts

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
            EXPECT_EQ(QString::fromStdString(textOf(book.file()))
                          .remove(QLatin1Char('"'))
                          .remove(QLatin1Char('\'')),
                      QString::fromUtf8(textsOfTable).remove(QLatin1Char('"')).remove(QLatin1Char('\'')))
                << "widened from byte " << inside << " of " << piece.name;
        }
        at += piece.bytes.size();
    }
    EXPECT_GT(cuts, 60);
}

struct TableCase
{
    const char *name;
    QByteArray strings;
    const char *outcome;
};
class BrokenTexts : public testing::TestWithParam<TableCase>
{
};

TEST_P(BrokenTexts, giveWhatIsThereOrACleanNo)
{
    Book book;
    book.sheets = {labels(2)};
    book.strings = GetParam().strings;
    EXPECT_EQ(textOf(book.file()), GetParam().outcome);
}

constexpr const char *cut = "[its table of texts is cut]";
INSTANTIATE_TEST_SUITE_P(
    Tables, BrokenTexts,
    testing::Values(
        TableCase{"moreAnnounced", record(0x00FC, "u9 u4294967295 w1 00 41 w1 00 42"),
                  "Sheet1: A1='A' A2='B'"},
        TableCase{"fewerAnnounced", record(0x00FC, "u2 u1 w1 00 41 w1 00 42"), "Sheet1: A1='A' A2='B'"},
        TableCase{"restThatIsNoText", record(0x00FC, "u1 u1 w1 00 41 ffff"), "Sheet1: A1='A'"},
        TableCase{"missing", QByteArray(), "Sheet1:"}, TableCase{"withoutCounts", record(0x00FC, "u2"), cut},
        TableCase{"charactersMissing", record(0x00FC, "u2 u2 w65535 00 41"), cut},
        TableCase{"wideCharacterHalved", record(0x00FC, "u1 u1 w2 01 4100 42") + record(0x003C, "01 00"),
                  cut},
        TableCase{"runsMissing", record(0x00FC, "u2 u2 w1 08 w65535 41"), cut},
        TableCase{"phoneticOfFourGigabytes", record(0x00FC, "u2 u2 w1 04 u4294967295 41"), cut},
        TableCase{"continueOfSomethingElse",
                  record(0x00FC, "u1 u1 w2 00 41") + record(0x005D, "00") + record(0x003C, "00 42"), cut}),
    caseName<TableCase>);

// Reads a table back the plain way: every record in bounds, heads of texts in one piece, no pair of units
// cut.
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
            ASSERT_TRUE(records.next() && again.Read(biff::ContinuedBytes(records)));
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

// -------------------------------------------------------------------------------------------------- cells

struct CellsCase
{
    const char *name;
    QByteArray sheet;
    const char *outcome;
};
class Cells : public testing::TestWithParam<CellsCase>
{
};

TEST_P(Cells, areReadFromTheirRecords)
{
    Book book;
    book.strings = record(0x00FC, "u1 u1 w4 00 74657874");
    book.sheets = {GetParam().sheet};
    EXPECT_EQ(textOf(book.file()), GetParam().outcome);
}

QByteArray formula(const char *result)
{
    return record(0x0006, bytes("w1 w2 w15") + bytes(result) + bytes("w0 u0 w3 1e0500"));
}
constexpr const char *awaitsText = "00 00 00 00 00 00 ff ff";
const QByteArray resultText = record(0x0207, "w2 00 6869");

INSTANTIATE_TEST_SUITE_P(
    Values, Cells,
    testing::Values(
        CellsCase{"label", record(0x00FD, "w2 w1 w15 u0"), "Sheet1: B3='text'"},
        CellsCase{"labelOfNoText", record(0x00FD, "w2 w1 w15 u1"), "Sheet1:"},
        CellsCase{"packed", record(0x027E, "w0 w0 w15 u22"), "Sheet1: A1=5"},
        CellsCase{"number", record(0x0203, "w65535 w255 w15 000000000000e03f"), "Sheet1: IV65536=0.5r"},
        CellsCase{"numberThatIsNone", record(0x0203, "w0 w0 w15 000000000000f8ff"), "Sheet1: A1='#NUM!'"},
        CellsCase{"true", record(0x0205, "w0 w0 w15 01 00"), "Sheet1: A1=1"},
        CellsCase{"error", record(0x0205, "w0 w0 w15 2a 01"), "Sheet1: A1='#N/A'"},
        CellsCase{"unknownError", record(0x0205, "w0 w0 w15 ff 01"), "Sheet1:"},
        CellsCase{"packedRun", record(0x00BD, "w4 w1 w15 u22 w15 u49383 w15 u1079574529 w3"),
                  "Sheet1: B5=5 C5=123.45r D5=1r"},
        CellsCase{"packedRunWithALyingEnd", record(0x00BD, "w4 w1 w15 u22 w15 u26 w65535"),
                  "Sheet1: B5=5 C5=6"},
        CellsCase{"emptyPackedRun", record(0x00BD, "w4 w1 w0"), "Sheet1:"},
        CellsCase{"blanksAreNoCells",
                  record(0x0201, "w9 w9 w15") + record(0x00BE, "w9 w1 w15 w15 w2") +
                      record(0x027E, "w0 w0 w15 u22"),
                  "Sheet1: A1=5"},
        CellsCase{"mergedCellsKeepTheFirst",
                  record(0x00E5, "w1 w0 w1 w0 w1") + record(0x00FD, "w0 w0 w15 u0") +
                      record(0x0201, "w0 w1 w15"),
                  "Sheet1: A1='text'"},
        CellsCase{"ownText", record(0x0204, "w0 w0 w15 w2 00 6869"), "Sheet1: A1='hi'"},
        CellsCase{"ownWideText", record(0x0204, "w0 w0 w15 w1 01 b103"), "Sheet1: A1=\"\u03b1\""},
        CellsCase{"ownRichText", record(0x00D6, "w0 w0 w15 w2 00 6869 w1 w0 w1"), "Sheet1: A1='hi'"},
        CellsCase{"lastOneOfAPlaceCounts", record(0x027E, "w0 w0 w15 u22") + record(0x027E, "w0 w0 w15 u26"),
                  "Sheet1: A1=6"},
        CellsCase{"cellsOfAChartInTheSheetAreNot",
                  record(0x0809, "w1536 w32 w0 w0") + record(0x027E, "w0 w0 w15 u22") + record(0x000A, "") +
                      record(0x027E, "w1 w0 w15 u26"),
                  "Sheet1: A2=6"}),
    caseName<CellsCase>);
INSTANTIATE_TEST_SUITE_P(
    Formulas, Cells,
    testing::Values(
        CellsCase{"number", formula("000000000000e03f"), "Sheet1: C2=0.5r"},
        CellsCase{"truth", formula("01 00 01 00 00 00 ff ff"), "Sheet1: C2=1"},
        CellsCase{"error", formula("02 00 07 00 00 00 ff ff"), "Sheet1: C2='#DIV/0!'"},
        CellsCase{"emptyText", formula("03 00 00 00 00 00 ff ff"), "Sheet1: C2=''"},
        CellsCase{"resultOfNoKind", formula("09 00 00 00 00 00 ff ff"), "Sheet1:"},
        CellsCase{"text", formula(awaitsText) + resultText, "Sheet1: C2='hi'"},
        CellsCase{"textBehindASharedFormula",
                  formula(awaitsText) + record(0x04BC, "w1 w2 02 02 00 01 w3 1e0500") + resultText,
                  "Sheet1: C2='hi'"},
        CellsCase{"textBehindASharedFormulaOfTheOtherCode",
                  formula(awaitsText) + record(0x00BC, "w1 w2 02 02 00 01 w3 1e0500") + resultText,
                  "Sheet1: C2='hi'"},
        CellsCase{"textBehindAnArray",
                  formula(awaitsText) + record(0x0221, "w1 w1 02 02 w0 u0 w3 1e0500") + resultText,
                  "Sheet1: C2='hi'"},
        CellsCase{"textBehindATable",
                  formula(awaitsText) + record(0x0236, "w1 w1 02 02 w0 w0 w0 w0 w0") + resultText,
                  "Sheet1: C2='hi'"},
        CellsCase{"textBehindATableOfTheOlderCode",
                  formula(awaitsText) + record(0x0036, "w1 w1 02 02 w0 w0 w0 w0 w0") + resultText,
                  "Sheet1: C2='hi'"},
        CellsCase{"textInTwoRecords",
                  formula(awaitsText) + record(0x0207, "w4 00 6869") + record(0x003C, "01 b103 b203"),
                  "Sheet1: C2=\"hi\u03b1\u03b2\""},
        CellsCase{"textThatNeverComes", formula(awaitsText) + record(0x027E, "w0 w0 w15 u22") + resultText,
                  "Sheet1: A1=5"},
        CellsCase{"textOfNoFormula", formula("000000000000e03f") + resultText, "Sheet1: C2=0.5r"}),
    caseName<CellsCase>);
INSTANTIATE_TEST_SUITE_P(
    Damaged, Cells,
    testing::Values(
        CellsCase{"labelCut", record(0x00FD, "w2 w1 w15 w0"), "[the sheet \"Sheet1\" is damaged at byte 81]"},
        CellsCase{"packedCut", record(0x027E, "w0 w0"), "[the sheet \"Sheet1\" is damaged at byte 81]"},
        CellsCase{"resultCut", formula(awaitsText) + record(0x0207, "w9 00 6869"),
                  "[the sheet \"Sheet1\" is damaged at byte 110]"},
        CellsCase{"columnBeyondTheLast", record(0x027E, "w0 w256 w15 u22"),
                  "[the sheet \"Sheet1\" is damaged at byte 81]"},
        CellsCase{"runBeyondTheLastColumn", record(0x00BD, "w4 w255 w15 u22 w15 u26 w256"),
                  "[the sheet \"Sheet1\" is damaged at byte 81]"},
        CellsCase{"lengthBeyondTheStream", bytes("w638 w65535"), "[the sheet \"Sheet1\" ends early]"},
        CellsCase{"chartWithoutAnEnd", record(0x0809, "w1536 w32 w0 w0"),
                  "[the sheet \"Sheet1\" ends early]"},
        CellsCase{"formatsCutAreNoFault",
                  record(0x0201, "") + record(0x0208, "w1") + record(0x0200, "w1") + record(0x023E, "w1") +
                      record(0x00D7, "w1"),
                  "Sheet1:"}),
    caseName<CellsCase>);

// ------------------------------------------------------------------------------------------------- workbooks

struct StreamCase
{
    const char *name;
    QByteArray stream;
    const char *outcome;
};
class Streams : public testing::TestWithParam<StreamCase>
{
};

TEST_P(Streams, loadOrFailCleanly)
{
    EXPECT_EQ(textOf(Book::wrap(GetParam().stream)), GetParam().outcome);
}

QByteArray twoSheets(const QByteArray &shared = {})
{
    Book book;
    book.shared = shared;
    book.sheets = {record(0x027E, "w0 w0 w15 u22"), record(0x027E, "w0 w0 w15 u26")};
    return book.stream();
}
// Changes bytes of a stream; the two list entries of sheets stand at 20 and 38.
QByteArray patched(QByteArray stream, int at, const char *hex)
{
    const QByteArray with = bytes(hex);
    return stream.replace(at, with.size(), with);
}
constexpr const char *both = "Sheet1: A1=5 | Sheet2: A1=6";

INSTANTIATE_TEST_SUITE_P(
    Globals, Streams,
    testing::Values(
        StreamCase{"sound", twoSheets(), both},
        StreamCase{"unknownRecordsAndLooksCut",
                   twoSheets(record(0x7777, "") + record(0x0031, "w1") + record(0x00E0, "w1") +
                             record(0x0293, "w1") + record(0x003D, "w1") + record(0x00FF, "00")),
                   both},
        StreamCase{"encrypted", twoSheets(record(0x002F, "w1 w1 w1")), "[is encrypted]"},
        StreamCase{"version5", patched(twoSheets(), 4, "w1280"), "[is no workbook of the 97 to 2003 format]"},
        StreamCase{"beginsWithASheet", patched(twoSheets(), 6, "w16"),
                   "[is no workbook of the 97 to 2003 format]"},
        StreamCase{"empty", QByteArray(10, '\0'), "[is no workbook of the 97 to 2003 format]"},
        StreamCase{"chartAmongTheSheets", patched(twoSheets(), 29, "02"), "Sheet2: A1=6"},
        StreamCase{"offsetBeyondTheStream", patched(twoSheets(), 24, "u99999"),
                   "[the sheet \"Sheet1\" does not begin where the workbook says]"},
        StreamCase{"offsetOfTheGlobals", patched(twoSheets(), 24, "u0"),
                   "[the sheet \"Sheet1\" does not begin where the workbook says]"},
        StreamCase{"sameOffsetTwice", patched(twoSheets(), 24, twoSheets().mid(42, 4).toHex().constData()),
                   "[the sheet \"Sheet1\" lies where another does]"},
        StreamCase{"nameCut", patched(twoSheets(), 30, "ff"), "[the name of sheet 1 is cut]"},
        StreamCase{"sharedPartWithoutEnd", twoSheets().left(56), "[its stream ends early]"},
        StreamCase{"sheetWithoutEnd", twoSheets().left(twoSheets().size() - 4),
                   "[the sheet \"Sheet2\" ends early]"}),
    caseName<StreamCase>);

// ------------------------------------------------------------------------------------------------- what is
// written

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

struct WrittenCase
{
    const char *name;
    quint16 code;
    QVector<const char *> records; // as rawbiff::bytes has them; only the first ones are compared
};
class Written : public testing::TestWithParam<WrittenCase>
{
public:
    // A1 = text, C1 = 5, B40 = wide text, A41 = 0.1, A42 = no number; an empty second sheet.
    static QByteArray stream()
    {
        YExcel::BasicExcel book;
        book.New(2);
        YExcel::BasicExcelWorksheet *sheet = book.GetWorksheet(0);
        sheet->Cell(0, 0)->SetString("caf\xe9");
        sheet->Cell(0, 2)->SetInteger(5);
        sheet->Cell(39, 1)->SetWString(L"\u4efb");
        sheet->Cell(40, 0)->SetDouble(0.1);
        sheet->Cell(41, 0)->SetDouble(qQNaN());
        QByteArray stream;
        YCompoundFiles::CompoundFile file;
        file.OpenBytes(book.ToBytes());
        file.ReadFile(QStringLiteral("Workbook"), &stream);
        return stream;
    }
};

TEST_P(Written, recordsAreTheFormatsByteByByte)
{
    const QStringList found = recordsOf(stream(), GetParam().code);
    ASSERT_GE(found.size(), GetParam().records.size());
    for (int i = 0; i < GetParam().records.size(); ++i)
        EXPECT_EQ(found[i].toStdString(), bytes(GetParam().records[i]).toHex().toStdString()) << i;
}
INSTANTIATE_TEST_SUITE_P(
    Records, Written,
    testing::Values(
        WrittenCase{"Bof",
                    0x0809,
                    {"0006 0500 a019 cd07 c9c00000 06030000", "0006 1000 a019 cd07 c9c00000 06030000"}},
        WrittenCase{"Window1", 0x003D, {"7800 7800 1f3b 5424 3800 0000 0000 0200 5802"}},
        WrittenCase{"Font", 0x0031, {"c800 0000 ff7f 9001 0000 00 00 00 00 05 00 417269616c"}},
        WrittenCase{"Xf",
                    0x00E0,
                    {"0000 0000 f5ff 20 00 00 00 00000000 00000000 c020",
                     "0000 0000 f5ff 20 00 00 f4 00000000 00000000 c020"}},
        WrittenCase{"Style", 0x0293, {"0080 00 ff"}},
        WrittenCase{"Texts", 0x00FC, {"u2 u2 w4 00 636166e9 w1 01 fb4e"}},
        WrittenCase{"Dimensions", 0x0200, {"u0 u42 w0 w3 w0", "u0 u0 w0 w0 w0"}},
        WrittenCase{"Row", 0x0208, {"w0 w0 w3 ff00 0000 0000 00010f00", "w39 w1 w2 ff00 0000 0000 00010f00"}},
        WrittenCase{"Label", 0x00FD, {"w0 w0 w15 u0", "w39 w1 w15 u1"}},
        WrittenCase{"Packed", 0x027E, {"w0 w2 w15 u22"}},
        WrittenCase{"Number", 0x0203, {"w40 w0 w15 9a9999999999b93f"}},
        WrittenCase{"Error", 0x0205, {"w41 w0 w15 24 01"}},
        // From the DBCell 48 bytes back to its first row; the cells begin where the second row would.
        WrittenCase{"DbCell", 0x00D7, {"u48 w0", "u104 w40 w14 w18"}},
        WrittenCase{"Window2", 0x023E, {"b606 w0 w0 u64 w0 w0 u0"}},
        WrittenCase{"Eof", 0x000A, {"", "", ""}}),
    caseName<WrittenCase>);

TEST(Written, offsetsLeadToWhatTheyName)
{
    const QByteArray stream = Written::stream();
    EXPECT_EQ(stream.size(), 4096) << "so that it lies in ordinary sectors";
    const auto codeAt = [&stream](quint32 offset) {
        return stream.size() > int(offset) + 2 ? qFromLittleEndian<quint16>(stream.constData() + offset) : 0;
    };
    const auto number = [](const QString &hex, int at) {
        return qFromLittleEndian<quint32>(QByteArray::fromHex(hex.toLatin1()).constData() + at);
    };
    const QStringList sheets = recordsOf(stream, 0x0085);
    ASSERT_EQ(sheets.size(), 2);
    for (const QString &sheet : sheets)
        EXPECT_EQ(codeAt(number(sheet, 0)), 0x0809);
    EXPECT_EQ(sheets[0].mid(8).toStdString(), bytes("w0 06 00 536865657431").toHex().toStdString());
    const QString index = recordsOf(stream, 0x020B).value(0);
    EXPECT_EQ(number(index, 8), 42u);
    EXPECT_EQ(codeAt(number(index, 16)), 0x00D7);
    EXPECT_EQ(codeAt(number(index, 20)), 0x00D7);
    EXPECT_EQ(index.size(), 2 * 24);
    EXPECT_EQ(recordsOf(stream, 0x0031).size(), 4);
    EXPECT_EQ(recordsOf(stream, 0x00E0).size(), 21);
    EXPECT_EQ(recordsOf(stream, 0x00E0).value(15).mid(8, 12), QStringLiteral("010020000000"));
}

TEST(Written, eachTextIsStoredOnce)
{
    YExcel::BasicExcel book;
    book.New(2);
    for (int row = 0; row < 500; ++row) {
        book.GetWorksheet(0)->Cell(row, 0)->SetText(QString::number(row % 100));
        book.GetWorksheet(1)->Cell(row, 0)->SetString(QByteArray::number(row % 50).constData());
    }
    YCompoundFiles::CompoundFile container;
    QByteArray stream;
    ASSERT_TRUE(container.OpenBytes(book.ToBytes()) &&
                container.ReadFile(QStringLiteral("Workbook"), &stream));
    EXPECT_EQ(recordsOf(stream, 0x00FC).value(0).left(16).toStdString(),
              bytes("u1000 u100").toHex().toStdString());
}

TEST(Written, doubtfulCharactersAreWide)
{
    // Some readers take the bytes 0x80 to 0x9F for characters of a code page.
    YExcel::BasicExcel book;
    book.New(1);
    book.GetWorksheet(0)->Cell(0, 0)->SetString("\x7f\xa0");
    book.GetWorksheet(0)->Cell(1, 0)->SetString("\x80");
    const QByteArray file = book.ToBytes();
    YCompoundFiles::CompoundFile container;
    QByteArray stream;
    ASSERT_TRUE(container.OpenBytes(file) && container.ReadFile(QStringLiteral("Workbook"), &stream));
    EXPECT_EQ(recordsOf(stream, 0x00FC).value(0).toStdString(),
              bytes("u2 u2 w2 00 7fa0 w1 01 8000").toHex().toStdString());
    EXPECT_EQ(textOf(file), "Sheet1: A1='\x7f\u00a0' A2=\"\u0080\"");
}
}
