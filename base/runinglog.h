#pragma once
#include "kwbase_export.h"
#include <QString>

// The run log: one text line for each event.
class KWBASE_EXPORT RuningLog
{
public:
    static void log(const QString &line);
    static void setLogFile(const QString &path); // empty: the log is dropped, as it is at first
    static QString logFile();
};
