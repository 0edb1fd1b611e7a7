// Positions, rows, tags and row edges of tasks, against plain counting, while the list is edited.
#include "engine/record/taskindex.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "table/rowcolumndata.h"
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck.h>
#include <sstream>

namespace {

KWTaskInfo *newTask(quint32 id, quint32 hideId = 0)
{
    auto *task = new KWTaskInfo;
    task->ID = id;
    task->HideID = hideId;
    return task;
}

void append(KWDocument &document, KWTaskInfo *task, double height = 30.0)
{
    document.appendTaskInfoList(task);
    document.rowColumnData()->appendRowHeight(height);
}

// The addresses as their definitions read, by walking the list each time.
struct Plain
{
    const QList<KWTaskInfo *> &tasks;
    const QList<double> &heights;

    int posOfId(quint32 id) const
    {
        for (int pos = 0; pos < tasks.size(); ++pos) {
            if (tasks[pos]->ID == id)
                return pos;
        }
        return -1;
    }
    int posOfRow(int row) const
    {
        int seen = 0;
        for (int pos = 0; pos < tasks.size(); ++pos) {
            if (tasks[pos]->HideID == 0 && seen++ == row)
                return pos;
        }
        return -1;
    }
    int rowOfPos(int pos) const
    {
        if (pos < 0)
            return pos;
        if (pos >= tasks.size())
            return -1;
        int hidden = 0;
        for (int i = 0; i <= pos; ++i)
            hidden += tasks[i]->HideID != 0;
        return pos - hidden;
    }
    int rowOfTag(int tag) const
    {
        const bool isVisible = tag >= 1 && tag <= tasks.size() && tasks[tag - 1]->HideID == 0;
        return isVisible ? rowOfPos(tag - 1) : -1;
    }
    double bottomOfPos(int pos) const
    {
        double y = 40;
        for (int i = 0; i <= pos && i < tasks.size(); ++i)
            y += tasks[i]->HideID == 0 ? heights.value(i, 0.0) : 0;
        return y;
    }
    int rowAt(double y) const
    {
        double top = 40;
        for (int row = 0; posOfRow(row) >= 0; ++row) {
            const double bottom = top + heights.value(posOfRow(row), 0.0);
            if (top < y && y <= bottom)
                return row;
            top = bottom;
        }
        return -1;
    }
    quint32 maxId() const
    {
        quint32 id = 0;
        for (const KWTaskInfo *task : tasks)
            id = qMax(id, task->ID.value());
        return id;
    }
};

std::string picture(const KWDocument &document)
{
    std::ostringstream text;
    text << "rows " << document.visibleRowCount() << " max " << document.maxTaskID() << '\n';
    for (int i = -1; i <= document.taskCount() + 1; ++i) {
        text << i << ": pos of id " << document.getPosByID(quint32(i)) << " of row "
             << document.getPosByRow(i) << ", row of pos " << document.getRowByPos(i) << " of tag "
             << document.getRowByTag(i) << " of id " << document.getRowByTaskID(quint32(i)) << ", tag of row "
             << document.getTagByRow(i) << " of id " << document.getTagByTaskID(quint32(i)) << ", bottom "
             << document.getRowYByPos(i, false) << ", at " << document.getRowByPtY(40 + 17.0 * i, false)
             << '\n';
    }
    return text.str();
}

std::string plainPicture(const KWDocument &document)
{
    const Plain plain{document.taskList(), document.rowColumnData()->rowHeights()};
    int rows = 0;
    for (const KWTaskInfo *task : plain.tasks)
        rows += task->HideID == 0;
    std::ostringstream text;
    text << "rows " << rows << " max " << plain.maxId() << '\n';
    for (int i = -1; i <= plain.tasks.size() + 1; ++i) {
        const int rowOfId = plain.rowOfPos(plain.posOfId(quint32(i)));
        text << i << ": pos of id " << plain.posOfId(quint32(i)) << " of row " << plain.posOfRow(i)
             << ", row of pos " << plain.rowOfPos(i) << " of tag " << plain.rowOfTag(i) << " of id "
             << rowOfId << ", tag of row " << plain.posOfRow(i) + 1 << " of id "
             << plain.posOfRow(rowOfId) + 1 << ", bottom " << plain.bottomOfPos(i) << ", at "
             << plain.rowAt(40 + 17.0 * i) << '\n';
    }
    return text.str();
}

// One random edit through the interface or through a public field.
void apply(KWDocument &document, int kind, int place, quint32 value)
{
    const int count = document.taskCount();
    const int pos = count ? place % count : 0;
    const quint32 hideId = value % 3 == 0 ? 1 : 0;
    const double height = value % 7 == 0 ? 0.0 : 10.0 + value % 40;
    switch (kind) {
    case 0:
    case 1:
        append(document, newTask(value, hideId), height);
        break;
    case 2: {
        const int row = place % (count + 2) - 1;
        document.rowColumnData()->insertRowHeightByRow(row, height);
        document.insertTaskInfoList(row, newTask(value, hideId));
        break;
    }
    case 3:
        document.removeTaskInfoByID(value);
        break;
    case 4:
        document.removeTaskInfoAt(place % (count + 1));
        break;
    case 5:
        if (count)
            document.getTaskInfoAt(pos)->ID = value;
        break;
    case 6:
        if (count)
            document.getTaskInfoAt(pos)->HideID = hideId;
        break;
    case 7:
        document.rowColumnData()->replaceRowHeight(pos, value % 11 == 0 ? -height : height);
        break;
    case 8: { // two records change places
        KWTaskInfo *first = document.getTaskInfoAt(pos);
        KWTaskInfo *second = document.getTaskInfoAt(count / 2);
        document.replaceAt(pos, second);
        document.replaceAt(count / 2, first);
        break;
    }
    case 9: // a task that has no height yet
        document.appendTaskInfoList(newTask(value, hideId));
        break;
    case 10:
        document.rowColumnData()->insertRowHeightByPos(place - 2, height);
        break;
    case 11:
        document.insertTasks(place - 2, {newTask(value, hideId), newTask(value + 1)}, {height});
        break;
    case 12: {
        TaskIndex ids;
        ids.add(value);
        ids.add(value + 2);
        document.removeTasks(ids);
        break;
    }
    default:
        document.rowColumnData()->removeRowHeightAt(place - 2);
    }
}

TEST(Addresses, everyAnswerIsThatOfPlainCountingWhateverIsEdited)
{
    const bool holds = rc::check([] {
        // Edits also come in a row, without a question between them.
        const auto edit = rc::gen::tuple(rc::gen::inRange(0, 14), rc::gen::inRange(0, 30),
                                         rc::gen::inRange<quint32>(0, 12), rc::gen::arbitrary<bool>());
        using Edits = std::vector<std::tuple<int, int, quint32, bool>>;
        KWDocument document;
        for (const auto &[kind, place, value, ask] :
             *rc::gen::resize(rc::kNominalSize, rc::gen::container<Edits>(edit))) {
            apply(document, kind, place, value);
            if (ask)
                RC_ASSERT(picture(document) == plainPicture(document));
        }
        RC_ASSERT(picture(document) == plainPicture(document));
    });
    EXPECT_TRUE(holds);
}

TEST(Addresses, writeThroughAReplacedRecordDoesNotDisturbTheDocument)
{
    KWDocument document;
    append(document, newTask(1));
    append(document, newTask(2));
    const std::unique_ptr<KWTaskInfo> replaced(document.getTaskInfoAt(0));
    document.replaceByID(1, newTask(3));
    replaced->ID = 2;
    EXPECT_EQ(document.getPosByID(2), 1);
    EXPECT_EQ(document.getPosByID(3), 0);

    document.replaceByID(0, replaced.get());
    document.replaceAt(-1, replaced.get());
    document.replaceAt(2, replaced.get());
    document.replaceAt(0, nullptr);
    EXPECT_EQ(document.taskList().size(), 2);
    EXPECT_EQ(document.getTaskInfoAt(0)->ID, 3u);
}

TEST(Addresses, theLastOfSeveralTasksWithOneIdIsRemovedAndTheFirstIsFound)
{
    KWDocument document;
    for (quint32 id : {7u, 8u, 7u, 9u})
        append(document, newTask(id), 10.0 + document.taskCount());
    KWTaskInfo *first = document.getTaskInfoAt(0);
    document.removeTaskInfoByID(7);
    EXPECT_EQ(document.getTaskInfoByID(7), first);
    EXPECT_EQ(document.rowColumnData()->rowHeights(), (QList<double>{10, 11, 13}));
}

TEST(Addresses, heightsStayWithTheirTasksBelowACollapsedBranch)
{
    KWDocument document;
    append(document, newTask(1), 31);
    append(document, newTask(2, 1), 32);
    append(document, newTask(3, 1), 33);
    append(document, newTask(4), 34);
    // Row 1 is task 4 at pos 3.
    document.rowColumnData()->insertRowHeightByRow(1, 50);
    document.insertTaskInfoList(1, newTask(5));
    document.rowColumnData()->replaceRowHeightByRow(2, 44);
    EXPECT_EQ(document.rowColumnData()->rowHeights(), (QList<double>{31, 32, 33, 50, 44}));
    EXPECT_EQ(document.rowColumnData()->getRowHeightByRow(1), 50);
    EXPECT_EQ(document.getPosByID(5), 3);
}

TEST(Addresses, newIdsAvoidTheEndOfTheNumberRange)
{
    constexpr quint32 greatest = std::numeric_limits<quint32>::max();
    KWDocument document;
    EXPECT_EQ(document.nextTaskID(), 1u);
    append(document, newTask(greatest - 1));
    EXPECT_EQ(document.nextTaskID(), greatest);
    append(document, newTask(greatest));
    append(document, newTask(1));
    append(document, newTask(3));
    for (quint32 expected : {2u, 4u, 5u}) {
        EXPECT_EQ(document.nextTaskID(), expected);
        append(document, newTask(document.nextTaskID()));
    }
    document.removeTaskInfoByID(2);
    EXPECT_EQ(document.nextTaskID(), 2u);
}

}
