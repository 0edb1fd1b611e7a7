#pragma once
#include "kwgantt_export.h"
#include <QVector>

class KWDocument;

// What follows an edit, in one place: pushes, dates of summaries, percents, work and cost, names, baselines,
// late dates, the chart.
//
// Every edit ends the same way. Whoever changes tasks says what kind of thing changed and on which tasks;
// `settle` brings everything that follows from it up to date, over what the change reaches. Tasks without a
// start or without a finish take no part: they are neither pushed nor rolled up, the chart's range does not
// see them, and they have no late dates and an empty slack.
namespace settling {

// What changed, one bit each.
enum What : unsigned {
    Dates = 1,        // start or finish of tasks, or whether they have any
    Length = 2,       // the duration or its unit, at the same start
    Progress = 4,     // the percent of tasks
    Assignments = 8,  // who works on tasks, how much, and at which rates
    Outline = 16,     // tasks came or changed places; their old and their new summaries are named beside them
    Links = 32,       // links between tasks: the successors
    Calendar = 64,    // the working time: the tasks have their new dates already
    Baseline = 128,   // baselines of tasks
    Everything = 256, // whatever it was: all tasks, whichever are named
    // Nothing: the plan was read. Dates and percents of summaries, late dates and the chart follow from the
    // tasks as they stand; nothing is pushed, money stays as it was read, and so does the modified flag.
    AsItStands = 512,
    // With AsItStands: no late dates and no chart, for whoever is going to settle everything.
    SumsAlone = 1024
};

struct Changes
{
    unsigned what = 0;          // of What
    QVector<quint32> tasks;     // IDs of the tasks concerned; those that are gone are passed over
    QVector<quint32> summaries; // tasks that got or lost children
};

// A predecessor that pushed a task.
struct Push
{
    quint32 task = 0;
    quint32 pushedBy = 0;
};

// In this order:
//   - pushes and the dates of summaries together, until neither moves: a summary that grows pushes its
//   successors.
//     A push starts only at the tasks named; links that were violated elsewhere stay as they are;
//   - percents of summaries;
//   - work, cost, remaining cost and names texts, of a summary from its leaves;
//   - baselines of summaries: sum and span of those leaves that have one;
//   - late dates, slack and the critical flag, where dates or links changed;
//   - the chart's range and width, the bars, bold summary rows;
//   - the modified flag.
// Settling everything a second time changes nothing. Returns who pushed whom last.
KWGANTT_EXPORT QVector<Push> settle(KWDocument &document, const Changes &changes);

// The chart alone: its range from the tasks that have dates, its width, all bars.
KWGANTT_EXPORT void settleChart(KWDocument &document);
}
