#pragma once
#include <vector>

// What "document.xml" may hold: the elements below each element, and their attributes with the kinds of their
// values. Made from the tables by which the file is read, so that a look at a file knows what reading takes.
namespace documentschema {

enum class Kind {
    Text,
    Flag,     // a whole number, not 0 = yes
    Whole,    // of 32 bits
    Short,    // of 16 bits; anything else leaves the member as it was
    Kept,     // a whole number; anything else leaves the member as it was
    Unsigned, // of 32 bits
    Positive, // up to 2147483647
    Number,
    Ids,     // unsigned numbers with ";" between, empty ones skipped
    Numbers, // decimal ones, likewise
    Secs,    // unsigned numbers with ";" between, empty ones counted
    Days     // seven of "1" and "0" with ";" between
};

struct Attribute
{
    const char *name;
    Kind kind;
};

// What a second element of the name does.
enum class Twice { IsOneMore, Replaces, Joins, IsIgnored };

struct Element
{
    const char *name;
    std::vector<Attribute> attributes;
    std::vector<Element> children;
    Twice twice = Twice::IsOneMore;
    bool takesAnyName = false;   // children are read as the first one, whatever they are called
    const char *shown = nullptr; // what one of many is called with its number: "task" 7
};

const Element &document();
}
