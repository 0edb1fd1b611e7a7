#pragma once
#include "plan.h"
#include "style.h"
#include <QByteArray>

// What is different between two versions of a plan.
namespace diff {

struct Change
{
    const char *kind; // "added", "gone", "renamed", "placed", "slipped", "moved", "changed"
    int before = -1;  // positions in the two plans; -1: not there, in both: the plan itself
    int after = -1;
    QString what;
    const char *topic; // what `diff --only` calls it
};

// In the order of the newer plan, what is gone and what concerns the whole plan at the end; of the topics
// named, or of all when none is. None means that the plans are alike in all that is saved but the widths of
// bars. Tasks belong together by ID and name, then by a name that stands once on either side, then by ID.
std::vector<Change> between(const Plan &before, const Plan &after, const QStringList &only = {});
QString text(const Plan &before, const Plan &after, const std::vector<Change> &changes, const Style &style);
QByteArray json(const Plan &before, const Plan &after, const std::vector<Change> &changes);
}
