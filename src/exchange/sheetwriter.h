#pragma once
#include "exchange/partwriter.h"
#include "exchange/planexport.h"
#include <QByteArray>
#include <QString>
#include <functional>
#include <vector>

// Where a readable sheet takes its look from.
struct SheetLook
{
    int deepest = 0;         // depth of the outline
    std::vector<int> widths; // of the columns, in characters
    int titleStyle = 0;
    std::function<int(planexport::Value)> styleOf;
};

// Writes one worksheet as its rows come.
class SheetWriter : public planexport::RowSink
{
public:
    using StringIndex = std::function<int(const QString &)>;
    // Without a look the sheet is plain: every cell is a text.
    SheetWriter(PartWriter &part, StringIndex stringIndex, const SheetLook *look, bool isSelected);

    // The sign of a column, from 1. Kept on purpose: always one; past Z it is no letter.
    static QString columnLetter(int column);
    static constexpr int letters = 26;
    static constexpr char descent[] = "0.15"; // below the line that texts stand on, the same for all rows

    void begin(int rows, int columns) override;
    void row(int row, int depth, const std::vector<planexport::Cell> &cells) override;
    void end(); // after the last row
    int stringCells() const { return m_stringCells; }

private:
    void writeViews();
    void writeCell(int row, std::size_t column, const planexport::Cell &cell);

    PartWriter &m_part;
    StringIndex m_stringIndex;
    const SheetLook *m_look;
    bool m_isSelected;
    QString m_corner;                    // the last cell; empty for a sheet without any
    std::vector<QByteArray> m_cellHeads; // of each column
    QByteArray m_rowTail;                // what all rows have behind their number
    int m_stringCells = 0;
};
