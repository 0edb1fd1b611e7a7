#pragma once
#include <QtGlobal>
#include <vector>

class KWDocument;
struct TaskRecord;

// Sets a document's modified flag when files would hold other values of its tasks by the end of the watch.
// While the flag is set nothing is looked at: only the first edit of a saved plan pays for the look.
//
// For operations that may leave everything as it was, such as roll-ups; others set the flag themselves.
// Hyperlinks and fonts are not looked at.
class ChangeWatch
{
public:
    enum Reach { Alone, WithSummaries };

    // Null: no watch. The tasks must outlive it.
    explicit ChangeWatch(KWDocument *document); // all tasks
    ChangeWatch(KWDocument *document, TaskRecord *task, Reach reach);
    ChangeWatch(KWDocument *document, std::vector<TaskRecord *> tasks);
    ~ChangeWatch();
    ChangeWatch(const ChangeWatch &) = delete;
    ChangeWatch &operator=(const ChangeWatch &) = delete;

private:
    quint64 digest() const;

    KWDocument *m_document = nullptr; // null: not watching
    bool m_isWhole = false;
    std::vector<TaskRecord *> m_tasks;
    quint64 m_before = 0;
};
