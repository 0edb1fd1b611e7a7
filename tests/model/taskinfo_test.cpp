// The task as a record: copies, cleared fields, ID lists, progress levels.
#include "engine/record/resource.h"
#include "engine/record/taskfields.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include <QGuiApplication>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <set>

namespace {

// No field has its first value.
void fill(KWTaskInfo &task)
{
    fields::forEach(fields::taskFields, 0, [&task, number = 1](const auto &row) mutable {
        using Value = std::decay_t<decltype(task.*row.member)>;
        ++number;
        if constexpr (std::is_same_v<Value, QString>)
            task.*row.member = QString::number(number);
        else if constexpr (std::is_same_v<Value, QList<quint32>>)
            task.*row.member = {quint32(number), 1};
        else if constexpr (std::is_same_v<Value, bool>)
            task.*row.member = !(task.*row.member);
        else
            task.*row.member = static_cast<Value>(quint32(number));
    });
    task.hyperlinks.autoAddHyperlink()->address = "https://example.org";
    task.resourceList.append(new Resource);
    task.font.setPointSize(33);
    task.Linked = true;
}

// The names of the members in which two tasks differ.
std::set<std::string> differences(const KWTaskInfo &a, const KWTaskInfo &b)
{
    std::set<std::string> names;
    fields::forEach(fields::taskFields, 0, [&](const auto &row) {
        if (!(a.*row.member == b.*row.member))
            names.insert(row.name);
    });
    if (a.hyperlinks.content(true) != b.hyperlinks.content(true))
        names.insert("hyperlinks");
    if (a.resourceList != b.resourceList)
        names.insert("resources");
    if (a.font != b.font)
        names.insert("font");
    if (a.Linked != b.Linked)
        names.insert("Linked");
    return names;
}

TEST(TaskCopy, carriesAllButFontAndHighlight)
{
    KWTaskInfo task;
    fill(task);
    KWTaskInfo assigned;
    assigned = task;
    EXPECT_EQ(differences(task, assigned), (std::set<std::string>{"Linked", "font"}));
    EXPECT_EQ(differences(task, KWTaskInfo(task)), (std::set<std::string>{"Linked", "font"}));
}

TEST(TaskCopy, assignLeavesTheBarWhereItIs)
{
    KWTaskInfo task;
    fill(task);
    KWTaskInfo assigned;
    assigned.assign(task);
    EXPECT_EQ(differences(task, assigned),
              (std::set<std::string>{"CountWidth", "FirstWidth", "Linked", "font", "x1", "x2", "y1", "y2"}));
}

TEST(TaskClear, leavesCostsTextsAndTheBar)
{
    KWTaskInfo task;
    fill(task);
    const std::unique_ptr<KWTaskInfo> filled(new KWTaskInfo(task));
    filled->font = task.font;
    filled->Linked = true;
    EXPECT_FALSE(task.isEmpty());
    task.clear();
    EXPECT_TRUE(task.isEmpty());

    std::set<std::string> all = differences(*filled, KWTaskInfo());
    for (const std::string &cleared : differences(*filled, task))
        all.erase(cleared);
    EXPECT_EQ(all,
              (std::set<std::string>{"BaselineCost", "Cost", "CountWidth", "CriticalPath", "CriticalVisible",
                                     "FirstWidth", "Linked", "Notes", "RemainingCost", "Work", "font",
                                     "hyperlinks", "resources", "x1", "x2", "y1", "y2"}));
    EXPECT_EQ(task.DurationUnits, 4u);
}

// ---- ID lists ---------------------------------------------------------------------------------------------

struct InsertCase
{
    const char *name;
    int index;
    quint32 id;
    QList<quint32> result;
};

TEST(Insert, clampsAndKeepsAnIdThatIsThere)
{
    const InsertCase cases[] = {{"before", -5, 9, {9, 5, 6}},
                                {"between", 1, 9, {5, 9, 6}},
                                {"after", 99, 9, {5, 6, 9}},
                                {"alreadyThere", 0, 6, {5, 6}}};
    for (const InsertCase &given : cases) {
        SCOPED_TRACE(given.name);
        KWTaskInfo task;
        task.Childs = task.Depends = task.Predecessors = {5, 6};
        task.insertTaskChildID(given.index, given.id);
        task.insertDependID(given.index, given.id);
        task.insertDependOnID(given.index, given.id);
        EXPECT_EQ(task.Childs, given.result);
        EXPECT_EQ(task.Depends, given.result);
        EXPECT_EQ(task.Predecessors, given.result);
    }
}

TEST(IdLists, outsideAListNothingIsReadOrWritten)
{
    KWTaskInfo task;
    task.Childs = {5, 6, 5};
    for (int index : {-1, 3}) {
        EXPECT_EQ(task.getTaskChildIDAt(index), 0u);
        EXPECT_EQ(task.getDependIDAt(index), 0u);
        EXPECT_EQ(task.getDependOnIDAt(index), 0u);
        task.removeTaskChildIDAt(index);
        task.replaceChlidIDAt(index, 9);
        task.replaceDependIDAt(index, 9);
        task.replaceDependOnIDAt(index, 9);
    }
    EXPECT_EQ(task.getTaskChildIDByID(9), 0u);
    task.replaceChlidIDByID(9, 10);
    task.removeTaskChildIDByID(9);
    EXPECT_EQ(task.Childs, (QList<quint32>{5, 6, 5}));
    task.replaceChlidIDByID(5, 7);
    task.removeTaskChildIDByID(5);
    EXPECT_EQ(task.Childs, (QList<quint32>{7, 6}));
}

TEST(IdLists, childrenAddedFromLastToFirstStandOutOfOrderKept)
{
    KWDocument document;
    for (quint32 id : {1u, 2u, 3u, 4u}) {
        auto *task = new KWTaskInfo;
        task->ID = id;
        document.appendTaskInfoList(task);
    }
    KWTaskInfo *first = document.getTaskInfoAt(0);
    for (quint32 id : {4u, 3u, 2u, 3u, 77u})
        first->addTaskInfoChildID(&document, id);
    first->addTaskInfoChildID(nullptr, 2);
    EXPECT_EQ(first->Childs, (QList<quint32>{3, 2, 4}));
}

TEST(LinkText, namesTheTagsOfTasksThatAreThere)
{
    KWDocument document;
    for (quint32 id : {11u, 12u, 13u, 14u}) {
        auto *task = new KWTaskInfo;
        task->ID = id;
        task->HideID = id == 12 ? 11 : 0;
        document.appendTaskInfoList(task);
    }
    KWTaskInfo *task = document.getTaskInfoAt(3);
    task->Predecessors = {13, 99, 12, 11};
    task->Depends = {14};
    // A hidden task shows the tag of the visible one before it.
    EXPECT_EQ(task->getDependOnListTagContent(&document, true), "3; 1; 1");
    EXPECT_EQ(task->getDependOnListTagContent(&document, false), "4");
    EXPECT_EQ(task->getDependOnListTagContent(nullptr, true), "");
}

// ---- Font and progress ------------------------------------------------------------------------------------

TEST(RowFont, isBoldForASummaryAndFollowsTheApplication)
{
    KWTaskInfo leaf, summary;
    summary.Childs = {1};
    leaf.font.setItalic(true);
    leaf.initFont();
    summary.initFont();
    EXPECT_EQ(leaf.font.weight(), 50);
    EXPECT_EQ(summary.font.weight(), 75);
    EXPECT_EQ(leaf.font.pointSize(), 9);
    EXPECT_FALSE(leaf.font.italic());

    const QFont before = QGuiApplication::font();
    QGuiApplication::setFont(QFont("Some Other Family", 20));
    leaf.initFont();
    EXPECT_EQ(leaf.font.family(), "Some Other Family");
    EXPECT_EQ(leaf.font.pointSize(), 9);
    QGuiApplication::setFont(before);
}

struct LevelCase
{
    const char *name;
    double fraction;
    int level;
};

TEST(Progress, isTheNearestLevelCountedFromOne)
{
    const LevelCase cases[] = {
        {"nothing", 0.0, 1},        {"belowTheFirstMiddle", 0.0624, 1},
        {"firstMiddle", 0.0625, 2}, {"aTieGoesUp", 0.3125, 4},
        {"done", 1.0, 9},           {"tooMuch", 1.5, 1},
        {"negative", -0.1, 1},      {"noNumber", std::numeric_limits<double>::quiet_NaN(), 1}};
    for (const LevelCase &row : cases) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(KWTaskInfo::indexFromPercent(row.fraction), row.level);
    }
}

