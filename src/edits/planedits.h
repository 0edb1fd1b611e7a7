#pragma once
#include "editing/kwhyperlink.h"
#include "edits/editanswer.h"
#include "engine/network/linkrefusal.h"
#include "engine/record/codes.h"
#include "kwgantt_export.h"
#include <QDate>
#include <QString>
#include <QStringList>
#include <QVector>
#include <array>
#include <memory>
#include <optional>

class KWDocument;
struct EditStep;

// What a user does to a plan, one call for each thing.
//
//     PlanEdits edits(document, QObject::tr("Move task"));
//     TaskValues values;
//     values.start = secs;
//     const EditAnswer answer = edits.set({id}, values);
//     if (!answer.isDone())
//         show(answer.sentence(), answer.hint());
//     for (const EditMove &move : answer.moves)
//         ...
//
// Every call judges first: what it refuses changes nothing at all. What it does it records, so that it can be
// undone; then everything that follows is settled (see settling::settle), and the answer tells which tasks
// moved and because of whom, and what was lost. All calls of one object are one step of the document's undo
// stack, handed over under the given name when the object is finished or destroyed; no step when nothing was
// done. While it lives nothing else may edit, undo, load or save the document.
//
// Tasks are named by ID, hidden ones like any other. Moments are seconds since 1970 on the day clock, a
// finish is exclusive. The scale that the user has chosen for the chart stays: nothing here zooms.

// Hours of a day, in seconds since midnight; finish up to 86400.
struct DayHours
{
    quint32 start = 0;
    quint32 finish = 0;
};

// Dates that work otherwise than their weekday says.
struct DateException
{
    QString name;
    QDate from;
    QDate to; // inclusive
    bool works = false;
    QVector<DayHours> hours; // of their own; empty: those of every day
};

// A length in a unit of time, of duration::Unit.
struct TaskLength
{
    double value = 0; // 0 makes a milestone
    quint32 unit = duration::Day;
};

// Values of tasks; what is not set stays. Taken in this order.
struct TaskValues
{
    std::optional<QString> name;
    // Goes to the next working moment and takes the finish along; the content of a summary goes with it. 0
    // takes the dates away.
    std::optional<quint32> start;
    std::optional<TaskLength> length;
    std::optional<quint32> unit;     // in which the length is shown; the dates stay
    std::optional<quint32> finish;   // of a task that has a start
    std::optional<bool> isMilestone; // a task that is none any more lasts a day
    std::optional<double> percent;   // fraction 0..1
    std::optional<qint32> priority;
    std::optional<QString> notes;
    std::optional<quint32> baseStart; // 0: none
    std::optional<quint32> baseFinish;
    std::optional<QString> baseCost; // a number; empty: none
    std::optional<double> rowHeight; // pixels at 96 dpi
    std::optional<QVector<KWHyperlink>> hyperlinks;
};

// Values of an entry of the resource sheet; what is not set stays. They reach every assignment of the entry.
struct ResourceValues
{
    std::optional<qint32> type; // of resourcetypes::Type
    std::optional<double> cost;
    std::optional<qint32> costUnit; // of cost::RateUnit
    std::optional<double> overtimeCost;
    std::optional<qint32> overtimeUnit;
    std::optional<double> costPer; // cost per use
    std::optional<double> units;   // the most there is of it, 1.0 = 100 %
    std::optional<QString> group;
    std::optional<QString> email;
    std::optional<QString> notes;
};

// Values of a column of the task table.
struct ColumnValues
{
    std::optional<bool> isHidden;
    std::optional<double> width; // pixels at the current screen scale
};

// Options of the plan; what is not set stays.
struct PlanOptions
{
    std::optional<quint32> projectUnit; // of new tasks' lengths, as in TaskLength
    std::optional<quint32> startDate;   // day clock; 0: none
    std::optional<quint32> finishDate;
    std::optional<quint32> majorUnit; // of the chart's head, up to duration::smallestMajorUnit
    std::optional<quint32> minorUnit; // as in TaskLength, smaller than the major one
    std::optional<qint32> unitWidth;  // pixels of a minor unit, 1..10000
    std::optional<bool> autoZoom;
    std::optional<bool> autoProgress;
    std::optional<qint32> theme;
    std::optional<double> baselineCost;
};

class KWGANTT_EXPORT PlanEdits
{
public:
    // Where tasks go, beside or below another one.
    enum Place { Above, Below, FirstChild, LastChild };
    // Where tasks stand before they are scheduled.
    enum Beginning { AsGiven, AsSoonAsPossible, WithoutGaps };

    // The name of the undo step must not be empty.
    PlanEdits(KWDocument &document, const QString &stepName);
    ~PlanEdits(); // finishes
    PlanEdits(const PlanEdits &) = delete;
    PlanEdits &operator=(const PlanEdits &) = delete;

