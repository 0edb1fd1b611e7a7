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

// One sheet, read once from its first row to its last.
class Source
{
public:
    virtual ~Source() = default;
    // Fills in the next row, in the order of the file; numbers may repeat or go back. False at the end.
    virtual bool next(Row &row) = 0;
    // From now on, of columns from 1 for which this is false, and of those behind its end, only whether a
    // cell has anything but blanks is asked: it may have any other text then.
    virtual void readOnly(const std::vector<bool> &) {}
    // How many rows there are at most, where that is known before; else 0.
    virtual std::size_t rowsAtMost() const { return 0; }
    // Why the sheet ended early; empty when it did not.
    virtual QString error() const { return QString(); }
};
}
