#pragma once
#include "exchange/biff/cells.h"
#include "exchange/biff/compoundfile.h"
#include "exchange/biff/workbook.h"
#include "exchange/biff/worksheet.h"
#include "kwgantt_export.h"
#include <QHash>
#include <QString>
#include <map>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

// A workbook in memory: sheets by index or name, cells by row and column, all counted from 0.
namespace YExcel {

class BasicExcel;
class BasicExcelWorksheet;

// One cell. It belongs to its sheet and lives as long; setters return false and change nothing past a limit.
class KWGANTT_EXPORT BasicExcelCell : private biff::Value
{
public:
    enum { UNDEFINED, INT, DOUBLE, STRING, WSTRING };

    BasicExcelCell() = default; // of no sheet and undefined
    BasicExcelCell(const BasicExcelCell &) = delete;
    BasicExcelCell &operator=(const BasicExcelCell &) = delete;

    // Truth values are read as the integers 1 and 0, errors as the text that a spreadsheet shows ("#N/A").
    int Type() const { return kind(); }
    // An integer, or a double without a fraction; else 0.
    int GetInteger() const;
    // A double or an integer; else 0.
    double GetDouble() const;
    // Latin-1; "" when the cell holds no text or other characters. Holds until the cell changes.
    const char *GetString() const { return asText().latin1(); }
    // One wide character a character; "" when the cell holds no text. Holds until the cell changes.
    const wchar_t *GetWString() const { return asText().wide(); }
    // Characters of GetString() or GetWString(), whichever the type names.
    size_t GetStringLength() const;
    // The text without a copy that stays; null when there is none.
    QString GetText() const { return isText() ? asText().toString() : QString(); }

    // Whether a workbook that was read shows the number as a percentage.
    bool IsPercent() const { return m_isPercent; }

    bool SetInteger(int number) { return set(ofInteger(number)); }
    // What is not finite is written as the error #NUM!.
    bool SetDouble(double number) { return set(ofReal(number)); }
    // Latin-1. Null makes the cell undefined, more than 32,767 UTF-16 units are refused.
    bool SetString(const char *text);
    bool SetWString(const wchar_t *text);
    bool SetText(const QString &text);
    void EraseContents() { set(Value()); }

private:
    friend class BasicExcel;
    friend class BasicExcelWorksheet;
    bool set(Value value);
    bool setText(biff::Text text, Kind kind);

    quint8 m_column = 0;
    bool m_isPercent = false;
    quint16 m_row = 0;
    BasicExcelWorksheet *m_sheet = nullptr;
};

// A sheet. It belongs to its workbook.
class KWGANTT_EXPORT BasicExcelWorksheet
{
public:
    BasicExcelWorksheet(const BasicExcelWorksheet &) = delete;
    BasicExcelWorksheet &operator=(const BasicExcelWorksheet &) = delete;

    // One past the last row, and column, with a cell that is not undefined.
    int GetTotalRows() const;
    int GetTotalCols() const;
    // Makes the cell when there is none. Null beyond 65,536 rows and 256 columns.
    BasicExcelCell *Cell(int row, int column);
    // Makes none: where there is no cell it gives one that is undefined.
    const BasicExcelCell *Cell(int row, int column) const;
    // The first row from `row` on that holds something; -1 when there is none. Passes over gaps at once.
    int NextRow(int row) const;
    // The same in one row, from `column` on.
    int NextColumn(int row, int column) const;
    // False when the name is not possible, or another sheet has it.
    bool Rename(const char *name);
    bool Rename(const wchar_t *name);
    std::wstring GetSheetName() const { return m_name.toStdWString(); }

private:
    friend class BasicExcel;
    friend class BasicExcelCell;

    // Neighbours in a row. Memory follows the cells that there are, and cells stay where they are.
    struct Run
    {
        static constexpr int length = 16;
        BasicExcelCell cells[length];
    };
    explicit BasicExcelWorksheet(BasicExcel *book)
        : m_book(book)
    {
    }
    static quint32 keyOf(int row, int column)
    {
        return (quint32(row) * biff::columnLimit + quint32(column)) / Run::length;
    }
    static bool isInside(int row, int column);
    Run *find(quint32 key) const;
    void noteChange(const BasicExcelCell &cell, bool wasDefined);
    void count() const;
    template <class Visit>
    void forEachCell(const Visit &visit) const;

