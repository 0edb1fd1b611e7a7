#pragma once
#include "edits/settle.h"
#include <QString>
#include <vector>

namespace settling {

// The late dates and slack of a task, as they were before they were worked out anew.
struct LateValues
{
    quint32 id = 0;
    quint32 lateStart = 0;
    quint32 lateFinish = 0;
    QString earlySlack;
    QString lateSlack;
    bool isCritical = false;
};

// settle(), which also tells the late dates that it replaced by others: they change on tasks that an edit
// does not reach otherwise.
QVector<Push> settle(KWDocument &document, const Changes &changes, std::vector<LateValues> *replaced);
}
