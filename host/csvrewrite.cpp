#include "csvrewrite.h"
#include "engine/record/codes.h"
#include "exchange/csvplan.h"
#include "exchange/titletable.h"
#include "model/kwtaskinfo.h"
#include "shown.h"
#include <QHash>
#include <QSet>
#include <algorithm>

namespace csvrewrite {

namespace {

// Whether the file's text still means that moment; a date alone means `secsOfDate`.
bool stillSays(const QString &cell, const shown::Clock &now, int secsOfDate)
{
    datetext::Moment given;
    return datetext::parseMoment(cell, given) && given.date == now.date &&
           (given.hasTime ? given.secs : secsOfDate) == now.secs;
}

// A file that writes dates alone goes on with them.
bool writesTimes(const csv::Table &table, std::initializer_list<int> columns)
{
    bool anyDate = false;
    for (std::size_t row = 1; row < table.rows.size(); ++row) {
        for (const int column : columns) {
            datetext::Moment given;
            if (!datetext::parseMoment(table.rows[row].cells.value(column), given))
                continue;
            anyDate = true;
            if (given.hasTime)
                return true;
        }
    }
    return !anyDate;
}

void setCell(QStringList &cells, int column, const QString &text)
{
    while (cells.size() <= column)
        cells.append(QString());
    cells[column] = text;
}

QString durationOf(const Plan &plan, int pos)
{
    const KWTaskInfo *task = plan.task(pos);
    return datetext::durationText(KWTaskInfo::getDurValueByTaskInfo(plan.document.get(), task),
                                  task->DurationUnits);
}

// Starts and finishes in the way that the file writes them.
class DateCells
{
public:
    DateCells(const Plan &plan, const csvplan::Places &given)
        : m_times(plan)
        , m_startSecs(int(KWTaskInfo::startOrFinishHour(plan.document.get(), true)) * 3600)
        , m_finishSecs(int(KWTaskInfo::startOrFinishHour(plan.document.get(), false)) * 3600)
        , m_withTimes(writesTimes(plan.table, {given.start, given.finish}))
    {
    }

    void write(QStringList &cells, int column, int pos, bool isStart) const
    {
        const shown::Clock now = isStart ? m_times.start(pos) : m_times.finish(pos);
        const int usual = isStart ? m_startSecs : m_finishSecs;
        if (!stillSays(cells.value(column), now, usual))
            setCell(cells, column,
                    m_withTimes || now.secs != usual ? now.iso() : now.date.toString(Qt::ISODate));
    }

private:
    const shown::Times m_times;
    const int m_startSecs;
    const int m_finishSecs;
    const bool m_withTimes;
};

// The row of the table that stands on each line of the file.
QHash<int, int> rowsByLine(const csv::Table &table)
{
    QHash<int, int> rows;
    for (std::size_t row = 1; row < table.rows.size(); ++row)
        rows.insert(table.rows[row].line, int(row));
    return rows;
}

QString baselineText(const Plan &plan, quint32 secs, bool isStart)
{
    return secs == 0 ? QString() : (isStart ? shown::startOf(plan, secs) : shown::endOf(plan, secs)).iso();
}

struct Field
{
    int field;
    const char *title;                          // of a column that the file gets; null: it gets none
    QString (*text)(const Plan &plan, int pos); // null: as csvplan writes it
    const char *plain;                          // what need not be written where there is no such column
};

constexpr Field fields[] = {
    {columntypes::Id, nullptr, nullptr, ""},
    {titletable::OutlineCode, nullptr, nullptr, ""},
    {columntypes::Level, "Level", nullptr, "1"},
    {columntypes::Name, nullptr, nullptr, ""},
    {columntypes::Start, "Start", nullptr, ""},
    {columntypes::Finish, nullptr, nullptr, ""},
    {columntypes::Duration, nullptr, nullptr, ""},
    {columntypes::Percent, "Percent", nullptr, "0"},
    {columntypes::Predecessors, "Predecessors", nullptr, ""},
    {columntypes::ResourceNames, "Resources", nullptr, ""},
    {titletable::MilestoneFlag, nullptr, nullptr, ""},
    {columntypes::Notes, "Notes", nullptr, ""},
    {columntypes::Priority, "Priority",
     [](const Plan &plan, int pos) { return QString::number(plan.task(pos)->Priority); }, "0"},
    {columntypes::Hyperlinks, "Hyperlinks",
     [](const Plan &plan, int pos) {
         QStringList addresses;
         for (int i = 0; i < plan.task(pos)->hyperlinks.count(); ++i)
             addresses.append(plan.task(pos)->hyperlinks.getAt(i)->address);
         return addresses.join(QLatin1Char(';'));
     },
     ""},
    {columntypes::BaselineStart, "Baseline Start",
     [](const Plan &plan, int pos) { return baselineText(plan, plan.task(pos)->BaseStart, true); }, ""},
    {columntypes::BaselineFinish, "Baseline Finish",
     [](const Plan &plan, int pos) { return baselineText(plan, plan.task(pos)->BaseFinish, false); }, ""},
    {columntypes::BaselineCost, "Baseline Cost",
     [](const Plan &plan, int pos) { return plan.task(pos)->BaselineCost; }, ""},
};

class Rewriter
{
public:
    Rewriter(const Plan &before, const Plan &after, MissingStarts missing)
        : m_before(before)
        , m_after(after)
        , m_missing(missing)
        , m_oldRows(*before.document, before.imported)
        , m_newRows(*after.document, after.imported)
        , m_table(after.table)
        , m_titles(m_table.rows.front().cells)
    {
        for (const Plan::Move &move : after.moves) {
            if (move.byEdit)
                m_setByEdit.insert(after.task(move.pos)->ID);
        }
        findColumns();
        findRows();
    }

