#include "export/planview.h"
#include "chart/axis.h"
#include "chart/elide.h"
#include "engine/record/outline.h"
#include "engine/text/celltext.h"
#include "engine/time/dayoff.h"
#include "engine/time/duration.h"
#include "engine/time/timerange.h"
#include "format/unitutil.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"
#include "table/rowcolumndata.h"
#include <QGuiApplication>
#include <QSet>
#include <QUrl>
#include <algorithm>
#include <cmath>
#include <numeric>

using chart::Axis;
using chart::RowKind;

namespace {

constexpr int neighbourRows = 250; // beyond those asked for: links that pass by
constexpr int longestReach = 2000; // rows that a link is followed

// As it can be clicked: only what a browser opens without doing anything else, spelt in ASCII. Else empty.
QString safeAddress(const KWHyperlink &link)
{
    constexpr int webPage = 3, longest = 2000;
    static const QStringList schemes{QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("ftp"),
                                     QStringLiteral("mailto")};
    const auto isSafe = [](const QUrl &url) { return url.isValid() && schemes.contains(url.scheme()); };
    QUrl url(link.address.trimmed(), QUrl::TolerantMode);
    // An address of a page without a scheme gets one.
    if (!isSafe(url) && link.type == webPage)
        url = QUrl(link.getWebPageUrl().trimmed(), QUrl::TolerantMode);
    const QString address = QString::fromLatin1(url.toEncoded());
    return isSafe(url) && address.size() <= longest ? address : QString();
}

// The task's default link, or the first that is safe.
QString safeAddress(const KWTaskInfo &task)
{
    QString first;
    for (int i = 0; i < task.hyperlinks.count(); ++i) {
        const KWHyperlink *link = task.hyperlinks.getAt(i);
        const QString address = safeAddress(*link);
        if (link->isDefault && !address.isEmpty())
            return address;
        first = first.isEmpty() ? address : first;
    }
    return first;
}

// The names of a cell, as a sentence joins them.
QString namesOf(const QString &cell)
{
    QStringList names;
    for (const QString &name : cell.split(QLatin1Char(';'), Qt::SkipEmptyParts))
        names.append(name.simplified());
    return names.join(QLatin1String(", "));
}

struct Units
{
    quint32 major;
    unsigned int minor;
    int unitWidth;
};

// The finest units of which a chart has room, as wide as it lets them; the coarsest ones when there is none.
Units automatic(const worktime::WorkCalendar &calendar, quint32 start, quint32 finish)
{
    constexpr int widestChart = 1300, goodChart = 900, widestUnit = 100, narrowestUnit = 20; // pixels
    constexpr Units candidates[] = {
        {duration::Week, duration::Hour, 0},    {duration::Week, duration::Day, 0},
        {duration::Month, duration::Week, 0},   {duration::Quarter, duration::Month, 0},
        {duration::Year, duration::Quarter, 0}, {duration::Year, duration::Year, 0}};
    const LocalClock &clock = calendar.clock();
    Units units{};
    for (const Units &candidate : candidates) {
        units = candidate;
        const quint32 origin = timerange::rangeStart(clock, start, units.minor);
        const quint32 last = timerange::rangeEnd(clock, finish, origin, units.minor);
        const int count = timerange::unitsFrom(clock, origin, last, units.minor);
        const int onePixel = timescale::chartWidth(calendar, units.minor, count, 1, 1);
        units.unitWidth = std::clamp(goodChart / std::max(1, onePixel), narrowestUnit, widestUnit);
        if (onePixel <= widestChart / narrowestUnit)
            break;
    }
    return units;
}
}

PlanView::PlanView(KWDocument &document, const KWExportOptions &options, TextShaper &shaper)
    : m_document(document)
    , m_options(options)
    , m_shaper(shaper)
    , m_usualFont(QGuiApplication::font())
{
    m_plan.fonts = shaper.fonts();
    m_plan.measure = [this](const QString &text, int font) { return m_shaper.width(text, font); };
    m_plan.locale = QLocale(options.language.isEmpty() ? QStringLiteral("en_GB") : options.language);
    m_plan.showsLabels = options.labels != KWExportOptions::NoLabels;
    for (QString *text : m_plan.texts.all())
        *text = KWExportOptions::shownText(*text);
    chooseRows();
    makeAxis();
    makeColumns();
    chooseDates();
}

