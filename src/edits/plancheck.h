#pragma once
#include "kwgantt_export.h"
#include <QList>
#include <QString>
#include <QVector>

class KWDocument;

// What is wrong with a plan in itself, whatever file it came from. A plan that was made by PlanEdits has
// nothing of it.
namespace plancheck {

enum Fault {
    NoId,
    DoubledId,        // of the task at place `other`
    UnknownSummary,   // `other`: its ID
    AboveItsSummary,  // stands above it in the list
    UnnamedBySummary, // the summary does not name it as its child
    WrongLevel,       // `other`: the level that the outline gives it
    DoubledChild,     // `other`: its ID
    UnknownChild,     // `other`: its ID
    ChildOfAnother,   // `other`: the child
    WrongHider,       // hidden by `other`, which is no collapsed summary
    UnknownPredecessor,
    UnknownSuccessor,
    OwnPredecessor,
    OwnSuccessor,
    OneSidedPredecessor, // does not know of the link
    OneSidedSuccessor,
    AssignedSummary,
    UnknownResource, // `name`
    LinkRing,        // `ring`: the tasks that wait for each other
    WrongHeightCount // `other`: how many row heights there are
};

struct Finding
{
    Fault fault = NoId;
    int pos = -1; // the task's place in the list; -1: the plan
    quint32 other = 0;
    QString name;
    QList<quint32> ring;
};

// In the order of the list.
KWGANTT_EXPORT QVector<Finding> check(const KWDocument &document);
}
