#pragma once
#include <QString>

// A text that a host shows to its users: what a finding says, what was wrong with a file.
//
// The library says it in English, and other programs know it by its wording. The mark is for `tools/texts`,
// which reads all of them for the catalogues of a host that speaks other languages; a text of a table is
// marked with QT_TR_NOOP, or its table is called `texts`. What is joined of parts stands in a comment behind
// "texts:" where it is joined.
#define KW_TEXT(english) QStringLiteral(english)
