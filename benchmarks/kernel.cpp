#include "kernel.h"
#include <QHash>
#include <QString>
#include <algorithm>

namespace kernel {

namespace {

// Working day k of the project -> days since 1970.
std::vector<int> workingDays(const generator::Shape &shape, int count)
{
    const std::vector<int> off = generator::holidays(shape);
    std::vector<int> days;
    days.reserve(size_t(count));
    for (int day = generator::startDay; int(days.size()) < count; ++day) {
        const int weekday = (day + 3) % 7;
        if (weekday < 5 && !std::binary_search(off.begin(), off.end(), day))
            days.push_back(day);
    }
    return days;
}
}

Result reschedule(const generator::Plan &plan, const generator::Shape &shape)
{
    const int count = int(plan.parent.size());
    QHash<quint32, int> index;
    index.reserve(count);
    for (int pos = 0; pos < count; ++pos)
        index.insert(quint32(pos + 1), pos);

    Result result;
    std::vector<int> &start = result.start, &finish = result.finish, &lateFinish = result.lateFinish;
    start.resize(size_t(count));
    finish.resize(size_t(count));
    lateFinish.resize(size_t(count));
    std::vector<std::vector<int>> successors(count);
    int length = 0;
    for (int pos = 0; pos < count; ++pos) {
        for (int predecessor : plan.predecessors[pos]) {
            const int found = index.value(quint32(predecessor + 1));
            start[pos] = std::max(start[pos], finish[found]);
            successors[found].push_back(pos);
        }
        finish[pos] = start[pos] + plan.durationDays[pos];
        length = std::max(length, finish[pos]);
    }
    for (int pos = count; pos-- > 0;) {
        lateFinish[pos] = length;
        for (int successor : successors[pos])
            lateFinish[pos] = std::min(lateFinish[pos], lateFinish[successor] - plan.durationDays[successor]);
    }
    for (int pos = count; pos-- > 0;) { // pre-order: children stand behind their summary
        const int parent = plan.parent[pos];
        if (parent < 0)
            continue;
        start[parent] = plan.durationDays[parent] == 0 && finish[parent] == 0
                            ? start[pos]
                            : std::min(start[parent], start[pos]);
        finish[parent] = std::max(finish[parent], finish[pos]);
    }
    const std::vector<int> days = workingDays(shape, length + 2);
    result.length = length;
    double y = 40;
    for (int pos = 0; pos < count; ++pos) {
        const double slack = lateFinish[pos] - finish[pos];
        const QString text = QString::number(slack, 'f', 2) + QStringLiteral(" d");
        const double x1 = (days[start[pos]] - generator::startDay) * 100.0;
        const double x2 = (days[std::max(0, finish[pos] - 1)] + 1 - generator::startDay) * 100.0;
        y += 30;
        result.checksum += quint64(text.size()) + quint64(x1) + quint64(x2) + quint64(y);
    }
    result.days = days;
    return result;
}
}
