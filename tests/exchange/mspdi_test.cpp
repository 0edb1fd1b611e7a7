// Project XML: what files of other planners become, what is told of them, and that plans of ours come back.
//
// KW_MSPDI_PLANS says how many random plans are tried, KW_MSPDI_SEED where they begin, KW_MSPDI_FOLDER where
// their files stay for other programs. mspdi_check.py compares what becomes of whole files with another
// reader.
#include "engine/record/resource.h"
#include "engine/time/shownmoment.h"
#include "exchange/MSPDIDataEngine.h"
#include "exchange/mspdi/calendar.h"
#include "exchange/mspdi/recordreader.h"
#include "resources/resourceinfodata.h"
#include "schedule/kwcalendar.h"
#include "schedule/kwtaskcollection.h"
#include "schedule/randomplan.h"
#include "support/savedtext.h"
#include <QBuffer>
#include <QFile>
#include <gtest/gtest.h>

namespace {

using randomplan::between;

std::string momentText(const shownmoment::Moment &moment)
{
    return LocalClock::dateOf(moment.day).toString(QStringLiteral("MM-dd")).toStdString() +
           QTime::fromMSecsSinceStartOfDay(moment.secs * 1000)
               .toString(QStringLiteral(" hh:mm"))
               .toStdString();
}

// A task on a line: level, name, start and finish as shown, length, percent, marks, links, who and how much.
std::string outcome(KWDocument &document)
{
    std::string text;
    for (const KWTaskInfo *task : document.taskList()) {
        const worktime::WorkCalendar &calendar = document.workCalendar();
        text += std::to_string(task->Level) + ' ' + task->Name.toStdString() + ' ' +
                momentText(shownmoment::ofStart(calendar, task->Start)) + ' ' +
                momentText(shownmoment::ofFinish(calendar, task->Finish)) + ' ' +
                QString::number(KWTaskInfo::getDurValueByTaskInfo(&document, task), 'g', 4).toStdString() +
                KWTaskInfo::unitString(task->DurationUnits).toStdString();
        if (task->Percent > 0)
            text += ' ' + std::to_string(std::lround(task->Percent * 100)) + '%';
        if (task->Milestone)
            text += " milestone";
        if (task->font.strikeOut())
            text += " struck";
        for (const quint32 id : task->Predecessors)
            text += " after " + std::to_string(id);
        for (const Resource *resource : task->resourceList)
            text += ' ' + resource->name.toStdString() + '*' +
                    std::to_string(resource->percent).substr(0, 4) + '=' +
                    std::to_string(std::lround(
                        task->transforHourWork(&document, task->resourceWork(&document, resource)))) +
                    'h';
        text += '\n';
    }
    return text;
}

QByteArray inProject(const QByteArray &content)
{
    return "<Project xmlns=\"http://schemas.microsoft.com/project\">" + content + "</Project>";
}

QByteArray task(int uid, const QByteArray &start, const QByteArray &finish, const QByteArray &more = {})
{
    return "<Task><UID>" + QByteArray::number(uid) + "</UID><Name>" + char('A' + uid - 1) + "</Name><Start>" +
           start + ":00</Start><Finish>" + finish + ":00</Finish>" + more + "</Task>";
}

QByteArray link(int predecessor, int type, int lag, int format = 7)
{
    return "<PredecessorLink><PredecessorUID>" + QByteArray::number(predecessor) + "</PredecessorUID><Type>" +
           QByteArray::number(type) + "</Type><LinkLag>" + QByteArray::number(lag) + "</LinkLag><LagFormat>" +
           QByteArray::number(format) + "</LagFormat></PredecessorLink>";
}

// Monday 5 January 2026 is the first day of them all.
const QByteArray taskA = task(1, "2026-01-05T08:00", "2026-01-06T17:00", "<Duration>PT16H0M0S</Duration>");

struct Case
{
    const char *what;
    QByteArray content;
    const char *outcome;
    const char *findings; // the beginnings of what is found, and where
};

const Case cases[] = {
    {"the project itself and blank rows are no tasks; rows are in the order of their IDs",
     "<Tasks><Task><UID>0</UID><OutlineLevel>0</OutlineLevel><Name>P</Name></Task><Task><UID>9</"
     "UID><IsNull>1</IsNull>"
     "</Task>" +
         task(2, "2026-01-05T08:00", "2026-01-05T17:00", "<ID>2</ID>") +
         task(1, "2026-01-05T08:00", "2026-01-05T17:00", "<ID>1</ID>") + "</Tasks>",
     "1 A 01-05 08:00 01-05 17:00 1day\n1 B 01-05 08:00 01-05 17:00 1day\n", ""},
    {"the minute of the file is shown: evenings as starts, mornings as finishes, days off, elapsed lengths",
     "<Tasks>" + task(1, "2026-01-05T17:00", "2026-01-07T08:00") +
         task(2, "2026-01-10T11:30", "2026-01-11T09:07") +
         task(3, "2026-01-05T12:00", "2026-01-06T12:00",
              "<Duration>PT24H</Duration><DurationFormat>8</DurationFormat>") +
         "</Tasks>",
     "1 A 01-05 17:00 01-07 08:00 1day\n1 B 01-10 11:30 01-11 09:07 0day\n1 C 01-05 12:00 01-06 12:00 1day\n",
     "task 2 \"B\": starts or finishes on a day off\ntask 3 \"C\": an elapsed duration\n"},
    {"dates outside the hours go to their border, midnight ends a day, spoilt ones are not given",
     "<StartDate>2026-01-05T08:00:00</StartDate><Tasks>" + task(1, "2026-01-05T06:00", "2026-01-06T00:00") +
         task(2, "2026-01-05T20:00", "2026-01-06T17:-0") +
         task(3, "0000-01-01T08:00", "9999-01-01T08:00", "<Duration>PT8H</Duration>") + "</Tasks>",
     "1 A 01-05 08:00 01-05 17:00 1day\n1 B 01-06 08:00 01-06 17:00 1day\n1 C 01-05 08:00 01-05 17:00 1day\n",
     "task 3 \"C\", Start '0000-01-01T08:00:00', task 3 \"C\", Finish '9999-01-01T08:00:00': a value\n"
     "task 1 \"A\", task 2 \"B\": a date outside\n"},
    {"lengths without dates count from the project's start, in their unit",
     "<StartDate>2026-01-05T08:00:00</StartDate><MinutesPerWeek>2400</MinutesPerWeek><Tasks><Task><UID>1</"
     "UID><Name>A"
     "</Name><Duration>PT80H0M0S</Duration><DurationFormat>41</DurationFormat></Task><Task><UID>2</"
     "UID><Name>B</Name>"
     "<Duration>PT0H0M0S</Duration></Task><Task><UID>3</UID><Name>C</Name><Start>2026-01-06T08:00:00</"
     "Start><Duration>"
     "PT4H</Duration><DurationFormat>5</DurationFormat></Task></Tasks>",
     "1 A 01-05 08:00 01-16 17:00 2week\n1 B 01-05 08:00 01-05 08:00 0day milestone\n1 C 01-06 08:00 01-06 "
     "12:00 4hour\n",
     "task 1 \"A\", task 2 \"B\": no start\n"},
    {"plain links are made; lags are told, other types left out, rings refused",
     "<Tasks>" + taskA + task(2, "2026-01-07T08:00", "2026-01-07T17:00", link(1, 1, 0)) +
         task(3, "2026-01-08T08:00", "2026-01-08T17:00", link(1, 1, 4800)) +
         task(4, "2026-01-08T08:00", "2026-01-08T17:00",
              link(1, 3, 0) + link(2, 1, -9600) + link(3, 1, 50, 19) + link(77, 1, 0)) +
         task(5, "2026-01-08T08:00", "2026-01-08T17:00", link(1, 1, 0, 19) + "<Active>0</Active>") +
         task(6, "2026-01-08T08:00", "2026-01-08T17:00", link(7, 1, 0)) +
         task(7, "2026-01-08T08:00", "2026-01-08T17:00", link(6, 1, 0)) + "</Tasks>",
     "1 A 01-05 08:00 01-06 17:00 2day\n1 B 01-07 08:00 01-07 17:00 1day after 1\n1 C 01-08 08:00 01-08 "
     "17:00 1day after 1\n"
     "1 D 01-08 08:00 01-08 17:00 1day\n1 E 01-08 08:00 01-08 17:00 1day struck\n1 F 01-08 08:00 01-08 17:00 "
     "1day after 7\n"
     "1 G 01-08 08:00 01-08 17:00 1day\n",
     "task 5 \"E\": inactive\n\"A\" to \"C\" FS+1d: a link with a lag\n"
     "\"A\" to \"D\" SS, \"B\" to \"D\" FS-2d, \"C\" to \"D\" FS+50%: a link that is not plainly\n"
     "task with UID 77 to \"D\" FS: a predecessor\ntask 7: it would wait for itself\n"},
    {"a milestone in the evening stands where its predecessor ends; one that lasts is a task",
     "<Tasks>" + taskA +
         task(2, "2026-01-06T17:00", "2026-01-06T17:00", "<Milestone>1</Milestone>" + link(1, 1, 0)) +
         task(3, "2026-01-09T17:00", "2026-01-09T17:00", "<Milestone>1</Milestone>") +
         task(4, "2026-01-05T08:00", "2026-01-05T17:00", "<Milestone>1</Milestone>") + "</Tasks>",
     "1 A 01-05 08:00 01-06 17:00 2day\n1 B 01-07 08:00 01-07 08:00 0day milestone after 1\n"
     "1 C 01-09 17:00 01-09 17:00 0day milestone\n1 D 01-05 08:00 01-05 17:00 1day\n",
     "task 4 \"D\": a milestone that lasts\n"},
    {"constraints that dates hold say nothing; the others, deadlines and the like are told",
     "<StartDate>2026-01-05T08:00:00</StartDate><Tasks>" +
         task(1, "2026-01-05T08:00", "2026-01-05T17:00",
              "<ConstraintType>4</ConstraintType><Deadline>2000-01-01T00:00:00</Deadline>") +
         task(2, "2026-01-05T08:00", "2026-01-05T17:00",
              "<ConstraintType>2</ConstraintType><Deadline>2026-02-01T17:00:00</Deadline>") +
         task(3, "2026-01-05T08:00", "2026-01-05T17:00", "<Manual>1</Manual><FinishText>soon</FinishText>") +
         task(4, "2026-01-05T08:00", "2026-01-07T17:00",
              "<Duration>PT16H</Duration><Recurring>1</Recurring>") +
         "</Tasks>",
     "1 A 01-05 08:00 01-05 17:00 1day\n1 B 01-05 08:00 01-05 17:00 1day\n1 C 01-05 08:00 01-05 17:00 1day\n"
     "1 D 01-05 08:00 01-07 17:00 3day\n",
     "task 4 \"D\": the work is interrupted\ntask 3 \"C\": scheduled by hand\ntask 4 \"D\": a recurring\n"
     "task 2 \"B\": must start on: a constraint\ntask 2 \"B\": a deadline\n"},
    {"the project's calendar takes what its bases say; the commonest hours count",
     "<CalendarUID>2</CalendarUID><Calendars><Calendar><UID>1</UID><IsBaseCalendar>1</"
     "IsBaseCalendar><WeekDays><WeekDay>"
     "<DayType>2</DayType><DayWorking>1</DayWorking><WorkingTimes><WorkingTime><FromTime>08:00:00</"
     "FromTime><ToTime>14:00:00"
     "</ToTime></WorkingTime></WorkingTimes></WeekDay></"
     "WeekDays><Exceptions><Exception><TimePeriod><FromDate>"
     "2026-01-06T00:00:00</FromDate><ToDate>2026-01-06T23:59:00</ToDate></TimePeriod><Type>1</"
     "Type><DayWorking>0</DayWorking>"
     "</Exception></Exceptions></Calendar><Calendar><UID>2</UID><BaseCalendarUID>1</"
     "BaseCalendarUID><WeekDays><WeekDay>"
     "<DayType>7</DayType><DayWorking>1</DayWorking></WeekDay></WeekDays></Calendar></Calendars><Tasks>" +
         task(1, "2026-01-08T08:00", "2026-01-10T17:00", "<CalendarUID>1</CalendarUID>") +
         task(2, "2026-01-05T08:00", "2026-01-07T17:00", "<CalendarUID>2</CalendarUID>") + "</Tasks>",
     "1 A 01-08 08:00 01-10 17:00 3day\n1 B 01-05 08:00 01-07 17:00 2day\n",
     ": a weekday has other hours\ntask 1 \"A\": a working time of its own\n"},
    {"who works, how much and for how much; twins are joined, nobody and summaries left out",
     "<Tasks>" +
         task(1, "2026-01-05T08:00", "2026-01-06T17:00", "<OutlineLevel>1</OutlineLevel><Cost>1</Cost>") +
         task(2, "2026-01-05T08:00", "2026-01-06T17:00", "<OutlineLevel>2</OutlineLevel><Cost>61000</Cost>") +
         "</Tasks><Resources><Resource><UID>0</UID></Resource><Resource><UID>5</UID><Name>Ann</Name><Type>1</"
         "Type><StandardRate>"
         "6.25</StandardRate><StandardRateFormat>3</StandardRateFormat><CostPerUse>1000</CostPerUse></"
         "Resource><Resource><UID>6"
         "</UID><Name>Sand</Name><Type>0</Type><StandardRate>150</StandardRate></Resource></"
         "Resources><Assignments>"
         "<Assignment><TaskUID>2</TaskUID><ResourceUID>5</ResourceUID><Units>0.5</Units><Work>PT8H0M0S</"
         "Work></Assignment>"
         "<Assignment><TaskUID>2</TaskUID><ResourceUID>6</ResourceUID><Units>3</Units></Assignment>"
         "<Assignment><TaskUID>2</TaskUID><ResourceUID>5</ResourceUID><Units>0.5</Units><Work>PT8H0M0S</"
         "Work></Assignment>"
         "<Assignment><TaskUID>2</TaskUID><ResourceUID>-65535</ResourceUID></Assignment>"
         "<Assignment><TaskUID>1</TaskUID><ResourceUID>5</ResourceUID></Assignment></Assignments>",
     "1 A 01-05 08:00 01-06 17:00 2day\n2 B 01-05 08:00 01-06 17:00 2day Ann*1.00=16h Sand*3.00=0h\n",
     "task 1 \"A\": an assignment on a summary\ntask 2 \"B\": a resource is assigned\n: the file's costs of "
     "610.00 are 560.00\n"},
    {"other writers: dates alone, lengths with days, codes for levels, hours without a flag, nobody as "
     "another number",
     "<CalendarUID>1</CalendarUID><Calendars><Calendar><UID>1</"
     "UID><Exceptions><Exception><TimePeriod><FromDate>2026-01-10"
     "</FromDate><ToDate>2026-01-10</ToDate></TimePeriod><WorkingTimes><WorkingTime><FromTime>08:00</"
     "FromTime><ToTime>12:00"
     "</ToTime></WorkingTime></WorkingTimes></Exception></Exceptions></Calendar></"
     "Calendars><Tasks><Task><UID>1</UID><Name>A"
     "</Name><WBS>1</WBS><Start>2026-01-09</Start><Finish>2026-01-10</Finish><Duration>P0Y0M0DT12H</"
     "Duration></Task><Task>"
     "<UID>2</UID><Name>B</Name><WBS>1.1</WBS><Start>2026-01-09</Start><Finish>2026-01-10</"
     "Finish><Duration>PT12H0M0.0S"
     "</Duration><Deadline>0001-01-01T00:00:00</Deadline><PercentComplete>120</PercentComplete></"
     "Task><Task><Name>C</Name>"
     "<WBS>2</WBS><Start>2026-01-09</Start><Finish>2026-01-09</Finish><Milestone>true</Milestone></Task></"
     "Tasks><Resources>"
     "<Resource><Name>P</Name></Resource><Resource><Name>Q</Name></Resource><Resource><UID>-65535</"
     "UID><Name>Nobody</Name>"
     "</Resource></Resources><Assignments><Assignment><TaskUID>2</TaskUID><ResourceUID>-65535</ResourceUID></"
     "Assignment>"
     "<Assignment><TaskUID>2</TaskUID><ResourceUID>-3</ResourceUID></Assignment></Assignments>",
     "1 A 01-09 08:00 01-10 17:00 2day 100%\n2 B 01-09 08:00 01-10 17:00 2day 100%\n1 C 01-09 08:00 01-09 "
     "08:00 0day "
     "milestone\n",
     "task 2 \"B\", 120 %: a percentage\n"},
    {"a level that is not said comes from the outline number; levels from 0 count from 1",
     "<Tasks>" + task(1, "2026-01-05T08:00", "2026-01-05T17:00", "<OutlineLevel>0</OutlineLevel>") +
         task(2, "2026-01-05T08:00", "2026-01-05T17:00", "<OutlineNumber>1</OutlineNumber>") + "</Tasks>",
     "1 A 01-05 08:00 01-05 17:00 1day\n2 B 01-05 08:00 01-05 17:00 1day\n", ""},
};

std::string findingsText(const Findings &findings, const char *expected)
{
    // As much of each line as is expected.
    std::string text;
    const QStringList wanted = QString::fromUtf8(expected).split(QLatin1Char('\n'));
    for (int i = 0; i < findings.list().size(); ++i) {
        const Finding &finding = findings.list().at(i);
        text += (finding.place + QLatin1String(": ") + finding.what)
                    .left(qMax(20, wanted.value(i).size()))
                    .toStdString() +
                '\n';
    }
    return text;
}

TEST(ProjectXml, filesBecomePlansAndWhatIsLostIsTold)
{
    for (const Case &each : cases) {
        SCOPED_TRACE(each.what);
        KWDocument document;
        MSPDIDataEngine engine(&document);
        EXPECT_TRUE(engine.importBytes(inProject(each.content), QString()));
        EXPECT_EQ(outcome(document), each.outcome);
        EXPECT_EQ(findingsText(engine.findings(), each.findings), each.findings);
    }
}

TEST(ProjectXml, whatIsNoneLeavesTheDocument)
{
    const QByteArray whole = inProject("<Tasks>" + taskA + "</Tasks>");
    KWDocument document;
    MSPDIDataEngine engine(&document);
    const std::string before = savedText(document);
    for (int size = 0; size < whole.size(); ++size)
        EXPECT_FALSE(engine.importBytes(whole.left(size), QStringLiteral("cut"))) << size;
    for (const QByteArray &bad :
         {QByteArray("<!DOCTYPE a [<!ENTITY b \"c\">]>") + whole, QByteArray("<Plan/>"),
          QByteArray("<Project xmlns=\"x\"/>"),
          inProject(QByteArray("<a>").repeated(200) + QByteArray("</a>").repeated(200)), whole + whole}) {
        EXPECT_FALSE(engine.importBytes(bad, QStringLiteral("bad"))) << bad.left(60).constData();
        EXPECT_EQ(engine.findings().count(), 1);
    }
    EXPECT_EQ(savedText(document), before);
}

// Day by day, as a person with a calendar would.
bool isOccurrence(const mspdi::Exception &exception, int day)
{
    const QDate date = LocalClock::dateOf(day);
    const QDate first = LocalClock::dateOf(exception.from.day);
    const int sunday = date.dayOfWeek() % 7;
    const int months = (date.year() - first.year()) * 12 + date.month() - first.month();
    const auto isItem = [&](const QDate &other) {
        const int weekday = other.dayOfWeek();
        return exception.monthItem == 0 || (exception.monthItem == 1 && weekday < 6) ||
               (exception.monthItem == 2 && weekday > 5) || exception.monthItem - 3 == weekday % 7;
    };
    const auto isPosition = [&] {
        int before = 0, behind = 0;
        for (int i = 1; i <= date.daysInMonth(); ++i) {
            const QDate other(date.year(), date.month(), i);
            before += other < date && isItem(other);
            behind += other > date && isItem(other);
        }
        return isItem(date) &&
               (exception.monthPosition == 4 ? behind == 0 : before == exception.monthPosition);
    };
    const bool isMonth = months % int(exception.period) == 0;
    switch (exception.type) {
    case mspdi::Daily:
        return (day - exception.from.day) % int(exception.period) == 0;
    case mspdi::Weekly: {
        const int firstSunday = exception.from.day - first.dayOfWeek() % 7;
        return (exception.daysOfWeek >> sunday & 1) && (day - firstSunday) / 7 % int(exception.period) == 0;
    }
    case mspdi::MonthlyByDay:
        return isMonth && date.day() == exception.monthDay;
    case mspdi::MonthlyByPosition:
        return isMonth && isPosition();
    case mspdi::YearlyByDay:
        return date.month() == exception.month + 1 && date.day() == exception.monthDay;
    default:
        return date.month() == exception.month + 1 && isPosition();
    }
}

TEST(ProjectXml, recurringExceptionsAreThoseOfASlowSearch)
{
    std::mt19937 random(7);
    for (int round = 0; round < 300; ++round) {
        mspdi::Exception exception;
        exception.type = between(random, mspdi::YearlyByDay, mspdi::Daily);
        exception.from.day = between(random, 10000, 20000);
        exception.from.state = mspdi::Moment::Set;
        exception.to = exception.from;
        exception.to.day += between(random, 0, 900);
        exception.countsOccurrences = between(random, 0, 1) == 1;
        exception.occurrences = between(random, 1, 20);
        exception.period = between(random, 1, 5);
        exception.daysOfWeek = between(random, 1, 127);
        exception.month = between(random, 0, 11);
        exception.monthDay = between(random, 1, 31);
        exception.monthItem = between(random, 0, 9);
        exception.monthPosition = between(random, 0, 4);
        const int lastDay = exception.from.day + 1500;
        std::vector<int> expected;
        for (int day = exception.from.day; day <= (exception.countsOccurrences ? lastDay : exception.to.day);
             ++day) {
            if (isOccurrence(exception, day) &&
                (!exception.countsOccurrences || int(expected.size()) < exception.occurrences))
                expected.push_back(day);
        }
        std::vector<int> found;
        for (const mspdi::Dates &dates : mspdi::datesOf(exception, lastDay, 100000))
            found.push_back(dates.first);
        EXPECT_EQ(found, expected) << "type " << exception.type << " round " << round;
    }
}

// ---- Plans of ours ----------------------------------------------------------------------------------------

std::unique_ptr<KWDocument> randomPlan(std::mt19937 &random)
{
    std::unique_ptr<KWDocument> plan = randomplan::plan(random, between(random, 1, 30), 4);
    for (int i = 1; i <= 3; ++i) {
        auto *info = new ResourceInfo;
        info->ID = i * 3;
        info->name = QStringLiteral("Who & %1").arg(i);
        info->type = i / 3;
        info->cost = between(random, 0, 9999) / 4.0;
        info->costUnit = between(random, 0, 4);
        info->costPer = between(random, 0, 100) / 4.0;
        plan->resourceInfoData()->appendResourceInfo(info);
    }
    for (KWTaskInfo *task : plan->taskList()) {
        task->Milestone = task->Milestone && task->Finish - task->Start <= 1 && !task->isParent();
        task->Name += QString::fromUtf8(" <&> \xe5\xb7\xa5");
        task->Notes = between(random, 0, 1) ? QStringLiteral("a\nb ]]> \"c\"") : QString();
        task->Priority = between(random, -500, 500);
        task->Percent = task->isParent() ? 0 : between(random, 0, 4) / 4.0;
        task->DurationUnits = quint32(between(random, 3, 6)); // those that the format has
        const quint32 other = quint32(between(random, 1, plan->taskCount()));
        if (between(random, 0, 2) == 0)
            plan->taskCollection()->taskDependTask(plan->getTaskInfoByID(other), task);
        if (!task->isParent() && between(random, 0, 1))
            task->addOrDelResourceByName(plan.get(),
                                         plan->resourceInfoData()->infos[between(random, 0, 2)]->name, true);
    }
    plan->taskCollection()->pushAllSuccessors();
    plan->updateAllParentPercent();
    for (KWTaskInfo *task : plan->taskList()) {
        task->DurationSecs =
            KWTaskInfo::durationSecs(plan.get(), task->Start, task->Finish, task->DurationUnits);
        task->updateResourceWorkSecs(plan.get());
        task->updateCostAndWork(plan.get());
    }
    return plan;
}

std::string written(KWDocument &document)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    MSPDIDataEngine engine(&document);
    engine.setProjectName(QStringLiteral("Plan"));
    EXPECT_TRUE(engine.exportTo(buffer));
    return buffer.data().toStdString();
}

