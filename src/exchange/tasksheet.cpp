#include "exchange/tasksheet.h"
#include "engine/record/outline.h"
#include "engine/text/columntypes.h"
#include "engine/time/duration.h"
#include "engine/time/worktime.h"
#include "format/dataformat.h"
#include "model/kwdocument.h"
#include "schedule/kwtaskcollection.h"
#include "support/kwclock.h"
#include "table/rowcolumndata.h"
#include <algorithm>
#include <cmath>
#include <limits>

using columntypes::ColumnType;
using columntypes::Import;
using sheetrows::Cell;
using sheetrows::KnownCell;

namespace planimport {
namespace {

// One text that many cells share can name far more than its file is long.
constexpr qint64 maxTagUnits = 32 << 20;
constexpr std::size_t maxTags = 1000000;
constexpr int maxHyperlinks = 1000000;
constexpr int maxNumberedUnits = 255; // of a name that gets a number

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}
}

cellvalues::UnitNames unitNames()
{
    cellvalues::UnitNames names;
    for (unsigned int unit = 0; unit < duration::unitCount; ++unit) {
        names.shortNames[unit] = KWDocument::getNameByMinorUnit(unit, false);
        names.longNames[unit] = KWDocument::getNameByMinorUnit(unit, true);
    }
    return names;
}

// ---- Names and IDs ----------------------------------------------------------------------------------------

QString UniqueNames::take(const QString &name)
{
    ++m_count;
    const QString trimmed = name.trimmed();
    if (!m_taken.contains(trimmed)) {
        m_taken.insert(trimmed);
        return name;
    }
    const QString base = name.left(maxNumberedUnits);
    qint64 &number = m_nextNumber[base];
    // The tasks before this one, and one.
    number = std::max(number, qint64(m_count));
    QString numbered;
    do
        numbered = base + QString::number(number++);
    while (m_taken.contains(numbered.trimmed()));
    m_taken.insert(numbered.trimmed());
    return numbered;
}

bool UniqueIds::take(quint32 id)
{
    if (id == 0 || !m_taken.add(id))
        return false;
    m_greatest = std::max(m_greatest, id);
    return true;
}

quint32 UniqueIds::takeNext()
{
    if (m_greatest < std::numeric_limits<quint32>::max()) {
        take(m_greatest + 1);
        return m_greatest;
    }
    while (!take(m_lowestFree))
        ++m_lowestFree;
    return m_lowestFree;
}

// ---- The sheet --------------------------------------------------------------------------------------------

TaskSheet::TaskSheet(KWDocument &document, bool is1904, Findings *findings)
    : Reader(findings, text("task sheet"))
    , m_document(document)
    , m_is1904(is1904)
    , m_unitNames(unitNames())
{
}

TaskSheet::~TaskSheet() = default;

int TaskSheet::fieldOf(const QString &title) const
{
    const int type = RowColumnData::s_columnNames.key(title, -1);
    return columntypes::find(type) ? type : -1;
}

void TaskSheet::addRow(int row, const std::vector<KnownCell> &cells)
{
    Staged staged;
    staged.task = std::make_unique<KWTaskInfo>();
    staged.row = row;
    staged.wantedBegin = m_wantedTags.size();
    for (const KnownCell &known : cells)
        apply(known, staged);
    complete(staged);
    m_tasks.push_back(std::move(staged));
}

void TaskSheet::apply(const KnownCell &known, Staged &staged)
{
    const ColumnType &type = *columntypes::find(known.field);
    const Cell &cell = *known.cell;
    KWTaskInfo &task = *staged.task;
    switch (type.import) {
    case Import::None:
        return;
    case Import::Text:
        columntypes::setText(task, type.field, cell.asText());
        return;
    case Import::OwnId:
        readId(cell, staged);
        return;
    case Import::OwnName:
        readName(cell, staged);
        return;
    case Import::StartOnWorkday:
        readMoment(known, StartOnWorkday, staged);
        return;
    case Import::StartAsShown:
        readMoment(known, StartAsShown, staged);
        return;
    case Import::Finish:
        readMoment(known, Finish, staged);
        return;
    case Import::Duration:
        readDuration(cell, staged);
        return;
    case Import::Hyperlinks:
        readHyperlinks(cell, staged);
        return;
    case Import::RowTags:
        readTags(cell, staged);
        return;
    case Import::Whole:
    case Import::Number:
    case Import::NumberText:
    case Import::Percent:
        readNumber(known, staged);
        return;
    }
}

