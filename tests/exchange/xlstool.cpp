// What readers.py asks of the workbook classes.
//
//   kwxls cells FILE       one JSON array a line: ["sheet", name] and [row, column, "t" or "n", value]; ends
//   with 1
//                          and the reason when the file is no workbook
//   kwxls streams FILE     one line a stream of a compound file: its path and its size, -1 when it is damaged
//   kwxls samples FOLDER   writes the workbooks that other programs have to read
#include "exchange/BasicExcel.h"
#include <QJsonArray>
#include <QJsonDocument>
#include <cstdio>

namespace {

using namespace YExcel;

void print(const QJsonArray &line)
{
    std::puts(QJsonDocument(line).toJson(QJsonDocument::Compact).constData());
}

int cells(const char *path)
{
    BasicExcel book;
    if (!book.Load(path)) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(book.ErrorText()));
        return 1;
    }
    for (int i = 0; i < book.GetTotalWorkSheets(); ++i) {
        const BasicExcelWorksheet *sheet = book.GetWorksheet(i);
        print({QStringLiteral("sheet"), QString::fromStdWString(sheet->GetSheetName())});
        for (int row = sheet->NextRow(0); row >= 0; row = sheet->NextRow(row + 1)) {
            for (int column = 0; column < sheet->GetTotalCols(); ++column) {
                const BasicExcelCell *cell = sheet->Cell(row, column);
                if (!cell->GetText().isNull())
                    print({row, column, QStringLiteral("t"), cell->GetText()});
                else if (cell->Type() != BasicExcelCell::UNDEFINED)
                    print({row, column, QStringLiteral("n"), cell->GetDouble()});
            }
        }
    }
    return 0;
}

int streams(const QString &path)
{
    YCompoundFiles::CompoundFile file;
    if (!file.Open(path)) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(file.ErrorText()));
        return 1;
    }
    QStringList storages{QStringLiteral("/")};
    while (!storages.isEmpty()) {
        const QString storage = storages.takeFirst();
        const QStringList names = file.List(storage);
        for (const QString &name : names) {
            QByteArray bytes;
            if (name.endsWith(QLatin1Char('/')))
                storages.append(storage + name);
            else
                print({storage + name, file.ReadFile(storage + name, &bytes) ? bytes.size() : -1});
        }
    }
    return 0;
}

// Each fills a workbook of one sheet, which may get more.
void fillTiny(BasicExcel &book)
{
    const QString texts[] = {QStringLiteral("Task"),         QString::fromUtf8("任务 é \u0080 ÿ"),
                             QStringLiteral("=1+1"),         QString::fromUtf8("\U0001F5D3 x \U00020000"),
                             QStringLiteral(" a\n\"b\",c "), QString::fromUtf8("’tis")};
    int row = 0;
    for (const QString &text : texts)
        book.GetWorksheet(0)->Cell(row++, 0)->SetText(text);
    row = 0;
    for (const double number : {0.5, -0.1, 1e300, 46023.708333333336, 536870912.0})
        book.GetWorksheet(0)->Cell(row++, 1)->SetDouble(number);
    for (const int number : {0, -1, 536870911, 536870912, -2147483647 - 1})
        book.GetWorksheet(0)->Cell(row++, 255)->SetInteger(number);
}

void fillRows(BasicExcel &book)
{
    for (int row = 0; row < 65536; ++row)
        book.GetWorksheet(0)->Cell(row, row % 3)->SetText(QStringLiteral("row %1").arg(row));
}

void fillSheets(BasicExcel &book)
{
    for (int i = 1; i < 200; ++i) {
        BasicExcelWorksheet *sheet = book.AddWorksheet();
        for (const int place : {0, i})
            sheet->Cell(place, place)->SetText(QStringLiteral("%1 on sheet %2").arg(place).arg(i));
    }
}

void fillSplits(BasicExcel &book)
{
    const QString units[] = {QStringLiteral("x"), QString::fromUtf8("中"), QString::fromUtf8("\U0001F5D3")};
    int row = 0;
    book.GetWorksheet(0)->Cell(row++, 0)->SetText(QString(32767, QLatin1Char('m')));
    // Texts of these lengths begin and end around the borders of records in many ways.
    for (const QString &unit : units) {
        for (int bytes = 8190; bytes < 8240; ++bytes) {
            book.GetWorksheet(0)->Cell(row, 0)->SetText(unit.repeated(bytes / (unit.size() * 2)) +
                                                        QString::number(row));
            book.GetWorksheet(0)->Cell(row++, 1)->SetText(QString(bytes, QLatin1Char('n')) + unit);
        }
    }
}

void fillLarge(BasicExcel &book)
{
    for (int row = 0; row < 30000; ++row) {
        for (int column = 0; column < 25; ++column)
            book.GetWorksheet(0)
                ->Cell(row, column)
                ->SetText(QStringLiteral("cell %1 of row %2").arg(column).arg(row));
    }
}

int samples(const QByteArray &folder)
{
    const std::pair<const char *, void (*)(BasicExcel &)> all[] = {
        {"empty", [](BasicExcel &) {}}, {"tiny", fillTiny},     {"rows", fillRows},
        {"sheets", fillSheets},         {"splits", fillSplits}, {"large", fillLarge}};
    for (const auto &[name, fill] : all) {
        BasicExcel book;
        book.New(1);
        fill(book);
        if (!book.SaveAs((folder + '/' + name + ".xls").constData()))
            return 1;
    }
    return 0;
}
}

int main(int argc, char **argv)
{
    const QByteArray operation = argc == 3 ? argv[1] : "";
    if (operation == "cells")
        return cells(argv[2]);
    if (operation == "streams")
        return streams(QString::fromLocal8Bit(argv[2]));
    if (operation == "samples")
        return samples(argv[2]);
    std::fprintf(stderr, "usage: kwxls cells FILE | streams FILE | samples FOLDER\n");
    return 2;
}
