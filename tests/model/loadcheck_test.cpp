// What a document says of a file that was not taken as it stands: each fault, silent once, with its words.
#include "edits/planzone.h"
#include "engine/time/duration.h"
#include "kwzip.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwcalendar.h"
#include "support/casename.h"
#include "support/folder.h"
#include "support/project.h"
#include "support/zonescope.h"
#include "table/rowcolumndata.h"
#include <QDir>
#include <QScopedValueRollback>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <memory>
#include <random>

namespace {

const char *const plan = R"(<Document DocGuid="{1}" Version="1.4">
<GanttOption><WorkDay V="1;1;1;1;1;0;0"/><MajorUnit V="3"/><MinorUnit V="0"/><StartTime V="28800;46800"/>
<FinishTime V="43200;61200"/><UnitWidth V="100"/></GanttOption>
<TaskList><Task Name="Dig" Percent="0.5" Start="1767571200" Finish="1767830400" DurationSecs="259200"
 DurationUnits="4" Milestone="0" Level="1" ID="1" Depends="2"/>
<Task Name="Fill" Start="1767830400" Finish="1767916800" Level="1" ID="2" Predecessors="1"><ResourceList>
<Resource ID="1" Name="Ann" Percent="1" CostUnit="1"/></ResourceList></Task></TaskList>
<ResourceInfo><Column ID="1" Name="Ann"/><Column ID="2" Name="Bob"/></ResourceInfo>
<RowColumn><RowHeightList RowHeight="30;30"/><ColumnList><Column Key="1" Width="9"/></ColumnList></RowColumn>
<PrintCfg><PrintSetup Unit="mm"/></PrintCfg>
<CdCalendarList><CdCalendar CdExceptionName="Fair" CdStartDate="1767744000" CdFinishDate="1767744000"
 CdIsException="1" CdIsWork="0" CdStartTime="" CdFinishTime=""/></CdCalendarList></Document>)";

struct Fault
{
    const char *name;
    const char *from; // text of the plan, and what stands there instead
    const char *to;
    const char *findings; // "kind place: words", one a line; from the words of the plan without a fault: none
};

// One line for each finding.
std::string told(const KWDocument &document)
{
    QString text;
    for (const Finding &finding : document.loadFindings().list())
        text += QLatin1String(Finding::kindName(finding.kind)) + QLatin1Char(' ') + finding.place +
                QLatin1String(": ") + finding.what + QLatin1Char('\n');
    return text.toStdString();
}

class LoadCheck : public testing::TestWithParam<Fault>
{
};

TEST_P(LoadCheck, TellsWhatWasNotTaken)
{
    const ZoneScope zone("UTC"); // that of the dates above
    const QScopedValueRollback names(RowColumnData::s_columnNames, {{1, QStringLiteral("Task Name")}});
    QByteArray xml(plan);
    if (*GetParam().from) {
        ASSERT_EQ(xml.count(GetParam().from), 1) << GetParam().from;
        xml.replace(GetParam().from, GetParam().to);
    }
    const QTemporaryDir box;
    folder::put(box.path() + QStringLiteral("/document.xml"), xml);
    KWDocument document;
    ASSERT_TRUE(document.loadDocument(box.path() + QLatin1Char('/'), 0));
    EXPECT_EQ(told(document), GetParam().findings);
    document.loadDocument(box.path() + QLatin1Char('/'), 0);
    EXPECT_EQ(told(document), GetParam().findings) << "loaded twice";
}

