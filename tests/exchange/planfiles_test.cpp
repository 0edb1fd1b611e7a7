// Plans as people write them, in every kind of file: what they mean, what is said of what they do not, and
// that all kinds mean the same.
//
// KW_PLANS says how many random plans are tried, KW_SEED where they begin.
#include "engine/record/resource.h"
#include "engine/text/showndates.h"
#include "exchange/CSVDataEngine.h"
#include "exchange/XLSDataEngine.h"
#include "exchange/XLSXDataEngine.h"
#include "exchange/csvplan.h"
#include "exchange/csvtext.h"
#include "resources/resourceinfodata.h"
#include "schedule/kwcalendar.h"
#include "schedule/kwtaskcollection.h"
#include "schedule/randomplan.h"
#include "support/gridbook.h"
#include "support/kwclock.h"
#include "support/workbooktitles.h"
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

using randomplan::between;

// A line for each task - ID, name, start, finish, length, predecessors - then the findings.
std::string picture(KWDocument &plan, const ImportedPlan &imported, const Findings &findings)
{
    const csvplan::Rows rows(plan, imported);
    QStringList lines;
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        const auto cell = [&](std::size_t column) { return rows.text(pos, column); };
        QStringList cells{cell(3), cell(4).mid(5), cell(5).mid(5), cell(6)};
        if (plan.getTaskInfoAt(pos)->Percent > 0)
            cells.append(cell(7) + QLatin1Char('%'));
        if (!cell(8).isEmpty())
            cells.append(QLatin1Char('<') + cell(8));
        lines.append(cells.join(QLatin1Char(' ')));
    }
    for (const Finding &finding : findings.list())
        lines.append(QLatin1String("! ") + finding.what + QLatin1String(" > ") + finding.hint);
    return lines.join(QLatin1Char('\n')).toStdString();
}

class PlanFiles : public testing::Test
{
protected:
    PlanFiles()
    {
        KWClock::set(QDateTime(QDate(2026, 3, 2), QTime(15, 0))); // a Monday
        WorkbookTitles::chooseAll();
    }
    ~PlanFiles() override { KWClock::set(QDateTime()); }

    std::string csvPicture(const char *text)
    {
        KWDocument plan;
        csv::Text tasks;
        csv::Fault fault;
        EXPECT_TRUE(csv::check(text, tasks, fault));
        CSVDataEngine engine(&plan);
        engine.importTexts(tasks, nullptr, nullptr);
        return picture(plan, engine.imported(), engine.findings());
    }
    std::string bookPicture(const char *text)
    {
        KWDocument plan;
        Findings findings;
        ImportedPlan imported;
        GridSheet sheet{QString::fromUtf8(text)};
        planimport::importBook(plan, {{&sheet, nullptr, nullptr}}, sheetrows::workbookReading(false),
                               &findings, &imported);
        return picture(plan, imported, findings);
    }

    const WorkbookTitles titles;
    QTemporaryDir folder;
};

struct Case
{
    const char *name, *text, *picture;
};

