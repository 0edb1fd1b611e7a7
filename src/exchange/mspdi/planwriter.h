#pragma once
#include "exchange/mspdi/findinglist.h"
#include <QHash>
#include <QString>

class KWDocument;
class QIODevice;

// Writes a plan as project XML, so that programs that schedule anew keep its dates.
namespace mspdi {

// What the document has no field for.
struct Heading
{
    QString name;      // of the project
    quint32 start = 0; // of the project, where it lies before all tasks; 0: with the first of them
    QHash<quint32, quint32> evenings; // see ImportedPlan
};

// False when the device did not take all of it.
bool write(QIODevice &device, KWDocument &document, const Heading &heading, FindingList &findings);
}
