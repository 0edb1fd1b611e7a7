#include "exchange/BasicExcel.h"
#include "support/said.h"
#include <QBuffer>
#include <QFile>
#include <cmath>
#include <cwchar>
#include <limits>

using namespace YExcel;
using YCompoundFiles::CompoundFile;

namespace {

const QString streamName = QStringLiteral("Workbook");
const QString olderStreamName = QStringLiteral("Book");
// So long that the stream lies in ordinary sectors: readers expect a workbook there.
constexpr int smallestStreamBytes = 4096;

bool isPossibleName(const QString &name)
{
    static const QString forbidden = QStringLiteral("[]:*?/\\");
    return !name.isEmpty() && name.size() <= biff::sheetNameLimit && !name.startsWith(QLatin1Char('\'')) &&
           !name.endsWith(QLatin1Char('\'')) && std::none_of(name.begin(), name.end(), [](QChar c) {
               return c.unicode() < 0x20 || forbidden.contains(c);
           });
}

QString fromWide(const wchar_t *text)
{
    return text ? QString::fromWCharArray(text) : QString();
}

// Gives each different text a place in the table, in the order in which they come.
class TextPlaces
{
public:
    explicit TextPlaces(Workbook::SharedStringTable *table)
        : m_strings(&table->strings)
        , m_slots(16)
    {
    }

    void add(const biff::Text &text)
    {
        // Copies of one text know their place already.
        const quint32 known = text.place();
        if (known < m_strings->size() && (*m_strings)[known].text.isShared(text))
            return;
        const void *characters = text.isNarrow() ? static_cast<const void *>(text.latin1()) : text.utf16();
        const quint32 hash = qHashBits(characters, text.bytes());
        Slot *slot = slotOf(hash);
        while (slot->isTaken && !(slot->hash == hash && (*m_strings)[slot->place].text == text))
            slot = slotAfter(slot);
        if (!slot->isTaken) {
            *slot = {hash, quint32(m_strings->size()), true};
            m_strings->push_back({text, !text.isNarrow()});
        }
        text.setPlace(slot->place);
        if (2 * m_strings->size() > m_slots.size())
            grow();
    }

private:
    struct Slot
    {
        quint32 hash = 0, place = 0;
        bool isTaken = false;
    };
    Slot *slotOf(quint32 hash) { return &m_slots[hash & (m_slots.size() - 1)]; }
    Slot *slotAfter(Slot *slot) { return slot == &m_slots.back() ? m_slots.data() : slot + 1; }
    void grow()
    {
        std::vector<Slot> old(2 * m_slots.size());
        old.swap(m_slots);
        for (const Slot &taken : old) {
            if (!taken.isTaken)
                continue;
            Slot *slot = slotOf(taken.hash);
            while (slot->isTaken)
                slot = slotAfter(slot);
            *slot = taken;
        }
    }

    std::vector<Workbook::SharedStringTable::Entry> *m_strings;
    std::vector<Slot> m_slots; // at most half of them are taken; their number is a power of two
};
}

int BasicExcelCell::GetInteger() const
{
    const double number = asReal();
    const bool isWhole = number >= std::numeric_limits<int>::min() &&
                         number <= std::numeric_limits<int>::max() && number == std::floor(number);
    return kind() == real && isWhole ? int(number) : asInteger();
}

double BasicExcelCell::GetDouble() const
{
    return kind() == integer ? asInteger() : asReal();
}

size_t BasicExcelCell::GetStringLength() const
{
    return kind() == wideText ? asText().wideLength() : asText().units();
}

bool BasicExcelCell::SetString(const char *text)
{
    return setText(text ? biff::Text::fromLatin1(text, std::strlen(text)) : biff::Text(), narrowText);
}

bool BasicExcelCell::SetWString(const wchar_t *text)
{
    return setText(text ? biff::Text::fromWide(text, std::wcslen(text)) : biff::Text(), wideText);
}

bool BasicExcelCell::SetText(const QString &text)
{
    return setText(text.isNull() ? biff::Text() : biff::Text::fromString(text), wideText);
}

bool BasicExcelCell::setText(biff::Text text, Kind kind)
{
    return text.units() <= size_t(biff::textLimit) && set(ofText(std::move(text), kind));
}

