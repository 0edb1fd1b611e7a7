// Random plans go out as XLSX files, plain and readable, and come back, but for what the format cannot carry.
//
// KW_XLSX_PLANS says how many plans are tried, KW_XLSX_SEED where they begin.
#include "engine/record/resource.h"
#include "exchange/XLSXDataEngine.h"
#include "exchange/planexport.h"
#include "resources/resourceinfodata.h"
#include "schedule/kwcalendar.h"
#include "schedule/kwtaskcollection.h"
#include "schedule/randomplan.h"
#include "support/workbooktitles.h"
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

using randomplan::between;

class RoundTrip : public testing::Test
{
protected:
    RoundTrip() { WorkbookTitles::chooseAll(); }

    QString text() // with whatever a cell can hold
    {
        static const char *const pieces[] = {"Wall",    " ",         "\xe5\xb7\xa5", "\xf0\x9f\x8f\x97",
                                             "\n",      "=cmd|'!A0", "\x01",         "<&>\"'",
                                             "_x000D_", "\t",        "\r\n"};
        QString text;
        for (int count = between(random, 0, 4); count > 0; --count)
            text += QString::fromUtf8(pieces[random() % std::size(pieces)]);
        return text;
    }
    void addResources(KWDocument &plan);
    void assign(KWDocument &plan, KWTaskInfo &task);
    std::unique_ptr<KWDocument> randomPlan();

    const WorkbookTitles titles;
    std::mt19937 random;
    QTemporaryDir folder;
};

void RoundTrip::addResources(KWDocument &plan)
{
    for (int i = 1; i <= 4; ++i) {
        auto *info = new ResourceInfo;
        info->ID = i * 3;
        info->name = text().remove('\x01') + QString::number(i);
        info->type = i / 4;
        info->unit = between(random, 1, 40) / 8.0;
        info->cost = between(random, 0, 999999) / 100.0;
        info->costUnit = between(random, 0, 4);
        info->overtimeCost = between(random, 0, 1000);
        info->overtimeUnit = between(random, 0, 4);
        info->costPer = between(random, -2, 1000) / 4.0;
        for (QString *field : {&info->group, &info->email, &info->notes})
            *field = text();
        plan.resourceInfoData()->appendResourceInfo(info);
    }
}

void RoundTrip::assign(KWDocument &plan, KWTaskInfo &task)
{
    for (int i = between(random, 0, 2); i > 0; --i) {
        task.addOrDelResourceByName(&plan, plan.resourceInfoData()->infos[between(random, 0, 3)]->name, true);
        Resource &resource = *task.resourceList.last();
        resource.percent = between(random, 1, 40) / 4.0;
        if (resource.type == 0)
            resource.workSecs = quint32(between(random, 0, 1000000));
    }
    task.updateCostAndWork(&plan);
}

std::unique_ptr<KWDocument> RoundTrip::randomPlan()
{
    std::unique_ptr<KWDocument> plan = randomplan::plan(random, between(random, 1, 30), 5);
    // Moments are kept by the fraction of the working time, so any other takes them.
    const quint32 begin = quint32(between(random, 0, 9));
    qDeleteAll(plan->workTimes);
    plan->workTimes = {
        new KWDayTime(begin * 3600, (begin + 3) * 3600),
        new KWDayTime((begin + 4) * 3600, quint32(between(random, int(begin) + 5, 24)) * 3600)};
    addResources(*plan);
    for (KWTaskInfo *task : plan->taskList()) {
        task->Name = text() + QString::number(task->ID);
        task->Notes = text();
        task->Priority = between(random, 0, 5);
        task->Percent = between(random, 0, 8) / 8.0;
        task->hyperlinks.autoAddHyperlink()->address = "www.a.com/" + QString::number(random() % 100);
        task->BaseStart = task->Start;
        if (!task->isParent() && task->Finish - task->Start > 7200)
            task->Start += random() % 3600;
    }
    plan->taskCollection()->updateOptionTaskTime();
    for (KWTaskInfo *task : plan->taskList()) {
        if (!task->isParent())
            assign(*plan, *task);
    }
    for (int i = plan->taskCount(); i > 0; --i)
        plan->taskCollection()->taskDependTask(
            plan->getTaskInfoAt(between(random, 0, plan->taskCount() - 1)),
            plan->getTaskInfoAt(between(random, 0, plan->taskCount() - 1)));
    plan->updateDependTask(false); // in the order of the IDs, as an import leaves the links
    return plan;
}

