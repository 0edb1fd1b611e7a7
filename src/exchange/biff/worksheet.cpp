#include "exchange/biff/worksheet.h"
#include "support/said.h"
#include <cmath>

using namespace YExcel;
using CellTable = Worksheet::CellTable;
using RowBlock = CellTable::RowBlock;
using CellBlock = RowBlock::CellBlock;

namespace {

constexpr quint8 numberError = 0x24;

// What is no number would be a trap for whoever calculates with it.
biff::Value checked(biff::Value value)
{
    if (value.kind() == biff::Value::real && !std::isfinite(value.asReal()))
        return biff::Value::ofText(biff::errorText(numberError), biff::Value::narrowText);
    return value;
}

biff::Value boolOrError(quint8 value, bool isError)
{
    return isError ? biff::Value::ofText(biff::errorText(value), biff::Value::narrowText)
                   : biff::Value::ofInteger(value != 0);
}

biff::Value textValue(const biff::Text &text, bool isWide)
{
    return biff::Value::ofText(text, isWide ? biff::Value::wideText : biff::Value::narrowText);
}

// Reads one sheet, record by record.
class SheetReader
{
public:
    SheetReader(const Workbook::SharedStringTable &strings, const Worksheet::Taker &take)
        : m_strings(strings)
        , m_take(take)
    {
    }
    // False when a record that holds values is damaged.
    bool read(const biff::RecordStream &records)
    {
        const bool wasTextAwaited = m_isTextAwaited;
        m_isTextAwaited = false;
        switch (records.code()) {
        case CellBlock::LabelSST::code:
            return readAs<CellBlock::LabelSST>(records, [this](const CellBlock::LabelSST &cell) {
                if (cell.string >= m_strings.strings.size())
                    return true; // a text that the workbook does not have
                const auto &entry = m_strings.strings[cell.string];
                return give(cell.place, textValue(entry.text, entry.isWide));
            });
        case CellBlock::RK::code:
            return readAs<CellBlock::RK>(records, [this](const CellBlock::RK &cell) {
                return give(cell.place, biff::unpackRk(cell.packed));
            });
        case CellBlock::MulRK::code:
            return readAs<CellBlock::MulRK>(records, [this](const CellBlock::MulRK &cells) {
                CellBlock::Place place;
                place.row = cells.row;
                for (size_t i = 0; i < cells.numbers.size(); ++i) {
                    place.column = quint16(qMin(cells.firstColumn + i, size_t(0xFFFF)));
                    place.format = cells.numbers[i].format;
                    if (!give(place, biff::unpackRk(cells.numbers[i].packed)))
                        return false;
                }
                return true;
            });
        case CellBlock::Number::code:
            return readAs<CellBlock::Number>(records, [this](const CellBlock::Number &cell) {
                return give(cell.place, biff::Value::ofReal(cell.value));
            });
        case CellBlock::BoolErr::code:
            return readAs<CellBlock::BoolErr>(records, [this](const CellBlock::BoolErr &cell) {
                return give(cell.place, boolOrError(cell.value, cell.isError != 0));
            });
        case CellBlock::Formula::code:
            return readAs<CellBlock::Formula>(records, [this](const CellBlock::Formula &cell) {
                m_isTextAwaited = cell.HasString();
                m_formulaPlace = cell.place;
                return m_isTextAwaited || give(cell.place, cell.Result());
            });
        case biff::code::formulaOfBiff3:
        case biff::code::formulaOfBiff4:
            return readOlderFormula(records);
        case CellBlock::Formula::Array::code:
        case CellBlock::Formula::ShrFmla::code:
        case biff::kindOf(CellBlock::Formula::ShrFmla::code).otherCode:
        case CellBlock::Formula::Table::code:
        case biff::kindOf(CellBlock::Formula::Table::code).otherCode:
        case biff::code::continued:
            m_isTextAwaited = wasTextAwaited; // they stand between a formula and its text
            return true;
        case CellBlock::Formula::String::code: {
            CellBlock::Formula::String result;
            return !wasTextAwaited ||
                   (result.Read(records) &&
                    give(m_formulaPlace, textValue(result.text.Value(), result.text.IsWide())));
        }
        case biff::code::label:
        case biff::code::richLabel:
            return readLabel(records);
        default:
            return true;
        }
    }

private:
    template <class Record, class Give>
    bool readAs(const biff::RecordStream &records, const Give &giveAll)
    {
        Record record;
        return record.Read(records) && giveAll(record);
    }
    // Some writers use the codes of the versions before, which have less behind the result.
    bool readOlderFormula(const biff::RecordStream &records)
    {
        CellBlock::Formula cell;
        biff::Bytes data = records.data();
        FieldReader reader(data);
        reader(cell.place, cell.result);
        if (!data.ok())
            return false;
        m_isTextAwaited = cell.HasString();
        m_formulaPlace = cell.place;
        return m_isTextAwaited || give(cell.place, cell.Result());
    }
    // A text beside the shared ones, which some writers still use.
    bool readLabel(const biff::RecordStream &records)
    {
        biff::ContinuedBytes data(records);
        CellBlock::Place place;
        place.row = data.u16();
        place.column = data.u16();
        place.format = data.u16();
        constexpr size_t bytesOfEmpty = 8; // without the flags of characters
        if (records.data().left() == bytesOfEmpty)
            return data.u16() == 0 && give(place, textValue(biff::Text::fromLatin1("", 0), false));
        LargeString string;
        return string.Read(data) && give(place, textValue(string.Value(), string.IsWide()));
    }
    bool give(const CellBlock::Place &place, biff::Value &&value)
    {
        if (place.column >= biff::columnLimit)
            return false;
        value = checked(std::move(value));
        if (value.kind() != biff::Value::undefined)
            m_take(place.row, place.column, std::move(value), place.format);
        return true;
    }

