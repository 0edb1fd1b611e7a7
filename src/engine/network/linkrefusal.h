#pragma once
#include <QList>
#include <QtGlobal>

// Why a task did not become the predecessor of another.
enum class LinkRefusal {
    None,
    Missing,    // one of the two is no task of the document
    Self,       // both are the same task
    Twice,      // they are linked already
    OwnSummary, // the successor is a summary that holds the predecessor
    OwnSubtask, // the successor lies below the predecessor
    Loop        // the predecessor waits for the successor already
};

// One link to be made between two tasks, by ID, and what became of it.
struct KWTaskLink
{
    quint32 predecessor = 0;
    quint32 successor = 0;
    LinkRefusal refusal = LinkRefusal::None;
    // The tasks that would wait for each other: the predecessor, the successor, and on to the one that the
    // predecessor waits for. Neighbours are linked, or one lies below the other. Filled for a loop only.
    QList<quint32> ring;
};