void TaskSheet::readId(const Cell &cell, Staged &staged)
{
    const qint64 id = cellvalues::whole(cell).value_or(0);
    // A second column of that title changes nothing any more.
    if (staged.id != 0)
        return;
    if (id > 0 && id <= std::numeric_limits<quint32>::max() && m_ids.take(quint32(id))) {
        staged.id = quint32(id);
        return;
    }
    staged.id = m_ids.takeNext();
    report(staged.row, &cell, id > 0 ? text("is the ID of another task") : text("is no ID"),
           text("ID ") + QString::number(staged.id));
}

void TaskSheet::readName(const Cell &cell, Staged &staged)
{
    if (!staged.task->Name.isEmpty())
        return;
    staged.task->Name = m_names.take(cell.asText());
    if (staged.task->Name != cell.asText())
        report(staged.row, &cell, text("is the name of another task"), text("named ") + staged.task->Name);
}

void TaskSheet::readNumber(const KnownCell &known, Staged &staged)
{
    const ColumnType &type = *columntypes::find(known.field);
    const Cell &cell = *known.cell;
    const std::optional<double> value =
        type.import == Import::Percent ? cellvalues::fraction(cell) : cellvalues::number(cell);
    if (!value) {
        report(staged.row, &cell, text("is no number"), text("left out"));
        return;
    }
    if (type.import == Import::Percent)
        staged.task->setPercent(*value);
    else if (type.import == Import::NumberText)
        columntypes::setText(*staged.task, type.field,
                             cell.isNumber ? cell.text : DataFormat::numberStringFromString(cell.text, 0));
    else
        columntypes::setNumber(*staged.task, type.field,
                               type.import == Import::Whole ? std::trunc(*value) : *value);
}

void TaskSheet::readDuration(const Cell &cell, Staged &staged)
{
    const std::optional<double> value = cellvalues::number(cell);
    staged.takesNoTime = value && *value == 0;
    const std::optional<unsigned int> unit = cellvalues::unit(cell.text, m_unitNames);
    if (unit)
        staged.task->DurationUnits = *unit;
    else if (!cell.isNumber)
        report(staged.row, &cell, text("has no known unit of time"), text("counted in days"));
}

void TaskSheet::readHyperlinks(const Cell &cell, Staged &staged)
{
    KWHyperlinkSheet &sheet = staged.task->hyperlinks;
    for (const QString &part : cell.text.split(QLatin1Char(';'))) {
        const QString address = part.trimmed();
        if (address.isEmpty())
            continue;
        if (m_hyperlinks == maxHyperlinks) {
            report(staged.row, titleOf(cell), text("there are too many links"), text("left out"));
            return;
        }
        ++m_hyperlinks;
        auto *link = new KWHyperlink;
        link->ID = sheet.count() + 1;
        link->name = text("Hyperlink") + QString::number(sheet.count() + 1);
        link->address = address;
        link->type = KWHyperlink::hyperlinkType(address);
        sheet.appendHyperlink(link);
    }
}

void TaskSheet::readTags(const Cell &cell, Staged &staged)
{
    m_tagUnits += cell.text.size();
    if (m_tagUnits > maxTagUnits || m_wantedTags.size() >= maxTags) {
        report(staged.row, titleOf(cell), text("there are too many predecessors"), text("left out"));
        return;
    }
    // Some programs write 3 as "3.0" when it stands alone.
    const QString list = cell.isNumber ? QString::number(cellvalues::whole(cell).value_or(0)) : cell.text;
    bool isSound = true;
    for (const QStringRef &part : list.splitRef(QLatin1Char(';'))) {
        const QStringRef trimmed = part.trimmed();
        const quint32 tag = trimmed.toUInt();
        if (tag > 0)
            m_wantedTags.push_back(tag);
        else
            isSound = isSound && trimmed.isEmpty();
    }
    if (!isSound)
        report(staged.row, &cell, text("does not only hold row numbers"), text("the rest left out"));
    // Named once, however often.
    const auto begin = m_wantedTags.begin() + std::ptrdiff_t(staged.wantedBegin);
    std::sort(begin, m_wantedTags.end());
    m_wantedTags.erase(std::unique(begin, m_wantedTags.end()), m_wantedTags.end());
}

// ---- Moments ----------------------------------------------------------------------------------------------

