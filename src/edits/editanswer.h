#pragma once
#include "engine/network/linkrefusal.h"
#include "kwgantt_export.h"
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

// Why an edit of a plan was refused.
enum class EditRefusal {
    None,
    NoSuchTask,
    NoTasks,
    NoTaskBefore, // on its level: nothing to indent below, or to move above
    NoTaskAfter,
    TopLevel, // nothing to outdent from
    NoSummary,
    OfSummary, // comes from the tasks below it
    BadMoment,
    FinishBeforeStart,
    NoStart,
    BadLength,
    BadUnit,
    BadPercent,
    BadAmount,
    BadHeight,
    LinkToItself,
    LinkTwice,
    LinkToOwnTask, // a summary after a task below it
    LinkToOwnSummary,
    LinkInRing,
    NotLinked,
    NoSuchResource,
    NoResourceName,
    ResourceExists,
    AssignmentOfSummary,
    NotAssigned,
    BadUnits,
    BadCostUnit,
    NoWorkingTime, // would be left
    BadHours,
    BadDates,
    NoException,
    NoSuchColumn,
    BadWidth,
    NothingToPaste,
    ClipboardFailed,
    GivenUp // by the host, see LongWork
};

// One task whose dates an edit changed.
struct EditMove
{
    enum Cause {
        Edited,      // itself
        Pushed,      // by a predecessor, its own or one of a summary above it
        WithSummary, // carried along by a summary above it
        Content,     // a summary: the tasks below it moved
    };
    quint32 task = 0;
    Cause cause = Edited;
    quint32 pushedBy = 0; // the predecessor, for Pushed
    quint32 oldStart = 0; // day clock; 0 = it had none
    quint32 oldFinish = 0;
    quint32 start = 0;
    quint32 finish = 0;
};

// Something that an edit had to take away. Undo brings it back.
struct EditLoss
{
    enum Kind {
        Assignment, // a summary has none of its own
        Baseline,   // a summary takes it from the tasks below it
        Link        // would make tasks wait for each other
    };
    Kind kind = Assignment;
    quint32 task = 0;  // for a link the successor
    QString name;      // the resource; the baseline's cost as it was written
    quint32 other = 0; // for a link the predecessor
};

// What became of an edit.
class KWGANTT_EXPORT EditAnswer
{
public:
    EditRefusal refusal = EditRefusal::None;
    QStringList arguments;  // of the sentence
    QList<quint32> ring;    // for LinkInRing, see KWTaskLink
    QVector<quint32> tasks; // the tasks that were made or concerned
    QVector<EditMove> moves;
    QVector<EditLoss> losses;

    bool isDone() const { return refusal == EditRefusal::None; }
    // Why it was refused, and what could be done instead; both may be empty.
    QString sentence() const;
    QString hint() const;

    // The sentences and hints with %1.. for the arguments, English ones until the host fills its own in.
    static QMap<EditRefusal, QString> s_sentences;
    static QMap<EditRefusal, QString> s_hints;
};
