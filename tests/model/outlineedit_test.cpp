// Edits of the outline, shown as pictures.
#include "schedule/kwtaskcollection.h"
#include "support/kwclock.h"
#include "support/outlinecheck.h"
#include "support/project.h"
#include "table/rowcolumndata.h"
#include <QScopeGuard>
#include <gtest/gtest.h>

namespace {

const char june[] = "Mon-Fri 8-12 13-17, start 2024-06-03";

// The title behind the names of new tasks.
class Titles
{
public:
    Titles() { RowColumnData::s_columnNames[1] = QStringLiteral("New"); }
    ~Titles() { RowColumnData::s_columnNames.clear(); }
    Q_DISABLE_COPY(Titles)
};

QString nameOf(const KWDocument &document, quint32 id)
{
    const KWTaskInfo *task = document.getTaskInfoByID(id);
    return task ? task->Name : QStringLiteral("?");
}

// Each task on a line, indented by level: "-" for a collapsed summary, what hides it, the children where they
// stand in another order than in the list, and a row height other than a new one's.
std::string picture(const KWDocument &document)
{
    QString text;
    for (int pos = 0; pos < document.taskCount(); ++pos) {
        const KWTaskInfo &task = *document.getTaskInfoAt(pos);
        text += QString(2 * (task.Level - 1), ' ') + task.Name;
        if (task.IsToggler)
            text += QStringLiteral(" -");
        if (task.HideID != 0)
            text += QStringLiteral(" in ") + nameOf(document, task.HideID);
        QStringList childs, listed;
        for (const quint32 id : task.Childs)
            childs.append(nameOf(document, id));
        for (const KWTaskInfo *other : document.taskList()) {
            if (other->ParentID == task.ID)
                listed.append(other->Name);
        }
        if (childs != listed)
            text += QStringLiteral(" {") + childs.join(' ') + QLatin1Char('}');
        const double height = document.rowColumnData()->getRowHeightByPos(pos, false);
        if (height != RowColumnData::defaultRowHeight)
            text += QStringLiteral(" h") + QString::number(height);
        text += '\n';
    }
    return text.toStdString();
}

// Runs "indent B; sub C": a verb and the task at whose row it works ("add" and "insert" may stand alone).
// The results of moves and of edits that did nothing are added to the picture.
class Editor
{
public:
    explicit Editor(Project &project)
        : m_document(project.document())
    {
    }
    std::string run(const char *script)
    {
        for (const QString &step : QString::fromUtf8(script).split(';')) {
            const QStringList words = step.trimmed().split(' ');
            const KWTaskInfo *task = m_document.getTaskInfoByName(words.value(1));
            const int row = task ? m_document.getRowByTaskID(task->ID) : -1;
            edit(words.first(), row);
        }
        return m_results + picture(m_document);
    }

private:
    void edit(const QString &verb, int row)
    {
        if (verb == "add")
            m_document.addTaskInfo();
        else if (verb == "insert")
            m_document.insertTaskByRow(row);
        else if (verb == "sub")
            m_document.insertSubTaskByRow(row);
        else if (verb == "indent")
            note(m_document.indentTaskByRow(row));
        else if (verb == "outdent")
            note(m_document.outdentTaskByRow(row));
        else if (verb == "remove")
            note(m_document.removeTaskByRow(row));
        else if (verb == "up")
            m_results += "row " + std::to_string(m_document.moveUpByRow(row)) + '\n';
        else if (verb == "down")
            m_results += "row " + std::to_string(m_document.moveDownByRow(row)) + '\n';
        else if (verb == "collapse")
            m_document.collapseTaskInfo(m_document.getTaskInfoByRow(row));
        else if (verb == "expand")
            m_document.expandTaskInfo(m_document.getTaskInfoByRow(row));
        else
            FAIL() << verb.toStdString();
    }
    void note(bool done)
    {
        if (!done)
            m_results += "nothing\n";
    }

