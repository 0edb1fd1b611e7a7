#include "hostile/smallplan.h"
#include "exchange/exceltitles.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include "support/folder.h"
#include "support/sortedxml.h"
#include "table/rowcolumndata.h"
#include <QTemporaryDir>

namespace smallplan {
namespace {

template <std::size_t count>
void fillKeys(const char *const (&titles)[count], QMap<int, QString> &names, QStringList &list)
{
    for (const char *title : titles) {
        names.insert(list.size(), QString::fromLatin1(title));
        list.append(QString::fromLatin1(title));
    }
}
}

void fillTitles()
{
    static const char *const titles[] = {
        "ID",         "Name",       "Start",      "Finish",      "Duration", "Complete",   "Priority",
        "Resources",  "Links",      "Cost",       "Remaining",   "Work",     "EarlyStart", "EarlyFinish",
        "LateStart",  "LateFinish", "StartSlack", "FinishSlack", "Critical", "Notes",      "BaseStart",
        "BaseFinish", "BaseCost",   "Level",      "Predecessors"};
    for (int type = 0; type < int(std::size(titles)); ++type)
        RowColumnData::s_columnNames.insert(type, QString::fromLatin1(titles[type]));

    static const char *const resourceTitles[] = {"ID",       "Name",   "Units", "Type",  "Rate",
                                                 "Overtime", "PerUse", "Group", "Email", "Notes"};
    static const char *const assignmentTitles[] = {"Task", "Resource", "Complete", "Work", "Units"};
    fillKeys(resourceTitles, ExcelTitles::s_resourcNames, ExcelTitles::s_strResourceList);
    fillKeys(assignmentTitles, ExcelTitles::s_workAssignNames, ExcelTitles::s_strWorkAssignList);
    ResourceInfoData::s_typeItems = {{0, QStringLiteral("Work")}, {1, QStringLiteral("Material")}};
}

void fill(KWDocument &document, const char *name)
{
    for (quint32 id = 1; id <= 3; ++id) {
        auto *task = new KWTaskInfo;
        task->ID = id;
        task->Name = QString::fromLatin1(name);
        task->Start = 1773619200;
        task->Finish = task->Start + 86400 * id;
        document.appendTaskInfoList(task);
        document.rowColumnData()->appendRowHeight(RowColumnData::defaultRowHeight);
    }
}

std::string textOf(const KWDocument &document)
{
    const QTemporaryDir folder;
    if (!document.saveDocument(folder.path() + QLatin1Char('/')))
        return "(not written)";
    return sortedXml(folder::get(folder.path() + QLatin1String("/document.xml")));
}
}
