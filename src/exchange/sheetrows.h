#pragma once
#include <QString>
#include <vector>

// The cells of a sheet, row by row, whatever kind of file they come from.
namespace sheetrows {

struct Cell
{
    int column = 0; // from 1
    QString text;
    bool isNumber = false;  // the text is a finite number that the file holds as one
    bool isPercent = false; // such a number is a fraction that the file shows as a percentage
};

struct Row
{
    int number = 0; // from 1, the titles
    std::vector<Cell> cells;
    int line = 0; // where a user finds the row, when its number does not say it
};

// What is asked of the cells of a column.
enum class Need : quint8 {
    Nothing,
    Row,      // whether they make their row one that is not blank: one such cell in a row is enough
    Presence, // of each, whether it has anything but blanks
    Content,
};

// One sheet, read once from its first row to its last.
class Source
{
public:
    virtual ~Source() = default;
    // Fills in the next row, in the order of the file; numbers may repeat or go back. False at the end.
    virtual bool next(Row &row) = 0;
    // What is asked of the columns, from 1, from now on; of those behind the last of them, presence. Cells of
    // which no more is asked may be left out, or have any other text.
    virtual void readOnly(const std::vector<Need> &) {}
    // How many rows there are at most, where that is known before; else 0.
    virtual std::size_t rowsAtMost() const { return 0; }
    // Why the sheet ended early; empty when it did not.
    virtual QString error() const { return QString(); }
};
}
