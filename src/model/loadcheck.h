#pragma once
#include "support/xmlsource.h"
#include <QString>
#include <QVector>

class Findings;
class KWDocument;

// What of a "document.xml" was not taken as it stands, or cannot be meant so. Reading itself fails nowhere;
// here stands what it passed over, and what it took instead.
namespace loadcheck {

// What the file's XML holds beside what reading takes: unknown elements and attributes, values that are none
// of their kind, lists that stand twice or are not there.
void lookAtXml(const TreeSource &root, const KWDocument &document, Findings &findings);
// What the document holds now that cannot be meant so: working time, values of tasks, the resource sheet.
// Calendars are told by the elements that they were read from.
void lookAtDocument(const TreeSource &root, const KWDocument &document, Findings &findings);
// The dates of exceptions as the file has them.
QVector<quint32> midnights(const TreeSource &root);
}
