#pragma once
#include "kwgantt_export.h"

class KWDocument;

// Copy, cut and paste of whole task branches.
class KWGANTT_EXPORT ClipbdManager
{
public:
    ClipbdManager() = default;
    virtual ~ClipbdManager() = default;
    ClipbdManager(const ClipbdManager &) = delete;
    ClipbdManager &operator=(const ClipbdManager &) = delete;

    void setDocument(KWDocument *document) { m_document = document; }
    KWDocument *document() const { return m_document; }

private:
    KWDocument *m_document = nullptr;   // not owned; holds this manager by value
};