// What a row says by start, finish and length.
TEST_F(PlanFiles, GiveTasksTheirDatesByOneRule)
{
    const Case cases[] = {
        {"startAndLength", "A|2026-03-02||1,5d", "A 03-02T08:00 03-03T12:00 1.5d"},
        {"finishAndLength", "A||2026-03-06|2 days", "A 03-05T08:00 03-06T17:00 2d"},
        {"lengthAlone", "A|||2w", "A 03-02T08:00 03-13T17:00 2w"},
        {"contradiction", "A|2026-03-02|2026-03-03|5d",
         "A 03-02T08:00 03-03T17:00 2d\n! the length is not that from start to finish > start and finish "
         "count"},
        {"halfDayOfADateAlone", "A|2026-03-02|2026-03-03|1.5d", "A 03-02T08:00 03-03T12:00 1.5d"},
        {"oneDateTwice", "A|2026-03-02|2026-03-02|", "A 03-02T08:00 03-02T17:00 1d"},
        {"oneMomentTwice", "A|2026-03-02 17:00|2026-03-02 17:00|", "A 03-02T17:00 03-02T17:00 0d"},
        {"lengthZeroWithTime", "A|2026-03-02|2026-03-06|0d",
         "A 03-02T08:00 03-06T17:00 5d\n! the length is 0, and there is time between start and finish > "
         "start and "
         "finish count"},
        {"backwards", "A|2026-03-06|2026-03-02|",
         "A 03-06T08:00 03-06T17:00 1d\n! it finishes before it starts > taken as one day long"},
        {"startAlone", "A|2026-03-03||",
         "A 03-03T08:00 03-03T17:00 1d\n! neither a length nor a finish > taken as one day long"},
        {"eveningBeforeADayOff", "A|2026-03-06 17:00|2026-03-06 17:00|0d", "A 03-06T17:00 03-06T17:00 0d"},
        {"quarterThatEndsOnADayOff", "A|2026-03-02|2026-05-30 17:00|1q", "A 03-02T08:00 05-30T17:00 1q"},
        {"dayNumbers", "A|=46083|=46083.5|", "A 03-02T08:00 03-02T12:00 0.5d"},
        {"otherDigits", "A|２０２６-０３-０２||２d", "A 03-02T08:00 03-03T17:00 2d"},
    };
    for (const Case &each : cases) {
        SCOPED_TRACE(each.name);
        EXPECT_EQ(bookPicture((std::string("Name|Start|Finish|Duration\n") + each.text).c_str()),
                  each.picture);
    }
}

TEST_F(PlanFiles, AreReadAsAPersonTypesThem)
{
    const Case books[] = {
        {"germanTitles", "vorgangsname|ANFANG|Dauer|Vorgänger\nA|02.03.26|1 Tag|\nB||2 Wochen|1FS",
         "A 03-02T08:00 03-02T17:00 1d\nB 03-03T08:00 03-16T17:00 2w <1"},
        {"chineseTitles", "任务名称|开始时间|工期\nA|2026年3月2日|2个工作日", "A 03-02T08:00 03-03T17:00 2d"},
        {"misspeltTitle", "Name|Duration|Predecesors\nA|1d|",
         "A 03-02T08:00 03-02T17:00 1d\n! no such column > not read; did you mean 'predecessors'?"},
        {"titleTwice", "Name|Duration|Task name\nA|1d|B",
         "A 03-02T08:00 03-02T17:00 1d\n! it is a second 'Name' > not read"},
        {"columnWithoutTitle", "Name|Duration\nA|1d|x\nB|1d|y",
         "A 03-02T08:00 03-02T17:00 1d\nB 03-02T08:00 03-02T17:00 1d\n! column 3 has no title and 2 cells > "
         "not read"},
        {"percentages", "Name|Duration|Done\nA|1d|=50\nB|1d|=1",
         "A 03-02T08:00 03-02T17:00 1d 50%\nB 03-02T08:00 03-02T17:00 1d 1%"},
        {"shownAsPercentages", "Name|Duration|Done\nA|1d|=0.07%\nB|1d|=1%\nC|1d|=50",
         "A 03-02T08:00 03-02T17:00 1d 7%\nB 03-02T08:00 03-02T17:00 1d 100%\n"
         "C 03-02T08:00 03-02T17:00 1d 50%"},
        {"fractions", "Name|Duration|Done\nA|1d|=0.5\nB|1d|=1",
         "A 03-02T08:00 03-02T17:00 1d 50%\nB 03-02T08:00 03-02T17:00 1d 100%"},
        {"dayFirstByTheColumn", "Name|Start|Duration\nA|3/4/2026|1d\nB|13/4/2026|1d",
         "A 04-03T08:00 04-03T17:00 1d\nB 04-13T08:00 04-13T17:00 1d"},
        {"nothingSaysWhichIsFirst", "Name|Start|Duration\nA|3/4/2026|1d",
         "A 03-04T08:00 03-04T17:00 1d\n! nothing says whether day or month stand first in its dates > the "
         "month "
         "first wherever that is a date"},
        {"wordsAndShortDates", "Name|Start|Duration\nA|2 Mar 2026|1d\nB|2026-3-4|1d\nC|Mar 5, 2026 13:00|2h",
         "A 03-02T08:00 03-02T17:00 1d\nB 03-04T08:00 03-04T17:00 1d\nC 03-05T13:00 03-05T15:00 2h"},
        {"predecessorsOfAllKinds",
         "ID|WBS|Name|Duration|Predecessors\n7|1|A|1d|\n8|2|B \"x\"|1d|#7\n9|3|C|1d|1;\"A\";2.;3FS+2d;3SS",
         "A 03-02T08:00 03-02T17:00 1d\nB \"x\" 03-03T08:00 03-03T17:00 1d <7\nC 03-04T08:00 03-04T17:00 1d "
         "<7;8\n"
         "! '3FS+2d' is no link from finish to start without lag > no predecessor\n"
         "! '3SS' is no link from finish to start without lag > no predecessor"},
        {"repeatedNames", "Name|Duration\nA|1d\nA|2d",
         "A 03-02T08:00 03-02T17:00 1d\nA 03-02T08:00 03-03T17:00 2d"},
        {"total", "ID|Name|Start|Duration\n1|A|2026-03-02|1d\n|Total||120d",
         "A 03-02T08:00 03-02T17:00 1d\nTotal 03-02T08:00 08-14T17:00 120d\n! it has neither a number nor a "
         "start, "
         "as totals have > taken as a task"},
    };
    for (const Case &each : books) {
        SCOPED_TRACE(each.name);
        EXPECT_EQ(bookPicture(each.text), each.picture);
    }
    const Case tables[] = {
        {"lengthDecides", "Name,Start,Finish,Duration\nA,2026-03-02,2026-03-03,5d\n",
         "A 03-02T08:00 03-06T17:00 5d\n! the finish is not where start and length lead > the length counts"},
        {"idsAndPercentages", "ID,Name,Duration,Percent,Predecessors\n7,A,1d,12,\n9,B,1d,\"12,5\",7\n",
         "A 03-02T08:00 03-02T17:00 1d 12%\nB 03-03T08:00 03-03T17:00 1d 12.5% <7"},
        {"likelyFractions", "Name,Duration,Percent\nA,1d,0.5\n",
         "A 03-02T08:00 03-02T17:00 1d 0.5%\n! its numbers may be fractions > read as percentages"},
        {"doubtfulComma", "Name,Duration\nA,\"1,234d\"\n",
         "! '1,234d' is no length of time > nothing was read"},
        {"noTimes", "Name,Owner\nA,me\n",
         "! no such column > not read\n! not a plan: no title 'Duration' > the first row holds the titles: "
         "Name, "
         "Duration, Start, Predecessors, ..."},
    };
    for (const Case &each : tables) {
        SCOPED_TRACE(each.name);
        EXPECT_EQ(csvPicture(each.text), each.picture);
    }
}

