#pragma once
#include <QString>
#include <QStringList>
#include <vector>

// Rows of cells as lines of text, each column as wide as its widest cell.
class TextTable
{
public:
    // A heading that begins with '>' stands for a column of numbers, aligned to the right.
    explicit TextTable(const QStringList &headings);

    void add(const QStringList &cells) { m_rows.push_back(cells); }
    bool isEmpty() const { return m_rows.size() == 1; }
    QString text() const;

private:
    std::vector<QStringList> m_rows; // the headings first
    std::vector<bool> m_alignRight;
};
