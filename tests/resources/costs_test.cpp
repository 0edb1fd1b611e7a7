// Cost and work of assignments, and every pass over them against its plain rules.
#include "resources/assignmentbatch.h"
#include "resources/plaincosts.h"
#include "schedule/kwcalendar.h"
#include "schedule/kwtaskcollection.h"
#include "schedule/randomplan.h"
#include "support/kwclock.h"
#include "support/project.h"
#include <gtest/gtest.h>
#include <memory>

namespace {

using randomplan::between;

// ---- One assignment ---------------------------------------------------------------------------------------

struct RateCase
{
    const char *name;
    const char *duration; // of the task, from Monday 4 March 2024; 8-12 13-17 Monday to Friday
    int costUnit;
    double rate, cost;
};

TEST(Rates, fullTimeAssignmentCosts)
{
    const RateCase cases[] = {{"hoursByHour", "8h", 1, 10, 80},
                              {"hoursByMinute", "2h", 0, 1, 120},
                              {"hoursByMonth", "88h", 4, 100, 50},
                              {"daysByDay", "3d", 2, 100, 300},
                              {"weeksByWeek", "2w", 3, 100, 200},
                              // 30 days from 4 March to 2 April span 22 working days.
                              {"monthByDay", "1mon", 2, 100, 2200},
                              {"monthByWeek", "1mon", 3, 100, 440},
                              {"quarterByMonth", "1q", 4, 100, 300},
                              {"unknownUnitCostsNoTime", "3d", 5, 100, 0},
                              {"negativeUnitCostsNoTime", "3d", -1, 100, 0}};
    for (const RateCase &row : cases) {
        SCOPED_TRACE(row.name);
        Project project("Mon-Fri 8-12 13-17", (std::string("Build ") + row.duration).c_str());
        KWTaskInfo &build = project.task("Build");
        build.addOrDelResourceByName(&project.document(), "Ann", true);
        Resource &ann = *build.getResourceAt(0);
        ann.costUnit = row.costUnit;
        ann.cost = row.rate;
        EXPECT_NEAR(build.resourceCost(&project.document(), &ann), row.cost, 1e-9);
        ann.costPer = 5;
        ann.percent = 0.5;
        EXPECT_NEAR(build.resourceCost(&project.document(), &ann), row.cost + 2.5, 1e-9);
    }
}

TEST(AssignmentCost, isFiniteWithoutWorkingHours)
{
    // An interval of half an hour holds no whole hour.
    Project project("Mon-Fri 8-8:30", "Build 1d");
    KWDocument &document = project.document();
    KWTaskInfo &build = project.task("Build");
    build.addOrDelResourceByName(&document, "Ann", true);
    Resource &ann = *build.getResourceAt(0);
    ann.cost = 100;
    ann.costPer = 7;
    for (build.DurationUnits = 0; build.DurationUnits <= 7; ++build.DurationUnits) {
        for (ann.costUnit = 0; ann.costUnit < 5; ++ann.costUnit) {
            ann.workSecs = 86400;
            const double total = build.resourceCost(&document, &ann);
            EXPECT_TRUE(std::isfinite(total)) << build.DurationUnits << ' ' << ann.costUnit;
            const bool dividesByHours = build.DurationUnits >= 5 && ann.costUnit >= 2;
            if (dividesByHours) {
                EXPECT_EQ(total, 7) << build.DurationUnits << ' ' << ann.costUnit;
            }
        }
    }
}

TEST(AssignmentCost, staysInTheRangeOfTime)
{
    Project project("Mon-Fri 8-16", "Build 1d");
    KWTaskInfo &build = project.task("Build");
    build.addOrDelResourceByName(&project.document(), "Ann", true);
    Resource &ann = *build.getResourceAt(0);
    const std::pair<double, quint32> cases[] = {
        {1e300, 4294967295u}, {-3, 0u}, {std::nan(""), 0u}, {0.99999, 86399u}};
    for (const auto &[percent, secs] : cases) {
        ann.percent = percent;
        build.updateResourceWorkSecs(&project.document());
        EXPECT_EQ(ann.workSecs, secs) << percent;
    }
    // The end of such work lies after the last moment there is.
    ann.percent = 1;
    ann.workSecs = 4294967295u;
    ann.cost = 1;
    ann.costUnit = 2;
    build.DurationUnits = 2;
    const double days = build.resourceCost(&project.document(), &ann);
    EXPECT_GT(days, 20000);
    EXPECT_LT(days, 22000);
}

TEST(Work, isConvertedToHoursByWorkingDays)
{
    Project project("Mon-Thu 8-16", "Build 1d");
    KWDocument &document = project.document();
    KWTaskInfo &build = project.task("Build");
    const double hoursOfOne[] = {264 * 8, 66 * 8, 22 * 8, 4 * 8, 8, 1, 1 / 60.0, 0};
    for (build.DurationUnits = 0; build.DurationUnits < 8; ++build.DurationUnits)
        EXPECT_EQ(build.transforHourWork(&document, 1), hoursOfOne[build.DurationUnits])
            << build.DurationUnits;
    build.DurationUnits = 4;
    EXPECT_EQ(build.transforHourWork(nullptr, 3), 3);
}

// ---- Up the outline ---------------------------------------------------------------------------------------

TEST(Assigning, rollsUpToEveryAncestor)
{
    Project project("Mon-Fri 8-12 13-17", "House\n  Walls\n    Brick 2d\n    Paint 50% 4h\n  Roof 1d\n");
    KWDocument &document = project.document();
    for (const auto &[name, rate] : {std::pair("Ann", 10.0), std::pair("Bob", 20.0)}) {
        auto *info = new ResourceInfo;
        info->name = name;
        info->ID = document.resourceInfoData()->maxID();
        info->cost = rate;
        info->costPer = 4;
        info->unit = 3;
        document.resourceInfoData()->appendResourceInfo(info);
    }
    // Summaries lose what they hold.
    project.task("Walls").resourceList.append(new Resource);
    project.task("Brick").addOrDelResourceByName(&document, " Ann ", true);
    project.task("Paint").addOrDelResourceByName(&document, "Bob", true);
    project.task("Paint").addOrDelResourceByName(&document, "Ann", true);
    project.task("Paint").addOrDelResourceByName(&document, "Ann  ", true); // is there
    project.task("Walls").addOrDelResourceByName(&document, "Ann", true);   // a summary
    project.task("Roof").addOrDelResourceByName(&document, "Zoe", true);    // not in the sheet
    const auto row = [&](const char *name) {
        const KWTaskInfo &task = project.task(name);
        return QString("%1: %2, %3, %4 left, %5 assigned")
            .arg(task.Resources)
            .arg(task.Cost)
            .arg(task.Work)
            .arg(task.RemainingCost)
            .arg(task.resourceList.size());
    };
    EXPECT_EQ(row("Brick"), "Ann: 164, 2, 164 left, 1 assigned");
    EXPECT_EQ(row("Paint"), "Bob; Ann: 128, 8, 60 left, 2 assigned");
    EXPECT_EQ(row("Roof"), "Zoe: 0, 1, 0 left, 1 assigned");
    EXPECT_EQ(row("Walls"), "Ann; Bob: 292, 24, 224 left, 0 assigned");
    EXPECT_EQ(row("House"), "Ann; Bob; Zoe: 292, 32, 224 left, 0 assigned");
    EXPECT_EQ(document.getToltalCost(), 292);
    EXPECT_EQ(document.getCostToCompletion(), 224);
    EXPECT_EQ(project.task("Brick").getResourceAt(0)->percent, 1); // not the sheet's 3

    project.task("Brick").addOrDelResourceByName(&document, "Ann", false);
    EXPECT_EQ(row("Brick"), ": 0, 0, 0 left, 0 assigned");
    EXPECT_EQ(row("House"), "Bob; Ann; Zoe: 128, 16, 60 left, 0 assigned");
}

TEST(Assigning, namesAnnouncedToLeaveAreGoneFromTheirSummaries)
{
    Project project("Mon-Fri 8-16", "House\n  Walls\n    Brick\n      Lay\n    Paint\n  Roof\n");
    KWDocument &document = project.document();
    project.task("Lay").addOrDelResourceByName(&document, "Ann", true);
    project.task("Paint").addOrDelResourceByName(&document, "Bob", true);
    project.task("Roof").addOrDelResourceByName(&document, "Cid", true);
    project.task("Brick").outdentUpateParentResources(&document);
    EXPECT_EQ(project.task("Walls").Resources, "Bob");
    EXPECT_EQ(project.task("House").Resources, "Ann; Bob; Cid");
    project.task("Brick").updateParentResources(&document, false);
    EXPECT_EQ(project.task("House").Resources, "Bob; Cid");
    EXPECT_EQ(project.task("Brick").Resources, "Ann");
    project.task("Brick").updateParentResources(&document, true);
    EXPECT_EQ(project.task("House").Resources, "Ann; Bob; Cid");

    QStringList names{"Bob", "Dan"};
    project.task("House").subTaskResourceName(&document, names);
    EXPECT_EQ(names, QStringList({"Bob", "Dan", "Ann", "Cid"}));
}

TEST(BaselineCost, isAddedUpAsTextWithSixDigits)
{
    Project project("Mon-Fri 8-16", "House\n  Walls 1d\n  Roof 1d\n");
    KWDocument &document = project.document();
    project.task("House").BaselineCost = "nonsense";
    project.task("Walls").BaselineCost = "1234567.5";
    project.task("Roof").BaselineCost = "0.25";
    project.task("Walls").updateParentStrBaseCost(&document, 1234567.5);
    EXPECT_EQ(project.task("House").BaselineCost, "1.23457e+06");
    project.task("Walls").BaselineCost.clear();
    project.task("House").basisSubUpdateStrBaseCost(&document);
    EXPECT_EQ(project.task("House").BaselineCost, "0.25");
    project.task("Roof").BaselineCost = "nan";
    project.task("House").basisSubUpdateStrBaseCost(&document);
    EXPECT_EQ(project.task("House").BaselineCost, "0");
}

TEST(SubTaskAssignments, comeWithTheLeafThatCountsThem)
{
    Project project("Mon-Fri 8-16", "House 3h\n  Walls 1d\n  Roof 2d\n");
    KWDocument &document = project.document();
    for (const char *task : {"Walls", "Roof"})
        project.task(task).addOrDelResourceByName(&document, "Ann", true);
    QList<QPair<KWTaskInfo *, Resource *>> assignments;
    project.task("House").allSubTaskResourceList(&document, assignments);
    ASSERT_EQ(assignments.size(), 2);
    for (const auto &[task, resource] : assignments)
        EXPECT_TRUE(KWTaskInfo::isResourceContains(task->resourceList, resource));
    EXPECT_EQ(assignments[1].first, &project.task("Roof"));
    EXPECT_TRUE(project.task("House").isSubHaveResource(&document));
    project.task("Walls").deleteResourceByID(0);
    project.task("Roof").clearResources();
    EXPECT_FALSE(project.task("House").isSubHaveResource(&document));
}

// ---- Against the plain rules ------------------------------------------------------------------------------

const QStringList someNames{"Ann", "Bob", " Ann ", "bob", "", "Sand", "Crane\t", "Ümit", "Nobody"};

double someAmount(std::mt19937 &random)
{
    return between(random, 0, 4) == 0 ? 0 : between(random, -3, 400) / 7.0;
}

Resource *someAssignment(std::mt19937 &random, const KWTaskInfo &task)
{
    auto *resource = new Resource;
    resource->name = someNames[between(random, 0, someNames.size() - 1)];
    resource->percent = between(random, 0, 30) / 10.0;
    resource->type = between(random, 0, 3) == 0 ? between(random, 1, 2) : 0;
    resource->ID = between(random, 0, 3);
    resource->cost = someAmount(random);
    resource->costUnit = between(random, 0, 5);
    resource->costPer = someAmount(random);
    resource->workSecs =
        between(random, 0, 5) == 0 ? random() : quint32(task.DurationSecs * resource->percent);
    return resource;
}

// The same seed gives the same project.
std::unique_ptr<KWDocument> costlyPlan(unsigned int seed)
{
    std::mt19937 random(seed);
    auto document = randomplan::plan(random, between(random, 1, 25), 5);
    // Some summaries stand behind what is below them.
    for (int swaps = std::max(0, between(random, -12, 4)); swaps > 0; --swaps) {
        const int from = between(random, 0, document->taskCount() - 1);
        const int to = between(random, 0, document->taskCount() - 1);
        KWTaskInfo *moved = document->getTaskInfoAt(from);
        KWTaskInfo *other = document->getTaskInfoAt(to);
        document->replaceAt(to, moved);
        document->replaceAt(from, other);
    }
    if (between(random, 0, 9) == 0)
        std::fill(std::begin(document->WorkDay), std::end(document->WorkDay), false);
    if (between(random, 0, 9) == 0) {
        qDeleteAll(document->workTimes);
        document->workTimes.clear();
    }
    for (int i = between(random, 0, 6); i > 0; --i) {
        auto *info = new ResourceInfo;
        info->name = someNames[between(random, 0, someNames.size() - 1)];
        info->ID = i;
        info->type = between(random, 0, 1);
        info->cost = someAmount(random);
        info->costUnit = between(random, 0, 4);
        info->costPer = someAmount(random);
        info->overtimeCost = someAmount(random);
        document->resourceInfoData()->appendResourceInfo(info);
    }
    for (KWTaskInfo *task : document->taskList()) {
        task->DurationUnits = quint32(between(random, 0, 7));
        task->setPercent(between(random, -2, 6) / 5.0);
        task->Cost = someAmount(random);
        task->Work = someAmount(random);
        task->RemainingCost = someAmount(random);
        task->BaseStart = random();
        if (between(random, 0, 1))
            task->BaselineCost = QString::number(someAmount(random));
        // Some summaries hold assignments that they should not.
        const int count = !task->isParent() ? between(random, 0, 3) : std::max(0, between(random, -9, 4));
        for (int i = 0; i < count; ++i)
            task->resourceList.append(someAssignment(random, *task));
    }
    return document;
}

// One operation with the same random choices, by the library and by the plain rules.
std::string operate(std::mt19937 &random, KWDocument &document, bool plain)
{
    KWTaskInfo &task = *document.getTaskInfoAt(between(random, 0, document.taskCount() - 1));
    const QString name = someNames[between(random, 0, someNames.size() - 1)];
    const QString other = someNames[between(random, 0, someNames.size() - 1)];
    const bool flag = between(random, 0, 1);
    const int what = between(random, 0, 5);
    const int operation = between(random, 0, 11);
    switch (operation) {
    case 0:
        plain ? plaincosts::updateCostAndWork(document, task) : task.updateCostAndWork(&document);
        break;
    case 1:
        plain ? plaincosts::updateRemainCost(document, task) : task.updateRemainCost(&document);
        break;
    case 2:
        plain ? plaincosts::updateResourceName(document, task) : task.updateResourceName(&document);
        break;
    case 3:
        if (!name.isEmpty())
            plain ? plaincosts::addOrDelResourceByName(document, task, name, flag)
                  : task.addOrDelResourceByName(&document, name, flag);
        break;
    case 4:
        if (!name.isEmpty() && !other.isEmpty())
            plain ? plaincosts::replaceResourceName(document, task, name, other)
                  : task.replaceResourceName(&document, name, other);
        break;
    case 5:
        plain ? plaincosts::updateParentInfoFromSomeColumn(document, task, flag)
              : task.updateParentInfoFromSomeColumn(&document, flag, false);
        break;
    case 6:
        plain ? plaincosts::basisSubUpdateFromSomeColumn(document, task)
              : task.basisSubUpdateFromSomeColumn(&document);
        break;
    case 7:
        if (!name.isEmpty() && !other.isEmpty())
            plain ? plaincosts::replaceTaskResourceName(document, name, other)
                  : document.replaceTaskResourceName(name, other);
        break;
    case 8:
        plain ? plaincosts::updateResourcesName(document) : document.updateResourcesName();
        break;
    case 9:
        plain ? plaincosts::updateCostCompletCostWork(document) : document.updateCostCompletCostWork();
        break;
    case 10:
        if (const ResourceInfo *info = document.resourceInfoData()->getResourceInfoAt(0))
            plain ? plaincosts::changeAllTaskSameNameResource(document, *info, what)
                  : info->changeAllTaskSameNameResource(&document, ResourceInfo::ChangeVal(what));
        break;
    case 11: {
        ResourceInfoData &sheet = *document.resourceInfoData();
        if (flag)
            plain ? plaincosts::updateWorkStarAndFinishWork(document)
                  : sheet.updateWorkStarAndFinishWork(&document);
        else
            plain ? plaincosts::udpateWorkAndCost(document) : sheet.udpateWorkAndCost(&document);
        break;
    }
    }
    return std::to_string(operation) + " on " + std::to_string(task.ID) + " \"" + name.toStdString() +
           "\" \"" + other.toStdString() + "\" " + std::to_string(flag) + ' ' + std::to_string(what);
}

TEST(Costs, followTheirPlainRulesToTheLastBit)
{
    for (unsigned int seed = 1; seed <= 150; ++seed) {
        const auto document = costlyPlan(seed);
        const auto plain = costlyPlan(seed);
        ASSERT_EQ(plaincosts::picture(*document), plaincosts::picture(*plain));
        std::mt19937 random(seed + 1000000);
        for (int step = 0; step < 25; ++step) {
            std::mt19937 again = random;
            const std::string operation = operate(random, *document, false);
            operate(again, *plain, true);
            ASSERT_EQ(plaincosts::picture(*document), plaincosts::picture(*plain))
                << "seed " << seed << " step " << step << ": operation " << operation;
        }
    }
}

TEST(Costs, ofManyAssignmentsAtOnceAreThoseOfOneAfterTheOther)
{
    for (unsigned int seed = 1; seed <= 100; ++seed) {
        const auto document = costlyPlan(seed);
        const auto plain = costlyPlan(seed);
        std::mt19937 random(seed + 2000000);
        {
            AssignmentBatch batch(*document);
            for (int i = 0; i < 20; ++i) {
                const int pos = between(random, 0, document->taskCount() - 1);
                const QString name = someNames[between(random, 0, someNames.size() - 1)];
                const double percent = between(random, 1, 9) / 3.0;
                KWTaskInfo &task = *document->getTaskInfoAt(pos);
                KWTaskInfo &same = *plain->getTaskInfoAt(pos);
                if (!name.isEmpty())
                    plaincosts::addOrDelResourceByName(*plain, same, name, true);
                Resource *assigned = batch.assign(task, name);
                ASSERT_EQ(assigned != nullptr, !name.isEmpty() && !task.isParent());
                if (assigned) {
                    assigned->percent = percent;
                    same.getResourceByName(name)->percent = percent;
                    batch.updateCostAndWork(task);
                    plaincosts::updateCostAndWork(*plain, same);
                }
            }
        }
        ASSERT_EQ(plaincosts::picture(*document), plaincosts::picture(*plain)) << "seed " << seed;
    }
}
}