// What every kind of file keeps.
std::string said(KWDocument &plan, const ImportedPlan &imported = ImportedPlan())
{
    ImportedPlan without = imported;
    without.codes.clear();
    const csvplan::Rows rows(plan, without);
    QStringList lines;
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        const KWTaskInfo &task = *plan.getTaskInfoAt(pos);
        QStringList cells;
        for (const std::size_t column : {0, 2, 3, 4, 5, 7, 8, 10, 11, 12})
            cells.append(rows.text(pos, column));
        cells.append(QString::number(task.DurationUnits) + QLatin1Char(' ') + QString::number(task.ParentID));
        for (const Resource *resource : task.resourceList)
            cells.append(resource->name.trimmed() + QLatin1Char(' ') +
                         csvplan::numberText(resource->percent));
        lines.append(cells.join(QLatin1Char('|')));
    }
    return (lines.join(QLatin1Char('\n')) + QLatin1Char('\n') + QString::fromUtf8(csvplan::resources(plan)))
        .toStdString();
}

std::unique_ptr<KWDocument> randomPlan(std::mt19937 &random)
{
    std::unique_ptr<KWDocument> plan = randomplan::plan(random, between(random, 1, 30), 5);
    const quint32 begin = quint32(between(random, 0, 9));
    qDeleteAll(plan->workTimes);
    plan->workTimes = {
        new KWDayTime(begin * 3600, (begin + 3) * 3600),
        new KWDayTime((begin + 4) * 3600, quint32(between(random, int(begin) + 5, 24)) * 3600)};
    for (int i = 1; i <= 3; ++i) {
        auto *info = new ResourceInfo;
        info->ID = i;
        info->name = QStringLiteral("R%1").arg(i);
        info->cost = between(random, 0, 99999) / 1000.0;
        info->costUnit = between(random, 0, 4);
        info->unit = between(random, 1, 40) / 8.0;
        plan->resourceInfoData()->appendResourceInfo(info);
    }
    for (KWTaskInfo *task : plan->taskList()) {
        task->DurationSecs =
            KWTaskInfo::durationSecs(plan.get(), task->Start, task->Finish, task->DurationUnits);
        // What is shorter than a minute, as one that lies in a break, comes back as a milestone.
        constexpr quint32 fewMinutes = 600;
        if (!task->isParent() && task->DurationSecs < fewMinutes) {
            task->Milestone = true;
            task->Finish = task->Start + 1;
            task->DurationSecs = 0;
        }
        task->Name = QStringLiteral("Wall, \"%1\" ").arg(between(random, 1, 12)); // some share theirs
        task->Notes = QStringLiteral("a\nb;%1").arg(task->ID);
        task->setPercent(between(random, 0, 8) / 8.0);
        if (!task->isParent() && between(random, 0, 1))
            task->addOrDelResourceByName(plan.get(), QStringLiteral("R%1").arg(between(random, 1, 3)), true);
    }
    for (int i = plan->taskCount(); i > 0; --i)
        plan->taskCollection()->taskDependTask(
            plan->getTaskInfoAt(between(random, 0, plan->taskCount() - 1)),
            plan->getTaskInfoAt(between(random, 0, plan->taskCount() - 1)));
    plan->taskCollection()->updateOptionTaskTime();
    plan->updateDependTask(false); // in the order of the IDs, as an import leaves the links
    return plan;
}

