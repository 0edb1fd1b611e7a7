#pragma once
#include <QHash>
#include <QSet>
#include <QString>

// What a file said of a plan and a document has no field for.
struct ImportedPlan
{
    quint32 start = 0;             // of the project, stored; never 0 after a successful import
    bool isStartGiven = false;     // by the file or the caller, not by the earliest task
    QSet<quint32> withoutStart;    // IDs of the tasks without subtasks that the file gives no start
    QSet<quint32> evenings;        // IDs of the milestones that the file puts at the end of a working day
    QHash<quint32, QString> codes; // by ID, the numbers in the outline as the file writes them
    int links = 0;                 // made
    int refusedLinks = 0;
};
