#pragma once
#include "support/xmltree.h"
#include <QList>
#include <memory>
#include <vector>

class KWDocument;
class KWTaskInfo;
class RowColumnData;

// Tasks as they travel on the clipboard: an XML document with their row heights and the table's columns.
namespace clipboardxml {

inline constexpr char mimeType[] = "application/vellum-xml";

// The tasks belong to the document.
QByteArray write(const KWDocument &document, const QList<KWTaskInfo *> &tasks);

// What was read from the clipboard, before anything of it is in a document.
class Content
{
public:
    // False for what is too large, no sound XML or no clipboard document, and when there are no tasks.
    bool read(const QByteArray &bytes, QString *error);

    // For another resource sheet: without their assignments the tasks' money would have no reason.
    void dropAssignments();
    // Hands the tasks to the caller, under the IDs they came with.
    QList<KWTaskInfo *> takeTasks();
    // In the order of the tasks; may be fewer or more.
    const QList<double> &heights() const { return m_heights; }
    // Replaces the columns, if there are any on the clipboard.
    void giveColumns(RowColumnData &table) const;

private:
    bool readTasks(const TreeSource &list);

    XmlTree m_tree;
    std::vector<std::unique_ptr<KWTaskInfo>> m_tasks;
    QList<double> m_heights;
};
}