bool BasicExcelCell::set(Value value)
{
    if (!m_sheet)
        return false;
    const bool wasDefined = kind() != undefined;
    Value::operator=(std::move(value));
    m_sheet->noteChange(*this, wasDefined);
    return true;
}

bool BasicExcelWorksheet::isInside(int row, int column)
{
    return row >= 0 && row < biff::rowLimit && column >= 0 && column < biff::columnLimit;
}

BasicExcelWorksheet::Run *BasicExcelWorksheet::find(quint32 key) const
{
    if (m_lastRun && m_lastKey == key)
        return m_lastRun;
    const auto at = m_runs.find(key);
    if (at == m_runs.end())
        return nullptr;
    m_lastKey = key;
    return m_lastRun = const_cast<Run *>(&at->second);
}

BasicExcelCell *BasicExcelWorksheet::Cell(int row, int column)
{
    if (!isInside(row, column))
        return nullptr;
    const quint32 key = keyOf(row, column);
    const bool isBehindAll = m_runs.empty() || m_runs.rbegin()->first < key;
    Run *run = isBehindAll ? nullptr : find(key);
    if (!run) {
        run = &m_runs.try_emplace(isBehindAll ? m_runs.end() : m_runs.lower_bound(key), key)->second;
        const int firstColumn = column / Run::length * Run::length;
        for (int i = 0; i < Run::length; ++i) {
            BasicExcelCell &cell = run->cells[i];
            cell.m_sheet = this;
            cell.m_row = quint16(row);
            cell.m_column = quint8(firstColumn + i);
        }
        m_lastKey = key;
        m_lastRun = run;
    }
    return &run->cells[column % Run::length];
}

const BasicExcelCell *BasicExcelWorksheet::Cell(int row, int column) const
{
    static const BasicExcelCell nothing;
    if (!isInside(row, column))
        return nullptr;
    const Run *run = find(keyOf(row, column));
    return run ? &run->cells[column % Run::length] : &nothing;
}

int BasicExcelWorksheet::NextRow(int row) const
{
    if (row >= biff::rowLimit)
        return -1;
    for (auto run = m_runs.lower_bound(keyOf(qMax(row, 0), 0)); run != m_runs.end(); ++run) {
        for (const BasicExcelCell &cell : run->second.cells) {
            if (cell.Type() != BasicExcelCell::UNDEFINED)
                return cell.m_row;
        }
    }
    return -1;
}

int BasicExcelWorksheet::NextColumn(int row, int column) const
{
    if (!isInside(row, qMax(column, 0)))
        return -1;
    for (auto run = m_runs.lower_bound(keyOf(row, qMax(column, 0))); run != m_runs.end(); ++run) {
        for (const BasicExcelCell &cell : run->second.cells) {
            if (cell.m_row != row)
                return -1;
            if (cell.m_column >= column && cell.Type() != BasicExcelCell::UNDEFINED)
                return cell.m_column;
        }
    }
    return -1;
}

int BasicExcelWorksheet::GetTotalRows() const
{
    count();
    return m_rows;
}

int BasicExcelWorksheet::GetTotalCols() const
{
    count();
    return m_columns;
}

void BasicExcelWorksheet::noteChange(const BasicExcelCell &cell, bool wasDefined)
{
    if (cell.Type() != BasicExcelCell::UNDEFINED) {
        m_rows = qMax(m_rows, cell.m_row + 1);
        m_columns = qMax(m_columns, cell.m_column + 1);
    } else if (wasDefined && (cell.m_row + 1 == m_rows || cell.m_column + 1 == m_columns)) {
        m_isCountStale = true;
    }
}

void BasicExcelWorksheet::count() const
{
    if (!m_isCountStale)
        return;
    m_isCountStale = false;
    m_rows = m_columns = 0;
    forEachCell([this](const BasicExcelCell &cell) {
        m_rows = cell.m_row + 1;
        m_columns = qMax(m_columns, cell.m_column + 1);
    });
}

