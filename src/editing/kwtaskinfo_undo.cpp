// A task's values in and out of an undo record.
#include "editing/undoitems.h"
#include "engine/record/fieldxml.h"
#include "engine/record/taskfields.h"
#include "model/kwtaskinfo.h"

namespace {

// The packed members in their order: integers, doubles, strings. Behind the strings stands the font's text.
constexpr auto packingOrder =
    std::make_tuple(&KWTaskInfo::Priority, &KWTaskInfo::Progress, &KWTaskInfo::Start, &KWTaskInfo::Finish,
                    &KWTaskInfo::LateStart, &KWTaskInfo::LateFinish, &KWTaskInfo::BaseStart,
                    &KWTaskInfo::BaseFinish, &KWTaskInfo::DurationSecs, &KWTaskInfo::DurationUnits,
                    &KWTaskInfo::Milestone, &KWTaskInfo::IsToggler, &KWTaskInfo::Level, &KWTaskInfo::ParentID,
                    &KWTaskInfo::HideID, &KWTaskInfo::CriticalPath, &KWTaskInfo::CriticalVisible,

                    &KWTaskInfo::Percent, &KWTaskInfo::Work, &KWTaskInfo::Cost, &KWTaskInfo::RemainingCost,
                    &KWTaskInfo::CountWidth, &KWTaskInfo::FirstWidth, &KWTaskInfo::x1, &KWTaskInfo::y1,
                    &KWTaskInfo::x2, &KWTaskInfo::y2,

                    &KWTaskInfo::Name, &KWTaskInfo::Resources, &KWTaskInfo::EarlySlack,
                    &KWTaskInfo::LateSlack, &KWTaskInfo::BaselineCost, &KWTaskInfo::Notes);

// The sequence in which a member is packed.
constexpr auto sequenceOf(QString KWTaskInfo::*)
{
    return &UndoItemData::strings;
}

constexpr auto sequenceOf(double KWTaskInfo::*)
{
    return &UndoItemData::doubles;
}

template <typename Value>
constexpr auto sequenceOf(Value KWTaskInfo::*)
{
    return &UndoItemData::integers;
}

template <typename Visitor>
constexpr void forEachPacked(Visitor &&visit)
{
    std::apply([&visit](auto... members) { (visit(members, sequenceOf(members)), ...); }, packingOrder);
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
constexpr int stringCount = countIn(&UndoItemData::strings) + 1;

// ---- No saved member is forgotten -------------------------------------------------------------------------

// ID and lists stand by themselves.
template <typename Value>
constexpr bool standsByItself(Value KWTaskInfo::*member)
{
    if constexpr (std::is_same_v<Value, TrackedField<quint32>>)
        return member == &KWTaskInfo::ID;
    else
        return std::is_same_v<Value, QList<quint32>>;
}

template <typename Member>
constexpr int placesOf(Member wanted)
{
    int places = 0;
    forEachPacked([&](auto member, auto) {
        if constexpr (std::is_same_v<decltype(member), Member>)
            places += member == wanted;
    });
    return places;
}

constexpr bool packsEveryField()
{
    bool isComplete = true;
    int fieldCount = 0;
    fields::forEach(fields::taskFields, fields::Copy, [&](const auto &row) {
        const int wanted = standsByItself(row.member) ? 0 : 1;
        isComplete = isComplete && placesOf(row.member) == wanted;
        fieldCount += wanted;
    });
    return isComplete && fieldCount == std::tuple_size_v<decltype(packingOrder)>;
}

static_assert(packsEveryField(), "a member of the table of task fields is missing, doubled or unknown there");

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
