#pragma once
#include "engine/network/inheritedtails.h"
#include "engine/network/latedates.h"
#include <functional>
#include <optional>

namespace latedates {

// The late dates of a plan from one edit to the next: only what follows from changes is worked out again. The
// values are those of a pass over the whole plan, inheritedTails() and spreadCritical() included.
//
// Nobody has to tell what changed. Every update compares the tasks, which anybody may write, with what they
// were, dates and links as well as the values that were filled in; where the outline, links or the working
// time are others it begins anew.
class Kept
{
public:
    struct Span // of the tasks that have dates; 0 without any
    {
        quint32 start = 0;
        quint32 finish = 0;
    };
    // Before the values of a task become these. The texts that others replace may be taken out of it.
    using BeforeChange = std::function<void(TaskRecord &, const Values &)>;

    // The calendar must be what it was at the update before, or reset() have been called in between.
    Span update(const outline::Tasks &tasks, const worktime::WorkCalendar &calendar, unsigned int unit,
                const QString &unitName, const BeforeChange &before);
    void reset();

private:
    // A task as it was at the last update.
    struct Known
    {
        quint32 id = 0;
        quint32 parent = 0;
        Early early;
        QList<quint32> links; // shared with the task, so that mostly one look tells that they are the same
        bool isOwnCritical = false; // without the tasks below it
        Values values;              // critical with these
    };

    bool findChanges(const outline::Tasks &tasks);
    void beginAnew(const outline::Tasks &tasks);
    void followTails();
    void addWork(int pos);
    void addTailsBefore(int pos, bool isLength);
    void spread();

    Span m_span;
    unsigned int m_unit = 0;
    QString m_unitName;
    std::optional<LateDates> m_late;
    quint32 m_projectFinish = 0; // that the values are of

    std::vector<Known> m_known; // in list order, as all that follows
    std::vector<quint32> m_lengths;
    std::vector<Tail> m_tails;
    OutlinePlaces m_places;
    InheritedNetwork m_network;
    std::vector<int> m_rank;          // places in the order of the network
    linkgraph::Graph m_before;        // from each task to those that it follows
    std::vector<char> m_isLinkBefore; // by edge of that

    // Of the update at work.
    std::vector<int> m_changedDates;
    std::vector<int> m_changedValues;
    std::vector<int> m_toFill;
    std::vector<char> m_isToFill;
    std::vector<char> m_isTailOpen; // by rank
    int m_openTails = 0;
    int m_lastOpen = -1; // the highest rank among them
};
}
