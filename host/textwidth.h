#pragma once
#include <QString>

// Texts measured in terminal columns.
//
// The C library's table depends on the process's locale and knows nothing in the C locale, so this one is our
// own.
namespace textwidth {

// 2 for wide East Asian characters and emoji, 0 for combining marks and other invisible ones, else 1.
int ofCharacter(char32_t character);
int of(const QString &text);
// Nothing but what every terminal shows in one column each.
bool isPlain(const QString &text);
// The text cut to at most `columns`, with `mark` (one column wide) where something was cut off.
QString elided(const QString &text, int columns, const QString &mark);
// Filled with blanks on the right or on the left; a longer text stays as it is.
QString padded(const QString &text, int columns, bool alignRight = false);
// One line for a terminal: control characters, which could steer it, and line breaks become blanks. With
// `asciiOnly` everything past ASCII becomes a question mark.
QString oneLine(const QString &text, bool asciiOnly = false);
}
