#include "exchange/csvplan.h"
#include "edits/planreasons.h"
#include "engine/cost/cost.h"
#include "engine/record/codes.h"
#include "engine/record/outline.h"
#include "engine/record/resource.h"
#include "engine/time/civildate.h"
#include "engine/time/duration.h"
#include "exchange/cellvalues.h"
#include "exchange/csvtext.h"
#include "exchange/titletable.h"
#include "format/dataformat.h"
#include "format/wholenumber.h"
#include "model/calendarhold.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace csvplan {
namespace {

constexpr int deepestCode = 1000;

// Text in UTF-8 at the end of a buffer that is used for one row after the other.
class Text
{
public:
    explicit Text(QByteArray &bytes)
        : m_bytes(bytes)
    {
    }
    void add(char sign) { m_bytes.append(sign); }
    void add(QLatin1String text) { m_bytes.append(text.data(), text.size()); }
    void add(const QString &text)
    {
        const int before = m_bytes.size();
        m_bytes.resize(before + text.size());
        char *to = m_bytes.data() + before;
        for (const QChar sign : text) {
            if (sign.unicode() >= 0x80) {
                m_bytes.resize(before);
                m_bytes.append(text.toUtf8());
                return;
            }
            *to++ = char(sign.unicode());
        }
    }
    void add(qint64 number)
    {
        char digits[std::numeric_limits<qint64>::digits10 + 2];
        m_bytes.append(digits, int(std::to_chars(digits, std::end(digits), number).ptr - digits));
    }
    void add(const shownmoment::Moment &moment)
    {
        char text[momentSize];
        m_bytes.append(text, writeMoment(moment, text));
    }

    static constexpr int momentSize = 32;
    // Its length.
    static int writeMoment(const shownmoment::Moment &moment, char *text)
    {
        const civildate::Date date = civildate::of(moment.day);
        const auto twoDigits = [&text](int number) {
            *text++ = char('0' + number / 10 % 10);
            *text++ = char('0' + number % 10);
        };
        const char *const begin = text;
        twoDigits(date.year / 100);
        twoDigits(date.year);
        *text++ = '-';
        twoDigits(date.month);
        *text++ = '-';
        twoDigits(date.day);
        *text++ = 'T';
        twoDigits(moment.secs / 3600);
        *text++ = ':';
        twoDigits(moment.secs / 60 % 60);
        return int(text - begin);
    }

private:
    QByteArray &m_bytes;
};

// What the cells of a row need.
struct RowFacts
{
    KWDocument &document;
    const worktime::WorkCalendar &calendar;
    const ImportedPlan &imported;
    const ShownDates &dates;
    const KWTaskInfo &task;
    int pos;
    quint32 start;   // of the project
    bool isCritical; // of a summary: a task below it is

