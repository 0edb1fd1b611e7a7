#pragma once
#include "model/kwdocument.h"
#include <QString>
#include <string>

// What the driver says about a document that a file was read into, and what it does with it next.

// Prints "key=value" on a line of its own.
void say(const std::string &key, const std::string &value);
void say(const std::string &key, qint64 value);
// Counts, options and the first tasks.
void sayFacts(const KWDocument &document);
// Whether saving and loading give the same document.
void sayResave(KWDocument &document);
// Does what a user would do next. There is no result to check: all of it has to end, within the limits of
// whoever runs this.
void operate(KWDocument &document);
// All three, for a document that was loaded.
void sayFactsAndOperate(KWDocument &document);
