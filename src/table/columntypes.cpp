#include "table/columntypes.h"

namespace columntypes {
namespace {

const ColumnType types[count] = {
    {"ID", Kind::Whole, &KWTaskInfo::ID},
    {"name", Kind::Text, &KWTaskInfo::Name},
    {"start", Kind::StartDate, &KWTaskInfo::Start},
    {"finish", Kind::FinishDate, &KWTaskInfo::Finish},
    {"duration", Kind::Duration, {}},
    {"percent", Kind::Percent, &KWTaskInfo::Percent},
    {"priority", Kind::Priority, &KWTaskInfo::Priority},
    {"resources", Kind::Text, &KWTaskInfo::Resources},
    {"hyperlinks", Kind::Hyperlinks, {}},
    {"cost", Kind::Money, &KWTaskInfo::Cost},
    {"remaining cost", Kind::Money, &KWTaskInfo::RemainingCost},
    {"work", Kind::Work, &KWTaskInfo::Work},
    {"early start", Kind::StartDate, &KWTaskInfo::Start},
    // Kept on purpose: two finishes are shown like a start, so one at midnight reads as the next morning.
    {"early finish", Kind::StartDate, &KWTaskInfo::Finish},
    {"late start", Kind::StartDate, &KWTaskInfo::LateStart},
    {"late finish", Kind::FinishDate, &KWTaskInfo::LateFinish},
    {"start slack", Kind::Text, &KWTaskInfo::EarlySlack},
    {"finish slack", Kind::Text, &KWTaskInfo::LateSlack},
    {"critical", Kind::Flag, &KWTaskInfo::CriticalPath},
    {"notes", Kind::Text, &KWTaskInfo::Notes},
    {"baseline start", Kind::StartDate, &KWTaskInfo::BaseStart},
    {"baseline finish", Kind::StartDate, &KWTaskInfo::BaseFinish},
    {"baseline cost", Kind::NumberText, &KWTaskInfo::BaselineCost},
    {"level", Kind::Whole, &KWTaskInfo::Level},
    {"predecessors", Kind::Predecessors, {}},
};

// Reads the member, whatever its type.
template <typename Read>
auto visit(const KWTaskInfo &task, const Field &field, Read &&read)
{
    return std::visit(
        [&](const auto &member) {
            if constexpr (std::is_same_v<std::decay_t<decltype(member)>, std::monostate>)
                return decltype(read(task.Name))();
            else
                return read(task.*member);
        },
        field);
}
}

const ColumnType *find(int type)
{
    return type >= 0 && type < count ? &types[type] : nullptr;
}

double number(const KWTaskInfo &task, const Field &field)
{
    return visit(task, field, [](const auto &value) {
        if constexpr (std::is_same_v<std::decay_t<decltype(value)>, QString>)
            return 0.0;
        else
            return double(value);
    });
}

quint32 secs(const KWTaskInfo &task, const Field &field)
{
    const auto *member = std::get_if<quint32 KWTaskInfo::*>(&field);
    return member ? task.**member : 0;
}

QString text(const KWTaskInfo &task, const Field &field)
{
    const auto *member = std::get_if<QString KWTaskInfo::*>(&field);
    return member ? task.**member : QString();
}
}