TEST_F(PlanFiles, MeanTheSameInEveryKind)
{
    bool isSet = false;
    const int asked = qEnvironmentVariableIntValue("KW_PLANS", &isSet);
    const int plans = isSet ? asked : 6;
    const int seed = qEnvironmentVariableIntValue("KW_SEED");
    const QString csv = folder.filePath("plan.csv"), resources = folder.filePath("resources.csv"),
                  assignments = folder.filePath("assignments.csv"), xlsx = folder.filePath("plan.xlsx"),
                  xls = folder.filePath("plan.xls"), package = folder.filePath("plan.kwpx");
    for (int i = seed; i < seed + plans; ++i) {
        std::mt19937 random{unsigned(i)};
        const std::unique_ptr<KWDocument> plan = randomPlan(random);
        std::string before = said(*plan);
        const auto compare = [&](const char *kind, auto &&write, auto &&read) {
            SCOPED_TRACE(std::string(kind) + " KW_SEED=" + std::to_string(i));
            WorkbookTitles::chooseAll(); // an import leaves its file's
            write();
            KWDocument back;
            back.workTimes.swap(plan->workTimes);
            back.calendars.swap(plan->calendars);
            const Findings findings = read(back);
            const std::string after = said(back);
            back.workTimes.swap(plan->workTimes);
            back.calendars.swap(plan->calendars);
            EXPECT_EQ(after, before);
            EXPECT_TRUE(findings.isEmpty())
                << (findings.list().value(0).place + ": " + findings.list().value(0).what).toStdString();
            return !testing::Test::HasFailure();
        };
        KWDocument loaded;
        ASSERT_TRUE(plan->save(package) && loaded.loadFromKWGT(package));
        ASSERT_EQ(said(loaded), before) << "package KW_SEED=" << i;
        const auto imported = [](auto &&engine, const QString &file) {
            EXPECT_TRUE(engine.importFile(file));
            return engine.findings();
        };
        const bool isSame =
            compare(
                "CSV",
                [&] {
                    CSVDataEngine engine(plan.get());
                    engine.setResourceFile(resources);
                    engine.setAssignmentFile(assignments);
                    ASSERT_TRUE(engine.exportFile(csv));
                },
                [&](KWDocument &back) {
                    CSVDataEngine engine(&back);
                    engine.setResourceFile(resources);
                    engine.setAssignmentFile(assignments);
                    return imported(engine, csv);
                }) &&
            compare(
                "readable XLSX", [&] { ASSERT_TRUE(XLSXDataEngine(plan.get()).exportFile(xlsx)); },
                [&](KWDocument &back) { return imported(XLSXDataEngine(&back), xlsx); });
        if (!isSame)
            return;
        // By names alone assignments cannot be told apart.
        for (KWTaskInfo *task : plan->taskList())
            task->Name += QString::number(task->ID);
        before = said(*plan);
        if (!compare(
                "plain XLSX",
                [&] {
                    XLSXDataEngine engine(plan.get());
                    engine.setRich(false);
                    ASSERT_TRUE(engine.exportFile(xlsx));
                },
                [&](KWDocument &back) { return imported(XLSXDataEngine(&back), xlsx); }) ||
            !compare(
                "XLS", [&] { ASSERT_TRUE(XLSDataEngine(plan.get()).exportFile(xls)); },
                [&](KWDocument &back) { return imported(XLSDataEngine(&back), xls); }))
            return;
    }
}

