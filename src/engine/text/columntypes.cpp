#include "engine/text/columntypes.h"
#include <algorithm>
#include <cmath>
#include <limits>

namespace columntypes {
namespace {

const ColumnType types[count] = {
    {"ID", Kind::Whole, &KWTaskInfo::ID, Import::OwnId},
    {"name", Kind::Text, &KWTaskInfo::Name, Import::OwnName},
    {"start", Kind::StartDate, &KWTaskInfo::Start, Import::StartOnWorkday},
    {"finish", Kind::FinishDate, &KWTaskInfo::Finish, Import::Finish},
    {"duration", Kind::Duration, {}, Import::Duration},
    {"percent", Kind::Percent, &KWTaskInfo::Percent, Import::Percent},
    {"priority", Kind::Priority, &KWTaskInfo::Priority, Import::Whole},
    {"resources", Kind::Text, &KWTaskInfo::Resources, Import::Text},
    {"hyperlinks", Kind::Hyperlinks, {}, Import::Hyperlinks},
    {"cost", Kind::Money, &KWTaskInfo::Cost, Import::None},
    {"remaining cost", Kind::Money, &KWTaskInfo::RemainingCost, Import::None},
    {"work", Kind::Work, &KWTaskInfo::Work, Import::Number},
    {"early start", Kind::StartDate, &KWTaskInfo::Start, Import::None},
    // Kept on purpose: two finishes are shown like a start, so one at midnight reads as the next morning.
    {"early finish", Kind::StartDate, &KWTaskInfo::Finish, Import::None},
    {"late start", Kind::StartDate, &KWTaskInfo::LateStart, Import::StartOnWorkday},
    {"late finish", Kind::FinishDate, &KWTaskInfo::LateFinish, Import::Finish},
    {"start slack", Kind::Text, &KWTaskInfo::EarlySlack, Import::Text},
    {"finish slack", Kind::Text, &KWTaskInfo::LateSlack, Import::Text},
    {"critical", Kind::Flag, &KWTaskInfo::CriticalPath, Import::Whole},
    {"notes", Kind::Text, &KWTaskInfo::Notes, Import::Text},
    {"baseline start", Kind::StartDate, &KWTaskInfo::BaseStart, Import::StartAsShown},
    {"baseline finish", Kind::StartDate, &KWTaskInfo::BaseFinish, Import::StartOnWorkday},
    {"baseline cost", Kind::NumberText, &KWTaskInfo::BaselineCost, Import::NumberText},
    {"level", Kind::Whole, &KWTaskInfo::Level, Import::Whole},
    {"predecessors", Kind::Predecessors, {}, Import::RowTags},
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

void setNumber(KWTaskInfo &task, const Field &field, double value)
{
    using Limits = std::numeric_limits<qint32>;
    if (const auto *real = std::get_if<double KWTaskInfo::*>(&field))
        task.**real = value;
    else if (const auto *whole = std::get_if<qint32 KWTaskInfo::*>(&field))
        task.**whole = qint32(std::clamp(value, double(Limits::min()), double(Limits::max())));
    else if (const auto *flag = std::get_if<bool KWTaskInfo::*>(&field))
        task.**flag = std::fabs(value) >= 1; // whole, as it is shown
}

void setSecs(KWTaskInfo &task, const Field &field, quint32 secs)
{
    if (const auto *member = std::get_if<quint32 KWTaskInfo::*>(&field))
        task.**member = secs;
}

void setText(KWTaskInfo &task, const Field &field, const QString &text)
{
    if (const auto *member = std::get_if<QString KWTaskInfo::*>(&field))
        task.**member = text;
}
}
