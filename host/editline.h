#pragma once
#include "options.h"
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

// One edit as it is written: words separated by blanks.
//
// Quotes hold a word together, anywhere in it: "Order parts", name="Order parts". Between double quotes a
// backslash stands before a quote or another backslash, and \n and \t are a line break and a tab; between
// single quotes nothing is special.
// A line whose first character other than a blank is # says nothing.
namespace editline {

// Empty for a line that says nothing. False with a fault for a quote that is never closed.
bool split(const QString &line, QStringList &words, options::Fault &fault);
// The text as one word.
QString quoted(const QString &text);

// "name=Order parts", or two words, when the first is one of the `names`. False with a fault for what is
// neither.
using Pairs = QVector<QPair<QString, QString>>;
bool pairs(const QStringList &words, const QStringList &names, Pairs &result, options::Fault &fault);
// Whether the word is such a pair, or one of the names.
bool isPair(const QString &word, const QStringList &names);
}
