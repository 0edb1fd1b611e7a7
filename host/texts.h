#pragma once
#include <QMap>
#include <QString>
#include <QStringList>

class QTranslator;

// What the program says, in the user's language.
//
// English sentences stand where they are said, inside t(); a table marks its own with QT_TR_NOOP and they go
// through t() when they are shown. The other languages are the catalogues in translations/, which Qt Linguist
// edits and `tools/texts` keeps in step with the sources; what has no translation stays English.
//
// Dates, numbers, titles in files, commands and options are the same in every language.
struct EnglishTexts
{
    QMap<unsigned int, QString> longUnitNames; // by duration unit
    QMap<int, QString> columnTitles;           // by the table's column type
    QMap<int, QString> resourceTitles;         // of a workbook's sheet of resources, by field
    QMap<int, QString> assignmentTitles;       // of its sheet of assignments
    QStringList sheetNames;                    // tasks, resources, assignments
    QMap<int, QString> resourceTypes;          // 0 work, 1 material
    QStringList months;                        // twelve short names
    QStringList weekdays;                      // seven short names, Monday first
    QStringList weekdayLetters;                // the same in one column each
    QMap<QString, QString> help;               // by command; "" is the overview
};

const EnglishTexts &englishTexts();

namespace texts {

// The language of "de", "zh_CN" or "en_GB.UTF-8". False when the program does not speak it; nothing changes
// then.
bool choose(const QString &language);
// The one that the environment asks for, else English. As with other programs, LANGUAGE is a list of wishes
// that counts where LC_ALL, LC_MESSAGES and LANG name a language at all.
void chooseFromEnvironment();
QStringList languages();
// "de"
QString chosen();
// Fills the library's tables that a host has to fill: titles, which stand in files and are English in every
// language; what edits are refused for and pictures say, in the chosen one. Once, before the first document.
void fillLibraryTables();
// What the library said, which is English with its gaps filled, in the chosen language; unchanged when no
// catalogue has it.
QString said(const QString &english);
// For the tr() of a window: the chosen language, whatever the context. Lives as long as the program.
QTranslator *translator();
}

// A sentence in the chosen language.
QString t(const char *english);
// A text of the tables above, such as a column's title.
QString t(const QString &english);
// "1 task", "7 tasks": the form for the number, which stands at %1.
QString counted(qint64 number, const char *one, const char *many);
// Whole numbers with groups of three: 8,020.
QString grouped(qint64 number);
