#pragma once
#include "model/kwtaskinfo.h"
#include <memory>
#include <unordered_map>
#include <vector>

class KWDocument;

// Which tasks the list holds, in which order and with which row heights, as far as an edit changes it: one
// stretch of the list, and those tasks of it that the other side does not have. What else an edit changes of
// tasks is recorded with these.
//
// For lists in which every ID stands once.
class RowBackup
{
public:
    explicit RowBackup(const KWDocument &document);

    // Before a task leaves the list and before anything of it changes.
    void addLeaving(const KWTaskInfo &task);
    // The edit is made.
    void keepChanges(const KWDocument &document);
    // What brings the document back to how it stands.
    RowBackup now(const KWDocument &document) const;
    void restore(KWDocument &document) const;

private:
    RowBackup() = default;

    // Values that take the place of `count` others.
    template <typename Value>
    struct Stretch
    {
        int first = 0;
        int count = 0;
        std::vector<Value> values;
    };
    template <typename Value, typename At>
    static void keepDifferent(Stretch<Value> &stretch, int size, At at);
    template <typename Value, typename At>
    static Stretch<Value> inverse(const Stretch<Value> &stretch, int size, At at);

    Stretch<quint32> m_ids;
    Stretch<double> m_heights; // the list of heights may be shorter or longer
    std::unordered_map<quint32, std::shared_ptr<const KWTaskInfo>> m_leaving;
};