void TaskSheet::readMoment(const KnownCell &known, MomentUse use, Staged &staged)
{
    const columntypes::Field &field = columntypes::find(known.field)->field;
    const Moment moment = momentOf(*known.cell, use, staged.row);
    columntypes::setSecs(*staged.task, field, moment.secs);
    if (field == columntypes::Field(&KWTaskInfo::Start))
        staged.start = moment;
    else if (field == columntypes::Field(&KWTaskInfo::Finish))
        staged.finish = moment;
}

// Plans name the same moments again and again.
TaskSheet::Moment TaskSheet::momentOf(const Cell &cell, MomentUse use, int row)
{
    QHash<QString, Moment> &known = m_moments[use][cell.isNumber ? 1 : 0];
    const auto found = known.constFind(cell.text);
    if (found != known.constEnd())
        return *found;
    const std::optional<QDateTime> shown = cellvalues::moment(cell, m_is1904);
    if (!shown) {
        report(row, &cell, text("is no date from 1970 to 2106"), text("today"));
        const QDateTime today = KWClock::now().date().startOfDay();
        return {stored(today, use), today.toSecsSinceEpoch()};
    }
    const Moment moment{stored(*shown, use), shown->toSecsSinceEpoch()};
    known.insert(cell.text, moment);
    return moment;
}

// From the moment that a user sees to the one that a task has.
quint32 TaskSheet::stored(const QDateTime &shown, MomentUse use) const
{
    constexpr bool hourClock = false;
    const auto typed = [this](const QDateTime &moment) {
        constexpr bool start = true;
        return worktime::clampSecs(
            KWTaskInfo::editTimeTransDayTime(&m_document, moment, start).toSecsSinceEpoch());
    };
    if (use == Finish) {
        // The rule for starts: the one for finishes answers a day early, where the clock may be put forward.
        const quint32 finish =
            endsItsDate(shown.time())
                ? worktime::clampSecs(shown.date().addDays(1).startOfDay().toSecsSinceEpoch())
                : typed(shown);
        return KWTaskCollection::addFinishOnDayOff(&m_document, finish, hourClock);
    }
    if (use == StartAsShown)
        return typed(shown);
    const quint32 workday = KWTaskCollection::moveForwarstartOnDayOff(
        &m_document, worktime::clampSecs(shown.toSecsSinceEpoch()), hourClock);
    return typed(QDateTime::fromSecsSinceEpoch(workday));
}

// A finish at 00:00 or before work begins, and one in the hour that begins when work has ended.
bool TaskSheet::endsItsDate(const QTime &time) const
{
    const worktime::WorkCalendar &calendar = m_document.workCalendar();
    return (time.hour() == 0 && time.minute() == 0) || time.hour() < calendar.startHour() ||
           (time.hour() == calendar.finishHour() && time.minute() > 0);
}

// What the row does not say.
void TaskSheet::complete(Staged &staged)
{
    KWTaskInfo &task = *staged.task;
    if (staged.id == 0)
        staged.id = m_ids.takeNext();
    task.ID = staged.id;
    if (task.Name.isEmpty())
        m_names.addNameless();
    if (task.Level < 1) {
        report(staged.row, QString(), text("the level is below 1"), text("level 1"));
        task.Level = 1;
    }
    if (task.Start == 0)
        task.Start = stored(KWClock::now().date().startOfDay(), StartOnWorkday);
    const bool isAfterStart = task.Finish > task.Start;
    // A finish at the beginning of a day is the end of the one before, which days off may move past the
    // start.
    staged.takesNoTime =
        staged.takesNoTime && (!isAfterStart || staged.finish.shownSecs <= staged.start.shownSecs);
    if (staged.takesNoTime) {
        // A milestone is as long as can be told apart from no time at all.
        task.Finish = worktime::clampSecs(qint64(task.Start) + 1);
    } else if (!isAfterStart) {
        constexpr bool hourClock = false;
        task.Finish = KWTaskCollection::addFinishOnDayOff(
            &m_document, worktime::clampSecs(qint64(task.Start) + LocalClock::secsPerDay), hourClock);
    }
    task.DurationSecs = KWTaskInfo::durationSecs(&m_document, task.Start, task.Finish, task.DurationUnits);
    staged.wantedEnd = m_wantedTags.size();
}

// ---- What comes of it -------------------------------------------------------------------------------------

