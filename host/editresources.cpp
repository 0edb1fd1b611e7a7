// Editing the resource sheet and assignments.
#include "edit.h"
#include "engine/record/resource.h"
#include "model/kwtaskinfo.h"
#include "resources/assignmentbatch.h"
#include "resources/resourceinfodata.h"
#include "sheettext.h"
#include "taskref.h"
#include "texts.h"

namespace editverbs {

namespace {

ResourceInfo *entryNamed(Edit &edit, const QString &name)
{
    ResourceInfo *entry = edit.document.resourceInfoData()->getResourceInfoByName(name);
    if (entry)
        return entry;
    QStringList names;
    for (const ResourceInfo *info : qAsConst(edit.document.resourceInfoData()->infos))
        names.append(info->name.trimmed());
    const QString guess = options::nearest(name, names);
    edit.refuse(t("no resource '%1'").arg(name),
                guess.isEmpty() ? t("'resource add %1' makes it").arg(editline::quoted(name))
                                : t("did you mean '%1'?").arg(guess));
    return nullptr;
}

// What can be set of an entry. The change that its assignments are told of; -1: they have no such value.
struct SheetField
{
    const char *name;
    int change;
    bool (*set)(ResourceInfo &, const QString &);
    const char *hint;
};

template <double ResourceEntry::*amount, qint32 ResourceEntry::*unit>
bool setRate(ResourceInfo &entry, const QString &text)
{
    sheettext::Rate rate;
    if (!sheettext::parseRate(text, rate))
        return false;
    entry.*amount = rate.amount;
    entry.*unit = rate.unit;
    return true;
}

template <QString ResourceEntry::*member>
bool setText(ResourceInfo &entry, const QString &text)
{
    entry.*member = text;
    return true;
}

constexpr int nobody = -1;

constexpr SheetField sheetFields[] = {
    {"type", ResourceInfo::ChangeType,
     [](ResourceInfo &entry, const QString &text) { return sheettext::parseType(text, entry.type); },
     "write work or material"},
    {"rate", ResourceInfo::ChangeCost, setRate<&ResourceInfo::cost, &ResourceInfo::costUnit>,
     "write it as 50/h, 400/d, 8000/m, or 2.5 for a material"},
    {"overtime", ResourceInfo::ChangeOvertimeUnit,
     setRate<&ResourceInfo::overtimeCost, &ResourceInfo::overtimeUnit>, "write it as 70/h"},
    {"per-use", ResourceInfo::ChangeCostPer,
     [](ResourceInfo &entry, const QString &text) { return sheettext::parseMoney(text, entry.costPer); },
     "write a number"},
    {"units", nobody,
     [](ResourceInfo &entry, const QString &text) { return sheettext::parseUnits(text, entry.unit); },
     "write it as 200%"},
    {"group", nobody, setText<&ResourceInfo::group>, ""},
    {"email", nobody, setText<&ResourceInfo::email>, ""},
    {"notes", nobody, setText<&ResourceInfo::notes>, ""},
};

bool setFields(Edit &edit, ResourceInfo &entry, const QStringList &words)
{
    QStringList names;
    for (const SheetField &field : sheetFields)
        names.append(QLatin1String(field.name));
    editline::Pairs values;
    if (!editline::pairs(words, names, values, edit.fault))
        return false;
    for (const auto &[name, value] : values) {
        const SheetField &field = sheetFields[names.indexOf(name)];
        if (!field.set(entry, value))
            return edit.refuse(t("'%1' is no value for '%2'").arg(value, name), t(field.hint));
        if (field.change == nobody)
            continue;
        entry.changeAllTaskSameNameResource(&edit.document, ResourceInfo::ChangeVal(field.change));
        if (field.change == ResourceInfo::ChangeCost)
            entry.changeAllTaskSameNameResource(&edit.document, ResourceInfo::ChangeCostUnit);
    }
    return true;
}

bool isFree(Edit &edit, const QString &name)
{
    if (name.trimmed().isEmpty())
        return edit.refuse(t("a resource needs a name"));
    return !edit.document.resourceInfoData()->getResourceInfoByName(name) ||
           edit.refuse(t("there is a resource '%1' already").arg(name.trimmed()),
                       t("'resource set' changes it"));
}
}

bool addResource(Edit &edit)
{
    const QString name = edit.words.first();
    if (!isFree(edit, name))
        return false;
    ResourceInfoData *sheet = edit.document.resourceInfoData();
    auto *entry = new ResourceInfo;
    entry->ID = sheet->maxID();
    entry->name = name;
    sheet->appendResourceInfo(entry);
    return setFields(edit, *entry, edit.words.mid(1));
}

bool setResource(Edit &edit)
{
    ResourceInfo *entry = entryNamed(edit, edit.words.first());
    return entry && setFields(edit, *entry, edit.words.mid(1));
}

bool removeResource(Edit &edit)
{
    const ResourceInfo *entry = entryNamed(edit, edit.words.first());
    if (!entry)
        return false;
    const QString name = entry->name;
    AssignmentBatch batch(edit.document);
    for (KWTaskInfo *task : edit.document.taskList()) {
        bool changed = false;
        while (Resource *assigned = task->getResourceByName(name)) {
            task->resourceList.removeOne(assigned);
            Resource::release(assigned);
            changed = true;
        }
        if (changed)
            batch.updateCostAndWork(*task);
    }
    edit.document.updateResourcesName();
    edit.document.resourceInfoData()->deleteResourceByName(name);
    return true;
}

bool renameResource(Edit &edit)
{
    ResourceInfo *entry = entryNamed(edit, edit.words.first());
    const QString name = edit.words.at(1);
    if (!entry || (entry->name.trimmed() != name.trimmed() && !isFree(edit, name)))
        return false;
    const QString before = entry->name;
    entry->name = name;
    edit.document.replaceTaskResourceName(before, name);
    return true;
}

bool assign(Edit &edit)
{
    KWTaskInfo *task = edit.task();
    if (task->isParent())
        return edit.refuse(t("%1 is a summary").arg(taskref::named(edit.document, task->ID)),
                           t("assign resources to the tasks below it"));
    const ResourceInfo *entry = entryNamed(edit, edit.words.first());
    if (!entry)
        return false;
    double units = 1;
    if (edit.words.size() > 1 && !sheettext::parseUnits(edit.words.at(1), units))
        return edit.refuse(t("'%1' are no units").arg(edit.words.at(1)),
                           t("write 50% of the time, or a number of a material"));
    task->addOrDelResourceByName(&edit.document, entry->name, true);
    if (edit.words.size() > 1) {
        task->getResourceByName(entry->name)->percent = units;
        task->updateResourceWorkSecs(&edit.document);
        task->updateCostAndWork(&edit.document);
    }
    return true;
}

bool unassign(Edit &edit)
{
    KWTaskInfo *task = edit.task();
    if (edit.words.isEmpty()) {
        task->clearResources();
        task->updateCostAndWork(&edit.document);
        task->updateResourceName(&edit.document);
        return true;
    }
    if (!task->getResourceByName(edit.words.first()))
        return edit.refuse(
            t("'%1' is not assigned to %2").arg(edit.words.first(), taskref::named(edit.document, task->ID)),
            task->isHaveResource() ? t("assigned are: %1").arg(task->Resources) : QString());
    task->addOrDelResourceByName(&edit.document, edit.words.first(), false);
    return true;
}
}
