#pragma once
#include "exchange/sheetrows.h"
#include "support/findings.h"
#include "support/xmlpull.h"
#include <QDomNodeList>
#include <QString>
#include <QStringList>
#include <vector>

// The parts of a spreadsheet package that hold cells, read the way its many writers write them.
namespace xlsx {

// The column of a cell reference such as "AB12", from 1. 0 for less than one or more than two letters and for
// other characters than capital letters and digits.
int columnOf(std::string_view reference);

// Reads a part's bytes as UTF-8; nothing for a file that cannot be read or is larger than a part may be.
QByteArray readPart(const QString &path, QString *error);
// One text for each entry: its runs joined, phonetic hints left out. False, with what was read, when the part
// is no sound XML.
bool readSharedStrings(const QByteArray &part, QStringList &strings, QString *error,
                       int *oddReferences = nullptr);
// Tells of references in a part that stand for no character, if there are any.
void tellOddReferences(Findings &findings, const QString &part, int references);
// Whether the workbook part says that days count from 1904.
bool is1904(const QByteArray &part);
// The codes of the number formats by their id.
bool readNumberFormats(const QByteArray &part, QList<QPair<int, QString>> &formats);
// Whether cells of a style are shown as percentages, by the numbers of the styles.
std::vector<bool> percentStyles(const QByteArray &part);
// The worksheet files of a folder in the order of the numbers in their names.
QStringList sheetFiles(const QString &folder);
// The worksheets that the workbook part of an unpacked package names, in its order: paths relative to the
// folder of that part. Those that lead elsewhere are left out.
QStringList relatedSheets(const QByteArray &workbook, const QByteArray &relations);
// A control character that a program has written as "_x000D_" becomes itself.
QString withoutEscapes(const QString &text);
// Makes of what only looks like one a text that reads back as it is.
QString withEscapes(const QString &text);

// What a cell says of itself, before its text is known.
struct CellKind
{
    enum Type { Shared, Text, Number, Date } type = Number;
    static CellKind of(std::string_view typeAttribute);
};
// The text of a cell by its kind and the content of its "v" element.
sheetrows::Cell cellOf(int column, CellKind kind, const QString &value, const QStringList &strings);

// What a sheet holds that its reader could not take as it stands.
struct Doubts
{
    int references = 0;     // cells left out, since their place is not understood
    int rowReferences = 0;  // taken by their column, though the row in them is none
    int emptyFormulas = 0;  // without the value that a program has calculated
    int oddReferences = 0;  // in texts, see XmlPull
    QString firstReference; // of either kind, with its row's number
    QString firstFormula;
    void addTo(Findings &findings, const QString &sheet) const;
};

// Rows straight from the text of a worksheet part.
class SheetSource : public sheetrows::Source
{
public:
    // Strings and styles must outlive the source.
    SheetSource(const QByteArray &part, const QStringList &strings,
                const std::vector<bool> *percentStyles = nullptr);

    // False for a part that is no worksheet.
    bool isWorksheet() const { return m_isWorksheet; }
    bool next(sheetrows::Row &row) override;
    QString error() const override { return m_xml.error(); }
    Doubts doubts() const;

private:
    void readCell(sheetrows::Row &row);
    QString readInlineText();

    const QStringList &m_strings;
    const std::vector<bool> *m_percentStyles;
    Doubts m_doubts;
    XmlPull m_xml;
    bool m_isWorksheet = false;
    bool m_hasEnded = false;
    int m_rowNumber = 0;
    int m_column = 0; // of the cell before
};

// The rows of a worksheet that is held in a DOM; the same cells.
class DomSheetSource : public sheetrows::Source
{
public:
    // The strings must outlive the source.
    DomSheetSource(const QDomNodeList &rows, const QStringList &strings)
        : m_rows(rows)
        , m_strings(strings)
    {
    }
    bool next(sheetrows::Row &row) override;

private:
    const QDomNodeList m_rows;
    const QStringList &m_strings;
    int m_next = 0;
    int m_rowNumber = 0;
};
}
