#pragma once
#include "exchange/planimport.h"
#include <QString>
#include <QStringList>

// A sheet of a workbook written as lines, cells joined by "|". A cell that begins with "=" is a number, one
// that also ends with "%" is shown as a percentage; a line "@7" gives the next line that row number.
class GridSheet : public sheetrows::Source
{
public:
    explicit GridSheet(const QString &text)
        : m_lines(text.isEmpty() ? QStringList() : text.split('\n'))
    {
    }
    bool next(sheetrows::Row &row) override
    {
        if (m_lines.isEmpty())
            return false;
        ++m_number;
        if (m_lines.first().startsWith('@'))
            m_number = m_lines.takeFirst().mid(1).toInt();
        row.number = m_number;
        row.cells.clear();
        for (const QString &cell : m_lines.takeFirst().split('|')) {
            const QString text = cell.trimmed();
            const bool isNumber = text.startsWith('=');
            const bool isPercent = isNumber && text.endsWith('%');
            row.cells.push_back({int(row.cells.size()) + 1,
                                 isNumber ? text.mid(1).chopped(isPercent ? 1 : 0) : text, isNumber,
                                 isPercent});
        }
        return true;
    }

private:
    QStringList m_lines;
    int m_number = 0;
};
