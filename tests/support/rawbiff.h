#pragma once
#include <QByteArray>
#include <QString>
#include <QVector>
#include <string>

namespace YExcel {
class BasicExcel;
}

// Workbooks put together record by record, so that any of it can lie.
namespace rawbiff {

// Numbers as "w12" (16 bits), "u12" (32 bits) and plain hexadecimal bytes, apart by blanks: "u0 w5 0006".
QByteArray bytes(const char *text);
QByteArray record(int code, const QByteArray &data);
QByteArray record(int code, const char *data);

// A workbook of one sheet unless more are added; the offsets of the sheets are filled in.
struct Book
{
    QByteArray shared;          // records between BOF and the list of sheets
    QByteArray strings;         // records of the shared texts
    QVector<QByteArray> sheets; // records between BOF and EOF of each
    QByteArray stream() const;
    // The stream in a compound file.
    QByteArray file() const { return wrap(stream()); }
    static QByteArray wrap(const QByteArray &stream, const char *name = "Workbook");
};

// Every cell of every sheet: "Sheet1: A1='text' B2=5 C3=0.5 | Sheet2:".
std::string text(const YExcel::BasicExcel &book);
// The same of a file, or what is wrong with it in brackets.
std::string textOf(const QByteArray &file);
}