void TaskSheet::arrange()
{
    std::stable_sort(m_tasks.begin(), m_tasks.end(),
                     [](const Staged &a, const Staged &b) { return a.row < b.row; });
    outline::LevelBuilder builder;
    for (Staged &staged : m_tasks)
        builder.add(*staged.task);
    for (Staged &staged : m_tasks)
        staged.task->Milestone = staged.takesNoTime && !staged.task->isParent();
    endWithMilestones();
}

// A summary may end with a milestone at the beginning of a day, where no finish is: as a finish that moment
// is the end of the day before, or moved behind days off. Such a summary takes over what its subtask has.
void TaskSheet::endWithMilestones()
{
    constexpr int secsPerMinute = 60;
    constexpr bool start = false;
    QHash<quint32, Staged *> summaries;
    for (Staged &staged : m_tasks) {
        const KWTaskInfo &task = *staged.task;
        if (!task.isParent() || staged.finish.shownSecs == 0)
            continue;
        const QDateTime shown = KWTaskInfo::showDateTime(&m_document, task.Finish, start);
        if (shown.toSecsSinceEpoch() / secsPerMinute != staged.finish.shownSecs / secsPerMinute)
            summaries.insert(task.ID, &staged);
    }
    // Subtasks stand below their summaries.
    for (auto staged = m_tasks.rbegin(); staged != m_tasks.rend() && !summaries.isEmpty(); ++staged) {
        Staged *const summary = summaries.value(staged->task->ParentID);
        if (!summary || summary->finish.shownSecs != staged->finish.shownSecs)
            continue;
        KWTaskInfo &task = *summary->task;
        task.Finish = staged->task->Finish;
        task.DurationSecs =
            KWTaskInfo::durationSecs(&m_document, task.Start, task.Finish, task.DurationUnits);
    }
}

QSet<QString> TaskSheet::summaryNames() const
{
    QSet<QString> names;
    for (const Staged &staged : m_tasks) {
        if (staged.task->isParent() && !staged.task->Name.isEmpty())
            names.insert(staged.task->Name.trimmed());
    }
    return names;
}

QList<KWTaskInfo *> TaskSheet::takeTasks()
{
    QList<KWTaskInfo *> tasks;
    tasks.reserve(int(m_tasks.size()));
    for (Staged &staged : m_tasks)
        tasks.append(staged.task.release());
    return tasks;
}

int TaskSheet::posOfTag(quint32 tag) const
{
    // Tag 1 is the row below the titles.
    const qint64 row = qint64(tag) + 1;
    const auto found =
        std::lower_bound(m_tasks.begin(), m_tasks.end(), row,
                         [](const Staged &staged, qint64 wanted) { return staged.row < wanted; });
    return found != m_tasks.end() && found->row == row ? int(found - m_tasks.begin()) : -1;
}

QList<KWTaskLink> TaskSheet::links() const
{
    QList<KWTaskLink> links;
    for (const Staged &staged : m_tasks) {
        for (std::size_t i = staged.wantedBegin; i < staged.wantedEnd; ++i) {
            const int pos = posOfTag(m_wantedTags[i]);
            if (pos < 0) {
                report(staged.row, QString(),
                       text("there is no task in row ") + QString::number(qint64(m_wantedTags[i]) + 1),
                       text("no predecessor"));
                continue;
            }
            KWTaskLink link;
            link.predecessor = m_tasks[std::size_t(pos)].id;
            link.successor = staged.id;
            links.append(link);
        }
    }
    return links;
}

void TaskSheet::reportRefused(const QList<KWTaskLink> &links) const
{
    const bool isAnyRefused = std::any_of(
        links.begin(), links.end(), [](const KWTaskLink &link) { return link.refusal != LinkRefusal::None; });
    if (!isAnyRefused)
        return;
    QHash<quint32, int> rowOfId;
    for (const Staged &staged : m_tasks)
        rowOfId.insert(staged.id, staged.row);
    for (const KWTaskLink &link : links) {
        if (link.refusal == LinkRefusal::None)
            continue;
        const bool isLoop = link.refusal == LinkRefusal::Loop || link.refusal == LinkRefusal::Self;
        report(rowOfId.value(link.successor), QString(),
               (isLoop ? text("it would wait for itself through row ")
                       : text("it cannot wait for its own summary or subtask in row ")) +
                   QString::number(rowOfId.value(link.predecessor)),
               text("no predecessor"));
    }
}
}