    const Workbook::SharedStringTable &m_strings;
    const Worksheet::Taker &m_take;
    CellBlock::Place m_formulaPlace;
    bool m_isTextAwaited = false; // a String record belongs to the formula at that place
};
}

biff::Value CellBlock::Formula::Result() const
{
    enum { aText = 0, aBool = 1, anError = 2, empty = 3 };
    if (!isSpecial()) {
        biff::Bytes bytes(result.data(), result.size());
        return biff::Value::ofReal(bytes.real());
    }
    if (result[0] == aBool || result[0] == anError)
        return boolOrError(result[2], result[0] == anError);
    return result[0] == empty ? textValue(biff::Text::fromLatin1("", 0), false) : biff::Value();
}

void RowBlock::Add(int row, int column, const biff::Value &value)
{
    m_cells.push_back({quint16(row), quint16(column), &value});
}

quint32 RowBlock::Write(biff::Sink &to)
{
    const quint32 firstRowAt = to.size();
    for (size_t i = 0, end = 0; i < m_cells.size(); i = end) {
        while (end < m_cells.size() && m_cells[end].row == m_cells[i].row)
            ++end;
        Row row;
        row.row = m_cells[i].row;
        row.firstColumn = m_cells[i].column;
        row.endColumn = quint16(m_cells[end - 1].column + 1);
        row.Write(to);
    }
    // The first distance counts from the second row's record, the others from the cells of the row before.
    DBCell distances;
    quint32 from = firstRowAt + quint32(Row().RecordSize());
    for (size_t i = 0; i < m_cells.size(); ++i) {
        const Cell &cell = m_cells[i];
        if (i == 0 || m_cells[i - 1].row != cell.row) {
            distances.toCells.push_back(quint16(to.size() - from));
            from = to.size();
        }
        CellBlock::Place place;
        place.row = cell.row;
        place.column = cell.column;
        const biff::Value &value = *cell.value;
        if (value.isText()) {
            CellBlock::LabelSST label;
            label.place = place;
            label.string = value.asText().place();
            label.Write(to);
        } else if (const std::optional<quint32> packed = biff::packRk(value)) {
            CellBlock::RK number;
            number.place = place;
            number.packed = *packed;
            number.Write(to);
        } else if (value.kind() == biff::Value::real && !std::isfinite(value.asReal())) {
            CellBlock::BoolErr error;
            error.place = place;
            error.value = numberError;
            error.isError = 1;
            error.Write(to);
        } else {
            CellBlock::Number number;
            number.place = place;
            number.value = value.kind() == biff::Value::integer ? value.asInteger() : value.asReal();
            number.Write(to);
        }
    }
    const quint32 dbCellAt = to.size();
    distances.toFirstRow = dbCellAt - firstRowAt;
    distances.Write(to);
    m_cells.clear();
    return dbCellAt;
}

