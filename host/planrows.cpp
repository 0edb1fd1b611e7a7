#include "planrows.h"
#include "support/findings.h"
#include "table/rowcolumndata.h"
#include "texts.h"
#include <cmath>

namespace planrows {

namespace {

struct Title
{
    const char *text; // lower case, letters and digits only
    Field field;
    unsigned int bareUnit; // of a duration without a unit
};

constexpr unsigned int day = 4, hour = 5, minute = 6;

constexpr Title titles[] = {
    {"id", Id, day},
    {"taskid", Id, day},
    {"tag", Id, day},
    {"no", Id, day},
    {"wbs", Wbs, day},
    {"wbscode", Wbs, day},
    {"outlinenumber", Wbs, day},
    {"level", Level, day},
    {"outlinelevel", Level, day},
    {"name", Name, day},
    {"taskname", Name, day},
    {"task", Name, day},
    {"title", Name, day},
    {"start", Start, day},
    {"startdate", Start, day},
    {"finish", Finish, day},
    {"finishdate", Finish, day},
    {"end", Finish, day},
    {"enddate", Finish, day},
    {"duration", Length, day},
    {"durationdays", Length, day},
    {"durationhours", Length, hour},
    {"durationminutes", Length, minute},
    {"percent", Percent, day},
    {"percentcomplete", Percent, day},
    {"complete", Percent, day},
    {"done", Percent, day},
    {"progress", Percent, day},
    {"predecessors", Predecessors, day},
    {"predecessor", Predecessors, day},
    {"dependson", Predecessors, day},
    {"resources", Resources, day},
    {"resource", Resources, day},
    {"resourcenames", Resources, day},
    {"summary", Summary, day},
    {"milestone", Milestone, day},
    {"notes", Notes, day},
    {"note", Notes, day},
};

// The library's column types that a plan file can hold.
constexpr std::pair<int, Field> columnTypes[] = {{0, Id},     {1, Name},         {2, Start},     {3, Finish},
                                                 {4, Length}, {5, Percent},      {7, Resources}, {19, Notes},
                                                 {23, Level}, {24, Predecessors}};

QString plainTitle(const QString &title)
{
    QString plain;
    for (const QChar c : title)
        if (c.isLetterOrNumber())
            plain += c.toLower();
    return plain;
}

const Title *titleNamed(const QString &cell)
{
    const QString plain = plainTitle(cell);
    if (plain.isEmpty())
        return nullptr;
    for (const Title &title : titles)
        if (plain == QLatin1String(title.text))
            return &title;
    for (const auto &[type, field] : columnTypes)
        if (plain == plainTitle(RowColumnData::s_columnNames.value(type)))
            for (const Title &title : titles)
                if (title.field == field)
                    return &title;
    return nullptr;
}

// The dots of "1.2.3" and one more; 0 when the text is no such number.
int levelOfWbs(const QString &wbs)
{
    const QString text = wbs.trimmed();
    int level = 1;
    bool digitBefore = false;
    for (const QChar c : text) {
        if (c.isDigit()) {
            digitBefore = true;
        } else if (c == QLatin1Char('.') && digitBefore) {
            ++level;
            digitBefore = false;
        } else {
            return 0;
        }
    }
    // "1." is level 1.
    return digitBefore ? level : level - 1;
}

bool isYes(const QString &cell)
{
    const QString text = cell.trimmed().toLower();
    return !(text.isEmpty() || text == QLatin1String("0") || text == QLatin1String("no") ||
             text == QLatin1String("n") || text == QLatin1String("false"));
}

class Reader
{
public:
    Reader(const csv::Table &table, Rows &result, Findings &errors, Findings &warnings)
        : m_table(table)
        , m_result(result)
        , m_errors(errors)
        , m_warnings(warnings)
    {
    }

    bool run()
    {
        m_result.columns.fill(-1);
        m_result.rows.clear();
        if (!readTitles())
            return false;
        m_result.hasIds = has(Id);
        m_result.rows.reserve(m_table.rows.size() - 1);
        for (std::size_t i = 1; i < m_table.rows.size(); ++i)
            readRow(m_table.rows[i]);
        settleLevels();
        return m_errors.isEmpty();
    }

private:
    bool has(Field field) const { return m_result.columns[field] >= 0; }
    QString titleOf(Field field) const { return m_titles.at(m_result.columns[field]).trimmed(); }
    QString cell(const csv::Row &row, Field field) const { return row.cells.value(m_result.columns[field]); }

    bool readTitles()
    {
        if (m_table.rows.empty()) {
            m_errors.add(QString(), t("the file is empty"),
                         t("the first row holds the titles: Name, Duration, ..."));
            return false;
        }
        m_titles = m_table.rows.front().cells;
        for (int column = 0; column < m_titles.size(); ++column) {
            const Title *title = titleNamed(m_titles.at(column));
            if (!title)
                continue;
            int &place = m_result.columns[title->field];
            if (place >= 0) {
                m_warnings.add(
                    t("column %1").arg(column + 1),
                    t("'%1' is a second '%2' and is not read").arg(m_titles.at(column), m_titles.at(place)));
                continue;
            }
            place = column;
            if (title->field == Length)
                m_bareUnit = title->bareUnit;
        }
        const bool hasTimes = has(Start) || has(Finish) || has(Length);
        if ((!has(Name) && !has(Id)) || !hasTimes) {
            m_errors.add(t("line %1").arg(m_table.rows.front().line),
                         t("not a plan: no title '%1'")
                             .arg(has(Name) || has(Id) ? QStringLiteral("Duration") : QStringLiteral("Name")),
                         t("the first row holds the titles: Name, Duration, Start, Predecessors, ..."));
            return false;
        }
        return true;
    }

