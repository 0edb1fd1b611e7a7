#pragma once

// Dates of the calendar for those who write them by the thousand.
namespace civildate {

struct Date
{
    int year = 1970;
    int month = 1; // 1 to 12
    int day = 1;
};

// The date of a day as LocalClock counts them, from 1970-01-01. Years begin in March here, so that the leap
// day is the last one.
inline Date of(int day)
{
    constexpr int daysOf400Years = 146097;
    constexpr int daysToMarchOfYear0 = 719468;
    const int shifted = day + daysToMarchOfYear0;
    const int era = shifted / daysOf400Years;
    const int ofEra = shifted - era * daysOf400Years;
    const int yearOfEra = (ofEra - ofEra / 1460 + ofEra / 36524 - ofEra / (daysOf400Years - 1)) / 365;
    const int ofYear = ofEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const int month = (5 * ofYear + 2) / 153;
    return {yearOfEra + era * 400 + (month >= 10 ? 1 : 0), month < 10 ? month + 3 : month - 9,
            ofYear - (153 * month + 2) / 5 + 1};
}

inline int daysInMonth(int year, int month)
{
    constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool isLeapYear = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return month == 2 && isLeapYear ? 29 : days[month - 1];
}

// The day of a date that exists, of the year 1 or later.
inline int dayOf(const Date &date)
{
    constexpr int daysOf400Years = 146097;
    constexpr int daysToMarchOfYear0 = 719468;
    const int year = date.year - (date.month <= 2 ? 1 : 0);
    const int era = year / 400;
    const int ofEra = year - era * 400;
    const int ofYear = (153 * (date.month + (date.month > 2 ? -3 : 9)) + 2) / 5 + date.day - 1;
    return era * daysOf400Years + ofEra * 365 + ofEra / 4 - ofEra / 100 + ofYear - daysToMarchOfYear0;
}
}
