// Dragged bars and finishes, and what they do to the tasks around them.
#include "schedule/kwcalendar.h"
#include "schedule/kwtaskcollection.h"
#include "support/calendartext.h"
#include "support/project.h"
#include <QScopedValueRollback>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>

namespace {

constexpr quint32 lastSecs = std::numeric_limits<quint32>::max();
const char june[] = "Mon-Fri 8-12 13-17, start 2024-06-03";

void setMinorUnit(KWDocument &document, unsigned int minor)
{
    document.AutoZoom = false;
    document.MajorUnit = 0;
    document.MinorUnit = minor;
    document.taskCollection()->updateRageAndTaskPoint();
}

double xOf(Project &p, const char *time)
{
    return p.document().taskCollection()->positionFromSecs(secsOf(time));
}

// ---- The chart's grid -------------------------------------------------------------------------------------

struct SnapCase
{
    const char *name;
    unsigned int minor;
    bool isSetTime;
    const char *time;
    const char *snapped; // on the hour clock for hours and minutes
};

TEST(Snap, goesToTheGrid)
{
    const SnapCase cases[] = {
        {"morningToTheDay", 4, false, "2024-06-04 05:59:59", "2024-06-04 00:00:00"},
        {"fromSixToTheHalfDay", 4, false, "2024-06-04 06:00", "2024-06-04 12:00:00"},
        {"beforeSixInTheEveningToTheHalfDay", 4, false, "2024-06-04 17:59:59", "2024-06-04 12:00:00"},
        {"eveningToTheNextDay", 4, false, "2024-06-04 18:00", "2024-06-05 00:00:00"},
        {"daysAreLeftAloneWhileTimesAreSet", 4, true, "2024-06-04 05:00", "2024-06-04 05:00:00"},
        {"quarterPastToTheHalfHour", 5, false, "2024-06-04 03:20", "2024-06-04 09:30:00"},
        {"quarterToTheNextHour", 5, false, "2024-06-04 04:40", "2024-06-04 10:00:00"},
        {"hoursKeepTheMinuteWhileTimesAreSet", 5, true, "2024-06-04 03:17:20", "2024-06-04 09:14:00"},
        {"minutesKeepTheMinute", 6, false, "2024-06-04 03:17:20", "2024-06-04 09:14:00"}};
    for (const SnapCase &row : cases) {
        SCOPED_TRACE(row.name);
        Project p(june, "Task\n");
        setMinorUnit(p.document(), row.minor);
        const QScopedValueRollback<bool> isSetTime(KWTaskInfo::s_isSetTime, row.isSetTime);
        EXPECT_EQ(textOf(p.task("Task").onHalfOrOneDaySecs(&p.document(), secsOf(row.time))),
                  textOf(secsOf(row.snapped)));
    }
}

TEST(SnapBeforeTheOrigin, movesTheOriginAndCountsTheDaysOffAnew)
{
    Project p(june, "Task 3d start 2024-06-12\n");
    setMinorUnit(p.document(), 4);
    KWTaskCollection &scale = *p.document().taskCollection();
    ASSERT_EQ(textOf(scale.minDateStart()), textOf(secsOf("2024-06-11 00:00:00")));
    // Three days from Thursday hold a weekend, so the start goes two days further back.
    const quint32 snapped = p.task("Task").onHalfOrOneDaySecs(&p.document(), secsOf("2024-06-06 13:00"));
    EXPECT_EQ(textOf(scale.minDateStart()), textOf(secsOf("2024-06-06 00:00:00")));
    EXPECT_EQ(textOf(snapped), textOf(secsOf("2024-06-04 12:00:00")));
}

TEST(SnapBeforeTheOrigin, acceptsATaskWithoutDates)
{
    Project p(june, "Task\n");
    KWTaskInfo empty;
    EXPECT_EQ(textOf(empty.onHalfOrOneDaySecs(&p.document(), secsOf("2024-05-01 01:00"))),
              textOf(secsOf("2024-05-01 00:00:00")));
    EXPECT_EQ(empty.onHalfOrOneDaySecs(nullptr, 4711), 4711u);
}

// A task without a start makes the chart begin with the clock, which is at midnight in UTC only.
TEST(SnapFarFromTheOrigin, isOnMidnightAndNoon)
{
    Project p(june, "Task\n");
    setMinorUnit(p.document(), 4);
    p.task("Task").Start = 0;
    p.document().taskCollection()->updateRageAndTaskPoint();
    ASSERT_EQ(p.document().taskCollection()->minDateStart(), 0u);
    EXPECT_EQ(textOf(p.task("Task").onHalfOrOneDaySecs(&p.document(), secsOf("2024-06-04 05:00"))),
              textOf(secsOf("2024-06-04 00:00:00")));
}

// ---- Moves ------------------------------------------------------------------------------------------------

struct MoveCase
{
    const char *name;
    unsigned int minor;
    const char *tasks, *moved, *to, *dates;
};

constexpr char chain[] = "Sum\n  First 2d\n  Second 2d after First\nNext 1d after Sum\n";
constexpr char nested[] = "Sum\n  First 2d\n  Inner\n    Second 3d start 2024-06-05\n"
                          "    Done milestone start 2024-06-07\n";

TEST(Moves, keepDurationsAndDistancesInWork)
{
    const MoveCase cases[] = {
        {"overDaysOff", 4, "Task 3d\n", "Task", "2024-06-06 03:00", "Task 6 Jun - 10 Jun\n"},
        {"ontoAWeekend", 4, "Task 3d\n", "Task", "2024-06-08", "Task 10 Jun - 12 Jun\n"},
        {"toTheHalfDay", 4, "Task 3d\n", "Task", "2024-06-04 13:00", "Task 4 Jun 12:30 - 7 Jun 12:00\n"},
        // Stored noon is shown as 12:30.
        {"outOfABreak", 5, "Task 2h start 2024-06-03 09:00\n", "Task", "2024-06-04 12:00",
         "Task 4 Jun 13:00 - 4 Jun 15:00\n"},
        {"pushesSuccessorsAndRollsUp", 4, chain, "First", "2024-06-05",
         "Sum 5 Jun - 10 Jun\n  First 5 Jun - 6 Jun\n  Second 7 Jun - 10 Jun\nNext 11 Jun - 11 Jun\n"},
        {"summaryByWholeDays", 4, nested, "Sum", "2024-06-06",
         "Sum 6 Jun - 12 Jun\n  First 6 Jun - 7 Jun\n  Inner 10 Jun - 12 Jun\n    Second 10 Jun - 12 Jun\n   "
         " Done 12 Jun\n"},
        // Half a day on stands for noon; half a day's work ends there.
        {"summaryByHalfADay", 4, nested, "Sum", "2024-06-05 12:00",
         "Sum 5 Jun 12:30 - 12 Jun 12:00\n  First 5 Jun 12:30 - 7 Jun 12:00\n  Inner 7 Jun 13:00 - 12 Jun "
         "12:00\n"
         "    Second 7 Jun 13:00 - 12 Jun 12:00\n    Done 11 Jun 13:00\n"}};
    for (const MoveCase &row : cases) {
        SCOPED_TRACE(row.name);
        Project p(june, row.tasks);
        setMinorUnit(p.document(), row.minor);
        p.task(row.moved).updateMoveAfter(&p.document(), xOf(p, row.to));
        EXPECT_EQ(p.dates(), row.dates);
    }
}

TEST(Move, byLessThanAMinuteIsNone)
{
    Project p(june, "Task 3d\n");
    setMinorUnit(p.document(), 4);
    KWTaskInfo &task = p.task("Task");
    task.Start = secsOf("2024-06-03 10:20:17");
    const quint32 finish = task.Finish;
    task.moveToStop(&p.document(), xOf(p, "2024-06-03 10:20:17"), nullptr, false);
    EXPECT_EQ(textOf(task.Start), textOf(secsOf("2024-06-03 10:20:17")));
    EXPECT_EQ(task.Finish, finish);
}

TEST(Move, staysBehindItsReference)
{
    Project p(june, "Before 5d\n"
                    "Task 1d start 2024-06-12\n");
    setMinorUnit(p.document(), 4);
    p.task("Task").moveToStop(&p.document(), xOf(p, "2024-06-05"), &p.task("Before"), true);
    EXPECT_EQ(p.dates(), "Before 3 Jun - 7 Jun\n"
                         "Task 10 Jun - 10 Jun\n");
}

TEST(Move, calendarUnitsKeepTheirElapsedLength)
{
    Project p("Mon-Fri 8-12 13-17, start 2024-03-04", "Task 1mon\n");
    setMinorUnit(p.document(), 4);
    KWTaskInfo &task = p.task("Task");
    task.Finish = secsOf("2024-03-20 12:00");
    task.updateMoveAfter(&p.document(), xOf(p, "2024-03-07"));
    EXPECT_EQ(textOf(task.Finish), textOf(secsOf("2024-03-23 12:00:00")));
}

TEST(Move, milestoneKeepsItsSecond)
{
    Project p(june, "Done milestone\n");
    setMinorUnit(p.document(), 4);
    p.task("Done").updateMoveAfter(&p.document(), xOf(p, "2024-06-08"));
    EXPECT_EQ(textOf(p.task("Done").Start), textOf(secsOf("2024-06-10 00:00:00")));
    EXPECT_EQ(p.task("Done").Finish, p.task("Done").Start + 1);
}

TEST(SummaryMove, leavesTasksWithoutDatesAlone)
{
    Project p(june, "Sum\n"
                    "  First 2d\n"
                    "  Bare\n"
                    "  Inner\n"
                    "    Empty\n");
    setMinorUnit(p.document(), 4);
    for (const char *name : {"Bare", "Empty"})
        p.task(name).Start = p.task(name).Finish = 0;
    p.task("Sum").updateMoveAfter(&p.document(), xOf(p, "2024-06-05"));
    EXPECT_EQ(p.dates(), "Sum 5 Jun - 6 Jun\n"
                         "  First 5 Jun - 6 Jun\n"
                         "  Bare\n"
                         "  Inner 5 Jun - 5 Jun\n"
                         "    Empty\n");
}

TEST(SummaryMove, withoutWorkingDaysKeepsElapsedDistances)
{
    Project p("none 8-12 13-17, start 2024-03-08", "Sum\n"
                                                   "  First 4h\n"
                                                   "  Second 2d start 2024-03-10\n");
    setMinorUnit(p.document(), 4);
    const quint32 length = p.task("First").DurationSecs;
    p.task("Sum").updateMoveAfter(&p.document(), xOf(p, "2024-03-09 12:00"));
    EXPECT_EQ(textOf(p.task("First").Start), textOf(secsOf("2024-03-09 12:00:00")));
    EXPECT_EQ(textOf(p.task("Second").Start), textOf(secsOf("2024-03-11 12:00:00")));
    EXPECT_EQ(textOf(p.task("Second").Finish), textOf(secsOf("2024-03-13 12:00:00")));
    EXPECT_EQ(p.task("First").DurationSecs, length);
}

// ---- Stretches --------------------------------------------------------------------------------------------

struct StretchCase
{
    const char *name;
    unsigned int minor;
    const char *start, *to;
    bool snap;
    const char *finish;
};

TEST(Stretch, putsTheFinish)
{
    const StretchCase cases[] = {
        {"toTheGrid", 4, "2024-06-03", "2024-06-05 19:00", true, "2024-06-06 00:00:00"},
        {"freely", 4, "2024-06-03", "2024-06-05 19:00", false, "2024-06-05 19:00:00"},
        {"intoAWeekendEndsWithItsFriday", 4, "2024-06-03", "2024-06-09 09:00", false, "2024-06-08 00:00:00"},
        {"beforeTheStartLeavesAMinute", 4, "2024-06-04 12:00", "2024-06-03 12:00", true,
         "2024-06-04 12:01:00"},
        {"beforeTheStartLeavesHalfAnHourOnHours", 5, "2024-06-04", "2024-06-03 12:00", true,
         "2024-06-04 01:20:00"},
        {"ofABarOnDaysOffGoesOnToAWorkingDay", 4, "2024-06-08", "2024-06-09 12:00", false,
         "2024-06-10 12:00:00"},
        // 03:30 is 09:18:45 between 8 and 17.
        {"onHoursToHalves", 5, "2024-06-03", "2024-06-05 03:30", true, "2024-06-05 04:00:00"},
        {"onHoursFreelyToTheShownMinute", 5, "2024-06-03", "2024-06-05 03:30", false, "2024-06-05 03:30:40"}};
    for (const StretchCase &row : cases) {
        SCOPED_TRACE(row.name);
        Project p(june, "Task 3d\n");
        setMinorUnit(p.document(), row.minor);
        KWTaskInfo &task = p.task("Task");
        task.Start = secsOf(row.start);
        task.stretch(&p.document(), xOf(p, row.to), row.snap);
        EXPECT_EQ(textOf(task.Finish), textOf(secsOf(row.finish)));
        EXPECT_EQ(textOf(task.Start), textOf(secsOf(row.start)));
        EXPECT_EQ(task.DurationSecs, KWTaskInfo::durationSecs(&p.document(), task.Start, task.Finish, 4));
        EXPECT_EQ(task.CountWidth, task.x2 - task.x1);
    }
}

// ---- After any edit ---------------------------------------------------------------------------------------

RC_GTEST_PROP(Edits, leaveStartsOnWorkingDaysAndDurationsAsMeasured, ())
{
    const char *calendar = *rc::gen::element(
        "Mon-Fri 8-12 13-17, start 2024-03-04, off 2024-03-28..2024-04-02", "Mon-Sat 0-24, start 2024-03-04",
        "Mon+Wed+Fri 8:30-12 13-17:30, start 2024-03-04, work 2024-03-31", "Tue 9-17, start 2024-03-05");
    Project p(calendar, "Sum\n"
                        "  First 2d\n"
                        "  Inner\n"
                        "    Second 5h after First\n"
                        "    Third 90min\n"
                        "  Fourth 1w after Second\n"
                        "Fifth 1mon after Sum\n"
                        "Done milestone after Fifth\n");
    KWDocument &document = p.document();
    setMinorUnit(document, *rc::gen::inRange(0u, 7u));
    const QScopedValueRollback<bool> isSetTime(KWTaskInfo::s_isSetTime, *rc::gen::arbitrary<bool>());
    for (int edit = 0; edit < 4; ++edit) {
        KWTaskInfo &task = *document.getTaskInfoAt(*rc::gen::inRange(0, document.taskCount()));
        const double x = *rc::gen::inRange(0, document.taskCollection()->totalWidth());
        const bool measured = !task.Milestone && task.DurationUnits >= 3;
        const double length = KWTaskInfo::getDurValueByTaskInfo(&document, &task);
        if (task.isParent() || *rc::gen::arbitrary<bool>()) {
            const quint32 oldStart = task.Start;
            task.updateMoveAfter(&document, x);
            if (task.Start == oldStart)
                continue;
            // A minute is the walk's tolerance.
            const double unitsPerMinute[] = {0, 0, 0, 1.0 / 480, 1.0 / 480, 1.0 / 60, 1.0};
            const double moved = KWTaskInfo::getDurValueByTaskInfo(&document, &task);
            if (measured && !task.isParent())
                RC_ASSERT(qAbs(moved - length) <= 2.1 * unitsPerMinute[task.DurationUnits]);
        } else {
            task.stretch(&document, x, *rc::gen::arbitrary<bool>());
            RC_ASSERT(task.Finish > task.Start);
        }
        for (const KWTaskInfo *each : document.taskList()) {
            RC_ASSERT(KWTaskInfo::isWorkday(&document, QDateTime::fromSecsSinceEpoch(each->Start)));
            RC_ASSERT(each->DurationSecs ==
                      KWTaskInfo::durationSecs(&document, each->Start, each->Finish, each->DurationUnits));
        }
        // An edit may leave a task before its own predecessors, but nothing behind it.
        QList<quint32> edited{task.ID};
        document.taskCollection()->subIDListByTask(&task, edited);
        for (const quint32 id : edited) {
            const KWTaskInfo *predecessor = document.getTaskInfoByID(id);
            for (const quint32 successor : predecessor->Depends)
                RC_ASSERT(document.getTaskInfoByID(successor)->Start + 60 > predecessor->Finish);
        }
        if (*rc::gen::arbitrary<bool>())
            document.taskCollection()->updateRageAndTaskPoint();
    }
}

TEST(Edits, endOnBrokenDocuments)
{
    const char *const calendars[] = {"none",
                                     "Mon-Fri",
                                     "Mon-Fri 8-8",
                                     "Mon-Fri 17-8",
                                     "Mon-Fri 8:10-8:40",
                                     "none 8-17",
                                     "Mon-Fri 8-17, off 1970-01-01..2106-12-31"};
    for (const char *calendar : calendars) {
        for (unsigned int minor = 0; minor <= 7; ++minor) {
            Project p(calendar, "Sum\n"
                                "  First 2d\n"
                                "  Inner\n"
                                "    Second 5h\n"
                                "    Third 90min\n"
                                "Fourth 1w\n");
            KWDocument &document = p.document();
            p.task("Second").Start = 0;
            p.task("Second").Percent = std::numeric_limits<double>::quiet_NaN();
            p.task("Third").Finish = lastSecs;
            p.task("Fourth").Start = lastSecs - 10;
            p.task("Fourth").Depends = {4711, p.task("Fourth").ID};
            // A summary among its own descendants, and one child twice.
            p.task("Inner").Childs.append({p.task("Sum").ID, p.task("Third").ID});
            p.task("Sum").ParentID = p.task("Inner").ID;
            setMinorUnit(document, minor);
            for (KWTaskInfo *task : document.taskList()) {
                for (const double x : {0.0, 150.0, -1e9, 1e12}) {
                    task->updateMoveAfter(&document, x);
                    task->stretch(&document, x, true);
                    task->updateMoveAfter(nullptr, x);
                    task->stretch(nullptr, x, true);
                }
                document.taskCollection()->updateTaskCollection();
            }
        }
    }
}
}
