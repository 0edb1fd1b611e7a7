#include "hostile/smallplan.h"
#include "model/kwtaskinfo.h"
#include "support/folder.h"
#include "support/sortedxml.h"
#include "table/rowcolumndata.h"
#include <QTemporaryDir>

namespace smallplan {

void fillTitles()
{
    static const char *const titles[] = {
        "ID",         "Name",       "Start",      "Finish",      "Duration", "Complete",   "Priority",
        "Resources",  "Links",      "Cost",       "Remaining",   "Work",     "EarlyStart", "EarlyFinish",
        "LateStart",  "LateFinish", "StartSlack", "FinishSlack", "Critical", "Notes",      "BaseStart",
        "BaseFinish", "BaseCost",   "Level",      "Predecessors"};
    for (int type = 0; type < int(std::size(titles)); ++type)
        RowColumnData::s_columnNames.insert(type, QString::fromLatin1(titles[type]));
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
