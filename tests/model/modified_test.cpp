// The modified flag: autosave and the question before closing depend on it.
#include "model/kwtaskinfo.h"
#include "resources/assignmentbatch.h"
#include "resources/resourceinfodata.h"
#include "schedule/kwcalendar.h"
#include "schedule/kwtaskcollection.h"
#include "support/project.h"
#include "support/savedtext.h"
#include "table/rowcolumndata.h"
#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>

namespace {

class Plan
{
public:
    Plan()
        : m_project("Mon-Fri 8-12 13-17", "Sum\n"
                                          "  A 2d 50%\n"
                                          "  B 3d after A\n"
                                          "Top\n"
                                          "  Low 1d\n"
                                          "C 2d after B\n"
                                          "D 1d\n")
    {
        KWDocument &d = document();
        d.rowColumnData()->initColumnDataList();
        for (const char *name : {"Ann", "Bob"}) {
            auto *info = new ResourceInfo;
            info->name = QString::fromUtf8(name);
            info->ID = d.resourceInfoData()->maxID();
            info->cost = 10;
            d.resourceInfoData()->appendResourceInfo(info);
        }
        task("A").addOrDelResourceByName(&d, QStringLiteral("Ann"), true);
        d.calendars.append(new KWCalendar);
        d.updateAllTaskEarlyLate();
        d.taskCollection()->updateTaskCollection();
        d.rowColumnData()->setRowHeightCount(d.taskCount());
    }
    KWDocument &document() { return m_project.document(); }
    KWTaskCollection &collection() { return *document().taskCollection(); }
    RowColumnData &table() { return *document().rowColumnData(); }
    ResourceInfoData &sheet() { return *document().resourceInfoData(); }
    KWTaskInfo &task(const char *name) { return m_project.task(name); }

private:
    Project m_project;
};

struct Operation
{
    const char *name;
    std::function<void(Plan &)> run;
    // What a host writes itself before, so that the operation has something to do.
    std::function<void(Plan &)> prepare = [](Plan &) {};
};

QString ann()
{
    return QStringLiteral("Ann");
}

void makeStale(Plan &p)
{
    for (KWTaskInfo *task : p.document().taskList()) {
        task->Cost = task->Work = task->RemainingCost = 7;
        task->Resources = QStringLiteral("x");
        task->EarlySlack = task->BaselineCost = QStringLiteral("1");
        task->BaseStart = task->BaseFinish = task->isParent() ? 0 : 5;
        task->LateStart = 1;
        if (task->isParent()) {
            task->Percent = 0.9;
            task->RemainingCost = 8;
            task->Start += 60;
        }
        task->FirstWidth = task->CountWidth = 3;
    }
}

void makeOther(Plan &p) // lengths of assigned work
{
    makeStale(p);
    p.task("A").resourceList.first()->workSecs = 5;
}

const Operation operations[] = {
    // The outline
    {"addTaskInfo", [](Plan &p) { p.document().addTaskInfo(); }},
    {"insertTaskByRow", [](Plan &p) { p.document().insertTaskByRow(1); }},
    {"insertSubTaskByRow", [](Plan &p) { p.document().insertSubTaskByRow(1); }},
    {"indentTaskByRow", [](Plan &p) { p.document().indentTaskByRow(2); }},
    {"outdentTaskByRow", [](Plan &p) { p.document().outdentTaskByRow(1); }},
    {"moveUpByRow", [](Plan &p) { p.document().moveUpByRow(5); }},
    {"moveDownByRow", [](Plan &p) { p.document().moveDownByRow(0); }},
    {"removeTaskByRow", [](Plan &p) { p.document().removeTaskByRow(6); }},
    {"appendTaskInfoList", [](Plan &p) { p.document().appendTaskInfoList(new KWTaskInfo(p.task("A"))); }},
    {"insertTaskInfoList", [](Plan &p) { p.document().insertTaskInfoList(1, new KWTaskInfo(p.task("A"))); }},
    {"replaceAt",
     [](Plan &p) {
         KWTaskInfo *replaced = &p.task("A");
         p.document().replaceAt(1, new KWTaskInfo(p.task("D")));
         delete replaced;
     }},
    {"removeTaskInfoByID", [](Plan &p) { p.document().removeTaskInfoByID(2); }},
    {"removeTaskInfoAt", [](Plan &p) { p.document().removeTaskInfoAt(2); }},
    {"clearTaskInfoList", [](Plan &p) { p.document().clearTaskInfoList(); }},
    {"collapseTaskInfo", [](Plan &p) { p.document().collapseTaskInfo(&p.task("Sum")); }},
    {"expandTaskInfo", [](Plan &p) { p.document().expandTaskInfo(&p.task("Sum")); },
     [](Plan &p) { p.document().collapseTaskInfo(&p.task("Sum")); }},
    {"recurveShowOrHide",
     [](Plan &p) { p.task("Sum").recurveShowOrHide(&p.document(), &p.task("Sum"), &p.task("Sum"), true); }},
    {"addTaskInfoChildID", [](Plan &p) { p.task("Top").addTaskInfoChildID(&p.document(), 6); }},
    // Dates and links
    {"stretch", [](Plan &p) { p.task("A").stretch(&p.document(), p.task("A").x2 + 200, true); }},
    {"updateMoveAfter", [](Plan &p) { p.task("D").updateMoveAfter(&p.document(), p.task("D").x1 + 200); }},
    {"moveToStop",
     [](Plan &p) { p.task("D").moveToStop(&p.document(), p.task("D").x1 + 200, nullptr, true); }},
    {"moveStartTo", [](Plan &p) { p.task("D").moveStartTo(&p.document(), p.task("D").Start + 86400); }},
    {"moveAllSubTask", [](Plan &p) { p.collection().moveAllSubTask(&p.task("Top"), p.task("Top").Start); },
     [](Plan &p) { p.task("Low").DurationSecs = 1; }},
    {"recalculateTask", [](Plan &p) { p.collection().recalculateTask(&p.task("D"), p.task("D").Start); },
     [](Plan &p) { p.task("D").DurationSecs = 1; }},
    {"refreshTask", [](Plan &p) { p.collection().refreshTask(&p.task("D")); },
     [](Plan &p) { p.task("D").Finish += 86400; }},
    {"taskDependTask", [](Plan &p) { p.collection().taskDependTask(&p.task("A"), &p.task("D")); }},
    {"linkTasks",
     [](Plan &p) {
         KWTaskLink link;
         link.predecessor = p.task("A").ID;
         link.successor = p.task("D").ID;
         QList<KWTaskLink> wanted{link};
         p.collection().linkTasks(wanted);
     }},
    {"compareTaskAndDepenTask",
     [](Plan &p) { p.collection().compareTaskAndDepenTask(&p.task("B"), &p.task("C")); },
     [](Plan &p) { p.task("B").Finish += 864000; }},
    {"pushAllSuccessors", [](Plan &p) { p.collection().pushAllSuccessors(); },
     [](Plan &p) { p.task("B").Finish += 864000; }},
    {"deleteDependOrDependOnID", [](Plan &p) { p.collection().deleteDependOrDependOnID(&p.task("Sum")); },
     [](Plan &p) {
         p.task("Sum").Depends = {2};
         p.task("A").Predecessors = {1};
     }},
    {"deleteDependIDFromParent",
     [](Plan &p) { p.collection().deleteDependIDFromParent(&p.task("B"), &p.task("C")); }},
    {"deleteDependOnIDFromParent",
     [](Plan &p) { p.collection().deleteDependOnIDFromParent(&p.task("C"), &p.task("B")); }},
    {"updateDependTask", [](Plan &p) { p.document().updateDependTask(false); },
     [](Plan &p) { p.task("B").Depends.clear(); }},
    {"updateTaskTimeToChildsTask",
     [](Plan &p) { p.collection().updateTaskTimeToChildsTask(&p.task("Sum"), true); }, makeStale},
    {"updateTaskInfoParentTime", [](Plan &p) { p.collection().updateTaskInfoParentTime(&p.task("A")); },
     makeStale},
    {"updateOptionTaskTime", [](Plan &p) { p.collection().updateOptionTaskTime(); }, makeStale},
    {"updateEarlyLate", [](Plan &p) { p.task("D").updateEarlyLate(&p.document(), 2000000000); }},
    {"updateAllTaskEarlyLate", [](Plan &p) { p.document().updateAllTaskEarlyLate(); }, makeStale},
    {"updateSlackAndUnit", [](Plan &p) { p.document().updateSlackAndUnit(5); }},
    // Progress, baselines, the chart
    {"updateParentPercent", [](Plan &p) { p.task("A").updateParentPercent(&p.document()); }, makeStale},
    {"updateAllParentPercent", [](Plan &p) { p.document().updateAllParentPercent(); }, makeStale},
    {"updateAutoPercent", [](Plan &p) { p.document().updateAutoPercent(); },
     [](Plan &p) { p.document().Auto = true; }},
    {"basisSubUpdateBaselineStartAndFinish",
     [](Plan &p) { p.task("Sum").basisSubUpdateBaselineStartAndFinish(&p.document()); }, makeStale},
    {"updateParentBaselineStartAndFinish",
     [](Plan &p) { p.task("A").updateParentBaselineStartAndFinish(&p.document()); }, makeStale},
    {"updateOneTaskFirstWidth", [](Plan &p) { p.task("B").updateOneTaskFirstWidth(&p.document()); },
     makeStale},
    {"updateTaskPoint", [](Plan &p) { p.collection().updateTaskPoint(); }, makeStale},
    {"firstOpenFitWidth", [](Plan &p) { p.collection().firstOpenFitWidth(); },
     [](Plan &p) {
         p.document().UnitWidth = 20;
         p.document().MinorUnit = 2;
     }},
    // Resources and money
    {"addOrDelResourceByName",
     [](Plan &p) { p.task("B").addOrDelResourceByName(&p.document(), ann(), true); }},
    {"AssignmentBatch", [](Plan &p) { AssignmentBatch(p.document()).assign(p.task("B"), ann()); }},
    {"updateResourceWorkSecs", [](Plan &p) { p.task("A").updateResourceWorkSecs(&p.document()); }, makeOther},
    {"updateResourceName", [](Plan &p) { p.task("A").updateResourceName(&p.document()); }, makeStale},
    {"basisSubUpdateResourceName", [](Plan &p) { p.task("Sum").basisSubUpdateResourceName(&p.document()); },
     makeStale},
    {"updateParentResources", [](Plan &p) { p.task("A").updateParentResources(&p.document(), true); },
     makeStale},
    {"outdentUpateParentResources", [](Plan &p) { p.task("A").outdentUpateParentResources(&p.document()); }},
    {"replaceResourceName",
     [](Plan &p) { p.task("A").replaceResourceName(&p.document(), ann(), QStringLiteral("Eve")); }},
    {"replaceTaskResourceName",
     [](Plan &p) { p.document().replaceTaskResourceName(ann(), QStringLiteral("Eve")); }},
    {"updateCostAndWork", [](Plan &p) { p.task("A").updateCostAndWork(&p.document()); }, makeStale},
    {"updateRemainCost", [](Plan &p) { p.task("A").updateRemainCost(&p.document()); }, makeStale},
    {"updateParentCostAndWork",
     [](Plan &p) { p.task("A").updateParentCostAndWork(&p.document(), 1, 1, false); }},
    {"updateParentCompletCost", [](Plan &p) { p.task("A").updateParentCompletCost(&p.document(), 1); }},
    {"updateParentStrBaseCost", [](Plan &p) { p.task("A").updateParentStrBaseCost(&p.document(), 1); }},
    {"updateParentInfoFromSomeColumn",
     [](Plan &p) { p.task("A").updateParentInfoFromSomeColumn(&p.document(), false, true); }},
    {"basisSubUpdateCostAndWork", [](Plan &p) { p.task("Sum").basisSubUpdateCostAndWork(&p.document()); },
     makeStale},
    {"basisSubUpdateCompletCost", [](Plan &p) { p.task("Sum").basisSubUpdateCompletCost(&p.document()); },
     makeStale},
    {"basisSubUpdateStrBaseCost", [](Plan &p) { p.task("Sum").basisSubUpdateStrBaseCost(&p.document()); },
     makeStale},
    {"basisSubUpdateFromSomeColumn",
     [](Plan &p) { p.task("Sum").basisSubUpdateFromSomeColumn(&p.document()); }, makeStale},
    {"basisSubUpdateFromSomeColumn of all", [](Plan &p) { p.document().basisSubUpdateFromSomeColumn(); },
     makeStale},
    {"updateResourcesName", [](Plan &p) { p.document().updateResourcesName(); }, makeStale},
    {"updateCostCompletCostWork", [](Plan &p) { p.document().updateCostCompletCostWork(); }, makeStale},
    {"appendResourceInfo", [](Plan &p) { p.sheet().appendResourceInfo(new ResourceInfo); }},
    {"deleteResourceByName", [](Plan &p) { p.sheet().deleteResourceByName(ann()); }},
    {"clearResourceInfoData", [](Plan &p) { p.sheet().clearResourceInfoData(); }},
    {"changeAllTaskSameNameResource",
     [](Plan &p) {
         p.sheet().infos.first()->changeAllTaskSameNameResource(&p.document(), ResourceInfo::ChangeCost);
     },
     [](Plan &p) { p.sheet().infos.first()->cost = 99; }},
    // Columns, rows, calendars
    {"moveColumnDataList", [](Plan &p) { p.table().moveColumnDataList(0, 3); }},
    {"setAllColDataHide", [](Plan &p) { p.table().setAllColDataHide(); }},
    {"initColumnDataList", [](Plan &p) { p.table().initColumnDataList(); },
     [](Plan &p) { p.table().setAllColDataHide(); }},
    {"clearColDataList", [](Plan &p) { p.table().clearColDataList(); }},
    {"replaceRowHeightByRow", [](Plan &p) { p.table().replaceRowHeightByRow(1, 55); }},
    {"insertRowHeightByRow", [](Plan &p) { p.table().insertRowHeightByRow(1, 55); }},
    {"appendRowHeight", [](Plan &p) { p.table().appendRowHeight(55); }},
    {"removeRowHeightAt", [](Plan &p) { p.table().removeRowHeightAt(1); }},
    {"moveRowHeights", [](Plan &p) { p.table().moveRowHeights(0, 2, 1); },
     [](Plan &p) { p.table().replaceRowHeight(0, 55); }},
    {"setRowHeightCount", [](Plan &p) { p.table().setRowHeightCount(2); }},
    {"clearCalendar", [](Plan &p) { p.document().clearCalendar(); }},
};

// Once they change something; and an operation that finds nothing to do leaves the flag clear.
TEST(Modified, isSetByWhatChangesFiles)
{
    for (int type = 0; type < 24; ++type)
        RowColumnData::s_columnNames.insert(type, QStringLiteral("Column %1").arg(type));
    for (const Operation &operation : operations) {
        SCOPED_TRACE(operation.name);
        Plan plan;
        operation.prepare(plan);
        const std::string before = savedText(plan.document());
        plan.document().setModified(false);
        operation.run(plan);
        EXPECT_NE(savedText(plan.document()), before) << "the case is of no use";
        EXPECT_TRUE(plan.document().isModified());
    }
    Plan plan;
    KWDocument &document = plan.document();
    for (const bool isSettled : {false, true}) {
        document.setModified(!isSettled);
        document.updateAllTaskEarlyLate();
        plan.collection().updateTaskCollection();
        plan.collection().pushAllSuccessors();
        document.updateResourcesName();
        document.basisSubUpdateFromSomeColumn();
        for (KWTaskInfo *task : document.taskList()) {
            task->updateCostAndWork(&document);
            task->updateParentPercent(&document);
            plan.collection().updateTaskInfoParentTime(task);
        }
        document.moveUpByRow(0);
        document.expandTaskInfo(&plan.task("Sum"));
    }
    EXPECT_FALSE(document.isModified());
}
}
