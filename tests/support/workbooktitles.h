#pragma once
#include "exchange/exceltitles.h"
#include <QString>

// The titles of workbooks during a test: "T0".. for tasks, "R0".. for resources, "A0".. for assignments.
class WorkbookTitles
{
public:
    WorkbookTitles();
    ~WorkbookTitles(); // no titles again
    // What an export is to write into a sheet, parted by blanks.
    static void choose(exceltitles::Sheet sheet, const QString &titles);
    static void chooseAll();
};