// Readable sheets hold numbers where plain ones hold their texts.
TEST_F(PlanFiles, TellWhichNumbersLoseDigits)
{
    KWDocument plan;
    auto *task = new KWTaskInfo;
    task->ID = 1;
    task->setPercent(1.0 / 3);
    plan.appendTaskInfoList(task);
    auto *info = new ResourceInfo;
    info->costPer = 0.125;
    info->cost = 0.344; // written with all of them
    plan.resourceInfoData()->appendResourceInfo(info);
    for (const bool isRich : {true, false}) {
        XLSXDataEngine engine(&plan);
        engine.setRich(isRich);
        ASSERT_TRUE(engine.exportFile(folder.filePath("plan.xlsx")));
        EXPECT_EQ(engine.findings().count(), isRich ? 0 : 2);
    }
}

// A stored moment is what the clock on the wall shows, on the days when it is put forward or back, too.
TEST_F(PlanFiles, KeepWhatTheClockShowsOnDaysThatItChanges)
{
    for (const auto &[from, to] : {std::pair(8, 17), {0, 24}, {6, 14}}) {
        KWDocument plan;
        qDeleteAll(plan.workTimes);
        plan.workTimes = {new KWDayTime(quint32(from) * 3600, quint32(to) * 3600)};
        std::fill(std::begin(plan.WorkDay), std::end(plan.WorkDay), true);
        const worktime::WorkCalendar &calendar = plan.workCalendar();
        for (QDate date(2026, 1, 1); date.year() == 2026; date = date.addDays(1)) {
            const int day = LocalClock::dayOf(date);
            for (int secs = from * 3600 + 1800; secs < to * 3600; secs += 1800) {
                const shownmoment::Moment shown{day, secs, true};
                const quint32 start = shownmoment::start(calendar, shown);
                const quint32 finish = shownmoment::finish(calendar, shown);
                // The stored time, a fraction of the whole day, may be one that the clock skips.
                const LocalClock &clock = calendar.clock();
                const LocalClock::Wall stored = worktime::toDayWall(calendar, {day, secs});
                const bool exists = clock.wall(clock.moment(stored.day, stored.secs)).secs == stored.secs;
                if (!exists) {
                    EXPECT_GE(start, quint32(clock.startOfDay(day)));
                    continue;
                }
                EXPECT_EQ(shownmoment::ofStart(calendar, start), shown)
                    << date.toString().toStdString() << secs;
                if (to < 24) {
                    EXPECT_EQ(shownmoment::ofFinish(calendar, finish), shown)
                        << date.toString().toStdString() << secs;
                }
            }
            const quint32 end = shownmoment::finish(calendar, {day, 0, false});
            EXPECT_EQ(end, quint32(calendar.clock().startOfDay(day + 1)));
            EXPECT_EQ(shownmoment::start(calendar, {day, 0, false}),
                      quint32(calendar.clock().startOfDay(day)));
        }
    }
}
}
