#pragma once
#include "kwgantt_export.h"
#include <QString>
#include <memory>

class KWDocument;
class KWTaskInfo;
class Resource;

// Many assignments at once: the same outcome as KWTaskInfo::addOrDelResourceByName for one after the other,
// but the sheet is looked up by a table, and names texts are made once, at the end.
//
// While it lives, neither the task list, an ID, the working time nor the sheet may change.
class KWGANTT_EXPORT AssignmentBatch
{
public:
    explicit AssignmentBatch(KWDocument &document);
    ~AssignmentBatch(); // finishes
    AssignmentBatch(const AssignmentBatch &) = delete;
    AssignmentBatch &operator=(const AssignmentBatch &) = delete;

    // The task's assignment of that name, new or not; whoever changes it calls updateCostAndWork. Null for a
    // summary, which takes none, and for an empty name.
    Resource *assign(KWTaskInfo &task, const QString &name);
    void updateCostAndWork(KWTaskInfo &task);
    // Makes the names texts of the tasks assigned to and of the summaries above them.
    void finish();

private:
    struct Private;
    std::unique_ptr<Private> m_private;
};