    KWDocument &m_document;
    std::string m_results;
};

struct EditCase
{
    const char *name, *tasks, *script, *picture;
    bool levelsHold = true;
};

const char family[] = "A\n"
                      "  B\n"
                      "  C\n"
                      "    D\n"
                      "  E\n"
                      "F\n";

TEST(Edits, giveThePicture)
{
    const Titles titles;
    const EditCase cases[] = {
        // New tasks.
        {"addedNamesDiffer", "A\nB\n", "add; add; add", "A\nB h50\nNew1\nNew4\nNew5\n"},
        {"addBelowTheParentOfTheLastTask", "A\n  B\n", "add", "A\n  B h50\n  New1\n"},
        {"addGoesByTheLastVisibleTask", "A\n  B\n  C\n", "collapse A; add",
         "A -\n  B in A h50\n  C in A\nNew1\n"},
        {"insertAbove", family, "insert C", "A\n  B h50\n  New1\n  C\n    D\n  E\nF\n"},
        {"insertBehindHiddenRows", family, "collapse A; insert F",
         "A -\n  B in A h50\n  C in A\n    D in A\n  E in A\nNew1\nF\n"},
        {"insertWithoutATaskAdds", family, "insert", "A\n  B h50\n  C\n    D\n  E\nF\nNew1\n"},
        {"subComesFirst", family, "sub A", "A\n  New1\n  B h50\n  C\n    D\n  E\nF\n"},
        {"subOfACollapsedTaskIsVisible", family, "collapse C; sub C",
         "A\n  B h50\n  C - {New1 D}\n    D in C\n    New1\n  E\nF\n"},
        {"subWithoutATask", "A\nB\n", "sub Nobody", "A\nB h50\n"},
        // Indents.
        {"topLevel", "A\nB\n  C\n", "indent B", "A\n  B h50\n    C\n"},
        {"firstTopLevelTask", "A\nB\n", "indent A", "nothing\nA\nB h50\n"},
        {"firstChild", family, "indent B", "nothing\nA\n  B h50\n  C\n    D\n  E\nF\n"},
        {"belowASiblingWithChildren", family, "indent E", "A\n  B h50\n  C\n    D\n    E\nF\n"},
        {"belowACollapsedSiblingHides", family, "collapse C; indent E",
         "A\n  B h50\n  C -\n    D in C\n    E in C\nF\n"},
        {"contentIsHiddenWithIt", "A\n  B\n  C\n    D\n  E\n    F\n      G\n    H\n",
         "collapse C; collapse F; indent E",
         "A\n  B h50\n  C -\n    D in C\n    E in C\n      F - in C\n        G in F\n      H in C\n"},
        {"aCollapsedTaskKeepsItsContent", "A\n  B\n  C\n    D\n  E\n    F\n",
         "collapse C; collapse E; indent E", "A\n  B h50\n  C -\n    D in C\n    E - in C\n      F in E\n"},
        {"topLevelBelowACollapsedTaskStaysVisible", "A\n  B\nC\n  D\n", "collapse A; indent C",
         "A -\n  B in A h50\n  C\n    D\n"},
        {"thenShownAgain", "A\n  B\n  C\n    D\n  E\n    F\n      G\n",
         "collapse C; collapse F; indent E; expand C",
         "A\n  B h50\n  C\n    D\n    E\n      F -\n        G in F\n"},
        // Outdents.
        {"lastChildIsOnlyLifted", family, "outdent E", "A\n  B h50\n  C\n    D\nE\nF\n"},
        {"onlyChild", family, "outdent D", "A\n  B h50\n  C\n  D\n  E\nF\n"},
        {"middleChildTakesItsFollowers", family, "outdent B", "A\nB h50\n  C\n    D\n  E\nF\n"},
        {"withContentOfItsOwn", family, "outdent C", "A\n  B h50\nC\n  D\n  E\nF\n"},
        {"followersComeFromLastToFirst", "A\n  B\n  C\n  D\n  E\n  F\n", "outdent B",
         "A\nB {E D C F} h50\n  C\n  D\n  E\n  F\n"},
        {"hiddenContentOfFollowersStaysHidden", "A\n  B\n  C\n    D\n", "collapse C; outdent B",
         "A\nB h50\n  C -\n    D in C\n"},
        {"aHiddenFollowerIsShown", "A\n  B\n    C\n  D\n", "collapse B; sub B; indent D; outdent New1",
         "A\n  B - h50\n    C in B\n  New1\n    D\n"},
        {"onlyVisibleChildOfACollapsedTask", "A\n  B\n  C\n", "collapse A; sub A; outdent New1",
         "A -\n  B in A h50\n  C in A\nNew1\n"},
        // Moves.
        {"firstChildUp", family, "up B", "row -1\nA\n  B h50\n  C\n    D\n  E\nF\n"},
        {"upOverAnotherBranch", family, "up E", "row 2\nA\n  B h50\n  E\n  C\n    D\nF\n"},
        {"upWithContent", family, "up C", "row 1\nA\n  C\n    D\n  B h50\n  E\nF\n"},
        {"upOverAWholeBranch", family, "up F", "row 0\nF\nA\n  B h50\n  C\n    D\n  E\n"},
        {"downOverABranch", family, "down B", "row 3\nA\n  C\n    D\n  B h50\n  E\nF\n"},
        {"collapsedDown", family, "collapse A; down A",
         "row 1\nF\nA -\n  B in A h50\n  C in A\n    D in A\n  E in A\n"},
        {"lastDown", family, "down F", "row -1\nA\n  B h50\n  C\n    D\n  E\nF\n"},
        {"noTask", family, "down Nobody", "row -1\nA\n  B h50\n  C\n    D\n  E\nF\n"},
        // Removals.
        {"leaf", family, "remove E", "A\n  B h50\n  C\n    D\nF\n"},
        {"onlyChild", family, "remove D", "A\n  B h50\n  C\n  E\nF\n"},
        {"expandedKeepsItsChildren", family, "remove C", "A\n  B h50\n  D\n  E\nF\n"},
        {"deeperLevelsStay", family, "remove A", "B h50\nC\n    D\nE\nF\n", false},
        {"collapsedGoesWithItsContent", family, "collapse A; remove A", "F\n"},
        {"visibleContentOfACollapsedTaskGoesToo", family, "collapse C; sub C; remove C",
         "A\n  B h50\n  E\nF\n"},
        {"noTask", family, "remove Nobody", "nothing\nA\n  B h50\n  C\n    D\n  E\nF\n"}};
    for (const EditCase &edit : cases) {
        SCOPED_TRACE(edit.name);
        Project p(june, edit.tasks);
        p.document().rowColumnData()->replaceRowHeight(1, 50);
        EXPECT_EQ(Editor(p).run(edit.script), edit.picture);
        EXPECT_EQ(outlineFaults(p.document(), edit.levelsHold), "");
    }
}

// ---- Dates, links and other things that follow ------------------------------------------------------------

TEST(NewTasks, inAnEmptyDocumentStartTodayForADay)
{
    const Titles titles;
    KWClock::set(QDateTime(QDate(2024, 6, 8), QTime(15, 30))); // a Saturday
    const auto reset = qScopeGuard([] { KWClock::set(QDateTime()); });
    Project p("Mon-Fri 8-12 13-17, off 2024-06-10", "");
    p.document().addTaskInfo();
    EXPECT_EQ(p.dates(), "New1 11 Jun - 11 Jun\n");
    EXPECT_EQ(p.task("New1").DurationSecs, 86400u);
    EXPECT_EQ(p.task("New1").x2 - p.task("New1").x1, 100.0);
}

struct LengthCase
{
    const char *name, *tasks, *script, *dates;
};

TEST(NewDates, followTheTaskBeside)
{
    const LengthCase cases[] = {
        {"aDayBesideALongerOne", "A 3d start 2024-06-04\n", "insert A",
         "New1 4 Jun - 4 Jun\nA 4 Jun - 6 Jun\n"},
        {"firstSubIsAsLongAsItsSummary", "A 3d start 2024-06-04\n", "sub A",
         "A 4 Jun - 6 Jun\n  New1 4 Jun - 6 Jun\n"},
        {"aSubBesideOthersLastsADay", "A\n  B 3d start 2024-06-04\n", "sub A",
         "A 4 Jun - 6 Jun\n  New1 4 Jun - 4 Jun\n  B 4 Jun - 6 Jun\n"},
        {"theDayEndsOffDaysOff", "A\n  B 3d start 2024-06-07\n", "sub A",
         "A 7 Jun - 11 Jun\n  New1 7 Jun - 7 Jun\n  B 7 Jun - 11 Jun\n"},
        {"indentWidensTheSummary", "A\n  B\nC 2d start 2024-06-06\n", "indent C",
         "A 3 Jun - 7 Jun\n  B 3 Jun - 3 Jun\n  C 6 Jun - 7 Jun\n"},
        {"outdentNarrowsTheOldSummary", "A\n  B\n  C 2d start 2024-06-06\n", "outdent C",
         "A 3 Jun - 3 Jun\n  B 3 Jun - 3 Jun\nC 6 Jun - 7 Jun\n"},
        {"outdentWithFollowersNarrowsBoth", "A\n  B\n  C\n  D 2d start 2024-06-06\n", "outdent C",
         "A 3 Jun - 3 Jun\n  B 3 Jun - 3 Jun\nC 6 Jun - 7 Jun\n  D 6 Jun - 7 Jun\n"},
        {"removalNarrowsEverySummaryAbove", "A\n  B\n    C\n    D 2d start 2024-06-06\n", "remove D",
         "A 3 Jun - 3 Jun\n  B 3 Jun - 3 Jun\n    C 3 Jun - 3 Jun\n"},
        {"aSummaryThatWaitsDoesNotStartEarlier", "X 3d\nA\n  B\nA2 start 2024-06-03\n", "indent A2",
         "X 3 Jun - 5 Jun\nA 3 Jun - 3 Jun\n  B 3 Jun - 3 Jun\n  A2 3 Jun - 3 Jun\n"}};
    for (const LengthCase &row : cases) {
        SCOPED_TRACE(row.name);
        const Titles titles;
        Project p(june, row.tasks);
        Editor(p).run(row.script);
        EXPECT_EQ(p.dates(), row.dates);
    }
}

TEST(Indents, moveATaskBehindThePredecessorOfItsSummary)
{
    Project p(june, "X 3d\n"
                    "A after X\n"
                    "B\n");
    Editor(p).run("indent B");
    EXPECT_EQ(p.dates(), "X 3 Jun - 5 Jun\n"
                         "A 6 Jun - 6 Jun\n"
                         "  B 6 Jun - 6 Jun\n");
}

std::string links(const Project &p, const char *name)
{
    const KWTaskInfo &task = p.task(name);
    std::string text;
    for (const quint32 id : task.Predecessors)
        text += std::to_string(id) + ' ';
    text += '>';
    for (const quint32 id : task.Depends)
        text += ' ' + std::to_string(id);
    return text;
}

TEST(Links, betweenATaskAndItsNewSummaryGo)
{
    Project p(june, "A\n"           // 1
                    "B after A\n"   // 2
                    "C after B\n"); // 3
    Editor(p).run("indent B");
    EXPECT_EQ(links(p, "A"), ">");
    EXPECT_EQ(links(p, "B"), "> 3");
    EXPECT_EQ(links(p, "C"), "2 >");
    Editor(p).run("indent C; outdent B");
    EXPECT_EQ(p.outline(), "A\nB\n  C\n");
    EXPECT_EQ(links(p, "B"), ">");
    EXPECT_EQ(links(p, "C"), ">");
}

TEST(Links, ofEveryTaskThatLeavesAreCut)
{
    Project p(june, "A\n"              // 1
                    "  B after X\n"    // 2
                    "  C after B\n"    // 3
                    "X\n"              // 4
                    "Y after X, C\n"); // 5
    Editor(p).run("collapse A; remove A");
    EXPECT_EQ(links(p, "X"), "> 5");
    EXPECT_EQ(links(p, "Y"), "4 >");
}

TEST(Outdents, leaveTheGridSettingAsItWas)
{
    Project p(june, family);
    Editor(p).run("outdent B");
    EXPECT_FALSE(KWTaskInfo::s_isSetTime);
    KWTaskInfo::s_isSetTime = true;
    Editor(p).run("outdent C");
    EXPECT_TRUE(KWTaskInfo::s_isSetTime);
    KWTaskInfo::s_isSetTime = false;
}

TEST(Moves, downwardByHandGoOneEntryAtATime)
{
    Project p(june, "A\n  B\n  C\nD\nE\nF\n");
    const int place = p.document().moveTaskInfo(&p.task("A"), 0, 3);
    EXPECT_EQ(place, 6);
    EXPECT_EQ(p.outline(), "  B\nD\nE\n  C\nF\nA\n");
    EXPECT_EQ(p.document().moveTaskInfo(&p.task("A"), 3, 6), -1);
}

TEST(PartValues, keepProgressAndTheResourcesText)
{
    KWTaskInfo from, to;
    from.Name = QStringLiteral("from");
    from.Progress = 3;
    from.Resources = QStringLiteral("Ann");
    from.Childs = {7, 8};
    from.font.setWeight(QFont::Bold);
    from.x2 = 55;
    from.hyperlinks.autoAddHyperlink();
    to.Progress = 5;
    to.Resources = QStringLiteral("Bob");
    KWDocument::assignPartValue(&from, &to);
    EXPECT_EQ(to.Name, "from");
    EXPECT_EQ(to.Progress, 5);
    EXPECT_EQ(to.Resources, "Bob");
    EXPECT_EQ(to.Childs, (QList<quint32>{7, 8}));
    EXPECT_EQ(to.font.weight(), 75);
    EXPECT_EQ(to.x2, 55);
    KWDocument::assignPartValue(nullptr, &to);
    KWDocument::assignPartValue(&to, nullptr);
    EXPECT_EQ(to.Name, "from");
}

TEST(DamagedOutline, ChildThatItsParentDoesNotNameStaysInPlace)
{
    for (const char *child : {"B", "C"}) {
        Project project(june, "A\n  B\n  C\n");
        project.task("A").Childs.removeOne(project.task(child).ID);
        EXPECT_FALSE(project.document().outdentTaskByRow(child[0] - 'A'));
        EXPECT_EQ(project.outline(), "A\n  B\n  C\n");
    }
}
}
