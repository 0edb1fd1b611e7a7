#pragma once
#include <QtGlobal>
#include <tuple>
#include <type_traits>

// A record described as a table: one row for each stored member, walked by whatever treats all members alike.
namespace fields {

// What a member takes part in.
enum Use : unsigned int {
    Xml = 1,           // written to files and read back
    Copy = 2,          // operator=
    Assign = 4,        // assign(): the record without its place on the chart
    Reset = 8,         // clear()
    ScreenScaled = 16, // a pixel length, kept in files divided by the screen scale
    OmitEmpty = 32     // an empty list is not written to files at all
};

// `cleared` is the number a Reset member gets; texts and lists become empty.
template <typename Record, typename Value>
struct Field
{
    const char *name; // in files
    Value Record::*member;
    unsigned int uses;
    int cleared;
};

template <typename Record, typename Value>
constexpr Field<Record, Value> field(const char *name, Value Record::*member, unsigned int uses,
                                     int cleared = 0)
{
    return {name, member, uses, cleared};
}

// Calls visit(field) for every row that has all bits of `uses`, in the order of the table.
template <typename Table, typename Visitor>
constexpr void forEach(const Table &table, unsigned int uses, Visitor &&visit)
{
    std::apply([&](const auto &...rows) { (void(((rows.uses & uses) == uses) ? (visit(rows), 0) : 0), ...); },
               table);
}

template <typename Table, typename Record>
void copy(const Table &table, unsigned int uses, const Record &from, Record &to)
{
    forEach(table, uses, [&](const auto &row) { to.*row.member = from.*row.member; });
}

template <typename Table, typename Record>
void reset(const Table &table, Record &record)
{
    forEach(table, Reset, [&](const auto &row) {
        using Value = std::decay_t<decltype(record.*row.member)>;
        if constexpr (!std::is_convertible_v<Value, quint32>)
            record.*row.member = Value();
        else
            record.*row.member = static_cast<Value>(row.cleared);
    });
}
}
