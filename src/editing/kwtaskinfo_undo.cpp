// A task's values in and out of an undo record.
#include "editing/undoitems.h"
#include "model/fieldxml.h"
#include "model/kwtaskinfo.h"
#include "model/taskfields.h"

namespace {

// Calls visit(member, sequence) for each member that is packed: the table decides the order in both
// directions.
template <typename Visitor>
void forEachPacked(Visitor &&visit)
{
    fields::forEach(fields::taskFields, fields::Copy, [&visit](const auto &row) {
        using Member = std::decay_t<decltype(row.member)>;
        if constexpr (std::is_same_v<Member, QString KWTaskInfo::*>) {
            visit(row.member, &UndoItemData::strings);
        } else if constexpr (std::is_same_v<Member, double KWTaskInfo::*>) {
            visit(row.member, &UndoItemData::doubles);
        } else if constexpr (std::is_same_v<Member, TrackedField<quint32> KWTaskInfo::*>) {
            if (row.member != &KWTaskInfo::ID) // stands by itself
                visit(row.member, &UndoItemData::integers);
        } else if constexpr (!std::is_same_v<Member, QList<quint32> KWTaskInfo::*>) {
            visit(row.member, &UndoItemData::integers);
        }
    });
}

// The values of one kind as one after the other.
template <typename Stored, typename Value>
Stored packed(const Value &value)
{
    if constexpr (std::is_same_v<Stored, qint32>)
        return qint32(fields::plain(value)); // an unsigned one bit for bit
    else
        return value;
}

bool fits(const UndoItemData &item)
{
    int integers = 0;
    int doubles = 0;
    int strings = 0;
    forEachPacked([&](auto, auto sequence) {
        if constexpr (std::is_same_v<decltype(sequence), QStringList UndoItemData::*>)
            ++strings;
        else if constexpr (std::is_same_v<decltype(sequence), QVector<double> UndoItemData::*>)
            ++doubles;
        else
            ++integers;
    });
    return item.integers.size() == integers && item.doubles.size() == doubles &&
           item.strings.size() == strings;
}
}

void KWTaskInfo::getUndoVal(UndoItemData *item) const
{
    if (!item)
        return;
    item->ID = ID;
    item->integers.clear();
    item->doubles.clear();
    item->strings.clear();
    forEachPacked([&](auto member, auto sequence) {
        auto &values = item->*sequence;
        values.append(packed<std::decay_t<decltype(values.first())>>(this->*member));
    });
    item->font = font;
    item->hyperlinks.assign(hyperlinks);
    item->Depends = Depends;
    item->Predecessors = Predecessors;
    item->Childs = Childs;
}

void KWTaskInfo::setUndoVal(const UndoItemData *item)
{
    if (!item || !fits(*item))
        return;
    ID = item->ID;
    auto integer = item->integers.begin();
    auto number = item->doubles.begin();
    auto string = item->strings.begin();
    forEachPacked([&](auto member, auto sequence) {
        using Value = std::decay_t<decltype(fields::plain(this->*member))>;
        if constexpr (std::is_same_v<decltype(sequence), QStringList UndoItemData::*>)
            this->*member = *string++;
        else if constexpr (std::is_same_v<decltype(sequence), QVector<double> UndoItemData::*>)
            this->*member = *number++;
        else
            this->*member = static_cast<Value>(*integer++);
    });
    font = item->font;
    hyperlinks.assign(item->hyperlinks);
    Depends = item->Depends;
    Predecessors = item->Predecessors;
    Childs = item->Childs;
}