INSTANTIATE_TEST_SUITE_P(
    Faults, LoadCheck,
    testing::Values(
        Fault{"nothing", "", "", ""},
        // Lists.
        Fault{"secondTaskList", "</TaskList>", "</TaskList><TaskList/>",
              "lost : 'TaskList' stands twice: the last one is taken, and the 2 elements of the one before "
              "are not\n"
              "lost : there are 0 tasks in the file and 2 row heights\n"},
        Fault{"emptyListBeforeTheTasks", "<TaskList>", "<TaskList/><TaskList>",
              "changed : 'TaskList' stands twice: the last one is taken\n"},
        Fault{"otherElementInTheTaskList", "<Task Name=\"Dig\"", "<Tsk Name=\"Dug\"/><Task Name=\"Dig\"",
              "changed : there are 3 tasks in the file and 2 row heights\n"
              "changed : an element 'Tsk' is read as a 'Task'\n"},
        Fault{"misspelledList", "<GanttOption>", "<TskList><a/><a/></TskList><GanttOption>",
              "lost : the element 'TskList' in 'Document' is not known: passed over with the 2 elements in "
              "it\n"},
        Fault{"misspelledAttribute", "DurationUnits=\"4\"", "DurationUnit=\"4\"",
              "lost task 1: the attribute 'DurationUnit' of 'Task' is not known: passed over\n"},
        Fault{"text", "</TaskList>", "x</TaskList>",
              "lost : text beside the elements of 'TaskList' is passed over\n"},
        Fault{"newerVersion", "Version=\"1.4\"", "Version=\"2.0\"",
              "read : the file has version 2.0, and what a version after 1.4 added is not known\n"},
        // Values.
        Fault{"percentAsPercent", "Percent=\"0.5\"", "Percent=\"50\"",
              "read task 1: 50 done is not within 0 to 1 (100 %): kept\n"},
        Fault{"percentBelowZero", "Percent=\"0.5\"", "Percent=\"-0.5\"",
              "read task 1: -0.5 done is not within 0 to 1 (100 %): kept\n"},
        Fault{"percentNan", "Percent=\"0.5\"", "Percent=\"nan\"",
              "changed task 1: Percent: 'nan' is no number: 0 is taken\n"},
        Fault{"percentText", "Percent=\"0.5\"", "Percent=\"x\"",
              "changed task 1: Percent: 'x' is no number: 0 is taken\n"},
        Fault{"startZero", "Start=\"1767571200\"", "Start=\"0\"",
              "read task 1: it has a finish and no start: kept, as if it began in 1970\n"},
        Fault{"finishFirst", "Finish=\"1767830400\"", "Finish=\"1767484800\"",
              "read task 1: it finishes before it starts: kept\n"},
        Fault{"longMilestone", "Milestone=\"0\"", "Milestone=\"1\"",
              "read task 1: a milestone that takes time: kept, and shown without its length\n"},
        Fault{"unknownUnit", "DurationUnits=\"4\"", "DurationUnits=\"9\"",
              "read task 1: 9 is no unit of durations: kept, and counted in days\n"},
        Fault{"repeatedPredecessor", "Predecessors=\"1\"", "Predecessors=\"1;x;1\"",
              "changed task 2: Predecessors: 'x' at place 2 is no number: 0 is taken\n"
              "read task 2: it names the predecessor 1 twice: kept\n"},
        Fault{"entriesOfOneId", "ID=\"2\" Name=\"Bob\"", "ID=\"1\" Name=\"Bob\"",
              "read resource 2: ID 1 is that of resource 1, too: resources are told apart by their names\n"},
        Fault{"negativeUnits", "Percent=\"1\"", "Percent=\"-1\"",
              "read task 2, resource 'Ann': its units are negative\n"},
        Fault{"unknownRate", "CostUnit=\"1\"", "CostUnit=\"7\"",
              "read task 2, resource 'Ann': the unit of its rate is not known: it costs nothing\n"},
        Fault{"unknownColumn", "Key=\"1\"", "Key=\"99\"",
              "changed column 1: there is no column of its kind: it stays empty\n"},
        // Working time.
        Fault{"overlapping", "28800;46800", "28800;39600",
              "read working time: the interval 11:00-17:00 overlaps one before it: the hours of both count\n"
              "changed working time: a day counts as 10 hours of work from 8:00 to 17:00\n"},
        Fault{"reversed", "43200;61200", "61200;43200",
              "read working time: the interval 13:00-12:00 ends before it begins: it counts as nothing\n"
              "changed working time: a day counts as 9 hours of work from 8:00 to 12:00\n"},
        Fault{"empty", "28800;46800", "43200;46800",
              "read working time: the interval 12:00-12:00 has no length\n"
              "changed working time: a day counts as 4 hours of work from 12:00 to 17:00\n"},
        Fault{"pastMidnight", "43200;61200", "43200;90000",
              "changed working time: the interval 13:00-25:00 lies past midnight: it counts up to 24:00\n"
              "changed working time: a day counts as 15 hours of work from 8:00 to 24:00\n"},
        Fault{"textAsTime", "28800;46800", "8:00;46800",
              "changed StartTime: '8:00' at place 1 is no number: 0 is taken\n"},
        Fault{"unevenCounts", "43200;61200", "43200;61200;64800",
              "lost working time: 2 starts and 3 finishes: the surplus is passed over\n"},
        Fault{"noHours", "<StartTime V=\"28800;46800\"/>", "",
              "lost working time: 0 starts and 2 finishes: the surplus is passed over\n"
              "refused working time: a day has no hours of work: nothing can be scheduled\n"},
        Fault{"noWorkingDay", "1;1;1;1;1;0;0", "0;0;0;0;0;0;0",
              "refused working time: no day of the week is a working day: nothing can be scheduled\n"},
        Fault{"daysAsNames", "1;1;1;1;1;0;0", "1;1;1;1;yes;0;0",
              "changed WorkDay: 'yes' for day 5 is neither 1 nor 0: a day off is taken\n"},
        Fault{"reversedException", "CdFinishDate=\"1767744000\"", "CdFinishDate=\"1767484800\"",
              "read exception 1 'Fair': it begins on 2026-01-07 and ends on 2026-01-04: it covers no date\n"},
        Fault{"exceptionWithoutDate", "CdStartDate=\"1767744000\"", "CdStartDate=\"\"",
              "changed exception 1 'Fair': there is no start: today is taken\n"},
        Fault{"halfDay", "CdIsWork=\"0\" CdStartTime=\"\" CdFinishTime=\"\"",
              "CdIsWork=\"1\" CdStartTime=\"28800\" CdFinishTime=\"43200\"",
              "changed exception 1 'Fair': its hours 08:00-12:00 are not kept: a whole working day of 8 "
              "hours is "
              "counted\n"}),
    caseName<Fault>);

