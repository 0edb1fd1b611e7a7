#include "exchange/mspdi/codes.h"
#include <cmath>

namespace mspdi {
namespace {

constexpr double minutesPerHour = 60;
constexpr double weeksPerYear = 52;
constexpr double monthsPerYear = 12;

// Minutes of work that one unit of a rate counts; 0 for a year, which has none here.
double minutesOf(int costUnit, const WorkTerms &terms)
{
    switch (costUnit) {
    case 0:
        return 1;
    case 2:
        return terms.minutesPerDay;
    case 3:
        return terms.minutesPerWeek;
    case 4:
        return terms.minutesPerDay * terms.daysPerMonth;
    default:
        return minutesPerHour;
    }
}

struct RateFormat
{
    int code;
    int costUnit;
};
constexpr int formatYearRate = 7;
constexpr RateFormat rateFormats[] = {
    {1, cost::PerMinute}, {2, cost::PerHour}, {3, cost::PerDay}, {4, cost::PerWeek}, {5, cost::PerMonth}};

// A rate of 50 a day is written as 6.25 an hour, and one of 53 as a number that never ends.
double withoutRoundingError(double money)
{
    constexpr int digits = 12;
    return QString::number(money, 'g', digits).toDouble();
}

struct Format
{
    int code;
    duration::Unit unit;
    bool isElapsed;
    bool isPercent;
    const char *suffix;
};
constexpr Format formats[] = {
    {formatMinutes, duration::Minute, false, false, "m"},
    {4, duration::Minute, true, false, "em"},
    {formatHours, duration::Hour, false, false, "h"},
    {6, duration::Hour, true, false, "eh"},
    {formatDays, duration::Day, false, false, "d"},
    {8, duration::Day, true, false, "ed"},
    {formatWeeks, duration::Week, false, false, "w"},
    {10, duration::Week, true, false, "ew"},
    // A month is 30 days of the calendar here and some working days there.
    {11, duration::Day, false, false, "mo"},
    {12, duration::Day, true, false, "emo"},
    {19, duration::Day, false, true, "%"},
    {20, duration::Day, true, true, "e%"},
};

const Format *find(int code)
{
    constexpr int estimated = 32; // the same with a question mark
    for (const Format &format : formats) {
        if (format.code == code || format.code + estimated == code)
            return &format;
    }
    return nullptr;
}
}

const char *linkTypeText(int type)
{
    constexpr const char *texts[] = {"FF", "FS", "SF", "SS"};
    return type >= FinishToFinish && type <= StartToStart ? texts[type] : "?";
}

bool isHeldByDates(int constraint)
{
    return constraint == AsSoonAsPossible || constraint == StartNoEarlier || constraint == FinishNoEarlier;
}

const char *constraintText(int constraint)
{
    constexpr const char *texts[] = {"as soon as possible",    "as late as possible",   "must start on",
                                     "must finish on",         "start no earlier than", "start no later than",
                                     "finish no earlier than", "finish no later than"};
    return constraint >= AsSoonAsPossible && constraint <= FinishNoLater ? texts[constraint] : "unknown";
}

DurationFormat durationFormat(int code)
{
    const Format *format = find(code);
    return format ? DurationFormat{format->unit, format->isElapsed, format->isPercent, true}
                  : DurationFormat();
}

int formatOfUnit(unsigned int unit)
{
    for (const Format &format : formats) {
        if (format.unit == unit && !format.isElapsed)
            return format.code;
    }
    return formatDays;
}

QString formatSuffix(int code)
{
    const Format *format = find(code);
    return QString::fromLatin1(format ? format->suffix : "d");
}

Rate rateOf(double perHour, int format, const WorkTerms &terms)
{
    Rate rate;
    if (format == formatYearRate) {
        rate.costUnit = cost::PerMonth;
        rate.money = withoutRoundingError(perHour / minutesPerHour * terms.minutesPerWeek * weeksPerYear /
                                          monthsPerYear);
        rate.isApproximate = true;
        return rate;
    }
    for (const RateFormat &each : rateFormats) {
        if (each.code == format)
            rate.costUnit = each.costUnit;
    }
    rate.money = rate.costUnit == cost::PerHour
                     ? perHour
                     : withoutRoundingError(perHour / minutesPerHour * minutesOf(rate.costUnit, terms));
    return rate;
}

double perHour(double money, int costUnit, const WorkTerms &terms)
{
    return costUnit == cost::PerHour ? money : money * minutesPerHour / minutesOf(costUnit, terms);
}

int formatOfRate(int costUnit)
{
    for (const RateFormat &each : rateFormats) {
        if (each.costUnit == costUnit)
            return each.code;
    }
    return 2;
}
}
