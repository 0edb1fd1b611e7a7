#pragma once
#include "kwgantt_export.h"
#include <QByteArray>
#include <QList>

class KWDocument;

// Whether a plan is read in the zone it was made in.
namespace planzone {

// The zones of this machine in which the plan's moments fall on its working hours, when they do not in the
// zone in force: the plan was probably made in one of them, and with another zone its tasks have other dates
// and lengths. Well-known zones stand first. Empty when all is well or nothing can be told. Takes
// microseconds when all is well.
KWGANTT_EXPORT QList<QByteArray> better(const KWDocument &document);
}
