#include "export/planpage.h"
#include "engine/text/columntypes.h"
#include "engine/time/duration.h"
#include "engine/time/worktime.h"
#include "export/exportoptions.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "table/rowcolumndata.h"
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <cmath>

namespace {

// What is told of a task beside its row, whether the table shows it or not.
constexpr int toldTypes[] = {columntypes::Start,      columntypes::Finish,        columntypes::Duration,
                             columntypes::Percent,    columntypes::ResourceNames, columntypes::FinishSlack,
                             columntypes::Hyperlinks, columntypes::Notes};

// As the page's script has them.
enum Flag { Summary = 1, Milestone = 2, Critical = 4, Folded = 8, AtStart = 16 };

struct Word
{
    const char *key;
    const char *text;
};
constexpr Word words[] = {{"waits", QT_TR_NOOP("Waits for %1")},
                          {"critical", QT_TR_NOOP("Critical: a delay moves the finish")},
                          {"atStart", QT_TR_NOOP("Starts with the project")},
                          {"before", QT_TR_NOOP("After")},
                          {"after", QT_TR_NOOP("Before")},
                          {"found", QT_TR_NOOP("%1 of %2")},
                          {"notFound", QT_TR_NOOP("nothing found")},
                          {"find", QT_TR_NOOP("Find")},
                          {"zoomOut", QT_TR_NOOP("Show more time (-)")},
                          {"zoomIn", QT_TR_NOOP("Show less time (+)")},
                          {"fit", QT_TR_NOOP("Fit")},
                          {"fitTitle", QT_TR_NOOP("Show the whole plan (0)")},
                          {"today", QT_TR_NOOP("Today")},
                          {"todayTitle", QT_TR_NOOP("Go to today (T)")},
                          {"fold", QT_TR_NOOP("Fold")},
                          {"foldTitle", QT_TR_NOOP("Fold all summaries")},
                          {"unfold", QT_TR_NOOP("Unfold")},
                          {"unfoldTitle", QT_TR_NOOP("Unfold all summaries")},
                          {"columns", QT_TR_NOOP("Columns")},
                          {"columnsTitle", QT_TR_NOOP("More or fewer columns (C)")},
                          {"keys", QT_TR_NOOP("Keys (?)")},
                          {"tasks", QT_TR_NOOP("%1 tasks")},
                          {"hint", QT_TR_NOOP("Choose a task with a click or the arrow keys.")}};
constexpr Word keys[] = {{"\u2191 \u2193 PgUp PgDn Home End", QT_TR_NOOP("another task")},
                         {"\u2190 \u2192", QT_TR_NOOP("fold and unfold")},
                         {"Enter", QT_TR_NOOP("go to the task's bar")},
                         {"P, S", QT_TR_NOOP("go to what it waits for, to what waits for it")},
                         {"Backspace", QT_TR_NOOP("go back")},
                         {"/", QT_TR_NOOP("find; Enter and Shift+Enter for the next and the one before")},
                         {"+ - 0", QT_TR_NOOP("less time, more time, the whole plan")},
                         {"T", QT_TR_NOOP("today")},
                         {"C", QT_TR_NOOP("columns")}};

// Names of tasks stand inside a script element, which nothing in them may end.
QByteArray embedded(const QByteArray &json)
{
    return QByteArray(json).replace('<', "\\u003c");
}

QByteArray embedded(const QJsonObject &object)
{
    return embedded(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

double rounded(double value)
{
    return std::isfinite(value) ? std::round(value * 1e4) / 1e4 : 0;
}

// The columns of the table, then those that are told besides.
std::vector<int> columnTypes(KWDocument &document, const KWExportOptions &options, int &shown)
{
    std::vector<int> types = options.columns;
    if (types.empty()) {
        const RowColumnData &table = *document.rowColumnData();
        for (int column = 0; column < table.columnCount(); ++column)
            types.push_back(RowColumnData::typeOfTitle(table.getColumnDataByColumn(column)->title));
    }
    const auto isKnown = [](int type) {
        return columntypes::find(type) && !RowColumnData::s_columnNames.value(type).isEmpty();
    };
    types.erase(std::remove_if(types.begin(), types.end(), [&](int type) { return !isKnown(type); }),
                types.end());
    shown = int(types.size());
    const auto addMissing = [&](int type) {
        if (std::find(types.begin(), types.end(), type) == types.end() && isKnown(type))
            types.push_back(type);
    };
    addMissing(columntypes::Name);
    for (const int type : toldTypes)
        addMissing(type);
    return types;
}
}

QStringList PlanPage::texts()
{
    QStringList all;
    for (const Word &word : words)
        all.append(QString::fromLatin1(word.text));
    for (const Word &key : keys)
        all.append(QString::fromLatin1(key.text));
    return all;
}

PlanPage::PlanPage(KWDocument &document, const KWExportOptions &options, const QDateTime &now)
    : m_document(document)
    , m_options(options)
    , m_now(now)
    , m_calendar(document.workCalendar())
    , m_table(&document, columnTypes(document, options, m_shownColumns))
{
    m_table.setCountsTasks(options.countTasks);
    chooseTasks();
    chooseDates();
}

// ---- Which tasks ------------------------------------------------------------------------------------------

void PlanPage::chooseTasks()
{
    const QList<KWTaskInfo *> &list = m_document.taskList();
    const std::size_t count = std::size_t(list.size());
    // A parent stands before its children; one that does not is none, so that no ring can form.
    std::vector<int> parents(count, -1);
    std::vector<char> isInBranch(count, m_options.branch == 0);
    std::vector<int> levels(count, 1);
    for (std::size_t pos = 0; pos < count; ++pos) {
        const KWTaskInfo &task = *list[int(pos)];
        const int parent = task.ParentID == 0 ? -1 : m_document.getPosByID(task.ParentID);
        parents[pos] = parent >= 0 && parent < int(pos) ? parent : -1;
        if (m_options.branch != 0)
            isInBranch[pos] =
                task.ID == m_options.branch || (parents[pos] >= 0 && isInBranch[std::size_t(parents[pos])]);
        levels[pos] = parents[pos] < 0 ? 1 : levels[std::size_t(parents[pos])] + 1;
    }
    std::vector<char> isCritical(count, false); // or a summary above such a task
    for (std::size_t pos = count; pos-- > 0;) {
        const KWTaskInfo &task = *list[int(pos)];
        isCritical[pos] = isCritical[pos] || (task.CriticalPath && !task.isParent());
        if (isCritical[pos] && parents[pos] >= 0)
            isCritical[std::size_t(parents[pos])] = true;
    }
    std::vector<char> isNamed(count, !m_options.onlyTasks);
    for (const quint32 id : m_options.onlyTasks ? m_options.tasks : std::vector<quint32>()) {
        const int pos = m_document.getPosByID(id);
        if (pos >= 0)
            isNamed[std::size_t(pos)] = true;
    }
    m_rowOfPos.assign(count, -1);
    for (std::size_t pos = 0; pos < count; ++pos) {
        const bool isChosen =
            isInBranch[pos] && isNamed[pos] && (!m_options.onlyCritical || isCritical[pos]) &&
            (m_options.depth == KWExportOptions::everyLevel || levels[pos] <= m_options.depth);
        if (!isChosen)
            continue;
        const int parentRow = parents[pos] < 0 ? -1 : m_rowOfPos[std::size_t(parents[pos])];
        m_rowOfPos[pos] = rowCount();
        m_tasks.push_back(list[int(pos)]);
        m_positions.push_back(int(pos));
        m_parents.push_back(parentRow);
        m_levels.push_back(parentRow < 0 ? 1 : m_levels[std::size_t(parentRow)] + 1);
    }
}

// ---- The axis ---------------------------------------------------------------------------------------------

void PlanPage::chooseDates()
{
    quint32 first = 0, last = 0;
    const auto include = [&](quint32 secs) {
        if (secs == 0)
            return;
        first = first == 0 ? secs : std::min(first, secs);
        last = std::max(last, secs);
    };
    for (const KWTaskInfo *task : m_tasks)
        include(task->Start);
    m_projectStart = first;
    for (const KWTaskInfo *task : m_tasks) {
        include(task->Finish);
        if (m_options.baseline && task->BaseStart != 0 && task->BaseFinish != 0) {
            include(task->BaseStart);
            include(task->BaseFinish);
        }
        if (m_options.slack && !task->CriticalPath && !task->isParent())
            include(task->LateFinish);
    }
    const LocalClock &clock = m_calendar.clock();
    m_firstDay = first != 0 ? clock.wall(first).day - 1 : LocalClock::dayOf(m_now.date());
    const int lastDay = first != 0 ? clock.wall(qint64(last) - 1).day + 1 : m_firstDay + 6;
    m_dayCount = std::max(1, lastDay - m_firstDay + 1);
}

double PlanPage::secsOf(quint32 moment) const
{
    if (moment == 0)
        return -1;
    const LocalClock::Wall wall = m_calendar.clock().wall(moment);
    return double(wall.day - m_firstDay) * LocalClock::secsPerDay + wall.secs;
}

// Runs of dates that work although their weekday does not, or the other way round.
QJsonArray PlanPage::exceptions() const
{
    QJsonArray runs;
    for (int day = 0; day < m_dayCount;) {
        const bool works = m_calendar.isWorkday(m_firstDay + day);
        const int from = day;
        while (day < m_dayCount && m_calendar.isWorkday(m_firstDay + day) == works &&
               m_document.WorkDay[LocalClock::weekday(m_firstDay + day)] != works)
            ++day;
        if (day > from)
            runs.append(QJsonArray{from, day - from, works ? 1 : 0});
        else
            ++day;
    }
    return runs;
}

// ---- The text ---------------------------------------------------------------------------------------------

QByteArray PlanPage::head() const
{
    QJsonArray columns;
    int name = 0, resources = 0;
    for (int i = 0; i < m_table.columnCount(); ++i) {
        const HeadItem &column = m_table.heads()[std::size_t(i)];
        const bool isTold =
            std::find(std::begin(toldTypes), std::end(toldTypes), column.type) != std::end(toldTypes);
        columns.append(QJsonObject{{QStringLiteral("title"), m_table.shownTitleOf(i)},
                                   {QStringLiteral("width"), rounded(column.width)},
                                   {QStringLiteral("right"), column.isRightAligned ? 1 : 0},
                                   {QStringLiteral("shown"), i < m_shownColumns ? 1 : 0},
                                   {QStringLiteral("tells"), isTold ? 1 : 0}});
        if (column.type == columntypes::Name)
            name = i;
        if (column.type == columntypes::ResourceNames)
            resources = i;
    }
    QJsonObject text;
    for (const Word &word : words)
        text.insert(QString::fromLatin1(word.key),
                    KWExportOptions::shownText(QString::fromLatin1(word.text)));
    QJsonArray keyList;
    for (const Word &key : keys)
        keyList.append(QJsonArray{QString::fromUtf8(key.key),
                                  KWExportOptions::shownText(QString::fromLatin1(key.text))});
    text.insert(QStringLiteral("keyList"), keyList);

    QJsonArray week;
    for (const bool works : m_document.WorkDay)
        week.append(works ? 1 : 0);
    const bool hasHours = m_calendar.finishHour() > m_calendar.startHour();
    const int startHour = hasHours ? m_calendar.startHour() : 0;
    const int finishHour = hasHours ? m_calendar.finishHour() : 24;
    QJsonValue today;
    if (m_options.today && m_now.isValid()) {
        const double hour = m_now.time().msecsSinceStartOfDay() / 3600e3;
        const double share = std::clamp((hour - startHour) / (finishHour - startHour), 0.0, 1.0);
        today = rounded(LocalClock::dayOf(m_now.date()) - m_firstDay + share);
    }
    static constexpr const char *labels[] = {"none", "names", "resources", "dates"};
    const QJsonObject head{
        {QStringLiteral("lang"), m_options.language.isEmpty() ? QStringLiteral("en") : m_options.language},
        {QStringLiteral("day0"), m_firstDay},
        {QStringLiteral("days"), m_dayCount},
        {QStringLiteral("week"), week},
        {QStringLiteral("except"), exceptions()},
        {QStringLiteral("hours"), QJsonArray{startHour, finishHour}},
        {QStringLiteral("today"), today},
        {QStringLiteral("labels"), QString::fromLatin1(labels[m_options.labels])},
        {QStringLiteral("name"), name},
        {QStringLiteral("resources"), resources},
        {QStringLiteral("cols"), columns},
        {QStringLiteral("text"), text}};
    return embedded(head);
}

QByteArray PlanPage::row(int row) const
{
    const KWTaskInfo &task = *m_tasks[std::size_t(row)];
    const bool isDated = task.Start != 0 && task.Finish >= task.Start;
    const bool isCritical = m_options.critical && task.CriticalPath;
    const int flags = (task.isParent() ? Summary : 0) | (task.Milestone && !task.isParent() ? Milestone : 0) |
                      (isCritical ? Critical : 0) | (task.isParent() && task.IsToggler ? Folded : 0) |
                      (isDated && task.Start == m_projectStart ? AtStart : 0);

    TableRow place;
    place.task = &task;
    QJsonArray cells;
    for (int column = 0; column < m_table.columnCount(); ++column)
        cells.append(m_table.cell(place, column).text);

    QJsonArray waits;
    for (const quint32 id : m_options.links ? task.Predecessors : QList<quint32>()) {
        const int pos = m_document.getPosByID(id);
        const int from = pos < 0 ? -1 : m_rowOfPos[std::size_t(pos)];
        if (from < 0 || from == row)
            continue;
        // It drives the task when no working time lies between them.
        const quint32 finish = m_tasks[std::size_t(from)]->Finish;
        const bool drives =
            isDated && finish != 0 &&
            (finish >= task.Start || duration::ofTask(m_calendar, finish, task.Start, duration::Minute) <= 0);
        waits.append(QJsonArray{from, drives ? 1 : 0});
    }
    const bool hasBaseline = m_options.baseline && task.BaseStart != 0 && task.BaseFinish >= task.BaseStart;
    const bool hasSlack =
        m_options.slack && !task.CriticalPath && !task.isParent() && isDated && task.LateFinish > task.Finish;
    const double height = m_document.rowColumnData()->getRowHeightByPos(m_positions[std::size_t(row)], false);
    constexpr double leastHeight = 18, mostHeight = 400; // pixels; a file may have any
    const QJsonArray all{double(task.ID),
                         m_parents[std::size_t(row)],
                         flags,
                         m_levels[std::size_t(row)],
                         isDated ? secsOf(task.Start) : -1,
                         isDated ? secsOf(task.Finish) : -1,
                         rounded(std::clamp(task.Percent, 0.0, 1.0)),
                         rounded(height > leastHeight ? std::min(height, mostHeight) : leastHeight),
                         cells,
                         hasBaseline ? QJsonValue(QJsonArray{secsOf(task.BaseStart), secsOf(task.BaseFinish)})
                                     : QJsonValue(0),
                         hasSlack ? secsOf(task.LateFinish) : 0,
                         waits};
    return embedded(QJsonDocument(all).toJson(QJsonDocument::Compact));
}