PlanView::~PlanView() = default;

// ---- Rows -------------------------------------------------------------------------------------------------

void PlanView::chooseRows()
{
    const int count = m_document.visibleRowCount();
    m_isFiltered = m_options.branch != 0 || m_options.onlyCritical ||
                   m_options.depth != KWExportOptions::everyLevel || m_options.onlyTasks;
    if (!m_isFiltered) {
        m_plan.rowCount = count;
        m_plan.bottom = count > 0 ? m_document.getRowYByRow(count - 1, false) : chart::headHeight;
        return;
    }
    const outline::Tasks tasks = m_document.outline();
    QSet<const TaskRecord *> branch, critical;
    if (m_options.branch != 0) {
        if (const KWTaskInfo *top = m_document.getTaskInfoByID(m_options.branch)) {
            branch.insert(top);
            for (const TaskRecord *task : outline::descendants(tasks, *top))
                branch.insert(task);
        }
    }
    if (m_options.onlyCritical) {
        std::vector<TaskRecord *> found;
        for (KWTaskInfo *task : m_document.taskList())
            if (task->CriticalPath && !task->isParent())
                found.push_back(task);
        for (const TaskRecord *task : outline::withAncestors(tasks, found))
            critical.insert(task);
    }
    std::vector<int> rows;
    if (m_options.onlyTasks) {
        for (const quint32 id : m_options.tasks) {
            const KWTaskInfo *task = m_document.getTaskInfoByID(id);
            if (task && task->HideID == 0)
                rows.push_back(m_document.getRowByTaskID(id));
        }
        if (!std::is_sorted(rows.begin(), rows.end()))
            std::sort(rows.begin(), rows.end());
        rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    } else {
        rows.resize(std::size_t(count));
        std::iota(rows.begin(), rows.end(), 0);
    }
    double top = chart::headHeight;
    for (const int row : rows) {
        const KWTaskInfo *task = m_document.getTaskInfoByRow(row);
        if ((m_options.branch != 0 && !branch.contains(task)) ||
            (m_options.onlyCritical && !critical.contains(task)) ||
            (m_options.depth != KWExportOptions::everyLevel && task->Level > m_options.depth))
            continue;
        m_rows.push_back(row);
        m_tops.push_back(top);
        top += std::max(0.0, m_document.rowColumnData()->getRowHeightByRow(row)) * UnitUtil::dpiScale96();
    }
    m_plan.rowCount = int(m_rows.size());
    m_plan.bottom = top;
}

const KWTaskInfo *PlanView::task(int row) const
{
    if (row < 0 || row >= m_plan.rowCount)
        return nullptr;
    return m_document.getTaskInfoByRow(m_isFiltered ? m_rows[std::size_t(row)] : row);
}

int PlanView::rowOfTask(quint32 id) const
{
    const KWTaskInfo *task = m_document.getTaskInfoByID(id);
    if (!task || task->HideID != 0)
        return -1;
    const int row = m_document.getRowByTaskID(id);
    if (!m_isFiltered)
        return row;
    const auto drawn = std::lower_bound(m_rows.begin(), m_rows.end(), row);
    return drawn != m_rows.end() && *drawn == row ? int(drawn - m_rows.begin()) : -1;
}

QString PlanView::nameOf(int row) const
{
    const KWTaskInfo *found = task(row);
    return found ? found->Name : QString();
}

double PlanView::positionOf(const QDateTime &moment) const
{
    const worktime::WorkCalendar &calendar = m_scale->calendar();
    const LocalClock::Wall wall = calendar.clock().wall(moment.toSecsSinceEpoch());
    const int begin = calendar.startHour() * worktime::secsPerHour,
              end = calendar.finishHour() * worktime::secsPerHour;
    qint64 stored;
    if (wall.secs <= begin || begin == end)
        stored = calendar.clock().startOfDay(wall.day);
    else if (wall.secs >= end)
        stored = calendar.clock().startOfDay(wall.day + 1);
    else
        stored = worktime::toDayClock(calendar, {wall.day, wall.secs});
    return m_scale->position(worktime::clampSecs(stored));
}

