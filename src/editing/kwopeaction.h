#pragma once
#include "kwgantt_export.h"
#include <QString>

class KWDocument;

// One undoable edit of a document, as the undo and redo stacks hold it.
class KWGANTT_EXPORT KWOpeAction
{
public:
    explicit KWOpeAction(KWDocument *document = nullptr, const QString &name = QString());
    virtual ~KWOpeAction();
    KWOpeAction(const KWOpeAction &) = delete;
    KWOpeAction &operator=(const KWOpeAction &) = delete;

    // Do the edit again, or take it back. An action that fails is dropped by its stack.
    virtual bool execute() = 0;
    virtual bool unExecute() = 0;

    QString name() const { return m_name; } // as the user reads it
    void setName(const QString &name) { m_name = name; }
    KWDocument *document() const { return m_document; }

private:
    QString m_name;
    KWDocument *m_document; // not owned
};
