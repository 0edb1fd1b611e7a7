#pragma once
#include <QSet>
#include <QString>
#include <QStringList>
#include <algorithm>
#include <vector>

struct TaskRecord;

// Names of resources: as a task shows them, and unique ones for the sheet.
namespace names {

// Distinct trimmed names in the order of their first appearance; empty ones are left out.
class Distinct
{
public:
    bool add(const QString &name); // whether it is new
    void addAssignmentsOf(const TaskRecord &task);
    // The names of the leaves among the tasks.
    void addLeaves(const std::vector<TaskRecord *> &tasks);
    const QStringList &list() const { return m_list; }
    QString text() const { return m_list.join(QLatin1String("; ")); }

private:
    QSet<QString> m_seen;
    QStringList m_list;
};

// What a task without children shows: the trimmed names of its assignments, repeated ones as well.
QString ofAssignments(const TaskRecord &task);
bool areOfAssignments(const QString &text, const TaskRecord &task); // whether it is that
// It has assignments and shows something else.
bool isOtherwiseNamed(const TaskRecord &task);

int idAfter(int id); // no ID comes after the greatest number: that one itself
// One more than the greatest ID of the entries and than 0.
template <typename Entries>
int nextId(const Entries &entries)
{
    int greatest = 0;
    for (const auto *entry : entries) {
        if (entry)
            greatest = std::max(greatest, int(entry->ID));
    }
    return idAfter(greatest);
}

// Makes names unique among those of a sheet and those handed out before.
class Unique
{
public:
    // `entries` are pointers to entries of a sheet, null ones among them.
    template <typename Entries>
    explicit Unique(const Entries &entries)
        : m_nextId(names::nextId(entries))
    {
        m_names.reserve(entries.size());
        for (const auto *entry : entries) {
            if (entry)
                m_names.insert(entry->name);
        }
    }

    int nextId() const { return m_nextId; }
    bool has(const QString &name) const { return m_names.contains(name.trimmed()); }
    // A free name, see ResourceInfoData::differentSuffixResourceName.
    QString different(const QString &name) const;
    void add(const QString &name, int id);

private:
    QSet<QString> m_names;
    int m_nextId = 1;
};
}
