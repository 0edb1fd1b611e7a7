#include "report.h"
#include "bars.h"
#include "datetext.h"
#include "edits/planreasons.h"
#include "model/calendarhold.h"
#include "model/kwtaskinfo.h"
#include "sheettext.h"
#include "taskref.h"
#include "texts.h"
#include "textwidth.h"
#include "writtencalendar.h"
#include <QTimeZone>
#include <algorithm>
#include <limits>

namespace report {

namespace {

constexpr int gapColumns = 1;
constexpr int narrowTerminal = 60; // below this only number, name and bar
constexpr int leastNameColumns = 12;
constexpr int leastBarColumns = 7;

struct ShownColumn
{
    const columns::Column *column;
    QString heading;
    int width = 0;
};

struct Range
{
    QDate first;
    QDate last;
};

// The dates that the plan's tasks touch.
Range rangeOf(const Plan &plan, const shown::Times &times)
{
    if (plan.taskCount() == 0)
        return {};
    int first = std::numeric_limits<int>::max();
    int last = std::numeric_limits<int>::min();
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        first = std::min(first, times.startDay(pos));
        last = std::max(last, times.finishDay(pos));
    }
    return {LocalClock::dateOf(first), LocalClock::dateOf(last)};
}

bool parseRange(const QString &text, Range &range)
{
    const int dots = text.indexOf(QLatin1String(".."));
    datetext::Moment first, last;
    if (dots < 0 || !datetext::parseMoment(text.left(dots), first) ||
        !datetext::parseMoment(text.mid(dots + 2), last) || last.date < first.date)
        return false;
    range = {first.date, last.date};
    return true;
}

// The tasks to show, by position. A critical task brings its summaries along: they are critical or hold its
// place.
std::vector<int> visibleTasks(const Plan &plan, const Options &options)
{
    std::vector<int> shownPositions;
    std::vector<bool> wanted(std::size_t(plan.taskCount()), !options.critical);
    for (int pos = plan.taskCount() - 1; options.critical && pos >= 0; --pos) {
        const KWTaskInfo *task = plan.task(pos);
        const bool critical = task->CriticalPath && !task->isParent();
        wanted[std::size_t(pos)] = wanted[std::size_t(pos)] || critical;
        const int parent = wanted[std::size_t(pos)] && task->ParentID ? plan.posOf(task->ParentID) : -1;
        if (parent >= 0)
            wanted[std::size_t(parent)] = true;
    }
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        const KWTaskInfo *task = plan.task(pos);
        const bool levelFits = options.level == Options::everyLevel || task->Level <= options.level;
        if (wanted[std::size_t(pos)] && levelFits && (options.all || task->HideID == 0))
            shownPositions.push_back(pos);
    }
    return shownPositions;
}

bool chooseColumns(const Options &options, int width, std::vector<ShownColumn> &chosen, QString &error)
{
    QStringList keys = options.columns.isEmpty() ? columns::standardKeys() : options.columns;
    if (options.columns.isEmpty() && width < narrowTerminal)
        keys = QStringList{QStringLiteral("number"), QStringLiteral("name")};
    for (const QString &key : keys) {
        const columns::Column *column = columns::named(key.trimmed().toLower());
        if (!column) {
            error =
                t("unknown column '%1'; there are %2").arg(key, columns::keys().join(QLatin1String(", ")));
            return false;
        }
        chosen.push_back({column, t(column->heading), 0});
    }
    return true;
}

bool isName(const ShownColumn &column)
{
    return QLatin1String(column.column->key) == QLatin1String("name");
}

class TableWriter
{
public:
    TableWriter(const Plan &plan, const shown::Times &times, const Options &options, const Style &style,
                int width)
        : m_plan(plan)
        , m_times(times)
        , m_options(options)
        , m_style(style)
        , m_width(width)
    {
    }

    bool layOut(QString &error)
    {
        Range range = rangeOf(m_plan, m_times);
        m_positions = visibleTasks(m_plan, m_options);
        if (!chooseColumns(m_options, m_width, m_columns, error))
            return false;
        m_showYears = range.first.isValid() && range.first.daysTo(range.last) > daysWithoutYear;
        if (!m_options.range.isEmpty() && !parseRange(m_options.range, range)) {
            error = t("'%1' is no range; write it as 2026-01-05..2026-02-28").arg(m_options.range);
            return false;
        }
        measure();
        layOut(range);
        return true;
    }

