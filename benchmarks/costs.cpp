#include "costs.h"
#include "engine/record/resource.h"
#include "generator.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "report.h"
#include "resources/resourceinfodata.h"

namespace costs {
namespace {

void sheetRollUps(KWDocument &document)
{
    document.resourceInfoData()->udpateWorkAndCost(&document);
    document.resourceInfoData()->updateWorkStarAndFinishWork(&document);
}

void clear(KWDocument &document)
{
    document.resourceInfoData()->clearResourceInfoData();
    for (KWTaskInfo *task : document.taskList())
        task->clearResources();
}
}

void assign(KWDocument &document, int resources, int perLeaf)
{
    ResourceInfoData &sheet = *document.resourceInfoData();
    for (int i = 0; i < resources; ++i) {
        auto *info = new ResourceInfo;
        info->ID = i + 1;
        info->name = QStringLiteral("Resource ") + QString::number(i + 1);
        info->cost = 10 + i % 7;
        info->costPer = i % 3;
        sheet.appendResourceInfo(info);
    }
    int next = 0;
    for (KWTaskInfo *task : document.taskList()) {
        for (int i = 0; !task->isParent() && i < perLeaf; ++i) {
            const ResourceInfo *info = sheet.getResourceInfoAt(next++ % resources);
            auto *resource = new Resource;
            resource->ID = info->ID;
            resource->name = info->name;
            resource->cost = info->cost;
            resource->costPer = info->costPer;
            task->resourceList.append(resource);
        }
        task->updateResourceWorkSecs(&document);
    }
}

void measure(Report &report, int tasks)
{
    const int runs = tasks >= 100000 ? 5 : 9;
    generator::Shape shape;
    shape.tasks = tasks;
    shape.linksPerTask = 0;
    const auto document = generator::document(generator::plan(shape), shape);
    const auto nothing = [] {};

    assign(*document, std::max(10, tasks / 100), 2);
    report.line("cost and work of every leaf", tasks, best(runs, nothing, [&] {
                    for (KWTaskInfo *task : document->taskList()) {
                        if (!task->isParent())
                            task->updateCostAndWork(document.get());
                    }
                }));
    report.line("updateCostCompletCostWork", tasks,
                best(runs, nothing, [&] { document->updateCostCompletCostWork(); }));
    report.line("updateResourcesName", tasks, best(runs, nothing, [&] { document->updateResourcesName(); }));
    report.line("replaceTaskResourceName", tasks, best(runs, nothing, [&] {
                    document->replaceTaskResourceName(QStringLiteral("Resource 1"), QStringLiteral("Ann"));
                    document->replaceTaskResourceName(QStringLiteral("Ann"), QStringLiteral("Resource 1"));
                }));
    KWTaskInfo *middle = document->getTaskInfoAt(tasks / 2);
    while (middle->isParent())
        middle = document->getTaskInfoByID(middle->Childs.first());
    report.line("assign and take away in the middle", tasks, best(runs, nothing, [&] {
                    for (const bool add : {true, false})
                        middle->addOrDelResourceByName(document.get(), QStringLiteral("Zoe"), add);
                }));
    report.line("sheet roll-ups, 1% resources", tasks, best(runs, nothing, [&] { sheetRollUps(*document); }));
    // As many assignments: of one resource, and each of its own.
    clear(*document);
    assign(*document, 1, 1);
    report.line("sheet roll-ups, one resource", tasks, best(runs, nothing, [&] { sheetRollUps(*document); }));
    clear(*document);
    assign(*document, tasks, 1);
    report.line("sheet roll-ups, a resource a leaf", tasks,
                best(runs, nothing, [&] { sheetRollUps(*document); }));
}
}
