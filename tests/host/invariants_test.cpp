// Each fault that a document from elsewhere may have is found, and told once.
#include "engine/record/resource.h"
#include "invariants.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "support/findings.h"
#include "table/rowcolumndata.h"
#include <gtest/gtest.h>

namespace {

struct Fault
{
    const char *name;
    void (*make)(KWDocument &document, QList<KWTaskInfo *> tasks);
    const char *found; // "place: what", one a line
};

// 1 Phase, 2 First below it, 3 Second below it and waiting for 2, 4 Last.
void build(KWDocument &document)
{
    for (int i = 0; i < 3; ++i)
        document.addTaskInfo();
    document.indentTaskByRow(1);
    document.indentTaskByRow(2);
    document.addTaskInfo();
    document.outdentTaskByRow(3);
    document.taskList()[1]->insertDependID(0, 3);
    document.taskList()[2]->insertDependOnID(0, 2);
}

using Tasks = QList<KWTaskInfo *>;
const Fault faults[] = {
    {"noId", [](KWDocument &, Tasks t) { t[3]->ID = 0; }, "row 4: the task has no ID"},
    {"doubledId", [](KWDocument &, Tasks t) { t[3]->ID = 2; }, "row 4: ID 2 is that of row 2, too"},
    {"lostParent", [](KWDocument &, Tasks t) { t[3]->ParentID = 77; },
     "row 4: its summary 77 does not exist"},
    {"unknownToItsParent", [](KWDocument &, Tasks t) { t[0]->Childs.removeLast(); },
     "row 3: its summary 1 does not name it"},
    {"wrongLevel", [](KWDocument &, Tasks t) { t[2]->Level = 7; }, "row 3: level 7 where the outline has 2"},
    {"foreignChild", [](KWDocument &, Tasks t) { t[0]->Childs.append(4); },
     "row 1: its subtask 4 belongs to 0"},
    {"hiddenByNobody", [](KWDocument &, Tasks t) { t[1]->HideID = 1; },
     "row 2: it is hidden by 1, which is no collapsed summary"},
    {"danglingLink", [](KWDocument &, Tasks t) { t[3]->Predecessors.append(99); },
     "row 4: its predecessor 99 does not exist"},
    {"oneSidedLink", [](KWDocument &, Tasks t) { t[1]->Depends.clear(); },
     "row 3: its predecessor 2 does not know of the link"},
    {"ring",
     [](KWDocument &, Tasks t) {
         t[2]->Depends.append(2);
         t[1]->Predecessors.append(3);
     },
     "row 2: tasks wait for each other: 2 \"2\" \u2192 3 \"3\" \u2192 2 \"2\""},
    {"strangerAtWork",
     [](KWDocument &, Tasks t) {
         t[3]->resourceList.append(new Resource);
         t[3]->resourceList.last()->name = QStringLiteral("Ann");
     },
     "row 4: its resource 'Ann' is not in the sheet"},
    {"rowHeights", [](KWDocument &document, Tasks) { document.rowColumnData()->appendRowHeight(30); },
     "5 row heights for 4 tasks"},
};

TEST(Invariants, findEveryFault)
{
    for (const Fault &fault : faults) {
        SCOPED_TRACE(fault.name);
        KWDocument document;
        build(document);
        Findings findings;
        invariants::check(document, findings);
        ASSERT_TRUE(findings.isEmpty()) << findings.list().first().what.toStdString();

        fault.make(document, document.taskList());
        invariants::check(document, findings);
        QStringList lines;
        for (const Finding &finding : findings.list())
            lines.append((finding.place.isEmpty() ? QString() : finding.place + QLatin1String(": ")) +
                         finding.what);
        EXPECT_EQ(lines.join(QLatin1Char('\n')).toStdString(), fault.found);
    }
}
}