double PlanView::rowTop(int row) const
{
    if (m_isFiltered)
        return m_tops[std::size_t(row)];
    return row == 0 ? chart::headHeight : m_document.getRowYByRow(row - 1, false);
}

double PlanView::rowHeight(int row) const
{
    if (m_isFiltered)
        return (row + 1 < int(m_tops.size()) ? m_tops[std::size_t(row) + 1] : m_plan.bottom) -
               m_tops[std::size_t(row)];
    return m_document.getRowYByRow(row, false) - rowTop(row);
}

int PlanView::rowAt(double y) const
{
    if (m_plan.rowCount == 0)
        return 0;
    int row;
    if (m_isFiltered) {
        row = int(std::upper_bound(m_tops.begin(), m_tops.end(), y) - m_tops.begin()) - 1;
    } else {
        constexpr bool clampToLast = true;
        row = y <= chart::headHeight ? 0 : m_document.getRowByPtY(y, clampToLast);
    }
    return std::clamp(row, 0, m_plan.rowCount - 1);
}

int PlanView::fontFor(const QFont &font, double height)
{
    for (const auto &[known, number] : m_fonts)
        if (known == font)
            return number;
    chart::Font wanted = KWTextFormat::fromFont(font);
    // The font that tasks get where nobody chose one is the picture's own.
    if (wanted.family == m_usualFont.family() || !m_options.family.isEmpty())
        wanted.family.clear();
    const double most = std::max(4.0, height * 0.75 * 0.75); // points that a row has room for
    wanted.pointSize = std::min(wanted.pointSize > 0 ? wanted.pointSize : 9, most);
    wanted.color = KWColor();
    const int number = m_shaper.addFont(wanted);
    m_fonts.push_back({font, number});
    return number;
}

chart::Row PlanView::rowOf(int number, double top)
{
    const KWTaskInfo &task = *this->task(number);
    chart::Row row;
    row.id = task.ID;
    row.top = top;
    row.height = std::max(0.0, rowHeight(number));
    row.level = task.Level;
    row.isCollapsed = task.IsToggler;
    row.kind = task.isParent() ? RowKind::Summary : task.Milestone ? RowKind::Milestone : RowKind::Task;
    row.isCritical = m_options.critical && task.CriticalPath;
    if (m_options.highlight) {
        row.isActive = m_document.taskCollection()->getTaskInfoActive() == &task;
        row.isLinked = task.Linked;
    }
    row.font = quint8(fontFor(task.font, row.height));
    if (row.kind == RowKind::Summary && task.font.bold()) {
        QFont plain = task.font;
        plain.setBold(false);
        row.plainFont = quint8(fontFor(plain, row.height));
    } else {
        row.plainFont = row.font;
    }
    const timescale::Scale &scale = *m_scale;
    row.x1 = scale.point(task, true);
    row.x2 = scale.point(task, false);
    row.done = scale.finishedWidth(task, row.x1, row.x2 - row.x1);
    if (m_options.baseline && task.BaseStart != 0 && task.BaseFinish != 0) {
        if (row.kind == RowKind::Milestone) {
            row.baseX1 = scale.position(scale.milestoneAnchor(task.BaseFinish));
            row.baseX2 = row.baseX1 + m_plan.axis.unitWidth;
        } else {
            row.baseX1 = scale.position(task.BaseStart);
            row.baseX2 = scale.position(task.BaseFinish);
        }
    }
    if (m_options.slack && row.kind != RowKind::Summary && task.LateFinish > task.Finish &&
        duration::secs(scale.calendar(), task.Finish, task.LateFinish, duration::Minute) >= 60) {
        const double end = scale.position(dayoff::finishBack(scale.calendar(), task.LateFinish, true));
        const double begin = row.kind == RowKind::Milestone ? row.x1 + m_plan.axis.unitWidth : row.x2;
        if (end > begin + 1)
            row.slackEnd = end;
    }
    return row;
}

