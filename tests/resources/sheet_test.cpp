// The resource sheet: names, texts, files, changed entries.
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "resources/resource.h"
#include "resources/resourceinfodata.h"
#include "support/casename.h"
#include "support/project.h"
#include <QDomDocument>
#include <gtest/gtest.h>
#include <limits>

namespace {

ResourceInfo *add(ResourceInfoData &sheet, const char *name, int id)
{
    auto *info = new ResourceInfo;
    info->name = QString::fromUtf8(name);
    info->ID = id;
    sheet.appendResourceInfo(info);
    return info;
}

struct NameCase
{
    const char *name;
    std::vector<std::pair<const char *, int>> entries;
    const char *wanted;
    const char *given;
};

class SheetNames : public testing::TestWithParam<NameCase>
{
};

TEST_P(SheetNames, areMadeUnique)
{
    ResourceInfoData sheet(nullptr);
    for (const auto &[name, id] : GetParam().entries)
        add(sheet, name, id);
    EXPECT_EQ(sheet.differentSuffixResourceName(GetParam().wanted).toStdString(), GetParam().given);
}

INSTANTIATE_TEST_SUITE_P(
    Suffixes, SheetNames,
    testing::Values(
        NameCase{"freeNameStaysWithItsBlanks", {{"Worker", 1}}, " Works ", " Works "},
        NameCase{"emptySheet", {}, "", ""},
        NameCase{
            "numberStartsTwoAboveTheGreatestId", {{"Worker", 1}, {"A", 3}, {"B", 2}}, "Worker", "Worker5"},
        NameCase{"numbersGather", {{"Worker", 3}, {"Worker5", 1}}, "Worker", "Worker56"},
        NameCase{"negativeIdsCountAsNone", {{"Worker", -9}}, "Worker", "Worker2"},
        NameCase{"candidateIsTrimmedForTheTestOnly", {{"Worker", 1}}, " Worker", " Worker3"},
        NameCase{"entriesAreNotTrimmed", {{"Worker ", 1}}, "Worker ", "Worker "},
        NameCase{"caseCounts", {{"worker", 1}}, "Worker", "Worker"},
        NameCase{"percentSignsAreNoPlaceholders", {{"%1", 1}}, "%1", "%13"},
        NameCase{"greatestPossibleId", {{"A", std::numeric_limits<int>::max()}}, "A", "A2147483648"}),
    caseName<NameCase>);

TEST(Sheet, looksNamesUpTrimmedButComparesThemExactly)
{
    ResourceInfoData sheet(nullptr);
    EXPECT_EQ(sheet.maxID(), 1);
    ResourceInfo *first = add(sheet, " Ann ", 7);
    add(sheet, "Ann", 7);
    EXPECT_EQ(sheet.getResourceInfoByName("Ann  "), first);
    EXPECT_EQ(sheet.getResourceInfoByID(7), first);
    EXPECT_EQ(sheet.maxID(), 8);
    sheet.deleteResourceByName("");
    sheet.deleteResourceByName("Bob");
    EXPECT_EQ(sheet.infos.size(), 2);
    sheet.deleteResourceByName("Ann");
    ASSERT_EQ(sheet.infos.size(), 1);
    EXPECT_FALSE(sheet.isHaveSameResourceName(" Ann "));
    EXPECT_TRUE(sheet.isHaveSameResourceName("Ann"));
    EXPECT_EQ(sheet.getResourceInfoAt(-1), nullptr);
    EXPECT_EQ(sheet.getResourceInfoAt(1), nullptr);
}

TEST(Sheet, takesTypeTextsWhenItIsMade)
{
    ResourceInfoData::s_typeItems = {{0, "Work"}, {1, "Material"}, {4, "Cost"}};
    const KWDocument document;
    const ResourceInfoData without(nullptr);
    ResourceInfoData::s_typeItems.clear();
    const ResourceInfoData &sheet = *document.resourceInfoData();
    EXPECT_EQ(sheet.getTypeIndex("Material"), 1);
    EXPECT_EQ(sheet.getTypeIndex("Cost"), 4);
    EXPECT_EQ(sheet.getTypeIndex(""), 2); // the first type without a text
    EXPECT_EQ(sheet.getTypeIndex("material"), -1);
    EXPECT_EQ(sheet.getTypeTextByIndex(5), "");
    EXPECT_EQ(without.getTypeIndex(""), -1);
}

TEST(Sheet, readsTheRateUnitFromTheEndOfAText)
{
    const ResourceInfoData sheet(nullptr);
    const std::pair<const char *, int> cases[] = {{"25/h", 1},  {"3/min", 0}, {"10/m", 4}, {"10/x", -1},
                                                  {"/d", 2},    {"1/w", 3},   {"5/H", -1}, {"", -1},
                                                  {"1/h ", -1}, {"1/d/h", 1}};
    for (const auto &[text, unit] : cases)
        EXPECT_EQ(sheet.getCostUnitIndex(text), unit) << text;
}

// ---- Changed entries --------------------------------------------------------------------------------------

TEST(ChangedEntry, overtimeRateCopiesTheStandardRateKept)
{
    Project project("Mon-Fri 8-16", "House\n  Walls 2d\n  Roof 1d\n");
    KWDocument &document = project.document();
    ResourceInfo *ann = add(*document.resourceInfoData(), "Ann", 1);
    project.task("Walls").addOrDelResourceByName(&document, "Ann", true);
    Resource &assigned = *project.task("Walls").getResourceAt(0);
    ann->cost = 10;
    ann->overtimeCost = 99;
    ann->changeAllTaskSameNameResource(&document, ResourceInfo::ChangeOvertimeCost);
    EXPECT_EQ(assigned.cost, 10);
    EXPECT_EQ(assigned.overtimeCost, 0);
    EXPECT_EQ(project.task("House").Cost, 160);
}

TEST(ChangedEntry, ofAnotherTypeGivesAndTakesWork)
{
    Project project("Mon-Fri 8-16", "House\n  Walls 2d\n");
    KWDocument &document = project.document();
    ResourceInfo *ann = add(*document.resourceInfoData(), "Ann", 1);
    project.task("Walls").addOrDelResourceByName(&document, "Ann", true);
    Resource &assigned = *project.task("Walls").getResourceAt(0);
    assigned.percent = 0.25;
    assigned.overtimeCost = 3;
    ann->type = 2;
    ann->changeAllTaskSameNameResource(&document, ResourceInfo::ChangeType);
    EXPECT_EQ(assigned.workSecs, 0u);
    EXPECT_EQ(assigned.overtimeCost, 0);
    EXPECT_EQ(project.task("House").Work, 0);
    ann->type = 0;
    ann->changeAllTaskSameNameResource(&document, ResourceInfo::ChangeType);
    EXPECT_EQ(assigned.workSecs, 43200u);
    EXPECT_EQ(project.task("House").Work, 4);
}

TEST(SheetSums, countTheFirstAssignmentOfANameAndStartWithTheFixedPart)
{
    Project project("Mon-Fri 8-16", "Walls 2d 50%\nRoof 1d\nSite milestone\n");
    KWDocument &document = project.document();
    ResourceInfoData &sheet = *document.resourceInfoData();
    ResourceInfo *ann = add(sheet, "Ann", 1);
    ann->cost = 10;
    ann->costPer = 6;
    ResourceInfo *same = add(sheet, " Ann", 2); // listed twice: both show the sums
    same->type = 1;
    for (const char *task : {"Walls", "Roof", "Site"})
        project.task(task).addOrDelResourceByName(&document, "Ann", true);
    auto *second = new Resource(*project.task("Walls").getResourceAt(0));
    second->name = "Ann ";
    project.task("Walls").resourceList.append(second);
    project.task("Site").getResourceAt(0)->workSecs = 0;
    sheet.udpateWorkAndCost(&document);
    for (const ResourceInfo *info : {ann, same}) {
        EXPECT_EQ(info->totalWork, 24);
        EXPECT_EQ(info->totalCost, 166 + 86 + 6);
        EXPECT_EQ(info->actualWork, 8);
        EXPECT_EQ(info->actualCost, 160 * 0.5 + 6); // what has not begun costs nothing yet
        EXPECT_EQ(info->unitsSum, 3);
    }
    sheet.updateWorkStarAndFinishWork(&document);
    EXPECT_EQ(ann->workStart, project.task("Walls").Start);
    EXPECT_EQ(ann->workFinish, project.task("Walls").Finish);
    EXPECT_EQ(ann->totalWork, 24);

    QList<KWTaskInfo *> tasks;
    sheet.resourceGetTaskList(&document, ann, tasks);
    EXPECT_EQ(tasks.size(), 3);
}

// ---- Files ------------------------------------------------------------------------------------------------

QDomElement parsed(QDomDocument &document, const char *xml)
{
    EXPECT_TRUE(document.setContent(QByteArray(xml)));
    return document.documentElement();
}

TEST(SheetFile, roundTripKeepsEveryField)
{
    ResourceInfoData sheet(nullptr);
    ResourceInfo *ann = add(sheet, " A\"n<n>\n\xF0\x9F\x98\x80 ", -3);
    ann->type = 4;
    ann->unit = 0.1;
    ann->cost = 1e300;
    ann->costUnit = 3;
    ann->overtimeCost = -1.0 / 3;
    ann->overtimeUnit = 2;
    ann->costPer = 5e-324;
    ann->group = "g";
    ann->email = "e";
    ann->notes = "n\t";
    sheet.infos.append(nullptr);
    add(sheet, "", 0);

    QDomDocument written;
    QDomElement root = written.createElement("Root");
    written.appendChild(root);
    sheet.save(root);
    QDomDocument read;
    QString error;
    ASSERT_TRUE(read.setContent(written.toByteArray(), &error)) << error.toStdString();
    const QDomElement saved = read.documentElement().firstChildElement("ResourceInfo");
    ResourceInfoData loaded(nullptr);
    loaded.parse(saved);
    ASSERT_EQ(loaded.infos.size(), 2);
    const ResourceInfo &back = *loaded.infos[0];
    EXPECT_EQ(back.name, ann->name);
    EXPECT_EQ(back.ID, -3);
    EXPECT_EQ(back.type, 4);
    EXPECT_EQ(back.unit, 0.1);
    EXPECT_EQ(back.cost, 1e300);
    EXPECT_EQ(back.costUnit, 3);
    EXPECT_EQ(back.overtimeCost, -1.0 / 3);
    EXPECT_EQ(back.overtimeUnit, 2);
    EXPECT_EQ(back.costPer, 5e-324);
    EXPECT_EQ(back.group + back.email + back.notes, "gen\t");
    loaded.parse(saved); // appends
    EXPECT_EQ(loaded.infos.size(), 4);
    loaded.parse(QDomElement());
    EXPECT_EQ(loaded.infos.size(), 4);
}

TEST(SheetFile, absentAndEmptyAttributesKeepTheirDefaults)
{
    QDomDocument document;
    ResourceInfoData sheet(nullptr);
    sheet.parse(parsed(document,
                       "<ResourceInfo><Column Cost='2.5' Type='x' CostUnit=''/><Other Name='b' Unit='nan' "
                       "ID='99999999999'/></ResourceInfo>"));
    ASSERT_EQ(sheet.infos.size(), 2);
    EXPECT_EQ(sheet.infos[0]->unit, 1);
    EXPECT_EQ(sheet.infos[0]->cost, 2.5);
    EXPECT_EQ(sheet.infos[0]->type, 0);
    EXPECT_EQ(sheet.infos[0]->costUnit, 1);
    EXPECT_EQ(sheet.infos[1]->name, "b");
    EXPECT_EQ(sheet.infos[1]->unit, 0);
    EXPECT_EQ(sheet.infos[1]->ID, 0);
}

TEST(AssignmentFile, roundTripKeepsEveryField)
{
    Resource ann;
    ann.name = "A\x01"
               "nn"; // the control character cannot be written
    ann.percent = std::numeric_limits<double>::infinity();
    ann.workSecs = 4294967295u;
    ann.ID = 5;
    ann.type = -1;
    ann.cost = 0.1;
    ann.costUnit = 4;
    ann.overtimeCost = 2;
    ann.overtimeUnit = 0;
    ann.costPer = 3;
    QDomDocument written;
    QDomElement root = written.createElement("ResourceList");
    written.appendChild(root);
    ann.save(root);
    QDomDocument read;
    ASSERT_TRUE(read.setContent(written.toByteArray()));
    const QDomElement element = read.documentElement().firstChildElement("Resource");
    EXPECT_EQ(element.attributes().size(), 10);
    Resource back;
    back.parse(element);
    EXPECT_EQ(back.name, "Ann");
    EXPECT_EQ(back.percent, 0);
    EXPECT_EQ(back.workSecs, 4294967295u);
    EXPECT_EQ(back.ID, 5);
    EXPECT_EQ(back.type, -1);
    EXPECT_EQ(back.cost, 0.1);
    EXPECT_EQ(back.costUnit, 4);
    EXPECT_EQ(back.overtimeCost, 2);
    EXPECT_EQ(back.overtimeUnit, 0);
    EXPECT_EQ(back.costPer, 3);
}

// ---- Ownership --------------------------------------------------------------------------------------------

// Read with the address sanitizer.
TEST(Assignments, areFreedOnceInEitherOrder)
{
    for (const bool sourceFirst : {true, false}) {
        auto source = std::make_unique<KWTaskInfo>();
        for (const char *name : {"Ann", "Bob"}) {
            source->resourceList.append(new Resource);
            source->resourceList.last()->name = name;
            source->resourceList.last()->ID = source->resourceList.size();
        }
        auto copy = std::make_unique<KWTaskInfo>(*source);
        *copy = *copy;
        copy->assign(*copy);
        copy->assign(*source);
        source->deleteResourceByID(1);
        EXPECT_EQ(source->resourceList.size(), 1);
        EXPECT_EQ(copy->getResourceAt(0)->name, "Ann");
        if (sourceFirst)
            source.reset();
        else
            copy->clearResources();
        EXPECT_EQ((sourceFirst ? *copy : *source).getResourceByName("Bob")->ID, 2);
    }
}

TEST(Assignments, deepCopiesDoNotFollow)
{
    KWTaskInfo task;
    task.resourceList.append(new Resource);
    KWTaskInfo shared(task);
    KWTaskInfo deep;
    deep.resourceList = task.cloneResources();
    task.getResourceAt(0)->name = "Ann";
    EXPECT_EQ(shared.getResourceAt(0)->name, "Ann");
    EXPECT_EQ(deep.getResourceAt(0)->name, "");
}
}
