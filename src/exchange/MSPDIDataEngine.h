#pragma once
#include "kwgantt_export.h"
#include "support/findings.h"
#include <QHash>
#include <QString>

class KWDocument;
class QIODevice;

// A plan as project XML (MSPDI), the interchange format of project planners, and back.
//
// docs/mspdi-format.md says what is taken, what is only kept in its dates, and what is lost; findings() tell
// it of a file: one line for each kind, with how often and where.
class KWGANTT_EXPORT MSPDIDataEngine
{
public:
    explicit MSPDIDataEngine(KWDocument *document); // not owned, may be null

    // Whether the file's beginning is that of such a file, whatever its name.
    static bool isProjectFile(const QString &path);

    // Replaces tasks, working time, resources and assignments of the document. False leaves it as it was;
    // findings() then say why.
    bool importFile(const QString &path);
    // The same from bytes; findings() name them as `place`.
    bool importBytes(const QByteArray &bytes, const QString &place);
    // Replaces the file in one step. False leaves a file that stood there as it was.
    bool exportFile(const QString &path);
    // To a device that is open; false when it did not take all of it.
    bool exportTo(QIODevice &device);

    // Of the last call.
    const Findings &findings() const { return m_findings; }
    // The project's name: what an import found, empty when the file gives none. Set, it is what an export
    // writes; else the export takes the file's name.
    QString projectName() const { return m_projectName; }
    void setProjectName(const QString &name) { m_projectName = name; }
    // Where the project begins, on the day clock; 0 is not given. An import finds it, an export writes it
    // where no task begins before it.
    quint32 projectStart() const { return m_projectStart; }
    void setProjectStart(quint32 secs) { m_projectStart = secs; }
    // The milestones that an export dates when work ends, as ImportedPlan has them. The end of one working
    // day and the beginning of the next are one moment: without, only those stand there whose predecessors
    // end then.
    void setEvenings(const QHash<quint32, quint32> &starts) { m_evenings = starts; }
    // Values of custom fields and outline codes that the last import passed over; nothing here has room for
    // them.
    int customValues() const { return m_customValues; }

private:
    bool fail(const QString &path, const QString &what, const QString &hint = QString());

    KWDocument *m_document;
    Findings m_findings;
    QString m_projectName;
    quint32 m_projectStart = 0;
    QHash<quint32, quint32> m_evenings;
    int m_customValues = 0;
};