void PlanView::addLinks(int first, int last)
{
    if (!m_options.links)
        return;
    const auto add = [&](const KWTaskInfo &from, const KWTaskInfo &to, int fromRow, int toRow) {
        chart::Link link;
        link.from = fromRow;
        link.to = toRow;
        link.isCritical = m_options.critical && from.CriticalPath && to.CriticalPath;
        const KWTaskInfo *active =
            m_options.highlight ? m_document.taskCollection()->getTaskInfoActive() : nullptr;
        link.isHighlighted = active && (active == &from || active == &to);
        m_plan.links.push_back(link);
    };
    for (int row = first; row <= last; ++row) {
        const KWTaskInfo &task = *this->task(row);
        QSet<quint32> seen; // a file may name a link twice
        for (const quint32 id : task.Depends) {
            const int to = rowOfTask(id);
            if (to < 0 || to == row || (task.Depends.size() > 1 && seen.contains(id)))
                continue;
            seen.insert(id);
            add(task, *this->task(to), row, to);
        }
        seen.clear();
        for (const quint32 id : task.Predecessors) {
            const int from = rowOfTask(id);
            // Those inside are found from their predecessor.
            if (from < 0 || (from >= first && from <= last) || seen.contains(id))
                continue;
            seen.insert(id);
            add(*this->task(from), task, from, row);
        }
    }
}

void PlanView::load(int first, int last)
{
    first = std::clamp(first, 0, std::max(0, m_plan.rowCount - 1));
    last = std::clamp(last, -1, m_plan.rowCount - 1);
    m_plan.rows.clear();
    m_plan.links.clear();
    m_plan.firstRow = first;
    if (last < first)
        return;
    const int around = m_options.links ? neighbourRows : 0;
    int low = std::max(0, first - around), high = std::min(m_plan.rowCount - 1, last + around);
    if (m_options.links) {
        for (int row = first; row <= last; ++row) {
            const KWTaskInfo &task = *this->task(row);
            for (const QList<quint32> *ids : {&task.Depends, &task.Predecessors}) {
                for (const quint32 id : *ids) {
                    const int other = rowOfTask(id);
                    if (other >= 0 && std::abs(other - row) <= longestReach) {
                        low = std::min(low, other);
                        high = std::max(high, other);
                    }
                }
            }
        }
    }
    m_plan.firstRow = low;
    m_plan.rows.reserve(std::size_t(high - low + 1));
    for (int row = low; row <= high; ++row)
        m_plan.rows.push_back(rowOf(row, rowTop(row)));
    m_plan.fonts = m_shaper.fonts();
    addLinks(low, high);
}

void PlanView::loadAll()
{
    load(0, m_plan.rowCount - 1);
}

void PlanView::makeRoom()
{
    constexpr double widest = 160, gap = 16;
    double room = 0;
    if (!m_plan.showsLabels)
        return;
    for (int i = 0; i < int(m_plan.rows.size()) && room < widest; ++i) {
        const chart::Row &row = m_plan.rows[std::size_t(i)];
        const double behind = std::max(row.hasSlack() ? row.slackEnd : row.x2, row.x2);
        if (behind + widest <= m_plan.axis.width + room || behind > m_plan.axis.width + 1)
            continue;
        const QString label = labelOf(m_plan.firstRow + i);
        if (!label.isEmpty())
            room = std::max(room, behind + gap +
                                      m_shaper.width(chart::oneLine(label.left(100)), chart::LabelFont) -
                                      m_plan.axis.width);
    }
    m_plan.room = std::min(room, widest);
}