TEST(Progress, labelsAndIndexesNameTheSameLevels)
{
    const char *labels[] = {"nostart", "12.5%", "25%", "37.5%", "50%", "62.5%", "75%", "87.5%", "100%"};
    for (int index = 0; index < 9; ++index) {
        EXPECT_EQ(KWTaskInfo::percentOfIndex(QString(labels[index])), index / 8.0);
        EXPECT_EQ(KWTaskInfo::percentOfIndex(index), index / 8.0);
        EXPECT_TRUE(KWTaskInfo::isPercentOfIndex(index / 8.0));
    }
    EXPECT_EQ(KWTaskInfo::percentOfIndex(QString("finished")), 1.0);
    EXPECT_EQ(KWTaskInfo::percentOfIndex(QString("Finished")), 0.0);
    EXPECT_EQ(KWTaskInfo::percentOfIndex(9), 0.0);
    EXPECT_EQ(KWTaskInfo::percentOfIndex(-1), 0.0);
    EXPECT_FALSE(KWTaskInfo::isPercentOfIndex(0.3));
}

TEST(Progress, aPercentIsAFraction)
{
    KWTaskInfo task;
    const std::pair<double, double> cases[] = {
        {0.4, 0.4}, {-1, 0}, {7, 1}, {std::numeric_limits<double>::infinity(), 1}};
    for (const auto &[given, stored] : cases) {
        task.setPercent(given);
        EXPECT_EQ(task.Percent, stored);
    }
    task.setPercent(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(task.Percent, 0);
}

}
