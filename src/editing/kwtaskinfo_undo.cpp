// A task's values in and out of an undo record.
#include "editing/undoitems.h"
#include "engine/record/fieldxml.h"
#include "engine/record/taskfields.h"
#include "model/kwtaskinfo.h"

namespace {

// Stands by itself in a record, as the lists do.
template <typename Value>
constexpr bool isId(Value TaskRecord::*member)
{
    if constexpr (std::is_same_v<Value, TrackedField<quint32>>)
        return member == &TaskRecord::ID;
    else
        return false;
}

// The sequence in which a member is packed.
template <typename Value>
constexpr auto sequenceOf()
{
    if constexpr (std::is_same_v<Value, QString>)
        return &UndoItemData::strings;
    else if constexpr (std::is_same_v<Value, double>)
        return &UndoItemData::doubles;
    else
        return &UndoItemData::integers;
}

// Calls visit(member, sequence) for the members that are packed, in the order of the table of fields.
template <typename Visitor>
constexpr void forEachPacked(Visitor &&visit)
{
    fields::forEach(fields::taskFields, fields::Copy, [&visit](const auto &row) {
        using Value = std::decay_t<decltype(std::declval<TaskRecord>().*row.member)>;
        if constexpr (!std::is_same_v<Value, QList<quint32>>) {
            if (!isId(row.member))
                visit(row.member, sequenceOf<Value>());
        }
    });
}

// How many members are packed in a sequence.
template <typename Sequence>
constexpr int countIn(Sequence)
{
    int count = 0;
    forEachPacked([&count](auto, auto sequence) { count += std::is_same_v<decltype(sequence), Sequence>; });
    return count;
}

constexpr int integerCount = countIn(&UndoItemData::integers);
constexpr int doubleCount = countIn(&UndoItemData::doubles);
constexpr int stringCount = countIn(&UndoItemData::strings) + 1; // behind them stands the font's text

// ---- One value --------------------------------------------------------------------------------------------

// As one of a sequence.
template <typename Stored, typename Value>
Stored packed(const Value &value)
{
    if constexpr (std::is_same_v<Stored, qint32>)
        return qint32(fields::plain(value)); // an unsigned one bit for bit
    else
        return value;
}

// A text has not all of a font: the object counts while it is the one that the text is of.
QFont fontOf(const UndoItemData &item)
{
    if (item.font.toString() == item.strings.last())
        return item.font;
    QFont font = item.font;
    font.fromString(item.strings.last());
    return font;
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
    item->strings.append(font.toString());
    item->font = font;
    item->hyperlinks.assign(hyperlinks);
    item->Depends = Depends;
    item->Predecessors = Predecessors;
    item->Childs = Childs;
}

void KWTaskInfo::setUndoVal(const UndoItemData *item)
{
    if (!item || item->integers.size() != integerCount || item->doubles.size() != doubleCount ||
        item->strings.size() != stringCount)
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
    font = fontOf(*item);
    hyperlinks.assign(item->hyperlinks);
    Depends = item->Depends;
    Predecessors = item->Predecessors;
    Childs = item->Childs;
}
