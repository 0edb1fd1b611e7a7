#pragma once
#include <QSet>
#include <QString>
#include <QVector>
#include <vector>

class KWTaskInfo;
class ResourceInfo;

// Names of resources: as a task shows them, and unique ones for the sheet.
namespace names {

// Distinct trimmed names in the order of their first appearance; empty ones are left out.
class Distinct
{
public:
    bool add(const QString &name); // whether it is new
    void addAssignmentsOf(const KWTaskInfo &task);
    // The names of the leaves among the tasks.
    void addLeaves(const std::vector<KWTaskInfo *> &tasks);
    const QStringList &list() const { return m_list; }
    QString text() const { return m_list.join(QLatin1String("; ")); }

private:
    QSet<QString> m_seen;
    QStringList m_list;
};

// What a task without children shows: the trimmed names of its assignments, repeated ones as well.
QString ofAssignments(const KWTaskInfo &task);

// Makes names unique among those of a sheet and those handed out before.
class Unique
{
public:
    explicit Unique(const QVector<ResourceInfo *> &infos);

    int nextId() const { return m_nextId; }
    bool has(const QString &name) const { return m_names.contains(name.trimmed()); }
    // A free name, see ResourceInfoData::differentSuffixResourceName.
    QString different(const QString &name) const;
    void add(const QString &name, int id);

private:
    QSet<QString> m_names;
    int m_nextId = 1;
};

// One more than the greatest ID and than 0.
int nextId(const QVector<ResourceInfo *> &infos);
}
