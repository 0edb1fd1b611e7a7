#include "documents/taskfilter.h"
#include "datetext.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include "support/kwclock.h"
#include <QCoreApplication>

namespace taskfilter {

namespace {

QString words(const char *text)
{
    return QCoreApplication::translate("taskfilter", text);
}

bool isLate(KWDocument &document, const KWTaskInfo &task)
{
    return task.Percent < 1 && task.Finish != 0 &&
           KWTaskInfo::showDateTime(&document, task.Finish, false) < KWClock::now();
}

QString dateText(KWDocument &document, quint32 secs, bool isStart)
{
    return datetext::dateText(KWTaskInfo::showDateTime(&document, secs, isStart).date(), datetext::Weekday);
}
}

QString title(const Filter &filter)
{
    static const char *const titles[kindCount] = {
        QT_TRANSLATE_NOOP("taskfilter", "Critical"),
        QT_TRANSLATE_NOOP("taskfilter", "Late: should be done by now"),
        QT_TRANSLATE_NOOP("taskfilter", "Behind the baseline"),
        QT_TRANSLATE_NOOP("taskfilter", "Milestones"),
        QT_TRANSLATE_NOOP("taskfilter", "Nobody assigned"),
        QT_TRANSLATE_NOOP("taskfilter", "Resource: %1")};
    const QString text = words(titles[filter.kind]);
    return filter.kind == OfResource ? text.arg(filter.resource) : text;
}

QVector<Filter> all(const KWDocument &document)
{
    QVector<Filter> filters;
    for (int kind = 0; kind < OfResource; ++kind)
        filters.append({Kind(kind), QString()});
    for (const ResourceInfo *info : document.resourceInfoData()->infos)
        filters.append({OfResource, info->name.trimmed()});
    return filters;
}

bool matches(KWDocument &document, const KWTaskInfo &task, const Filter &filter)
{
    const bool isLeaf = !task.isParent();
    switch (filter.kind) {
    case Critical:
        return isLeaf && task.CriticalPath;
    case Late:
        return isLeaf && isLate(document, task);
    case BehindBaseline:
        return task.BaseFinish != 0 && task.Finish > task.BaseFinish;
    case Milestones:
        return isLeaf && task.Milestone;
    case Unassigned:
        return isLeaf && !task.Milestone && task.resourceList.isEmpty();
    case OfResource:
        for (const Resource *resource : task.resourceList)
            if (resource->name.trimmed() == filter.resource)
                return true;
        return false;
    case kindCount:
        break;
    }
    return false;
}

QString remark(KWDocument &document, const KWTaskInfo &task, const Filter &filter)
{
    if (task.Start == 0 || task.Finish == 0)
        return QString();
    const QString finish = dateText(document, task.Finish, false);
    switch (filter.kind) {
    case BehindBaseline:
        return words(QT_TRANSLATE_NOOP("taskfilter", "ends %1, planned %2"))
            .arg(finish, dateText(document, task.BaseFinish, false));
    case Late:
        return words(QT_TRANSLATE_NOOP("taskfilter", "%1% done, should have ended %2"))
            .arg(qRound(task.Percent * 100))
            .arg(finish);
    default:
        return task.Milestone ? dateText(document, task.Start, true)
                              : dateText(document, task.Start, true) + QStringLiteral(" – ") + finish;
    }
}
}