    QByteArray run()
    {
        addColumns();
        const DateCells dates(m_after, csvplan::placesIn(m_after.table.rows.front().cells));
        for (int pos = 0; pos < m_after.taskCount(); ++pos) {
            QStringList &cells = m_table.rows[std::size_t(pos) + 1].cells;
            for (const Field &field : fields)
                writeField(field, pos, cells, dates);
            writePredecessors(pos, cells);
            for (auto column = m_derived.begin(); column != m_derived.end(); ++column)
                if (m_old[pos] < 0 ||
                    m_oldRows.text(m_old[pos], column.value()) != m_newRows.text(pos, column.value()))
                    setCell(cells, column.key(), m_newRows.text(pos, column.value()));
        }
        return csv::toBytes(m_table);
    }

private:
    // The first column of each field, as reading takes it; and those that only this program writes.
    void findColumns()
    {
        const std::vector<csvplan::Column> &own = csvplan::columns();
        for (int column = 0; column < m_titles.size(); ++column) {
            const int field = titletable::find(exceltitles::TaskSheet, m_titles.at(column), false).field;
            if (field == titletable::Ignored) {
                for (std::size_t i = 0; i < own.size(); ++i)
                    if (m_titles.at(column) == QLatin1String(own[i].title))
                        m_derived.insert(column, i);
            } else if (field >= 0 && !m_columns.contains(field)) {
                m_columns.insert(field, column);
            }
        }
        for (std::size_t i = 0; i < own.size(); ++i)
            m_ownColumns.insert(
                titletable::find(exceltitles::TaskSheet, QLatin1String(own[i].title), false).field, i);
    }

    // Each task's row moves to the task's place; rows that are no task's stay behind all of them.
    void findRows()
    {
        const QHash<int, int> rowOfLine = rowsByLine(m_after.table);
        QHash<quint32, int> oldPosOf;
        QSet<int> isTask;
        for (int pos = 0; pos < m_before.taskCount(); ++pos) {
            oldPosOf.insert(m_before.task(pos)->ID, pos);
            isTask.insert(rowOfLine.value(m_before.imported.rows.value(pos)));
        }
        std::vector<csv::Row> rows{m_table.rows.front()};
        m_isMoved = m_before.taskCount() != m_after.taskCount();
        for (int pos = 0; pos < m_after.taskCount(); ++pos) {
            const int old = oldPosOf.value(m_after.task(pos)->ID, -1);
            m_old.append(old);
            const int row = old < 0 ? 0 : rowOfLine.value(m_before.imported.rows.value(old));
            rows.push_back(old < 0 ? csv::Row() : m_table.rows[std::size_t(row)]);
            m_isMoved = m_isMoved || row != pos + 1 || old != pos ||
                        m_after.task(pos)->Name != m_before.task(old)->Name ||
                        m_after.task(pos)->Level != m_before.task(old)->Level;
        }
        for (std::size_t row = 1; row < m_table.rows.size(); ++row)
            if (!isTask.contains(int(row)))
                rows.push_back(m_table.rows[row]);
        m_table.rows = std::move(rows);
    }

    QString text(const Field &field, const Plan &plan, const csvplan::Rows &rows, int pos) const
    {
        return field.text ? field.text(plan, pos) : rows.text(pos, m_ownColumns.value(field.field));
    }

    bool isChanged(const Field &field, int pos) const
    {
        const int old = m_old[pos];
        const quint32 id = m_after.task(pos)->ID;
        const bool isStart = field.field == columntypes::Start;
        if (old >= 0 && (isStart || field.field == columntypes::Finish) &&
            m_before.imported.withoutStart.contains(id)) {
            if (m_missing == MissingStarts::StayEmpty && !m_setByEdit.contains(id))
                return false;
            if (m_missing == MissingStarts::AreWritten && isStart)
                return true;
        }
        return old < 0 || text(field, m_before, m_oldRows, old) != text(field, m_after, m_newRows, pos);
    }