    qint64 minutes(quint32 to) const { return minutesBetween(start, to); }
    qint64 minutesBetween(quint32 from, quint32 to, qint64 least = std::numeric_limits<qint64>::min()) const
    {
        const qint64 secs =
            duration::secs(calendar, std::min(from, to), std::max(from, to), duration::Minute);
        const qint64 minutes = (secs + 30) / 60;
        return std::max(least, from <= to ? minutes : -minutes);
    }
};

void addFlag(Text &out, bool value)
{
    out.add(value ? '1' : '0');
}

void addList(Text &out, const QList<quint32> &ids)
{
    bool isFirst = true;
    for (const quint32 id : ids) {
        if (!isFirst)
            out.add(';');
        isFirst = false;
        out.add(qint64(id));
    }
}

struct Cell
{
    Column column;
    void (*add)(const RowFacts &row, Text &out);
};

const Cell cells[] = {
    {{"ID", "id", true}, [](const RowFacts &row, Text &out) { out.add(qint64(row.task.ID)); }},
    {{"WBS", "wbs", false},
     [](const RowFacts &row, Text &out) { out.add(row.imported.codes.value(row.task.ID)); }},
    {{"Level", "level", true}, [](const RowFacts &row, Text &out) { out.add(qint64(row.task.Level)); }},
    {{"Name", "name", false}, [](const RowFacts &row, Text &out) { out.add(row.task.Name); }},
    {{"Start", "start", false}, [](const RowFacts &row, Text &out) { out.add(row.dates.start(row.pos)); }},
    {{"Finish", "finish", false}, [](const RowFacts &row, Text &out) { out.add(row.dates.finish(row.pos)); }},
    {{"Duration", "duration", false},
     [](const RowFacts &row, Text &out) {
         out.add(lengthText(
             duration::ofTask(row.calendar, row.task.Start, row.task.Finish, row.task.DurationUnits),
             row.task.DurationUnits));
     }},
    {{"Percent", "percent", true},
     [](const RowFacts &row, Text &out) {
         // What comes from below is rounded; what a task says itself is not.
         out.add(row.task.isParent() ? DataFormat::formatNumber(row.task.Percent * 100, 0, 2, 1)
                                     : numberText(row.task.Percent * 100));
     }},
    {{"Predecessors", "predecessors", false},
     [](const RowFacts &row, Text &out) { addList(out, row.task.Predecessors); }},
    {{"Resources", "resources", false},
     [](const RowFacts &row, Text &out) { out.add(resourceNames(row.document, row.task)); }},
    {{"Summary", "summary", true}, [](const RowFacts &row, Text &out) { addFlag(out, row.task.isParent()); }},
    {{"Milestone", "milestone", true},
     [](const RowFacts &row, Text &out) { addFlag(out, row.task.Milestone && !row.task.isParent()); }},
    {{"Notes", "notes", false}, [](const RowFacts &row, Text &out) { out.add(row.task.Notes); }},
    {{"Critical", "critical", true}, [](const RowFacts &row, Text &out) { addFlag(out, row.isCritical); }},
    {{"LateStart", "lateStart", false},
     [](const RowFacts &row, Text &out) { out.add(row.dates.lateStart(row.pos)); }},
    {{"LateFinish", "lateFinish", false},
     [](const RowFacts &row, Text &out) { out.add(row.dates.lateFinish(row.pos)); }},
    {{"StartSlack", "startSlack", false},
     [](const RowFacts &row, Text &out) { out.add(row.task.EarlySlack); }},
    {{"FinishSlack", "finishSlack", false},
     [](const RowFacts &row, Text &out) { out.add(row.task.LateSlack); }},
    {{"StartMin", "startMin", true},
     [](const RowFacts &row, Text &out) { out.add(row.minutes(row.task.Start)); }},
    {{"FinishMin", "finishMin", true},
     [](const RowFacts &row, Text &out) { out.add(row.minutes(row.task.Finish)); }},
    {{"LateStartMin", "lateStartMin", true},
     [](const RowFacts &row, Text &out) { out.add(row.minutes(row.task.LateStart)); }},
    {{"LateFinishMin", "lateFinishMin", true},
     [](const RowFacts &row, Text &out) { out.add(row.minutes(row.task.LateFinish)); }},
    {{"SlackMin", "slackMin", true},
     [](const RowFacts &row, Text &out) {
         out.add(row.minutesBetween(row.task.Finish, row.task.LateFinish, 0));
     }},
};

// The cell from `begin` to the end of the buffer, as csv::quoted writes it.
void quoteFrom(QByteArray &bytes, int begin)
{
    const char *const cell = bytes.constData() + begin;
    const int size = bytes.size() - begin;
    const auto isSpecial = [](char sign) {
        return sign == ',' || sign == '"' || sign == '\n' || sign == '\r';
    };
    if (size == 0 || (cell[0] != ' ' && cell[size - 1] != ' ' && std::none_of(cell, cell + size, isSpecial)))
        return;
    QByteArray text = bytes.mid(begin);
    text.replace('"', "\"\"");
    bytes.truncate(begin);
    bytes.append('"').append(text).append('"');
}

QByteArray line(const QStringList &texts)
{
    QStringList quoted;
    for (const QString &text : texts)
        quoted.append(csv::quoted(text));
    return quoted.join(QLatin1Char(',')).toUtf8() + '\n';
}

double hoursOf(KWDocument &document, const KWTaskInfo &task, const Resource &assigned)
{
    return resourcetypes::isWork(assigned.type)
               ? task.transforHourWork(&document, task.resourceWork(&document, &assigned))
               : assigned.percent;
}
}

