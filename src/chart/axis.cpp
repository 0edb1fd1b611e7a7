#include "chart/axis.h"
#include <QStringList>
#include <algorithm>
#include <cmath>

namespace chart {

namespace {

constexpr int Decade = -1; // above the years, for the head alone
constexpr int minutesPerHour = 60;

// Where a unit begins: a day and, on an axis below the day, minutes of its working band.
struct Tick
{
    int day = 0;
    int minute = 0;
};

int bandMinutes(const Axis &axis)
{
    return std::max(1, axis.finishHour - axis.startHour) * minutesPerHour;
}

double pixelsPerMinute(const Axis &axis)
{
    return axis.minor == Minute ? axis.unitWidth : axis.minor == Hour ? axis.unitWidth / minutesPerHour : 0;
}

double xOf(const Axis &axis, const Tick &tick)
{
    return axis.xOfDay(tick.day) + tick.minute * pixelsPerMinute(axis);
}

// The last day whose left edge is at or before x.
int dayAt(const Axis &axis, double x)
{
    int first = axis.firstDay, last = axis.lastDay;
    while (first < last) {
        const int middle = first + (last - first + 1) / 2;
        if (axis.xOfDay(middle) <= x)
            first = middle;
        else
            last = middle - 1;
    }
    return first;
}

QDate unitStart(const QDate &date, int unit)
{
    switch (unit) {
    case Decade:
        return QDate(date.year() - date.year() % 10, 1, 1);
    case Year:
        return QDate(date.year(), 1, 1);
    case Quarter:
        return QDate(date.year(), (date.month() - 1) / 3 * 3 + 1, 1);
    case Month:
        return QDate(date.year(), date.month(), 1);
    case Week:
        return date.addDays(1 - date.dayOfWeek());
    default:
        return date;
    }
}

QDate unitAfter(const QDate &start, int unit)
{
    switch (unit) {
    case Decade:
        return start.addYears(10);
    case Year:
        return start.addYears(1);
    case Quarter:
        return start.addMonths(3);
    case Month:
        return start.addMonths(1);
    case Week:
        return start.addDays(7);
    default:
        return start.addDays(1);
    }
}

Tick tickAt(const Axis &axis, int unit, double x)
{
    const int day = dayAt(axis, x);
    if (unit <= Day)
        return {Axis::dayOf(unitStart(Axis::dateOf(day), unit)), 0};
    const double perMinute = pixelsPerMinute(axis);
    const int step = unit == Hour ? minutesPerHour : 1;
    const int minute = perMinute > 0 ? int((x - axis.xOfDay(day)) / perMinute) : 0;
    return {day, std::clamp(minute, 0, bandMinutes(axis) - 1) / step * step};
}

Tick tickAfter(const Axis &axis, int unit, const Tick &tick)
{
    if (unit <= Day)
        return {Axis::dayOf(unitAfter(Axis::dateOf(tick.day), unit)), 0};
    const int minute = tick.minute + (unit == Hour ? minutesPerHour : 1);
    return minute < bandMinutes(axis) ? Tick{tick.day, minute} : Tick{tick.day + 1, 0};
}

// How narrow a unit can be.
double leastPixels(const Axis &axis, int unit)
{
    static constexpr int fewestDays[] = {365, 90, 28, 7, 1};
    if (unit == Minute)
        return pixelsPerMinute(axis);
    if (unit == Hour)
        return pixelsPerMinute(axis) * minutesPerHour;
    const double days = unit == Decade ? 3652 : fewestDays[unit];
    const int dayCount = axis.lastDay + 1 - axis.firstDay;
    // Clocks that are put forward make a day shorter.
    constexpr double shortest = 0.95;
    return dayCount > 0 ? axis.width / dayCount * days * (unit == Day ? shortest : 1) : 0;
}

int coarserUnit(const Axis &axis, int unit, double least)
{
    while (unit > Decade && leastPixels(axis, unit) < least)
        --unit;
    return unit;
}

// Calls visit(tick, x1, x2) for the units that touch x0..x1, cut to the axis. Units narrower than a pixel are
// nobody's wish.
template <typename Visit>
void forEachUnit(const Axis &axis, int unit, double x0, double x1, Visit &&visit)
{
    if (axis.lastDay < axis.firstDay || !axis.xOfDay || leastPixels(axis, unit) <= 0)
        return;
    const double end = std::min(x1, axis.width);
    Tick tick = tickAt(axis, unit, std::max(0.0, x0));
    double left = std::max(0.0, xOf(axis, tick));
    while (left < end) {
        const Tick next = tickAfter(axis, unit, tick);
        const double right = next.day > axis.lastDay ? axis.width : std::min(axis.width, xOf(axis, next));
        if (right > x0 && right > left)
            visit(tick, left, right);
        if (right <= left && next.day > axis.lastDay)
            return;
        tick = next;
        left = std::max(left, right);
    }
}

// ---- Texts ------------------------------------------------------------------------------------------------

bool writesHan(const QLocale &locale)
{
    return locale.language() == QLocale::Chinese || locale.language() == QLocale::Japanese;
}

bool dotsDays(const QLocale &locale)
{
    switch (locale.language()) {
    case QLocale::German:
    case QLocale::Danish:
    case QLocale::Finnish:
    case QLocale::NorwegianBokmal:
    case QLocale::Czech:
        return true;
    default:
        return false;
    }
}

QString dayText(const QLocale &locale, const QDate &date)
{
    const QString number = QString::number(date.day());
    return writesHan(locale) ? number + QChar(0x65e5) : dotsDays(locale) ? number + QLatin1Char('.') : number;
}

QString monthText(const QLocale &locale, const QDate &date, QLocale::FormatType form)
{
    // The long names spell the number out, which nobody writes before the number of a day.
    const bool isSpelt = writesHan(locale) && form == QLocale::LongFormat;
    return locale.standaloneMonthName(date.month(), isSpelt ? QLocale::ShortFormat : form);
}

// Month and year, the year only where it is asked for.
QString monthYear(const QLocale &locale, const QDate &date, QLocale::FormatType form, bool withYear)
{
    const QString month = monthText(locale, date, form);
    if (!withYear)
        return month;
    const QString year = QString::number(date.year());
    return writesHan(locale) ? year + QChar(0x5e74) + month : month + QLatin1Char(' ') + year;
}

QString dateText(const QLocale &locale, const QDate &date, QLocale::FormatType form, bool withYear)
{
    return writesHan(locale)
               ? monthYear(locale, date, form, withYear) + dayText(locale, date)
               : dayText(locale, date) + QLatin1Char(' ') + monthYear(locale, date, form, withYear);
}

// "5 – 11 January 2026", "29 December – 4 January 2026".
QString rangeText(const QLocale &locale, const QDate &first, const QDate &last, QLocale::FormatType form,
                  bool withYear)
{
    const QString dash = QStringLiteral(" \u2013 ");
    const bool oneMonth = first.month() == last.month();
    if (writesHan(locale))
        return dateText(locale, first, form, withYear) + dash +
               (oneMonth ? dayText(locale, last) : dateText(locale, last, form, false));
    return (oneMonth ? dayText(locale, first)
                     : dateText(locale, first, form, withYear && first.year() != last.year())) +
           dash + dateText(locale, last, form, withYear);
}

QString twoDigits(int number)
{
    return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

QString hourText(const Axis &axis, const Tick &tick)
{
    return twoDigits(axis.startHour + tick.minute / minutesPerHour);
}

QString quarterText(const QDate &date)
{
    return QStringLiteral("Q%1").arg((date.month() + 2) / 3);
}

// What the head's lower line can say about a unit, the longest form first.
QStringList unitForms(const Axis &axis, const QLocale &locale, int unit, const Tick &tick)
{
    const QDate date = Axis::dateOf(tick.day);
    const QString year = QString::number(date.year());
    switch (unit) {
    case Decade:
    case Year:
        return {year, QChar(0x2019) + year.right(2)};
    case Quarter:
        return {quarterText(date)};
    case Month:
        return {monthText(locale, date, QLocale::LongFormat), monthText(locale, date, QLocale::ShortFormat),
                monthText(locale, date, QLocale::NarrowFormat)};
    case Week:
        return {dateText(locale, date, QLocale::ShortFormat, false), QString::number(date.day())};
    case Day:
        return {locale.standaloneDayName(date.dayOfWeek(), QLocale::ShortFormat) + QLatin1Char(' ') +
                    dayText(locale, date),
                QString::number(date.day()) + QLatin1Char(' ') +
                    locale.standaloneDayName(date.dayOfWeek(), QLocale::NarrowFormat),
                QString::number(date.day())};
    case Hour:
        return {hourText(axis, tick) + QStringLiteral(":00"), hourText(axis, tick)};
    default:
        return {hourText(axis, tick) + QLatin1Char(':') + twoDigits(tick.minute % minutesPerHour),
                twoDigits(tick.minute % minutesPerHour)};
    }
}

// The same for its upper line.
QStringList periodForms(const Axis &axis, const QLocale &locale, int unit, const Tick &tick, bool withYear)
{
    const QDate date = Axis::dateOf(tick.day);
    const QString year = QString::number(date.year());
    const QString yearBehind = withYear ? QLatin1Char(' ') + year : QString();
    switch (unit) {
    case Decade:
        return {year + QStringLiteral(" \u2013 ") + QString::number(date.year() + 9), year};
    case Year:
        return {year};
    case Quarter:
        return {quarterText(date) + yearBehind, quarterText(date)};
    case Month:
        return {monthYear(locale, date, QLocale::LongFormat, withYear),
                monthYear(locale, date, QLocale::ShortFormat, withYear),
                monthText(locale, date, QLocale::ShortFormat)};
    case Week: {
        const QDate last = date.addDays(6);
        return {rangeText(locale, date, last, QLocale::LongFormat, withYear),
                rangeText(locale, date, last, QLocale::ShortFormat, withYear),
                rangeText(locale, date, last, QLocale::ShortFormat, false),
                dateText(locale, date, QLocale::ShortFormat, false), QString::number(date.day())};
    }
    case Day: {
        const QString shortDay =
            locale.standaloneDayName(date.dayOfWeek(), QLocale::ShortFormat) + QLatin1Char(' ');
        return {locale.standaloneDayName(date.dayOfWeek(), QLocale::LongFormat) + QLatin1Char(' ') +
                    dateText(locale, date, QLocale::LongFormat, withYear),
                shortDay + dateText(locale, date, QLocale::ShortFormat, withYear),
                shortDay + dateText(locale, date, QLocale::ShortFormat, false),
                dateText(locale, date, QLocale::ShortFormat, false), QString::number(date.day())};
    }
    default: {
        const QString hour = hourText(axis, tick) + QStringLiteral(":00");
        return {locale.standaloneDayName(date.dayOfWeek(), QLocale::ShortFormat) + QLatin1Char(' ') +
                    dateText(locale, date, QLocale::ShortFormat, withYear) + QLatin1Char(' ') + hour,
                hour, hourText(axis, tick)};
    }
    }
}

// Units with the widest texts that there can be: every month and weekday, two digits everywhere.
std::vector<Tick> samples(const Axis &axis, int unit)
{
    constexpr int year = 2026;
    const int wednesday = Axis::dayOf(QDate(year, 9, 23));
    std::vector<Tick> ticks;
    if (unit > Day) {
        for (int minute = unit == Hour ? 0 : 58; minute < bandMinutes(axis); minute += minutesPerHour)
            ticks.push_back({wednesday, minute});
        return ticks;
    }
    for (int month = 1; month <= 12; ++month) {
        const QDate late(year, month, 28);
        ticks.push_back({Axis::dayOf(unitStart(late, unit)), 0});
    }
    for (int day = 0; unit == Day && day < 7; ++day)
        ticks.push_back({wednesday + day, 0});
    return ticks;
}

// Which form fits into every unit; the number of forms when none does.
template <typename Forms>
int formThatFits(const Plan &plan, int unit, int font, double firstPadding, double padding,
                 const Forms &forms)
{
    std::vector<double> widest;
    for (const Tick &tick : samples(plan.axis, unit)) {
        const QStringList texts = forms(unit, tick);
        widest.resize(std::size_t(texts.size()), 0);
        for (int i = 0; i < texts.size(); ++i)
            widest[std::size_t(i)] = std::max(widest[std::size_t(i)], plan.measure(texts.at(i), font));
    }
    const double room = leastPixels(plan.axis, unit);
    std::size_t form = 0;
    while (form < widest.size() && widest[form] + (form == 0 ? firstPadding : padding) > room)
        ++form;
    return int(form);
}

constexpr double textInset = 8; // of a period's text from its left edge

// The form, or the first shorter one that is no wider than the room.
QString fitting(const Plan &plan, const QStringList &forms, int form, int font, double room)
{
    for (int i = form; i < forms.size(); ++i)
        if (plan.measure(forms.at(i), font) <= room)
            return forms.at(i);
    return QString();
}
}

std::vector<double> unitEdges(const Axis &axis, double x0, double x1, double least)
{
    std::vector<double> edges;
    const int unit = coarserUnit(axis, axis.minor, least);
    if (leastPixels(axis, unit) < least)
        return edges;
    forEachUnit(axis, unit, x0, x1, [&](const Tick &, double left, double) {
        if (left >= x0)
            edges.push_back(left);
    });
    return edges;
}

double unitEdgeBefore(const Axis &axis, double x)
{
    if (x <= 0 || axis.lastDay < axis.firstDay)
        return 0;
    return x >= axis.width ? axis.width : std::clamp(xOf(axis, tickAt(axis, axis.minor, x)), 0.0, x);
}

double unitEdgeAfter(const Axis &axis, double x)
{
    if (x >= axis.width || axis.lastDay < axis.firstDay)
        return axis.width;
    const Tick next = tickAfter(axis, axis.minor, tickAt(axis, axis.minor, std::max(0.0, x)));
    const double edge = next.day > axis.lastDay ? axis.width : xOf(axis, next);
    return edge > x ? std::min(edge, axis.width) : axis.width;
}

Head headOf(const Plan &plan)
{
    const Axis &axis = plan.axis;
    constexpr double roomyPadding = 24, unitPadding = 4;
    // Where the picture is made much smaller, fine units would only be dust.
    Head head{coarserUnit(axis, axis.minor, plan.least), 0, Decade, 0};
    const auto unitTexts = [&](int unit, const Tick &tick) {
        return unitForms(axis, plan.locale, unit, tick);
    };
    for (;; --head.unit) {
        const QStringList forms = unitTexts(head.unit, {Axis::dayOf(QDate(2026, 1, 1)), 0});
        head.unitForm =
            formThatFits(plan, head.unit, AxisFont, forms.size() > 2 ? roomyPadding : unitPadding * 2,
                         unitPadding, unitTexts);
        if (head.unitForm < forms.size() || head.unit == Decade)
            break;
    }
    // Above hours the reader looks for the day, above minutes for the hour.
    const int wanted = axis.minor >= Hour ? axis.minor - 1 : int(axis.major);
    const auto periodTexts = [&](int unit, const Tick &tick) {
        return periodForms(axis, plan.locale, unit, tick, true);
    };
    head.period = coarserUnit(axis, std::min(wanted, head.unit - 1), plan.least);
    for (; head.period > Decade; --head.period) {
        const QStringList forms = periodTexts(head.period, {Axis::dayOf(QDate(2026, 1, 1)), 0});
        head.periodForm =
            formThatFits(plan, head.period, PeriodFont, 2 * textInset, 2 * textInset, periodTexts);
        if (head.periodForm < forms.size())
            break;
    }
    head.period = std::max(head.period, int(Decade));
    return head;
}

std::vector<UnitSpan> headUnits(const Plan &plan, const Head &head, double x0, double x1)
{
    std::vector<UnitSpan> spans;
    forEachUnit(plan.axis, head.unit, x0, x1, [&](const Tick &tick, double left, double right) {
        UnitSpan span{std::max(left, x0), std::min(right, x1), QString(), false};
        const QStringList forms = unitForms(plan.axis, plan.locale, head.unit, tick);
        span.text = fitting(plan, forms, head.unitForm, AxisFont, span.x2 - span.x1 - 2);
        span.isOff = head.unit == Day && plan.axis.isWorkday && !plan.axis.isWorkday(tick.day);
        spans.push_back(span);
    });
    return spans;
}

std::vector<UnitSpan> headPeriods(const Plan &plan, const Head &head, double x0, double x1)
{
    std::vector<UnitSpan> spans;
    int yearBefore = 0;
    forEachUnit(plan.axis, head.period, x0, x1, [&](const Tick &tick, double left, double right) {
        UnitSpan span{std::max(left, x0), std::min(right, x1), QString(), false};
        const QDate date = Axis::dateOf(tick.day);
        // A week belongs to the year of its last day, as its text ends with it.
        const int year = (head.period == Week ? date.addDays(6) : date).year();
        const QStringList forms = periodForms(plan.axis, plan.locale, head.period, tick, year != yearBefore);
        // A new year is worth a longer form than the others have.
        const int form = std::max(0, head.periodForm - (year != yearBefore));
        // A bare number says enough only where all periods show one.
        const bool isCut = right - left < leastPixels(plan.axis, head.period) || left < x0 || right > x1;
        const bool leavesNumberOut = isCut && forms.size() > head.periodForm + 1;
        span.text = fitting(plan, leavesNumberOut ? QStringList(forms.mid(0, forms.size() - 1)) : forms, form,
                            PeriodFont, span.x2 - span.x1 - textInset - 2);
        if (span.text.contains(QString::number(year)))
            yearBefore = year;
        spans.push_back(span);
    });
    return spans;
}

std::vector<UnitSpan> daysOff(const Axis &axis, double x0, double x1, double least)
{
    std::vector<UnitSpan> spans;
    if (!axis.isWorkday || leastPixels(axis, Day) < least)
        return spans;
    forEachUnit(axis, Day, x0, x1, [&](const Tick &tick, double left, double right) {
        if (axis.isWorkday(tick.day))
            return;
        const double from = std::max(left, x0), to = std::min(right, x1);
        if (!spans.empty() && from - spans.back().x2 < 0.01)
            spans.back().x2 = to;
        else
            spans.push_back({from, to, QString(), true});
    });
    return spans;
}

QString shortDate(const QLocale &locale, const QDate &date, bool withYear)
{
    return dateText(locale, date, QLocale::ShortFormat, withYear);
}
}
