#pragma once
#include "engine/network/linkgraph.h"
#include <optional>

namespace linkgraph {

// The network of a whole plan and the order in it, from one push to the next.
//
// Nobody has to tell what changed: the outline and the links, which anybody may write, are compared with
// those that the network was made of.
class KeptNetwork
{
public:
    // Afterwards both are those of these tasks, until the next call.
    void update(const outline::Tasks &tasks);
    const EventNetwork &network() const { return *m_network; }
    const Schedule &schedule() const { return m_schedule; }

private:
    // What makes a task's events and what follows them. The lists are shared with the task, so that mostly
    // one look tells that they are the same.
    struct Known
    {
        quint32 id = 0;
        quint32 parent = 0;
        QList<quint32> children;
        QList<quint32> links;
    };
    bool isOf(const outline::Tasks &tasks);

    const QList<TaskRecord *> *m_list = nullptr; // that the network refers to
    std::vector<Known> m_known;
    std::optional<EventNetwork> m_network;
    Schedule m_schedule;
};
}