    void readRow(const csv::Row &source)
    {
        m_number = int(m_result.rows.size()) + 1;
        m_line = source.line;
        m_result.rows.emplace_back();
        Row &row = m_result.rows.back();
        row.line = source.line;
        row.name = cell(source, Name);
        row.wbs = cell(source, Wbs).trimmed();
        row.resources = cell(source, Resources);
        row.notes = cell(source, Notes);
        row.milestone = isYes(cell(source, Milestone));
        readId(cell(source, Id).trimmed(), row);
        readLevel(cell(source, Level).trimmed(), row);
        readMoment(cell(source, Start).trimmed(), Start, row.start);
        readMoment(cell(source, Finish).trimmed(), Finish, row.finish);
        readDuration(cell(source, Length).trimmed(), row);
        readPercent(cell(source, Percent).trimmed(), row);
        readPredecessors(cell(source, Predecessors), row);
    }

    void refuse(Field field, const QString &what, const QString &hint)
    {
        const QString line = t("line %1 of the file").arg(m_line);
        m_errors.add(place(m_number, titleOf(field)), what,
                     hint.isEmpty() ? line : line + QLatin1String("; ") + hint);
    }

    void warn(Field field, const QString &what) { m_warnings.add(place(m_number, titleOf(field)), what); }

    void readId(const QString &text, Row &row)
    {
        if (text.isEmpty())
            return;
        bool ok = false;
        row.id = text.toUInt(&ok);
        if (!ok)
            refuse(Id, t("'%1' is not a task number").arg(text), t("task numbers are whole numbers from 1"));
    }

    void readLevel(const QString &text, Row &row)
    {
        bool ok = true;
        row.level = text.isEmpty() ? 1 : text.toInt(&ok);
        if (!ok || row.level < 0 || row.level > deepestLevel)
            refuse(Level, t("'%1' is not an outline level").arg(text), t("levels are whole numbers from 1"));
        m_hasZeroLevel |= !text.isEmpty() && row.level == 0;
    }

    void readMoment(const QString &text, Field field, datetext::Moment &moment)
    {
        if (!text.isEmpty() && !datetext::parseMoment(text, moment))
            refuse(field, t("'%1' is not a date").arg(text), t("write it as 2026-02-28 or 2026-02-28T17:00"));
    }

    void readDuration(const QString &text, Row &row)
    {
        if (text.isEmpty())
            return;
        row.hasDuration = datetext::parseDuration(text, row.duration, m_bareUnit);
        if (!row.hasDuration)
            refuse(Length, t("'%1' is not a duration").arg(text),
                   t("write it as 3d, 12h, 30min, 1.5w or 2mon"));
    }

    void readPercent(const QString &text, Row &row)
    {
        if (text.isEmpty())
            return;
        QString number = text;
        if (number.endsWith(QLatin1Char('%')))
            number.chop(1);
        bool ok = false;
        const double percent = number.trimmed().replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&ok);
        if (!ok || std::isnan(percent)) {
            refuse(Percent, t("'%1' is not a percentage").arg(text), t("write a number from 0 to 100"));
            return;
        }
        row.percent = qBound(0.0, percent / 100.0, 1.0);
        if (percent < 0 || percent > 100)
            warn(Percent, t("'%1' is read as %2%").arg(text).arg(row.percent * 100));
    }

    void readPredecessors(const QString &text, Row &row)
    {
        if (text.trimmed().isEmpty())
            return;
        QString list = text;
        list.replace(QLatin1Char(','), QLatin1Char(';'));
        for (const QString &part : list.split(QLatin1Char(';'))) {
            const QString written = part.trimmed();
            if (written.isEmpty())
                continue;
            int length = 0;
            while (length < written.size() && written.at(length).isDigit())
                ++length;
            Link link;
            bool ok = false;
            link.number = written.left(length).toUInt(&ok);
            const QString kind = written.mid(length).trimmed().toUpper();
            if (!ok)
                link.refusal = t("'%1' is not a task number").arg(written);
            else if (!kind.isEmpty() && kind != QLatin1String("FS"))
                link.refusal = t("'%1' is not a finish-to-start link without lag").arg(written);
            row.predecessors.append(link);
        }
    }

    // WBS decides when every row has one; levels that begin at 0 move up by one.
    void settleLevels()
    {
        bool wbsDecides = has(Wbs);
        for (const Row &row : m_result.rows)
            wbsDecides = wbsDecides && levelOfWbs(row.wbs) > 0 && levelOfWbs(row.wbs) <= deepestLevel;
        for (Row &row : m_result.rows)
            row.level = wbsDecides ? levelOfWbs(row.wbs) : row.level + (m_hasZeroLevel ? 1 : 0);
    }

    const csv::Table &m_table;
    Rows &m_result;
    Findings &m_errors;
    Findings &m_warnings;
    QStringList m_titles;
    unsigned int m_bareUnit = day;
    bool m_hasZeroLevel = false;
    int m_number = 0;
    int m_line = 0;
};
}

QString place(int row)
{
    return t("row %1").arg(row);
}

QString place(int row, const QString &columnTitle)
{
    return t("row %1, '%2'").arg(row).arg(columnTitle);
}

bool read(const csv::Table &table, Rows &result, Findings &errors, Findings &warnings)
{
    return Reader(table, result, errors, warnings).run();
}
}
