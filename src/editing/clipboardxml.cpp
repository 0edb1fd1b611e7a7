#include "editing/clipboardxml.h"
#include "model/kwdocument_xml.h"
#include "support/kwlimits.h"
#include "support/said.h"
#include "support/xmlsink.h"
#include <QBuffer>

namespace clipboardxml {

namespace {

// The heights of these tasks' rows.
QList<double> heightsOf(const KWDocument &document, const QList<KWTaskInfo *> &tasks)
{
    constexpr bool scaled = false;
    QList<double> heights;
    heights.reserve(tasks.size());
    for (const KWTaskInfo *task : tasks)
        heights.append(document.rowColumnData()->getRowHeightByPos(document.getPosByID(task->ID), scaled));
    return heights;
}
}

QByteArray write(const KWDocument &document, const QList<KWTaskInfo *> &tasks)
{
    constexpr int blanksPerLevel = 1;
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    StreamSink sink(buffer, blanksPerLevel);
    sink.open("Clipboard");
    sink.attribute("Version", QString::fromLatin1(documentxml::currentVersion));
    sink.open("TaskList");
    for (const KWTaskInfo *task : tasks)
        taskxml::write(sink, *task);
    sink.close();
    sink.open("RowHeightList");
    sink.attribute("RowHeight", tablexml::heightsText(heightsOf(document, tasks)));
    sink.close();
    sink.open("RowColumn");
    tablexml::write(sink, *document.rowColumnData());
    sink.close();
    sink.close();
    sink.finish();
    return buffer.data();
}

bool Content::readTasks(const TreeSource &list)
{
    taskxml::FontMemo memo;
    for (TreeSource child = list.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (m_tasks.size() >= std::size_t(maxTasks))
            return false;
        m_tasks.push_back(std::make_unique<KWTaskInfo>());
        taskxml::read(child, *m_tasks.back(), &memo);
    }
    return true;
}

bool Content::read(const QByteArray &bytes, QString *error)
{
    m_tasks.clear();
    m_heights.clear();
    *error = KW_TEXT("too large");
    if (bytes.size() > maxBytes || !m_tree.parse(bytes, error))
        return false;
    *error = QStringLiteral("it holds no tasks, or too many");
    const TreeSource root = m_tree.root();
    if (!root.is("Clipboard"))
        return false;
    for (TreeSource child = root.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.is("TaskList") && !readTasks(child))
            return false;
        if (child.is("RowHeightList"))
            m_heights = tablexml::heights(child.text("RowHeight"));
    }
    return !m_tasks.empty();
}

void Content::dropAssignments()
{
    for (const std::unique_ptr<KWTaskInfo> &task : m_tasks) {
        task->clearResources();
        task->Resources.clear();
        task->Cost = 0;
        task->Work = 0;
        task->RemainingCost = 0;
    }
}

QList<KWTaskInfo *> Content::takeTasks()
{
    QList<KWTaskInfo *> tasks;
    tasks.reserve(int(m_tasks.size()));
    for (std::unique_ptr<KWTaskInfo> &task : m_tasks)
        tasks.append(task.release());
    m_tasks.clear();
    return tasks;
}

void Content::giveColumns(RowColumnData &table) const
{
    const TreeSource root = m_tree.root();
    for (TreeSource child = root.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (!child.is("RowColumn"))
            continue;
        for (TreeSource list = child.firstChild(); !list.isNull(); list = list.nextSibling()) {
            // A table without columns would be of no use.
            if (list.is("ColumnList") && !list.firstChild().isNull())
                tablexml::readColumns(list, table);
        }
    }
}
}
