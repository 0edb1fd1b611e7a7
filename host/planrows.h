#pragma once
#include "csv.h"
#include "datetext.h"
#include <QString>
#include <QVector>
#include <array>
#include <vector>

class Findings;

// The rows of a CSV plan, read cell by cell into typed values; nothing is scheduled here.
namespace planrows {

enum Field {
    Id,
    Wbs,
    Level,
    Name,
    Start,
    Finish,
    Length, // the task's duration
    Percent,
    Predecessors,
    Resources,
    Summary,
    Milestone,
    Notes,
    fieldCount
};

// One predecessor as it was written.
struct Link
{
    quint32 number = 0; // an ID, or a row number where the file has no ID column
    QString refusal;    // why it cannot be used; empty: it can
};

struct Row
{
    int line = 0;   // of the file
    quint32 id = 0; // as written; 0: none
    int level = 1;
    QString wbs;
    QString name;
    datetext::Moment start;
    datetext::Moment finish;
    bool hasDuration = false;
    datetext::Duration duration;
    double percent = 0; // fraction 0..1
    QVector<Link> predecessors;
    QString resources;
    QString notes;
    bool milestone = false;
};

struct Rows
{
    std::array<int, fieldCount> columns; // of the table; -1: the file has no such column
    std::vector<Row> rows;
    bool hasIds = false;
};

constexpr int deepestLevel = 1000;

// "row 17" and "row 17, 'Finish'": the task's place as a user counts it, from 1.
QString place(int row);
QString place(int row, const QString &columnTitle);

// The columns are found by their titles. False when the table is no plan; `errors` then says why, for every
// cell that cannot be read. `warnings` holds what was read with a change.
bool read(const csv::Table &table, Rows &result, Findings &errors, Findings &warnings);
}
