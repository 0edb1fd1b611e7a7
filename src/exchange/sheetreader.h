#pragma once
#include "exchange/cellvalues.h"
#include "exchange/sheetrows.h"
#include "exchange/stagedplan.h"
#include "exchange/titletable.h"
#include "support/findings.h"
#include <vector>

// The rows of one sheet by the titles of its columns.
namespace sheetrows {

// How files of a kind are meant.
struct Reading
{
    // Titles letter for letter, and cells by the rules of the interface's own importData: names and IDs are
    // made unique one row after the other, a number among percentages is a fraction, a date that cannot be
    // read is today's.
    bool isExact = true;
    bool isStrict = false; // a cell that cannot be read refuses the file
    bool linksById =
        false; // a plain number among predecessors is an ID, where there are IDs; else the row's place
    planimport::LengthRule length = planimport::LengthRule::Measured;
    bool is1904 = false; // day numbers count from 1 January 1904
    // A number without its sign in the column of what is done: a percentage; else as the whole column says.
    bool plainPercent = false;
    bool comparesWork = false; // see planimport::Rules
    bool placesBehind = true;
    bool showsColumns = false; // of the task table those that the sheet has, and no others
    cellvalues::Comma comma = cellvalues::Comma::Groups;
    QString word = QStringLiteral("row"); // for a row in findings
};

// How the engines' importFile reads a workbook.
inline Reading workbookReading(bool is1904)
{
    Reading reading;
    reading.isExact = false;
    reading.length = planimport::LengthRule::OnItsDate;
    reading.is1904 = is1904;
    reading.showsColumns = true;
    return reading;
}

// A cell that is not empty, in a column whose title is known.
struct KnownCell
{
    int field = 0; // what the title stands for
    const Cell *cell = nullptr;
    const titletable::Known *title = nullptr;
};

// Reads a sheet; what the fields mean is up to those that derive from it.
class Reader
{
public:
    // The findings are not owned; null drops them. `name` is how they call the sheet; it may be empty.
    Reader(exceltitles::Sheet sheet, const Reading &reading, Findings *findings, const QString &name);
    virtual ~Reader() = default;
    Reader(const Reader &) = delete;
    Reader &operator=(const Reader &) = delete;

    // Reads to the end. False for a sheet that ended early: what was read up to there is not to be used.
    bool read(Source &source);
    // Whether the title row has a title that is known.
    bool isKnown() const { return m_isKnown; }
    // Whether it has title cells, and all of them empty.
    bool hasBlankTitles() const;
    bool hasTitles() const { return m_hasTitles; }
    // Rows without a row of titles, which are not read.
    bool hasLostRows() const { return m_hasLostRows; }
    // A cell could not be read, where that refuses the file.
    bool isRefused() const { return m_isRefused; }
    // The cells of row 1.
    const std::vector<Cell> &titles() const { return m_titles; }
    bool hasField(int field) const;
    QString titleOfField(int field) const;
    QString place() const; // what stands before a row's number in findings

protected:
    // Before the rows, if it is known.
    virtual void expectRows(std::size_t) {}
    // Whether anything but blanks in a cell of a known field matters.
    virtual bool isFieldRead(int) const { return true; }
    // A row that has something in a known column.
    virtual void addRow(const Row &row, const std::vector<KnownCell> &cells) = 0;
    const Reading &reading() const { return m_reading; }
    void report(int row, const Cell *cell, const QString &what, const QString &instead) const;
    void report(int row, const QString &column, const QString &what, const QString &instead) const;
    // A cell that cannot be read.
    void refuse(int row, const Cell *cell, const QString &what, const QString &instead);
    // A number whose comma was taken for a group's.
    void reportComma(int row, const Cell &cell, double value) const;
    QString titleOf(const Cell &cell) const;

private:
    void readTitles(const Row &row);
    std::vector<Need> needs() const;
    void readRow(const Row &row);
    void showPercentages(Row &row) const;
    void reportUntitled() const;
    bool isCounting() const;

    struct Untitled // a column without a title that has cells
    {
        int firstRow = 0;
        int cells = 0;
    };

    const exceltitles::Sheet m_kind;
    const Reading &m_reading;
    Findings *m_findings;
    const QString m_name;
    bool m_isKnown = false;
    bool m_hasTitles = false;
    bool m_hasLostRows = false;
    bool m_isRefused = false;
    std::vector<Cell> m_titles;
    std::vector<titletable::Known> m_fieldOfColumn; // by column number
    std::vector<bool> m_hasTitle;                   // by column number
    std::vector<Untitled> m_untitled;               // by column number
    std::vector<KnownCell> m_cells;                 // of the row being read
};
}
