#include "exchange/tasksheet.h"
#include "engine/record/taskindex.h"
#include "engine/text/columntypes.h"
#include "engine/time/duration.h"
#include "format/dataformat.h"
#include "model/kwdocument.h"
#include "support/kwclock.h"
#include "support/said.h"
#include <QSet>
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
constexpr qint64 maxLinkUnits = 32 << 20;
constexpr std::size_t maxLinks = 1000000;
constexpr int maxHyperlinks = 1000000;
constexpr int deepestLevel = 1000;

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

// The numbers of "1.2.3", at most as many as there are levels; 0 when the text is no such code.
int levelOfCode(const QString &code)
{
    int level = 1;
    bool isDigitBefore = false;
    for (const QChar sign : code.trimmed()) {
        const bool isPlainDigit = sign >= QLatin1Char('0') && sign <= QLatin1Char('9');
        if (isPlainDigit || sign.isDigit()) {
            isDigitBefore = true;
        } else if (sign == QLatin1Char('.') && isDigitBefore) {
            ++level;
            isDigitBefore = false;
        } else {
            return 0;
        }
    }
    // "1." is level 1.
    return isDigitBefore ? level : level - 1;
}

bool isBlank(const Cell &cell)
{
    return std::all_of(cell.text.begin(), cell.text.end(), [](QChar sign) { return sign.isSpace(); });
}

bool isYes(const Cell &cell)
{
    static const QStringList noes = {QString(),
                                     QStringLiteral("0"),
                                     QStringLiteral("no"),
                                     QStringLiteral("n"),
                                     QStringLiteral("false"),
                                     QStringLiteral("nein"),
                                     QString::fromUtf8("否")};
    return !noes.contains(cell.text.trimmed().toLower());
}

