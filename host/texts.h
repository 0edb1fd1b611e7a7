#pragma once
#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>

// What the program says, in the user's language.
//
// English sentences stand where they are said, inside t(); a further language is one more file that fills a
// LanguageTexts with its tables and its sentences, and one more line in texts.cpp.
struct LanguageTexts
{
    QString code;                              // "en"
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
    QHash<QByteArray, QString> sentences;      // by the English sentence; missing ones stay English
};

const LanguageTexts &englishTexts();

namespace texts {

// False when the program does not speak that language; nothing changes then.
bool choose(const QString &language);
QStringList languages();
const LanguageTexts &current();
// Fills the library's tables that a host has to fill.
void fillLibraryTables();
}

// A sentence in the chosen language.
QString t(const char *english);
// "1 task", "7 tasks": the form for the number, which stands at %1.
QString counted(qint64 number, const char *one, const char *many);
// Whole numbers with groups of three: 8,020.
QString grouped(qint64 number);
