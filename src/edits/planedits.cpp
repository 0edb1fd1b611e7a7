#include "edits/planedits.h"
#include "editing/actionmanager.h"
#include "edits/oneedit.h"
#include "edits/stepaction.h"
#include "model/kwdocument.h"

PlanEdits::PlanEdits(KWDocument &document, const QString &stepName)
    : m_step(new EditStep{document, stepName, {}, false})
{
}

PlanEdits::~PlanEdits()
{
    finish();
}

bool PlanEdits::finish()
{
    if (m_step->records.empty())
        return false;
    constexpr bool clearRedo = true;
    KWDocument &document = m_step->document;
    document.actionManager().addUndoAction(
        new StepAction(&document, m_step->name, std::move(m_step->records)), clearRedo);
    m_step->records.clear();
    return true;
}

void PlanEdits::cancel()
{
    if (m_step->records.empty())
        return;
    StepAction(&m_step->document, m_step->name, std::move(m_step->records)).takeBack();
    m_step->records.clear();
    m_step->document.setModified(m_step->wasModified);
}