    // Whether the field is one that a summary takes from the tasks below it, so that nothing need be written.
    bool isRolledUp(const Field &field, int pos) const
    {
        return m_old[pos] >= 0 && m_after.task(pos)->isParent() &&
               (field.field == columntypes::Start || field.field == columntypes::Finish ||
                field.field == columntypes::Duration || field.field == columntypes::Percent);
    }

    // A column for what has changed and has none.
    void addColumns()
    {
        const auto add = [this](const Field &field, const char *title) {
            m_columns.insert(field.field, m_titles.size());
            m_table.rows.front().cells.append(QLatin1String(title));
            m_titles = m_table.rows.front().cells;
        };
        for (const Field &field : fields) {
            if (m_columns.contains(field.field))
                continue;
            const bool isEnd = field.field == columntypes::Finish;
            const char *title = isEnd ? "Finish" : field.title;
            if (!title || (isEnd && m_columns.contains(columntypes::Duration)) ||
                (field.field == columntypes::Level && m_columns.contains(titletable::OutlineCode)))
                continue;
            for (int pos = 0; pos < m_after.taskCount(); ++pos) {
                if (isChanged(field, pos) && !isRolledUp(field, pos) &&
                    text(field, m_after, m_newRows, pos) != QLatin1String(field.plain)) {
                    add(field, title);
                    break;
                }
            }
        }
    }

    void writeField(const Field &field, int pos, QStringList &cells, const DateCells &dates)
    {
        const int column = m_columns.value(field.field, -1);
        if (column < 0 || field.field == columntypes::Predecessors)
            return;
        // Predecessors name IDs, so each task has its own.
        if (field.field == columntypes::Id) {
            if (cells.value(column).trimmed().toUInt() != m_after.task(pos)->ID)
                setCell(cells, column, QString::number(quint32(m_after.task(pos)->ID)));
            return;
        }
        if (!isChanged(field, pos) || (isRolledUp(field, pos) && cells.value(column).trimmed().isEmpty()))
            return;
        if (field.field == columntypes::Start || field.field == columntypes::Finish)
            dates.write(cells, column, pos, field.field == columntypes::Start);
        else
            setCell(cells, column, text(field, m_after, m_newRows, pos));
    }

    // Rows, codes and names in a cell change their meaning when tasks move or get other names.
    void writePredecessors(int pos, QStringList &cells) const
    {
        const int column = m_columns.value(columntypes::Predecessors, -1);
        if (column < 0)
            return;
        const bool byId = m_columns.contains(columntypes::Id);
        const QString cell = cells.value(column);
        const bool isPlain = byId && std::all_of(cell.begin(), cell.end(), [](QChar sign) {
                                 return sign.isDigit() || QStringLiteral("#;, ").contains(sign);
                             });
        const KWTaskInfo *task = m_after.task(pos);
        const bool isSame = m_old[pos] >= 0 && task->Predecessors == m_before.task(m_old[pos])->Predecessors;
        if (isSame && (isPlain || !m_isMoved || cell.trimmed().isEmpty()))
            return;
        QStringList names;
        for (const quint32 id : task->Predecessors)
            names.append(QString::number(byId ? id : quint32(m_after.posOf(id) + 1)));
        setCell(cells, column, names.join(QLatin1Char(';')));
    }

    const Plan &m_before;
    const Plan &m_after;
    const MissingStarts m_missing;
    QSet<quint32> m_setByEdit;
    const csvplan::Rows m_oldRows;
    const csvplan::Rows m_newRows;
    csv::Table m_table;
    QStringList m_titles;
    QHash<int, int> m_columns;            // by field
    QHash<int, std::size_t> m_ownColumns; // by field, those of csvplan
    QHash<int, std::size_t> m_derived;    // by column
    QVector<int> m_old;                   // by place in the edited plan, that in the file's; -1: a new task
    bool m_isMoved = false;
};
}

QByteArray withDates(const Plan &plan)
{
    csv::Table table = plan.table;
    QStringList &titles = table.rows.front().cells;
    const csvplan::Places given = csvplan::placesIn(titles);
    csvplan::Places places = given;
    const auto atEnd = [&titles](int &place, const char *title) {
        if (place >= 0)
            return;
        place = titles.size();
        titles.append(QLatin1String(title));
    };
    atEnd(places.start, "Start");
    atEnd(places.finish, "Finish");
    const QHash<int, int> rowOfLine = rowsByLine(table);
    const DateCells dates(plan, given);
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        QStringList &cells = table.rows[std::size_t(rowOfLine.value(plan.imported.rows.value(pos)))].cells;
        dates.write(cells, places.start, pos, true);
        dates.write(cells, places.finish, pos, false);
        if (plan.task(pos)->isParent() && !cells.value(places.length).trimmed().isEmpty())
            setCell(cells, places.length, durationOf(plan, pos));
    }
    return csv::toBytes(table);
}

QByteArray withEdits(const Plan &before, const Plan &after, MissingStarts missing)
{
    return Rewriter(before, after, missing).run();
}
}
