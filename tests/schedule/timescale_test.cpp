// The time axis against its rules written out plainly on QDateTime.
#include "engine/time/timerange.h"
#include "engine/time/timescale.h"
#include "format/unitutil.h"
#include "schedule/kwcalendar.h"
#include "schedule/kwtaskcollection.h"
#include "support/calendartext.h"
#include "support/kwclock.h"
#include "support/project.h"
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>

namespace {

using namespace duration;

constexpr quint32 lastSecs = std::numeric_limits<quint32>::max();
const char june[] = "Mon-Fri 8-12 13-17, start 2024-06-03"; // no zone changes its clock in June

QDateTime moment(qint64 secs)
{
    return QDateTime::fromSecsSinceEpoch(secs);
}

// Any moment, those near the ends of the range more often than chance would give.
rc::Gen<quint32> anyMoment()
{
    return rc::gen::oneOf(rc::gen::inRange<quint32>(0, 40000000),
                          rc::gen::inRange<quint32>(lastSecs - 400000000, lastSecs),
                          rc::gen::inRange<quint32>(1600000000, 1800000000), rc::gen::arbitrary<quint32>());
}

// ---- The rules, plainly -----------------------------------------------------------------------------------

QDate firstOfUnit(QDate date, unsigned int unit)
{
    const auto isFirst = [unit](QDate day) {
        switch (unit) {
        case Year:
            return day.dayOfYear() == 1;
        case Quarter:
            return day.day() == 1 && day.month() % 3 == 1;
        case Month:
            return day.day() == 1;
        case Week:
            return day.dayOfWeek() == Qt::Monday;
        default:
            return true;
        }
    };
    while (!isFirst(date))
        date = date.addDays(-1);
    return date;
}

quint32 clamped(qint64 secs)
{
    return quint32(qBound<qint64>(0, secs, lastSecs));
}

quint32 plainRangeStart(quint32 secs, unsigned int minor)
{
    QDateTime at = moment(secs);
    const auto midnightOf = [](QDate date) { return date.startOfDay(); };
    if (minor == Year && secs > 31536000)
        at = midnightOf(firstOfUnit(at.addMonths(-12).date(), Year));
    else if (minor == Quarter && secs > 7948800)
        at = midnightOf(firstOfUnit(at.addMonths(-3).date(), Quarter));
    else if (minor == Month && secs > 2678400)
        at = midnightOf(firstOfUnit(at.addMonths(-1).date(), Month));
    else if (minor == Week && secs > 604800)
        at = at.addDays(firstOfUnit(at.addDays(-7).date(), Week).daysTo(at.date()) * -1);
    else if (minor >= Day && secs >= 86401)
        at = at.addDays(-1);
    return at.toSecsSinceEpoch() < 86400 ? 0 : clamped(midnightOf(at.date()).toSecsSinceEpoch());
}

quint32 plainRangeEnd(quint32 secs, quint32 origin, unsigned int minor)
{
    const QDate start = moment(origin).date();
    const QDate last = moment(secs > 0 ? secs - 1 : 0).date();
    const QDate least[] = {start.addYears(10),
                           start.addYears(3),
                           start.addMonths(10),
                           start.addDays(70),
                           start.addDays(10),
                           start.addDays(2),
                           start};
    const QDate next[] = {last.addYears(1), last.addMonths(3), last.addMonths(1), last.addDays(7),
                          last.addDays(1),  last.addDays(1),   last.addDays(1)};
    const QDate end = qMin(qMax(least[minor], next[minor]), moment(lastSecs).date());
    return clamped(firstOfUnit(end, minor).startOfDay().toSecsSinceEpoch());
}

qint64 plainChartEnd(quint32 lastUnit, unsigned int minor)
{
    const QDate date = moment(lastUnit).date();
    const QDate ends[] = {date.addYears(1), date.addMonths(3), date.addMonths(1), date.addDays(7),
                          date.addDays(1)};
    return ends[qMin(minor, unsigned(Day))].startOfDay().toSecsSinceEpoch();
}

// ---- Range ------------------------------------------------------------------------------------------------

RC_GTEST_PROP(RangeProperty, equalsThePlainRules, ())
{
    const quint32 start = *anyMoment();
    const quint32 finish = *anyMoment();
    const auto minor = *rc::gen::inRange(0u, unitCount);
    const LocalClock &clock = *LocalClock::current();
    const quint32 origin = timerange::rangeStart(clock, start, minor);
    RC_ASSERT(textOf(origin) == textOf(plainRangeStart(start, minor)));
    const quint32 lastUnit = timerange::rangeEnd(clock, finish, origin, minor);
    RC_ASSERT(textOf(lastUnit) == textOf(plainRangeEnd(finish, origin, minor)));
    // Past the last moment there are no clock changes any more.
    const qint64 end = plainChartEnd(lastUnit, minor);
    RC_ASSERT(qAbs(timerange::chartEnd(clock, lastUnit, minor) - end) <= (end > lastSecs ? 3600 : 0));
}

RC_GTEST_PROP(RangeProperty, unitBoundariesEqualAWalkOverTheDates, ())
{
    const QDateTime start = moment(*rc::gen::inRange<quint32>(1600000000, 1700000000));
    const QDateTime finish = start.addSecs(*rc::gen::inRange<qint64>(-1000000, 200000000));
    const timerange::UnitDates lists(start, finish);
    for (unsigned int unit = Year; unit <= Day; ++unit) {
        QList<QDateTime> plain{start};
        for (QDate date = start.date().addDays(1); date <= finish.date(); date = date.addDays(1)) {
            if (date == firstOfUnit(date, unit))
                plain.append(date.startOfDay());
        }
        QList<QDateTime> listed;
        for (int i = 0; i < lists.count(unit); ++i)
            listed.append(lists.at(unit, i));
        RC_ASSERT(listed == plain);
        RC_ASSERT(!lists.at(unit, -1).isValid() && !lists.at(unit, plain.size()).isValid());
    }
}

TEST(RangeOfDocument, withoutTasksIsBuiltAroundToday)
{
    KWClock::set(QDateTime(QDate(2024, 6, 12), QTime(15, 30)));
    KWDocument document;
    KWTaskCollection &scale = *document.taskCollection();
    document.AutoZoom = false;
    scale.updateTaskCollection();
    KWClock::set(QDateTime());
    EXPECT_EQ(textOf(scale.minDateStart()), textOf(secsOf("2024-06-11")));
    EXPECT_EQ(textOf(scale.maxDateFinish()), textOf(secsOf("2024-06-21")));
    EXPECT_EQ(scale.totalWidth(), 11 * 100);
    EXPECT_EQ(scale.getDayDateListAt(10).date(), QDate(2024, 6, 21));
    EXPECT_EQ(scale.getWeekDateListAt(1).date(), QDate(2024, 6, 17));
}

// ---- Mapping ----------------------------------------------------------------------------------------------

// A document with one task and the scale for it.
std::unique_ptr<Project> projectOver(const char *settings, unsigned int minor, quint32 start, quint32 finish)
{
    auto project = std::make_unique<Project>(settings, "Task\n");
    KWDocument &document = project->document();
    document.AutoZoom = false;
    document.MajorUnit = 0;
    document.MinorUnit = minor;
    KWTaskInfo &task = project->task("Task");
    task.Start = start;
    task.Finish = finish;
    document.taskCollection()->updateRageAndTaskPoint();
    return project;
}

std::unique_ptr<Project> projectOver(const char *settings, unsigned int minor, const char *start,
                                     const char *finish)
{
    return projectOver(settings, minor, secsOf(start), secsOf(finish));
}

RC_GTEST_PROP(Mapping, equalsThePlainFormulas, ())
{
    const auto minor = *rc::gen::inRange(0u, unitCount);
    const quint32 start = *rc::gen::inRange<quint32>(1577836800, 1750000000);
    const quint32 finish = start + *rc::gen::inRange<quint32>(86400, 130000000);
    const auto project = projectOver("Mon-Fri 8-12 13-17", minor, start, finish);
    KWDocument &document = project->document();
    document.UnitWidth = *rc::gen::element(20, 60, 77, 100);
    KWTaskCollection &scale = *document.taskCollection();
    scale.updateTotalWidth();

    const qint64 origin = scale.minDateStart();
    const qint64 end = plainChartEnd(scale.maxDateFinish(), minor);
    const quint32 secs = scale.minDateStart() + *rc::gen::inRange(0u, quint32(end - origin));
    const double position = scale.positionFromSecs(secs);
    const quint32 back = scale.secsFromPosition(position);
    if (minor <= Day) {
        const double plain = scale.totalWidth() * double(secs - origin) / double(end - origin);
        RC_ASSERT(position == plain);
        const double plainBack = std::trunc(double(end - origin) * position / scale.totalWidth());
        RC_ASSERT(qAbs(double(origin) + plainBack - back) <= 30.0);
        RC_ASSERT(qAbs(qint64(back) - secs) < 60);
    } else {
        const QDateTime shown = moment(KWTaskInfo::secsDayTransHour(&document, secs));
        const auto days = moment(origin).date().daysTo(shown.date());
        const int hours = 9 * int(days) + qMax(shown.time().hour() - 8, 0);
        const int minute = shown.time().minute();
        RC_ASSERT(position == (minor == Hour ? (hours + minute / 60.0) * document.UnitWidth
                                             : double(hours * 60 + minute) * document.UnitWidth));
        // A minute of the nine shown hours is 160 seconds of the day.
        RC_ASSERT(qAbs(qint64(back) - secs) <= 80 + 30);
    }
}

// A task without a start puts the chart's begin at the clock's, which is no midnight in most zones.
TEST(Mapping, hourScaleComesBackFromAChartThatBeginsWithTheClock)
{
    const auto project = projectOver("Mon-Fri 8-12 13-17", Hour, "2024-03-04", "2024-04-06");
    KWTaskCollection &scale = *project->document().taskCollection();
    project->document().getTaskInfoAt(0)->Start = 0;
    scale.updateRageAndTaskPoint();
    ASSERT_EQ(scale.minDateStart(), 0u);
    const quint32 secs = secsOf("2024-03-12 12:00");
    EXPECT_EQ(textOf(scale.secsFromPosition(scale.positionFromSecs(secs))), textOf(secs));
}

TEST(Mapping, roundsToTheMinuteAndGivesNothingOutsideTheClock)
{
    const auto project = projectOver(june, Day, "2024-06-03", "2024-06-05");
    const KWTaskCollection &scale = *project->document().taskCollection();
    // 86.4 and 950.4 seconds after midnight on 100 pixels a day
    EXPECT_EQ(textOf(scale.secsFromPosition(100.1)), textOf(secsOf("2024-06-03 00:01:00")));
    EXPECT_EQ(textOf(scale.secsFromPosition(101.1)), textOf(secsOf("2024-06-03 00:16:00")));
    EXPECT_EQ(scale.secsFromPosition(-1e12), 0u);
    EXPECT_EQ(scale.secsFromPosition(std::numeric_limits<double>::quiet_NaN()), 0u);
    EXPECT_EQ(scale.secsFromPosition(std::numeric_limits<double>::infinity()), 0u);
    EXPECT_LE(lastSecs - scale.secsFromPosition(1e12), 60u);
    EXPECT_EQ(scale.dayPositionFromSecs(scale.minDateStart() - 1), 0.0);
}

// ---- Bars -------------------------------------------------------------------------------------------------

struct MilestoneCase
{
    const char *name;
    unsigned int minor;
    const char *finish, *anchor;
    int days;
};

TEST(MilestoneBar, fillsTheUnitOfItsFinish)
{
    const MilestoneCase cases[] = {{"year", Year, "2024-05-15", "2024-01-01", 365},
                                   {"quarter", Quarter, "2024-05-15", "2024-04-01", 90},
                                   {"month", Month, "2024-05-15", "2024-05-01", 30},
                                   {"week", Week, "2024-05-15", "2024-05-13", 7},
                                   {"dayFromNoon", Day, "2024-05-15 12:00", "2024-05-15", 1}};
    for (const MilestoneCase &row : cases) {
        SCOPED_TRACE(row.name);
        const auto project = projectOver(june, row.minor, "2024-01-10", "2024-12-10");
        KWDocument &document = project->document();
        KWTaskInfo milestone;
        milestone.Milestone = true;
        milestone.Start = secsOf(row.finish);
        milestone.Finish = milestone.Start + 1;
        const quint32 anchor = KWTaskInfo::milestoneSecs(&document, milestone.Finish);
        EXPECT_EQ(textOf(anchor), textOf(secsOf(row.anchor)));
        const auto pixel = [&](quint32 secs) {
            return int(document.taskCollection()->positionFromSecs(secs));
        };
        EXPECT_EQ(milestone.taskDayPoint(&document, true), pixel(anchor));
        const QDate end = moment(anchor).date().addDays(row.days);
        EXPECT_EQ(milestone.taskDayPoint(&document, false),
                  pixel(quint32(end.startOfDay().toSecsSinceEpoch())));
    }
}

TEST(Bars, areWholePixelsOfVisibleTasks)
{
    Project p(june, "Sum\n"
                    "  One 2d\n"
                    "  Two 1d start 2024-06-05 10:15\n"
                    "Done milestone start 2024-06-07\n"
                    "Hidden 3d\n"
                    "Last 1d\n");
    KWDocument &document = p.document();
    document.UnitWidth = 60;
    KWTaskInfo &hidden = p.task("Hidden");
    hidden.HideID = 1;
    hidden.x1 = hidden.x2 = hidden.y2 = -5;
    document.taskCollection()->updateRageAndTaskPoint();
    std::string bars;
    for (const KWTaskInfo *task : document.taskList()) {
        bars += QStringLiteral("%1 %2..%3 wide %4 at %5\n")
                    .arg(task->Name)
                    .arg(task->x1)
                    .arg(task->x2)
                    .arg(task->CountWidth)
                    .arg(task->y2)
                    .toStdString();
    }
    // 10:15 is a quarter of the nine hours from 8 to 17; the one day's work ends at 10:15 of the day after.
    EXPECT_EQ(bars, "Sum 60..255 wide 195 at 47\n"
                    "One 60..180 wide 120 at 77\n"
                    "Two 195..255 wide 60 at 107\n"
                    "Done 300..360 wide 60 at 137\n"
                    "Hidden -5..-5 wide 300 at -5\n"
                    "Last 60..120 wide 60 at 167\n");
}

// ---- Width and zoom ---------------------------------------------------------------------------------------

TEST(Width, saturatesAndNeverTurnsNegative)
{
    const auto project = projectOver("Mon-Fri 0-24", Minute, "1970-01-05", "2106-02-01");
    KWDocument &document = project->document();
    KWTaskCollection &scale = *document.taskCollection();
    const std::pair<qint32, int> widths[] = {
        {100, std::numeric_limits<int>::max()},
        {std::numeric_limits<qint32>::max(), std::numeric_limits<int>::max()},
        {std::numeric_limits<qint32>::min(), 0},
        {0, 0}};
    for (const auto &[unitWidth, total] : widths) {
        document.UnitWidth = unitWidth;
        scale.updateRageAndTaskPoint();
        EXPECT_EQ(scale.totalWidth(), total);
    }
    EXPECT_EQ(scale.secsFromPosition(100), 0u);
    scale.updateTooSmallTotalWidth(1000);
    EXPECT_EQ(scale.totalWidth(), 0);
}

TEST(Width, tooSmallForTheViewGrowsByWholeUnits)
{
    struct Row
    {
        unsigned int minor;
        int view;
        const char *lastUnit;
        int width;
    };
    for (const Row &row : {Row{Day, 1200, "2024-06-13", 1200}, Row{Day, 1201, "2024-06-14", 1300},
                           Row{Month, 1300, "2025-05-01", 1300}, Row{Hour, 3601, "2024-06-06", 4500},
                           Row{Day, 900, "2024-06-12", 1100}}) {
        const auto project = projectOver(june, row.minor, "2024-06-03", "2024-06-04");
        KWTaskCollection &scale = *project->document().taskCollection();
        scale.updateTooSmallTotalWidth(row.view);
        EXPECT_EQ(textOf(scale.maxDateFinish()), textOf(secsOf(row.lastUnit)))
            << row.minor << ' ' << row.view;
        EXPECT_EQ(scale.totalWidth(), row.width);
    }
}

TEST(Width, growsNoFurtherThanThereAreTimes)
{
    const auto project = projectOver(june, Week, "2024-06-03", "2024-06-04");
    KWTaskCollection &scale = *project->document().taskCollection();
    scale.updateTooSmallTotalWidth(std::numeric_limits<int>::max());
    EXPECT_EQ(moment(scale.maxDateFinish()).date(), firstOfUnit(moment(lastSecs).date(), Week));
    EXPECT_TRUE(std::isfinite(scale.positionFromSecs(lastSecs)));
}

std::string zoomText(const KWDocument &document)
{
    return QStringLiteral("major %1 minor %2 width %3")
        .arg(document.MajorUnit)
        .arg(document.MinorUnit)
        .arg(document.UnitWidth)
        .toStdString();
}

// Step by step with a full refresh each time.
void plainFit(KWDocument &document)
{
    KWTaskCollection &scale = *document.taskCollection();
    const quint32 start = document.getMinStartSecs();
    const quint32 finish = document.getMaxFinishSecs();
    if (start != scale.minDateStart() || finish != scale.maxDateFinish()) {
        const qint64 days = moment(start).date().daysTo(moment(finish).date());
        const int unchanged = -1;
        const int minors[4][4] = {{0, unchanged, unchanged, unchanged},
                                  {1, 0, unchanged, unchanged},
                                  {2, 1, 0, unchanged},
                                  {3, 2, 1, 0}};
        const int minor = minors[days >= 1096 ? 0 : days >= 304 ? 1 : days >= 70 ? 2 : 3][document.MajorUnit];
        if (minor != unchanged)
            document.MinorUnit = quint32(minor);
        document.UnitWidth = 100;
        scale.updateRageAndTaskPoint();
    }
    while (scale.totalWidth() > 1300 * UnitUtil::dpiScale96()) {
        if (document.UnitWidth == 100) {
            document.UnitWidth = 60;
        } else if (document.UnitWidth == 60) {
            document.UnitWidth = 20;
        } else {
            if (document.getMinorUnit() < 2)
                return;
            if (document.MinorUnit == 0) {
                document.MinorUnit = 6 - document.MajorUnit;
                document.MajorUnit -= 1;
            } else {
                document.MinorUnit -= 1;
            }
            document.UnitWidth = 100;
        }
        scale.updateRageAndTaskPoint();
    }
}

RC_GTEST_PROP(AutoZoom, endsWhereTheStepsEnd, ())
{
    const auto major = *rc::gen::inRange(0u, 4u);
    const auto minor = *rc::gen::inRange(0u, 7u - major);
    const int days =
        *rc::gen::oneOf(rc::gen::inRange(0, 80), rc::gen::inRange(80, 1200), rc::gen::inRange(1200, 40000));
    std::string results[2];
    for (const bool plainly : {true, false}) {
        Project p(june, "Task\n");
        KWDocument &document = p.document();
        document.MajorUnit = major;
        document.MinorUnit = minor;
        KWTaskInfo &task = p.task("Task");
        task.Finish = quint32(moment(task.Start).date().addDays(days).startOfDay().toSecsSinceEpoch());
        task.setPercent(0.5);
        document.taskCollection()->updateRageAndTaskPoint();
        if (plainly)
            plainFit(document);
        else
            document.taskCollection()->firstOpenFitWidth();
        results[plainly] = zoomText(document) + QStringLiteral(" total %1 bar %2..%3 done %4")
                                                    .arg(document.taskCollection()->totalWidth())
                                                    .arg(task.x1)
                                                    .arg(task.x2)
                                                    .arg(task.FirstWidth)
                                                    .toStdString();
    }
    RC_ASSERT(results[false] == results[true]);
}

struct ZoomCase
{
    const char *name;
    quint32 major, minor;
    qint32 unitWidth;
    int days;
    const char *zoom;
};

TEST(AutoZoomOnOpening, choosesAScale)
{
    const ZoomCase cases[] = {
        {"from70DaysMonths", 0, 0, 100, 70, "major 0 minor 2 width 100"},
        {"weekMajorKeepsItsMinorKept", 3, 0, 20, 30, "major 3 minor 0 width 20"},
        {"oddWidthIsReset", 3, 0, 77, 5, "major 3 minor 0 width 100"},
        {"largestWidthIsReset", 3, 0, std::numeric_limits<qint32>::max(), 5, "major 3 minor 0 width 100"},
        {"unknownMajorStays", 9, 0, 60, 5, "major 9 minor 0 width 60"},
        {"farUnknownUnitEndsAtOnce", 9, lastSecs, 60, 5000, "major 9 minor 4294967295 width 20"}};
    for (const ZoomCase &row : cases) {
        SCOPED_TRACE(row.name);
        Project p(june, "Task\n");
        KWDocument &document = p.document();
        document.MajorUnit = row.major;
        document.MinorUnit = row.minor;
        document.UnitWidth = row.unitWidth;
        KWTaskInfo &task = p.task("Task");
        task.Finish = quint32(moment(task.Start).date().addDays(row.days).startOfDay().toSecsSinceEpoch());
        document.taskCollection()->updateTaskCollection();
        EXPECT_EQ(zoomText(document), row.zoom);
        EXPECT_GE(document.taskCollection()->totalWidth(), 0);
    }
}

}