QString PlanView::labelOf(int row) const
{
    const KWTaskInfo *task = this->task(row);
    if (!task || (task->isParent() && m_options.labels != KWExportOptions::NameLabels))
        return QString();
    const auto date = [&](quint32 secs, bool isStart) {
        return secs == 0 ? QString()
                         : chart::shortDate(m_plan.locale,
                                            celltext::shownMoment(m_scale->calendar(), secs, isStart).date(),
                                            false);
    };
    if (m_options.labels == KWExportOptions::NameLabels)
        return task->Name.simplified();
    if (task->Milestone)
        return date(task->Finish, false);
    if (m_options.labels == KWExportOptions::ResourceLabels)
        return namesOf(task->Resources);
    const QString first = date(task->Start, true), last = date(task->Finish, false);
    return first == last ? first : first + QStringLiteral(" \u2013 ") + last;
}

// ---- The axis ---------------------------------------------------------------------------------------------

void PlanView::makeAxis()
{
    const worktime::WorkCalendar &calendar = m_document.workCalendar();
    const LocalClock &clock = calendar.clock();
    KWTaskCollection &collection = *m_document.taskCollection();
    Units units{m_document.MajorUnit, m_document.getMinorUnit(), m_document.UnitWidth};
    quint32 origin = collection.minDateStart(), lastUnit = collection.maxDateFinish();
    double width = collection.totalWidth();
    // A scale of the document's that was never computed, or that stored values make impossible, is none.
    const bool hasOwn = lastUnit != 0 && lastUnit >= origin && units.minor <= duration::Minute &&
                        units.unitWidth > 0 && width > 0;
    if (m_options.scale != KWExportOptions::DocumentScale || !hasOwn) {
        const quint32 start = collection.getMinTaskStartSecs(), finish = collection.getMaxTaskFinishSecs();
        if (m_options.scale == KWExportOptions::FixedScale)
            units = {m_options.minorUnit == 0 ? 0u : quint32(std::min(m_options.minorUnit - 1, 3)),
                     unsigned(m_options.minorUnit), m_options.unitWidth};
        else if (m_options.scale == KWExportOptions::AutoScale || units.minor > duration::Minute ||
                 units.unitWidth <= 0)
            units = automatic(calendar, start, finish);
        origin = timerange::rangeStart(clock, start, units.minor);
        lastUnit = timerange::rangeEnd(clock, finish, origin, units.minor);
        width = timescale::chartWidth(calendar, units.minor,
                                      timerange::unitsFrom(clock, origin, lastUnit, units.minor),
                                      units.unitWidth, UnitUtil::dpiScale96());
    }
    m_scale = std::make_unique<timescale::Scale>(calendar, units.minor, origin, lastUnit, int(width),
                                                 units.unitWidth, UnitUtil::dpiScale96());
    Axis &axis = m_plan.axis;
    axis.minor = chart::Unit(units.minor);
    axis.major = chart::Unit(std::min<quint32>(units.major, duration::Week));
    axis.unitWidth = units.unitWidth * UnitUtil::dpiScale96();
    axis.width = width;
    axis.startHour = calendar.startHour();
    axis.finishHour = calendar.finishHour();
    axis.firstDay = clock.wall(origin).day;
    const qint64 end = timerange::chartEnd(clock, lastUnit, units.minor);
    axis.lastDay = std::max(axis.firstDay, clock.wall(end - 1).day);
    const timescale::Scale &scale = *m_scale;
    // Straight from the clock's days, since the rules take moments: a day of an hour scale begins at its
    // first working hour.
    if (units.minor >= duration::Hour)
        axis.xOfDay = [&scale, &calendar, units](int day) {
            const worktime::HourPoint begin{day, qint64(calendar.startHour()) * worktime::secsPerHour};
            return units.minor == duration::Hour ? scale.hourPosition(begin) : scale.minutePosition(begin);
        };
    else
        axis.xOfDay = [&scale, &clock, end, width](int day) {
            const qint64 moment = clock.startOfDay(day);
            return moment >= end ? width : scale.dayPosition(worktime::clampSecs(moment));
        };
    axis.isWorkday = [&calendar](int day) { return calendar.isWorkday(day); };
}

