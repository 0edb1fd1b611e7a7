// Thousands of edits of all kinds on small documents, each followed by a look at everything that must hold.
#include "model/kwtaskinfo.h"
#include "resources/resource.h"
#include "schedule/kwtaskcollection.h"
#include "support/outlinecheck.h"
#include "table/rowcolumndata.h"
#include <QSet>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <map>
#include <memory>
#include <random>

namespace {

class RandomEditor
{
public:
    RandomEditor(unsigned int seed, bool keepLevels)
        : m_random(seed)
        , m_keepLevels(keepLevels)
    {
    }

    // Whether everything held.
    bool run(int steps)
    {
        for (int step = 0; step < steps; ++step) {
            const std::string what = edit();
            watchHeights();
            const std::string faults =
                outlineFaults(m_document, m_keepLevels) + m_heightFaults + costFaults();
            if (!faults.empty()) {
                ADD_FAILURE() << "step " << step << ", " << what << ":\n" << faults << outline();
                return false;
            }
        }
        return true;
    }

    // Every kind of edit has been done that often at least.
    int leastEdits() const
    {
        int least = 1000000;
        for (const auto &[verb, count] : m_done)
            least = std::min(least, count);
        return int(m_done.size()) == kinds ? least : 0;
    }

private:
    static constexpr int kinds = 12;

    int below(int bound) { return bound <= 0 ? 0 : int(m_random() % unsigned(bound)); }

    std::string edit()
    {
        const int rows = m_document.visibleRowCount();
        const int row = below(rows + 1) - (below(20) == 0 ? 1 : 0);
        const bool small = m_document.taskCount() < 5;
        int kind = small ? below(3) : below(kinds);
        if (m_document.taskCount() > 40 && kind < 3)
            kind = 5;
        KWTaskInfo *task = m_document.getTaskInfoByRow(row);
        KWTaskInfo *other = m_document.getTaskInfoByRow(below(rows));
        bool done = task != nullptr;
        switch (kind) {
        case 0:
            m_document.addTaskInfo();
            break;
        case 1:
            m_document.insertTaskByRow(row);
            break;
        case 2:
            m_document.insertSubTaskByRow(row);
            break;
        case 3:
            done = m_document.indentTaskByRow(row);
            break;
        case 4:
            done = m_document.outdentTaskByRow(row);
            break;
        case 5:
            done = task && !(m_keepLevels && wouldKeepDeeperLevels(*task)) && m_document.removeTaskByRow(row);
            break;
        case 6:
            done = m_document.moveUpByRow(row) >= 0;
            break;
        case 7:
            done = m_document.moveDownByRow(row) >= 0;
            break;
        case 8:
            if (task && task->isParent())
                m_document.collapseTaskInfo(task);
            break;
        case 9:
            m_document.expandTaskInfo(task);
            break;
        case 10:
            done = m_document.taskCollection()->taskDependTask(task, other);
            break;
        case 11:
            done = task && !task->isParent();
            if (done)
                assign(*task);
            break;
        }
        if (done)
            ++m_done[kind];
        return "edit " + std::to_string(kind) + " at row " + std::to_string(row);
    }

    // Gives the task an assignment with a rate of its own, or takes it away.
    void assign(KWTaskInfo &task)
    {
        const QString name = QStringLiteral("R%1").arg(below(4));
        const bool add = !task.getResourceByName(name);
        task.addOrDelResourceByName(&m_document, name, add);
        if (add)
            task.getResourceByName(name)->cost = 1 + below(9);
        task.updateCostAndWork(&m_document);
    }