    // Rows are made as they are written: nobody may read the last of them.
    bool write(const Console::Take &take) const
    {
        constexpr int pieceUnits = 64 << 10;
        const columns::Sheet sheet(m_plan, m_times, m_showYears, m_style.expanded);
        QString text;
        text.reserve(pieceUnits + pieceUnits / 4);
        const auto flush = [&] {
            const bool isTaken = take(text.toUtf8());
            text.resize(0);
            return isTaken;
        };
        if (!m_options.plain)
            text += title(m_plan, m_times, m_style, m_width) + QLatin1Char('\n');
        addHeadings(text);
        QString cell;
        cell.reserve(usualUnits);
        for (const int pos : m_positions) {
            addRow(text, cell, sheet, pos);
            if (text.size() >= pieceUnits && !flush())
                return false;
        }
        if (!m_options.plain && m_withBars)
            text += QLatin1Char('\n') + legend() + QLatin1Char('\n');
        if (m_withBars && m_axis.cutOff)
            text += t("the bars end early: a greater --width or a coarser --scale shows the rest") +
                    QLatin1Char('\n');
        return flush();
    }

private:
    // Into a text whose memory is used again; its width.
    int cellOf(const ShownColumn &column, const columns::Sheet &sheet, int pos, QString &cell) const
    {
        cell.resize(0);
        column.column->add(sheet, pos, cell);
        if (textwidth::isPlain(cell))
            return cell.size();
        cell = textwidth::oneLine(cell, m_style.ascii);
        const int width = textwidth::of(cell);
        cell.reserve(usualUnits);
        return width;
    }

    void measure()
    {
        const columns::Sheet sheet(m_plan, m_times, m_showYears, m_style.expanded);
        QString cell;
        cell.reserve(usualUnits);
        for (ShownColumn &column : m_columns) {
            column.width = textwidth::of(column.heading);
            for (const int pos : m_positions)
                column.width = qMax(column.width, cellOf(column, sheet, pos, cell));
            // The mark keeps its place where no task has one.
            if (column.heading.isEmpty())
                column.width = qMax(column.width, 1);
        }
    }

    void layOut(const Range &range)
    {
        m_withBars = m_options.bars && !m_options.plain && range.first.isValid();
        int others = 0;
        ShownColumn *name = nullptr;
        for (ShownColumn &column : m_columns) {
            others += gapColumns;
            if (isName(column) && !name)
                name = &column;
            else
                others += column.width;
        }
        const int room = m_width - others - (m_withBars ? gapColumns + 1 : 0);
        int nameWidth = name ? name->width : 0;
        if (m_withBars) {
            // The names may fill half of what they share with the bars; the bars take no more than they need.
            const int forNames = qMin(nameWidth, qMax(leastNameColumns, room / 2));
            m_withBars = room - forNames >= leastBarColumns;
            if (m_withBars) {
                m_axis = axis::make(m_plan, range.first, range.last, m_options.scale, room - forNames);
                nameWidth = qMin(nameWidth, room - int(m_axis.slots.size()));
            }
        }
        if (!m_withBars)
            nameWidth = qMin(nameWidth, qMax(leastNameColumns, room));
        // Another program gets whole names.
        if (name && !m_options.plain)
            name->width = nameWidth;
    }

    void addHeadings(QString &text) const
    {
        if (m_withBars) {
            int left = 0;
            for (const ShownColumn &column : m_columns)
                left += column.width + gapColumns;
            text += trimmedRight(QString(left, QLatin1Char(' ')) + m_style.line + axis::heading(m_axis, 0));
        }
        QString line;
        for (const ShownColumn &column : m_columns)
            line += textwidth::padded(column.heading, column.width, column.column->alignRight) + blank();
        if (m_withBars)
            line += m_style.line + axis::heading(m_axis, 1);
        text += trimmedRight(line);
    }

