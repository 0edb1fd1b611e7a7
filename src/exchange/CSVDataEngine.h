#pragma once
#include "exchange/importedplan.h"
#include "kwgantt_export.h"
#include "support/findings.h"
#include <QByteArray>
#include <QString>

class KWDocument;

namespace csv {
struct Text;
}

// A plan as delimited text, a row a task, and back. Its resource sheet and its assignments stand in files of
// their own.
//
// The titles are those of a workbook or what a person may call them, in any order and case; see the
// documentation of the format. Predecessors are IDs where there is a column of IDs, else row numbers; a
// length decides where a finish contradicts it; a cell that cannot be read refuses the file.
class KWGANTT_EXPORT CSVDataEngine
{
public:
    explicit CSVDataEngine(KWDocument *document); // not owned, may be null
    ~CSVDataEngine();
    CSVDataEngine(const CSVDataEngine &) = delete;
    CSVDataEngine &operator=(const CSVDataEngine &) = delete;

    KWDocument *document() const { return m_document; }
    // What the last import or export found wrong.
    const Findings &findings() const { return m_findings; }
    // What the last import found that the document has no field for; an export writes it.
    const ImportedPlan &imported() const { return m_imported; }
    void setImported(const ImportedPlan &imported) { m_imported = imported; }

    // ---- Before an import ---------------------------------------------------------------------------------
    // The files beside the plan; empty: none. Without a file of assignments those that the plan's own column
    // of resources names are made, "Ann[50%];Crane".
    void setResourceFile(const QString &path) { m_resourceFile = path; }
    void setAssignmentFile(const QString &path) { m_assignmentFile = path; }
    // Where tasks without dates begin.
    void setStart(const ProjectStart &start) { m_start = start; }
    // Whether tasks without dates are placed behind their predecessors (the default) or all at the project's
    // start.
    void setPlacesBehind(bool behind) { m_placesBehind = behind; }

    // Replaces the document's tasks, and its resources and assignments where there is a file of resources.
    // The working time stays. False leaves the document as it was; findings() says why.
    bool importFile(const QString &path);
    // The same from texts that are checked already; null for a file that there is not. That of the tasks is
    // given up as soon as they are read, if it is handed over.
    bool importTexts(csv::Text tasks, const csv::Text *resources, const csv::Text *assignments);
    // Writes the tasks, and resources and assignments where files are set for them, each in one step.
    bool exportFile(const QString &path);

private:
    bool readText(const QString &path, csv::Text &text);
    bool writeFile(const QString &path, const QByteArray &bytes);

    KWDocument *m_document;
    Findings m_findings;
    ImportedPlan m_imported;
    QString m_resourceFile;
    QString m_assignmentFile;
    ProjectStart m_start;
    bool m_placesBehind = true;
};
