// Which links may be made, and what becomes of both ends' lists.
#include "engine/network/linkgraph.h"
#include "engine/network/links.h"
#include "schedule/kwtaskcollection.h"
#include "schedule/randomplan.h"
#include "support/project.h"
#include <QSet>
#include <QStringList>
#include <gtest/gtest.h>

namespace {

constexpr char week[] = "Mon-Fri 8-12 13-17";

const char *textOf(LinkRefusal refusal)
{
    const char *texts[] = {"made", "missing", "self", "twice", "own summary", "own subtask", "loop"};
    return texts[int(refusal)];
}

std::string named(const KWDocument &document, const QList<quint32> &ids)
{
    QStringList names;
    for (const quint32 id : ids) {
        const KWTaskInfo *task = document.getTaskInfoByID(id);
        names << (task && !task->Name.isEmpty() ? task->Name : QString::number(id));
    }
    return names.join(QLatin1Char(' ')).toStdString();
}

// Every task with successors as "A > B C (B C)", the predecessors' side in brackets.
std::string linkText(const KWDocument &document)
{
    std::string text;
    for (const KWTaskInfo *task : document.taskList()) {
        QList<quint32> named;
        for (const KWTaskInfo *other : document.taskList()) {
            for (const quint32 id : other->Predecessors) {
                if (id == task->ID)
                    named.append(other->ID);
            }
        }
        if (!task->Depends.isEmpty() || !named.isEmpty())
            text += ::named(document, {task->ID}) + " > " + ::named(document, task->Depends) + " (" +
                    ::named(document, named) + ")\n";
    }
    return text;
}

// ---- Refusals ---------------------------------------------------------------------------------------------

struct RefusalCase
{
    const char *name, *tasks, *predecessor, *successor, *result;
};

constexpr char branches[] = "S\n  A\n  T\n    B\n    C\nU\n  D\nE\n";

TEST(Refusals, haveTheirReason)
{
    const RefusalCase cases[] = {
        {"itself", branches, "A", "A", "self"},
        {"oneDirectionTwice", "A\nB after A\n", "A", "B", "twice"},
        {"back", "A\nB after A\n", "B", "A", "loop: B A"},
        {"ringOfFour", "A\nB after A\nC after B\nD after C\n", "D", "A", "loop: D A B C"},
        {"summaryAbove", branches, "B", "S", "own summary"},
        {"taskBelow", branches, "S", "B", "own subtask"},
        {"backToASummaryAbove", "S\n  A\n  B\nX\nY after X\nS2 after Y\n  Z\n", "Z", "X", "loop: Z X Y S2"},
        {"fromBelowTheSuccessor", "S\n  A\nX\n  Y\n  Z\nW after Z\n", "W", "X", "loop: W X Z"},
        {"fromASummaryAboveTheSuccessor", "S\n  A\n  B\nX after S\n", "X", "A", "loop: X A S"},
        {"toATaskBelowThePredecessor", "S\n  A\nX\nS3 after X\n  B\n", "S3", "X", "loop: S3 X"},
        // B pushes S, which shows in S's own finish only: A is not moved by B.
        {"betweenTheBranchesOfASummary", "S\n  A\n  B\nX after A\nY after X\n", "Y", "B", "made"}};
    for (const RefusalCase &refusal : cases) {
        SCOPED_TRACE(refusal.name);
        Project p(week, refusal.tasks);
        KWDocument &document = p.document();
        const std::string before = linkText(document);
        KWTaskInfo &a = p.task(refusal.predecessor);
        KWTaskInfo &b = p.task(refusal.successor);
        QList<quint32> ring;
        std::string result = textOf(document.taskCollection()->linkRefusal(&a, &b, &ring));
        if (!ring.isEmpty())
            result += ": " + named(document, ring);
        EXPECT_EQ(result, refusal.result);

        const bool made = document.taskCollection()->taskDependTask(&a, &b);
        EXPECT_EQ(made, result == "made");
        EXPECT_EQ(made, linkText(document) != before);
    }
}

// Each list takes a task before the first one whose bar starts further right.
TEST(Linking, keepsTheListsInTheOrderOfTheBars)
{
    for (const bool atOnce : {false, true}) {
        Project p(week, "P\nA\nB\nC\nD\nE\n");
        const double lefts[] = {0, 30, 10, 20, 20, 5};
        for (int pos = 0; pos < 6; ++pos)
            p.document().getTaskInfoAt(pos)->x1 = lefts[pos];
        QList<KWTaskLink> wanted;
        for (quint32 id = 2; id <= 6; ++id) {
            if (atOnce)
                wanted.append({1, id, {}, {}});
            else
                p.document().taskCollection()->taskDependTask(&p.task("P"), p.document().getTaskInfoByID(id));
        }
        p.document().taskCollection()->linkTasks(wanted);
        EXPECT_EQ(named(p.document(), p.task("P").Depends), "E B C D A");
    }
}

// ---- Random networks --------------------------------------------------------------------------------------

class LeafOrder
{
public:
    explicit LeafOrder(KWDocument &document)
        : m_document(document)
    {
    }
    // Whether some task would have to wait for itself, all tasks of a summary waiting with it and being
    // waited for with it.
    bool isRing(const QList<QPair<quint32, quint32>> &links) const
    {
        QMap<quint32, QSet<quint32>> after;
        for (const auto &link : links) {
            for (const quint32 from : leaves(link.first)) {
                for (const quint32 to : leaves(link.second))
                    after[from].insert(to);
            }
        }
        for (int round = 0; round < m_document.taskCount(); ++round) {
            for (QSet<quint32> &reached : after) {
                const QSet<quint32> before = reached;
                for (const quint32 id : before)
                    reached |= after.value(id);
            }
        }
        for (auto it = after.begin(); it != after.end(); ++it) {
            if (it->contains(it.key()))
                return true;
        }
        return false;
    }

private:
    QList<quint32> leaves(quint32 id) const
    {
        QList<quint32> below;
        m_document.taskCollection()->subIDListByTask(m_document.getTaskInfoByID(id), below);
        if (below.isEmpty())
            return {id};
        QList<quint32> result;
        for (const quint32 other : below) {
            if (!m_document.getTaskInfoByID(other)->isParent())
                result.append(other);
        }
        return result;
    }
    KWDocument &m_document;
};

QList<KWTaskLink> randomLinks(std::mt19937 &random, int tasks, int count)
{
    QList<KWTaskLink> links;
    for (int i = 0; i < count; ++i)
        links.append({quint32(randomplan::between(random, 1, tasks)),
                      quint32(randomplan::between(random, 0, tasks)),
                      {},
                      {}});
    return links;
}

TEST(RandomLinks, areRefusedWhenTheirTasksWouldWaitForThemselves)
{
    for (unsigned seed = 1; seed <= 60; ++seed) {
        std::mt19937 random(seed);
        const int tasks = randomplan::between(random, 3, 14);
        const auto document = randomplan::plan(random, tasks, 4);
        const LeafOrder leaves(*document);
        QList<QPair<quint32, quint32>> made;
        for (const KWTaskLink &link : randomLinks(random, tasks, 25)) {
            KWTaskInfo *a = document->getTaskInfoByID(link.predecessor);
            KWTaskInfo *b = document->getTaskInfoByID(link.successor);
            const auto pair = qMakePair(link.predecessor, link.successor);
            const bool allowed = b && !made.contains(pair) && !leaves.isRing(made + decltype(made){pair});
            ASSERT_EQ(document->taskCollection()->taskDependTask(a, b), allowed)
                << "seed " << seed << ": " << pair.first << " > " << pair.second << '\n'
                << linkText(*document);
            if (allowed)
                made.append(pair);
        }
        ASSERT_TRUE(document->taskCollection()->linkRings().isEmpty());
    }
}

// Whether each task of a ring is linked to the next one, or one of the two lies below the other; the first
// link is the refused one.
bool isRing(const KWDocument &document, const QList<quint32> &ring)
{
    QList<KWTaskInfo *> above;
    for (int i = 1; i < ring.size(); ++i) {
        KWTaskInfo *task = document.getTaskInfoByID(ring[i]);
        KWTaskInfo *next = document.getTaskInfoByID(ring[(i + 1) % ring.size()]);
        document.taskCollection()->parentIDListByTask(task, above);
        bool isFollowed = task->Depends.contains(next->ID) || above.contains(next);
        document.taskCollection()->parentIDListByTask(next, above);
        if (!isFollowed && !above.contains(task))
            return false;
    }
    return ring.size() > 1;
}

std::string outcome(const KWDocument &document, const QList<KWTaskLink> &links)
{
    std::string text;
    for (const KWTaskLink &link : links) {
        text += std::to_string(link.predecessor) + '>' + std::to_string(link.successor) + ' ' +
                textOf(link.refusal) + '\n';
        const bool isLoop = link.refusal == LinkRefusal::Loop;
        EXPECT_EQ(isLoop && isRing(document, link.ring), isLoop)
            << text << "no ring: " << named(document, link.ring);
    }
    return text + linkText(document);
}

TEST(RandomLinks, madeAtOnceAreThoseMadeOneByOne)
{
    for (unsigned seed = 1; seed <= 150; ++seed) {
        std::mt19937 random(seed);
        const int tasks = randomplan::between(random, 2, 30);
        std::mt19937 again = random;
        const auto atOnce = randomplan::plan(random, tasks, 4);
        const auto oneByOne = randomplan::plan(again, tasks, 4);
        QList<KWTaskLink> links = randomLinks(random, tasks, randomplan::between(random, 1, 80));
        for (int pos = 0; pos < tasks; ++pos)
            atOnce->getTaskInfoAt(pos)->x1 = oneByOne->getTaskInfoAt(pos)->x1 =
                randomplan::between(random, 0, 5);
        // Part of them is there already, now and then with a ring or on one side only.
        for (int i = randomplan::between(random, 0, 3); i-- > 0 && seed % 3 == 0;) {
            const quint32 a = quint32(randomplan::between(random, 1, tasks));
            const quint32 b = quint32(randomplan::between(random, 1, tasks));
            for (KWDocument *document : {atOnce.get(), oneByOne.get()}) {
                if (seed % 2)
                    randomplan::link(*document, a, b);
                else
                    document->getTaskInfoByID(b)->Predecessors.append(a);
            }
        }
        QList<KWTaskLink> expected = links;
        for (KWTaskLink &link : expected) {
            KWTaskInfo *a = oneByOne->getTaskInfoByID(link.predecessor);
            KWTaskInfo *b = oneByOne->getTaskInfoByID(link.successor);
            link.refusal = oneByOne->taskCollection()->linkRefusal(a, b, &link.ring);
            oneByOne->taskCollection()->taskDependTask(a, b);
        }
        atOnce->taskCollection()->linkTasks(links);
        ASSERT_EQ(outcome(*atOnce, links), outcome(*oneByOne, expected)) << "seed " << seed;
    }
}

// The quick way of plans that come from a file, and the quick look for rings.
TEST(RandomLinks, ofATaskListWithoutAnyAreTheSameOrNone)
{
    int plansMade = 0;
    for (unsigned seed = 1; seed <= 200; ++seed) {
        std::mt19937 random(seed);
        const int tasks = randomplan::between(random, 2, 20);
        std::mt19937 again = random;
        const auto quick = randomplan::plan(random, tasks, 4);
        const auto plain = randomplan::plan(again, tasks, 4);
        std::vector<links::Places> places;
        QList<KWTaskLink> wanted;
        for (int i = randomplan::between(random, 0, 6); i > 0; --i) {
            int a = randomplan::between(random, 0, tasks - 1);
            int b = randomplan::between(random, 0, tasks - 1);
            if (a > b && seed % 3)
                std::swap(a, b);
            places.push_back({a, b});
            wanted.append({quint32(a + 1), quint32(b + 1), {}, {}});
        }
        const bool mayAll = links::insertAll(plain->outline(), wanted) == wanted.size();
        plain->updateDependTask(false);
        ASSERT_EQ(links::insertFirst(quick->outline(), places), mayAll) << "seed " << seed;
        ASSERT_EQ(linkText(*quick), mayAll ? linkText(*plain) : "") << "seed " << seed;
        plansMade += mayAll && !wanted.isEmpty();
        randomplan::link(*plain, quint32(randomplan::between(random, 1, tasks)),
                         quint32(randomplan::between(random, 1, tasks)));
        const outline::Tasks all = plain->outline();
        ASSERT_EQ(linkgraph::hasRings(all, linkgraph::links(all)),
                  !linkgraph::rings(linkgraph::EventNetwork(all)).empty())
            << "seed " << seed << '\n'
            << linkText(*plain);
    }
    EXPECT_GT(plansMade, 50);
}

// ---- Removal and rebuilding -------------------------------------------------------------------------------

TEST(RemovingLinks, takesThoseBetweenASummaryAndItsContentOnly)
{
    Project p(week, "P\nS\n  A\n  B\nX\nY\n");
    KWDocument &document = p.document();
    for (const auto &[a, b] : {std::pair(1, 2), {2, 5}, {3, 5}, {5, 6}, {6, 2}, {4, 2}, {2, 4}})
        randomplan::link(document, quint32(a), quint32(b));
    document.taskCollection()->deleteDependOrDependOnID(&p.task("S"));
    EXPECT_EQ(linkText(document), "P > S (S)\nS > X (X)\nA > X (X)\nX > Y (Y)\n");
}

TEST(RemovingLinks, followsTheChainOfTheGivenTaskToItsEnd)
{
    Project p(week, "A\nB after A\nC after B\nD after C\nX after A, C\nY after X\n");
    p.document().taskCollection()->deleteDependIDFromParent(&p.task("B"), &p.task("X"));
    EXPECT_EQ(linkText(p.document()), "A > B X (B X)\nB > C (C)\nC > D (D)\nX > Y (Y)\n");
    p.document().taskCollection()->deleteDependOnIDFromParent(&p.task("Y"), &p.task("A"));
    EXPECT_EQ(linkText(p.document()), "A > B (B)\nB > C (C)\nC > D (D)\nX > Y (Y)\n");
}

TEST(RebuildingLinks, takesPredecessorsAsTheMasterCopy)
{
    Project p(week, "A\nB\nC\nD\n");
    p.task("D").Predecessors = {3, 1, 99};
    p.task("B").Predecessors = {1, 1};
    p.task("A").Depends = {4};
    p.document().updateDependTask(false);
    EXPECT_EQ(named(p.document(), p.task("A").Depends), "B D");
    EXPECT_EQ(named(p.document(), p.task("C").Depends), "D");
    EXPECT_EQ(p.task("D").Predecessors, (QList<quint32>{1, 3, 99}));
}

TEST(RebuildingLinks, readsTagsAsIDs)
{
    Project p(week, "A\nB\nC\nD\n");
    p.task("A").ID = 40; // tag 1
    p.task("B").HideID = 9;
    p.task("D").Predecessors = {3, 1, 2, 4, 3, 99, 4294967295u};
    p.document().updateDependTask(true);
    EXPECT_EQ(p.task("D").Predecessors, (QList<quint32>{3, 40})) << "a hidden task's tag finds nothing";
    EXPECT_EQ(linkText(p.document()), "A > D (D)\nC > D (D)\n");
}

// ---- Highlight --------------------------------------------------------------------------------------------

std::string highlighted(const KWDocument &document)
{
    std::string names;
    for (const KWTaskInfo *task : document.taskList())
        names += task->Linked ? task->Name.toStdString() : "";
    return names;
}

TEST(Highlight, followsTheActiveTaskAndItsLinks)
{
    Project p(week, "A\nB after A\nC after B\nD\n");
    KWDocument &document = p.document();
    KWTaskCollection &chart = *document.taskCollection();
    chart.setTaskInfoActive(&p.task("B"));
    EXPECT_EQ(highlighted(document), "AC");
    chart.taskDependTask(&p.task("B"), &p.task("D"));
    EXPECT_EQ(highlighted(document), "ACD");
    chart.deleteDependIDFromParent(&p.task("B"), &p.task("C"));
    EXPECT_EQ(highlighted(document), "AD");
    chart.setTaskInfoActive(&p.task("A"));
    EXPECT_EQ(highlighted(document), "B");
    document.removeTaskInfoByID(p.task("A").ID);
    EXPECT_EQ(highlighted(document), "");
    EXPECT_EQ(chart.getTaskInfoActive(), nullptr);
}

// ---- Depth ------------------------------------------------------------------------------------------------

TEST(LongChains, areWalkedWithoutRecursion)
{
    constexpr quint32 length = 100000;
    KWDocument document;
    QList<KWTaskLink> links;
    for (quint32 id = 1; id <= length; ++id) {
        auto *task = new KWTaskInfo;
        task->ID = id;
        document.appendTaskInfoList(task);
        if (id > 1)
            links.prepend({id - 1, id, {}, {}});
    }
    KWTaskCollection &chart = *document.taskCollection();
    EXPECT_EQ(chart.linkTasks(links), int(length) - 1);
    QList<quint32> ring;
    EXPECT_EQ(chart.linkRefusal(document.getTaskInfoByID(length), document.getTaskInfoByID(1), &ring),
              LinkRefusal::Loop);
    EXPECT_EQ(ring.size(), int(length));
    randomplan::link(document, length, 1);
    EXPECT_EQ(chart.linkRings().value(0).size(), int(length));
    chart.deleteDependIDFromParent(document.getTaskInfoByID(1), document.getTaskInfoByID(length));
    EXPECT_TRUE(document.getTaskInfoByID(length)->Predecessors.isEmpty());
}
}
