#include "exchange/biff/workbook.h"
#include "exchange/cellvalues.h"
#include "support/said.h"

using namespace YExcel;

namespace {

constexpr int fontCount = 4;
constexpr int formatCount = 21;
constexpr size_t mostBuckets = (biff::recordDataLimit - 2) / 8;
constexpr quint8 allAttributesOfParent = 0xF4;

bool fail(QString *error, const QString &what)
{
    *error = what;
    return false;
}
}

Workbook::Workbook()
    : fonts(fontCount)
    , formats(formatCount)
    , styles(1)
{
    // The default style comes first, the first format of a cell at a number that readers take for granted.
    for (size_t i = 1; i < formats.size(); ++i)
        formats[i].used = allAttributesOfParent;
    formats[biff::cellFormat].type = XF::CellFormat;
    formats[biff::cellFormat].used = 0;
}

bool Workbook::Style::Read(const biff::RecordStream &from)
{
    biff::ContinuedBytes data(from);
    format = data.u16();
    if (!IsKnown())
        return name.Read(data);
    known = data.u8();
    outlineLevel = data.u8();
    return data.ok();
}

void Workbook::Style::Write(biff::Sink &to) const
{
    biff::ContinuedSink sink(to, code);
    const quint8 head[] = {quint8(format), quint8(format >> 8)};
    const quint8 number[] = {known, outlineLevel};
    sink.raw(head, sizeof head);
    if (IsKnown())
        sink.raw(number, sizeof number);
    else
        name.Write(sink);
}

bool Workbook::SharedStringTable::Read(const biff::RecordStream &from)
{
    biff::ContinuedBytes data(from);
    strings.clear();
    uses = data.u32();
    const quint32 announced = data.u32();
    while (data.hasMore()) {
        LargeString string;
        if (!string.Read(data))
            return strings.size() >= announced; // what follows the last string is no concern of ours
        strings.push_back({string.Value(), string.IsWide()});
    }
    return data.ok();
}

void Workbook::SharedStringTable::Write(biff::Sink &to) const
{
    ExtSST positions;
    Write(to, &positions);
}

void Workbook::SharedStringTable::Write(biff::Sink &to, ExtSST *positions) const
{
    const size_t inBucket = qBound(size_t(8), strings.size() / 128 + 1, size_t(0xFFFF));
    positions->stringsInBucket = quint16(inBucket);
    positions->buckets.clear();
    biff::ContinuedSink sink(to, biff::code::sharedStrings);
    sink.u32(uses);
    sink.u32(quint32(strings.size()));
    for (size_t i = 0; i < strings.size(); ++i) {
        const LargeString string(strings[i].text.forFile());
        string.MakeRoom(sink);
        if (i % inBucket == 0 && positions->buckets.size() < mostBuckets)
            positions->buckets.push_back({sink.streamOffset(), sink.recordOffset(), 0});
        string.Write(sink);
    }
}

bool Workbook::Read(const QByteArray &stream, QString *error)
{
    biff::RecordStream records(stream, 0, quint32(stream.size()));
    BOF bof;
    if (!records.next() || records.code() != BOF::code || !bof.Read(records) || bof.version > BOF::Biff8 ||
        bof.type != BOF::Globals)
        return fail(error, KW_TEXT("is no workbook of the 97 to 2003 format"));
    if (bof.version < BOF::Biff8)
        return fail(error, KW_TEXT("is a workbook of version 95 or before"));
    fonts.clear();
    formats.clear();
    styles.clear();
    sheets.clear();
    m_percentFormats = {9, 10}; // those that have no record
    // A record that only concerns the looks may be damaged: it is left out.
    const auto append = [&](auto &list) {
        list.emplace_back();
        if (!list.back().Read(records))
            list.pop_back();
    };
    while (records.next()) {
        switch (records.code()) {
        case biff::code::eof:
            return true;
        case biff::code::filePass:
            return fail(error, KW_TEXT("is encrypted"));
        case biff::code::bof:
            return fail(error, QStringLiteral("a sheet begins before the shared part of the workbook ends"));
        case biff::code::date1904: {
            biff::Bytes data = records.data();
            is1904 = data.u16() == 1;
            break;
        }
        case biff::code::boundSheet:
            sheets.emplace_back();
            if (!sheets.back().Read(records))
                return fail(error, KW_TEXT("the name of sheet %1 is cut").arg(sheets.size()));
            break;
        case biff::code::sharedStrings:
            if (!strings.Read(records))
                return fail(error, KW_TEXT("its table of texts is cut"));
            break;
        case biff::code::window1:
            window.Read(records);
            break;
        case biff::code::font:
            append(fonts);
            break;
        case biff::code::xf:
            append(formats);
            break;
        case biff::code::style:
            append(styles);
            break;
        case biff::code::numberFormat: {
            biff::ContinuedBytes data(records);
            const quint16 number = data.u16();
            LargeString text;
            if (text.Read(data) && cellvalues::showsPercent(text.Value().toString()))
                m_percentFormats.insert(number);
            break;
        }
        default:
            break;
        }
    }
    return fail(error, KW_TEXT("its stream ends early"));
}

void Workbook::Write(biff::Sink &to)
{
    BOF().Write(to);
    window.selectedSheets = quint16(qMin(sheets.size(), size_t(0xFFFF)));
    window.Write(to);
    if (is1904) {
        to.u16(biff::code::date1904);
        to.u16(sizeof(quint16));
        to.u16(1);
    }
    for (const Font &font : fonts)
        font.Write(to);
    for (const XF &format : formats)
        format.Write(to);
    for (const Style &style : styles)
        style.Write(to);
    m_sheetRecords.clear();
    for (const BoundSheet &sheet : sheets) {
        m_sheetRecords.push_back(to.size());
        sheet.Write(to);
    }
    ExtSST positions;
    strings.Write(to, &positions);
    positions.Write(to);
    YEOF().Write(to);
}

void Workbook::SetOffset(biff::Sink &to, size_t sheet) const
{
    to.patch(m_sheetRecords[sheet] + Record::headerBytes, to.size());
}
