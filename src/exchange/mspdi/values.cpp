#include "exchange/mspdi/values.h"
#include "engine/time/localclock.h"
#include <QDate>
#include <charconv>
#include <cmath>
#include <limits>

namespace mspdi {
namespace {

constexpr int minutesPerDay = 24 * 60;

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

// Takes up to `most` digits from the front; -1 without any.
int takeDigits(std::string_view &text, int most)
{
    int number = -1;
    for (; most > 0 && !text.empty() && text.front() >= '0' && text.front() <= '9'; --most) {
        number = std::max(number, 0) * 10 + (text.front() - '0');
        text.remove_prefix(1);
    }
    return number;
}

bool take(std::string_view &text, char expected)
{
    if (text.empty() || text.front() != expected)
        return false;
    text.remove_prefix(1);
    return true;
}

// Minutes of the day up to the seconds, which may be missing; 24:00 is the end of the day. -1 for no time.
int takeTime(std::string_view &text)
{
    const int hour = takeDigits(text, 2);
    if (hour < 0 || hour > 24 || !take(text, ':'))
        return -1;
    take(text, '-');
    const int minute = takeDigits(text, 2);
    if (minute < 0 || minute > 59 || (hour == 24 && minute > 0))
        return -1;
    return hour * 60 + minute;
}
}

Moment moment(std::string_view text)
{
    Moment result;
    text = trimmed(text);
    if (text.empty())
        return result;
    result.state = Moment::Spoilt;
    const int year = takeDigits(text, 4);
    const int month = take(text, '-') ? takeDigits(text, 2) : -1;
    const int dayOfMonth = take(text, '-') ? takeDigits(text, 2) : -1;
    const QDate date(year, month, dayOfMonth);
    // The last years of the clock are left to tasks that are moved there.
    constexpr int firstYear = 1970;
    constexpr int lastYear = 2105;
    if (year == 1 && month == 1 && dayOfMonth == 1)
        result.state = Moment::None;
    if (!date.isValid() || year < firstYear || year > lastYear)
        return result;
    int minute = 0;
    if (take(text, 'T') || take(text, ' '))
        minute = takeTime(text);
    else if (!text.empty() && text.front() != 'Z' && text.front() != '+')
        return result;
    else
        result.isDate = true;
    if (minute < 0)
        return result;
    const bool isEndOfDay = minute == minutesPerDay;
    result.day = LocalClock::dayOf(date) + (isEndOfDay ? 1 : 0);
    result.minute = isEndOfDay ? 0 : minute;
    result.state = Moment::Set;
    return result;
}

std::optional<int> timeOfDay(std::string_view text)
{
    text = trimmed(text);
    const int minute = takeTime(text);
    return minute < 0 ? std::nullopt : std::optional<int>(minute);
}

std::optional<qint64> whole(std::string_view text)
{
    text = trimmed(text);
    qint64 number = 0;
    const char *const end = text.data() + text.size();
    const auto [at, error] = std::from_chars(text.data(), end, number);
    if (error == std::errc() && at == end && !text.empty())
        return number;
    const std::optional<double> fraction = real(text);
    constexpr double most = 9e15; // whole numbers up to here are exact
    if (!fraction || std::abs(*fraction) > most)
        return std::nullopt;
    return qint64(*fraction);
}

std::optional<double> real(std::string_view text)
{
    text = trimmed(text);
    if (!text.empty() && text.front() == '+')
        text.remove_prefix(1);
    double number = 0;
    const char *const end = text.data() + text.size();
    const auto [at, error] = std::from_chars(text.data(), end, number);
    if (text.empty() || error != std::errc() || at != end || !std::isfinite(number))
        return std::nullopt;
    return number;
}

std::optional<bool> flag(std::string_view text)
{
    text = trimmed(text);
    if (text == "1" || text == "-1" || text == "true" || text == "True" || text == "TRUE")
        return true;
    if (text == "0" || text == "false" || text == "False" || text == "FALSE")
        return false;
    return std::nullopt;
}

std::optional<double> minutes(std::string_view text)
{
    text = trimmed(text);
    const bool isNegative = take(text, '-');
    if (!take(text, 'P') || text.empty())
        return std::nullopt;
    struct Unit
    {
        char letter;
        bool isTime;
        double minutes;
    };
    static constexpr Unit units[] = {{'Y', false, 0}, {'M', false, 0}, {'D', false, minutesPerDay},
                                     {'H', true, 60}, {'M', true, 1},  {'S', true, 1.0 / 60}};
    const Unit *next = units;
    bool isTime = false;
    bool hasAny = false;
    double sum = 0;
    while (!text.empty()) {
        if (!isTime && take(text, 'T')) {
            isTime = true;
            continue;
        }
        double amount = 0;
        const auto [at, error] = std::from_chars(text.data(), text.data() + text.size(), amount);
        if (error != std::errc() || !(amount >= 0) || at == text.data() + text.size())
            return std::nullopt;
        text.remove_prefix(std::size_t(at - text.data()));
        while (next != std::end(units) && (next->letter != text.front() || next->isTime != isTime))
            ++next;
        if (next == std::end(units))
            return std::nullopt;
        text.remove_prefix(1);
        // No number of days is that of every month.
        if (next->minutes == 0 && amount != 0)
            return std::nullopt;
        sum += amount * next->minutes;
        ++next;
        hasAny = true;
    }
    if (!hasAny || !std::isfinite(sum))
        return std::nullopt;
    return isNegative ? -sum : sum;
}

// ---- Writing ----------------------------------------------------------------------------------------------

namespace {

char *putTwo(char *to, int number)
{
    *to++ = char('0' + number / 10 % 10);
    *to++ = char('0' + number % 10);
    return to;
}
}

char *putMoment(char *to, int day, int secsOfDay)
{
    const QDate date = LocalClock::dateOf(day);
    to = putTwo(to, date.year() / 100);
    to = putTwo(to, date.year() % 100);
    *to++ = '-';
    to = putTwo(to, date.month());
    *to++ = '-';
    to = putTwo(to, date.day());
    *to++ = 'T';
    to = putTwo(to, secsOfDay / 3600);
    *to++ = ':';
    to = putTwo(to, secsOfDay / 60 % 60);
    *to++ = ':';
    return putTwo(to, secsOfDay % 60);
}

char *putDuration(char *to, qint64 secs)
{
    *to++ = 'P';
    *to++ = 'T';
    to = std::to_chars(to, to + 20, secs / 3600).ptr;
    *to++ = 'H';
    to = std::to_chars(to, to + 2, int(secs / 60 % 60)).ptr;
    *to++ = 'M';
    to = std::to_chars(to, to + 2, int(secs % 60)).ptr;
    *to++ = 'S';
    return to;
}
}
