// The resource sheet: names, texts, files, changed entries.
#include "engine/record/resource.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
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
    const char *wanted, *given;
};

TEST(SheetNames, areMadeUnique)
{
    const NameCase cases[] = {
        {"freeNameStaysWithItsBlanks", {{"Worker", 1}}, " Works ", " Works "},
        {"numberStartsTwoAboveTheGreatestId", {{"Worker", 1}, {"A", 3}, {"B", 2}}, "Worker", "Worker5"},
        {"numbersGather", {{"Worker", 3}, {"Worker5", 1}}, "Worker", "Worker56"},
        {"candidateIsTrimmedForTheTestOnly", {{"Worker", 1}}, " Worker", " Worker3"},
        {"entriesAreNotTrimmed", {{"Worker ", 1}}, "Worker ", "Worker "},
        {"percentSignsAreNoPlaceholders", {{"%1", 1}}, "%1", "%13"},
        {"greatestPossibleId", {{"A", std::numeric_limits<int>::max()}}, "A", "A2147483648"}};
    for (const NameCase &row : cases) {
        SCOPED_TRACE(row.name);
        ResourceInfoData sheet(nullptr);
        for (const auto &[name, id] : row.entries)
            add(sheet, name, id);
        EXPECT_EQ(sheet.differentSuffixResourceName(row.wanted).toStdString(), row.given);
    }
}

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

// What every field holds is compared where whole documents are saved and loaded.
TEST(SheetFile, comesBackAsItWasSaved)
{
    ResourceInfoData sheet(nullptr);
    add(sheet, " A\"n<n>\n\xF0\x9F\x98\x80 ", -3)->cost = -1.0 / 3;
    sheet.infos.append(nullptr);
    add(sheet, "", 0);
    const auto saved = [](const ResourceInfoData &of) {
        QDomDocument written;
        QDomElement root = written.createElement("Root");
        written.appendChild(root);
        of.save(root);
        return written.toByteArray();
    };
    QDomDocument read;
    ASSERT_TRUE(read.setContent(saved(sheet)));
    const QDomElement element = read.documentElement().firstChildElement("ResourceInfo");
    ResourceInfoData loaded(nullptr);
    loaded.parse(element);
    EXPECT_EQ(saved(loaded).toStdString(), saved(sheet).toStdString());
    loaded.parse(element); // appends
    loaded.parse(QDomElement());
    EXPECT_EQ(loaded.infos.size(), 4);
}

TEST(AssignmentFile, comesBackWithoutWhatXmlCannotCarry)
{
    Resource ann;
    ann.name = "A\x01"
               "nn";
    ann.percent = std::numeric_limits<double>::infinity();
    ann.workSecs = 4294967295u;
    QDomDocument document;
    QDomElement list = document.createElement("ResourceList");
    ann.save(list);
    Resource back;
    back.parse(list.firstChildElement("Resource"));
    EXPECT_EQ(back.name, "Ann");
    EXPECT_EQ(back.percent, 0);
    EXPECT_EQ(back.workSecs, 4294967295u);
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

}
