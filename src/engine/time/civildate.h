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
}