// The field of a column of moments.
std::optional<staged::MomentField> momentField(int type)
{
    switch (type) {
    case columntypes::Start:
        return staged::Start;
    case columntypes::Finish:
        return staged::Finish;
    case 14:
        return staged::LateStart;
    case 15:
        return staged::LateFinish;
    case 20:
        return staged::BaseStart;
    case 21:
        return staged::BaseFinish;
    default:
        return std::nullopt;
    }
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

// ---- Rows -------------------------------------------------------------------------------------------------

TaskSheet::TaskSheet(const sheetrows::Reading &reading, Findings *findings, const QString &name)
    : Reader(exceltitles::TaskSheet, reading, findings, name)
    , m_unitNames(unitNames())
{
}

TaskSheet::~TaskSheet() = default;

void TaskSheet::addRow(const sheetrows::Row &row, const std::vector<KnownCell> &cells)
{
    staged::Task staged;
    staged.number = row.number;
    staged.row = row.line;
    staged.task = std::make_unique<KWTaskInfo>();
    for (const KnownCell &known : cells)
        apply(known, staged);
    KWTaskInfo &task = *staged.task;
    const bool isOwnLevel = hasField(columntypes::Level) && task.Level < 1;
    m_hasLevelZero = m_hasLevelZero || (isOwnLevel && task.Level == 0);
    if (isOwnLevel && (reading().isExact || task.Level < 0)) {
        report(row.line, QString(), text("the level is below 1"), text("level 1"));
        task.Level = 1;
    }
    task.Progress = KWTaskInfo::indexFromPercent(task.Percent);
    staged.hasPlace = !hasField(columntypes::Id) || !hasField(columntypes::Start) || staged.id != 0 ||
                      staged.moments[staged::Start].isGiven() || !staged.length;
    m_tasks.push_back(std::move(staged));
}

bool TaskSheet::isFieldRead(int field) const
{
    const ColumnType *type = columntypes::find(field);
    return type ? type->import != Import::None
                : field == titletable::OutlineCode || field == titletable::MilestoneFlag;
}

void TaskSheet::apply(const KnownCell &known, staged::Task &staged)
{
    const Cell &cell = *known.cell;
    KWTaskInfo &task = *staged.task;
    if (known.field == titletable::OutlineCode) {
        staged.code = cell.text.trimmed();
        return;
    }
    if (known.field == titletable::MilestoneFlag) {
        staged.isMilestone = isYes(cell);
        return;
    }
    const ColumnType *type = columntypes::find(known.field);
    if (!type)
        return;
    switch (type->import) {
    case Import::None:
        return;
    case Import::Text:
        columntypes::setText(task, type->field, cell.text);
        return;
    case Import::OwnId:
        readId(cell, staged);
        return;
    case Import::OwnName:
        if (task.Name.isEmpty())
            task.Name = cell.text;
        return;
    case Import::StartOnWorkday:
    case Import::StartAsShown:
    case Import::Finish:
        if (const auto field = momentField(known.field))
            readMoment(known, *field, staged);
        return;
    case Import::Duration:
        readLength(known, staged);
        return;
    case Import::Hyperlinks:
        readHyperlinks(cell, staged);
        return;
    case Import::RowTags:
        readPredecessors(cell, staged);
        return;
    case Import::Percent:
        readPercent(cell, staged);
        return;
    case Import::Whole:
    case Import::Number:
    case Import::NumberText:
        readNumber(known, staged);
        return;
    }
}

void TaskSheet::readId(const Cell &cell, staged::Task &staged)
{
    const qint64 id = cellvalues::whole(cell, reading().comma).value_or(0);
    // A second column of that title changes nothing any more.
    if (staged.id != 0)
        return;
    if (id > 0 && id <= std::numeric_limits<quint32>::max())
        staged.id = quint32(id);
    else if (!isBlank(cell))
        refuse(staged.row, &cell, text("%1 is no ID"), text("the next free ID"));
}

void TaskSheet::readNumber(const KnownCell &known, staged::Task &staged)
{
    const ColumnType &type = *columntypes::find(known.field);
    const Cell &cell = *known.cell;
    if (isBlank(cell))
        return;
    const std::optional<double> value = cellvalues::number(cell, reading().comma);
    const bool isOutside =
        known.field == columntypes::Level && value && !reading().isExact && *value > deepestLevel;
    if (!value || isOutside) {
        refuse(staged.row, &cell, isOutside ? text("%1 is no level from 1 to 1000") : text("%1 is no number"),
               text("left out"));
        return;
    }
    reportComma(staged.row, cell, *value);
    if (type.import == Import::NumberText)
        columntypes::setText(
            *staged.task, type.field,
            cell.isNumber ? cell.text
                          : DataFormat::numberStringFromString(cellvalues::withPlainDigits(cell.text), 0));
    else
        columntypes::setNumber(*staged.task, type.field,
                               type.import == Import::Whole ? std::trunc(*value) : *value);
}

void TaskSheet::readPercent(const Cell &cell, staged::Task &staged)
{
    if (isBlank(cell))
        return;
    std::optional<double> value = cellvalues::fraction(cell, reading().comma);
    if (!value) {
        refuse(staged.row, &cell, text("%1 is no percentage"), text("left out"));
        return;
    }
    const bool isPlain = !cellvalues::hasPercentSign(cell);
    if (isPlain && (!reading().isExact || reading().plainPercent)) {
        m_plainPercents.push_back({placeOfNewTask(), *value});
        return;
    }
    reportComma(staged.row, cell, isPlain ? *value : *value * 100);
    staged.task->setPercent(*value);
    if (*value < 0 || *value > 1)
        report(staged.row, &cell, text("%1 is no percentage from 0 to 100"),
               text("read as %1").arg(QString::number(staged.task->Percent * 100) + QLatin1Char('%')));
}

void TaskSheet::readLength(const KnownCell &known, staged::Task &staged)
{
    const Cell &cell = *known.cell;
    if (isBlank(cell))
        return;
    // Plans have few different lengths.
    QHash<QString, std::optional<cellvalues::Length>> &reads = m_lengths[known.title->bareUnit];
    auto found = reads.constFind(cell.text);
    if (found == reads.constEnd())
        found = reads.insert(cell.text, cellvalues::length(cell.text, m_unitNames, known.title->bareUnit));
    const std::optional<cellvalues::Length> &length = *found;
    if (!length) {
        refuse(staged.row, &cell, text("%1 is no length of time"), text("left out"));
        return;
    }
    staged.length = staged::Length{length->value, length->unit};
    if (!length->isUnitKnown)
        refuse(staged.row, &cell, text("%1 has no known unit of time"), text("counted in days"));
}

void TaskSheet::readHyperlinks(const Cell &cell, staged::Task &staged)
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

// ---- Predecessors -----------------------------------------------------------------------------------------

// How a predecessor is written: a number is a row or an ID, as the kind of file has it; "#5" an ID; "1.2" an
// outline code; "Paint the \"wall\"" in quotes a name that no other task has. "FS" may follow a number or a
// code: links finish to start and have no lag.
bool TaskSheet::readPredecessor(const QString &part, QString &refusal)
{
    const int task = placeOfNewTask();
    const QChar quote = part.at(0);
    if (quote == QLatin1Char('"') || quote == QLatin1Char('\'')) {
        const bool isClosed = part.size() > 2 && part.at(part.size() - 1) == quote;
        if (!isClosed) {
            refusal = text("%1 has no closing quote");
            return false;
        }
        m_wantedTexts.push_back({task, part.mid(1, part.size() - 2).trimmed(), false});
        return true;
    }
    const bool isId = quote == QLatin1Char('#');
    int end = isId ? 1 : 0;
    bool hasDot = false;
    while (end < part.size() && (part.at(end).isDigit() || (!isId && part.at(end) == QLatin1Char('.')))) {
        hasDot = hasDot || part.at(end) == QLatin1Char('.');
        ++end;
    }
    const QString number = part.mid(isId ? 1 : 0, end - (isId ? 1 : 0));
    const QString kind = part.mid(end).trimmed().toUpper();
    if (number.isEmpty()) {
        refusal = text("%1 is no task");
        return false;
    }
    if (!kind.isEmpty() && kind != QLatin1String("FS")) {
        static const QStringList kinds = {QStringLiteral("FS"), QStringLiteral("SS"), QStringLiteral("FF"),
                                          QStringLiteral("SF")};
        const bool isLink = kinds.contains(kind.left(2)) || kind.startsWith(QLatin1Char('+')) ||
                            kind.startsWith(QLatin1Char('-'));
        refusal = isLink ? text("%1 is no link from finish to start without lag") : text("%1 is no task");
        return false;
    }
    if (hasDot && hasField(titletable::OutlineCode)) {
        m_wantedTexts.push_back({task, cellvalues::withPlainDigits(number), true});
        return true;
    }
    bool isNumber = false;
    const quint32 value = cellvalues::withPlainDigits(number).toUInt(&isNumber);
    if (!isNumber || value == 0) {
        refusal = hasDot && !reading().isExact ? text("%1 is an outline code, and no column has these")
                                               : text("%1 is no task");
        return false;
    }
    m_wanted.push_back({task, value, isId || (reading().linksById && hasField(columntypes::Id))});
    return true;
}

void TaskSheet::readPredecessors(const Cell &cell, staged::Task &staged)
{
    m_linkUnits += cell.text.size();
    if (m_linkUnits > maxLinkUnits || m_wanted.size() + m_wantedTexts.size() >= maxLinks) {
        report(staged.row, titleOf(cell), text("there are too many predecessors"), text("left out"));
        return;
    }
    QString list = cell.text;
    // Some programs write 3 as "3.0" when it stands alone.
    if (cell.isNumber && !hasField(titletable::OutlineCode))
        list = QString::number(cellvalues::whole(cell).value_or(0));
    const std::size_t first = m_wanted.size();
    if (readNumbers(list)) {
        leaveOutRepeated(first, cell, staged);
        return;
    }
    QChar quote;
    int begin = 0;
    for (int at = 0; at <= list.size(); ++at) {
        const QChar sign = at < list.size() ? list.at(at) : QChar(QLatin1Char(';'));
        const bool isQuote = sign == QLatin1Char('"') || sign == QLatin1Char('\'');
        if (at < list.size() && isQuote &&
            (quote.isNull() ? list.mid(begin, at - begin).trimmed().isEmpty() : sign == quote)) {
            quote = quote.isNull() ? sign : QChar();
            continue;
        }
        const bool isEnd = sign == QLatin1Char(';') || sign == QLatin1Char(',') || sign == QChar(0xFF1B) ||
                           sign == QChar(0xFF0C) || sign == QLatin1Char('\n');
        if (at < list.size() && (!isEnd || !quote.isNull()))
            continue;
        const QString part = list.mid(begin, at - begin).trimmed();
        begin = at + 1;
        QString refusal;
        if (!part.isEmpty() && !readPredecessor(part, refusal)) {
            Cell named = cell;
            named.text = part;
            report(staged.row, &named, refusal, text("no predecessor"));
            ++m_refusedLinks;
        }
    }
    leaveOutRepeated(first, cell, staged);
}

// A list of plain numbers, as nearly all are. False, and nothing read, for any other.
bool TaskSheet::readNumbers(const QString &list)
{
    constexpr int mostDigits = 9;
    const std::size_t first = m_wanted.size();
    const bool isId = reading().linksById && hasField(columntypes::Id);
    const QChar *at = list.constData();
    const QChar *const end = at + list.size();
    while (at != end) {
        quint32 number = 0;
        int digits = 0;
        for (; at != end && *at >= QLatin1Char('0') && *at <= QLatin1Char('9') && digits < mostDigits; ++at) {
            number = number * 10 + quint32(at->unicode() - '0');
            ++digits;
        }
        const bool isSeparator = at != end && (*at == QLatin1Char(';') || *at == QLatin1Char(','));
        if (number == 0 || (at != end && !isSeparator)) {
            m_wanted.resize(first);
            return false;
        }
        m_wanted.push_back({placeOfNewTask(), number, isId});
        at += isSeparator;
    }
    return true;
}

// Named once, however often; in the order of the file.
void TaskSheet::leaveOutRepeated(std::size_t first, const Cell &cell, const staged::Task &staged)
{
    const auto begin = m_wanted.begin() + std::ptrdiff_t(first);
    // Most lists ascend.
    const bool ascends = std::adjacent_find(begin, m_wanted.end(), [](const Wanted &a, const Wanted &b) {
                             return a.number >= b.number;
                         }) == m_wanted.end();
    if (ascends)
        return;
    QSet<quint64> named;
    const auto isRepeated = [&named](const Wanted &wanted) {
        const quint64 key = quint64(wanted.number) * 2 + (wanted.isId ? 1 : 0);
        const bool isKnown = named.contains(key);
        named.insert(key);
        return isKnown;
    };
    const auto end = std::remove_if(begin, m_wanted.end(), isRepeated);
    if (end != m_wanted.end() && !reading().isExact)
        report(staged.row, &cell, text("%1 names a predecessor twice"), text("taken once"));
    m_wanted.erase(end, m_wanted.end());
}

// ---- Moments ----------------------------------------------------------------------------------------------

// Plans name the same moments again and again.
void TaskSheet::readMoment(const KnownCell &known, staged::MomentField field, staged::Task &staged)
{
    const Cell &cell = *known.cell;
    if (isBlank(cell))
        return;
    if (!cell.isNumber) {
        if (const std::optional<cellvalues::Moment> iso = cellvalues::plainIso(cell.text)) {
            staged.moments[field] = iso->shown;
            return;
        }
    }
    QHash<QString, Read> &reads = m_moments[cell.isNumber ? 1 : 0];
    auto found = reads.constFind(cell.text);
    if (found == reads.constEnd()) {
        const std::optional<cellvalues::Moment> moment = cellvalues::moment(cell, reading().is1904);
        found = reads.insert(cell.text, {moment.has_value(), moment.value_or(cellvalues::Moment())});
    }
    if (!found->isSound) {
        refuse(staged.row, &cell, text("%1 is no date from 1970 to 2105"),
               reading().isExact ? KW_TEXT("today") : text("left out"));
        if (reading().isExact)
            staged.moments[field] = shownmoment::Moment{LocalClock::dayOf(KWClock::now().date()), 0, false};
        return;
    }
    staged.moments[field] = found->moment.shown;
    if (found->moment.isEither)
        m_eitherDates.push_back({placeOfNewTask(), field, found->moment});
}

// A column whose dates are all of the form 3/4/2026 has the day first where one of them can be nothing else.
void TaskSheet::settleDates()
{
    for (int field = 0; field < staged::momentFields; ++field) {
        bool isDayFirst = false;
        bool isMonthFirst = false;
        const EitherDate *undecided = nullptr;
        for (const EitherDate &date : m_eitherDates) {
            if (date.field != field)
                continue;
            isDayFirst = isDayFirst || !cellvalues::withMonthFirst(date.moment);
            isMonthFirst = isMonthFirst || !cellvalues::withDayFirst(date.moment);
            if (!undecided && date.moment.first != date.moment.second)
                undecided = &date;
        }
        if (undecided && isDayFirst == isMonthFirst)
            report(m_tasks[std::size_t(undecided->task)].row, titleOfDate(field),
                   isDayFirst ? text("some of its dates have the day first, others the month")
                              : text("nothing says whether day or month stand first in its dates"),
                   text("the month first wherever that is a date"));
        if (!isDayFirst || isMonthFirst)
            continue;
        for (const EitherDate &date : m_eitherDates) {
            if (date.field == field)
                m_tasks[std::size_t(date.task)].moments[std::size_t(field)] =
                    cellvalues::withDayFirst(date.moment)->shown;
        }
    }
}

QString TaskSheet::titleOfDate(int field) const
{
    for (int type = 0; type < columntypes::count; ++type) {
        if (momentField(type) == staged::MomentField(field))
            return titleOfField(type);
    }
    return QString();
}

// ---- What only the whole sheet decides --------------------------------------------------------------------

// Numbers without a sign: percentages where any is above 1 or the kind of file has them so, else fractions.
void TaskSheet::settlePercent()
{
    const bool isAnyAbove = std::any_of(m_plainPercents.begin(), m_plainPercents.end(),
                                        [](const PlainPercent &percent) { return percent.value > 1; });
    const auto between =
        std::find_if(m_plainPercents.begin(), m_plainPercents.end(),
                     [](const PlainPercent &percent) { return percent.value > 0 && percent.value <= 1; });
    const bool arePercentages = isAnyAbove || reading().plainPercent;
    if (reading().plainPercent && !isAnyAbove && between != m_plainPercents.end() && between->value < 1)
        report(m_tasks[std::size_t(between->task)].row, titleOfField(columntypes::Percent),
               text("its numbers may be fractions"), text("read as percentages"));
    for (const PlainPercent &percent : m_plainPercents) {
        const staged::Task &staged = m_tasks[std::size_t(percent.task)];
        const double value = arePercentages ? percent.value / 100 : percent.value;
        staged.task->setPercent(value);
        staged.task->Progress = KWTaskInfo::indexFromPercent(staged.task->Percent);
        if (value < 0 || value > 1)
            report(staged.row, titleOfField(columntypes::Percent),
                   text("%1 is no percentage from 0 to 100").arg(percent.value),
                   text("read as %1").arg(QString::number(staged.task->Percent * 100) + QLatin1Char('%')));
    }
}

// Outline codes decide where every row has one; levels that begin at 0 move up by one.
void TaskSheet::settleLevels()
{
    std::vector<int> byCode; // as far as every row has one
    if (hasField(titletable::OutlineCode)) {
        byCode.reserve(m_tasks.size());
        for (const staged::Task &staged : m_tasks) {
            const int level = levelOfCode(staged.code);
            if (level < 1 || level > deepestLevel)
                break;
            byCode.push_back(level);
        }
    }
    const bool isByCode = hasField(titletable::OutlineCode) && byCode.size() == m_tasks.size();
    int before = 0;
    for (std::size_t i = 0; i < m_tasks.size(); ++i) {
        const staged::Task &staged = m_tasks[i];
        KWTaskInfo &task = *staged.task;
        if (isByCode)
            task.Level = byCode[i];
        else if (m_hasLevelZero && !reading().isExact)
            ++task.Level;
        if (task.Level > before + 1 && !reading().isExact)
            report(staged.row, QString(), text("level %1 follows level %2").arg(task.Level).arg(before),
                   text("a task is one level below its summary"));
        before = task.Level;
    }
}

// Files may hold their rows in any order.
void TaskSheet::sortRows()
{
    const auto by = [](const staged::Task &a, const staged::Task &b) { return a.number < b.number; };
    if (std::is_sorted(m_tasks.begin(), m_tasks.end(), by))
        return;
    std::vector<int> order(m_tasks.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = int(i);
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
        return m_tasks[std::size_t(a)].number < m_tasks[std::size_t(b)].number;
    });
    std::vector<staged::Task> sorted;
    std::vector<int> placeOf(m_tasks.size());
    for (const int from : order) {
        placeOf[std::size_t(from)] = int(sorted.size());
        sorted.push_back(std::move(m_tasks[std::size_t(from)]));
    }
    m_tasks.swap(sorted);
    for (Wanted &wanted : m_wanted)
        wanted.task = placeOf[std::size_t(wanted.task)];
    for (WantedText &wanted : m_wantedTexts)
        wanted.task = placeOf[std::size_t(wanted.task)];
    std::stable_sort(m_wanted.begin(), m_wanted.end(),
                     [](const Wanted &a, const Wanted &b) { return a.task < b.task; });
}

