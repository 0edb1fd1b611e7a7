#pragma once
#include "engine/record/resource.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include <string>

// Costs, work and names of resources by their plain rules: linear searches, one task after the other, every
// formula written out. Slow, and meant to be read beside the rules.
namespace plaincosts {

double resourceCost(KWDocument &document, const KWTaskInfo &task, const Resource &resource);
double hours(KWDocument &document, const KWTaskInfo &task, double work);

void updateCostAndWork(KWDocument &document, KWTaskInfo &task);
void updateRemainCost(KWDocument &document, KWTaskInfo &task);
void updateResourceName(KWDocument &document, KWTaskInfo &task);
void addOrDelResourceByName(KWDocument &document, KWTaskInfo &task, const QString &name, bool add);
void replaceResourceName(KWDocument &document, KWTaskInfo &task, const QString &oldName,
                         const QString &newName);
void updateParentInfoFromSomeColumn(KWDocument &document, KWTaskInfo &task, bool added);
void basisSubUpdateFromSomeColumn(KWDocument &document, KWTaskInfo &task);

void updateResourcesName(KWDocument &document);
void updateCostCompletCostWork(KWDocument &document);
void replaceTaskResourceName(KWDocument &document, const QString &oldName, const QString &newName);
void changeAllTaskSameNameResource(KWDocument &document, const ResourceInfo &info, int what);
void updateWorkStarAndFinishWork(KWDocument &document);
void udpateWorkAndCost(KWDocument &document);

// Every task with its sums, names and assignments, and every entry of the sheet; doubles to the last bit.
std::string picture(const KWDocument &document);
}