// What comes back exactly, a line for each record.
std::string exactly(KWDocument &plan)
{
    QStringList lines;
    const auto ids = [](const QList<quint32> &list) {
        QStringList texts;
        for (const quint32 id : list)
            texts += QString::number(id);
        return texts.join(' ');
    };
    const auto minute = [&plan](quint32 secs, bool start) {
        return KWTaskInfo::showDateTime(&plan, secs, start).toString("yyyy-MM-dd hh:mm");
    };
    const planexport::Rows rows(plan);
    for (const KWTaskInfo *task : rows.tasks()) {
        lines += QStringList{QString::number(task->ID),
                             task->Name,
                             QString::number(task->Level),
                             QString::number(task->ParentID),
                             ids(task->Childs),
                             ids(task->Predecessors),
                             ids(task->Depends),
                             minute(task->Start, true),
                             minute(task->Finish, false),
                             minute(task->BaseStart, true),
                             QString::number(task->DurationUnits),
                             QString::number(task->Priority),
                             task->Notes,
                             task->getHyperlinksContent(true),
                             QString::number(task->Milestone && !task->isParent())}
                     .join('|');
        for (const Resource *resource : task->resourceList)
            lines += "  " + resource->name.trimmed(); // as assignments are told apart
    }
    for (const ResourceInfo *info : plan.resourceInfoData()->infos)
        lines += QStringList{QString::number(info->ID),
                             info->name,
                             QString::number(info->type),
                             QString::number(info->costUnit),
                             QString::number(info->overtimeUnit),
                             info->group,
                             info->email,
                             info->notes}
                     .join('|');
    return lines.join('\n').remove('\x01').toStdString();
}

// What comes back as far as its decimals go.
std::vector<double> roughly(KWDocument &plan)
{
    std::vector<double> numbers;
    const planexport::Rows rows(plan);
    for (const KWTaskInfo *task : rows.tasks()) {
        numbers.push_back(task->Percent * 10);
        for (const Resource *resource : task->resourceList)
            numbers.insert(numbers.end(), {resource->percent * 10,
                                           task->transforHourWork(
                                               &plan, KWTaskInfo::getDurationValue(&plan, resource->workSecs,
                                                                                   task->DurationUnits))});
    }
    for (const ResourceInfo *info : plan.resourceInfoData()->infos)
        numbers.insert(numbers.end(), {info->unit * 10, info->cost, info->overtimeCost, info->costPer});
    return numbers;
}

TEST_F(RoundTrip, BringsBackRandomPlans)
{
    bool isSet = false;
    const int asked = qEnvironmentVariableIntValue("KW_XLSX_PLANS", &isSet);
    const int plans = isSet ? asked : 8;
    const int seed = qEnvironmentVariableIntValue("KW_XLSX_SEED");
    const QString file = folder.filePath("plan.xlsx");
    for (int i = seed; i < seed + plans; ++i) {
        random.seed(unsigned(i));
        const std::unique_ptr<KWDocument> plan = randomPlan();
        for (const bool isRich : {false, true}) {
            SCOPED_TRACE("KW_XLSX_SEED=" + std::to_string(i) + (isRich ? " readable" : " plain"));
            WorkbookTitles::chooseAll();
            XLSXDataEngine engine(plan.get());
            engine.setRich(isRich);
            ASSERT_TRUE(engine.exportFile(file));
            KWDocument back;
            back.workTimes.swap(plan->workTimes);
            back.calendars.swap(plan->calendars);
            XLSXDataEngine reader(&back);
            ASSERT_TRUE(reader.initExcelTitles(file) && reader.importData(file));
            EXPECT_EQ(reader.findings().count(), 0)
                << (reader.findings().list().value(0).place + reader.findings().list().value(0).what)
                       .toStdString();
            const std::string imported = exactly(back);
            const std::vector<double> importedNumbers = roughly(back);
            back.workTimes.swap(plan->workTimes);
            back.calendars.swap(plan->calendars);
            ASSERT_EQ(imported, exactly(*plan));
            const std::vector<double> numbers = roughly(*plan);
            ASSERT_EQ(importedNumbers.size(), numbers.size());
            for (std::size_t n = 0; n < numbers.size(); ++n)
                ASSERT_NEAR(importedNumbers[n], numbers[n], 0.0101);
        }
    }
}
}
