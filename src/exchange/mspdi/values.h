#pragma once
#include <QByteArray>
#include <QtGlobal>
#include <optional>
#include <string_view>

// The texts of values in project XML files, and what they mean. No locale, no time zone.
namespace mspdi {

// A local date and time, to the minute: what a task shows. Written without a zone; one that is written is
// not looked at.
struct Moment
{
    enum State : quint8 { None, Spoilt, Set };

    int day = 0;    // since 1970-01-01
    int minute = 0; // of the day, 0..1439
    State state = None;
    bool isDate = false; // without a time

    bool isSet() const { return state == Set; }
    friend bool operator==(const Moment &a, const Moment &b)
    {
        return a.state == b.state && a.day == b.day && a.minute == b.minute;
    }
    friend bool operator<(const Moment &a, const Moment &b)
    {
        return a.day != b.day ? a.day < b.day : a.minute < b.minute;
    }
};

// None for an empty text and for the first day of year 1, which is how programs write no date at all; spoilt
// for one that is no date from 1970 to 2105. Seconds are dropped, and the sign
// that one planner writes into its times ("17:-0:00") with them.
Moment moment(std::string_view text);
// Minutes of a time of day, 0..1440.
std::optional<int> timeOfDay(std::string_view text);
// Minutes of "PT40H0M0S"; days are 24 hours. Nothing for years and months but none of them ("P0Y0M1DT2H").
std::optional<double> minutes(std::string_view text);
// Whole numbers may come as "1.0".
std::optional<qint64> whole(std::string_view text);
std::optional<double> real(std::string_view text);
std::optional<bool> flag(std::string_view text); // "1", "0", "true", "false", "-1" for true

// ---- Writing ----------------------------------------------------------------------------------------------

constexpr int maxValueBytes = 32;
// "2026-01-05T08:00:00"; returns the place behind it.
char *putMoment(char *to, int day, int secsOfDay);
// "PT40H0M0S" of whole seconds.
char *putDuration(char *to, qint64 secs);
}