template <class Visit>
void BasicExcelWorksheet::forEachCell(const Visit &visit) const
{
    for (const auto &run : m_runs) {
        for (const BasicExcelCell &cell : run.second.cells) {
            if (cell.Type() != BasicExcelCell::UNDEFINED)
                visit(cell);
        }
    }
}

bool BasicExcelWorksheet::Rename(const char *name)
{
    return m_book->rename(this, QString::fromLatin1(name));
}

bool BasicExcelWorksheet::Rename(const wchar_t *name)
{
    return m_book->rename(this, fromWide(name));
}

BasicExcel::BasicExcel() = default;

BasicExcel::BasicExcel(const char *path)
{
    Load(path);
}

BasicExcel::~BasicExcel() = default;

bool BasicExcel::fail(const QString &what)
{
    m_error = what;
    return false;
}

void BasicExcel::New(int sheets)
{
    m_sheets.clear();
    m_byName.clear();
    m_path.clear();
    m_is1904 = false;
    m_error.clear();
    for (int i = 0; i < sheets; ++i)
        AddWorksheet();
}

bool BasicExcel::Load(const char *path)
{
    CompoundFile file;
    if (!path || !file.Open(QFile::decodeName(path)))
        return fail(path ? file.ErrorText() : QStringLiteral("no path is given"));
    if (!load(file)) {
        m_error.prepend(QFile::decodeName(path) + QLatin1String(": "));
        return false;
    }
    m_path = path;
    return true;
}

bool BasicExcel::LoadBytes(const QByteArray &bytes)
{
    CompoundFile file;
    if (!file.OpenBytes(bytes))
        return fail(file.ErrorText());
    if (!load(file))
        return false;
    m_path.clear();
    return true;
}

// Takes what it needs and closes the file, which may be large.
bool BasicExcel::load(CompoundFile &file)
{
    QByteArray stream;
    // Some writers keep the name that the versions before had.
    const QString name = file.FindProperty(streamName) ? streamName : olderStreamName;
    if (!file.FindProperty(name))
        return fail(KW_TEXT("holds no workbook"));
    if (!file.ReadFile(name, &stream))
        return fail(KW_TEXT("the stream of the workbook is damaged"));
    file.Close();

    Workbook workbook;
    QString error;
    if (!workbook.Read(stream, &error))
        return fail(error);
    // Every sheet ends where another begins at the latest, so no byte is read for two.
    std::vector<quint32> offsets;
    if (workbook.sheets.size() == 1 && !Worksheet::Begins(stream, workbook.sheets[0].offset))
        workbook.sheets[0].offset = Worksheet::OnlyBegin(stream).value_or(workbook.sheets[0].offset);
    for (const Workbook::BoundSheet &sheet : workbook.sheets) {
        if (sheet.type == Workbook::BoundSheet::Sheet)
            offsets.push_back(sheet.offset);
    }
    std::sort(offsets.begin(), offsets.end());
    Sheets sheets;
    for (const Workbook::BoundSheet &bound : workbook.sheets) {
        if (bound.type != Workbook::BoundSheet::Sheet)
            continue;
        std::unique_ptr<BasicExcelWorksheet> sheet(new BasicExcelWorksheet(this));
        sheet->m_name = bound.name.Value();
        const auto next = std::upper_bound(offsets.begin(), offsets.end(), bound.offset);
        const quint32 end = next == offsets.end() ? quint32(stream.size()) : *next;
        const auto ownOffset = std::lower_bound(offsets.begin(), offsets.end(), bound.offset);
        const auto put = [&](int row, int column, biff::Value &&value, quint16 format) {
            BasicExcelCell &cell = *sheet->Cell(row, column);
            cell.set(std::move(value));
            cell.m_isPercent = workbook.showsPercent(format);
        };
        if (next - ownOffset > 1)
            return fail(KW_TEXT("the sheet \"%1\" lies where another does").arg(sheet->m_name));
        if (!Worksheet::Read(stream, bound.offset, end, workbook.strings, put, &error))
            return fail(error.arg(sheet->m_name));
        sheets.push_back(std::move(sheet));
    }
    m_sheets = std::move(sheets);
    m_byName.clear();
    for (const auto &sheet : m_sheets)
        m_byName.insert(sheet->m_name.toCaseFolded(), sheet.get());
    m_is1904 = workbook.is1904;
    m_error.clear();
    return true;
}

