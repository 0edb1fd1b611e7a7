#pragma once
#include "model/documentschema.h"
#include "support/xmlsource.h"
#include <QString>
#include <QVector>
#include <functional>
#include <memory>

class Findings;
class KWDocument;

// What of a "document.xml" was not taken as it stands, or cannot be meant so. Reading itself fails nowhere;
// here stands what it passed over, and what it took instead.
namespace loadcheck {

// Whether a value is read as it stands.
bool isOfKind(documentschema::Kind kind, const XmlText &text);

// What the file's XML holds beside what reading takes: unknown elements and attributes, values that are none
// of their kind, lists that stand twice or are not there.
class XmlLook
{
public:
    explicit XmlLook(Findings &findings); // not owned
    ~XmlLook();

    // Calls back for each task of a file whose tasks do not stand in its tree, with a null source for one
    // that needs no look; false when it cannot go on.
    using Tasks = std::function<bool(const std::function<void(const TreeSource &)> &)>;
    // First the elements; whether it could go on.
    bool lookAtElements(const TreeSource &root, const Tasks &tasks = nullptr);
    // Then, with the document that was read, the lists.
    void lookAtLists(const TreeSource &root, const KWDocument &document);

private:
    class Walk;
    const std::unique_ptr<Walk> m_walk;
};
// What the document holds now that cannot be meant so: working time, values of tasks, the resource sheet.
// Calendars are told by the elements that they were read from.
void lookAtDocument(const TreeSource &root, const KWDocument &document, Findings &findings);
// The dates of exceptions as the file has them.
QVector<quint32> midnights(const TreeSource &root);
}
