#pragma once
#include <QString>

// The calls that the driver makes, each on one file and in a file of its own; the result is the exit code.

// clipboard.cpp
int pasteClipboard(const QString &path);
// packages.cpp
int loadPackage(const QString &path);
int loadStructure(const QString &path);
// packagesaving.cpp
int makePackage(const QString &path);
int savePackage(const QString &path);
int checkPackage(const QString &path);
// Saves as autosave does, over a file of a folder named "autosave".
int saveBackup(const QString &path);
// workbooks.cpp
int importXlsx(const QString &path);
int readXlsxTitles(const QString &path);
// xlsbooks.cpp
int importXls(const QString &path);
int readXlsTitles(const QString &path);
int makeXls(const QString &path);
int saveXls(const QString &path);
int checkXls(const QString &path);
// workbooksaving.cpp
int makeXlsx(const QString &path);
int saveXlsx(const QString &path);
int checkXlsx(const QString &path);
