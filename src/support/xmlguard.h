#pragma once
#include "support/kwlimits.h"
#include <QByteArray>
#include <QString>
#include <vector>

// Looks at XML before a parser sees it, and cleans texts before a writer does.
// The base library is built from this file too, so it knows nothing but Qt.
namespace xmlguard {

// One linear scan: refuses a DOCTYPE, elements nested deeper than maxDepth, more than maxNodes elements and
// attributes, text that is not sound UTF-8, characters that XML cannot carry at all (NUL, U+FFFE, U+FFFF),
// and tags that are never closed. Not a parser: text it accepts may still be no XML. Hand it to the parser
// decoded as UTF-8, since an encoding named in the text could show the parser other characters than those
// seen here.
bool isSafe(const QByteArray &text, QString *error = nullptr);

// Where the elements of a list stand in a text: a list below the root, of which there is one.
struct ListPlace
{
    const char *name = nullptr; // of the list
    int lists = 0;              // how many there are
    int begin = -1;             // of what is in it, behind its tag; -1: nothing
    int end = -1;
    bool hasText = false;    // between the elements
    std::vector<int> starts; // of its first element and of every 32nd behind
};
// The same, and finds the list on the way.
bool isSafe(const QByteArray &text, ListPlace &list, QString *error = nullptr);
// The part of it that looks at the characters alone.
bool isSoundText(const QByteArray &text, QString *error = nullptr);
// The text without what XML 1.0 cannot carry: control characters but tab, newline and return, U+FFFE, U+FFFF
// and lone surrogates. Unchanged (shared) when there is nothing to remove.
QString clean(const QString &text);
}
