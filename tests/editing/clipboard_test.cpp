// Branches on the clipboard: small projects as pictures, and random ones against a slow reading of the rules.
#include "engine/record/resource.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"
#include "support/outlinecheck.h"
#include "table/rowcolumndata.h"
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QRegularExpression>
#include <QSet>
#include <gtest/gtest.h>
#include <random>

namespace {

const QString mimeType = QStringLiteral("application/vellum-xml");

QByteArray clipboardBytes()
{
    return QGuiApplication::clipboard()->mimeData()->data(mimeType);
}

void setClipboard(const QByteArray &bytes, const QString &type = mimeType)
{
    auto *data = new QMimeData;
    data->setData(type, bytes);
    QGuiApplication::clipboard()->setMimeData(data);
}

// ---- The rules, read slowly -------------------------------------------------------------------------------

// What the clipboard does to a task, as plain values.
struct Row
{
    quint32 id, parent, hide;
    int level;
    bool isCollapsed;
    QString name;
    QList<quint32> childs, depends, predecessors;
    double height;
    QString kept; // what is carried as it is

    std::string text() const
    {
        QString out = QStringLiteral("%1 in %2 hidden by %3 level %4 height %5 ")
                          .arg(QString::number(id), QString::number(parent), QString::number(hide),
                               QString::number(level), QString::number(height));
        for (const QList<quint32> *ids : {&childs, &depends, &predecessors}) {
            for (const quint32 each : *ids)
                out += QString::number(each) + ' ';
            out += "| ";
        }
        return (out + name + " | " + kept + '\n').toStdString();
    }
};
using Rows = std::vector<Row>;

Rows rowsOf(const KWDocument &document)
{
    Rows rows;
    for (int pos = 0; pos < document.taskCount(); ++pos) {
        const KWTaskInfo &task = *document.getTaskInfoAt(pos);
        QString kept = QStringLiteral("%1 %2").arg(task.Progress).arg(task.font.weight());
        if (!task.isParent())
            kept += QStringLiteral(" %1 %2 %3").arg(task.Percent).arg(task.Cost).arg(task.Resources);
        rows.push_back({task.ID, task.ParentID, task.HideID, task.Level, task.IsToggler, task.Name,
                        task.Childs, task.Depends, task.Predecessors,
                        document.rowColumnData()->getRowHeightByPos(pos, false), kept});
    }
    return rows;
}

std::string textOf(const Rows &rows)
{
    std::string text;
    for (const Row &row : rows)
        text += row.text();
    return text;
}

Row *byId(Rows &rows, quint32 id)
{
    const auto found = std::find_if(rows.begin(), rows.end(), [id](const Row &row) { return row.id == id; });
    return id == 0 || found == rows.end() ? nullptr : &*found;
}

Row *atRow(Rows &rows, int number)
{
    for (Row &row : rows) {
        if (row.hide == 0 && number-- == 0)
            return &row;
    }
    return nullptr;
}

void addBranch(Rows &rows, const Row &row, Rows &copied)
{
    if (byId(copied, row.id))
        return;
    copied.push_back(row);
    for (const quint32 child : row.childs)
        addBranch(rows, *byId(rows, child), copied);
}

Rows slowCopy(Rows rows, const QList<int> &numbers)
{
    Rows copied;
    for (const int number : numbers) {
        const Row *row = atRow(rows, number);
        bool isTop = row;
        for (const Row *up = row; up; up = byId(rows, up->parent)) {
            for (const int other : numbers)
                isTop = isTop && (up == row || atRow(rows, other) != up);
        }
        if (isTop)
            addBranch(rows, *row, copied);
    }
    return copied;
}

Rows slowCut(Rows rows, Rows cut)
{
    rows.erase(std::remove_if(rows.begin(), rows.end(), [&](const Row &row) { return byId(cut, row.id); }),
               rows.end());
    for (Row &row : rows) {
        const bool hadChilds = !row.childs.isEmpty();
        for (QList<quint32> *ids : {&row.childs, &row.depends, &row.predecessors}) {
            for (const Row &gone : cut)
                ids->removeAll(gone.id);
        }
        if (hadChilds && row.childs.isEmpty())
            row.kept = "another kind";
    }
    return rows;
}

class SlowPaste
{
public:
    SlowPaste(const Rows &rows, const Rows &old)
        : m_rows(rows)
        , m_old(old)
        , m_new(old)
    {
    }