    BasicExcel *m_book;
    QString m_name;
    std::map<quint32, Run> m_runs;
    // The run that was asked for last: most cells are asked for in order.
    mutable quint32 m_lastKey = 0;
    mutable Run *m_lastRun = nullptr;
    mutable int m_rows = 0, m_columns = 0;
    mutable bool m_isCountStale = false;
};

class KWGANTT_EXPORT BasicExcel
{
    template <class Index>
    using IfInteger =
        std::enable_if_t<std::is_integral<Index>::value && !std::is_same<Index, int>::value, int>;
    // -1 for what an int cannot hold.
    template <class Index>
    static int toInt(Index index)
    {
        const int number = int(index);
        return number >= 0 && Index(number) == index ? number : -1;
    }

public:
    BasicExcel();
    explicit BasicExcel(const char *path);
    ~BasicExcel();
    BasicExcel(const BasicExcel &) = delete;
    BasicExcel &operator=(const BasicExcel &) = delete;

    // Forgets everything; `sheets` empty sheets called Sheet1, Sheet2 ...
    void New(int sheets = 3);
    // Paths are in the local 8-bit encoding. After a failure the workbook is as it was.
    // Of a file the values are kept, not the formats nor the formulas.
    bool Load(const char *path);
    bool LoadBytes(const QByteArray &file);
    // To the path that was loaded or saved last.
    bool Save();
    // Replaces the file in one step.
    bool SaveAs(const char *path);
    // The file that SaveAs() would write; null after a failure.
    QByteArray ToBytes();

    int GetTotalWorkSheets() const { return int(m_sheets.size()); }
    // Null when there is none; of several sheets of one name, which a file may hold, the first.
    BasicExcelWorksheet *GetWorksheet(int index);
    const BasicExcelWorksheet *GetWorksheet(int index) const;
    BasicExcelWorksheet *GetWorksheet(const char *name);
    BasicExcelWorksheet *GetWorksheet(const wchar_t *name);
    // Before the sheet of that index, or behind the last. Null when the name is not possible or taken: a name
    // has 1 to 31 characters without []:*?/\ and differs from the others by more than case.
    BasicExcelWorksheet *AddWorksheet(int index = -1);
    BasicExcelWorksheet *AddWorksheet(const char *name, int index = -1);
    BasicExcelWorksheet *AddWorksheet(const wchar_t *name, int index = -1);
    // The last sheet stays: a workbook without one cannot be opened.
    bool DeleteWorksheet(int index);
    bool DeleteWorksheet(const char *name);
    bool DeleteWorksheet(const wchar_t *name);
    bool RenameWorksheet(int index, const char *to);
    bool RenameWorksheet(int index, const wchar_t *to);
    bool RenameWorksheet(const char *from, const char *to);
    bool RenameWorksheet(const wchar_t *from, const wchar_t *to);
    // Empty when there is none.
    std::wstring GetSheetName(int index) const;

    // Indexes of other types: for compilers a zero of theirs is a name as well, and an int may not hold them.
    template <class Index, IfInteger<Index> = 0>
    BasicExcelWorksheet *GetWorksheet(Index index)
    {
        return GetWorksheet(toInt(index));
    }
    template <class Index, IfInteger<Index> = 0>
    const BasicExcelWorksheet *GetWorksheet(Index index) const
    {
        return GetWorksheet(toInt(index));
    }
    template <class Index, IfInteger<Index> = 0>
    BasicExcelWorksheet *AddWorksheet(Index index)
    {
        return AddWorksheet(toInt(index));
    }
    template <class Index, IfInteger<Index> = 0>
    bool DeleteWorksheet(Index index)
    {
        return DeleteWorksheet(toInt(index));
    }
    template <class Index, class Character, IfInteger<Index> = 0>
    bool RenameWorksheet(Index index, const Character *to)
    {
        return RenameWorksheet(toInt(index), to);
    }

    // Days count from 1904-01-01 in the file that was loaded, and in what is saved from it.
    bool IsDate1904() const { return m_is1904; }
    // What went wrong last, for people.
    QString ErrorText() const { return m_error; }

private:
    friend class BasicExcelWorksheet;
    using Sheets = std::vector<std::unique_ptr<BasicExcelWorksheet>>;

    bool fail(const QString &what);
    bool load(YCompoundFiles::CompoundFile &file);
    bool makeFile(YCompoundFiles::CompoundFile *file);
    bool collectTexts(Workbook::SharedStringTable *strings);
    bool writeStream(QByteArray *stream);
    int indexOf(const QString &name) const;
    bool isNameFree(const QString &name, const BasicExcelWorksheet *except) const;
    BasicExcelWorksheet *add(const QString &name, int index);
    bool rename(BasicExcelWorksheet *sheet, const QString &name);
    bool remove(int index);

    Sheets m_sheets;
    QMultiHash<QString, BasicExcelWorksheet *> m_byName; // in folded case
    QByteArray m_path;
    bool m_is1904 = false;
    QString m_error;
};
}
