#pragma once
#include "model/kwdocument_options.h"
#include "model/kwtaskinfo_xml.h"
#include "resources/resourceinfodata_xml.h"
#include "settings/kwprintconfig_xml.h"
#include "table/rowcolumndata_xml.h"
#include <algorithm>
#include <memory>
#include <vector>

// The whole project as the element of "document.xml", over any of the XML sinks and sources.
namespace documentxml {

inline constexpr char currentVersion[] = "1.4";

// Empty tasks are not written, and a height left for one would go to the task behind it.
QList<double> heightsOfWrittenTasks(const KWDocument &document);

template <typename Sink>
void write(Sink &sink, const KWDocument &document)
{
    sink.open("Document");
    sink.attribute("DocGuid", document.DocGuid);
    sink.attribute("Version", QString::fromLatin1(currentVersion));
    optionsxml::write(sink, document);
    const auto isWritten = [](const KWTaskInfo *task) { return !task->isEmpty(); };
    if (std::any_of(document.taskList().begin(), document.taskList().end(), isWritten)) {
        sink.open("TaskList");
        for (const KWTaskInfo *task : document.taskList())
            taskxml::write(sink, *task);
        sink.close();
    }
    sheetxml::write(sink, document.resourceInfoData()->infos);
    sink.open("RowColumn");
    tablexml::write(sink, *document.rowColumnData(), heightsOfWrittenTasks(document));
    sink.close();
    sink.open("PrintCfg");
    printxml::write(sink, document.printConfig);
    sink.close();
    if (!document.calendars.isEmpty()) {
        sink.open("CdCalendarList");
        for (const KWCalendar *calendar : document.calendars)
            calendarxml::write(sink, *calendar);
        sink.close();
    }
    sink.close();
}

// Tasks that have been read already, for files whose tree does not hold them.
using ReadTasks = std::vector<std::unique_ptr<KWTaskInfo>>;

template <typename Source>
void readTasks(const Source &list, KWDocument &document, ReadTasks *tasks)
{
    document.clearTaskInfoList();
    if (tasks) {
        for (std::unique_ptr<KWTaskInfo> &task : *tasks)
            document.appendTaskInfoList(task.release());
        return;
    }
    taskxml::FontMemo memo;
    for (Source child = list.firstChild(); !child.isNull(); child = child.nextSibling()) {
        auto *task = new KWTaskInfo;
        taskxml::read(child, *task, &memo);
        document.appendTaskInfoList(task);
    }
}

template <typename Source>
void readCalendars(const Source &list, KWDocument &document)
{
    document.clearCalendar();
    for (Source child = list.firstChild(); !child.isNull(); child = child.nextSibling()) {
        document.calendars.append(new KWCalendar);
        calendarxml::read(child, *document.calendars.last());
    }
}

template <typename Source>
void readSheet(const Source &entries, ResourceInfoData &sheet)
{
    sheet.clearResourceInfoData();
    sheetxml::read(entries, sheet.infos);
}

// Replaces what the element tells of. Nothing in here can fail: the caller has made sure that it is sound
// XML.
template <typename Source>
void read(Source &root, KWDocument &document, ReadTasks *tasks = nullptr)
{
    xmltext::read(root.text("DocGuid"), document.DocGuid);
    qDeleteAll(document.workTimes);
    document.workTimes.clear();
    // Saving writes no list that is empty, and heights belong to the tasks that go.
    document.clearTaskInfoList();
    document.clearCalendar();
    RowColumnData &table = *document.rowColumnData();
    table.setRowHeights({});
    constexpr bool skipRowHeights = false;
    for (Source child = root.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.is("GanttOption"))
            optionsxml::readAll(child, document);
        else if (child.is("TaskList"))
            readTasks(child, document, tasks);
        else if (child.is("ResourceInfo"))
            readSheet(child, *document.resourceInfoData());
        else if (child.is("RowColumn"))
            tablexml::read(child, table, skipRowHeights);
        else if (child.is("PrintCfg"))
            printxml::read(child, document.printConfig);
        else if (child.is("CdCalendarList"))
            readCalendars(child, document);
    }
    // A file may hold more or fewer; from here on every insertion counts on one height a task.
    table.setRowHeightCount(document.taskCount());
}
}
