#pragma once
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

// The help texts as blocks. The terminal, the manual pages and the completions all show these, so nothing
// about a command is written twice.
//
// A text begins with lines "kwgantt show FILE - what it does" (further ways to write the command follow
// without a dash). Then come paragraphs; "  --width N  ..." explains a word or an option, lines that are
// indented further continue it; a line that ends with a colon before an indented one is a heading; " kwgantt
// ..." is an example.
namespace helptext {

struct Block
{
    enum Kind { Paragraph, Heading, Item, Example };
    Kind kind = Paragraph;
    QString term; // of an item
    QString text;
};

struct Page
{
    QStringList usage; // "kwgantt show FILE"; empty: there is no such page
    QString meaning;
    QVector<Block> blocks;
};

Page parsed(const QString &text);
// Of a command, or the overview for an empty one, with what the tables of commands and of edits add.
Page page(const QString &command);
// Each line at most so many columns wide; a word that is longer is cut.
QString shown(const Page &page, int columns);
// What a command's page says of an option ("--width"), or else that of "show", whose options others share, or
// the overview; empty when all are silent.
QString meaningOf(const QString &command, const QString &option);
// In the language of man(7).
QByteArray manualPage(const QString &command);
}