bool BasicExcel::Save()
{
    return m_path.isEmpty() ? fail(QStringLiteral("the workbook has no path"))
                            : SaveAs(QByteArray(m_path).constData());
}

bool BasicExcel::SaveAs(const char *path)
{
    CompoundFile file;
    if (!path || !makeFile(&file))
        return path ? false : fail(QStringLiteral("no path is given"));
    if (!file.SaveAs(QFile::decodeName(path)))
        return fail(file.ErrorText());
    m_path = path;
    m_error.clear();
    return true;
}

QByteArray BasicExcel::ToBytes()
{
    CompoundFile file;
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!makeFile(&file))
        return {};
    if (!file.WriteTo(buffer)) {
        fail(file.ErrorText());
        return {};
    }
    return buffer.data();
}

bool BasicExcel::makeFile(CompoundFile *file)
{
    QByteArray stream;
    if (!writeStream(&stream))
        return false;
    file->Create(QString());
    return (file->MakeFile(streamName) && file->WriteFile(streamName, stream)) || fail(file->ErrorText());
}

bool BasicExcel::collectTexts(Workbook::SharedStringTable *strings)
{
    const BasicExcelCell *tooLong = nullptr;
    TextPlaces places(strings);
    for (const auto &sheet : m_sheets) {
        sheet->forEachCell([&](const BasicExcelCell &cell) {
            if (!cell.isText())
                return;
            places.add(cell.asText());
            ++strings->uses;
            if (cell.asText().units() > size_t(biff::textLimit))
                tooLong = &cell;
        });
    }
    if (tooLong)
        return fail(
            QStringLiteral("the text in row %1, column %2 of the sheet \"%3\" is longer than %4 characters")
                .arg(tooLong->m_row + 1)
                .arg(tooLong->m_column + 1)
                .arg(tooLong->m_sheet->m_name)
                .arg(biff::textLimit));
    return true;
}

bool BasicExcel::writeStream(QByteArray *stream)
{
    if (m_sheets.empty())
        return fail(QStringLiteral("a workbook needs a sheet"));
    Workbook workbook;
    workbook.is1904 = m_is1904;
    if (!collectTexts(&workbook.strings))
        return false;
    for (const auto &sheet : m_sheets) {
        Workbook::BoundSheet bound;
        bound.name = sheet->m_name;
        workbook.sheets.push_back(bound);
    }
    biff::Sink sink;
    workbook.Write(sink);
    for (size_t i = 0; i < m_sheets.size(); ++i) {
        workbook.SetOffset(sink, i);
        Worksheet sheet;
        sheet.Begin(sink, m_sheets[i]->GetTotalRows(), m_sheets[i]->GetTotalCols());
        m_sheets[i]->forEachCell(
            [&sheet](const BasicExcelCell &cell) { sheet.Add(cell.m_row, cell.m_column, cell); });
        sheet.End();
    }
    if (sink.size() < quint32(smallestStreamBytes))
        sink.zeros(smallestStreamBytes - sink.size());
    if (!sink.ok())
        return fail(QStringLiteral("the workbook is too large for this format"));
    *stream = sink.takeBytes();
    return true;
}

BasicExcelWorksheet *BasicExcel::GetWorksheet(int index)
{
    return index >= 0 && index < GetTotalWorkSheets() ? m_sheets[size_t(index)].get() : nullptr;
}

const BasicExcelWorksheet *BasicExcel::GetWorksheet(int index) const
{
    return const_cast<BasicExcel *>(this)->GetWorksheet(index);
}

BasicExcelWorksheet *BasicExcel::GetWorksheet(const char *name)
{
    return GetWorksheet(indexOf(QString::fromLatin1(name)));
}

BasicExcelWorksheet *BasicExcel::GetWorksheet(const wchar_t *name)
{
    return GetWorksheet(indexOf(fromWide(name)));
}