    Rows pasteAt(int number, bool isUnder)
    {
        Row *target = number < 0 ? nullptr : atRow(m_rows, number);
        Row *parent = isUnder ? target : target ? byId(m_rows, target->parent) : nullptr;
        const int level = target ? target->level + isUnder : 1;
        Row *next = target ? target : m_rows.data() + m_rows.size();
        if (isUnder) {
            if (target->childs.isEmpty())
                target->kept = "another kind";
            Rows below;
            addBranch(m_rows, *target, below);
            for (const Row &row : below)
                next = std::max(next, byId(m_rows, row.id) + 1);
        }
        for (std::size_t i = 0; i < m_new.size(); ++i) {
            Row &top = m_new[i];
            if (byId(m_old, m_old[i].parent))
                continue;
            top.parent = parent ? parent->id : 0;
            if (parent)
                parent->childs.insert(isUnder ? parent->childs.size() : parent->childs.indexOf(target->id),
                                      maxId() + 1);
            number_(top, level - top.level);
        }
        for (Row &row : m_new) {
            row.hide = newId(row.hide);
            if (row.hide == 0 && isUnder && target->isCollapsed)
                row.hide = target->id;
            for (QList<quint32> *ids : {&row.depends, &row.predecessors}) {
                for (quint32 &id : *ids)
                    id = newId(id);
                ids->removeAll(0);
            }
        }
        Rows all = m_rows;
        all.insert(all.begin() + (next - m_rows.data()), m_new.begin(), m_new.end());
        for (auto last = m_new.rbegin(); last != m_new.rend(); ++last) {
            Row &row = *byId(all, last->id);
            const auto isSame = [&](const Row &other) {
                return other.id != row.id && other.name.trimmed() == row.name.trimmed();
            };
            while (std::any_of(all.begin(), all.end(), isSame))
                row.name += '1';
        }
        return all;
    }

private:
    quint32 maxId() const
    {
        quint32 greatest = 0;
        for (const Rows *rows : {&m_rows, &m_old, &m_new}) {
            for (const Row &row : *rows)
                greatest = std::max(greatest, row.id);
        }
        return greatest;
    }
    quint32 newId(quint32 oldId) const
    {
        for (std::size_t i = 0; i < m_old.size(); ++i) {
            if (oldId != 0 && m_old[i].id == oldId)
                return m_new[i].id;
        }
        return 0;
    }
    void number_(Row &row, int levels)
    {
        row.id = maxId() + 1;
        row.level += levels;
        for (quint32 &child : row.childs) {
            Row &below = *byId(m_new, child);
            below.parent = row.id;
            number_(below, levels);
            child = below.id;
        }
    }

    Rows m_rows;
    Rows m_old;
    Rows m_new;
};

// ---- Random projects --------------------------------------------------------------------------------------

// Two documents that grow, shrink and take branches from each other.
class Random
{
public:
    explicit Random(unsigned int seed)
        : m_random(seed)
    {
    }
    int below(int bound) { return bound <= 0 ? 0 : int(m_random() % unsigned(bound)); }

