#pragma once
#include "kwgantt_export.h"
#include <QDate>
#include <QVector>
#include <vector>

class KWDocument;

// Why a task is when it is, as data.
namespace planreasons {

// A task that another one waits for.
struct Waiting
{
    quint32 predecessor = 0;
    quint32 summary = 0;    // the summary above the waiting task that has the link; 0: the task itself
    bool isDriving = false; // no working time lies between its finish and the task's start
};

// A run of dates off inside a task.
struct DaysOff
{
    QDate from;
    QDate to;             // inclusive
    bool isUsual = false; // by its weekday
};

struct Reasons
{
    bool isDated = false;
    QVector<Waiting> waitsFor; // the last to finish first; equal ones in the order of the links
    bool isAtProjectStart = false;
    bool isDriven() const { return !waitsFor.isEmpty() && waitsFor.first().isDriving; }
    QVector<DaysOff> daysOff; // for lengths in working time
    // Of a summary: the children that give it its start and its finish; 0: none has dates.
    quint32 firstChild = 0;
    quint32 lastChild = 0;
    // The task at or below it with the least slack.
    quint32 tightest = 0;
    bool isCritical = false;
    // The successor with the least slack, the one after that, and so on; summaries' successors count as in
    // late dates.
    QVector<quint32> chain;
    int successorCount = 0;
};

// `longestChain` tasks at most in the chain. Without such a task nothing is set.
KWGANTT_EXPORT Reasons of(const KWDocument &document, quint32 id, int longestChain = 6);
// For each task of the list the place of the one with the least slack at or below it: a summary is as urgent
// as its most urgent leaf.
KWGANTT_EXPORT std::vector<int> tightest(const KWDocument &document);
// How many tasks begin before a predecessor of their own ends.
KWGANTT_EXPORT int earlyTaskCount(const KWDocument &document);
// Whole working minutes from one moment to another, negative when they stand the other way round.
KWGANTT_EXPORT qint64 workingMinutes(const KWDocument &document, quint32 from, quint32 to);
}