    void addRow(QString &text, QString &cell, const columns::Sheet &sheet, int pos) const
    {
        const KWTaskInfo *task = m_plan.task(pos);
        const int begin = text.size();
        for (const ShownColumn &column : m_columns) {
            int width = cellOf(column, sheet, pos, cell);
            if (isName(column) && width > column.width) {
                cell = textwidth::elided(cell, column.width, m_style.cut);
                width = textwidth::of(cell);
            }
            const bool isMark = *column.column->heading == '\0';
            const Style::Tone tone = isMark ? Style::Critical : task->isParent() ? Style::Bold : Style::Plain;
            if (m_style.color && (isMark || isName(column))) {
                text += m_style.toned(textwidth::padded(cell, column.width, column.column->alignRight), tone);
            } else {
                if (column.column->alignRight)
                    addBlanks(text, column.width - width);
                text += cell;
                if (!column.column->alignRight)
                    addBlanks(text, column.width - width);
            }
            addBlanks(text, gapColumns);
        }
        if (m_withBars) {
            text += m_style.line;
            bars::add(text, m_plan, m_times, m_axis, pos, m_style);
        }
        int end = text.size();
        while (end > begin && text.at(end - 1) == QLatin1Char(' '))
            --end;
        text.truncate(end);
        text += QLatin1Char('\n');
    }

    static void addBlanks(QString &text, int count)
    {
        for (; count > 0; --count)
            text += QLatin1Char(' ');
    }

    // As many meanings in a line as fit.
    QString legend() const
    {
        const auto entry = [](const QString &symbol, const char *meaning) {
            return symbol + QLatin1Char(' ') + t(meaning);
        };
        const QString gap = QStringLiteral("  ");
        QString text;
        int used = 0;
        for (const QString &meaning :
             {entry(m_style.done, QT_TR_NOOP("done")), entry(m_style.toDo, QT_TR_NOOP("to do")),
              entry(m_style.slack, QT_TR_NOOP("slack")), entry(m_style.dayOff, QT_TR_NOOP("day off")),
              entry(m_style.milestone, QT_TR_NOOP("milestone")), t("! critical: a delay moves the finish")}) {
            const int columns = gap.size() + textwidth::of(meaning);
            const bool fits = used == 0 || used + columns <= m_width;
            text += (used == 0 ? QString() : fits ? gap : QStringLiteral("\n")) + meaning;
            used = fits && used > 0 ? used + columns : textwidth::of(meaning);
        }
        return text;
    }

    static QString blank() { return QString(gapColumns, QLatin1Char(' ')); }

    static QString trimmedRight(const QString &line)
    {
        int length = line.size();
        while (length > 0 && line.at(length - 1) == QLatin1Char(' '))
            --length;
        return line.left(length) + QLatin1Char('\n');
    }

    static constexpr int usualUnits = 128; // of a cell at most

    const Plan &m_plan;
    const shown::Times &m_times;
    const Options &m_options;
    const Style &m_style;
    int m_width;
    std::vector<int> m_positions;
    std::vector<ShownColumn> m_columns;
    axis::Axis m_axis;
    bool m_withBars = false;
    // Within a year the day and the month tell a date apart; the title says which year it is.
    static constexpr int daysWithoutYear = 330;
    bool m_showYears = false;
};

// Working dates that an exception takes away, and days off that one makes working.
void countExceptions(const Plan &plan, const Range &range, int &holidays, int &extraDays)
{
    holidays = extraDays = 0;
    for (QDate date = range.first; date.isValid() && date <= range.last; date = date.addDays(1)) {
        const bool usual = plan.document->WorkDay[date.dayOfWeek() - 1];
        const bool works = KWTaskInfo::isWorkday(plan.document.get(), date.startOfDay());
        holidays += usual && !works;
        extraDays += works && !usual;
    }
}

// The critical task that begins first; null without one.
const KWTaskInfo *firstCritical(const Plan &plan)
{
    const KWTaskInfo *first = nullptr;
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        const KWTaskInfo *task = plan.task(pos);
        if (task->CriticalPath && !task->isParent() && (!first || task->Start < first->Start))
            first = task;
    }
    return first;
}

// Working days from a moment to the project's end.
QString lengthFrom(const Plan &plan, quint32 from)
{
    const quint32 finish = plan::lastFinish(plan);
    const double days =
        from && from < finish ? plan.document->getDurationValue(from, finish, duration::Day, true) : 0;
    return QString::number(days) + QLatin1String(" d");
}

