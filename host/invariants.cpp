#include "invariants.h"
#include "edits/plancheck.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "support/findings.h"
#include "taskref.h"
#include "texts.h"

namespace invariants {

namespace {

QString words(const KWDocument &document, const plancheck::Finding &finding)
{
    const auto id = [&](const char *text) { return t(text).arg(finding.other); };
    switch (finding.fault) {
    case plancheck::NoId:
        return t("the task has no ID");
    case plancheck::DoubledId:
        return t("ID %1 is that of row %2, too")
            .arg(document.getTaskInfoAt(finding.pos)->ID.value())
            .arg(finding.other + 1);
    case plancheck::UnknownSummary:
        return id(QT_TR_NOOP("its summary %1 does not exist"));
    case plancheck::AboveItsSummary:
        return id(QT_TR_NOOP("it stands above its summary %1"));
    case plancheck::UnnamedBySummary:
        return id(QT_TR_NOOP("its summary %1 does not name it"));
    case plancheck::WrongLevel:
        return t("level %1 where the outline has %2")
            .arg(document.getTaskInfoAt(finding.pos)->Level)
            .arg(finding.other);
    case plancheck::DoubledChild:
        return id(QT_TR_NOOP("it names %1 twice as its subtask"));
    case plancheck::UnknownChild:
        return id(QT_TR_NOOP("its subtask %1 does not exist"));
    case plancheck::ChildOfAnother: {
        const KWTaskInfo *child = document.getTaskInfoByID(finding.other);
        return t("its subtask %1 belongs to %2").arg(finding.other).arg(child ? child->ParentID : 0);
    }
    case plancheck::WrongHider:
        return id(QT_TR_NOOP("it is hidden by %1, which is no collapsed summary"));
    case plancheck::UnknownPredecessor:
        return id(QT_TR_NOOP("its predecessor %1 does not exist"));
    case plancheck::UnknownSuccessor:
        return id(QT_TR_NOOP("its successor %1 does not exist"));
    case plancheck::OwnPredecessor:
        return t("it is its own predecessor");
    case plancheck::OwnSuccessor:
        return t("it is its own successor");
    case plancheck::OneSidedPredecessor:
        return id(QT_TR_NOOP("its predecessor %1 does not know of the link"));
    case plancheck::OneSidedSuccessor:
        return id(QT_TR_NOOP("its successor %1 does not know of the link"));
    case plancheck::AssignedSummary:
        return t("a summary with resources of its own");
    case plancheck::UnknownResource:
        return t("its resource '%1' is not in the sheet").arg(finding.name);
    case plancheck::LinkRing:
        return t("tasks wait for each other: %1").arg(taskref::ring(document, finding.ring));
    case plancheck::WrongHeightCount:
        break;
    }
    return t("%1 row heights for %2 tasks").arg(finding.other).arg(document.taskCount());
}
}

void check(const KWDocument &document, Findings &findings)
{
    for (const plancheck::Finding &finding : plancheck::check(document))
        findings.add(finding.pos < 0 ? QString() : t("row %1").arg(finding.pos + 1), words(document, finding),
                     finding.fault == plancheck::LinkRing ? t("remove one of these links") : QString());
}
}
