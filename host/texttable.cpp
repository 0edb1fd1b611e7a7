#include "texttable.h"
#include "textwidth.h"

TextTable::TextTable(const QStringList &headings)
{
    QStringList titles;
    for (const QString &heading : headings) {
        m_alignRight.push_back(heading.startsWith(QLatin1Char('>')));
        titles.append(m_alignRight.back() ? heading.mid(1) : heading);
    }
    m_rows.push_back(titles);
}

QString TextTable::text() const
{
    std::vector<int> widths(m_alignRight.size(), 0);
    for (const QStringList &row : m_rows)
        for (int i = 0; i < row.size(); ++i)
            widths[std::size_t(i)] = qMax(widths[std::size_t(i)], textwidth::of(row.at(i)));
    QString text;
    for (const QStringList &row : m_rows) {
        QStringList cells;
        for (int i = 0; i < row.size(); ++i)
            cells.append(textwidth::padded(row.at(i), widths[std::size_t(i)], m_alignRight[std::size_t(i)]));
        QString line = cells.join(QLatin1String("  "));
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        text += line + QLatin1Char('\n');
    }
    return text;
}
