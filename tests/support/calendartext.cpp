#include "support/calendartext.h"
#include <QDateTime>
#include <QLocale>
#include <QStringList>

namespace {

const QStringList weekdayNames = {"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"};

quint32 timeOfDay(const QString &text)
{
    const QStringList parts = text.split(':');
    return parts[0].toUInt() * 3600 + parts.value(1).toUInt() * 60;
}

void readHours(const QStringList &words, int from, QList<KWDayTime *> &hours)
{
    for (int i = from; i < words.size(); ++i) {
        const QStringList ends = words[i].split('-');
        hours.append(new KWDayTime(timeOfDay(ends[0]), timeOfDay(ends[1])));
    }
}

void readWeekdays(const QString &text, bool *days)
{
    if (text == "none")
        return;
    for (const QString &part : (text == "all" ? QString("Mon-Sun") : text).split('+')) {
        const QStringList ends = part.split('-');
        const int last = weekdayNames.indexOf(ends.last());
        for (int day = weekdayNames.indexOf(ends.first()); day <= last; ++day)
            days[day] = true;
    }
}

}

CalendarText::CalendarText(const QString &text)
{
    const QStringList parts = text.split(';');
    const QStringList week = parts[0].split(' ', Qt::SkipEmptyParts);
    readWeekdays(week[0], workingDays);
    readHours(week, 1, hours);
    for (int i = 1; i < parts.size(); ++i) {
        const QStringList words = parts[i].split(' ', Qt::SkipEmptyParts);
        if (words[0] == "old") {
            oldVersion = true;
            continue;
        }
        if (words[0] == "start") {
            start = QDate::fromString(words[1], Qt::ISODate);
            continue;
        }
        const QStringList dates = words[1].split("..");
        auto calendar = std::make_unique<KWCalendar>();
        calendar->startDate = QDate::fromString(dates.first(), Qt::ISODate);
        calendar->finishDate = QDate::fromString(dates.last(), Qt::ISODate);
        calendar->isException = words[0] != "plain";
        calendar->isWork = words[0] != "off";
        readHours(words, 2, calendar->dayTimes);
        exceptions.append(calendar.release());
    }
}

CalendarText::~CalendarText()
{
    qDeleteAll(hours);
    qDeleteAll(exceptions);
}

quint32 secsOf(const char *text)
{
    const QStringList parts = QString(text).split(' ');
    const QDate date = QDate::fromString(parts[0], Qt::ISODate);
    const QString time = parts.value(1);
    const QDateTime moment =
        time.isEmpty() ? date.startOfDay()
                       : QDateTime(date, QTime::fromString(time, time.size() > 5 ? "hh:mm:ss" : "hh:mm"));
    return quint32(moment.toSecsSinceEpoch());
}

QString textOf(quint32 secs)
{
    const QDateTime moment = QDateTime::fromSecsSinceEpoch(secs);
    return weekdayNames[moment.date().dayOfWeek() - 1] + ' ' +
           QLocale::c().toString(
               moment, QString(moment.time().second() == 0 ? "yyyy-MM-dd hh:mm" : "yyyy-MM-dd hh:mm:ss"));
}

QString randomCalendar(std::mt19937 &random, Hours hours)
{
    static const QStringList weeks = {"Mon-Fri", "Mon-Fri", "Mon-Sat",         "all",
                                      "Mon+Wed", "Sun",     "Tue-Thu+Sat-Sun", "none"};
    static const QStringList whole = {"8-12 13-17",  "8-12 13-17", "8-17",  "0-24",
                                      "0-12 13-24",  "9-12 14-18", "16-24", "8-10 11-13 14-18",
                                      "16-20 21-24", "22-23"};
    static const QStringList odd = {"8:30-12 13-17:30",
                                    "8-12:30 13-17",
                                    "8-12 12:30-16:30",
                                    "7:15-11:45 12:45-16:10",
                                    "8-16:20",
                                    "",
                                    "8-8",
                                    "17-8",
                                    "8:20-8:50",
                                    "0-12 12-24",
                                    "0:30-23:30"};
    static const QStringList datedWhole = {""};
    static const QStringList datedAny = {
        "", "", "8-12", "18-20", "8-10 14-17", "9-11 12-13:30 15-18", "6-7 8-12 12-17"};
    const auto one = [&random](const QStringList &of) { return of[int(random() % unsigned(of.size()))]; };
    QString text = one(weeks) + ' ' + one(hours == Hours::any && random() % 2 ? odd : whole);
    for (unsigned int i = random() % (hours == Hours::any ? 40 : 7); i > 0; --i) {
        const QDate first = QDate(2024, 1, 1).addDays(random() % 366);
        const QDate last = first.addDays(random() % 3 ? 0 : random() % 12);
        text += "; " + one({"off", "off", "work", "plain"}) + ' ' + first.toString(Qt::ISODate) + ".." +
                last.toString(Qt::ISODate) + ' ' + one(hours == Hours::any ? datedAny : datedWhole);
    }
    return text;
}

quint32 randomMoment(std::mt19937 &random)
{
    static const quint32 year = secsOf("2024-01-01");
    static const quint32 changes[] = {secsOf("2024-03-10"), secsOf("2024-11-03")}; // of New York
    const quint32 day = random() % 4 ? year + random() % 366 * 86400 : changes[random() % 2];
    switch (random() % 4) {
    case 0:
        return quint32(QDateTime::fromSecsSinceEpoch(day + 43200).date().startOfDay().toSecsSinceEpoch());
    case 1:
        return day + random() % 1440 * 60;
    case 2:
        return day + random() % 540 * 160; // whole minutes on the hour clock of a nine-hour span
    default:
        return day + random() % 86400;
    }
}
