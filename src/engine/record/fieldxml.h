#pragma once
#include "engine/record/fieldtable.h"
#include "engine/record/trackedfield.h"
#include "format/unitutil.h"
#include "support/xmlsink.h"
#include "support/xmlsource.h"
#include <vector>

// The rows of a field table as attributes, over any of the XML sinks and sources.
namespace fields {

template <typename T>
const T &plain(const T &value)
{
    return value;
}

template <typename T>
T plain(const TrackedField<T> &value)
{
    return value.value();
}

template <typename T>
bool isEmptyList(const QList<T> &list)
{
    return list.isEmpty();
}

template <typename T>
bool isEmptyList(const T &)
{
    return false;
}

// The attributes of the element that the sink has open, in the order of the table.
template <typename Sink, typename Table, typename Record>
void write(Sink &sink, const Table &table, const Record &record)
{
    const double scale = UnitUtil::dpiScale96();
    forEach(table, Xml, [&](const auto &row) {
        const auto &value = plain(record.*row.member);
        if constexpr (std::is_same_v<std::decay_t<decltype(value)>, double>) {
            sink.attribute(row.name, row.uses & ScreenScaled ? value / scale : value);
        } else {
            if (!(row.uses & OmitEmpty) || !isEmptyList(value))
                sink.attribute(row.name, value);
        }
    });
}

template <typename Row, typename Record>
void readOne(const Row &row, const XmlText &text, double scale, Record &record)
{
    if (text.isEmpty())
        return;
    auto value = plain(record.*row.member);
    xmltext::read(text, value);
    if constexpr (std::is_same_v<decltype(value), double>) {
        if (row.uses & ScreenScaled)
            value *= scale;
    }
    record.*row.member = value;
}

// An absent or empty attribute leaves its member as it was.
template <typename Source, typename Table, typename Record>
void read(Source &source, const Table &table, Record &record)
{
    const double scale = UnitUtil::dpiScale96();
    forEach(table, Xml, [&](const auto &row) { readOne(row, source.text(row.name), scale, record); });
}

// The same for whole files, where looking each attribute up would be most of the work.
template <typename Table, typename Record>
void read(TreeSource &source, const Table &table, Record &record)
{
    const double scale = UnitUtil::dpiScale96();
    constexpr size_t count = std::tuple_size_v<Table>;
    std::array<const char *, count> names = {};
    size_t size = 0;
    forEach(table, Xml, [&](const auto &row) { names[size++] = row.name; });
    std::fill(names.begin() + size, names.end(), ""); // no attribute has this name
    std::array<const char *, count> values;
    source.texts(names, values);
    size_t i = 0;
    forEach(table, Xml, [&](const auto &row) {
        const char *const value = values[i++];
        readOne(row, XmlText(value, int(std::strlen(value))), scale, record);
    });
}

// The text of one attribute, wherever it stands.
struct Piece
{
    const char *data = "";
    int size = 0;
};

// The same from the texts of all rows, empty where there is none.
template <typename Table, typename Record>
void readAll(const std::vector<Piece> &texts, const Table &table, Record &record)
{
    const double scale = UnitUtil::dpiScale96();
    size_t i = 0;
    forEach(table, Xml, [&](const auto &row) {
        const Piece &text = texts[i++];
        readOne(row, XmlText(text.data, text.size), scale, record);
    });
}

// The same with one element of a DOM.
template <typename Table, typename Record>
void save(const Table &table, const Record &record, const QDomElement &element)
{
    DomSink sink(element);
    write(sink, table, record);
}

template <typename Table, typename Record>
void parse(const Table &table, const QDomElement &element, Record &record)
{
    DomSource source(element);
    read(source, table, record);
}
}
