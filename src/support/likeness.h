#pragma once
#include "kwgantt_export.h"
#include <QString>
#include <QStringList>

// Which of some words was probably meant.
namespace likeness {

// How many letters must be put in, taken out, replaced or swapped with their neighbour to make one word of
// the other.
KWGANTT_EXPORT int distance(const QString &a, const QString &b);
// The candidate that is most like the word in any case of letters, at most a third of its letters away; empty
// when none is, and for words too long to be typed. `plain` makes of a candidate what is compared.
KWGANTT_EXPORT QString nearest(const QString &word, const QStringList &candidates,
                               QString (*plain)(const QString &) = nullptr);
}
