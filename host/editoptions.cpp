// Editing the calendar, the options and the columns.
#include "edit.h"
#include "table/rowcolumndata.h"
#include "texts.h"
#include "writtencalendar.h"

namespace editverbs {

namespace {

// ---- Calendar -----------------------------------------------------------------------------------------

bool addException(Edit &edit, bool works)
{
    WorkingTime written;
    if (!writtencalendar::parseHoliday(edit.words.first(), written))
        return edit.refuse(t("'%1' is no date").arg(edit.words.first()),
                           t("write it as 2026-12-25 or 2026-12-24..2026-12-31"));
    const WorkingTime::Exception &exception = written.exceptions.front();
    return edit.take(edit.edits.addException({edit.words.value(1), exception.from, exception.to, works, {}}));
}

// ---- Options ------------------------------------------------------------------------------------------

bool readUnit(KWDocument &, const QString &text, PlanOptions &options)
{
    datetext::Duration one;
    if (!datetext::parseDuration(QLatin1Char('1') + text, one))
        return false;
    options.projectUnit = one.unit;
    return true;
}

template <std::optional<bool> PlanOptions::*member>
bool readFlag(KWDocument &, const QString &text, PlanOptions &options)
{
    options.*member = text == QLatin1String("yes");
    return *(options.*member) || text == QLatin1String("no");
}

template <typename Number, std::optional<Number> PlanOptions::*member, int least, int most>
bool readNumber(KWDocument &, const QString &text, PlanOptions &options)
{
    bool ok = false;
    const double number = text.toDouble(&ok);
    if (!ok || !(number >= least && number <= most))
        return false;
    options.*member = Number(number);
    return true;
}

template <std::optional<quint32> PlanOptions::*member>
bool readDate(KWDocument &document, const QString &text, PlanOptions &options)
{
    datetext::Moment moment;
    if (!datetext::parseMoment(text, moment))
        return false;
    options.*member = plan::startSecs(document, moment);
    return true;
}

// "week/day": the two units of the chart's head.
bool readScale(KWDocument &, const QString &text, PlanOptions &options)
{
    constexpr const char *names[] = {"year", "quarter", "month", "week", "day", "hour", "minute"};
    int units[2] = {-1, -1};
    const QStringList parts = text.split(QLatin1Char('/'));
    for (int part = 0; part < 2; ++part)
        for (int unit = 0; unit < int(std::size(names)); ++unit)
            if (parts.value(part) == QLatin1String(names[unit]))
                units[part] = unit;
    if (units[0] < 0 || units[0] > int(duration::smallestMajorUnit) || units[1] <= units[0])
        return false;
    options.majorUnit = quint32(units[0]);
    options.minorUnit = quint32(units[1]);
    return true;
}

struct OptionField
{
    const char *name;
    const char *value;
    bool (*read)(KWDocument &, const QString &, PlanOptions &);
    const char *meaning = nullptr; // of a value that stands for others
};

constexpr int most = 1000000000;

constexpr OptionField optionTable[] = {
    {"unit", "y|q|mon|w|d|h|min", readUnit},
    {"start", "DATE", readDate<&PlanOptions::startDate>, QT_TR_NOOP("a date such as 2026-02-28")},
    {"finish", "DATE", readDate<&PlanOptions::finishDate>, QT_TR_NOOP("a date such as 2026-02-28")},
    {"scale", "week/day", readScale},
    {"unit-width", "PIXELS", readNumber<qint32, &PlanOptions::unitWidth, 1, 10000>,
     QT_TR_NOOP("a number from 1 to 10,000")},
    {"auto-zoom", "yes|no", readFlag<&PlanOptions::autoZoom>},
    {"auto-progress", "yes|no", readFlag<&PlanOptions::autoProgress>},
    {"theme", "NUMBER", readNumber<qint32, &PlanOptions::theme, 0, 1000>,
     QT_TR_NOOP("a number from 0 to 1,000")},
    {"baseline-cost", "NUMBER", readNumber<double, &PlanOptions::baselineCost, -most, most>,
     QT_TR_NOOP("an amount such as 12000.50")},
};
}

bool setDays(Edit &edit)
{
    WorkingTime written;
    if (!writtencalendar::parseDays(edit.words.first(), written))
        return edit.refuse(t("'%1' are no weekdays").arg(edit.words.first()),
                           t("write it as Mon-Fri or Mon-Thu,Sat"));
    return edit.take(edit.edits.setWorkDays(written.week));
}

bool setHours(Edit &edit)
{
    WorkingTime written;
    if (!writtencalendar::parseHours(edit.words.first(), written))
        return edit.refuse(writtencalendar::hoursFault(edit.words.first()),
                           t("write it as 08:00-12:00,13:00-17:00"));
    QVector<DayHours> hours;
    for (const WorkingTime::Interval &interval : written.hours)
        hours.append({interval.startSecs, interval.finishSecs});
    return edit.take(edit.edits.setWorkHours(hours));
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
    return edit.take(edit.edits.removeException(moment.date));
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
    editline::Pairs pairs;
    if (!editline::pairs(edit.words, names, pairs, edit.fault))
        return false;
    PlanOptions options;
    for (const auto &[name, text] : pairs) {
        const OptionField &option = optionTable[names.indexOf(name)];
        if (!option.read(edit.document, text, options))
            return edit.refuse(
                t("'%1' is no value for '%2'").arg(text, name),
                t("possible: %1").arg(option.meaning ? t(option.meaning) : QLatin1String(option.value)));
    }
    return edit.take(edit.edits.setOptions(options));
}

bool setColumn(Edit &edit)
{
    const QString title = edit.words.first();
    const QString what = edit.words.at(1);
    const RowColumnData &table = *edit.document.rowColumnData();
    if (!table.getColumnDataByName(title)) {
        QStringList titles;
        for (const RowColumnData::ColumnData *each : table.columns())
            titles.append(each->title.value());
        return edit.refuse(t("no column '%1'").arg(title),
                           t("there are %1").arg(titles.join(QLatin1String(", "))));
    }
    ColumnValues values;
    bool isWidth = false;
    const double width = what.toDouble(&isWidth);
    if (isWidth)
        values.width = width;
    else if (what == QLatin1String("show") || what == QLatin1String("hide"))
        values.isHidden = what == QLatin1String("hide");
    const EditAnswer answer = edit.edits.setColumn(title, values);
    if ((!values.width && !values.isHidden) || !answer.isDone())
        return edit.refuse(t("'%1' is no value for a column").arg(what),
                           t("write show, hide or a width in pixels"));
    return edit.take(answer);
}
}