void TaskSheet::findLinks(staged::Plan &plan)
{
    constexpr int several = -2;
    const auto add = [&](QHash<QString, int> &places, const QString &key, int place) {
        const auto found = places.find(key);
        if (found == places.end())
            places.insert(key, place);
        else
            *found = several;
    };
    TaskIndex placeOfId; // the first of an ID that stands twice
    QHash<QString, int> placeOfCode, placeOfName;
    const bool hasIds =
        std::any_of(m_wanted.begin(), m_wanted.end(), [](const Wanted &wanted) { return wanted.isId; });
    for (std::size_t i = 0; i < m_tasks.size(); ++i) {
        if (hasIds && m_tasks[i].id != 0)
            placeOfId.add(m_tasks[i].id, int(i));
        if (!m_wantedTexts.empty()) {
            QString code = m_tasks[i].code;
            add(placeOfCode, code.endsWith(QLatin1Char('.')) ? code.chopped(1) : code, int(i));
            add(placeOfName, m_tasks[i].task->Name.trimmed(), int(i));
        }
    }
    const auto refuse = [&](int task, const QString &what) {
        report(m_tasks[std::size_t(task)].row, QString(), what, text("no predecessor"));
        ++m_refusedLinks;
    };
    for (const Wanted &wanted : m_wanted) {
        int place = -1;
        // The first row stands below the titles.
        const qint64 row = qint64(wanted.number) + 1;
        if (wanted.isId) {
            place = placeOfId.posOf(wanted.number);
        } else {
            const auto found = std::lower_bound(
                m_tasks.begin(), m_tasks.end(), row,
                [](const staged::Task &staged, qint64 number) { return staged.number < number; });
            if (found != m_tasks.end() && found->number == row)
                place = int(found - m_tasks.begin());
        }
        if (place >= 0)
            plan.links.push_back({place, wanted.task});
        else
            refuse(wanted.task, wanted.isId ? text("there is no task with the ID %1").arg(wanted.number)
                                : reading().linksById ? text("there is no task %1").arg(wanted.number)
                                                      : text("there is no task in row %1").arg(row));
    }
    for (const WantedText &wanted : m_wantedTexts) {
        const QString key =
            wanted.isCode && wanted.text.endsWith(QLatin1Char('.')) ? wanted.text.chopped(1) : wanted.text;
        const int place = (wanted.isCode ? placeOfCode : placeOfName).value(key, -1);
        if (place >= 0)
            plan.links.push_back({place, wanted.task});
        else
            refuse(wanted.task,
                   (place == several ? text("there are several tasks %1") : text("there is no task %1"))
                       .arg(wanted.text));
    }
    plan.refusedLinks = m_refusedLinks;
}

bool TaskSheet::hasTimes() const
{
    return hasField(columntypes::Start) || hasField(columntypes::Finish) || hasField(columntypes::Duration);
}

void TaskSheet::finish(staged::Plan &plan)
{
    settleDates();
    settlePercent();
    sortRows();
    settleLevels();
    findLinks(plan);
    if (!hasTimes() && !m_tasks.empty())
        report(1, QString(), text("there are neither dates nor lengths"), text("all tasks are one day long"));
    plan.hasDates = hasTimes();
    m_moments[0].clear();
    m_moments[1].clear();
    m_lengths.clear();
    plan.tasks = std::move(m_tasks);
}
}
