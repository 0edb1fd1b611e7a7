#pragma once
#include "exchange/sheetrows.h"
#include "support/findings.h"
#include <vector>

// The rows of one worksheet by the titles of its columns.
namespace sheetrows {

// A cell that is not empty, in a column whose title is known.
struct KnownCell
{
    int field = 0; // what the title stands for
    const Cell *cell = nullptr;
};

// Reads a sheet; what the fields mean is up to those that derive from it.
class Reader
{
public:
    // The findings are not owned; null drops them. `sheet` is how they name the sheet.
    Reader(Findings *findings, const QString &sheet);
    virtual ~Reader() = default;
    Reader(const Reader &) = delete;
    Reader &operator=(const Reader &) = delete;

    // Reads to the end. False for a sheet that ended early: what was read up to there is not to be used.
    bool read(Source &source);
    // Whether the title row has a title that is known.
    bool isKnown() const { return m_isKnown; }
    // Whether it has title cells, and all of them empty.
    bool hasBlankTitles() const;
    // The cells of row 1.
    const std::vector<Cell> &titles() const { return m_titles; }

protected:
    virtual int fieldOf(const QString &title) const = 0; // -1 for a title that is not known
    // A row that has something in a known column.
    virtual void addRow(int row, const std::vector<KnownCell> &cells) = 0;
    void report(int row, const Cell *cell, const QString &what, const QString &instead) const;
    void report(int row, const QString &column, const QString &what, const QString &instead) const;
    QString titleOf(const Cell &cell) const;

private:
    void readTitles(const Row &row);
    void readRow(const Row &row);
    bool isCounting() const;

    Findings *m_findings;
    const QString m_sheet;
    bool m_isKnown = false;
    bool m_hasTitles = false;
    std::vector<Cell> m_titles;
    std::vector<int> m_fieldOfColumn; // by column number
    std::vector<KnownCell> m_cells;   // of the row being read
};
}
