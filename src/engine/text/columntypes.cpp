#include "engine/text/columntypes.h"
#include <algorithm>
#include <cmath>
#include <limits>

namespace columntypes {
namespace {

const ColumnType types[count] = {
    {"ID", Kind::Whole, &TaskRecord::ID, Import::OwnId},
    {"name", Kind::Text, &TaskRecord::Name, Import::OwnName},
    {"start", Kind::StartDate, &TaskRecord::Start, Import::StartOnWorkday},
    {"finish", Kind::FinishDate, &TaskRecord::Finish, Import::Finish},
    {"duration", Kind::Duration, {}, Import::Duration},
    {"percent", Kind::Percent, &TaskRecord::Percent, Import::Percent},
    {"priority", Kind::Priority, &TaskRecord::Priority, Import::Whole},
    {"resources", Kind::Text, &TaskRecord::Resources, Import::Text},
    {"hyperlinks", Kind::Hyperlinks, {}, Import::Hyperlinks},
    {"cost", Kind::Money, &TaskRecord::Cost, Import::None},
    {"remaining cost", Kind::Money, &TaskRecord::RemainingCost, Import::None},
    {"work", Kind::Work, &TaskRecord::Work, Import::Number},
    {"early start", Kind::StartDate, &TaskRecord::Start, Import::None},
    // Kept on purpose: two finishes are shown like a start, so one at midnight reads as the next morning.
    {"early finish", Kind::StartDate, &TaskRecord::Finish, Import::None},
    {"late start", Kind::StartDate, &TaskRecord::LateStart, Import::StartOnWorkday},
    {"late finish", Kind::FinishDate, &TaskRecord::LateFinish, Import::Finish},
    {"start slack", Kind::Text, &TaskRecord::EarlySlack, Import::Text},
    {"finish slack", Kind::Text, &TaskRecord::LateSlack, Import::Text},
    {"critical", Kind::Flag, &TaskRecord::CriticalPath, Import::Whole},
    {"notes", Kind::Text, &TaskRecord::Notes, Import::Text},
    {"baseline start", Kind::StartDate, &TaskRecord::BaseStart, Import::StartAsShown},
    {"baseline finish", Kind::StartDate, &TaskRecord::BaseFinish, Import::StartOnWorkday},
    {"baseline cost", Kind::NumberText, &TaskRecord::BaselineCost, Import::NumberText},
    {"level", Kind::Whole, &TaskRecord::Level, Import::Whole},
    {"predecessors", Kind::Predecessors, {}, Import::RowTags},
};

// Reads the member, whatever its type.
template <typename Read>
auto visit(const TaskRecord &task, const Field &field, Read &&read)
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

double number(const TaskRecord &task, const Field &field)
{
    return visit(task, field, [](const auto &value) {
        if constexpr (std::is_same_v<std::decay_t<decltype(value)>, QString>)
            return 0.0;
        else
            return double(value);
    });
}

quint32 secs(const TaskRecord &task, const Field &field)
{
    const auto *member = std::get_if<quint32 TaskRecord::*>(&field);
    return member ? task.**member : 0;
}

QString text(const TaskRecord &task, const Field &field)
{
    const auto *member = std::get_if<QString TaskRecord::*>(&field);
    return member ? task.**member : QString();
}

void setNumber(TaskRecord &task, const Field &field, double value)
{
    using Limits = std::numeric_limits<qint32>;
    if (const auto *real = std::get_if<double TaskRecord::*>(&field))
        task.**real = value;
    else if (const auto *whole = std::get_if<qint32 TaskRecord::*>(&field))
        task.**whole = qint32(std::clamp(value, double(Limits::min()), double(Limits::max())));
    else if (const auto *flag = std::get_if<bool TaskRecord::*>(&field))
        task.**flag = std::fabs(value) >= 1; // whole, as it is shown
}

void setText(TaskRecord &task, const Field &field, const QString &text)
{
    if (const auto *member = std::get_if<QString TaskRecord::*>(&field))
        task.**member = text;
}
}
