#pragma once
#include <QList>
#include <QString>

class Resource;

// A task's list of assignments. Names are compared trimmed; of several assignments of one name the first
// counts.
namespace assignments {

Resource *byName(const QList<Resource *> &assigned, const QString &name); // null when there is none
// Gives back every use and empties the list.
void clear(QList<Resource *> &assigned);
}
