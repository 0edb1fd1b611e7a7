// Outlines from levels, and walks over outlines that a file may have broken.
#include "engine/record/outline.h"
#include "engine/record/taskrecord.h"
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace {

// Tasks with the IDs 1, 2, 3..., owned here.
struct Outline
{
    std::vector<std::unique_ptr<TaskRecord>> owned;
    QList<TaskRecord *> list;
    TaskIndex index;

    TaskRecord &add()
    {
        owned.push_back(std::make_unique<TaskRecord>());
        list.append(owned.back().get());
        list.last()->ID = quint32(list.size());
        index.add(list.last()->ID, list.size() - 1);
        return *list.last();
    }
    TaskRecord &task(int id) { return *list[id - 1]; }
    outline::Tasks tasks() { return {list, index}; }
    // Links parent and child on both sides, as often as asked.
    void put(int parent, int child)
    {
        task(child).ParentID = quint32(parent);
        task(parent).Childs.append(quint32(child));
    }
};

QList<quint32> ids(const std::vector<TaskRecord *> &tasks)
{
    QList<quint32> result;
    for (const TaskRecord *task : tasks)
        result.append(task->ID);
    return result;
}

struct LevelsCase
{
    const char *name;
    QList<int> levels;
    QList<quint32> parents;
};

TEST(Levels, makeTheOutline)
{
    const LevelsCase cases[] = {{"backToTheSecondLevel", {1, 2, 3, 2}, {0, 1, 2, 1}},
                                {"aLevelWithoutAParentStaysOnTop", {1, 3, 2}, {0, 0, 1}},
                                {"aJumpGoesToTheLastTaskOneLevelUpWhereverItIs", {1, 2, 1, 3}, {0, 1, 0, 2}},
                                {"belowTheFirstLevel", {0, -1, 1, 0}, {0, 0, 0, 2}},
                                {"lowestNumberThereIs", {-2147483647 - 1, 2147483647, 1}, {0, 0, 0}}};
    for (const LevelsCase &row : cases) {
        SCOPED_TRACE(row.name);
        Outline outline;
        outline::LevelBuilder builder;
        for (int level : row.levels) {
            TaskRecord &task = outline.add();
            task.Level = level;
            builder.add(task);
        }
        QList<quint32> parents;
        for (const TaskRecord *task : outline.list) {
            parents.append(task->ParentID);
            QList<quint32> childs;
            for (const TaskRecord *other : outline.list) {
                if (other->ParentID == task->ID)
                    childs.append(other->ID);
            }
            EXPECT_EQ(task->Childs, childs) << task->ID;
            EXPECT_EQ(task->font.weight(), childs.isEmpty() ? 50 : 75) << task->ID;
            EXPECT_EQ(task->font.pointSize(), 9) << task->ID;
        }
        EXPECT_EQ(parents, row.parents);
    }
}

TEST(Levels, anIdThatComesAgainIsOneChild)
{
    Outline outline;
    outline::LevelBuilder builder;
    builder.add(outline.add());
    for (int i = 0; i < 3; ++i) {
        TaskRecord &task = outline.add();
        task.Level = 2;
        task.ID = i == 1 ? 9 : 8;
        builder.add(task);
    }
    EXPECT_EQ(outline.task(1).Childs, (QList<quint32>{8, 9}));
}

// ---- Walks ------------------------------------------------------------------------------------------------

TEST(Walks, descendantsFollowTheChildListsNotTheTaskList)
{
    Outline outline;
    for (int i = 0; i < 6; ++i)
        outline.add();
    outline.put(1, 5);
    outline.put(1, 2);
    outline.put(2, 4);
    outline.put(2, 3);
    outline.task(5).Childs = {77};
    EXPECT_EQ(ids(outline::descendants(outline.tasks(), outline.task(1))), (QList<quint32>{5, 2, 4, 3}));
    EXPECT_EQ(ids(outline::ancestors(outline.tasks(), outline.task(3))), (QList<quint32>{2, 1}));
    EXPECT_EQ(outline::commonSummary(outline.tasks(), outline.task(3), outline.task(5)), &outline.task(1));
    EXPECT_EQ(outline::commonSummary(outline.tasks(), outline.task(3), outline.task(2)), &outline.task(1));
    EXPECT_EQ(outline::commonSummary(outline.tasks(), outline.task(3), outline.task(6)), nullptr);
    EXPECT_EQ(outline::commonSummary(outline.tasks(), outline.task(3), outline.task(4)), &outline.task(2));
}

TEST(Rings, areWalkedOnce)
{
    // Short chains and long ones are told apart inside.
    for (const int length : {1, 2, 15, 16, 17, 18, 500}) {
        SCOPED_TRACE(length);
        Outline outline;
        for (int i = 0; i < length + 1; ++i)
            outline.add();
        for (int id = 1; id <= length; ++id)
            outline.put(id, id % length + 1);
        outline.put(1, length + 1); // a leaf outside the ring

        QList<quint32> below, above;
        for (int id = 2; id <= length; ++id) {
            below.append(quint32(id));
            above.prepend(quint32(id));
        }
        below.append(quint32(length + 1));
        EXPECT_EQ(ids(outline::descendants(outline.tasks(), outline.task(1))), below);
        EXPECT_EQ(ids(outline::ancestors(outline.tasks(), outline.task(1))), above);
        above.prepend(1);
        EXPECT_EQ(ids(outline::ancestors(outline.tasks(), outline.task(length + 1))), above);
    }
}

TEST(Walks, ancestorsEndWhereALongTailMeetsItsRing)
{
    constexpr int tail = 20;
    constexpr int last = 50;
    Outline outline;
    QList<quint32> above;
    for (int id = 1; id <= last; ++id) {
        outline.add().ParentID = quint32(id == last ? tail : id + 1);
        if (id > 1)
            above.append(quint32(id));
    }
    EXPECT_EQ(ids(outline::ancestors(outline.tasks(), outline.task(1))), above);
}

TEST(Walks, aChildOfSeveralParentsIsVisitedOnce)
{
    // Every task of a layer is a child of both tasks of the layer above: 2^60 paths.
    Outline outline;
    for (int i = 0; i < 121; ++i)
        outline.add();
    for (int id = 1; id + 2 <= 121; ++id) {
        outline.put(id, id + 1);
        outline.put(id, id + 2);
    }
    EXPECT_EQ(outline::descendants(outline.tasks(), outline.task(1)).size(), 120u);
}

}
