#pragma once
#include "editing/kwopeaction.h"
#include "editing/taskaction.h"
#include <memory>
#include <vector>

// One step of the undo stack: what its edits replaced, in their order.
class StepAction : public KWOpeAction
{
public:
    StepAction(KWDocument *document, const QString &name, std::vector<std::unique_ptr<TaskAction>> edits);

    bool execute() override;
    bool unExecute() override;
    // unExecute() for the last time: the step cannot be made again.
    void takeBack();

private:
    std::vector<std::unique_ptr<TaskAction>> m_edits;
};