const std::vector<Column> &columns()
{
    static const std::vector<Column> all = [] {
        std::vector<Column> list;
        for (const Cell &cell : cells)
            list.push_back(cell.column);
        return list;
    }();
    return all;
}

// ---- Texts ------------------------------------------------------------------------------------------------

QString momentText(const shownmoment::Moment &moment)
{
    char text[Text::momentSize];
    return QString::fromLatin1(text, Text::writeMoment(moment, text));
}

QString numberText(double number)
{
    constexpr int digits = 12;
    constexpr double leastWithPower = 1e12;
    if (isPlainWhole(number) && std::fabs(number) < leastWithPower)
        return QString::number(qint64(number));
    return QString::number(std::isfinite(number) ? number : 0, 'g', digits);
}

QString rateText(double money, int unit)
{
    const QString name = cellvalues::costUnitText(unit);
    return name.isEmpty() ? numberText(money) : numberText(money) + QLatin1Char('/') + name;
}

QString lengthText(double value, unsigned int unit)
{
    static const char *const names[] = {"y", "q", "mon", "w", "d", "h", "min"};
    constexpr int decimals[] = {8, 7, 6, 6, 5, 4, 3};
    const unsigned int known = std::min(unit, unsigned(duration::Minute));
    return DataFormat::formatNumber(value, 0, decimals[known], 1) + QLatin1String(names[known]);
}

QString resourceNames(KWDocument &document, const KWTaskInfo &task)
{
    if (task.isParent())
        return task.Resources.isEmpty() || task.isSubHaveResource(&document) ? QString() : task.Resources;
    if (!task.isHaveResource())
        return task.Resources;
    QStringList parts;
    for (const Resource *assigned : task.resourceList) {
        const QString name = assigned->name.trimmed();
        if (!name.isEmpty())
            parts.append(assigned->percent == 1
                             ? name
                             : QStringLiteral("%1[%2%]").arg(name, numberText(assigned->percent * 100)));
    }
    return parts.join(QLatin1Char(';'));
}

QHash<quint32, QString> outlineCodes(const KWDocument &document)
{
    QHash<quint32, QString> codes;
    codes.reserve(document.taskCount());
    struct Level
    {
        int number = 0;
        QString prefix; // the codes above, with a point behind each
    };
    const auto numbered = [](const QString &prefix, int number) {
        char digits[std::numeric_limits<int>::digits10 + 2];
        const char *const end = std::to_chars(digits, std::end(digits), number).ptr;
        QString code;
        code.reserve(prefix.size() + int(end - digits));
        return code.append(prefix).append(QLatin1String(digits, int(end - digits)));
    };
    std::vector<Level> levels;
    for (const KWTaskInfo *task : document.taskList()) {
        const std::size_t depth = std::size_t(qBound(1, task->Level, deepestCode));
        while (levels.size() < depth) {
            const bool isTop = levels.empty();
            Level level;
            if (!isTop)
                level.prefix = numbered(levels.back().prefix, levels.back().number) + QLatin1Char('.');
            levels.push_back(std::move(level));
        }
        levels.resize(depth);
        ++levels.back().number;
        codes.insert(task->ID, numbered(levels.back().prefix, levels.back().number));
    }
    return codes;
}

Places placesIn(const QStringList &titles)
{
    constexpr bool isExact = false;
    Places places;
    for (int column = titles.size() - 1; column >= 0; --column) {
        const int field = titletable::find(exceltitles::TaskSheet, titles.at(column), isExact).field;
        if (field == columntypes::Start)
            places.start = column;
        else if (field == columntypes::Finish)
            places.finish = column;
        else if (field == columntypes::Duration)
            places.length = column;
    }
    return places;
}

