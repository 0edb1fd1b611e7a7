#pragma once
#include <QtGlobal>
#include <cstddef>

// The records of a workbook: their codes, their names, and how short one may be.
namespace biff {

constexpr int rowLimit = 65536;
constexpr int columnLimit = 256;
constexpr int textLimit = 32767;      // UTF-16 units of a cell
constexpr int sheetNameLimit = 31;    // UTF-16 units
constexpr int recordDataLimit = 8224; // what is longer goes on in Continue records
constexpr int rowsInBlock = 32;
constexpr quint16 cellFormat = 15; // of every cell we write: the first that is no style

namespace code {
constexpr quint16 bof = 0x0809, eof = 0x000A, window1 = 0x003D, font = 0x0031, xf = 0x00E0, style = 0x0293,
                  boundSheet = 0x0085, sharedStrings = 0x00FC, extSst = 0x00FF, index = 0x020B,
                  dimensions = 0x0200, window2 = 0x023E, row = 0x0208, blank = 0x0201, boolErr = 0x0205,
                  labelSst = 0x00FD, mulBlank = 0x00BE, mulRk = 0x00BD, number = 0x0203, rk = 0x027E,
                  formula = 0x0006, formulaOfBiff3 = 0x0206, formulaOfBiff4 = 0x0406, array = 0x0221,
                  sharedFormula = 0x00BC, table = 0x0036, string = 0x0207, dbCell = 0x00D7,
                  continued = 0x003C, filePass = 0x002F, date1904 = 0x0022, label = 0x0204,
                  richLabel = 0x00D6, numberFormat = 0x041E;
}

struct RecordKind
{
    quint16 code;
    quint16 otherCode; // which files use as well; 0 when there is none
    const char *name;
    quint16 smallestBytes; // of the data, without what varies
};

constexpr RecordKind recordKinds[] = {
    {code::bof, 0, "BOF", 4}, // some writers leave out build, year and history
    {code::eof, 0, "EOF", 0},
    {code::window1, 0, "Window1", 18},
    {code::font, 0, "Font", 16},
    {code::xf, 0, "XF", 20},
    {code::style, 0, "Style", 4},
    {code::boundSheet, 0, "BoundSheet", 8},
    {code::sharedStrings, 0, "SharedStringTable", 8},
    {code::extSst, 0, "ExtSST", 2},
    {code::index, 0, "Index", 16},
    {code::dimensions, 0, "Dimensions", 14},
    {code::window2, 0, "Window2", 18},
    {code::row, 0, "Row", 16},
    {code::blank, 0, "Blank", 6},
    {code::boolErr, 0, "BoolErr", 8},
    {code::labelSst, 0, "LabelSST", 10},
    {code::mulBlank, 0, "MulBlank", 6},
    {code::mulRk, 0, "MulRK", 6},
    {code::number, 0, "Number", 14},
    {code::rk, 0, "RK", 10},
    {code::formula, 0, "Formula", 22},
    {code::array, 0, "Array", 14},
    {code::sharedFormula, 0x04BC, "ShrFmla", 10},
    {code::table, 0x0236, "Table", 16},
    {code::string, 0, "String", 3},
    {code::dbCell, 0, "DBCell", 4},
    {code::continued, 0, "Continue", 0},
    {code::filePass, 0, "FilePass", 2},
    {code::date1904, 0, "Date1904", 2},
    {code::label, 0, "Label", 8},
    {code::richLabel, 0, "RString", 9},
};

// The kind of a code that is in the table.
constexpr const RecordKind &kindOf(quint16 code)
{
    size_t i = 0;
    while (recordKinds[i].code != code)
        ++i;
    return recordKinds[i];
}
}
