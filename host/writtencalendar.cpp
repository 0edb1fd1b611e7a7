#include "writtencalendar.h"
#include "model/kwdocument.h"
#include "schedule/kwcalendar.h"
#include "support/findings.h"
#include "support/likeness.h"
#include "texts.h"
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

bool WorkingTime::hasWorkday() const
{
    return std::find(week.begin(), week.end(), true) != week.end();
}

int WorkingTime::hoursPerDay() const
{
    int total = 0;
    for (const Interval &interval : hours)
        total += qMax(0, int(interval.finishSecs / 3600) - int(interval.startSecs / 3600));
    return total;
}

namespace writtencalendar {

namespace {

constexpr const char *weekdays[] = {"monday", "tuesday",  "wednesday", "thursday",
                                    "friday", "saturday", "sunday"};

struct JsonFault
{
    QJsonParseError::ParseError code;
    const char *words;
};
constexpr JsonFault jsonFaults[] = {
    {QJsonParseError::UnterminatedObject, QT_TR_NOOP("the end of an object is missing")},
    {QJsonParseError::MissingNameSeparator, QT_TR_NOOP("a colon is missing behind a name")},
    {QJsonParseError::UnterminatedArray, QT_TR_NOOP("the end of a list is missing")},
    {QJsonParseError::MissingValueSeparator, QT_TR_NOOP("a comma is missing between values")},
    {QJsonParseError::IllegalValue, QT_TR_NOOP("no value")},
    {QJsonParseError::TerminationByNumber, QT_TR_NOOP("the text ends in a number")},
    {QJsonParseError::IllegalNumber, QT_TR_NOOP("no number")},
    {QJsonParseError::IllegalEscapeSequence, QT_TR_NOOP("a backslash with nothing that it can mark")},
    {QJsonParseError::IllegalUTF8String, QT_TR_NOOP("a text is no UTF-8")},
    {QJsonParseError::UnterminatedString, QT_TR_NOOP("the closing quote of a text is missing")},
    {QJsonParseError::MissingObject, QT_TR_NOOP("nothing stands behind a comma")},
    {QJsonParseError::DeepNesting, QT_TR_NOOP("nested too deeply")},
    {QJsonParseError::DocumentTooLarge, QT_TR_NOOP("too large")},
    {QJsonParseError::GarbageAtEnd, QT_TR_NOOP("more text stands behind the end")},
};

QString jsonFault(QJsonParseError::ParseError code)
{
    for (const JsonFault &fault : jsonFaults)
        if (fault.code == code)
            return t(fault.words);
    return t("no JSON");
}

// The weekday a word names, 0 = Monday; -1 when it names none. Three letters and more of the English name do,
// and the short name of the chosen language.
int weekdayNamed(const QString &word)
{
    const QString lower = word.trimmed().toLower();
    for (int day = 0; day < 7; ++day) {
        if (lower.size() >= 3 && QLatin1String(weekdays[day]).startsWith(lower))
            return day;
        if (lower == englishTexts().weekdays.value(day).toLower())
            return day;
    }
    return -1;
}

// Whether the text is two times of day; in any order.
bool parseEnds(const QString &text, int &start, int &finish)
{
    const QStringList ends = text.split(QLatin1Char('-'));
    if (ends.size() != 2)
        return false;
    start = datetext::parseTimeOfDay(ends.at(0));
    finish = datetext::parseTimeOfDay(ends.at(1));
    // A day that ends at midnight is written either way.
    if (finish == 0)
        finish = 86400;
    return start >= 0 && finish >= 0;
}

bool parseInterval(const QString &text, WorkingTime::Interval &interval)
{
    int start = 0;
    int finish = 0;
    if (!parseEnds(text, start, finish) || finish <= start)
        return false;
    interval = {quint32(start), quint32(finish)};
    return true;
}

bool inOrder(const std::vector<WorkingTime::Interval> &hours)
{
    for (std::size_t i = 1; i < hours.size(); ++i)
        if (hours[i].startSecs < hours[i - 1].finishSecs)
            return false;
    return true;
}

struct Day
{
    bool works = false;
    std::vector<WorkingTime::Interval> hours;
};

// true, false, or a list of "WORKING", "NON_WORKING" and intervals.
bool readDay(const QJsonValue &value, Day &day)
{
    if (value.isBool()) {
        day.works = value.toBool();
        return true;
    }
    if (!value.isArray())
        return false;
    bool saysOff = false;
    for (const QJsonValue &entry : value.toArray()) {
        const QString text = entry.toString().trimmed();
        WorkingTime::Interval interval;
        if (text.compare(QLatin1String("WORKING"), Qt::CaseInsensitive) == 0)
            day.works = true;
        else if (text.compare(QLatin1String("NON_WORKING"), Qt::CaseInsensitive) == 0)
            saysOff = true;
        else if (parseInterval(text, interval))
            day.hours.push_back(interval);
        else
            return false;
    }
    day.works = !saysOff && (day.works || !day.hours.empty());
    std::sort(day.hours.begin(), day.hours.end(),
              [](const auto &a, const auto &b) { return a.startSecs < b.startSecs; });
    return inOrder(day.hours);
}

QString hoursText(const std::vector<WorkingTime::Interval> &hours)
{
    QStringList parts;
    for (const WorkingTime::Interval &interval : hours)
        parts.append(datetext::timeText(int(interval.startSecs)) + QLatin1Char('-') +
                     datetext::timeText(int(interval.finishSecs)));
    return parts.isEmpty() ? t("no hours") : parts.join(QLatin1Char(' '));
}

// The library knows one set of hours for all working days: the one that most of them have.
void chooseHours(const std::array<Day, 7> &days, WorkingTime &result, Findings &warnings)
{
    const Day *best = nullptr;
    long bestCount = 0;
    for (const Day &day : days) {
        if (!day.works || day.hours.empty())
            continue;
        const long count = std::count_if(days.begin(), days.end(), [&day](const Day &other) {
            return other.works && other.hours == day.hours;
        });
        if (count > bestCount) {
            best = &day;
            bestCount = count;
        }
    }
    if (!best)
        return;
    result.hours = best->hours;
    for (std::size_t i = 0; i < days.size(); ++i)
        if (days[i].works && !days[i].hours.empty() && !(days[i].hours == result.hours))
            warnings.add(t("calendar, %1").arg(englishTexts().weekdays.value(int(i))),
                         t("hours %1 are read as %2").arg(hoursText(days[i].hours), hoursText(result.hours)),
                         t("every working day has the same hours"));
}

bool readHours(const QString &text, std::vector<WorkingTime::Interval> &result)
{
    if (!hoursFault(text).isEmpty())
        return false;
    result.clear();
    for (const QString &part : text.split(QLatin1Char(','))) {
        WorkingTime::Interval interval;
        parseInterval(part, interval);
        result.push_back(interval);
    }
    return true;
}

// What nobody reads is told by its name, with the one that was probably meant.
void tellUnknown(const QJsonObject &object, const QString &place, const QStringList &known,
                 Findings &warnings)
{
    for (const QString &key : object.keys()) {
        if (known.contains(key))
            continue;
        const QString guess = likeness::nearest(key, known);
        warnings.add(Finding::Lost, place, t("'%1' is not known: passed over").arg(key),
                     guess.isEmpty() ? t("known are %1").arg(known.join(QLatin1String(", ")))
                                     : t("did you mean '%1'?").arg(guess));
    }
}

bool readExceptions(const QJsonArray &list, WorkingTime &result, Findings &warnings, QString &error)
{
    if (list.size() > mostExceptions) {
        error = t("more than %1 exceptions").arg(grouped(mostExceptions));
        return false;
    }
    for (int i = 0; i < list.size(); ++i) {
        const QJsonValue entry = list.at(i);
        QString from, to, name;
        bool works = false;
        std::vector<WorkingTime::Interval> hours;
        if (entry.isArray()) {
            const QJsonArray fields = entry.toArray();
            from = fields.at(0).toString();
            to = fields.at(1).toString(from);
            works = fields.at(2).toBool();
        } else if (entry.isObject()) {
            const QJsonObject fields = entry.toObject();
            from = fields.value(QLatin1String("from")).toString();
            to = fields.value(QLatin1String("to")).toString(from);
            works = fields.value(QLatin1String("works")).toBool();
            name = fields.value(QLatin1String("name")).toString();
            tellUnknown(fields, t("calendar, exception %1").arg(i + 1),
                        {QStringLiteral("from"), QStringLiteral("to"), QStringLiteral("works"),
                         QStringLiteral("name"), QStringLiteral("hours")},
                        warnings);
            if (fields.contains(QLatin1String("hours")) && !fields.value(QLatin1String("hours")).isString()) {
                error = t("exception %1: 'hours' are no text such as \"08:00-12:00\"").arg(i + 1);
                return false;
            }
            const QString written = fields.value(QLatin1String("hours")).toString();
            if (!written.isEmpty() && !readHours(written, hours)) {
                error = t("exception %1: %2").arg(QString::number(i + 1), hoursFault(written));
                return false;
            }
        } else {
            from = to = entry.toString();
        }
        datetext::Moment first, last;
        if (!datetext::parseMoment(from, first) || !datetext::parseMoment(to, last) ||
            last.date < first.date) {
            error = t("exception %1: '%2' to '%3' are not two dates in order").arg(i + 1).arg(from, to);
            return false;
        }
        result.exceptions.push_back({name, first.date, last.date, works, hours});
    }
    return true;
}

void warnAboutHours(const QJsonObject &root, const WorkingTime &result, Findings &warnings)
{
    const bool wholeHours = std::all_of(result.hours.begin(), result.hours.end(), [](const auto &interval) {
        return interval.startSecs % 3600 == 0 && interval.finishSecs % 3600 == 0;
    });
    if (!wholeHours)
        warnings.add(t("calendar"),
                     t("the hours %1 count as %2 whole hours a day")
                         .arg(hoursText(result.hours))
                         .arg(result.hoursPerDay()),
                     t("use hours that begin and end on the hour for exact dates"));
    const int minutesPerDay = root.value(QLatin1String("minutesPerDay")).toInt(result.hoursPerDay() * 60);
    if (wholeHours && minutesPerDay != result.hoursPerDay() * 60)
        warnings.add(t("calendar"), t("a day of %1 minutes is counted as its hours say: %2 minutes")
                                        .arg(minutesPerDay)
                                        .arg(result.hoursPerDay() * 60));
}
}

bool read(const QByteArray &json, WorkingTime &result, Findings &warnings, QString &error)
{
    if (json.size() > largestFileBytes) {
        error = t("longer than %1 bytes").arg(grouped(largestFileBytes));
        return false;
    }
    QJsonParseError fault;
    const QJsonDocument document = QJsonDocument::fromJson(json, &fault);
    if (!document.isObject()) {
        error = fault.error == QJsonParseError::NoError
                    ? t("not a JSON object")
                    : t("not JSON at byte %1: %2").arg(fault.offset).arg(jsonFault(fault.error));
        return false;
    }
    const QJsonObject root = document.object();

    std::array<Day, 7> days;
    for (std::size_t i = 0; i < days.size(); ++i)
        days[i].works = result.week[i];
    tellUnknown(root, t("calendar"),
                {QStringLiteral("days"), QStringLiteral("hours"), QStringLiteral("name"),
                 QStringLiteral("start"), QStringLiteral("exceptions"), QStringLiteral("minutesPerDay"),
                 QStringLiteral("minutesPerWeek"), QStringLiteral("daysPerMonth"), QStringLiteral("finish"),
                 QStringLiteral("currency")},
                warnings);
    for (const char *name : {"days", "exceptions"}) {
        const QJsonValue value = root.value(QLatin1String(name));
        const bool isDays = *name == 'd';
        if (!value.isUndefined() && (isDays ? !value.isObject() : !value.isArray())) {
            error = isDays ? t("'days' is no list of weekdays such as {\"Mon\": true}")
                           : t("'exceptions' is no list of dates");
            return false;
        }
    }
    const QJsonObject week = root.value(QLatin1String("days")).toObject();
    for (auto entry = week.begin(); entry != week.end(); ++entry) {
        const int weekday = weekdayNamed(entry.key());
        Day day;
        if (weekday < 0 || !readDay(entry.value(), day)) {
            error = t("'%1' is not a weekday with its hours").arg(entry.key());
            return false;
        }
        days[std::size_t(weekday)] = day;
    }
    for (std::size_t i = 0; i < days.size(); ++i)
        result.week[i] = days[i].works;
    chooseHours(days, result, warnings);

    const QJsonValue hours = root.value(QLatin1String("hours"));
    if (!hours.isUndefined() && !parseHours(hours.toString(), result)) {
        error = hours.isString() ? t("'hours': %1").arg(hoursFault(hours.toString()))
                                 : t("'hours' are no text such as \"08:00-12:00,13:00-17:00\"");
        return false;
    }
    result.projectName = root.value(QLatin1String("name")).toString().simplified();
    const QString start = root.value(QLatin1String("start")).toString();
    if (!start.isEmpty() && !datetext::parseMoment(start, result.start)) {
        error = t("'start': '%1' is not a date").arg(start);
        return false;
    }
    if (!readExceptions(root.value(QLatin1String("exceptions")).toArray(), result, warnings, error))
        return false;
    warnAboutHours(root, result, warnings);
    return true;
}

namespace {

// A document may hold intervals that are none.
void insertHours(QJsonObject &object, const std::vector<WorkingTime::Interval> &hours)
{
    QStringList texts;
    for (const WorkingTime::Interval &interval : hours)
        texts.append(datetext::timeText(int(interval.startSecs)) + QLatin1Char('-') +
                     datetext::timeText(int(interval.finishSecs)));
    std::vector<WorkingTime::Interval> check;
    if (readHours(texts.join(QLatin1Char(',')), check))
        object.insert(QStringLiteral("hours"), texts.join(QLatin1Char(',')));
}

std::vector<WorkingTime::Interval> intervalsOf(const QList<KWDayTime *> &from)
{
    std::vector<WorkingTime::Interval> intervals;
    for (const KWDayTime *interval : from)
        intervals.push_back({interval->start, interval->finish});
    return intervals;
}
}

QByteArray toJson(const WorkingTime &workingTime)
{
    QJsonObject week;
    for (int day = 0; day < 7; ++day)
        week.insert(QLatin1String(weekdays[day]), workingTime.week[std::size_t(day)]);
    QJsonArray exceptions;
    for (const WorkingTime::Exception &exception : workingTime.exceptions) {
        QJsonObject entry{{QStringLiteral("from"), exception.from.toString(Qt::ISODate)},
                          {QStringLiteral("to"), exception.to.toString(Qt::ISODate)},
                          {QStringLiteral("works"), exception.works},
                          {QStringLiteral("name"), exception.name}};
        insertHours(entry, exception.hours);
        exceptions.append(entry);
    }
    QJsonObject root{{QStringLiteral("days"), week}, {QStringLiteral("exceptions"), exceptions}};
    insertHours(root, workingTime.hours);
    if (!workingTime.projectName.isEmpty())
        root.insert(QStringLiteral("name"), workingTime.projectName);
    if (workingTime.start.isGiven())
        root.insert(QStringLiteral("start"),
                    workingTime.start.date.toString(Qt::ISODate) +
                        (workingTime.start.hasTime
                             ? QLatin1Char('T') + datetext::timeText(workingTime.start.secs)
                             : QString()));
    return QJsonDocument(root).toJson();
}

bool parseDays(const QString &text, WorkingTime &result)
{
    std::array<bool, 7> week{};
    if (text.trimmed().compare(QLatin1String("none"), Qt::CaseInsensitive) != 0) {
        for (const QString &part : text.split(QLatin1Char(','))) {
            const int first = weekdayNamed(part.section(QLatin1Char('-'), 0, 0));
            const int last =
                part.contains(QLatin1Char('-')) ? weekdayNamed(part.section(QLatin1Char('-'), 1)) : first;
            if (first < 0 || last < 0)
                return false;
            // Sat-Mon goes over the end of the week.
            for (int day = first;; day = (day + 1) % 7) {
                week[std::size_t(day)] = true;
                if (day == last)
                    break;
            }
        }
    }
    result.week = week;
    return true;
}

QString hoursFault(const QString &text)
{
    QString before;
    int startBefore = 0;
    int finishBefore = 0;
    for (const QString &written : text.split(QLatin1Char(','))) {
        const QString part = written.trimmed();
        int start = 0;
        int finish = 0;
        if (!parseEnds(part, start, finish))
            return t("'%1' is not from one time of day to another").arg(part);
        if (finish <= start)
            return t("'%1' ends before it begins").arg(part);
        if (start < finishBefore)
            return (finish <= startBefore ? t("'%1' is earlier than '%2' before it")
                                          : t("'%1' overlaps '%2'"))
                .arg(part, before);
        before = part;
        startBefore = start;
        finishBefore = finish;
    }
    return QString();
}

bool parseHours(const QString &text, WorkingTime &result)
{
    return readHours(text, result.hours);
}

bool parseHoliday(const QString &text, WorkingTime &result)
{
    const int dots = text.indexOf(QLatin1String(".."));
    datetext::Moment first, last;
    if (!datetext::parseMoment(dots < 0 ? text : text.left(dots), first) ||
        !datetext::parseMoment(dots < 0 ? text : text.mid(dots + 2), last) || last.date < first.date)
        return false;
    // What is asked for here wins over the exceptions of a file.
    result.exceptions.insert(result.exceptions.begin(), {QString(), first.date, last.date, false, {}});
    return true;
}

WorkingTime of(const KWDocument &document)
{
    WorkingTime time;
    std::copy(std::begin(document.WorkDay), std::end(document.WorkDay), time.week.begin());
    time.hours = intervalsOf(document.workTimes);
    for (const KWCalendar *calendar : document.calendars) {
        if (calendar->isException)
            time.exceptions.push_back({calendar->name, calendar->startDate, calendar->finishDate,
                                       calendar->isWork, intervalsOf(calendar->dayTimes)});
    }
    return time;
}

QString describe(const WorkingTime &workingTime)
{
    const QStringList &names = englishTexts().weekdays;
    QStringList days;
    for (int day = 0; day < 7; ++day) {
        if (!workingTime.week[std::size_t(day)])
            continue;
        int last = day;
        while (last < 6 && workingTime.week[std::size_t(last + 1)])
            ++last;
        days.append(last == day ? names.value(day) : names.value(day) + QLatin1Char('-') + names.value(last));
        day = last;
    }
    return (days.isEmpty() ? t("no working day") : days.join(QLatin1String(", "))) + QLatin1Char(' ') +
           hoursText(workingTime.hours);
}
}
