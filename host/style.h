#pragma once
#include <QString>

// How a table is drawn: the symbols, and whether colour repeats what they say.
struct Style
{
    explicit Style(bool plainCharacters, bool withColor);

    enum Tone { Plain, Bold, Dim, Critical, DoneTone, ToDoTone };

    bool ascii;
    bool color;
    QString done;
    QString toDo;
    QString slack;
    QString dayOff;
    QString milestone;
    QString summaryEnd;
    QString summary;
    QString expanded;
    QString line;
    QString arrow;
    QString cut;

    // The text in the tone's colour, or as it is without colours.
    QString toned(const QString &text, Tone tone) const;
};
