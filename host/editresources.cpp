// Editing the resource sheet and assignments.
#include "edit.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include "sheettext.h"
#include "support/likeness.h"
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
    const QString guess = likeness::nearest(name, names);
    edit.refuse(t("no resource '%1'").arg(name),
                guess.isEmpty() ? t("'resource add %1' makes it").arg(editline::quoted(name))
                                : t("did you mean '%1'?").arg(guess));
    return nullptr;
}

using Values = ResourceValues;

template <std::optional<double> Values::*amount, std::optional<qint32> Values::*unit>
bool readRate(const QString &text, Values &values)
{
    sheettext::Rate rate;
    if (!sheettext::parseRate(text, rate))
        return false;
    values.*amount = rate.amount;
    values.*unit = rate.unit;
    return true;
}

// A value that one function parses.
template <typename Value, std::optional<Value> Values::*member, bool (*parse)(const QString &, Value &)>
bool readParsed(const QString &text, Values &values)
{
    Value value{};
    if (!parse(text, value))
        return false;
    values.*member = value;
    return true;
}

template <std::optional<QString> Values::*member>
bool readText(const QString &text, Values &values)
{
    values.*member = text;
    return true;
}

struct SheetField
{
    const char *name;
    bool (*read)(const QString &, Values &);
    const char *hint;
};

constexpr SheetField sheetFields[] = {
    {"type", readParsed<qint32, &Values::type, sheettext::parseType>, QT_TR_NOOP("write work or material")},
    {"rate", readRate<&Values::cost, &Values::costUnit>,
     QT_TR_NOOP("write it as 50/h, 400/d, 8000/m, or 2.5 for a material")},
    {"overtime", readRate<&Values::overtimeCost, &Values::overtimeUnit>, QT_TR_NOOP("write it as 70/h")},
    {"per-use", readParsed<double, &Values::costPer, sheettext::parseMoney>, QT_TR_NOOP("write a number")},
    {"units", readParsed<double, &Values::units, sheettext::parseUnits>, QT_TR_NOOP("write it as 200%")},
    {"group", readText<&Values::group>, ""},
    {"email", readText<&Values::email>, ""},
    {"notes", readText<&Values::notes>, ""},
};

bool readFields(Edit &edit, const QStringList &words, Values &values)
{
    QStringList names;
    for (const SheetField &field : sheetFields)
        names.append(QLatin1String(field.name));
    editline::Pairs pairs;
    if (!editline::pairs(words, names, pairs, edit.fault))
        return false;
    for (const auto &[name, text] : pairs) {
        const SheetField &field = sheetFields[names.indexOf(name)];
        if (!field.read(text, values))
            return edit.refuse(t("'%1' is no value for '%2'").arg(text, name), t(field.hint));
    }
    return true;
}

bool isFree(Edit &edit, const QString &name)
{
    return !edit.document.resourceInfoData()->getResourceInfoByName(name) ||
           edit.refuse(t("there is a resource '%1' already").arg(name.trimmed()),
                       t("'resource set' changes it"));
}
}

bool addResource(Edit &edit)
{
    const QString name = edit.words.first();
    Values values;
    return isFree(edit, name) && readFields(edit, edit.words.mid(1), values) &&
           edit.take(edit.edits.addResource(name, values));
}

bool setResource(Edit &edit)
{
    const ResourceInfo *entry = entryNamed(edit, edit.words.first());
    Values values;
    return entry && readFields(edit, edit.words.mid(1), values) &&
           edit.take(edit.edits.setResource(entry->name, values));
}

bool removeResource(Edit &edit)
{
    const ResourceInfo *entry = entryNamed(edit, edit.words.first());
    return entry && edit.take(edit.edits.removeResource(entry->name));
}

bool renameResource(Edit &edit)
{
    const ResourceInfo *entry = entryNamed(edit, edit.words.first());
    const QString name = edit.words.at(1);
    return entry && (entry->name.trimmed() == name.trimmed() || isFree(edit, name)) &&
           edit.take(edit.edits.renameResource(entry->name, name));
}

bool assign(Edit &edit)
{
    const KWTaskInfo *task = edit.task();
    const ResourceInfo *entry = task->isParent() ? nullptr : entryNamed(edit, edit.words.first());
    if (!task->isParent() && !entry)
        return false;
    std::optional<double> units;
    if (edit.words.size() > 1 && !sheettext::parseUnits(edit.words.at(1), units.emplace()))
        return edit.refuse(t("'%1' are no units").arg(edit.words.at(1)),
                           t("write 50% of the time, or a number of a material"));
    // Ten of one person are hardly meant.
    constexpr double mostWithoutPercent = 10;
    if (entry && entry->type == 0 && units && *units >= mostWithoutPercent &&
        !edit.words.at(1).contains(QLatin1Char('%')))
        return edit.refuse(
            t("'%1' means %2 % of '%3'")
                .arg(edit.words.at(1), sheettext::numberText(*units * 100), entry->name.trimmed()),
            t("did you mean %1%?").arg(edit.words.at(1)));
    return edit.take(edit.edits.assign(task->ID, edit.words.first(), units));
}

bool unassign(Edit &edit)
{
    const KWTaskInfo *task = edit.task();
    if (edit.words.isEmpty())
        return edit.take(edit.edits.unassignAll({task->ID}));
    if (!task->getResourceByName(edit.words.first()))
        return edit.refuse(
            t("'%1' is not assigned to %2").arg(edit.words.first(), taskref::named(edit.document, task->ID)),
            task->isHaveResource() ? t("assigned are: %1").arg(task->Resources) : QString());
    return edit.take(edit.edits.unassign(task->ID, edit.words.first()));
}
}