// Tasks are read from the text where it is as saving writes it, and from a tree otherwise: whatever stands
// there, both make the same tasks of it and tell the same.
TEST(ReadTasks, FromTheTextAreThoseFromATree)
{
    const ZoneScope zone("UTC");
    const QTemporaryDir box;
    const auto load = [&box](const QByteArray &xml, KWDocument &document) {
        folder::put(box.path() + QStringLiteral("/document.xml"), xml);
        return document.loadDocument(box.path() + QLatin1Char('/'), 0);
    };
    const auto saved = [&box](const KWDocument &document) {
        EXPECT_TRUE(document.saveDocument(box.path() + QLatin1Char('/')));
        return folder::get(box.path() + QStringLiteral("/document.xml"));
    };
    KWDocument document;
    ASSERT_TRUE(load(plan, document));
    document.getTaskInfoAt(0)->Notes =
        QString::fromUtf8("<a> & \"b\"\t\r\nÄ工 'c' &amp; 12345678901234567890");
    document.getTaskInfoAt(1)->CountWidth = 1.5e-7;
    const QByteArray written = saved(document);
    const std::vector<QByteArray> pieces{"&",
                                         "&amp;",
                                         "&#xa;",
                                         "&#10;",
                                         "\n",
                                         " ",
                                         "\"",
                                         "'",
                                         "-1",
                                         "1;;2",
                                         "<",
                                         "/",
                                         ">",
                                         "=",
                                         "x",
                                         "1e5",
                                         "5.",
                                         "0x1",
                                         "999999999999",
                                         "<!---->",
                                         " Name=\"a\"",
                                         " Odd=\"1\"",
                                         "<Format Bold=\"1\"/>"};
    const int begin = written.indexOf("<TaskList>");
    const int size = written.indexOf("</TaskList>") - begin;
    std::mt19937 random(7);
    int readable = 0;
    for (int round = 0; round < 3000; ++round) {
        QByteArray xml = written;
        for (int change = int(random() % 3); change > 0; --change)
            xml.replace(begin + int(random() % unsigned(size)), int(random() % 3),
                        pieces[random() % pieces.size()]);
        QByteArray byTree = xml;
        byTree.replace("<Task ", "<Task\n ");
        KWDocument fromText, fromTree;
        const bool isRead = load(xml, fromText);
        readable += isRead;
        ASSERT_EQ(load(byTree, fromTree), isRead) << xml.toStdString();
        if (!isRead)
            continue;
        ASSERT_EQ(told(fromText), told(fromTree)) << xml.toStdString();
        ASSERT_EQ(saved(fromText), saved(fromTree)) << xml.toStdString();
    }
    EXPECT_GT(readable, 500);
}

