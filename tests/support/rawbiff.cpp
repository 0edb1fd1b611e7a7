#include "support/rawbiff.h"
#include "exchange/BasicExcel.h"
#include <QBuffer>
#include <QStringList>
#include <QtEndian>

namespace {

template <class Number>
QByteArray littleEndian(Number number)
{
    QByteArray bytes(int(sizeof number), '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

std::string cellText(const YExcel::BasicExcelCell &cell)
{
    switch (cell.Type()) {
    case YExcel::BasicExcelCell::INT:
        return std::to_string(cell.GetInteger());
    case YExcel::BasicExcelCell::DOUBLE:
        return QString::number(cell.GetDouble(), 'g', 17).toStdString() + "r";
    case YExcel::BasicExcelCell::STRING:
        return "'" + cell.GetText().toStdString() + "'";
    default:
        return "\"" + cell.GetText().toStdString() + "\"";
    }
}
}

QByteArray rawbiff::bytes(const char *text)
{
    QByteArray all;
    const QStringList words = QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &word : words) {
        if (word.startsWith(QLatin1Char('w')))
            all += littleEndian(quint16(word.midRef(1).toUInt()));
        else if (word.startsWith(QLatin1Char('u')))
            all += littleEndian(quint32(word.midRef(1).toUInt()));
        else
            all += QByteArray::fromHex(word.toLatin1());
    }
    return all;
}

QByteArray rawbiff::record(int code, const QByteArray &data)
{
    return littleEndian(quint16(code)) + littleEndian(quint16(data.size())) + data;
}

QByteArray rawbiff::record(int code, const char *data)
{
    return record(code, bytes(data));
}

QByteArray rawbiff::Book::stream() const
{
    const auto bof = [](const char *type) {
        return record(0x0809, bytes("0006") + bytes(type) + bytes("A019 CD07 C9C00000 06030000"));
    };
    const QByteArray eof = record(0x000A, "");
    const auto sheetList = [this](quint32 offset) {
        QByteArray list;
        for (int i = 0; i < sheets.size(); ++i) {
            const QByteArray name = "Sheet" + QByteArray::number(i + 1);
            list += record(0x0085, littleEndian(offset) + bytes("w0") + char(name.size()) + '\0' + name);
            offset += quint32(20 + sheets[i].size() + 4);
        }
        return list;
    };
    QByteArray all = bof("w5") + shared;
    const QByteArray behind = strings + eof;
    all += sheetList(quint32(all.size() + sheetList(0).size() + behind.size())) + behind;
    for (const QByteArray &sheet : sheets)
        all += bof("w16") + sheet + eof;
    return all;
}

QByteArray rawbiff::Book::wrap(const QByteArray &stream, const char *name)
{
    YCompoundFiles::CompoundFile file;
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    file.Create(QString());
    file.MakeFile(QString::fromLatin1(name));
    file.WriteFile(QString::fromLatin1(name), stream);
    return file.WriteTo(buffer) ? buffer.data() : QByteArray();
}

std::string rawbiff::text(const YExcel::BasicExcel &book)
{
    std::string all;
    for (int i = 0; i < book.GetTotalWorkSheets(); ++i) {
        const YExcel::BasicExcelWorksheet *sheet = book.GetWorksheet(i);
        all += (i > 0 ? " | " : "") + QString::fromStdWString(sheet->GetSheetName()).toStdString() + ":";
        for (int row = sheet->NextRow(0); row >= 0; row = sheet->NextRow(row + 1)) {
            for (int column = 0; column < sheet->GetTotalCols(); ++column) {
                const YExcel::BasicExcelCell *cell = sheet->Cell(row, column);
                if (cell->Type() == YExcel::BasicExcelCell::UNDEFINED)
                    continue;
                const std::string letters =
                    (column >= 26 ? std::string(1, char('A' + column / 26 - 1)) : "") +
                    char('A' + column % 26);
                all += " " + letters + std::to_string(row + 1) + "=" + cellText(*cell);
            }
        }
    }
    return all;
}

std::string rawbiff::textOf(const QByteArray &file)
{
    YExcel::BasicExcel book;
    return book.LoadBytes(file) ? text(book) : "[" + book.ErrorText().toStdString() + "]";
}