void PlanView::chooseDates()
{
    const Axis &axis = m_plan.axis;
    const auto xOf = [&](const QDate &date) {
        const int day = std::clamp(Axis::dayOf(date), axis.firstDay, axis.lastDay + 1);
        return day > axis.lastDay ? axis.width : std::clamp(axis.xOfDay(day), 0.0, axis.width);
    };
    m_from = 0;
    m_to = axis.width;
    if (m_options.trim && m_plan.rowCount > 0) {
        double first = chart::nowhere, last = 0;
        for (int row = 0; row < m_plan.rowCount; ++row) {
            const KWTaskInfo &task = *this->task(row);
            first = std::min(first, double(m_scale->point(task, true)));
            last = std::max(last, double(m_scale->point(task, false)));
        }
        const double begin = chart::unitEdgeBefore(axis, first);
        m_from = std::max(0.0, chart::unitEdgeBefore(axis, begin - 0.5));
        const double end = std::min(axis.width, last);
        m_to = chart::unitEdgeAfter(axis, chart::unitEdgeAfter(axis, std::max(0.0, end - 0.5)));
    }
    if (m_options.from.isValid())
        m_from = xOf(m_options.from);
    if (m_options.to.isValid())
        m_to = xOf(m_options.to.addDays(1));
    m_to = std::max(m_from, m_to);
}

// ---- The table --------------------------------------------------------------------------------------------

void PlanView::makeColumns()
{
    m_table = m_options.columns.empty() ? std::make_unique<CustomTable>(&m_document)
                                        : std::make_unique<CustomTable>(&m_document, m_options.columns);
    m_table->setCountsTasks(m_options.countTasks);
    int place = 0;
    for (const HeadItem &head : m_table->heads()) {
        chart::Column column;
        column.title = m_table->shownTitleOf(place++);
        column.width = head.width;
        column.alignsRight = head.isRightAligned;
        column.isName = head.type == columntypes::Name;
        column.isNumber = head.type == columntypes::Id;
        m_plan.columns.push_back(column);
    }
    m_plan.cell = [this](int row, int column) {
        TableRow tableRow;
        tableRow.row = row;
        tableRow.task = task(row);
        const Cell cell = m_table->cell(tableRow, column);
        chart::CellView view;
        view.text = cell.text;
        view.indent = cell.indent;
        view.isSummary = cell.fold != Cell::NoFold;
        view.isQuiet = cell.isMuted;
        return view;
    };
    m_plan.label = [this](int row) { return labelOf(row); };
    m_plan.address = [this](int row) { return safeAddress(*task(row)); };
    if (m_options.fitColumns)
        fitColumns();
}

// As wide as the widest texts; of very many, those with the most characters are measured.
void PlanView::fitColumns()
{
    constexpr double widestName = 360, widestOther = 200, narrowest = 28;
    constexpr double insets = 8 + 14;
    constexpr std::size_t measured = 24;
    for (int column = 0; column < int(m_plan.columns.size()); ++column) {
        chart::Column &head = m_plan.columns[std::size_t(column)];
        std::vector<std::pair<double, QString>> longest; // by estimated width
        const auto byWidth = [](const auto &a, const auto &b) { return a.first > b.first; };
        for (int row = 0; row < m_plan.rowCount; ++row) {
            const chart::CellView cell = m_plan.cell(row, column);
            constexpr double meanCharacter = 7.5;
            const double estimate = cell.indent + cell.text.size() * meanCharacter;
            if (longest.size() == measured && estimate <= longest.back().first)
                continue;
            longest.insert(std::upper_bound(longest.begin(), longest.end(),
                                            std::make_pair(estimate, QString()), byWidth),
                           {estimate, cell.text});
            if (longest.size() > measured)
                longest.pop_back();
        }
        double width = m_shaper.width(CustomTable::shownTitle(head.title), chart::BoldCellFont) +
                       (head.isName ? CustomTable::foldMarkWidth : 0);
        for (const auto &[estimate, text] : longest) {
            constexpr double meanCharacter = 7.5;
            const double indent = estimate - text.size() * meanCharacter;
            width =
                std::max(width, indent + m_shaper.width(chart::oneLine(text.left(200)),
                                                        head.isName ? chart::BoldCellFont : chart::CellFont));
        }
        head.width = std::ceil(std::clamp(width + insets, narrowest, head.isName ? widestName : widestOther));
    }
}
