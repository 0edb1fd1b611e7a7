#include "model/changewatch.h"
#include "engine/record/fieldxml.h"
#include "engine/record/outline.h"
#include "engine/record/resource.h"
#include "engine/record/resourcefields.h"
#include "engine/record/taskfields.h"
#include "engine/record/taskrecord.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include <QHash>
#include <cstring>

namespace {

// Values one after the other, each with its place.
class Digest
{
public:
    void add(quint64 value)
    {
        m_value = (m_value ^ value) * 0x9e3779b97f4a7c15ULL;
        m_value ^= m_value >> 29;
    }
    template <typename Value>
    std::enable_if_t<std::is_integral_v<Value>> add(Value value)
    {
        add(quint64(value));
    }
    void add(double value)
    {
        quint64 bits = 0;
        std::memcpy(&bits, &value, sizeof(bits));
        add(bits);
    }
    void add(const QString &text)
    {
        add(quint64(text.size()));
        add(quint64(qHash(text)));
    }
    void add(const QList<quint32> &ids)
    {
        add(quint64(ids.size()));
        for (const quint32 id : ids)
            add(quint64(id));
    }
    void add(const TaskRecord &task)
    {
        addFields(fields::taskFields, task);
        add(quint64(task.resourceList.size()));
        for (const Resource *resource : task.resourceList)
            addFields(fields::resourceFields, *resource);
    }
    quint64 value() const { return m_value; }

private:
    template <typename Table, typename Record>
    void addFields(const Table &table, const Record &record)
    {
        fields::forEach(table, fields::Xml, [&](const auto &row) { add(fields::plain(record.*row.member)); });
    }

    quint64 m_value = 1;
};

std::vector<TaskRecord *> reached(KWDocument *document, TaskRecord *task, ChangeWatch::Reach reach)
{
    if (!document || document->isModified() || !task)
        return {};
    std::vector<TaskRecord *> tasks = {task};
    if (reach == ChangeWatch::WithSummaries) {
        const outline::Tasks all = document->outline();
        for (TaskRecord *summary : outline::ancestors(all, *task))
            tasks.push_back(summary);
    }
    return tasks;
}
}

ChangeWatch::ChangeWatch(KWDocument *document)
    : m_document(document && !document->isModified() ? document : nullptr)
    , m_isWhole(true)
    , m_before(digest())
{
}

ChangeWatch::ChangeWatch(KWDocument *document, TaskRecord *task, Reach reach)
    : ChangeWatch(document, reached(document, task, reach))
{
}

ChangeWatch::ChangeWatch(KWDocument *document, std::vector<TaskRecord *> tasks)
    : m_document(document && !document->isModified() ? document : nullptr)
    , m_tasks(std::move(tasks))
    , m_before(digest())
{
}

ChangeWatch::~ChangeWatch()
{
    if (m_document && !m_document->isModified() && digest() != m_before)
        m_document->setModified(true);
}

quint64 ChangeWatch::digest() const
{
    Digest digest;
    if (m_document && m_isWhole) {
        for (const TaskRecord *task : m_document->taskList())
            digest.add(*task);
    } else if (m_document) {
        for (const TaskRecord *task : m_tasks)
            digest.add(*task);
    }
    return digest.value();
}