    // Hands the step to the undo stack; the next call begins another one. Whether there was something to hand
    // over.
    bool finish();
    // Takes back everything since the last finish; nothing goes on the undo stack, and the document is
    // modified only if it was before.
    void cancel();

    // ---- The outline -------------------------------------------------------------------------------------
    // New tasks: answer.tasks has them. They take the dates of the task beside them, last as long but a day
    // at most, and are named as no other. A task below a collapsed summary is hidden.
    EditAnswer add(const TaskValues &values = {}); // at the end, beside the last visible task
    EditAnswer insert(quint32 id, Place place, const TaskValues &values = {});
    // A collapsed summary goes with what is hidden below it, what is below another task moves up in its
    // place.
    EditAnswer remove(const QVector<quint32> &ids);
    // The last child of the sibling before it.
    EditAnswer indent(const QVector<quint32> &ids);
    // One level up; the siblings that follow become its children.
    EditAnswer outdent(const QVector<quint32> &ids);
    // Among its siblings, each with its content; down for positive places, up for negative ones.
    EditAnswer move(quint32 id, int places);
    EditAnswer collapse(const QVector<quint32> &ids);
    EditAnswer expand(const QVector<quint32> &ids);

    // ---- Values ------------------------------------------------------------------------------------------
    // The same values for each of the tasks. Dates, length, percent and baseline of a summary come from the
    // tasks below it and are refused, but for its start.
    EditAnswer set(const QVector<quint32> &ids, const TaskValues &values);

    // ---- Links -------------------------------------------------------------------------------------------
    // Each task waits for the one before it in the list.
    EditAnswer link(const QVector<quint32> &chain);
    EditAnswer unlink(const QVector<quint32> &chain);
    EditAnswer unlinkAll(const QVector<quint32> &ids); // from all that they wait for and that waits for them

    // ---- Resources ---------------------------------------------------------------------------------------
    // Names are compared trimmed. An assignment that is there already takes the units, if given; 1.0 is 100 %
    // of a work resource, or one piece of a material.
    EditAnswer assign(quint32 id, const QString &resource, std::optional<double> units = std::nullopt);
    EditAnswer unassign(quint32 id, const QString &resource);
    EditAnswer unassignAll(const QVector<quint32> &ids);
    EditAnswer addResource(const QString &name, const ResourceValues &values = {});
    EditAnswer setResource(const QString &name, const ResourceValues &values);
    EditAnswer renameResource(const QString &name, const QString &newName);
    EditAnswer removeResource(const QString &name); // with its assignments, which are told as lost

    // ---- Working time ------------------------------------------------------------------------------------
    // Tasks keep their length in working time, move off the days off and behind their predecessors.
    EditAnswer setWorkDays(const std::array<bool, 7> &week); // Monday first
    EditAnswer setWorkHours(const QVector<DayHours> &hours); // of every working day, in order
    EditAnswer addException(const DateException &exception); // wins over those that are there
    EditAnswer removeException(const QDate &date);           // the one that decides about the date

    // ---- The whole plan ----------------------------------------------------------------------------------
    // Dates and cost as they are become the baseline, of the tasks and of all below them; of all tasks
    // without any.
    EditAnswer setBaseline(const QVector<quint32> &ids = {});
    EditAnswer clearBaseline(const QVector<quint32> &ids = {});
    EditAnswer setOptions(const PlanOptions &options);
    // Pushes every task behind its predecessors. As soon as possible: after putting all tasks to the
    // beginning, the project's first start when it is 0. Without gaps: a task that waits for others by a link
    // of its own and has not begun starts as soon as they have ended; the others stay. answer.moves has each
    // task that moved.
    EditAnswer schedule(Beginning beginning, quint32 projectStart = 0);

    // ---- The table ---------------------------------------------------------------------------------------
    EditAnswer setColumn(const QString &title, const ColumnValues &values);
    EditAnswer moveColumn(int from, int to); // column numbers, hidden ones not counted

    // ---- Branches ----------------------------------------------------------------------------------------
    // To the clipboard, each with all that is below it; hidden tasks too.
    EditAnswer copy(const QVector<quint32> &ids);
    EditAnswer cut(const QVector<quint32> &ids);
    // From the clipboard, with new IDs, names of their own and the links among them; the columns stay as they
    // are. answer.tasks has the tops.
    EditAnswer paste();
    EditAnswer paste(quint32 id, Place place);
    // Branches of another plan or of this one, past the clipboard. Resources that this plan's sheet does not
    // have come with them.
    EditAnswer copyBranches(const KWDocument &source, const QVector<quint32> &ids);
    EditAnswer copyBranches(const KWDocument &source, const QVector<quint32> &ids, quint32 id, Place place);

private:
    EditStep &step() const { return *m_step; }
    std::unique_ptr<EditStep> m_step;
};
