// Editing the calendar, the options and the columns.
#include "edit.h"
#include "model/kwtaskinfo.h"
#include "resources/assignmentbatch.h"
#include "schedule/kwcalendar.h"
#include "schedule/kwtaskcollection.h"
#include "table/rowcolumndata.h"
#include "texts.h"

namespace editverbs {

namespace {

// ---- Calendar ---------------------------------------------------------------------------------------------

// Tasks keep their length in working time and move off the days off.
template <typename Change>
bool changeCalendar(Edit &edit, Change change)
{
    KWDocument &document = edit.document;
    std::vector<double> lengths;
    for (const KWTaskInfo *task : document.taskList())
        lengths.push_back(KWTaskInfo::getDurValueByTaskInfo(&document, task));
    change();
    if (!KWTaskInfo::isHaveWorkDay(&document) ||
        KWTaskInfo::startOrFinishHour(&document, false) <= KWTaskInfo::startOrFinishHour(&document, true))
        return edit.refuse(t("no working time is left"), t("at least one weekday and one hour must work"));
    AssignmentBatch batch(document);
    for (int pos = 0; pos < document.taskCount(); ++pos) {
        KWTaskInfo *task = document.getTaskInfoAt(pos);
        if (task->isParent())
            continue;
        task->Start = KWTaskCollection::moveForwarstartOnDayOff(&document, task->Start, false);
        const quint32 finish =
            task->Milestone ? 0
                            : KWTaskInfo::backwardsDateTime(&document, task->Start, lengths[std::size_t(pos)],
                                                            task->DurationUnits);
        task->Finish = qMax(finish, task->Start + 1);
        task->DurationSecs =
            KWTaskInfo::durationSecs(&document, task->Start, task->Finish, task->DurationUnits);
        if (!task->isHaveResource())
            continue;
        task->updateResourceWorkSecs(&document);
        batch.updateCostAndWork(*task);
    }
    KWTaskCollection *collection = document.taskCollection();
    collection->updateOptionTaskTime();
    collection->pushAllSuccessors();
    collection->updateOptionTaskTime();
    document.updateAllParentPercent();
    return true;
}

bool addException(Edit &edit, bool works)
{
    WorkingTime written;
    if (!workingtime::parseHoliday(edit.words.first(), written))
        return edit.refuse(t("'%1' is no date").arg(edit.words.first()),
                           t("write it as 2026-12-25 or 2026-12-24..2026-12-31"));
    return changeCalendar(edit, [&] {
        auto *calendar = new KWCalendar;
        calendar->name = edit.words.value(1);
        calendar->startDate = written.exceptions.front().from;
        calendar->finishDate = written.exceptions.front().to;
        calendar->isException = true;
        calendar->isWork = works;
        edit.document.calendars.prepend(calendar); // the first one that covers a date decides
    });
}

// ---- Options ----------------------------------------------------------------------------------------------

bool readUnit(const QString &text, quint32 &unit)
{
    datetext::Duration one;
    if (!datetext::parseDuration(QLatin1Char('1') + text, one))
        return false;
    unit = one.unit;
    return true;
}

template <bool KWDocument::*member>
bool setFlag(KWDocument &document, const QString &text)
{
    document.*member = text == QLatin1String("yes");
    return document.*member || text == QLatin1String("no");
}

template <typename Number, Number KWDocument::*member, int least, int most>
bool setNumber(KWDocument &document, const QString &text)
{
    bool ok = false;
    const double number = text.toDouble(&ok);
    if (!ok || !(number >= least && number <= most))
        return false;
    document.*member = Number(number);
    return true;
}

template <quint32 KWDocument::*member>
bool setDate(KWDocument &document, const QString &text)
{
    datetext::Moment moment;
    if (!datetext::parseMoment(text, moment))
        return false;
    document.*member = plan::startSecs(document, moment);
    return true;
}

// "week/day": the two units of the chart's head. The smaller one is stored as its distance from the other.
bool setScale(KWDocument &document, const QString &text)
{
    constexpr const char *names[] = {"year", "quarter", "month", "week", "day", "hour", "minute"};
    constexpr int greatestMajor = 3;
    int units[2] = {-1, -1};
    const QStringList parts = text.split(QLatin1Char('/'));
    for (int part = 0; part < 2; ++part)
        for (int unit = 0; unit < int(std::size(names)); ++unit)
            if (parts.value(part) == QLatin1String(names[unit]))
                units[part] = unit;
    if (units[0] < 0 || units[0] > greatestMajor || units[1] <= units[0])
        return false;
    document.MajorUnit = quint32(units[0]);
    document.MinorUnit = quint32(units[1] - units[0] - 1);
    return true;
}

struct OptionField
{
    const char *name;
    const char *value;
    bool (*set)(KWDocument &, const QString &);
};

constexpr int most = 1000000000;

constexpr OptionField optionTable[] = {
    {"unit", "y|q|mon|w|d|h|min",
     [](KWDocument &document, const QString &text) { return readUnit(text, document.ProjectUnit); }},
    {"start", "DATE", setDate<&KWDocument::StartDate>},
    {"finish", "DATE", setDate<&KWDocument::FinishDate>},
    {"scale", "week/day", setScale},
    {"unit-width", "PIXELS", setNumber<qint32, &KWDocument::UnitWidth, 1, 10000>},
    {"auto-zoom", "yes|no", setFlag<&KWDocument::AutoZoom>},
    {"auto-progress", "yes|no", setFlag<&KWDocument::Auto>},
    {"theme", "NUMBER", setNumber<qint32, &KWDocument::ThemeIndex, 0, 1000>},
    {"baseline-cost", "NUMBER", setNumber<double, &KWDocument::BaselineCost, -most, most>},
};
}

bool setDays(Edit &edit)
{
    WorkingTime written;
    if (!workingtime::parseDays(edit.words.first(), written))
        return edit.refuse(t("'%1' are no weekdays").arg(edit.words.first()),
                           t("write it as Mon-Fri or Mon-Thu,Sat"));
    return changeCalendar(
        edit, [&] { std::copy(written.week.begin(), written.week.end(), edit.document.WorkDay); });
}

bool setHours(Edit &edit)
{
    WorkingTime written;
    if (!workingtime::parseHours(edit.words.first(), written))
        return edit.refuse(t("'%1' are no working hours").arg(edit.words.first()),
                           t("write it as 08:00-12:00,13:00-17:00"));
    return changeCalendar(edit, [&] {
        qDeleteAll(edit.document.workTimes);
        edit.document.workTimes.clear();
        for (const WorkingTime::Interval &interval : written.hours)
            edit.document.workTimes.append(
                new KWDayTime(quint32(interval.startSecs), quint32(interval.finishSecs)));
    });
}

bool addHoliday(Edit &edit)
{
    return addException(edit, false);
}

bool addWorkday(Edit &edit)
{
    return addException(edit, true);
}

bool removeException(Edit &edit)
{
    datetext::Moment moment;
    if (!datetext::parseMoment(edit.words.first(), moment))
        return edit.refuse(t("'%1' is not a date").arg(edit.words.first()), t("write it as 2026-02-28"));
    QList<KWCalendar *> &calendars = edit.document.calendars;
    const QDate date = moment.when.date();
    for (int i = 0; i < calendars.size(); ++i) {
        const KWCalendar *calendar = calendars.at(i);
        if (!calendar->isException || date < calendar->startDate || date > calendar->finishDate)
            continue;
        return changeCalendar(edit, [&] { delete calendars.takeAt(i); });
    }
    return edit.refuse(t("no holiday or workday holds %1").arg(date.toString(Qt::ISODate)));
}

QString optionsHelp()
{
    QStringList texts;
    for (const OptionField &option : optionTable)
        texts.append(QLatin1String(option.name) + QLatin1Char('=') + QLatin1String(option.value));
    return texts.join(QLatin1Char(' '));
}

bool setOptions(Edit &edit)
{
    QStringList names;
    for (const OptionField &option : optionTable)
        names.append(QLatin1String(option.name));
    editline::Pairs values;
    if (!editline::pairs(edit.words, names, values, edit.fault))
        return false;
    for (const auto &[name, value] : values) {
        const OptionField &option = optionTable[names.indexOf(name)];
        if (!option.set(edit.document, value))
            return edit.refuse(t("'%1' is no value for '%2'").arg(value, name),
                               t("possible: %1").arg(QLatin1String(option.value)));
    }
    edit.document.taskCollection()->updateRageAndTaskPoint();
    return true;
}

bool setColumn(Edit &edit)
{
    RowColumnData *table = edit.document.rowColumnData();
    RowColumnData::ColumnData *column = table->getColumnDataByName(edit.words.first());
    if (!column) {
        QStringList titles;
        for (const RowColumnData::ColumnData *each : table->columns())
            titles.append(each->title.value());
        return edit.refuse(t("no column '%1'").arg(edit.words.first()),
                           t("there are %1").arg(titles.join(QLatin1String(", "))));
    }
    constexpr double widest = 10000;
    const QString what = edit.words.at(1);
    bool isWidth = false;
    const double width = what.toDouble(&isWidth);
    if (isWidth && width > 0 && width <= widest)
        column->width = width;
    else if (what == QLatin1String("show") || what == QLatin1String("hide"))
        column->isHide = what == QLatin1String("hide");
    else
        return edit.refuse(t("'%1' is no value for a column").arg(what),
                           t("write show, hide or a width in pixels"));
    return true;
}
}