// ---- Files ------------------------------------------------------------------------------------------------

Rows::Rows(KWDocument &document, const ImportedPlan &imported)
    : m_document(document)
    , m_imported(imported)
    , m_start(imported.start > 0 ? imported.start : document.getMinStartSecs())
    , m_dates(document.workCalendar(), document.outline().list, document.outline().index, imported.evenings)
    , m_tightest(planreasons::tightest(document))
{
}

bool Rows::isCritical(int pos) const
{
    return m_document.getTaskInfoAt(m_tightest[std::size_t(pos)])->CriticalPath;
}

QString Rows::text(int pos, std::size_t column) const
{
    QByteArray bytes;
    add(pos, column, bytes);
    return QString::fromUtf8(bytes);
}

void Rows::add(int pos, std::size_t column, QByteArray &bytes) const
{
    Text out(bytes);
    cells[column].add({m_document, m_document.workCalendar(), m_imported, m_dates,
                       *m_document.getTaskInfoAt(pos), pos, m_start, isCritical(pos)},
                      out);
}

bool Rows::write(const std::function<bool(const QByteArray &)> &take) const
{
    constexpr int pieceBytes = 256 << 10;
    QByteArray bytes;
    bytes.reserve(pieceBytes + pieceBytes / 4);
    QStringList titles;
    for (const Cell &cell : cells)
        titles.append(QLatin1String(cell.column.title));
    bytes.append(line(titles));
    Text out(bytes);
    const CalendarHold hold(m_document);
    const worktime::WorkCalendar &calendar = m_document.workCalendar();
    const QList<KWTaskInfo *> &tasks = m_document.taskList();
    for (int pos = 0; pos < tasks.size(); ++pos) {
        const RowFacts row{m_document,  calendar, m_imported, m_dates,
                           *tasks[pos], pos,      m_start,    isCritical(pos)};
        for (const Cell &cell : cells) {
            if (&cell != cells)
                bytes.append(',');
            const int begin = bytes.size();
            cell.add(row, out);
            if (!cell.column.isNumber)
                quoteFrom(bytes, begin);
        }
        bytes.append('\n');
        if (bytes.size() >= pieceBytes) {
            if (!take(bytes))
                return false;
            bytes.resize(0);
        }
    }
    return take(bytes);
}

QByteArray Rows::bytes() const
{
    QByteArray all;
    write([&all](const QByteArray &piece) {
        all.append(piece);
        return true;
    });
    return all;
}

QByteArray resources(KWDocument &document)
{
    QByteArray bytes = "ID,Name,Type,MaxUnitsPercent,Rate,OvertimeRate,CostPerUse,Group,Email,Notes\n";
    for (const ResourceInfo *entry : qAsConst(document.resourceInfoData()->infos))
        bytes +=
            line({QString::number(entry->ID), entry->name,
                  resourcetypes::isWork(entry->type) ? QStringLiteral("WORK") : QStringLiteral("MATERIAL"),
                  numberText(entry->unit * 100), rateText(entry->cost, entry->costUnit),
                  rateText(entry->overtimeCost, entry->overtimeUnit), numberText(entry->costPer),
                  entry->group, entry->email, entry->notes});
    return bytes;
}

QByteArray assignments(KWDocument &document)
{
    QByteArray bytes = "TaskID,Resource,UnitsPercent,WorkHours,Cost\n";
    for (const KWTaskInfo *task : document.taskList()) {
        for (const Resource *assigned : task->resourceList)
            bytes +=
                line({QString::number(quint32(task->ID)), assigned->name.trimmed(),
                      numberText(assigned->percent * 100), numberText(hoursOf(document, *task, *assigned)),
                      numberText(task->resourceCost(&document, assigned))});
    }
    return bytes;
}
}