void CellTable::Add(biff::Sink &to, int row, int column, const biff::Value &value)
{
    writeBlocks(to, row / biff::rowsInBlock);
    m_block.Add(row, column, value);
}

// The blocks before `endBlock`. One without cells has a DBCell all the same: the index finds blocks by
// number.
void CellTable::writeBlocks(biff::Sink &to, int endBlock)
{
    while (int(m_dbCells.size()) < endBlock)
        m_dbCells.push_back(m_block.Write(to));
}

std::vector<quint32> CellTable::Finish(biff::Sink &to, int rows)
{
    writeBlocks(to, (rows + biff::rowsInBlock - 1) / biff::rowsInBlock);
    return std::move(m_dbCells);
}

std::optional<quint32> Worksheet::OnlyBegin(const QByteArray &stream)
{
    std::optional<quint32> begin;
    biff::RecordStream records(stream, 0, quint32(stream.size()));
    int depth = 0; // charts lie in sheets
    while (records.next()) {
        if (records.code() == YEOF::code) {
            depth -= depth > 0 ? 1 : 0;
        } else if (records.code() == BOF::code) {
            BOF bof;
            if (depth++ > 0 || !bof.Read(records) || bof.type != BOF::Sheet)
                continue;
            if (begin)
                return std::nullopt;
            begin = records.offset();
        }
    }
    return begin;
}

bool Worksheet::Begins(const QByteArray &stream, quint32 at)
{
    biff::RecordStream records(stream, at, quint32(stream.size()));
    BOF bof;
    return records.next() && records.code() == BOF::code && bof.Read(records) && bof.version == BOF::Biff8 &&
           bof.type == BOF::Sheet;
}

bool Worksheet::Read(const QByteArray &stream, quint32 begin, quint32 end,
                     const Workbook::SharedStringTable &strings, const Taker &take, QString *error)
{
    const auto fail = [error](const QString &what) {
        *error = what;
        return false;
    };
    biff::RecordStream records(stream, begin, end);
    if (!Begins(stream, begin) || !records.next())
        return fail(KW_TEXT("the sheet \"%1\" does not begin where the workbook says"));
    SheetReader reader(strings, take);
    int embedded = 0; // charts in the sheet, one in another
    while (records.next()) {
        if (records.code() == BOF::code) {
            ++embedded;
        } else if (records.code() == YEOF::code) {
            if (embedded == 0)
                return true;
            --embedded;
        } else if (embedded == 0 && !reader.read(records)) {
            return fail(KW_TEXT("the sheet \"%2\" is damaged at byte %1").arg(records.offset()));
        }
    }
    return fail(KW_TEXT("the sheet \"%1\" ends early"));
}

void Worksheet::Begin(biff::Sink &to, int rows, int columns)
{
    m_to = &to;
    m_rows = rows;
    m_cells = CellTable();
    BOF bof;
    bof.type = BOF::Sheet;
    bof.Write(to);
    m_indexAt = to.size();
    Index index;
    index.endRow = quint32(rows);
    index.dbCellOffsets.resize(size_t((rows + biff::rowsInBlock - 1) / biff::rowsInBlock));
    index.Write(to);
    Dimensions dimensions;
    dimensions.endRow = quint32(rows);
    dimensions.endColumn = quint16(columns);
    dimensions.Write(to);
}

void Worksheet::End()
{
    const std::vector<quint32> dbCells = m_cells.Finish(*m_to, m_rows);
    const quint32 offsetsAt = m_indexAt + Record::headerBytes + quint32(Index::smallestBytes);
    for (size_t i = 0; i < dbCells.size(); ++i)
        m_to->patch(offsetsAt + 4 * quint32(i), dbCells[i]);
    Window2().Write(*m_to);
    YEOF().Write(*m_to);
}
