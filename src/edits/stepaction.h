#pragma once
#include "editing/kwopeaction.h"
#include "editing/taskaction.h"
#include "edits/settlepass.h"
#include <memory>
#include <vector>

// What one edit replaced: backups of what it changes itself, and the late dates that followed from it on
// other tasks.
class EditRecord
{
public:
    EditRecord(KWDocument &document, const QString &name);

    TaskAction &action() { return m_action; }
    // Empty where the action has a backup of every task.
    std::vector<settling::LateValues> &lateValues() { return m_lateValues; }
    // Exchanges all of it with the document's state. The chart is left to the caller.
    void swap(KWDocument &document);

private:
    TaskAction m_action;
    std::vector<settling::LateValues> m_lateValues;
};

// One step of the undo stack: the records of its edits, in their order.
class StepAction : public KWOpeAction
{
public:
    StepAction(KWDocument *document, const QString &name, std::vector<std::unique_ptr<EditRecord>> records);

    bool execute() override;
    bool unExecute() override;

private:
    std::vector<std::unique_ptr<EditRecord>> m_records;
};
