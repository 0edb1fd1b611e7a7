#pragma once
#include "plan.h"
#include "shown.h"
#include <QString>
#include <QStringList>

// The columns that a table of tasks can show.
namespace columns {

// What a cell's text is made from.
struct Sheet
{
    Sheet(const Plan &plan, const shown::Times &times, bool showYears, const QString &expanded);

    const Plan &plan;
    const shown::Times &times;
    const bool showYears;   // the project spans more than one year
    const QString expanded; // in front of a summary's name
    const int dayStartSecs; // when a working day begins
    const int dayFinishSecs;
};

struct Column
{
    const char *key;     // what the user writes to ask for it
    const char *heading; // English; empty for the marks
    bool alignRight;
    void (*add)(const Sheet &sheet, int pos, QString &text); // behind what the text holds
};

const Column *named(const QString &key);
QStringList keys();
// What `show` prints unless told otherwise.
QStringList standardKeys();
}
