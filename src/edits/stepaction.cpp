#include "edits/stepaction.h"
#include "edits/settle.h"
#include "model/kwdocument.h"

StepAction::StepAction(KWDocument *document, const QString &name,
                       std::vector<std::unique_ptr<TaskAction>> edits)
    : KWOpeAction(document, name)
    , m_edits(std::move(edits))
{
}

bool StepAction::execute()
{
    if (!document())
        return false;
    for (const std::unique_ptr<TaskAction> &edit : m_edits)
        edit->swapData();
    settling::settleChart(*document());
    return true;
}

bool StepAction::unExecute()
{
    if (!document())
        return false;
    for (auto edit = m_edits.rbegin(); edit != m_edits.rend(); ++edit)
        (*edit)->swapData();
    settling::settleChart(*document());
    return true;
}

void StepAction::takeBack()
{
    if (!document())
        return;
    for (auto edit = m_edits.rbegin(); edit != m_edits.rend(); ++edit)
        (*edit)->takeBack();
    settling::settleChart(*document());
}
