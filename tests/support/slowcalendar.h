#pragma once
#include "engine/time/worktime.h"
#include <QDate>
#include <vector>

// The working-time rules in their plainest form: date by date, interval by interval, on QDateTime. Thousands
// of times slower than the library's tables and only there to be compared with them.
class SlowCalendar
{
public:
    // A point on either clock: a date and seconds on its wall clock.
    struct Point
    {
        QDate date;
        qint64 secs = 0;
        bool operator==(const Point &other) const { return date == other.date && secs == other.secs; }
    };

    explicit SlowCalendar(const worktime::Source &source);

    static Point wall(qint64 secs);
    static qint64 moment(Point wall);

    bool hasWorkday() const;
    bool isWorkday(QDate date) const;
    bool isWorkTime(QDate date, int hour) const;
    int dayTimeOff(QDate date) const;
    int daysOff(QDate first, QDate last) const;
    Point toHour(Point stored) const;
    Point toDay(Point shown) const;
    double breakHours(QDate date, double fromSecs, double toSecs) const;
    double workHours(Point a, Point b) const; // dayTimeStartToFinishWorkTime
    double totalWorkDays(quint32 start, quint32 finish, unsigned int unit) const;
    double stretchDayOff(quint32 start, quint32 finish) const;
    quint32 durationSecs(quint32 start, quint32 finish, unsigned int unit) const;

    quint32 startForward(quint32 secs, bool hourClock) const;
    quint32 startBack(quint32 secs, bool hourClock) const;
    quint32 finishForward(quint32 secs, bool hourClock) const;
    quint32 finishBack(quint32 secs, bool hourClock) const;

    quint32 walk(quint32 start, double value, unsigned int unit) const;

    int startHour = 0;
    int finishHour = 0;
    int hoursPerDay = 0;

private:
    struct Interval
    {
        int startSecs;
        int finishSecs;
    };
    struct Exception
    {
        QDate first;
        QDate last;
        bool isException;
        bool isWork;
        std::vector<Interval> hours;
        bool covers(QDate date) const { return first <= date && date <= last; }
    };
    static std::vector<Interval> intervals(const QList<KWDayTime *> &hours);
    const std::vector<Interval> &breakSource(QDate date) const;
    qint64 spanSecs() const { return (finishHour - startHour) * 3600; }
    int weekLength() const;
    bool inRange(QDate date) const;
    Point pushed(Point point, bool finish, int step) const;
    Point startForward(Point stored, bool hourClock) const;
    Point startBack(Point stored, bool hourClock) const;
    Point finishForward(Point stored, bool hourClock) const;
    Point finishBack(Point stored, bool hourClock) const;
    qint64 workDone(QDate date, qint64 offset) const;
    QDate nextCounting(QDate date, int step) const;
    bool counts(QDate date) const;
    Point moveFinish(Point point, int days, qint64 secs) const;
    Point moveStart(Point point, int days, qint64 secs) const;
    Point asStart(Point point) const;
    Point forward(Point start, Point coarse, double target) const;
    Point backward(Point finish, Point coarse, double target) const;
    Point oldVersionWalk(Point start, Point coarse, bool isForward) const;

    bool m_workingDays[7];
    std::vector<Interval> m_hours;
    std::vector<Exception> m_exceptions;
    bool m_oldVersion;
};
