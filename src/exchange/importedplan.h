#pragma once
#include <QDate>
#include <QHash>
#include <QSet>
#include <QString>
#include <QVector>

// Where a project begins, as a user says it.
struct ProjectStart
{
    QDate date;         // invalid: where the earliest task does, else today
    int secsOfDay = -1; // -1: with the day
};

// What a file said of a plan and a document has no field for.
struct ImportedPlan
{
    quint32 start = 0;          // of the project, stored; never 0 after a successful import
    bool isStartGiven = false;  // by the file or the caller, not by the earliest task
    QSet<quint32> withoutStart; // IDs of the tasks without subtasks that the file gives no start
    // The milestones that the file puts at the end of a working day: their IDs and stored starts.
    QHash<quint32, quint32> evenings;
    QHash<quint32, QString> codes; // by ID, the numbers in the outline as the file writes them
    QVector<int> rows;             // by place in the list: where the file has the task, as findings count
    int links = 0;                 // made
    int refusedLinks = 0;
};
