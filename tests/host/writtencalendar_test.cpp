// Calendar files.
#include "support/findings.h"
#include "writtencalendar.h"
#include <gtest/gtest.h>

namespace {

// The calendar as one line, or the refusal; warnings behind it.
std::string picture(const char *json)
{
    WorkingTime workingTime;
    Findings warnings;
    QString error;
    if (!writtencalendar::read(json, workingTime, warnings, error))
        return "refused: " + error.toStdString();
    QString text = writtencalendar::describe(workingTime);
    for (const WorkingTime::Exception &exception : workingTime.exceptions)
        text += QStringLiteral("; %1..%2 %3")
                    .arg(exception.from.toString(Qt::ISODate), exception.to.toString(Qt::ISODate),
                         exception.works ? QStringLiteral("works") : QStringLiteral("off"));
    if (workingTime.start.isGiven())
        text += QLatin1String("; from ") + workingTime.start.date.toString(Qt::ISODate);
    for (const Finding &warning : warnings.list())
        text += QLatin1String("; ") + warning.place + QLatin1String(": ") + warning.what;
    return text.toStdString();
}

struct CalendarCase
{
    const char *name, *json, *picture;
};

TEST(CalendarFile, isReadOrRefused)
{
    const CalendarCase cases[] = {
        {"emptyKeepsTheUsualWeek", "{}", "Mon-Fri 08:00-12:00 13:00-17:00"},
        {"wordsOfOtherPrograms",
         R"({"days": {"SATURDAY": ["WORKING", "09:00-17:00"], "MONDAY": ["NON_WORKING"]}})",
         "Tue-Sat 09:00-17:00"},
        {"switches", R"({"days": {"sat": true, "Friday": false}})", "Mon-Thu, Sat 08:00-12:00 13:00-17:00"},
        {"emptyListIsOff", R"({"days": {"Wed": []}})", "Mon-Tue, Thu-Fri 08:00-12:00 13:00-17:00"},
        {"intervalsInAnyOrder", R"({"days": {"Mon": ["13:00-17:00", "08:00-12:00"]}})",
         "Mon-Fri 08:00-12:00 13:00-17:00"},
        {"mostCommonHoursWin",
         R"({"days": {"Mon": ["09:00-17:00"], "Tue": ["09:00-17:00"], "Fri": ["09:00-13:00"]}})",
         "Mon-Fri 09:00-17:00; calendar, Fri: hours 09:00-13:00 are read as 09:00-17:00"},
        {"toMidnight", R"({"days": {"Mon": ["16:00-00:00"]}})", "Mon-Fri 16:00-24:00"},
        {"partHoursAreTold", R"({"hours": "08:30-12:00"})",
         "Mon-Fri 08:30-12:00; calendar: the hours 08:30-12:00 count as 4 whole hours a day"},
        {"otherLengthOfADayIsTold", R"({"minutesPerDay": 450})",
         "Mon-Fri 08:00-12:00 13:00-17:00; calendar: a day of 450 minutes is counted as its hours say: "
         "480 minutes"},
        {"exceptions",
         R"({"exceptions": [["2026-01-01", "2026-01-06", false], {"from": "2026-01-10", "works": true},
"2026-05-01"], "start": "2026-01-05T08:00"})",
         "Mon-Fri 08:00-12:00 13:00-17:00; 2026-01-01..2026-01-06 off; 2026-01-10..2026-01-10 works; "
         "2026-05-01..2026-05-01 off; from 2026-01-05"},
        {"noJson", "days: Mon", "refused: not JSON at byte 1: no value"},
        {"noObject", "[1]", "refused: not a JSON object"},
        {"noWeekday", R"({"days": {"Caturday": []}})", "refused: 'Caturday' is not a weekday with its hours"},
        {"overlappingHours", R"({"days": {"Mon": ["08:00-12:00", "11:00-13:00"]}})",
         "refused: 'Mon' is not a weekday with its hours"},
        {"exceptionBackwards", R"({"exceptions": [["2026-01-06", "2026-01-01", false]]})",
         "refused: exception 1: '2026-01-06' to '2026-01-01' are not two dates in order"},
        {"exceptionWithoutDate", R"({"exceptions": [7]})",
         "refused: exception 1: '' to '' are not two dates in order"},
        {"badStart", R"({"start": "tomorrow"})", "refused: 'start': 'tomorrow' is not a date"}};
    for (const CalendarCase &row : cases) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(picture(row.json), row.picture);
    }
}

TEST(CalendarFile, moreExceptionsThanAnybodyHasAreRefused)
{
    QByteArray json = "{\"exceptions\": [\"2026-01-01\"";
    for (int i = 0; i < writtencalendar::mostExceptions; ++i)
        json += ",\"2026-01-01\"";
    json += "]}";
    EXPECT_EQ(picture(json.constData()), "refused: more than 10,000 exceptions");
}

}