TEST(ProjectXml, plansComeBackAndAreWrittenTheSame)
{
    const int plans =
        qEnvironmentVariableIsSet("KW_MSPDI_PLANS") ? qEnvironmentVariableIntValue("KW_MSPDI_PLANS") : 40;
    const unsigned seed = unsigned(qEnvironmentVariableIntValue("KW_MSPDI_SEED"));
    for (unsigned i = seed; i < seed + unsigned(plans); ++i) {
        SCOPED_TRACE(i);
        std::mt19937 random(i);
        const auto plan = randomPlan(random);
        const std::string file = written(*plan);
        KWDocument read;
        MSPDIDataEngine engine(&read);
        ASSERT_TRUE(engine.importBytes(QByteArray::fromStdString(file), QString()));
        EXPECT_TRUE(engine.findings().isEmpty()) << engine.findings().list().value(0).place.toStdString()
                                                 << engine.findings().list().value(0).what.toStdString();
        EXPECT_EQ(written(read), file);
        if (qEnvironmentVariableIsSet("KW_MSPDI_FOLDER")) {
            QFile kept(qEnvironmentVariable("KW_MSPDI_FOLDER") + QStringLiteral("/plan%1.xml").arg(i));
            EXPECT_TRUE(kept.open(QIODevice::WriteOnly) && kept.write(file.data(), qint64(file.size())) > 0);
        }
        EXPECT_NEAR(read.getToltalCost(), plan->getToltalCost(), 0.01 * plan->taskCount());
        for (int pos = 0; pos < plan->taskCount(); ++pos) {
            const KWTaskInfo &before = *plan->getTaskInfoAt(pos);
            const KWTaskInfo &after = *read.getTaskInfoAt(pos);
            EXPECT_TRUE(shownmoment::isSame(plan->workCalendar(), before.Start, after.Start)) << pos;
            // A finish that a clock change has put on half a minute is written as it is shown.
            const shownmoment::Moment finish = shownmoment::ofFinish(plan->workCalendar(), before.Finish);
            const shownmoment::Moment again = shownmoment::ofFinish(plan->workCalendar(), after.Finish);
            EXPECT_TRUE(shownmoment::isSame(plan->workCalendar(), before.Finish, after.Finish) ||
                        (finish.day == again.day && finish.secs / 60 == again.secs / 60))
                << pos;
            EXPECT_EQ(before.ParentID, after.ParentID);
            EXPECT_EQ(before.Notes, after.Notes);
        }
    }
}
}