    // Each summary against the leaves whose parents lead up to it.
    std::string costFaults() const
    {
        struct Sum
        {
            double cost = 0;
            double remaining = 0;
            QSet<QString> names;
        };
        std::map<quint32, Sum> sums;
        for (const KWTaskInfo *leaf : m_document.taskList()) {
            for (quint32 id = leaf->isParent() ? 0 : leaf->ParentID; id != 0;
                 id = m_document.getTaskInfoByID(id)->ParentID) {
                sums[id].cost += leaf->Cost;
                sums[id].remaining += leaf->RemainingCost;
                for (const Resource *resource : leaf->resourceList)
                    sums[id].names.insert(resource->name);
            }
        }
        std::string faults;
        for (const KWTaskInfo *task : m_document.taskList()) {
            if (!task->isParent()) {
                if (task->resourceList.isEmpty() && (task->Cost != 0 || !task->Resources.isEmpty()))
                    faults += std::to_string(task->ID) + " costs without an assignment\n";
                continue;
            }
            const Sum &sum = sums[task->ID];
            const QStringList names = task->Resources.split(QStringLiteral("; "), Qt::SkipEmptyParts);
            if (std::abs(task->Cost - sum.cost) > 1e-6 ||
                std::abs(task->RemainingCost - sum.remaining) > 1e-6)
                faults += std::to_string(task->ID) + " does not cost what is below it\n";
            if (QSet<QString>(names.begin(), names.end()) != sum.names || !task->resourceList.isEmpty())
                faults += std::to_string(task->ID) + " does not name what is below it\n";
        }
        return faults;
    }

    bool wouldKeepDeeperLevels(const KWTaskInfo &task) const
    {
        if (task.IsToggler)
            return false;
        for (const quint32 id : task.Childs) {
            if (m_document.getTaskInfoByID(id)->isParent())
                return true;
        }
        return false;
    }

    // Each task gets a height of its own when it comes, and must keep it.
    void watchHeights()
    {
        m_heightFaults.clear();
        for (int pos = 0; pos < m_document.taskCount(); ++pos) {
            const quint32 id = m_document.getTaskInfoAt(pos)->ID;
            const double height = m_document.rowColumnData()->getRowHeightByPos(pos, false);
            const auto known = m_heights.find(id);
            // An ID comes again when the greatest one has left.
            if (known == m_heights.end() || height == RowColumnData::defaultRowHeight) {
                if (height != RowColumnData::defaultRowHeight)
                    m_heightFaults += std::to_string(id) + " has no new height\n";
                m_heights[id] = m_nextHeight;
                m_document.rowColumnData()->replaceRowHeight(pos, m_nextHeight++);
            } else if (known->second != height) {
                m_heightFaults += std::to_string(id) + " has the height of another\n";
            }
        }
    }

    std::string outline() const
    {
        std::string text;
        for (const KWTaskInfo *task : m_document.taskList()) {
            text += std::string(std::size_t(std::max(0, 2 * task->Level)), ' ') + std::to_string(task->ID) +
                    " in " + std::to_string(task->ParentID) + " hidden by " + std::to_string(task->HideID) +
                    (task->IsToggler ? " -" : "") + " {";
            for (const quint32 id : task->Childs)
                text += ' ' + std::to_string(id);
            text += " }\n";
        }
        return text;
    }

    KWDocument m_document;
    std::mt19937 m_random;
    bool m_keepLevels;
    std::map<int, int> m_done;
    std::map<quint32, double> m_heights;
    double m_nextHeight = 1000;
    std::string m_heightFaults;
};

class RandomEdits : public testing::TestWithParam<bool>
{
};

TEST_P(RandomEdits, keepTheOutlineSound)
{
    for (unsigned int seed = 1; seed <= 40; ++seed) {
        RandomEditor editor(seed, GetParam());
        ASSERT_TRUE(editor.run(200)) << "seed " << seed;
    }
    RandomEditor longest(99, GetParam());
    ASSERT_TRUE(longest.run(3000));
    EXPECT_GT(longest.leastEdits(), 20);
}

INSTANTIATE_TEST_SUITE_P(Levels, RandomEdits, testing::Bool(),
                         [](const auto &row) { return row.param ? "kept" : "leftBehind"; });

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
