// The stacks of actions, and what each kind of backup brings back.
#include "editing/taskaction.h"
#include "engine/record/resource.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include "schedule/kwcalendar.h"
#include "schedule/kwtaskcollection.h"
#include "support/casename.h"
#include "support/project.h"
#include "support/savedtext.h"
#include "table/rowcolumndata.h"
#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>

namespace {

constexpr int editType = 7;
constexpr bool clearRedo = true;

class Undo : public testing::Test
{
protected:
    Undo()
    {
        ActionManager::s_undoString[editType] = QStringLiteral("Edit");
        KWDocument::s_config = KWConfig();
    }
};

// ---- Stacks -----------------------------------------------------------------------------------------------

// Writes down what becomes of it.
class Traced : public KWOpeAction
{
public:
    Traced(const char *name, std::string &trace, bool succeeds = true)
        : KWOpeAction(nullptr, QString::fromUtf8(name))
        , m_trace(trace)
        , m_succeeds(succeeds)
    {
    }
    ~Traced() override { note("~"); }
    bool execute() override { return note(" redo "); }
    bool unExecute() override { return note(" undo "); }

private:
    bool note(const char *what)
    {
        m_trace += what + name().toStdString();
        return m_succeeds;
    }
    std::string &m_trace;
    bool m_succeeds;
};

TEST_F(Undo, stacksKeepTheirOrderAndTheirDepth)
{
    KWDocument::s_config.setValue(QStringLiteral("UndoLevel"), 3);
    std::string trace;
    KWDocument document;
    ActionManager &actions = document.actionManager();
    for (const char *name : {"a", "b", "c", "d"})
        actions.addUndoAction(new Traced(name, trace), clearRedo);
    actions.addUndoAction(nullptr, clearRedo);
    EXPECT_EQ(trace, "~a");
    EXPECT_EQ(actions.undoActionNames().join(QString()), QStringLiteral("dcb"));
    EXPECT_TRUE(document.isModified());

    trace.clear();
    document.setModified(false);
    actions.undo(0);
    actions.undo(-1);
    EXPECT_EQ(trace, "");
    EXPECT_FALSE(document.isModified());
    actions.undo(5);
    EXPECT_EQ(trace, " undo d undo c undo b");
    EXPECT_TRUE(document.isModified());
    actions.redo();
    actions.redo();
    EXPECT_EQ(actions.undoActionNames().join(QString()), QStringLiteral("cb"));
    EXPECT_EQ(actions.redoActions().size(), 1);

    trace.clear();
    actions.addUndoAction(new Traced("e", trace, false), clearRedo);
    actions.undo(1);
    EXPECT_EQ(trace, "~d undo e~e");
    EXPECT_TRUE(actions.redoActions().isEmpty());
    actions.redo();
    EXPECT_EQ(actions.undoActions().size(), 2);

    // Less than one counts as one.
    for (const int level : {0, -5}) {
        KWDocument other;
        KWDocument::s_config.setValue(QStringLiteral("UndoLevel"), level);
        other.actionManager().addUndoAction(new Traced("f", trace), clearRedo);
        other.actionManager().addUndoAction(new Traced("g", trace), clearRedo);
        EXPECT_EQ(other.actionManager().undoActionNames().join(QString()), QStringLiteral("g"));
    }
}

TEST_F(Undo, recordsOneActionAtATime)
{
    KWTaskInfo stray;
    ActionManager::addChangeTaskInfo(&stray);
    ActionManager::addUndoAction();
    auto document = std::make_unique<KWDocument>();
    ActionManager &actions = document->actionManager();
    ActionManager::preUndoAction(document.get(), editType + 1000, 0); // has no name
    ActionManager::preUndoAction(nullptr, editType, 0);
    EXPECT_EQ(ActionManager::pendingAction(), nullptr);
    ActionManager::preUndoAction(document.get(), editType, 1);
    ActionManager::preUndoAction(document.get(), editType + 1000, 0);
    EXPECT_EQ(ActionManager::pendingAction(), nullptr);
    ActionManager::preUndoAction(document.get(), editType, 1);
    ActionManager::preUndoAction(document.get(), editType, 2);
    ActionManager::addChangeTaskInfo(nullptr);
    ActionManager::addUndoAction();
    ActionManager::addUndoAction();
    ASSERT_EQ(actions.undoActions().size(), 1);
    EXPECT_EQ(static_cast<TaskAction *>(actions.undoActions().first())->type(), 2u);
    // Nothing was recorded, so nothing changes, and that succeeds.
    actions.undo(1);
    EXPECT_EQ(actions.redoActions().size(), 1);
    ActionManager::preUndoAction(document.get(), editType, 0);
    document.reset();
    EXPECT_EQ(ActionManager::pendingAction(), nullptr);
}

// ---- Kinds of backups -------------------------------------------------------------------------------------

struct EditCase
{
    const char *name;
    std::function<void(KWDocument &)> record;
    std::function<void(KWDocument &)> edit;
    bool isWholeList = false; // brings names texts with the assignments
};

class UndoneEdits : public Undo, public testing::WithParamInterface<EditCase>
{
protected:
    UndoneEdits()
        : m_project("Mon-Fri 8-12 13-17", "Build\n"
                                          "  Walls 2d\n"
                                          "  Roof 3d after Walls\n"
                                          "Paint 2d after Roof\n"
                                          "Clean 1d after Paint\n")
    {
        for (int type = 0; type < 24; ++type)
            RowColumnData::s_columnNames.insert(type, QStringLiteral("Column ") + QString::number(type));
        KWDocument &document = m_project.document();
        document.rowColumnData()->initColumnDataList();
        for (const char *name : {"Ann", "Bob", "Eve"}) {
            auto *info = new ResourceInfo;
            info->name = QString::fromUtf8(name);
            info->ID = document.resourceInfoData()->maxID();
            info->cost = 10 + info->ID;
            document.resourceInfoData()->appendResourceInfo(info);
        }
        for (const auto &[task, name] :
             {std::pair{"Walls", "Bob"}, {"Walls", "Ann"}, {"Roof", "Ann"}, {"Paint", "Bob"}})
            m_project.task(task).addOrDelResourceByName(&document, QString::fromUtf8(name), true);
        document.rowColumnData()->setRowHeights({30, 37.5, 30, 12.25, 30});
        m_project.task("Roof").hyperlinks.autoAddHyperlink();
        m_project.task("Paint").Resources = QStringLiteral("as a file had it");
        document.calendars.append(new KWCalendar);
        document.calendars.first()->dayTimes.append(new KWDayTime(0, 3600));
        document.taskCollection()->updateTaskCollection();
        document.taskCollection()->setTaskInfoActive(&m_project.task("Paint"));
    }
    Project m_project;
};

TEST_P(UndoneEdits, comeBackAndGoAgain)
{
    KWDocument &document = m_project.document();
    if (GetParam().isWholeList)
        m_project.task("Paint").Resources = QStringLiteral("Bob");
    const std::string before = savedText(document);
    ActionManager::preUndoAction(&document, editType, 0);
    GetParam().record(document);
    GetParam().edit(document);
    GetParam().record(document); // twice: the first backup stays
    ActionManager::addUndoAction();
    const std::string after = savedText(document);
    ASSERT_NE(before, after);
    for (int round = 0; round < 2; ++round) {
        document.actionManager().undo(1);
        EXPECT_EQ(savedText(document), before);
        const KWTaskInfo *active = document.taskCollection()->getTaskInfoActive();
        EXPECT_TRUE(active && active->Name == QLatin1String("Paint"));
        document.actionManager().redo();
        EXPECT_EQ(savedText(document), after);
    }
}

void recordAll(KWDocument &)
{
    ActionManager::backAllTaskData();
}

ResourceInfo &ann(KWDocument &document)
{
    return *document.resourceInfoData()->infos[0];
}

void recordAnn(KWDocument &document)
{
    if (!document.resourceInfoData()->infos.isEmpty())
        ActionManager::addDocResource(&ann(document));
}

void renameTo(KWDocument &document, int entry, const char *name)
{
    ResourceInfo &info = *document.resourceInfoData()->infos[entry];
    document.replaceTaskResourceName(info.name, QString::fromUtf8(name));
    info.name = QString::fromUtf8(name);
}

void recordSheet(KWDocument &)
{
    ActionManager::backupAllDocResources();
}

void recordSecond(KWDocument &document)
{
    ActionManager::addChangeTaskInfo(document.getTaskInfoAt(1));
    ActionManager::addTaskAllResources(document.getTaskInfoAt(1));
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, UndoneEdits,
    testing::Values(
        EditCase{"valuesOfATask", recordSecond,
                 [](KWDocument &document) {
                     KWTaskInfo &task = *document.getTaskInfoAt(1);
                     task.Start = 0xfffffff0;
                     task.Notes = QStringLiteral("damp");
                     task.Priority = -3;
                     task.font.setItalic(true);
                     task.hyperlinks.autoAddHyperlink();
                     document.rowColumnData()->replaceRowHeight(1, 41.125);
                     task.getResourceAt(0)->percent = 0.25;
                     task.deleteResourceByID(1);
                 }},
        EditCase{"aChangeWithAllItPushes",
                 [](KWDocument &document) { ActionManager::backupAffected(document.getTaskInfoAt(1)); },
                 [](KWDocument &document) {
                     document.getTaskInfoAt(1)->stretch(&document, document.getTaskInfoAt(1)->x2 + 500, true);
                     document.taskCollection()->updateOptionTaskTime();
                 }},
        EditCase{"anOutlineEdit", recordAll,
                 [](KWDocument &document) {
                     document.removeTaskByRow(1);
                     document.insertTaskByRow(1);
                     document.getTaskInfoByRow(1)->stretch(&document, 9000, true); // zooms out
                     document.taskCollection()->updateTaskCollection();
                 },
                 true},
        EditCase{"anIdAndSingleTasksWithTheList",
                 [](KWDocument &document) {
                     recordAll(document);
                     recordSecond(document);
                 },
                 [](KWDocument &document) {
                     document.getTaskInfoAt(1)->Name = QStringLiteral("Fence");
                     document.getTaskInfoAt(4)->ID = 77;
                 },
                 true},
        EditCase{"assignmentsInPlaceWithTheList", recordAll,
                 [](KWDocument &document) { document.getTaskInfoAt(2)->getResourceAt(0)->percent = 0.5; },
                 true},
        EditCase{"fewerColumns", [](KWDocument &) { ActionManager::backupAllColData(); },
                 [](KWDocument &document) { document.rowColumnData()->clearColDataList(); }},
        EditCase{"ratesOfAnEntry", recordAnn,
                 [](KWDocument &document) {
                     ann(document).costPer = 5;
                     ann(document).changeAllTaskSameNameResource(&document, ResourceInfo::ChangeCostPer);
                 }},
        EditCase{"ratesWithTheSheet", recordSheet,
                 [](KWDocument &document) {
                     ann(document).cost = 77;
                     ann(document).changeAllTaskSameNameResource(&document, ResourceInfo::ChangeCost);
                 }},
        EditCase{"anEntryThatGetsAnotherIdAndName", recordAnn,
                 [](KWDocument &document) {
                     renameTo(document, 0, "Anna");
                     ann(document).ID = 9;
                 }},
        EditCase{"anEntryThatGoesWithItsAssignments", recordAnn,
                 [](KWDocument &document) {
                     for (KWTaskInfo *task : document.taskList()) {
                         if (task->isActiveTaskResource(ann(document).name))
                             task->addOrDelResourceByName(&document, ann(document).name, false);
                     }
                     document.resourceInfoData()->deleteResourceByName(ann(document).name);
                 }},
        EditCase{"anEntryThatGoesWhileAnotherHasItsName",
                 [](KWDocument &document) {
                     recordAnn(document);
                     ActionManager::addDocResource(document.resourceInfoData()->infos.last());
                 },
                 [](KWDocument &document) {
                     document.resourceInfoData()->infos.last()->name = QStringLiteral("Ann ");
                     document.resourceInfoData()->deleteResourceByName(QStringLiteral("Ann"));
                 }},
        EditCase{"aRenameToTheNameOfAnother",
                 [](KWDocument &document) {
                     recordAnn(document);
                     for (int pos = 0; pos < 3; ++pos) // their costs and texts change
                         ActionManager::addChangeTaskInfo(document.getTaskInfoAt(pos));
                 },
                 [](KWDocument &document) { renameTo(document, 0, "Bob"); }},
        EditCase{"aRenameToTheNameOfAnotherRecordedAsRename",
                 [](KWDocument &document) { ActionManager::addEditTaskResourceName(&ann(document)); },
                 [](KWDocument &document) { renameTo(document, 0, "Bob"); }},
        EditCase{"aChangeBeforeTheListIsRecorded", recordSecond,
                 [](KWDocument &document) {
                     document.getTaskInfoAt(1)->Notes = QStringLiteral("damp");
                     document.getTaskInfoAt(1)->getResourceAt(0)->percent = 0.25;
                     recordAll(document);
                     document.removeTaskByRow(2);
                 },
                 true},
        EditCase{"aRename",
                 [](KWDocument &document) { ActionManager::addEditTaskResourceName(&ann(document)); },
                 [](KWDocument &document) { renameTo(document, 0, "Anna"); }},
        EditCase{"aRenameWithRatesOfThatEntry",
                 [](KWDocument &document) {
                     recordAnn(document);
                     ActionManager::addEditTaskResourceName(&ann(document));
                 },
                 [](KWDocument &document) { renameTo(document, 0, "Anna"); }},
        EditCase{"namesThatChangePlacesWithRatesOfAnother",
                 [](KWDocument &document) {
                     ActionManager::addDocResource(document.resourceInfoData()->infos[2]);
                     ActionManager::addChangeTaskInfo(document.getTaskInfoAt(3)); // its own text goes
                     for (const int entry : {0, 1})
                         ActionManager::addEditTaskResourceName(document.resourceInfoData()->infos[entry]);
                 },
                 [](KWDocument &document) {
                     document.resourceInfoData()->infos[2]->cost = 99;
                     renameTo(document, 0, "Nobody");
                     renameTo(document, 1, "Ann");
                     renameTo(document, 0, "Bob");
                 }},
        EditCase{"aRenameWithTheSheet",
                 [](KWDocument &document) {
                     recordSheet(document);
                     ActionManager::addEditTaskResourceName(&ann(document));
                 },
                 [](KWDocument &document) { renameTo(document, 0, "Anna"); }},
        EditCase{"theSheet", recordSheet,
                 [](KWDocument &document) {
                     document.resourceInfoData()->clearResourceInfoData();
                     document.resourceInfoData()->appendResourceInfo(new ResourceInfo);
                     document.getTaskInfoAt(2)->clearResources();
                     document.getTaskInfoAt(4)->resourceList.append(new Resource);
                     for (const int pos : {2, 4})
                         document.getTaskInfoAt(pos)->updateCostAndWork(&document);
                 }}),
    caseName<EditCase>);

TEST_F(UndoneEdits, equalEntriesAreToldApart)
{
    for (const int changed : {0, 1}) {
        for (const bool goes : {false, true}) {
            KWDocument document;
            ResourceInfoData &sheet = *document.resourceInfoData();
            for (int i = 0; i < 2; ++i) {
                sheet.appendResourceInfo(new ResourceInfo);
                sheet.infos[i]->name = QStringLiteral("Ann");
                sheet.infos[i]->unit = i + 1;
            }
            const std::string before = savedText(document);
            ActionManager::preUndoAction(&document, editType, 0);
            ActionManager::addDocResource(sheet.infos[changed]);
            if (goes)
                delete sheet.infos.takeAt(changed);
            else
                sheet.infos[changed]->name = QStringLiteral("Bob");
            ActionManager::addUndoAction();
            const std::string after = savedText(document);
            document.actionManager().undo(1);
            EXPECT_EQ(savedText(document), before) << changed << goes;
            document.actionManager().redo();
            EXPECT_EQ(savedText(document), after) << changed << goes;
        }
    }
}

// Typed texts stay, and so does the text of Paint, which has an assignment, until the list comes back.
TEST_F(UndoneEdits, namesFollowAWholeList)
{
    KWDocument &document = m_project.document();
    m_project.task("Clean").Resources = QStringLiteral("somebody");
    ActionManager::preUndoAction(&document, editType, 0);
    ActionManager::backAllTaskData();
    document.removeTaskByRow(2);
    ActionManager::addUndoAction();
    document.actionManager().undo(1);
    QStringList texts;
    for (const KWTaskInfo *task : document.taskList())
        texts.append(task->Resources);
    EXPECT_EQ(texts.join(QLatin1String(" | ")).toStdString(), "Bob; Ann | Bob; Ann | Ann | Bob | somebody");
}

// Of many tasks only what the edit changed is kept.
TEST_F(Undo, manyTasksComeBackAsTheyWere)
{
    KWDocument document;
    for (int i = 0; i < 100; ++i)
        document.addTaskInfo();
    const auto task = [&](int pos) { return document.getTaskInfoAt(pos); };
    task(7)->x1 = 3.5;
    const std::string before = savedText(document);
    ActionManager::preUndoAction(&document, editType, 0);
    for (KWTaskInfo *each : document.taskList())
        ActionManager::addChangeTaskInfo(each);
    for (int pos = 0; pos < 100; ++pos) {
        task(pos)->Start += quint32(pos % 3);
        task(pos)->Notes += QString(pos % 4, QLatin1Char('x'));
        task(pos)->Percent = pos % 2 ? 0.5 : -0.0;
        task(pos)->Priority -= pos % 5;
        task(pos)->x1 += pos;
        task(pos)->Milestone = pos % 7 == 0;
    }
    task(1)->Depends = {9, 3};
    task(2)->font.setPointSize(33);
    task(3)->hyperlinks.autoAddHyperlink()->address = QStringLiteral("a.com");
    task(4)->HideID = 2;
    document.rowColumnData()->replaceRowHeight(5, 77);
    ActionManager::addUndoAction();
    const std::string after = savedText(document);
    const quint32 gone = task(60)->ID;
    for (int round = 0; round < 2; ++round) {
        document.actionManager().undo(1);
        EXPECT_EQ(savedText(document), before);
        EXPECT_EQ(task(7)->x1, 3.5);
        task(60)->ID = 1000; // a task that is not there keeps what it had for another time
        document.actionManager().redo();
        document.actionManager().undo(1);
        task(60)->ID = gone;
        EXPECT_EQ(savedText(document), before);
        document.actionManager().redo();
        EXPECT_EQ(savedText(document), after);
    }
}

// A file and a workbook replace what the stacks are about.
TEST_F(UndoneEdits, replacedContentForgetsThemOrIsOneOfThem)
{
    KWDocument &document = m_project.document();
    const QTemporaryDir folder;
    const QString path = folder.path() + '/';
    Project other("Mon-Sat 8-12", "Paint 3d\n");
    other.document().printConfig.Zoom = 33;
    ASSERT_TRUE(other.document().saveDocument(path));
    const auto edit = [&document] {
        ActionManager::preUndoAction(&document, editType, 0);
        ActionManager::addChangeTaskInfo(document.getTaskInfoAt(0));
        document.getTaskInfoAt(0)->Priority += 1;
        ActionManager::addUndoAction();
    };
    edit();
    edit();
    document.actionManager().undo(1);
    EXPECT_FALSE(document.loadDocument(path + "no folder/", 0));
    EXPECT_EQ(document.actionManager().undoActions().size(), 1);

    m_project.task("Paint").Resources = QStringLiteral("Bob");
    const std::string before = savedText(document);
    ActionManager::preUndoAction(&document, editType, 0);
    ASSERT_TRUE(document.loadDocument(path, 0));
    ActionManager::addUndoAction();
    EXPECT_EQ(savedText(document), savedText(other.document()));
    document.actionManager().undo(1);
    EXPECT_EQ(savedText(document), before);
    document.actionManager().redo();
    EXPECT_EQ(savedText(document), savedText(other.document()));

    document.actionManager().undo(1);
    ASSERT_TRUE(document.loadDocument(path, 0));
    EXPECT_TRUE(document.actionManager().undoActions().isEmpty());
    EXPECT_TRUE(document.actionManager().redoActions().isEmpty());
}
}
