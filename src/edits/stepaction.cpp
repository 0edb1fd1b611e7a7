#include "edits/stepaction.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"

namespace {

constexpr unsigned int noFlags = 0;
}

EditRecord::EditRecord(KWDocument &document, const QString &name)
    : m_action(&document, name, noFlags)
{
}

void EditRecord::swap(KWDocument &document)
{
    // What the action itself brings back it has with its late dates; read those of the others before.
    for (settling::LateValues &values : m_lateValues) {
        KWTaskInfo *task = document.getTaskInfoByID(values.id);
        if (!task || m_action.isExist(values.id))
            continue;
        std::swap(values.lateStart, task->LateStart);
        std::swap(values.lateFinish, task->LateFinish);
        std::swap(values.earlySlack, task->EarlySlack);
        std::swap(values.lateSlack, task->LateSlack);
        std::swap(values.isCritical, task->CriticalPath);
    }
    m_action.swapData();
}

StepAction::StepAction(KWDocument *document, const QString &name,
                       std::vector<std::unique_ptr<EditRecord>> records)
    : KWOpeAction(document, name)
    , m_records(std::move(records))
{
}

bool StepAction::execute()
{
    if (!document())
        return false;
    for (const std::unique_ptr<EditRecord> &record : m_records)
        record->swap(*document());
    settling::settleChart(*document());
    return true;
}

bool StepAction::unExecute()
{
    if (!document())
        return false;
    for (auto record = m_records.rbegin(); record != m_records.rend(); ++record)
        (*record)->swap(*document());
    settling::settleChart(*document());
    return true;
}