// The zone's name and the plan's are parts of the package, and what else is there and goes is told.
TEST(PackageZone, TravelsWithTheNameAndOtherPartsAreTold)
{
    const QTemporaryDir box;
    const QString path = box.path() + QStringLiteral("/plan.kwpx");
    const QString parts = box.path() + QStringLiteral("/parts/");
    KWDocument document;
    document.TimeZone = QStringLiteral("America/New_York");
    document.PlanName = QString::fromUtf8("Plan \xe5\xb7\xa5 & more");
    ASSERT_TRUE(document.save(path));
    KWDocument loaded;
    ASSERT_TRUE(loaded.loadFromKWGT(path));
    EXPECT_EQ(loaded.TimeZone, document.TimeZone);
    EXPECT_EQ(loaded.PlanName, document.PlanName);
    EXPECT_EQ(told(loaded), "");

    QDir().mkpath(parts);
    ASSERT_TRUE(KWZip::unZip(path, parts));
    folder::put(parts + QStringLiteral("media/timezone"), "../../etc/passwd\n");
    folder::put(parts + QStringLiteral("media/name"), "one\ntwo\n");
    folder::put(parts + QStringLiteral("media/photo.png"), "PNG");
    ASSERT_TRUE(KWZip::zip(path, parts));
    ASSERT_TRUE(loaded.loadFromKWGT(path));
    EXPECT_EQ(loaded.TimeZone, QString());
    EXPECT_EQ(told(loaded), "lost media/timezone: this is no name of a time zone: passed over\n"
                            "lost media/name: this is no name on one line: passed over\n"
                            "lost media/photo.png: this part of the package is passed over\n");
    folder::put(path, "PK");
    EXPECT_FALSE(loaded.loadFromKWGT(path));
    EXPECT_EQ(loaded.loadFindings().count(Finding::Refused), 1);
}

// A plan is told from its shifted self by its days and hours, in the zones of those who made it and of those
// who read it.
TEST(PlanZone, IsFoundFromTheMoments)
{
    EXPECT_TRUE(ZoneScope::isKnown("Etc/UTC"));
    EXPECT_FALSE(ZoneScope::isKnown("Mars/Base"));
    const QList<QByteArray> zones{"UTC", "Europe/Berlin", "America/New_York", "Asia/Shanghai",
                                  "Asia/Kolkata"};
    for (const QByteArray &made : zones) {
        std::unique_ptr<Project> project;
        {
            const ZoneScope scope(made);
            project =
                std::make_unique<Project>("Mon-Fri 8-12 13-17, start 2024-03-04", "Survey 3d\n"
                                                                                  "Dig 4h after Survey\n"
                                                                                  "Pour 8d after Dig\n"
                                                                                  "Cure 2w after Pour\n"
                                                                                  "Frame 20d after Cure\n");
            // As editing keeps them, and packages.
            const worktime::WorkCalendar &calendar = project->document().workCalendar();
            for (KWTaskInfo *task : project->document().taskList())
                task->DurationSecs = duration::secs(calendar, task->Start, task->Finish, task->DurationUnits);
        }
        for (const QByteArray &read : zones) {
            const ZoneScope scope(read);
            const QList<QByteArray> better = planzone::better(project->document());
            if (read == made)
                EXPECT_EQ(better, QList<QByteArray>()) << made.constData();
            else
                EXPECT_EQ(better.value(0), made) << "read in " << read.constData();
        }
    }
}
}
