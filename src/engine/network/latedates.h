#pragma once
#include "engine/network/linkgraph.h"
#include "engine/record/outline.h"
#include "engine/time/worktime.h"
#include <QString>
#include <vector>

struct TaskRecord;

// How late a task may be without moving the project's finish. Only links count, not the outline; the links
// between the tasks of a ring do not count at all.
namespace latedates {

// Slack is measured in days, hours or minutes, never in anything longer.
unsigned int slackUnit(unsigned int minorUnit);

// Tasks and the links from each to its successors.
struct Network
{
    std::vector<const TaskRecord *> tasks;
    linkgraph::Graph graph;
    std::vector<char> listsUnknown; // the task lists a successor that does not exist
};
Network wholeNetwork(const outline::Tasks &tasks);                         // in list order
Network networkAfter(const outline::Tasks &tasks, const TaskRecord &task); // the task first

// What comes after a task.
struct Tail
{
    enum Kind {
        Last,   // no successors
        NoPath, // only successors that do not exist, or that lead to such tasks only
        Path
    };
    Kind kind = Last;
    qint64 secs = 0; // of work on the longest path through the successors, its own not included
};
// For each task of the network; `lengths` is the work of each in seconds.
std::vector<Tail> tails(const Network &network, const std::vector<quint32> &lengths);

// More paths than this are not listed.
constexpr double maxPaths = 1 << 20;
// `sum` plus the lengths of the tasks after the first one, for each path through its successors, depth first.
// Of too many paths only the greatest sum.
std::vector<double> pathSums(const Network &network, const std::vector<double> &lengths, double sum);

// Remembers the latest results of a costly function of numbers. It begins small and grows while results get
// in each other's way.
template <typename Value>
class Recent
{
public:
    template <typename Make>
    const Value &get(qint64 key, Make make)
    {
        Slot *slot = &slotOf(key);
        if (slot->isSet && slot->key == key)
            return slot->value;
        if (slot->isSet && ++m_conflicts > m_slots.size() / 4 && m_bits < mostBits) {
            grow();
            slot = &slotOf(key);
        }
        *slot = {key, make(), true};
        return slot->value;
    }
    void clear() { m_slots.assign(m_slots.size(), Slot()); }

private:
    static constexpr int leastBits = 8;
    static constexpr int mostBits = 14;
    struct Slot
    {
        qint64 key = 0;
        Value value = Value();
        bool isSet = false;
    };

    Slot &slotOf(qint64 key) { return m_slots[(quint64(key) * 0x9e3779b97f4a7c15ULL) >> (64 - m_bits)]; }

    void grow()
    {
        m_bits += 2;
        m_conflicts = 0;
        std::vector<Slot> old(std::size_t(1) << m_bits);
        old.swap(m_slots);
        for (Slot &slot : old) {
            if (slot.isSet)
                slotOf(slot.key) = std::move(slot);
        }
    }

    int m_bits = leastBits;
    std::size_t m_conflicts = 0;
    std::vector<Slot> m_slots = std::vector<Slot>(1 << leastBits);
};

// Slack of one project as value and text.
class SlackTexts
{
public:
    SlackTexts(const worktime::WorkCalendar &calendar, unsigned int unit, const QString &unitName);

    // Units as shown, from a date to its latest one; 0.0 when that is not later.
    double between(quint32 early, quint32 late) const;
    QString text(double units);

private:
    const worktime::WorkCalendar &m_calendar;
    unsigned int m_unit;
    QString m_unitName;
    Recent<QString> m_texts;
};

// What slack is measured from.
struct Early
{
    quint32 start = 0;
    quint32 finish = 0;
    bool hasBegun = false;
};

// What a task takes from them.
struct Values
{
    quint32 lateStart = 0;
    quint32 lateFinish = 0;
    QString earlySlack;
    QString lateSlack;
    bool isCritical = false;
};

// Fills in the late dates, slack and critical flag of one project's tasks.
class LateDates
{
public:
    LateDates(const worktime::WorkCalendar &calendar, quint32 projectFinish, unsigned int unit,
              const QString &unitName);

    quint32 length(const TaskRecord &task) const; // seconds of work in the unit
    void apply(TaskRecord &task, quint32 lengthSecs, const Tail &tail);
    Values values(const Early &early, quint32 lengthSecs, const Tail &tail);
    void setProjectFinish(quint32 projectFinish);

private:
    quint32 beforeFinish(qint64 workSecs);

    const worktime::WorkCalendar &m_calendar;
    quint32 m_projectFinish;
    unsigned int m_unit;
    SlackTexts m_slack;
    Recent<quint32> m_beforeFinish;
};

// The slack texts from the dates as they stand. A task that has begun has no start slack.
void writeSlack(TaskRecord &task, SlackTexts &texts);
}