    void edit(KWDocument &document)
    {
        const int row = below(document.visibleRowCount() + 1);
        KWTaskInfo *task = document.getTaskInfoByRow(row);
        KWTaskInfo *other = document.getTaskInfoByRow(below(document.visibleRowCount()));
        switch (below(document.taskCount() < 6 ? 3 : 14)) {
        case 0:
        case 1:
            task = document.insertTaskByRow(row);
            task->Progress = below(9);
            task->Notes = QString::number(20 + below(50) / 2.0);
            document.rowColumnData()->replaceRowHeightByRow(row, task->Notes.toDouble());
            break;
        case 2:
        case 3:
            document.insertSubTaskByRow(row);
            break;
        case 4:
        case 5:
            document.indentTaskByRow(row);
            break;
        case 6:
            if (task)
                document.collapseTaskInfo(task);
            break;
        case 7:
            document.expandTaskInfo(task);
            break;
        case 8:
            if (task && !task->isParent()) {
                task->addOrDelResourceByName(&document, QStringLiteral("R%1").arg(below(3)), true);
                task->resourceList.first()->cost = 1 + below(5);
                task->updateCostAndWork(&document);
            }
            break;
        case 9:
            document.taskCollection()->taskDependTask(task, other);
            break;
        case 10:
            document.outdentTaskByRow(row);
            break;
        case 11:
            document.moveUpByRow(row);
            break;
        case 12:
            document.moveDownByRow(row);
            break;
        case 13: // what is below an expanded one would keep its level
            if (task && (task->IsToggler || !task->isParent()))
                document.removeTaskByRow(row);
            break;
        }
    }
    QList<int> rows(const KWDocument &document)
    {
        QList<int> rows;
        for (int count = 1 + below(4); count > 0; --count)
            rows.append(below(document.visibleRowCount() + 1) - below(2));
        return rows;
    }

private:
    std::mt19937 m_random;
};

// Summaries that do not hold the sums of their leaves.
std::string sumFaults(KWDocument &document)
{
    std::string faults;
    for (KWTaskInfo *task : document.taskList()) {
        const auto sums = [task] {
            QStringList names = task->Resources.split(QStringLiteral("; "));
            names.sort(); // moves leave their order
            return QStringLiteral("%1 %2 %3 %4 %5")
                .arg(QString::number(task->Cost, 'f', 4), QString::number(task->Work, 'f', 4),
                     QString::number(task->RemainingCost, 'f', 4), names.join(' '),
                     QString::number(task->resourceList.size()));
        };
        const QString before = sums();
        task->basisSubUpdateCostAndWork(&document);
        task->basisSubUpdateCompletCost(&document);
        if (task->isParent())
            task->basisSubUpdateResourceName(&document);
        if (sums() != before)
            faults += before.toStdString() + " instead of " + sums().toStdString() + '\n';
    }
    return faults;
}

// Tasks with another height than the one that they note.
std::string heightFaults(const KWDocument &document)
{
    std::string faults;
    for (int pos = 0; pos < document.taskCount(); ++pos) {
        const QString noted = document.getTaskInfoAt(pos)->Notes;
        const double height = document.rowColumnData()->getRowHeightByPos(pos, false);
        if (!noted.isEmpty() && noted.toDouble() != height)
            faults += std::to_string(height) + " instead of " + noted.toStdString() + '\n';
    }
    return faults;
}

// A summary that became a leaf, or a leaf that became one, keeps nothing that the slow reading could tell.
void forgetOthers(Rows &expected, Rows &actual)
{
    for (Row &row : expected) {
        if (Row *same = row.kept == "another kind" ? byId(actual, row.id) : nullptr)
            same->kept = row.kept;
    }
}

TEST(Clipboard, doesToRandomProjectsWhatTheSlowReadingDoes)
{
    int renamed = 0;
    int links = 0;
    int hidden = 0;
    for (unsigned int seed = 1; seed <= 15; ++seed) {
        Random random(seed);
        KWDocument documents[2];
        Rows clipboard;
        const KWDocument *source = nullptr;
        for (int step = 0; step < 40; ++step) {
            KWDocument &document = documents[random.below(2)];
            ClipbdManager &manager = document.clipbdManager();
            for (int edits = 12; edits > 0; --edits)
                random.edit(document);
            ASSERT_EQ(outlineFaults(document, true) + sumFaults(document) + heightFaults(document), "")
                << "edits of seed " << seed << " step " << step;
            Rows expected = rowsOf(document);
            const int kind = document.taskCount() > 60 ? 1 : random.below(4);
            if (kind < 2) {
                QList<int> rows = random.rows(document);
                const Rows copied = slowCopy(expected, rows);
                if (!copied.empty()) {
                    clipboard = copied;
                    source = &document;
                }
                if (kind == 1)
                    expected = slowCut(expected, copied);
                ASSERT_EQ(kind == 1 ? manager.cut(rows) : manager.copy(rows), !copied.empty());
            } else if (source) {
                const int row = random.below(document.visibleRowCount() + 2) - 1;
                const bool isUnder = random.below(3) == 0 && document.getTaskInfoByRow(row);
                expected = SlowPaste(expected, clipboard).pasteAt(row, isUnder);
                ASSERT_TRUE(isUnder ? manager.pasteUnder(row) : manager.paste(row));
                const Rows actual = rowsOf(document);
                for (std::size_t i = 0; i < actual.size(); ++i) {
                    renamed += int(expected[i].name.endsWith('1'));
                    hidden += int(expected[i].hide != 0);
                    links += expected[i].depends.size();
                    // Assignments stay behind in the document whose sheet knows them.
                    if (source != &document)
                        expected[i].kept = actual[i].kept;
                }
            }
            Rows actual = rowsOf(document);
            forgetOthers(expected, actual);
            ASSERT_EQ(textOf(actual), textOf(expected)) << "seed " << seed << " step " << step;
            ASSERT_EQ(outlineFaults(document, true) + sumFaults(document), "")
                << "seed " << seed << " step " << step;
        }
    }
    EXPECT_GT(renamed, 300);
    EXPECT_GT(links, 300);
    EXPECT_GT(hidden, 300);
}

// ---- Foreign and damaged data -----------------------------------------------------------------------------

QByteArray clipboardOf(const QByteArray &tasks, const QByteArray &more = "")
{
    return "<Clipboard Version='1.4'><TaskList>" + tasks + "</TaskList>" + more + "</Clipboard>";
}

// Three tasks: A, and B with C below it.
void fill(KWDocument &document)
{
    for (const char *name : {"A", "B", "C"})
        document.addTaskInfo()->Name = QString::fromLatin1(name);
    document.indentTaskByRow(2);
}

struct Foreign
{
    const char *name;
    const char *tasks;
    // Before C: ID, name, parent, level, children, successors, predecessors, what hides it.
    const char *pasted;
};

const Foreign foreign[] = {
    {"IDsAndNamesOfTheTarget",
     "<Task ID='1' Name=' A'/><Task ID='3' Name='C' Depends='1;2;3'/><Task ID='9' Name='C'/>",
     "10  A1 in 2 level 2 after 11\n11 C11 in 2 level 2 before 10\n12 C1 in 2 level 2\n"},
    {"childrenAndLinksThatAreNotThere",
     "<Task ID='7' Name='P' IsToggler='1' Childs='8;1;2;8;7;0' Depends='1;9' Predecessors='8'/>"
     "<Task ID='8' Name='Q' ParentID='7' Level='2' HideID='7' Depends='7;3'/>",
     "9 P in 2 level 2 has 10\n10 Q in 9 level 3 hidden by 9\n"},
    {"aLinkOnOneSide",
     "<Task ID='5' Name='P' Depends='6;6'/><Task ID='6' Name='Q'/><Task ID='7' Name='R' Predecessors='6'/>",
     "8 P in 2 level 2 before 9\n9 Q in 2 level 2 before 10 after 8\n10 R in 2 level 2 after 9\n"},
    {"aRingOfParents",
     "<Task ID='5' Name='P' ParentID='6' Childs='6'/><Task ID='6' Name='Q' ParentID='5' Childs='5' "
     "Level='2'/>",
     "7 P in 2 level 2 has 8\n8 Q in 7 level 3\n"},
    {"oneIDForSeveralAndNone",
     "<Task ID='5' Name='P' Childs='6'/><Task ID='6' Name='Q' ParentID='5'/><Task ID='6' Name='R' "
     "ParentID='5'/>"
     "<Task ID='0' Name='S' Depends='0'/>",
     "7 P in 2 level 2 has 8\n8 Q in 7 level 2\n10 R in 2 level 2\n9 S in 2 level 2\n"},
    {"theLastIDOfAll",
     "<Task ID='4294967295' Name='P' Childs='8'/><Task ID='8' Name='Q' Level='2147483647' "
     "ParentID='4294967295'/>",
     "4 P in 2 level 2 has 5\n5 Q in 4 level 2147483647\n"},
    {"hiddenByATaskOutside",
     "<Task ID='8' Name='P' HideID='2' IsToggler='1' Childs='9'/><Task ID='9' Name='Q' ParentID='8' "
     "HideID='8' Level='2'/>",
     "10 P in 2 level 2 has 11\n11 Q in 10 level 3 hidden by 10\n"},
};

TEST(ForeignTasks, becomeBranchesOfTheirOwn)
{
    for (const Foreign &each : foreign) {
        SCOPED_TRACE(each.name);
        KWDocument document;
        fill(document);
        const QByteArray tasks =
            QByteArray(each.tasks).replace("<Task ", "<Task Start='1773619200' Finish='1773705600' ");
        setClipboard(clipboardOf(tasks, "<RowHeightList RowHeight='50'/>"));
        ASSERT_TRUE(document.clipbdManager().paste(2));
        QString text;
        for (int pos = 2; pos < document.taskCount() - 1; ++pos) {
            const KWTaskInfo &task = *document.getTaskInfoAt(pos);
            const auto list = [](const QList<quint32> &ids) {
                QStringList texts;
                for (const quint32 id : ids)
                    texts.append(QString::number(id));
                return texts.join(',');
            };
            text += QStringLiteral("%1 %2 in %3 level %4")
                        .arg(QString::number(task.ID), task.Name)
                        .arg(task.ParentID)
                        .arg(task.Level);
            const std::pair<const char *, QString> lists[] = {{" has ", list(task.Childs)},
                                                              {" before ", list(task.Depends)},
                                                              {" after ", list(task.Predecessors)}};
            for (const auto &[word, ids] : lists)
                text += ids.isEmpty() ? QString() : word + ids;
            if (task.HideID != 0)
                text += QStringLiteral(" hidden by %1").arg(task.HideID);
            text += '\n';
            EXPECT_EQ(document.rowColumnData()->getRowHeightByPos(pos, false), pos == 2 ? 50 : 30);
        }
        EXPECT_EQ(text.toStdString(), each.pasted);
        QString faults = QString::fromStdString(outlineFaults(document, false));
        EXPECT_EQ(faults.remove(QRegularExpression("[^\n]*font weight[^\n]*\n")).toStdString(), "");
    }
}

TEST(Clipboard, refusesWhatIsNoClipboardOfTasks)
{
    const QByteArray deep = QByteArray("<a>").repeated(101) + QByteArray("</a>").repeated(101);
    const std::pair<QByteArray, QString> refused[] = {
        {clipboardOf("<Task ID='7'/>"), QStringLiteral("text/plain")},
        {clipboardOf("", "<RowColumn><ColumnList><Column Key='1'/></ColumnList></RowColumn>"), mimeType},
        {"<!DOCTYPE a>" + clipboardOf("<Task ID='7'/>"), mimeType},
        {clipboardOf("<Task ID='7'/>", deep), mimeType},
        {clipboardOf("<Task ID='7'/>").chopped(1), mimeType},
        {"<Other><Clipboard><TaskList><Task ID='7'/></TaskList></Clipboard></Other>", mimeType},
        {"", mimeType},
    };
    KWDocument document;
    fill(document);
    document.setModified(false);
    const std::string before = textOf(rowsOf(document));
    for (const auto &[bytes, type] : refused) {
        setClipboard(bytes, type);
        EXPECT_FALSE(document.clipbdManager().paste(1)) << bytes.left(60).toStdString();
    }
    EXPECT_EQ(textOf(rowsOf(document)), before);
    EXPECT_EQ(document.rowColumnData()->columns().size(), 24);
    EXPECT_FALSE(document.isModified());
    // Without rows nothing is put on the clipboard either.
    QList<int> rows{-1, 99};
    EXPECT_FALSE(document.clipbdManager().cut(rows) || document.clipbdManager().copy(rows));
    EXPECT_EQ(clipboardBytes(), refused[6].first);
}

TEST(Clipboard, knowsItsOwnDataByItsBytes)
{
    KWDocument document;
    fill(document);
    KWTaskInfo &task = *document.getTaskInfoByRow(2);
    task.addOrDelResourceByName(&document, QStringLiteral("Ann"), true);
    task.resourceList.first()->cost = 10;
    task.updateCostAndWork(&document);
    task.BaselineCost = QStringLiteral("7.00");
    task.Percent = 0.5;
    QList<int> rows{2};
    ASSERT_TRUE(document.clipbdManager().copy(rows));
    const QByteArray bytes = clipboardBytes();
    EXPECT_TRUE(bytes.contains("\n  <Task "));

    ASSERT_TRUE(document.clipbdManager().paste(2));
    const double cost = task.Cost;
    const KWTaskInfo &summary = *document.getTaskInfoByRow(1);
    EXPECT_GT(cost, 0);
    EXPECT_EQ(summary.Cost, 2 * cost);
    EXPECT_EQ(summary.BaselineCost.toDouble(), 7);
    EXPECT_EQ(summary.Percent, 0.5);
    EXPECT_NE(document.getTaskInfoByRow(2)->resourceList.first(), task.resourceList.first());
    EXPECT_TRUE(document.isModified());

    // Changed by somebody else, and in a document that has another sheet.
    KWDocument other;
    for (KWDocument *each : {&document, &other}) {
        setClipboard(each == &other ? bytes : bytes + '\n');
        ASSERT_TRUE(each->clipbdManager().paste(-1));
        const KWTaskInfo &pasted = *each->taskList().last();
        EXPECT_EQ(pasted.Cost + pasted.Work + pasted.RemainingCost, 0);
        EXPECT_EQ(pasted.resourceList.size() + pasted.Resources.size(), 0);
        EXPECT_EQ(pasted.Percent, 0.5);
        EXPECT_EQ(pasted.Level + int(pasted.ParentID), 1);
    }
}

// Ones behind ones behind ones would not fit into memory.
TEST(Clipboard, givesManyTasksOfOneNameShortNames)
{
    constexpr int count = 20000;
    KWDocument document;
    setClipboard(clipboardOf(QByteArray("<Task Name='X'/>").repeated(count)));
    ASSERT_TRUE(document.clipbdManager().paste(-1));
    QSet<QString> names;
    int longest = 0;
    for (const KWTaskInfo *task : document.taskList()) {
        names.insert(task->Name);
        longest = qMax(longest, task->Name.size());
    }
    EXPECT_EQ(names.size(), count);
    EXPECT_LE(longest, 1001);
    EXPECT_EQ(document.taskList().last()->Name.toStdString(), "X1");
    EXPECT_EQ(document.taskList().first()->Name.toStdString(), "X");
}
}
