// Edits of all kinds on outlines that no edit could have made.
#include "model/kwtaskinfo.h"
#include "table/rowcolumndata.h"
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <random>

namespace {

// What a file may hold: rings, unknown and doubled IDs, links and children known on one side only.
std::unique_ptr<KWDocument> brokenDocument(std::mt19937 &random)
{
    const auto any = [&random](unsigned int bound) { return quint32(random() % bound); };
    auto document = std::make_unique<KWDocument>();
    const unsigned int count = 2 + any(12);
    for (unsigned int i = 0; i < count; ++i) {
        auto *task = new KWTaskInfo;
        task->ID = any(10) == 0 ? 1 : i + 1;
        task->ParentID = any(3) == 0 ? 0 : any(count + 3);
        task->HideID = any(4) == 0 ? any(count + 3) : 0;
        task->IsToggler = any(3) == 0;
        const qint32 levels[] = {std::numeric_limits<qint32>::max(), std::numeric_limits<qint32>::min(), 1,
                                 2};
        task->Level = levels[any(4)];
        task->Start = any(3) == 0 ? any(0xffffffff) : 1717365600 + any(10) * 86400;
        task->Finish = any(3) == 0 ? any(0xffffffff) : task->Start + any(5) * 86400;
        task->DurationUnits = any(9);
        task->Milestone = any(5) == 0;
        for (QList<quint32> *ids : {&task->Childs, &task->Depends, &task->Predecessors}) {
            for (unsigned int n = any(4); n-- > 0;)
                ids->append(any(count + 3));
        }
        document->appendTaskInfoList(task);
        document->rowColumnData()->appendRowHeight(i);
    }
    return document;
}

TEST(BrokenOutlines, areEditedWithoutAnEnd)
{
    std::mt19937 random(7);
    for (int round = 0; round < 400; ++round) {
        const std::unique_ptr<KWDocument> document = brokenDocument(random);
        for (int step = 0; step < 12; ++step) {
            const int row = int(random() % 12);
            const int before = document->taskCount();
            const int kind = int(random() % 10);
            int added = 0;
            switch (kind) {
            case 0:
                added = document->insertTaskByRow(row) ? 1 : 0;
                break;
            case 1:
                added = document->insertSubTaskByRow(row) ? 1 : 0;
                break;
            case 2:
                document->indentTaskByRow(row);
                break;
            case 3:
                document->outdentTaskByRow(row);
                break;
            case 4:
                added = document->removeTaskByRow(row) ? -1 : 0;
                break;
            case 5:
                document->moveUpByRow(row);
                break;
            case 6:
                document->moveDownByRow(row);
                break;
            case 7:
                document->collapseTaskInfo(document->getTaskInfoByRow(row));
                break;
            case 8:
                document->expandTaskInfo(document->getTaskInfoByRow(row));
                break;
            case 9:
                document->moveTaskInfo(document->getTaskInfoByRow(row), row, int(random() % 12));
                break;
            }
            // A collapsed summary takes others along.
            if (added < 0)
                ASSERT_LT(document->taskCount(), before);
            else
                ASSERT_EQ(document->taskCount(), before + added) << kind;
            ASSERT_EQ(document->rowColumnData()->rowHeights().size(), document->taskCount()) << kind;
        }
    }
}
}