int BasicExcel::indexOf(const QString &name) const
{
    const QString folded = name.toCaseFolded();
    const auto isNamed = [&name](const BasicExcelWorksheet *sheet) { return sheet->m_name == name; };
    const auto [begin, end] = m_byName.equal_range(folded);
    if (std::none_of(begin, end, isNamed))
        return -1;
    const auto found = std::find_if(m_sheets.begin(), m_sheets.end(),
                                    [&](const auto &sheet) { return isNamed(sheet.get()); });
    return int(found - m_sheets.begin());
}

bool BasicExcel::isNameFree(const QString &name, const BasicExcelWorksheet *except) const
{
    const auto [begin, end] = m_byName.equal_range(name.toCaseFolded());
    return std::all_of(begin, end, [except](const BasicExcelWorksheet *sheet) { return sheet == except; });
}

BasicExcelWorksheet *BasicExcel::AddWorksheet(int index)
{
    int number = GetTotalWorkSheets() + 1;
    const auto name = [&number] { return QStringLiteral("Sheet%1").arg(number); };
    while (!isNameFree(name(), nullptr))
        ++number;
    return add(name(), index);
}

BasicExcelWorksheet *BasicExcel::AddWorksheet(const char *name, int index)
{
    return add(QString::fromLatin1(name), index);
}

BasicExcelWorksheet *BasicExcel::AddWorksheet(const wchar_t *name, int index)
{
    return add(fromWide(name), index);
}

BasicExcelWorksheet *BasicExcel::add(const QString &name, int index)
{
    if (!isPossibleName(name) || !isNameFree(name, nullptr)) {
        fail(QStringLiteral("\"%1\" cannot be the name of a sheet").arg(name));
        return nullptr;
    }
    const bool isInside = index >= 0 && index < GetTotalWorkSheets();
    const auto at = isInside ? m_sheets.begin() + index : m_sheets.end();
    BasicExcelWorksheet *sheet =
        m_sheets.emplace(at, std::unique_ptr<BasicExcelWorksheet>(new BasicExcelWorksheet(this)))->get();
    sheet->m_name = name;
    m_byName.insert(name.toCaseFolded(), sheet);
    return sheet;
}

bool BasicExcel::DeleteWorksheet(int index)
{
    return remove(index);
}

bool BasicExcel::DeleteWorksheet(const char *name)
{
    return remove(indexOf(QString::fromLatin1(name)));
}

bool BasicExcel::DeleteWorksheet(const wchar_t *name)
{
    return remove(indexOf(fromWide(name)));
}

bool BasicExcel::remove(int index)
{
    BasicExcelWorksheet *sheet = GetWorksheet(index);
    if (!sheet)
        return fail(QStringLiteral("there is no such sheet"));
    if (m_sheets.size() == 1)
        return fail(QStringLiteral("the last sheet cannot be deleted"));
    m_byName.remove(sheet->m_name.toCaseFolded(), sheet);
    m_sheets.erase(m_sheets.begin() + index);
    return true;
}

bool BasicExcel::RenameWorksheet(int index, const char *to)
{
    return rename(GetWorksheet(index), QString::fromLatin1(to));
}

bool BasicExcel::RenameWorksheet(int index, const wchar_t *to)
{
    return rename(GetWorksheet(index), fromWide(to));
}

bool BasicExcel::RenameWorksheet(const char *from, const char *to)
{
    return rename(GetWorksheet(from), QString::fromLatin1(to));
}

bool BasicExcel::RenameWorksheet(const wchar_t *from, const wchar_t *to)
{
    return rename(GetWorksheet(from), fromWide(to));
}

bool BasicExcel::rename(BasicExcelWorksheet *sheet, const QString &name)
{
    if (!sheet)
        return fail(QStringLiteral("there is no such sheet"));
    if (!isPossibleName(name) || !isNameFree(name, sheet))
        return fail(QStringLiteral("\"%1\" cannot be the name of a sheet").arg(name));
    m_byName.remove(sheet->m_name.toCaseFolded(), sheet);
    sheet->m_name = name;
    m_byName.insert(name.toCaseFolded(), sheet);
    return true;
}

std::wstring BasicExcel::GetSheetName(int index) const
{
    return index >= 0 && index < GetTotalWorkSheets() ? m_sheets[size_t(index)]->GetSheetName()
                                                      : std::wstring();
}