// Why the critical path is shorter than the plan; empty when it is not, or the reason is no single date.
QString lateBeginning(const Plan &plan, const KWTaskInfo *first)
{
    constexpr int noChain = 1;
    if (!first || plan::workingMinutes(plan, plan::firstStart(plan), first->Start) <= 0 ||
        planreasons::of(*plan.document, first->ID, noChain).isDriven())
        return QString();
    return t("critical only from %1 on: %2 begins at its own date, not when another task ends")
        .arg(datetext::dateText(shown::startOf(plan, first->Start).date, datetext::Weekday),
             taskref::named(*plan.document, first->ID));
}

// The parts side by side, in as many lines as the width takes; a part that is wider breaks between its words.
QString inLines(const QStringList &parts, int width)
{
    const QString gap = QStringLiteral("   ");
    QString text;
    int used = 0;
    const auto add = [&](const QString &words, const QString &between) {
        const int columns = textwidth::of(words);
        const bool fits = used > 0 && used + between.size() + columns <= width;
        text += (used == 0 ? QString() : fits ? between : QStringLiteral("\n")) + words;
        used = fits ? used + between.size() + columns : columns;
    };
    for (const QString &part : parts) {
        if (textwidth::of(part) <= width) {
            add(part, gap);
            continue;
        }
        const QStringList words = part.split(QLatin1Char(' '));
        for (int i = 0; i < words.size(); ++i)
            add(words.at(i), i == 0 ? gap : QStringLiteral(" "));
    }
    return text + QLatin1Char('\n');
}
}

QString title(const Plan &plan, const shown::Times &times, const Style &style, int width)
{
    const CalendarHold hold(*plan.document);
    const QString name = textwidth::elided(textwidth::oneLine(plan.name, style.ascii), width, style.cut);
    QStringList first{name, counted(plan.taskCount(), "%1 task", "%1 tasks")};
    const Range range = rangeOf(plan, times);
    QStringList second{t("time zone %1").arg(QString::fromLatin1(QTimeZone::systemTimeZoneId())),
                       writtencalendar::describe(writtencalendar::of(*plan.document))};
    QString late;
    if (range.first.isValid()) {
        const bool sameYear = range.first.year() == range.last.year();
        first.append(datetext::dateText(range.first, datetext::Weekday | (sameYear ? 0 : datetext::Year)) +
                     QLatin1String(" - ") +
                     datetext::dateText(range.last, datetext::Weekday | datetext::Year));
        const KWTaskInfo *critical = firstCritical(plan);
        const QString length = lengthFrom(plan, plan::firstStart(plan));
        const QString ofIt = lengthFrom(plan, critical ? critical->Start : 0);
        first.append(length == ofIt ? t("length %1, all of it critical").arg(length)
                                    : t("length %1, critical %2").arg(length, ofIt));
        late = textwidth::oneLine(lateBeginning(plan, critical), style.ascii);
        const double cost = plan.document->getToltalCost();
        if (cost != 0)
            first.append(t("cost %1").arg(sheettext::moneyText(cost)));
        int holidays = 0;
        int extraDays = 0;
        countExceptions(plan, range, holidays, extraDays);
        if (holidays)
            second.append(counted(holidays, "%1 holiday", "%1 holidays"));
        if (extraDays)
            second.append(counted(extraDays, "%1 extra working day", "%1 extra working days"));
    }
    QString text = inLines(first, width);
    text.replace(0, name.size(), style.toned(name, Style::Bold));
    text += inLines(second, width);
    return late.isEmpty() ? text : text + inLines({late}, width);
}

int writeTable(Console &console, const Plan &plan, const Style &style)
{
    const CalendarHold hold(*plan.document);
    const shown::Times times(plan);
    TableWriter writer(plan, times, console.options(), style, console.width());
    QString error;
    if (!writer.layOut(error)) {
        console.error(error);
        return Console::WrongUse;
    }
    const bool isWritten = console.write([&](const Console::Take &take) { return writer.write(take); });
    return isWritten ? Console::Done : Console::CannotWrite;
}
}
