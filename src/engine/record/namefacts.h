#pragma once
#include "engine/record/taskahead.h"
#include <QString>
#include <vector>

// What a walk over a list works out of each task's name, kept from one walk to the next.
//
// Nobody has to tell what changed: the name is kept along with the fact and compared with the task's. As both
// are shared mostly, one look tells that they are the same, and no text has to be fetched.
template <typename Fact>
class NameFacts
{
public:
    // Calls visit(task, fact) for each task in list order; `make` makes the fact of a name.
    template <typename Tasks, typename Make, typename Visit>
    void forEach(const Tasks &list, Make make, Visit visit)
    {
        // By ID, since tasks come, go and change places. Only those that are out of proportion are not kept.
        constexpr int few = 64;
        m_known.resize(std::size_t(list.size() + list.size() / 4 + few));
        for (int pos = 0; pos < list.size(); ++pos) {
            if (pos + 2 * tasksAhead < list.size()) {
                __builtin_prefetch(&list[pos + 2 * tasksAhead]->ID);
                __builtin_prefetch(&list[pos + 2 * tasksAhead]->Name);
            }
            const auto &task = *list[pos];
            if (task.ID >= m_known.size()) {
                visit(task, make(task.Name));
                continue;
            }
            Known &known = m_known[task.ID];
            if (!known.isSet || !known.name.isSharedWith(task.Name)) {
                known.fact = make(task.Name);
                known.name = task.Name;
                known.isSet = true;
            }
            visit(task, known.fact);
        }
    }

private:
    struct Known
    {
        QString name;
        Fact fact{};
        bool isSet = false;
    };
    std::vector<Known> m_known; // by ID
};
