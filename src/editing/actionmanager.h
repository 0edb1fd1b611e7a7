#pragma once
#include "kwgantt_export.h"

class KWDocument;

// Undo and redo of one document.
class KWGANTT_EXPORT ActionManager
{
public:
    ActionManager() = default;
    ActionManager(const ActionManager &) = delete;
    ActionManager &operator=(const ActionManager &) = delete;

    void setDocument(KWDocument *document) { m_document = document; }
    KWDocument *document() const { return m_document; }

private:
    KWDocument *m_document = nullptr;   // not owned; holds this manager by value
};
